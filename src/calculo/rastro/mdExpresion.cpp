#include "calculo/rastro/mdExpresion.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "base/aritmetica.h"

namespace zorbin {

namespace {

constexpr double kInfinito = std::numeric_limits<double>::infinity();
constexpr double kHolgura = 1e-14;  // of the bounds, for their own rounding [-]

double Tangente(double grados) {
  const double r = grados * (kPi / 180.0);
  return std::sin(r) / std::cos(r);
}

Evaluado DeUno(Op op, const Evaluado& a) {
  const double x = a.valor;
  switch (op) {
    case Op::Opuesto:
      return {-x, a.cota};
    case Op::Abs:
      return {std::fabs(x), a.cota};
    case Op::Raiz: {
      const double r = std::sqrt(x);
      return {r, r + (r > 0 ? a.cota / (2.0 * r) : 0.0)};
    }
    case Op::Exp: {
      const double r = std::exp(x);
      return {r, r * (1.0 + a.cota)};
    }
    case Op::Tan: {
      const double t = Tangente(x);
      return {t, std::fabs(t) + (1.0 + t * t) * a.cota * kPi / 180.0};
    }
    default:
      return {std::floor(x), std::fabs(x)};
  }
}

Evaluado DeDos(Op op, const Evaluado& a, const Evaluado& b) {
  switch (op) {
    case Op::Suma:
      return {a.valor + b.valor, a.cota + b.cota};
    case Op::Resta:
      return {a.valor - b.valor, a.cota + b.cota};
    case Op::Producto:
      return {a.valor * b.valor, a.cota * std::fabs(b.valor) + std::fabs(a.valor) * b.cota};
    case Op::Cociente: {
      const double q = a.valor / b.valor;
      return {q, (a.cota + std::fabs(q) * b.cota) / std::fabs(b.valor)};
    }
    case Op::Min:
      return a.valor <= b.valor ? a : b;
    case Op::Max:
      return a.valor >= b.valor ? a : b;
    default: {
      const double p = std::pow(a.valor, b.valor);
      const double relativa = a.valor != 0.0 ? a.cota / std::fabs(a.valor) : 0.0;
      return {p, std::fabs(p) * (1.0 + std::fabs(b.valor) * relativa)};
    }
  }
}

Intervalo Ordena(double a, double b) {
  const double holgura = kHolgura * std::max(std::fabs(a), std::fabs(b));
  return {std::min(a, b) - holgura, std::max(a, b) + holgura};
}

Intervalo Envolvente(double a, double b, double c, double d) {
  if (std::isnan(a) || std::isnan(b) || std::isnan(c) || std::isnan(d)) {
    return {-kInfinito, kInfinito};
  }
  return Ordena(std::min({a, b, c, d}), std::max({a, b, c, d}));
}

bool ContieneCero(const Intervalo& x) {
  return x.menor <= 0.0 && x.mayor >= 0.0;
}

Intervalo AcotaAbs(const Intervalo& a) {
  const double mayor = std::max(std::fabs(a.menor), std::fabs(a.mayor));
  if (ContieneCero(a)) return {0.0, mayor};
  return {std::min(std::fabs(a.menor), std::fabs(a.mayor)), mayor};
}

Intervalo AcotaUno(Op op, const Intervalo& a) {
  switch (op) {
    case Op::Opuesto:
      return {-a.mayor, -a.menor};
    case Op::Abs:
      return AcotaAbs(a);
    case Op::Raiz:
      return Ordena(std::sqrt(std::max(0.0, a.menor)), std::sqrt(std::max(0.0, a.mayor)));
    case Op::Exp:
      return Ordena(std::exp(a.menor), std::exp(a.mayor));
    case Op::Tan:
      return Ordena(Tangente(a.menor), Tangente(a.mayor));
    default:
      return {std::floor(a.menor), std::floor(a.mayor)};
  }
}

Intervalo AcotaDos(Op op, const Intervalo& a, const Intervalo& b) {
  switch (op) {
    case Op::Suma:
      return Ordena(a.menor + b.menor, a.mayor + b.mayor);
    case Op::Resta:
      return Ordena(a.menor - b.mayor, a.mayor - b.menor);
    case Op::Producto:
      return Envolvente(a.menor * b.menor, a.menor * b.mayor, a.mayor * b.menor, a.mayor * b.mayor);
    case Op::Cociente:
      if (ContieneCero(b)) return {-kInfinito, kInfinito};
      return Envolvente(a.menor / b.menor, a.menor / b.mayor, a.mayor / b.menor, a.mayor / b.mayor);
    case Op::Min:
      return {std::min(a.menor, b.menor), std::min(a.mayor, b.mayor)};
    case Op::Max:
      return {std::max(a.menor, b.menor), std::max(a.mayor, b.mayor)};
    default: {
      // Exponents are constants: a square, or a root of what is not negative.
      const Intervalo base = b.menor == 2.0 ? AcotaAbs(a) : a;
      return Ordena(std::pow(base.menor, b.menor), std::pow(base.mayor, b.menor));
    }
  }
}

}  // namespace

Evaluado Evalua(const Arbol& a, std::span<const double> valores) {
  switch (a.op) {
    case Op::Numero:
    case Op::FactorUnidades:
      return {a.numero, std::fabs(a.numero)};
    case Op::Pi:
      return {kPi, kPi};
    case Op::Simbolo: {
      const double v = valores[static_cast<std::size_t>(a.simbolo)];
      return {v, std::fabs(v)};
    }
    default:
      break;
  }
  Evaluado x = Evalua(a.hijos[0], valores);
  if (a.hijos.size() == 1) return DeUno(a.op, x);
  for (std::size_t i = 1; i < a.hijos.size(); ++i) x = DeDos(a.op, x, Evalua(a.hijos[i], valores));
  return x;
}

Intervalo Acota(const Arbol& a, std::span<const Intervalo> valores) {
  switch (a.op) {
    case Op::Numero:
    case Op::FactorUnidades:
      return {a.numero, a.numero};
    case Op::Pi:
      return {kPi, kPi};
    case Op::Simbolo:
      return valores[static_cast<std::size_t>(a.simbolo)];
    default:
      break;
  }
  Intervalo x = Acota(a.hijos[0], valores);
  if (a.hijos.size() == 1) return AcotaUno(a.op, x);
  for (std::size_t i = 1; i < a.hijos.size(); ++i) {
    x = AcotaDos(a.op, x, Acota(a.hijos[i], valores));
  }
  return x;
}

bool SeCumple(Relacion relacion, double x, double y) {
  switch (relacion) {
    case Relacion::MenorIgual:
      return x <= y;
    case Relacion::Menor:
      return x < y;
    case Relacion::MayorIgual:
      return x >= y;
    case Relacion::Mayor:
      return x > y;
    default:
      return true;
  }
}

}  // namespace zorbin
