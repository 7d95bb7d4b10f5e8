// What the capture screen shows, without widgets: a window draws this and decides nothing.
#pragma once

#include <array>
#include <string>
#include <utility>
#include <vector>

#include "sesion/captura/mdCampos.h"

namespace zorbin {

/// State of a field. A window draws `gris` as a grey background.
struct Control {
  std::string texto;
  std::string etiqueta;               // label, in the language and units in force
  std::string grupo;                  // caption of the frame around it, if any
  std::string consejo;                // tip
  std::string falta;                  // what is wrong with what stands in it; else empty
  bool rehusado = false;              // what stands in it is not the datum: its rule refuses it
  std::vector<std::string> entradas;  // of a list, and values offered by the dimensions
  int opcion = -1;                    // chosen option from 0, -1 none; of a tick box 0 or 1
  bool habilitado = true;
  bool etiquetaHabilitada = true;
  bool bloqueado = false;  // can be entered, not changed
  bool gris = false;
  bool tabulador = true;      // reached with the tab key
  bool seleccionado = false;  // the whole content is selected, so that typing replaces it
  bool tocado = false;        // changed by a person since the program wrote it
};

/// Buttons of the screen and entries of the menus.
enum class Orden : int {
  btNuevoTramo,
  btCancelar,
  btAjustar,
  btCalcular,
  btCerrarObra,
  btGrabaObra,
  btImprimir,
  MnAbriFichero,
  MnNuevaObra,
  mnCerrarObra,
  mnGrabaObra,
  mnTramos,
  MnImprimir,
  MnSeleccionarImpresora,
  mnSalir,
  mnNuevoTramo,
  mnCancelar,
  mnCalculaTramo,
  mnAjustarArmaduras,
  mnGrabarComo,
  mnDuplicaTramos,
  mnBorraTramos,
  mnSubeTramos,
  mnBajaTramos,
  mnRenumeraTramo,
  mnRenumeraTodos,
  mnCopiaTramos,
  mnPegaTramos,
};
inline constexpr int kOrdenes = static_cast<int>(Orden::mnPegaTramos) + 1;

/// A notice of what is unusual in the data. It refuses nothing.
struct AvisoDeCampo {
  Ed campo = Ed::edObra;  // near which it is told
  std::string texto;
  /// Values offered in place of what stands in some fields; none for no offer.
  std::vector<std::pair<Ed, double>> remedio = {};
  std::string boton = {};  // that takes them
};

struct Modelo {
  std::array<Control, kCamposCaptura> controles;
  std::array<bool, kOrdenes> habilitadas{};
  Paginas pagina{0, 0, 0, 0};  // in front on each tab
  Ed foco = Ed::edObra;
  std::string titulo;
  std::string textoCancelar;         // of btCancelar: cancel what is new, or reread
  std::vector<AvisoDeCampo> avisos;  // of all the pages

  Control& operator[](Ed id) { return controles[static_cast<std::size_t>(id)]; }
  const Control& operator[](Ed id) const { return controles[static_cast<std::size_t>(id)]; }
  bool Habilitada(Orden o) const { return habilitadas[static_cast<std::size_t>(o)]; }
};

}  // namespace zorbin
