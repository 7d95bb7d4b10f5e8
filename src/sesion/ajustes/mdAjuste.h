// The adjustment of reinforcements by hand: the screen frAjustes without widgets. An engineer walks
// over the Casos of a reinforced Tramo and replaces the reinforcement that the design found; the
// choice is kept in the file of adjusted Casos, and later runs use it.
//
// The work goes on in a copy of the state. The capture that it was opened from is only read.
#pragma once

#include <filesystem>
#include <memory>
#include <optional>

#include "calculo/ajustes/mdNecesaria.h"
#include "persistencia/disco/mdLog.h"
#include "persistencia/dpe/mdDpe.h"
#include "sesion/ajustes/mdModeloAjustes.h"
#include "sesion/captura/mdCaptura.h"

namespace zorbin {

/// Speaks for the rules of the Tramo, which run again for each Caso over data that a person has
/// accepted already: their messages are shown, and a question is not put a second time.
class VozDeAjustes : public Interlocutor {
 public:
  explicit VozDeAjustes(Interlocutor& voz) : voz_(voz) {}
  void Muestra(const std::string& texto, const std::string& titulo) override {
    voz_.Muestra(texto, titulo);
  }
  bool Pregunta(const std::string&, const std::string&) override { return true; }
  std::optional<std::string> PideFichero(const std::string&) override { return std::nullopt; }
  void VaA(Ed) override {}

 private:
  Interlocutor& voz_;
};

/// What an action may leave half done: a failure of the arithmetic puts it back as it was.
struct TrabajoAjuste {
  EstadoCalculo e;                      // results of the Caso; data in the units of the Obra
  double HrAjuste = 0;                  // height of the Caso [m]
  double PrsAjuste = 0;                 // pressure of the Caso [at]
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

struct Ajustes {
  Ajustes(Captura& captura, std::filesystem::path carpetaRegistros, PideCerrojo pide);
  Ajustes(const Ajustes&) = delete;
  Ajustes& operator=(const Ajustes&) = delete;

  Captura& c;
  std::filesystem::path registros;  // folder of the logs
  std::optional<FicheroDpe> dpe;    // open for the life of the screen
  TrabajoAjuste t;
  VozDeAjustes voz;
  Captura trabajo;  // rules of the Tramo over the copy of the state

  bool DpeAbierto() const { return dpe.has_value(); }
};

/// The button and the menu entry. Validates Obra and Tramo, asks for a saved file without edits,
/// opens the file of adjustments and calculates the first Caso.
/// @return nothing where it is refused; why has been shown
std::unique_ptr<Ajustes> AjustaArmaduras(
    Captura& c, const std::filesystem::path& registros = CarpetaRegistros(),
    PideCerrojo pide = CerrojoDelSistema);

/// Calculates the Caso of a height [m] and a pressure [at] and shows it with what is stored for it.
/// A Caso that cannot be calculated is told, and the one before stays.
bool CalculaunTramoEspecifico(Ajustes& a, double HrAjuste, double PrsAjuste);

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

/// Writes the screen again in the language and with the captions in force.
void RenuevaTextos(Ajustes& a);

}  // namespace zorbin
