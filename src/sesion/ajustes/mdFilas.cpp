#include "sesion/ajustes/mdFilas.h"

#include <algorithm>

#include "base/mdNumeros.h"
#include "base/mdTextos.h"
#include "base/textos.h"
#include "core/mdAjustes.h"
#include "core/mdUnidades.h"
#include "listados/obra/mdAvisos.h"
#include "sesion/ajustes/mdHoja.h"
#include "sesion/ajustes/mdPresentaAjustes.h"
#include "sesion/captura/mdAjustesTramo.h"

namespace zorbin {

namespace {

void MuestraFallo(Ajustes& a, const std::string& texto) {
  a.c.voz.Muestra(texto, std::string(Recorta(Texto(a, txt::ErrorEnEjecucion))));
}

DatosDelCaso Datos(const Ajustes& a) {
  const auto& t = a.t.e.tramo;
  return DatosCaso(a.t.e, a.t.RecAltActivo ? a.t.RecIntAlt : t.Reci,
                   a.t.RecAltActivo ? a.t.RecExtAlt : t.Rece);
}

EntradaAjuste CasoElegido(const Ajustes& a) {
  return {a.t.PrsAjuste, static_cast<double>(a.t.e.tramo.NumeroTramo), a.t.HrAjuste, a.t.Disp};
}

bool SinDatos(const Ajustes& a) {
  return a.t.FilaElegida == kFilaResultado && !a.t.SeleccionDirecta;
}

void OlvidaDirecta(Ajustes& a) {
  a.t.Dir = {};
  a.t.SeleccionDirecta = false;
}

const EntradaAjuste* Guardada(const Ajustes& a) {
  if (!a.dpe) return nullptr;
  const auto& entradas = a.dpe->entradas();
  const int posicion = BuscaCaso(entradas, a.t.PrsAjuste, a.t.e.tramo.NumeroTramo, a.t.HrAjuste);
  return posicion > 0 ? &entradas[static_cast<std::size_t>(posicion - 1)] : nullptr;
}

// The stored areas become the row that has them, otherwise a direct entry.
void EligeLoGuardado(Ajustes& a) {
  a.t.FilaElegida = kFilaResultado;
  OlvidaDirecta(a);
  const auto* entrada = Guardada(a);
  if (entrada == nullptr) return;
  const auto& g = entrada->areas;
  for (int k = 1; k <= kFilasTanteo; ++k) {
    const auto fila = AreasDeFila(a, k);
    if (!a.t.tanteo.filas(k).utilizable || fila.Camisa != g.Camisa || fila.Exterior != g.Exterior ||
        g.Espiras != 0.0) {
      continue;
    }
    a.t.FilaElegida = k;
    return;
  }
  a.t.Dir = g;
  a.t.SeleccionDirecta = true;
}

// Compares what is chosen, and leaves the working sheet.
void Comprueba(Ajustes& a) {
  a.t.comprobacion =
      Calculo_Arm_Necesaria(Datos(a), a.t.e.caso.armado.TablaHip(kHipPPNeta), a.t.Disp);
  MuestraComprobacion(a);
  if (a.t.comprobacion.traccionPura) return;
  if (EscribeHoja(a.registros, HojaDeTrabajo(a.t.comprobacion))) return;
  a.t.pantalla.aviso = a.c.textos.Compone(txt::AjSinRegistro, {RutaHoja(a.registros).string()});
}

void TomaLaFila(Ajustes& a) {
  a.t.Disp = a.t.SeleccionDirecta ? a.t.Dir : AreasDeFila(a, a.t.FilaElegida);
}

// The mean value moves by `paso` rows, and with it the row chosen, so that the same area stays so.
void MueveValorMedio(Ajustes& a, int paso, int limite, int enLimite, int elegidaEnLimite) {
  if (a.t.FilaTanteo == limite) return Avisa(a, enLimite);
  const bool sale = a.t.FilaElegida == limite;
  if (sale && !a.t.SeleccionDirecta) return Avisa(a, elegidaEnLimite);
  const auto antes = a.t;
  a.t.FilaTanteo += paso;
  if (sale) {
    a.t.FilaElegida = kFilaResultado;  // the row to go back to from a direct entry is lost
  } else if (a.t.FilaElegida != kFilaResultado) {
    a.t.FilaElegida += paso;
  }
  if (!CargaDatosIniEnUniCalc(a)) a.t = antes;
}

bool CompruebaLoElegido(Ajustes& a) {
  return EnUnidades(a, [&a] {
    TomaLaFila(a);
    Comprueba(a);
    return true;
  });
}

}  // namespace

bool EnUnidades(Ajustes& a, const std::function<bool()>& accion) {
  auto antes = a.t;
  const auto falla = [&](const std::string& texto) {
    a.t = std::move(antes);
    MuestraFallo(a, texto);
    return false;
  };
  try {
    if (a.t.e.corrida.ParaCalculoActivo) return accion();
    const EnUnidadesDeCalculo unidades(a.t.e);
    return accion();
  } catch (const ErrorCorrida& fallo) {
    const auto obra = std::filesystem::path(a.c.e.obra.NombreFichero).filename().string();
    return falla(TextoFallo(fallo, obra, TextoEntero(fallo.numeroTramo()), a.c.textos,
                            {a.c.EsSI(), a.c.SeparadorDecimal}));
  } catch (const ErrorEjecucion& error) {
    return falla(TextoCausa(error, a.c.textos));
  } catch (const ErrorFichero& error) {
    return falla(TextoDeError(a.c, error));
  }
}

void CargaDatosIni(Ajustes& a) {
  a.t.tanteo = Tantea(Datos(a), a.c.tablas.TablaArmaduras, a.t.FilaTanteo);
  MuestraCaso(a);
  MuestraFilas(a);
  if (a.t.MiraAjusteGuardado) EligeLoGuardado(a);
  // A row that the series no longer offers cannot stay chosen.
  if (a.t.FilaElegida != kFilaResultado && !a.t.tanteo.filas(a.t.FilaElegida).utilizable) {
    a.t.FilaElegida = kFilaResultado;
  }
  MuestraDirecta(a);
  a.t.MiraAjusteGuardado = false;
  TomaLaFila(a);
  EntraEnEstado(a, EstadoAjuste::Libre);
  Comprueba(a);
}

bool CargaDatosIniEnUniCalc(Ajustes& a) {
  return EnUnidades(a, [&a] {
    CargaDatosIni(a);
    return true;
  });
}

bool GrabaUnTramoPresion(Ajustes& a) {
  try {
    a.dpe->GrabaUnTramoPresion(CasoElegido(a), SinDatos(a));
    return true;
  } catch (const ErrorFichero& error) {
    a.c.voz.Muestra(TextoDeError(a.c, error), {});
    return false;
  }
}

bool HaySinGuardar(const Ajustes& a) {
  const auto* entrada = Guardada(a);
  if (SinDatos(a)) return entrada != nullptr;
  if (entrada == nullptr) return true;
  const auto& g = entrada->areas;
  return g.Camisa != a.t.Disp.Camisa || g.Espiras != a.t.Disp.Espiras ||
         g.Exterior != a.t.Disp.Exterior;
}

void EntraEnEstado(Ajustes& a, EstadoAjuste estado) {
  a.t.pantalla.estado = estado;
  MuestraEstado(a);
}

void EligeFila(Ajustes& a, int fila) {
  if (fila < kFilaResultado || fila > kFilaDirecta ||
      !a.t.pantalla.filas[static_cast<std::size_t>(fila)].habilitada) {
    return;
  }
  if (fila == kFilaDirecta) return EntraEnEstado(a, EstadoAjuste::Directa);
  const auto antes = a.t;
  OlvidaDirecta(a);
  a.t.FilaElegida = fila;
  if (!CompruebaLoElegido(a)) {
    a.t = antes;
    return;
  }
  MuestraDirecta(a);
  EntraEnEstado(a, EstadoAjuste::Libre);
}

void SubeValorMedio(Ajustes& a) {
  MueveValorMedio(a, -1, 1, txt::AjPrimeraFila, txt::AjElegidaPrimera);
}

void BajaValorMedio(Ajustes& a) {
  MueveValorMedio(a, 1, kFilasTanteo, txt::AjUltimaFila, txt::AjElegidaUltima);
}

bool SaleDirecta(Ajustes& a, CampoAjuste campo) {
  const bool camisa = campo == CampoAjuste::txArmCamisa;
  const bool exterior = campo == CampoAjuste::txArmExterior;
  double& destino = camisa ? a.t.Dir.Camisa : exterior ? a.t.Dir.Exterior : a.t.Dir.Espiras;
  const bool vale = ValidaNumero(a, campo, 0.0, destino,
                                 camisa     ? txt::AjEtCamisa
                                 : exterior ? txt::AjExterior
                                            : txt::AjEtRefuerzo);
  // What is chosen and stored is what the field shows.
  destino = vale ? AreaMostrada(destino) : 0.0;
  MuestraDirecta(a);
  return vale;
}

void AceptaSeleccionDirecta(Ajustes& a) {
  for (const auto campo :
       {CampoAjuste::txArmCamisa, CampoAjuste::txArmRefuerzo, CampoAjuste::txArmExterior}) {
    if (!Sale(a, campo)) return;
  }
  if (a.t.Dir.Camisa == 0.0 && a.t.Dir.Espiras == 0.0) return Avisa(a, txt::AjInteriorCero);
  if (a.t.Dir.Exterior == 0.0) return Avisa(a, txt::AjExteriorCero);
  const bool antes = a.t.SeleccionDirecta;
  a.t.SeleccionDirecta = true;
  if (!CompruebaLoElegido(a)) {
    a.t.SeleccionDirecta = antes;
    return;
  }
  EntraEnEstado(a, EstadoAjuste::Libre);
}

void AnulaSeleccionDirecta(Ajustes& a) {
  OlvidaDirecta(a);
  MuestraDirecta(a);
  if (CompruebaLoElegido(a)) EntraEnEstado(a, EstadoAjuste::Libre);
}

}  // namespace zorbin
