// Inputs of the hydraulic calculator and their rules. A screen binds its widgets to an
// EntradaHidraulica, calls a function at each of its moments and shows what comes back.
#pragma once

#include <optional>
#include <string>

#include "calculo/hidraulica/mdHidraulica.h"
#include "sesion/calculadoras/mdCampoNumero.h"

namespace zorbin {

struct EntradaHidraulica {
  MetodoHidraulico rdTipoCalculo = MetodoHidraulico::DarcyWeissbach;
  DatoHidraulico rdTipoDato = DatoHidraulico::Pendiente;
  CampoNumero txDatoOrigen;  // slope [m/m] or flow [m3/s]
  CampoNumero txRugosidad;   // [mm]; Hazen coefficient, 0 for the rule by diameter
  char SeparadorDecimal = ',';
  std::optional<ResultadoHidraulico> resultado;  // table of the text area
  bool imprimible = false;  // "  Imprimir" is enabled: the table belongs to the inputs in sight
};

enum class CampoHidraulico { DatoOrigen, Rugosidad };

/// The screen as it opens: Darcy-Weissbach, slope, default roughness, no datum.
EntradaHidraulica CargaCalculoHidraulico(char SeparadorDecimal);

/// Entries of the labels in force.
int EtiquetaDato(const EntradaHidraulica& e);
int EtiquetaRugosidad(const EntradaHidraulica& e);

/// Note beside the roughness: its default, or the rule of the Hazen coefficient.
std::string NotaRugosidad(const EntradaHidraulica& e, const Catalogo& catalogo);

/// Help text of the method, `lbTextoAyuda`.
std::string TextoAyuda(const EntradaHidraulica& e, const Catalogo& catalogo);

/// Default roughness of the method.
void PonRugosidad(EntradaHidraulica& e);

/// Empties the datum.
void PonDatoOrigen(EntradaHidraulica& e);

/// `Hay`: the text area holds a table and can be printed; otherwise it is cleared.
void PoneBotones(EntradaHidraulica& e, bool Hay);

/// The options. Another method takes its default roughness and keeps the datum; another kind of
/// datum empties the datum.
void CambiaMetodo(EntradaHidraulica& e, MetodoHidraulico metodo);
void CambiaTipoDato(EntradaHidraulica& e, DatoHidraulico tipo);

/// The moments of a field. Leaving it with a value refused restores the default; the focus then
/// stays in the field.
void Entra(EntradaHidraulica& e, CampoHidraulico cual);
void Cambia(EntradaHidraulica& e, CampoHidraulico cual, std::string texto);
std::optional<AvisoCampo> Sale(EntradaHidraulica& e, CampoHidraulico cual);

/// Whether a calculation may run: the refusal of the first value that doesn't serve.
std::optional<AvisoCampo> ValidaDatosHidraulicos(const EntradaHidraulica& e);

/// The button "   Calcular". A field changed and not yet left is left first. A refusal leaves
/// table and text area as they were.
std::optional<AvisoCampo> Calcula(EntradaHidraulica& e);

}  // namespace zorbin
