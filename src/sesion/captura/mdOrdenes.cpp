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
  const bool fichero = obra && c.e.obra.ObraAbierta;
  const bool tramo = obra && !c.SinTramoEnMano();
  const bool armado = c.pantalla.pagina.TabTipologia == 0;
  Pon(c, {Orden::mnSalir}, true);
  Pon(c, {Orden::MnAbriFichero, Orden::MnNuevaObra}, !obra);
  Pon(c,
      {Orden::mnCerrarObra, Orden::mnGrabaObra, Orden::mnTramos, Orden::btCerrarObra,
       Orden::btGrabaObra},
      obra);
  Pon(c, {Orden::MnImprimir, Orden::MnSeleccionarImpresora, Orden::btImprimir}, fichero);
  Pon(c, {Orden::mnNuevoTramo, Orden::btNuevoTramo}, obra && !c.EnAltas());
  Pon(c,
      {Orden::mnCancelar, Orden::mnGrabaTramo, Orden::mnCalculaTramo, Orden::btCancelar,
       Orden::btGrabar, Orden::btCalcular},
      tramo);
  Pon(c, {Orden::mnAjustarArmaduras, Orden::btAjustar}, tramo && armado);
}

}  // namespace zorbin
