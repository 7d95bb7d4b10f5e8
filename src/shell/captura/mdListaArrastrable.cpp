#include "shell/captura/mdListaArrastrable.h"

#include <QDropEvent>
#include <QMimeData>

namespace zorbin {

namespace {

const QString kFormato = QStringLiteral("application/x-zorbin-tramos");

}  // namespace

ListaArrastrable::ListaArrastrable(QWidget* padre) : QTreeWidget(padre) {
  setDragDropMode(InternalMove);
  setDropIndicatorShown(true);
}

void ListaArrastrable::PonArrastre(bool puede) {
  setDragDropMode(puede ? InternalMove : NoDragDrop);
}

QStringList ListaArrastrable::mimeTypes() const {
  return {kFormato};
}

QMimeData* ListaArrastrable::mimeData(const QList<QTreeWidgetItem*>& filas) const {
  QByteArrayList ids;
  for (const auto* fila : filas) ids += QByteArray::number(fila->data(0, kPapelId).toInt());
  auto* datos = new QMimeData;
  datos->setData(kFormato, ids.join(' '));
  return datos;
}

int ListaArrastrable::AntesDe(QPoint sitio) const {
  auto* fila = itemAt(sitio);
  if (fila == nullptr) return 0;
  int lugar = indexOfTopLevelItem(fila);
  if (sitio.y() > visualItemRect(fila).center().y()) ++lugar;
  const auto* siguiente = topLevelItem(lugar);
  return siguiente == nullptr ? 0 : siguiente->data(0, kPapelId).toInt();
}

void ListaArrastrable::dragEnterEvent(QDragEnterEvent* suceso) {
  if (!suceso->mimeData()->hasFormat(kFormato)) return suceso->ignore();
  setState(DraggingState);
  suceso->accept();
}

// Told as nothing done, so that the toolkit takes no row away by itself.
void ListaArrastrable::dropEvent(QDropEvent* suceso) {
  std::vector<int> ids;
  for (const auto& id : suceso->mimeData()->data(kFormato).split(' ')) {
    if (!id.isEmpty()) ids.push_back(id.toInt());
  }
  suceso->setDropAction(Qt::IgnoreAction);
  suceso->accept();
  stopAutoScroll();
  setState(NoState);
  viewport()->update();
  if (!ids.empty()) emit llevados(ids, AntesDe(suceso->position().toPoint()));
}

}  // namespace zorbin
