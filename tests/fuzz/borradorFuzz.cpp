// A draft of unsaved work: put into the capture, validated, taken again and written.
#include <cmath>

#include "fuzz/comun.h"
#include "sesion/captura/mdBorrador.h"
#include "sesion/captura/mdCiclo.h"
#include "sesion/captura/mdPresenta.h"
#include "sesion/captura/mdValidaObra.h"
#include "sesion/captura/mdValidaTramo.h"

namespace zorbin::hostil {

namespace {

const TablasCatalogo& Tablas() {
  static const TablasCatalogo tablas = LeeTablas(ZORBIN_FUENTES "recursos/tablas");
  return tablas;
}

class Calla : public Interlocutor {
 public:
  void Muestra(const std::string& texto, const std::string&) override {
    Exige(EsTextoLimpio(texto), "a message is clean text", texto);
  }
  bool Pregunta(const std::string&, const std::string&) override { return true; }
  std::optional<std::string> PideFichero(const std::string&) override { return std::nullopt; }
  void VaA(Ed) override {}
};

void Pon(const Borrador& b) {
  EstadoCalculo e;
  Catalogo& textos = TextosParaCambiar();
  Calla voz;
  Captura c(e, textos, Tablas(), voz, ',');
  PreparaPantalla(c);
  NuevaObra(c);
  PonBorrador(c, b);
  const Borrador tomado = TomaBorrador(c);
  Exige(LeeBorrador(TextoDeBorrador(tomado)).has_value(), "what is kept can be put back");
  static_cast<void>(ValidaObra(c) && ValidaTramo(c, false));
}

void PruebaBorrador(std::string_view datos) {
  const auto b = LeeBorrador(datos);
  if (!b) return;
  const std::string texto = TextoDeBorrador(*b);
  const auto vuelta = LeeBorrador(texto);
  Exige(vuelta && TextoDeBorrador(*vuelta) == texto, "a draft there and back");
  Pon(*b);
}

}  // namespace

}  // namespace zorbin::hostil

int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t largo) {
  zorbin::hostil::PruebaBorrador(zorbin::hostil::Vista(datos, largo));
  return 0;
}
