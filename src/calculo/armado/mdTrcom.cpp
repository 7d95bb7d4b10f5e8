#include "calculo/armado/mdTrcom.h"

#include <cmath>

namespace zorbin {

namespace {

constexpr double kTolArea = 0.01;  // [cm2/m]

double Itera(double excentricidad, double total, double Aotra, CuentaVueltas& vueltas) {
  vueltas.Suma(1);
  double A = (excentricidad + 0.5) * total;
  if (std::fabs(Finito(A)) < kTolArea) return A;
  for (int vuelta = 0; vuelta < kMaxVueltas; ++vuelta) {
    vueltas.Suma(1);
    const double A0 = A;
    A = Finito((excentricidad + Div(A0, Aotra + A0)) * total);
    if (std::fabs(A - A0) < kTolArea) return A;
  }
  throw ErrorEjecucion(CausaError::SinConvergencia, "TraccionCompuesta");
}

}  // namespace

double MinimaTraccion(const DatosSeccion& d) {
  return Div(d.Fck * 0.04 * d.GamaY * d.Esp, d.GamaB * d.Fyk) * 10000.0;
}

double TraccionCompuesta(const DatosSeccion& d, double M, double N, double Aotra,
                         CuentaVueltas& vueltas) {
  const double excentricidad = Div(std::fabs(M), d.BRAZO * N);
  const double total = Div(N, d.Fyd) * 1000.0;
  const double A = Itera(excentricidad, total, Aotra, vueltas);
  const double Amin = MinimaTraccion(d);
  return A < Amin ? Amin : A;
}

}  // namespace zorbin
