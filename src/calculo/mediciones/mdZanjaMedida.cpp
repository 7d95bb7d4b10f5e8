#include "calculo/mediciones/mdZanjaMedida.h"

#include <algorithm>
#include <cmath>

#include "base/aritmetica.h"
#include "calculo/cargas/mdOval.h"

namespace zorbin {

namespace {

// Section of the pipe below a level, measured downwards from its axis [m2].
double TuboBajo(double R, double nivel) {
  const double angulo = std::acos(std::clamp(nivel / R, -1.0, 1.0));
  return R * R * (angulo - std::sin(angulo) * std::cos(angulo));
}

// Level of the natural ground, downwards from the axis [m].
double Natural(const Tramo& t, double Hr, double fondo) {
  const double clave = -t.De / 2.0;
  if (t.TipoApoyo < 20) return clave - Hr;
  if (t.TipoApoyo < 30) return clave - t.Hr1;
  return std::min(clave + t.Hr1, fondo);
}

}  // namespace

double EspesorCama(double De) {
  return std::max(0.1, De / 8.0);
}

ZanjaMedida MideZanja(const Tramo& t, double Hr) {
  const double R = t.De / 2.0, propio = kVueloCama * t.De;
  const double ancho = t.TipoApoyo < 30 ? t.B0 : propio;
  if (!(R > 0) || !(ancho > t.De)) return {};
  const bool hormigon = t.TipoCuna == kCunaHormigon90 || t.TipoCuna == kCunaHormigon120;
  const double semiangulo = t.TipoCuna == kCunaHormigon120 ? kPi / 3.0 : kPi / 4.0;
  const double fondo = R + EspesorCama(t.De), apoyo = R * std::cos(semiangulo);
  const double natural = Natural(t, Hr, fondo);
  ZanjaMedida z;
  z.Excavacion = Finito(ancho * std::max(0.0, fondo - natural));
  z.Cama = (hormigon ? std::min(propio, ancho) : ancho) * (fondo - apoyo) - TuboBajo(R, apoyo);
  z.Relleno = std::max(0.0, z.Excavacion - z.Cama - TuboBajo(R, natural));
  return z;
}

}  // namespace zorbin
