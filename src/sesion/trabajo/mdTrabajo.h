// The work behind "Calcular el Tramo" and "Imprimir Obra": a run over the data of the capture, once
// for the screen, as the text of its summary, and again for paper, as the sheets of a listing.
//
// A run works on a copy of the data, so that nothing of the capture changes however it ends: the
// units and values on the screen are those a person typed. Nothing carries over from one call to
// the next, nor from Tramo to Tramo of a whole Obra.
#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "listados/obra/mdTipoListado.h"
#include "persistencia/disco/mdLog.h"
#include "sesion/captura/mdCaptura.h"

namespace zorbin {

/// How far a run has come. A Caso is about to be calculated.
struct Avance {
  int tramo = 0;       // as the listing numbers it
  int caso = 0;        // of this Tramo, from 1
  int casos = 0;       // expected of it; never below `caso`
  int posicion = 1;    // of this Tramo among those of the run, from 1
  int posiciones = 1;  // Tramos of the run
};

/// Asked before each Caso whether the run goes on. false ends it.
using Sigue = std::function<bool(const Avance&)>;

struct MediosTrabajo {
  Sigue sigue = {};                                      // none: the run goes to its end
  std::filesystem::path registros = CarpetaRegistros();  // folder of the debug log
  Fecha fecha = Ahora();                                 // of the page heads
};

enum class FinTrabajo {
  Completo,   // every Tramo was run, with arithmetic failures or without
  NoEmpieza,  // refused before the first Caso; why has been shown
  Detenido,   // a Tramo of the Obra was refused; those before it are done
  Cancelado,  // whoever was asked said no
};

struct ResultadoTrabajo {
  FinTrabajo fin = FinTrabajo::Completo;
  std::string resumen;              // text of the summary; empty for a listing
  std::vector<std::string> fallos;  // arithmetic failures, each with its place, a line each
  std::string detenido;             // which Tramo was refused, and why
  std::string aviso;                // debug log not written, adjustments not read; else empty
  bool hayPostesado = false;        // a post-tensioned Tramo was run
};

/// mnCalculaTramo, for the screen: validates Obra and Tramo in hand with messages, and runs it.
ResultadoTrabajo ResumeTramo(Captura& c, const MediosTrabajo& medios);

/// MnImprimir, for the screen: refuses unsaved edits, validates the Obra, and takes its Tramos from
/// the file one after another, each validated without moving the screen. Stops at the first that is
/// refused (its message has been shown). The last one taken stays on the screen, being modified:
/// whoever shows the capture has to draw it again, whatever the result.
ResultadoTrabajo ResumeObra(Captura& c, const MediosTrabajo& medios);

/// The same runs for paper. The document is ended, so that what was done comes out, unless the run
/// was cancelled: then the last sheet is missing.
ResultadoTrabajo ListaTramo(const Captura& c, TipoListado tipo, DestinoHojas& hojas,
                            const MediosTrabajo& medios);
ResultadoTrabajo ListaObra(Captura& c, TipoListado tipo, DestinoHojas& hojas,
                           const MediosTrabajo& medios);

}  // namespace zorbin
