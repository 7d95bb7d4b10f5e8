#include "listados/obra/mdResumen.h"

#include "base/mdTextos.h"
#include "base/textos.h"
#include "listados/obra/mdAvisos.h"
#include "listados/obra/mdRotulos.h"

namespace zorbin {

void Resumen::Progreso(const EstadoCalculo& e) {
  const auto& c = e.corrida;
  if (c.PrimerCaso && c.SinAjustes && e.tramo.EsArmado) {
    pantalla_.EscribePantalla(0, "** " + textos_.Texto(txt::AjustesSinLeer) + " **", 2);
  }
  const auto presion = [this](double p) {
    return std::string(Recorta(estilo_.FormatoNumero(p, 6, 1, "at->MPa", true)));
  };
  Linea("  " + textos_.Texto(txt::CalculandoElCaso) + " : " + TextoEntero(c.NumCaso) + "/" +
        FormatoEntero(e.tramo.NumeroTramo, 4) + "  " + textos_.Texto(txt::DP) + " " +
        presion(c.DP) + Blancos(6) + textos_.Texto(txt::MDP) + " " + presion(c.MDP));
}

void Resumen::Caso(const EstadoCalculo& e) {
  if (e.tramo.EsArmado) Avisos(e);
  ListaCasoArmado(e);
  if (e.tramo.EsArmado) {
    Armadura(e);
  } else {
    Postesado(e);
  }
  pantalla_.EscribePantalla(0, std::string(70, '='), 2);
}

void Resumen::Avisos(const EstadoCalculo& e) {
  for (const auto& aviso : e.caso.avisos) {
    if (!aviso.pantalla) continue;
    switch (aviso.clase) {
      case ClaseAviso::RetraccionLisas:
        pantalla_.EscribePantalla(1, "  " + textos_.Texto(txt::RetraccionPantalla), 1);
        Linea("  " + textos_.Texto(txt::AsAcr) + estilo_.FormatoNumero(*aviso.valor, 9, 4));
        break;
      case ClaseAviso::CapasInterior:
      case ClaseAviso::CapasExterior:  // the text has asterisks of its own
        pantalla_.EscribePantalla(1, "  " + TextoAviso(aviso, textos_), 1);
        break;
      default:
        pantalla_.EscribePantalla(1, "  ** " + TextoAviso(aviso, textos_) + " **", 1);
    }
  }
}

std::string Resumen::DatoEnMm(int rotulo, double metros, int decimales) const {
  return textos_.Texto(rotulo) + estilo_.FormatoNumero(metros * 1000.0, 5, decimales) + " " +
         textos_.Texto(txt::Milimetros);
}

void Resumen::ListaCasoArmado(const EstadoCalculo& e) {
  const auto& t = e.tramo;
  const auto texto = [this](int n, int ancho) { return FormatoTexto(textos_.Texto(n), ancho); };
  const int material = t.EsArmado ? txt::HormigonArmado : txt::HormigonPostesado;
  Linea("  " + textos_.Texto(txt::Tipo) + texto(material, 19) + Blancos(3) +
        DatoEnMm(txt::DiametroInterior, t.Di, 0));
  Linea(Blancos(8) + FormatoTexto(TextoDeCamisa(t.Tipologia, textos_), 16) + Blancos(6) +
        DatoEnMm(txt::Espesor, t.Esp, 1));
  Linea(Blancos(30) + DatoEnMm(txt::RecubInterior, t.Reci, 0));
  Linea(Blancos(30) + DatoEnMm(txt::RecubExterior, t.Rece, 0));
  pantalla_.EscribePantalla(1,
                            textos_.Texto(txt::Cuna) +
                                FormatoTexto(TextoDeCuna(t.TipoCuna, textos_), 13) +
                                textos_.Texto(txt::Colocacion) +
                                FormatoTexto(TextoDeColocacion(t.TipoApoyo, textos_), 41),
                            1);
  Linea(textos_.Texto(txt::AlturaDelRelleno) + estilo_.FormatoNumero(e.corrida.Hr, 7, 2) + " m");
  Linea(textos_.Texto(txt::PresionInterior) +
        estilo_.FormatoNumero(e.corrida.DP, 7, 2, "at->MPa", true));
  Linea(textos_.Texto(txt::CargaConcentrada) + FormatoTexto(TextoDeCarga(t.ICar, textos_), 21));
  if (t.EsArmado) TablaHipotesis(e);
}

void Resumen::TablaHipotesis(const EstadoCalculo& e) {
  const std::string raya = " " + std::string(17, '-');
  pantalla_.EscribePantalla(1, textos_.Texto(txt::Hipotesis), 1);
  Linea(textos_.Texto(txt::CabezaSecciones));
  Linea(textos_.Texto(txt::CabezaMN));
  Linea(raya + raya + raya);
  const auto& x = e.caso.armado.esfuerzos;
  for (int h = 1; h <= kHipotesisArmado; ++h) {
    std::string linea;
    for (int s = 1; s <= kSecciones; ++s) {
      linea += "  " + estilo_.FormatoNumero(x.M(h, s), 7, 3, "mT->mkN") + "  " +
               estilo_.FormatoNumero(x.N(h, s), 7, 3, "T->kN");
    }
    Linea(linea);
  }
}

void Resumen::Armadura(const EstadoCalculo& e) {
  const auto& r = e.caso.armado;
  if (r.IESP > 0) {
    Linea("  " + textos_.Texto(txt::EspesorInsuficientePantalla));
    return;
  }
  const auto resistencia = [this](double v) {
    return estilo_.FormatoNumero(v, 7, 2, "Kp/cm2->MPa", true);
  };
  Linea(Blancos(19) + textos_.Texto(txt::FckResumen) + resistencia(e.tramo.Fck) +
        textos_.Texto(txt::FydResumen) + resistencia(e.tramo.Fyd));
  const auto area = [this](int rotulo, double v) {
    Linea(Blancos(14) + textos_.Texto(rotulo) + "  " + estilo_.FormatoNumero(v, 10, 2) +
          textos_.Texto(txt::Cm2PorM));
  };
  area(txt::ArmaduraInterior, r.AsInt);
  area(txt::ArmaduraExterior, r.AsExt);
  area(txt::TotalArmadura, r.Total);
}

void Resumen::Postesado(const EstadoCalculo& e) {
  const auto avisosDe = [&](int h) {
    for (const auto& aviso : e.caso.avisos) {
      if (aviso.fase != FaseAviso::Final || aviso.hipotesis != h) continue;
      pantalla_.EscribePantalla(1, "  ** " + TextoAviso(aviso, textos_) + " **", 1);
    }
  };
  avisosDe(0);
  for (const auto& h : e.caso.postesado.hipotesis.v) {
    if (!h.hecha) break;
    avisosDe(h.h);
    if (h.Impresa()) ListadoHipotesis(e, h);
  }
  if (e.caso.postesado.fin == FinPostesado::Completo) ListadoAlambre(e);
}

void Resumen::ListadoHipotesis(const EstadoCalculo& e, const HipotesisPostesada& h) {
  const std::string raya = " " + std::string(17, '-');
  const int nombre = txt::HipotesisPostesado[static_cast<std::size_t>(h.h - 1)];
  pantalla_.EscribePantalla(1, textos_.Texto(txt::Hipotesis) + textos_.Texto(nombre), 1);
  Linea(textos_.Texto(txt::CabezaSecciones));
  Linea(textos_.Texto(txt::CabezaMN));
  Linea(textos_.Texto(e.obra.EsSI() ? txt::ResumenUnidadesSI : txt::ResumenUnidadesMKS));
  Linea(raya + raya + raya);
  std::string linea;
  for (int s = 1; s <= kSecciones; ++s) {
    linea += " " + estilo_.FormatoNumero(h.MomHip(s), 8, 2, "kp.cm/cm->N.m/cm") + " " +
             estilo_.FormatoNumero(h.AxilHip(s), 8, 2, "kp/cm->N/cm");
  }
  Linea(linea);
}

void Resumen::ListadoAlambre(const EstadoCalculo& e) {
  const auto& r = e.caso.postesado;
  Linea(Blancos(14) + textos_.Texto(txt::ResumenDiametro) +
        estilo_.FormatoNumero(r.FIPRDEFI * 10.0, 5, 1) + "  " + textos_.Texto(txt::Milimetros));
  Linea(Blancos(14) + textos_.Texto(txt::ResumenEspiras) + estilo_.FormatoNumero(r.NESPDEFI, 5, 0));
  pantalla_.EscribePantalla(1,
                            Blancos(14) + textos_.Texto(txt::PresionNetaPrueba) + Blancos(5) +
                                estilo_.FormatoNumero(e.corrida.PP, 7, 2, "Kp/cm2->MPa", true),
                            1);
}

}  // namespace zorbin
