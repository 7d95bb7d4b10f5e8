#include "calculo/rastro/mdEscala.h"

#include <cmath>
#include <utility>

namespace zorbin {

namespace {

constexpr double kIguales = 1e-12;  // of two factors [-]

bool EsUno(double k) {
  return std::fabs(k - 1.0) < kIguales;
}

bool EsPotenciaDeDiez(double k) {
  const double p = std::log10(k);
  return std::fabs(p - std::nearbyint(p)) < kIguales;
}

bool EsNumero(const Arbol& a) {
  return a.op == Op::Numero || (a.op == Op::Opuesto && EsNumero(a.hijos[0]));
}

Arbol Junta(Op op, Arbol a, Arbol b) {
  Arbol x;
  x.op = op;
  x.hijos.push_back(std::move(a));
  x.hijos.push_back(std::move(b));
  return x;
}

// Constant of a product or quotient into which a factor may go; null for none.
Arbol* ConstanteDe(Arbol& a) {
  if (a.op == Op::Numero) return &a;
  if (a.op == Op::Producto || a.op == Op::Cociente || a.op == Op::Opuesto) {
    return ConstanteDe(a.hijos[0]);
  }
  return nullptr;
}

Arbol PorFactor(Arbol a, double k) {
  if (EsUno(k)) return a;
  if (EsNumero(a)) {
    ConstanteDe(a)->numero *= k;
    return a;
  }
  if (!EsPotenciaDeDiez(k)) {
    if (Arbol* c = ConstanteDe(a)) {
      c->numero *= k;
      return a;
    }
  }
  Arbol factor;
  factor.op = Op::FactorUnidades;
  factor.numero = k;
  return Junta(Op::Producto, std::move(a), std::move(factor));
}

// Its value in calculation units is `escala` times that of the tree with printed figures.
struct Escalado {
  Arbol arbol;
  double escala = 1.0;
  bool nada = false;  // a factor between units alone: no tree
};

class Cambio {
 public:
  explicit Cambio(std::span<const double> simbolos) : simbolos_(simbolos) {}

  Escalado De(const Arbol& a) const {
    switch (a.op) {
      case Op::Numero:
      case Op::Pi:
        return {a};
      case Op::FactorUnidades:
        return {{}, a.numero, true};
      case Op::Simbolo:
        return {a, 1.0 / simbolos_[static_cast<std::size_t>(a.simbolo)]};
      case Op::Producto:
      case Op::Cociente:
        return DeProducto(a);
      case Op::Potencia:
        return DePotencia(a);
      case Op::Suma:
      case Op::Resta:
      case Op::Min:
      case Op::Max:
        return DeSuma(a);
      default:
        return DeFuncion(a);
    }
  }

 private:
  std::span<const double> simbolos_;

  static Arbol Desnudo(Escalado x) {
    if (!x.nada) return PorFactor(std::move(x.arbol), x.escala);
    Arbol a;
    a.numero = x.escala;
    return a;
  }

  Escalado DeProducto(const Arbol& a) const {
    Escalado x = De(a.hijos[0]);
    Escalado y = De(a.hijos[1]);
    const bool producto = a.op == Op::Producto;
    const double escala = producto ? x.escala * y.escala : x.escala / y.escala;
    if (y.nada) return {std::move(x.arbol), escala, x.nada};
    if (x.nada && producto) return {std::move(y.arbol), escala};
    if (x.nada) x.arbol.numero = 1.0;
    return {Junta(a.op, std::move(x.arbol), std::move(y.arbol)), escala};
  }

  Escalado DePotencia(const Arbol& a) const {
    Escalado x = De(a.hijos[0]);
    const double exponente = Evalua(a.hijos[1], {}).valor;
    return {Junta(a.op, std::move(x.arbol), a.hijos[1]), std::pow(x.escala, exponente)};
  }

  // Terms of one scale keep it; a term of another takes the ratio before it. Constants of the
  // formula never give the scale where there is a figure to give it.
  Escalado DeSuma(const Arbol& a) const {
    std::vector<Escalado> terminos;
    for (const auto& hijo : a.hijos) terminos.push_back(De(hijo));
    const Escalado* guia = &terminos.front();
    for (const auto& t : terminos) {
      if (!EsNumero(t.arbol)) {
        guia = &t;
        break;
      }
    }
    const double escala = guia->escala;
    Arbol suma;
    suma.op = a.op;
    for (auto& t : terminos) suma.hijos.push_back(PorFactor(std::move(t.arbol), t.escala / escala));
    return {std::move(suma), escala};
  }

  Escalado DeFuncion(const Arbol& a) const {
    Escalado x = De(a.hijos[0]);
    Arbol f;
    f.op = a.op;
    const bool lineal = a.op == Op::Opuesto || a.op == Op::Abs;
    const bool raiz = a.op == Op::Raiz;
    const double escala = lineal ? x.escala : raiz ? std::sqrt(x.escala) : 1.0;
    if (lineal || raiz) {
      f.hijos.push_back(std::move(x.arbol));
    } else {
      f.hijos.push_back(Desnudo(std::move(x)));
    }
    return {std::move(f), escala};
  }
};

}  // namespace

Expresion CambiaUnidades(const Expresion& e, std::span<const double> simbolos, double resultado) {
  const Cambio cambio(simbolos);
  Expresion x = e;
  Escalado derecha = cambio.De(e.derecha);
  if (!e.EsRelacion()) {
    x.derecha = PorFactor(std::move(derecha.arbol), derecha.escala * resultado);
    return x;
  }
  Escalado izquierda = cambio.De(e.izquierda);
  const bool limite = EsNumero(izquierda.arbol);
  const double escala = limite ? derecha.escala : izquierda.escala;
  x.izquierda = PorFactor(std::move(izquierda.arbol), izquierda.escala / escala);
  x.derecha = PorFactor(std::move(derecha.arbol), derecha.escala / escala);
  return x;
}

}  // namespace zorbin
