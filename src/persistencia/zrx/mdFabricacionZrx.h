// How the pipes of a Tramo are made, and the prices of an Obra, as its extras tell them:
//
//   "fabricacion": {"longitud": 850.0, "tubo": 6.0, "junta": 24.0,
//                   "longitudinales": {"diametro": 8.0, "separacion": 0.3}}   of a Tramo
//   "precios": {"moneda": "€", "chapa": 1.9, "hormigon": 110.0, ...}          of the whole
//
// A key that is absent means its default; unknown ones within them are kept.
#pragma once

#include <string>
#include <string_view>

#include "core/mediciones.h"
#include "persistencia/zrx/mdZrx.h"

namespace zorbin {

/// What a value may be, both ends included.
struct LimitesDato {
  double minimo;
  double maximo;

  bool Admite(double valor) const { return valor >= minimo && valor <= maximo; }
};

inline constexpr LimitesDato kLimLongitud{0.0, 1e6};     // [m]
inline constexpr LimitesDato kLimTubo{0.1, 100.0};       // [m]
inline constexpr LimitesDato kLimJunta{0.0, 100'000.0};  // [kg]
inline constexpr LimitesDato kLimFiLong{0.0, 100.0};     // [mm]
inline constexpr LimitesDato kLimSepLong{0.01, 100.0};   // [m]
inline constexpr LimitesDato kLimPrecio{0.0, 1e9};
inline constexpr std::size_t kMaxMoneda = 8;  // bytes

/// A key whose value no reader takes: its way, for a message.
struct ClaveMala {
  std::string donde;
};

/// @param otras  a JSON object, as ExtrasTramo::otras; empty for none
/// @throws ClaveMala
Fabricacion FabricacionDe(const std::string& otras);
/// The same extras with another making; defaults leave no key.
std::string ConFabricacion(const std::string& otras, const Fabricacion& fab);

/// Of the entry of a Tramo; the default where it has none. @throws ClaveMala
Fabricacion FabricacionDe(const Extras& extras, std::string_view numero,
                          std::string_view descripcion);

/// @param otras  as Extras::otras
/// @throws ClaveMala
Precios PreciosDe(const std::string& otras);
std::string ConPrecios(const std::string& otras, const Precios& precios);

/// Prices of a file of their own: the object alone. @throws ClaveMala
Precios PreciosDeTexto(std::string_view json);

/// The key by which a price is written.
const char* ClaveDe(Partida p);

}  // namespace zorbin
