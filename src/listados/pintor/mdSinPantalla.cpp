#include "listados/pintor/mdSinPantalla.h"

#include <QGuiApplication>
#include <iostream>

namespace zorbin {

namespace {

// Where the session has no folder for sockets the toolkit says so, which is no news to anybody.
void Notas(QtMsgType, const QMessageLogContext&, const QString& texto) {
  if (!texto.startsWith(QLatin1String("QStandardPaths"))) std::cerr << texto.toStdString() << '\n';
}

}  // namespace

AplicacionSinPantalla::AplicacionSinPantalla() {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  qInstallMessageHandler(Notas);
  aplicacion_ = std::make_unique<QGuiApplication>(argumentos_, palabras_.data());
}

AplicacionSinPantalla::~AplicacionSinPantalla() = default;

}  // namespace zorbin
