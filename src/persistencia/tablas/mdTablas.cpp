#include "persistencia/tablas/mdTablas.h"

#include <algorithm>
#include <cctype>
#include <charconv>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "base/mdContenido.h"
#include "base/mdTextos.h"
#include "base/textos.h"

namespace zorbin {

namespace {

namespace fs = std::filesystem;

constexpr int kLineasCabecera = 3;
constexpr std::size_t kMaxBytes = 256 * 1024;  // a full one has some 8 KiB
constexpr std::size_t kAnchoValor = 4;
constexpr double kPasoArmaduras = 5.0;  // of the series in use without TUB#ES [cm2/m]

bool IgualSinCaja(std::string_view a, std::string_view b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](unsigned char x, unsigned char y) {
    return std::tolower(x) == std::tolower(y);
  });
}

fs::path RutaTabla(const fs::path& carpeta, std::string_view nombre) {
  std::error_code error;
  for (const auto& f : fs::directory_iterator(carpeta, error)) {
    if (IgualSinCaja(f.path().filename().string(), nombre)) return f.path();
  }
  return {};
}

ErrorFichero FormatoMalo(const fs::path& ruta, int linea) {
  return ErrorFichero(
      {txt::TablaMalFormada, {ruta.string(), TextoEntero(linea)}, txt::ErrorDeFormato});
}

// A whole number and nothing else but blanks around it. No value for anything else.
std::optional<int> Entero(std::string_view texto) {
  texto = Recorta(texto);
  int valor = 0;
  const auto fin = texto.data() + texto.size();
  const auto [hasta, error] = std::from_chars(texto.data(), fin, valor);
  if (error != std::errc{} || hasta != fin || valor < 0) return std::nullopt;
  return valor;
}

std::string Contenido(const fs::path& ruta) {
  std::string bytes;
  if (LeeContenido(ruta, kMaxBytes, bytes) != 0) {
    throw ErrorFichero({txt::TablaNoSeAbre, {ruta.string()}, txt::AlAbrirElFichero});
  }
  if (bytes.size() > kMaxBytes) {
    throw ErrorFichero(
        {txt::TablaDemasiado, {ruta.string(), TextoEntero(static_cast<int>(kMaxBytes / 1024))}});
  }
  return bytes;
}

// Walks the lines of a file, without their CR. The caller gets the number of each from 1.
void CadaLinea(const fs::path& ruta, const std::function<void(std::string_view, int)>& hace) {
  const std::string bytes = Contenido(ruta);
  std::string_view resto = bytes;
  for (int n = 1; !resto.empty(); ++n) {
    const auto fin = std::min(resto.find('\n'), resto.size());
    std::string_view linea = resto.substr(0, fin);
    resto.remove_prefix(std::min(fin + 1, resto.size()));
    if (linea.ends_with('\r')) linea.remove_suffix(1);
    hace(linea, n);
  }
}

// The characters of a row from a position on, as many as there are.
std::string_view Trozo(std::string_view linea, std::size_t desde, std::size_t ancho) {
  return desde < linea.size() ? linea.substr(desde, ancho) : std::string_view{};
}

std::optional<FilaDimensiones> FilaDe(std::string_view linea) {
  FilaDimensiones fila;
  const auto diametro = Entero(Trozo(linea, 0, kAnchoValor));
  if (!diametro) return std::nullopt;
  fila.Diametro = *diametro;
  std::size_t posicion = kAnchoValor;
  for (auto& grupo : fila.grupos) {
    const auto marca = Trozo(linea, posicion++, 1);
    grupo.marca = marca.empty() ? ' ' : marca.front();
    for (int* valor : {&grupo.Reci, &grupo.Rece, &grupo.Esp}) {
      const auto texto = Recorta(Trozo(linea, posicion, kAnchoValor));
      posicion += kAnchoValor + (valor == &grupo.Esp ? 0 : 1);
      if (texto.empty()) continue;
      const auto leido = Entero(texto);
      if (!leido) return std::nullopt;
      *valor = *leido;
    }
  }
  return fila;
}

void LeeDimensiones(TablasCatalogo& t, const fs::path& carpeta) {
  const fs::path ruta = RutaTabla(carpeta, "TUB#GM");
  if (ruta.empty()) {
    throw ErrorFichero({txt::TablaQueFalta, {(carpeta / "TUB#GM").string()}, txt::NoExisteFichero});
  }
  CadaLinea(ruta, [&](std::string_view linea, int n) {
    if (n <= kLineasCabecera) return;
    if (t.NumDiametros() == kMaxDimensiones) {
      throw ErrorFichero({txt::DemasiadasDimensiones, {ruta.string(), TextoEntero(n)}});
    }
    const auto fila = FilaDe(linea);
    if (!fila) throw FormatoMalo(ruta, n);
    t.TablaDimensiones.push_back(*fila);
  });
}

void LeeArmaduras(TablasCatalogo& t, const fs::path& carpeta) {
  const fs::path ruta = RutaTabla(carpeta, "TUB#ES");
  if (!ruta.empty()) {
    CadaLinea(ruta, [&](std::string_view linea, int n) {
      if (t.NumArmaduras() == kMaxArmaduras) {
        throw ErrorFichero({txt::DemasiadasArmaduras, {ruta.string(), TextoEntero(n)}});
      }
      const auto valor = Entero(linea);
      if (!valor) throw FormatoMalo(ruta, n);
      t.TablaArmaduras.push_back(*valor);
    });
  }
  if (!t.TablaArmaduras.empty()) return;
  for (int i = 1; i <= kMaxArmaduras; ++i) t.TablaArmaduras.push_back(kPasoArmaduras * i);
}

void LeeParametro(TablasCatalogo& t, const fs::path& carpeta) {
  const fs::path ruta = RutaTabla(carpeta, "TUB#PM");
  if (ruta.empty()) return;
  CadaLinea(ruta, [&](std::string_view linea, int n) {
    const auto texto = Recorta(linea.substr(0, 2));
    if (texto.empty()) return;
    const auto valor = Entero(texto);
    if (!valor) throw FormatoMalo(ruta, n);
    t.MaxAnchoZanja = static_cast<std::int16_t>(*valor);  // two digits at most
  });
}

}  // namespace

TablasCatalogo LeeTablas(const std::filesystem::path& carpeta) {
  TablasCatalogo t;
  LeeDimensiones(t, carpeta);
  LeeArmaduras(t, carpeta);
  LeeParametro(t, carpeta);
  return t;
}

}  // namespace zorbin
