#include "programas/zorbin-calc/mdListaAjustes.h"

#include <algorithm>
#include <cmath>
#include <nlohmann/json.hpp>
#include <tuple>

#include "base/mdTextos.h"
#include "base/textos.h"
#include "listados/papel/mdFormato.h"
#include "persistencia/dpe/mdDpe.h"
#include "persistencia/proyecto/mdProyecto.h"
#include "programas/zorbin-calc/mdPalabras.h"
#include "programas/zorbin-calc/mdRescata.h"
#include "programas/zorbin-calc/mdSalida.h"
#include "programas/zorbin-calc/mdVigia.h"

namespace zorbin {

namespace {

using Json = nlohmann::ordered_json;

struct Ajustado {
  int entrada;  // in the file, from 1
  int tramo;    // number
  bool enLaObra;
  EntradaAjuste caso;

  double Total() const { return caso.areas.Camisa + caso.areas.Espiras + caso.areas.Exterior; }
};

// Those of the Tramos asked for, by Tramo, height and pressure.
std::vector<Ajustado> Elegidos(const Proyecto& proyecto, const std::vector<int>& tramos) {
  std::vector<Ajustado> elegidos;
  int entrada = 0;
  for (const auto& x : proyecto.ajustes) {
    ++entrada;
    const int tramo = static_cast<int>(std::lround(x.Tramo));
    const bool pedido =
        tramos.empty() || std::find(tramos.begin(), tramos.end(), tramo) != tramos.end();
    if (x.Libre() || !pedido) continue;
    elegidos.push_back({entrada, tramo, PosicionDe(proyecto.lista, tramo) != 0, x});
  }
  std::stable_sort(elegidos.begin(), elegidos.end(), [](const Ajustado& a, const Ajustado& b) {
    return std::tie(a.tramo, a.caso.Hr, a.caso.DP) < std::tie(b.tramo, b.caso.Hr, b.caso.DP);
  });
  return elegidos;
}

std::string EnTexto(const std::vector<Ajustado>& ajustados, const std::string& obra,
                    const Catalogo& textos, const EstiloNumeros& estilo) {
  if (ajustados.empty()) return textos.Compone(txt::SinArmadurasAjustadas, {obra}) + "\n";
  std::string texto = textos.Texto(txt::ListaAjustesCabeza) + "\n" +
                      textos.Texto(estilo.si ? txt::ListaAjustesSI : txt::ListaAjustesMKS) + "\n";
  const auto area = [&](double valor) { return estilo.FormatoNumero(valor, 10, 2); };
  for (const auto& x : ajustados) {
    const auto& a = x.caso.areas;
    texto += FormatoEntero(x.tramo, 5) + estilo.FormatoNumero(x.caso.Hr, 8, 2) +
             estilo.FormatoNumero(x.caso.DP, 10, 1, "at->MPa") + area(a.Camisa) + area(a.Espiras) +
             area(a.Exterior) + area(x.Total());
    if (!x.enLaObra) texto += "  " + textos.Texto(txt::TramoFueraDeLaObra);
    texto += "\n";
  }
  return texto;
}

std::string EnJson(const std::vector<Ajustado>& ajustados, const std::filesystem::path& obra,
                   const Obra& datos) {
  Json lista = Json::array();
  for (const auto& x : ajustados) {
    const auto& a = x.caso.areas;
    lista.push_back({{"entrada", x.entrada},
                     {"NumeroTramo", x.tramo},
                     {"enLaObra", x.enLaObra},
                     {"Hr", x.caso.Hr},
                     {"DP", x.caso.DP},
                     {"Camisa", a.Camisa},
                     {"Espiras", a.Espiras},
                     {"Exterior", a.Exterior},
                     {"Total", x.Total()}});
  }
  const Json todo{
      {"fichero", RutaDpe(obra).string()}, {"SisUnid", datos.SisUnid}, {"ajustes", lista}};
  return todo.dump(1, ' ', false, Json::error_handler_t::replace) + "\n";
}

}  // namespace

int Ajustados(const OpcionesListaAjustes& opciones, Catalogo& textos) try {
  const Proyecto proyecto = LeeProyectoEntero(opciones.obra, textos);
  const Obra& obra = proyecto.obra;
  textos.PonIdioma(obra.Idioma);
  for (const auto& aviso : proyecto.avisos) Queja(textos.Compone(aviso));
  if (proyecto.SinAjustes) return kFicheroRechazado;
  if (!BuscaTramos(opciones.tramos, opciones.obra, proyecto.lista, textos)) return kPalabrasMalas;
  const auto ajustados = Elegidos(proyecto, opciones.tramos);
  Salida salida({});
  salida.flujo() << (opciones.formato == "json"
                         ? EnJson(ajustados, opciones.obra, obra)
                         : EnTexto(ajustados, opciones.obra.string(), textos,
                                   {obra.EsSI(), SeparadorDeLinea(opciones.separador)}));
  salida.Cierra();
  return kHecho;
} catch (const ErrorFichero& error) {
  Queja(textos.Compone(error.mensaje()));
  return kFicheroRechazado;
} catch (const ErrorSalida& error) {
  Queja(textos.Compone(txt::SalidaNoSeEscribe, {error.nombre(), error.what()}));
  return kSalidaImposible;
}

}  // namespace zorbin
