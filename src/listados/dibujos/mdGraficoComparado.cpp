#include "listados/dibujos/mdGraficoComparado.h"

#include <cmath>
#include <limits>

#include "base/textos.h"
#include "listados/dibujos/mdLineasGrafico.h"

namespace zorbin {

namespace {

constexpr double kNada = std::numeric_limits<double>::quiet_NaN();
constexpr double kAnchoNombre = 46.0;  // of a Tramo in the legend [mm]
constexpr double kParteNombre = 0.28;  // of a narrow sheet
constexpr std::size_t kTintas = 6;

// In the unit of the axis; not a number where the point has none.
double Valor(QueCompara que, const DatosTramo& datos, const PuntoMalla& p,
             const PalabrasDibujo& w) {
  switch (que) {
    case QueCompara::Momento:
      if (p.hipotesis == 0) return kNada;
      return w.Convertido(std::max(std::fabs(p.mayorM), std::fabs(p.menorM)), kMomentoGrafico);
    case QueCompara::Interior:
      return datos.tramo.EsArmado && p.acero ? p.fila.AsInt : kNada;
    case QueCompara::Exterior:
      return datos.tramo.EsArmado && p.acero ? p.fila.AsExt : kNada;
    default:
      return p.acero.value_or(kNada);
  }
}

// Colour and pattern together tell the lines apart, and no two of a chart are the same.
SerieGrafico SerieDe(QueCompara que, EjeDeGrafico eje, const TramoComparado& t, std::size_t i,
                     const PalabrasDibujo& w, double anchoNombre) {
  const LineasDeMalla lineas(eje, *t.malla, w);
  SerieGrafico s{Recortado(w.TramoEnLetra(t.datos.tramo), anchoNombre, kLetraMenor),
                 {},
                 Serie(static_cast<int>(i % kTintas)),
                 PatronDe(i + i / kTintas)};
  for (std::size_t k = 0; k < lineas.Puntos(); ++k) {
    double mayor = kNada;
    for (std::size_t linea = 0; linea < lineas.Lineas(); ++linea) {
      double v = kNada;
      if (que == QueCompara::Carga) {
        const auto& q = t.malla->cargas[lineas.Altura(linea, k)];
        if (q) v = w.Convertido(q->cargas.Q, kCargaGrafico);
      } else if (const auto& p = lineas.En(linea, k)) {
        v = Valor(que, t.datos, *p, w);
      }
      if (std::isfinite(v) && !(mayor >= v)) mayor = v;
    }
    s.puntos.push_back({lineas.Abscisa(k), mayor});
  }
  return s;
}

EjeGrafico EjeX(EjeDeGrafico eje, const std::vector<SerieGrafico>& series,
                const PalabrasDibujo& w) {
  double desde = std::numeric_limits<double>::infinity(), hasta = -desde;
  for (const auto& s : series) {
    for (const auto& p : s.puntos) {
      desde = std::min(desde, p.x);
      hasta = std::max(hasta, p.x);
    }
  }
  const std::string titulo = TituloEje(eje, w);
  if (!(hasta > desde))
    return EjeRedondo(titulo, series.empty() ? 0 : desde, series.empty() ? 1 : hasta);
  return {titulo, desde, hasta};
}

std::string UnidadDe(QueCompara que, const PalabrasDibujo& w) {
  if (que == QueCompara::Carga) return w.Unidad(kCargaGrafico);
  return que == QueCompara::Momento ? w.Unidad(kMomentoGrafico) + "/m" : "cm²/m";
}

}  // namespace

LaminaConEjes DibujaGraficoComparado(QueCompara que, EjeDeGrafico eje,
                                     const std::vector<TramoComparado>& tramos,
                                     const PalabrasDibujo& w, const HojaDibujo& hoja) {
  std::vector<SerieGrafico> series;
  const double anchoNombre = std::min(kAnchoNombre, hoja.ancho * kParteNombre);
  for (std::size_t i = 0; i < tramos.size(); ++i) {
    series.push_back(SerieDe(que, eje, tramos[i], i, w, anchoNombre));
  }
  const std::string& titulo = w.T(txt::DibComparado[static_cast<std::size_t>(que)]);
  const int dice = eje == EjeDeGrafico::Altura ? txt::DibMayorDePresiones : txt::DibMayorDeAlturas;
  return DibujaGrafico(
      titulo, que == QueCompara::Carga && eje == EjeDeGrafico::Altura ? "" : w.T(dice),
      EjeX(eje, series, w), EjeY(titulo + ", " + UnidadDe(que, w), series, true), series, w, hoja);
}

}  // namespace zorbin
