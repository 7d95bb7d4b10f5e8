// What the screen of adjustments draws: the wall of the pipe to scale with its steel, the bars of
// needed against provided steel, and the mark of what falls short. All in the colours of the theme.
#pragma once

#include <QString>
#include <QWidget>

#include "sesion/ajustes/mdPared.h"

namespace zorbin {

/// Everything that is drawn in a colour of its own.
enum class Trazo { Necesaria, Dispuesta, Camisa, Espiras, Exteriores };

/// A sample of a colour, for a legend.
class MuestraTrazo : public QWidget {
  Q_OBJECT

 public:
  explicit MuestraTrazo(Trazo trazo, QWidget* padre = nullptr);
  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* suceso) override;

 private:
  Trazo trazo_;
};

/// Needed steel over provided steel, on a scale that several share.
class BarraArmadura : public QWidget {
  Q_OBJECT

 public:
  explicit BarraArmadura(QWidget* padre = nullptr);
  /// @param maximo  area that takes the whole width [cm2/m]
  void Pon(double necesaria, double dispuesta, double maximo, bool alerta);
  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* suceso) override;

 private:
  double necesaria_ = 0, dispuesta_ = 0, maximo_ = 0;  // [cm2/m]
  bool alerta_ = false;
};

/// The warning mark. It keeps its place while it is not seen.
class MarcaAlerta : public QWidget {
  Q_OBJECT

 public:
  explicit MarcaAlerta(QWidget* padre = nullptr);
  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* suceso) override;
};

/// A cut of the wall along the pipe, the outer face above: thickness, covers, sheet and bars are to
/// one scale, and as much of the length is seen as there is room for.
class DibujoPared : public QWidget {
  Q_OBJECT

 public:
  /// Texts of the drawing: the two faces, and the measures in their notation.
  struct Rotulos {
    QString exterior, interior;
    QString Esp, Rece, BRAZO, Reci;
  };

  explicit DibujoPared(QWidget* padre = nullptr);
  void Pon(const ParedDeTubo& pared, const Rotulos& rotulos);
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* suceso) override;

 private:
  struct Encaje;  // of the wall in the widget
  ParedDeTubo pared_;
  Rotulos rotulos_;

  Encaje Encaja() const;
  void PintaHormigon(QPainter& pintor, const Encaje& e) const;
  void PintaCapa(QPainter& pintor, const Encaje& e, const CapaDeBarras& capa, double y,
                 Trazo trazo) const;
  void PintaCotas(QPainter& pintor, const Encaje& e) const;
};

}  // namespace zorbin
