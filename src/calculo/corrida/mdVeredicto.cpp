#include "calculo/corrida/mdVeredicto.h"

#include "calculo/envolvente/mdEnvolvente.h"
#include "calculo/veredicto/mdVerificaPostesado.h"

namespace zorbin {

namespace {

// What `calcula` gives, or that it could not be checked.
template <class Calcula>
auto SiSePuede(const Calcula& calcula) -> decltype(calcula()) {
  try {
    return calcula();
  } catch (const ErrorEjecucion&) {
    decltype(calcula()) v;
    v.motivo = MotivoVeredicto::FalloCorrida;
    return v;
  }
}

}  // namespace

// Not before the first Caso is designed: data that end the run do so where the design meets them.
const DatosVerificacion& VeredictoTramo::Limites() {
  if (!limites_) limites_ = DatosDeVerificacion(datos_.tramo);
  return *limites_;
}

ResumenVerificacion VeredictoTramo::Resume(ResultadoArmado& r, std::span<const Aviso> avisos) {
  return SiSePuede([&] {
    if (!datos_.envolvente) {
      return ResumeArmado(Limites(), r, DispuestaDe(r), SinSolucionExterior(avisos));
    }
    const auto x = Envuelve(Limites(), r, avisos);
    r = x.armado;
    return x.resumen;
  });
}

Verificacion VeredictoTramo::Verifica(ResultadoArmado& r, std::span<const Aviso> avisos,
                                      Rastro* rastro) {
  return SiSePuede([&] {
    if (!datos_.envolvente) {
      return VerificaArmado(Limites(), r, DispuestaDe(r), SinSolucionExterior(avisos), rastro);
    }
    const auto x = Envuelve(Limites(), r, avisos, rastro);
    r = x.armado;
    auto v = VerificaArmado(Limites(), r, x.dispuesta, x.sinSolucion, rastro);
    static_cast<ResumenVerificacion&>(v) = x.resumen;
    return v;
  });
}

ResumenVerificacion VeredictoTramo::Resume(const ResultadoPostesado& r, double DP,
                                           double MDP) const {
  return SiSePuede([&] { return ResumePostesado(datos_.tramo, r, DP, MDP); });
}

Verificacion VeredictoTramo::Verifica(const ResultadoPostesado& r, double DP, double MDP,
                                      Rastro* rastro) const {
  return SiSePuede([&] { return VerificaPostesado(datos_.tramo, r, DP, MDP, rastro); });
}

}  // namespace zorbin
