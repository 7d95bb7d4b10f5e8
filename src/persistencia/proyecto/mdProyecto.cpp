#include "persistencia/proyecto/mdProyecto.h"

#include "base/mdNumeros.h"
#include "persistencia/proyecto/mdAcompanantes.h"

namespace zorbin {

namespace {

std::int16_t NumeroDe(const std::string& texto) {
  return I16(NumeroTexto(texto).value_or(0.0));
}

<<<<<<< HEAD
void Anade(std::vector<Mensaje>& avisos, std::vector<Mensaje> otros) {
  for (auto& aviso : otros) avisos.push_back(std::move(aviso));
}

// The entries that no Tramo of the whole Obra takes are told.
std::vector<Mensaje> AvisosDeSusExtras(const Proyecto& proyecto,
                                       const std::vector<TramoPedido>& todos) {
  Extras sobrantes = proyecto.extras;
  for (const auto& p : todos) TomaExtras(sobrantes, p.numero, p.tramo.DescriTramo);
  return AvisosDeExtras(sobrantes, RutaZrx(proyecto.fichero.ruta()));
=======
Proyecto Lee(const std::filesystem::path& ruta,
             ObraLeida (*lee)(EstadoCalculo&, const FicheroRegistros&)) {
  Proyecto proyecto{
      FicheroRegistros(ruta, FicheroRegistros::Modo::Lectura), {}, {}, {}, false, {}, {}};
  EstadoCalculo e;
  auto leida = lee(e, proyecto.fichero);
  proyecto.obra = std::move(e.obra);
  proyecto.lista = std::move(leida.lista);
  proyecto.danos = std::move(leida.danos);
  proyecto.avisos = proyecto.fichero.avisos();
  proyecto.avisos.insert(proyecto.avisos.end(), leida.avisos.begin(), leida.avisos.end());
  return proyecto;
}

void LeeSusAjustes(Proyecto& proyecto, const std::filesystem::path& ruta) {
  try {
    proyecto.ajustes = LeeAjustes(RutaDpe(ruta));
  } catch (const ErrorFichero& error) {
    proyecto.SinAjustes = true;
    proyecto.avisos.push_back(error.mensaje());
  }
>>>>>>> h-c
}

}  // namespace

Proyecto LeeProyecto(const std::filesystem::path& ruta) {
<<<<<<< HEAD
  FotoProyecto foto = LeeFoto(ruta);
  auto junto = LeeAcompanantes(foto);
  Proyecto proyecto{std::move(foto.obra), {}, {}, {}, false, {}, false, {}};
  EstadoCalculo e;
  auto leida = CargaObra(e, proyecto.fichero);
  proyecto.obra = std::move(e.obra);
  proyecto.lista = std::move(leida.lista);
  proyecto.avisos = proyecto.fichero.avisos();
  proyecto.avisos.insert(proyecto.avisos.end(), leida.avisos.begin(), leida.avisos.end());
  const auto todos = TramosPedidos(proyecto);
  proyecto.ajustes = std::move(junto.ajustes);
  proyecto.SinAjustes = junto.SinAjustes;
  proyecto.extras = std::move(junto.extras);
  proyecto.SinExtras = junto.SinExtras;
  Anade(proyecto.avisos, std::move(junto.avisos));
  Anade(proyecto.avisos, AvisosDeSusExtras(proyecto, todos));
=======
  Proyecto proyecto = Lee(ruta, CargaObra);
  TramosPedidos(proyecto);
  LeeSusAjustes(proyecto, ruta);
>>>>>>> h-c
  return proyecto;
}

Proyecto RescataProyecto(const std::filesystem::path& ruta) {
  Proyecto proyecto = Lee(ruta, RescataObra);
  LeeSusAjustes(proyecto, ruta);
  return proyecto;
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
