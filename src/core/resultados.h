// What a run leaves for its readers: the loads of a height, the ring's moments and axial forces,
// the designed reinforcement of a Caso and the warnings met on the way. Calculation makes these
// values, listings read them; no text is kept in them.
#pragma once

#include <cstdint>
#include <optional>
#include <variant>
#include <vector>

#include "base/mdRegistro.h"
#include "base/tablas.h"
#include "core/resultadoPostesado.h"
#include "core/verificacion.h"

namespace zorbin {

/// Loads of one fill height, over the external diameter.
struct Cargas {
  double Q = 0;                // adopted total vertical load [t/m2]
  double QTerraplen = 0;       // second load, origin of the lateral thrust [t/m2]
  double QTierras = 0;         // earth load of the formula that was not adopted [t/m2]
  double QMovil = 0;           // part of Q due to the concentrated load [t/m2]
  double Impacto = 0;          // impact coefficient, 0 without concentrated load [-]
  bool TerraplenRige = false;  // the embankment formula governs
};

/// One load by the method and by the full equation of equal settlement [t/m2 of De].
struct CargaContrastada {
  double metodo = 0;
  double completa = 0;
};

/// Earth loads by both ways, without concentrated load.
struct CargasContrastadas {
  CargaContrastada terraplen;                // positive projection
  std::optional<CargaContrastada> negativa;  // negative projection, of a trench under embankment
  CargaContrastada adoptada;  // the lesser of both, each way of calculating by itself
};

/// One row of the vertical load table, all in t/m2; an empty column has no value.
struct FilaCargas {
  double H;                         // fill height [m]
  std::optional<double> Zanja;      // earth load as trench
  std::optional<double> Terraplen;  // earth load as embankment
  std::optional<double> Adoptada;   // earth load adopted
  std::optional<double> Moviles;    // concentrated load
  double Total;                     // adopted total
  bool TerraplenRige;               // of a trench: the embankment formula governs
};

enum class ClaseAviso {
  RetraccionLisas,      // steel ratio above the limit for smooth bars; `valor` is the ratio
  CapasInterior,        // inner bars in more than one layer
  CapasExterior,        // outer bars in more than one layer
  FlexionSobreTope,     // outer steel by flexure above the maximum given
  NoLlegaNegativos,     // no solution in composite tension with M-
  NoLlegaAmbos,         // no solution in composite tension with M+ and M-
  MomentoTope,          // moment beyond the limit moment
  EspesorInsuficiente,  // post-tensioned: no wire takes the force, or no spirals fit
  ResistenciaInicial,   // core too weak at winding; `valor` is its stress [kp/cm2]
  CambiaAlambre,        // the verification needs another winding
  ResistenciaHormigon,  // concrete beyond 60 % of its strength
};

enum class FaseAviso { Busqueda, Final };

/// A design warning, with the place where it arose.
struct Aviso {
  ClaseAviso clase;
  int hipotesis;                // 1..5 in the reinforced design, 0..6 in the post-tensioned one
  FaseAviso fase;               // first pass over the hypotheses, or the call for the governing one
  std::optional<double> valor;  // what was compared, where there is one
  bool pantalla;                // the summary shows it; the others go only to paper
  Alambre alambre{};            // winding in hand, in the post-tensioned design
};

/// What a design tells on its way, beside its result.
struct Marcha {
  CuentaVueltas vueltas;         // of all the iterations of a run
  std::vector<Aviso> avisos;     // of the Caso in hand, in the order in which they arose
  Registro* registro = nullptr;  // debug log, none when null
};

/// Pressures of a Caso [at].
struct PresionesCaso {
  double DP = 0;   // design pressure
  double MDP = 0;  // maximum design pressure, surge included
  double STP = 0;  // system test pressure
  double PP = 0;   // factory test pressure required
};

inline constexpr int kHipotesisArmado = 5;
inline constexpr int kHipPPNeta = 1;  // the one of the factory test
inline constexpr int kTerminosOval = 12;

/// One row of `TablaHip`.
struct FilaHip {
  double AsInt = 0;         // inner area [cm2/m]
  double AsExt = 0;         // outer area [cm2/m]
  double Total = 0;         // [cm2/m]
  std::int16_t IESP = 0;    // above 0: wall too thin
  std::int16_t NESPIN = 0;  // inner spirals [1/m]
  std::int16_t NEXPEX = 0;  // outer spirals [1/m]
  double CAMISA = 0;        // sheet thickness [mm]
};

/// Hand adjustment stored for a Caso, areas in cm2/m.
struct Ajuste {
  double Camisa = 0;
  double Espiras = 0;
  double Exterior = 0;

