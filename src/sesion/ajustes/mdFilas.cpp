#include "sesion/ajustes/mdFilas.h"

#include "base/textos.h"
#include "core/mdAjustes.h"
#include "sesion/ajustes/mdHoja.h"

namespace zorbin {

namespace {

// The formulas take thickness and covers in cm, as they are captured.
DatosDelCaso Datos(const Ajustes& a) {
  const auto& t = a.t;
  const auto& capturado = a.tramo.tramo;
  Espesores pared{capturado.Esp, capturado.Reci, capturado.Rece};
  if (t.RecAltActivo) pared.Reci = t.RecIntAlt, pared.Rece = t.RecExtAlt;
  return DatosCaso(a.tramo.datos.tramo, t.fila, t.caso.Armado(), pared);
}

// As the screen shows them.
Ajuste AreasDeFila(const TrabajoAjuste& t, int fila) {
  const Ajuste x = AreasExactas(t, fila);
  return {AreaMostrada(x.Camisa), AreaMostrada(x.Espiras), AreaMostrada(x.Exterior)};
}

// The stored areas become the row that has them, otherwise a direct entry.
void EligeLoGuardado(Ajustes& a) {
  auto& t = a.t;
  t.FilaElegida = kFilaResultado;
  OlvidaDirecta(t);
  const auto* entrada = Guardada(a);
  if (entrada == nullptr) return;
  const auto& g = entrada->areas;
  for (int k = 1; k <= kFilasTanteo; ++k) {
    const auto fila = AreasDeFila(t, k);
    if (!t.tanteo.filas(k).utilizable || fila.Camisa != g.Camisa || fila.Exterior != g.Exterior ||
        g.Espiras != 0.0) {
      continue;
    }
    t.FilaElegida = k;
    return;
  }
  t.Dir = g;
  t.SeleccionDirecta = true;
}

}  // namespace

Ajuste AreasExactas(const TrabajoAjuste& t, int fila) {
  if (fila != kFilaResultado) {
    const auto& x = t.tanteo.filas(fila);
    return {x.Interior, 0.0, x.Exterior};
  }
  const auto& r = t.caso.Armado();
  if (r.HipotesisRige != kHipPPNeta) return {r.AreaCamisa, r.AreaEspiras, r.AreaExterior};
  return {r.TablaHip(kHipPPNeta).AsInt, 0.0, r.TablaHip(kHipPPNeta).AsExt};
}

bool SinDatos(const TrabajoAjuste& t) {
  return t.FilaElegida == kFilaResultado && !t.SeleccionDirecta;
}

void OlvidaDirecta(TrabajoAjuste& t) {
  t.Dir = {};
  t.SeleccionDirecta = false;
}

const EntradaAjuste* Guardada(const Ajustes& a) {
  if (!a.dpe) return nullptr;
  const auto& entradas = a.dpe->entradas();
  const int posicion =
      BuscaCaso(entradas, a.t.fila.DP, a.tramo.datos.tramo.NumeroTramo, a.t.fila.Hr);
  return posicion > 0 ? &entradas[static_cast<std::size_t>(posicion - 1)] : nullptr;
}

void CompruebaLoElegido(Ajustes& a) {
  auto& t = a.t;
  t.Disp = t.SeleccionDirecta ? t.Dir : AreasDeFila(t, t.FilaElegida);
  t.comprobacion = Calculo_Arm_Necesaria(Datos(a), t.caso.Armado().TablaHip(kHipPPNeta), t.Disp);
  if (t.comprobacion.traccionPura) return;
  if (EscribeHoja(a.registros, HojaDeTrabajo(t.comprobacion))) return;
  t.pantalla.aviso = a.c.textos.Compone(txt::AjSinRegistro, {RutaHoja(a.registros).string()});
}

void CalculaFilas(Ajustes& a) {
  auto& t = a.t;
  t.tanteo = Tantea(Datos(a), a.c.tablas.TablaArmaduras, t.FilaTanteo);
  if (t.MiraAjusteGuardado) EligeLoGuardado(a);
  t.MiraAjusteGuardado = false;
  // A row that the series no longer offers cannot stay chosen.
  if (t.FilaElegida != kFilaResultado && !t.tanteo.filas(t.FilaElegida).utilizable) {
    t.FilaElegida = kFilaResultado;
  }
  CompruebaLoElegido(a);
}

bool GrabaUnTramoPresion(Ajustes& a) {
  const auto& t = a.t;
  try {
    a.dpe->GrabaUnTramoPresion(
        {t.fila.DP, static_cast<double>(a.tramo.datos.tramo.NumeroTramo), t.fila.Hr, t.Disp},
        SinDatos(t));
    return true;
  } catch (const ErrorFichero& error) {
    a.c.voz.Muestra(TextoDeError(a.c, error), {});
    return false;
  }
}

}  // namespace zorbin
