// The mark of who has a file open: it is shown to the next person.
#include "fuzz/comun.h"
#include "persistencia/disco/mdTitular.h"

namespace zorbin::hostil {

namespace {

constexpr std::size_t kMaxDato = 200;  // bytes

}  // namespace

void Prueba(std::string_view texto) {
  const auto titular = LeeTextoMarca(texto);
  if (!titular) return;
  for (const auto& dato : {titular->usuario, titular->equipo, titular->desde}) {
    Exige(EsTextoLimpio(dato) && dato.find_first_of("\r\n\t") == std::string::npos,
          "a name is clean and of one line", dato);
    Exige(dato.size() <= kMaxDato, "a name is short");
  }
  Exige(titular->proceso > 0, "a process has a number");
  static_cast<void>(SigueVivo(*titular));
  const auto vuelta = LeeTextoMarca(TextoMarca(*titular));
  Exige(vuelta && vuelta->usuario == titular->usuario && vuelta->arranque == titular->arranque,
        "a mark there and back");
}

}  // namespace zorbin::hostil
