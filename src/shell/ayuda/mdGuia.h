// The ways into the manual, beside its page: contents, index and search.
#pragma once

#include <QTabWidget>

#include "base/mdCatalogo.h"
#include "shell/ayuda/mdTextoManual.h"

class QLabel;
class QLineEdit;
class QListWidget;
class QListWidgetItem;
class QTreeWidget;
class QTreeWidgetItem;

namespace zorbin {

class GuiaAyuda : public QTabWidget {
  Q_OBJECT

 public:
  explicit GuiaAyuda(const Catalogo& textos, QWidget* padre = nullptr);

  void PonManual(const Manual& manual);
  void RenuevaTextos();

  void MuestraContenido();
  void MuestraIndice();
  void MuestraBusqueda();

  /// Marks in the contents the section being read.
  void Marca(std::size_t apartado);
  /// What the words searched for gave.
  void PonHallazgos(const Manual& manual, std::vector<TextoManual::Hallazgo> hallazgos);
  QString Buscado() const;

 signals:
  void eligeAncla(const QString& ancla);
  void eligeHallazgo(const zorbin::TextoManual::Hallazgo& hallazgo);
  void busca(const QString& palabras);

 private:
  const Catalogo& textos_;
  QTreeWidget* arbol_;
  QLineEdit* filtro_;
  QListWidget* indice_;
  QLineEdit* palabras_;
  QListWidget* lista_;
  QLabel* cuenta_;
  std::vector<QTreeWidgetItem*> ramas_;  // of each section
  std::vector<TextoManual::Hallazgo> hallazgos_;

  QWidget* PaginaContenido();
  QWidget* PaginaIndice();
  QWidget* PaginaBusqueda();
  void PonContenido(const Manual& manual);
  void PonIndice(const Manual& manual);
  void Filtra();
  void Elige(const QListWidgetItem* entrada);
  void ActualizaCuenta();
};

}  // namespace zorbin
