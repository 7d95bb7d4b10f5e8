#include "shell/resultados/mdCalculos.h"

#include <filesystem>

#include "base/mdTextos.h"
#include "base/textos.h"
#include "sesion/trabajo/mdTrabajo.h"
#include "shell/piezas/mdDialogos.h"
#include "shell/piezas/mdQt.h"
#include "shell/resultados/frEscribePantalla.h"
#include "shell/resultados/mdProgreso.h"

namespace zorbin {

namespace {

constexpr std::size_t kFallosDichos = 10;  // in a box; the summary has them all

/// A run, watched by a box of progress.
using Faena = std::function<ResultadoTrabajo(const MediosTrabajo&)>;

ResultadoTrabajo ConProgreso(const Entorno& entorno, QWidget* padre, const Faena& faena) {
  CajaProgreso caja(entorno.textos, padre);
  MediosTrabajo medios;
  medios.sigue = [&caja](const Avance& avance) { return caja.Sigue(avance); };
  return faena(medios);
}

void DiFallos(const Entorno& entorno, QWidget* padre, const std::vector<std::string>& fallos) {
  if (fallos.empty()) return;
  std::string texto;
  for (std::size_t i = 0; i < fallos.size() && i < kFallosDichos; ++i) texto += fallos[i] + "\n";
  if (fallos.size() > kFallosDichos) {
    texto +=
        entorno.textos.Compone(txt::FallosDeMas, {std::to_string(fallos.size() - kFallosDichos)});
  }
  Avisa(padre, entorno.textos, Q(texto), Rotulo(entorno.textos.Texto(txt::ErrorEnEjecucion)));
}

// What is done with a summary: the run for the screen, and the one for each listing.
struct Calculo {
  Faena resume;
  std::function<ResultadoTrabajo(TipoListado, DestinoHojas&, const MediosTrabajo&)> lista;
};

// The listing for a screen that waits; a Tramo that stopped it is told.
void Lista(const Entorno& entorno, QWidget* padre, const Calculo& calculo, TipoListado tipo,
           DestinoHojas& hojas) {
  const auto r = ConProgreso(entorno, padre, [&](const MediosTrabajo& medios) {
    return calculo.lista(tipo, hojas, medios);
  });
  if (r.fin == FinTrabajo::NoEmpieza || r.fin == FinTrabajo::Cancelado) throw DocumentoCancelado{};
  if (r.fin == FinTrabajo::Detenido) {
    Avisa(padre, entorno.textos, Q(entorno.textos.Compone(txt::ListadoDetenido, {r.detenido})));
  }
}

void Calcula(const Entorno& entorno, QWidget* padre, const std::function<QString()>& nombre,
             const Calculo& calculo) {
  auto r = ConProgreso(entorno, padre, calculo.resume);
  if (r.fin == FinTrabajo::NoEmpieza) return;
  DiFallos(entorno, padre, r.fallos);
  QWidget* pantalla = padre;  // the summary, once it is there
  frEscribePantalla resumen(entorno,
                            {std::move(r.resumen), r.hayPostesado, nombre(), std::move(r.aviso),
                             [&](TipoListado tipo, DestinoHojas& hojas) {
                               Lista(entorno, pantalla, calculo, tipo, hojas);
                             }},
                            padre);
  pantalla = &resumen;
  resumen.exec();
}

std::string NombreObra(const Captura& c) {
  return std::filesystem::path(c.e.obra.NombreFichero).stem().string();
}

}  // namespace

void CalculaElTramo(Captura& c, const Entorno& entorno, QWidget* padre) {
  const auto nombre = [&] {
    return Q(entorno.textos.Compone(txt::NombreDelTramo,
                                    {NombreObra(c), TextoEntero(c.e.tramo.NumeroTramo)}));
  };
  Calcula(entorno, padre, nombre,
          {[&c](const MediosTrabajo& medios) { return ResumeTramo(c, medios); },
           [&c](TipoListado tipo, DestinoHojas& hojas, const MediosTrabajo& medios) {
             return ListaTramo(c, tipo, hojas, medios);
           }});
}

void ImprimeLaObra(Captura& c, const Entorno& entorno, QWidget* padre) {
  Calcula(entorno, padre, [&c] { return Q(NombreObra(c)); },
          {[&c](const MediosTrabajo& medios) { return ResumeObra(c, medios); },
           [&c](TipoListado tipo, DestinoHojas& hojas, const MediosTrabajo& medios) {
             return ListaObra(c, tipo, hojas, medios);
           }});
}

}  // namespace zorbin
