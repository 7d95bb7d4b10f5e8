#include "listados/datos/mdColumnas.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "base/mdTextos.h"
#include "base/textos.h"
#include "calculo/anillo/mdAnilloCaso.h"
#include "calculo/corrida/mdCalculaTramo.h"
#include "calculo/postesado/mdHipotesis.h"

namespace zorbin {

namespace {

constexpr double kCmPorMetro = 100.0;
constexpr double kNada = std::numeric_limits<double>::quiet_NaN();

// clang-format off
constexpr std::array<FilaColumna, kColumnas> kTabla{{
    {Columna::Tramo,           "tramo",      nullptr, txt::ResCol[0],       "",       "",       0, false, true},
    {Columna::Descripcion,     "descripcion",nullptr, txt::RotDescriTramo,  "",       "",       0, false, false},
    {Columna::Di,              "Di",         "Di",    0,                    "",       "m",      3, true,  false},
    {Columna::Esp,             "Esp",        "Esp",   0,                    "",       "cm",     1, true,  false},
    {Columna::Hr,              "Hr",         "Hr",    0,                    "",       "m",      2, true,  true},
    {Columna::DP,              "DP",         "DP",    0,                    kPresion, "",       0, true,  true},
    {Columna::MDP,             "MDP",        "MDP",   0,                    kPresion, "",       0, true,  true},
    {Columna::STP,             "STP",        "STP",   0,                    kPresion, "",       0, true,  false},
    {Columna::PP,              "PP",         "PP",    0,                    kPresion, "",       0, true,  false},
    {Columna::Q,               "Q",          "Q",     0,                    kCarga,   "",       2, true,  true},
    {Columna::Rige,            "rige",       nullptr, txt::ResCol[2],       "",       "",       0, false, true},
    {Columna::Veredicto,       "veredicto",  nullptr, txt::ResCol[1],       "",       "",       0, false, true},
    {Columna::Uso,             "uso",        nullptr, txt::ResCol[3],       "",       "",       3, true,  true},
    {Columna::AsInt,           "AsInt",      "A int", 0,                    "",       "cm²/m",  2, true,  true},
    {Columna::AsExt,           "AsExt",      "A ext", 0,                    "",       "cm²/m",  2, true,  true},
    {Columna::Total,           "total",      nullptr, txt::ResTotal,        "",       "cm²/m",  2, true,  true},
    {Columna::Camisa,          "camisa",     nullptr, txt::ResCol[4],       "",       "mm",     1, true,  true},
    {Columna::Interior,        "interior",   nullptr, txt::ResInterior,     "",       "",       0, false, true},
    {Columna::Exterior,        "exterior",   nullptr, txt::ResExterior,     "",       "",       0, false, true},
    {Columna::PPObtenida,      "PPObtenida", nullptr, txt::ResPPObtenida,   kPresion, "",       0, true,  false},
    {Columna::Ajustado,        "ajustado",   nullptr, txt::ResAjustada,     "",       "",       0, false, false},
    {Columna::MayorM,          "mayorM",     "M máx", 0,                    kMomento, "/m",     3, true,  false},
    {Columna::MenorM,          "menorM",     "M mín", 0,                    kMomento, "/m",     3, true,  false},
    {Columna::MayorN,          "mayorN",     "N máx", 0,                    kFuerza,  "/m",     2, true,  false},
    {Columna::MenorN,          "menorN",     "N mín", 0,                    kFuerza,  "/m",     2, true,  false},
    {Columna::Fisuracion,      "fisuracion", nullptr, txt::ResFisuracion[0],kTension, "",       1, true,  false},
    {Columna::Brazo,           "brazo",      nullptr, txt::ResBrazo,        "",       "mm",     1, true,  false},
    {Columna::TensionResidual, "residual",   nullptr, txt::ResPerdida[10],  kTension, "",       1, true,  false},
    {Columna::Agotamiento,     "agotamiento",nullptr, txt::ResAgotamiento,  kPresion, "",       0, true,  false},
    {Columna::PresionPrimario, "primario",   nullptr, txt::ResPresPrimario, kPresion, "",       0, true,  false},
}};
// clang-format on

std::string Barras(double n, double diametro, int decimales, const PalabrasDibujo& w) {
  if (n <= 0) return "-";
  return w.Corto(n, decimales) + " Ø" + w.Corto(diametro, decimales);
}

double PorUnidades(double n, double diametro) {
  constexpr double kMasQueUnDiametro = 1000.0;
  return n > 0 ? n * kMasQueUnDiametro + diametro : kNada;
}

double PPDe(const ResultadoTramo& t, const FilaCaso& f) {
  if (t.datos.tramo.EsArmado || f.PPObtenida >= kPPAlambreCambia) return kNada;
  return f.PPObtenida;
}

}  // namespace

std::span<const FilaColumna> TablaColumnas() {
  return kTabla;
}

const FilaColumna& De(Columna c) {
  return kTabla[static_cast<std::size_t>(c)];
}

std::optional<Columna> ColumnaPorClave(std::string_view clave) {
  const auto i = std::ranges::find(kTabla, clave, &FilaColumna::clave);
  if (i == kTabla.end()) return std::nullopt;
  return i->columna;
}

std::string Titulo(Columna c, const PalabrasDibujo& w) {
  const auto& f = De(c);
  return f.simbolo != nullptr ? std::string(f.simbolo) : w.T(f.titulo);
}

std::string UnidadDe(Columna c, const PalabrasDibujo& w) {
  const auto& f = De(c);
  return (f.conversion.empty() ? std::string{} : w.Unidad(f.conversion)) + f.unidad;
}

std::string Cabeza(Columna c, const PalabrasDibujo& w) {
  const std::string unidad = UnidadDe(c, w);
  return unidad.empty() ? Titulo(c, w) : Titulo(c, w) + "\n" + unidad;
}

double ValorDe(Columna c, const ResultadoTramo& t, const FilaCaso& f) {
  switch (c) {
    case Columna::Tramo:
      return t.datos.tramo.NumeroTramo;
    case Columna::Di:
      return t.datos.tramo.Di;
    case Columna::Esp:
      return t.datos.tramo.Esp * kCmPorMetro;
    case Columna::Hr:
      return f.Hr;
    case Columna::DP:
      return f.DP;
    case Columna::MDP:
      return f.MDP;
    case Columna::STP:
      return f.STP;
    case Columna::PP:
      return f.PP;
    case Columna::Q:
      return t.Altura(f).cargas.Q;
    case Columna::Rige:
      return HipotesisQueRige(t.datos, f);
    case Columna::Veredicto:
      return static_cast<double>(f.verificacion.veredicto);
    case Columna::Uso:
      return f.verificacion.OfreceArmadura() ? f.verificacion.uso : kNada;
    case Columna::AsInt:
      return t.datos.tramo.EsArmado ? f.AsInt : kNada;
    case Columna::AsExt:
      return t.datos.tramo.EsArmado ? f.AsExt : kNada;
    case Columna::Total:
      return t.datos.tramo.EsArmado ? f.Total : kNada;
    case Columna::Camisa:
      return f.CAMISA > 0 ? f.CAMISA : kNada;
    case Columna::Interior:
      return PorUnidades(f.NESPIN, f.FIIN);
    case Columna::Exterior:
      return PorUnidades(f.NEXPEX, f.FIEX);
    case Columna::PPObtenida:
      return PPDe(t, f);
    case Columna::Ajustado:
      return f.ajustado ? 1 : 0;
    default:
      return kNada;
  }
}

ValoresEnteros EnterosDe(const ResultadoTramo& t, const FilaCaso& f) {
  ValoresEnteros v;
  v.fill(kNada);
  const auto en = [&v](Columna c) -> double& {
    return v[static_cast<std::size_t>(static_cast<int>(c) - kPrimeraEntera)];
  };
  const auto caso = CasoEntero(t, f);
  const int rige = HipotesisQueRige(t.datos, f);
  const auto extremos = [&](const Lista<double, kSecciones>& s, Columna mayor, Columna menor) {
    en(mayor) = std::max({s(CLAVE), s(RINONES), s(SOLERA)});
    en(menor) = std::min({s(CLAVE), s(RINONES), s(SOLERA)});
  };
  if (rige > 0) extremos(MomentosDe(caso, rige), Columna::MayorM, Columna::MenorM);
  if (caso.EsArmado()) {
    const auto& r = caso.Armado();
    if (rige > 0) extremos(r.esfuerzos.N.filas(rige), Columna::MayorN, Columna::MenorN);
    if (r.TensionMax > 0) en(Columna::Fisuracion) = r.TensionMax;
    en(Columna::Brazo) = r.BRAZO * 1000.0;
    return v;
  }
  if (rige > 0) {
    extremos(EsfuerzosHipotesis(caso).TablaAxil.filas(rige), Columna::MayorN, Columna::MenorN);
    const auto& h = caso.Postesado().hipotesis(rige);
    if (!h.hecha) return v;
    en(Columna::TensionResidual) = h.SigRes;
    if (h.PresAgotamiento > 0) en(Columna::Agotamiento) = h.PresAgotamiento;
    en(Columna::PresionPrimario) = h.PresPrimario;
  }
  return v;
}

std::string TextoNumero(Columna c, double valor, const PalabrasDibujo& w) {
  if (std::isnan(valor)) return {};
  if (!std::isfinite(valor)) return "∞";
  const auto& f = De(c);
  return w.Estilo().FormatoNumero(valor, 0, f.decimales, f.conversion);
}

std::string TextoPalabra(Columna c, const ResultadoTramo& t, const FilaCaso& f,
                         const PalabrasDibujo& w) {
  const bool armado = t.datos.tramo.EsArmado;
  switch (c) {
    case Columna::Tramo:
      return TextoEntero(t.datos.tramo.NumeroTramo);
    case Columna::Descripcion:
      return t.datos.tramo.DescriTramo;
    case Columna::Rige: {
      const int h = HipotesisQueRige(t.datos, f);
      return h > 0 ? TextoEntero(h) + " · " + w.Hipotesis(armado, h) : std::string("-");
    }
    case Columna::Veredicto:
      return w.T(txt::Veredictos[static_cast<std::size_t>(f.verificacion.veredicto)]);
    case Columna::Interior:
      return Barras(f.NESPIN, f.FIIN, armado ? 0 : 1, w);
    case Columna::Exterior:
      return Barras(f.NEXPEX, f.FIEX, 0, w);
    case Columna::Ajustado:
      return f.ajustado ? "✓" : "";
    default:
      return {};
  }
}

}  // namespace zorbin
