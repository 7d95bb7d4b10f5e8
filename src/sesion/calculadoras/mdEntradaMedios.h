// Inputs of the analysis of aggressive media and their rules. A screen binds its widgets to an
// EntradaMedios, calls a function at each of its moments and shows what comes back.
#pragma once

#include <array>
#include <optional>
#include <string>

#include "calculo/protecciones/mdMedios.h"
#include "sesion/calculadoras/mdCampoNumero.h"

namespace zorbin {

struct EntradaMedios {
  std::array<CampoNumero, kMedios> txpH;  // in the order and the units of kCamposMedios
  bool Check1 = false;                    // cycles of wetting and drying, or half-buried pipe
  char SeparadorDecimal = ',';
  std::optional<ResultadoMedios> resultado;  // of the last analysis
  bool alDia = false;                        // the result belongs to the inputs in sight
};

/// The screen as it opens, with the defaults.
EntradaMedios CargaProtecciones(char SeparadorDecimal);

/// The moments of a field. An empty one takes its default on entering and on leaving; a value
/// refused on leaving brings back the one before, and the focus stays in the field.
void Entra(EntradaMedios& e, Medio medio);
void Cambia(EntradaMedios& e, Medio medio, std::string texto);
std::optional<AvisoCampo> Sale(EntradaMedios& e, Medio medio);

/// What is unusual in a field, where something is: it is told, and refuses nothing.
std::optional<Mensaje> AvisoDePlausibilidad(const EntradaMedios& e, Medio medio);

/// The tick box.
void MarcaCiclos(EntradaMedios& e, bool marcado);

/// The buttons "   Visualizar" and "  Imprimir". The fields are read in the order 0 to 4, 8, 5, 6,
/// 7, and an empty one keeps the value read before it (0 for the first). A refusal leaves the
/// last result.
std::optional<AvisoCampo> Analiza(EntradaMedios& e);

}  // namespace zorbin
