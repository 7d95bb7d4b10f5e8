// The table of rows of the screen of adjustments: nine options with their areas, the chosen row on
// a band of its own. A press anywhere on a row is a press on its option.
#pragma once

#include <QRadioButton>
#include <QWidget>
#include <array>

#include "sesion/ajustes/mdModeloAjustes.h"
#include "shell/piezas/mdCasillaNumero.h"

class QButtonGroup;
class QGridLayout;
class QLabel;

namespace zorbin {

class TablaFilas : public QWidget {
  Q_OBJECT

 public:
  /// Fields of the last row: cylinder, spirals, outer bars.
  using Casillas = std::array<CasillaNumero*, 3>;

  explicit TablaFilas(QWidget* padre);

  const Casillas& casillas() const { return casillas_; }
  QRadioButton* Opcion(int fila) const;
  /// Shows all but the fields of the last row.
  /// @param sinRotulo  name for a reader of the screen of a row that shows none
  void Muestra(const ModeloAjustes& modelo, const std::array<QString, kFilasAjuste>& sinRotulo);

 signals:
  void elegida(int fila);

 protected:
  void paintEvent(QPaintEvent* suceso) override;
  void mousePressEvent(QMouseEvent* suceso) override;

 private:
  static constexpr int kColumnas = 4;

  QGridLayout* rejilla_;
  QButtonGroup* obSeleccion_;
  std::array<QLabel*, kColumnas> cabezas_{};
  std::array<std::array<QLabel*, kColumnas>, kFilasAjuste> celdas_{};  // null where a field is
  Casillas casillas_{};

  void CreaFila(int fila);
  QRect Banda(int fila) const;
};

}  // namespace zorbin
