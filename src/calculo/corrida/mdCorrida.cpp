#include "calculo/corrida/mdCorrida.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "calculo/armado/mdArmado.h"
#include "calculo/cargas/mdMarston.h"
#include "calculo/cargas/mdOvaliz.h"
#include "calculo/cargas/mdTablaCargas.h"
#include "calculo/postesado/mdPostesado.h"
#include "core/mdUnidades.h"

namespace zorbin {

namespace {

constexpr double kDado = -0.5;         // a forced value above it counts as given
constexpr double kPasePresion = 0.2;   // a step may pass the last pressure by this much [at]
constexpr double kMargenUltima = 0.1;  // rest for which no shorter last step is made [at]
constexpr double kDiamCorte = 1200.0;  // of the two factory test rules [mm]
constexpr double kGolpe = 1.0;         // STP over MDP, surge calculated [at]
constexpr std::int16_t kMaxCasos = std::numeric_limits<std::int16_t>::max();
constexpr std::int16_t kCuna120Captura = 2;
constexpr std::int16_t kCuna120Corrida = 3;

// The captured data on loan to a run: scaled while it lives, back on success, and exactly as they
// were on entry when the run fails.
class EscalaDeCorrida {
 public:
  explicit EscalaDeCorrida(EstadoCalculo& e) : e_(e), obra_(e.obra), tramo_(e.tramo) {
    auto& t = e.tramo;
    t.Delca = t.Delca / 10.0;
    if (t.TipoCuna == kCuna120Captura) t.TipoCuna = kCuna120Corrida;
    t.Esp = t.Esp / 100.0;
    t.Reci = t.Reci / 100.0;
    t.Rece = t.Rece / 100.0;
  }
  ~EscalaDeCorrida() {
    if (terminada_) return;
    std::swap(e_.obra, obra_);
    std::swap(e_.tramo, tramo_);
  }
  EscalaDeCorrida(const EscalaDeCorrida&) = delete;
  EscalaDeCorrida& operator=(const EscalaDeCorrida&) = delete;

  void Termina() {
    auto& t = e_.tramo;
    t.Delca = tramo_.Delca;
    t.TipoCuna = tramo_.TipoCuna;
    t.Esp = tramo_.Esp;
    t.Reci = tramo_.Reci;
    t.Rece = tramo_.Rece;
    EligeAlturas(e_);
    terminada_ = true;
  }

 private:
  EstadoCalculo& e_;
  Obra obra_;
  Tramo tramo_;
  bool terminada_ = false;
};

// The load fields of a given load, and the start of those that a laying may leave untouched.
void PreparaCargas(EstadoCalculo& e) {
  const auto& t = e.tramo;
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
      q.QTerraplen = t.Gr * e.corrida.Hr0Actual;
      break;
  }
  static_cast<Cargas&>(e.corrida) = q;
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

// Values of a loop from `desde` to `hasta`, but for the rounding of its steps; 0 without a step.
double CuentaPasos(double desde, double hasta, double paso) {
  return paso > 0.0 && hasta >= desde ? Int((hasta - desde) / paso) + 1.0 : 0.0;
}

class CorridaTramo {
 public:
  CorridaTramo(EstadoCalculo& e, double hr, double prs, Oyentes oyentes)
      : e_(e),
        c_(e.corrida),
        hr_(hr),
        prs_(prs),
        forzada_(hr > kDado || prs > kDado),
        oyentes_(oyentes) {}

  void Corre() {
    c_.CuentaCasos = 0;
    c_.NumCaso = 0;
    c_.vueltas = {};
    e_.caso = {};
    EligeAlturas(e_);
    EligePresiones(e_);
    PreparaCargas(e_);
    if (forzada_) {
      c_.Hr0Actual = c_.Hr0FinalActual = hr_;
    } else {
      ExigeIncrementos();
      ExigeCasosContables();
    }
    RecorreAlturas();
    Avisa(&OyenteCorrida::FinCorrida);
  }

 private:
  EstadoCalculo& e_;
  Corrida& c_;
  const double hr_;
  const double prs_;
  const bool forzada_;
  const Oyentes oyentes_;

  void Avisa(void (OyenteCorrida::*paso)(const EstadoCalculo&)) {
    for (auto* o : oyentes_) (o->*paso)(e_);
  }

  const char* NombreIncPresion() const { return e_.tramo.TieneDPPropia() ? "Prs3Tram" : "Prs3"; }
  const char* NombreIncAltura() const {
    return e_.tramo.Hr0Tramo > 0 || e_.tramo.Hr0Final > 0 ? "Hr0Delta" : "Alt3";
  }

  // A step that leads away from the end of its range would never end.
  void ExigeIncrementos() const {
    const auto& t = e_.tramo;
    if (c_.IncDPIndefinido || c_.IncDP < 0) {
      throw ErrorEjecucion(CausaError::IncrementoPresion, NombreIncPresion());
    }
    if (t.Hr0Delta < 0 && c_.Hr0Actual < c_.Hr0FinalActual) {
      throw ErrorEjecucion(CausaError::IncrementoAltura, NombreIncAltura());
    }
  }

