#include "programas/zorbin-calc/mdSalidaInforme.h"

#include "base/mdTextos.h"
#include "base/textos.h"
#include "listados/informe/mdPdfInforme.h"
#include "listados/pintor/mdPintor.h"
#include "listados/pintor/mdSinPantalla.h"
#include "programas/zorbin-calc/mdPalabras.h"
#include "programas/zorbin-calc/mdSalida.h"
#include "programas/zorbin-calc/mdVigia.h"

namespace zorbin {

DetalleInforme DetalleDeLinea(std::string_view palabra) {
  if (palabra == "resumen") return DetalleInforme::Resumen;
  return palabra == "todos" ? DetalleInforme::Todos : DetalleInforme::Pesimo;
}

int EscribeInformePdf(const std::filesystem::path& fichero, const DatosInforme& datos,
                      const Catalogo& textos, const EstiloNumeros& estilo, bool si) {
  const AplicacionSinPantalla aplicacion;
  try {
    if (!si) {
      const int previstas = PaginasPrevistas(datos, textos, estilo);
      if (previstas > kMuchasPaginas) {
        Queja(textos.Compone(txt::InfMuchasPaginas, {std::to_string(previstas), "--si"}));
        return kPalabrasMalas;
      }
    }
    const Informe informe = ComponeInforme(datos, textos, estilo);
    EscribeInforme(fichero, informe);
    std::error_code error;
    if (!std::filesystem::is_regular_file(fichero, error)) return kHecho;
    Salida salida({});
    salida.flujo() << textos.Compone(txt::ListadoEscrito,
                                     {fichero.string(), std::to_string(informe.paginas.size())})
                   << '\n';
    salida.Cierra();
    return kHecho;
  } catch (const ErrorFuente& error) {
    throw ErrorSalida(fichero.string(), textos.Compone(txt::SinLetra, {error.what()}));
  } catch (const ErrorPintor& error) {
    throw ErrorSalida(fichero.string(), error.what());
  }
}

}  // namespace zorbin
