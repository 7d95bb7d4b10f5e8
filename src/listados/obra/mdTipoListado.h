// The kinds of listing that a person chooses from.
#pragma once

#include <memory>

#include "listados/obra/mdListadoPapel.h"

namespace zorbin {

/// In the order in which they are offered. "Coef. Lamé" is "Normal" with the Lamé coefficients of
/// post-tensioned Tramos added.
enum class TipoListado : int { Normal, Tabular, Pantalla, Lame };
inline constexpr int kTiposListado = static_cast<int>(TipoListado::Lame) + 1;

constexpr Orientacion OrientacionDe(TipoListado tipo) {
  return tipo == TipoListado::Tabular ? Orientacion::Apaisada : Orientacion::Vertical;
}

/// A listing that writes one document from its first page on.
std::unique_ptr<Listado> CreaListado(TipoListado tipo, const MediosPapel& medios);

}  // namespace zorbin
