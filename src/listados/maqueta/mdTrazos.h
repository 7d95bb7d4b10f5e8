// What stands on a page: texts, paths and pictures, gathered in boxes that are placed in other
// boxes. Everything is measured in points (1/72 in), y downwards from the baseline of the box.
#pragma once

#include <QFont>
#include <QGlyphRun>
#include <QHash>
#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <QPointF>
#include <QRawFont>
#include <QRectF>
#include <QString>
#include <array>
#include <functional>
#include <memory>
#include <utility>
#include <variant>
#include <vector>

namespace zorbin::memoria {

enum class Letra { Recta, Cursiva, Negrita, NegritaCursiva, Mono };

struct Tipo {
  Letra letra = Letra::Recta;
  double cuerpo = 10.5;
  int gris = 0;  // 0 black to 255 white
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

/// A drawing that paints itself, a point to a unit, from the upper left corner of its place.
struct DibujoPuesto {
  QRectF marco;
  std::shared_ptr<const std::function<void(QPainter&)>> pinta;
};

/// A place that leads to another one of the document. It shows nothing.
struct EnlacePuesto {
  QRectF marco;
  QString destino;  // name of an anchor
};

using Pieza = std::variant<TextoPuesto, CaminoPuesto, ImagenPuesta, DibujoPuesto, EnlacePuesto>;

struct Caja {
  double ancho = 0;
  double alto = 0;   // above the baseline
  double hondo = 0;  // below it
  std::vector<Pieza> piezas;

  double Altura() const { return alto + hondo; }

  /// Places `otra` with its origin at `sitio`; the size does not change.
  void Pon(const Caja& otra, QPointF sitio);
  void Pon(Caja&& otra, QPointF sitio);

  /// Places `otra` at the right end, `subida` above the baseline, and grows to hold it.
  void Sigue(const Caja& otra, double subida = 0);

  void Raya(QPointF a, QPointF b, double grueso, int gris = 0);
  void Fondo(const QRectF& marco, int gris);
  void Dibuja(const QRectF& marco, std::shared_ptr<const std::function<void(QPainter&)>> pinta);
  void Enlaza(const QRectF& marco, const QString& destino);
};

enum class Familia { Serif, Palo };

/// The fonts of a document. They are measured large and without hinting, so that a length does not
/// depend on the device. What a word measures is kept: one belongs to one thread.
class Tipografia {
 public:
  /// @throws ErrorFuente when this machine lacks the fonts
  explicit Tipografia(Familia familia = Familia::Serif);

  double Ancho(const QString& texto, const Tipo& tipo) const;

  /// Box of a text; its height is that of its ink.
  Caja DeTexto(const QString& texto, const Tipo& tipo) const;

  /// Outline of a text at its baseline.
  QPainterPath Contorno(const QString& texto, const Tipo& tipo) const;

  /// Paints a box with its origin at `sitio` [pt]. The painter stands on a device of
  /// 72 · kPorPunto dots per inch.
  void Pinta(QPainter& pintor, const Caja& caja, QPointF sitio) const;

 private:
  /// A text shaped, at the size of measuring.
  struct Trazado {
    QList<QGlyphRun> glifos;
    double ancho = 0, alto = 0, hondo = 0;
  };
  struct Glifo {
    quint32 indice = 0;
    double ancho = 0, alto = 0, hondo = 0;
  };
  struct Medida {
    QFont fuente;
    QRawFont cruda;
    QHash<char16_t, Glifo> cifras;
    QHash<QString, Trazado> palabras;
  };

  Familia familia_;
  mutable std::array<std::unique_ptr<Medida>, 5> medidas_;

  Medida& De(Letra letra) const;
  static const Glifo& DeCifra(Medida& m, char16_t c);
  static const Trazado& DePalabra(Medida& m, const QString& texto);
  Trazado Mide(Medida& m, const QString& texto) const;
  void PintaTexto(QPainter& pintor, const TextoPuesto& t, QPointF sitio) const;
};

/// Device units of a point.
inline constexpr int kPorPunto = 100;

}  // namespace zorbin::memoria
