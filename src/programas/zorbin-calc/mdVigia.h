// Watches a calculation for the person at the terminal.
#pragma once

#include <chrono>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "base/mdCatalogo.h"
#include "calculo/corrida/mdCalculaTramo.h"
#include "listados/papel/mdFormato.h"
#include "persistencia/zrb/mdZrb.h"

namespace zorbin {

/// One line on standard error, with the name of the program before it.
void Queja(const std::string& texto);

/// Positions of the Tramos with these numbers, none for the whole Obra. No value, and said on
/// standard error, where the list has not one of them.
std::optional<std::vector<int>> BuscaTramos(const std::vector<int>& numeros,
                                            const std::filesystem::path& obra,
                                            const ListaTramos& lista, const Catalogo& textos);

/// Tells what goes wrong with the runs of an Obra on standard error, and how far they have come
/// where they take over a second and standard error is a terminal.
class Vigia {
 public:
  Vigia(std::string fichero, const Catalogo& textos, EstiloNumeros estilo);
  ~Vigia();
  Vigia(const Vigia&) = delete;
  Vigia& operator=(const Vigia&) = delete;

  /// What a run is to ask before each Caso, with the number of its Tramo; it never ends it. None
  /// where nobody looks.
  std::function<bool(int NumeroTramo, const AvanceCorrida&)> Progreso();
  /// A run ended. `numero` is the text of the Tramo in the list.
  void Acaba(const ResultadoTramo& resultado, const std::string& numero);

  bool hayFallo() const { return hayFallo_; }

 private:
  using Reloj = std::chrono::steady_clock;

  std::string fichero_;
  const Catalogo& textos_;
  EstiloNumeros estilo_;
  bool hayFallo_ = false;
  bool hayProgreso_ = false;
  Reloj::time_point siguiente_;

  void MuestraProgreso(int NumeroTramo, int caso);
  void BorraProgreso();
};

}  // namespace zorbin
