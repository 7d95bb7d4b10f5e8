#include "sesion/captura/mdOrdenes.h"

#include <initializer_list>

namespace zorbin {

namespace {

void Pon(Captura& c, std::initializer_list<Orden> ordenes, bool habilitadas) {
  for (const Orden o : ordenes) {
    c.pantalla.habilitadas[static_cast<std::size_t>(o)] = habilitadas;
  }
}

}  // namespace

void ActualizaMenus(Captura& c) {
  const bool obra = c.ObraCargada;
  const bool tramo = obra && !c.SinTramoEnMano();
  Pon(c, {Orden::mnSalir, Orden::MnAbriFichero, Orden::MnNuevaObra, Orden::MnSeleccionarImpresora},
      true);
  Pon(c,
      {Orden::mnCerrarObra, Orden::mnGrabaObra, Orden::mnGrabarComo, Orden::mnTramos,
       Orden::btCerrarObra, Orden::btGrabaObra, Orden::MnImprimir, Orden::btImprimir,
       Orden::mnNuevoTramo, Orden::btNuevoTramo, Orden::mnPegaTramos},
      obra);
  Pon(c,
      {Orden::mnCancelar, Orden::mnCalculaTramo, Orden::btCancelar, Orden::btCalcular,
       Orden::mnDuplicaTramos, Orden::mnBorraTramos, Orden::mnSubeTramos, Orden::mnBajaTramos,
       Orden::mnRenumeraTramo, Orden::mnRenumeraTodos, Orden::mnCopiaTramos},
      tramo);
  Pon(c, {Orden::mnAjustarArmaduras, Orden::btAjustar}, tramo && c.e.tramo.EsArmado);
}

}  // namespace zorbin
