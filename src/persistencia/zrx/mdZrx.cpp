#include "persistencia/zrx/mdZrx.h"

#include <algorithm>
#include <array>
#include <nlohmann/json.hpp>

#include "base/mdContenido.h"
#include "base/mdTextos.h"
#include "base/textos.h"
#include "persistencia/disco/mdConjunto.h"
#include "persistencia/disco/mdErrorFichero.h"
#include "persistencia/zrx/mdFabricacionZrx.h"

namespace zorbin {

namespace {

using Json = nlohmann::ordered_json;

constexpr int kVersion = 1;
constexpr int kSangria = 1;
constexpr std::size_t kVisto = 126;  // characters of an entry that a message shows

// Why a text is refused: an entry of the catalogue, and what it says besides the file.
struct Ilegible {
  int texto;
  std::string dato;
};

std::string Texto(const Json& j, int sangria = -1) {
  return j.dump(sangria, ' ', false, Json::error_handler_t::replace);
}

Json Analiza(std::string_view texto) {
  if (texto.size() > kMaxBytesZrx) throw Ilegible{txt::ZrxExcesivo, {}};
  // Each key is looked for among those of its object.
  std::array<int, kMaxNivelesZrx + 2> claves{};
  const auto mide = [&claves](int nivel, Json::parse_event_t suceso, Json&) {
    if (nivel > kMaxNivelesZrx) throw Ilegible{txt::ZrxExcesivo, {}};
    const auto n = static_cast<std::size_t>(nivel);
    if (suceso == Json::parse_event_t::object_start) claves[n + 1] = 0;
    if (suceso == Json::parse_event_t::key && ++claves[n] > kMaxClavesZrx) {
      throw Ilegible{txt::ZrxExcesivo, {}};
    }
    return true;
  };
  try {
    return Json::parse(texto, mide);
  } catch (const Json::parse_error& error) {
    throw Ilegible{txt::ZrxSinJson, std::to_string(error.byte)};
  } catch (const Json::exception&) {  // a number that no computer holds
    throw Ilegible{txt::ZrxSinJson, "?"};
  }
}

// Takes a known key out of an object. @param donde  the way to it, for the message
template <class T>
void Toma(Json& objeto, const std::string& donde, const char* clave, T& destino) {
  const auto hallada = objeto.find(clave);
  if (hallada == objeto.end()) return;
  try {
    destino = hallada->get<T>();
  } catch (const Json::exception&) {
    throw Ilegible{txt::ZrxClaveMala, donde + clave};
  }
  objeto.erase(hallada);
}

ExtrasTramo EntradaDe(Json entrada, const std::string& donde) {
  if (!entrada.is_object()) throw Ilegible{txt::ZrxClaveMala, donde};
  ExtrasTramo x;
  Toma(entrada, donde + ".", "numero", x.numero);
  Toma(entrada, donde + ".", "descripcion", x.descripcion);
  Toma(entrada, donde + ".", "envolvente", x.Envolvente);
  if (!entrada.empty()) x.otras = Texto(entrada);
  return x;
}

// Sections have readers of their own, which ask nobody when they are needed.
void CompruebaSecciones(const Extras& extras) {
  try {
    PreciosDe(extras.otras);
  } catch (const ClaveMala& mala) {
    throw Ilegible{txt::ZrxClaveMala, mala.donde};
  }
  for (std::size_t i = 0; i < extras.tramos.size(); ++i) {
    try {
      FabricacionDe(extras.tramos[i].otras);
    } catch (const ClaveMala& mala) {
      throw Ilegible{txt::ZrxClaveMala, "tramos[" + std::to_string(i) + "]." + mala.donde};
    }
  }
}

// The picture of the cover is kept as text.
PortadaObra PortadaDe(Json portada) {
  if (!portada.is_object()) throw Ilegible{txt::ZrxClaveMala, "informe"};
  const std::string donde = "informe.";
  PortadaObra x;
  std::string logo;
  Toma(portada, donde, "autor", x.autor);
  Toma(portada, donde, "revisor", x.revisor);
  Toma(portada, donde, "revision", x.revision);
  Toma(portada, donde, "fecha", x.fecha);
  Toma(portada, donde, "logo", logo);
  const auto bytes = DeBase64(logo);
  if (!bytes || bytes->size() > kMaxBytesLogo) throw Ilegible{txt::ZrxClaveMala, donde + "logo"};
  x.logo = *bytes;
  if (!portada.empty()) x.otras = Texto(portada);
  return x;
}

Extras ExtrasDe(Json j, std::string_view texto) {
  if (!j.is_object()) throw Ilegible{txt::ZrxSinJson, "1"};
  std::int64_t version = kVersion;
  if (j.contains("version") && !j["version"].is_number_integer()) {
    throw Ilegible{txt::ZrxClaveMala, "version"};
  }
  Toma(j, {}, "version", version);
  Json entradas = Json::array();
  Toma(j, {}, "tramos", entradas);
  if (!entradas.is_array()) throw Ilegible{txt::ZrxClaveMala, "tramos"};
  if (entradas.size() > kMaxEntradasZrx) throw Ilegible{txt::ZrxExcesivo, {}};
  Extras extras;
  for (std::size_t i = 0; i < entradas.size(); ++i) {
    extras.tramos.push_back(EntradaDe(std::move(entradas[i]), "tramos[" + std::to_string(i) + "]"));
  }
  if (const auto portada = j.find("informe"); portada != j.end()) {
    extras.portada = PortadaDe(std::move(*portada));
    j.erase("informe");
  }
  if (!j.empty()) extras.otras = Texto(j);
  if (version > kVersion) {
    extras.ajeno = texto;
  } else {
    CompruebaSecciones(extras);
  }
  return extras;
}

void AnadeOtras(Json& objeto, const std::string& otras) {
  if (otras.empty()) return;
  const Json suyas = Json::parse(otras);
  for (const auto& [clave, valor] : suyas.items()) objeto[clave] = valor;
}

Json JsonDe(const ExtrasTramo& x) {
  Json j{{"numero", x.numero}, {"descripcion", x.descripcion}};
  if (x.Envolvente) j["envolvente"] = true;
  AnadeOtras(j, x.otras);
  return j;
}

Json JsonDe(const PortadaObra& x) {
  Json j = Json::object();
  for (const auto& [clave, valor] : {std::pair{"autor", &x.autor},
                                     {"revisor", &x.revisor},
                                     {"revision", &x.revision},
                                     {"fecha", &x.fecha}}) {
    if (!valor->empty()) j[clave] = *valor;
  }
  if (!x.logo.empty()) j["logo"] = EnBase64(x.logo);
  AnadeOtras(j, x.otras);
  return j;
}

}  // namespace

std::filesystem::path RutaZrx(const std::filesystem::path& obra) {
  return RutaCompanera(obra, kExtensionZrx);
}

Extras ExtrasDeTexto(std::string_view texto, const std::filesystem::path& zrx) try {
  return ExtrasDe(Analiza(texto), texto);
} catch (const Ilegible& error) {
  throw ErrorFichero({error.texto, {zrx.string(), error.dato}});
}

Extras LeeExtras(const std::filesystem::path& zrx) {
  std::error_code error;
  // A link without a file, or a name that can't be looked at, is an error of its opening.
  if (symlink_status(zrx, error).type() == std::filesystem::file_type::not_found) return {};
  std::string texto;
  if (const int causa = LeeContenido(zrx, kMaxBytesZrx, texto)) {
    throw ErrorFichero({txt::NoSeAbre, {zrx.string(), TextoDeCausa(causa)}});
  }
  return ExtrasDeTexto(texto, zrx);
}

std::string TextoDeExtras(const Extras& extras) {
  if (!extras.ajeno.empty()) return extras.ajeno;
  Json entradas = Json::array();
  for (const auto& x : extras.tramos) {
    if (x.DiceAlgo()) entradas.push_back(JsonDe(x));
  }
  const bool portada = extras.portada.DiceAlgo();
  if (entradas.empty() && !portada && extras.otras.empty()) return {};
  Json j{{"version", kVersion}};
  if (!entradas.empty()) j["tramos"] = std::move(entradas);
  if (portada) j["informe"] = JsonDe(extras.portada);
  AnadeOtras(j, extras.otras);
  return Texto(j, kSangria) + "\n";
}

std::optional<ExtrasTramo> TomaExtras(Extras& extras, std::string_view numero,
                                      std::string_view descripcion) {
  const auto suya = std::ranges::find_if(extras.tramos, [&](const ExtrasTramo& x) {
    return x.numero == numero && x.descripcion == descripcion;
  });
  if (suya == extras.tramos.end()) return std::nullopt;
  std::optional<ExtrasTramo> x = std::move(*suya);
  extras.tramos.erase(suya);
  return x;
}

std::vector<Mensaje> AvisosDeExtras(const Extras& extras, const std::filesystem::path& zrx) {
  std::vector<Mensaje> avisos;
  if (!extras.ajeno.empty()) avisos.push_back({txt::ZrxMasNuevo, {zrx.string()}});
  for (const auto& x : extras.tramos) {
    if (!x.DiceAlgo()) continue;
    const auto dato = [](const std::string& texto) { return std::string(Primeros(texto, kVisto)); };
    avisos.push_back({txt::ZrxSinTramo, {zrx.string(), dato(x.numero), dato(x.descripcion)}});
  }
  return avisos;
}

}  // namespace zorbin
