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

Suelo TerminosSuelo(double Fi, Rastro* rastro) {
  const double t = TanGrados(45.0 - Fi / 2.0);
  const double Ka = t * t;
  const double Mu = TanGrados(Fi);
  const double M2 = (Ka + Ka) * Mu;
  if (rastro) {
    rastro->Anota(Formula::Ka, {Fi}, Ka);
    rastro->Anota(Formula::Mu, {Fi}, Mu);
    rastro->Anota(Formula::M2, {Ka, Mu}, M2);
  }
  return {Ka, Mu, M2};
}

// The load that governs of the laying's own one (q.Q so far) and the embankment load Qt.
void Adopta(Cargas& q, double Qt, double prisma, Rastro* rastro) {
  q.TerraplenRige = q.Q >= Qt;
  if (rastro) {
    rastro->Anota(q.TerraplenRige ? Formula::RigeTerraplen : Formula::RigePropia, {q.Q, Qt});
  }
  if (q.TerraplenRige) {
    q.QTierras = q.Q;
    q.Q = Qt;
    q.QTerraplen = prisma;
  } else {
    q.QTierras = Qt;
  }
}

double CargaTerraplen(const Tramo& t, const Suelo& s, double r, double Hp, double H,
                      Rastro* rastro) {
  const double C = CoefTerraplen(s.M2, r, Hp, t.De, H, rastro);
  const double q = C * t.Gr * H * t.De;
  if (rastro) rastro->Anota(Formula::QTerraplen, {C, t.Gr, H, t.De}, q);
  return q;
}

void SumaMovil(Cargas& q, std::int16_t ICarga, double H, double De, Rastro* rastro) {
  q.Impacto = CoefImpacto(H, rastro);
  const double presion = PresionMovil(ICarga, H, rastro);
  const double movil = presion * De * q.Impacto;
  const double antes = q.Q;
  const double QHantes = q.QTerraplen;
  q.Q = q.Q + movil;
  q.QTerraplen = q.QTerraplen + movil;
  if (rastro) {
    rastro->Anota(Formula::QMovil, {presion, De, q.Impacto}, movil);
    rastro->Anota(Formula::QConMovil, {antes, movil}, q.Q);
    rastro->Anota(Formula::QHConMovil, {QHantes, movil}, q.QTerraplen);
    rastro->Anota(Formula::QmSuperficie, {q.Q, antes, De}, Div(q.Q - antes, De));
  }
  q.QMovil = q.Q - antes;
}

// The load of the laying itself, by the coefficient C on the width of the trench or the diameter.
void CargaPropia(const Tramo& t, double C, double H, Formula enZanja, Formula enTubo,
                 Formula segunda, Cargas& q, Rastro* rastro) {
  const bool sinCompactar = t.TipoApoyo == 11 || t.TipoApoyo == 21;
  const bool compactado = t.TipoApoyo == 12 || t.TipoApoyo == 22;
  if (sinCompactar) q.Q = C * t.Gr * H * t.B0;
  if (compactado) q.Q = C * t.Gr * H * t.De;
  q.QTerraplen = C * t.Gr * H * t.De;
  if (rastro == nullptr) return;
  if (sinCompactar) rastro->Anota(enZanja, {C, t.Gr, H, t.B0}, q.Q);
  if (compactado) rastro->Anota(enTubo, {C, t.Gr, H, t.De}, q.Q);
  rastro->Anota(segunda, {C, t.Gr, H, t.De}, q.QTerraplen);
}

double Prisma(const Tramo& t, double H) {
  return H * t.Gr * t.De;
}

void AnotaPrisma(const Tramo& t, double H, const Cargas& q, Rastro* rastro) {
  if (rastro && q.TerraplenRige) rastro->Anota(Formula::QHPrisma, {H, t.Gr, t.De}, q.QTerraplen);
}

void CargasZanja(const Tramo& t, const Suelo& s, double H, Cargas& q, Rastro* rastro) {
  const double C = CoefZanja(CoefRelleno(t.TipoRelleno), H, t.B0, rastro);
  CargaPropia(t, C, H, Formula::QZanjaB, Formula::QZanjaD, Formula::QHZanja, q, rastro);
  const double terraplen = CargaTerraplen(t, s, kRazonComparacion, t.De, H, rastro);
  Adopta(q, terraplen, Prisma(t, H), rastro);
  AnotaPrisma(t, H, q, rastro);
}

void CargasZanjaTerraplenada(const Tramo& t, const Suelo& s, double H, Cargas& q, Rastro* rastro) {
  const double C = CoefZanjaTerraplenada(s.Ka, s.Mu, t.Hr1, t.B0, H, rastro);
  CargaPropia(t, C, H, Formula::QNegativaB, Formula::QNegativaD, Formula::QHNegativa, q, rastro);
  const double terraplen = CargaTerraplen(t, s, kRazonComparacion, t.Hr1, H, rastro);
  Adopta(q, terraplen, Prisma(t, H), rastro);
  AnotaPrisma(t, H, q, rastro);
}

