// The capture: the screen model, the state that it feeds, and the helpers that every rule of the
// fields uses. The state holds the units of the Obra's system throughout.
//
// The Obra with all its Tramos is in memory. `version` is how it stood after the last step; the
// data of the Obra and those of the Tramo in hand are newer in `e` while a step is under way.
#pragma once

#include <algorithm>
#include <functional>
#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>

#include "base/mdCatalogo.h"
#include "base/mdNumeros.h"
#include "core/estado_calculo.h"
#include "persistencia/tablas/mdTablas.h"
#include "persistencia/zrb/mdZrb.h"
#include "sesion/captura/mdInterlocutor.h"
#include "sesion/captura/mdModelo.h"
#include "sesion/captura/mdVersion.h"

namespace zorbin {

/// No quantity that a person types is larger, in any unit. With what is derived from it, it still
/// fits in the file.
inline constexpr double kMayorTecleado = 1e9;

/// A refusal of a rule: the field, what it held, and what was said.
struct Falta {
  Ed campo = Ed::edObra;
  std::string valor;
  std::string titulo;
  std::string mensaje;
  int tramo = 0;  // id of the Tramo; 0 for the Obra, or the one in hand
};

/// What the rule of a field comes to. The focus goes where the person goes all the same.
enum class SalidaCampo {
  Pasa,   // taken
  Queda,  // refused: the text stays in its field, with the reason beside it
};

/// A step that can be undone: how the Obra stood before and after, and what was done.
struct PasoHecho {
  Version antes;
  Version despues;
  int enManoAntes = 0;  // id of the Tramo in hand
  int enManoDespues = 0;
  std::string nombre;  // in the words of the language in force
};

struct Captura {
  Captura(EstadoCalculo& estado, Catalogo& catalogo, const TablasCatalogo& dimensiones,
          Interlocutor& interlocutor, char separador)
      : e(estado),
        textos(catalogo),
        tablas(dimensiones),
        voz(interlocutor),
        SeparadorDecimal(separador) {}

  EstadoCalculo& e;
  Catalogo& textos;
  const TablasCatalogo& tablas;
  Interlocutor& voz;
  char SeparadorDecimal;

  Modelo pantalla;
  Version version;
  Version guardada;  // what the file holds
  int enMano = 0;    // id of the Tramo in hand; 0 for none
  int ultimoId = 0;
  std::optional<FicheroRegistros> fichero;
  std::uint64_t huella = 0;  // of what the file holds
  std::string sinAjustes;    // why its hand adjustments were refused; empty where they were not
  std::function<void(PasoHecho)> alDarPaso;  // of whoever undoes
  int pasosAbiertos = 0;                     // a step within another is a part of it
  bool ObraCargada = false;
  std::vector<std::string> danos;  // what of the file could not be read: it is never written
  bool Tecleando = false;          // a field holds what its rule has not seen yet
  bool LeyendoDatos = false;    // fields are being filled by the program: rules of change are off
  bool AnchoZanjaAuto = false;  // B0 follows De
  bool SFckEditado = false;     // edSFck changed since it took the focus
  double FykAnterior = 0;       // value of edFyk on entering it
  bool EsComercial = false;     // the diameter is in the catalogue
  double EspRecomMin = 0;       // band of the thickness [cm]; 0 and 0 for none
  double EspRecomMax = 0;
  bool BandaReci = false;  // the label of the cover shows its band
  bool BandaRece = false;
  std::vector<Falta> faltas;  // of the last validation, or of the last field that was left

  /// The Obra is open for reading: another program has it, its rights forbid writing, or it is
  /// damaged.
  bool SoloLectura() const { return !danos.empty() || (fichero && fichero->SoloLectura()); }
  /// There is something that the file does not hold.
  bool EnCambio() const;
  bool EsSI() const { return e.obra.EsSI(); }
  bool SinTramoEnMano() const { return enMano == 0; }
  /// The Tramo in hand is not in the file yet.
  bool EnAltas() const { return enMano != 0 && Busca(guardada, enMano) == nullptr; }
  bool EnModificaciones() const { return enMano != 0 && !EnAltas(); }

