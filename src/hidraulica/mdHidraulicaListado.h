// Table of a hydraulic calculation as the text area of the screen shows it. The area is monospaced
// and its line break is the single character 10, also after the last line.
#pragma once

#include <string>

#include "hidraulica/mdHidraulica.h"
#include "listados/mdFormato.h"
#include "recursos/mdCatalogo.h"

namespace zorbin {

/// Adds to the area `Antes` line breaks, the text and `Despues` line breaks.
void SumaTextoCh(std::string& area, int Antes, std::string_view Texto, int Despues);

/// The text of `edPantallaCh`. One layout for each of the six operations; a row in the critical
/// band shows "REGIMEN CRITICO" in place of velocity and flow or slope.
std::string TextoHidraulico(const ResultadoHidraulico& r, const Catalogo& catalogo,
                            const EstiloNumeros& estilo);

/// Words that screen and paper share.
/// "Viscosidad cinematica = 0,000001310 m2/sg"
std::string LineaViscosidad(const Catalogo& catalogo, const EstiloNumeros& estilo);
/// A number between two catalogue texts; `despues` 0 for none.
std::string LineaValor(const Catalogo& catalogo, int antes, const std::string& valor, int despues);
/// The Hazen coefficient in `ancho` columns, or its rule when it is 0.
std::string LineaCoeficiente(const Catalogo& catalogo, const EstiloNumeros& estilo, double Cwh,
                             int ancho, int decimales);
/// As many "=" as the text has characters.
std::string Subrayado(std::string_view texto);

}  // namespace zorbin
