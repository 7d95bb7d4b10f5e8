// The control words of RTF that mean something for simple text.
#pragma once

#include <optional>
#include <string_view>

#include "persistencia/documentos/mdRtf.h"

namespace zorbin {

inline constexpr char32_t kRedondoRtf = 0x2022;  // the round mark of a list

/// What an opening brace keeps and the closing one gives back.
struct GrupoRtf {
  LetraRtf letra;
  CajaRtf caja;
  int reserva = 1;      // characters that stand for a \u where it is not understood
  bool oculto = false;  // hidden text
  bool salta = false;   // nothing of the group is text
  bool marca = false;   // the marker of a list
};

/// Does what a word says of lettering, paragraph or group, its number held within what a page
/// bears. @return whether the word is one of those
bool Ordena(GrupoRtf& grupo, std::string_view palabra, std::optional<int> numero);

/// The character that a word stands for.
std::optional<char32_t> CaracterDePalabra(std::string_view palabra);

bool EsFinDeParrafo(std::string_view palabra);

}  // namespace zorbin
