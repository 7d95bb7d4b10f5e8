#include "listados/obra/mdListado.h"

namespace zorbin {

namespace {

bool CierraAltura(const ResultadoTramo& r, std::size_t i) {
  const bool ultima = i + 1 == r.filas.size() || r.filas[i + 1].altura != r.filas[i].altura;
  return ultima && r.Altura(r.filas[i]).acabada;
}

}  // namespace

void LeeCaso(const ResultadoTramo& resultado, std::size_t i,
             const std::function<void(const VistaCaso&)>& lee) {
  const FilaCaso& fila = resultado.filas[i];
  const ResultadoCaso caso = CasoEntero(resultado, fila);
  lee({resultado, fila, resultado.Altura(fila), caso, i == 0, fila.NumCaso == 1,
       CierraAltura(resultado, i)});
}

bool RecorreCasos(const ResultadoTramo& resultado, const SigueListado& sigue,
                  const std::function<void(const VistaCaso&)>& lee) {
  for (std::size_t i = 0; i < resultado.filas.size(); ++i) {
    if (sigue && !sigue()) return false;
    LeeCaso(resultado, i, lee);
  }
  return true;
}

const FalloCorrida* CasoRoto(const ResultadoTramo& resultado) {
  return resultado.fallo && resultado.fallo->empezado ? &*resultado.fallo : nullptr;
}

}  // namespace zorbin
