#include "programas/genera-figuras/mdColocacion.h"

#include <QLineF>
#include <cmath>
#include <numbers>

namespace zorbin::figuras {

namespace {

constexpr double kPared = 0.18;      // wall of the drawn pipe, in external radii
constexpr double kVueloCuna = 1.35;  // half width of a concrete cradle, in external radii
constexpr int kGrisTubo = 226;

/// Pipe and excavation of a cut [mm on the sheet, y downwards].
struct Corte {
  QPointF eje;        // centre of the pipe
  double radio;       // external
  double semiArriba;  // half width of the excavation at the natural ground
  double semiAbajo;   // half width of its bottom
  double lecho;       // thickness of the bedding under the pipe
  double yNatural;    // natural ground

  double YClave() const { return eje.y() - radio; }
  double YFondo() const { return eje.y() + radio + lecho; }
  QPointF Clave() const { return {eje.x(), YClave()}; }

  /// Sides of the excavation at the height y.
  double Semi(double y) const {
    return semiAbajo + (semiArriba - semiAbajo) * (YFondo() - y) / (YFondo() - yNatural);
  }
};

/// Top of a bedding that embraces the pipe over `angulo` degrees.
double YCuna(const Corte& c, int angulo) {
  return c.eje.y() + c.radio * std::cos(angulo / 2.0 * std::numbers::pi / 180.0);
}

/// Excavation from the height `y` down to its bottom, left lip to right lip.
QPolygonF Excavacion(const Corte& c, double y) {
  const double x = c.eje.x();
  return {{x - c.Semi(y), y},
          {x - c.semiAbajo, c.YFondo()},
          {x + c.semiAbajo, c.YFondo()},
          {x + c.Semi(y), y}};
}

QPainterPath CaminoCuna(const Corte& c, Cuna cuna) {
  const double y = YCuna(c, cuna.angulo);
  QPainterPath masa = Poligono(Excavacion(c, y));
  if (cuna.material == Material::Hormigon) {
    QPainterPath encofrado;
    const double semi = kVueloCuna * c.radio;
    encofrado.addRect(QRectF(c.eje.x() - semi, y, 2.0 * semi, c.YFondo() - y));
    masa = masa.intersected(encofrado);
  }
  return masa.subtracted(Circulo(c.eje, c.radio));
}

void PintaTubo(Lapiz& lapiz, const Corte& c) {
  const QPainterPath pared = Corona(c.eje, c.radio * (1.0 - kPared), c.radio);
  lapiz.Mancha(pared, kGrisTubo);
  lapiz.Contorno(pared, Trazo::Grueso);
}

void PintaEjes(Lapiz& lapiz, const Corte& c) {
  const double r = c.radio + 1.8;
  lapiz.Linea(c.eje - QPointF(r, 0.0), c.eje + QPointF(r, 0.0), Trazo::Eje);
  lapiz.Linea(c.eje - QPointF(0.0, r), c.eje + QPointF(0.0, r), Trazo::Eje);
}

/// @param libre  part of the bedding without hatch
void PintaCuna(Lapiz& lapiz, const Corte& c, Cuna cuna, const QPainterPath& libre = {}) {
  const QPainterPath masa = CaminoCuna(c, cuna);
  Trama(lapiz, masa.subtracted(libre), cuna.material);
  lapiz.Contorno(masa, Trazo::Medio);
}

/// External diameter across the pipe, aslant to keep clear of the centre lines.
QLineF Diametro(const Corte& c) {
  constexpr double kSesgo = -38.0;
  return {Polar(c.eje, c.radio, kSesgo + 180.0), Polar(c.eje, c.radio, kSesgo)};
}

/// Where the dimension of the diameter enters the bedding, which leaves room for it.
QPainterPath HuecoDiametro(const Corte& c) {
  QLineF cola = Diametro(c);
  cola.setLength(-Lapiz::kCola - 0.3);
  return Banda(Poligonal({cola.p1(), cola.p2()}), 1.5);
}

/// Natural ground with its excavation, from edge to edge of the sheet.
void PintaTerreno(Lapiz& lapiz, const Corte& c) {
  constexpr double kBorde = 4.0;
  const double derecha = lapiz.Hoja().width() - kBorde;
  QPolygonF perfil = Excavacion(c, c.yNatural);
  perfil.prepend({kBorde, c.yNatural});
  perfil.append({derecha, c.yNatural});
  QPolygonF terreno = perfil;
  terreno << QPointF(derecha, lapiz.Hoja().height()) << QPointF(kBorde, lapiz.Hoja().height());
  TramaTerreno(lapiz, Poligonal(perfil), Poligono(terreno));
  lapiz.Contorno(Poligonal(perfil), Trazo::Medio);
}

/// Level of the natural ground across the excavation: the surface of the fill in a trench, a line
/// of reference under an embankment.
void PintaSuperficie(Lapiz& lapiz, const Corte& c, Colocacion colocacion) {
  if (colocacion == Colocacion::Terraplen) return;
  const QPolygonF zanja = Excavacion(c, c.yNatural);
  lapiz.Linea(zanja.first(), zanja.last(),
              colocacion == Colocacion::Zanja ? Trazo::Medio : Trazo::Discontinuo);
}

/// Embankment over the natural ground, with slopes of `talud` horizontal to 1 vertical.
struct Terraplen {
  double yCoronacion;
  double semiCoronacion;
  double talud;
};

QPolygonF PerfilTerraplen(const Corte& c, const Terraplen& t) {
  const double x = c.eje.x();
  const double pie = t.semiCoronacion + t.talud * (c.yNatural - t.yCoronacion);
  return {{x - pie, c.yNatural},
          {x - t.semiCoronacion, t.yCoronacion},
          {x + t.semiCoronacion, t.yCoronacion},
          {x + pie, c.yNatural}};
}

Corte CorteDe(Colocacion colocacion, Cuna cuna) {
  switch (colocacion) {
    case Colocacion::Zanja:
      return {{50.0, 33.0}, 9.0, 17.5, 17.5, 4.0, 6.0};
    case Colocacion::ZanjaTerraplenada:
      return {{50.0, 34.0}, 8.5, 17.0, 17.0, 4.0, 14.5};
    case Colocacion::Terraplen:
      break;
  }
  // The bedding is cut into the natural ground, so that the pipe projects from its top on.
  Corte c{{50.0, 34.0}, 10.0, 17.5, 15.0, 4.0, 0.0};
  // Concrete is cast against the sides of the cut.
  if (cuna.material == Material::Hormigon) c.semiArriba = c.semiAbajo = kVueloCuna * c.radio;
  c.yNatural = YCuna(c, cuna.angulo);
  return c;
}

Terraplen TerraplenDe(Colocacion colocacion) {
  if (colocacion == Colocacion::ZanjaTerraplenada) return {4.0, 26.0, 1.4};
  return {6.0, 16.0, 0.82};
}

/// Fill height from the top of the fill, and the distance from the crown to the natural ground.
void AcotaAltura(Lapiz& lapiz, const Corte& c, Colocacion colocacion, double yCoronacion) {
  // Under an embankment the label stands above the line of the natural ground.
  const double donde = colocacion == Colocacion::ZanjaTerraplenada ? 0.26 : 0.5;
  lapiz.Cota({c.eje.x(), yCoronacion}, c.Clave(), "H_r", {}, donde);
  if (colocacion == Colocacion::Zanja) return;
  const bool terraplen = colocacion == Colocacion::Terraplen;
  const double x = c.eje.x() + (terraplen ? c.radio + 5.5 : 11.5);
  lapiz.Linea(c.Clave() + QPointF(0.8, 0.0), {x + 1.0, c.YClave()}, Trazo::Fino);
  lapiz.Cota({x, c.yNatural}, {x, c.YClave()}, terraplen ? "H_r'" : "H_r''");
}

void AcotaAncho(Lapiz& lapiz, const Corte& c) {
  const QPointF fondo(c.eje.x(), c.YFondo());
  const QPointF semi(c.semiAbajo, 0.0);
  lapiz.Cota(fondo - semi, fondo + semi, "b", {0.0, 4.6});
}

/// Angle of the bedding: radii to the ends of the contact, arc with arrows and label.
void AcotaAngulo(Lapiz& lapiz, const Corte& c, int angulo) {
  const double semi = angulo / 2.0;
  const double rArco = c.radio * 0.56;
  for (const double lado : {-1.0, 1.0}) {
    const double grados = 180.0 + lado * semi;
    lapiz.Linea(c.eje, Polar(c.eje, c.radio, grados), Trazo::Fino);
    const double atras = 12.0;  // the head follows the chord of the end of the arc [degrees]
    lapiz.Flecha(Polar(c.eje, rArco, grados - lado * atras), Polar(c.eje, rArco, grados));
  }
  lapiz.Contorno(Arco(c.eje, rArco, 180.0 - semi, 180.0 + semi), Trazo::Fino);
  lapiz.Rotulo(c.eje + QPointF(0.0, rArco), QString::number(angulo) + u'º', Letra::Cifra);
}

}  // namespace

void DibujaColocacion(Lapiz& lapiz, Colocacion colocacion, Cuna cuna) {
  const Corte c = CorteDe(colocacion, cuna);
  PintaTerreno(lapiz, c);
  QPainterPath relleno = Poligono(Excavacion(c, c.yNatural));
  double yCoronacion = c.yNatural;
  if (colocacion != Colocacion::Zanja) {
    const Terraplen t = TerraplenDe(colocacion);
    const QPolygonF perfil = PerfilTerraplen(c, t);
    relleno = relleno.united(Poligono(perfil));
    yCoronacion = t.yCoronacion;
    lapiz.Contorno(Poligonal(perfil), Trazo::Medio);
  }
  relleno = relleno.subtracted(Circulo(c.eje, c.radio)).subtracted(CaminoCuna(c, cuna));
  Trama(lapiz, relleno, Material::Relleno);
  PintaCuna(lapiz, c, cuna, HuecoDiametro(c));
  PintaTubo(lapiz, c);
  PintaEjes(lapiz, c);
  PintaSuperficie(lapiz, c, colocacion);
  AcotaAltura(lapiz, c, colocacion, yCoronacion);
  if (colocacion != Colocacion::Terraplen) AcotaAncho(lapiz, c);
  lapiz.CotaDiametro(Diametro(c).p1(), Diametro(c).p2(), "D_e");
}

void DibujaCuna(Lapiz& lapiz, Cuna cuna) {
  const Corte c{{27.5, 29.5}, 14.5, 23.0, 23.0, 5.5, 3.5};
  const QPolygonF zanja = Excavacion(c, c.yNatural);
  QPainterPath hoja;
  hoja.addRect(QRectF(QPointF(), lapiz.Hoja()));
  TramaTerreno(lapiz, Poligonal(zanja), hoja.subtracted(Poligono(zanja)));
  const QPainterPath tubo = Circulo(c.eje, c.radio);
  Trama(lapiz, Poligono(zanja).subtracted(tubo).subtracted(CaminoCuna(c, cuna)), Material::Relleno);
  PintaCuna(lapiz, c, cuna);
  lapiz.Contorno(Poligonal(zanja), Trazo::Medio);
  lapiz.Contorno(LineaRotura(zanja.first(), zanja.last()), Trazo::Fino);
  PintaTubo(lapiz, c);
  PintaEjes(lapiz, c);
  const QPointF semi(c.radio, 0.0);
  lapiz.Cota(c.eje - semi, c.eje + semi, "D_e", {0.0, -c.radio - 5.0});
  AcotaAngulo(lapiz, c, cuna.angulo);
}

void DibujaAnagrama(Lapiz& lapiz) {
  constexpr int kLinea = 140, kLetras = 80;
  const Corte c{{36.0, 48.0}, 14.0, 26.0, 21.0, 5.0, 31.0};
  lapiz.Tinta(kLinea);
  PintaTerreno(lapiz, c);
  PintaCuna(lapiz, c, {Material::Granular, 90});
  PintaTubo(lapiz, c);
  lapiz.Contorno(Circulo(c.eje, c.radio * (1.0 - kPared / 2.0)), Trazo::Medio);
  lapiz.Tinta(kLetras);
  lapiz.Rotulo({88.0, 21.0}, "ZORBIN", Letra::Titulo, 13.0);
}

}  // namespace zorbin::figuras
