// Cards: quiet frames with a caption that keep together what belongs together, laid out in as many
// columns as the width gives.
#pragma once

#include <QFrame>
#include <QLayout>
#include <vector>

class QLabel;
class QVBoxLayout;

namespace zorbin {

class Tarjeta : public QFrame {
  Q_OBJECT

 public:
  explicit Tarjeta(QWidget* padre = nullptr);

  /// An empty caption takes no room.
  void PonTitulo(const QString& titulo);
  /// Takes the whole width of the page, above what comes after it.
  void PonAncha() { ancha_ = true; }
  bool Ancha() const { return ancha_; }
  QVBoxLayout& cuerpo() const { return *cuerpo_; }

 protected:
  void paintEvent(QPaintEvent* suceso) override;

 private:
  QLabel* titulo_;
  QVBoxLayout* cuerpo_;
  bool ancha_ = false;
};

/// Each card goes to the column that is shortest so far. No column is wider than is good to read.
class LayoutTarjetas : public QLayout {
  Q_OBJECT

 public:
  explicit LayoutTarjetas(QWidget* padre);
  ~LayoutTarjetas() override;

  void addItem(QLayoutItem* pieza) override;
  int count() const override;
  QLayoutItem* itemAt(int lugar) const override;
  QLayoutItem* takeAt(int lugar) override;
  Qt::Orientations expandingDirections() const override { return {}; }
  bool hasHeightForWidth() const override { return true; }
  int heightForWidth(int ancho) const override;
  QSize sizeHint() const override;
  QSize minimumSize() const override;
  void setGeometry(const QRect& sitio) override;

 private:
  std::vector<QLayoutItem*> piezas_;

  int Digito() const;
  int Reparte(const QRect& sitio, bool coloca) const;
};

}  // namespace zorbin
