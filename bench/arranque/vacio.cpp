// The measure of a start: a program with an empty window.
#include <QMainWindow>

#include "arranque/mdPrimeraVista.h"

int main(int argumentos, char** palabras) {
  QApplication aplicacion(argumentos, palabras);
  QMainWindow ventana;
  ventana.resize(1180, 720);
  const zorbin::PrimeraVista vista(ventana);
  ventana.show();
  return QApplication::exec();
}
