// Data that come from a file into an Obra: what they would change, tried before anything does.
#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "persistencia/entrada/mdDatosLeidos.h"
#include "sesion/captura/mdCaptura.h"
#include "sesion/captura/mdVersion.h"

namespace zorbin {

/// Whether the name of a file is one of data: .json, .csv or .xlsx.
bool EsNombreDeDatos(const std::filesystem::path& fichero);

/// Reads such a file. @throws ErrorEntrada; ErrorFichero where it cannot be read
Entrada LeeDatos(const std::filesystem::path& fichero, const Catalogo& textos);

enum class Suerte { Nuevo, Cambia, Igual, Rechazado };

/// A datum of an import: what it was and will be, or why it is refused.
struct LineaImportada {
  std::string celda;  // where it stands in the file; empty where it does not
  std::string dato;
  std::string antes;
  std::string despues;  // of one refused, the value and what is allowed
  bool rechazada = false;
};

struct TramoImportado {
  std::string numero;  // empty for the Obra
  Suerte suerte = Suerte::Igual;
  std::vector<LineaImportada> lineas;
};

/// What came of trying it.
struct Importacion {
  Version version;                     // with all that is right
  int primero = 0;                     // id of the first Tramo that is new or changes; 0 for none
  TramoImportado obra;                 // its own data
  std::vector<TramoImportado> tramos;  // in the order of the file
  std::vector<std::string> avisos;     // what was passed over

  int Cuantos(Suerte suerte) const;
  bool HayRechazos() const;
  /// What is refused, a line each, with its Tramo, datum, value and what is allowed.
  std::vector<std::string> Rechazos(const Catalogo& textos) const;
};

struct PeticionImporta {
  const Catalogo& textos;
  const TablasCatalogo& tablas;
  char separador = ',';
  /// Faults of the Obra itself are refusals too: it is to be written as it stands.
  bool conObra = true;
  int ultimoId = 0;  // new Tramos have ids above it
};

/// Tries the data on a version of an Obra: a Tramo of a number that it has changes in what the file
/// says, another one is new, with the defaults of its typology and laying for what it does not.
/// Each is held to the rules of the capture, and one that they refuse stays as it was.
/// @throws ErrorEntrada for more Tramos than an Obra holds
Importacion PreparaImportacion(const Version& base, const Entrada& entrada,
                               const PeticionImporta& peticion);

/// Takes it into the capture as one step. @param nombre  of the step
void Importa(Captura& c, const Importacion& importacion, std::string nombre);

}  // namespace zorbin
