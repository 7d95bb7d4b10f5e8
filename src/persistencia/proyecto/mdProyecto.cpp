#include "persistencia/proyecto/mdProyecto.h"

#include "base/mdNumeros.h"
#include "persistencia/proyecto/mdAcompanantes.h"

namespace zorbin {

namespace {

std::int16_t NumeroDe(const std::string& texto) {
  return I16(NumeroTexto(texto).value_or(0.0));
}

void Anade(std::vector<Mensaje>& avisos, std::vector<Mensaje> otros) {
  for (auto& aviso : otros) avisos.push_back(std::move(aviso));
}

// The entries that no Tramo of the whole Obra takes are told.
std::vector<Mensaje> AvisosDeSusExtras(const Proyecto& proyecto,
                                       const std::vector<TramoPedido>& todos) {
  Extras sobrantes = proyecto.extras;
  for (const auto& p : todos) TomaExtras(sobrantes, p.numero, p.tramo.DescriTramo);
  return AvisosDeExtras(sobrantes, RutaZrx(proyecto.fichero.ruta()));
}

// @param lee  what of the file, and with what said of the rest
Proyecto Lee(const std::filesystem::path& ruta,
             ObraLeida (*lee)(EstadoCalculo&, const FicheroRegistros&)) {
  FotoProyecto foto = LeeFoto(ruta);
  auto junto = LeeAcompanantes(foto);
  Proyecto proyecto{std::move(foto.obra), {}, {}, {}, false, {}, false, {}, {}};
  EstadoCalculo e;
  auto leida = lee(e, proyecto.fichero);
  proyecto.obra = std::move(e.obra);
  proyecto.lista = std::move(leida.lista);
  proyecto.danos = std::move(leida.danos);
  proyecto.avisos = proyecto.fichero.avisos();
  Anade(proyecto.avisos, std::move(leida.avisos));
  proyecto.ajustes = std::move(junto.ajustes);
  proyecto.SinAjustes = junto.SinAjustes;
  proyecto.extras = std::move(junto.extras);
  proyecto.SinExtras = junto.SinExtras;
  Anade(proyecto.avisos, std::move(junto.avisos));
  Anade(proyecto.avisos, AvisosDeSusExtras(proyecto, TramosPedidos(proyecto)));
  return proyecto;
}

}  // namespace

Proyecto LeeProyecto(const std::filesystem::path& ruta) {
  return Lee(ruta, CargaObra);
}

Proyecto RescataProyecto(const std::filesystem::path& ruta) {
  return Lee(ruta, RescataObra);
}

std::vector<TramoPedido> TramosPedidos(const Proyecto& proyecto,
                                       const std::vector<int>& posiciones) {
  EstadoCalculo e;  // keeps the Tramo before
  e.obra = proyecto.obra;
  Extras extras = proyecto.extras;
  std::vector<TramoPedido> pedidos;
  for (const int posicion : posiciones.empty() ? PosicionesDe(proyecto.lista) : posiciones) {
    const std::string& numero = proyecto.lista[static_cast<std::size_t>(posicion - 1)];
    CargaTramo(e, proyecto.fichero, posicion);
    pedidos.push_back({posicion, numero, e.tramo});
    Tramo& tramo = pedidos.back().tramo;
    tramo.NumeroTramo = NumeroDe(numero);
    const auto suyos = TomaExtras(extras, numero, tramo.DescriTramo);
    tramo.Envolvente = suyos && suyos->Envolvente;
  }
  return pedidos;
}

std::vector<int> PosicionesDe(const ListaTramos& lista) {
  std::vector<int> posiciones;
  for (std::size_t i = 0; i < lista.size(); ++i) {
    if (!lista[i].empty()) posiciones.push_back(static_cast<int>(i) + 1);
  }
  return posiciones;
}

int PosicionDe(const ListaTramos& lista, int numero) {
  for (const int posicion : PosicionesDe(lista)) {
    if (NumeroDe(lista[static_cast<std::size_t>(posicion - 1)]) == numero) return posicion;
  }
  return 0;
}

}  // namespace zorbin
