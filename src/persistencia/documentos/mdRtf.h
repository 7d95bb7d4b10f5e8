// Documents in RTF, as a word processor writes simple text, read into paragraphs and shown as HTML.
//
// Understood: paragraphs with alignment, indents and spacing; bold, italic, underline, hidden text,
// size; characters by their byte in Windows-1252 and by their Unicode number; markers of lists as
// the text that stands for them. Passed over: fonts, colours, styles, pictures, objects, headers,
// notes, the targets of links, and whatever a group marked \* holds.
#pragma once

#include <filesystem>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "base/mdCatalogo.h"

namespace zorbin {

inline constexpr std::size_t kMaxBytesRtf = 8 * 1024 * 1024;
inline constexpr std::size_t kMaxTrozosRtf = 100000;    // runs of a document
inline constexpr std::size_t kMaxParrafosRtf = 100000;  // paragraphs of a document
inline constexpr std::size_t kMaxGruposRtf = 1000;      // nested; what lies deeper is passed over

enum class AlineacionRtf { Izquierda, Centro, Derecha, Justificada };

struct LetraRtf {
  bool negrita = false;
  bool cursiva = false;
  bool subrayado = false;
  double cuerpo = 12;  // [pt]
  bool operator==(const LetraRtf&) const = default;
};

/// A piece of a paragraph in one lettering. In its text '\n' is a line break, '\t' a tabulator;
/// there is no other control character.
struct TrozoRtf {
  LetraRtf letra;
  std::string texto;  // UTF-8
};

/// How a paragraph stands on the page; lengths in points.
struct CajaRtf {
  AlineacionRtf alineacion = AlineacionRtf::Izquierda;
  double sangria = 0;       // of the whole paragraph
  double primeraLinea = 0;  // of the first line, from the indent; negative: it hangs out
  double antes = 0;         // space above
  double despues = 0;       // space below
};

struct ParrafoRtf {
  CajaRtf caja;
  LetraRtf letra;                // at its end: the height of a paragraph without text
  std::vector<TrozoRtf> trozos;  // none in an empty line
};

struct DocumentoRtf {
  std::vector<ParrafoRtf> parrafos;
  bool entero = true;  // false: the file ends before its last brace, or holds too many pieces
};

/// A document that can't be read or is none. It says in an entry of the catalogue which and why.
class ErrorRtf : public std::runtime_error {
 public:
  explicit ErrorRtf(Mensaje mensaje)
      : std::runtime_error("error of a document"), mensaje_(std::move(mensaje)) {}
  const Mensaje& mensaje() const { return mensaje_; }

 private:
  Mensaje mensaje_;
};

/// The document of the bytes of a file, `nombre` in messages. Whatever comes after "{\rtf" is
/// read as far as it makes sense: a cut or damaged file gives the text before the damage.
/// @throws ErrorRtf when it does not begin so, or is larger than kMaxBytesRtf
DocumentoRtf InterpretaRtf(std::string_view bytes, const std::string& nombre);

/// The document of a file. @throws ErrorRtf also when the file can't be read
DocumentoRtf LeeRtf(const std::filesystem::path& ruta);

/// The document as HTML, escaped, with its lettering in place; nothing in it is fetched or leads
/// anywhere.
std::string HtmlDeRtf(const DocumentoRtf& documento);

}  // namespace zorbin
