// A document: text and nothing else comes out of it, as HTML that fetches nothing.
#include <set>

#include "fuzz/comun.h"
#include "persistencia/documentos/mdRtf.h"

namespace zorbin::hostil {

namespace {

// What a byte of the document and a piece of it may at most become.
constexpr std::size_t kHtmlPorByte = 6;
constexpr std::size_t kHtmlPorPieza = 700;

void ExigeLimites(const DocumentoRtf& d, std::size_t& piezas) {
  for (const auto& p : d.parrafos) {
    piezas += 1 + p.trozos.size();
    Exige(p.caja.sangria >= 0 && p.caja.sangria + p.caja.primeraLinea >= 0, "indents fit a page");
    for (const auto& t : p.trozos) {
      Exige(EsTextoLimpio(t.texto) && t.texto.find('\r') == std::string::npos,
            "a run is clean text", t.texto);
    }
  }
  Exige(d.parrafos.size() <= kMaxParrafosRtf + 1 && piezas <= kMaxParrafosRtf + kMaxTrozosRtf + 1,
        "the pieces of a document are limited");
}

// The marks as the converter writes them; what a document says is escaped.
void ExigeMarcas(std::string_view html) {
  static const std::set<std::string_view> kMarcas{
      "!DOCTYPE", "html",  "/html", "head",  "/head",  "meta", "body", "/body", "p",  "/p",
      "span",     "/span", "br",    "table", "/table", "tr",   "/tr",  "td",    "/td"};
  for (auto i = html.find('<'); i != std::string_view::npos; i = html.find('<', i + 1)) {
    const auto fin = html.find('>', i);
    Exige(fin != std::string_view::npos, "a mark is closed");
    const auto marca = html.substr(i + 1, fin - i - 1);
    Exige(kMarcas.contains(marca.substr(0, marca.find_first_of(" /", 1))), "a mark is known",
          marca);
    for (const char* fuera : {"src", "href", "url", "on", "://", "@"}) {
      Exige(marca.find(fuera) == std::string_view::npos || marca.find("font-") != marca.npos ||
                marca.find("text-decoration") != marca.npos,
            "a mark fetches nothing", marca);
    }
  }
}

}  // namespace

void Prueba(std::string_view datos) {
  try {
    const auto d = InterpretaRtf(datos, "documento.rtf");
    std::size_t piezas = 0;
    ExigeLimites(d, piezas);
    const std::string html = HtmlDeRtf(d);
    Exige(html.size() <= 200 + kHtmlPorByte * datos.size() + kHtmlPorPieza * piezas,
          "HTML is not much larger than its document");
    Exige(EsTextoLimpio(html), "HTML is clean text");
    ExigeMarcas(html);
  } catch (const ErrorRtf& error) {
    ExigeClaro(error.mensaje(), "documento.rtf");
  }
}

}  // namespace zorbin::hostil
