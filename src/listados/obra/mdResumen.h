// The summary of a calculation as the summary screen shows it.
#pragma once

#include "base/mdCatalogo.h"
#include "calculo/corrida/mdCorrida.h"
#include "listados/obra/mdPantalla.h"
#include "listados/papel/mdFormato.h"

namespace zorbin {

/// Writes a block for each Caso: progress line, warnings, data, moments and axial forces of the
/// hypotheses, reinforcement.
class Resumen : public OyenteCorrida {
 public:
  Resumen(Pantalla& pantalla, const Catalogo& textos, EstiloNumeros estilo)
      : pantalla_(pantalla), textos_(textos), estilo_(estilo) {}

  void Progreso(const EstadoCalculo& e) override;
  void Caso(const EstadoCalculo& e) override;

 private:
  Pantalla& pantalla_;
  const Catalogo& textos_;
  EstiloNumeros estilo_;

  void Linea(std::string_view texto) { pantalla_.EscribePantalla(0, texto, 1); }
  void Avisos(const EstadoCalculo& e);
  void ListaCasoArmado(const EstadoCalculo& e);
  void TablaHipotesis(const EstadoCalculo& e);
  void Armadura(const EstadoCalculo& e);
  void Postesado(const EstadoCalculo& e);
  void ListadoHipotesis(const EstadoCalculo& e, const HipotesisPostesada& h);
  void ListadoAlambre(const EstadoCalculo& e);
  std::string DatoEnMm(int rotulo, double metros, int decimales) const;
};

}  // namespace zorbin
