#include "calculo/corrida/mdCorrida.h"

#include "calculo/corrida/mdCalculaTramo.h"

namespace zorbin {

namespace {

constexpr double kDado = -0.5;  // a forced value above it counts as given
constexpr std::int16_t kCuna120Captura = 2;
constexpr std::int16_t kCuna120Corrida = 3;

// The data of a state in calculation units, scaled as a run takes them.
DatosTramo DatosDe(const EstadoCalculo& e) {
  DatosTramo d{e.obra, e.tramo, e.corrida.ajustes, e.corrida.SinAjustes};
  auto& t = d.tramo;
  t.Delca = t.Delca / 10.0;
  if (t.TipoCuna == kCuna120Captura) t.TipoCuna = kCuna120Corrida;
  t.Esp = t.Esp / 100.0;
  t.Reci = t.Reci / 100.0;
  t.Rece = t.Rece / 100.0;
  return d;
}

// Tells the listeners a result that stands already, by a state put together for them.
class Relato {
 public:
  Relato(EstadoCalculo& e, const ResultadoTramo& x, Oyentes oyentes)
      : e_(e), c_(e.corrida), x_(x), oyentes_(oyentes) {
    const auto& r = x.rango;
    e_.tramo = x.datos.tramo;
    e_.tramo.Hr0Delta = r.Hr0Delta;
    c_.CuentaCasos = c_.NumCaso = 0;
    c_.vueltas = x.vueltas;
    c_.Hr = c_.Hr0Actual = r.Hr0;
    c_.Hr0FinalActual = r.Hr0Final;
    c_.DPIni = r.DPIni, c_.DPFin = r.DPFin, c_.MDPIni = r.MDPIni, c_.MDPFin = r.MDPFin;
    c_.PendienteMDP = r.PendienteMDP, c_.IncDP = r.IncDP;
    c_.IncDPIndefinido = r.IncDPIndefinido;
    e_.caso = {};
  }

  void Cuenta() {
    for (std::size_t i = 0; i < x_.filas.size(); ++i) {
      const auto& f = x_.filas[i];
      Empieza(f, f.NumCaso, f.Hr, x_.Altura(f));
      PonCaso(CasoEntero(x_, f), f);
      Avisa(&OyenteCorrida::Caso);
      const bool ultima = i + 1 == x_.filas.size() || x_.filas[i + 1].altura != f.altura;
      if (ultima && x_.Altura(f).acabada) Avisa(&OyenteCorrida::FinAltura);
    }
    if (!x_.fallo) return Avisa(&OyenteCorrida::FinCorrida);
    const auto& f = *x_.fallo;
    if (f.empezado) {
      const auto p = PresionesDe(f.DP, x_.rango, x_.datos.tramo.Di, x_.datos.obra.GolpeCalculado);
      Empieza(p, f.numCaso, f.Hr, x_.alturas.back());
    }
    c_.NumCaso = f.numCaso;
    c_.Hr = f.Hr;
    c_.DP = f.DP;
    throw ErrorCorrida(f.error, e_);
  }

 private:
  EstadoCalculo& e_;
  Corrida& c_;
  const ResultadoTramo& x_;
  const Oyentes oyentes_;

  void Avisa(void (OyenteCorrida::*paso)(const EstadoCalculo&)) {
    for (auto* o : oyentes_) (o->*paso)(e_);
  }

  void Empieza(const PresionesCaso& p, std::int16_t NumCaso, double Hr, const CargasAltura& a) {
    static_cast<Cargas&>(c_) = a.cargas;
    c_.Landa = a.Landa;
    c_.Hr = Hr;
    c_.DP = c_.DPActual = p.DP, c_.MDP = p.MDP, c_.STP = p.STP, c_.PP = c_.PPNeta = p.PP;
    c_.NumCaso = NumCaso;
    c_.CuentaCasos = Suma16(c_.CuentaCasos, 1);
    c_.PrimerCaso = c_.CuentaCasos == 1;
    c_.MiraCargas = NumCaso == 1;
    e_.caso.avisos.clear();
    Avisa(&OyenteCorrida::Progreso);
    if (c_.PrimerCaso && x_.hayCabecera) Cabecera();
    c_.MiraCargas = false;
  }

  void Cabecera() {
    const auto& q = x_.unMetro;
    c_.TablaCargas = x_.TablaCargas;
    c_.Q1m = q.Q, c_.QTerraplen1m = q.QTerraplen, c_.QTierras1m = q.QTierras,
    c_.QMovil1m = q.QMovil;
    if (e_.tramo.TipoApoyo < 20) e_.tramo.Hr1 = e_.tramo.De;
    e_.caso.postesado.radios = x_.radios;
    e_.caso.postesado.materiales = x_.materiales;
    Avisa(&OyenteCorrida::Cabecera);
  }

  void PonCaso(const ResultadoCaso& r, const FilaCaso& f) {
    static_cast<TerminosAnillo&>(e_.caso) = r;
    e_.caso.avisos = r.avisos;
    if (r.EsArmado()) {
      e_.caso.armado = r.Armado();
    } else {
      e_.caso.postesado = r.Postesado();
      c_.PP = f.PPObtenida;
    }
  }
};

}  // namespace

void CalculaCasos(EstadoCalculo& e, double hrForzada, double prsForzada, Oyentes oyentes) {
  const Tramo antes = e.tramo;
  const DatosTramo datos = DatosDe(e);
  const bool forzada = hrForzada > kDado || prsForzada > kDado;
  const auto resultado =
      CalculaTramo(datos, forzada ? RangoDeUnCaso(datos, hrForzada, prsForzada) : RangoDe(datos),
                   {}, e.corrida.registro);
  try {
    Relato(e, resultado, oyentes).Cuenta();
  } catch (...) {
    e.tramo = antes;
    throw;
  }
  const double Hr1 = e.tramo.Hr1;
  e.tramo = antes;
  e.tramo.Hr1 = Hr1;
  const Rango rango = RangoDe(datos);
  e.tramo.Hr0Delta = rango.Hr0Delta;
  e.corrida.Hr = e.corrida.Hr0Actual = rango.Hr0;
  e.corrida.Hr0FinalActual = rango.Hr0Final;
}

}  // namespace zorbin
