// The list of the panel of Tramos, in which they are dragged to another place.
#pragma once

#include <QTreeWidget>
#include <vector>

namespace zorbin {

/// Rows that bear the id of a Tramo. It moves nothing itself: whoever keeps the Tramos does.
class ListaArrastrable : public QTreeWidget {
  Q_OBJECT

 public:
  explicit ListaArrastrable(QWidget* padre = nullptr);

  /// Role of the id, in column 0.
  static constexpr int kPapelId = Qt::UserRole;

  /// Only a list in the order of the Obra can be put in another one.
  void PonArrastre(bool puede);

 signals:
  /// @param antesDe  id of the row that comes after them; 0 for the end
  void llevados(const std::vector<int>& ids, int antesDe);

 protected:
  QStringList mimeTypes() const override;
  QMimeData* mimeData(const QList<QTreeWidgetItem*>& filas) const override;
  Qt::DropActions supportedDropActions() const override { return Qt::MoveAction; }
  void dragEnterEvent(QDragEnterEvent* suceso) override;
  void dropEvent(QDropEvent* suceso) override;

 private:
  int AntesDe(QPoint sitio) const;
};

}  // namespace zorbin
