#include "sesion/captura/mdAjustesTramo.h"

#include <algorithm>

#include "base/textos.h"
#include "persistencia/dpe/mdDpe.h"

namespace zorbin {

void BorraAjustesTramo(const std::filesystem::path& obra, int NumeroTramo, char separador) {
  const auto ruta = RutaDpe(obra);
  const auto entradas = LeeAjustes(ruta);
  const bool tiene = std::any_of(entradas.begin(), entradas.end(), [&](const EntradaAjuste& x) {
    return !x.Libre() && Redondea(x.Tramo) == NumeroTramo;
  });
  if (tiene) FicheroDpe(ruta, separador).BorraTramo(NumeroTramo);
}

void RegistraCambios(Captura& c) {
  if (c.LeyendoDatos || !c.e.obra.ObraAbierta || !c.fichero || c.SoloLectura()) return;
  try {
    BorraAjustesTramo(c.fichero->ruta(), c.e.tramo.NumeroTramo, c.SeparadorDecimal);
    c.AjustesPorBorrar = false;
  } catch (const ErrorFichero& error) {
    if (!c.AjustesPorBorrar) {
      c.voz.Muestra(c.textos.Compone(txt::AjustesSinBorrar, {TextoDeError(c, error)}), {});
    }
    c.AjustesPorBorrar = true;
  }
}

std::string TextoDeError(const Captura& c, const ErrorFichero& error) {
  return c.textos.Compone(error.mensaje());
}

}  // namespace zorbin
