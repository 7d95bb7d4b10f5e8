// How a Tramo is drawn in the list: its state by shape and colour, number and description, and
// below them pipe and typology.
#pragma once

#include <QStyledItemDelegate>

namespace zorbin {

/// What a calculation said last of a Tramo.
enum class EstadoTramo { SinCalcular, Cumple, NoCumple, Falla };

/// What the drawing asks of an entry of the list.
struct SenasTramo {
  QString titulo;
  QString detalle;
  EstadoTramo estado = EstadoTramo::SinCalcular;
  bool conFaltas = false;
  bool sinGrabar = false;
};

class PintorTramo : public QStyledItemDelegate {
  Q_OBJECT

 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  /// Role of an entry under which its SenasTramo stand.
  static constexpr int kPapel = Qt::UserRole + 1;

  void paint(QPainter* pintor, const QStyleOptionViewItem& opcion,
             const QModelIndex& indice) const override;
  QSize sizeHint(const QStyleOptionViewItem& opcion, const QModelIndex& indice) const override;
};

}  // namespace zorbin

Q_DECLARE_METATYPE(zorbin::SenasTramo)
