#include "calculo/mediciones/mdMediciones.h"

#include <algorithm>
#include <cmath>

#include "base/aritmetica.h"

namespace zorbin {

namespace {

constexpr double kMm = 1000.0;             // in a metre
constexpr double kCm2 = 10'000.0;          // in a square metre
constexpr double kCamisaPorMm = 10.0;      // of a sheet [cm2/m of a mm]
constexpr std::int16_t kParedDelgada = 1;  // ErrorPostesado of a wall too thin for its covers

double Corona(double exterior, double interior) {
  return kPi * (exterior * exterior - interior * interior);
}

double KgPorMetro(double cm2, double metros) {
  return cm2 / kCm2 * metros * kDensidadAcero;
}

double AreaDe(double Fi) {  // [cm2]
  return kPi * Fi * Fi / 400.0;
}

// Steel of which only the area a metre is known, as an adjustment tells it.
CapaMedida MideArea(Partida partida, double diametro, double cm2) {
  CapaMedida c{partida, 0, diametro, 0, 0, 0};
  c.kg = KgPorMetro(cm2, kPi * diametro);
  return c;
}

CapaMedida MideLongitudinales(double diametro, const Fabricacion& fab) {
  CapaMedida c{Partida::Longitudinales, fab.FiLong, diametro, 0, 0, 0};
  c.numero = std::max<double>(kMinimoLong, std::ceil(Finito(kPi * diametro / fab.SepLong) - 1e-9));
  c.desarrollo = c.numero;
  c.kg = KgPorMetro(AreaDe(fab.FiLong), c.numero);
  return c;
}

class Armada {
 public:
  Armada(const ResultadoTramo& r, const FilaCaso& f, const Fabricacion& fab)
      : r_(r),
        f_(f),
        fab_(fab),
        Int_(r.datos.tramo.Di + 2.0 * r.datos.tramo.Reci),
        Ext_(r.datos.tramo.De - 2.0 * r.datos.tramo.Rece) {}

  std::vector<CapaMedida> Capas() {
    if (f_.ErrorPostesado == kParedDelgada) return {};
    const auto ajuste = AjusteDelCaso(r_.datos.ajustes, f_.DP, r_.datos.tramo.NumeroTramo, f_.Hr);
    f_.ajustado&& ajuste ? DelAjuste(*ajuste) : DelDiseno();
    return std::move(capas_);
  }

 private:
  const ResultadoTramo& r_;
  const FilaCaso& f_;
  const Fabricacion& fab_;
  double Int_, Ext_;  // diameters of the axes of both layers [m]
  std::vector<CapaMedida> capas_;

  void DelDiseno() {
    if (f_.CAMISA > 0) capas_.push_back(MideChapa(Int_, f_.CAMISA));
    const double sobre = f_.CAMISA > 0 ? (f_.CAMISA + f_.FIIN) / kMm : 0.0;
    Espiras(Partida::EspirasInteriores, Int_ + sobre, f_.FIIN, f_.NESPIN);
    Espiras(Partida::EspirasExteriores, Ext_, f_.FIEX, f_.NEXPEX);
  }
  void DelAjuste(const Ajuste& a) {
    const double chapa = a.Camisa / kCamisaPorMm;
    if (chapa > 0) capas_.push_back(MideChapa(Int_, chapa));
    Area(Partida::EspirasInteriores, Int_ + chapa / kMm, a.Espiras);
    Area(Partida::EspirasExteriores, Ext_, a.Exterior);
  }
  void Espiras(Partida partida, double diametro, double Fi, double numero) {
    if (!(Fi > 0) || !(numero > 0)) return;
    capas_.push_back(MideEspiras(partida, diametro, Fi, numero));
    Longitudinales(diametro);
  }
  void Area(Partida partida, double diametro, double cm2) {
    if (!(cm2 > 0)) return;
    capas_.push_back(MideArea(partida, diametro, cm2));
    Longitudinales(diametro);
  }
  void Longitudinales(double diametro) {
    if (fab_.FiLong > 0 && fab_.SepLong > 0) capas_.push_back(MideLongitudinales(diametro, fab_));
  }
};

std::vector<CapaMedida> CapasPostesadas(const ResultadoTramo& r, const FilaCaso& f) {
  const auto& radios = r.radios;
  std::vector<CapaMedida> capas;
  if (r.materiales.Delca > 0) {
    capas.push_back(MideChapa(2.0 * radios.RadioCam / 100.0, r.materiales.Delca * 10.0));
  }
  if (f.FIIN > 0 && f.NESPIN > 0) {
    capas.push_back(MideEspiras(Partida::Alambre, 2.0 * radios.RadioNuc / 100.0 + f.FIIN / kMm,
                                f.FIIN, f.NESPIN));
  }
  return capas;
}

}  // namespace

double CapaMedida::Paso() const {
  const bool espiras = partida == Partida::EspirasInteriores ||
                       partida == Partida::EspirasExteriores || partida == Partida::Alambre;
  return espiras && numero > 0 ? kMm / numero : 0.0;
}

CapaMedida MideChapa(double diametro, double grueso) {
  CapaMedida c{Partida::Chapa, grueso, diametro, 0, kPi * diametro, 0};
  c.kg = KgPorMetro(grueso * kCamisaPorMm, c.desarrollo);
  return c;
}

CapaMedida MideEspiras(Partida partida, double diametro, double Fi, double numero) {
  CapaMedida c{partida, Fi, diametro, numero, 0, 0};
  c.desarrollo = Finito(numero * std::hypot(kPi * diametro, 1.0 / numero));
  c.kg = KgPorMetro(AreaDe(Fi), c.desarrollo);
  return c;
}

Medicion MideCaso(const ResultadoTramo& r, const FilaCaso& f, const Fabricacion& fab) {
  const auto& t = r.datos.tramo;
  Medicion m;
  m.capas = t.EsArmado ? Armada(r, f, fab).Capas() : CapasPostesadas(r, f);
  for (const auto& capa : m.capas) m.porMetro[capa.partida] += capa.kg;
  if (fab.LongitudTubo > 0) m.porMetro[Partida::Juntas] = fab.AceroJunta / fab.LongitudTubo;
  const double nucleo = t.EsArmado ? t.De / 2.0 : r.radios.RadioNuc / 100.0;
  m.porMetro[Partida::HormigonNucleo] = Corona(nucleo, t.Di / 2.0);
  m.porMetro[Partida::HormigonRevestimiento] = Corona(t.De / 2.0, nucleo);
  m.peso = Finito(Corona(t.De / 2.0, t.Di / 2.0) * t.Gc * 1000.0);
  const auto zanja = MideZanja(t, f.Hr);
  m.porMetro[Partida::Excavacion] = zanja.Excavacion;
  m.porMetro[Partida::Cama] = zanja.Cama;
  m.porMetro[Partida::Relleno] = zanja.Relleno;
  return m;
}

double NumeroDeTubos(const Fabricacion& fab) {
  if (!(fab.Longitud > 0) || !(fab.LongitudTubo > 0)) return 0.0;
  return std::ceil(fab.Longitud / fab.LongitudTubo - 1e-9);
}

PorPartida CostePorMetro(const Medicion& m, const Precios& precios) {
  PorPartida coste;
  for (std::size_t i = 0; i < kPartidas; ++i) {
    const auto p = static_cast<Partida>(i);
    coste[p] = m.porMetro[p] * precios.precio[p];
  }
  return coste;
}

double Suma(const PorPartida& p) {
  double suma = 0;
  for (std::size_t i = 0; i < kPartidas; ++i) suma += p[static_cast<Partida>(i)];
  return suma;
}

}  // namespace zorbin
