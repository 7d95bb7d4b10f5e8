// The summary of a calculation as the summary screen shows it.
#pragma once

#include "base/mdCatalogo.h"
#include "listados/obra/mdListado.h"
#include "listados/obra/mdPantalla.h"
#include "listados/papel/mdFormato.h"

namespace zorbin {

/// Writes a block for each Caso: progress line, warnings, data, moments and axial forces of the
/// hypotheses, reinforcement.
class Resumen : public Listado {
 public:
  Resumen(Pantalla& pantalla, const Catalogo& textos, EstiloNumeros estilo)
      : pantalla_(pantalla), textos_(textos), estilo_(estilo) {}

  bool Tramo(const ResultadoTramo& resultado, int posicion, const std::string& numero,
             const SigueListado& sigue) override;

 private:
  Pantalla& pantalla_;
  const Catalogo& textos_;
  EstiloNumeros estilo_;

  void Linea(std::string_view texto) { pantalla_.EscribePantalla(0, texto, 1); }
  void Progreso(const zorbin::Tramo& t, int NumCaso, double DP, double MDP);
  void Caso(const VistaCaso& v);
  void Avisos(const VistaCaso& v);
  void ListaCasoArmado(const VistaCaso& v);
  void TablaHipotesis(const VistaCaso& v);
  void Armadura(const VistaCaso& v);
  void Postesado(const VistaCaso& v);
  void ListadoHipotesis(bool si, const HipotesisPostesada& h);
  void ListadoAlambre(const VistaCaso& v);
  std::string DatoEnMm(int rotulo, double metros, int decimales) const;
};

}  // namespace zorbin
