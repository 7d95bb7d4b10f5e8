#include "sesion/captura/mdEdicion.h"

#include <utility>

#include "base/textos.h"
#include "sesion/captura/mdAjustesTramo.h"
#include "sesion/captura/mdEtiquetas.h"
#include "sesion/captura/mdReglas.h"
#include "sesion/captura/mdTipologias.h"

namespace zorbin {

namespace {

bool EsDeObra(Ed campo) {
  return Fila(campo).pagina.TabPrincipal == 0;
}

void MarcaCambio(Captura& c, Ed campo) {
  (EsDeObra(campo) ? c.ObraEditada : c.TramoEditado) = true;
}

void EligeGolpe(Captura& c, int opcion) {
  const bool no = opcion == 1;
  if (no && !c.e.obra.ObraAbierta &&
      !c.voz.Pregunta(Texto(c, txt::GolpeNoCalculado), Texto(c, txt::TituloAviso))) {
    opcion = 0;
  }
  c[Ed::rdGolpeAriete].opcion = opcion;
  if (c.e.obra.GolpeCalculado != (opcion == 0)) c.ObraEditada = true;
  c.e.obra.GolpeCalculado = opcion == 0;
}

}  // namespace

void Entra(Captura& c, Ed campo) {
  auto& control = c[campo];
  if (!control.habilitado) return;
  const auto& pagina = Fila(campo).pagina;
  // The page of loads has rules of its own on arriving.
  if (pagina.TabDatosColocacion == 2 && c.pantalla.pagina.TabDatosColocacion != 2 &&
      !c.LeyendoDatos && !CambiaPaginaColocacion(c, 2)) {
    return;
  }
  MuestraPagina(c, pagina);
  if (!control.bloqueado && EnBlanco(c, campo)) Rellena(c, campo);
  if (campo == Ed::edFyk) c.FykAnterior = c.e.tramo.Fyk;
  if (campo == Ed::edSFck) c.SFckEditado = false;
  control.seleccionado = true;
  c.pantalla.foco = campo;
}

void Cambia(Captura& c, Ed campo, std::string texto) {
  auto& control = c[campo];
  control.seleccionado = false;
  if (control.bloqueado || !control.habilitado || control.texto == texto) return;
  control.texto = std::move(texto);
  control.tocado = true;
  const auto& fila = Fila(campo);
  // Neither the language nor the choice of a Tramo is a datum.
  if (campo == Ed::edIdioma || campo == Ed::edTramo) return;
  MarcaCambio(c, campo);
  if (fila.ficha->anulaAjustes && fila.clase == Clase::Numero) RegistraCambios(c);
  if (campo == Ed::edDi0) c.AnchoZanjaAuto = true;
  if (campo == Ed::edB0) c.AnchoZanjaAuto = false;
  if (campo == Ed::edSFck) c.SFckEditado = true;
}

SalidaCampo Sale(Captura& c, Ed campo) {
  c.falta.reset();
  c[campo].seleccionado = false;
  if (c[campo].bloqueado || !c[campo].habilitado) return SalidaCampo::Pasa;
  const SalidaCampo salida = AplicaRegla(c, campo);
  RenuevaEtiquetas(c);
  if (salida == SalidaCampo::Queda) c.pantalla.foco = campo;
  return salida;
}

void CambiaMarca(Captura& c, Ed marca, bool puesta) {
  auto& t = c.e.tramo;
  const bool deArmado = marca == Ed::edIcontes0;
  const Ed campo = deArmado ? Ed::edAdato : Ed::edCoepre1;
  bool& indicador = deArmado ? t.Icontes0 : t.Icontes1;
  const bool cambia = (c[marca].opcion == 1) != puesta;
  c[marca].opcion = puesta ? 1 : 0;
  indicador = puesta;
  if (puesta) {
    Enciende(c, campo);
  } else {
    Apaga(c, campo);
    Escribe(c, campo, "");
    Variable(c, campo) = 0.0;
  }
  if (!cambia || c.LeyendoDatos) return;
  c.TramoEditado = true;
  if (Fila(marca).ficha->anulaAjustes) RegistraCambios(c);
}

void EligeOpcion(Captura& c, Ed grupo, int opcion) {
  if (!c[grupo].habilitado || opcion < 0 || opcion >= static_cast<int>(c[grupo].entradas.size())) {
    return;
  }
  switch (grupo) {
    case Ed::rdSistemaUnidades:
      if (opcion != c[grupo].opcion && RevisaUnidades(c, opcion == 0 ? "SI" : "MKS")) {
        c.ObraEditada = true;
      }
      break;
    case Ed::rdGolpeAriete:
      EligeGolpe(c, opcion);
      break;
    case Ed::rdTipoCamisa:
      EligeOpcionCamisa(c, opcion);
      break;
    case Ed::rdTipoColocacion:
      EligeColocacion(c, opcion);
      break;
    default:
      break;
  }
}

}  // namespace zorbin
