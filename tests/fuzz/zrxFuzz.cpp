// The file of what has no record: read, written and read again.
#include "fuzz/comun.h"
#include "persistencia/zrx/mdZrx.h"

namespace zorbin::hostil {

void Prueba(std::string_view datos) try {
  const auto extras = ExtrasDeTexto(datos, "obra.zrx");
  for (const auto& aviso : AvisosDeExtras(extras, "obra.zrx")) ExigeClaro(aviso, "obra.zrx");
  const std::string texto = TextoDeExtras(extras);
  if (texto.empty()) return;
  Exige(EsJson(texto), "what is written is JSON");
  const auto otros = ExtrasDeTexto(texto, "obra.zrx");
  Exige(otros.otras == extras.otras, "unknown keys are kept");
  Exige(TextoDeExtras(otros) == texto, "what is written reads the same");
} catch (const ErrorFichero& error) {
  ExigeClaro(error.mensaje(), "obra.zrx");
}

}  // namespace zorbin::hostil
