#include "listados/maqueta/mdParrafo.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "listados/maqueta/mdError.h"
#include "listados/maqueta/mdFormula.h"

namespace zorbin::memoria {

namespace {

constexpr double kEspacioMinimo = 0.8;  // of the natural width, in a justified line
constexpr double kCosteEstirar = 3.0;   // exponent of the stretch in the cost of a line

class Escritor {
 public:
  Escritor(const Tipografia& tipografia, const Referencia& referencia)
      : tipos_(tipografia), referencia_(referencia) {}

  void Escribe(const Elemento& e, const Tipo& tipo) {
    for (const auto& hijo : e.hijos) Uno(hijo, tipo);
  }

  std::vector<Palabra> Palabras() {
    Cierra(0);
    return std::move(palabras_);
  }

 private:
  const Tipografia& tipos_;
  const Referencia& referencia_;
  std::vector<Palabra> palabras_;
  Palabra palabra_;
  bool abierta_ = false;

  void Uno(const Elemento& e, const Tipo& tipo) {
    if (e.EsTexto()) return Texto(e.texto, tipo);
    if (e.nombre == "$") return Formula(e, tipo);
    if (e.nombre == "br") return Salto();
    if (e.nombre == "a") return Enlace(e, tipo);
    if (e.nombre == "span") return Escribe(e, tipo);
    const bool cursiva = tipo.letra == Letra::Cursiva;
    const bool negrita = tipo.letra == Letra::Negrita;
    if (e.nombre == "b") {
      return Escribe(e, {cursiva ? Letra::NegritaCursiva : Letra::Negrita, tipo.cuerpo});
    }
    if (e.nombre == "i") {
      return Escribe(e, {negrita ? Letra::NegritaCursiva : Letra::Cursiva, tipo.cuerpo});
    }
    if (e.nombre == "code") return Escribe(e, {Letra::Mono, tipo.cuerpo * 0.84});
    throw ErrorFuente(e.linea, QStringLiteral("<%1> has no place in a line").arg(e.nombre));
  }

  void Texto(const QString& texto, const Tipo& tipo) {
    const auto blanco = [](QChar c) { return c.isSpace() && c != QChar::Nbsp; };
    qsizetype desde = 0;
    for (qsizetype i = 0; i <= texto.size(); ++i) {
      if (i < texto.size() && !blanco(texto[i])) continue;
      if (i > desde) Trozo(texto.mid(desde, i - desde), tipo);
      if (i < texto.size()) Cierra(tipos_.Ancho(QStringLiteral(" "), tipo));
      desde = i + 1;
    }
  }

  void Trozo(const QString& texto, const Tipo& tipo) {
    palabra_.caja.Sigue(tipos_.DeTexto(texto, tipo));
    abierta_ = true;
  }

  void Formula(const Elemento& e, const Tipo& tipo) {
    palabra_.caja.Sigue(ComponeFormula(tipos_, LeeFormula(e.texto, e.linea), tipo.cuerpo, false));
    abierta_ = true;
  }

  void Enlace(const Elemento& e, const Tipo& tipo) {
    const QString texto = referencia_(e);
    Texto(texto, tipo);
  }

  void Salto() {
    Cierra(0);
    if (!palabras_.empty()) palabras_.back().finLinea = true;
  }

