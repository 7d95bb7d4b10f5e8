#include "calculo/rastro/mdCifras.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <string>

namespace zorbin {

namespace {

constexpr double kEntera = 1e-13;  // what may be left of a figure that is printed whole [-]
constexpr int kCifrasConstante = 10;
constexpr int kPrimeraPotencia = 7;  // numbers from 10^7 on, and below
constexpr int kUltimaPotencia = -4;  // 10^-3, are printed by a power of ten
constexpr double kUltimaCifra = 1.0 + 1e-9;

struct Partes {
  std::string cifras;  // of the mantissa, without sign or point
  int exponente = 0;   // of its first digit
};

Partes Parte(double valor, int n) {
  char texto[40];
  std::snprintf(texto, sizeof texto, "%.*e", n - 1, std::fabs(valor));
  Partes p;
  const char* c = texto;
  for (; *c != 'e'; ++c) {
    if (*c >= '0' && *c <= '9') p.cifras += *c;
  }
  p.exponente = std::atoi(c + 1);
  return p;
}

double ValorDe(const Partes& p) {
  const std::string texto =
      p.cifras + "e" + std::to_string(p.exponente - static_cast<int>(p.cifras.size()) + 1);
  return std::strtod(texto.c_str(), nullptr);
}

std::string Decimal(const Partes& p, int exponente, char separador) {
  const int n = static_cast<int>(p.cifras.size());
  if (exponente < 0) {
    return std::string("0") + separador +
           std::string(static_cast<std::size_t>(-exponente - 1), '0') + p.cifras;
  }
  if (exponente >= n - 1)
    return p.cifras + std::string(static_cast<std::size_t>(exponente - n + 1), '0');
  const auto punto = static_cast<std::size_t>(exponente + 1);
  return p.cifras.substr(0, punto) + separador + p.cifras.substr(punto);
}

Cifra Escrita(double valor, const Partes& p, char separador) {
  Cifra c;
  const bool potencia = p.exponente >= kPrimeraPotencia || p.exponente <= kUltimaPotencia;
  const std::string numero = Decimal(p, potencia ? 0 : p.exponente, separador);
  c.formula = numero;
  c.llano = numero;
  if (potencia) {
    const std::string exponente = std::to_string(p.exponente);
    c.formula += " \\cdot 10^{" + exponente + "}";
    c.llano += "·10^" + exponente;
  }
  c.valor = ValorDe(p);
  if (valor < 0) {
    c.valor = -c.valor;
    c.formula = "-" + c.formula;
    c.llano = "-" + c.llano;
  }
  return c;
}

int Exponente(double valor, int n) {
  return valor == 0.0 ? 0 : Parte(valor, n).exponente;
}

double Ultima(double valor, int n) {
  return std::pow(10.0, Exponente(valor, n) - n + 1);
}

std::vector<Cifra> Todas(std::span<const double> datos, int n, char separador) {
  std::vector<Cifra> v;
  for (const double d : datos) v.push_back(EnCifras(d, n, separador));
  return v;
}

std::vector<double> Valores(const std::vector<Cifra>& cifras) {
  std::vector<double> v;
  for (const auto& c : cifras) v.push_back(c.valor);
  return v;
}

// Whether the printed figures of a formula show what it says.
bool Muestra(const Expresion& e, const std::vector<Cifra>& datos, const Cifra& resultado,
             double ultima) {
  const auto v = Valores(datos);
  const auto derecha = Evalua(e.derecha, v);
  if (e.EsRelacion()) return SeCumple(e.relacion, Evalua(e.izquierda, v).valor, derecha.valor);
  return std::fabs(derecha.valor - resultado.valor) <= ultima * kUltimaCifra;
}

}  // namespace

Cifra EnCifras(double valor, int n, char separador) {
  if (valor == 0.0) return {0.0, 0.0, "0", "0"};
  for (int k = 1; k <= n; ++k) {
    const Partes p = Parte(valor, k);
    if (std::fabs(ValorDe(p) - std::fabs(valor)) <= kEntera * std::fabs(valor)) {
      return Escrita(valor, p, separador);
    }
  }
  Cifra c = Escrita(valor, Parte(valor, n), separador);
  c.margen = Ultima(valor, n) / 2.0;
  return c;
}

Cifra Constante(double valor, char separador) {
  return EnCifras(valor, kCifrasConstante, separador);
}

CifrasPaso EligeCifras(const Expresion& e, std::span<const double> datos, double resultado,
                       char separador) {
  CifrasPaso x;
  for (const int delResultado : {kMenosCifras + 1, kMenosCifras}) {
    x.resultado = EnCifras(resultado, delResultado, separador);
    const double ultima = resultado == 0.0 ? 0.0 : Ultima(resultado, delResultado);
    for (int n = delResultado; n <= kMasCifras; ++n) {
      x.datos = Todas(datos, n, separador);
      if (Muestra(e, x.datos, x.resultado, ultima)) return x;
    }
  }
  x.porIntervalo = true;
  return x;
}

}  // namespace zorbin
