#include "listados/dibujos/mdDxf.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <set>
#include <string_view>

#include "base/mdAnsi.h"
#include "base/mdNumeros.h"
#include "listados/dibujos/mdSvg.h"

namespace zorbin {

namespace {

constexpr int kDecimales = 4;        // of a millimetre
constexpr double kMayuscula = 0.72;  // height of a capital, by which the format measures, in ems
constexpr double kAparte = 10.0;     // between the sheet and what is set apart [mm of paper]
constexpr std::size_t kMayorTexto = 255;  // [bytes]

// Colours by their number in the format, which every drafting program shows alike.
constexpr std::array<int, kTintas> kColores{{
    7,   7,  8,   253,           // paper, ink, what accompanies it, grid
    9,   41, 1,   4,   6,        // concrete, coating, bars, sheet, wire
    42,  34, 140, 4,             // fill, ground, water, accent
    3,   1,                      // complies, does not
    134, 30, 1,   200, 94, 152,  // series
}};

struct FilaCapa {
  Capa capa;
  Tinta tinta;   // its colour is that of the layer
  bool variada;  // what lies in it may have a colour of its own
};
constexpr std::array<FilaCapa, kCapas> kFilas{{
    {Capa::Terreno, Tinta::Terreno, false},
    {Capa::Relleno, Tinta::Relleno, false},
    {Capa::Cuna, Tinta::Revestimiento, false},
    {Capa::Agua, Tinta::Agua, false},
    {Capa::Hormigon, Tinta::Tinta, false},
    {Capa::Revestimiento, Tinta::Revestimiento, false},
    {Capa::Chapa, Tinta::Chapa, false},
    {Capa::Interior, Tinta::Serie2, false},
    {Capa::Exterior, Tinta::Barra, false},
    {Capa::Alambre, Tinta::Alambre, false},
    {Capa::Ejes, Tinta::Tenue, false},
    {Capa::Tramas, Tinta::Tenue, true},
    {Capa::Datos, Tinta::Tinta, true},
    {Capa::Cotas, Tinta::Tenue, false},
    {Capa::Textos, Tinta::Tinta, true},
}};

int ColorDe(Tinta tinta) {
  return kColores[static_cast<std::size_t>(tinta)];
}

std::string Num(double valor) {
  std::string texto = TextoDecimal(valor, kDecimales, '.');
  while (texto.back() == '0') texto.pop_back();
  if (texto.back() == '.') texto += '0';
  return texto;
}

// Groups of the format: a code and its value, a line each.
class Grupos {
 public:
  Grupos& Pon(int codigo, std::string_view valor) {
    texto_ += std::to_string(codigo);
    texto_ += "\r\n";
    texto_ += valor;
    texto_ += "\r\n";
    return *this;
  }
  Grupos& Entero(int codigo, int valor) { return Pon(codigo, std::to_string(valor)); }
  Grupos& Real(int codigo, double valor) { return Pon(codigo, Num(valor)); }
  /// The height of a point is always 0.
  Grupos& Punto(int codigo, Xy p) {
    return Real(codigo, p.x).Real(codigo + 10, p.y).Real(codigo + 20, 0.0);
  }
  void Anade(const Grupos& otros) { texto_ += otros.texto_; }
  const std::string& texto() const { return texto_; }

 private:
  std::string texto_;
};

// Where a view of the sheet stands in the drawing [mm].
struct Sitio {
  double escala = 1;
  Xy origen;

  Xy P(Xy papel) const { return {origen.x + papel.x * escala, origen.y - papel.y * escala}; }
};

class Caja {
 public:
  void Toma(Xy p) {
    minimo_ = {std::min(minimo_.x, p.x), std::min(minimo_.y, p.y)};
    maximo_ = {std::max(maximo_.x, p.x), std::max(maximo_.y, p.y)};
  }
  void Toma(Xy centro, double radio) {
    Toma({centro.x - radio, centro.y - radio});
    Toma({centro.x + radio, centro.y + radio});
  }
  bool Vacia() const { return minimo_.x > maximo_.x; }
  Xy Menor() const { return Vacia() ? Xy{} : minimo_; }
  Xy Mayor() const { return Vacia() ? Xy{} : maximo_; }

