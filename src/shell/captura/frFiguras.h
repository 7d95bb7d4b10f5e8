// Pictures: beside the fields, and large in `frFiguras`.
#pragma once

#include <QDialog>
#include <QLabel>
#include <QPixmap>

namespace zorbin {

/// A picture that fits its place and keeps its proportions.
class Figura : public QWidget {
  Q_OBJECT

 public:
  explicit Figura(QWidget* padre = nullptr);
  /// An empty path, or one that is no picture, shows nothing.
  void Pon(const QString& ruta);
  const QString& ruta() const { return ruta_; }
  bool Hay() const { return !imagen_.isNull(); }
  QSize sizeHint() const override;

 signals:
  void dobleClic();

 protected:
  void paintEvent(QPaintEvent* suceso) override;
  void mouseDoubleClickEvent(QMouseEvent* suceso) override;
  void keyPressEvent(QKeyEvent* suceso) override;

 private:
  QString ruta_;
  QPixmap imagen_;
};

/// A picture in a window of its own.
class frFiguras : public QDialog {
  Q_OBJECT

 public:
  frFiguras(const QString& ruta, const QString& titulo, QWidget* padre);
};

}  // namespace zorbin
