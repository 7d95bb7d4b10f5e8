#include "sesion/ajustes/mdAjuste.h"

#include <cmath>
#include <utility>

#include "base/mdTextos.h"
#include "base/textos.h"
#include "calculo/corrida/mdCorrida.h"
#include "core/mdUnidades.h"
#include "sesion/ajustes/mdFilas.h"
#include "sesion/ajustes/mdPresentaAjustes.h"
#include "sesion/ajustes/mdRecubrimientos.h"
#include "sesion/captura/mdAjustesTramo.h"
#include "sesion/captura/mdCiclo.h"
#include "sesion/captura/mdPresenta.h"
#include "sesion/captura/mdValidaTramo.h"

namespace zorbin {

namespace {

constexpr double kToleranciaCaso = 0.001;  // [m] and [at]
constexpr double kEngancheLimite = 0.01;  // a pressure this near to the end of its range is it [at]

// The debug log of one Caso, as far as the disk takes it: an engineer who cannot write it works all
// the same, and is told.
class LogDeCaso {
 public:
  explicit LogDeCaso(Ajustes& a) : a_(a), registro_([this](std::string_view b) { Escribe(b); }) {
    a_.t.e.corrida.registro = &registro_;
  }
  ~LogDeCaso() { a_.t.e.corrida.registro = nullptr; }
  LogDeCaso(const LogDeCaso&) = delete;
  LogDeCaso& operator=(const LogDeCaso&) = delete;

 private:
  Ajustes& a_;
  Registro registro_;

