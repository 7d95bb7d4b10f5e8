#include "calculo/rastro/mdEscritura.h"

#include <array>
#include <cmath>
#include <cstdlib>

#include "calculo/rastro/mdCifras.h"
#include "calculo/rastro/mdEscala.h"

namespace zorbin {

namespace {

enum Prioridad { kSuma = 1, kProducto = 2, kPotencia = 3, kAtomo = 4 };

// A part of a formula in one notation.
struct Trozo {
  std::string texto;
  Prioridad prioridad = kAtomo;
  bool menos = false;     // begins with a minus
  bool cifraIni = false;  // begins with a digit
  bool cifraFin = false;
};

struct DosTrozos {
  Trozo formula, llano;
};

struct Griega {
  std::string_view orden, letra;
};

constexpr std::array<Griega, 13> kGriegas{{{"\\gamma", "γ"},
                                           {"\\lambda", "λ"},
                                           {"\\mu", "μ"},
                                           {"\\phi", "φ"},
                                           {"\\epsilon", "ε"},
                                           {"\\rho", "ρ"},
                                           {"\\sigma", "σ"},
                                           {"\\psi", "ψ"},
                                           {"\\beta", "β"},
                                           {"\\Delta", "Δ"},
                                           {"\\pi", "π"},
                                           {"\\le", "≤"},
                                           {"\\ge", "≥"}}};

void Cambia(std::string& t, std::string_view de, std::string_view a) {
  for (std::size_t i = 0; (i = t.find(de, i)) != std::string::npos; i += a.size()) {
    t.replace(i, de.size(), a);
  }
}

std::string SinOrdenes(std::string_view signo) {
  std::string t(signo);
  for (const auto& g : kGriegas) Cambia(t, g.orden, g.letra);
  for (const char* c : {"{", "}", "\\"}) Cambia(t, c, "");
  return t;
}

std::string ConMenos(std::string t) {
  Cambia(t, "-", "−");
  return t;
}

class Escritor {
 public:
  /// @param cifras  of the symbols; none where the symbols themselves are written
  Escritor(const Expresion& e, const std::vector<Cifra>* cifras, char separador)
      : e_(e), cifras_(cifras), separador_(separador) {}

  DosTrozos De(const Arbol& a) const {
    switch (a.op) {
      case Op::Numero:
        return DeCifra(Constante(a.numero, separador_));
      case Op::FactorUnidades:
        return DeFactor(a.numero);
      case Op::Pi:
        return Iguales("\\pi", "π");
      case Op::Simbolo:
        return DeSimbolo(static_cast<std::size_t>(a.simbolo));
      case Op::Suma:
      case Op::Resta:
        return DeSuma(a);
      case Op::Producto:
        return DeProducto(a);
      case Op::Cociente:
        return DeCociente(a);
      case Op::Potencia:
        return DePotencia(a);
      case Op::Opuesto:
        return DeOpuesto(a);
      default:
        return DeFuncion(a);
    }
  }

 private:
  const Expresion& e_;
  const std::vector<Cifra>* cifras_;
  const char separador_;

  static DosTrozos Iguales(std::string formula, std::string llano) {
    return {{std::move(formula)}, {std::move(llano)}};
  }

  static DosTrozos DeCifra(const Cifra& c) {
    const bool potencia = c.llano.find('^') != std::string::npos;
    const auto trozo = [&](const std::string& texto) {
      return Trozo{texto, potencia ? kProducto : kAtomo, c.valor < 0, c.valor >= 0, true};
    };
    return {trozo(c.formula), trozo(c.llano)};
  }

  DosTrozos DeFactor(double k) const {
    const double p = std::log10(k);
    const double entero = std::nearbyint(p);
    if (std::fabs(p - entero) > 1e-9 || std::fabs(entero) < 2) {
      return DeCifra(Constante(k, separador_));
    }
    const std::string n = std::to_string(static_cast<int>(entero));
    return {{"10^{" + n + "}", kPotencia, false, true, true},
            {"10^" + n, kPotencia, false, true, true}};
  }

  DosTrozos DeSimbolo(std::size_t i) const {
    if (cifras_ != nullptr) return DeCifra((*cifras_)[i]);
    const auto signo = SimboloDe(e_.simbolos[i]).signo;
    return Iguales(std::string(signo), SinOrdenes(signo));
  }

  static Trozo Formula(Trozo t) {
    if (t.texto.find("\\frac") != std::string::npos ||
        t.texto.find("\\left") != std::string::npos) {
      return {"\\left(" + t.texto + "\\right)"};
    }
    return {"(" + t.texto + ")"};
  }
  static Trozo Llano(const Trozo& t) { return {"(" + t.texto + ")"}; }

