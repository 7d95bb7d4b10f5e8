// A cut along the wall of a pipe, where every bar is seen, with the outer face above.
#pragma once

#include "listados/dibujos/mdDibujoTubo.h"

namespace zorbin {

/// Steel that is drawn as a line is never thinner [mm of paper].
inline constexpr double kMinimoAcero = 0.3;

class Corte {
 public:
  /// Takes the largest round scale that fits a place.
  Corte(Plano& plano, const ParedDibujada& pared, const Marco& sitio);

  double Escala() const { return vista_.escala; }
  /// Length of pipe that is cut [mm].
  double Largo() const { return largo_; }
  double Arriba() const { return Y(pared_.espesor); }
  double Abajo() const { return Y(0.0); }
  double CentroX() const { return vista_.P(largo_ / 2, 0).x; }
  /// Place of a layer: of the bar of it that is nearest to a fraction of the length, or of the
  /// sheet.
  Xy EnCapa(const CapaAcero& a, double fraccion) const;

  void Pinta(const PalabrasDibujo& w);

 private:
  static constexpr double kCotas = 17.0;
  static constexpr double kPies = 10.0;

  Plano& plano_;
  const ParedDibujada& pared_;
  double largo_;
  Vista vista_;

  double Y(double distancia) const { return vista_.P(0, pared_.espesor - distancia).y; }
  Marco Caja(double desde, double hasta) const;
  void Banda(double desde, double hasta, Mancha m);
  void Raya(double d, Trazo trazo);
  void Chapa(const CapaAcero& a);
  std::vector<double> Barras(const CapaAcero& a) const;
  void PintaBarras(const CapaAcero& a);
  void Cotas(const PalabrasDibujo& w);
};

}  // namespace zorbin
