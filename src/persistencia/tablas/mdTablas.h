// The manufacturers' tables, three fixed-column text files in one folder that are read once at
// start: TUB#GM standard dimensions, TUB#ES possible reinforcements, TUB#PM one parameter. The
// names are looked up without regard to case.
#pragma once

#include <array>
#include <cstdint>
#include <filesystem>
#include <vector>

#include "persistencia/registros/mdRegistros.h"

namespace zorbin {

inline constexpr int kMaxDimensiones = 100;  // rows of TUB#GM
inline constexpr int kMaxArmaduras = 100;    // lines of TUB#ES
inline constexpr int kGruposDimensiones = 5;

/// Inner cover, outer cover and thickness [mm] of a pipe of one family; an inner cover of 0 says
/// that the diameter is not made in it.
struct DimensionesGrupo {
  int Reci = 0;
  int Rece = 0;
  int Esp = 0;
  char marca = ' ';  // "*" recommended

  bool operator==(const DimensionesGrupo&) const = default;
};

/// A row of TUB#GM. The groups are, in order, those of 1100; 1210 and 1220; 2100; 2211 and 2212;
/// 2221 and 2222.
struct FilaDimensiones {
  int Diametro = 0;  // internal [mm]
  std::array<DimensionesGrupo, kGruposDimensiones> grupos;
};

struct TablasCatalogo {
  std::vector<FilaDimensiones> TablaDimensiones;
  std::vector<double> TablaArmaduras;  // [cm2/m]
  std::int16_t MaxAnchoZanja = 0;      // widest trench, times the internal diameter; 0: no check

  int NumDiametros() const { return static_cast<int>(TablaDimensiones.size()); }
  int NumArmaduras() const { return static_cast<int>(TablaArmaduras.size()); }
};

/// Reads the three files of a folder. TUB#GM must be there; without TUB#ES, or with an empty one,
/// the series is 5, 10 ... 500; without TUB#PM there is no check of the trench.
///
/// TUB#GM: three headings, then rows of 79 characters: the diameter [4], and five times a mark [1]
/// and three values [4] with a separator between them. The mark belongs to the group after it. A
/// blank value is 0, and so is one beyond the end of a short row. TUB#ES: an integer a line.
/// TUB#PM: the first two characters of a line, where not blank; the last such line counts.
/// @throws ErrorFichero naming file and line
TablasCatalogo LeeTablas(const std::filesystem::path& carpeta);

}  // namespace zorbin
