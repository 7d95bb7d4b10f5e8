#include "linea/mdCalculadoras.h"

#include <functional>
#include <iostream>
#include <nlohmann/json.hpp>

#include "core/mdNumeros.h"
#include "core/mdTextos.h"
#include "hidraulica/mdEntradaHidraulica.h"
#include "hidraulica/mdHidraulicaListado.h"
#include "hidraulica/mdHidraulicaPapel.h"
#include "linea/mdPalabras.h"
#include "linea/mdVigia.h"
#include "protecciones/mdEntradaMedios.h"
#include "protecciones/mdMediosPapel.h"
#include "recursos/textos.h"
#include "shell/mdPintor.h"
#include "shell/mdSinPantalla.h"

namespace zorbin {

namespace {

using Json = nlohmann::ordered_json;

char Separador(const OpcionesSalida& o) {
  if (o.separador.empty()) return SeparadorDeLaMaquina();
  return o.separador == "coma" ? ',' : '.';
}

int Rechaza(const AvisoCampo& aviso, const Catalogo& textos) {
  const std::string titulo = aviso.titulo != 0 ? textos.Texto(aviso.titulo) + ": " : "";
  Queja(titulo + std::string(Recorta(TextoAviso(aviso, textos))));
  return kPalabrasMalas;
}

int EscribePdf(const std::filesystem::path& fichero, const std::string& titulo,
               const Catalogo& textos, const std::function<void(Papel&)>& documento) {
  const AplicacionSinPantalla aplicacion;
  try {
    HojasPdf hojas(fichero, titulo);
    Papel papel(hojas, Orientacion::Vertical);
    documento(papel);
    papel.FinDocumento();
    hojas.Cierra();
    std::cout << textos.Compone(txt::ListadoEscrito,
                                {fichero.string(), TextoEntero(hojas.paginas())})
              << '\n';
  } catch (const ErrorPintor& error) {
    Queja(textos.Compone(txt::SalidaNoSeEscribe, {fichero.string(), error.what()}));
    return kSalidaImposible;
  }
  return kHecho;
}

int Escribe(const std::string& texto, const Catalogo& textos) {
  if (std::cout << texto << std::flush) return kHecho;
  Queja(textos.Compone(txt::SalidaNoSeEscribe, {"stdout", "EIO"}));
  return kSalidaImposible;
}

Json Valor(const std::optional<double>& v) {
  return v ? Json(*v) : Json(nullptr);
}

Json JsonHidraulico(const OpcionesHidraulica& o, const ResultadoHidraulico& r) {
  Json filas = Json::array();
  for (const auto& f : r.filas) {
    filas.push_back({{"DiamMM", f.DiamMM},
                     {"VLlena", f.VLlena},
                     {"QLlena", Valor(f.QLlena)},
                     {"VParcial", Valor(f.VParcial)},
                     {"QParcial", Valor(f.QParcial)},
                     {"JLlena", Valor(f.JLlena)},
                     {"JParcial", Valor(f.JParcial)},
                     {"ReLlena", Valor(f.ReLlena)},
                     {"Cwh", Valor(f.Cwh)},
                     {"critico", f.critico}});
  }
  return {{"metodo", o.metodo}, {"dato", r.dato}, {"rugosidad", r.rugosidad}, {"filas", filas}};
}

Json JsonMedios(const ResultadoMedios& r, const Catalogo& textos, const EstiloNumeros& estilo) {
  Json lineas = Json::array();
  for (const auto& l : LineasMedios(r, textos, estilo)) {
    lineas.push_back(Blancos(l.sangria) + l.texto);
  }
  return {{"Dosificacion", r.Dosificacion},
          {"RelacionAC", r.RelacionAC},
          {"TipoCemento", textos.Texto(r.TipoCemento)},
          {"Adicional", textos.Texto(r.Adicional)},
          {"HayMedida", r.HayMedida},
          {"lineas", lineas}};
}

}  // namespace

int Hidraulica(const OpcionesHidraulica& o, Catalogo& textos) {
  PonIdiomaDeLinea(textos, o.salida.idioma);
  if (o.pendiente.has_value() == o.caudal.has_value()) {
    Queja(textos.Compone(txt::UnoDeEstos, {"--pendiente, --caudal"}));
    return kPalabrasMalas;
  }
  auto e = CargaCalculoHidraulico(Separador(o.salida));
  CambiaMetodo(e, o.metodo == "prandtl" ? MetodoHidraulico::PrandtlColebrook
                  : o.metodo == "hazen" ? MetodoHidraulico::HazenWilliams
                                        : MetodoHidraulico::DarcyWeissbach);
  CambiaTipoDato(e, o.caudal ? DatoHidraulico::Caudal : DatoHidraulico::Pendiente);
  Cambia(e, CampoHidraulico::DatoOrigen, o.caudal ? *o.caudal : o.pendiente.value_or(""));
  if (o.rugosidad) Cambia(e, CampoHidraulico::Rugosidad, *o.rugosidad);
  if (const auto aviso = Calcula(e)) return Rechaza(*aviso, textos);
  const EstiloNumeros estilo{true, e.SeparadorDecimal};
  if (!o.salida.pdf.empty()) {
    return EscribePdf(o.salida.pdf, textos.Texto(SalidaDe(*e.resultado).titulo), textos,
                      [&](Papel& papel) { PapelHidraulico(*e.resultado, textos, estilo, papel); });
  }
  if (o.salida.formato == "json") {
    return Escribe(JsonHidraulico(o, *e.resultado).dump(1) + "\n", textos);
  }
  return Escribe(TextoHidraulico(*e.resultado, textos, estilo), textos);
}

int Medios(const OpcionesMedios& o, Catalogo& textos) {
  PonIdiomaDeLinea(textos, o.salida.idioma);
  auto e = CargaProtecciones(Separador(o.salida));
  e.Check1 = o.ciclos;
  for (int i = 0; i < kMedios; ++i) {
    const auto& valor = o.valores[static_cast<std::size_t>(i)];
    const auto medio = static_cast<Medio>(i);
    if (!valor) continue;
    Cambia(e, medio, *valor);
    if (const auto aviso = Sale(e, medio)) return Rechaza(*aviso, textos);
  }
  if (const auto aviso = Analiza(e)) return Rechaza(*aviso, textos);
  const EstiloNumeros estilo{true, e.SeparadorDecimal};
  if (!o.salida.pdf.empty()) {
    return EscribePdf(o.salida.pdf, textos.Texto(txt::AnalisisDeMedios), textos,
                      [&](Papel& papel) { PapelMedios(*e.resultado, textos, estilo, papel); });
  }
  if (o.salida.formato == "json") {
    return Escribe(JsonMedios(*e.resultado, textos, estilo).dump(1) + "\n", textos);
  }
  return Escribe(TextoMedios(*e.resultado, textos, estilo), textos);
}

}  // namespace zorbin
