// The summary of a calculation as the summary screen shows it.
#pragma once

#include <span>

#include "base/mdCatalogo.h"
#include "listados/obra/mdListado.h"
#include "listados/obra/mdPantalla.h"
#include "listados/obra/mdVeredictoCaso.h"
#include "listados/papel/mdFormato.h"

namespace zorbin {

/// Writes a block for each Caso: progress line, warnings, data, moments and axial forces of the
/// hypotheses, reinforcement, what is to be built and the verdict.
class Resumen : public Listado {
 public:
  Resumen(Pantalla& pantalla, const Catalogo& textos, EstiloNumeros estilo)
      : pantalla_(pantalla), textos_(textos), estilo_(estilo), palabras_(textos, estilo) {}

  /// The first block: a line a Tramo, with its worst Caso. @param numeros  of the Tramos in the
  /// list
  void Veredictos(std::span<const ResultadoTramo> tramos, std::span<const std::string> numeros);

  bool Tramo(const ResultadoTramo& resultado, int posicion, const std::string& numero,
             const SigueListado& sigue) override;

  // ---- The same in parts, for whoever does not want it all: what comes before the Casos, one of
  // them, and what comes after them.

  void Cabeza(const ResultadoTramo& resultado);
  void UnCaso(const ResultadoTramo& resultado, std::size_t fila);
  void Cola(const ResultadoTramo& resultado);

 private:
  Pantalla& pantalla_;
  const Catalogo& textos_;
  EstiloNumeros estilo_;
  PalabrasCaso palabras_;

  void Veredicto(const ResultadoTramo& r, const std::string& numero);
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
