// What an import would do to an Obra, cell by cell, before it does anything.
#pragma once

#include <QDialog>

#include "sesion/captura/mdImporta.h"
#include "shell/piezas/mdEntorno.h"

namespace zorbin {

/// Accepted: what is right is to be taken.
class frImporta : public QDialog {
  Q_OBJECT

 public:
  frImporta(const Entorno& entorno, const Importacion& importacion, QWidget* padre);
};

/// Asks for a file of data where none is given, reads it off the thread of the window, shows what
/// it would do and, if the person agrees, does it as one step. What is wrong is told.
/// @param ruta  empty to ask
/// @return whether anything was taken
bool ImportaFichero(Captura& c, const Entorno& entorno, QString ruta, QWidget* padre);

}  // namespace zorbin
