#include "calculo/rastro/mdCifras.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <string>

namespace zorbin {

namespace {

constexpr int kCifrasDeUnReal = 14;  // beyond them stands the rounding of the calculation
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

// No zero stands for a digit that was rounded off: an integer is printed to its units.
int CifrasDe(double valor, int n) {
  const int exponente = Parte(valor, n).exponente;
  return exponente < kPrimeraPotencia ? std::max(n, exponente + 1) : n;
}

double Ultima(double valor, int pedidas) {
  if (valor == 0.0) return 0.0;
  const int n = CifrasDe(valor, pedidas);
  return std::pow(10.0, Parte(valor, n).exponente - n + 1);
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

Cifra EnCifras(double valor, int pedidas, char separador) {
  if (valor == 0.0) return {0.0, 0.0, "0", "0"};
  const int n = CifrasDe(valor, pedidas);
  Partes entera = Parte(valor, kCifrasDeUnReal);
  entera.cifras.resize(entera.cifras.find_last_not_of('0') + 1);
  if (static_cast<int>(entera.cifras.size()) <= n) return Escrita(valor, entera, separador);
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
    const double ultima = Ultima(resultado, delResultado);
    for (int n = delResultado; n <= kMasCifras; ++n) {
      x.datos = Todas(datos, n, separador);
      if (Muestra(e, x.datos, x.resultado, ultima)) return x;
    }
  }
  x.porIntervalo = true;
  return x;
}

}  // namespace zorbin
