// What is measured of a line of pipes, what it costs, and what of its making no calculation asks
// for.
#pragma once

#include <array>
#include <cstddef>
#include <string>

namespace zorbin {

/// What is bought or done, in the order of the bill.
enum class Partida {
  Chapa,
  EspirasInteriores,
  EspirasExteriores,
  Longitudinales,
  Alambre,
  Juntas,
  HormigonNucleo,  // of a reinforced pipe, all of it
  HormigonRevestimiento,
  Excavacion,
  Cama,
  Relleno,
};
inline constexpr std::size_t kPartidas = 11;

/// Steel is measured in kg, the rest in m3.
inline constexpr bool EsAcero(Partida p) {
  return p < Partida::HormigonNucleo;
}

/// A value for each item of the bill.
class PorPartida {
 public:
  double& operator[](Partida p) { return valores_[static_cast<std::size_t>(p)]; }
  double operator[](Partida p) const { return valores_[static_cast<std::size_t>(p)]; }
  bool operator==(const PorPartida&) const = default;

 private:
  std::array<double, kPartidas> valores_{};
};

/// How the pipes of a Tramo are made and how many there are.
struct Fabricacion {
  double Longitud = 0;      // of the Tramo, 0 where nobody has said [m]
  double LongitudTubo = 6;  // laid length of a pipe [m]
  double AceroJunta = 0;    // steel rings of a joint [kg]
  double FiLong = 8;        // longitudinal bars of each layer of spirals, 0 for none [mm]
  double SepLong = 0.3;     // the most that they lie apart along their circle [m]

  bool operator==(const Fabricacion&) const = default;
};

/// Unit prices; 0 where there is none.
struct Precios {
  PorPartida precio;  // of 1 kg or of 1 m3
  std::string moneda = "€";

  bool operator==(const Precios&) const = default;
};

}  // namespace zorbin
