#include "fuzz/comun.h"

#include <unistd.h>

#include <algorithm>
#include <charconv>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <nlohmann/json.hpp>

#include "persistencia/disco/mdDiario.h"

namespace zorbin::hostil {

namespace {

namespace fs = std::filesystem;

constexpr std::size_t kMaxMensaje = 2000;  // bytes
constexpr int kMaxRegistroDeTexto = 2000;  // the file stays small
constexpr std::size_t kMaxTextoDeRegistro = 126;

class EnMemoria {
 public:
  EnMemoria() : ruta_(Base() / ("zorbin-fuzz-" + std::to_string(::getpid()))) {
    fs::remove_all(ruta_);
    fs::create_directories(ruta_);
  }
  ~EnMemoria() {
    std::error_code error;
    fs::remove_all(ruta_, error);
  }
  EnMemoria(const EnMemoria&) = delete;
  EnMemoria& operator=(const EnMemoria&) = delete;
  const fs::path& ruta() const { return ruta_; }

 private:
  static fs::path Base() {
    return ::access("/dev/shm", W_OK) == 0 ? fs::path("/dev/shm") : fs::temp_directory_path();
  }
  fs::path ruta_;
};

// Bytes of the character that begins a text and its number; 0 bytes for none.
struct Caracter {
  char32_t codigo = 0;
  std::size_t bytes = 0;
};

Caracter PrimerCaracter(std::string_view texto) {
  const auto b = static_cast<unsigned char>(texto[0]);
  if (b < 0x80) return {b, 1};
  const std::size_t n = b >= 0xF0 ? 4 : b >= 0xE0 ? 3 : 2;
  if (b < 0xC2 || b > 0xF4 || texto.size() < n) return {};
  auto codigo = static_cast<char32_t>(b & (0x7Fu >> n));
  for (std::size_t i = 1; i < n; ++i) {
    const auto c = static_cast<unsigned char>(texto[i]);
    if ((c & 0xC0) != 0x80) return {};
    codigo = codigo << 6 | (c & 0x3Fu);
  }
  const bool corto = (n == 3 && codigo < 0x800) || (n == 4 && codigo < 0x10000);
  if (corto || codigo > 0x10FFFF || (codigo >= 0xD800 && codigo < 0xE000)) return {};
  return {codigo, n};
}

bool EsControl(char32_t c) {
  const bool blanco = c == U'\n' || c == U'\r' || c == U'\t';
  return (c < 0x20 && !blanco) || (c >= 0x7F && c < 0xA0);
}

}  // namespace

void Exige(bool cumple, std::string_view promesa, std::string_view detalle) {
  if (cumple) return;
  std::fprintf(stderr, "\nnot kept: %.*s\n%.*s\n", static_cast<int>(promesa.size()), promesa.data(),
               static_cast<int>(detalle.size()), detalle.data());
  VaciaCarpeta();
  std::abort();
}

bool EsTextoLimpio(std::string_view texto) {
  while (!texto.empty()) {
    const auto c = PrimerCaracter(texto);
    if (c.bytes == 0 || EsControl(c.codigo)) return false;
    texto.remove_prefix(c.bytes);
  }
  return true;
}

const Catalogo& Textos() {
  static const Catalogo textos = Catalogo::Lee(ZORBIN_FUENTES "recursos/textos");
  return textos;
}

Catalogo& TextosParaCambiar() {
  static Catalogo textos = Textos();
  textos.PonIdioma(1);
  return textos;
}

void ExigeClaro(const std::string& texto, const fs::path& fichero) {
  Exige(!texto.empty() && texto.size() <= kMaxMensaje, "a refusal can be read", texto);
  Exige(EsTextoLimpio(texto), "a refusal is clean text", texto);
  Exige(texto.find(fichero.string()) != std::string::npos, "it names the file", texto);
}

void ExigeClaro(const Mensaje& m, const fs::path& fichero) {
  const auto& plantilla = Textos().Texto(m.texto);
  Exige(Textos().Existe(m.texto) && (m.otro == 0 || Textos().Existe(m.otro)),
        "its entry is in the catalogue", plantilla);
  const std::size_t datos = m.datos.size() + (m.otro != 0 ? 1 : 0);
  for (std::size_t i = datos + 1; i <= 9; ++i) {
    Exige(plantilla.find("{" + std::to_string(i) + "}") == std::string::npos, "it has its data",
          plantilla);
  }
  ExigeClaro(Textos().Compone(m), fichero);
}

const fs::path& Carpeta() {
  static const EnMemoria carpeta;
  return carpeta.ruta();
}

void VaciaCarpeta() {
  for (const auto& f : fs::directory_iterator(Carpeta())) fs::remove_all(f.path());
}

std::vector<std::string> NombresEnCarpeta() {
  std::vector<std::string> nombres;
  for (const auto& f : fs::directory_iterator(Carpeta())) {
    nombres.push_back(f.path().filename().string());
  }
  std::sort(nombres.begin(), nombres.end());
  return nombres;
}

void Pon(const fs::path& fichero, std::string_view bytes) {
  std::ofstream f(fichero, std::ios::binary | std::ios::trunc);
  f.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
}

std::string Bytes(const fs::path& fichero) {
  std::ifstream f(fichero, std::ios::binary);
  return {std::istreambuf_iterator<char>(f), {}};
}

bool EsJson(std::string_view texto) {
  return nlohmann::json::accept(texto);
}

std::vector<std::pair<std::string, std::string>> TextosDeJson(std::string_view json) {
  std::vector<std::pair<std::string, std::string>> textos;
  const auto objeto = nlohmann::json::parse(json);
  for (const auto& [clave, entrada] : objeto.items()) {
    const auto& texto = entrada.is_object() ? entrada.at("texto") : entrada;
    textos.emplace_back(clave, texto.get<std::string>());
  }
  return textos;
}

std::string FicheroDeRegistros(std::string_view datos) {
  if (datos.empty() || static_cast<unsigned char>(datos[0]) < ' ') return std::string(datos);
  std::string bytes;
  for (int registro = 1; !datos.empty(); ++registro) {
    const auto corte = std::min(datos.find('\n'), datos.size());
    std::string_view linea = datos.substr(0, corte);
    datos.remove_prefix(std::min(corte + 1, datos.size()));
    if (linea.starts_with('@')) {
      std::from_chars(linea.data() + 1, linea.data() + linea.size(), registro);
      linea.remove_prefix(std::min(linea.find(' '), linea.size() - 1) + 1);
    }
    registro = std::clamp(registro, 1, kMaxRegistroDeTexto);
    if (bytes.size() < Desde(registro + 1)) bytes.resize(Desde(registro + 1));
    const auto lugar = Desde(registro);
    bytes[lugar] = static_cast<char>(linea.size() & 0xff);
    bytes[lugar + 1] = static_cast<char>(linea.size() >> 8 & 0xff);
    linea = linea.substr(0, kMaxTextoDeRegistro);
    bytes.replace(lugar + 2, linea.size(), linea);
  }
  return bytes;
}

}  // namespace zorbin::hostil
