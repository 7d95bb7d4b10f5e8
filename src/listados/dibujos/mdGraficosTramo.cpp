#include "listados/dibujos/mdGraficosTramo.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <limits>

#include "base/mdTextos.h"
#include "base/textos.h"
#include "listados/dibujos/mdLineasGrafico.h"

namespace zorbin {

namespace {

constexpr double kNada = std::numeric_limits<double>::quiet_NaN();
constexpr std::string_view kTension = "Kp/cm2->MPa";

// The values of a chart, along its axis and by lines.
class Datos : public LineasDeMalla {
 public:
  Datos(EjeDeGrafico eje, const Malla& malla, const PalabrasDibujo& w)
      : LineasDeMalla(eje, malla, w), eje_(eje), malla_(malla), w_(w) {}

  std::string NombreLinea(std::size_t i) const {
    return PorAltura() ? "DP " + w_.Presion(malla_.ejes.presiones[i])
                       : "Hr " + w_.Metros(malla_.ejes.alturas[i]);
  }
  std::vector<Xy> Linea(std::size_t i,
                        const std::function<double(const PuntoMalla&)>& valor) const {
    std::vector<Xy> puntos;
    for (std::size_t k = 0; k < Puntos(); ++k) {
      const auto& p = En(i, k);
      puntos.push_back({Abscisa(k), p ? valor(*p) : kNada});
    }
    return puntos;
  }
  EjeGrafico EjeX() const {
    const std::string titulo = TituloEje(eje_, w_);
    if (Puntos() < 2) return EjeRedondo(titulo, Abscisa(0), Abscisa(0));
    return {titulo, Abscisa(0), Abscisa(Puntos() - 1)};
  }

