#include "base/mdCatalogo.h"

#include <array>
#include <charconv>
#include <nlohmann/json.hpp>
#include <system_error>
#include <utility>

#include "base/mdContenido.h"

namespace zorbin {

namespace {

constexpr std::array<std::string_view, kIdiomas> kFicheros{"es.json", "en.json", "ca.json",
                                                           "pt.json", "fr.json"};
constexpr std::size_t kMaxBytes = 8 * 1024 * 1024;
constexpr std::size_t kMaxCita = 200;  // bytes of what is wrong
constexpr int kPrimerNombreIdioma = 101;
constexpr int kUltimoNombreIdioma = 112;

ErrorCatalogo Error(const std::filesystem::path& ruta, const std::string& causa) {
  return ErrorCatalogo(TextoLimpio(ruta.string() + ": " + causa));
}

// Of a text that may be as long as the file.
std::string Cita(std::string_view texto) {
  return std::string(texto.substr(0, kMaxCita)) + (texto.size() > kMaxCita ? "..." : "");
}

// One way to write each: two keys are never one entry.
int NumeroEntrada(const std::string& clave, const std::filesystem::path& ruta) {
  int n = 0;
  const auto fin = clave.data() + clave.size();
  const auto r = std::from_chars(clave.data(), fin, n);
  if (r.ec == std::errc{} && r.ptr == fin && n > 0 && n < kPasoIdioma && clave[0] != '0') return n;
  throw Error(ruta, "\"" + Cita(clave) + "\" is not the number of an entry");
}

nlohmann::json LeeJson(const std::filesystem::path& ruta) {
  std::string bytes;
  if (const int causa = LeeContenido(ruta, kMaxBytes, bytes)) {
    throw Error(ruta, std::generic_category().message(causa));
  }
  if (bytes.size() > kMaxBytes) throw Error(ruta, "too large for a catalogue of texts");
  try {
    return nlohmann::json::parse(bytes);
  } catch (const nlohmann::json::exception& e) {
    throw Error(ruta, "not a catalogue of texts: " + Cita(e.what()));
  }
}

void LeeIdioma(const std::filesystem::path& ruta, int offset,
               std::unordered_map<int, std::string>& entradas) {
  const nlohmann::json textos = LeeJson(ruta);
  if (!textos.is_object()) throw Error(ruta, "not an object of texts");
  for (const auto& [clave, entrada] : textos.items()) {
    const int n = NumeroEntrada(clave, ruta);
    const auto& texto =
        entrada.is_object() && entrada.contains("texto") ? entrada["texto"] : entrada;
    if (!texto.is_string()) {
      throw Error(ruta, "entry " + clave + " is not a text");
    }
    entradas[n + offset] = texto.get<std::string>();
  }
}

}  // namespace

Catalogo Catalogo::Lee(const std::filesystem::path& carpeta) {
  Catalogo c;
  for (int i = 0; i < kIdiomas; ++i) {
    const auto lugar = static_cast<std::size_t>(i);
    const auto ruta = carpeta / kFicheros[lugar];
    if (!std::filesystem::exists(ruta)) {
      if (i == 0) throw Error(ruta, "the file does not exist");
      continue;
    }
    c.porLeer_[lugar] = ruta;
    c.leidos_[lugar] = true;
  }
  c.Asegura(0);
  return c;
}

// Few sessions need more than one language: each is read when the first of its texts is asked for.
void Catalogo::Asegura(int n) const {
  const auto lugar = static_cast<std::size_t>(n / kPasoIdioma);
  if (n < 0 || lugar >= porLeer_.size() || porLeer_[lugar].empty()) return;
  const auto ruta = std::exchange(porLeer_[lugar], {});
  LeeIdioma(ruta, static_cast<int>(lugar) * kPasoIdioma, entradas_);
}

bool Catalogo::Existe(int n) const {
  Asegura(n);
  return entradas_.contains(n);
}

const std::string& Catalogo::LoadRes(int n) const {
  Asegura(n);
  const auto e = entradas_.find(n);
  if (e != entradas_.end()) return e->second;
  return faltas_.try_emplace(n, "Falta Recurso " + std::to_string(n)).first->second;
}

int Catalogo::CuentaIdiomas() const {
  int ultimo = kPrimerNombreIdioma - 1;
  for (int n = kPrimerNombreIdioma; n <= kUltimoNombreIdioma; ++n) {
    if (Existe(n)) ultimo = n;
  }
  return ultimo - kPrimerNombreIdioma + 1;
}

std::int16_t Catalogo::PonIdioma(std::int16_t idioma) {
  const bool hay =
      idioma >= 1 && idioma <= kIdiomas && leidos_[static_cast<std::size_t>(idioma - 1)];
  const std::int16_t vale = hay ? idioma : std::int16_t{1};
  Asegura((vale - 1) * kPasoIdioma);
  offset_ = (vale - 1) * kPasoIdioma;
  return vale;
}

std::string Catalogo::Compone(const Mensaje& m) const {
  auto datos = m.datos;
  if (m.otro != 0) datos.push_back(Texto(m.otro));
  return Compone(m.texto, datos);
}

std::string Catalogo::Compone(int n, const std::vector<std::string>& datos) const {
  const std::string& plantilla = Texto(n);
  std::string texto;
  for (std::size_t i = 0; i < plantilla.size(); ++i) {
    const bool marca = plantilla[i] == '{' && i + 2 < plantilla.size() && plantilla[i + 2] == '}' &&
                       plantilla[i + 1] >= '1' && plantilla[i + 1] <= '9';
    const auto dato = marca ? static_cast<std::size_t>(plantilla[i + 1] - '1') : datos.size();
    if (dato < datos.size()) {
      texto += TextoLimpio(datos[dato]);
      i += 2;
    } else {
      texto.push_back(plantilla[i]);
    }
  }
  return texto;
}

}  // namespace zorbin
