// Texts as people count them. Inside the program all text is UTF-8, and widths count characters.
#pragma once

#include <string>
#include <string_view>

namespace zorbin {

/// Number of characters (code points) of a UTF-8 text.
std::size_t Largo(std::string_view texto);

/// Its first `n` characters, or all of it.
std::string_view Primeros(std::string_view texto, std::size_t n);

/// Without the blanks at both ends.
std::string_view Recorta(std::string_view texto);

/// A 16-bit integer as decimal text.
std::string TextoEntero(int n);

}  // namespace zorbin
