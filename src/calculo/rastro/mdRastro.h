// The trace of a calculation: each formula that it used, with the very doubles that it used.
//
// Whoever calculates takes a `Rastro*` as its last argument, null where nobody asks, and notes
// after computing:
//     if (rastro) rastro->Anota(Formula::Dm, {d.Di, d.De}, r.Dm);
// The values stand in the order in which the symbols of the formula appear in its expression
// (mdFormulas.h). An iteration notes its last round alone, and a search the row that it chose: they
// go back to a mark at the start of each round.
//
// For a reader: `PasosDelCaso` (calculo/pasos/mdPasos.h) gives the steps of a Caso in groups, and
// `EscribePaso` (mdEscritura.h) what stands on paper for each.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <vector>

#include "calculo/rastro/mdFormulas.h"
#include "core/verificacion.h"

namespace zorbin {

/// Where in a calculation a step belongs. The groups of a Caso come in this order.
enum class Apartado : std::uint8_t {
  Presiones,      // of the Caso
  Empuje,         // active earth pressure
  Cargas,         // of the height
  CargasUnMetro,  // of 1 m of earth, for the system test
  Resultantes,    // of the loads on the ring
  Terminos,       // moments and axial forces of each load; a table
  ResultantesUnMetro,
  TerminosUnMetro,
  Combinaciones,    // of the loads, that the hypotheses add up; a table
  Hipotesis,        // moments and axial forces of each hypothesis; a table
  PruebaFabrica,    // reinforced: areas for the factory test
  Rige,             // areas of each hypothesis, and the governing one
  Clasificacion,    // of each section of the governing hypothesis, and its area
  Caras,            // areas of the two faces
  RepartoInterior,  // sheet and bars
  RepartoExterior,
  Retraccion,
  Fisuracion,
  Armadura,        // areas that the Caso ends with
  Envolvente,      // steel that the enveloping design ends with
  Comprobaciones,  // of the verdict
  Radios,          // post-tensioned
  Materiales,
  AlambreInicial,  // search of the wire: first one, spirals of each hypothesis
  Seccion,
  Lame,
  Perdidas,
  TensionesFinales,
  PorPresion,
  Ovalizacion,  // stresses of each hypothesis
  Limites,      // limit pressures of each hypothesis
  Tensiones,    // of each hypothesis; a table
  PruebaNeta,   // PP
};
inline constexpr int kApartados = static_cast<int>(Apartado::PruebaNeta) + 1;

/// Places of a post-tensioned wall: inner and outer face of core and coating, and the wire.
enum class PuntoPared : std::uint8_t { Ninguno, PI, PE, RI, RE, Ac };

/// The place of a step. 0 and Ninguna where it belongs to none.
struct LugarPaso {
  Apartado apartado = Apartado::Presiones;
  std::int8_t hipotesis = 0;  // 1 to 5, post-tensioned 1 to 6
  std::int8_t seccion = 0;    // CLAVE, RINONES, SOLERA
  CaraPared cara = CaraPared::Ninguna;
  PuntoPared punto = PuntoPared::Ninguno;

  bool operator==(const LugarPaso&) const = default;
};

/// A formula as a calculation used it, in calculation units.
struct Paso {
  Formula formula{};
  LugarPaso lugar;
  std::vector<double> valores;  // of its symbols, in the order in which they appear
  double resultado = 0;         // of a relation, 1
};

/// Collects the steps of a calculation.
class Rastro {
 public:
  LugarPaso lugar;  // of what is noted next

  void Anota(Formula formula, std::initializer_list<double> valores, double resultado = 1.0) {
    pasos_.push_back({formula, lugar, valores, resultado});
  }

  /// Takes back what was noted since `marca`, a value of `Marca`.
  std::size_t Marca() const { return pasos_.size(); }
  void VuelveA(std::size_t marca) { pasos_.resize(marca); }

  const std::vector<Paso>& pasos() const { return pasos_; }
  std::vector<Paso> Suelta() { return std::move(pasos_); }

 private:
  std::vector<Paso> pasos_;
};

/// While it lives what is noted belongs to another place. Nothing for a null trace.
class EnLugar {
 public:
  EnLugar(Rastro* rastro, const LugarPaso& lugar) : rastro_(rastro) {
    if (rastro == nullptr) return;
    antes_ = rastro->lugar;
    rastro->lugar = lugar;
  }
  /// The same place in another part of the calculation.
  EnLugar(Rastro* rastro, Apartado apartado) : rastro_(rastro) {
    if (rastro == nullptr) return;
    antes_ = rastro->lugar;
    rastro->lugar.apartado = apartado;
  }
  EnLugar(Rastro* rastro, Apartado apartado, int seccion) : EnLugar(rastro, apartado) {
    if (rastro != nullptr) rastro->lugar.seccion = static_cast<std::int8_t>(seccion);
  }
  ~EnLugar() {
    if (rastro_ != nullptr) rastro_->lugar = antes_;
  }
  EnLugar(const EnLugar&) = delete;
  EnLugar& operator=(const EnLugar&) = delete;

 private:
  Rastro* rastro_;
  LugarPaso antes_;
};

/// Forgets at each round what the round before noted.
class UltimaVuelta {
 public:
  explicit UltimaVuelta(Rastro* rastro)
      : rastro_(rastro), marca_(rastro != nullptr ? rastro->Marca() : 0) {}
  void Empieza() {
    if (rastro_ != nullptr) rastro_->VuelveA(marca_);
  }

 private:
  Rastro* rastro_;
  std::size_t marca_;
};

}  // namespace zorbin
