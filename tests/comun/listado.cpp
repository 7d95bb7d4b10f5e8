#include "comun/listado.h"

#include <sstream>
#include <utility>

#include "base/mdCarpetas.h"
#include "listados/obra/mdDocumento.h"
#include "listados/papel/mdHojasTexto.h"

namespace zorbin::pruebas {

namespace {

TipoListado TipoDe(const std::string& clase) {
  if (clase == "tabular") return TipoListado::Tabular;
  if (clase == "pantalla") return TipoListado::Pantalla;
  return clase == "lame" ? TipoListado::Lame : TipoListado::Normal;
}

struct Guarda : DestinoHojas {
  std::vector<Hoja> hojas;
  void RecibeHoja(const Hoja& h) override { hojas.push_back(h); }
};

void Lista(DestinoHojas& hojas, const std::vector<EstadoCalculo>& tramos, const std::string& clase,
           std::int16_t idioma, char separador, const std::vector<EntradaAjuste>& ajustes = {}) {
  Catalogo textos = Catalogo::Lee(CarpetaRecursos() / "textos");
  textos.PonIdioma(idioma);
  const auto& obra = tramos.at(0).obra;
  const DocumentoObra documento(TipoDe(clase),
                                {obra.NombreObra,
                                 obra.Cliente,
                                 "acequia.zrb",
                                 "ZORBIN 1.2.3",
                                 textos,
                                 {obra.EsSI(), separador},
                                 {"21/11/2026", "09:30:00"}},
                                [&](Listado& listado) {
                                  for (const auto& e : tramos) {
                                    const auto numero = e.tramo.NumeroTramo;
                                    listado.Tramo(ResultadoDe(e, ajustes), numero,
                                                  std::to_string(numero), {});
                                  }
                                });
  documento.Escribe(hojas);
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
