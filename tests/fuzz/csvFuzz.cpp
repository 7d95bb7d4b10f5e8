// Separated text: its cells, and what they say of an Obra.
#include "fuzz/entrada.h"
#include "persistencia/entrada/mdCsv.h"

namespace zorbin::hostil {

void Prueba(std::string_view datos) {
  ExigeEntrada([&] { return LeeTablas({LeeCsv(datos)}, Textos()); });
}

}  // namespace zorbin::hostil
