// A report as a PDF/A-1b file, with outline and links.
#pragma once

#include <filesystem>

#include "listados/informe/mdInforme.h"

namespace zorbin {

/// The bytes of the file. @throws InformeCancelado
std::string PdfDeInforme(const Informe& informe, const SigueInforme& sigue = {});

/// The file takes its name when it is whole. @throws ErrorPintor, InformeCancelado
void EscribeInforme(const std::filesystem::path& fichero, const Informe& informe,
                    const SigueInforme& sigue = {});

}  // namespace zorbin
