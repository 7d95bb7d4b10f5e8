#include "listados/datos/mdJson.h"

#include <nlohmann/json.hpp>

#include "base/mdNumeros.h"
#include "core/campos/mdDatos.h"
#include "listados/obra/mdAvisos.h"

namespace zorbin {

namespace {

using Json = nlohmann::ordered_json;

std::string Texto(const Json& j) {
  return j.dump(-1, ' ', false, Json::error_handler_t::replace);
}

template <int N>
Json DeLista(const Lista<double, N>& l) {
  return Json(l.v);
}

template <int N, int M>
Json DeTabla(const Tabla<double, N, M>& t) {
  Json filas = Json::array();
  for (const auto& fila : t.filas.v) filas.push_back(DeLista(fila));
  return filas;
}

// Every datum of an Obra or of a Tramo that the results repeat.
template <class Bloque>
Json DeDatos(const Bloque& bloque) {
  Json j;
  RecorreDatos(bloque, [&](const Ficha& ficha, const auto& dato) {
    if (ficha.enResultados) j[ficha.nombre] = dato;
  });
  return j;
}

Json DeAjuste(const std::optional<Ajuste>& a) {
  if (!a) return nullptr;
  return {{"Camisa", a->Camisa}, {"Espiras", a->Espiras}, {"Exterior", a->Exterior}};
}

Json DeArmado(const ResultadoArmado& r) {
  Json tablaHip = Json::array();
  for (const auto& f : r.TablaHip.v) {
    tablaHip.push_back({f.AsInt, f.AsExt, f.Total, f.IESP, f.NESPIN, f.NEXPEX, f.CAMISA});
  }
  return {{"TablaHip", std::move(tablaHip)},
          {"HipotesisRige", r.HipotesisRige},
          {"MRige", DeLista(r.MRige)},
          {"NRige", DeLista(r.NRige)},
          {"M", DeTabla(r.esfuerzos.M)},
          {"N", DeTabla(r.esfuerzos.N)},
          {"CAMISA", r.CAMISA},
          {"FIIN", r.FIIN},
          {"NESPIN", r.NESPIN},
          {"FIEX", r.FIEX},
          {"NEXPEX", r.NEXPEX},
          {"AreaCamisa", r.AreaCamisa},
          {"AreaEspiras", r.AreaEspiras},
          {"AreaExterior", r.AreaExterior},
          {"AsInt", r.AsInt},
          {"AsExt", r.AsExt},
          {"Total", r.Total},
          {"TensionMax", r.TensionMax},
          {"TensionAdm", r.TensionAdm},
          {"ErrorPostesado", r.ErrorPostesado},
          {"MomentoTope", r.MomentoTope},
          {"HayAjuste", r.HayAjuste()},
          {"ajuste", DeAjuste(r.ajuste)}};
}

Json DeMensaje(const std::optional<ClaseAviso>& mensaje, const Catalogo& textos) {
  return mensaje ? TextoAviso(*mensaje, textos) : std::string{};
}

Json DeHipotesis(const HipotesisPostesada& h, const ResultadoPostesado& r, const Catalogo& textos) {
  const auto& m = r.materiales;
  return {{"h", h.h},
          {"hecha", h.hecha},
          {"error", h.error},
          {"texto", DeMensaje(h.texto, textos)},
          {"MomHip", DeLista(h.MomHip)},
          {"AxilHip", DeLista(h.AxilHip)},
          {"PerdElastica", h.PerdElastica},
          {"PerdRelaj", h.PerdRelaj},
          {"PerdFluRet", h.PerdFluRet},
          {"SigRes", h.SigRes},
          {"SigIniInt", h.SigIniInt},
          {"SigIniExt", h.SigIniExt},
          {"SigPI", h.SigPI},
          {"SigPE", h.SigPE},
          {"SigRI", h.SigRI},
          {"SigRE", h.SigRE},
          {"ni", m.ni},
          {"n", m.n},
          {"n1", m.n1},
          {"n2", m.n2},
          {"A", h.A},
          {"B", h.B},
          {"C", h.C},
          {"Ar", h.Ar},
          {"Br", h.Br},
          {"Cr", h.Cr},
          {"k", h.k},
          {"D", h.D},
          {"sro", h.sro},
          {"yi", h.yi},
          {"ye", h.ye},
          {"yr", h.yr},
          {"Io", h.Io},
          {"rco", h.rco},
          {"rro", h.rro},
          {"OvPI", DeLista(h.OvPI)},
          {"OvPE", DeLista(h.OvPE)},
          {"OvRI", DeLista(h.OvRI)},
          {"OvRE", DeLista(h.OvRE)},
          {"OvAc", DeLista(h.OvAc)},
          {"PrPI", h.PrPI},
          {"PrPE", h.PrPE},
          {"PrRI", h.PrRI},
          {"PrRE", h.PrRE},
          {"PrAc", h.PrAc},
          {"SinPI", DeLista(h.SinPI)},
          {"SinPE", DeLista(h.SinPE)},
          {"SinRI", DeLista(h.SinRI)},
          {"SinRE", DeLista(h.SinRE)},
          {"SinAc", DeLista(h.SinAc)},
          {"TotPI", DeLista(h.TotPI)},
          {"TotPE", DeLista(h.TotPE)},
          {"TotRI", DeLista(h.TotRI)},
          {"TotRE", DeLista(h.TotRE)},
          {"TotAc", DeLista(h.TotAc)},
          {"LimPI", h.LimPI},
          {"LimPE", h.LimPE},
          {"LimRI", h.LimRI},
          {"LimRE", h.LimRE},
          {"PresLimite", h.PresLimite}};
}

Json DePostesado(const EstadoCalculo& e, const Catalogo& textos) {
  const auto& r = e.caso.postesado;
  Json hipotesis = Json::array();
  for (int h = 1; h <= kHipotesisPostesado; ++h) {
    hipotesis.push_back(DeHipotesis(r.hipotesis(h), r, textos));
  }
  return {{"FIPRDEFI", r.FIPRDEFI},
          {"NESPDEFI", r.NESPDEFI},
          {"PP", e.corrida.PP},
          {"PPHipotesis", r.PPHipotesis},
          {"PPConAlambreFinal", r.PPConAlambreFinal},
          {"ErrorPostesado", r.ErrorPostesado},
          {"MensajePostesado", DeMensaje(r.MensajePostesado, textos)},
          {"Fctn", r.materiales.Fctn},
          {"Fctr", r.materiales.Fctr},
          {"TensionChapa", r.TensionChapa},
          {"LimiteChapa", r.LimiteChapa},
          {"hipotesis", std::move(hipotesis)}};
}

Json DeCaso(const EstadoCalculo& e, const Catalogo& textos) {
  const auto& c = e.corrida;
  Json avisos = Json::array();
  for (const auto& aviso : e.caso.avisos) avisos.push_back(TextoAviso(aviso, textos));
  Json caso{{"Hr", c.Hr},
            {"NumCaso", c.NumCaso},
            {"DP", c.DP},
            {"MDP", c.MDP},
            {"STP", c.STP},
            {"PP", c.PP},
            {"PPNeta", c.PPNeta},
            {"Landa", c.Landa},
            {"Q", c.Q},
            {"QTerraplen", c.QTerraplen},
            {"QTierras", c.QTierras},
            {"QMovil", c.QMovil},
            {"Impacto", c.Impacto},
            {"TerraplenRige", c.TerraplenRige},
            {"Q1m", c.Q1m},
            {"QTerraplen1m", c.QTerraplen1m},
            {"QTierras1m", c.QTierras1m},
            {"QMovil1m", c.QMovil1m},
            {"MHip", DeTabla(e.caso.MHip)},
            {"NHip", DeTabla(e.caso.NHip)},
            {"avisos", std::move(avisos)}};
  if (e.tramo.EsArmado) {
    caso["armado"] = DeArmado(e.caso.armado);
  } else {
    caso["postesado"] = DePostesado(e, textos);
  }
  return caso;
}

}  // namespace

void ListadoJson::EmpiezaObra(const EstadoCalculo& e) {
  salida_ << "{\"obra\":" << Texto(DeDatos(e.obra)) << ",\n\"tramos\":[";
}

void ListadoJson::AcabaObra() {
  salida_ << "\n]}\n";
}

void ListadoJson::EmpiezaTramo(const EstadoCalculo& e, int posicion, const std::string& numero) {
  Json tramo{{"posicion", posicion}, {"NumeroTramo", I16(NumeroTexto(numero).value_or(0.0))}};
  tramo.update(DeDatos(e.tramo));
  std::string abierto = Texto(tramo);
  abierto.pop_back();  // the object goes on with its Casos
  salida_ << (hayTramo_ ? ",\n" : "\n") << abierto << ",\"casos\":[";
  hayTramo_ = true;
  tramo_ = numero;
  hayCaso_ = false;
}

void ListadoJson::Caso(const EstadoCalculo& e) {
  salida_ << (hayCaso_ ? ",\n" : "\n") << Texto(DeCaso(e, textos_));
  hayCaso_ = true;
}

void ListadoJson::AcabaTramo(const EstadoCalculo&, const ErrorCorrida* fallo) {
  const Json error = fallo == nullptr
                         ? Json(nullptr)
                         : Json(TextoFallo(*fallo, fichero_, tramo_, textos_, estilo_));
  salida_ << "],\"error\":" << Texto(error) << "}";
}

}  // namespace zorbin
