// The fields of the capture screen, in tab order: each refers to the row of its datum. The rules of
// the capture work from this table.
#pragma once

#include <optional>
#include <span>
#include <string_view>

#include "core/campos/mdDatos.h"

namespace zorbin {

/// What is known of the field of a screen that shows no datum of its own.
inline constexpr Ficha kSinFicha{};

/// A field, and the datum that it shows.
struct FilaCampo : Campo {
  const Ficha* ficha = &kSinFicha;
  double Obra::*obra = nullptr;           // variable of a number of the Obra
  double Tramo::*tramo = nullptr;         // variable of a number of the Tramo
  std::int16_t Tramo::*codigo = nullptr;  // variable of a list of the Tramo

  /// Value of a blank field.
  std::optional<double> EnBlanco(bool si) const { return ficha->Defecto(si); }
};

/// The whole table, in the order of Ed.
std::span<const FilaCampo> TablaCampos();

const FilaCampo& Fila(Ed id);

/// Whether a field repeats one of another page.
bool EsCopia(Ed id);

/// Field by its name. No value for an unknown one.
std::optional<Ed> CampoPorNombre(std::string_view nombre);

}  // namespace zorbin
