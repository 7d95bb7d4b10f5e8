#include "sesion/captura/mdPresenta.h"

#include "base/mdNumeros.h"
#include "base/textos.h"
#include "sesion/captura/mdEtiquetas.h"
#include "sesion/captura/mdGeometria.h"
#include "sesion/captura/mdOrdenes.h"
#include "sesion/captura/mdTipologias.h"

namespace zorbin {

namespace {

void MuestraNumeros(Captura& c, bool deObra) {
  for (const auto& fila : TablaCampos()) {
    if (fila.clase != Clase::Numero || (fila.obra != nullptr) != deObra) continue;
    Escribe(c, fila.id, Variable(c, fila.id), fila.ficha->Mascara(c.EsSI()));
    // Less than its last digit is a zero too: what is shown is what a save keeps.
    if (fila.ceroEnBlanco && NumeroTexto(c[fila.id].texto) == 0.0) Escribe(c, fila.id, "");
  }
}

int PosicionDeRelleno(int codigo) {
  if (codigo == 11 || codigo == 12) return codigo - 10;
  return codigo >= 21 && codigo <= 23 ? codigo - 18 : 0;
}

void MuestraListas(Captura& c) {
  const auto& t = c.e.tramo;
  EligeEntrada(c, Ed::edTipoControl, t.TipoControl);
  EligeEntrada(c, Ed::edTipoCamisa, t.TipoCamisa);
  EligeEntrada(c, Ed::edTipoCuna0, t.TipoCuna);
  EligeEntrada(c, Ed::edTipoApoyo0, t.TipoColocacion == 2 ? 0 : t.TipoApoyo % 10);
  EligeEntrada(c, Ed::edTipoRelleno0, PosicionDeRelleno(t.TipoRelleno));
  EligeEntrada(c, Ed::edIAs, t.IAs);
  EligeEntrada(c, Ed::edICar0, t.ICar + 1);
}

void MuestraMarca(Captura& c, Ed marca, Ed campo, bool puesta) {
  c[marca].opcion = puesta ? 1 : 0;
  puesta ? Enciende(c, campo) : Apaga(c, campo);
}

void MuestraOpciones(Captura& c) {
  const auto& t = c.e.tramo;
  c.pantalla.pagina.TabTipologia = t.EsArmado ? 0 : 1;
  c[Ed::rdTipologia].opcion = t.EsArmado ? 0 : 1;
  c[Ed::rdTipoCamisa].opcion = t.Tipologia == kEmbebida ? 0 : t.Tipologia == kRevestida ? 1 : -1;
  c[Ed::rdTipoColocacion].opcion = t.TipoColocacion;
  c[Ed::edEnvolvente].opcion = t.Envolvente ? 1 : 0;
  MuestraMarca(c, Ed::edIcontes0, Ed::edAdato, t.Icontes0);
  MuestraMarca(c, Ed::edIcontes1, Ed::edCoepre1, t.Icontes1);
  t.IndCar == 1 ? Enciende(c, Ed::edICar0) : Apaga(c, Ed::edICar0);
}

}  // namespace

void PreparaPantalla(Captura& c) {
  c.pantalla = Modelo{};
  PoneTextosCaptura(c);
  CargaListaDiametros(c);
  for (const Ed calculado : {Ed::edDe0, Ed::edFct}) Bloquea(c, calculado);
  for (const auto& fila : TablaCampos()) {
    if (EsCopia(fila.id)) Bloquea(c, fila.id);
  }
  c[Ed::rdSistemaUnidades].opcion = c.EsSI() ? 0 : 1;
  c[Ed::rdGolpeAriete].opcion = c.e.obra.GolpeCalculado ? 0 : 1;
  ActualizaMenus(c);
}

void MuestraObra(Captura& c) {
  const auto& o = c.e.obra;
  c.LeyendoDatos = true;
  EligeEntrada(c, Ed::edIdioma, o.Idioma);
  Escribe(c, Ed::edObra, o.NombreObra);
  Escribe(c, Ed::edObra2, o.NombreObra);
  Escribe(c, Ed::edCliente, o.Cliente);
  c[Ed::rdSistemaUnidades].opcion = o.EsSI() ? 0 : 1;
  c[Ed::rdGolpeAriete].opcion = o.GolpeCalculado ? 0 : 1;
  MuestraNumeros(c, true);
  BloqueosObra(c);
  RenuevaEtiquetas(c);
  RenuevaTitulo(c);
  c.LeyendoDatos = false;
}

void MuestraTramo(Captura& c) {
  const auto& t = c.e.tramo;
  c.LeyendoDatos = true;
  Escribe(c, Ed::edDescriTramo, t.DescriTramo);
  Escribe(c, Ed::edDescriTramo2, t.DescriTramo);
  MuestraNumeros(c, false);
  MuestraListas(c);
  MuestraOpciones(c);
  CargaListasGeom(c, GrupoDeTipologia(t.Tipologia));
  c.AnchoZanjaAuto = false;
  c.EsComercial = BuscaEnTramo(c, ModoGeom::Busca) == kGeomHallado;
  PonBandas(c);
  AplicaTipologia(c);
  AplicaColocacion(c);
  BloqueosTramo(c);
  RenuevaEtiquetas(c);
  c.LeyendoDatos = false;
}

void MuestraListaTramos(Captura& c) {
  auto& entradas = c[Ed::edTramo].entradas;
  entradas.clear();
  for (const auto& t : c.version.tramos) {
    if (!t->numero.empty()) entradas.push_back(t->numero);
  }
}

}  // namespace zorbin
