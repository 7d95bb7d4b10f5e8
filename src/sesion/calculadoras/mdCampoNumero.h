// A numeric field of a calculator screen, without its widget: entering it, a change, and
// what leaving it reads. A refusal is told by catalogue entries; the screen only shows it.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/mdCatalogo.h"

namespace zorbin {

/// A message box: the entries whose texts, one after the other, are its text, and its title.
struct AvisoCampo {
  std::vector<int> texto;
  int titulo = 0;
  std::vector<std::string> datos = {};  // of the marks of its text, which is then one entry

  bool operator==(const AvisoCampo&) const = default;
};

/// The text of the box in the language of the catalogue.
std::string TextoAviso(const AvisoCampo& aviso, const Catalogo& catalogo);

/// What the widget shows and the number that stands for it. The text has few decimals, the number
/// all of them: a text that nobody changed is never read back.
struct CampoNumero {
  std::string texto;
  double valor = 0;
  bool seleccionado = false;  // the whole content is selected, so that typing replaces it
  bool tocado = false;        // changed by a person since the program wrote it
  std::string escrito;        // text as the program wrote it last
};

/// The program writes the field.
void Escribe(CampoNumero& campo, double valor, std::string texto);

/// A person changes the text.
void Cambia(CampoNumero& campo, std::string texto);

/// Whether the text has to be read: a person changed it, or emptied it.
bool PorLeer(const CampoNumero& campo);

/// Reads `texto` into `destino`; an empty text is 0. A number below `minimo` is refused and is
/// written to `destino` all the same, a text that is no number, or two, leaves it.
/// @param separador  decimal separator in force
/// @param etiqueta  entry of the field's label, title of a refusal
/// @return the refusal, if any
std::optional<AvisoCampo> ValidaNumero(double minimo, std::string_view texto, char separador,
                                       double& destino, int etiqueta);

}  // namespace zorbin
