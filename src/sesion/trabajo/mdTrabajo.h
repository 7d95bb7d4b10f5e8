// The work behind "Calcular el Tramo" and "Imprimir Obra", in three steps. What is to be calculated
// is taken from the capture, with every fault that it has; it is calculated; and from the
// results come the sheets of a listing, and the summary. Only the first step knows the
// capture: the others have values of their own, and may go on another thread.
#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "calculo/corrida/mdCalculaObra.h"
#include "core/resultado.h"
#include "listados/obra/mdTipoListado.h"
#include "persistencia/disco/mdLog.h"
#include "sesion/captura/mdCaptura.h"

namespace zorbin {

/// A Tramo to be calculated.
struct TramoEncargado {
  DatosTramo datos;
  std::string numero;  // its text in the list
  int id = 0;          // of the Tramo in the capture
};

/// What is to be calculated, and in which words its results are told.
struct Encargo {
  std::vector<TramoEncargado> tramos;
  Catalogo textos;
  EstiloNumeros estilo;
  std::string fichero;     // name of that of the Obra
  std::string sinAjustes;  // why its hand adjustments were refused; empty where they were not
  std::vector<std::string> rechazados;  // Tramos with faults, each with its first one
};

/// mnCalculaTramo: the Tramo in hand. Its faults, and those of the Obra, are listed in `faltas`,
/// and the first one leads to its field.
/// @return nothing where there are some, or no file was given to an Obra without one
std::optional<Encargo> EncargaTramo(Captura& c);

/// MnImprimir: all the Tramos as they are in memory. One with faults is left out and named.
/// @return nothing where the Obra has faults or no Tramos; why has been shown
std::optional<Encargo> EncargaObra(Captura& c);

/// The same to look at, in the language of the screens: nothing is asked, saved or led to. Tramos
/// with faults are left out and named; where the Obra has some, no Tramo is left.
Encargo EncargaParaVer(const Captura& c);

/// How far a calculation has come. A Caso is about to be calculated, or written.
struct Avance {
  int tramo = 0;       // as the listing numbers it
  int caso = 0;        // of this Tramo, from 1
  int casos = 0;       // expected of it; never below `caso`
  int posicion = 1;    // of this Tramo among those of the calculation, from 1
  int posiciones = 1;  // Tramos of the calculation
};

/// Asked before each Caso whether the work goes on. false ends it.
using Sigue = std::function<bool(const Avance&)>;

enum class FinTrabajo {
  Completo,   // every Tramo was calculated, with arithmetic failures or without
  Cancelado,  // whoever was asked said no
};

/// What came of it.
struct Calculo {
  Encargo encargo;  // its Tramos have moved to the results
  FinTrabajo fin = FinTrabajo::Completo;
  std::vector<ResultadoTramo> tramos;
  std::vector<std::string> numeros;  // their texts in the list
  std::vector<int> ids;              // in the capture
  std::vector<std::string> fallos;   // of each; empty without a failure
  Avance cancelado;                  // where it stood when it was given up
  std::string sinRegistro;           // the debug log that could not be written; else empty

  bool HayPostesado() const;
  /// Arithmetic failures, each with its place, a line each.
  std::vector<std::string> Fallos() const;
  /// Debug log not written, adjustments not read; empty for neither.
  std::string Aviso() const;
  /// A Caso that cannot be written, since a number of it is none, ends its Tramo as one that
  /// cannot be calculated does. @param fila  of the Tramo `i`, both from 0
  void Rompe(std::size_t i, std::size_t fila, const ErrorEjecucion& error);
};

/// Calculates what was asked for. @param registros  folder of the debug log
/// @param hilos  threads; with more than one, `sigue` hears of the Tramo whose result comes next
Calculo CalculaEncargo(Encargo encargo, const Sigue& sigue = {},
                       const std::filesystem::path& registros = CarpetaPropia(),
                       int hilos = HilosDeLaMaquina());

/// The sheets of a listing. @param fecha  of the page heads
void EscribeListado(const Calculo& calculo, TipoListado tipo, DestinoHojas& hojas,
                    const Fecha& fecha);

}  // namespace zorbin
