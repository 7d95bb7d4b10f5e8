#include "programas/zorbin/mdSinPantalla.h"

#include <QLocale>
#include <QStringList>
#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "base/mdCarpetas.h"
#include "base/mdCatalogo.h"
#include "base/textos.h"

namespace zorbin {

namespace {

constexpr std::array<const char*, kIdiomas> kLenguas{"es", "en", "ca", "pt", "fr"};
constexpr int kNoEmpieza = 1;

// The handler of the toolkit is a function: what it has to keep has no other place.
QStringList& Avisos() {
  static QStringList avisos;
  return avisos;
}

// What the toolkit went by.
std::string Entorno() {
  for (const char* variable : {"QT_QPA_PLATFORM", "WAYLAND_DISPLAY", "DISPLAY"}) {
    const char* valor = std::getenv(variable);
    if (valor != nullptr && *valor != '\0') return std::string(variable) + "=" + valor;
  }
  return "DISPLAY=";
}

std::string Frase(const QString& original) {
  try {
    Catalogo textos = Catalogo::Lee(CarpetaRecursos() / "textos");
    textos.PonIdioma(IdiomaDelSistema());
    return textos.Compone(txt::SinPantalla, {Entorno()});
  } catch (const ErrorCatalogo&) {
    return original.toStdString();
  }
}

void Oye(QtMsgType tipo, const QMessageLogContext&, const QString& texto) {
  if (tipo != QtFatalMsg) {
    Avisos() << texto;
    return;
  }
  std::fprintf(stderr, "%s\n", Frase(texto).c_str());
  std::_Exit(kNoEmpieza);  // the toolkit aborts as soon as this returns
}

}  // namespace

std::int16_t IdiomaDelSistema() {
  for (const auto& lengua : QLocale::system().uiLanguages()) {
    const auto i = std::find(kLenguas.begin(), kLenguas.end(), lengua.left(2));
    if (i != kLenguas.end()) return static_cast<std::int16_t>(i - kLenguas.begin() + 1);
  }
  return 1;
}

EsperaPantalla::EsperaPantalla() : antes_(qInstallMessageHandler(Oye)) {}

EsperaPantalla::~EsperaPantalla() {
  qInstallMessageHandler(antes_);
  for (const auto& aviso : Avisos()) qWarning("%s", qUtf8Printable(aviso));
  Avisos().clear();
}

}  // namespace zorbin
