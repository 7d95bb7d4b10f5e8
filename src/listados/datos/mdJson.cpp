#include "listados/datos/mdJson.h"

#include "base/mdNumeros.h"
#include "core/campos/mdDatos.h"
#include "listados/datos/mdJsonVeredicto.h"
#include "listados/obra/mdAvisos.h"
#include "listados/obra/mdVeredictoCaso.h"

namespace zorbin {

namespace {

// Every datum of an Obra or of a Tramo that the results repeat.
template <class Bloque>
void DeDatos(EscritorJson& j, const Bloque& bloque) {
  RecorreDatos(bloque, [&](const Ficha& ficha, const auto& dato) {
    if (ficha.enResultados) j.Campo(ficha.nombre, dato);
  });
}

void DeAjuste(EscritorJson& j, const std::optional<Ajuste>& a) {
  if (!a) return j.Valor(std::nullopt);
  j.Abre('{');
  j.Campo("Camisa", a->Camisa);
  j.Campo("Espiras", a->Espiras);
  j.Campo("Exterior", a->Exterior);
  j.Cierra('}');
}

void DeFila(EscritorJson& j, const FilaHip& f) {
  j.Abre('[');
  for (const double area : {f.AsInt, f.AsExt, f.Total}) j.Valor(area);
  for (const int n : {f.IESP, f.NESPIN, f.NEXPEX}) j.Valor(n);
  j.Valor(f.CAMISA);
  j.Cierra(']');
}

void DeArmado(EscritorJson& j, const ResultadoArmado& r) {
  j.Clave("TablaHip");
  j.Abre('[');
  for (const auto& f : r.TablaHip.v) DeFila(j, f);
  j.Cierra(']');
  j.Campo("HipotesisRige", r.HipotesisRige);
  j.Campo("MRige", r.MRige);
  j.Campo("NRige", r.NRige);
  j.Campo("M", r.esfuerzos.M);
  j.Campo("N", r.esfuerzos.N);
  j.Campo("CAMISA", r.CAMISA);
  j.Campo("FIIN", r.FIIN);
  j.Campo("NESPIN", r.NESPIN);
  j.Campo("FIEX", r.FIEX);
  j.Campo("NEXPEX", r.NEXPEX);
  j.Campo("AreaCamisa", r.AreaCamisa);
  j.Campo("AreaEspiras", r.AreaEspiras);
  j.Campo("AreaExterior", r.AreaExterior);
  j.Campo("AsInt", r.AsInt);
  j.Campo("AsExt", r.AsExt);
  j.Campo("Total", r.Total);
  j.Campo("TensionMax", r.TensionMax);
  j.Campo("TensionAdm", r.TensionAdm);
  j.Campo("ErrorPostesado", r.ErrorPostesado);
  j.Campo("MomentoTope", r.MomentoTope);
  j.Campo("HayAjuste", r.HayAjuste());
  j.Clave("ajuste");
  DeAjuste(j, r.ajuste);
}

std::string DeMensaje(const std::optional<ClaseAviso>& mensaje, const Catalogo& textos) {
  return mensaje ? TextoAviso(*mensaje, textos) : std::string{};
}

void DeHipotesis(EscritorJson& j, const HipotesisPostesada& h, const ResultadoPostesado& r,
                 const Catalogo& textos) {
  const auto& m = r.materiales;
  j.Abre('{');
  j.Campo("h", h.h);
  j.Campo("hecha", h.hecha);
  j.Campo("error", h.error);
  j.Campo("texto", DeMensaje(h.texto, textos));
  j.Campo("MomHip", h.MomHip);
  j.Campo("AxilHip", h.AxilHip);
  j.Campo("PerdElastica", h.PerdElastica);
  j.Campo("PerdRelaj", h.PerdRelaj);
  j.Campo("PerdFluRet", h.PerdFluRet);
  j.Campo("SigRes", h.SigRes);
  j.Campo("SigIniInt", h.SigIniInt);
  j.Campo("SigIniExt", h.SigIniExt);
  j.Campo("SigPI", h.SigPI);
  j.Campo("SigPE", h.SigPE);
  j.Campo("SigRI", h.SigRI);
  j.Campo("SigRE", h.SigRE);
  j.Campo("ni", m.ni);
  j.Campo("n", m.n);
  j.Campo("n1", m.n1);
  j.Campo("n2", m.n2);
  j.Campo("A", h.A);
  j.Campo("B", h.B);
  j.Campo("C", h.C);
  j.Campo("Ar", h.Ar);
  j.Campo("Br", h.Br);
  j.Campo("Cr", h.Cr);
  j.Campo("k", h.k);
  j.Campo("D", h.D);
  j.Campo("sro", h.sro);
  j.Campo("yi", h.yi);
  j.Campo("ye", h.ye);
  j.Campo("yr", h.yr);
  j.Campo("Io", h.Io);
  j.Campo("rco", h.rco);
  j.Campo("rro", h.rro);
  j.Campo("OvPI", h.OvPI);
  j.Campo("OvPE", h.OvPE);
  j.Campo("OvRI", h.OvRI);
  j.Campo("OvRE", h.OvRE);
  j.Campo("OvAc", h.OvAc);
  j.Campo("PrPI", h.PrPI);
  j.Campo("PrPE", h.PrPE);
  j.Campo("PrRI", h.PrRI);
  j.Campo("PrRE", h.PrRE);
  j.Campo("PrAc", h.PrAc);
  j.Campo("SinPI", h.SinPI);
  j.Campo("SinPE", h.SinPE);
  j.Campo("SinRI", h.SinRI);
  j.Campo("SinRE", h.SinRE);
  j.Campo("SinAc", h.SinAc);
  j.Campo("TotPI", h.TotPI);
  j.Campo("TotPE", h.TotPE);
  j.Campo("TotRI", h.TotRI);
  j.Campo("TotRE", h.TotRE);
  j.Campo("TotAc", h.TotAc);
  j.Campo("LimPI", h.LimPI);
  j.Campo("LimPE", h.LimPE);
  j.Campo("LimRI", h.LimRI);
  j.Campo("LimRE", h.LimRE);
  j.Campo("PresLimite", h.PresLimite);
  j.Cierra('}');
}

void DePostesado(EscritorJson& j, const ResultadoPostesado& r, const Catalogo& textos) {
  j.Campo("FIPRDEFI", r.FIPRDEFI);
  j.Campo("NESPDEFI", r.NESPDEFI);
  j.Campo("PP", r.PP);
  j.Campo("PPHipotesis", r.PPHipotesis);
  j.Campo("PPConAlambreFinal", r.PPConAlambreFinal);
  j.Campo("ErrorPostesado", r.ErrorPostesado);
  j.Campo("MensajePostesado", DeMensaje(r.MensajePostesado, textos));
  j.Campo("Fctn", r.materiales.Fctn);
  j.Campo("Fctr", r.materiales.Fctr);
  j.Campo("TensionChapa", r.TensionChapa);
  j.Campo("LimiteChapa", r.LimiteChapa);
  j.Clave("hipotesis");
  j.Abre('[');
  for (const auto& h : r.hipotesis.v) DeHipotesis(j, h, r, textos);
  j.Cierra(']');
}

void DeCargas(EscritorJson& j, const CargasAltura& altura, const Cargas& unMetro) {
  const auto& q = altura.cargas;
  j.Campo("Landa", altura.Landa);
  j.Campo("Q", q.Q);
  j.Campo("QTerraplen", q.QTerraplen);
  j.Campo("QTierras", q.QTierras);
  j.Campo("QMovil", q.QMovil);
  j.Campo("Impacto", q.Impacto);
  j.Campo("TerraplenRige", q.TerraplenRige);
  j.Campo("Q1m", unMetro.Q);
  j.Campo("QTerraplen1m", unMetro.QTerraplen);
  j.Campo("QTierras1m", unMetro.QTierras);
  j.Campo("QMovil1m", unMetro.QMovil);
}

void DeCaso(EscritorJson& j, const VistaCaso& v, const Catalogo& textos) {
  const auto& f = v.fila;
  const bool armado = v.Datos().EsArmado;
  j.FinLinea();
  j.Abre('{');
  j.Campo("Hr", f.Hr);
  j.Campo("NumCaso", f.NumCaso);
  j.Campo("DP", f.DP);
  j.Campo("MDP", f.MDP);
  j.Campo("STP", f.STP);
  j.Campo("PP", armado ? f.PP : v.Postesado().PP);
  j.Campo("PPNeta", f.PP);
  DeCargas(j, v.altura, v.tramo.unMetro);
  j.Campo("MHip", v.caso.MHip);
  j.Campo("NHip", v.caso.NHip);
  j.Clave("avisos");
  j.Abre('[');
  for (const auto& aviso : v.caso.avisos) j.Valor(TextoAviso(aviso, textos));
  j.Cierra(']');
  DeVeredicto(j, v.caso.verificacion, f.ajustado);
  j.Clave(armado ? "armado" : "postesado");
  j.Abre('{');
  armado ? DeArmado(j, v.Armado()) : DePostesado(j, v.Postesado(), textos);
  j.Cierra('}');
  j.Cierra('}');
}

}  // namespace

void ListadoJson::EmpiezaObra(const Obra& obra) {
  j_.Abre('{');
  j_.Clave("obra");
  j_.Abre('{');
  DeDatos(j_, obra);
  j_.Cierra('}');
  j_.FinLinea();
  j_.Clave("tramos");
  j_.Abre('[');
}

void ListadoJson::AcabaObra() {
  j_.FinLinea();
  j_.Cierra(']');
  j_.Cierra('}');
  j_.Acaba();
}

bool ListadoJson::Tramo(const ResultadoTramo& resultado, int posicion, const std::string& numero,
                        const SigueListado& sigue) {
  j_.FinLinea();
  j_.Abre('{');
  j_.Campo("posicion", posicion);
  j_.Campo("NumeroTramo", I16(NumeroTexto(numero).value_or(0.0)));
  DeDatos(j_, capturados_.at(posicion));
  // The run's, not the Tramo's: it may be asked for from outside. Its absence says no.
  if (resultado.datos.envolvente) j_.Campo("Envolvente", true);
  j_.Clave("casos");
  j_.Abre('[');
  const auto deCaso = [this](const VistaCaso& v) { DeCaso(j_, v, textos_); };
  if (!RecorreCasos(resultado, sigue, deCaso)) return false;
  j_.Cierra(']');
  const auto cuenta = CuentaDeVeredictos(resultado);
  j_.Campo("veredicto", CodigoDe(cuenta.veredicto));
  j_.Campo("noCumplen", cuenta.noCumplen);
  j_.Campo("sinComprobar", cuenta.sinComprobar);
  j_.Clave("error");
  if (resultado.fallo) {
    j_.Valor(TextoFallo(*resultado.fallo, fichero_, numero, textos_, estilo_));
  } else {
    j_.Valor(std::nullopt);
  }
  j_.Cierra('}');
  j_.Vuelca();
  return true;
}

}  // namespace zorbin