void AnotaAsentamiento(double Hr1, double B, double p, double Rs, double M2, double c,
                       Rastro& rastro) {
  rastro.Anota(Formula::PNegativa, {Hr1, B}, p);
  if (p < 0.5) {
    rastro.Anota(Formula::RsMenor, {}, Rs);
  } else if (p < 1.5) {
    rastro.Anota(Formula::RsRecta, {p}, Rs);
  } else if (p < 2.0) {
    rastro.Anota(Formula::RsResta, {p}, Rs);
  } else {
    rastro.Anota(Formula::RsMayor, {}, Rs);
  }
  rastro.Anota(Formula::CNegativa, {M2, Rs, p}, c);
}

void ExigeFinitas(const Cargas& q) {
  for (const double x : {q.Q, q.QTerraplen, q.QTierras, q.QMovil, q.Impacto}) Finito(x);
}

}  // namespace

double TanGrados(double grados) {
  const double r = grados * kGrado;
  return Div(std::sin(r), std::cos(r));
}

double EmpujeActivo(double Fi, Rastro* rastro) {
  const double a = kPi / 4.0 - Fi * kPi / 360.0;
  const double tangente = Div(std::sin(a), std::cos(a));
  const double landa = tangente * tangente;
  if (rastro) rastro->Anota(Formula::Landa, {Fi}, landa);
  return landa;
}

