#include "calculo/corrida/mdCalculaTramo.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

#include "calculo/armado/mdArmado.h"
#include "calculo/cargas/mdMarston.h"
#include "calculo/cargas/mdOvaliz.h"
#include "calculo/cargas/mdTablaCargas.h"
#include "calculo/postesado/mdLame.h"
#include "calculo/postesado/mdPostesado.h"
#include "core/mdUnidades.h"

namespace zorbin {

namespace {

constexpr double kPasePresion = 0.2;   // a step may pass the last pressure by this much [at]
constexpr double kMargenUltima = 0.1;  // rest for which no shorter last step is made [at]
constexpr double kDiamCorte = 1200.0;  // of the two factory test rules [mm]
constexpr double kGolpe = 1.0;         // STP over MDP, surge calculated [at]
constexpr std::int16_t kMaxCasos = std::numeric_limits<std::int16_t>::max();
constexpr std::int16_t kCuna120Captura = 2;
constexpr std::int16_t kCuna120Corrida = 3;

// The loads that the data give, and those from which a laying may start.
Cargas CargasDadas(const DatosTramo& datos) {
  const auto& t = datos.tramo;
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
      q.QTerraplen = t.Gr * RangoDe(datos).Hr0;
      break;
  }
  return q;
}

double PresionActiva(double Fi) {
  const double a = kPi / 4.0 - Fi * kPi / 360.0;
  const double tangente = Div(std::sin(a), std::cos(a));
  return tangente * tangente;
}

double PruebaFabrica(double MDP, double Di) {
  const double suma = Di * 1000.0 <= kDiamCorte ? 2.0 : 1.0;  // [at]
  return std::max(1.2 * MDP, MDP + suma);
}

double PruebaSistema(double MDP, bool golpeCalculado) {
  return golpeCalculado ? MDP + kGolpe : std::min(1.5 * MDP, MDP + 5.0);
}

// The log of a run that failed, as far as the disk takes it: the failure itself is the news.
void VuelcaLoQueQuede(Registro* registro) {
  if (registro == nullptr) return;
  try {
    registro->Vuelca();
  } catch (const ErrorEjecucion&) {
  }
}

// The next pressure of the loop; a last, shorter step lands on the final one.
std::optional<double> PresionSiguiente(double DP, const Rango& r) {
  const double siguiente = Finito(DP + r.IncDP);
  if (r.IncDP == 0.0) return std::nullopt;
  if (r.UltimaDP + kPasePresion >= siguiente) return siguiente;
  if (r.UltimaDP + r.IncDP - kMargenUltima >= siguiente) return r.UltimaDP;
  return std::nullopt;
}

// Values of a loop from `desde` to `hasta`, but for the rounding of its steps; 0 without a step.
double CuentaPasos(double desde, double hasta, double paso) {
  return paso > 0.0 && hasta >= desde ? Int((hasta - desde) / paso) + 1.0 : 0.0;
}

// How many Casos a range has, but for the rounding of its steps.
struct Cuenta {
  double alturas = 0;
  double presiones = 0;

