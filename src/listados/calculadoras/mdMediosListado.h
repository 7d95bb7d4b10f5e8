// Text of an analysis of aggressive media, for the result box of the screen and for paper.
#pragma once

#include <string>
#include <vector>

#include "base/mdCatalogo.h"
#include "calculo/protecciones/mdMedios.h"
#include "listados/papel/mdFormato.h"

namespace zorbin {

/// A line of the analysis; an empty text is an empty line.
struct LineaMedios {
  std::string texto;
  int sangria = 0;        // blanks before it on the screen [columns]
  bool negrita = false;   // bold on paper
  bool partible = false;  // may be split on paper
};

/// The lines in order.
std::vector<LineaMedios> LineasMedios(const ResultadoMedios& r, const Catalogo& catalogo,
                                      const EstiloNumeros& estilo);

/// The text of `edResultadoAgres`: each line ends in the character 10.
std::string TextoMedios(const ResultadoMedios& r, const Catalogo& catalogo,
                        const EstiloNumeros& estilo);

}  // namespace zorbin
