#include "calculo/armado/mdFlecom.h"

#include <cmath>

#include "base/aritmetica.h"

namespace zorbin {

double MomentoLimite(const DatosSeccion& s, double d, Rastro* rastro) {
  const double Mtope = Finito(Div(s.Fck * 0.35 * d * d, s.GamaB) * 10.0);
  if (rastro) rastro->Anota(Formula::MomentoTope, {s.Fck, d, s.GamaB}, Mtope);
  return Mtope;
}

double MomentoReducido(const DatosSeccion& s, double M, double N, double ESP, double r,
                       Rastro* rastro) {
  double Mr = std::fabs(M);
  if (N < 0) Mr = Mr + (ESP / 2.0 - r) * (-N);
  Mr = Finito(Mr * s.GamaF);
  if (rastro && N < 0) {
    rastro->Anota(Formula::MomentoReducidoCompresion, {M, ESP, r, N, s.GamaF}, Mr);
  } else if (rastro) {
    rastro->Anota(Formula::MomentoReducido, {M, s.GamaF}, Mr);
  }
  return Mr;
}

double MinimaFlexion(const DatosSeccion& s, double d, Rastro* rastro) {
  const double Amin = Div(s.Fck * 0.04 * s.GamaY * d, s.Fyk * s.GamaB) * 10000.0;
  if (rastro) rastro->Anota(Formula::MinimaFlexion, {s.Fck, s.GamaY, d, s.Fyk, s.GamaB}, Amin);
  return Amin;
}

std::optional<double> FlexoCompuesta(const DatosSeccion& s, double M, double N, double ESP,
                                     double r, Rastro* rastro) {
  const double d = ESP - r;
  if (rastro) rastro->Anota(Formula::Canto, {ESP, r}, d);
  const double Mtope = MomentoLimite(s, d, rastro);
  const double Mr = MomentoReducido(s, M, N, ESP, r, rastro);
  if (rastro) {
    rastro->Anota(Mr > Mtope ? Formula::PasaMomento : Formula::CabeMomento, {Mr, Mtope});
  }
  if (Mr > Mtope) return std::nullopt;
  const double K1 = Div(Div(std::fabs(M), N) - s.BRAZO / 2.0, d);
  const double Fcad = Div(s.Fck, s.GamaF * s.GamaB) * d * d * 10.0;
  const double K2 = Div(std::fabs(M) - s.BRAZO * N / 2.0, Fcad);
  const double A = Finito((K1 * 0.97 * (K2 + 1.0) + 1.0) * Div(N, s.Fyd) * 1000.0);
  if (rastro) {
    rastro->Anota(Formula::K1, {M, N, s.BRAZO, d}, K1);
    rastro->Anota(Formula::K2, {M, s.BRAZO, N, s.Fck, s.GamaF, s.GamaB, d}, K2);
    rastro->Anota(Formula::Flexion, {K1, K2, N, s.Fyd}, A);
  }
  const double Amin = MinimaFlexion(s, d, rastro);
  const double elegida = A < Amin ? Amin : A;
  if (rastro) rastro->Anota(Formula::AreaSeccion, {A, Amin}, elegida);
  return elegida;
}

}  // namespace zorbin