 private:
  Xy minimo_{HUGE_VAL, HUGE_VAL}, maximo_{-HUGE_VAL, -HUGE_VAL};
};

void TomaPapel(Caja& caja, const Pieza& pieza) {
  if (const auto* f = std::get_if<Forma>(&pieza)) {
    for (const auto& c : f->contornos) {
      for (const auto& p : c) caja.Toma(p);
    }
  } else if (const auto* r = std::get_if<Redondo>(&pieza)) {
    caja.Toma(r->centro, r->radio);
  } else {
    const auto m = CajaTexto(std::get<Letrero>(pieza));
    caja.Toma({m.x, m.y});
    caja.Toma({m.Derecha(), m.Abajo()});
  }
}

const AspectoPieza& AspectoDe(const Pieza& pieza) {
  return std::visit([](const auto& p) -> const AspectoPieza& { return p; }, pieza);
}

// The main view has its corner at 0; a detail is put about its place.
std::vector<Sitio> Sitios(const Lamina& lamina) {
  const double escala = lamina.escala > 0 ? lamina.escala : 1.0;
  std::vector<Sitio> sitios{{escala, {0.0, lamina.alto * escala}}};
  std::vector<Caja> cajas(lamina.detalles.size() + 1);
  for (const auto& p : lamina.piezas) {
    TomaPapel(cajas[static_cast<std::size_t>(AspectoDe(p).vista)], p);
  }
  double libre = (lamina.ancho + kAparte) * escala;
  for (std::size_t n = 1; n < cajas.size(); ++n) {
    const double suya = lamina.detalles[n - 1];
    const Xy a = cajas[n].Menor(), b = cajas[n].Mayor();
    if (suya <= escala) {
      const Xy c{(a.x + b.x) / 2, (a.y + b.y) / 2};
      const Xy centro = sitios[0].P(c);
      sitios.push_back({suya, {centro.x - c.x * suya, centro.y + c.y * suya}});
      continue;
    }
    sitios.push_back({suya, {libre - a.x * suya, lamina.alto * escala + a.y * suya}});
    libre += (b.x - a.x) * suya + kAparte * escala;
  }
  return sitios;
}

class EscritorDxf {
 public:
  explicit EscritorDxf(const Lamina& lamina) : sitios_(Sitios(lamina)) {}

  void operator()(const Forma& f) {
    if (f.trazo.grueso <= 0) {
      // An area without edge is an arrow head or a sample of colour, or has its edge drawn apart.
      if (f.mancha.fuerza >= 1.0) Macizos(f);
      return;
    }
    for (const auto& c : f.contornos) {
      std::vector<Xy> puntos;
      for (const auto& p : c) puntos.push_back(P(f, p));
      if (f.macizo > 0 && !f.cerrada && puntos.size() == 2) {
        Quebrada(f, Ensanchada(puntos, f.macizo), true);
      } else {
        Quebrada(f, puntos, f.cerrada);
      }
    }
  }

  void operator()(const Redondo& r) {
    const double escala = SitioDe(r).escala;
    const bool linea = r.trazo.grueso > 0;
    std::vector<double> radios{r.radio * escala, r.hueco * escala};
    if (r.macizo > 0) {
      radios = linea ? std::vector{radios[0] - r.macizo / 2, radios[0] + r.macizo / 2}
                     : std::vector{r.macizo / 2};
    }
    for (const double radio : radios) {
      if (radio > 0) Circulo(r, P(r, r.centro), radio);
    }
  }

  void operator()(const Letrero& r) {
    const double escala = SitioDe(r).escala;
    const Xy p = P(r, r.sitio);
    const double corre = r.anclaX == AnclaX::Izquierda ? 0.0
                         : r.anclaX == AnclaX::Centro  ? 0.5
                                                       : 1.0;
    const double ancho = AnchoTexto(r.texto, r.alto, r.negrita) * escala;
    const double alto = kMayuscula * r.alto * escala;
    const double baja = static_cast<double>(r.anclaY) / 2.0;
    const double giro = r.giro * std::acos(-1.0) / 180.0;
    const Xy base{p.x - corre * ancho * std::cos(giro) + baja * alto * std::sin(giro),
                  p.y - corre * ancho * std::sin(giro) - baja * alto * std::cos(giro)};
    Grupos g = Cabeza("TEXT", r);
    g.Punto(10, base).Real(40, alto).Pon(1, TextoDxf(r.texto)).Real(50, r.giro);
    g.Pon(7, r.negrita ? kNegrita : kNormal);
    const int x = static_cast<int>(r.anclaX);
    const int y = r.anclaY == AnclaY::Base ? 0 : r.anclaY == AnclaY::Medio ? 2 : 3;
    if (x != 0 || y != 0) g.Entero(72, x).Punto(11, p).Entero(73, y);
    caja_.Toma(base);
    caja_.Toma({base.x + ancho * std::cos(giro), base.y + ancho * std::sin(giro)});
    caja_.Toma({base.x - alto * std::sin(giro), base.y + alto * std::cos(giro)});
    entidades_.Anade(g);
  }