double ResuelveEcua(double c, double x0, Rastro* rastro) {
  double x = x0;
  for (int vuelta = 0; vuelta < kMaxVueltas; ++vuelta) {
    const double ex = Exp(x);
    const double nueva = x - Div(ex - x - c, ex - 1.0);
    if (std::fabs(nueva - x) < kTolNewton) {
      if (rastro) rastro->Anota(Formula::Newton, {x, c}, nueva);
      return nueva;
    }
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

double CoefZanja(double Kmu, double H, double B, Rastro* rastro) {
  const double x = Div(2.0 * Kmu * H, B);
  const double C = Div(1.0 - Exp(-x), x);
  if (rastro) rastro->Anota(Formula::CZanja, {Kmu, H, B}, C);
  return C;
}

double CoefTerraplen(double M2, double r, double Hp, double De, double H, Rastro* rastro) {
  const double c = M2 * r * Div(Hp, De) + 1.0;
  if (rastro) rastro->Anota(Formula::CIgual, {M2, r, Hp, De}, c);
  const double x = ResuelveEcua(c, Div(M2 * Hp, De), rastro);
  const double He = Div(x * De, M2);  // plane of equal settlement
  if (rastro) {
    rastro->Anota(Formula::He, {x, De, M2}, He);
    rastro->Anota(H >= He ? Formula::EsIncompleta : Formula::EsCompleta, {H, He});
  }
  if (H >= He) {
    const double ex = Exp(x);
    const double C = Div(ex - 1.0, Div(M2 * H, De)) + (1.0 - Div(He, H)) * ex;
    if (rastro) rastro->Anota(Formula::CtIncompleta, {x, M2, H, De, He}, C);
    return C;
  }
  const double y = Div(x * H, He);
  const double C = Div(Exp(y) - 1.0, y);
  if (rastro) {
    rastro->Anota(Formula::YCompleta, {x, H, He}, y);
    rastro->Anota(Formula::CtCompleta, {y}, C);
  }
  return C;
}

double CoefZanjaTerraplenada(double Ka, double Mu, double Hr1, double B, double H, Rastro* rastro) {
  const double M2 = (Ka + Ka) * Mu;
  const double menosM2 = (Ka * (-2.0)) * Mu;
  const double p = Div(Hr1, B);
  const double Rs = CoefAsentamiento(p);
  const double c = std::fabs(Rs * p) * M2 + 1.0;
  if (rastro) AnotaAsentamiento(Hr1, B, p, Rs, M2, c, *rastro);
  const double x = ResuelveEcua(c, Div(menosM2 * Hr1, B), rastro);
  const double He = Div(x * B, menosM2);
  if (rastro) {
    rastro->Anota(Formula::HeNegativa, {x, B, M2}, He);
    rastro->Anota(H >= He ? Formula::EsIncompleta : Formula::EsCompleta, {H, He});
  }
  if (H >= He) {
    const double ex = Exp(x);
    const double C = Div(1.0 - ex, Div(M2 * H, B)) + (1.0 - Div(He, H)) * ex;
    if (rastro) rastro->Anota(Formula::CnIncompleta, {x, M2, H, B, He}, C);
    return C;
  }
  const double y = Div(x * H, He);
  const double C = Div(1.0 - Exp(y), -y);
  if (rastro) {
    rastro->Anota(Formula::YCompleta, {x, H, He}, y);
    rastro->Anota(Formula::CnCompleta, {y}, C);
  }
  return C;
}

double PresionMovil(std::int16_t ICarga, double H, Rastro* rastro) {
  const auto anota = [&](Formula formula, double P) {
    if (rastro) rastro->Anota(formula, {H}, P);
    return P;
  };
  switch (ICarga) {
    case 1:
      return H <= 1.21 ? anota(Formula::Eje7Cerca, Div(3.5, 1.54 * H * H + 0.7 * H + 0.06))
                       : anota(Formula::Eje7Lejos, Div(7.0, 1.54 * H * H + 3.5 * H + 0.46));
    case 2:
      return H < 1.0 ? anota(Formula::Eje13Cerca, Div(6.5, 1.54 * H * H + 1.12 * H + 0.12))
                     : anota(Formula::Eje13Lejos, Div(13.0, 1.54 * H * H + 3.92 * H + 0.52));
    case 3:
      if (H <= 0.93) {
        return anota(Formula::CarroCerca, Div(10.0, 1.54 * H * H + 1.12 * H + 0.12));
      }
      return H < 1.0 ? anota(Formula::CarroMedio, Div(30.0, 1.54 * H * H + 5.2 * H + 1.92))
                     : anota(Formula::CarroLejos, Div(60.0, 1.54 * H * H + 8.12 * H + 8.32));
    case 4: {
      const double F = std::fmax(1.0, 1.67 - (H - 1.0) * 0.1);
      const double P = Div((135.5 * H + 1142.3) * F, 1.96 * H * H + 11.2 * H + 13.11) / 10.0;
      anota(Formula::FTren, F);
      if (rastro) rastro->Anota(Formula::Tren, {H, F}, P);
      return P;
    }
    default:
      return 0.0;
  }
}

double CoefImpacto(double H, Rastro* rastro) {
  const double I = H >= 3.0 ? 1.0 : 1.0 + Div(0.3, H);
  if (rastro && H >= 3.0) rastro->Anota(Formula::SinImpacto, {}, I);
  if (rastro && H < 3.0) rastro->Anota(Formula::Impacto, {H}, I);
  return I;
}

Cargas CargasDadas(const Tramo& t, double Hr0, Rastro* rastro) {
  Cargas q;
  q.Q = t.QDato;
  if (rastro) rastro->Anota(Formula::QDada, {t.QDato}, q.Q);
  switch (t.TipoApoyo) {
    case 11:
      q.QTerraplen = t.IndCar == 1 ? 0.0 : Div(t.De * t.QDato, t.B0);
      if (rastro) rastro->Anota(Formula::QHDadaZanja, {t.De, t.QDato, t.B0}, q.QTerraplen);
      break;
    case 12:
      q.QTerraplen = t.QDato;
      if (rastro) rastro->Anota(Formula::QHDada, {t.QDato}, q.QTerraplen);
      break;
    default:
      q.QTerraplen = t.Gr * Hr0;
      if (rastro) rastro->Anota(Formula::QHDadaPrisma, {t.Gr, Hr0}, q.QTerraplen);
      break;
  }
  return q;
}

Cargas CargasMarston(const Tramo& t, double H, std::int16_t ICarga, const Cargas& dadas,
                     Rastro* rastro) {
  const Suelo s = TerminosSuelo(t.Fi, rastro);
  Cargas q = dadas;
  if (t.TipoApoyo < 20) {
    CargasZanja(t, s, H, q, rastro);
  } else if (t.TipoApoyo < 30) {
    CargasZanjaTerraplenada(t, s, H, q, rastro);
  } else if (t.TipoApoyo > 30) {
    q.Q = CargaTerraplen(t, s, RazonAsentamiento(t.IAs), t.Hr1, H, rastro);
    q.QTerraplen = H * t.Gr * t.De;
    if (rastro) rastro->Anota(Formula::QHPrisma, {H, t.Gr, t.De}, q.QTerraplen);
  }
  if (ICarga != 0) SumaMovil(q, ICarga, H, t.De, rastro);
  ExigeFinitas(q);
  if (rastro) {
    rastro->Anota(Formula::QSuperficie, {q.Q, t.De}, Div(q.Q, t.De));
    rastro->Anota(Formula::QHSuperficie, {q.QTerraplen, t.De}, Div(q.QTerraplen, t.De));
  }
  for (double* x : {&q.Q, &q.QTerraplen, &q.QMovil, &q.QTierras}) *x = Div(*x, t.De);
  return q;
}

}  // namespace zorbin
