// The tests of the screens run without a display, with settings of their own.
#include <gtest/gtest.h>
#include <QApplication>
#include <QLocale>
#include <QStandardPaths>
#include <cstdlib>

int main(int argumentos, char** palabras) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QStandardPaths::setTestModeEnabled(true);
  QApplication aplicacion(argumentos, palabras);
  QLocale::setDefault(QLocale(QLocale::Spanish, QLocale::Spain));
  ::testing::InitGoogleTest(&argumentos, palabras);
  return RUN_ALL_TESTS();
}