  std::string Texto(const std::string& titulo) const {
    Grupos g;
    g.Pon(999, "ZORBIN, mm").Pon(999, TextoDxf(titulo));
    Cabecera(g);
    g.Pon(0, "SECTION").Pon(2, "TABLES");
    Ventana(g);
    Lineas(g);
    Capas(g);
    Letras(g);
    g.Pon(0, "ENDSEC");
    g.Pon(0, "SECTION").Pon(2, "BLOCKS").Pon(0, "ENDSEC");
    g.Pon(0, "SECTION").Pon(2, "ENTITIES");
    g.Anade(entidades_);
    g.Pon(0, "ENDSEC").Pon(0, "EOF");
    return g.texto();
  }

 private:
  static constexpr const char* kNormal = "NORMAL";
  static constexpr const char* kNegrita = "NEGRITA";

  std::vector<Sitio> sitios_;
  Grupos entidades_;
  Caja caja_;
  std::set<std::string> circulos_;
  std::set<std::pair<Patron, double>> patrones_;

  const Sitio& SitioDe(const AspectoPieza& a) const {
    return sitios_[static_cast<std::size_t>(a.vista)];
  }
  Xy P(const AspectoPieza& a, Xy papel) const { return SitioDe(a).P(papel); }

  // A pattern has its lengths in it, for each scale its own, as the format has one factor for a
  // whole drawing. The names are the usual ones: some readers know no pattern but by its name.
  std::string NombrePatron(Patron patron, double escala) const {
    constexpr std::array<const char*, 4> kNombres{"CONTINUOUS", "DASHED", "DOT", "CENTER"};
    std::string nombre = kNombres[static_cast<std::size_t>(patron)];
    if (patron == Patron::Continuo || escala == sitios_.front().escala) return nombre;
    nombre += "_" + Num(escala);
    std::replace(nombre.begin(), nombre.end(), '.', '_');
    return nombre;
  }

  Grupos Cabeza(const char* tipo, const AspectoPieza& a, const Tinta* tinta = nullptr) const {
    const auto& fila = kFilas[static_cast<std::size_t>(a.capa)];
    const int color = ColorDe(tinta != nullptr ? *tinta : a.trazo.tinta);
    Grupos g;
    g.Pon(0, tipo).Pon(8, NombreCapa(a.capa));
    if (fila.variada && color != ColorDe(fila.tinta)) g.Entero(62, color);
    return g;
  }

  // Head of what is drawn with a line.
  Grupos CabezaDeLinea(const char* tipo, const AspectoPieza& a) {
    Grupos g = Cabeza(tipo, a, a.trazo.grueso > 0 ? nullptr : &a.mancha.tinta);
    if (a.macizo > 0 || a.trazo.patron == Patron::Continuo) return g;
    const double escala = SitioDe(a).escala;
    patrones_.emplace(a.trazo.patron, escala);
    g.Pon(6, NombrePatron(a.trazo.patron, escala));
    return g;
  }

  static std::vector<Xy> Ensanchada(const std::vector<Xy>& p, double grueso) {
    const double dx = p[1].x - p[0].x, dy = p[1].y - p[0].y, largo = std::hypot(dx, dy);
    if (!(largo > 0)) return p;
    const Xy n{-dy / largo * grueso / 2, dx / largo * grueso / 2};
    return {{p[0].x + n.x, p[0].y + n.y},
            {p[1].x + n.x, p[1].y + n.y},
            {p[1].x - n.x, p[1].y - n.y},
            {p[0].x - n.x, p[0].y - n.y}};
  }

  void Quebrada(const AspectoPieza& a, const std::vector<Xy>& puntos, bool cerrada) {
    if (puntos.size() < 2) return;
    for (const auto& p : puntos) caja_.Toma(p);
    if (puntos.size() == 2) {
      Grupos g = CabezaDeLinea("LINE", a);
      entidades_.Anade(g.Punto(10, puntos[0]).Punto(11, puntos[1]));
      return;
    }
    Grupos g = CabezaDeLinea("POLYLINE", a);
    g.Entero(66, 1).Punto(10, {}).Entero(70, cerrada ? 1 : 0);
    for (const auto& p : puntos) g.Pon(0, "VERTEX").Pon(8, NombreCapa(a.capa)).Punto(10, p);
    entidades_.Anade(g.Pon(0, "SEQEND").Pon(8, NombreCapa(a.capa)));
  }

