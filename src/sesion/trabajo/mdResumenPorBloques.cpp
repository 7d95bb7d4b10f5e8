#include "sesion/trabajo/mdResumenPorBloques.h"

#include <algorithm>
#include <mutex>
#include <sstream>

#include "base/mdTextos.h"
#include "base/textos.h"
#include "listados/obra/mdResumen.h"

namespace zorbin {

namespace {

void Nota(Pantalla& pantalla, const std::string& texto) {
  if (!texto.empty()) pantalla.EscribePantalla(1, "** " + texto + " **", 2);
}

// The end of the summary, where not everything was done.
std::string NotaFinal(const Calculo& calculo) {
  if (calculo.fin == FinTrabajo::Completo) return {};
  return calculo.encargo.textos.Compone(
      txt::TrabajoCancelado,
      {TextoEntero(calculo.cancelado.tramo), TextoEntero(calculo.cancelado.caso)});
}

}  // namespace

ResumenPorBloques::ResumenPorBloques(Calculo& calculo) : calculo_(calculo), comienzos_{1} {
  for (const auto& r : calculo.tramos) {
    comienzos_.push_back(comienzos_.back() + r.filas.size() + 1);
  }
}

std::size_t ResumenPorBloques::TramoDe(std::size_t bloque) const {
  const auto tras = std::ranges::upper_bound(comienzos_, bloque);
  return static_cast<std::size_t>(tras - comienzos_.begin()) - 1;
}

std::string ResumenPorBloques::Bloque(std::size_t i) {
  std::ostringstream flujo;
  try {
    const std::shared_lock lee(cerrojo_);
    if (const auto roto = rotos_.find(i); roto != rotos_.end()) return roto->second;
    Escribe(i, flujo);
  } catch (const ErrorEjecucion& error) {
    if (i == 0 || i >= comienzos_.back()) throw;
    const std::unique_lock escribe(cerrojo_);
    const auto tramo = TramoDe(i);
    calculo_.Rompe(tramo, i - comienzos_[tramo], error);
    rotos_[i] = flujo.str();
    cambia_ = true;
  }
  return std::move(flujo).str();
}

void ResumenPorBloques::Escribe(std::size_t i, std::ostream& flujo) const {
  const auto& encargo = calculo_.encargo;
  Pantalla pantalla(flujo);
  Resumen resumen(pantalla, encargo.textos, encargo.estilo);
  if (i == 0) {
    resumen.Veredictos(calculo_.tramos, calculo_.numeros);
    Nota(pantalla, encargo.sinAjustes);
    for (const auto& rechazado : encargo.rechazados) Nota(pantalla, rechazado);
  } else if (i >= comienzos_.back()) {
    Nota(pantalla, NotaFinal(calculo_));
  } else {
    EscribeDelTramo(TramoDe(i), i, pantalla, resumen);
  }
}

void ResumenPorBloques::EscribeDelTramo(std::size_t tramo, std::size_t bloque, Pantalla& pantalla,
                                        Resumen& resumen) const {
  const auto& r = calculo_.tramos[tramo];
  const auto fila = bloque - comienzos_[tramo];
  if (fila == 0) resumen.Cabeza(r);
  if (fila < r.filas.size()) resumen.UnCaso(r, fila);
  if (bloque + 1 < comienzos_[tramo + 1]) return;
  try {
    if (!Roto(tramo)) resumen.Cola(r);
  } catch (const ErrorEjecucion&) {  // pressures that are no number; the note names the place
  }
  Nota(pantalla, calculo_.fallos[tramo]);
}

bool ResumenPorBloques::Roto(std::size_t tramo) const {
  const auto roto = rotos_.lower_bound(comienzos_[tramo]);
  return roto != rotos_.end() && roto->first < comienzos_[tramo + 1];
}

}  // namespace zorbin
