// The data of an Obra as JSON.
#include <sstream>

#include "fuzz/entrada.h"
#include "persistencia/entrada/mdJsonObra.h"

namespace zorbin::hostil {

void Prueba(std::string_view datos) {
  ExigeEntrada([&] {
    std::istringstream texto{std::string(datos)};
    return LeeJsonObra(texto);
  });
}

}  // namespace zorbin::hostil
