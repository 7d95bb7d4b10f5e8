// A workbook: its cells, and what they say of an Obra.
#include "fuzz/entrada.h"
#include "persistencia/entrada/mdXlsx.h"

namespace zorbin::hostil {

void Prueba(std::string_view datos) {
  ExigeEntrada([&] { return LeeTablas(LeeXlsx(datos, &Textos()), Textos()); });
}

}  // namespace zorbin::hostil
