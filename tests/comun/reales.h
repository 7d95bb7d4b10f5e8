// The reals of the results: each function calls f(name, value) for all of a part, for every place
// of a list in its order.
#pragma once

#include "core/resultado.h"

namespace zorbin::pruebas {

template <int N, class F>
void DeLista(const char* nombre, const Lista<double, N>& l, F f) {
  for (const double v : l.v) f(nombre, v);
}
template <int N, int M, class F>
void DeTabla(const char* nombre, const Tabla<double, N, M>& t, F f) {
  for (const auto& fila : t.filas.v) DeLista(nombre, fila, f);
}

#define REAL(campo) f(#campo, x.campo)
#define LISTA(campo) DeLista(#campo, x.campo, f)

/// Of a row and of the loads under it.
template <class F>
void DeFila(const ResultadoTramo& r, const FilaCaso& x, F f) {
  const auto& altura = r.Altura(x);
  const auto& q = altura.cargas;
  const auto& u = r.unMetro;
  f("Q", q.Q), f("QTerraplen", q.QTerraplen), f("QTierras", q.QTierras), f("QMovil", q.QMovil);
  f("Impacto", q.Impacto), f("Landa", altura.Landa);
  f("Q1m", u.Q), f("QTerraplen1m", u.QTerraplen), f("QTierras1m", u.QTierras);
  f("QMovil1m", u.QMovil), f("NumCaso", x.NumCaso), f("PPNeta", x.PP);
  REAL(Hr), REAL(DP), REAL(MDP), REAL(STP);
}

template <class F>
void DeArmado(const ResultadoArmado& x, F f) {
  DeTabla("M5", x.esfuerzos.M, f);
  DeTabla("N5", x.esfuerzos.N, f);
  LISTA(MRige), LISTA(NRige);
  REAL(CAMISA), REAL(FIIN), REAL(FIEX), REAL(AreaCamisa), REAL(AreaEspiras), REAL(AreaExterior);
  REAL(AsInt), REAL(AsExt), REAL(Total), REAL(TensionMax), REAL(TensionAdm), REAL(TensionAdmMin);
  REAL(BRAZO);
  for (const auto& h : x.TablaHip.v) {
    for (const double area : {h.AsInt, h.AsExt, h.Total, h.CAMISA}) f("FilaHip", area);
  }
  const auto& s = x.sinFisuracion;
  for (const double v : {s.FIIN, s.AsInt, s.FIEX, s.AsExt}) f("sinFisuracion", v);
}

template <class F>
void DeHipotesis(const HipotesisPostesada& x, F f) {
  REAL(FIPR), REAL(NESP), REAL(PresHip), REAL(LimPrimario), REAL(TensionChapa), REAL(Asp);
  REAL(sno), REAL(yno), REAL(sro), REAL(yi), REAL(ye), REAL(yr), REAL(Io), REAL(rco), REAL(rro);
  REAL(A), REAL(B), REAL(C), REAL(Ar), REAL(Br), REAL(Cr), REAL(k), REAL(D), REAL(PerdElastica);
  REAL(SigPostElastica), REAL(SigIniInt), REAL(SigIniExt), REAL(PerdRelajBruta);
  REAL(SigPostRelaj), REAL(SigPrimRelaj), REAL(PerdFluRet), REAL(PresionRev), REAL(PerdRelaj);
  REAL(SigRes), REAL(SigPI), REAL(SigPE), REAL(SigRI), REAL(SigRE), REAL(PresPrimario);
  REAL(PresAgotamiento), REAL(OvPImax), REAL(OvPEmax), REAL(OvRImax), REAL(OvREmax), REAL(KPI);
  REAL(KPE), REAL(KRI), REAL(KRE), REAL(KAc), REAL(LimPI), REAL(LimPE), REAL(LimRI), REAL(LimRE);
  REAL(PresLimite), REAL(PrPI), REAL(PrPE), REAL(PrRI), REAL(PrRE), REAL(PrAc);
  LISTA(MomHip), LISTA(AxilHip);
  LISTA(OvPI), LISTA(OvPE), LISTA(OvRI), LISTA(OvRE), LISTA(OvAc);
  LISTA(SinPI), LISTA(SinPE), LISTA(SinRI), LISTA(SinRE), LISTA(SinAc);
  LISTA(TotPI), LISTA(TotPE), LISTA(TotRI), LISTA(TotRE), LISTA(TotAc);
}

template <class F>
void DeMateriales(const MaterialesPostesado& x, F f) {
  REAL(Ecno), REAL(Ecn), REAL(Ecr), REAL(Fctn), REAL(Fctr), REAL(ni), REAL(n), REAL(n1), REAL(n2);
  REAL(nc), REAL(RatioChapa);
}

/// But for its hypotheses and its materials.
template <class F>
void DePostesado(const ResultadoPostesado& x, F f) {
  const auto& r = x.radios;
  f("RadioInt", r.RadioInt), f("RadioCam", r.RadioCam);
  f("RadioNuc", r.RadioNuc), f("RadioRev", r.RadioRev);
  REAL(FIPR), REAL(NESP), REAL(FIPRDEFI), REAL(NESPDEFI), REAL(PP);
  REAL(TensionChapa), REAL(LimiteChapa);
}

#undef LISTA
#undef REAL

}  // namespace zorbin::pruebas
