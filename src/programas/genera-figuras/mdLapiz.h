// Drawing kit of the program's pictures: a white greyscale sheet that is drawn on in millimetres of
// the printed picture, so that a line width or a letter height means the same in every picture.
#pragma once

#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <QPointF>
#include <QPolygonF>
#include <QSizeF>
#include <QString>

namespace zorbin::figuras {

/// Height of the letters [mm of the em square]; capitals come out some 2.5 mm high.
inline constexpr double kCuerpo = 3.4;

/// Kinds of line: dimensions and hatches, outlines of soil, outlines of cut concrete, centre lines,
/// dashed lines of what the work removes.
enum class Trazo { Fino, Medio, Grueso, Eje, Discontinuo };

enum class Letra { Simbolo, Cifra, Titulo };

class Lapiz {
 public:
  /// @param hoja     printed size of the picture [mm]
  /// @param anchoPx  width of the picture [px]; the height follows from the shape of the sheet
  Lapiz(QSizeF hoja, int anchoPx);

  QSizeF Hoja() const { return hoja_; }

  /// Grey of everything drawn from here on: 0 black to 255 white.
  void Tinta(int gris) { tinta_ = gris; }

  void Linea(QPointF a, QPointF b, Trazo trazo);
  void Contorno(const QPainterPath& camino, Trazo trazo);
  void Contorno(const QPainterPath& camino, double grueso);
  void Mancha(const QPainterPath& camino) { Mancha(camino, tinta_); }
  void Mancha(const QPainterPath& camino, int gris);

  /// Filled arrow head with its point at `punta`, seen from `desde`.
  void Flecha(QPointF desde, QPointF punta);

  /// Dimension between `a` and `b`, drawn at the distance `aparte` from them, with extension lines.
  /// The label breaks the line; where it doesn't fit, it stands beside it, on the side of `aparte`.
  /// @param donde  place of the label along the line, 0 at `a` to 1 at `b`
  void Cota(QPointF a, QPointF b, const QString& texto, QPointF aparte = {}, double donde = 0.5);

  /// Length of line that `CotaDiametro` draws beyond each end, without the label [mm].
  static constexpr double kCola = 4.1;

  /// Diameter from `a` to `b`, with the arrows outside and the label at the end of the one at `b`.
  void CotaDiametro(QPointF a, QPointF b, const QString& texto);

  /// Label on a white ground, centred on `centro`. In a label '_' lowers the next letter: "D_e".
  void Rotulo(QPointF centro, const QString& texto, Letra letra = Letra::Simbolo,
              double cuerpo = kCuerpo);

  /// Draws only inside `region` until `Suelta`.
  void Recorta(const QPainterPath& region);
  void Suelta() { pintor_.restore(); }

  /// Ends the picture and writes it as an 8-bit BMP. False when the file can't be written.
  bool Guarda(const QString& fichero);

 private:
  QSizeF hoja_;
  QImage imagen_;
  QPainter pintor_;
  int tinta_ = 0;
};

/// Outline of a label, centred on the origin [mm].
QPainterPath CaminoRotulo(const QString& texto, Letra letra, double cuerpo);

QPainterPath Circulo(QPointF centro, double radio);

/// Ring between two radii.
QPainterPath Corona(QPointF centro, double interior, double exterior);

/// Band of the width `ancho` along a line.
QPainterPath Banda(const QPainterPath& linea, double ancho);

QPainterPath Poligono(const QPolygonF& puntos);
QPainterPath Poligonal(const QPolygonF& puntos);

/// Hand-drawn wavy line where the drawing is broken off.
QPainterPath LineaRotura(QPointF a, QPointF b);

/// Point at `radio` from `centro`, `grados` clockwise from the vertical.
QPointF Polar(QPointF centro, double radio, double grados);

/// Arc from `desde` to `hasta`, degrees clockwise from the vertical.
QPainterPath Arco(QPointF centro, double radio, double desde, double hasta);

}  // namespace zorbin::figuras
