// The screen on which the printer and its copies are chosen.
#pragma once

#include <QDialog>

#include "shell/impresion/mdImpresora.h"

class QLineEdit;
class QListWidget;

namespace zorbin {

class frImpresoras : public QDialog {
  Q_OBJECT

 public:
  frImpresoras(const Catalogo& textos, Preferencias& preferencias, const Impresora& impresora,
               QWidget* padre = nullptr);

  /// Takes one of the machine's printers, or kImpresoraPdf, as the printer of the program, with the
  /// copies. A printer that is gone is told. @return whether it was taken
  bool Establecer(const QString& nombre, int copias);

  /// "Aceptar": checks the copies, takes the printer and says which, and closes.
  void accept() override;

 private:
  const Catalogo& textos_;
  Preferencias& preferencias_;
  const Impresora& impresora_;
  QListWidget* lista_;
  QLineEdit* tbCopias_;

  QString Tx(int n) const;
  void LlenaLista(const QString& elegida);
  QString Elegida() const;
  void CambiaEleccion();
  bool ValidarNumeroCopias(int& copias);
};

}  // namespace zorbin
