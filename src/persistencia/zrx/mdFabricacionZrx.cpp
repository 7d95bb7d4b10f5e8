#include "persistencia/zrx/mdFabricacionZrx.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <nlohmann/json.hpp>

namespace zorbin {

namespace {

using Json = nlohmann::ordered_json;

constexpr const char* kFabricacion = "fabricacion";
constexpr const char* kLongitudinales = "longitudinales";
constexpr const char* kPrecios = "precios";
constexpr const char* kMoneda = "moneda";

constexpr std::array<const char*, kPartidas> kClaves{
    "chapa",    "espirasInteriores", "espirasExteriores", "longitudinales", "alambre", "juntas",
    "hormigon", "revestimiento",     "excavacion",        "cama",           "relleno"};

Json Objeto(const std::string& otras) {
  return otras.empty() ? Json::object() : Json::parse(otras);
}

Json Seccion(const Json& objeto, const std::string& donde, const char* clave) {
  const auto hallada = objeto.find(clave);
  if (hallada == objeto.end()) return Json::object();
  if (!hallada->is_object()) throw ClaveMala{donde + clave};
  return *hallada;
}

void Numero(const Json& seccion, const std::string& donde, const char* clave,
            const LimitesDato& limites, double& valor) {
  const auto hallado = seccion.find(clave);
  if (hallado == seccion.end()) return;
  if (!hallado->is_number()) throw ClaveMala{donde + clave};
  const double leido = hallado->get<double>();
  if (!limites.Admite(leido)) throw ClaveMala{donde + clave};
  valor = leido;
}

// Writes what is no default, and takes the key away where it is.
void Escribe(Json& seccion, const char* clave, double valor, double defecto) {
  seccion.erase(clave);
  if (valor != defecto) seccion[clave] = valor;
}

std::string Texto(Json objeto, const char* clave, Json seccion) {
  objeto.erase(clave);
  if (!seccion.empty()) objeto[clave] = std::move(seccion);
  if (objeto.empty()) return {};
  return objeto.dump(-1, ' ', false, Json::error_handler_t::replace);
}

Precios PreciosDe(const Json& seccion, const std::string& donde) {
  Precios p;
  for (std::size_t i = 0; i < kPartidas; ++i) {
    Numero(seccion, donde, kClaves[i], kLimPrecio, p.precio[static_cast<Partida>(i)]);
  }
  if (const auto moneda = seccion.find(kMoneda); moneda != seccion.end()) {
    if (!moneda->is_string() || moneda->get_ref<const std::string&>().size() > kMaxMoneda) {
      throw ClaveMala{donde + kMoneda};
    }
    p.moneda = moneda->get<std::string>();
  }
  return p;
}

}  // namespace

const char* ClaveDe(Partida p) {
  return kClaves[static_cast<std::size_t>(p)];
}

Fabricacion FabricacionDe(const std::string& otras) {
  if (otras.empty()) return {};
  const auto j = Seccion(Objeto(otras), {}, kFabricacion);
  const auto barras = Seccion(j, "fabricacion.", kLongitudinales);
  Fabricacion f;
  Numero(j, "fabricacion.", "longitud", kLimLongitud, f.Longitud);
  Numero(j, "fabricacion.", "tubo", kLimTubo, f.LongitudTubo);
  Numero(j, "fabricacion.", "junta", kLimJunta, f.AceroJunta);
  Numero(barras, "fabricacion.longitudinales.", "diametro", kLimFiLong, f.FiLong);
  Numero(barras, "fabricacion.longitudinales.", "separacion", kLimSepLong, f.SepLong);
  return f;
}

Fabricacion FabricacionDe(const Extras& extras, std::string_view numero,
                          std::string_view descripcion) {
  const auto suya = std::ranges::find_if(extras.tramos, [&](const ExtrasTramo& x) {
    return x.numero == numero && x.descripcion == descripcion;
  });
  return suya == extras.tramos.end() ? Fabricacion{} : FabricacionDe(suya->otras);
}

std::string ConFabricacion(const std::string& otras, const Fabricacion& fab) {
  const Fabricacion defecto;
  auto objeto = Objeto(otras);
  auto j = Seccion(objeto, {}, kFabricacion);
  auto barras = Seccion(j, {}, kLongitudinales);
  Escribe(j, "longitud", fab.Longitud, defecto.Longitud);
  Escribe(j, "tubo", fab.LongitudTubo, defecto.LongitudTubo);
  Escribe(j, "junta", fab.AceroJunta, defecto.AceroJunta);
  Escribe(barras, "diametro", fab.FiLong, defecto.FiLong);
  Escribe(barras, "separacion", fab.SepLong, defecto.SepLong);
  j.erase(kLongitudinales);
  if (!barras.empty()) j[kLongitudinales] = std::move(barras);
  return Texto(std::move(objeto), kFabricacion, std::move(j));
}

Precios PreciosDe(const std::string& otras) {
  if (otras.empty()) return {};
  return PreciosDe(Seccion(Objeto(otras), {}, kPrecios), "precios.");
}

std::string ConPrecios(const std::string& otras, const Precios& precios) {
  const Precios defecto;
  auto objeto = Objeto(otras);
  auto j = Seccion(objeto, {}, kPrecios);
  j.erase(kMoneda);
  if (precios.moneda != defecto.moneda) j[kMoneda] = precios.moneda;
  for (std::size_t i = 0; i < kPartidas; ++i) {
    Escribe(j, kClaves[i], precios.precio[static_cast<Partida>(i)], 0.0);
  }
  return Texto(std::move(objeto), kPrecios, std::move(j));
}

Precios PreciosDeTexto(std::string_view json) {
  const auto j = Json::parse(json, nullptr, false);
  if (!j.is_object()) throw ClaveMala{"{"};
  for (const auto& [clave, valor] : j.items()) {
    const auto conocida = [&c = clave](const char* k) { return c == k; };
    if (clave != kMoneda && std::ranges::none_of(kClaves, conocida)) throw ClaveMala{clave};
  }
  return PreciosDe(j, {});
}

}  // namespace zorbin
