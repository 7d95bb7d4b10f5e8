// Drawing kit: puts lines, areas, hatches, dimensions and texts on a sheet.
#pragma once

#include <string>
#include <vector>

#include "listados/dibujos/mdLamina.h"

namespace zorbin {

/// Line widths [mm].
inline constexpr double kFino = 0.13;
inline constexpr double kMedio = 0.25;
inline constexpr double kGrueso = 0.4;

/// Heights of the letters [mm].
inline constexpr double kLetra = 2.9;
inline constexpr double kLetraMenor = 2.5;
inline constexpr double kLetraMayor = 4.4;

enum class Trama : std::uint8_t {
  Ninguna,
  Diagonal,
  Contraria,
  Horizontal,
  Vertical,
  Cruzada,
  Puntos,
  Hormigon,
  Grava,
  Tierra,
};

/// How an object stands on a sheet: millimetres of the object in, millimetres of paper out.
struct Vista {
  Xy origen;          // of the object, on the sheet [mm]
  double escala = 1;  // 1:escala

  double L(double mm) const { return mm / escala; }
  Xy P(double x, double y) const { return {origen.x + x / escala, origen.y + y / escala}; }
};

using Puntos = std::vector<Xy>;

Puntos Rectangulo(const Marco& m);
/// Arc clockwise; angles from the vertical upwards, clockwise [rad].
Puntos Arco(Xy centro, double radio, double desde, double hasta);
Xy Polar(Xy centro, double radio, double angulo);

class Plano {
 public:
  explicit Plano(Lamina& lamina) : lamina_(lamina) {}

  Lamina& lamina() { return lamina_; }
  void En(Capa capa) { capa_ = capa; }
  Capa capa() const { return capa_; }
  /// Identifier of what is drawn from here on.
  void Id(int id) { id_ = id; }
  /// True thickness of what is drawn as a line or a dot from here on [mm]; 0 for what has none.
  void Macizo(double mm) { macizo_ = mm; }
  /// What is drawn from here on is a detail of its own scale, until EnPrincipal.
  void EnDetalle(double escala);
  void EnPrincipal() { vista_ = kVistaPrincipal; }

  void Linea(Xy a, Xy b, Trazo trazo) { Quebrada({a, b}, trazo); }
  void Quebrada(Puntos puntos, Trazo trazo);
  void Quebradas(std::vector<Puntos> lineas, Trazo trazo);
  void Area(Puntos contorno, Mancha mancha, Trazo trazo = {});
  /// Even-odd.
  void Region(std::vector<Puntos> contornos, Mancha mancha, Trazo trazo = {});
  void Circulo(Xy centro, double radio, Mancha mancha, Trazo trazo = {});
  void Corona(Xy centro, double radio, double hueco, Mancha mancha, Trazo trazo = {});
  /// Fills a region with the lines or grains of a hatch; always the same ones.
  /// @param paso  between them [mm]
  void Rayado(const std::vector<Puntos>& contornos, Trama trama, Tinta tinta, double paso = 1.6);

  void Texto(Xy sitio, std::string texto, AnclaX x = AnclaX::Izquierda, AnclaY y = AnclaY::Base,
             double alto = kLetra, Tinta tinta = Tinta::Tinta);
  void Negrita(Xy sitio, std::string texto, AnclaX x, AnclaY y, double alto = kLetra);
  /// Text with a rim of paper, over what is drawn.
  void Encima(Xy sitio, std::string texto, AnclaX x, AnclaY y, double alto = kLetraMenor,
              Tinta tinta = Tinta::Tinta, bool negrita = false);
  void TextoVertical(Xy sitio, std::string texto, double alto = kLetra, Tinta tinta = Tinta::Tinta);

  /// Dimension between two points of a horizontal or a vertical line, drawn `aparte` from them
  /// (below or to the right; negative: above or to the left). The figure stands over the line, or,
  /// where it has no room, beyond its end.
  void CotaHorizontal(double x1, double x2, double y, double aparte, const std::string& texto);
  void CotaVertical(double y1, double y2, double x, double aparte, const std::string& texto);

  /// Line from a text to what it names, with a dot at its end.
  void Senal(Xy texto, Xy cosa);
  void Flecha(Xy desde, Xy punta, Tinta tinta = Tinta::Tinta);

 private:
  Lamina& lamina_;
  Capa capa_ = Capa::Datos;
  int id_ = kSinId;
  double macizo_ = 0;
  int vista_ = kVistaPrincipal;

  AspectoPieza Como(Mancha mancha, Trazo trazo) const {
    return {trazo, mancha, capa_, id_, macizo_, vista_};
  }
  Letrero RotuloDe(Xy sitio, std::string texto, double alto, Tinta tinta) const;
  void Tope(Xy p);
};

}  // namespace zorbin
