#include "sesion/captura/mdFaltas.h"

#include <algorithm>

#include "sesion/captura/mdComprueba.h"
#include "sesion/captura/mdPlausibilidad.h"

namespace zorbin {

namespace {

void Anota(ListaFaltas& lista, const std::vector<AvisoDeCampo>& avisos, const std::string& numero) {
  for (const auto& a : avisos) {
    lista.avisos.push_back({numero, std::string(Fila(a.campo).nombre), a.texto});
  }
}

// The Tramos asked for. Their ids are their positions.
Version VersionDe(const Proyecto& proyecto, const std::vector<int>& posiciones) {
  Version v;
  v.obra = SinSesion(proyecto.obra);
  for (auto& pedido : TramosPedidos(proyecto, posiciones)) {
    auto t = std::make_shared<TramoEnObra>();
    t->id = pedido.posicion;
    t->numero = pedido.numero;
    t->datos = std::move(pedido.tramo);
    v.tramos.push_back(std::move(t));
  }
  return v;
}

}  // namespace

bool ListaFaltas::Vale(int posicion) const {
  return std::none_of(faltas.begin(), faltas.end(), [&](const FaltaDeObra& f) {
    return f.posicion == 0 || f.posicion == posicion;
  });
}

void PonComprobada(Obra& obra, const Obra& comprobada) {
  RecorreNumeros<Obra>([&](const Ficha&, double Obra::*campo) { obra.*campo = comprobada.*campo; });
}

ListaFaltas ValidaProyecto(const Proyecto& proyecto, const Catalogo& textos,
                           const TablasCatalogo& tablas, const PeticionValida& peticion) {
  const Version v = VersionDe(proyecto, peticion.posiciones);
  const auto comprobado = Comprueba(v, IdsDe(v), textos, tablas, peticion.separador);
  ListaFaltas lista;
  for (const auto& f : comprobado.faltas) {
    const auto* t = Busca(v, f.tramo);
    lista.faltas.push_back({f.tramo, t == nullptr ? std::string{} : t->numero,
                            std::string(Fila(f.campo).nombre), f.valor, f.titulo, f.mensaje});
  }
  lista.obra = proyecto.obra;
  PonComprobada(lista.obra, comprobado.version.obra);
  Anota(lista, AvisosDeObra(lista.obra, textos, peticion.separador), {});
  for (const auto& t : comprobado.version.tramos) {
    if (!comprobado.Vale(t->id)) continue;
    lista.tramos[t->id] = t->datos;
    Anota(lista, AvisosDePlausibilidad(lista.obra, t->datos, textos, peticion.separador),
          t->numero);
  }
  return lista;
}

}  // namespace zorbin
