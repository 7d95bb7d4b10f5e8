// Shows the Memoria Técnica, a PDF file, in the viewer of the machine.
#pragma once

#include <QUrl>
#include <filesystem>
#include <functional>

#include "shell/ayuda/frmTip.h"
#include "shell/ayuda/mdVisorPdf.h"
#include "shell/piezas/mdEntorno.h"

namespace zorbin {

struct MemoriaTecnica {
  std::filesystem::path ruta;  // of the file; empty when it was not found
  CarpetasEscritorio carpetas;
  DocumentoHtml documento;  // of the warnings
  /// Hands the file over to the machine. @return whether it was taken
  std::function<bool(const QUrl&)> abre = AbreConElEscritorio;

  static bool AbreConElEscritorio(const QUrl& fichero);
};

/// Whatever keeps it from being shown is told.
void MuestraMemoria(const Entorno& entorno, const MemoriaTecnica& memoria, QWidget* padre);

}  // namespace zorbin
