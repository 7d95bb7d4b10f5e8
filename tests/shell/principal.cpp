// The tests of the screens run without a display, with settings of their own.
#include <gtest/gtest.h>
#include <QLocale>
#include <QTemporaryDir>
#include <cstdlib>

#include "programas/zorbin/mdAplicacion.h"

int main(int argumentos, char** palabras) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  // The toolkit remembers folders of its dialogs: those of the tests are nobody's.
  const QTemporaryDir carpeta;
  qputenv("XDG_CONFIG_HOME", carpeta.path().toUtf8());
  qputenv("XDG_STATE_HOME", carpeta.path().toUtf8());
  qputenv("XDG_DATA_HOME", carpeta.path().toUtf8());
  zorbin::Aplicacion aplicacion(argumentos, palabras);
  QLocale::setDefault(QLocale(QLocale::Spanish, QLocale::Spain));
  ::testing::InitGoogleTest(&argumentos, palabras);
  return RUN_ALL_TESTS();
}
