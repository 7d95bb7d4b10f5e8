// The numbered catalogue of every text that a person sees, in the languages of the program.
//
// One file a language, recursos/textos/{es,en,ca,pt,fr}.json: base number to text, blanks kept. In
// Spanish the text is the "texto" of an object that also holds the name by which the code calls it,
// of which the build makes base/textos.h.
// In the catalogue the entry of a language has the base number plus 5000 for each language before
// it, so that a number alone names a text in a language.
#pragma once

#include <array>
#include <cstdint>
#include <filesystem>
#include <initializer_list>
#include <stdexcept>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace zorbin {

inline constexpr int kPasoIdioma = 5000;
inline constexpr int kIdiomas = 5;

/// The catalogue can't be read. The message is in English and stands alone: without a catalogue
/// there is no text to show.
class ErrorCatalogo : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// A text to be composed: an entry whose {1}, {2}... take the data, and after them the text of
/// another entry where one is given.
struct Mensaje {
  int texto = 0;
  std::vector<std::string> datos;
  int otro = 0;
};

class Catalogo {
 public:
  /// Reads Spanish, which must be there, and finds the other languages of `carpeta`; each of them
  /// is read when it is first used, and what is wrong with it is thrown then.
  /// @throws ErrorCatalogo naming the file and what is wrong with it.
  static Catalogo Lee(const std::filesystem::path& carpeta);

  /// Text `n` of the current language.
  const std::string& Texto(int n) const { return LoadRes(n + offset_); }

  /// Entry `n` as given. A missing one reads "Falta Recurso n".
  const std::string& LoadRes(int n) const;

  bool Existe(int n) const;

  /// Number of languages with a name in the catalogue.
  int CuentaIdiomas() const;

  /// Language of the texts from now on, 1 to 5; one that has no file falls back to Spanish.
  /// @return the language in force.
  std::int16_t PonIdioma(std::int16_t idioma);
  int IdiomaOffset() const { return offset_; }

  /// Entry `n` of the current language with its marks {1}, {2}... replaced by the data, which may
  /// come from a file of anybody: of them it takes what TextoLimpio leaves.
  std::string Compone(int n, const std::vector<std::string>& datos) const;
  std::string Compone(const Mensaje& m) const;

 private:
  mutable std::unordered_map<int, std::string> entradas_;
  mutable std::array<std::filesystem::path, kIdiomas> porLeer_;  // empty once read
  mutable std::unordered_map<int, std::string> faltas_;
  std::vector<bool> leidos_ = std::vector<bool>(kIdiomas, false);
  int offset_ = 0;

  /// The language of entry `n` is read. @throws ErrorCatalogo
  void Asegura(int n) const;
};

}  // namespace zorbin
