#include "calculo/hidraulica/mdHidraulica.h"

#include <cmath>
#include <numbers>

namespace zorbin {

namespace {

constexpr double kG = 9.8;  // [m/s2]
constexpr double k32g = 32.0 * kG;
constexpr double k2g = 2.0 * kG;
constexpr double k1255Visc = 1.255 * kViscosidad;
constexpr double k251Visc = 2.51 * kViscosidad;
constexpr double kInicioLanda = 2.0 * kG * (0.011 * 0.011);  // Manning with n = 0.011
static_assert(k32g == 313.6 && k2g == 19.6 && k1255Visc == 1.6440499999999997e-06 &&
              k251Visc == 3.2880999999999995e-06 && kInicioLanda == 0.0023715999999999997);

constexpr double kReLaminar = 2400.0;
constexpr double kReCritico = 4000.0;
constexpr double kReLisa = 23.0;     // times D / ks
constexpr double kReRugosa = 560.0;  // times D / ks

constexpr int kVueltasFriccion = 2000;
constexpr int kVueltasHolgura = 15;  // from here on a step of 10 % will do

constexpr int kVueltasColebrook = 100;
constexpr double kTolColebrook = 1e-14;                     // of 1/sqrt(f) [-]
constexpr double k2PorLog10e = 2.0 * std::numbers::log10e;  // derivative of 2 log10(x), times x

constexpr double kHazen = 0.849;
constexpr double kExpV = 0.54;
constexpr double kExpR = 0.63;

double Log10(double x) {
  return std::log(x) / std::log(10.0);
}

double Potencia(double base, double exponente) {
  return Finito(std::pow(base, exponente));
}

// -log10 of the sum of the terms of roughness and viscosity, which must stay below 1: from there on
// the velocity would turn its sign. The larger term is the one at fault.
double MenosLogDeSuma(double rugosa, double viscosa) {
  const double x = rugosa + viscosa;
  if (!(x > 0.0 && x < 1.0)) {
    throw ErrorHidraulico(rugosa >= 1.0 || rugosa >= viscosa ? FaltaHidraulica::RugosidadExcesiva
                                                             : FaltaHidraulica::DatoInsuficiente);
  }
  return -Log10(x);
}

// 1 / (factor log10(x))^2 for an x that must be above 1.
double InversaLogCuadrado(double factor, double x) {
  if (!(x > 1.0)) throw ErrorHidraulico(FaltaHidraulica::RugosidadExcesiva);
  const double r = factor * Log10(x);
  return Div(1.0, r * r);
}

double Reynolds(double D, double V) {
  return D * V / kViscosidad;
}

bool EnBandaCritica(double Re) {
  return Re > kReLaminar && Re <= kReCritico;
}

double CwhDe(double Cwh, double DiamM) {
  return Cwh != 0.0 ? Cwh : DiamM * 6.65 + 139.3;
}

void ExigeNoNegativa(double rugosidad) {
  if (!(rugosidad >= 0.0)) throw ErrorHidraulico(FaltaHidraulica::RugosidadNegativa);
}

void ExigePositivo(double dato) {
  if (!(dato > 0.0)) throw ErrorHidraulico(FaltaHidraulica::DatoInsuficiente);
}

void ExigeFinita(const FilaHidraulica& f) {
  Finito(f.VLlena);
  for (const auto* x :
       {&f.QLlena, &f.VParcial, &f.QParcial, &f.JLlena, &f.JParcial, &f.ReLlena, &f.Cwh}) {
    if (x->has_value()) Finito(**x);
  }
}

// Runs `calcula(diametro, fila)` over the series.
template <class Calcula>
ResultadoHidraulico Serie(MetodoHidraulico metodo, DatoHidraulico tipoDato, double dato,
                          double rugosidad, Calcula calcula) {
  ExigePositivo(dato);
  ExigeNoNegativa(rugosidad);
  ResultadoHidraulico r{metodo, tipoDato, dato, rugosidad, {}};
  const auto tabla = CargaDiametros();
  for (std::size_t i = 0; i < r.filas.size(); ++i) {
    FilaHidraulica& fila = r.filas[i];
    fila.DiamMM = tabla.v[i].DiamMM;
    calcula(tabla.v[i], fila);
    fila.critico = fila.ReLlena.has_value() && EnBandaCritica(*fila.ReLlena);
    ExigeFinita(fila);
  }
  return r;
}

}  // namespace

BandaReynolds BandaDeReynolds(double Re, double ks, double D) {
  if (Re <= kReLaminar) return BandaReynolds::Laminar;
  if (EnBandaCritica(Re)) return BandaReynolds::Critica;
  if (Re <= Div(D * kReLisa, ks)) return BandaReynolds::Lisa;
  if (Re <= Div(D * kReRugosa, ks)) return BandaReynolds::Transicion;
  return std::isnan(Re) ? BandaReynolds::Ninguna : BandaReynolds::Rugosa;
}

double FactorFriccion(double Re, double ks, double D) {
  switch (BandaDeReynolds(Re, ks, D)) {
    case BandaReynolds::Laminar:
      return Div(64.0, Re);
    case BandaReynolds::Critica:
      return 1.0;
    case BandaReynolds::Lisa:
      return Div(1.0, std::pow(100.0 * Re, 0.25));
    case BandaReynolds::Transicion:
      return InversaLogCuadrado(1.8, Div(Re, Div(ks * Re / 10.0, D) + 7.0));
    case BandaReynolds::Rugosa:
      return InversaLogCuadrado(2.0, Div(3.7 * D, ks));
    case BandaReynolds::Ninguna:
      break;
  }
  return -1.0;
}

double VelocidadPrandtl(double R, double J, double ks) {
  const double W = Finito(std::sqrt(k32g * R * J));
  const double rugosa = Div(ks / 14.8, R);
  return W * MenosLogDeSuma(rugosa, Div(Div(k1255Visc, R), W));
}

double VelocidadHazen(double R, double J, double Cwh) {
  ExigeNoNegativa(Cwh);
  return Finito(std::pow(J, kExpV) * std::pow(R, kExpR) * kHazen * Cwh);
}

double PendienteHazen(double R, double V, double Cwh) {
  ExigeNoNegativa(Cwh);
  return Finito(Potencia(Cwh * kHazen, -1.0 / kExpV) * Potencia(V, 1.0 / kExpV) *
                Potencia(R, -kExpR / kExpV));
}

double Calcula_CLANDA(const Diametro& d, double VLlena, double ks) {
  const double L0 = Div(d.DiamM * kInicioLanda, std::pow(d.RhLlena, 4.0 / 3.0));
  const double rugosa = Div(ks / 3.71, d.DiamM);
  const double viscosa = Div(Div(Div(k251Visc, VLlena), d.DiamM), std::sqrt(L0));
  const double T = 2.0 * MenosLogDeSuma(rugosa, viscosa);
  return Div(Div(1.0, T), T);
}

double FactorColebrook(double Re, double ks, double D) {
  ExigeNoNegativa(ks);
  const double rugosa = Div(ks / 3.7, D);
  const double viscosa = Div(2.51, Re);
  const auto inversa = [=](double x) { return 2.0 * MenosLogDeSuma(rugosa, viscosa * x); };
  // x = 1/sqrt(f). The right-hand side falls with x: this start is below the root, and from below
  // the tangents of x - inversa(x), which is concave, climb to it without passing it.
  double x = inversa(std::fmax(1.0, inversa(1.0)));
  for (int vuelta = 0; vuelta < kVueltasColebrook; ++vuelta) {
    const double pendiente = 1.0 + k2PorLog10e * viscosa / (rugosa + viscosa * x);
    const double paso = (inversa(x) - x) / pendiente;
    x += paso;
    if (std::fabs(paso) <= kTolColebrook * x) return Div(1.0, x * x);
  }
  throw ErrorEjecucion(CausaError::SinConvergencia, "FactorColebrook");
}

double PendienteColebrook(double D, double V, double ks) {
  return Finito(Div(FactorColebrook(Reynolds(D, V), ks, D) * V * V, D) / k2g);
}

double PendienteColebrookCaudal(double D, double Q, double ks) {
  return PendienteColebrook(D, Div(Q, std::numbers::pi * D * D / 4.0), ks);
}

Friccion CalculaF(double J, double ks, double D, double V0) {
  Friccion r;
  for (int vuelta = 0; vuelta < kVueltasFriccion; ++vuelta) {
    r.Re = Finito(Reynolds(D, V0));
    r.F = FactorFriccion(r.Re, ks, D);
    r.V = V0;
    if (BandaDeReynolds(r.Re, ks, D) == BandaReynolds::Critica) return r;
    r.V = Finito(std::sqrt(Div(D * k2g * J, r.F)));
    const double paso = std::fabs(r.V - V0);
    if (paso <= r.V / 100.0 || (paso <= r.V / 10.0 && vuelta > kVueltasHolgura)) {
      r.Re = Reynolds(D, r.V);
      return r;
    }
    V0 = r.V;
  }
  return r;
}

Friccion CalculaF_P(double ks, double D, double VLlena) {
  const double Re = Reynolds(D, VLlena);
  return {VLlena, Re, FactorFriccion(Re, ks, D)};
}

namespace {

// Beside the slope of an approximation, which stands where this one does not.
std::optional<double> PendienteTurbulenta(double D, double V, double ks) {
  try {
    if (!(Reynolds(D, V) > kReCritico)) return std::nullopt;
    return PendienteColebrook(D, V, ks);
  } catch (const ErrorHidraulico&) {
    return std::nullopt;
  } catch (const ErrorEjecucion&) {
    return std::nullopt;
  }
}

}  // namespace

ResultadoHidraulico PrColeBrook_Pendiente(double J, double Rugosidad) {
  const double ks = Rugosidad / 1000.0;
  return Serie(MetodoHidraulico::PrandtlColebrook, DatoHidraulico::Pendiente, J, Rugosidad,
               [=](const Diametro& d, FilaHidraulica& f) {
                 f.VParcial = VelocidadPrandtl(d.RhParcial, J, ks);
                 f.QParcial = d.AreaParcial * *f.VParcial;
                 f.VLlena = VelocidadPrandtl(d.RhLlena, J, ks);
                 f.QLlena = d.AreaLlena * f.VLlena;
               });
}

ResultadoHidraulico PrColeBrook_Caudal(double Q, double Rugosidad) {
  const double ks = Rugosidad / 1000.0;
  return Serie(MetodoHidraulico::PrandtlColebrook, DatoHidraulico::Caudal, Q, Rugosidad,
               [=](const Diametro& d, FilaHidraulica& f) {
                 f.VLlena = Div(Q, d.AreaLlena);
                 const double Landa = Calcula_CLANDA(d, f.VLlena, ks);
                 f.JLlena = Div(Potencia(f.VLlena, 2.0) * Landa, d.DiamM) / 2.0 / kG;
                 f.JExacta = PendienteTurbulenta(d.DiamM, f.VLlena, ks);
               });
}

ResultadoHidraulico DarcyWeiss_Pendiente(double J, double Rugosidad) {
  const double ks = Rugosidad / 1000.0;
  return Serie(MetodoHidraulico::DarcyWeissbach, DatoHidraulico::Pendiente, J, Rugosidad,
               [=](const Diametro& d, FilaHidraulica& f) {
                 const double V0 = VelocidadPrandtl(d.RhLlena, J, ks);
                 const Friccion r = CalculaF(J, ks, d.DiamM, V0);
                 f.VLlena = r.V;
                 f.QLlena = d.AreaLlena * r.V;
                 f.ReLlena = r.Re;
               });
}

ResultadoHidraulico DarcyWeiss_Caudal(double Q, double Rugosidad) {
  const double ks = Rugosidad / 1000.0;
  return Serie(MetodoHidraulico::DarcyWeissbach, DatoHidraulico::Caudal, Q, Rugosidad,
               [=](const Diametro& d, FilaHidraulica& f) {
                 f.VLlena = Div(Q, d.AreaLlena);
                 const Friccion r = CalculaF_P(ks, d.DiamM, f.VLlena);
                 const bool hay = r.F != -1.0;
                 f.JLlena = hay ? Div(r.F * f.VLlena * f.VLlena / 2.0 / kG, d.DiamM) : -1.0;
                 f.ReLlena = hay ? r.Re : -1.0;
                 f.JExacta = PendienteTurbulenta(d.DiamM, f.VLlena, ks);
               });
}

ResultadoHidraulico Hazen_Pendiente(double J, double Cwh) {
  return Serie(MetodoHidraulico::HazenWilliams, DatoHidraulico::Pendiente, J, Cwh,
               [=](const Diametro& d, FilaHidraulica& f) {
                 f.Cwh = CwhDe(Cwh, d.DiamM);
                 f.VLlena = VelocidadHazen(d.RhLlena, J, *f.Cwh);
                 f.VParcial = VelocidadHazen(d.RhParcial, J, *f.Cwh);
                 f.QLlena = d.AreaLlena * f.VLlena;
                 f.QParcial = d.AreaParcial * *f.VParcial;
               });
}

ResultadoHidraulico Hazen_Caudal(double Q, double Cwh) {
  return Serie(MetodoHidraulico::HazenWilliams, DatoHidraulico::Caudal, Q, Cwh,
               [=](const Diametro& d, FilaHidraulica& f) {
                 f.Cwh = CwhDe(Cwh, d.DiamM);
                 f.VLlena = Div(Q, d.AreaLlena);
                 f.VParcial = Div(Q, d.AreaParcial);
                 f.JLlena = PendienteHazen(d.RhLlena, f.VLlena, *f.Cwh);
                 f.JParcial = PendienteHazen(d.RhParcial, *f.VParcial, *f.Cwh);
               });
}

ResultadoHidraulico CalculaHidraulica(MetodoHidraulico metodo, DatoHidraulico tipoDato, double dato,
                                      double rugosidad) {
  const bool caudal = tipoDato == DatoHidraulico::Caudal;
  switch (metodo) {
    case MetodoHidraulico::PrandtlColebrook:
      return caudal ? PrColeBrook_Caudal(dato, rugosidad) : PrColeBrook_Pendiente(dato, rugosidad);
    case MetodoHidraulico::HazenWilliams:
      return caudal ? Hazen_Caudal(dato, rugosidad) : Hazen_Pendiente(dato, rugosidad);
    case MetodoHidraulico::DarcyWeissbach:
      break;
  }
  return caudal ? DarcyWeiss_Caudal(dato, rugosidad) : DarcyWeiss_Pendiente(dato, rugosidad);
}

}  // namespace zorbin
