// The start of the desktop program, to its usable window. Settings in a folder of its own.
#include <QFile>
#include <QTemporaryDir>

#include "arranque/mdPrimeraVista.h"
#include "programas/zorbin/mdPrograma.h"

int main(int argumentos, char** palabras) {
  QApplication aplicacion(argumentos, palabras);
  const QTemporaryDir carpeta;
  // Settings as a second start finds them.
  QFile maquina(carpeta.filePath("maquina.ini"));
  if (!maquina.open(QIODevice::WriteOnly) || maquina.write("[General]\nIdioma=1\n") < 0) return 1;
  maquina.close();
  auto preferencias =
      std::make_unique<zorbin::Preferencias>(carpeta.filePath("usuario.ini"), maquina.fileName());
  zorbin::Programa programa(std::move(preferencias));
  const zorbin::PrimeraVista vista(programa.ventana());
  programa.ventana().show();
  return QApplication::exec();
}