  // More Casos than can be numbered are told before the first one, not after the last that can.
  // Twice as many are beyond what the rounding of the steps could make of fewer.
  void ExigeCasosContables() const {
    if (c_.Hr0Actual > c_.Hr0FinalActual) return;
    const double alturas = CuentaAlturas();
    const double presiones = CuentaPresiones();
    if (alturas * presiones > 2.0 * kMaxCasos) throw DemasiadosCasos(alturas, presiones);
  }
  // The last one may be landed on.
  double CuentaAlturas() const {
    return 1.0 + CuentaPasos(c_.Hr0Actual, c_.Hr0FinalActual - kEngancheAltura, e_.tramo.Hr0Delta);
  }
  double CuentaPresiones() const {
    return std::max(1.0, CuentaPasos(PrimeraPresion(), UltimaPresion() + kPasePresion, c_.IncDP));
  }
  ErrorEjecucion DemasiadosCasos(double alturas, double presiones) const {
    return ErrorEjecucion(CausaError::DemasiadosCasos,
                          alturas > presiones ? NombreIncAltura() : NombreIncPresion());
  }
  void NumeraCaso() {
    if (c_.CuentaCasos == kMaxCasos) {
      throw DemasiadosCasos(static_cast<double>(c_.CuentaCasos) / c_.NumCaso, c_.NumCaso);
    }
    c_.CuentaCasos = Suma16(c_.CuentaCasos, 1);
  }

  void RecorreAlturas() {
    const double paso = e_.tramo.Hr0Delta;
    double h = c_.Hr0Actual;
    while (h <= c_.Hr0FinalActual) {
      Altura(h);
      RecorrePresiones();
      Avisa(&OyenteCorrida::FinAltura);
      const auto siguiente = AlturaSiguiente(h, paso, c_.Hr0FinalActual);
      if (!siguiente) return;
      h = *siguiente;
    }
  }

  void CargasDeAltura(double h) {
    if (e_.tramo.IndCar != 1) return;
    CargasMarston(e_, h, e_.tramo.ICar);
    DivideCargas(e_);
  }

  void Altura(double h) {
    c_.Hr = h;
    c_.NumCaso = 1;
    c_.MiraCargas = true;
    c_.DP = c_.DPActual = forzada_ ? prs_ : PrimeraPresion();
    if (forzada_) c_.IncDP = 0;
    CargasDeAltura(h);
    c_.Landa = PresionActiva(e_.tramo.Fi);
  }

  // Looks at two fields where the choice of the range looks at four; the method has it so.
  double PrimeraPresion() const {
    return e_.tramo.TieneDPPropia() ? e_.tramo.Prs1Tram : e_.obra.Prs1;
  }
  double UltimaPresion() const {
    return e_.tramo.TieneDPPropia() ? e_.tramo.Prs2Tram : e_.obra.Prs2;
  }

  void RecorrePresiones() {
    do {
      UnCaso();
      if (c_.NumCaso == kMaxCasos) throw DemasiadosCasos(1.0, c_.NumCaso);
      c_.NumCaso = Suma16(c_.NumCaso, 1);
    } while (SiguientePresion());
  }

  // The next pressure; a last, shorter step lands on the final one.
  bool SiguientePresion() {
    c_.DPActual = Finito(c_.DPActual + c_.IncDP);
    if (c_.IncDP == 0.0) return false;
    const double F = UltimaPresion();
    if (F + kPasePresion >= c_.DPActual) return true;
    if (F + c_.IncDP - kMargenUltima >= c_.DPActual) {
      c_.DPActual = F;
      return true;
    }
    return false;
  }

  void Presiones() {
    c_.DP = c_.DPActual;
    c_.MDP = Finito((c_.DP - c_.DPIni) * c_.PendienteMDP + c_.MDPIni);
    c_.PP = PruebaFabrica(c_.MDP, e_.tramo.Di);
    c_.STP = PruebaSistema(c_.MDP, e_.obra.GolpeCalculado);
    c_.PPNeta = c_.PP;
  }

  void UnCaso() {
    Presiones();
    NumeraCaso();
    c_.PrimerCaso = c_.CuentaCasos == 1;
    c_.vueltas.EmpiezaCaso();
    e_.caso.avisos.clear();
    Avisa(&OyenteCorrida::Progreso);
    if (c_.PrimerCaso) Cabecera();
    Ovalizacion(e_);
    c_.MiraCargas = false;
    if (e_.tramo.EsArmado) {
      DisenoArmado(e_);
    } else {
      CalculaPostesado(e_);
    }
    Avisa(&OyenteCorrida::Caso);
  }

  // What the heading of the Tramo calculates: the load table, after which the loads of the first
  // height are made again, and those of 1 m.
  void Cabecera() {
    c_.TablaCargas.clear();
    if (e_.tramo.IndCar == 1) {
      TablaCargas(e_);
      CargasDeAltura(c_.Hr0Actual);
    }
    CargasUnMetro(e_);
    if (!e_.tramo.EsArmado) PreparaPostesado(e_);
    Avisa(&OyenteCorrida::Cabecera);
  }
};

}  // namespace

void CalculaCasos(EstadoCalculo& e, double hrForzada, double prsForzada, Oyentes oyentes) {
  EscalaDeCorrida escala(e);
  try {
    CorridaTramo(e, hrForzada, prsForzada, oyentes).Corre();
    if (e.corrida.registro != nullptr) e.corrida.registro->Vuelca();
  } catch (const ErrorEjecucion& error) {
    VuelcaLoQueQuede(e.corrida.registro);
    throw ErrorCorrida(error, e);
  }
  escala.Termina();
}

}  // namespace zorbin
