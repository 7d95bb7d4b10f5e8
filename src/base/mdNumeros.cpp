#include "base/mdNumeros.h"

#include <langinfo.h>
#include <locale.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <system_error>

#include "base/aritmetica.h"
#include "base/textos.h"

namespace zorbin {

namespace {

// A positive number as digits d1 d2 d3... with the point after `enteros` of them.
struct Digitos {
  std::string cifras;
  int enteros;
};

Digitos MasCortos(double positivo) {
  std::array<char, 40> letras;
  const auto fin = std::to_chars(letras.data(), letras.data() + letras.size(), positivo,
                                 std::chars_format::scientific);
  const std::string_view texto(letras.data(), static_cast<std::size_t>(fin.ptr - letras.data()));
  const auto e = texto.find('e');
  int exponente = 0;
  const char* desde = texto.data() + e + 1;
  if (*desde == '+') ++desde;
  std::from_chars(desde, texto.data() + texto.size(), exponente);
  Digitos d{{}, exponente + 1};
  std::copy_if(texto.begin(), texto.begin() + static_cast<std::ptrdiff_t>(e),
               std::back_inserter(d.cifras), [](char c) { return c != '.'; });
  return d;
}

// Keeps `n` digits of d (n may be 0), rounding half up.
void Corta(Digitos& d, int n) {
  if (n < 0) {
    d = {"0", 1};
    return;
  }
  const auto largo = static_cast<std::size_t>(n);
  if (largo >= d.cifras.size()) return;
  const bool sube = d.cifras[largo] >= '5';
  d.cifras.resize(largo);
  if (!sube) return;
  auto i = d.cifras.rbegin();
  for (; i != d.cifras.rend() && *i == '9'; ++i) *i = '0';
  if (i != d.cifras.rend()) {
    ++*i;
  } else {
    d.cifras.insert(d.cifras.begin(), '1');
    ++d.enteros;
  }
}

bool EsCifra(char c) {
  return c >= '0' && c <= '9';
}

bool EsSeparador(char c) {
  return c == ',' || c == '.';
}

// Without the blanks that set off groups of digits: the plain one, the tab, the no-break ones.
std::string SinBlancos(std::string_view texto) {
  std::string limpio(texto);
  for (const std::string_view blanco : {" ", "\t", "\u00A0", "\u2009", "\u202F"}) {
    for (auto i = limpio.find(blanco); i != std::string::npos; i = limpio.find(blanco, i)) {
      limpio.erase(i, blanco.size());
    }
  }
  return limpio;
}

// Whether the other separator stands where a thousands mark would: 1.200, and not 0.144 or 1.5.
bool PareceDeMillares(std::string_view numero, char separador) {
  const auto lugar = numero.find(separador == ',' ? '.' : ',');
  if (lugar == std::string_view::npos) return false;
  const auto desde = numero.find_first_not_of("+-");
  const auto enteros = numero.substr(desde, lugar - desde);
  const auto resto = numero.substr(lugar + 1);
  return !enteros.empty() && enteros.size() <= 3 && enteros.front() != '0' && resto.size() == 3 &&
         std::all_of(resto.begin(), resto.end(), EsCifra);
}

}  // namespace

std::string TextoDecimal(double valor, int decimales, char separador) {
  Digitos d{"0", 1};
  if (Finito(valor) != 0.0) {
    d = MasCortos(std::fabs(valor));
    Corta(d, d.enteros + decimales);
  }
  const auto cifra = [&d](int lugar) {  // lugar 0 is the first digit of d
    return lugar >= 0 && lugar < static_cast<int>(d.cifras.size())
               ? d.cifras[static_cast<std::size_t>(lugar)]
               : '0';
  };
  std::string texto;
  for (int i = std::min(0, d.enteros - 1); i < d.enteros; ++i) texto.push_back(cifra(i));
  if (decimales > 0) texto.push_back(separador);
  for (int i = 0; i < decimales; ++i) texto.push_back(cifra(d.enteros + i));
  const bool nulo = texto.find_first_of("123456789") == std::string::npos;
  if (valor < 0 && !nulo) texto.insert(texto.begin(), '-');
  return texto;
}

std::string FormatoMascara(double valor, std::string_view mascara, char separador) {
  const auto punto = mascara.find('.');
  const auto entera = mascara.substr(0, punto);
  const int decimales =
      punto == std::string_view::npos ? 0 : static_cast<int>(mascara.size() - punto - 1);
  std::string texto = TextoDecimal(valor, decimales, separador);
  const auto minimo = static_cast<std::size_t>(std::count(entera.begin(), entera.end(), '0'));
  const std::size_t signo = texto.front() == '-' ? 1 : 0;
  const std::size_t enteros = std::min(texto.find(separador), texto.size()) - signo;
  if (enteros < minimo) texto.insert(signo, minimo - enteros, '0');
  return texto;
}

std::optional<double> NumeroTexto(std::string_view texto) {
  std::string limpio;
  std::copy_if(texto.begin(), texto.end(), std::back_inserter(limpio),
               [](char c) { return c != ' '; });
  if (limpio.empty()) return 0.0;
  const char* desde = limpio.data();
  const char* const fin = desde + limpio.size();
  if (*desde == '+') ++desde;
  // from_chars alone would also take "inf", "nan" and a second sign after the plus.
  const char* cifras = desde + (desde == limpio.data() && *desde == '-' ? 1 : 0);
  if (cifras == fin || limpio.find_first_of("0123456789") == std::string::npos) return std::nullopt;
  if (!std::all_of(cifras, fin,
                   [](char c) { return (c >= '0' && c <= '9') || c == ',' || c == '.'; }))
    return std::nullopt;
  if (const auto coma = limpio.find(','); coma != std::string::npos) limpio[coma] = '.';
  double valor = 0;
  const auto r = std::from_chars(desde, fin, valor, std::chars_format::fixed);
  if (r.ec != std::errc{} || r.ptr != fin) return std::nullopt;
  return valor == 0.0 ? 0.0 : valor;
}

Tecleado NumeroTecleado(std::string_view texto, char separador) {
  const std::string limpio = SinBlancos(texto);
  if (const auto valor = NumeroTexto(limpio)) {
    if (!PareceDeMillares(limpio, separador)) return {valor, {}};
    std::string decimal = limpio;
    std::replace(decimal.begin(), decimal.end(), separador == ',' ? '.' : ',', separador);
    std::string entero = limpio;
    std::erase_if(entero, EsSeparador);
    return {std::nullopt, {txt::NumeroAmbiguo, {std::string(texto), decimal, entero}}};
  }
  if (std::count_if(limpio.begin(), limpio.end(), EsSeparador) > 1) {
    return {std::nullopt, {txt::NumeroConDosSeparadores, {std::string(texto)}}};
  }
  return {std::nullopt, {txt::NoEsValorNumerico, {}}};
}

char SeparadorDeIdioma(int idioma) {
  constexpr int kIngles = 2;
  return idioma == kIngles ? '.' : ',';
}

char SeparadorDeLaMaquina() {
  const locale_t local = newlocale(LC_NUMERIC_MASK, "", nullptr);
  if (local == nullptr) return '.';
  const char separador = *nl_langinfo_l(RADIXCHAR, local);
  freelocale(local);
  return separador == ',' ? ',' : '.';
}

}  // namespace zorbin
