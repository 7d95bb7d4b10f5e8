// The capture: the screen model and the state that it feeds, and the helpers that every rule of
// the fields uses. The state holds the units of the Obra's system throughout.
//
// An edit of a person raises `ObraEditada` or `TramoEditado`; what the program writes does not.
#pragma once

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

namespace zorbin {

/// No quantity that a person types is larger, in any unit. With what is derived from it, it still
/// fits in the file.
inline constexpr double kMayorTecleado = 1e9;

/// Values of EstadoCaptura.
inline constexpr std::string_view kSinTramo = " ";
inline constexpr std::string_view kAltas = "ALTAS";
inline constexpr std::string_view kModificaciones = "MODIFICACIONES";

/// The last refusal of a rule: the field, what it held, and what was said.
struct Falta {
  Ed campo = Ed::edObra;
  std::string valor;
  std::string titulo;
  std::string mensaje;
};

/// What leaving a field comes to.
enum class SalidaCampo {
  Pasa,    // the focus may go where it was going
  Queda,   // refused: it stays
  VaOtro,  // it goes to the field that the model names in `foco`
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
  ListaTramos lista;
  int UltimoTramo = 0;
  std::optional<FicheroRegistros> fichero;
  std::string EstadoCaptura{kSinTramo};
  bool ObraCargada = false;
  bool ObraEditada = false;
  bool TramoEditado = false;
  bool AjustesPorBorrar = false;  // a change could not void the hand adjustments of the Tramo
  bool LeyendoDatos = false;      // fields are being filled by the program: rules of change are off
  bool AnchoZanjaAuto = false;    // B0 follows De
  bool SFckEditado = false;       // edSFck changed since it took the focus
  double FykAnterior = 0;         // value of edFyk on entering it
  bool EsComercial = false;       // the diameter is in the catalogue
  bool SinAvisoGeom = false;      // the recommended dimensions are not asked about
  double EspRecomMin = 0;         // band of the thickness [cm]; 0 and 0 for none
  double EspRecomMax = 0;
  bool BandaReci = false;  // the label of the cover shows its band
  bool BandaRece = false;
  std::optional<Falta> falta;

  /// The Obra is open for reading: another program has it, or its rights forbid writing.
  bool SoloLectura() const { return fichero && fichero->SoloLectura(); }
  bool EnCambio() const { return ObraEditada || TramoEditado; }
  bool EsSI() const { return e.obra.EsSI(); }
  bool EnAltas() const { return EstadoCaptura == kAltas; }
  bool EnModificaciones() const { return EstadoCaptura == kModificaciones; }
  bool SinTramoEnMano() const { return EstadoCaptura == kSinTramo; }

  Control& operator[](Ed id) { return pantalla[id]; }
  const Control& operator[](Ed id) const { return pantalla[id]; }
};

/// There are no unsaved edits from now on.
void OlvidaCambios(Captura& c);

// ---- Texts

const std::string& Texto(const Captura& c, int entrada);

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

/// Shows a message and keeps it as the refusal of a field. An empty title is the application's.
void Rechaza(Captura& c, Ed campo, const std::string& texto, const std::string& titulo = {});

/// Brings the page of a field to the front and gives it the focus.
void VaA(Captura& c, Ed campo);
/// As VaA for a field whose page is not to be brought wholly, but only as far as `pagina` says.
void MuestraPagina(Captura& c, const Paginas& pagina);

/// Why what was typed is no quantity: it is no number, or is beyond kMayorTecleado.
std::string TextoDeFalta(const Captura& c, const Tecleado& leido);

/// Reads a field into `destino`: an empty text is 0. A text that is no number (or is beyond
/// kMayorTecleado) is refused and leaves `destino`; a value below the minimum is refused and is
/// written all the same. The label is the title of the refusal.
bool ValidaNumero(Captura& c, Ed campo, double minimo, double& destino,
                  const std::string& etiqueta);
bool ValidaNumero(Captura& c, Ed campo, double minimo, double& destino, int etiqueta);

/// As ValidaNumero on leaving a field: a text that shows the variable as the program wrote it is
/// not read again, since a mask loses digits.
bool LeeAlSalir(Captura& c, Ed campo, double minimo, double& destino, int etiqueta);

/// A real rounded half to even, as a 32-bit integer held in a double, so that nothing overflows.
double Redondea(double x);

}  // namespace zorbin
