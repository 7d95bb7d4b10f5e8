#include "programas/zorbin-calc/mdSalidaPdf.h"

#include "base/mdTextos.h"
#include "base/textos.h"
#include "listados/pintor/mdPintor.h"
#include "listados/pintor/mdSinPantalla.h"
#include "programas/zorbin-calc/mdSalida.h"

namespace zorbin {

void EscribePdf(const std::filesystem::path& fichero, const std::string& titulo,
                const Catalogo& textos, const std::function<void(DestinoHojas&)>& documento) {
  const AplicacionSinPantalla aplicacion;
  try {
    HojasPdf hojas(fichero, titulo);
    documento(hojas);
    hojas.Cierra();
    std::error_code error;
    if (!std::filesystem::is_regular_file(fichero, error)) return;  // standard output, perhaps
    Salida salida({});
    salida.flujo() << textos.Compone(txt::ListadoEscrito,
                                     {fichero.string(), TextoEntero(hojas.paginas())})
                   << '\n';
    salida.Cierra();
  } catch (const ErrorFuente& error) {
    throw ErrorSalida(fichero.string(), textos.Compone(txt::SinLetra, {error.what()}));
  } catch (const ErrorPintor& error) {
    throw ErrorSalida(fichero.string(), error.what());
  }
}

}  // namespace zorbin
