#include "shell/captura/mdDibujoDatos.h"

#include <QVBoxLayout>

namespace zorbin {

DibujoDatos::DibujoDatos(const Entorno& entorno, QWidget* padre)
    : VistaLamina(entorno, {240, 200}, padre) {
  DejaLaRueda();
}

void DibujoDatos::PonDibujo(Dibuja dibuja) {
  dibujo_ = dibuja;
  Pon(std::move(dibuja));
  emit renovado();
}

void DibujoDatos::mouseDoubleClickEvent(QMouseEvent*) {
  emit dobleClic();
}

frDibujo::frDibujo(const Entorno& entorno, DibujoDatos& pequeno, const QString& titulo,
                   QWidget* padre)
    : QDialog(padre) {
  setObjectName(QStringLiteral("frDibujo"));
  setWindowTitle(titulo);
  setAttribute(Qt::WA_DeleteOnClose);
  auto* vista = new VistaLamina(entorno, {400, 300}, this);
  vista->setAccessibleName(titulo);
  vista->Pon(pequeno.dibujo());
  connect(&pequeno, &DibujoDatos::renovado, vista,
          [vista, &pequeno] { vista->Pon(pequeno.dibujo()); });
  connect(&pequeno, &QObject::destroyed, this, &QDialog::close);
  auto* filas = new QVBoxLayout(this);
  filas->addWidget(vista);
  resize(900, 640);
}

}  // namespace zorbin
