#include "calculo/armado/mdFlecom.h"

#include <cmath>

#include "base/aritmetica.h"

namespace zorbin {

double MomentoLimite(const DatosSeccion& s, double d) {
  return Finito(Div(s.Fck * 0.35 * d * d, s.GamaB) * 10.0);
}

double MomentoReducido(const DatosSeccion& s, double M, double N, double ESP, double r) {
  double Mr = std::fabs(M);
  if (N < 0) Mr = Mr + (ESP / 2.0 - r) * (-N);
  return Finito(Mr * s.GamaF);
}

double MinimaFlexion(const DatosSeccion& s, double d) {
  return Div(s.Fck * 0.04 * s.GamaY * d, s.Fyk * s.GamaB) * 10000.0;
}

std::optional<double> FlexoCompuesta(const DatosSeccion& s, double M, double N, double ESP,
                                     double r) {
  const double d = ESP - r;
  const double Mtope = MomentoLimite(s, d);
  if (MomentoReducido(s, M, N, ESP, r) > Mtope) return std::nullopt;
  const double K1 = Div(Div(std::fabs(M), N) - s.BRAZO / 2.0, d);
  const double Fcad = Div(s.Fck, s.GamaF * s.GamaB) * d * d * 10.0;
  const double K2 = Div(std::fabs(M) - s.BRAZO * N / 2.0, Fcad);
  const double A = Finito((K1 * 0.97 * (K2 + 1.0) + 1.0) * Div(N, s.Fyd) * 1000.0);
  const double Amin = MinimaFlexion(s, d);
  return A < Amin ? Amin : A;
}

}  // namespace zorbin
