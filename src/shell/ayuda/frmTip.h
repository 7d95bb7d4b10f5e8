// The warnings that the program shows on its own: its right of use, how to get a viewer of PDF
// files, what to know before the Memoria Técnica.
#pragma once

#include <QDialog>
#include <functional>

#include "shell/piezas/mdEntorno.h"

class QCheckBox;

namespace zorbin {

/// HTML of the document that an entry of the catalogue names; empty when there is none.
using DocumentoHtml = std::function<QString(int entrada)>;

enum class ModoAviso { DerechoDeUso = 1, InstalarVisor = 2, MemoriaTecnica = 3 };

/// Whether the person wants the warning; the one without a setting always.
bool QuiereAviso(const Preferencias& preferencias, ModoAviso modo);

class frmTip : public QDialog {
  Q_OBJECT

 public:
  /// @param modo  one that is not 2 or 3 counts as 1
  frmTip(Entorno& entorno, int modo, const DocumentoHtml& documento, QWidget* padre);
  frmTip(Entorno& entorno, ModoAviso modo, const DocumentoHtml& documento, QWidget* padre);

 protected:
  void showEvent(QShowEvent* suceso) override;

 private:
  QCheckBox* Casilla(Entorno& entorno, ModoAviso modo);
};

}  // namespace zorbin
