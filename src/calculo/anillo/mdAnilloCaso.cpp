#include "calculo/anillo/mdAnilloCaso.h"

#include <algorithm>
#include <cmath>

#include "calculo/armado/mdArmado.h"
#include "calculo/cargas/mdOvaliz.h"
#include "calculo/postesado/mdHipotesis.h"

namespace zorbin {

namespace {

// Times that each of the load terms of `Oval` enters a hypothesis, asked of the sums that the
// designs make: moments of 1 in one term and 0 in the others.
Lista<double, kTerminosOval> VecesDeCadaTermino(bool armado, int h) {
  Lista<double, kTerminosOval> veces;
  for (int i = 1; i <= kTerminosOval; ++i) {
    TerminosAnillo unidad;
    unidad.MHip(i, CLAVE) = 1.0;
    veces(i) = armado ? EsfuerzosArmado(unidad, {}, 0.0).M(h, CLAVE)
                      : EsfuerzosHipotesis(unidad).TablaMom(h, CLAVE);
  }
  return veces;
}

// Moment of the term `i` where one load has a moment of 1.
double VecesDeLaCarga(EsfuerzoSecciones TerminosOval::*carga, int i) {
  TerminosOval unidad;
  (unidad.*carga).M(CLAVE) = 1.0;
  Lista<double, kSecciones> M, N;
  Oval(unidad, i, M, N);
  return M(CLAVE);
}

void Anade(ResultantesAnillo& cargas, const DatosOval& d, int termino, double veces) {
  const auto r = ResultantesDe(d);
  const auto suma = [&](CargaAnillo carga, double W, EsfuerzoSecciones TerminosOval::*de) {
    cargas[static_cast<std::size_t>(carga)] += veces * VecesDeLaCarga(de, termino) * W;
  };
  suma(CargaAnillo::Propio, r.Wp, &TerminosOval::propio);
  suma(CargaAnillo::Agua, r.Wf, &TerminosOval::fluido);
  suma(CargaAnillo::Timpanos, r.Wt, &TerminosOval::timpanos);
  suma(CargaAnillo::Vertical, r.Wq, &TerminosOval::vertical);
  suma(CargaAnillo::Vertical, r.Wm, &TerminosOval::movil);
  for (const auto& [h, de] :
       {std::pair{r.h1, &TerminosOval::lateral}, std::pair{r.h0, &TerminosOval::lateralFijo}}) {
    suma(CargaAnillo::LateralUniforme, r.Wl * h, de);
    suma(CargaAnillo::LateralLineal, r.Wl * d.De, de);
  }
}

// Resultants of the hypothesis, with the factor of the bedding.
ResultantesAnillo Resultantes(const ResultadoTramo& x, const CargasAltura& altura, int h) {
  const auto& t = x.datos.tramo;
  const auto deAltura = DatosDelAnillo(t, altura.cargas, altura.Landa);
  const auto deUnMetro = DatosDelAnillo(t, x.unMetro, altura.Landa);
  const double factor = CalculaTerminos(deAltura).factor;
  const auto veces = VecesDeCadaTermino(t.EsArmado, h);
  ResultantesAnillo cargas{};
  for (int i = 1; i <= kTerminosOval; ++i) {
    if (veces(i) == 0) continue;
    Anade(cargas, i == kTerminoUnMetro ? deUnMetro : deAltura, i, veces(i) * factor);
  }
  return cargas;
}

}  // namespace

int CuentaHipotesis(const DatosTramo& datos) {
  return datos.tramo.EsArmado ? kHipotesisArmado : kHipotesisPostesado;
}

int HipotesisQueRige(const DatosTramo& datos, const FilaCaso& fila) {
  return datos.tramo.EsArmado ? fila.HipotesisRige : fila.verificacion.hipotesis;
}

Lista<double, kSecciones> MomentosDe(const ResultadoCaso& caso, int h) {
  if (caso.EsArmado()) return caso.Armado().esfuerzos.M.filas(h);
  return EsfuerzosHipotesis(caso).TablaMom.filas(h);
}

AnilloCaso AnilloDe(const ResultadoTramo& tramo, const FilaCaso& fila, const ResultadoCaso& caso,
                    int h) {
  const auto& t = tramo.datos.tramo;
  const auto r = ResultantesDe(DatosDelAnillo(t, tramo.Altura(fila).cargas, 0.0));
  const auto cargas = Resultantes(tramo, tramo.Altura(fila), h);
  AnilloCaso a;
  a.hipotesis = h;
  a.leyes = LeyesDe(cargas, t.TipoCuna, r.w, r.Dm);
  a.sinMomento = std::all_of(cargas.begin(), cargas.end(), [](double W) { return W == 0; });
  if (caso.EsArmado()) {
    const auto& e = caso.Armado().esfuerzos;
    a.M = e.M.filas(h);
    a.N = e.N.filas(h);
    a.presion = EsfuerzosArmado({}, fila, t.Di / 2.0).N(h, CLAVE);
  } else {
    const auto e = EsfuerzosHipotesis(caso);
    a.M = e.TablaMom.filas(h);
    a.N = e.TablaAxil.filas(h);
  }
  a.leyes.N = a.leyes.N.MasConstante(a.presion);
  a.mayorM = a.leyes.M.Mayor();
  a.menorM = a.leyes.M.Menor();
  return a;
}

std::optional<ExcesoMomento> ExcesoDe(const AnilloCaso& anillo, bool interior) {
  const double signo = interior ? 1.0 : -1.0;
  ExcesoMomento x{interior ? anillo.mayorM : anillo.menorM};
  double mayor = 0;
  for (int s = 1; s <= kSecciones; ++s) {
    x.secciones = std::max(x.secciones, signo * anillo.M(s));
    mayor = std::max(mayor, std::fabs(anillo.M(s)));
  }
  const double referencia = x.secciones > 0 ? x.secciones : mayor;
  if (referencia <= 0) return std::nullopt;
  x.exceso = (signo * x.extremo.valor - x.secciones) / referencia;
  x.secciones *= signo;
  if (x.exceso <= kExcesoQueSeDice) return std::nullopt;
  return x;
}

}  // namespace zorbin
