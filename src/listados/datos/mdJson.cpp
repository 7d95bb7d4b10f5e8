#include "listados/datos/mdJson.h"

#include <nlohmann/json.hpp>

#include "base/mdNumeros.h"
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

Json DeObra(const Obra& o) {
  return {{"Idioma", o.Idioma},
          {"IdiomaOffset", o.IdiomaOffset},
          {"SisUnid", o.SisUnid},
          {"GolpeCalculado", o.GolpeCalculado},
          {"NombreObra", o.NombreObra},
          {"Cliente", o.Cliente},
          {"Prs1", o.Prs1},
          {"Prs2", o.Prs2},
          {"Prs3", o.Prs3},
          {"PrsM1", o.PrsM1},
          {"PrsM2", o.PrsM2},
          {"Alt1", o.Alt1},
          {"Alt2", o.Alt2},
          {"Alt3", o.Alt3},
          {"RutaApp", o.RutaApp},
          {"NombreFichero", o.NombreFichero},
          {"ObraAbierta", o.ObraAbierta}};
}

Json DeTramo(const Tramo& t) {
  return {{"DescriTramo", t.DescriTramo},
          {"Tipologia", t.Tipologia},
          {"EsArmado", t.EsArmado},
          {"PostFlag", t.PostFlag},
          {"SubTipo", t.SubTipo},
          {"Icontes0", t.Icontes0},
          {"Adato", t.Adato},
          {"Icontes1", t.Icontes1},
          {"Coepre1", t.Coepre1},
          {"TipoControl", t.TipoControl},
          {"TipoCamisa", t.TipoCamisa},
          {"CamMax", t.CamMax},
          {"Fck", t.Fck},
          {"Fct", t.Fct},
          {"Fyk", t.Fyk},
          {"Fyd", t.Fyd},
          {"GamaB", t.GamaB},
          {"GamaY", t.GamaY},
          {"GamaF", t.GamaF},
          {"Delca", t.Delca},
          {"Es", t.Es},
          {"Ep", t.Ep},
          {"Fckno", t.Fckno},
          {"Fckn", t.Fckn},
          {"Fckr", t.Fckr},
          {"SFck", t.SFck},
          {"Sf", t.Sf},
          {"FYKPost", t.FYKPost},
          {"Rel", t.Rel},
          {"Fic", t.Fic},
          {"Fir", t.Fir},
          {"Epsc", t.Epsc},
          {"Epsr", t.Epsr},
          {"Di", t.Di},
          {"De", t.De},
          {"Esp", t.Esp},
          {"Reci", t.Reci},
          {"Rece", t.Rece},
          {"Gc", t.Gc},
          {"TipoCuna", t.TipoCuna},
          {"TipoApoyo", t.TipoApoyo},
          {"TipoColocacion", t.TipoColocacion},
          {"B0", t.B0},
          {"Gr", t.Gr},
          {"Fi", t.Fi},
          {"TipoRelleno", t.TipoRelleno},
          {"Hr1", t.Hr1},
          {"IAs", t.IAs},
          {"QDato", t.QDato},
          {"IndCar", t.IndCar},
          {"ICar", t.ICar},
          {"Prs1Tram", t.Prs1Tram},
          {"Prs2Tram", t.Prs2Tram},
          {"Prs3Tram", t.Prs3Tram},
          {"PrsM1Tram", t.PrsM1Tram},
          {"PrsM2Tram", t.PrsM2Tram},
          {"Hr0Tramo", t.Hr0Tramo},
          {"Hr0Final", t.Hr0Final},
          {"Hr0Delta", t.Hr0Delta}};
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
  salida_ << "{\"obra\":" << Texto(DeObra(e.obra)) << ",\n\"tramos\":[";
}

void ListadoJson::AcabaObra() {
  salida_ << "\n]}\n";
}

void ListadoJson::EmpiezaTramo(const EstadoCalculo& e, int posicion, const std::string& numero) {
  Json tramo{{"posicion", posicion}, {"NumeroTramo", I16(NumeroTexto(numero).value_or(0.0))}};
  tramo.update(DeTramo(e.tramo));
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
