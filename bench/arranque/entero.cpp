// The start of the desktop program, to its usable window. Settings in a folder of its own.
#include <QTemporaryDir>

#include "arranque/mdPrimeraVista.h"
#include "shell/programa/mdPrograma.h"

int main(int argumentos, char** palabras) {
  QApplication aplicacion(argumentos, palabras);
  const QTemporaryDir carpeta;
  auto preferencias = std::make_unique<zorbin::Preferencias>(carpeta.filePath("usuario.ini"),
                                                             carpeta.filePath("maquina.ini"));
  preferencias->GrabaIdioma(1);
  zorbin::Programa programa(std::move(preferencias));
  const zorbin::PrimeraVista vista(programa.ventana());
  programa.ventana().show();
  return QApplication::exec();
}