  bool operator==(const Ajuste&) const = default;
};

/// Combined hypotheses of the reinforced design: m·t/m and t/m, tension positive.
struct Esfuerzos {
  Tabla<double, kHipotesisArmado, kSecciones> M;
  Tabla<double, kHipotesisArmado, kSecciones> N;
};

/// Steel of both faces: a sheet and bars at the inner one, bars at the outer one.
struct AceroArmado {
  double CAMISA = 0;        // sheet thickness [mm]
  double FIIN = 0;          // inner bar diameter [mm]
  std::int16_t NESPIN = 0;  // inner spirals [1/m]
  double FIEX = 0;          // outer bar diameter [mm]
  std::int16_t NEXPEX = 0;  // outer spirals [1/m]
  std::int16_t IESP = 0;    // above 0: wall too thin
};

/// Steel of a pipe without sheet as it stood before the cracking check.
struct SinFisuracion {
  double FIIN = 0;          // [mm]
  std::int16_t NESPIN = 0;  // [1/m]
  double AsInt = 0;         // provided [cm2/m]
  double FIEX = 0;          // [mm]
  std::int16_t NEXPEX = 0;  // [1/m]
  double AsExt = 0;         // provided [cm2/m]
  std::size_t avisos = 0;   // warnings of the Caso up to here
};

/// Reinforced design of one Caso. Nothing in it comes from the Caso before. Where hypothesis 1
/// governs, bars and sheet are laid out for its areas; its row of `TablaHip` holds these areas as
/// calculated, and never steel.
struct ResultadoArmado : AceroArmado {
  Esfuerzos esfuerzos;
  Lista<FilaHip, kHipotesisArmado> TablaHip;
  std::int16_t HipotesisRige = 0;
  Lista<double, kSecciones> MRige;  // moments of the governing hypothesis [m·t/m]
  Lista<double, kSecciones> NRige;  // its axial forces without the pressure term [t/m]
  double AreaCamisa = 0;            // [cm2/m]
  double AreaEspiras = 0;           // [cm2/m]
  double AreaExterior = 0;          // [cm2/m]
  double AsInt = 0;                 // final inner area [cm2/m]
  double AsExt = 0;                 // final outer area [cm2/m]
  double Total = 0;                 // [cm2/m]
  SinFisuracion sinFisuracion;      // steel before the cracking check, without sheet
  double TensionMax = 0;            // largest concrete tension of the cracking check [kp/cm2]
  double TensionAdm = 0;            // stress allowed beside it [kp/cm2]
  double TensionAdmMin = 0;         // smallest stress allowed [kp/cm2]
  double BRAZO = 0;                 // lever arm between the two layers [m]
  std::int16_t ErrorPostesado = 0;  // 0 none, 1 wall, 2 shrinkage limit, 4 limit moment
  bool MomentoTope = false;
  std::optional<Ajuste> ajuste;  // `HayAjuste` when it has a value

  bool HayAjuste() const { return ajuste.has_value(); }
};

/// Moments or axial forces of the load terms.
using TerminosCaso = Tabla<double, kTerminosOval, kSecciones>;

/// The ring under each load term, from which both designs put their hypotheses together.
struct TerminosAnillo {
  TerminosCaso MHip;  // [m·t/m]
  TerminosCaso NHip;  // [t/m]
};

/// Everything a reader may want of one Caso.
struct ResultadoCaso : TerminosAnillo {
  std::vector<Aviso> avisos;  // in the order in which they arose
  std::variant<ResultadoArmado, ResultadoPostesado> diseno;
  Verificacion verificacion;

  bool EsArmado() const { return std::holds_alternative<ResultadoArmado>(diseno); }
  const ResultadoArmado& Armado() const { return std::get<ResultadoArmado>(diseno); }
  const ResultadoPostesado& Postesado() const { return std::get<ResultadoPostesado>(diseno); }
};

}  // namespace zorbin
