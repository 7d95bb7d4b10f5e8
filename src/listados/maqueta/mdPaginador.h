// Strips laid on pages, one after the other.
#pragma once

#include <QHash>

#include "listados/maqueta/mdFranja.h"

namespace zorbin::memoria {

/// Where the text of a page stands [pt].
struct Marcos {
  double izquierda = 0;
  double arriba = 0, abajo = 0;
  double antesCapitulo = 26.0;
  double ultimoCapitulo = 0;  // no chapter begins further down
};

/// A place of the text.
struct LugarTexto {
  int pagina = 0;  // from 0
  double y = 0;    // from the top of the paper [pt]
};

struct EntradaIndice {
  int nivel = 0;
  QString numero, titulo;
  LugarTexto lugar;
  QString ancla;
};

/// A page without its heads. The chapter and the section are those in which it begins, or the first
/// ones that begin on it where it begins with none.
struct PaginaTexto {
  Caja caja;
  QString capitulo, apartado;
};

/// Fills pages with strips; those that stay together go over together.
class Paginador {
 public:
  /// @param parte  what stays together and fills more than a page is cut; it is an error otherwise
  explicit Paginador(const Marcos& marcos, bool parte = false) : marcos_(marcos), parte_(parte) {}

  /// @throws ErrorFuente of what stays together and fits no page
  void Anade(std::vector<Franja> franjas);

  std::vector<PaginaTexto> paginas;
  std::vector<EntradaIndice> indice;
  QHash<QString, LugarTexto> anclas;

 private:
  Marcos marcos_;
  bool parte_;
  double y_ = 0;
  QString capitulo_, apartado_;

  void PonGrupo(std::vector<Franja>& f, std::size_t i, std::size_t fin);
  void Abre();
  void Apunta(const Franja& f);
  void Pon(Caja caja);
};

}  // namespace zorbin::memoria
