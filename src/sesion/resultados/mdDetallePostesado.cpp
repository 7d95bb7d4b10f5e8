#include <array>

#include "base/mdTextos.h"
#include "base/textos.h"
#include "calculo/anillo/mdAnilloCaso.h"
#include "listados/obra/mdRotulos.h"
#include "sesion/resultados/mdEscribeDetalle.h"

namespace zorbin {

namespace {

// A number that the table of a group has.
template <class De>
struct Dato {
  const char* simbolo;
  double De::*valor;
  int decimales;
  const char* unidad;
};

constexpr std::array<Dato<SeccionPostesada>, 18> kSeccion{{
    {"Asp", &SeccionPostesada::Asp, 5, " cm²/cm"},
    {"sno", &SeccionPostesada::sno, 3, " cm"},
    {"yno", &SeccionPostesada::yno, 3, " cm"},
    {"sro", &SeccionPostesada::sro, 3, " cm"},
    {"yi", &SeccionPostesada::yi, 3, " cm"},
    {"ye", &SeccionPostesada::ye, 3, " cm"},
    {"yr", &SeccionPostesada::yr, 3, " cm"},
    {"Io", &SeccionPostesada::Io, 2, " cm⁴/cm"},
    {"rco", &SeccionPostesada::rco, 3, " cm"},
    {"rro", &SeccionPostesada::rro, 3, " cm"},
    {"A", &SeccionPostesada::A, 5, ""},
    {"B", &SeccionPostesada::B, 5, ""},
    {"C", &SeccionPostesada::C, 5, ""},
    {"Ar", &SeccionPostesada::Ar, 5, ""},
    {"Br", &SeccionPostesada::Br, 5, ""},
    {"Cr", &SeccionPostesada::Cr, 5, ""},
    {"k", &SeccionPostesada::k, 5, ""},
    {"D", &SeccionPostesada::D, 5, ""},
}};
constexpr std::size_t kDeLame = 10;  // from here on, coefficients of Lamé

constexpr std::array<Dato<MaterialesPostesado>, 5> kEquivalencias{{
    {"ni", &MaterialesPostesado::ni, 4, ""},
    {"n", &MaterialesPostesado::n, 4, ""},
    {"n1", &MaterialesPostesado::n1, 4, ""},
    {"n2", &MaterialesPostesado::n2, 4, ""},
    {"nc", &MaterialesPostesado::nc, 4, ""},
}};

// Stresses of the wire and the core, in the order of the texts.
constexpr std::array<double PerdidasPostesado::*, 15> kPerdidas{
    &PerdidasPostesado::PerdElastica,   &PerdidasPostesado::SigPostElastica,
    &PerdidasPostesado::SigIniInt,      &PerdidasPostesado::SigIniExt,
    &PerdidasPostesado::PerdRelajBruta, &PerdidasPostesado::SigPostRelaj,
    &PerdidasPostesado::SigPrimRelaj,   &PerdidasPostesado::PerdFluRet,
    &PerdidasPostesado::PresionRev,     &PerdidasPostesado::PerdRelaj,
    &PerdidasPostesado::SigRes,         &PerdidasPostesado::SigPI,
    &PerdidasPostesado::SigPE,          &PerdidasPostesado::SigRI,
    &PerdidasPostesado::SigRE};

void DetallaPresiones(EscribeDetalle& d, const CasoDibujado& c, const HipotesisPostesada& h) {
  const auto& r = c.caso.Postesado();
  const auto& w = d.Palabras();
  d.Grupo(txt::ResPresiones);
  d.Texto(txt::ResPPObtenida, TextoPP(r, r.PP, w.Textos(), w.Estilo()));
  d.Numero(txt::ResPPExigida, c.fila.PP, 0, kPresion);
  if (h.PresAgotamiento > 0) d.Numero(txt::ResAgotamiento, h.PresAgotamiento, 0, kPresion);
  d.Numero(txt::ResPresPrimario, h.PresPrimario, 0, kPresion);
}

void DetallaTensiones(EscribeDetalle& d, const ResultadoPostesado& r) {
  const auto& w = d.Palabras();
  for (int i = 1; i <= kHipotesisPostesado; ++i) {
    const auto& h = r.hipotesis(i);
    if (!h.Impresa()) continue;
    d.Grupo(w.T(txt::ResTensiones) + " · " + TextoEntero(i) + " " + w.Hipotesis(false, i));
    const auto sitio = [&](std::size_t nombre, const Lista<double, kSecciones>& s) {
      d.Texto(txt::ResLugar[nombre], d.Valor(s(CLAVE), 1, kTension) + " · " +
                                         d.Valor(s(RINONES), 1, kTension) + " · " +
                                         d.Valor(s(SOLERA), 1, kTension));
    };
    sitio(0, h.TotPI);
    sitio(1, h.TotPE);
    d.Numero(txt::DibLimiteNucleo, h.LimPrimario, 1, kTension);
    sitio(2, h.TotRI);
    sitio(3, h.TotRE);
    d.Numero(txt::DibLimiteRevestimiento, r.materiales.Fctr, 1, kTension);
    sitio(4, h.TotAc);
    d.Numero(txt::ResPresLimite, h.PresLimite, 0, kPresion);
  }
}

}  // namespace

void DetallaPostesado(EscribeDetalle& d, const CasoDibujado& c) {
  const auto& r = c.caso.Postesado();
  d.Grupo(txt::ResAlambre);
  d.Numero("Ø", r.FIPRDEFI * 10.0, 1, {}, " mm");
  d.Numero(txt::ResEspiras, r.NESPDEFI, 1, {}, " /m");
  const int rige = HipotesisQueRige(c.tramo.datos, c.fila);
  const auto& h = r.hipotesis(rige > 0 ? rige : 1);
  if (!h.hecha) return;
  DetallaPresiones(d, c, h);
  d.Grupo(txt::ResPerdidas);
  for (std::size_t i = 0; i < kPerdidas.size(); ++i) {
    d.Numero(txt::ResPerdida[i], h.*kPerdidas[i], 1, kTension);
  }
  d.Grupo(txt::ResGeometria);
  for (std::size_t i = 0; i < kSeccion.size(); ++i) {
    if (i == kDeLame) d.Grupo(txt::ResLame);
    const auto& x = kSeccion[i];
    d.Numero(x.simbolo, h.*x.valor, x.decimales, {}, x.unidad);
  }
  d.Grupo(txt::ResEquivalencias);
  for (const auto& x : kEquivalencias) d.Numero(x.simbolo, r.materiales.*x.valor, x.decimales);
  DetallaTensiones(d, r);
}

}  // namespace zorbin
