// The list of Tramos that stands beside every page: looking for one, taking it in hand, choosing
// several for what the menu does with them.
#pragma once

#include <QWidget>
#include <map>
#include <vector>

#include "sesion/captura/mdTramos.h"
#include "shell/captura/mdPintorTramo.h"

class QLineEdit;
class QToolButton;
class QTreeWidgetItem;

namespace zorbin {

class ListaArrastrable;

class PanelTramos : public QWidget {
  Q_OBJECT

 public:
  explicit PanelTramos(const Captura& c, QWidget* padre = nullptr);

  /// The list as the capture has it. What is chosen, and where it is scrolled to, stays.
  void Refresca();
  void RenuevaTextos();
  /// The entries of the menu of the right button.
  void PonAcciones(const QList<QAction*>& acciones);
  void PonEstado(int id, EstadoTramo estado);
  void OlvidaEstados();

  void DaFoco();

  /// The Tramos chosen, in their order; the one in hand where none is.
  std::vector<int> Elegidos() const;

 signals:
  void tramoPedido(int id);
  /// Keys pressed in the list.
  void borradoPedido();
  void numeroPedido();
  /// Dragged together before another one; 0 for the end.
  void ordenPedido(const std::vector<int>& ids, int antesDe);

 private:
  const Captura& c_;
  QLineEdit* busca_;
  QToolButton* ordena_;
  ListaArrastrable* lista_;
  std::map<int, EstadoTramo> estados_;
  std::vector<RenglonTramo> puestos_;
  int orden_ = -1;  // column; -1 for the order of the Obra
  bool refrescando_ = false;

  void CreaLista();
  void CreaOrden();
  void OrdenaPor(int columna);
  void Filtra();
  void Pon(QTreeWidgetItem& fila, const RenglonTramo& r);
  void MarcaEnMano();
  void Pide(const QTreeWidgetItem* fila);
};

}  // namespace zorbin
