// What is unusual in the data of an Obra and of a Tramo. Nothing of it is refused: it is told on
// the page, near its field, and by the validation of a batch.
#pragma once

#include <vector>

#include "sesion/captura/mdCaptura.h"

namespace zorbin {

/// Notices of the data of an Obra, in the language of the catalogue.
/// @param separador  decimal separator of the texts
std::vector<AvisoDeCampo> AvisosDeObra(const Obra& obra, const Catalogo& textos, char separador);

/// Notices of the data of a Tramo, both in the units of the system of the Obra.
std::vector<AvisoDeCampo> AvisosDePlausibilidad(const Obra& obra, const Tramo& tramo,
                                                const Catalogo& textos, char separador);

/// The notices of the screen follow its data.
void RenuevaAvisos(Captura& c);

/// Those of the page in front.
std::vector<AvisoDeCampo> AvisosDelante(const Modelo& pantalla);

/// Takes the values that a notice offers, by the rules of their fields. Nothing happens where it
/// offers none.
void TomaRemedio(Captura& c, const AvisoDeCampo& aviso);

}  // namespace zorbin
