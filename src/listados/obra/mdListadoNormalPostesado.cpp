// The post-tensioned pages of the listing "Normal": data page, a page for each hypothesis, and the
// one of the Lamé coefficients.
#include <array>

#include "base/mdTextos.h"
#include "base/textos.h"
#include "listados/obra/mdAvisos.h"
#include "listados/obra/mdListadoNormal.h"
#include "listados/obra/mdRotulos.h"

namespace zorbin {

namespace {

constexpr double kCuerpoAviso = 12.0;     // [pt]
constexpr double kLimiteZunchado = 0.55;  // of Fckno, compression at winding [-]
constexpr double kExcesoNulo = 1e-9;      // of the tensioning stress, rounding of a sum [-]
constexpr std::string_view kTension = "Kp/cm2->MPa";

std::string UnidadTension(bool si) {
  return si ? "MPa" : "kp/cm2";
}
std::string UnidadMomento(bool si) {
  return si ? "N.m/cm" : "kp.cm/cm";
}
std::string UnidadAxil(bool si) {
  return si ? "N/cm" : "kp/cm";
}

using Tres = Lista<double, kSecciones>;

}  // namespace

void ListadoNormal::Encabezado(int texto, std::string_view detras) {
  EnBlanco(1);
  EnNegrita(14, Texto(texto) + std::string(detras));
  EnBlanco(1);
}

void ListadoNormal::DatosPostesado(const ResultadoTramo& resultado) {
  const auto& t = resultado.datos.tramo;
  const auto& r = resultado.radios;
  const auto& m = resultado.materiales;
  const auto dato = [this](int rotulo, const std::string& valor) {
    Linea(8, FormatoTexto(Texto(rotulo), 45) + Blancos(5) + valor);
  };
  const auto longitud = [&](int rotulo, double centimetros, int decimales = 1) {
    dato(rotulo, Numero(centimetros * 10.0, 10, decimales) + FormatoTexto(" mm", 8));
  };
  const auto tension = [&](int rotulo, double valor, int decimales = 0) {
    dato(rotulo, Numero(valor, 10, decimales, kTension, true));
  };
  const auto numero = [&](int rotulo, double valor, int decimales) {
    dato(rotulo, Numero(valor, 10, decimales));
  };
  const bool conChapa = t.PostFlag == 1;

  PaginaDeAltura(t, resultado.alturas.front().Hr);
  EnBlanco(3 + 1);
  Titulo(txt::CaracteristicasPostesado);
  longitud(txt::RadioInterior, r.RadioInt);
  longitud(txt::EspesorPrimario, r.RadioNuc - r.RadioInt);
  if (conChapa) {
    longitud(txt::RecubCamisa, r.RadioCam - r.RadioInt);
    longitud(txt::EspesorCamisa, t.Delca, 2);
    tension(txt::ModuloCamisa, t.Es);
  }
  longitud(txt::EspesorRevestimiento, r.RadioRev - r.RadioNuc);
  tension(txt::FckZunchar, t.Fckno);
  tension(txt::FckFinal, t.Fckn);
  tension(txt::FctFinal, m.Fctn);
  tension(txt::FckRevestimiento, t.Fckr);
  tension(txt::FctRevestimiento, m.Fctr, 2);
  numero(txt::FluenciaPrimario, t.Fic, 2);
  numero(txt::FluenciaRevestimiento, t.Fir, 2);
  numero(txt::RetraccionPrimario, t.Epsc, 5);
  numero(txt::RetraccionRevestimiento, t.Epsr, 5);
  tension(txt::RoturaAcero, t.SFck);
  tension(txt::ModuloAcero, t.Ep);
  dato(txt::RelajacionFinal, Numero(t.Rel, 10, 2) + " %");
  tension(txt::TensionTesado, t.Sf, 2);
}

void ListadoNormal::Postesado(const VistaCaso& v) {
  const auto avisosDe = [&](int h) {
    for (const auto& aviso : v.caso.avisos) {
      if (aviso.fase == FaseAviso::Final && aviso.hipotesis == h) AvisoPostesado(v, aviso);
    }
  };
  avisosDe(0);
  for (const auto& h : v.Postesado().hipotesis.v) {
    if (!h.hecha) break;
    avisosDe(h.h);
    if (h.Impresa()) ListadoHipotesis(v, h);
  }
}

void ListadoNormal::CabeceraHipotesis(const VistaCaso& v, const Alambre& alambre, int hipotesis) {
  const auto presion = [this](double p) { return NumeroSolo(p, 7, 1, "at->MPa", true); };
  std::string stp = Texto(txt::DisenoSTP);
  stp.erase(stp.find('='), 1);
  papel_.Negrita(true);
  Linea(8, TextoPruebaFabrica(v.Postesado(), v.fila.PP, textos_, estilo_) + Blancos(3) +
               std::string(Recorta(stp)) + ": " + presion(v.fila.STP));
  Linea(8, Texto(txt::DiametroAlambre) + " " + Numero(alambre.FIPR * 10.0, 10, 1) + " mm" +
               Blancos(6) + Texto(txt::EspirasPorMetro) + " " + Numero(alambre.NESP, 4, 0));
  if (hipotesis > 0) {
    EnBlanco(1);
    const int nombre = txt::HipotesisPostesado[static_cast<std::size_t>(hipotesis - 1)];
    Linea(12,
          Texto(txt::HipotesisDeCalculo) + "  " + TextoEntero(hipotesis) + ".- " + Texto(nombre));
  }
  papel_.Negrita(false);
  // In place of the blank line: the page of the Lamé coefficients has no line to spare.
  const auto pasada = TextoPasadaPP(v.Postesado(), textos_);
  pasada.empty() ? EnBlanco(1) : Linea(8, pasada);
}

void ListadoNormal::AvisoPostesado(const VistaCaso& v, const Aviso& aviso) {
  PaginaDeCaso(v);
  CabeceraHipotesis(v, aviso.alambre, aviso.hipotesis);
  papel_.Cuerpo(kCuerpoAviso);
  EnNegrita(8, TextoAviso(aviso, textos_));
  papel_.Cuerpo(kCuerpoNormal);
}

void ListadoNormal::ListadoHipotesis(const VistaCaso& v, const HipotesisPostesada& h) {
  PaginaDeCaso(v);
  CabeceraHipotesis(v, h, h.h);
  PerdidasYTensiones(v, h);
  if (conCoefLame_) CoeficientesLame(v, h);
  EnBlanco(1);
  TablasDeTensiones(v.tramo.datos.obra.EsSI(), h);
}

void ListadoNormal::PerdidasYTensiones(const VistaCaso& v, const HipotesisPostesada& h) {
  const auto tension = [this](int rotulo, int hueco, double valor) {
    Linea(8, Texto(rotulo) + Blancos(hueco) + Numero(valor, 10, 2, kTension, true));
  };
  // What the losses leave is what the wire keeps, but for the cap on it.
  const double Sf = v.Datos().Sf;
  const double exceso = Sf - h.PerdElastica - h.PerdRelaj - h.PerdFluRet - h.SigRes;
  Encabezado(txt::Perdidas);
  tension(txt::TensionTesado, 5, Sf);
  tension(txt::Acortamiento, 6, h.PerdElastica);
  tension(txt::Relajacion, 6, h.PerdRelaj);
  tension(txt::FluenciaYRetraccion, 6, h.PerdFluRet);
  if (exceso > kExcesoNulo * Sf) tension(txt::PerdidaTope, 6, exceso);
  Encabezado(txt::Tensiones);
  tension(txt::Residual, 6, h.SigRes);
  Encabezado(txt::TensionesIniciales);
  tension(txt::CaraInterior, 6, h.SigIniInt);
  tension(txt::CaraExterior, 6, h.SigIniExt);
  tension(txt::LimiteZunchado, 41, -kLimiteZunchado * v.Datos().Fckno);
  Encabezado(txt::TensionesFinales);
  tension(txt::LugaresTension[0], 33, h.SigPI);
  tension(txt::LugaresTension[1], 33, h.SigPE);
  tension(txt::LugaresTension[2], 28, h.SigRI);
  tension(txt::LugaresTension[3], 28, h.SigRE);

  const bool si = v.tramo.datos.obra.EsSI();
  Encabezado(txt::EsfuerzosOvalizacion);
  Linea(33, Texto(txt::SeccionesAnchas));
  std::string momentos = "M " + FormatoTexto(UnidadMomento(si), 13);
  std::string axiles = "N " + FormatoTexto(UnidadAxil(si), 13);
  for (int s = 1; s <= kSecciones; ++s) {
    momentos += Numero(h.MomHip(s), 15, 2, "kp.cm/cm->N.m/cm");
    axiles += Numero(h.AxilHip(s), 15, 2, "kp/cm->N/cm");
  }
  Linea(8, momentos);
  Linea(8, axiles);
}

void ListadoNormal::CoeficientesLame(const VistaCaso& v, const HipotesisPostesada& h) {
  const auto& m = v.Postesado().materiales;
  const auto& r = v.Postesado().radios;
  const auto coeficiente = [this](int rotulo, int hueco, double valor) {
    Linea(8, Texto(rotulo) + Blancos(hueco) + Numero(valor, 10, 3));
  };
  const auto enDosLineas = [&](const std::array<int, 2>& rotulo, int hueco, double valor) {
    Linea(8, Texto(rotulo[0]));
    coeficiente(rotulo[1], hueco, valor);
  };
  PaginaDeCaso(v);
  CabeceraHipotesis(v, h, h.h);
  Encabezado(txt::CoeficientesEquivalencia);
  const std::array<double, 4> equivalencia{m.ni, m.n, m.n1, m.n2};
  for (std::size_t i = 0; i < equivalencia.size(); ++i) {
    coeficiente(txt::Equivalencia[i], 3, equivalencia[i]);
  }
  Encabezado(txt::CoeficientesLame);
  const std::array<double, 5> lame{h.A, h.B, h.C, h.Ar, h.Br};
  for (std::size_t i = 0; i < lame.size(); ++i) coeficiente(txt::LameTubo[i], 3, lame[i]);
  enDosLineas(txt::LameAlambre, 3, h.Cr);
  enDosLineas(txt::LameRelacion, 3, h.k);
  enDosLineas(txt::LameConjunto, 3, h.D);
  Encabezado(txt::CaracteristicasGeometricas, "  (cm; Io: cm4/cm)");
  const double chapa = (m.nc - 1.0) * m.Delca;
  const std::array<double, 6> geometria{h.sro, h.yi, h.ye, h.yr, h.Io, chapa + r.RadioNuc};
  for (std::size_t i = 0; i < geometria.size(); ++i) {
    coeficiente(txt::Geometria[i], 2, geometria[i]);
  }
  enDosLineas(txt::RadioRevestido, 2, chapa + r.RadioRev);
}

void ListadoNormal::TablasDeTensiones(bool si, const HipotesisPostesada& h) {
  const auto numero = [this](double valor, int ancho) { return Numero(valor, ancho, 2, kTension); };
  const std::string unidad = UnidadTension(si);
  const auto lugar = [this](std::size_t i) { return Texto(txt::LugaresTension[i]); };

  EnNegrita(14, Texto(txt::Tensiones) + "  " + FormatoTexto(unidad, 8));
  EnBlanco(1);
  const std::array<const Tres*, 5> ovalizacion{&h.OvPI, &h.OvPE, &h.OvRI, &h.OvRE, &h.OvAc};
  constexpr std::array<int, 5> kPrimerAncho{13, 13, 8, 8, 11};
  for (std::size_t i = 0; i < ovalizacion.size(); ++i) {
    const Tres& o = *ovalizacion[i];
    Linea(8, lugar(i) + numero(o(1), kPrimerAncho[i]) + numero(o(2), 15) + numero(o(3), 15));
  }

  EnBlanco(2);
  Linea(24, Texto(txt::TensionesEspaciado) + Blancos(6) + "(" + unidad + ")");
  EnBlanco(1);
  Linea(33, Texto(txt::PresionYOvalizacion));
  Linea(46, Texto(txt::SeccionesEstrechas));
  const std::array<std::pair<double, const Tres*>, 5> presion{{{h.PrPI, &h.SinPI},
                                                               {h.PrPE, &h.SinPE},
                                                               {h.PrRI, &h.SinRI},
                                                               {h.PrRE, &h.SinRE},
                                                               {h.PrAc, &h.SinAc}}};
  constexpr std::array<int, 5> kHuecoPresion{2, 2, 0, 0, 0};
  constexpr std::array<int, 5> kAnchoPresion{12, 12, 9, 9, 12};
  for (std::size_t i = 0; i < presion.size(); ++i) {
    const auto& [pr, sin] = presion[i];
    Linea(8, lugar(i) + Blancos(kHuecoPresion[i]) + numero(pr, kAnchoPresion[i]) +
                 numero((*sin)(1), 12) + Blancos(2) + numero((*sin)(2), 12) +
                 numero((*sin)(3), 12));
  }

  EnBlanco(2);
  Linea(54, Texto(txt::Totales));
  Linea(46, Texto(txt::SeccionesEstrechas));
  const std::array<const Tres*, 5> totales{&h.TotPI, &h.TotPE, &h.TotRI, &h.TotRE, &h.TotAc};
  constexpr std::array<int, 5> kHuecoTotal{14, 14, 9, 9, 12};
  for (std::size_t i = 0; i < totales.size(); ++i) {
    const Tres& t = *totales[i];
    Linea(8, lugar(i) + Blancos(kHuecoTotal[i]) + numero(t(1), 12) + " " + numero(t(2), 13) +
                 numero(t(3), 12));
  }
}

}  // namespace zorbin