  Control& operator[](Ed id) { return pantalla[id]; }
  const Control& operator[](Ed id) const { return pantalla[id]; }
};

/// How the Obra stands now, with what is in hand.
Version VersionActual(const Captura& c);
/// Whether a Tramo differs from what the file holds, or is not in it.
bool SinGrabar(const Captura& c, int id);

/// A step. What its life changes can be undone at once; where it changes nothing there is none.
class EnUnPaso {
 public:
  EnUnPaso(Captura& c, std::string nombre);
  ~EnUnPaso();
  EnUnPaso(const EnUnPaso&) = delete;
  EnUnPaso& operator=(const EnUnPaso&) = delete;

 private:
  Captura& c_;
  std::string nombre_;
  Version antes_;
  int enManoAntes_;
};

// ---- Texts

const std::string& Texto(const Captura& c, int entrada);

/// What a field is called where it stands alone, as in a list.
std::string NombreDeCampo(const Captura& c, Ed campo);

/// Without the marks of its key.
std::string SinMarcas(std::string texto);

/// Without the colon that ends a caption.
std::string SinDosPuntos(const std::string& texto);

/// Without the blanks at the ends; the text of a field.
std::string TextoDe(const Captura& c, Ed campo);
bool EnBlanco(const Captura& c, Ed campo);

/// `valor` by a mask, in the notation of the machine.
std::string Formato(const Captura& c, double valor, std::string_view mascara);

/// The unit of stresses with a blank before it for code 1, otherwise nothing.
std::string UnidadTension(const Captura& c, int codigo);

// ---- Writing by the program: no edit

void Escribe(Captura& c, Ed campo, std::string texto);
void Escribe(Captura& c, Ed campo, double valor, std::string_view mascara);

/// The variable of the field with its mask.
void MuestraVariable(Captura& c, Ed campo);
/// As MuestraVariable, and an empty text for a zero.
void MuestraSinCero(Captura& c, Ed campo);

/// The variable of a number; every number of the table has one.
double& Variable(Captura& c, Ed campo);

// ---- State of a field

/// Grey: disabled, with a grey background and its label disabled.
void Apaga(Captura& c, Ed campo);
void Enciende(Captura& c, Ed campo);
/// Locked and grey; it may still be reached.
void Bloquea(Captura& c, Ed campo);
void Desbloquea(Captura& c, Ed campo);
/// Desbloquea or Bloquea.
void Libera(Captura& c, Ed campo, bool libre);

// ---- Lists

/// Chosen entry, from 1, by its text without regard to case, the last of equal ones; 0 for none.
int PosicionEnLista(const Captura& c, Ed campo);
/// Shows an entry, from 1; any other number empties the field.
void EligeEntrada(Captura& c, Ed campo, int posicion);

// ---- Messages

/// Keeps the refusal of a field: beside it, and among the faults. The title is the subject.
void Rechaza(Captura& c, Ed campo, const std::string& texto, const std::string& titulo = {});

/// Brings the page of a field to the front and gives it the focus.
void VaA(Captura& c, Ed campo);
/// As VaA for a field whose page is not to be brought wholly, but only as far as `pagina` says.
void MuestraPagina(Captura& c, const Paginas& pagina);

/// Why what was typed is no quantity: it is no number, or is beyond kMayorTecleado.
std::string TextoDeFalta(const Captura& c, const Tecleado& leido);

/// Whether all of them pass. A braced list looks at each, in its order, so that every fault is
/// told.
inline bool Cada(std::initializer_list<bool> pasan) {
  return std::ranges::all_of(pasan, [](bool pasa) { return pasa; });
}

/// Reads a field into `destino`: an empty text is 0. A text that is no number (or is beyond
/// kMayorTecleado) is refused and leaves `destino`; a value below the minimum is refused and is
/// written all the same. The label is the title of the refusal.
bool ValidaNumero(Captura& c, Ed campo, double minimo, double& destino,
                  const std::string& etiqueta);
bool ValidaNumero(Captura& c, Ed campo, double minimo, double& destino, int etiqueta);

/// As ValidaNumero on leaving a field: a text that shows the variable as the program wrote it is
/// not read again, since a mask loses digits.
bool LeeAlSalir(Captura& c, Ed campo, double minimo, double& destino, int etiqueta);

/// A message of a file, in the language in force.
std::string TextoDeError(const Captura& c, const ErrorFichero& error);

/// A real rounded half to even, as a 32-bit integer held in a double, so that nothing overflows.
double Redondea(double x);

}  // namespace zorbin
