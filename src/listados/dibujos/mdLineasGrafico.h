// What the charts of one Tramo and of several share: the lines of a grid, and the axes of them.
#pragma once

#include "listados/dibujos/mdGraficosTramo.h"

namespace zorbin {

inline constexpr std::string_view kPresionGrafico = "at->MPa";
inline constexpr std::string_view kCargaGrafico = "T/M2->kN/M2";
inline constexpr std::string_view kMomentoGrafico = "mT->mkN";

/// Of the line at a place, from 0.
Patron PatronDe(std::size_t i);

/// Round values that hold those of the series.
EjeGrafico EjeY(const std::string& titulo, const std::vector<SerieGrafico>& series, bool desdeCero);

/// A grid along an axis, a line for each value of the other.
class LineasDeMalla {
 public:
  LineasDeMalla(EjeDeGrafico eje, const Malla& malla, const PalabrasDibujo& palabras)
      : eje_(eje), malla_(malla), w_(palabras) {}

  bool PorAltura() const { return eje_ == EjeDeGrafico::Altura; }
  std::size_t Lineas() const {
    return PorAltura() ? malla_.ejes.presiones.size() : malla_.ejes.alturas.size();
  }
  std::size_t Puntos() const {
    return PorAltura() ? malla_.ejes.alturas.size() : malla_.ejes.presiones.size();
  }
  const std::optional<PuntoMalla>& En(std::size_t linea, std::size_t punto) const {
    return PorAltura() ? malla_.En(punto, linea) : malla_.En(linea, punto);
  }
  /// Place of the height of a point.
  std::size_t Altura(std::size_t linea, std::size_t punto) const {
    return PorAltura() ? punto : linea;
  }
  /// In the unit of the axis.
  double Abscisa(std::size_t punto) const {
    return PorAltura() ? malla_.ejes.alturas[punto]
                       : w_.Convertido(malla_.ejes.presiones[punto], kPresionGrafico);
  }

 private:
  const EjeDeGrafico eje_;
  const Malla& malla_;
  const PalabrasDibujo& w_;
};

}  // namespace zorbin
