#include "listados/obra/mdResumen.h"

#include "base/mdTextos.h"
#include "base/textos.h"
#include "listados/obra/mdAvisos.h"
#include "listados/obra/mdEntradas.h"
#include "listados/obra/mdRotulos.h"

namespace zorbin {

namespace {

constexpr int kAncho = 70;  // columns of what closes a Caso

}  // namespace

void Resumen::Veredictos(std::span<const ResultadoTramo> tramos,
                         std::span<const std::string> numeros) {
  if (tramos.empty()) return;
  for (const int n : txt::ResumenTramos) Linea("  " + textos_.Texto(n));
  for (std::size_t i = 0; i < tramos.size(); ++i) Veredicto(tramos[i], numeros[i]);
  pantalla_.EscribePantalla(0, std::string(kAncho, '='), 2);
}

void Resumen::Veredicto(const ResultadoTramo& r, const std::string& numero) {
  const auto c = CuentaDeVeredictos(r);
  std::string peor;
  std::string uso;
  if (c.peor != nullptr) {
    peor = textos_.Compone(txt::PeorCaso,
                           {TextoEntero(c.peor->NumCaso), palabras_.Numero(c.peor->Hr, 2),
                            palabras_.Numero(c.peor->DP, 1, "at->MPa", true)});
    uso = palabras_.Uso(c.peor->verificacion);
  }
  Linea("  " + FormatoTexto(numero, 7) + FormatoEntero(c.casos, 6) +
        FormatoEntero(c.noCumplen, 12) + FormatoEntero(c.sinComprobar, 14) + "  " +
        FormatoTexto(peor, 24) + FormatoTexto(uso, 8) + palabras_.Veredicto(c.veredicto));
  if (const auto corta = TextoAlturaCorta(r.rango, textos_, estilo_); !corta.empty()) {
    Linea(Blancos(9) + textos_.Texto(txt::EntradaAlturaFinal) + ": " + corta);
  }
  if (r.fallo) {
    Linea(Blancos(9) + TextoCausa(r.fallo->error, textos_));
  } else if (r.filas.empty()) {
    Linea(Blancos(9) + textos_.Texto(txt::SinNingunCaso));
  }
}

bool Resumen::Tramo(const ResultadoTramo& resultado, int /*posicion*/,
                    const std::string& /*numero*/, const SigueListado& sigue) {
  Cabeza(resultado);
  if (!RecorreCasos(resultado, sigue, [this](const VistaCaso& v) { Caso(v); })) return false;
  Cola(resultado);
  return true;
}

void Resumen::Cabeza(const ResultadoTramo& resultado) {
  const auto& datos = resultado.datos;
  const bool hayCasos = CasoRoto(resultado) != nullptr || !resultado.filas.empty();
  if (hayCasos && datos.SinAjustes && datos.tramo.EsArmado) {
    pantalla_.EscribePantalla(0, "** " + textos_.Texto(txt::AjustesSinLeer) + " **", 2);
  }
}

void Resumen::UnCaso(const ResultadoTramo& resultado, std::size_t fila) {
  LeeCaso(resultado, fila, [this](const VistaCaso& v) { Caso(v); });
}

void Resumen::Cola(const ResultadoTramo& resultado) {
  const auto* roto = CasoRoto(resultado);
  if (roto != nullptr) Progreso(resultado.datos.tramo, roto->numCaso, roto->DP, roto->MDP);
}

void Resumen::Progreso(const zorbin::Tramo& t, int NumCaso, double DP, double MDP) {
  const auto presion = [this](double p) {
    return std::string(Recorta(estilo_.FormatoNumero(p, 6, 1, "at->MPa", true)));
  };
  Linea("  " + textos_.Texto(txt::CalculandoElCaso) + " : " + TextoEntero(NumCaso) + "/" +
        FormatoEntero(t.NumeroTramo, 4) + "  " + textos_.Texto(txt::DP) + " " + presion(DP) +
        Blancos(6) + textos_.Texto(txt::MDP) + " " + presion(MDP));
}

void Resumen::Caso(const VistaCaso& v) {
  Progreso(v.Datos(), v.fila.NumCaso, v.fila.DP, v.fila.MDP);
  if (v.Datos().EsArmado) Avisos(v);
  ListaCasoArmado(v);
  v.Datos().EsArmado ? Armadura(v) : Postesado(v);
  for (const auto& linea : palabras_.Cierre(v, kAncho)) Linea("  " + linea.texto);
  pantalla_.EscribePantalla(0, std::string(70, '='), 2);
}

void Resumen::Avisos(const VistaCaso& v) {
  const auto sale = [](const Aviso& a) { return a.pantalla; };
  for (std::size_t i = 0; i < v.caso.avisos.size(); ++i) {
    const Aviso& aviso = v.caso.avisos[i];
    if (!sale(aviso) || DichoAntes(v.caso.avisos, i, sale)) continue;
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
    Linea("  " + TextoHipotesisAviso(aviso, true, textos_));
  }
}

std::string Resumen::DatoEnMm(int rotulo, double metros, int decimales) const {
  return textos_.Texto(rotulo) + estilo_.FormatoNumero(metros * 1000.0, 5, decimales) + " " +
         textos_.Texto(txt::Milimetros);
}

void Resumen::ListaCasoArmado(const VistaCaso& v) {
  const auto& t = v.Datos();
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
  Linea(textos_.Texto(txt::AlturaDelRelleno) + estilo_.FormatoNumero(v.fila.Hr, 7, 2) + " m");
  Linea(textos_.Texto(txt::PresionInterior) +
        estilo_.FormatoNumero(v.fila.DP, 7, 2, "at->MPa", true));
  Linea(textos_.Texto(txt::CargaConcentrada) + FormatoTexto(TextoDeCarga(t.ICar, textos_), 21));
  if (t.EsArmado) TablaHipotesis(v);
}

void Resumen::TablaHipotesis(const VistaCaso& v) {
  const std::string raya = " " + std::string(17, '-');
  pantalla_.EscribePantalla(1, textos_.Texto(txt::Hipotesis), 1);
  Linea(textos_.Texto(txt::CabezaSecciones));
  Linea(textos_.Texto(txt::CabezaMN));
  Linea(UnidadesDelAnillo(estilo_.si, 9));
  Linea(raya + raya + raya);
  const auto& x = v.Armado().esfuerzos;
  for (int h = 1; h <= kHipotesisArmado; ++h) {
    std::string linea;
    for (int s = 1; s <= kSecciones; ++s) {
      linea += "  " + estilo_.FormatoNumero(x.M(h, s), 7, 3, "mT->mkN") + "  " +
               estilo_.FormatoNumero(x.N(h, s), 7, 3, "T->kN");
    }
    Linea(linea);
  }
}

void Resumen::Armadura(const VistaCaso& v) {
  const auto& r = v.Armado();
  if (r.IESP > 0) {
    Linea("  " + textos_.Texto(txt::EspesorInsuficientePantalla));
    return;
  }
  const auto resistencia = [this](double f) {
    return estilo_.FormatoNumero(f, 7, 2, "Kp/cm2->MPa", true);
  };
  Linea(Blancos(19) + textos_.Texto(txt::FckResumen) + resistencia(v.Datos().Fck) +
        textos_.Texto(txt::FydResumen) + resistencia(v.Datos().Fyd));
  if (!OfreceArmadura(v)) return;
  const auto area = [this](int rotulo, double as) {
    Linea(Blancos(14) + textos_.Texto(rotulo) + "  " + estilo_.FormatoNumero(as, 10, 2) +
          textos_.Texto(txt::Cm2PorM));
  };
  area(txt::ArmaduraInterior, r.AsInt);
  area(txt::ArmaduraExterior, r.AsExt);
  area(txt::TotalArmadura, r.Total);
}

void Resumen::Postesado(const VistaCaso& v) {
  const auto avisosDe = [&](int h) {
    for (const auto& aviso : v.caso.avisos) {
      if (aviso.fase != FaseAviso::Final || aviso.hipotesis != h) continue;
      pantalla_.EscribePantalla(1, "  ** " + TextoAviso(aviso, textos_) + " **", 1);
      if (h > 0) Linea("  " + TextoHipotesisAviso(aviso, false, textos_));
    }
  };
  avisosDe(0);
  for (const auto& h : v.Postesado().hipotesis.v) {
    if (!h.hecha) break;
    avisosDe(h.h);
    if (h.Impresa()) ListadoHipotesis(v.tramo.datos.obra.EsSI(), h);
  }
  if (v.Postesado().fin == FinPostesado::Completo) ListadoAlambre(v);
}

void Resumen::ListadoHipotesis(bool si, const HipotesisPostesada& h) {
  const std::string raya = " " + std::string(17, '-');
  const int nombre = txt::HipotesisPostesado[static_cast<std::size_t>(h.h - 1)];
  pantalla_.EscribePantalla(1, textos_.Texto(txt::Hipotesis) + textos_.Texto(nombre), 1);
  Linea(textos_.Texto(txt::CabezaSecciones));
  Linea(textos_.Texto(txt::CabezaMN));
  Linea(textos_.Texto(si ? txt::ResumenUnidadesSI : txt::ResumenUnidadesMKS));
  Linea(raya + raya + raya);
  std::string linea;
  for (int s = 1; s <= kSecciones; ++s) {
    linea += " " + estilo_.FormatoNumero(h.MomHip(s), 8, 2, "kp.cm/cm->N.m/cm") + " " +
             estilo_.FormatoNumero(h.AxilHip(s), 8, 2, "kp/cm->N/cm");
  }
  Linea(linea);
}

void Resumen::ListadoAlambre(const VistaCaso& v) {
  const auto& r = v.Postesado();
  Linea(Blancos(14) + textos_.Texto(txt::ResumenDiametro) +
        estilo_.FormatoNumero(r.FIPRDEFI * 10.0, 5, 1) + "  " + textos_.Texto(txt::Milimetros));
  Linea(Blancos(14) + textos_.Texto(txt::ResumenEspiras) + estilo_.FormatoNumero(r.NESPDEFI, 5, 0));
  pantalla_.EscribePantalla(1, Blancos(14) + TextoPruebaFabrica(r, v.fila.PP, textos_, estilo_), 1);
  if (const auto pasada = TextoPasadaPP(r, textos_); !pasada.empty()) Linea(Blancos(14) + pasada);
}

}  // namespace zorbin