  // Edges that two areas share are one circle.
  void Circulo(const AspectoPieza& a, Xy centro, double radio) {
    caja_.Toma(centro, radio);
    Grupos g = CabezaDeLinea("CIRCLE", a);
    g.Punto(10, centro).Real(40, radio);
    if (circulos_.insert(g.texto()).second) entidades_.Anade(g);
  }

  void Macizos(const Forma& f) {
    for (const auto& c : f.contornos) {
      if (c.size() != 3 && c.size() != 4) continue;
      Grupos g = Cabeza("SOLID", f, &f.mancha.tinta);
      // The format goes through the corners in a zigzag, and repeats the third one of a triangle.
      constexpr std::array<std::size_t, 4> kOrden{0, 1, 3, 2};
      int codigo = 10;
      for (const std::size_t i : kOrden) {
        const Xy p = P(f, c[std::min(i, c.size() - 1)]);
        caja_.Toma(p);
        g.Punto(codigo++, p);
      }
      entidades_.Anade(g);
    }
  }

  void Cabecera(Grupos& g) const {
    g.Pon(0, "SECTION").Pon(2, "HEADER");
    g.Pon(9, "$ACADVER").Pon(1, "AC1009");
    g.Pon(9, "$DWGCODEPAGE").Pon(3, "ANSI_1252");
    g.Pon(9, "$INSBASE").Punto(10, {});
    g.Pon(9, "$EXTMIN").Punto(10, caja_.Menor());
    g.Pon(9, "$EXTMAX").Punto(10, caja_.Mayor());
    for (const auto& [nombre, p] :
         {std::pair{"$LIMMIN", caja_.Menor()}, {"$LIMMAX", caja_.Mayor()}}) {
      g.Pon(9, nombre).Real(10, p.x).Real(20, p.y);
    }
    g.Pon(9, "$LTSCALE").Real(40, 1.0);
    g.Pon(9, "$LUNITS").Entero(70, 2);
    g.Pon(9, "$LUPREC").Entero(70, 2);
    g.Pon(0, "ENDSEC");
  }

  // A drawing opens with all of it in sight.
  void Ventana(Grupos& g) const {
    const Xy a = caja_.Menor(), b = caja_.Mayor();
    constexpr double kProporcion = 1.5;
    const double alto = std::max({b.y - a.y, (b.x - a.x) / kProporcion, 1.0});
    const auto par = [&g](int codigo, double x, double y) {
      g.Real(codigo, x).Real(codigo + 10, y);
    };
    g.Pon(0, "TABLE").Pon(2, "VPORT").Entero(70, 1);
    g.Pon(0, "VPORT").Pon(2, "*ACTIVE").Entero(70, 0);
    par(10, 0.0, 0.0);
    par(11, 1.0, 1.0);
    par(12, (a.x + b.x) / 2, (a.y + b.y) / 2);
    g.Real(16, 0.0).Real(26, 0.0).Real(36, 1.0);
    g.Punto(17, {}).Real(40, 1.05 * alto).Real(41, kProporcion).Real(42, 50.0);
    g.Pon(0, "ENDTAB");
  }

  void Lineas(Grupos& g) const {
    g.Pon(0, "TABLE").Pon(2, "LTYPE").Entero(70, static_cast<int>(patrones_.size()) + 1);
    g.Pon(0, "LTYPE").Pon(2, "CONTINUOUS").Entero(70, 0).Pon(3, "").Entero(72, 65);
    g.Entero(73, 0).Real(40, 0.0);
    for (const auto& [patron, escala] : patrones_) {
      double largo = 0;
      int trozos = 0;
      for (const double t : Guiones(patron)) {
        largo += t;
        if (t > 0) ++trozos;
      }
      g.Pon(0, "LTYPE").Pon(2, NombrePatron(patron, escala)).Entero(70, 0).Pon(3, "");
      g.Entero(72, 65).Entero(73, trozos).Real(40, largo * escala);
      for (int i = 0; i < trozos; ++i) {
        const double t = Guiones(patron)[static_cast<std::size_t>(i)] * escala;
        g.Real(49, i % 2 == 0 ? t : -t);
      }
    }
    g.Pon(0, "ENDTAB");
  }

