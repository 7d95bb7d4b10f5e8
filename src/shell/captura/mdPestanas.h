// Tabs whose change is asked for and not taken: the rules say whether the page may be left.
#pragma once

#include <QWidget>

class QStackedWidget;
class QTabBar;

namespace zorbin {

class Pestanas : public QWidget {
  Q_OBJECT

 public:
  explicit Pestanas(QWidget* padre = nullptr);

  void Anade(QWidget* pagina);
  void PonTexto(int pagina, const QString& texto);
  /// Shows a page without asking.
  void Pon(int pagina);
  int Delante() const;
  QTabBar& barra() const { return *barra_; }

 signals:
  /// A person chose a page; Pon settles it.
  void pedida(int pagina);

 private:
  QTabBar* barra_;
  QStackedWidget* paginas_;
};

}  // namespace zorbin
