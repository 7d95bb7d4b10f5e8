// The table of Casos as it is shown, into a file for a spreadsheet.
#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "sesion/captura/mdVersion.h"
#include "sesion/resultados/mdCasos.h"

namespace zorbin {

struct TablaDeLaObra {
  const CasosObra& casos;
  const std::vector<std::uint32_t>& orden;  // the Casos in sight
  const std::vector<Columna>& columnas;
  const Version& version;                   // that was calculated
  const std::vector<int>& ids;              // of its Tramos, as they were calculated
  const std::vector<std::string>& numeros;  // their texts
};

/// Writes it as the extension of the file says.
/// @param sigue  asked now and then, with the Casos written, whether to go on; what it throws
/// leaves no file
/// @throws ErrorSalida
void ExportaTabla(const TablaDeLaObra& tabla, const PalabrasDibujo& palabras,
                  const std::filesystem::path& fichero,
                  const std::function<void(std::size_t)>& sigue = {});

}  // namespace zorbin
