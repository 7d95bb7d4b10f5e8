// All Casos of all Tramos as one table, of which a part is shown in an order. A Caso has a number
// in it, from 0, that neither order nor filter changes.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "listados/datos/mdColumnas.h"

namespace zorbin {

class CasosObra {
 public:
  /// Asked now and then, with the part done, 0 to 1, whether to go on.
  using Sigue = std::function<bool(double)>;

  explicit CasosObra(std::vector<ResultadoTramo> tramos = {});

  const std::vector<ResultadoTramo>& Tramos() const { return tramos_; }
  std::size_t Cuantos() const { return desde_.back(); }
  /// Place of the Tramo of a Caso, from 0.
  std::size_t LugarTramo(std::size_t caso) const;
  const ResultadoTramo& Tramo(std::size_t caso) const { return tramos_[LugarTramo(caso)]; }
  const FilaCaso& Fila(std::size_t caso) const;
  /// Of a Tramo, by its place. @return none of one without rows
  std::optional<std::size_t> Peor(std::size_t tramo) const { return peores_[tramo]; }

  /// A column of the whole Caso has no values before they are calculated.
  double Valor(std::size_t caso, Columna c) const;
  std::string Texto(std::size_t caso, Columna c, const PalabrasDibujo& palabras) const;

  /// Values of the columns of the whole Caso. @return null where whoever is asked says no
  using Enteras = std::shared_ptr<const std::vector<ValoresEnteros>>;
  Enteras CalculaEnteras(const Sigue& sigue) const;
  bool TieneEnteras() const { return enteras_ != nullptr; }
  /// Those of a Caso; null before they are calculated.
  const ValoresEnteros* EnterasDe(std::size_t caso) const {
    return enteras_ == nullptr ? nullptr : &(*enteras_)[caso];
  }
  void PonEnteras(Enteras enteras) { enteras_ = std::move(enteras); }

 private:
  std::vector<ResultadoTramo> tramos_;
  std::vector<std::size_t> desde_;  // first Caso of each Tramo, and their number
  std::vector<std::optional<std::size_t>> peores_;
  Enteras enteras_;
};

/// What is shown, and in which order.
struct VistaCasos {
  std::optional<Columna> orden;  // none: as they were calculated
  bool alReves = false;
  std::string texto;                 // in any of `columnas`, whatever the case of its letters
  std::vector<Columna> columnas;     // those shown
  std::optional<std::size_t> tramo;  // place of the only one shown
  std::optional<Veredicto> veredicto;
  int hipotesis = 0;  // that governs; 0 for any
  bool soloPeores = false;
};

/// The Casos to show, in their order; those without a value of it at the end. Casos of equal values
/// keep their order.
/// @return none where whoever is asked says no
std::optional<std::vector<std::uint32_t>> Ordena(const CasosObra& casos, const VistaCasos& vista,
                                                 const PalabrasDibujo& palabras,
                                                 const std::function<bool()>& sigue = {});

/// Casos as text with tabulators between the columns, titles and units first. A tabulator or line
/// break within a text becomes a blank.
std::string TextoTabulado(const CasosObra& casos, const std::vector<std::uint32_t>& cuales,
                          const std::vector<Columna>& columnas, const PalabrasDibujo& palabras);

}  // namespace zorbin
