#include "shell/informe/frPasos.h"

#include <QApplication>
#include <QClipboard>
#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

#include "base/textos.h"
#include "shell/informe/mdVistaInforme.h"
#include "shell/piezas/mdQt.h"

namespace zorbin {

namespace {

constexpr QSize kVentana{840, 860};

}  // namespace

frPasos::frPasos(const Entorno& entorno, const ResultadoTramo& resultado, const FilaCaso& fila,
                 EstiloNumeros estilo, QWidget* padre)
    : QDialog(padre), texto_(TextoDePasos(resultado, fila, entorno.textos, estilo)) {
  setObjectName(QStringLiteral("frPasos"));
  setWindowTitle(Rotulo(entorno.textos.Texto(txt::InfPasoAPaso)));
  auto* vista = new VistaInforme(this);
  vista->Pon(ComponePasos(resultado, fila, entorno.textos, estilo));
  auto* copia = new QPushButton(Rotulo(entorno.textos.Texto(txt::ResumenCopiar)), this);
  copia->setObjectName(QStringLiteral("btCopiaPasos"));
  auto* cierra = new QPushButton(Rotulo(entorno.textos.Texto(txt::BotonCerrar)), this);
  connect(copia, &QPushButton::clicked, this,
          [this] { QApplication::clipboard()->setText(Q(texto_)); });
  connect(cierra, &QPushButton::clicked, this, &QDialog::accept);
  auto* botones = new QHBoxLayout;
  botones->addStretch();
  botones->addWidget(copia);
  botones->addWidget(cierra);
  auto* filas = new QVBoxLayout(this);
  filas->addWidget(vista);
  filas->addLayout(botones);
  resize(kVentana);
}

}  // namespace zorbin
