#include "base/mdTextos.h"
#include "base/textos.h"
#include "listados/dibujos/mdDibujoMapa.h"
#include "listados/dibujos/mdDibujoTubo.h"
#include "listados/dibujos/mdDibujoZanja.h"
#include "listados/dibujos/mdGraficosTramo.h"
#include "listados/informe/mdPlantilla.h"
#include "listados/obra/mdAvisos.h"
#include "listados/obra/mdEntradas.h"

namespace zorbin {

namespace {

using memoria::Cuadro;
using memoria::FilaCuadro;

constexpr double kMmColumna = kColumnaInforme / kPuntosPorMm;
constexpr int kPuntosGrafico = 40;

HojaDibujo Panel(double ancho, double alto) {
  HojaDibujo hoja;
  hoja.ancho = ancho;
  hoja.alto = alto;
  hoja.cabecera = false;
  return hoja;
}

QString Escala(const Plantilla& p, const Lamina& lamina) {
  return lamina.escala > 0
             ? QStringLiteral(", ") + p.Con(txt::InfEscala, {p.dibujo.Corto(lamina.escala, 1)})
             : QString();
}

void EscribeDibujos(Plantilla& p, const TramoInforme& t) {
  const auto& r = *t.resultado;
  const auto& datos = r.datos.tramo;
  p.r.Apartado(p.T(txt::InfSeccionColocacion));
  if (!HayTubo(datos)) {
    p.r.Nota(p.T(txt::InfSinDibujo));
    return;
  }
  Lamina seccion = DibujaTubo(datos, p.dibujo, Panel(kMmColumna, 70));
  const QString pieSeccion = p.T(txt::InfPieSeccion) + Escala(p, seccion);
  p.r.Figuras({{Plantilla::Figura(std::move(seccion)), pieSeccion}});
  const double Hr = r.rango.Hr0Final;
  Lamina zanja = DibujaColocacion(datos, Hr, p.dibujo, Panel(kMmColumna, 80));
  const QString pieZanja = p.Con(txt::InfPieZanja, {p.Num(Hr, 2).toStdString()}) + Escala(p, zanja);
  p.r.Figuras({{Plantilla::Figura(std::move(zanja)), pieZanja}});
}

class TablaDeCargas {
 public:
  TablaDeCargas(const Plantilla& p, const ResultadoTramo& r) : p_(p), r_(r) {}

  Cuadro Compone() const {
    const QString unidad = p_.Unidad("T/M2->kN/M2");
    Cuadro c;
    c.columnas = QStringLiteral("rrrrrrrl");
    c.cabezas = {{{QStringLiteral("H, m")},
                  {p_.ConUnidad(txt::InfCargaTierras, unidad)},
                  {p_.ConUnidad(txt::InfCargaMovil, unidad)},
                  {p_.T(txt::InfImpacto)},
                  {p_.ConUnidad(txt::InfCargaTotal, unidad)},
                  {p_.ConUnidad(txt::InfCargaTerraplen, unidad)},
                  {QStringLiteral("λ")},
                  {p_.T(txt::InfFormulaRige)}}};
    for (const auto& a : r_.alturas) c.filas.push_back(Fila(a));
    return c;
  }

 private:
  const Plantilla& p_;
  const ResultadoTramo& r_;

  memoria::CeldaCuadro Carga(double tm2) const {
    return Plantilla::Celda(p_.Num(tm2, 3, "T/M2->kN/M2"));
  }

  FilaCuadro Fila(const CargasAltura& a) const {
    const auto& q = a.cargas;
    const bool terraplen = q.TerraplenRige || r_.datos.tramo.TipoApoyo >= 30;
    const bool dada = r_.datos.tramo.IndCar != 1;
    return {{Plantilla::Celda(p_.Num(a.Hr, 2)), Carga(q.Q - q.QMovil), Carga(q.QMovil),
             Plantilla::Celda(q.Impacto > 0 ? p_.Num(q.Impacto, 3) : QStringLiteral("–")),
             Carga(q.Q), Carga(q.QTerraplen), Plantilla::Celda(p_.Num(a.Landa, 3)),
             Plantilla::Celda(p_.T(dada        ? txt::InfCargaDada
                                   : terraplen ? txt::InfFormulaTerraplen
                                               : txt::InfFormulaZanja))}};
  }
};

void EscribeCargas(Plantilla& p, const TramoInforme& t) {
  const auto& r = *t.resultado;
  if (r.alturas.empty()) return;
  p.r.Apartado(p.T(txt::InfCargas));
  p.r.Tabla(TablaDeCargas(p, r).Compone(), p.Con(txt::InfPieCargas, {t.numero}));
  if (r.alturas.size() < 2) return;
  try {
    const auto ejes = EjesDelGrafico(r.datos, EjeDeGrafico::Altura, kPuntosGrafico);
    EjesMalla una{ejes.alturas, {ejes.presiones.front()}};
    const auto malla = CalculaMalla(r.datos, una);
    auto grafico = DibujaGraficoTramo(QueGrafico::Cargas, EjeDeGrafico::Altura, r.datos, malla,
                                      p.dibujo, Panel(kMmColumna * 0.86, 66));
    p.r.Figuras({{Plantilla::Figura(std::move(grafico.lamina)), p.T(txt::InfPieGrafico)}});
  } catch (const ErrorEjecucion&) {
    // A height beyond those of the Tramo cannot be calculated: its table stands without the chart.
    return;
  }
}

void EscribeMapa(Plantilla& p, const TramoInforme& t) {
  const auto& r = *t.resultado;
  if (r.filas.empty()) return;
  p.r.Apartado(p.T(txt::InfMapa));
  const auto malla =
      CalculaMalla(r.datos, EjesAlrededor(r.datos, kColumnasMapa / 2, kFilasMapa / 2));
  const auto* peor = CuentaDeVeredictos(r).peor;
  auto mapa = DibujaMapa(malla, r.datos, peor, p.dibujo, Panel(kMmColumna, 100));
  p.r.Figuras({{Plantilla::Figura(std::move(mapa.lamina)), p.T(txt::InfPieMapa)}});
}

}  // namespace

void EscribeTramo(Plantilla& p, const TramoInforme& t, std::size_t i) {
  const auto& r = *t.resultado;
  p.r.Capitulo(p.NombreTramo(t), AnclaTramo(i));
  if (r.fallo) {
    p.r.Nota(Q(TextoFallo(*r.fallo, p.datos.fichero, t.numero, p.textos, p.estilo)), true);
    p.r.Parrafo(p.T(txt::InfTextoFallo));
  } else if (r.filas.empty()) {
    p.r.Nota(p.T(txt::SinNingunCaso), true);
  }
  EscribeDatosTramo(p, t);
  EscribeDibujos(p, t);
  EscribeCargas(p, t);
  EscribeTablaDeCasos(p, t, i);
  EscribeMapa(p, t);
  EscribeAvisos(p, t);
}

}  // namespace zorbin
