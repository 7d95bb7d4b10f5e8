#include "comun/listado.h"

#include <array>
#include <memory>
#include <sstream>

#include "core/mdUnidades.h"
#include "listados/mdHojasTexto.h"
#include "listados/mdListadoNormal.h"
#include "listados/mdListadoPantalla.h"
#include "listados/mdListadoTabular.h"
#include "recursos/mdCarpetas.h"

namespace zorbin::pruebas {

namespace {

std::unique_ptr<OyenteObra> Crea(const std::string& clase, const MediosPapel& medios) {
  if (clase == "tabular") return std::make_unique<ListadoTabular>(medios);
  if (clase == "pantalla") return std::make_unique<ListadoPantalla>(medios);
  return std::make_unique<ListadoNormal>(medios, clase == "lame");
}

}  // namespace

std::string ListadoDe(const std::vector<EstadoCalculo>& tramos, const std::string& clase,
                      std::int16_t idioma, char separador) {
  Catalogo textos = Catalogo::Lee(CarpetaRecursos() / "textos");
  textos.PonIdioma(idioma);
  std::ostringstream salida;
  HojasTexto hojas(salida);
  Papel papel(hojas, clase == "tabular" ? Orientacion::Apaisada : Orientacion::Vertical);
  const EstiloNumeros estilo{tramos.at(0).obra.EsSI(), separador};
  const auto listado = Crea(clase, {papel, textos, estilo, {"21/11/2026", "09:30:00"}});
  const std::array<OyenteCorrida*, 1> oyentes{listado.get()};
  EstadoCalculo e;
  for (const auto& t : tramos) {
    const ResultadoCaso anterior = e.caso;
    e = t;
    e.caso = anterior;
    const EnUnidadesDeCalculo unidades(e);
    CalculaCasos(e, kSinForzar, kSinForzar, oyentes);
  }
  papel.FinDocumento();
  return salida.str();
}

}  // namespace zorbin::pruebas
