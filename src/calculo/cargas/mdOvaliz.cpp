#include "calculo/cargas/mdOvaliz.h"

#include "calculo/cargas/mdOval.h"

namespace zorbin {

namespace {

constexpr int kHipotesisUnMetro = 8;

void AnotaEntrada(Registro& r, const EstadoCalculo& e) {
  const auto& t = e.tramo;
  const auto& c = e.corrida;
  r << "Dentro de Ovaliz ============================================================";
  r.FinLinea();
  r << "vDi vDE vGAMAB vGAMAT" << t.Di << t.De << t.Gc << t.Gr;
  r.FinLinea();
  r << "vLANDA vQ vICUNA vTIGEN vITIT vICASO vQH" << c.Landa << c.Q << int{t.TipoCuna} << " "
    << e.obra.NombreObra << " " << t.DescriTramo << int{c.NumCaso} << c.QTerraplen;
  r.FinLinea();
}

DatosOval Datos(const EstadoCalculo& e) {
  const auto& t = e.tramo;
  const auto& c = e.corrida;
  return {t.Di, t.De, t.Gc, t.Gr, c.Landa, c.Q, c.QTerraplen, c.QMovil, t.TipoCuna};
}

DatosOval DatosUnMetro(const EstadoCalculo& e) {
  DatosOval d = Datos(e);
  d.Q = e.corrida.Q1m;
  d.QH = e.corrida.QTerraplen1m;
  d.QMovil = e.corrida.QMovil1m;
  return d;
}

}  // namespace

void Ovalizacion(EstadoCalculo& e) {
  if (e.corrida.registro != nullptr) AnotaEntrada(*e.corrida.registro, e);
  const TerminosOval terminos = CalculaTerminos(Datos(e));
  const TerminosOval unMetro = CalculaTerminos(DatosUnMetro(e));
  for (int h = 1; h <= kTerminosOval; ++h) {
    const auto& t = h == kHipotesisUnMetro ? unMetro : terminos;
    Oval(t, h, e.caso.MHip.filas(h), e.caso.NHip.filas(h));
  }
}

}  // namespace zorbin