  static void Capas(Grupos& g) {
    g.Pon(0, "TABLE").Pon(2, "LAYER").Entero(70, kCapas + 1);
    const auto pon = [&g](const char* nombre, int color) {
      g.Pon(0, "LAYER").Pon(2, nombre).Entero(70, 0).Entero(62, color).Pon(6, "CONTINUOUS");
    };
    pon("0", ColorDe(Tinta::Tinta));
    for (const auto& f : kFilas) pon(NombreCapa(f.capa), ColorDe(f.tinta));
    g.Pon(0, "ENDTAB");
  }

  static void Letras(Grupos& g) {
    g.Pon(0, "TABLE").Pon(2, "STYLE").Entero(70, 2);
    for (const auto& [nombre, fuente] :
         {std::pair{kNormal, "arial.ttf"}, {kNegrita, "arialbd.ttf"}}) {
      g.Pon(0, "STYLE").Pon(2, nombre).Entero(70, 0).Real(40, 0.0).Real(41, 1.0).Real(50, 0.0);
      g.Entero(71, 0).Real(42, 2.5).Pon(3, fuente).Pon(4, "");
    }
    g.Pon(0, "ENDTAB");
  }
};

// Letters from U+03B1 on, with the final sigma in its place.
constexpr std::array<std::string_view, 25> kGriegas{
    "alpha", "beta",   "gamma",   "delta", "epsilon", "zeta",    "eta",  "theta", "iota",
    "kappa", "lambda", "mu",      "nu",    "xi",      "omicron", "pi",   "rho",   "sigma",
    "sigma", "tau",    "upsilon", "phi",   "chi",     "psi",     "omega"};
constexpr char32_t kAlfa = 0x3B1, kAlfaMayuscula = 0x391;

struct Signo {
  char32_t codigo;
  std::string_view texto;
};
constexpr std::array<Signo, 13> kSignos{{{0x2212, "-"},
                                         {0x2010, "-"},
                                         {0x2011, "-"},
                                         {0x2264, "<="},
                                         {0x2265, ">="},
                                         {0x2260, "<>"},
                                         {0x2248, "~"},
                                         {0x2192, "->"},
                                         {0x221A, "sqrt"},
                                         {0x2009, " "},
                                         {0x202F, " "},
                                         {0x3D5, "phi"},
                                         {0x3F5, "epsilon"}}};

std::string FueraDePagina(char32_t c) {
  for (const auto& s : kSignos) {
    if (s.codigo == c) return std::string(s.texto);
  }
  if (c >= kAlfa && c < kAlfa + kGriegas.size()) return std::string(kGriegas[c - kAlfa]);
  if (c >= kAlfaMayuscula && c < kAlfaMayuscula + kGriegas.size()) {
    std::string nombre(kGriegas[c - kAlfaMayuscula]);
    nombre.front() = static_cast<char>(nombre.front() - 'a' + 'A');
    return nombre;
  }
  constexpr std::string_view kCifras = "0123456789ABCDEF";
  std::string codigo;
  for (char32_t resto = c; resto > 0 || codigo.size() < 4; resto /= 16) {
    codigo.insert(codigo.begin(), kCifras[resto % 16]);
  }
  return "\\U+" + codigo;
}

}  // namespace

std::string TextoDxf(const std::string& utf8) {
  std::string bytes;
  const bool doble = utf8.find("%%") != std::string::npos;  // which would begin a code
  for (std::size_t i = 0; i < utf8.size();) {
    const auto c = PrimerCaracter(std::string_view(utf8).substr(i));
    const auto ansi = AAnsi(std::string_view(utf8).substr(i, c.bytes));
    i += c.bytes;
    std::string letra = ansi.sobra.empty() ? ansi.bytes : FueraDePagina(c.codigo);
    if (c.codigo < ' ') letra = " ";
    if (c.codigo == '%' && doble) letra = "%%%";
    if (c.codigo == '^') letra = "^ ";  // alone it would begin a control character
    if (bytes.size() + letra.size() > kMayorTexto) break;
    bytes += letra;
  }
  return bytes;
}

std::string DxfDe(const Lamina& lamina, const std::string& titulo) {
  EscritorDxf escritor(lamina);
  for (const auto& pieza : lamina.piezas) std::visit(escritor, pieza);
  return escritor.Texto(titulo);
}

}  // namespace zorbin