  double Casos() const { return alturas * presiones; }
};

Cuenta CuentaDe(const Rango& r) {
  if (r.UnSoloCaso) return {1.0, 1.0};
  if (r.Hr0 > r.Hr0Final) return {};
  // The last one may be landed on.
  return {1.0 + CuentaPasos(r.Hr0, r.Hr0Final - kEngancheAltura, r.Hr0Delta),
          std::max(1.0, CuentaPasos(r.PrimeraDP, r.UltimaDP + kPasePresion, r.IncDP))};
}

const char* NombreIncPresion(const Rango& r) {
  return r.PresionesPropias ? "Prs3Tram" : "Prs3";
}
const char* NombreIncAltura(const Rango& r) {
  return r.AlturasPropias ? "Hr0Delta" : "Alt3";
}

ErrorEjecucion DemasiadosCasos(const Rango& r, double alturas, double presiones) {
  return ErrorEjecucion(CausaError::DemasiadosCasos,
                        alturas > presiones ? NombreIncAltura(r) : NombreIncPresion(r));
}

// A step that leads away from the end of its range would never end. More Casos than can be
// numbered are told before the first one, not after the last that can; twice as many are beyond
// what the rounding of the steps could make of fewer.
void ExigeRango(const Rango& r) {
  if (r.UnSoloCaso) return;
  if (r.IncDPIndefinido || r.IncDP < 0) {
    throw ErrorEjecucion(CausaError::IncrementoPresion, NombreIncPresion(r));
  }
  if (r.Hr0Delta < 0 && r.Hr0 < r.Hr0Final) {
    throw ErrorEjecucion(CausaError::IncrementoAltura, NombreIncAltura(r));
  }
  const auto cuenta = CuentaDe(r);
  if (cuenta.Casos() > 2.0 * kMaxCasos) {
    throw DemasiadosCasos(r, cuenta.alturas, cuenta.presiones);
  }
}

std::uint32_t Avisados(const std::vector<Aviso>& avisos) {
  std::uint32_t bits = 0;
  for (const auto& aviso : avisos) bits |= 1u << static_cast<unsigned>(aviso.clase);
  return bits;
}

void PonDiseno(FilaCaso& f, const ResultadoArmado& r) {
  f.HipotesisRige = r.HipotesisRige;
  f.AsInt = r.AsInt;
  f.AsExt = r.AsExt;
  f.Total = r.Total;
  f.CAMISA = r.CAMISA;
  f.FIIN = r.FIIN;
  f.FIEX = r.FIEX;
  f.NESPIN = r.NESPIN;
  f.NEXPEX = r.NEXPEX;
  f.ErrorPostesado = r.ErrorPostesado;
  f.ajustado = r.HayAjuste();
}

void PonDiseno(FilaCaso& f, const ResultadoPostesado& r) {
  f.FIIN = r.FIPRDEFI * 10.0;
  f.NESPIN = r.NESPDEFI;
  f.PPObtenida = r.PP;
  f.ErrorPostesado = r.ErrorPostesado;
}

// The working state of the formulas, at a Caso.
void PonCaso(EstadoCalculo& e, const FilaCaso& f) {
  auto& c = e.corrida;
  c.Hr = f.Hr;
  c.DP = f.DP;
  c.MDP = f.MDP;
  c.STP = f.STP;
  c.PP = c.PPNeta = f.PP;
  c.NumCaso = f.NumCaso;
  e.caso.avisos.clear();
}

void PonAltura(EstadoCalculo& e, const CargasAltura& a) {
  static_cast<Cargas&>(e.corrida) = a.cargas;
  e.corrida.Landa = a.Landa;
}

void PonUnMetro(EstadoCalculo& e, const Cargas& q) {
  auto& c = e.corrida;
  c.Q1m = q.Q;
  c.QTerraplen1m = q.QTerraplen;
  c.QTierras1m = q.QTierras;
  c.QMovil1m = q.QMovil;
}

EstadoCalculo EstadoDe(const DatosTramo& datos, const Rango& rango, Registro* registro) {
  EstadoCalculo e;
  e.obra = datos.obra;
  e.tramo = datos.tramo;
  e.tramo.Hr0Delta = rango.Hr0Delta;
  e.corrida.Hr0Actual = rango.Hr0;
  e.corrida.Hr0FinalActual = rango.Hr0Final;
  e.corrida.ajustes = datos.ajustes;
  e.corrida.registro = registro;
  return e;
}

void Disena(EstadoCalculo& e) {
  Ovalizacion(e);
  if (e.tramo.EsArmado) {
    DisenoArmado(e);
  } else {
    CalculaPostesado(e);
  }
}

class CorridaTramo {
 public:
  CorridaTramo(const DatosTramo& datos, const Rango& rango, const SigueCorrida& sigue,
               Registro* registro)
      : r_(rango), sigue_(sigue), registro_(registro), e_(EstadoDe(datos, rango, registro)) {
    x_.datos = datos;
    x_.rango = rango;
    fila_.Hr = rango.Hr0;
  }