 private:
  const EjeDeGrafico eje_;
  const Malla& malla_;
  const PalabrasDibujo& w_;
};

std::vector<SerieGrafico> SeriesAcero(QueGrafico que, const Datos& d) {
  const auto valor = [que](const PuntoMalla& p) {
    if (!p.acero) return kNada;
    if (que == QueGrafico::Interior) return p.fila.AsInt;
    return que == QueGrafico::Exterior ? p.fila.AsExt : *p.acero;
  };
  std::vector<SerieGrafico> series;
  for (std::size_t i = 0; i < d.Lineas(); ++i) {
    series.push_back(
        {d.NombreLinea(i), d.Linea(i, valor), Serie(static_cast<int>(i)), PatronDe(i)});
  }
  return series;
}

std::vector<SerieGrafico> SeriesMomentos(const Datos& d, const PalabrasDibujo& w) {
  std::vector<SerieGrafico> series;
  for (std::size_t i = 0; i < d.Lineas(); ++i) {
    const auto serie = [&](int nombre, double PuntoMalla::*M, Patron patron) {
      series.push_back(
          {w.Con(nombre, {d.NombreLinea(i)}),
           d.Linea(i, [&](const PuntoMalla& p) { return w.Convertido(p.*M, kMomentoGrafico); }),
           Serie(static_cast<int>(i)), patron});
    };
    serie(txt::DibMomentoMayor, &PuntoMalla::mayorM, Patron::Continuo);
    serie(txt::DibMomentoMenor, &PuntoMalla::menorM, Patron::Discontinuo);
  }
  return series;
}

using DeCarga = std::function<std::optional<double>(const CargasAltura&)>;

struct FilaCargaDibujada {
  int nombre;
  Patron patron;
  DeCarga valor;
};

// Earth by the two formulas of a trench, of which one was adopted.
std::optional<double> PorFormula(const Tramo& t, const CargasAltura& c, bool terraplen) {
  if (t.TipoApoyo >= 30 || t.IndCar != 1) return std::nullopt;
  const auto& q = c.cargas;
  return q.TerraplenRige == terraplen ? q.Q - q.QMovil : q.QTierras;
}

std::optional<double> PorEcuacionCompleta(const CargasAltura& c) {
  if (!c.contraste) return std::nullopt;
  return c.contraste->adoptada.completa;
}

// Loads know no pressure: one line for each load.
std::vector<SerieGrafico> SeriesCargas(const Malla& malla, const Tramo& t,
                                       const PalabrasDibujo& w) {
  const std::array<FilaCargaDibujada, 6> filas{{
      {txt::DibCargaTotal, Patron::Continuo, [](const auto& c) { return c.cargas.Q; }},
      {txt::DibCargaTierras, Patron::Continuo,
       [](const auto& c) { return c.cargas.Q - c.cargas.QMovil; }},
      {txt::DibCargaMoviles, Patron::Continuo, [](const auto& c) { return c.cargas.QMovil; }},
      {txt::DibCargaZanja, Patron::Discontinuo,
       [&t](const auto& c) { return PorFormula(t, c, false); }},
      {txt::DibCargaTerraplen, Patron::Eje, [&t](const auto& c) { return PorFormula(t, c, true); }},
      {txt::DibCargaCompleta, Patron::Punteado, PorEcuacionCompleta},
  }};
  std::vector<SerieGrafico> series;
  for (std::size_t i = 0; i < filas.size(); ++i) {
    SerieGrafico s{w.T(filas[i].nombre), {}, Serie(static_cast<int>(i)), filas[i].patron};
    bool hay = false;
    for (std::size_t k = 0; k < malla.ejes.alturas.size(); ++k) {
      const auto q = malla.cargas[k] ? filas[i].valor(*malla.cargas[k]) : std::nullopt;
      hay = hay || q;
      s.puntos.push_back({malla.ejes.alturas[k], q ? w.Convertido(*q, kCargaGrafico) : kNada});
    }
    if (hay) series.push_back(std::move(s));
  }
  return series;
}

// Distance from the inner face [mm] and stress, along the core and the coating, each of them plane.
std::vector<Xy> LineaTensiones(const RadiosPostesado& r, const HipotesisPostesada& h, int s,
                               const PalabrasDibujo& w) {
  const auto punto = [&](double radio, double sigma) {
    return Xy{(radio - r.RadioInt) * 10.0, w.Convertido(sigma, kTension)};
  };
  return {punto(r.RadioInt, h.TotPI(s)),
          punto(r.RadioNuc, h.TotPE(s)),
          {kNada, kNada},
          punto(r.RadioNuc, h.TotRI(s)),
          punto(r.RadioRev, h.TotRE(s))};
}

}  // namespace

Patron PatronDe(std::size_t i) {
  constexpr std::array<Patron, 4> kPatrones{Patron::Continuo, Patron::Discontinuo, Patron::Eje,
                                            Patron::Punteado};
  return kPatrones[i % kPatrones.size()];
}

std::string TituloEje(EjeDeGrafico eje, const PalabrasDibujo& w) {
  return eje == EjeDeGrafico::Altura ? w.T(txt::DibEjeAltura)
                                     : w.Con(txt::DibEjePresion, {w.Unidad(kPresionGrafico)});
}

EjeGrafico EjeY(const std::string& titulo, const std::vector<SerieGrafico>& series,
                bool desdeCero) {
  double minimo = std::numeric_limits<double>::infinity(), maximo = -minimo;
  for (const auto& s : series) {
    for (const auto& p : s.puntos) {
      if (!std::isfinite(p.y)) continue;
      minimo = std::min(minimo, p.y);
      maximo = std::max(maximo, p.y);
    }
  }
  if (!std::isfinite(minimo)) return {titulo, 0.0, 1.0};
  if (desdeCero) minimo = std::min(minimo, 0.0);
  return EjeRedondo(titulo, minimo, maximo);
}

EjesMalla EjesDelGrafico(const DatosTramo& datos, EjeDeGrafico eje, int puntos) {
  const EjesMalla alrededor = EjesAlrededor(datos, puntos, puntos);
  EjesMalla ejes = EjesDelTramo(datos, kMaxLineas);
  (eje == EjeDeGrafico::Altura ? ejes.alturas : ejes.presiones) =
      eje == EjeDeGrafico::Altura ? alrededor.alturas : alrededor.presiones;
  return ejes;
}

LaminaConEjes DibujaGraficoTramo(QueGrafico que, EjeDeGrafico eje, const DatosTramo& datos,
                                 const Malla& malla, const PalabrasDibujo& w,
                                 const HojaDibujo& hoja) {
  const Datos d(que == QueGrafico::Cargas ? EjeDeGrafico::Altura : eje, malla, w);
  const bool alambre = !datos.tramo.EsArmado;
  std::vector<SerieGrafico> series;
  std::string unidad = "cm²/m";
  bool desdeCero = false;
  switch (que) {
    case QueGrafico::Momentos:
      series = SeriesMomentos(d, w);
      unidad = w.Unidad(kMomentoGrafico) + "/m";
      break;
    case QueGrafico::Cargas:
      series = SeriesCargas(malla, datos.tramo, w);
      unidad = w.Unidad(kCargaGrafico);
      desdeCero = true;
      break;
    default:
      series = SeriesAcero(que, d);
  }
  const auto numero = static_cast<std::size_t>(que);
  const std::string& titulo =
      w.T(alambre && que == QueGrafico::Acero ? txt::DibGraficoAlambre : txt::DibGrafico[numero]);
  return DibujaGrafico(titulo, w.TramoEnLetra(datos.tramo), d.EjeX(),
                       EjeY(titulo + ", " + unidad, series, desdeCero), series, w, hoja);
}

LaminaConEjes DibujaTensiones(const CasoDibujado& caso, int hipotesis, const PalabrasDibujo& w,
                              const HojaDibujo& hoja) {
  std::vector<SerieGrafico> series;
  double espesor = caso.Datos().Esp * 1000.0;
  if (!caso.caso.EsArmado()) {
    const auto& r = caso.caso.Postesado();
    const auto& h = r.hipotesis(hipotesis);
    espesor = (r.radios.RadioRev - r.radios.RadioInt) * 10.0;
    for (int s = 1; h.hecha && s <= kSecciones; ++s) {
      const auto i = static_cast<std::size_t>(s - 1);
      series.push_back({w.T(txt::DibSeccionAnillo[i]), LineaTensiones(r.radios, h, s, w),
                        Serie(s - 1), PatronDe(i)});
    }
    const auto limite = [&](int nombre, double sigma, double desde, double hasta, Patron patron) {
      const double y = w.Convertido(sigma, kTension);
      series.push_back(
          {w.T(nombre),
           {{(desde - r.radios.RadioInt) * 10.0, y}, {(hasta - r.radios.RadioInt) * 10.0, y}},
           Tinta::NoCumple,
           patron});
    };
    if (h.hecha) {
      limite(txt::DibLimiteNucleo, h.LimPrimario, r.radios.RadioInt, r.radios.RadioNuc,
             Patron::Eje);
      limite(txt::DibLimiteRevestimiento, r.materiales.Fctr, r.radios.RadioNuc, r.radios.RadioRev,
             Patron::Punteado);
    }
  }
  const std::string& titulo = w.T(txt::DibGrafico[static_cast<std::size_t>(QueGrafico::Tensiones)]);
  return DibujaGrafico(
      w.Con(txt::DibTituloTensiones,
            {TextoEntero(hipotesis), w.Hipotesis(caso.caso.EsArmado(), hipotesis)}),
      w.TramoEnLetra(caso.Datos()) + " · " + w.CasoEnLetra(caso.fila),
      {w.T(txt::DibEjePared), 0.0, espesor}, EjeY(titulo + ", " + w.Unidad(kTension), series, true),
      series, w, hoja);
}

}  // namespace zorbin
