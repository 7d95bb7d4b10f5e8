#include "calculo/cargas/mdMarston.h"

#include <array>
#include <cmath>

namespace zorbin {

namespace {

constexpr double kGrado = kPi / 180.0;  // [rad]
constexpr double kTolNewton = 0.00001;  // [-]

double Exp(double x) {
  return Finito(std::exp(x));
}

struct Relleno {
  std::int16_t codigo;
  double coef;
};

constexpr std::array<Relleno, 5> kRellenos{
    {{11, 0.192}, {12, 0.165}, {21, 0.150}, {22, 0.130}, {23, 0.110}}};

constexpr Lista<double, 3> kAsentamiento{{1.0, 0.5, 0.3}};

// Terms of the fill that every formula shares.
struct Suelo {
  double Ka, Mu, M2;
};

Suelo TerminosSuelo(double Fi) {
  const double t = TanGrados(45.0 - Fi / 2.0);
  const double Ka = t * t;
  const double Mu = TanGrados(Fi);
  return {Ka, Mu, (Ka + Ka) * Mu};
}

// The load that governs of the laying's own one (q.Q so far) and the embankment load Qt.
void Adopta(Cargas& q, double Qt, double prisma) {
  q.TerraplenRige = q.Q >= Qt;
  if (q.TerraplenRige) {
    q.QTierras = q.Q;
    q.Q = Qt;
    q.QTerraplen = prisma;
  } else {
    q.QTierras = Qt;
  }
}

double CargaTerraplen(const Tramo& t, const Suelo& s, double r, double Hp, double H) {
  return CoefTerraplen(s.M2, r, Hp, t.De, H) * t.Gr * H * t.De;
}

void SumaMovil(Cargas& q, std::int16_t ICarga, double H, double De) {
  q.Impacto = CoefImpacto(H);
  const double movil = PresionMovil(ICarga, H) * De * q.Impacto;
  const double antes = q.Q;
  q.Q = q.Q + movil;
  q.QTerraplen = q.QTerraplen + movil;
  q.QMovil = q.Q - antes;
}

void CargasZanja(const Tramo& t, const Suelo& s, double H, Cargas& q) {
  const double C = CoefZanja(CoefRelleno(t.TipoRelleno), H, t.B0);
  if (t.TipoApoyo == 11) q.Q = C * t.Gr * H * t.B0;
  if (t.TipoApoyo == 12) q.Q = C * t.Gr * H * t.De;
  q.QTerraplen = C * t.Gr * H * t.De;
  Adopta(q, CargaTerraplen(t, s, kRazonComparacion, t.De, H), H * t.Gr * t.De);
}

void CargasZanjaTerraplenada(const Tramo& t, const Suelo& s, double H, Cargas& q) {
  const double C = CoefZanjaTerraplenada(s.Ka, s.Mu, t.Hr1, t.B0, H);
  if (t.TipoApoyo == 21) q.Q = C * t.Gr * H * t.B0;
  if (t.TipoApoyo == 22) q.Q = C * t.Gr * H * t.De;
  q.QTerraplen = C * t.Gr * H * t.De;
  Adopta(q, CargaTerraplen(t, s, kRazonComparacion, t.Hr1, H), H * t.Gr * t.De);
}

void ExigeFinitas(const Cargas& q) {
  for (const double x : {q.Q, q.QTerraplen, q.QTierras, q.QMovil, q.Impacto}) Finito(x);
}

}  // namespace

double TanGrados(double grados) {
  const double r = grados * kGrado;
  return Div(std::sin(r), std::cos(r));
}

double EmpujeActivo(double Fi) {
  const double a = kPi / 4.0 - Fi * kPi / 360.0;
  const double tangente = Div(std::sin(a), std::cos(a));
  return tangente * tangente;
}

double ResuelveEcua(double c, double x0) {
  double x = x0;
  for (int vuelta = 0; vuelta < kMaxVueltas; ++vuelta) {
    const double ex = Exp(x);
    const double nueva = x - Div(ex - x - c, ex - 1.0);
    if (std::fabs(nueva - x) < kTolNewton) return nueva;
    x = nueva;
  }
  throw ErrorEjecucion(CausaError::SinConvergencia, "ResuelveEcua");
}

double CoefRelleno(std::int16_t TipoRelleno) {
  for (const auto& r : kRellenos) {
    if (r.codigo == TipoRelleno) return r.coef;
  }
  return 0.0;
}

double RazonAsentamiento(std::int16_t IAs) {
  return kAsentamiento(IAs);
}

double CoefAsentamiento(double p) {
  if (p < 0.5) return -0.1;
  if (p < 1.5) return (0.5 - p) * 0.4 - 0.1;
  if (p < 2.0) return 1.0 - p;
  return -1.0;
}

double CoefZanja(double Kmu, double H, double B) {
  const double x = Div(2.0 * Kmu * H, B);
  return Div(1.0 - Exp(-x), x);
}

double CoefTerraplen(double M2, double r, double Hp, double De, double H) {
  const double c = M2 * r * Div(Hp, De) + 1.0;
  const double x = ResuelveEcua(c, Div(M2 * Hp, De));
  const double He = Div(x * De, M2);  // plane of equal settlement
  if (H >= He) {
    const double ex = Exp(x);
    return Div(ex - 1.0, Div(M2 * H, De)) + (1.0 - Div(He, H)) * ex;
  }
  const double y = Div(x * H, He);
  return Div(Exp(y) - 1.0, y);
}

double CoefZanjaTerraplenada(double Ka, double Mu, double Hr1, double B, double H) {
  const double M2 = (Ka + Ka) * Mu;
  const double menosM2 = (Ka * (-2.0)) * Mu;
  const double p = Div(Hr1, B);
  const double c = std::fabs(CoefAsentamiento(p) * p) * M2 + 1.0;
  const double x = ResuelveEcua(c, Div(menosM2 * Hr1, B));
  const double He = Div(x * B, menosM2);
  if (H >= He) {
    const double ex = Exp(x);
    return Div(1.0 - ex, Div(M2 * H, B)) + (1.0 - Div(He, H)) * ex;
  }
  const double y = Div(x * H, He);
  return Div(1.0 - Exp(y), -y);
}

double PresionMovil(std::int16_t ICarga, double H) {
  switch (ICarga) {
    case 1:
      return H <= 1.21 ? Div(3.5, 1.54 * H * H + 0.7 * H + 0.06)
                       : Div(7.0, 1.54 * H * H + 3.5 * H + 0.46);
    case 2:
      return H < 1.0 ? Div(6.5, 1.54 * H * H + 1.12 * H + 0.12)
                     : Div(13.0, 1.54 * H * H + 3.92 * H + 0.52);
    case 3:
      if (H <= 0.93) return Div(10.0, 1.54 * H * H + 1.12 * H + 0.12);
      return H < 1.0 ? Div(30.0, 1.54 * H * H + 5.2 * H + 1.92)
                     : Div(60.0, 1.54 * H * H + 8.12 * H + 8.32);
    case 4: {
      const double F = std::fmax(1.0, 1.67 - (H - 1.0) * 0.1);
      return Div((135.5 * H + 1142.3) * F, 1.96 * H * H + 11.2 * H + 13.11) / 10.0;
    }
    default:
      return 0.0;
  }
}

double CoefImpacto(double H) {
  return H >= 3.0 ? 1.0 : 1.0 + Div(0.3, H);
}

Cargas CargasDadas(const Tramo& t, double Hr0) {
  Cargas q;
  q.Q = t.QDato;
  switch (t.TipoApoyo) {
    case 11:
      q.QTerraplen = t.IndCar == 1 ? 0.0 : Div(t.De * t.QDato, t.B0);
      break;
    case 12:
      q.QTerraplen = t.QDato;
      break;
    default:
      q.QTerraplen = t.Gr * Hr0;
      break;
  }
  return q;
}

Cargas CargasMarston(const Tramo& t, double H, std::int16_t ICarga, const Cargas& dadas) {
  const Suelo s = TerminosSuelo(t.Fi);
  Cargas q = dadas;
  if (t.TipoApoyo < 20) {
    CargasZanja(t, s, H, q);
  } else if (t.TipoApoyo < 30) {
    CargasZanjaTerraplenada(t, s, H, q);
  } else if (t.TipoApoyo > 30) {
    q.Q = CargaTerraplen(t, s, RazonAsentamiento(t.IAs), t.Hr1, H);
    q.QTerraplen = H * t.Gr * t.De;
  }
  if (ICarga != 0) SumaMovil(q, ICarga, H, t.De);
  ExigeFinitas(q);
  for (double* x : {&q.Q, &q.QTerraplen, &q.QMovil, &q.QTierras}) *x = Div(*x, t.De);
  return q;
}

}  // namespace zorbin
