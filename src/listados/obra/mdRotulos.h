// Captions of the codes in the data block of a Caso. A code without caption reads as an empty
// text.
#pragma once

#include <cstdint>
#include <string>

#include "base/mdCatalogo.h"
#include "core/resultadoPostesado.h"
#include "listados/papel/mdFormato.h"

namespace zorbin {

std::string TextoDeCamisa(std::int16_t Tipologia, const Catalogo& textos);
std::string TextoDeCamisaTabular(std::int16_t Tipologia, const Catalogo& textos);
std::string TextoDeCuna(std::int16_t TipoCuna, const Catalogo& textos);  // value of the run, 1..4
std::string TextoDeColocacion(std::int16_t TipoApoyo, const Catalogo& textos);
std::string TextoDeCarga(std::int16_t ICar, const Catalogo& textos);
std::string TextoDeHipotesis(int h, const Catalogo& textos);  // reinforced design, 1..5

/// Units of moment and axial force under the three sections of a table of the ring, each in
/// `ancho` columns.
std::string UnidadesDelAnillo(bool si, int ancho);

/// Factory test pressure obtained [at], or words where it is no pressure.
std::string TextoPP(const ResultadoPostesado& r, double PP, const Catalogo& textos,
                    const EstiloNumeros& estilo);

/// "PP required ..., obtained ..." of a Caso, and what the obtained one rests on where that is
/// another pass than the one of MDP with the final wire; empty otherwise.
std::string TextoPruebaFabrica(const ResultadoPostesado& r, double exigida, const Catalogo& textos,
                               const EstiloNumeros& estilo);
std::string TextoPasadaPP(const ResultadoPostesado& r, const Catalogo& textos);

}  // namespace zorbin
