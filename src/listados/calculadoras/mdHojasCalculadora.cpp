#include "listados/calculadoras/mdHojasCalculadora.h"

namespace zorbin {

void EscribeCalculadora(DestinoHojas& destino, const std::string& titulo, const Fecha& fecha,
                        const Catalogo& textos, const std::function<void(Papel&)>& escribe) {
  EscribeConPie(destino, Orientacion::Vertical,
                {{titulo}, "ZORBIN " ZORBIN_VERSION " · " + fecha.dia}, textos, escribe);
}

}  // namespace zorbin
