// Windows-1252, the code page of the texts in the project's files and of the documents. Inside the
// program all text is UTF-8.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace zorbin {

/// Character of a byte. No value for the bytes that stand for none (see DeAnsi).
std::optional<char32_t> CaracterAnsi(unsigned char byte);

/// Adds a character to a UTF-8 text; what is no character of Unicode, such as half a surrogate
/// pair, is added as U+FFFD.
void AnadeUtf8(std::string& texto, char32_t c);

/// The character that begins a UTF-8 text and its bytes; U+FFFD of one byte where none does.
struct CaracterUtf8 {
  char32_t codigo;
  std::size_t bytes;
};
/// @param utf8  not empty
CaracterUtf8 PrimerCaracter(std::string_view utf8);

/// UTF-8 of a text in Windows-1252. No value when a byte stands for no character (0x81, 0x8D,
/// 0x8F, 0x90, 0x9D).
std::optional<std::string> DeAnsi(std::string_view bytes);

/// The text in Windows-1252, or the first character (in UTF-8) that the page does not have.
struct TextoAnsi {
  std::string bytes;
  std::string sobra;  // empty when the whole text fits
};
TextoAnsi AAnsi(std::string_view utf8);

}  // namespace zorbin
