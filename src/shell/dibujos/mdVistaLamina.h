// A drawing on the screen: it takes the size and the colours of its window, tells what is under the
// pointer, grows under the wheel, and goes to the clipboard or to a file.
#pragma once

#include <QWidget>
#include <functional>
#include <optional>

#include "listados/dibujos/mdGrafico.h"
#include "listados/dibujos/mdPaleta.h"
#include "shell/piezas/mdEntorno.h"

namespace zorbin {

/// Colours of the drawings in a window.
Paleta PaletaDe(const QPalette& colores);

class VistaLamina : public QWidget {
  Q_OBJECT

 public:
  /// Draws on a sheet of the size of the window.
  using Dibuja = std::function<LaminaConEjes(const HojaDibujo&)>;
  /// What is told of a place of the sheet [mm]; empty for nothing.
  using Cuenta = std::function<QString(const LaminaConEjes&, Xy)>;

  VistaLamina(const Entorno& entorno, QSize minimo, QWidget* padre = nullptr);

  /// None shows nothing.
  void Pon(Dibuja dibuja);
  void PonCuenta(Cuenta cuenta) { cuenta_ = std::move(cuenta); }
  /// Of the file that it is saved in.
  void PonNombre(const QString& nombre) { nombre_ = nombre; }
  /// Painted as what no longer holds.
  void PonAtrasada(bool atrasada);
  bool Atrasada() const { return atrasada_; }
  /// The wheel turns the page around it instead, but with the control key down.
  void DejaLaRueda() { rueda_ = false; }
  /// The sheet has a size of its own, and the window shows all of it.
  void PonEntera() { entera_ = true; }
  /// Asks for a name, and saves the sheet. @param extension  "png", "svg", "pdf" or "dxf"
  void Guarda(const QString& extension);

  const LaminaConEjes& lamina() { return Ahora(); }
  /// Place of the sheet at a place of the window [mm].
  Xy EnHoja(QPointF sitio) const;
  /// The picture of the whole sheet as it is on the screen.
  QImage Imagen(double porMm);

  QSize sizeHint() const override { return minimumSize(); }

 signals:
  void elegido(Xy sitio);
  /// What is told of where the pointer is; empty for nothing.
  void apuntado(const QString& texto);

 protected:
  bool event(QEvent* suceso) override;
  void paintEvent(QPaintEvent* suceso) override;
  void mousePressEvent(QMouseEvent* suceso) override;
  void mouseMoveEvent(QMouseEvent* suceso) override;
  void mouseReleaseEvent(QMouseEvent* suceso) override;
  void mouseDoubleClickEvent(QMouseEvent* suceso) override;
  void wheelEvent(QWheelEvent* suceso) override;
  void contextMenuEvent(QContextMenuEvent* suceso) override;

 private:
  const Entorno& entorno_;
  Dibuja dibuja_;
  Cuenta cuenta_;
  QString nombre_ = QStringLiteral("zorbin");
  std::optional<LaminaConEjes> hecha_;
  QSize deTamano_;
  double aumento_ = 1.0;
  QPointF origen_;  // of the sheet, in the window
  std::optional<QPointF> arrastre_;
  bool arrastrado_ = false;
  bool atrasada_ = false;
  bool rueda_ = true;
  bool entera_ = false;

  double PorMm() const;
  const LaminaConEjes& Ahora();
  void Encaja();
  QString Dicho(QPointF sitio);
  void Copia();
};

}  // namespace zorbin
