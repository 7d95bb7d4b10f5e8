// Table of a hydraulic calculation as the text area of the screen shows it. The area is monospaced
// and its line break is the single character 10, also after the last line.
#pragma once

#include <string>
#include <string_view>

#include "base/mdCatalogo.h"
#include "calculo/hidraulica/mdHidraulica.h"
#include "listados/papel/mdFormato.h"

namespace zorbin {

/// What sets the six output routines apart, on the screen and on paper.
struct SalidaHidraulica {
  int titulo;         // entry of the formula
  bool porPendiente;  // the datum is a slope and the third column a flow; else the reverse
  bool dosSecciones;  // full and partial section
  bool reynolds;      // with the column of the Reynolds number
  bool hazen;         // with the Hazen coefficient in place of viscosity and roughness
  bool unidadEnFila;  // the screen writes " m/km." after a slope

  /// With the exact slope beside the one of the approximation.
  constexpr bool exacta() const { return !porPendiente && !hazen; }
};

extern const SalidaHidraulica Sub3000, Sub3000_P, Sub3000_Hazen, Sub3000_Hazen_P, Sub3500,
    Sub3500_P;

/// The output of an operation.
const SalidaHidraulica& SalidaDe(const ResultadoHidraulico& r);

/// Adds to the area `Antes` line breaks, the text and `Despues` line breaks.
void SumaTextoCh(std::string& area, int Antes, std::string_view Texto, int Despues);

/// The text of `edPantallaCh`. A row in the critical band shows "REGIMEN CRITICO" in place of
/// velocity and flow or slope. A quantity that the operation does not have prints as 0.
std::string TextoHidraulico(const ResultadoHidraulico& r, const Catalogo& catalogo,
                            const EstiloNumeros& estilo);

/// Lines that screen and paper share: the viscosity, a value between two entries, the Hazen
/// coefficient or its rule when it is 0, and a rule of "=" under a text.
std::string LineaViscosidad(const Catalogo& catalogo, const EstiloNumeros& estilo);
std::string LineaValor(const Catalogo& catalogo, int antes, const std::string& valor, int despues);
std::string LineaCoeficiente(const Catalogo& catalogo, const EstiloNumeros& estilo, double Cwh,
                             int ancho, int decimales);
std::string Subrayado(std::string_view texto);

/// The exact slope in the columns of its heading [m/km]; none is left out.
std::string PendienteExacta(const EstiloNumeros& estilo, const FilaHidraulica& fila, int hueco);

/// Third number of a row, in the columns that screen and paper share: the flow [m3/s], or the slope
/// shown in m/km.
std::string TerceraColumna(const SalidaHidraulica& s, const EstiloNumeros& estilo,
                           const std::optional<double>& Q, const std::optional<double>& J);

}  // namespace zorbin
