// A picture of the program.
#pragma once

#include <QPixmap>
#include <QWidget>

namespace zorbin {

/// Fits its place and keeps its proportions.
class Figura : public QWidget {
  Q_OBJECT

 public:
  explicit Figura(QWidget* padre = nullptr);
  /// An empty path, or one that is no picture, shows nothing.
  void Pon(const QString& ruta);

 protected:
  void paintEvent(QPaintEvent* suceso) override;

 private:
  QString ruta_;
  QPixmap imagen_;
};

}  // namespace zorbin
