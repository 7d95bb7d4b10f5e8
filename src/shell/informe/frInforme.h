// The report that one signs: what its cover says, how far it goes, and the way to the screen and to
// a file.
#pragma once

#include <QDialog>

#include "listados/informe/mdInforme.h"
#include "sesion/captura/mdCaptura.h"
#include "sesion/trabajo/mdTrabajo.h"
#include "shell/piezas/mdEntorno.h"
#include "shell/piezas/mdFaena.h"

class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;

namespace zorbin {

class frInforme : public QDialog {
  Q_OBJECT

 public:
  frInforme(Captura& c, const Entorno& entorno, QWidget* padre = nullptr);

  /// What stands in the fields of the cover.
  PortadaObra Portada() const;
  /// Takes the cover into the Obra, as a step that can be undone.
  void TomaPortada();
  /// Calculates the Obra and lays the report out, off the thread of the window. @return none where
  /// the person gave up, or something was told
  std::optional<Informe> Compone();
  /// A picture for the cover. @return false where it is none, which is told
  bool PonLogo(const QString& ruta);

 private:
  Captura& c_;
  const Entorno& entorno_;
  QLineEdit* autor_;
  QLineEdit* revisor_;
  QLineEdit* revision_;
  QLineEdit* fecha_;
  QLabel* logo_;
  QPushButton* quita_;
  QComboBox* detalle_;
  std::string bytesLogo_;

  QString Tx(int n) const;
  void MuestraLogo();
  void EligeLogo();
  void VistaPrevia();
  void Pdf();
  /// @param acaba  what is done with the report on the thread of the work
  bool Haz(const QString& donde, const std::function<void(Informe&, MarchaFaena&)>& acaba);
};

}  // namespace zorbin