  ResultadoTramo Corre() {
    try {
      dadas_ = CargasDadas(x_.datos);
      ExigeRango(r_);
      casos_ = CuentaDe(r_).Casos();
      RecorreAlturas();
      if (registro_ != nullptr) registro_->Vuelca();
    } catch (const ErrorEjecucion& error) {
      VuelcaLoQueQuede(registro_);
      x_.fallo = {error, fila_.NumCaso, fila_.Hr, fila_.DP, fila_.MDP, empezado_};
    }
    return std::move(x_);
  }

 private:
  const Rango& r_;
  const SigueCorrida& sigue_;
  Registro* const registro_;
  ResultadoTramo x_;
  EstadoCalculo e_;
  Cargas dadas_;
  double casos_ = 0;       // expected
  FilaCaso fila_;          // of the Caso in hand
  bool empezado_ = false;  // its pressures stand, and it is not designed

  // @return whether the run goes on
  bool Sigue() {
    if (!sigue_) return true;
    const int caso = static_cast<int>(x_.filas.size()) + 1;
    x_.cancelado = !sigue_({caso, std::max(caso, static_cast<int>(casos_))});
    return !x_.cancelado;
  }

  void RecorreAlturas() {
    std::optional<double> h = r_.Hr0;
    while (h && *h <= r_.Hr0Final) {
      Altura(*h);
      if (!RecorrePresiones()) return;
      x_.alturas.back().acabada = true;
      h = AlturaSiguiente(*h, r_.Hr0Delta, r_.Hr0Final);
    }
  }

  void Altura(double h) {
    fila_.Hr = h;
    fila_.NumCaso = 1;
    fila_.DP = r_.PrimeraDP;
    static_cast<Cargas&>(e_.corrida) = dadas_;
    if (x_.datos.tramo.IndCar == 1) {
      CargasMarston(e_, h, x_.datos.tramo.ICar);
      DivideCargas(e_);
    }
    x_.alturas.push_back({h, e_.corrida, PresionActiva(x_.datos.tramo.Fi), false});
    fila_.altura = static_cast<std::int32_t>(x_.alturas.size()) - 1;
  }

  // @return whether the run goes on
  bool RecorrePresiones() {
    std::optional<double> DP = r_.PrimeraDP;
    while (DP) {
      if (!Sigue()) return false;
      UnCaso(*DP);
      if (fila_.NumCaso == kMaxCasos) throw DemasiadosCasos(r_, 1.0, fila_.NumCaso);
      fila_.NumCaso = Suma16(fila_.NumCaso, 1);
      DP = PresionSiguiente(*DP, r_);
    }
    return true;
  }

  void Presiones(double DP) {
    fila_.DP = DP;
    fila_.MDP = Finito((DP - r_.DPIni) * r_.PendienteMDP + r_.MDPIni);
    fila_.PP = PruebaFabrica(fila_.MDP, x_.datos.tramo.Di);
    fila_.STP = PruebaSistema(fila_.MDP, x_.datos.obra.GolpeCalculado);
  }

  void UnCaso(double DP) {
    Presiones(DP);
    if (x_.filas.size() == static_cast<std::size_t>(kMaxCasos)) {
      throw DemasiadosCasos(r_, double{kMaxCasos} / fila_.NumCaso, fila_.NumCaso);
    }
    empezado_ = true;
    e_.corrida.vueltas.EmpiezaCaso();
    if (!x_.hayCabecera) Cabecera();
    PonCaso(e_, fila_);
    PonAltura(e_, x_.alturas.back());
    Disena(e_);
    Anota();
    empezado_ = false;
  }

  void Anota() {
    FilaCaso f = fila_;
    if (x_.datos.tramo.EsArmado) {
      PonDiseno(f, e_.caso.armado);
    } else {
      PonDiseno(f, e_.caso.postesado);
    }
    f.avisos = Avisados(e_.caso.avisos);
    x_.filas.push_back(f);
  }

  // What the heading of the Tramo shows.
  void Cabecera() {
    if (x_.datos.tramo.IndCar == 1) {
      TablaCargas(e_);
      x_.TablaCargas = std::move(e_.corrida.TablaCargas);
    }
    CargasUnMetro(e_);
    const auto& c = e_.corrida;
    x_.unMetro.Q = c.Q1m;
    x_.unMetro.QTerraplen = c.QTerraplen1m;
    x_.unMetro.QTierras = c.QTierras1m;
    x_.unMetro.QMovil = c.QMovil1m;
    if (!x_.datos.tramo.EsArmado) {
      x_.radios = Radios(x_.datos.tramo);
      x_.materiales = Materiales(x_.datos.tramo);
    }
    x_.hayCabecera = true;
  }
};

}  // namespace

