// The warnings that the program shows on its own: its right of use, how to get a viewer of PDF
// files, what to know before the Memoria Técnica.
#pragma once

#include <QDialog>

#include "shell/ayuda/mdDocumento.h"
#include "shell/piezas/mdEntorno.h"

class QCheckBox;

namespace zorbin {

enum class ModoAviso { DerechoDeUso = 1, InstalarVisor = 2, MemoriaTecnica = 3 };

/// Whether the person wants the warning; the one without a setting always.
bool QuiereAviso(const Preferencias& preferencias, ModoAviso modo);

class frmTip : public QDialog {
  Q_OBJECT

 public:
  /// @param modo  one that is not 2 or 3 counts as 1
  frmTip(const Entorno& entorno, int modo, const DocumentoHtml& documento, QWidget* padre);
  frmTip(const Entorno& entorno, ModoAviso modo, const DocumentoHtml& documento, QWidget* padre);

 protected:
  void showEvent(QShowEvent* suceso) override;

 private:
  QCheckBox* Casilla(const Entorno& entorno, ModoAviso modo);
};

}  // namespace zorbin
