#include "programas/zorbin-calc/mdValida.h"

#include <algorithm>

#include "base/mdCarpetas.h"
#include "base/mdNumeros.h"
#include "base/mdTextos.h"
#include "base/textos.h"
#include "programas/zorbin-calc/mdPalabras.h"
#include "programas/zorbin-calc/mdRescata.h"
#include "programas/zorbin-calc/mdSalida.h"
#include "programas/zorbin-calc/mdVigia.h"

namespace zorbin {

namespace {

// In one line, with a blank for each break.
std::string Seguido(const std::string& texto) {
  std::string linea;
  for (const char c : texto) {
    const bool blanco = c == ' ' || c == '\r' || c == '\n';
    if (!blanco) linea += c;
    if (blanco && !linea.empty() && linea.back() != ' ') linea += ' ';
  }
  return std::string(Recorta(linea));
}

std::string ConTitulo(const std::string& titulo, const std::string& texto) {
  std::string t = Seguido(titulo);
  if (!t.empty() && t.back() != ':') t += ':';
  return Seguido(t + " " + texto);
}

}  // namespace

std::string TextoFalta(const FaltaDeObra& falta, const Catalogo& textos) {
  const std::string mensaje = ConTitulo(falta.titulo, falta.mensaje);
  if (falta.posicion == 0) {
    return textos.Compone(txt::FaltaDeLaObra, {falta.campo, falta.valor, mensaje});
  }
  return textos.Compone(txt::FaltaDelTramo, {falta.numero, falta.campo, falta.valor, mensaje});
}

std::string TextoAviso(const AvisoDeObra& aviso, const Catalogo& textos) {
  if (aviso.numero.empty()) {
    return textos.Compone(txt::AvisoDeLaObra, {aviso.campo, Seguido(aviso.texto)});
  }
  return textos.Compone(txt::AvisoDelTramo, {aviso.numero, aviso.campo, Seguido(aviso.texto)});
}

ListaFaltas BuscaFaltas(const Proyecto& proyecto, const std::filesystem::path& tablas,
                        const PeticionValida& peticion, const Catalogo& textos) {
  const TablasCatalogo dimensiones =
      LeeTablas(tablas.empty() ? CarpetaRecursos() / "tablas" : tablas);
  return ValidaProyecto(proyecto, textos, dimensiones, peticion);
}

int Valida(const OpcionesValida& opciones, Catalogo& textos) try {
  const Proyecto proyecto = LeeProyectoEntero(opciones.obra, textos);
  textos.PonIdioma(proyecto.obra.Idioma);
  for (const auto& aviso : proyecto.avisos) Queja(textos.Compone(aviso));
  const auto posiciones = BuscaTramos(opciones.tramos, opciones.obra, proyecto.lista, textos);
  if (!posiciones) return kPalabrasMalas;
  const auto lista = BuscaFaltas(proyecto, opciones.tablas,
                                 {*posiciones, SeparadorDeLinea(opciones.separador)}, textos);
  for (const auto& a : lista.avisos) Queja(TextoAviso(a, textos));
  Salida salida({});
  for (const auto& f : lista.faltas) salida.flujo() << TextoFalta(f, textos) << '\n';
  if (lista.Vale()) {
    salida.flujo() << textos.Compone(txt::ObraSinFaltas, {opciones.obra.string()}) << '\n';
  }
  salida.Cierra();
  return lista.Vale() && !proyecto.SinAjustes && !proyecto.SinExtras ? kHecho : kFicheroRechazado;
} catch (const ErrorFichero& error) {
  Queja(textos.Compone(error.mensaje()));
  return kFicheroRechazado;
} catch (const ErrorSalida& error) {
  Queja(textos.Compone(txt::SalidaNoSeEscribe, {error.nombre(), error.what()}));
  return kSalidaImposible;
}

}  // namespace zorbin
