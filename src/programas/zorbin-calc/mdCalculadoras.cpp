#include "programas/zorbin-calc/mdCalculadoras.h"

#include <functional>
#include <nlohmann/json.hpp>

#include "base/mdNumeros.h"
#include "base/mdTextos.h"
#include "base/textos.h"
#include "listados/calculadoras/mdHidraulicaListado.h"
#include "listados/calculadoras/mdHidraulicaPapel.h"
#include "listados/calculadoras/mdHojasCalculadora.h"
#include "listados/calculadoras/mdMediosPapel.h"
#include "programas/zorbin-calc/mdPalabras.h"
#include "programas/zorbin-calc/mdSalida.h"
#include "programas/zorbin-calc/mdSalidaPdf.h"
#include "programas/zorbin-calc/mdVigia.h"
#include "sesion/calculadoras/mdEntradaHidraulica.h"
#include "sesion/calculadoras/mdEntradaMedios.h"

namespace zorbin {

namespace {

using Json = nlohmann::ordered_json;

int Rechaza(const AvisoCampo& aviso, const Catalogo& textos) {
  const std::string titulo = aviso.titulo != 0 ? textos.Texto(aviso.titulo) + ": " : "";
  Queja(titulo + std::string(Recorta(TextoAviso(aviso, textos))));
  return kPalabrasMalas;
}

// Writes a result where it was asked for.
int Escribe(const std::function<std::string()>& texto) {
  Salida salida({});
  salida.flujo() << texto();
  salida.Cierra();
  return kHecho;
}

int Documento(const OpcionesSalida& o, const std::string& titulo, const Catalogo& textos,
              const std::function<void(Papel&)>& contenido) {
  EscribePdf(o.pdf, titulo, textos, [&](DestinoHojas& hojas) {
    EscribeCalculadora(hojas, titulo, Ahora(), textos, contenido);
  });
  return kHecho;
}

// Whether the output is asked for in two ways; says so.
bool DosSalidas(const OpcionesSalida& o, const Catalogo& textos) {
  if (o.pdf.empty() || o.formato.empty()) return false;
  Queja(textos.Compone(txt::NoVanJuntas, {"--pdf", "--formato"}));
  return true;
}

int NoSeEscribe(const ErrorSalida& error, const Catalogo& textos) {
  Queja(textos.Compone(txt::SalidaNoSeEscribe, {error.nombre(), error.what()}));
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
                     {"JExacta", Valor(f.JExacta)},
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

int Hidraulica(const OpcionesHidraulica& o, Catalogo& textos) try {
  PonIdiomaDeLinea(textos, o.salida.idioma);
  if (DosSalidas(o.salida, textos)) return kPalabrasMalas;
  if (o.pendiente.has_value() == o.caudal.has_value()) {
    Queja(textos.Compone(txt::UnoDeEstos, {"--pendiente, --caudal"}));
    return kPalabrasMalas;
  }
  auto e = CargaCalculoHidraulico(SeparadorDeLinea(o.salida.separador));
  CambiaMetodo(e, o.metodo == "prandtl" ? MetodoHidraulico::PrandtlColebrook
                  : o.metodo == "hazen" ? MetodoHidraulico::HazenWilliams
                                        : MetodoHidraulico::DarcyWeissbach);
  CambiaTipoDato(e, o.caudal ? DatoHidraulico::Caudal : DatoHidraulico::Pendiente);
  Cambia(e, CampoHidraulico::DatoOrigen, o.caudal ? *o.caudal : o.pendiente.value_or(""));
  if (o.rugosidad) Cambia(e, CampoHidraulico::Rugosidad, *o.rugosidad);
  if (const auto aviso = Calcula(e)) return Rechaza(*aviso, textos);
  const EstiloNumeros estilo{true, e.SeparadorDecimal};
  if (!o.salida.pdf.empty()) {
    return Documento(o.salida, textos.Texto(SalidaDe(*e.resultado).titulo), textos,
                     [&](Papel& papel) { PapelHidraulico(*e.resultado, textos, estilo, papel); });
  }
  if (o.salida.formato == "json") {
    return Escribe([&] { return JsonHidraulico(o, *e.resultado).dump(1) + "\n"; });
  }
  return Escribe([&] { return TextoHidraulico(*e.resultado, textos, estilo); });
} catch (const ErrorSalida& error) {
  return NoSeEscribe(error, textos);
}

int Medios(const OpcionesMedios& o, Catalogo& textos) try {
  PonIdiomaDeLinea(textos, o.salida.idioma);
  if (DosSalidas(o.salida, textos)) return kPalabrasMalas;
  auto e = CargaProtecciones(SeparadorDeLinea(o.salida.separador));
  e.Check1 = o.ciclos;
  for (int i = 0; i < kMedios; ++i) {
    const auto& valor = o.valores[static_cast<std::size_t>(i)];
    const auto medio = static_cast<Medio>(i);
    if (!valor) continue;
    Cambia(e, medio, *valor);
    if (const auto aviso = Sale(e, medio)) return Rechaza(*aviso, textos);
    if (const auto aviso = AvisoDePlausibilidad(e, medio)) Queja(textos.Compone(*aviso));
  }
  if (const auto aviso = Analiza(e)) return Rechaza(*aviso, textos);
  const EstiloNumeros estilo{true, e.SeparadorDecimal};
  if (!o.salida.pdf.empty()) {
    return Documento(o.salida, textos.Texto(txt::AnalisisDeMedios), textos,
                     [&](Papel& papel) { PapelMedios(*e.resultado, textos, estilo, papel); });
  }
  if (o.salida.formato == "json") {
    return Escribe([&] { return JsonMedios(*e.resultado, textos, estilo).dump(1) + "\n"; });
  }
  return Escribe([&] { return TextoMedios(*e.resultado, textos, estilo); });
} catch (const ErrorSalida& error) {
  return NoSeEscribe(error, textos);
}

}  // namespace zorbin