  void Escribe(std::string_view bloque) {
    try {
      FicheroLog log(a_.registros);
      log.registro() << bloque;
      log.registro().Vuelca();
    } catch (const ErrorEjecucion& error) {
      a_.t.pantalla.aviso = a_.c.textos.Compone(txt::AjSinRegistro, {error.dato()});
    }
  }
};

// The data of the Tramo as the file has them, with what the validation completes.
bool LeeElTramo(Ajustes& a) {
  const int numero = a.c.e.tramo.NumeroTramo;
  try {
    CargaTramo(a.t.e, *a.c.fichero, PosicionDelTramo(a.c, numero));
  } catch (const ErrorFichero& error) {
    a.c.voz.Muestra(TextoDeError(a.c, error), {});
    return false;
  }
  a.t.e.tramo.NumeroTramo = static_cast<std::int16_t>(numero);
  Escribe(a.trabajo, Ed::edTramo, TextoEntero(numero));
  MuestraTramo(a.trabajo);
  return ValidaTramo(a.trabajo, false);
}

// The Caso as the design finds it: a stored adjustment stands beside the result, not in it.
void Corre(Ajustes& a, double Hr, double DP) {
  auto& e = a.t.e;
  e.corrida.ajustes.clear();
  const LogDeCaso log(a);
  CalculaCasos(e, Hr, DP, {});
  e.corrida.Hr = Hr;
}

void EmpiezaCaso(Ajustes& a, double Hr, double DP) {
  a.t.HrAjuste = Hr;
  a.t.PrsAjuste = DP;
  a.t.FilaTanteo = kFilaTanteoInicial;
  a.t.FilaElegida = kFilaResultado;
  a.t.RecAltActivo = false;
  a.t.MiraAjusteGuardado = true;
  MuestraRecubrimientosOrigen(a);
}

void OtraAltura(Ajustes& a, std::optional<double> altura) {
  if (!altura) return Avisa(a, txt::AjSinAlturas);
  CalculaunTramoEspecifico(a, *altura, a.t.PrsAjuste);
}

std::optional<double> AlturaDespues(const Ajustes& a) {
  const auto& c = a.t.e.corrida;
  const auto h = AlturaSiguiente(a.t.HrAjuste, a.t.e.tramo.Hr0Delta, c.Hr0FinalActual);
  if (!h || *h > c.Hr0FinalActual + kToleranciaCaso) return std::nullopt;
  return h;
}

// The pressures of the Tramo and their step, in at, as a run takes them.
void EligeRango(Ajustes& a) {
  const EnUnidadesDeCalculo unidades(a.t.e);
}

// `sentido` is -1 towards the first pressure, 1 towards the last.
void OtraPresion(Ajustes& a, int sentido) {
  EligeRango(a);
  const auto& c = a.t.e.corrida;
  const double limite = sentido < 0 ? c.DPIni : c.DPFin;
  double DP = a.t.PrsAjuste + sentido * c.IncDP;
  if (!(c.IncDP > 0) || sentido * (DP - limite) > kToleranciaCaso) {
    return Avisa(a, txt::AjSinPresiones);
  }
  if (std::fabs(DP - limite) < kEngancheLimite) DP = limite;
  CalculaunTramoEspecifico(a, a.t.HrAjuste, DP);
}

bool Guarda(Ajustes& a) {
  return CargaDatosIniEnUniCalc(a) && GrabaUnTramoPresion(a);
}

// What is stored is what the screen shows, with alternative covers too; they end with the screen.
bool Cierra(Ajustes& a, bool guardando) {
  if (guardando && !Guarda(a)) return false;
  a.t.RecAltActivo = false;
  a.dpe.reset();
  return true;
}

}  // namespace

Ajustes::Ajustes(Captura& captura, std::filesystem::path carpetaRegistros, PideCerrojo pide)
    : c(captura),
      registros(std::move(carpetaRegistros)),
      voz(captura.voz),
      trabajo(t.e, captura.textos, captura.tablas, voz, captura.SeparadorDecimal) {
  t.e.obra = c.e.obra;
  t.e.tramo = c.e.tramo;
  PreparaPantalla(trabajo);
  MuestraObra(trabajo);
  dpe.emplace(RutaDpe(c.e.obra.NombreFichero), c.SeparadorDecimal, pide);
  MuestraRotulos(*this);
  if (!dpe->ConCerrojo()) {
    t.pantalla.aviso = c.textos.Compone(txt::AjSinCerrojos, {dpe->ruta().string()});
  }
}

std::unique_ptr<Ajustes> AjustaArmaduras(Captura& c, const std::filesystem::path& registros,
                                         PideCerrojo pide) {
  if (!c.e.tramo.EsArmado || !PreparaCalculo(c, true)) return nullptr;
  if (!c.fichero || PosicionDelTramo(c, c.e.tramo.NumeroTramo) == 0) {
    c.voz.Muestra(Texto(c, txt::NoExisteEseTramo), {});
    return nullptr;
  }
  std::unique_ptr<Ajustes> a;
  try {
    a = std::make_unique<Ajustes>(c, registros, pide);
  } catch (const ErrorFichero& error) {
    c.voz.Muestra(TextoDeError(c, error), {});
    return nullptr;
  }
  EligeAlturas(a->t.e);
  EligeRango(*a);
  const auto& corrida = a->t.e.corrida;
  if (!CalculaunTramoEspecifico(*a, corrida.Hr0Actual, corrida.DPIni)) return nullptr;
  return a;
}

bool CalculaunTramoEspecifico(Ajustes& a, double HrAjuste, double PrsAjuste) {
  const auto antes = a.t;
  const bool hecho = LeeElTramo(a) && EnUnidades(a, [&] {
                       Corre(a, HrAjuste, PrsAjuste);
                       EmpiezaCaso(a, HrAjuste, PrsAjuste);
                       CargaDatosIni(a);
                       GrabaUnTramoPresion(a);
                       return true;
                     });
  if (!hecho) a.t = antes;
  return hecho;
}

void Cambia(Ajustes& a, CampoAjuste campo, std::string texto) {
  auto& p = a.t.pantalla;
  if (!p.Abierto(campo)) return;
  p.Texto(campo) = std::move(texto);
  p.tocados[static_cast<std::size_t>(campo)] = true;
}

bool Sale(Ajustes& a, CampoAjuste campo) {
  const auto& p = a.t.pantalla;
  if (!p.Abierto(campo) || !p.tocados[static_cast<std::size_t>(campo)]) return true;
  return p.estado == EstadoAjuste::Directa ? SaleDirecta(a, campo) : SaleRecubrimiento(a, campo);
}

bool Pulsa(Ajustes& a, BotonAjuste boton) {
  if (!a.DpeAbierto() || !a.t.pantalla.Habilitado(boton)) return false;
  const auto& e = a.t.e;
  switch (boton) {
    case BotonAjuste::btAceptarAjuste:
      return Cierra(a, true);
    case BotonAjuste::btSalir:
      return Cierra(a, false);
    case BotonAjuste::btGuardar:
      Guarda(a);
      break;
    case BotonAjuste::btSubirValorMedio:
      SubeValorMedio(a);
      break;
    case BotonAjuste::btBajarValorMedio:
      BajaValorMedio(a);
      break;
    case BotonAjuste::btSeleccionDirecta:
      AceptaSeleccionDirecta(a);
      break;
    case BotonAjuste::btAnulaSeleccionDirecta:
      AnulaSeleccionDirecta(a);
      break;
    case BotonAjuste::btCambiarRecubrimientos:
      CambiaRecubrimientos(a);
      break;
    case BotonAjuste::btAceptarRecubrimientos:
      AceptaRecubrimientos(a);
      break;
    case BotonAjuste::btAnularRecubrimientos:
      AnulaRecubrimientos(a);
      break;
    case BotonAjuste::btRecubrimientosOrigen:
      RecuperaRecubrimientosOrigen(a);
      break;
    case BotonAjuste::btAnteriorAltura:
      OtraAltura(a, AlturaAnterior(a.t.HrAjuste, e.tramo.Hr0Delta, e.corrida.Hr0Actual));
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

void RenuevaTextos(Ajustes& a) {
  MuestraRotulos(a);
  MuestraFilas(a);
  MuestraComprobacion(a);
}

}  // namespace zorbin
