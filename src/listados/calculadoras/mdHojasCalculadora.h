// The sheets of a calculator, with the foot that those of an Obra have.
#pragma once

#include <functional>
#include <string>

#include "listados/papel/mdPie.h"

namespace zorbin {

/// Writes the sheets of a result under its title. @param escribe  called twice
void EscribeCalculadora(DestinoHojas& destino, const std::string& titulo, const Fecha& fecha,
                        const Catalogo& textos, const std::function<void(Papel&)>& escribe);

}  // namespace zorbin
