#include "listados/maqueta/mdDibujos.h"

#include <array>
#include <cmath>
#include <numbers>

#include "calculo/cargas/mdMarston.h"
#include "listados/maqueta/mdFormula.h"

namespace zorbin::memoria {

namespace {

constexpr double kLetra = 9.0;
constexpr double kFino = 0.5, kMedio = 0.9, kGrueso = 1.6;

// A drawing in the making; its origin is where the pen says, y downwards.
class Plano {
 public:
  explicit Plano(const Tipografia& tipografia) : tipos_(tipografia) {}

  void Linea(QPointF a, QPointF b, double grueso = kFino, int gris = 0) {
    caja_.Raya(a, b, grueso, gris);
  }

  void Trazo(const QPainterPath& camino, double grueso, int gris = 0) {
    caja_.piezas.push_back(CaminoPuesto{camino, grueso, gris});
  }

  void Mancha(const QPainterPath& camino, int gris) {
    caja_.piezas.push_back(CaminoPuesto{camino, 0, gris});
  }

  void Discontinua(QPointF a, QPointF b) {
    const QPointF v = b - a;
    const double largo = std::hypot(v.x(), v.y());
    const QPointF u = v / largo;
    for (double s = 0; s < largo; s += 6.5) Linea(a + u * s, a + u * std::min(s + 4.0, largo));
  }

  void Flecha(QPointF desde, QPointF punta, double grueso = kFino) {
    Linea(desde, punta, grueso);
    Punta(punta - desde, punta);
  }

  void Punta(QPointF rumbo, QPointF punta) {
    const QPointF u = rumbo / std::hypot(rumbo.x(), rumbo.y());
    const QPointF n(-u.y(), u.x());
    QPainterPath p(punta);
    p.lineTo(punta - u * 5.0 + n * 1.5);
    p.lineTo(punta - u * 5.0 - n * 1.5);
    Mancha(p, 0);
  }

  // Horizontal dimension with arrows at both ends and its label over it.
  void Cota(double x1, double x2, double y, const QString& formula, double donde = 0.5) {
    Flecha({(x1 + x2) / 2.0, y}, {x1, y});
    Flecha({(x1 + x2) / 2.0, y}, {x2, y});
    Formula({x1 + (x2 - x1) * donde, y - 4}, formula);
  }

  // Words or a formula centred on `medio`, whose y is the baseline; `lado` -1 ends there, 1 starts.
  void Texto(QPointF medio, const QString& texto, int lado = 0, Letra letra = Letra::Recta) {
    Rotulo(medio, tipos_.DeTexto(texto, {letra, kLetra}), lado);
  }
  void Formula(QPointF medio, const QString& formula, int lado = 0) {
    Rotulo(medio, ComponeFormula(tipos_, LeeFormula(formula, 0), kLetra + 0.5, false), lado);
  }

  // The drawing within `marco`, as a box with its foot on the baseline.
  Caja Acaba(const QRectF& marco) const {
    Caja c;
    c.ancho = marco.width();
    c.alto = marco.height();
    c.Pon(caja_, {-marco.left(), -marco.bottom()});
    return c;
  }

 private:
  const Tipografia& tipos_;
  Caja caja_;

