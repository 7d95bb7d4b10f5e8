#include "programas/zorbin-calc/mdRescata.h"

#include <algorithm>

#include "base/mdTextos.h"
#include "base/textos.h"
#include "persistencia/disco/mdDescriptor.h"
#include "persistencia/dpe/mdDpe.h"
#include "programas/zorbin-calc/mdPalabras.h"
#include "programas/zorbin-calc/mdSalida.h"
#include "programas/zorbin-calc/mdVigia.h"

namespace zorbin {

namespace {

namespace fs = std::filesystem;

std::string Cuantos(const ListaTramos& lista) {
  return TextoEntero(static_cast<int>(PosicionesDe(lista).size()));
}

// Each damage in a line.
void DiDanos(const Proyecto& proyecto, const Catalogo& textos) {
  for (const auto& d : proyecto.danos) {
    const std::string causa = textos.Compone(d.causa);
    const std::string numero = d.numero.empty() ? TextoEntero(d.posicion) + "?" : d.numero;
    Queja(d.posicion == 0 ? causa : textos.Compone(txt::DanoDelTramo, {numero, causa}));
  }
}

void ExigeNueva(const fs::path& ruta) {
  bool hay = false;
  if (const Causa causa = HayAlgo(ruta, hay)) {
    throw ErrorFichero({txt::NoSeAbre, {ruta.string(), TextoDeCausa(causa)}});
  }
  if (hay) throw ErrorFichero({txt::ObraYaExiste, {ruta.string()}});
}

void EscribeNueva(const Proyecto& proyecto, const fs::path& ruta, const Catalogo& textos,
                  char separador) {
  const auto tramos = TramosPedidos(proyecto);
  EstadoCalculo e;
  e.obra = proyecto.obra;
  ListaTramos lista;
  for (const auto& t : tramos) lista.push_back(t.numero);
  FicheroRegistros f(ruta, FicheroRegistros::Modo::LecturaEscritura);
  Transaccion juntos(f);
  EscribeObra(f, e, lista, textos, separador);
  for (std::size_t i = 0; i < tramos.size(); ++i) {
    e.tramo = tramos[i].tramo;
    EscribeTramo(f, e, lista, static_cast<int>(i) + 1, separador);
  }
  juntos.Confirma();
}

void EscribeSusAjustes(const Proyecto& proyecto, const fs::path& ruta, char separador) {
  if (proyecto.ajustes.empty()) return;
  FicheroRegistros f(ruta, FicheroRegistros::Modo::LecturaEscritura);
  EscribeAjustes(f, proyecto.ajustes, separador);
}

}  // namespace

Proyecto LeeProyectoEntero(const fs::path& ruta, const Catalogo& textos) try {
  return LeeProyecto(ruta);
} catch (const ErrorFichero& error) {
  const Proyecto parte = RescataProyecto(ruta);
  if (PosicionesDe(parte.lista).empty()) throw;
  throw ErrorFichero({txt::SePuedeRescatar,
                      {textos.Compone(error.mensaje()), Cuantos(parte.lista),
                       TextoEntero(static_cast<int>(parte.lista.size()))}});
}

int Rescata(const OpcionesRescata& opciones, Catalogo& textos) try {
  const Proyecto proyecto = RescataProyecto(opciones.obra);
  textos.PonIdioma(proyecto.obra.Idioma);
  for (const auto& aviso : proyecto.avisos) Queja(textos.Compone(aviso));
  DiDanos(proyecto, textos);
  if (PosicionesDe(proyecto.lista).empty()) {
    Queja(textos.Compone(txt::NadaQueRescatar, {opciones.obra.string()}));
    return kFicheroRechazado;
  }
  const char separador = SeparadorDeLinea(opciones.separador);
  ExigeNueva(opciones.salida);
  ExigeNueva(RutaDpe(opciones.salida));
  EscribeNueva(proyecto, opciones.salida, textos, separador);
  EscribeSusAjustes(proyecto, RutaDpe(opciones.salida), separador);
  Salida salida({});
  salida.flujo() << textos.Compone(txt::Rescatados,
                                   {opciones.salida.string(), Cuantos(proyecto.lista),
                                    TextoEntero(static_cast<int>(proyecto.lista.size()))})
                 << '\n';
  salida.Cierra();
  return proyecto.danos.empty() && !proyecto.SinAjustes ? kHecho : kFicheroRechazado;
} catch (const ErrorFichero& error) {
  Queja(textos.Compone(error.mensaje()));
  return kFicheroRechazado;
} catch (const ErrorSalida& error) {
  Queja(textos.Compone(txt::SalidaNoSeEscribe, {error.nombre(), error.what()}));
  return kSalidaImposible;
}

}  // namespace zorbin
