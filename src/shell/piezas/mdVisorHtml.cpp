#include "shell/piezas/mdVisorHtml.h"

#include <QAbstractTextDocumentLayout>
#include <QResizeEvent>
#include <QScrollBar>
#include <QWheelEvent>

namespace zorbin {

VisorHtml::VisorHtml(QWidget* padre) : QTextBrowser(padre) {
  setOpenLinks(false);
  setUndoRedoEnabled(false);
}

void VisorHtml::PonPagina(const QUrl& direccion, const QString& html) {
  direccion_ = direccion;
  html_ = html;
  if (source().matches(direccion, QUrl::RemoveFragment)) reload();
  setSource(direccion, QTextDocument::HtmlResource);
  clearHistory();
}

void VisorHtml::CambiaPagina(const QString& html, const QFont& letra, double margen) {
  const int lugar = LugarArriba();
  html_ = html;
  setFont(letra);
  document()->setDocumentMargin(margen);
  reload();
  PonArriba(lugar);
}

// Anything else is an empty file: for one that is not given the document looks on its own.
QVariant VisorHtml::loadResource(int tipo, const QUrl& nombre) {
  const bool propia = tipo == QTextDocument::HtmlResource && !direccion_.isEmpty() &&
                      nombre.matches(direccion_, QUrl::RemoveFragment);
  return propia ? QVariant(html_) : QVariant(QByteArray(""));
}

int VisorHtml::LugarArriba() const {
  return verticalScrollBar()->value() == 0 ? 0 : cursorForPosition(QPoint(0, 0)).position();
}

void VisorHtml::PonArriba(int lugar) {
  document()->documentLayout()->documentSize();  // all of it laid out, or the bar is too short
  QTextCursor cursor(document());
  cursor.setPosition(std::clamp(lugar, 0, document()->characterCount() - 1));
  const int y = lugar <= 0 ? 0 : verticalScrollBar()->value() + cursorRect(cursor).top();
  verticalScrollBar()->setValue(y);
}

void VisorHtml::changeEvent(QEvent* suceso) {
  QTextBrowser::changeEvent(suceso);
  if (suceso->type() == QEvent::PaletteChange) emit cambiaTema();
}

void VisorHtml::resizeEvent(QResizeEvent* suceso) {
  const int lugar = LugarArriba();
  QTextBrowser::resizeEvent(suceso);
  if (suceso->size().width() != suceso->oldSize().width()) PonArriba(lugar);
}

void VisorHtml::wheelEvent(QWheelEvent* suceso) {
  if (!suceso->modifiers().testFlag(Qt::ControlModifier)) {
    QTextBrowser::wheelEvent(suceso);
    return;
  }
  const int giro = suceso->angleDelta().y();
  if (giro != 0) emit ampliado(giro > 0 ? 1 : -1);
  suceso->accept();
}

}  // namespace zorbin
