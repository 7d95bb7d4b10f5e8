#include "listados/obra/mdListadoPantalla.h"

#include "base/mdTextos.h"
#include "base/textos.h"
#include "listados/obra/mdAvisos.h"
#include "listados/obra/mdEntradas.h"
#include "listados/obra/mdRotulos.h"

namespace zorbin {

namespace {

constexpr int kLineasCaso = 33;   // a Caso takes as many at most
constexpr int kLineasCabeza = 6;  // its head
constexpr int kTrasUnCaso = 60;   // sends the next Caso to a new page

}  // namespace

void ListadoPantalla::SaltoSiHaceFalta(const VistaCaso& v, int lineas) {
  if (LineasPagina + lineas <= kLineasPagina) {
    LineasPagina += lineas;
    return;
  }
  papel_.NuevaPagina();
  EnBlanco(2);
  Linea(9, RotuloCaso(v.fila.NumCaso, v.Datos()) + Blancos(7) + Texto(txt::DP) +
               Numero(v.fila.DP, 6, 2, "at->MPa", true));
  LineasPagina = lineas;
}

// @param detras  lines that follow besides those of a Caso
void ListadoPantalla::CabezaCaso(const zorbin::Tramo& t, int NumCaso, double DP, double MDP,
                                 int detras) {
  if (LineasPagina + kLineasCaso + detras > kLineasPagina) {
    papel_.NuevaPagina();
    LineasPagina = kLineasCabeza;
  } else {
    LineasPagina += kLineasCabeza;
  }
  EnBlanco(3);
  EnNegrita(9, RotuloCaso(NumCaso, t));
  const auto presion = [this](double p) { return NumeroSolo(p, 6, 1, "at->MPa", true); };
  EnNegrita(31,
            Texto(txt::DP) + " " + presion(DP) + Blancos(6) + Texto(txt::MDP) + " " + presion(MDP));
}

void ListadoPantalla::CasoSinAcabar(const ResultadoTramo& resultado, const FalloCorrida& roto) {
  CabezaCaso(resultado.datos.tramo, roto.numCaso, roto.DP, roto.MDP);
}

void ListadoPantalla::Caso(const VistaCaso& v) {
  std::vector<std::string> entradas;
  if (v.primero) entradas = TextoEntradas(v.tramo, textos_, estilo_, true);
  CabezaCaso(v.Datos(), v.fila.NumCaso, v.fila.DP, v.fila.MDP, static_cast<int>(entradas.size()));
  for (const auto& linea : entradas) Linea(9, linea);
  LineasPagina += static_cast<int>(entradas.size());
  if (v.Datos().EsArmado) {
    const auto sale = [](const zorbin::Aviso& a) {
      return a.fase == FaseAviso::Final && a.pantalla;
    };
    const auto& avisos = v.caso.avisos;
    for (std::size_t i = 0; i < avisos.size(); ++i) {
      if (sale(avisos[i]) && !DichoAntes(avisos, i, sale)) Aviso(v, avisos[i]);
    }
    DatosCaso(v);
    TablaHipotesis(v);
    Armadura(v);
  } else {
    DatosCaso(v);
    Postesado(v);
  }
  Veredicto(v);
  LineasPagina = kTrasUnCaso;
  papel_.Regla(18, 190, 3);
  EnBlanco(1);
}

void ListadoPantalla::Aviso(const VistaCaso& v, const zorbin::Aviso& aviso) {
  const bool retraccion = aviso.clase == ClaseAviso::RetraccionLisas;
  const bool capas =
      aviso.clase == ClaseAviso::CapasInterior || aviso.clase == ClaseAviso::CapasExterior;
  const std::string hipotesis = TextoHipotesisAviso(aviso, v.Datos().EsArmado, textos_);
  const int conHipotesis = hipotesis.empty() ? 0 : 1;
  SaltoSiHaceFalta(v, (retraccion ? 4 : capas ? 3 : 2) + conHipotesis);
  EnBlanco(1);
  if (retraccion) {
    EnNegrita(9, Texto(txt::RetraccionPantalla));
    Linea(9, Texto(txt::AsAcr) + Numero(*aviso.valor, 9, 4));
  } else if (v.Datos().EsArmado) {
    EnNegrita(9, TextoAviso(aviso, textos_));
  } else {
    EnNegrita(9, "** " + TextoAviso(aviso, textos_) + " **");
  }
  if (!hipotesis.empty()) Linea(9, hipotesis);
}

void ListadoPantalla::DatosCaso(const VistaCaso& v) {
  const auto& t = v.Datos();
  const auto texto = [this](int n, int ancho) { return FormatoTexto(Texto(n), ancho); };
  const auto milimetros = [this](int rotulo, double metros) {
    return Texto(rotulo) + Numero(metros * 1000.0, 5, 0) + " " + Texto(txt::Milimetros);
  };
  SaltoSiHaceFalta(v, 5);
  Linea(9, Texto(txt::Tipo) + texto(t.EsArmado ? txt::HormigonArmado : txt::HormigonPostesado, 19) +
               Blancos(3) + milimetros(txt::DiametroInterior, t.Di));
  Linea(17, FormatoTexto(TextoDeCamisa(t.Tipologia, textos_), 16) + Blancos(6) +
                milimetros(txt::Espesor, t.Esp));
  Linea(39, milimetros(txt::RecubInterior, t.Reci));
  Linea(39, milimetros(txt::RecubExterior, t.Rece));
  Linea(4, Texto(txt::Cuna) + FormatoTexto(TextoDeCuna(t.TipoCuna, textos_), 13) +
               Texto(txt::Colocacion) + FormatoTexto(TextoDeColocacion(t.TipoApoyo, textos_), 41));
  Linea(4, Texto(txt::AlturaDelRelleno) + Numero(v.fila.Hr, 7, 2) + " m");
  Linea(4, Texto(txt::PresionInterior) + Numero(v.fila.DP, 7, 2, "at->MPa", true));
  Linea(4, Texto(txt::CargaConcentrada) + FormatoTexto(TextoDeCarga(t.ICar, textos_), 21));
  SaltoSiHaceFalta(v, 10);
}

void ListadoPantalla::TablaHipotesis(const VistaCaso& v) {
  const auto& x = v.Armado().esfuerzos;
  Linea(42, Texto(txt::PantallaSecciones));
  Linea(18 + 4 + 17, Texto(txt::PantallaMN));
  Linea(4, FormatoTexto(Texto(txt::RotuloTubo), 26) + UnidadesDelAnillo(estilo_.si, 10));
  const std::string seccion = "  " + std::string(18, '-');
  Linea(4, std::string(26, '-') + seccion + seccion + seccion);
  for (int h = 1; h <= kHipotesisArmado; ++h) {
    std::string linea = FormatoTexto(TextoDeHipotesis(h, textos_), 26);
    for (int s = 1; s <= kSecciones; ++s) {
      linea += Numero(x.M(h, s), 10, 3, "mT->mkN") + Numero(x.N(h, s), 10, 3, "T->kN");
    }
    Linea(4, linea);
  }
}

void ListadoPantalla::Armadura(const VistaCaso& v) {
  const auto& r = v.Armado();
  if (r.IESP > 0) {
    SaltoSiHaceFalta(v, 2);
    EnNegrita(9, Texto(txt::EspesorInsuficientePantalla));
    return;
  }
  const auto resistencia = [this](double f) { return Numero(f, 7, 2, "Kp/cm2->MPa", true); };
  Linea(19, Texto(txt::FckResumen) + resistencia(v.Datos().Fck) + Texto(txt::FydResumen) +
                resistencia(v.Datos().Fyd));
  if (!OfreceArmadura(v)) return;
  const auto area = [this](int rotulo, double as) {
    Linea(14, Texto(rotulo) + "  " + Numero(as, 10, 2) + Texto(txt::Cm2PorM));
  };
  area(txt::ArmaduraInterior, r.AsInt);
  area(txt::ArmaduraExterior, r.AsExt);
  area(txt::TotalArmadura, r.Total);
}

void ListadoPantalla::Veredicto(const VistaCaso& v) {
  const auto cierre = CierreDe(v);
  SaltoSiHaceFalta(v, static_cast<int>(cierre.size()) + 1);
  EnBlanco(1);
  EscribeCierre(14, cierre);
}

void ListadoPantalla::Postesado(const VistaCaso& v) {
  const auto avisosDe = [&](int h) {
    for (const auto& aviso : v.caso.avisos) {
      if (aviso.fase == FaseAviso::Final && aviso.hipotesis == h) Aviso(v, aviso);
    }
  };
  avisosDe(0);
  for (const auto& h : v.Postesado().hipotesis.v) {
    if (!h.hecha) break;
    avisosDe(h.h);
    if (!h.Impresa()) continue;
    if (h.h == 1) CabezaPostesado(v.tramo.datos.obra.EsSI());
    FilaHipotesis(h);
  }
  if (v.Postesado().fin != FinPostesado::Completo) return;
  SaltoSiHaceFalta(v, 6);
  ListadoAlambre(v);
}

void ListadoPantalla::CabezaPostesado(bool si) {
  Linea(47, Texto(txt::PantallaSecciones));
  Linea(23 + 4 + 17, Texto(txt::PantallaMN));
  Linea(16, Texto(si ? txt::PantallaUnidadesSI : txt::PantallaUnidadesMKS));
  const std::string seccion = "  " + std::string(18, '-');
  Linea(11, std::string(26, '-') + seccion + seccion + seccion);
}

void ListadoPantalla::FilaHipotesis(const HipotesisPostesada& h) {
  const int nombre = txt::HipotesisPostesado[static_cast<std::size_t>(h.h - 1)];
  std::string linea = FormatoTexto(Texto(nombre), 26);
  for (int s = 1; s <= kSecciones; ++s) {
    linea += " " + Numero(h.MomHip(s), 9, 2, "kp.cm/cm->N.m/cm") + " " +
             Numero(h.AxilHip(s), 9, 2, "kp/cm->N/cm");
  }
  Linea(11, linea);
}

void ListadoPantalla::ListadoAlambre(const VistaCaso& v) {
  const auto& r = v.Postesado();
  EnBlanco(1);
  Linea(14, Texto(txt::ResumenDiametro) + Blancos(5) + Numero(r.FIPRDEFI * 10.0, 5, 1) + "  mm");
  Linea(14, Texto(txt::ResumenEspiras) + Blancos(5) + Numero(r.NESPDEFI, 5, 0));
  Linea(14, TextoPruebaFabrica(r, v.fila.PP, textos_, estilo_));
  if (const auto pasada = TextoPasadaPP(r, textos_); !pasada.empty()) Linea(14, pasada);
}

}  // namespace zorbin
