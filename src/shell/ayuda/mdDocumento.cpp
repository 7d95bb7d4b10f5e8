#include "shell/ayuda/mdDocumento.h"

#include "persistencia/documentos/mdRtf.h"
#include "shell/piezas/mdQt.h"

namespace zorbin {

DocumentoHtml DocumentosDelPrograma(
    const Catalogo& textos, std::function<std::filesystem::path(const std::string& nombre)> busca) {
  return [&textos, busca = std::move(busca)](int entrada) -> QString {
    const auto ruta = busca(textos.Texto(entrada));
    if (ruta.empty()) return {};
    try {
      return Q(HtmlDeRtf(LeeRtf(ruta)));
    } catch (const ErrorRtf& e) {
      return "<p>" + Q(textos.Compone(e.mensaje())).toHtmlEscaped() + "</p>";
    }
  };
}

}  // namespace zorbin
