// The desktop program: zorbin [OBRA.zrb]
#include <QFileInfo>
#include <QIcon>
#include <QMessageBox>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <memory>

#include "programas/zorbin/mdAplicacion.h"
#include "programas/zorbin/mdPrograma.h"
#include "programas/zorbin/mdSinPantalla.h"
#include "shell/piezas/mdQt.h"

namespace {

// Before there is a catalogue, or without one, there is only this box.
int NoPuedeEmpezar(const QString& causa) {
  QMessageBox caja(QMessageBox::Critical, QStringLiteral("ZORBIN"), QString());
  caja.setTextFormat(Qt::PlainText);
  caja.setText(causa);
  caja.exec();
  return 1;
}

}  // namespace

int main(int argumentos, char** palabras) {
  QApplication::setOrganizationName(QStringLiteral("ZORBIN"));
  QApplication::setApplicationName(QStringLiteral("ZORBIN"));
  QApplication::setApplicationVersion(QStringLiteral(ZORBIN_VERSION));
  QApplication::setDesktopFileName(QStringLiteral("zorbin"));
  // Told without a display too.
  if (argumentos == 2 && std::strcmp(palabras[1], "--version") == 0) {
    std::puts("zorbin " ZORBIN_VERSION);
    return 0;
  }
  if (argumentos == 2 && std::strcmp(palabras[1], "--help") == 0) {
    std::puts("zorbin [OBRA.zrb]");
    return 0;
  }
  std::signal(SIGXFSZ, SIG_IGN);  // a file that may not grow is told as a disk that is full
  std::signal(SIGPIPE, SIG_IGN);  // so is a print server that goes away
  auto espera = std::make_unique<zorbin::EsperaPantalla>();
  zorbin::Aplicacion aplicacion(argumentos, palabras);
  espera.reset();
  QApplication::setWindowIcon(QIcon::fromTheme(QStringLiteral("zorbin")));
  try {
    zorbin::Programa programa(std::make_unique<zorbin::Preferencias>());
    aplicacion.PonVoz([&programa](const std::exception* error) { programa.DiFallo(error); });
    const auto lista = QApplication::arguments();
    programa.Empieza(lista.size() > 1 ? QFileInfo(lista[1]).absoluteFilePath() : QString());
    const int codigo = QApplication::exec();
    aplicacion.PonVoz({});
    return codigo;
  } catch (const std::exception& error) {
    aplicacion.PonVoz({});
    return NoPuedeEmpezar(zorbin::Q(error.what()));
  }
}
