// A draft of unsaved work: put into the capture, validated, taken again and written.
#include "fuzz/asiente.h"
#include "sesion/captura/mdBorrador.h"
#include "sesion/captura/mdCiclo.h"
#include "sesion/captura/mdComprueba.h"
#include "sesion/captura/mdPresenta.h"

namespace zorbin::hostil {

namespace {

void Pon(const Borrador& b) {
  EstadoCalculo e;
  Catalogo& textos = TextosParaCambiar();
  Asiente voz;
  Captura c(e, textos, Tablas(), voz, ',');
  PreparaPantalla(c);
  NuevaObra(c);
  PonBorrador(c, b);
  const Borrador tomado = TomaBorrador(c);
  Exige(LeeBorrador(TextoDeBorrador(tomado)).has_value(), "what is kept can be put back");
  static_cast<void>(Comprueba(c, IdsDe(c.version)));
}

}  // namespace

void Prueba(std::string_view datos) {
  const auto b = LeeBorrador(datos);
  if (!b) return;
  const std::string texto = TextoDeBorrador(*b);
  const auto vuelta = LeeBorrador(texto);
  Exige(vuelta && TextoDeBorrador(*vuelta) == texto, "a draft there and back");
  Pon(*b);
}

}  // namespace zorbin::hostil
