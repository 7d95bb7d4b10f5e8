#include "listados/maqueta/mdPaginador.h"

#include "listados/maqueta/mdError.h"

namespace zorbin::memoria {

namespace {

double Alto(const std::vector<Franja>& f, std::size_t i, std::size_t fin) {
  double alto = 0;
  for (; i < fin; ++i) alto += f[i].caja.Altura() + f[i].antes;
  return alto;
}

}  // namespace

void Paginador::Anade(std::vector<Franja> franjas) {
  for (std::size_t i = 0; i < franjas.size();) {
    std::size_t fin = i + 1;
    while (fin < franjas.size() && franjas[fin - 1].pega) ++fin;
    PonGrupo(franjas, i, fin);
    i = fin;
  }
}

void Paginador::Abre() {
  paginas.push_back({{}, capitulo_, apartado_});
  y_ = marcos_.arriba;
}

void Paginador::PonGrupo(std::vector<Franja>& f, std::size_t i, std::size_t fin) {
  bool larga = false;
  const bool nueva = paginas.empty() || (f[i].nuevaPagina && y_ > marcos_.ultimoCapitulo);
  if (f[i].nuevaPagina && !nueva) y_ += marcos_.antesCapitulo;
  if (nueva || y_ + Alto(f, i, fin) > marcos_.abajo) {
    larga = marcos_.arriba + Alto(f, i, fin) - f[i].antes > marcos_.abajo;
    if (larga && !parte_) {
      throw ErrorFuente(f[i].linea, QStringLiteral("what stays together here fills more than "
                                                   "a page"));
    }
    if (f[i].nuevaPagina) capitulo_ = apartado_ = {};
    Abre();
    if (f[i].cabecera && !nueva) Pon(*f[i].cabecera);
  }
  for (; i < fin; ++i) {
    if (larga && y_ > marcos_.arriba && y_ + f[i].antes + f[i].caja.Altura() > marcos_.abajo)
      Abre();
    if (y_ > marcos_.arriba) y_ += f[i].antes;
    Apunta(f[i]);
    Pon(std::move(f[i].caja));
  }
}

void Paginador::Apunta(const Franja& f) {
  const LugarTexto lugar{static_cast<int>(paginas.size()) - 1, y_};
  if (!f.ancla.isEmpty()) anclas.insert(f.ancla, lugar);
  if (f.nivel == 0) return;
  const QString rotulo =
      f.numero.isEmpty() ? f.titulo : f.numero + QString(2, QChar::Nbsp) + f.titulo;
  auto& pagina = paginas.back();
  if (f.nivel == 1) {
    capitulo_ = rotulo;
    apartado_ = {};
    // The last chapter that begins on a page names it.
    pagina.capitulo = rotulo;
    pagina.apartado = {};
  } else if (f.nivel == 2) {
    apartado_ = rotulo;
    // A section that opens the page names it; otherwise the one that goes on from before.
    if (pagina.apartado.isEmpty() || y_ <= marcos_.arriba) pagina.apartado = rotulo;
  }
  if (f.nivel <= 2) indice.push_back({f.nivel, f.numero, f.titulo, lugar, f.ancla});
}

void Paginador::Pon(Caja caja) {
  const double alto = caja.alto;
  const double altura = caja.Altura();
  paginas.back().caja.Pon(std::move(caja), {marcos_.izquierda, y_ + alto});
  y_ += altura;
}

}  // namespace zorbin::memoria
