// From a project file to the results of its Tramos: loads each Tramo in turn, runs it and hands
// everything to one reader. It knows files and the run; what is written is the reader's.
#pragma once

#include <filesystem>
#include <map>
#include <vector>

#include "calculo/corrida/mdCorrida.h"
#include "persistencia/zrb/mdZrb.h"

namespace zorbin {

/// A reader of a whole Obra: the calls of a run stand between those of its Tramo.
class OyenteObra : public OyenteCorrida {
 public:
  /// The Tramo stands in the state in capture units. `numero` is its text in the list.
  virtual void EmpiezaTramo(const EstadoCalculo&, int posicion, const std::string& numero) = 0;
  /// The run ended, with a failure or without (null); the state holds capture units again.
  virtual void AcabaTramo(const EstadoCalculo&, const ErrorCorrida* fallo) = 0;
};

/// An open Obra: its file and its list of Tramos.
struct ObraEnFichero {
  FicheroRegistros fichero;
  ListaTramos lista;
  std::vector<Mensaje> avisos;
};

/// Opens an Obra into a clean state, and reads every Tramo once so that a damaged file is refused
/// before anything of it is calculated. The hand adjustments stored beside it come with it; a file
/// of theirs that is refused leaves `corrida.SinAjustes` and says why in `avisos`.
/// @throws ErrorFichero
ObraEnFichero AbreObra(EstadoCalculo& e, const std::filesystem::path& ruta);

/// Position of the Tramo with a number, from 1; 0 when the list does not have it.
int PosicionDe(const ListaTramos& lista, int numero);

struct PeticionCalculo {
  std::vector<int> posiciones;             // empty: the whole Obra
  std::filesystem::path carpetaRegistros;  // of the debug log
  std::vector<int> omitidas{};             // positions left out of either
  std::map<int, Tramo> comprobados{};      // data to run instead of the stored ones, by position
};

/// Runs the Tramos of the request in the order given, or all in file order. In a run of the whole
/// Obra the state's NumeroTramo counts positions, in one of chosen Tramos it is the number.
/// A failure ends the run of its Tramo only.
/// @throws ErrorFichero for a Tramo that cannot be read
void CalculaObra(EstadoCalculo& e, const ObraEnFichero& obra, const PeticionCalculo& peticion,
                 OyenteObra& oyente);

}  // namespace zorbin
