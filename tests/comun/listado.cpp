#include "comun/listado.h"

#include <memory>
#include <sstream>
#include <utility>

#include "base/mdCarpetas.h"
#include "listados/obra/mdListadoNormal.h"
#include "listados/obra/mdListadoPantalla.h"
#include "listados/obra/mdListadoTabular.h"
#include "listados/papel/mdHojasTexto.h"

namespace zorbin::pruebas {

namespace {

std::unique_ptr<Listado> Crea(const std::string& clase, const MediosPapel& medios) {
  if (clase == "tabular") return std::make_unique<ListadoTabular>(medios);
  if (clase == "pantalla") return std::make_unique<ListadoPantalla>(medios);
  return std::make_unique<ListadoNormal>(medios, clase == "lame");
}

struct Guarda : DestinoHojas {
  std::vector<Hoja> hojas;
  void RecibeHoja(const Hoja& h) override { hojas.push_back(h); }
};

void Lista(DestinoHojas& hojas, const std::vector<EstadoCalculo>& tramos, const std::string& clase,
           std::int16_t idioma, char separador, const std::vector<EntradaAjuste>& ajustes = {}) {
  Catalogo textos = Catalogo::Lee(CarpetaRecursos() / "textos");
  textos.PonIdioma(idioma);
  Papel papel(hojas, clase == "tabular" ? Orientacion::Apaisada : Orientacion::Vertical);
  const EstiloNumeros estilo{tramos.at(0).obra.EsSI(), separador};
  const auto listado = Crea(clase, {papel, textos, estilo, {"21/11/2026", "09:30:00"}});
  for (const auto& e : tramos) {
    const auto numero = e.tramo.NumeroTramo;
    listado->Tramo(ResultadoDe(e, ajustes), numero, std::to_string(numero), {});
  }
  papel.FinDocumento();
}

}  // namespace

ResultadoTramo ResultadoDe(const EstadoCalculo& e, std::vector<EntradaAjuste> ajustes) {
  const auto datos = DatosDeCalculo(e.obra, e.tramo, std::move(ajustes));
  return CalculaTramo(datos, RangoDe(datos));
}

std::string ListadoDe(const std::vector<EstadoCalculo>& tramos, const std::string& clase,
                      std::int16_t idioma, char separador,
                      const std::vector<EntradaAjuste>& ajustes) {
  std::ostringstream salida;
  HojasTexto hojas(salida);
  Lista(hojas, tramos, clase, idioma, separador, ajustes);
  return salida.str();
}

std::vector<Hoja> HojasDe(const std::vector<EstadoCalculo>& tramos, const std::string& clase,
                          std::int16_t idioma, char separador) {
  Guarda guarda;
  Lista(guarda, tramos, clase, idioma, separador);
  return guarda.hojas;
}

}  // namespace zorbin::pruebas
