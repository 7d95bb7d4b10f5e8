// The order "valida", and the validation that stands before a calculation.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "sesion/captura/mdFaltas.h"

namespace zorbin {

struct OpcionesValida {
  std::filesystem::path obra;
  std::vector<int> tramos;       // numbers; empty for all
  std::filesystem::path tablas;  // folder of the manufacturers' tables; empty for the program's
  std::string separador;         // "coma", "punto" or empty for the machine's
};

/// Lists the faults of an Obra on standard output, each in a line, and the questions that were
/// answered "go on" and the notices on standard error.
/// @return an exit code; what went wrong has been told on standard error.
int Valida(const OpcionesValida& opciones, Catalogo& textos);

/// Faults of the chosen Tramos, told in the language of the Obra; the catalogue keeps its own.
/// @param tablas  folder; empty for the program's
/// @throws ErrorFichero for tables that cannot be read
ListaFaltas BuscaFaltas(const Proyecto& proyecto, const std::filesystem::path& tablas,
                        const PeticionValida& peticion, const Catalogo& textos);

/// A fault, and a notice, in one line.
std::string TextoFalta(const FaltaDeObra& falta, const Catalogo& textos);
std::string TextoAviso(const AvisoDeObra& aviso, const Catalogo& textos);

}  // namespace zorbin
