#include "core/campos/mdDatos.h"

#include <cmath>

#include "core/campos/mdTablaDatos.h"

namespace zorbin {

namespace {

template <class Bloque>
Bloque DeSIAMks(Bloque bloque) {
  RecorreNumeros<Bloque>([&](const Ficha& ficha, double Bloque::*campo) {
    bloque.*campo = Pareja(bloque.*campo, true, ficha.magnitud).mks;
  });
  return bloque;
}

}  // namespace

std::span<const Dato<Obra>> TablaDe(const Obra&) {
  return kDatosObra;
}

std::span<const Dato<Tramo>> TablaDe(const Tramo&) {
  return kDatosTramo;
}

double FctDeFck(double Fck) {
  return 0.45 * std::pow(Fck * Fck, 1.0 / 3.0);
}

double FctEnSistema(double Fck, bool si) {
  const auto Fct =
      Pareja(FctDeFck(Pareja(Fck, si, Magnitud::Tension).mks), false, Magnitud::Tension);
  return si ? Fct.si : Fct.mks;
}

Obra ObraEnCalculo(const Obra& obra) {
  return obra.EsSI() ? DeSIAMks(obra) : obra;
}

Tramo TramoEnCalculo(const Tramo& tramo, bool si) {
  if (!si) return tramo;
  Tramo t = DeSIAMks(tramo);
  t.Fct = FctDeFck(t.Fck);
  return t;
}

}  // namespace zorbin
