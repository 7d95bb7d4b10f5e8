#include "sesion/captura/mdEdicion.h"

#include <utility>

#include "base/textos.h"
#include "sesion/captura/mdEtiquetas.h"
#include "sesion/captura/mdReglas.h"
#include "sesion/captura/mdTipologias.h"

namespace zorbin {

namespace {

std::string NombrePaso(const Captura& c, Ed campo) {
  return c.textos.Compone(txt::PasoDato, {NombreDeCampo(c, campo)});
}

// What its rule refuses changes nothing: the text stays as it was typed, with the reason beside it.
SalidaCampo Rehusa(Captura& c, Ed campo, std::string tecleado, EstadoCalculo antes) {
  c.e = std::move(antes);
  auto& control = c[campo];
  const std::string falta = control.falta;
  Escribe(c, campo, std::move(tecleado));
  control.falta = falta;
  control.rehusado = true;
  if (control.falta.empty() && !c.faltas.empty()) control.falta = c.faltas.back().mensaje;
  return SalidaCampo::Queda;
}

}  // namespace

void Entra(Captura& c, Ed campo) {
  auto& control = c[campo];
  if (!control.habilitado) return;
  const auto& pagina = Fila(campo).pagina;
  MuestraPagina(c, pagina);
  if (!control.bloqueado && EnBlanco(c, campo)) {
    const EnUnPaso paso(c, NombrePaso(c, campo));
    Rellena(c, campo);
  }
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
  control.falta.clear();
  control.rehusado = false;
  // The choice of a Tramo is no datum.
  if (campo == Ed::edTramo) return;
  c.Tecleando = true;
  if (campo == Ed::edDi0) c.AnchoZanjaAuto = true;
  if (campo == Ed::edB0) c.AnchoZanjaAuto = false;
  if (campo == Ed::edSFck) c.SFckEditado = true;
}

SalidaCampo Sale(Captura& c, Ed campo) {
  auto& control = c[campo];
  control.seleccionado = false;
  if (control.bloqueado || !control.habilitado) return SalidaCampo::Pasa;
  // A refusal that was left stands until the text is another.
  if (control.rehusado && !control.tocado) return SalidaCampo::Queda;
  control.falta.clear();
  std::erase_if(c.faltas, [&](const Falta& f) {
    return f.campo == campo && (f.tramo == 0 || f.tramo == c.enMano);
  });
  const EnUnPaso paso(c, NombrePaso(c, campo));
  std::string tecleado = control.texto;
  EstadoCalculo antes = c.e;
  SalidaCampo salida = AplicaRegla(c, campo);
  if (salida == SalidaCampo::Queda) {
    salida = Rehusa(c, campo, std::move(tecleado), std::move(antes));
  }
  control.tocado = false;
  c.Tecleando = false;
  RenuevaEtiquetas(c);
  return salida;
}

void CambiaMarca(Captura& c, Ed marca, bool puesta) {
  auto& t = c.e.tramo;
  if (marca == Ed::edEnvolvente) {
    const EnUnPaso paso(c, NombrePaso(c, marca));
    c[marca].opcion = puesta ? 1 : 0;
    t.Envolvente = puesta;
    return;
  }
  const bool deArmado = marca == Ed::edIcontes0;
  const Ed campo = deArmado ? Ed::edAdato : Ed::edCoepre1;
  bool& indicador = deArmado ? t.Icontes0 : t.Icontes1;
  const EnUnPaso paso(c, NombrePaso(c, marca));
  c[marca].opcion = puesta ? 1 : 0;
  indicador = puesta;
  if (puesta) {
    Enciende(c, campo);
  } else {
    Apaga(c, campo);
    Escribe(c, campo, "");
    Variable(c, campo) = 0.0;
  }
}

void EligeOpcion(Captura& c, Ed grupo, int opcion) {
  if (!c[grupo].habilitado || opcion < 0 || opcion >= static_cast<int>(c[grupo].entradas.size())) {
    return;
  }
  const EnUnPaso paso(c, NombrePaso(c, grupo));
  switch (grupo) {
    case Ed::rdSistemaUnidades:
      RevisaUnidades(c, opcion == 0);
      break;
    case Ed::rdGolpeAriete:
      c[grupo].opcion = opcion;
      c.e.obra.GolpeCalculado = opcion == 0;
      break;
    case Ed::rdTipologia:
      EligeTipologia(c, opcion == 1);
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
