#include "listados/datos/mdEscritorJson.h"

#include <algorithm>
#include <bit>
#include <charconv>
#include <cmath>
#include <nlohmann/json.hpp>

namespace zorbin {

namespace {

constexpr std::size_t kNumero = 32;      // bytes that the longest number takes
constexpr double kPrimeroGrande = 1e15;  // written with an exponent
constexpr int kPrimerDecimal = -4;       // places after the point without an exponent
constexpr int kCifrasEnteras = 15;       // places before it

char* Copia(char* p, const char* desde, std::size_t n) {
  std::memcpy(p, desde, n);
  return p + n;
}

char* Ceros(char* p, std::size_t n) {
  std::memset(p, '0', n);
  return p + n;
}

// Digits with the point after `punto` of them, which may lie before the first or after the last.
char* ConPunto(char* p, std::string_view cifras, int punto) {
  if (punto <= 0) {
    p = Ceros(Copia(p, "0.", 2), static_cast<std::size_t>(-punto));
    return Copia(p, cifras.data(), cifras.size());
  }
  const auto enteras = static_cast<std::size_t>(punto);
  if (cifras.size() <= enteras) {
    p = Ceros(Copia(p, cifras.data(), cifras.size()), enteras - cifras.size());
    return Copia(p, ".0", 2);
  }
  p = Copia(Copia(p, cifras.data(), enteras), ".", 1);
  return Copia(p, cifras.data() + enteras, cifras.size() - enteras);
}

// A positive number that no integer holds, or that is too large to be written as one.
char* EscribeReal(char* p, double x) {
  char cientifico[kNumero];  // d.ddde+xx
  char* const fin =
      std::to_chars(cientifico, cientifico + kNumero, x, std::chars_format::scientific).ptr;
  char* const e = std::find(cientifico, fin, 'e');
  int exponente = 0;
  std::from_chars(e + (e[1] == '+' ? 2 : 1), fin, exponente);
  const int punto = exponente + 1;
  if (punto <= kPrimerDecimal || punto > kCifrasEnteras) {
    return Copia(p, cientifico, static_cast<std::size_t>(fin - cientifico));
  }
  char* const cifras = cientifico + (e - cientifico > 1 ? 1 : 0);
  *cifras = cientifico[0];  // the point gives way, and the digits stand together
  return ConPunto(p, {cifras, e}, punto);
}

bool EsLlano(std::string_view texto) {
  return std::all_of(texto.begin(), texto.end(), [](unsigned char c) {
    return c >= 0x20 && c < 0x80 && c != '"' && c != '\\';
  });
}

}  // namespace

EscritorJson::EscritorJson(std::ostream& salida) : salida_(salida) {}

void EscritorJson::Vuelca() {
  salida_.write(bloque_.get(), fin_ - bloque_.get());
  fin_ = bloque_.get();
}

void EscritorJson::Pon(std::string_view bytes) {
  if (fin_ + bytes.size() > bloque_.get() + kBloque) Vuelca();
  if (bytes.size() > kBloque) {
    salida_.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    return;
  }
  fin_ = Copia(fin_, bytes.data(), bytes.size());
}

void EscritorJson::Literal(std::string_view bytes) {
  fin_ = Separa();
  Pon(bytes);
}

void EscritorJson::Acaba() {
  Pon("\n");
  Vuelca();
}

void EscritorJson::Clave(std::string_view nombre) {
  char* p = Copia(Separa(), "\"", 1);
  p = Copia(p, nombre.data(), nombre.size());
  fin_ = Copia(p, "\":", 2);
  coma_ = false;
}

void EscritorJson::Entero(std::int64_t n) {
  char* const p = Separa();
  fin_ = std::to_chars(p, p + kNumero, n).ptr;
}

const EscritorJson::Escrito& EscritorJson::Recuerda(double x) {
  constexpr std::uint64_t kMezcla = 0x9E3779B97F4A7C15;  // spreads the bits over the highest ones
  const auto sitio = (std::bit_cast<std::uint64_t>(x) * kMezcla) >> (64 - kBitsMemoria);
  Escrito& e = (*memoria_)[sitio];
  if (e.largo == 0 || e.x != x) {
    e.x = x;
    e.largo = static_cast<std::uint8_t>(EscribeReal(e.texto.data(), x) - e.texto.data());
  }
  return e;
}

void EscritorJson::Valor(double x) {
  if (!std::isfinite(x)) return Literal("null");
  char* p = Separa();
  if (std::signbit(x)) *p++ = '-';
  x = std::fabs(x);
  if (x < kPrimeroGrande && x == static_cast<double>(static_cast<std::int64_t>(x))) {
    p = std::to_chars(p, p + kNumero, static_cast<std::int64_t>(x)).ptr;
    fin_ = Copia(p, ".0", 2);
    return;
  }
  const Escrito& e = Recuerda(x);
  Copia(p, e.texto.data(), e.texto.size());  // a length known beforehand is copied at once
  fin_ = p + e.largo;
}

void EscritorJson::Valor(std::string_view texto) {
  if (!EsLlano(texto)) {
    return Literal(
        nlohmann::json(texto).dump(-1, ' ', false, nlohmann::json::error_handler_t::replace));
  }
  Literal("\"");
  Pon(texto);
  Pon("\"");
}

}  // namespace zorbin
