// The desktop program: zorbin [OBRA.zrb]
#include <QApplication>
#include <QFileInfo>
#include <QIcon>
#include <QMessageBox>

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
  QApplication aplicacion(argumentos, palabras);
  QApplication::setWindowIcon(QIcon::fromTheme(QStringLiteral("zorbin")));
  try {
    zorbin::Programa programa(std::make_unique<zorbin::Preferencias>());
    programa.Empieza();
    const auto lista = QApplication::arguments();
    if (lista.size() > 1) programa.ventana().Abre(QFileInfo(lista[1]).absoluteFilePath());
    return QApplication::exec();
  } catch (const std::exception& error) {
    return NoPuedeEmpezar(zorbin::Q(error.what()));
  }
}
