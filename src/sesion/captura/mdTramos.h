// The Tramos of an Obra: taking one in hand, new ones, copies, their order and their numbers. Each
// is a step that can be undone.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "sesion/captura/mdCaptura.h"

namespace zorbin {

/// The Tramo whose data the screen shows from now on; 0 for none. What is in hand stays as it is
/// in its version.
void PonEnMano(Captura& c, int id);
/// Shows the data of the state again: those of the Obra, and those of the Tramo in hand.
void MuestraTodo(Captura& c);

/// A new Tramo with the defaults of its typology, at the end, in hand.
/// @return false where no more fit, which is told
bool NuevoTramo(Captura& c);
/// Copies after the last of them, with numbers of their own; the first one in hand.
bool DuplicaTramos(Captura& c, const std::vector<int>& ids);
/// Tramos with numbers of their own at the end, the first one in hand. @param nombre  of the step
void AnadeTramos(Captura& c, std::vector<TramoEnObra> tramos, std::string nombre);
void BorraTramos(Captura& c, const std::vector<int>& ids);
/// One place towards the beginning (-1) or the end (1). @return whether they could
bool MueveTramos(Captura& c, const std::vector<int>& ids, int paso);
/// Together, in their order, before another one.
/// @param antesDe  id; 0 for the end
bool LlevaTramos(Captura& c, const std::vector<int>& ids, int antesDe);
/// Gives a Tramo another number. @return why it may not have it; empty where it has
std::string RenumeraTramo(Captura& c, int id, const std::string& numero);
/// Numbers 1, 2, 3... in the order of the list.
void RenumeraTodos(Captura& c);

/// The Tramo in hand as the file holds it; one that is not in the file goes away.
void Relee(Captura& c);

/// Leaving edTramo with a number: takes that Tramo in hand; 0 makes a new one.
SalidaCampo EligeTramo(Captura& c);

/// Tramos as a table separated by tabulators, with heads, for another Obra or a spreadsheet.
std::string CopiaTramos(const Captura& c, const std::vector<int>& ids);

/// What came of a table of Tramos. Nothing is pasted where there is a fault.
struct Pegado {
  int tramos = 0;
  std::vector<std::string> faltas;  // each with its row and column
};
Pegado PegaTramos(Captura& c, std::string_view tabla);

/// A Tramo of the list in the words of the language in force.
struct RenglonTramo {
  int id = 0;
  std::string numero;
  std::string descripcion;
  std::string tipologia;
  std::string Di;   // [m]
  std::string Esp;  // [cm]
  std::string colocacion;
  bool sinGrabar = false;
  bool conFaltas = false;  // a field of it is refused, or its block cannot be read
};
std::vector<RenglonTramo> RenglonesTramos(const Captura& c);

}  // namespace zorbin
