// Watches a calculation for the person at the terminal.
#pragma once

#include <chrono>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "base/mdCatalogo.h"
#include "listados/obra/mdFlujo.h"
#include "listados/papel/mdFormato.h"

namespace zorbin {

/// One line on standard error, with the name of the program before it.
void Queja(const std::string& texto);

/// Positions of the Tramos with these numbers, none for the whole Obra. No value, and said on
/// standard error, where the list has not one of them.
std::optional<std::vector<int>> BuscaTramos(const std::vector<int>& numeros,
                                            const std::filesystem::path& obra,
                                            const ListaTramos& lista, const Catalogo& textos);

/// Tells failures on standard error, and progress where a run takes over a second and standard
/// error is a terminal; hands everything on to the reader.
class Vigia : public OyenteObra {
 public:
  Vigia(OyenteObra& lector, std::string fichero, const Catalogo& textos, EstiloNumeros estilo);
  ~Vigia() override;

  bool hayFallo() const { return hayFallo_; }

  void EmpiezaTramo(const EstadoCalculo& e, int posicion, const std::string& numero) override;
  void Progreso(const EstadoCalculo& e) override;
  void Cabecera(const EstadoCalculo& e) override { lector_.Cabecera(e); }
  void Caso(const EstadoCalculo& e) override { lector_.Caso(e); }
  void FinAltura(const EstadoCalculo& e) override { lector_.FinAltura(e); }
  void FinCorrida(const EstadoCalculo& e) override;
  void AcabaTramo(const EstadoCalculo& e, const ErrorCorrida* fallo) override;

 private:
  using Reloj = std::chrono::steady_clock;

  OyenteObra& lector_;
  std::string fichero_;
  std::string tramo_;  // number of the one in hand
  const Catalogo& textos_;
  EstiloNumeros estilo_;
  bool hayFallo_ = false;
  bool terminal_;
  bool hayProgreso_ = false;
  Reloj::time_point siguiente_;

  void BorraProgreso();
};

}  // namespace zorbin
