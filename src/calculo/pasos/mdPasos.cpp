#include "calculo/pasos/mdPasos.h"

#include <algorithm>

#include "base/textos.h"
#include "calculo/cargas/mdMarston.h"
#include "calculo/cargas/mdTablaCargas.h"
#include "calculo/corrida/mdCalculaTramo.h"
#include "calculo/corrida/mdRango.h"

namespace zorbin {

namespace {

static_assert(txt::PasosTitulo.size() == kApartados);

bool EsTabla(Apartado a) {
  return a == Apartado::Terminos || a == Apartado::TerminosUnMetro ||
         a == Apartado::Combinaciones || a == Apartado::Hipotesis || a == Apartado::Tensiones;
}

// Steps of a check keep together; those of a table share their group.
bool MismoGrupo(const LugarPaso& a, const LugarPaso& b) {
  if (a.apartado != b.apartado) return false;
  if (a.apartado == Apartado::Tensiones) return a.hipotesis == b.hipotesis;
  return EsTabla(a.apartado) || (a.hipotesis == b.hipotesis && a.seccion == b.seccion);
}

PasosCaso EnGrupos(std::vector<Paso> pasos) {
  std::stable_sort(pasos.begin(), pasos.end(), [](const Paso& a, const Paso& b) {
    return a.lugar.apartado < b.lugar.apartado;
  });
  PasosCaso x;
  for (auto& paso : pasos) {
    auto& grupos = x.grupos;
    if (grupos.empty() || !MismoGrupo(grupos.back().lugar, paso.lugar)) {
      grupos.push_back({paso.lugar, EsTabla(paso.lugar.apartado), {}});
      if (grupos.back().tabla) grupos.back().lugar.seccion = 0;
    }
    grupos.back().pasos.push_back(std::move(paso));
  }
  return x;
}

}  // namespace

int TituloDe(Apartado apartado) {
  return txt::PasosTitulo[static_cast<std::size_t>(apartado)];
}

PasosCaso PasosDelCaso(const ResultadoTramo& tramo, const FilaCaso& fila) {
  Rastro rastro;
  CasoEntero(tramo, fila, &rastro);
  return EnGrupos(rastro.Suelta());
}

}  // namespace zorbin
