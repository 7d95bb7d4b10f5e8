#include "listados/dibujos/mdSvg.h"

#include <cmath>
#include <cstdio>

namespace zorbin {

namespace {

constexpr double kHalo = 0.9;  // width of the rim of a text, both sides [mm]

// Hundredths of a millimetre are finer than any printer.
std::string Num(double valor) {
  std::array<char, 40> letras{};
  std::snprintf(letras.data(), letras.size(), "%.2f", valor);
  std::string texto(letras.data());
  while (texto.back() == '0') texto.pop_back();
  if (texto.back() == '.') texto.pop_back();
  return texto == "-0" ? "0" : texto;
}

std::string Hex(Color c) {
  std::array<char, 8> letras{};
  std::snprintf(letras.data(), letras.size(), "#%02x%02x%02x", c.r, c.g, c.b);
  return letras.data();
}

std::string Escapado(const std::string& texto) {
  std::string t;
  for (const char c : texto) {
    switch (c) {
      case '&':
        t += "&amp;";
        break;
      case '<':
        t += "&lt;";
        break;
      case '>':
        t += "&gt;";
        break;
      case '"':
        t += "&quot;";
        break;
      default:
        if (static_cast<unsigned char>(c) >= ' ') t += c;
    }
  }
  return t;
}

class Escritor {
 public:
  Escritor(std::string& svg, const Paleta& paleta) : svg_(svg), paleta_(paleta) {}

  void operator()(const Forma& f) {
    std::string camino;
    for (const auto& c : f.contornos) {
      char orden = 'M';
      for (const auto& p : c) {
        camino += orden + Num(p.x) + ' ' + Num(p.y);
        orden = 'L';
      }
      if (f.cerrada) camino += 'Z';
    }
    Camino(camino, f);
  }

  void operator()(const Redondo& r) {
    if (r.hueco > 0) {
      Camino(Vuelta(r.centro, r.radio) + Vuelta(r.centro, r.hueco), r);
      return;
    }
    svg_ += "<circle cx=\"" + Num(r.centro.x) + "\" cy=\"" + Num(r.centro.y) + "\" r=\"" +
            Num(r.radio) + "\"" + Atributos(r) + "/>\n";
  }

  void operator()(const Letrero& r) {
    const double baja = r.anclaY == AnclaY::Base ? 0.0 : r.anclaY == AnclaY::Medio ? 0.36 : 0.72;
    constexpr std::array<const char*, 3> kAnclas{"start", "middle", "end"};
    svg_ += "<text x=\"" + Num(r.sitio.x) + "\" y=\"" + Num(r.sitio.y) + "\" dy=\"" +
            Num(baja * r.alto) + "\" font-size=\"" + Num(r.alto) + "\"";
    if (r.negrita) svg_ += " font-weight=\"bold\"";
    svg_ += std::string(" text-anchor=\"") + kAnclas[static_cast<std::size_t>(r.anclaX)] + "\"";
    if (r.giro != 0) {
      svg_ += " transform=\"rotate(" + Num(-r.giro) + ' ' + Num(r.sitio.x) + ' ' + Num(r.sitio.y) +
              ")\"";
    }
    svg_ += " fill=\"" + Hex(paleta_.De(r.trazo.tinta)) + "\"";
    if (r.halo) {
      svg_ += " stroke=\"" + Hex(paleta_.De(Tinta::Papel)) + "\" stroke-width=\"" + Num(kHalo) +
              "\" stroke-linejoin=\"round\" paint-order=\"stroke\"";
    }
    svg_ += Clase(r) + ">" + Escapado(r.texto) + "</text>\n";
  }

 private:
  std::string& svg_;
  const Paleta& paleta_;

  static std::string Vuelta(Xy c, double r) {
    const std::string arco = "A" + Num(r) + ' ' + Num(r) + " 0 1 1 ";
    return "M" + Num(c.x - r) + ' ' + Num(c.y) + arco + Num(c.x + r) + ' ' + Num(c.y) + arco +
           Num(c.x - r) + ' ' + Num(c.y) + 'Z';
  }

  void Camino(const std::string& camino, const AspectoPieza& a) {
    svg_ += "<path d=\"" + camino + "\"" + Atributos(a) + "/>\n";
  }

  static std::string Clase(const AspectoPieza& a) {
    std::string texto = std::string(" class=\"") + NombreCapa(a.capa) + "\"";
    if (a.id != kSinId) texto += " data-id=\"" + std::to_string(a.id) + "\"";
    return texto;
  }

  std::string Atributos(const AspectoPieza& a) const {
    std::string texto = " fill=\"none\"";
    if (a.mancha.fuerza > 0) texto = " fill=\"" + Hex(paleta_.De(a.mancha)) + "\"";
    if (a.trazo.grueso > 0) {
      texto += " stroke=\"" + Hex(paleta_.De(a.trazo.tinta)) + "\" stroke-width=\"" +
               Num(a.trazo.grueso) + "\"";
      std::string guiones;
      for (const double g : Guiones(a.trazo.patron)) {
        if (g > 0) guiones += (guiones.empty() ? "" : " ") + Num(g);
      }
      if (!guiones.empty()) texto += " stroke-dasharray=\"" + guiones + "\"";
    }
    return texto + Clase(a);
  }
};

}  // namespace

const std::array<double, 4>& Guiones(Patron patron) {
  static constexpr std::array<std::array<double, 4>, 4> kPatrones{{
      {0, 0, 0, 0},
      {1.8, 1.1, 0, 0},
      {0.4, 0.9, 0, 0},
      {5.0, 1.0, 0.8, 1.0},
  }};
  return kPatrones[static_cast<std::size_t>(patron)];
}

std::string SvgDe(const Lamina& lamina, const Paleta& paleta, const std::string& titulo) {
  const std::string ancho = Num(lamina.ancho), alto = Num(lamina.alto);
  std::string svg = "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"" + ancho +
                    "mm\" height=\"" + alto + "mm\" viewBox=\"0 0 " + ancho + ' ' + alto +
                    "\" font-family=\"Liberation Sans, Arial, Helvetica, sans-serif\" "
                    "fill-rule=\"evenodd\" stroke-linejoin=\"round\" stroke-linecap=\"butt\">\n";
  svg += "<title>" + Escapado(titulo) + "</title>\n";
  svg += "<rect width=\"" + ancho + "\" height=\"" + alto + "\" fill=\"" +
         Hex(paleta.De(Tinta::Papel)) + "\"/>\n";
  Escritor escritor(svg, paleta);
  for (const auto& pieza : lamina.piezas) std::visit(escritor, pieza);
  return svg + "</svg>\n";
}

}  // namespace zorbin
