#include "listados/obra/mdListadoNormal.h"

#include <algorithm>
#include <array>
#include <span>

#include "base/mdTextos.h"
#include "base/textos.h"
#include "core/mdUnidades.h"
#include "listados/obra/mdAvisos.h"
#include "listados/obra/mdEntradas.h"
#include "listados/obra/mdRotulos.h"
#include "listados/papel/mdFiguras.h"

namespace zorbin {

namespace {

// Hypotheses of the ovalisation that are printed, a page each four.
constexpr std::array<std::array<int, 4>, 2> kOvalizacionImpresa{{{1, 2, 8, 11}, {4, 5, 10, 9}}};

// What a Caso brings to paper: of the first pass, the limit moment alone.
bool SaleEnPapel(const Aviso& aviso) {
  return aviso.fase == FaseAviso::Final || aviso.clase == ClaseAviso::MomentoTope;
}

// Tails of the fill and settlement texts, as the Anejo prints the values.
struct Cola {
  std::int16_t codigo;
  int texto;
  std::string_view valor;
};

constexpr std::array<Cola, 5> kRellenos{{{11, txt::RocasMachacadas, " (0,192)"},
                                         {12, txt::RocasConGravas, " (0,165)"},
                                         {21, txt::ArenaArcillosa, " (0,150)    "},
                                         {22, txt::ArcillasOrdinarias, " (0,130)"},
                                         {23, txt::ArcillasPlasticas, " (0,110) "}}};

constexpr std::array<Cola, 3> kAsientos{{{1, txt::RocaNoAsentable, "1,0 - "},
                                         {2, txt::SueloOrdinario, "0,5 - "},
                                         {3, txt::SueloAsentable, "0,3 - "}}};

// The search of a hypothesis ended without a solution: its area is where it stood, and none.
bool SinSolucion(const VistaCaso& v, int h) {
  const auto& avisos = v.caso.avisos;
  return std::any_of(avisos.begin(), avisos.end(), [h](const Aviso& a) {
    return a.hipotesis == h &&
           (a.clase == ClaseAviso::NoLlegaNegativos || a.clase == ClaseAviso::NoLlegaAmbos);
  });
}

}  // namespace

// ---------------------------------------------------------------------------------------------
// Page heads

void ListadoNormal::NumeraPagina() {
  Pagina = papel_.NumeroHoja();
  EnBlanco(2);
  papel_.Cuerpo(kCuerpoTitulo);
  EnNegrita(6, Blancos(32 + 11) + Texto(txt::Pag) + FormatoEntero(Pagina, 5));
  papel_.Cuerpo(kCuerpoNormal);
}

// The first pages of the document have the Obra, and no more.
void ListadoNormal::RotulaPagina(const zorbin::Tramo& t, double Hr, const FilaCaso* caso) {
  EnBlanco(2);
  if (Pagina <= 2 || (Pagina == 3 && t.EsArmado)) return;
  papel_.Negrita(true);
  if (t.IndCar == 1) {
    Linea(8,
          FormatoTexto(t.DescriTramo, 40) + Blancos(24) + Texto(txt::HR) + Numero(Hr, 6, 3) + " m");
  } else if (caso == nullptr) {
    Linea(8, FormatoTexto(t.DescriTramo, 40));
  }
  if (caso != nullptr) {
    Linea(8, RotuloCaso(caso->NumCaso, t) + " " + Texto(txt::DP) +
                 NumeroSolo(caso->DP, 6, 1, "at->MPa", true) + " " + Texto(txt::MDP) +
                 NumeroSolo(caso->MDP, 6, 1, "at->MPa", true));
  }
  papel_.Negrita(false);
}

void ListadoNormal::PaginaDeAltura(const zorbin::Tramo& t, double Hr) {
  papel_.NuevaPagina();
  NumeraPagina();
  RotulaPagina(t, Hr, nullptr);
}

void ListadoNormal::PaginaDeCaso(const VistaCaso& v) {
  papel_.NuevaPagina();
  NumeraPagina();
  RotulaPagina(v.Datos(), v.fila.Hr, &v.fila);
}

void ListadoNormal::Titulo(int texto) {
  EnNegrita(14, Texto(texto));
  EnBlanco(1);
}

// ---------------------------------------------------------------------------------------------
// Heading of the Tramo

void ListadoNormal::Cabecera(const ResultadoTramo& r) {
  const auto& t = r.datos.tramo;
  const double Hr = r.alturas.front().Hr;
  if (Pagina > 0) papel_.NuevaPagina();
  NumeraPagina();
  BloqueObra(r.datos.obra);
  RotulaPagina(t, Hr, nullptr);
  if (t.EsArmado) Materiales(r.datos);
  Tubo(t);
  Colocacion(t);
  PaginaDeAltura(t, Hr);
  Relleno(t);
  EnBlanco(1);
  Titulo(txt::EntradasTitulo);
  for (const auto& linea : TextoEntradas(r, textos_, estilo_, !t.EsArmado)) Linea(8, linea);
  Hipotesis(r);
  if (!t.EsArmado) DatosPostesado(r);
}

void ListadoNormal::Materiales(const DatosTramo& d) {
  const auto& t = d.tramo;
  const auto resistencia = [this](int rotulo, double valor) {
    Linea(8, Texto(rotulo) + Numero(valor, 9, 0, "Kp/cm2->MPa", true));
  };
  Titulo(txt::CaracteristicasMateriales);
  resistencia(txt::HormigonCompresion, t.Fck);
  resistencia(txt::HormigonTraccion, t.Fct);
  resistencia(txt::AceroCaracteristica, t.Fyk);
  resistencia(txt::AceroCalculo, t.Fyd);
  EnBlanco(1);
  Linea(8, Texto(txt::CoeficienteMinoracion) + Numero(t.GamaB, 9, 2));
  EnBlanco(1);
  const int control = t.TipoControl == 1 ? txt::ControlIntenso : txt::ControlNormal;
  Linea(8, Texto(txt::NivelDeControl) + FormatoTexto(Texto(control), 14) +
               Texto(txt::GolpeDeAriete) +
               FormatoTexto(Texto(d.obra.GolpeCalculado ? txt::Calculado : txt::Estimado), 15));
}

void ListadoNormal::Tubo(const zorbin::Tramo& t) {
  const double y = papel_.Y();
  Linea(8, Texto(txt::TipoDeTubo) + FormatoTexto(TextoTipologia(t.Tipologia), 53));
  if (const int figura = FiguraTubo(t.Tipologia)) papel_.Figura(Texto(figura), 138, y, 55, 55);
  EnBlanco(2);
  if (t.EsArmado && t.TipoCamisa != 0) {
    Linea(8, Texto(txt::EspesorMaximoCamisa) + Numero(t.CamMax, 4, 1) + " mm");
    EnBlanco(1);
  }
  const auto milimetros = [this](int rotulo, double metros) {
    Linea(8, Texto(rotulo) + Numero(metros * 1000.0, 7, 0) + " mm");
  };
  Titulo(txt::CaracteristicasTubo);
  milimetros(txt::CabDiametroInterior, t.Di);
  milimetros(txt::CabEspesor, t.Esp);
  milimetros(txt::CabRecubInterior, t.Reci);
  milimetros(txt::CabRecubExterior, t.Rece);
  EnBlanco(1);
  Linea(8, Texto(txt::DensidadTubo) + Numero(t.Gc, 7, 3) + " t/m3");
  EnBlanco(2);
}

void ListadoNormal::Colocacion(const zorbin::Tramo& t) {
  Titulo(txt::DatosRelleno);
  Linea(8, Texto(txt::CabTipoDeCuna) + TextoCuna(t.TipoCuna));
  Linea(8,
        Texto(txt::CabTipoDeColocacion) + FormatoTexto(TextoColocacionCabecera(t.TipoApoyo), 41));
  EnBlanco(1);
  const double y = papel_.Y();
  papel_.Figura(Texto(FiguraCuna(t.TipoCuna)), 17, y, 55, 55);
  papel_.Figura(Texto(FiguraColocacion(t.TipoCuna, t.TipoColocacion)), 81, y, 100, 55);
}

void ListadoNormal::Relleno(const zorbin::Tramo& t) {
  Titulo(txt::DatosRellenoContinuacion);
  Linea(8, Texto(txt::DensidadRelleno) + Numero(t.Gr, 7, 3) + " t/m3");
  Linea(8, Texto(txt::AnguloRozamiento) + Numero(t.Fi, 3, 0) + "º");
  if (t.TipoApoyo < 20) {
    Linea(8, Texto(txt::AnchoZanjaCorto) + Numero(t.B0, 7, 3) + " m");
    std::string relleno;
    for (const auto& r : kRellenos) {
      if (r.codigo == t.TipoRelleno) relleno = Texto(r.texto) + std::string(r.valor);
    }
    Linea(8, Texto(txt::CabTipoDeRelleno) + FormatoTexto(relleno, 37));
  }
  if (t.TipoApoyo > 20) {
    if (t.TipoApoyo < 30) Linea(8, Texto(txt::AnchoZanjaLargo) + Numero(t.B0, 7, 3) + " m");
    Linea(8, Texto(txt::DistanciaGeneratriz1));
    Linea(8, Texto(txt::DistanciaGeneratriz2) + Numero(t.Hr1, 7, 3) + " m");
  }
  if (t.TipoApoyo > 30) {
    std::string asiento;
    for (const auto& a : kAsientos) {
      if (a.codigo == t.IAs) asiento = std::string(a.valor) + Texto(a.texto);
    }
    Linea(8, Texto(txt::RazonDeAsentamiento) + FormatoTexto(asiento, 31));
  }
}

void ListadoNormal::Hipotesis(const ResultadoTramo& r) {
  EnBlanco(2);
  Titulo(txt::DatosHipotesis);
  if (r.datos.tramo.IndCar == 1) TablaDeCargas(r);
  CargasPorAltura(r);
}

void ListadoNormal::TablaDeCargas(const ResultadoTramo& r) {
  const auto& t = r.datos.tramo;
  const int carga =
      txt::TiposDeCarga[static_cast<std::size_t>(t.ICar >= 0 && t.ICar <= 4 ? t.ICar : 0)];
  Linea(8, Texto(txt::TablaCarga) + "  " + FormatoTexto(Texto(carga), 21));
  EnBlanco(1);
  CabezaDeCargas();
  for (const auto& fila : r.TablaCargas) {
    HaceSitio(r, 1, [this] { CabezaDeCargas(); });
    Linea(8, FilaDeCargas(t.De, fila));
    EnBlanco(1);
  }
}

void ListadoNormal::CabezaDeCargas() {
  for (const int n : {txt::TablaCabeza1, txt::TablaCabeza2, txt::TablaRayas,
                      estilo_.si ? txt::TablaUnidadesSI : txt::TablaUnidadesMKS, txt::TablaRayas}) {
    Linea(8, Texto(n));
  }
}

std::string ListadoNormal::FilaDeCargas(double De, const FilaCargas& fila) const {
  const double factor = estilo_.si ? kFactorFuerza : 1.0;
  const auto pareja = [&](std::optional<double> carga) {
    if (!carga) return Blancos(15);
    const double q = *carga * factor;
    return Numero(q, 7, 1) + " " + Numero(q * De, 7, 1);
  };
  return Numero(fila.H, 5, 2) + " " + pareja(fila.Zanja) + " " + pareja(fila.Terraplen) + " " +
         pareja(fila.Adoptada) + " " + pareja(fila.Moviles) + " " + pareja(fila.Total);
}

void ListadoNormal::CargasPorAltura(const ResultadoTramo& r) {
  constexpr int kLineasCabeza = 6;
  const auto& contraste = r.alturas.front().contraste;
  const auto cabeza = [&] { CabezaPorAltura(contraste); };
  if (!papel_.Caben(kLineasCabeza + 1)) PaginaDeAltura(r.datos.tramo, r.alturas.front().Hr);
  cabeza();
  for (const auto& altura : r.alturas) {
    HaceSitio(r, 1, cabeza);
    Linea(8, FilaPorAltura(r.datos.tramo.De, altura));
  }
  if (contraste) Linea(8, Texto(txt::NotaCompleta));
}

void ListadoNormal::CabezaPorAltura(const std::optional<CargasContrastadas>& contraste) {
  const std::string porArea = estilo_.si ? "kN/m2" : "t/m2";
  std::string grupos = Blancos(16) + ALaDerecha(Texto(txt::AlturaCargaTotal), 20);
  std::string columnas =
      ALaDerecha("HR", 6) + ALaDerecha(Texto(txt::AlturaImpacto), 10) + Blancos(20);
  std::string unidades = ALaDerecha("m", 6) + Blancos(10) + ALaDerecha(porArea, 10) +
                         ALaDerecha(estilo_.si ? "kN/m" : "t/m", 10);
  const auto pareja = [&](int grupo) {
    grupos += ALaDerecha(Texto(grupo), 22);
    columnas +=
        ALaDerecha(Texto(txt::AlturaMetodo), 12) + ALaDerecha(Texto(txt::AlturaCompleta), 10);
    unidades += ALaDerecha(porArea, 12) + ALaDerecha(porArea, 10);
  };
  if (contraste) pareja(txt::AlturaTerraplen);
  if (contraste && contraste->negativa) pareja(txt::AlturaNegativa);
  EnBlanco(1);
  EnNegrita(8, Texto(txt::CargasDeCadaAltura));
  for (const auto& linea : {grupos, columnas, unidades}) Linea(8, linea);
  Linea(8, std::string(Largo(unidades), '-'));
}

std::string ListadoNormal::FilaPorAltura(double De, const CargasAltura& altura) const {
  const auto carga = [this](double q, int ancho) { return Numero(q, ancho, 3, "T/M2->kN/M2"); };
  const double Q = altura.cargas.Q;
  const double i = altura.cargas.Impacto;
  const std::string impacto = i > 0 ? Numero(i, 10, 2) : Blancos(10);
  std::string fila = Numero(altura.Hr, 6, 2) + impacto + carga(Q, 10) + carga(Q * De, 10);
  const auto pareja = [&](const CargaContrastada& c) {
    fila += carga(c.metodo, 12) + carga(c.completa, 10);
  };
  if (altura.contraste) pareja(altura.contraste->terraplen);
  if (altura.contraste && altura.contraste->negativa) pareja(*altura.contraste->negativa);
  return fila;
}

// ---------------------------------------------------------------------------------------------
// Ovalisation

void ListadoNormal::CasoSinAcabar(const ResultadoTramo& resultado, const FalloCorrida&) {
  if (resultado.filas.empty() && resultado.hayCabecera) Cabecera(resultado);
}

void ListadoNormal::Caso(const VistaCaso& v) {
  if (v.primero) Cabecera(v.tramo);
  if (v.abreAltura) Ovalizacion(v);
  v.Datos().EsArmado ? DisenoArmado(v) : Postesado(v);
  Veredicto(v);
}

void ListadoNormal::Ovalizacion(const VistaCaso& v) {
  PaginaDeAltura(v.Datos(), v.fila.Hr);
  DatosOvalizacion(v);
  for (const int h : kOvalizacionImpresa[0]) BloqueOvalizacion(v, h);
  PaginaDeAltura(v.Datos(), v.fila.Hr);
  for (const int h : kOvalizacionImpresa[1]) BloqueOvalizacion(v, h);
}

void ListadoNormal::DatosOvalizacion(const VistaCaso& v) {
  const auto& t = v.Datos();
  Linea(9, Texto(txt::OvalCabeza));
  Linea(9, Texto(v.tramo.datos.obra.EsSI() ? txt::OvalUnidadesSI : txt::OvalUnidadesMKS));
  papel_.Regla(18, 165, 2);
  EnBlanco(1);
  const int palabra = t.TipoCuna == 1                      ? txt::OvalGranular
                      : t.TipoCuna == 2 || t.TipoCuna == 3 ? txt::OvalHormigon
                                                           : txt::OvalMenorDe;
  Linea(5, Numero(t.Di * 1000.0, 10, 0) + Numero(t.De * 1000.0, 10, 0) + Numero(t.Gc, 10, 3) +
               Numero(t.Gr, 10, 3) + Numero(v.altura.Landa, 7, 3) +
               Numero(v.altura.cargas.Q, 10, 3, "T/M2->kN/M2") + " " +
               FormatoTexto(Texto(palabra), 8) + FormatoEntero(t.TipoCuna == 3 ? 120 : 90, 4) +
               "º");
}

void ListadoNormal::BloqueOvalizacion(const VistaCaso& v, int hipotesis) {
  EnBlanco(2);
  const int nombre = txt::HipotesisOval[static_cast<std::size_t>(hipotesis - 1)];
  EnNegrita(15, Texto(txt::HipotesisRotulo) + FormatoTexto(Texto(nombre), 60));
  EnBlanco(1);
  papel_.Subrayado(true);
  Linea(20, Texto(v.tramo.datos.obra.EsSI() ? txt::SeccionSI : txt::SeccionMKS));
  papel_.Subrayado(false);
  for (int s = 1; s <= kSecciones; ++s) {
    Linea(20, FormatoTexto(Texto(txt::Secciones[static_cast<std::size_t>(s - 1)]), 8) + Blancos(4) +
                  Numero(v.caso.MHip(hipotesis, s), 10, 3, "mT->mkN") + Blancos(7) +
                  Numero(v.caso.NHip(hipotesis, s), 10, 3, "T->kN"));
  }
}

// ---------------------------------------------------------------------------------------------
// Reinforced design

void ListadoNormal::DisenoArmado(const VistaCaso& v) {
  const auto& t = v.Datos();
  PaginaDeCaso(v);
  Linea(17, Texto(txt::DisenoCabeza));
  const std::string tension = ALaDerecha(estilo_.si ? "(MPa)" : "(kp/cm2)", 10);
  const std::string metros = ALaDerecha("(m)", 10);
  Linea(10, tension + tension + tension + metros + metros + metros);
  papel_.Regla(32, 155, 2);
  EnBlanco(1);
  Linea(10, Numero(t.Fck, 10, 0, "Kp/cm2->MPa") + Numero(t.Fct, 10, 1, "Kp/cm2->MPa") +
                Numero(t.Fyd, 10, 0, "Kp/cm2->MPa") + Numero(t.Esp, 10, 3) + Numero(t.Reci, 10, 3) +
                Numero(t.Rece, 10, 3));
  EsfuerzosDeDiseno(v);
  ArmaduraPorHipotesis(v);
  EnBlanco(1);
  CalculoQueRige(v);
  Resultado(v);
}

void ListadoNormal::EsfuerzosDeDiseno(const VistaCaso& v) {
  const auto& c = v.fila;
  const auto& x = v.Armado().esfuerzos;
  EnBlanco(2);
  const std::array<std::pair<int, double>, 4> presiones{{{txt::DisenoDP, c.DP},
                                                         {txt::DisenoMDP, c.MDP},
                                                         {txt::DisenoSTP, c.STP},
                                                         {txt::DisenoPP, c.PP}}};
  for (const auto& [rotulo, p] : presiones) {
    Linea(9, Texto(rotulo) + Numero(p, 6, 1, "at->MPa", true));
  }
  EnBlanco(1);
  Linea(7, Texto(txt::DisenoSecciones));
  Linea(7, Texto(txt::DisenoMN));
  Linea(7, Blancos(26) + UnidadesDelAnillo(estilo_.si, 10));
  for (int h = 1; h <= kHipotesisArmado; ++h) {
    std::string linea = Texto(txt::HipotesisDiseno[static_cast<std::size_t>(h - 1)]);
    for (int s = 1; s <= kSecciones; ++s) {
      linea += Numero(x.M(h, s), 10, 3, "mT->mkN") + Numero(x.N(h, s), 10, 3, "T->kN");
    }
    Linea(7, linea);
  }
}

void ListadoNormal::ArmaduraPorHipotesis(const VistaCaso& v) {
  EnBlanco(2);
  for (const int n : txt::ArmaduraCabeza) Linea(19, Texto(n));
  for (int h = 1; h <= kHipotesisArmado; ++h) {
    const std::span<const Aviso> avisos(v.caso.avisos);
    for (std::size_t i = 0; i < avisos.size(); ++i) {
      if (avisos[i].fase == FaseAviso::Busqueda && avisos[i].hipotesis == h &&
          SaleEnPapel(avisos[i]) && !DichoAntes(avisos, i, SaleEnPapel)) {
        UnAviso(avisos[i]);
      }
    }
    Linea(19,
          Texto(txt::HipotesisDiseno[static_cast<std::size_t>(h - 1)]) + Blancos(3) +
              (SinSolucion(v, h) ? Blancos(5) + "-" : Numero(v.Armado().TablaHip(h).Total, 6, 1)));
  }
}

void ListadoNormal::CalculoQueRige(const VistaCaso& v) {
  const auto& r = v.Armado();
  const bool bloque = v.Datos().TipoCamisa == 0 && r.HipotesisRige > 1 && OfreceArmadura(v);
  const std::span<const Aviso> avisos(v.caso.avisos);
  for (std::size_t i = 0; i < avisos.size(); ++i) {
    if (bloque && i == r.sinFisuracion.avisos) SinFisuracionBloque(r.sinFisuracion);
    if (avisos[i].fase == FaseAviso::Final && !DichoAntes(avisos, i, SaleEnPapel)) {
      UnAviso(avisos[i]);
    }
  }
  if (bloque && r.sinFisuracion.avisos >= avisos.size()) SinFisuracionBloque(r.sinFisuracion);
}

void ListadoNormal::SinFisuracionBloque(const SinFisuracion& s) {
  EnNegrita(8, Texto(txt::SinFisuracion));
  EnBlanco(1);
  const auto cara = [this](int rotulo, double diametro, int espiras, double area) {
    Linea(8, Texto(rotulo) + Numero(diametro, 5, 0) + " " + Texto(txt::Milimetros));
    Linea(8, Texto(txt::FisEspiras) + FormatoEntero(espiras, 5) + " " + Texto(txt::PorMetro));
    Linea(8, Texto(txt::FisTotal) + Numero(area, 9, 1) + " " + Texto(txt::Cm2));
  };
  cara(txt::FisInterior, s.FIIN, s.NESPIN, s.AsInt);
  EnBlanco(1);
  cara(txt::FisExterior, s.FIEX, s.NEXPEX, s.AsExt);
}

void ListadoNormal::UnAviso(const Aviso& aviso) {
  EnBlanco(1);
  const std::string hipotesis = TextoHipotesisAviso(aviso, true, textos_);
  switch (aviso.clase) {
    case ClaseAviso::RetraccionLisas:
      EnNegrita(10, Texto(txt::MayorQueLaMaxima));
      EnNegrita(10, Texto(txt::PorRetraccionLisas));
      Linea(10, hipotesis);
      EnBlanco(1);
      Linea(10, Texto(txt::AsAcr) + Numero(*aviso.valor, 9, 4));
      EnBlanco(2);
      break;
    case ClaseAviso::CapasInterior:
    case ClaseAviso::CapasExterior:
    case ClaseAviso::MomentoTope:
      EnNegrita(10, TextoAviso(aviso, textos_));
      Linea(10, hipotesis);
      EnBlanco(1);
      break;
    default:
      EnNegrita(10, TextoAviso(aviso, textos_));
      Linea(10, hipotesis);
      EnBlanco(2);
  }
}

void ListadoNormal::Resultado(const VistaCaso& v) {
  const auto& r = v.Armado();
  if (r.IESP > 0) {
    papel_.Cuerpo(kCuerpoTitulo);
    EnNegrita(9, Texto(txt::EspesorInsuficientePapel));
    papel_.Cuerpo(kCuerpoNormal);
    return;
  }
  if (!r.MomentoTope && OfreceArmadura(v)) {
    const auto area = [this](int rotulo, double valor) {
      EnNegrita(8, Texto(rotulo) + "  " + Numero(valor, 10, 1) + Texto(txt::Cm2PorM));
    };
    EnBlanco(3);
    area(txt::ArmaduraInterior, r.AsInt);
    area(txt::ArmaduraExterior, r.AsExt);
    EnBlanco(1);
    area(txt::TotalArmadura, r.Total);
  }
  if (v.Datos().TipoCamisa == 0) {
    EnBlanco(2);
    EnNegrita(8, Texto(txt::Fisuracion));
    EnBlanco(1);
    Linea(8, Texto(txt::TensionMaxima) + Numero(r.TensionMax, 10, 2, "Kp/cm2->MPa", true));
    Linea(8, Texto(txt::TensionAdmisible) + Numero(r.TensionAdm, 10, 2, "Kp/cm2->MPa", true));
  }
}

// On the last page of the Caso, or on one of its own where it does not fit.
void ListadoNormal::Veredicto(const VistaCaso& v) {
  const auto cierre = CierreDe(v);
  if (papel_.LineasQueCaben() <= static_cast<int>(cierre.size())) PaginaDeCaso(v);
  EnBlanco(1);
  EscribeCierre(8, cierre);
}

}  // namespace zorbin
