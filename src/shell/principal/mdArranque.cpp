#include "shell/principal/mdArranque.h"

#include "base/textos.h"

namespace zorbin {

namespace {

constexpr int kSinIdioma = -1;
constexpr int kEspanol = 1;

}  // namespace

bool IdiomaPropio(Preferencias& preferencias, std::string_view accion, int valor, int& resultado) {
  if (accion == "LEELO") {
    resultado = preferencias.IdiomaPropio();
    return true;
  }
  if (accion == "GRABALO") {
    preferencias.GrabaIdioma(valor);
    return true;
  }
  return false;
}

int IdiomaAlEmpezar(Preferencias& preferencias, Catalogo& textos, int delEscritorio,
                    const std::function<bool(const std::string&)>& hayManual) {
  int idioma = kSinIdioma;
  IdiomaPropio(preferencias, "LEELO", 0, idioma);
  if (idioma == kSinIdioma) idioma = delEscritorio;
  // A language beyond the catalogue has no manual either.
  if (!hayManual(textos.LoadRes(txt::NombreManual + (idioma - 1) * kPasoIdioma))) idioma = kEspanol;
  return textos.PonIdioma(static_cast<std::int16_t>(idioma));
}

}  // namespace zorbin
