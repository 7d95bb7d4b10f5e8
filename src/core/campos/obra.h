// The data of an Obra. What is known of each stands in its row of the table (mdTablaDatos.h).
//
// Fields marked [*] hold the unit of the Obra's system: MPa under "SI", at or kp/cm2 or t/m2 under
// "MKS". Data taken to calculation units hold the MKS value whatever the system; the column tells
// that unit.
#pragma once

#include <cstdint>
#include <string>

namespace zorbin {

/// Data of the project, common to all its Tramos.
struct Obra {
  std::int16_t Idioma = 1;              // 1 Spanish, 2 English, 3 Catalan, 4 Portuguese, 5 French
  std::int16_t IdiomaOffset = 0;        // (Idioma - 1) * 5000
  std::string SisUnid = "SI";           // "SI" or "MKS"
  bool GolpeCalculado = false;          // surge calculated, not estimated; decides STP
  std::string NombreObra;               // description, several lines joined by CR LF
  std::string Cliente;                  //
  double Prs1 = 0, Prs2 = 0, Prs3 = 0;  // [*] first and last DP, increment of MDP [at]
  double PrsM1 = 0, PrsM2 = 0;          // [*] first and last MDP [at]
  double Alt1 = 0, Alt2 = 0, Alt3 = 0;  // first and last fill height, increment [m]
  std::string RutaApp;                  // data folder, with its closing separator
  std::string NombreFichero = " ";      // project file; a single blank means none
  bool ObraAbierta = false;             // a file is attached

  bool EsSI() const { return SisUnid == "SI"; }
  bool operator==(const Obra&) const = default;
};

}  // namespace zorbin
