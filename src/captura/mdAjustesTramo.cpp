#include "captura/mdAjustesTramo.h"

#include <algorithm>

#include "persistencia/mdDpe.h"

namespace zorbin {

void BorraAjustesTramo(const std::filesystem::path& obra, int NumeroTramo, char separador) {
  const auto ruta = RutaDpe(obra);
  std::error_code error;
  if (!std::filesystem::exists(ruta, error)) return;
  auto entradas = LeeAjustes(ruta);
  const auto delTramo = [&](const EntradaAjuste& x) {
    return !x.Libre() && Redondea(x.Tramo) == NumeroTramo;
  };
  if (std::none_of(entradas.begin(), entradas.end(), delTramo)) return;
  for (auto& x : entradas) {
    if (delTramo(x)) x = EntradaAjuste{};
  }
  FicheroRegistros f(ruta, FicheroRegistros::Modo::LecturaEscritura);
  EscribeAjustes(f, entradas, separador);
}

void RegistraCambios(Captura& c) {
  if (c.LeyendoDatos || !c.e.obra.ObraAbierta || !c.fichero) return;
  try {
    BorraAjustesTramo(c.fichero->ruta(), c.e.tramo.NumeroTramo, c.SeparadorDecimal);
  } catch (const ErrorFichero& error) {
    c.voz.Muestra(TextoDeError(c, error), {});
  }
}

std::string TextoDeError(const Captura& c, const ErrorFichero& error) {
  return c.textos.Compone(error.mensaje());
}

}  // namespace zorbin
