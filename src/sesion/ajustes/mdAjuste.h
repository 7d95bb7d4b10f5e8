// The adjustment of reinforcements by hand: the screen frAjustes without widgets. An engineer walks
// over the Casos of a reinforced Tramo and replaces the reinforcement that the design found; the
// choice is kept in the file of adjusted Casos, and later runs use it.
//
// The data of the Tramo are read once, and each Caso is calculated from them as a run does. The
// capture that it was opened from is only read.
//
// An action goes one way: what it changes of the work (here, and the fields in mdTecleado), the
// rows and the check that follow from it (mdFilas), and the screen (mdPresentaAjustes).
#pragma once

#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "calculo/ajustes/mdNecesaria.h"
#include "core/resultado.h"
#include "persistencia/disco/mdLog.h"
#include "persistencia/dpe/mdDpe.h"
#include "sesion/ajustes/mdModeloAjustes.h"
#include "sesion/captura/mdCaptura.h"

namespace zorbin {

/// The Tramo whose Casos are adjusted, with what the validation completes.
struct TramoAjustado {
  Tramo tramo;               // as captured: thickness and covers in cm
  DatosTramo datos;          // what its Casos are calculated from
  Rango rango;               // its heights and pressures
  bool EsComercial = false;  // its diameter is in the catalogue
};

/// What an action may leave half done: a failure of the arithmetic puts it back as it was.
struct TrabajoAjuste {
  FilaCaso fila;                        // the Caso
  ResultadoCaso caso;                   // the whole of it
  int FilaTanteo = kFilaTanteoInicial;  // row of the mean value, 1 to 7
  int FilaElegida = kFilaResultado;     // 0 to 7; with a direct entry, the row to go back to
  Tanteo tanteo;
  Ajuste Dir;                           // direct entry [cm2/m]
  bool SeleccionDirecta = false;        // the direct entry is in force
  Ajuste Disp;                          // reinforcement chosen, as the screen shows it [cm2/m]
  bool RecAltActivo = false;            // the alternative covers are in force
  double RecIntAlt = 0, RecExtAlt = 0;  // [cm]
  bool MiraAjusteGuardado = false;      // the next CargaDatosIni looks for a stored adjustment
  Comprobacion comprobacion;
  ModeloAjustes pantalla;
};

/// A Caso of the run, as a list offers it.
struct CasoAjustable {
  double Hr = 0;          // [m]
  double DP = 0;          // [at]
  std::string texto;      // height and pressures, in the units of the Obra
  bool ajustado = false;  // something is stored for it
};

struct Ajustes {
  /// @throws ErrorFichero where the file of adjustments cannot be held
  Ajustes(Captura& captura, TramoAjustado tramo, std::filesystem::path carpetaRegistros,
          PideCerrojo pide);
  Ajustes(const Ajustes&) = delete;
  Ajustes& operator=(const Ajustes&) = delete;

  Captura& c;
  const TramoAjustado tramo;
  const std::filesystem::path registros;  // folder of the logs
  std::optional<FicheroDpe> dpe;          // open for the life of the screen
  std::vector<FilaCaso> casos;            // of the whole run
  TrabajoAjuste t;

  bool DpeAbierto() const { return dpe.has_value(); }
};

/// The button and the menu entry. Saves what is unsaved, opens the file of adjustments and
/// calculates the first Caso.
/// @return nothing where it is refused; why has been shown
std::unique_ptr<Ajustes> AjustaArmaduras(Captura& c,
                                         const std::filesystem::path& registros = CarpetaPropia(),
                                         PideCerrojo pide = CerrojoDelSistema);

/// Calculates the Caso of a height [m] and a pressure [at] and shows it with what is stored for it.
/// A Caso that cannot be calculated is told, and the one before stays.
bool CalculaunTramoEspecifico(Ajustes& a, double HrAjuste, double PrsAjuste);

/// All the Casos of the run, and the place of the one in hand among them.
std::vector<CasoAjustable> CasosDe(const Ajustes& a);
int CasoEnMano(const Ajustes& a);

/// A person chose an option, 0 to 8. Nothing happens where it is disabled.
void EligeFila(Ajustes& a, int fila);

/// A person changed the text of a field. One that is closed stays as it is.
void Cambia(Ajustes& a, CampoAjuste campo, std::string texto);
/// The focus is about to leave a field. @return whether it may
bool Sale(Ajustes& a, CampoAjuste campo);

/// A person pressed a button. Nothing happens where it is disabled.
/// @return whether the screen is to close
bool Pulsa(Ajustes& a, BotonAjuste boton);

/// The close box may be used: as btSalir.
inline bool PuedeCerrar(const Ajustes& a) {
  return a.t.pantalla.Habilitado(BotonAjuste::btSalir);
}

/// Whether what is chosen is another thing than what is stored for the Caso.
bool HaySinGuardar(const Ajustes& a);

}  // namespace zorbin
