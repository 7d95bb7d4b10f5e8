// The tokens of an RTF file: braces, control words, characters.
#pragma once

#include <optional>
#include <string_view>

namespace zorbin {

struct FichaRtf {
  enum class Clase {
    Fin,
    Abre,
    Cierra,
    Palabra,  // control word: `palabra` and, where it has one, `numero`
    Simbolo,  // control symbol: `byte` is the sign after the backslash
    Byte,     // a character of the text, in Windows-1252, plain or by its hexadecimal digits
    Nada      // without meaning: a broken sequence
  };
  Clase clase = Clase::Fin;
  std::string_view palabra = {};
  std::optional<int> numero = {};  // held within +-1e9
  unsigned char byte = 0;
};

/// Walks a file token by token, each time at least one byte, and never past its end. The bytes of
/// \bin are passed over with it.
class FichasRtf {
 public:
  explicit FichasRtf(std::string_view bytes) : bytes_(bytes) {}
  FichaRtf Siguiente();

 private:
  bool Acaba() const { return lugar_ >= bytes_.size(); }
  FichaRtf Control();
  FichaRtf Palabra();
  FichaRtf Hexadecimal();
  std::optional<int> Numero();

  std::string_view bytes_;
  std::size_t lugar_ = 0;
};

}  // namespace zorbin
