#include "sesion/resultados/mdExporta.h"

#include "listados/datos/mdTablaCasos.h"

namespace zorbin {

void ExportaTabla(const TablaDeLaObra& t, const PalabrasDibujo& palabras,
                  const std::filesystem::path& fichero,
                  const std::function<void(std::size_t)>& sigue) {
  constexpr std::size_t kCada = 1024;
  const auto tabla = TablaPorNombre({t.version.obra, t.columnas}, palabras, fichero);
  for (std::size_t i = 0; i < t.orden.size(); ++i) {
    if (sigue && i % kCada == 0) sigue(i);
    const auto caso = t.orden[i];
    tabla->Caso(t.casos.Tramo(caso), t.casos.Fila(caso), t.casos.EnterasDe(caso));
  }
  for (std::size_t i = 0; i < t.ids.size(); ++i) {
    const auto* capturado = Busca(t.version, t.ids[i]);
    if (capturado == nullptr) continue;
    tabla->Tramo({t.casos.Tramos()[i], capturado->datos, t.numeros[i]});
  }
  if (sigue) sigue(t.orden.size());
  tabla->Termina();
}

}  // namespace zorbin
