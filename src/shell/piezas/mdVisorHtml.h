// A page of HTML that loads nothing and leads nowhere by itself.
#pragma once

#include <QTextBrowser>

namespace zorbin {

class VisorHtml : public QTextBrowser {
  Q_OBJECT

 public:
  explicit VisorHtml(QWidget* padre = nullptr);

  /// The page of an address, from now on the only one that opens.
  void PonPagina(const QUrl& direccion, const QString& html);
  /// Shows the page anew, with other colours or sizes, at the line being read.
  void CambiaPagina(const QString& html, const QFont& letra, double margen);

  /// Position in the document of what stands at the top of the view, and back.
  int LugarArriba() const;
  void PonArriba(int lugar);

 signals:
  /// The wheel with Ctrl: steps of zoom, negative to make it smaller.
  void ampliado(int pasos);
  /// Other colours than before.
  void cambiaTema();

 protected:
  QVariant loadResource(int tipo, const QUrl& nombre) override;
  void changeEvent(QEvent* suceso) override;
  void resizeEvent(QResizeEvent* suceso) override;
  void wheelEvent(QWheelEvent* suceso) override;

 private:
  QUrl direccion_;
  QString html_;
};

}  // namespace zorbin