DatosTramo DatosDeCalculo(const Obra& obra, const Tramo& tramo, std::vector<EntradaAjuste> ajustes,
                          bool sinAjustes) {
  EstadoCalculo e;
  e.obra = obra;
  e.tramo = tramo;
  PreparaUnidades(e, "ParaCalculo");
  auto& t = e.tramo;
  t.Delca = t.Delca / 10.0;
  if (t.TipoCuna == kCuna120Captura) t.TipoCuna = kCuna120Corrida;
  t.Esp = t.Esp / 100.0;
  t.Reci = t.Reci / 100.0;
  t.Rece = t.Rece / 100.0;
  return {e.obra, e.tramo, std::move(ajustes), sinAjustes};
}

Rango RangoDe(const DatosTramo& datos) {
  const auto& o = datos.obra;
  const auto& t = datos.tramo;
  Rango r;
  r.AlturasPropias = t.Hr0Tramo > 0 || t.Hr0Final > 0;
  r.Hr0 = r.AlturasPropias ? t.Hr0Tramo : o.Alt1;
  r.Hr0Final = r.AlturasPropias ? t.Hr0Final : o.Alt2;
  r.Hr0Delta = r.AlturasPropias ? t.Hr0Delta : o.Alt3;
  const bool propias = t.TieneDPPropia() || t.PrsM1Tram > 0 || t.PrsM2Tram > 0;
  r.DPIni = propias ? t.Prs1Tram : o.Prs1;
  r.DPFin = propias ? t.Prs2Tram : o.Prs2;
  r.MDPIni = propias ? t.PrsM1Tram : o.PrsM1;
  r.MDPFin = propias ? t.PrsM2Tram : o.PrsM2;
  const double ancho = r.DPFin - r.DPIni;
  const double pendiente = ancho > 0 ? (r.MDPFin - r.MDPIni) / ancho : 1.0;
  r.PendienteMDP = std::isfinite(pendiente) ? pendiente : 0.0;
  // An own MDP alone gives the slope, and the loop still goes through the Obra's pressures.
  r.PresionesPropias = t.TieneDPPropia();
  r.PrimeraDP = r.PresionesPropias ? t.Prs1Tram : o.Prs1;
  r.UltimaDP = r.PresionesPropias ? t.Prs2Tram : o.Prs2;
  const double paso = (r.PresionesPropias ? t.Prs3Tram : o.Prs3) / r.PendienteMDP;
  r.IncDPIndefinido = !std::isfinite(paso);
  r.IncDP = r.IncDPIndefinido || paso == 0.0 ? 0.0 : paso;
  return r;
}

Rango RangoDeUnCaso(const DatosTramo& datos, double Hr, double DP) {
  Rango r = RangoDe(datos);
  r.Hr0 = r.Hr0Final = Hr;
  r.PrimeraDP = r.UltimaDP = DP;
  r.IncDP = 0;
  r.IncDPIndefinido = false;
  r.UnSoloCaso = true;
  return r;
}

ResultadoTramo CalculaTramo(const DatosTramo& datos, const Rango& rango, const SigueCorrida& sigue,
                            Registro* registro) {
  return CorridaTramo(datos, rango, sigue, registro).Corre();
}

ResultadoCaso CasoEntero(const ResultadoTramo& resultado, const FilaCaso& fila) {
  EstadoCalculo e = EstadoDe(resultado.datos, resultado.rango, nullptr);
  PonUnMetro(e, resultado.unMetro);
  PonCaso(e, fila);
  PonAltura(e, resultado.Altura(fila));
  Disena(e);
  ResultadoCaso caso{e.caso.MHip, e.caso.NHip, std::move(e.caso.avisos), {}};
  if (e.tramo.EsArmado) {
    caso.diseno = e.caso.armado;
  } else {
    caso.diseno = e.caso.postesado;
  }
  return caso;
}

}  // namespace zorbin