  static Trozo Cerca(const Trozo& t, bool formula) { return formula ? Formula(t) : Llano(t); }
  // In parentheses where it binds less, or begins with a minus behind another sign.
  static Trozo Junto(const Trozo& t, int minima, bool detras, bool formula) {
    return t.prioridad < minima || (detras && t.menos) ? Cerca(t, formula) : t;
  }

  DosTrozos DeSuma(const Arbol& a) const {
    const DosTrozos x = De(a.hijos[0]);
    const DosTrozos y = De(a.hijos[1]);
    const bool resta = a.op == Op::Resta;
    const auto suma = [resta](const Trozo& p, const Trozo& q, bool formula) {
      const Trozo r = Junto(q, resta ? kProducto : kSuma, true, formula);
      return Trozo{p.texto + (resta ? " - " : " + ") + r.texto, kSuma, p.menos, p.cifraIni,
                   r.cifraFin};
    };
    return {suma(x.formula, y.formula, true), suma(x.llano, y.llano, false)};
  }

  DosTrozos DeProducto(const Arbol& a) const {
    const DosTrozos x = De(a.hijos[0]);
    const DosTrozos y = De(a.hijos[1]);
    const bool cifras = cifras_ != nullptr;
    const auto producto = [cifras](const Trozo& p, const Trozo& q, bool formula) {
      const Trozo i = Junto(p, kProducto, false, formula);
      const Trozo d = Junto(q, kProducto, true, formula);
      const std::string por = !formula ? "·" : cifras || d.cifraIni ? " \\cdot " : "\\, ";
      return Trozo{i.texto + por + d.texto, kProducto, i.menos, i.cifraIni, d.cifraFin};
    };
    return {producto(x.formula, y.formula, true), producto(x.llano, y.llano, false)};
  }

  DosTrozos DeCociente(const Arbol& a) const {
    const DosTrozos x = De(a.hijos[0]);
    const DosTrozos y = De(a.hijos[1]);
    const Trozo i = Junto(x.llano, kProducto, false, false);
    const Trozo d = Junto(y.llano, kPotencia, true, false);
    return {{"\\frac{" + x.formula.texto + "}{" + y.formula.texto + "}"},
            {i.texto + "/" + d.texto, kProducto, i.menos, i.cifraIni, d.cifraFin}};
  }

  DosTrozos DePotencia(const Arbol& a) const {
    const DosTrozos x = De(a.hijos[0]);
    const Trozo exponente = De(a.hijos[1]).llano;
    const bool simple = exponente.prioridad == kAtomo && !exponente.menos;
    const bool fraccion = x.formula.texto.starts_with("\\frac");
    const Trozo base = fraccion ? Formula(x.formula) : Junto(x.formula, kAtomo, true, true);
    const Trozo llana = Junto(x.llano, kAtomo, true, false);
    return {{base.texto + "^{" + exponente.texto + "}", kPotencia, false, base.cifraIni, true},
            {llana.texto + "^" + (simple ? exponente.texto : "(" + exponente.texto + ")"),
             kPotencia, false, llana.cifraIni, true}};
  }

  DosTrozos DeOpuesto(const Arbol& a) const {
    const DosTrozos x = De(a.hijos[0]);
    const auto opuesto = [](const Trozo& t, bool formula) {
      const Trozo p = Junto(t, kProducto, true, formula);
      return Trozo{"-" + p.texto, kProducto, true, false, p.cifraFin};
    };
    return {opuesto(x.formula, true), opuesto(x.llano, false)};
  }

