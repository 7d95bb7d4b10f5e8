#include "listados/obra/mdAvisos.h"

#include <algorithm>

#include "base/mdTextos.h"
#include "base/textos.h"

namespace zorbin {

namespace {

std::string TextoCapas(int cara, const Catalogo& textos) {
  return textos.Texto(txt::Armadura) + FormatoTexto(textos.Texto(cara), 8) +
         textos.Texto(txt::EnVariasCapas);
}

std::string NombreDelIncremento(const std::string& dato, const Catalogo& textos) {
  const bool altura = dato == "Alt3" || dato == "Hr0Delta";
  return textos.Texto(altura ? txt::EtAlt3 : txt::EtPrs3);
}

}  // namespace

std::string TextoAviso(ClaseAviso clase, const Catalogo& textos) {
  switch (clase) {
    case ClaseAviso::RetraccionLisas:
      return textos.Texto(txt::MayorQueLaMaxima) + " " + textos.Texto(txt::PorRetraccionLisas);
    case ClaseAviso::CapasInterior:
      return TextoCapas(txt::Interior, textos);
    case ClaseAviso::CapasExterior:
      return TextoCapas(txt::Exterior, textos);
    case ClaseAviso::FlexionSobreTope:
      return textos.Texto(txt::FlexionSobreTope);
    case ClaseAviso::NoLlegaNegativos:
      return textos.Texto(txt::NoLlegaNegativos);
    case ClaseAviso::NoLlegaAmbos:
      return textos.Texto(txt::NoLlegaAmbos);
    case ClaseAviso::MomentoTope:
      return textos.Texto(txt::MomentoTope);
    case ClaseAviso::EspesorInsuficiente:
      return textos.Texto(txt::EspesorInsuficiente);
    case ClaseAviso::ResistenciaInicial:
      return textos.Texto(txt::ResistenciaInicial);
    case ClaseAviso::CambiaAlambre:
      return textos.Texto(txt::CambiaAlambre);
    case ClaseAviso::ResistenciaHormigon:
      return textos.Texto(txt::ResistenciaHormigon);
  }
  return {};
}

std::string TextoAviso(const Aviso& aviso, const Catalogo& textos) {
  return TextoAviso(aviso.clase, textos);
}

bool DichoAntes(std::span<const Aviso> avisos, std::size_t i, bool (*sale)(const Aviso&)) {
  const Aviso& este = avisos[i];
  const auto antes = avisos.first(i);
  return std::any_of(antes.begin(), antes.end(), [&](const Aviso& otro) {
    return sale(otro) && otro.clase == este.clase && otro.hipotesis == este.hipotesis;
  });
}

std::string TextoHipotesisAviso(const Aviso& aviso, bool armado, const Catalogo& textos) {
  if (aviso.hipotesis < 1) return {};
  const auto i = static_cast<std::size_t>(aviso.hipotesis - 1);
  const int nombre = armado ? txt::HipotesisDiseno[i] : txt::HipotesisPostesado[i];
  return textos.Texto(txt::HipotesisRotulo) + std::string(Recorta(textos.Texto(nombre)));
}

std::string TextoCausa(const ErrorEjecucion& error, const Catalogo& textos) {
  const std::string& dato = error.dato();
  switch (error.causa()) {
    case CausaError::DivisionPorCero:
      return textos.Texto(txt::DivisionPorCero);
    case CausaError::Desbordamiento:
      return textos.Texto(txt::Desbordamiento);
    case CausaError::Subindice:
      return textos.Texto(txt::Subindice);
    case CausaError::SinConvergencia:
      return textos.Compone(txt::SinConvergencia, {dato});
    case CausaError::DemasiadasVueltas:
      return textos.Texto(txt::DemasiadasVueltas);
    case CausaError::DemasiadosCasos:
      return textos.Compone(txt::DemasiadosCasos, {NombreDelIncremento(dato, textos)});
    case CausaError::IncrementoPresion:
      return textos.Texto(dato == "Prs3Tram" ? txt::IncPresionTramo : txt::IncPresionObra);
    case CausaError::IncrementoAltura:
      return textos.Texto(dato == "Hr0Delta" ? txt::IncAlturaTramo : txt::IncAlturaObra);
  }
  return {};
}

std::string TextoFallo(const FalloCorrida& fallo, const std::string& fichero,
                       const std::string& tramo, const Catalogo& textos,
                       const EstiloNumeros& estilo) {
  const std::string causa = TextoCausa(fallo.error, textos);
  if (fallo.numCaso == 0) return textos.Compone(txt::FalloAntesDelCaso, {fichero, tramo, causa});
  const std::string altura = estilo.FormatoNumero(fallo.Hr, 0, 2);
  const std::string presion = estilo.FormatoNumero(fallo.DP, 0, 1, "at->MPa", true);
  return textos.Compone(txt::FalloEnCaso,
                        {fichero, tramo, TextoEntero(fallo.numCaso), altura, presion, causa});
}

}  // namespace zorbin
