// The verdict of each Caso of a Tramo, and the steel that the enveloping design adds before it.
#pragma once

#include <optional>
#include <span>

#include "calculo/veredicto/mdVerificaArmado.h"
#include "core/resultado.h"

namespace zorbin {

class VeredictoTramo {
 public:
  /// @param datos  must outlive it
  explicit VeredictoTramo(const DatosTramo& datos) : datos_(datos) {}

  /// The verdict in short. What the checks themselves cannot calculate is told as not checked; a
  /// Caso that was designed is never lost for it.
  /// @param r       of the method; with the enveloping design it is grown, unless adjusted by hand
  /// @param avisos  of its design
  ResumenVerificacion Resume(ResultadoArmado& r, std::span<const Aviso> avisos);
  ResumenVerificacion Resume(const ResultadoPostesado& r, double DP, double MDP) const;

  /// The same verdict with its checks.
  Verificacion Verifica(ResultadoArmado& r, std::span<const Aviso> avisos,
                        Rastro* rastro = nullptr);
  Verificacion Verifica(const ResultadoPostesado& r, double DP, double MDP,
                        Rastro* rastro = nullptr) const;

 private:
  const DatosTramo& datos_;
  std::optional<DatosVerificacion> limites_;

  const DatosVerificacion& Limites();
};

}  // namespace zorbin
