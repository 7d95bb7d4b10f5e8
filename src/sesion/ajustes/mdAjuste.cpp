#include "sesion/ajustes/mdAjuste.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <utility>

#include "base/mdTextos.h"
#include "base/textos.h"
#include "calculo/corrida/mdCalculaTramo.h"
#include "core/mdUnidades.h"
#include "listados/obra/mdAvisos.h"
#include "sesion/ajustes/mdFilas.h"
#include "sesion/ajustes/mdPresentaAjustes.h"
#include "sesion/ajustes/mdTecleado.h"
#include "sesion/captura/mdCiclo.h"
#include "sesion/captura/mdComprueba.h"

namespace zorbin {

namespace {

constexpr double kToleranciaCaso = 0.001;  // [m] and [at]
constexpr double kEngancheLimite = 0.01;  // a pressure this near to the end of its range is it [at]

// ---------------------------------------------------------------------------------------------
// The Tramo

// The Tramo in hand with what the rules complete. What they refuse of one that came from its file
// so, and was saved with nothing to save, is shown.
std::optional<TramoAjustado> TomaElTramo(Captura& c) {
  auto comprobado = Comprueba(c, {c.enMano});
  if (MuestraFaltas(c, comprobado.faltas)) return std::nullopt;
  const auto* t = Busca(comprobado.version, c.enMano);
  auto datos = DatosDeCalculo(comprobado.version.obra, t->datos);
  const Rango rango = RangoDe(datos);
  return TramoAjustado{t->datos, std::move(datos), rango, c.EsComercial};
}

// ---------------------------------------------------------------------------------------------
// What a person does

void Avisa(Ajustes& a, int texto) {
  a.c.voz.Muestra(Texto(a, texto), Texto(a, txt::TituloAviso));
}

void MuestraFallo(Ajustes& a, const std::string& texto) {
  a.c.voz.Muestra(texto, std::string(Recorta(Texto(a, txt::ErrorEnEjecucion))));
}

// Changes the work, calculates what follows, rows or check alone, and shows it: the screen is free
// again. A failure of the arithmetic is told, and leaves everything as it was.
bool Rehaz(Ajustes& a, void (*calcula)(Ajustes&),
           const std::function<void(TrabajoAjuste&)>& cambia) {
  auto antes = a.t;
  try {
    cambia(a.t);
    calcula(a);
    a.t.pantalla.estado = EstadoAjuste::Libre;
    Muestra(a);
    return true;
  } catch (const ErrorEjecucion& error) {
    a.t = std::move(antes);
    MuestraFallo(a, TextoCausa(error, a.c.textos));
    return false;
  }
}

// The mean value moves by `paso` rows, and with it the row chosen, so that the same area stays so.
void MueveValorMedio(Ajustes& a, int paso, int limite, int enLimite, int elegidaEnLimite) {
  if (a.t.FilaTanteo == limite) return Avisa(a, enLimite);
  const bool sale = a.t.FilaElegida == limite;
  if (sale && !a.t.SeleccionDirecta) return Avisa(a, elegidaEnLimite);
  Rehaz(a, CalculaFilas, [&](TrabajoAjuste& t) {
    t.FilaTanteo += paso;
    if (sale) {
      t.FilaElegida = kFilaResultado;  // the row to go back to from a direct entry is lost
    } else if (t.FilaElegida != kFilaResultado) {
      t.FilaElegida += paso;
    }
  });
}

void AceptaSeleccionDirecta(Ajustes& a) {
  if (!TomaDirecta(a)) return;
  Rehaz(a, CompruebaLoElegido, [](TrabajoAjuste& t) { t.SeleccionDirecta = true; });
}

void CambiaRecubrimientos(Ajustes& a) {
  a.t.RecIntAlt = a.tramo.tramo.Reci;
  a.t.RecExtAlt = a.tramo.tramo.Rece;
  a.t.pantalla.estado = EstadoAjuste::Recubrimientos;
  Muestra(a);
}

void AceptaRecubrimientos(Ajustes& a) {
  if (!TomaRecubrimientos(a)) return;
  Rehaz(a, CalculaFilas, [](TrabajoAjuste& t) { t.RecAltActivo = true; });
}

void RecuperaRecubrimientosOrigen(Ajustes& a) {
  Rehaz(a, CalculaFilas, [](TrabajoAjuste& t) { t.RecAltActivo = false; });
}

void OtraAltura(Ajustes& a, std::optional<double> altura) {
  if (!altura) return Avisa(a, txt::AjSinAlturas);
  CalculaunTramoEspecifico(a, *altura, a.t.fila.DP);
}

std::optional<double> AlturaDespues(const Ajustes& a) {
  const auto& r = a.tramo.rango;
  const auto h = AlturaSiguiente(a.t.fila.Hr, r.Hr0Delta, r.Hr0Final);
  if (!h || *h > r.Hr0Final + kToleranciaCaso) return std::nullopt;
  return h;
}

// `sentido` is -1 towards the first pressure, 1 towards the last.
void OtraPresion(Ajustes& a, int sentido) {
  const auto& r = a.tramo.rango;
  const double limite = sentido < 0 ? r.DPIni : r.DPFin;
  double DP = a.t.fila.DP + sentido * r.IncDP;
  if (!(r.IncDP > 0) || sentido * (DP - limite) > kToleranciaCaso) {
    return Avisa(a, txt::AjSinPresiones);
  }
  if (std::fabs(DP - limite) < kEngancheLimite) DP = limite;
  CalculaunTramoEspecifico(a, a.t.fila.Hr, DP);
}

// What is stored is what the screen shows, with alternative covers too.
bool Guarda(Ajustes& a) {
  return Rehaz(a, CalculaFilas, [](TrabajoAjuste&) {}) && GrabaUnTramoPresion(a);
}

// The covers end with the screen.
bool Cierra(Ajustes& a) {
  a.t.RecAltActivo = false;
  a.dpe.reset();
  RecogeAjustes(a.c);
  return true;
}

// ---------------------------------------------------------------------------------------------
// A Caso

ResultadoTramo Corre(Ajustes& a, double Hr, double DP) {
  FicheroLog log(a.registros);
  const auto& datos = a.tramo.datos;
  auto resultado = CalculaTramo(datos, RangoDeUnCaso(datos, Hr, DP), {}, &log.registro());
  if (const auto fichero = log.SinEscribir(); !fichero.empty()) {
    a.t.pantalla.aviso = a.c.textos.Compone(txt::AjSinRegistro, {fichero});
  }
  return resultado;
}

void EmpiezaCaso(TrabajoAjuste& t, const ResultadoTramo& r) {
  t.fila = r.filas.front();
  t.caso = CasoEntero(r, t.fila);
  t.FilaTanteo = kFilaTanteoInicial;
  t.FilaElegida = kFilaResultado;
  t.RecAltActivo = false;
  t.MiraAjusteGuardado = true;
}

}  // namespace

Ajustes::Ajustes(Captura& captura, TramoAjustado suTramo, std::filesystem::path carpetaRegistros,
                 PideCerrojo pide)
    : c(captura), tramo(std::move(suTramo)), registros(std::move(carpetaRegistros)) {
  dpe.emplace(RutaDpe(c.e.obra.NombreFichero), c.SeparadorDecimal, pide);
  MuestraRotulos(*this);
  if (!dpe->ConCerrojo()) {
    t.pantalla.aviso = c.textos.Compone(txt::AjSinCerrojos, {dpe->ruta().string()});
  }
}

std::unique_ptr<Ajustes> AjustaArmaduras(Captura& c, const std::filesystem::path& registros,
                                         PideCerrojo pide) {
  // What is chosen is kept beside the file at once, so the file has to hold the Tramo first.
  if (c.SinTramoEnMano() || !c.e.tramo.EsArmado || !Graba(c) || c.SoloLectura()) return nullptr;
  auto tramo = TomaElTramo(c);
  if (!tramo) return nullptr;
  try {
    auto a = std::make_unique<Ajustes>(c, std::move(*tramo), registros, pide);
    const auto& r = a->tramo.rango;
    a->casos = CalculaTramo(a->tramo.datos, r).filas;
    return CalculaunTramoEspecifico(*a, r.Hr0, r.DPIni) ? std::move(a) : nullptr;
  } catch (const ErrorFichero& error) {
    c.voz.Muestra(TextoDeError(c, error), {});
    return nullptr;
  }
}

bool CalculaunTramoEspecifico(Ajustes& a, double HrAjuste, double PrsAjuste) {
  const auto r = Corre(a, HrAjuste, PrsAjuste);
  if (r.fallo) {
    const auto obra = std::filesystem::path(a.c.e.obra.NombreFichero).filename().string();
    MuestraFallo(a, TextoFallo(*r.fallo, obra, TextoEntero(r.datos.tramo.NumeroTramo), a.c.textos,
                               {a.c.EsSI(), a.c.SeparadorDecimal}));
    return false;
  }
  const bool hecho = Rehaz(a, CalculaFilas, [&r](TrabajoAjuste& t) { EmpiezaCaso(t, r); });
  if (hecho) GrabaUnTramoPresion(a);
  return hecho;
}

std::vector<CasoAjustable> CasosDe(const Ajustes& a) {
  const double factor = a.c.EsSI() ? kFactorTension : 1.0;
  std::vector<CasoAjustable> casos;
  for (const auto& f : a.casos) {
    const bool ajustado = BuscaCaso(a.dpe->entradas(), f.DP, a.tramo.tramo.NumeroTramo, f.Hr) > 0;
    casos.push_back(
        {f.Hr, f.DP,
         a.c.textos.Compone(a.c.EsSI() ? txt::AjCasoSI : txt::AjCasoMKS,
                            {Formato(a, f.Hr, "####0.00"), Formato(a, f.DP / factor, "####0.00"),
                             Formato(a, f.MDP / factor, "####0.00")}),
         ajustado});
  }
  return casos;
}

int CasoEnMano(const Ajustes& a) {
  const auto f = std::ranges::find_if(a.casos, [&](const FilaCaso& x) {
    return std::fabs(x.Hr - a.t.fila.Hr) < kToleranciaCaso &&
           std::fabs(x.DP - a.t.fila.DP) < kToleranciaCaso;
  });
  return f == a.casos.end() ? -1 : static_cast<int>(f - a.casos.begin());
}

void EligeFila(Ajustes& a, int fila) {
  auto& p = a.t.pantalla;
  if (fila < kFilaResultado || fila > kFilaDirecta ||
      !p.filas[static_cast<std::size_t>(fila)].habilitada) {
    return;
  }
  if (fila == kFilaDirecta) {
    p.estado = EstadoAjuste::Directa;
    return Muestra(a);
  }
  Rehaz(a, CompruebaLoElegido, [fila](TrabajoAjuste& t) {
    OlvidaDirecta(t);
    t.FilaElegida = fila;
  });
}

bool Pulsa(Ajustes& a, BotonAjuste boton) {
  if (!a.DpeAbierto() || !a.t.pantalla.Habilitado(boton)) return false;
  const auto& r = a.tramo.rango;
  switch (boton) {
    case BotonAjuste::btAceptarAjuste:
      return Guarda(a) && Cierra(a);
    case BotonAjuste::btSalir:
      return Cierra(a);
    case BotonAjuste::btGuardar:
      Guarda(a);
      break;
    case BotonAjuste::btSubirValorMedio:
      MueveValorMedio(a, -1, 1, txt::AjPrimeraFila, txt::AjElegidaPrimera);
      break;
    case BotonAjuste::btBajarValorMedio:
      MueveValorMedio(a, 1, kFilasTanteo, txt::AjUltimaFila, txt::AjElegidaUltima);
      break;
    case BotonAjuste::btSeleccionDirecta:
      AceptaSeleccionDirecta(a);
      break;
    case BotonAjuste::btAnulaSeleccionDirecta:
      Rehaz(a, CompruebaLoElegido, OlvidaDirecta);
      break;
    case BotonAjuste::btCambiarRecubrimientos:
      CambiaRecubrimientos(a);
      break;
    case BotonAjuste::btAceptarRecubrimientos:
      AceptaRecubrimientos(a);
      break;
    case BotonAjuste::btAnularRecubrimientos:
    case BotonAjuste::btRecubrimientosOrigen:
      RecuperaRecubrimientosOrigen(a);
      break;
    case BotonAjuste::btAnteriorAltura:
      OtraAltura(a, AlturaAnterior(a.t.fila.Hr, r.Hr0Delta, r.Hr0));
      break;
    case BotonAjuste::btSiguienteAltura:
      OtraAltura(a, AlturaDespues(a));
      break;
    case BotonAjuste::btAnteriorPresion:
      OtraPresion(a, -1);
      break;
    case BotonAjuste::btSiguientePresion:
      OtraPresion(a, 1);
      break;
  }
  return false;
}

bool HaySinGuardar(const Ajustes& a) {
  const auto* entrada = Guardada(a);
  if (SinDatos(a.t)) return entrada != nullptr;
  if (entrada == nullptr) return true;
  const auto& g = entrada->areas;
  return g.Camisa != a.t.Disp.Camisa || g.Espiras != a.t.Disp.Espiras ||
         g.Exterior != a.t.Disp.Exterior;
}

}  // namespace zorbin
