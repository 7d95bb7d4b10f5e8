// What stands on a page: texts, paths and pictures, gathered in boxes that are placed in other
// boxes. Everything is measured in points (1/72 in), y downwards from the baseline of the box.
#pragma once

#include <QFont>
#include <QFontMetricsF>
#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <QPointF>
#include <QRectF>
#include <QString>
#include <map>
#include <utility>
#include <variant>
#include <vector>

namespace zorbin::memoria {

enum class Letra { Recta, Cursiva, Negrita, NegritaCursiva, Mono };

struct Tipo {
  Letra letra = Letra::Recta;
  double cuerpo = 10.5;

  bool operator<(const Tipo& o) const {
    return std::pair(letra, cuerpo) < std::pair(o.letra, o.cuerpo);
  }
};

struct TextoPuesto {
  QPointF sitio;  // of its baseline
  QString texto;
  Tipo tipo;
};

struct CaminoPuesto {
  QPainterPath camino;
  double grueso = 0;  // of the line; 0 fills the path
  int gris = 0;       // 0 black to 255 white
};

struct ImagenPuesta {
  QRectF marco;
  QImage imagen;
};

using Pieza = std::variant<TextoPuesto, CaminoPuesto, ImagenPuesta>;

struct Caja {
  double ancho = 0;
  double alto = 0;   // above the baseline
  double hondo = 0;  // below it
  std::vector<Pieza> piezas;

  double Altura() const { return alto + hondo; }

  /// Places `otra` with its origin at `sitio`; the size does not change.
  void Pon(const Caja& otra, QPointF sitio);

  /// Places `otra` at the right end, `subida` above the baseline, and grows to hold it.
  void Sigue(const Caja& otra, double subida = 0);

  void Raya(QPointF a, QPointF b, double grueso, int gris = 0);
};

/// The fonts of the report. They are measured large and without hinting, so that a length does not
/// depend on the device.
class Tipografia {
 public:
  /// @throws ErrorFuente when this machine lacks the fonts
  Tipografia();

  double Ancho(const QString& texto, const Tipo& tipo) const;

  /// Box of a text; its height is that of its ink.
  Caja DeTexto(const QString& texto, const Tipo& tipo) const;

  /// Outline of a text at its baseline.
  QPainterPath Contorno(const QString& texto, const Tipo& tipo) const;

 private:
  struct Medida {
    QFont fuente;
    QFontMetricsF metrica;
  };
  mutable std::map<Letra, Medida> medidas_;

  const Medida& De(Letra letra) const;
};

/// Device units of a point: a page is painted on a device of 72 · kPorPunto dots per inch.
inline constexpr int kPorPunto = 100;

/// Paints a box with its origin at `sitio` [pt].
void Pinta(QPainter& pintor, const Caja& caja, QPointF sitio);

}  // namespace zorbin::memoria