  void Cierra(double espacio) {
    if (!abierta_) {
      if (!palabras_.empty() && palabras_.back().espacio == 0) palabras_.back().espacio = espacio;
      return;
    }
    palabra_.espacio = espacio;
    palabras_.push_back(std::move(palabra_));
    palabra_ = {};
    abierta_ = false;
  }
};

// Words [desde, hasta) as one line.
struct Renglon {
  double natural = 0;   // width of words and spaces
  double espacios = 0;  // of which spaces
};

Renglon Mide(const std::vector<Palabra>& p, std::size_t desde, std::size_t hasta) {
  Renglon r;
  for (std::size_t i = desde; i < hasta; ++i) {
    r.natural += p[i].caja.ancho;
    if (i + 1 < hasta) r.espacios += p[i].espacio;
  }
  r.natural += r.espacios;
  return r;
}

// How bad a line is; infinite when it does not fit.
double Coste(const Renglon& r, double ancho, bool ultima, bool justifica) {
  const double sobra = ancho - r.natural;
  const double encoge = justifica ? r.espacios * (1.0 - kEspacioMinimo) : 1e-6;
  if (sobra < -encoge) return std::numeric_limits<double>::infinity();
  if (ultima && sobra >= 0) return 0;
  const double elastico = justifica ? std::max(r.espacios, 1.0) : ancho / 4.0;
  return 1.0 + std::pow(std::fabs(sobra) / elastico, kCosteEstirar) * 100.0;
}

std::vector<std::size_t> Cortes(const std::vector<Palabra>& p, double ancho, bool justifica) {
  const double sinFin = std::numeric_limits<double>::infinity();
  std::vector<double> mejor(p.size() + 1, sinFin);
  std::vector<std::size_t> previo(p.size() + 1, 0);
  mejor[0] = 0;
  for (std::size_t fin = 1; fin <= p.size(); ++fin) {
    const bool ultima = fin == p.size() || p[fin - 1].finLinea;
    for (std::size_t desde = fin; desde-- > 0;) {
      if (desde + 1 < fin && p[desde].finLinea) break;
      const Renglon r = Mide(p, desde, fin);
      double coste = Coste(r, ancho, ultima, justifica);
      if (coste == sinFin && desde + 1 == fin) coste = 1e9;  // a word that never fits
      if (coste == sinFin) break;
      if (mejor[desde] + coste < mejor[fin]) {
        mejor[fin] = mejor[desde] + coste;
        previo[fin] = desde;
      }
    }
  }
  std::vector<std::size_t> cortes;
  for (std::size_t i = p.size(); i > 0; i = previo[i]) cortes.insert(cortes.begin(), i);
  return cortes;
}

Caja Compone(const std::vector<Palabra>& p, std::size_t desde, std::size_t hasta, double ancho,
             Alinea alinea) {
  const Renglon r = Mide(p, desde, hasta);
  const bool ultima = hasta == p.size() || p[hasta - 1].finLinea;
  const double sobra = ancho - r.natural;
  double estira = 1.0;
  double x = 0;
  if (alinea == Alinea::Justificado && r.espacios > 0 && (!ultima || sobra < 0)) {
    estira = std::max(kEspacioMinimo, 1.0 + sobra / r.espacios);
  }
  if (alinea == Alinea::Centro) x = sobra / 2.0;
  if (alinea == Alinea::Derecha) x = sobra;
  Caja linea;
  linea.ancho = x;
  for (std::size_t i = desde; i < hasta; ++i) {
    linea.Sigue(p[i].caja);
    if (i + 1 < hasta) linea.ancho += p[i].espacio * estira;
  }
  return linea;
}

}  // namespace

std::vector<Palabra> Palabras(const Tipografia& tipografia, const Elemento& e, const Tipo& tipo,
                              const Referencia& referencia) {
  Escritor escritor(tipografia, referencia);
  escritor.Escribe(e, tipo);
  return escritor.Palabras();
}

std::vector<Caja> Lineas(const std::vector<Palabra>& palabras, double ancho, Alinea alinea) {
  std::vector<Caja> lineas;
  std::size_t desde = 0;
  for (const auto hasta : Cortes(palabras, ancho, alinea == Alinea::Justificado)) {
    lineas.push_back(Compone(palabras, desde, hasta, ancho, alinea));
    desde = hasta;
  }
  return lineas;
}

double AnchoNatural(const std::vector<Palabra>& palabras) {
  double mayor = 0;
  std::size_t desde = 0;
  for (std::size_t i = 0; i < palabras.size(); ++i) {
    if (i + 1 < palabras.size() && !palabras[i].finLinea) continue;
    mayor = std::max(mayor, Mide(palabras, desde, i + 1).natural);
    desde = i + 1;
  }
  return mayor;
}

double AnchoMinimo(const std::vector<Palabra>& palabras) {
  double mayor = 0;
  for (const auto& p : palabras) mayor = std::max(mayor, p.caja.ancho);
  return mayor;
}

}  // namespace zorbin::memoria
