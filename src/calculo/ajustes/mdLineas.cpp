#include "calculo/ajustes/mdLineas.h"

#include <cmath>

namespace zorbin {

namespace {

constexpr double kKpCmPorMT = 100000.0;
constexpr double kKpPorT = 1000.0;
constexpr double kTM2PorAt = 10.0;
constexpr double kAnchoBanda = 100.0;  // the section is a metre of pipe [cm]
constexpr double kFlexion = 0.97;

double AreaDeFlexion(const CoeficientesFlexion& k, double N, double fyd) {
  return Finito((k.K1 * kFlexion * (k.K2 + 1.0) + 1.0) * Div(N, fyd));
}

}  // namespace

double CalculaM(double m) {
  return std::fabs(m) * kKpCmPorMT;
}

double PresionQueRige(int HipotesisRige, const PresionesCaso& p) {
  switch (HipotesisRige) {
    case 1:
      return p.PP;
    case 2:
      return 0.0;
    case 3:
      return p.STP;
    case 5:
      return p.MDP;
    default:
      return p.DP;
  }
}

double CalculaN(double n, double presion, double d) {
  return (n + presion * kTM2PorAt * d / 2.0) * kKpPorT;
}

CoeficientesFlexion CoeficientesDeFlexion(double M, double N, double BRAZO, double CANTO,
                                          double Fcad) {
  return {Div(Div(M, N) - BRAZO / 2.0, CANTO),
          Div(M - N * BRAZO / 2.0, Fcad * kAnchoBanda * CANTO * CANTO)};
}

double Linea_5240(double M, double N, double BRAZO, double CANTO, double Fcad, double fyd) {
  return AreaDeFlexion(CoeficientesDeFlexion(M, N, BRAZO, CANTO, Fcad), N, fyd);
}

bool EsTraccionCompuesta(double M, double N, double BRAZO) {
  return N >= 0.0 && Div(M, N) <= BRAZO / 2.0;
}

AreaSeccion Linea_5050(double N, double M, double BRAZO, double fyd, double CANTO, double Fcad) {
  if (!EsTraccionCompuesta(M, N, BRAZO)) {
    return {Linea_5240(M, N, BRAZO, CANTO, Fcad, fyd), false};
  }
  return {Div((Div(Div(M, N), BRAZO) + 0.5) * N, fyd), true};
}

double Linea_6000(double BRAZO, double fyd, double A, double N, double M) {
  const double s = BRAZO * fyd * A - BRAZO * N - M;
  return Div(Div(Finito(std::sqrt(s * s + 4.0 * BRAZO * fyd * M * A)) - s, 2.0 * fyd), BRAZO);
}

double Linea_6030(double fyd, double BRAZO, double A, double N, double M) {
  return Div(fyd * BRAZO * A * A - BRAZO * N * A - A * M, M - fyd * BRAZO * A);
}

Comprobacion1050 Lineas_1050(double A1, double A2, double M, double BRAZO, double N, double fyd,
                             double CANTO, double Fcad, Rastro* rastro) {
  if (!EsTraccionCompuesta(M, N, BRAZO)) {
    const auto k = CoeficientesDeFlexion(M, N, BRAZO, CANTO, Fcad);
    const double necesaria = AreaDeFlexion(k, N, fyd);
    if (rastro) {
      if (N < 0.0) {
        rastro->Anota(Formula::ComprobacionCompresion, {N});
      } else {
        rastro->Anota(Formula::ComprobacionFlexion, {M, N, BRAZO});
      }
      rastro->Anota(Formula::K1Comprobacion, {M, N, BRAZO, CANTO}, k.K1);
      rastro->Anota(Formula::K2Comprobacion, {M, N, BRAZO, Fcad, CANTO}, k.K2);
      rastro->Anota(Formula::NecesariaFlexion, {k.K1, k.K2, N, fyd}, necesaria);
    }
    return {false, 0.0, k.K1, k.K2, necesaria};
  }
  // Without steel on either face each would take half.
  const double r = A1 + A2 == 0.0 ? 0.5 : Div(A1, A1 + A2);
  const double necesaria = Div((Div(Div(M, N), BRAZO) + r) * N, fyd);
  if (rastro) {
    rastro->Anota(Formula::ComprobacionTraccion, {M, N, BRAZO});
    if (A1 + A2 == 0.0) {
      rastro->Anota(Formula::MitadCara, {}, r);
    } else {
      rastro->Anota(Formula::ParteCara, {A1, A2}, r);
    }
    rastro->Anota(Formula::NecesariaTraccion, {M, N, BRAZO, r, fyd}, necesaria);
  }
  return {true, r, 0.0, 0.0, necesaria};
}

}  // namespace zorbin
