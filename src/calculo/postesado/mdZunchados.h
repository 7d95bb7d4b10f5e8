// The windings of a Tramo that have been tried. What a winding gives by itself (section, losses,
// and stresses for each unit of pressure) knows neither height nor pressure, and the searches of
// its Casos try the same ones again and again.
#pragma once

#include <array>
#include <cstdint>
#include <deque>

#include "calculo/rastro/mdRastro.h"
#include "core/campos/tramo.h"
#include "core/resultados.h"

namespace zorbin {

struct Zunchado {
  Alambre alambre;
  SeccionPostesada seccion;
  PerdidasPostesado perdidas;
  PorPresion K;  // only where the core holds
};

class Zunchados {
 public:
  /// @param t  the Tramo, in calculation units; it has to outlive this
  explicit Zunchados(const Tramo& t);
  Zunchados(const Zunchados&) = delete;
  Zunchados& operator=(const Zunchados&) = delete;

  const RadiosPostesado& radios() const { return radios_; }
  const MaterialesPostesado& materiales() const { return materiales_; }

  /// Stands until the next one is asked for. With a `rastro` it leaves its steps there.
  /// @throws ErrorEjecucion DivisionPorCero, Desbordamiento
  const Zunchado& De(const Alambre& alambre, Rastro* rastro = nullptr);

 private:
  static constexpr int kBits = 10;

  const Tramo& t_;
  const RadiosPostesado radios_;
  const MaterialesPostesado materiales_;
  std::array<std::uint16_t, std::size_t{1} << kBits> lugares_{};  // in hechos_ from 1; 0 for none
  std::deque<Zunchado> hechos_;

  Zunchado Calcula(const Alambre& alambre, Rastro* rastro) const;
};

}  // namespace zorbin
