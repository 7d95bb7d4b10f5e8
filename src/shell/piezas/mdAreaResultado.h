// The text area of a result: monospaced, read only, its lines never broken. Its size follows the
// table that it has to hold.
#pragma once

#include <QPlainTextEdit>

namespace zorbin {

class AreaResultado : public QPlainTextEdit {
  Q_OBJECT

 public:
  /// @param columnas, lineas  of the largest text that stands in it without scrolling
  AreaResultado(int columnas, int lineas, QWidget* padre = nullptr);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 private:
  int columnas_;
  int lineas_;

  QSize Caben(int columnas, int lineas) const;
};

}  // namespace zorbin
