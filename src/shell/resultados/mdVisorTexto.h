// A view of a long text that is only read: it asks for the lines that are in sight, and for no
// others.
#pragma once

#include <QAbstractScrollArea>
#include <QTimer>
#include <compare>

#include "sesion/trabajo/mdTextoLargo.h"

namespace zorbin {

/// Between two letters of a text, or at the end of a line.
struct Lugar {
  int linea = 0;
  int columna = 0;
  auto operator<=>(const Lugar&) const = default;
};

/// Letters of one width. Selected with the mouse and the keyboard; it grows while the text is being
/// counted.
class VisorTexto : public QAbstractScrollArea {
  Q_OBJECT

 public:
  VisorTexto(TextoLargo& texto, QWidget* padre);

  TextoLargo& Texto() const { return texto_; }
  bool HayEleccion() const { return ancla_ != cursor_; }
  Lugar Desde() const { return std::min(ancla_, cursor_); }
  Lugar Hasta() const { return std::max(ancla_, cursor_); }
  /// What is selected, where it is one line; else nothing.
  QString Elegido() const;
  /// Selects, and brings it in sight.
  void Elige(Lugar desde, Lugar hasta);
  void EligeTodo();
  /// Paints whatever is equal to this, regardless of case; nothing where it is empty.
  void Marca(const QString& que);
  /// Marks in sight.
  int Marcas() const;
  int Lineas() const { return cuenta_.lineas; }

 signals:
  /// A key asks for the selection to be copied, or for a menu at a point of the screen.
  void copia();
  void menu(QPoint donde);
  /// All of the text is there.
  void entero();

 protected:
  void paintEvent(QPaintEvent* suceso) override;
  void resizeEvent(QResizeEvent* suceso) override;
  void changeEvent(QEvent* suceso) override;
  void keyPressEvent(QKeyEvent* suceso) override;
  void mousePressEvent(QMouseEvent* suceso) override;
  void mouseMoveEvent(QMouseEvent* suceso) override;
  void mouseReleaseEvent(QMouseEvent* suceso) override;
  void mouseDoubleClickEvent(QMouseEvent* suceso) override;
  void contextMenuEvent(QContextMenuEvent* suceso) override;
  void focusInEvent(QFocusEvent* suceso) override;
  void focusOutEvent(QFocusEvent* suceso) override;

 private:
  TextoLargo& texto_;
  TextoLargo::Cuenta cuenta_;
  Lugar ancla_;
  Lugar cursor_;
  QString marca_;
  QTimer crece_;
  QTimer arrastra_;  // the mouse is held beyond an edge
  QPointF raton_;    // where it is held

  QString Linea(int n) const;
  int AltoLinea() const;
  double AnchoLetra() const;
  int Filas() const;  // that are whole in sight
  double X(int columna) const;
  Lugar LugarEn(QPointF punto) const;
  void Crece();
  void AjustaBarras();
  void Mueve(Lugar a, bool elige);
  bool MueveConTecla(const QKeyEvent& suceso);
  Lugar Final() const;
  Lugar Izquierda() const;
  Lugar Derecha() const;
  void Arrastra();
  void Asoma();
  void PintaLinea(QPainter& pintor, int n, int y) const;
};

}  // namespace zorbin
