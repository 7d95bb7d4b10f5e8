#include "comun/proyecto.h"

#include "persistencia/proyecto/mdProyecto.h"

namespace zorbin::pruebas {

ProyectoAGrabar EnMemoria(const std::filesystem::path& obra) {
  const auto proyecto = LeeProyecto(obra);
  ProyectoAGrabar p{proyecto.obra, {}, proyecto.ajustes, proyecto.extras};
  for (auto& pedido : TramosPedidos(proyecto)) {
    const auto suyos = TomaExtras(p.extras, pedido.numero, pedido.tramo.DescriTramo);
    p.tramos.push_back({pedido.numero, pedido.tramo, suyos ? suyos->otras : std::string{}});
  }
  return p;
}

std::string Resumido(const std::filesystem::path& obra) {
  const auto proyecto = LeeProyecto(obra);
  std::string texto = proyecto.obra.Cliente + ":";
  for (const auto& p : TramosPedidos(proyecto)) {
    texto += " " + p.numero + (p.tramo.Envolvente ? "E" : "") + "(" +
             p.tramo.DescriTramo.substr(0, 8) + ")";
    for (const auto& x : proyecto.ajustes) {
      if (!x.Libre() && x.Tramo == p.tramo.NumeroTramo) {
        texto += "+" + std::to_string(static_cast<int>(x.areas.Camisa));
      }
    }
  }
  if (proyecto.SinAjustes) texto += " sin ajustes";
  if (proyecto.SinExtras) texto += " sin extras";
  return texto;
}

}  // namespace zorbin::pruebas
