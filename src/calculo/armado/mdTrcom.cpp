#include "calculo/armado/mdTrcom.h"

#include <cmath>

namespace zorbin {

namespace {

constexpr double kTolArea = 0.01;  // [cm2/m]

double Itera(double excentricidad, double total, double Aotra, CuentaVueltas& vueltas,
             Rastro* rastro) {
  vueltas.Suma(1);
  double A = (excentricidad + 0.5) * total;
  if (rastro) rastro->Anota(Formula::TraccionInicio, {excentricidad, total}, A);
  if (std::fabs(Finito(A)) < kTolArea) return A;
  for (int vuelta = 0; vuelta < kMaxVueltas; ++vuelta) {
    vueltas.Suma(1);
    const double A0 = A;
    A = Finito((excentricidad + Div(A0, Aotra + A0)) * total);
    if (std::fabs(A - A0) < kTolArea) {
      if (rastro) rastro->Anota(Formula::Traccion, {excentricidad, A0, Aotra, total}, A);
      return A;
    }
  }
  throw ErrorEjecucion(CausaError::SinConvergencia, "TraccionCompuesta");
}

}  // namespace

double MinimaTraccion(const DatosSeccion& d, Rastro* rastro) {
  const double Amin = Div(d.Fck * 0.04 * d.GamaY * d.Esp, d.GamaB * d.Fyk) * 10000.0;
  if (rastro) {
    rastro->Anota(Formula::MinimaTraccion, {d.Fck, d.GamaY, d.Esp, d.GamaB, d.Fyk}, Amin);
  }
  return Amin;
}

double TraccionCompuesta(const DatosSeccion& d, double M, double N, double Aotra,
                         CuentaVueltas& vueltas, Rastro* rastro) {
  const double excentricidad = Div(std::fabs(M), d.BRAZO * N);
  const double total = Div(N, d.Fyd) * 1000.0;
  if (rastro) {
    rastro->Anota(Formula::Epsilon, {M, d.BRAZO, N}, excentricidad);
    rastro->Anota(Formula::FuerzaTotal, {N, d.Fyd}, total);
  }
  const double A = Itera(excentricidad, total, Aotra, vueltas, rastro);
  const double Amin = MinimaTraccion(d, rastro);
  const double elegida = A < Amin ? Amin : A;
  if (rastro) rastro->Anota(Formula::AreaTraccion, {A, Amin}, elegida);
  return elegida;
}

}  // namespace zorbin
