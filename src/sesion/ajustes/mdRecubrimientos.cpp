#include "sesion/ajustes/mdRecubrimientos.h"

#include "base/mdNumeros.h"
#include "base/textos.h"
#include "sesion/ajustes/mdFilas.h"
#include "sesion/ajustes/mdPresentaAjustes.h"
#include "sesion/captura/mdGeometria.h"

namespace zorbin {

namespace {

constexpr std::string_view kMascaraOrigen = "####0.0";
constexpr std::string_view kMascaraRecubrimiento = "#####0.0";
constexpr double kMinimo = 0.001;  // [cm]

void MuestraAlternativos(Ajustes& a) {
  Escribe(a, CampoAjuste::txRecInterior, a.t.RecIntAlt, kMascaraRecubrimiento);
  Escribe(a, CampoAjuste::txRecExterior, a.t.RecExtAlt, kMascaraRecubrimiento);
}

// A cover left at 0 takes that of the manufacturers' table. @return whether there is one
bool TomaElDeLaTabla(Ajustes& a, bool interior) {
  auto& t = a.t.e.tramo;
  double Esp = t.Esp;
  double Reci = a.t.RecIntAlt;
  double Rece = a.t.RecExtAlt;
  const int codigo = RecomendadosGeom(a.trabajo, Esp, Reci, Rece, t.Tipologia, t.Di,
                                      interior ? ModoGeom::Interior : ModoGeom::Exterior);
  a.t.RecIntAlt = Reci;
  a.t.RecExtAlt = Rece;
  if (codigo == kGeomHallado) return true;
  a.c.voz.Muestra(Texto(a, txt::NoEsComercial), Texto(a, txt::EtEsp));
  return false;
}

bool HayBrazo(Ajustes& a) {
  const double suma = a.t.RecIntAlt + a.t.RecExtAlt;
  const double Esp = a.t.e.tramo.Esp;
  if (suma < Esp) return true;
  a.c.voz.Muestra(a.c.textos.Compone(txt::AjSinBrazo, {Formato(a, suma, kMascaraOrigen),
                                                       Formato(a, Esp, kMascaraOrigen)}),
                  Texto(a, txt::TituloAviso));
  return false;
}

}  // namespace

void MuestraRecubrimientosOrigen(Ajustes& a) {
  Escribe(a, CampoAjuste::txRecInterior, a.t.e.tramo.Reci, kMascaraOrigen);
  Escribe(a, CampoAjuste::txRecExterior, a.t.e.tramo.Rece, kMascaraOrigen);
}

void CambiaRecubrimientos(Ajustes& a) {
  a.t.RecIntAlt = a.t.e.tramo.Reci;
  a.t.RecExtAlt = a.t.e.tramo.Rece;
  MuestraRecubrimientosOrigen(a);
  EntraEnEstado(a, EstadoAjuste::Recubrimientos);
}

bool SaleRecubrimiento(Ajustes& a, CampoAjuste campo) {
  const bool interior = campo == CampoAjuste::txRecInterior;
  const int etiqueta = interior ? txt::EtReci : txt::EtRece;
  double& destino = interior ? a.t.RecIntAlt : a.t.RecExtAlt;
  if (!ValidaNumero(a, campo, a.trabajo.EsComercial ? 0.0 : kMinimo, destino, etiqueta)) {
    return false;
  }
  if (destino < kMinimo && !TomaElDeLaTabla(a, interior)) return false;
  // The cover in force is the one that the field shows.
  destino = NumeroTexto(FormatoMascara(destino, kMascaraRecubrimiento, '.')).value_or(destino);
  Escribe(a, campo, destino, kMascaraRecubrimiento);
  return true;
}

void AceptaRecubrimientos(Ajustes& a) {
  if (!Sale(a, CampoAjuste::txRecInterior) || !Sale(a, CampoAjuste::txRecExterior)) return;
  if (!HayBrazo(a)) return;
  const auto antes = a.t;
  a.t.RecAltActivo = true;
  if (!CargaDatosIniEnUniCalc(a)) {
    a.t = antes;
    return;
  }
  MuestraAlternativos(a);
}

void AnulaRecubrimientos(Ajustes& a) {
  RecuperaRecubrimientosOrigen(a);
}

void RecuperaRecubrimientosOrigen(Ajustes& a) {
  a.t.RecAltActivo = false;
  MuestraRecubrimientosOrigen(a);
  CargaDatosIniEnUniCalc(a);
}

}  // namespace zorbin