  void Rotulo(QPointF medio, const Caja& texto, int lado) {
    const double x = lado < 0 ? -texto.ancho : lado > 0 ? 0 : -texto.ancho / 2.0;
    caja_.Pon(texto, medio + QPointF(x, 0));
  }
};

QPainterPath Corona(double interior, double exterior) {
  QPainterPath p;
  p.addEllipse(QPointF(0, 0), exterior, exterior);
  p.addEllipse(QPointF(0, 0), interior, interior);
  return p;
}

QPainterPath Rectangulo(double x1, double y1, double x2, double y2) {
  QPainterPath p;
  p.addRect(QRectF(QPointF(x1, y1), QPointF(x2, y2)));
  return p;
}

void CargasAnillo(Plano& p, double R) {
  p.Linea({-R, -R - 34}, {R, -R - 34}, kMedio);
  for (double x = -R; x <= R + 0.1; x += R / 4.0) p.Flecha({x, -R - 34}, {x, -R - 12});
  p.Texto({0, -R - 39}, QStringLiteral("carga vertical"));
  for (const int lado : {-1, 1}) {
    const auto largo = [&](double y) { return 16.0 + 12.0 * (y + R) / (2.0 * R); };
    for (double y = -R; y <= R + 0.1; y += R / 3.0) {
      p.Flecha({lado * (R + 26 + largo(y)), y}, {lado * (R + 26.0), y});
    }
    p.Linea({lado * (R + 26 + largo(-R)), -R}, {lado * (R + 26 + largo(R)), R}, kMedio);
  }
  p.Texto({-R - 36, -R - 8}, QStringLiteral("empuje lateral"));
  p.Texto({R * 0.85, R + 20}, QStringLiteral("reacción de la cuna"), 1);
  for (const double grados : {-40.0, -20.0, 0.0, 20.0, 40.0}) {
    const double a = grados * std::numbers::pi / 180.0;
    const QPointF u(std::sin(a), std::cos(a));
    p.Flecha(u * (R + 24), u * (R + 3));
  }
}

void SeccionesAnillo(Plano& p, double r, double R) {
  for (const QPointF u : {QPointF(0, -1), QPointF(1, 0), QPointF(-1, 0), QPointF(0, 1)}) {
    p.Linea(u * (r - 4), u * (R + 4), kGrueso);
  }
  p.Texto({0, -r + 14}, QStringLiteral("CLAVE"));
  p.Texto({r - 7, 3}, QStringLiteral("RIÑONES"), -1);
  p.Texto({0, r - 8}, QStringLiteral("SOLERA"));
}

// A piece of wall with positive moment and axial force.
void SignosAnillo(Plano& p, double x) {
  const double ancho = 84;
  const double alto = 22;
  const double y = 8;
  p.Mancha(Rectangulo(x, y - alto / 2, x + ancho, y + alto / 2), 225);
  p.Trazo(Rectangulo(x, y - alto / 2, x + ancho, y + alto / 2), kFino);
  p.Texto({x + ancho / 2, y - alto / 2 - 5}, QStringLiteral("cara exterior"));
  p.Texto({x + ancho / 2, y + alto / 2 + 11}, QStringLiteral("cara interior"));
  for (const int lado : {-1, 1}) {
    const double borde = lado < 0 ? x : x + ancho;
    p.Flecha({borde + lado * 4.0, y}, {borde + lado * 30.0, y}, kMedio);
    QPainterPath arco;
    const QRectF marco(borde - 13 + lado * 7.0, y - 21, 26, 42);
    arco.arcMoveTo(marco, lado < 0 ? 250 : 290);
    arco.arcTo(marco, lado < 0 ? 250 : 290, lado < 0 ? -140 : 140);
    p.Trazo(arco, kMedio);
    p.Punta({-lado * 1.0, -0.45}, arco.currentPosition());
    p.Formula({borde + lado * 36.0, y + 3}, QStringLiteral("N"), lado);
    p.Formula({borde + lado * 17.0, y + 33}, QStringLiteral("M"), lado);
  }
}

Caja Anillo(const Tipografia& tipografia) {
  constexpr double r = 52, R = 62;
  Plano p(tipografia);
  p.Mancha(Corona(r, R), 225);
  p.Trazo(Corona(r, R), kMedio);
  CargasAnillo(p, R);
  SeccionesAnillo(p, r, R);
  SignosAnillo(p, R + 112);
  return p.Acaba(QRectF(QPointF(-R - 66, -R - 50), QPointF(R + 242, R + 28)));
}

Caja Pared(const Tipografia& tipografia) {
  constexpr double xInt = 40, xCam = 86, xNuc = 220, xAlambre = 227, xRev = 290;
  constexpr double y1 = -46, y2 = 46, xFibra = 152;
  Plano p(tipografia);
  p.Mancha(Rectangulo(xInt, y1, xNuc, y2), 222);
  p.Mancha(Rectangulo(xNuc, y1, xRev, y2), 240);
  p.Linea({xCam, y1}, {xCam, y2}, 2.2);
  for (const double x : {xInt, xNuc, xRev}) p.Linea({x, y1}, {x, y2}, kMedio);
  for (double y = y1 + 10; y < y2; y += 24) {
    QPainterPath hilo;
    hilo.addEllipse(QPointF(xAlambre, y), 6, 6);
    p.Mancha(hilo, 60);
  }
  p.Discontinua({xFibra, y1 - 6}, {xFibra, y2 + 26});
  p.Texto({xFibra, y1 - 11}, QStringLiteral("fibra neutra"));
  p.Texto({(xInt + xCam) / 2, -2}, QStringLiteral("primario"));
  p.Texto({(xCam + xFibra) / 2, 16}, QStringLiteral("camisa"));
  p.Flecha({(xCam + xFibra) / 2 - 15, 13}, {xCam + 2, 13});
  p.Texto({(xAlambre + 6 + xRev) / 2, -2}, QStringLiteral("revestim."));
  const std::array<std::pair<double, const char*>, 4> caras{
      {{xInt, "PI"}, {xNuc - 1, "PE"}, {xNuc + 1, "RI"}, {xRev, "RE"}}};
  for (const auto& [x, nombre] : caras) {
    const bool izquierda = nombre[1] == 'E' && x < xRev;
    const double dx = x == xInt || izquierda ? -12 : 12;
    p.Texto({x + dx + (dx < 0 ? -3 : 3), y1 - 11}, QString::fromLatin1(nombre), dx < 0 ? -1 : 1,
            Letra::Negrita);
    p.Flecha({x + dx, y1 - 10}, {x, y1 - 1});
  }
  p.Texto({xRev + 16, 31}, QStringLiteral("Ac (alambre)"), 1, Letra::Negrita);
  p.Flecha({xRev + 13, 28}, {xAlambre + 7, 14});
  p.Cota(xInt, xFibra, y2 + 20, QStringLiteral("y_i"));
  p.Cota(xFibra, xNuc, y2 + 20, QStringLiteral("y_e"));
  p.Cota(xFibra, xRev, y2 + 38, QStringLiteral("y_r"), 0.27);
  p.Cota(xInt, xNuc, y2 + 58, QStringLiteral("e"));
  p.Cota(xNuc, xRev, y2 + 58, QStringLiteral("h"));
  for (const double x : {xInt, xNuc, xRev}) p.Linea({x, y2}, {x, y2 + 62}, 0.3, 120);
  p.Linea({xFibra, y2 + 26}, {xFibra, y2 + 42}, 0.3, 120);
  p.Texto({xInt - 6, 3}, QStringLiteral("interior"), -1, Letra::Cursiva);
  p.Texto({xRev + 6, 3}, QStringLiteral("exterior"), 1, Letra::Cursiva);
  return p.Acaba(QRectF(QPointF(0, y1 - 24), QPointF(xRev + 72, y2 + 64)));
}

// Pressure of the four load trains by depth, without impact.
Caja Moviles(const Tipografia& tipografia) {
  constexpr double ancho = 300, alto = 150, hMin = 0.5, hMax = 4.0, pMax = 11.0;
  Plano p(tipografia);
  const auto x = [&](double H) { return (H - hMin) / (hMax - hMin) * ancho; };
  const auto y = [&](double Pc) { return -Pc / pMax * alto; };
  p.Linea({ancho, 0}, {ancho, -alto}, 0.3, 190);
  for (int i = 1; i <= 8; ++i) {
    const double H = 0.5 * i;
    p.Linea({x(H), 0}, {x(H), -3}, kFino);
    p.Texto({x(H), 12}, QString::number(H, 'f', 1).replace('.', ','));
  }
  for (int Pc = 0; Pc <= 10; Pc += 2) {
    p.Linea({0, y(Pc)}, {ancho, y(Pc)}, 0.3, 190);
    p.Texto({-5, y(Pc) + 3}, QString::number(Pc), -1);
  }
  p.Linea({0, 0}, {ancho, 0}, kMedio);
  p.Linea({0, 0}, {0, -alto}, kMedio);
  p.Formula({ancho, 26}, QStringLiteral("H\\;\\text{(m)}"), -1);
  p.Formula({2, -alto - 6}, QStringLiteral("P_c\\;\\text{(t/m²)}"));
  struct Tren {
    std::int16_t codigo;
    double grueso;
    int gris;
    const char* nombre;
  };
  constexpr std::array<Tren, 4> kTrenes{{{4, 2.0, 0, "tráfico ferroviario"},
                                         {3, 0.8, 0, "carro de 60 t"},
                                         {2, 1.6, 110, "eje de 13 t"},
                                         {1, 0.8, 110, "eje de 7 t"}}};
  p.Mancha(Rectangulo(x(2.3), -alto + 4, x(3.6), -alto + 60), 255);
  double yLeyenda = -alto + 16;
  for (const auto& t : kTrenes) {
    QPainterPath curva({x(hMin), y(PresionMovil(t.codigo, hMin))});
    for (double H = hMin; H <= hMax; H += 0.002) curva.lineTo(x(H), y(PresionMovil(t.codigo, H)));
    p.Trazo(curva, t.grueso, t.gris);
    p.Linea({x(2.35), yLeyenda - 3}, {x(2.35) + 22, yLeyenda - 3}, t.grueso, t.gris);
    p.Texto({x(2.35) + 28, yLeyenda}, QString::fromUtf8(t.nombre), 1);
    yLeyenda += 13;
  }
  return p.Acaba(QRectF(QPointF(-26, -alto - 16), QPointF(ancho + 10, 30)));
}

}  // namespace

std::optional<Caja> Dibujo(const Tipografia& tipografia, const QString& nombre) {
  if (nombre == "anillo") return Anillo(tipografia);
  if (nombre == "pared") return Pared(tipografia);
  if (nombre == "moviles") return Moviles(tipografia);
  return std::nullopt;
}

}  // namespace zorbin::memoria
