// Validation of a stored Obra without a screen: the same rules on the same model, filled from what
// was read instead of by a person.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "persistencia/proyecto/mdProyecto.h"
#include "sesion/captura/mdCaptura.h"

namespace zorbin {

/// A fault of a stored Obra.
struct FaltaDeObra {
  int posicion = 0;     // of the Tramo, from 1; 0 for the Obra
  std::string numero;   // of the Tramo, as the list has it
  std::string campo;    // "edFck"
  std::string valor;    // text of the field
  std::string titulo;   // of the message; may be empty
  std::string mensaje;  // several lines at times
};

/// What is unusual, and refused by nothing.
struct AvisoDeObra {
  std::string numero;  // of the Tramo, as the list has it; empty for the Obra
  std::string campo;   // "edFck"
  std::string texto;
};

struct ListaFaltas {
  std::vector<FaltaDeObra> faltas;  // of the Obra first, then of the Tramos in their order
  std::vector<AvisoDeObra> avisos;  // of the Obra first, then of the Tramos without a fault
  Obra obra;                        // completed, in the units of its system
  std::map<int, Tramo> tramos;      // those without a fault, completed, by position

  bool Vale() const { return faltas.empty(); }
  /// Whether the Tramo at a position, from 1, has no fault; a fault of the Obra is a fault of all.
  bool Vale(int posicion) const;
};

struct PeticionValida {
  std::vector<int> posiciones;  // from 1; empty: every Tramo with a number
  char separador = ',';         // decimal separator of the texts
};

/// Pressures and heights of a validated Obra in another state of the same Obra.
void PonComprobada(Obra& obra, const Obra& comprobada);

/// Validates Obra and Tramos of a project, in the language of the catalogue.
ListaFaltas ValidaProyecto(const Proyecto& proyecto, const Catalogo& textos,
                           const TablasCatalogo& tablas, const PeticionValida& peticion);

}  // namespace zorbin
