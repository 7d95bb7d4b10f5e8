// The menu of how the window looks and which language it speaks. The language of the paper is a
// datum of the Obra.
#pragma once

#include <QObject>
#include <vector>

#include "base/mdCatalogo.h"
#include "shell/piezas/mdPreferencias.h"

class QAction;
class QActionGroup;
class QMenu;

namespace zorbin {

class MenuVer : public QObject {
  Q_OBJECT

 public:
  MenuVer(QMenu& menu, const Catalogo& textos, Preferencias& preferencias);

  /// Texts, and the entries in force.
  void Renueva();
  /// The colours of the desktop are others: light or dark again, as was chosen.
  void RenuevaTema() const;

 signals:
  /// @param idioma  1 to 5
  void idiomaPedido(int idioma);

 private:
  struct Entrada {
    QAction* accion;
    int texto;
  };

  const Catalogo& textos_;
  Preferencias& preferencias_;
  QMenu* temas_;
  QMenu* idiomas_;
  std::vector<Entrada> entradas_;
  std::vector<QAction*> deTema_;
  std::vector<QAction*> deIdioma_;

  QAction* Anade(QMenu& menu, QActionGroup& grupo, int texto);
};

}  // namespace zorbin
