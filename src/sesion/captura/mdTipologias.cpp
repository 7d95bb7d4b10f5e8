#include "sesion/captura/mdTipologias.h"

#include <array>

#include "base/textos.h"
#include "core/mdUnidades.h"
#include "sesion/captura/mdEtiquetas.h"
#include "sesion/captura/mdGeometria.h"
#include "sesion/captura/mdOrdenes.h"
#include "sesion/captura/mdValidaTramo.h"

namespace zorbin {

namespace {

// clang-format off
constexpr auto kDefectosArmado = std::to_array<Ed>({
    Ed::edCamMax, Ed::edGamaB, Ed::edFck, Ed::edFyk});
constexpr auto kDefectosPostesado = std::to_array<Ed>({
    Ed::edDelca, Ed::edRel, Ed::edFic, Ed::edFir, Ed::edEpsc, Ed::edEpsr, Ed::edFyk, Ed::edEs,
    Ed::edEp, Ed::edFYKPost, Ed::edFckno, Ed::edFckn, Ed::edFckr, Ed::edSFck});
constexpr auto kDefectosSeccion = std::to_array<Ed>({Ed::edGc0, Ed::edGr0, Ed::edFi0});

// Numbers cleared at every depth. Fckr is apart: its text stays.
constexpr auto kMateriales = std::to_array<Ed>({
    Ed::edAdato, Ed::edCamMax, Ed::edFck, Ed::edFct, Ed::edFyk, Ed::edFyd, Ed::edGamaB,
    Ed::edCoepre1, Ed::edDelca, Ed::edEs, Ed::edEp, Ed::edFckno, Ed::edFckn, Ed::edSFck, Ed::edSf,
    Ed::edRel, Ed::edFic, Ed::edFir, Ed::edEpsc, Ed::edEpsr});
constexpr auto kPresionesTramo = std::to_array<Ed>({
    Ed::edPrs1Tram, Ed::edPrs2Tram, Ed::edPrs3Tram, Ed::edPrsM1Tram, Ed::edPrsM2Tram});
constexpr auto kSeccion = std::to_array<Ed>({
    Ed::edDi0, Ed::edEsp0, Ed::edDe0, Ed::edReci0, Ed::edRece0, Ed::edHr0, Ed::edHr0Final,
    Ed::edHr0Delta, Ed::edB0, Ed::edQDato0, Ed::edHr1});
// clang-format on

// A default under SI shows as a value of the file does.
void PonDefecto(Captura& c, Ed campo, double valor) {
  const auto& ficha = *Fila(campo).ficha;
  Variable(c, campo) = valor;
  Escribe(c, campo, valor, c.EsSI() ? ficha.Mascara(true) : ficha.MascaraTecleada(false));
}

void Aplica(Captura& c, std::span<const Ed> campos) {
  for (const Ed campo : campos) PonDefecto(c, campo, *Fila(campo).ficha->Defecto(c.EsSI()));
}

void Borra(Captura& c, std::span<const Ed> campos) {
  for (const Ed campo : campos) {
    Variable(c, campo) = 0.0;
    Escribe(c, campo, "");
  }
}

void LimpiaMarcas(Captura& c) {
  c.e.tramo.Icontes0 = c.e.tramo.Icontes1 = c.e.tramo.Envolvente = false;
  c[Ed::edIcontes0].opcion = c[Ed::edIcontes1].opcion = c[Ed::edEnvolvente].opcion = 0;
  Apaga(c, Ed::edAdato);
  Apaga(c, Ed::edCoepre1);
}

void LimpiaCabecera(Captura& c) {
  for (const Ed campo : {Ed::edTramo, Ed::edDescriTramo, Ed::edTramo2, Ed::edDescriTramo2}) {
    Escribe(c, campo, "");
  }
  Desbloquea(c, Ed::edTramo);
  c.e.tramo.DescriTramo.clear();
  c.e.tramo.Tipologia = 0;
  PonTipologia(c, kArmada);
  CargaListasGeom(c, GrupoDeTipologia(kArmada));
  c[Ed::rdTipologia].opcion = 0;
  c.pantalla.pagina.TabTipologia = 0;
  Borra(c, kPresionesTramo);
  Desbloquea(c, Ed::edPrsM2Tram);
  Bloquea(c, Ed::edPrs3Tram);
  c[Ed::edPrs2Tram].bloqueado = false;
  c[Ed::edPrs2Tram].tabulador = true;
  c[Ed::edPrs2Tram].gris = true;  // grey, and yet it takes what is typed
}

void LimpiaSeccion(Captura& c) {
  auto& t = c.e.tramo;
  c[Ed::rdTipoColocacion].opcion = 0;
  t.TipoColocacion = 0;
  c.pantalla.pagina.TabDatosColocacion = 0;
  Borra(c, kSeccion);
  Enciende(c, Ed::edReci0);
  Aplica(c, kDefectosSeccion);
  EligeEntrada(c, Ed::edTipoCuna0, 1);
  EligeEntrada(c, Ed::edTipoApoyo0, 2);
  EligeEntrada(c, Ed::edTipoRelleno0, 3);
  EligeEntrada(c, Ed::edICar0, 3);
  EligeEntrada(c, Ed::edIAs, 0);
  t.TipoCuna = 1;
  t.TipoApoyo = 12;
  t.TipoRelleno = 21;
  t.ICar = 2;
  t.IAs = 0;
  c.AnchoZanjaAuto = false;
  c.EsComercial = false;
  c.EspRecomMin = c.EspRecomMax = 0;
  c.BandaReci = c.BandaRece = false;
  Bloquea(c, Ed::edHr0Delta);
  Enciende(c, Ed::edICar0);
  AplicaColocacion(c);
}

std::int16_t CandidataPostesada(Captura& c) {
  auto& opcion = c[Ed::rdTipoCamisa].opcion;
  if (opcion < 0) opcion = 0;
  return opcion == 1 ? kRevestida : kEmbebida;
}

void PasaAArmado(Captura& c) {
  LimpiaCaptura(c, 1);
  PonTipologia(c, kArmada);
  Enciende(c, Ed::edReci0);
  DefectosArmado(c);
}

void PasaAPostesado(Captura& c, std::int16_t candidata) {
  LimpiaCaptura(c, 2);
  PonTipologia(c, candidata);
  Enciende(c, Ed::edReci0);
  // The reverse of what the option does, as it always was.
  c[Ed::edReci0].etiquetaHabilitada = candidata == kRevestida;
  DefectosPostesado(c);
}

// A field that only some layings ask for.
void Pide(Captura& c, Ed campo, bool pedido) {
  pedido ? Enciende(c, campo) : Apaga(c, campo);
}

void RellenaB0(Captura& c) {
  if (!EnBlanco(c, Ed::edB0) || EnBlanco(c, Ed::edDi0)) return;
  c.e.tramo.B0 = AnchoAutomatico(c);
  MuestraVariable(c, Ed::edB0);
}

}  // namespace

void PonTipologia(Captura& c, std::int16_t tipologia) {
  auto& t = c.e.tramo;
  t.Tipologia = tipologia;
  t.EsArmado = tipologia < kPrimeraPostesada;
  t.SubTipo = t.EsArmado ? 3 : 0;
  t.PostFlag = t.EsArmado ? 0 : 1;
}

double FydDeFyk(double Fyk) {
  return 2.0 * Fyk / 3.0;
}

double SfDeSFck(double SFck) {
  return 0.75 * SFck;
}

void DefectosArmado(Captura& c) {
  auto& t = c.e.tramo;
  EligeEntrada(c, Ed::edTipoControl, 1);
  EligeEntrada(c, Ed::edTipoCamisa, 2);
  t.TipoControl = 1;
  t.TipoCamisa = 2;
  t.GamaY = 1.1;
  t.GamaF = 1.5;
  Aplica(c, kDefectosArmado);
  PonDefecto(c, Ed::edFyd, FydDeFyk(t.Fyk));
  t.Fct = FctEnSistema(t.Fck, c.EsSI());
  MuestraVariable(c, Ed::edFct);
}

void DefectosPostesado(Captura& c) {
  Aplica(c, kDefectosPostesado);
  PonDefecto(c, Ed::edSf, SfDeSFck(c.e.tramo.SFck));
  RenuevaEtiquetas(c);
}

void LimpiaCaptura(Captura& c, int Profundidad) {
  auto& t = c.e.tramo;
  if (Profundidad == 0) LimpiaCabecera(c);
  LimpiaMarcas(c);
  Borra(c, kMateriales);
  t.Fckr = 0.0;
  t.GamaY = t.GamaF = 0.0;
  t.TipoControl = t.TipoCamisa = 0;
  EligeEntrada(c, Ed::edTipoControl, 0);
  EligeEntrada(c, Ed::edTipoCamisa, 0);
  if (Profundidad < 2) c[Ed::rdTipoCamisa].opcion = -1;
  c.pantalla.pagina.TabPostesados = 0;
  if (Profundidad == 0) LimpiaSeccion(c);
  RenuevaEtiquetas(c);
  RenuevaTitulo(c);
  if (Profundidad == 0) c.pantalla.titulo = TextoUnidades(c) + Texto(c, txt::CapturaDeDatos);
  ActualizaMenus(c);
}

void EligeTipologia(Captura& c, bool postesada) {
  if (c.LeyendoDatos || postesada == !c.e.tramo.EsArmado) return;
  const std::int16_t nueva = postesada ? CandidataPostesada(c) : kArmada;
  postesada ? PasaAPostesado(c, nueva) : PasaAArmado(c);
  c[Ed::rdTipologia].opcion = postesada ? 1 : 0;
  c.pantalla.pagina.TabTipologia = postesada ? 1 : 0;
  CargaListasGeom(c, GrupoDeTipologia(nueva));
  c.EsComercial = BuscaEnTramo(c, ModoGeom::Busca) == kGeomHallado;
  ActualizaMenus(c);
  RenuevaTitulo(c);
}

void EligeOpcionCamisa(Captura& c, int opcion) {
  if (c.LeyendoDatos || c.e.tramo.EsArmado) return;
  c[Ed::rdTipoCamisa].opcion = opcion;
  PonTipologia(c, opcion == 1 ? kRevestida : kEmbebida);
  AplicaTipologia(c);
  if (opcion == 1) Escribe(c, Ed::edReci0, "");
  CargaListasGeom(c, GrupoDeTipologia(c.e.tramo.Tipologia));
}

void EligeColocacion(Captura& c, int opcion) {
  if (c.LeyendoDatos || opcion == c.e.tramo.TipoColocacion) return;
  auto& t = c.e.tramo;
  c[Ed::rdTipoColocacion].opcion = opcion;
  t.TipoColocacion = static_cast<std::int16_t>(opcion);
  t.TipoApoyo = opcion == 2 ? 31 : 0;
  t.IAs = opcion == 2 ? 2 : 0;
  EligeEntrada(c, Ed::edIAs, t.IAs);
  if (opcion != 1 && opcion != 2) {
    t.Hr1 = 0.0;
    Escribe(c, Ed::edHr1, "");
  }
  if (opcion != 0) {
    t.TipoRelleno = 0;
    EligeEntrada(c, Ed::edTipoRelleno0, 0);
  }
  if (opcion == 2) {
    t.B0 = 0.0;
    Escribe(c, Ed::edB0, "");
    EligeEntrada(c, Ed::edTipoApoyo0, 0);
  } else {
    if (EnBlanco(c, Ed::edTipoApoyo0)) EligeEntrada(c, Ed::edTipoApoyo0, 2);
    t.TipoApoyo = ValorDeLista(c, Ed::edTipoApoyo0, PosicionEnLista(c, Ed::edTipoApoyo0));
    RellenaB0(c);
  }
  AplicaColocacion(c);
}

void AplicaColocacion(Captura& c) {
  const auto colocacion = c.e.tramo.TipoColocacion;
  Pide(c, Ed::edB0, colocacion != 2);
  Pide(c, Ed::edTipoRelleno0, colocacion == 0);
  Pide(c, Ed::edHr1, colocacion != 0);
  Pide(c, Ed::edTipoApoyo0, colocacion != 2);
  Pide(c, Ed::edIAs, colocacion == 2);
  RenuevaEtiquetas(c);
}

void AplicaTipologia(Captura& c) {
  Pide(c, Ed::edReci0, c.e.tramo.Tipologia != kRevestida);
}

void BloqueosObra(Captura& c) {
  const auto& o = c.e.obra;
  const bool rango = o.PrsM2 > 0 && o.PrsM2 > o.PrsM1;
  Libera(c, Ed::edPrs2, rango);
  Libera(c, Ed::edPrs3, rango);
  Libera(c, Ed::edAlt3, o.Alt2 > o.Alt1);
}

void BloqueosTramo(Captura& c) {
  const auto& t = c.e.tramo;
  const bool rango = t.PrsM2Tram > 0 && t.PrsM2Tram > t.PrsM1Tram;
  Libera(c, Ed::edPrs2Tram, rango);
  Libera(c, Ed::edPrs3Tram, rango);
  Libera(c, Ed::edHr0Delta, t.Hr0Final > t.Hr0Tramo);
}

}  // namespace zorbin
