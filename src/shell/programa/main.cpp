// The desktop program: zorbin [OBRA.zrb]
#include <QApplication>
#include <QFileInfo>
#include <QIcon>
#include <QMessageBox>
#include <cstdio>
#include <cstring>

#include "shell/piezas/mdQt.h"
#include "shell/programa/mdPrograma.h"

namespace {

// Before there is a catalogue, or without one, there is only this box.
int NoPuedeEmpezar(const QString& causa) {
  QMessageBox::critical(nullptr, QStringLiteral("ZORBIN"), causa);
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
  QApplication aplicacion(argumentos, palabras);
  QApplication::setWindowIcon(QIcon::fromTheme(QStringLiteral("zorbin")));
  try {
    zorbin::Programa programa(std::make_unique<zorbin::Preferencias>());
    const auto lista = QApplication::arguments();
    programa.Empieza(lista.size() > 1 ? QFileInfo(lista[1]).absoluteFilePath() : QString());
    return QApplication::exec();
  } catch (const std::exception& error) {
    return NoPuedeEmpezar(zorbin::Q(error.what()));
  }
}
