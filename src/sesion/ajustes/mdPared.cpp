#include "sesion/ajustes/mdPared.h"

#include "calculo/armado/mdCamisa.h"
#include "sesion/ajustes/mdFilas.h"

namespace zorbin {

namespace {

constexpr double kCmPorM = 100.0;
constexpr double kAreaPorMm = 10.0;  // of a sheet [cm2/m]

CapaDeBarras Capa(double diametro, int cuenta) {
  if (cuenta <= 0 || diametro <= 0) return {};
  return {cuenta, diametro, kCmPorM / cuenta};
}

CapaDeBarras CapaPara(double area) {
  if (area <= 0) return {};
  try {
    const auto r = ReparteArmadura(area, 0, 0.0, false, 0.0);
    return Capa(r.DIA, r.NESP);
  } catch (const ErrorEjecucion&) {
    return {};  // more than bars can give
  }
}

}  // namespace

ParedDeTubo ParedElegida(const Ajustes& a) {
  const auto& d = a.t.comprobacion.datos;
  const auto& r = a.t.caso.Armado();
  ParedDeTubo p;
  p.Di = d.Di;
  p.Esp = d.Esp;
  p.Reci = d.Reci;
  p.Rece = d.Rece;
  p.delDiseno = SinDatos(a.t);
  p.CAMISA = p.delDiseno ? r.CAMISA : a.t.Disp.Camisa / kAreaPorMm;
  p.espiras = p.delDiseno ? Capa(r.FIIN, r.NESPIN) : CapaPara(a.t.Disp.Espiras);
  p.exteriores = p.delDiseno ? Capa(r.FIEX, r.NEXPEX) : CapaPara(a.t.Disp.Exterior);
  return p;
}

}  // namespace zorbin