  DosTrozos DeFuncion(const Arbol& a) const {
    std::string formula, llano;
    for (const auto& hijo : a.hijos) {
      const DosTrozos x = De(hijo);
      formula += (formula.empty() ? "" : ";\\; ") + x.formula.texto;
      llano += (llano.empty() ? "" : "; ") + x.llano.texto;
    }
    switch (a.op) {
      case Op::Abs:
        return Iguales("|" + formula + "|", "|" + llano + "|");
      case Op::Raiz:
        return Iguales("\\sqrt{" + formula + "}", "√(" + llano + ")");
      case Op::Exp:
        return {{"\\e^{" + formula + "}", kPotencia}, {"e^(" + llano + ")", kPotencia}};
      case Op::Tan:
        return {{"\\tan\\left(" + formula + "°\\right)"}, {"tan(" + llano + "°)"}};
      case Op::Ent:
        return Iguales("\\ent\\left(" + formula + "\\right)", "ent(" + llano + ")");
      case Op::Max:
        return Iguales("\\max\\left(" + formula + "\\right)", "max(" + llano + ")");
      default:
        return Iguales("\\min\\left(" + formula + "\\right)", "min(" + llano + ")");
    }
  }
};

std::string_view SignoDe(Relacion r) {
  switch (r) {
    case Relacion::MenorIgual:
      return "\\le";
    case Relacion::MayorIgual:
      return "\\ge";
    case Relacion::Menor:
      return "<";
    case Relacion::Mayor:
      return ">";
    default:
      return "=";
  }
}

LineaPaso Linea(const Expresion& e, const std::vector<Cifra>* cifras, char separador) {
  const Escritor escritor(e, cifras, separador);
  const DosTrozos derecha = escritor.De(e.derecha);
  LineaPaso l{derecha.formula.texto, derecha.llano.texto};
  std::string antes, llano;
  if (e.EsRelacion()) {
    const DosTrozos izquierda = escritor.De(e.izquierda);
    antes = izquierda.formula.texto;
    llano = izquierda.llano.texto;
  } else if (cifras == nullptr) {
    antes = SimboloDe(e.resultado).signo;
    llano = SinOrdenes(antes);
  }
  if (!antes.empty()) {
    const std::string signo(SignoDe(e.relacion));
    l.formula = antes + " " + signo + " " + l.formula;
    l.llano = llano + " " + SinOrdenes(signo) + " " + l.llano;
  }
  l.llano = ConMenos(l.llano);
  return l;
}

double FactorDe(const UnidadPaso& u, bool si) {
  return si ? u.factor : 1.0;
}

std::string_view UnidadDe(const UnidadPaso& u, bool si) {
  return si ? u.si : u.mks;
}

std::vector<double> Factores(const Expresion& e, bool si) {
  std::vector<double> v;
  for (const auto nombre : e.simbolos) v.push_back(FactorDe(SimboloDe(nombre).unidad, si));
  return v;
}

std::vector<Expresion> Todas(bool si) {
  std::vector<Expresion> v;
  for (int i = 0; i < kFormulas; ++i) {
    const Expresion e = LeeExpresion(InfoDe(static_cast<Formula>(i)).expresion);
    const double resultado = e.EsRelacion() ? 1.0 : FactorDe(SimboloDe(e.resultado).unidad, si);
    v.push_back(CambiaUnidades(e, Factores(e, si), resultado));
  }
  return v;
}

SimboloPaso Simbolo(std::string_view nombre, bool si, const Cifra& cifra) {
  const auto& s = SimboloDe(nombre);
  return {std::string(s.signo), SinOrdenes(s.signo), UnidadDe(s.unidad, si), cifra};
}

}  // namespace

const Expresion& EnUnidades(Formula formula, bool si) {
  static const std::vector<Expresion> mks = Todas(false);
  static const std::vector<Expresion> internacional = Todas(true);
  return (si ? internacional : mks)[static_cast<std::size_t>(formula)];
}

PasoEscrito EscribePaso(const Paso& paso, bool si, char separador) {
  const auto& info = InfoDe(paso.formula);
  const Expresion& e = EnUnidades(paso.formula, si);
  const auto factores = Factores(e, si);
  std::vector<double> datos;
  for (std::size_t i = 0; i < factores.size(); ++i) datos.push_back(paso.valores[i] * factores[i]);
  const double factor = e.EsRelacion() ? 1.0 : FactorDe(SimboloDe(e.resultado).unidad, si);
  const auto cifras = EligeCifras(e, datos, paso.resultado * factor, separador);

  PasoEscrito x;
  x.simbolos = Linea(e, nullptr, separador);
  x.cifras = Linea(e, &cifras.datos, separador);
  x.etiqueta = info.etiqueta;
  x.numero = info.numero;
  x.ancla = info.ancla;
  x.esRelacion = e.EsRelacion();
  x.porIntervalo = cifras.porIntervalo;
  for (std::size_t i = 0; i < factores.size(); ++i) {
    x.datos.push_back(Simbolo(e.simbolos[i], si, cifras.datos[i]));
  }
  if (x.esRelacion) return x;
  x.resultado = cifras.resultado;
  x.simbolo = Simbolo(e.resultado, si, cifras.resultado);
  x.unidad = x.simbolo.unidad;
  return x;
}

std::string TextoLlano(const PasoEscrito& paso) {
  std::string t = paso.simbolos.llano;
  if (paso.esRelacion) return t + ": " + paso.cifras.llano;
  if (!paso.datos.empty()) t += " = " + paso.cifras.llano;
  if (paso.cifras.llano != ConMenos(paso.resultado.llano)) {
    t += " = " + ConMenos(paso.resultado.llano);
  }
  if (!paso.unidad.empty()) t += " " + std::string(paso.unidad);
  return t;
}

}  // namespace zorbin
