#include "listados/dibujos/mdDibujoTubo.h"

#include <algorithm>
#include <cmath>

#include "base/textos.h"
#include "calculo/cargas/mdOval.h"
#include "listados/dibujos/mdCorte.h"

namespace zorbin {

namespace {

constexpr double kMm = 1000.0;      // of a metre
constexpr double kVueloCuna = 1.2;  // half width of a bed, in external radii

// Space that dimensions and texts take round the views [mm].
constexpr double kLados = 7.0;
constexpr double kEncima = 4.0;
constexpr double kMargenes = 8.0;
constexpr double kCabecera = 22.0;
constexpr double kDebajo = 21.0;

std::string Barras(const PalabrasDibujo& w, double n, double diametro) {
  return w.Con(txt::DibBarras, {w.Corto(n, 1), w.Corto(diametro, 1)});
}

ParedDibujada ParedArmada(const CasoDibujado& c) {
  const auto& t = c.Datos();
  const auto& f = c.fila;
  ParedDibujada p{t.Esp * kMm, 0.0, t.Reci * kMm, t.Rece * kMm, {}};
  if (f.ErrorPostesado == 1) return p;  // the wall is too thin: there is no steel
  const double chapa = f.ajustado ? c.caso.Armado().ajuste->Camisa / 10.0 : f.CAMISA;
  if (chapa > 0) p.acero.push_back({p.Reci, chapa, 0.0, Tinta::Chapa, Capa::Chapa});
  if (f.ajustado) return p;  // its bars are nobody's choice
  // With a sheet the spirals lie against it, on the side of the middle of the wall.
  const double dentro = chapa > 0 ? p.Reci + (chapa + f.FIIN) / 2.0 : p.Reci;
  if (f.NESPIN > 0) p.acero.push_back({dentro, f.FIIN, f.NESPIN, Tinta::Barra, Capa::Interior});
  if (f.NEXPEX > 0)
    p.acero.push_back({p.espesor - p.Rece, f.FIEX, f.NEXPEX, Tinta::Barra, Capa::Exterior});
  return p;
}

ParedDibujada ParedPostesada(const CasoDibujado& c) {
  const auto& r = c.caso.Postesado();
  auto p = ParedSinDisenar(c.Datos());
  if (r.FIPRDEFI > 0) {
    const double fi = r.FIPRDEFI * 10.0;
    p.acero.push_back({p.nucleo + fi / 2.0, fi, r.NESPDEFI, Tinta::Alambre, Capa::Alambre});
  }
  return p;
}

struct LineaLeyenda {
  Tinta tinta;
  std::string texto;
};

std::vector<LineaLeyenda> LeyendaArmada(const CasoDibujado& c, const PalabrasDibujo& w) {
  const auto& f = c.fila;
  const auto area = [&w](double a) { return w.Con(txt::DibArea, {w.Numero(a, 1)}); };
  if (f.ErrorPostesado == 1) return {{Tinta::NoCumple, w.T(txt::DibSinArmadura)}};
  std::string dentro, fuera;
  const auto y = [](const std::string& a, const std::string& b) {
    return a.empty() || b.empty() ? a + b : a + " + " + b;
  };
  if (f.ajustado) {
    const auto& a = *c.caso.Armado().ajuste;
    if (a.Camisa > 0) dentro = w.Con(txt::DibChapa, {w.Corto(a.Camisa / 10.0, 2)});
    if (a.Espiras > 0) dentro = y(dentro, w.Con(txt::DibAjustada, {area(a.Espiras)}));
    fuera = w.Con(txt::DibAjustada, {area(a.Exterior)});
  } else {
    if (f.CAMISA > 0) dentro = w.Con(txt::DibChapa, {w.Corto(f.CAMISA, 2)});
    if (f.NESPIN > 0) dentro = y(dentro, Barras(w, f.NESPIN, f.FIIN));
    if (f.NEXPEX > 0) fuera = Barras(w, f.NEXPEX, f.FIEX);
  }
  const auto linea = [&](int n, const std::string& que, double as) {
    return w.Con(n, {que.empty() ? "-" : que, area(as)});
  };
  return {{Tinta::Chapa, linea(txt::DibInterior, dentro, f.AsInt)},
          {Tinta::Barra, linea(txt::DibExterior, fuera, f.AsExt)},
          {Tinta::Tinta, w.Con(txt::DibTotal, {area(f.Total)})}};
}

std::vector<LineaLeyenda> LeyendaPostesada(const CasoDibujado& c, const PalabrasDibujo& w) {
  const auto& r = c.caso.Postesado();
  std::vector<LineaLeyenda> lineas;
  if (c.Datos().Delca > 0) {
    lineas.push_back({Tinta::Chapa, w.Con(txt::DibChapa, {w.Corto(c.Datos().Delca * 10.0, 2)})});
  }
  if (r.FIPRDEFI > 0) {
    lineas.push_back({Tinta::Alambre, w.Con(txt::DibAlambre, {w.Corto(r.FIPRDEFI * 10.0, 1),
                                                              w.Corto(r.NESPDEFI, 1)})});
  } else {
    lineas.push_back({Tinta::NoCumple, w.T(txt::DibSinArmadura)});
  }
  lineas.push_back({Tinta::Hormigon, w.T(txt::DibNucleo)});
  lineas.push_back({Tinta::Revestimiento, w.T(txt::DibRevestimiento)});
  return lineas;
}

void PintaLeyenda(Plano& plano, Xy sitio, const std::vector<LineaLeyenda>& lineas) {
  plano.En(Capa::Textos);
  for (const auto& linea : lineas) {
    plano.Area(Rectangulo({sitio.x, sitio.y - 2.2, 3.2, 2.4}), {linea.tinta, 1.0});
    plano.Texto({sitio.x + 5.0, sitio.y}, linea.texto);
    sitio.y += 5.4;
  }
}

std::string CasoConTramoEnLetra(const CasoDibujado& caso, const PalabrasDibujo& w) {
  return w.TramoEnLetra(caso.Datos()) + " · " + w.CasoEnLetra(caso.fila);
}

Marco Cabeza(Plano& plano, const CasoDibujado& caso, const PalabrasDibujo& w,
             const HojaDibujo& hoja) {
  return PonCabecera(plano, hoja, w.T(txt::DibTituloSeccion), CasoConTramoEnLetra(caso, w));
}

// The whole section with its diameters.
class Transversal {
 public:
  Transversal(Plano& plano, const Tramo& t, const ParedDibujada& pared)
      : plano_(plano), t_(t), pared_(pared) {}

  double Ancho() const { return 2.0 * SemiCuna(t_.De * kMm); }
  double Alto() const { return t_.De * kMm + Lecho(t_.De * kMm); }

  // Scale at which it fits a place.
  double Cabe(double ancho, double alto) const {
    return EscalaRedonda(
        std::max(Ancho() / (ancho - 2 * kLados), Alto() / (alto - kEncima - kDebajo)));
  }
  double AnchoEnPapel(double escala) const { return Ancho() / escala + 2 * kLados; }
  double AltoEnPapel(double escala) const { return Alto() / escala + kEncima + kDebajo; }

  void Pinta(const Marco& sitio, double escala, const PalabrasDibujo& w) {
    const double De = t_.De * kMm, Di = t_.Di * kMm;
    Vista v{{sitio.x + sitio.ancho / 2, 0}, escala};
    const double sobra = sitio.alto - AltoEnPapel(escala);
    v.origen.y = sitio.y + kEncima + std::max(0.0, sobra / 2) + v.L(De / 2);
    PintaCuna(plano_, v, t_, SemiCuna(De));
    PintaTubo(plano_, v, t_, pared_);
    plano_.En(Capa::Ejes);
    const double r = v.L(De / 2) + 2.5;
    const Trazo eje{Tinta::Tenue, kFino, Patron::Eje};
    plano_.Linea({v.origen.x, v.origen.y - r}, {v.origen.x, v.origen.y + r}, eje);
    plano_.Linea({v.origen.x - r, v.origen.y}, {v.origen.x + r, v.origen.y}, eje);
    const double abajo = v.P(0, De / 2 + Lecho(De)).y;
    const auto cota = [&](const char* nombre, double mm) {
      return std::string(nombre) + " " + w.Corto(mm, 1);
    };
    plano_.CotaHorizontal(v.P(-De / 2, 0).x, v.P(De / 2, 0).x, abajo, 6.0, cota("De", De));
    plano_.CotaHorizontal(v.P(-Di / 2, 0).x, v.P(Di / 2, 0).x, abajo, 11.5, cota("Di", Di));
    plano_.En(Capa::Textos);
    const auto cuna = CunaDe(t_);
    plano_.Texto({v.origen.x, abajo + 18.5},
                 w.Con(cuna.hormigon ? txt::DibCunaHormigon : txt::DibCunaGranular,
                       {w.Corto(cuna.semiangulo * 360.0 / kPi, 0)}),
                 AnclaX::Centro, AnclaY::Base, kLetra, Tinta::Tenue);
  }

 private:
  Plano& plano_;
  const Tramo& t_;
  const ParedDibujada& pared_;
};

// Section of the pipe and of its wall; below this, what it is made of.
Lamina LaminaSeccion(const Tramo& t, const ParedDibujada& pared,
                     const std::vector<LineaLeyenda>& leyenda, const std::string& subtitulo,
                     const PalabrasDibujo& w, HojaDibujo hoja) {
  constexpr double kPie = 12.0;      // paper for the caption of the cut [mm]
  constexpr double kLeyenda = 28.0;  // and for the steel
  constexpr double kAnchoDosVistas = 150.0;
  constexpr double kParteTubo = 0.64;  // of the height of a narrow sheet
  Lamina lamina;
  Plano plano(lamina);
  Transversal transversal(plano, t, pared);
  if (hoja.escala > 0) {
    hoja.ancho = std::max(hoja.ancho, 2 * transversal.AnchoEnPapel(hoja.escala) + kMargenes);
    hoja.alto = std::max(hoja.alto, transversal.AltoEnPapel(hoja.escala) + kCabecera);
  }
  lamina = LaminaVacia(hoja);
  const Marco m = PonCabecera(plano, hoja, w.T(txt::DibTituloSeccion), subtitulo);
  // Side by side, or one below the other on a narrow sheet.
  const double pies = kPie + (leyenda.empty() ? 0.0 : kLeyenda);
  const bool apiladas = leyenda.empty() && m.ancho < kAnchoDosVistas;
  const Marco deTubo{m.x, m.y, apiladas ? m.ancho : m.ancho / 2,
                     apiladas ? kParteTubo * m.alto : m.alto};
  const Marco resto = apiladas ? Marco{m.x, deTubo.Abajo(), m.ancho, m.Abajo() - deTubo.Abajo()}
                               : Marco{deTubo.Derecha(), m.y, m.ancho / 2, m.alto};
  const double escala = hoja.escala > 0 ? hoja.escala : transversal.Cabe(deTubo.ancho, deTubo.alto);
  transversal.Pinta(deTubo, escala, w);
  PonEscala(plano, hoja, w, escala);
  const double alto = std::min(resto.alto - pies, m.ancho / 3);
  const double arriba = resto.y + (resto.alto - pies - alto) / 2;
  Corte corte(plano, pared, {resto.x, arriba, resto.ancho, alto});
  plano.EnDetalle(corte.Escala());
  corte.Pinta(w);
  plano.En(Capa::Textos);
  const auto pie =
      w.Con(txt::DibPared, {w.Metros(corte.Largo() / kMm), w.Corto(corte.Escala(), 2)});
  plano.Texto({corte.CentroX(), corte.Abajo() + 7.0}, Recortado(pie, resto.ancho, kLetra),
              AnclaX::Centro, AnclaY::Base, kLetra, Tinta::Tenue);
  plano.EnPrincipal();
  PintaLeyenda(plano, {resto.x + 8.0, corte.Abajo() + 17.0}, leyenda);
  return lamina;
}

}  // namespace

bool HayTubo(const Tramo& t) {
  const auto medida = [](double m) { return std::isfinite(m) && m >= 0; };
  return t.Di > 0 && t.Esp > 0 && t.De > t.Di && medida(t.De) && medida(t.Esp) && medida(t.Reci) &&
         medida(t.Rece);
}

ParedDibujada ParedSinDisenar(const Tramo& t) {
  ParedDibujada p{t.Esp * kMm, 0.0, t.Reci * kMm, t.Rece * kMm, {}};
  if (t.EsArmado) return p;
  p.nucleo = std::max(0.0, p.espesor - p.Rece);
  const double chapa = t.Delca * 10.0;
  if (chapa > 0 && chapa < p.espesor && p.Reci < p.espesor) {
    p.acero.push_back({p.Reci, chapa, 0.0, Tinta::Chapa, Capa::Chapa});
  }
  return p;
}

ParedDibujada ParedDe(const CasoDibujado& caso) {
  return caso.caso.EsArmado() ? ParedArmada(caso) : ParedPostesada(caso);
}

CunaDibujada CunaDe(const Tramo& t) {
  const bool hormigon = t.TipoCuna == kCunaHormigon90 || t.TipoCuna == kCunaHormigon120;
  return {t.TipoCuna == kCunaHormigon120 ? kPi / 3.0 : kPi / 4.0, hormigon};
}

double Lecho(double De) {
  return std::max(100.0, De / 8.0);
}

double SemiCuna(double De) {
  return kVueloCuna * De / 2.0;
}

void PintaCuna(Plano& plano, const Vista& v, const Tramo& t, double semiZanja) {
  const double R = t.De * kMm / 2.0;
  const auto cuna = CunaDe(t);
  const double semi = cuna.hormigon ? std::min(SemiCuna(2 * R), semiZanja) : semiZanja;
  const double y = R * std::cos(cuna.semiangulo), fondo = R + Lecho(2 * R);
  // Round the pipe from the right edge of the bed to the left one, through the invert.
  Puntos contorno = Arco(v.origen, v.L(R), kPi - cuna.semiangulo, kPi + cuna.semiangulo);
  for (const auto& p : {v.P(-semi, y), v.P(-semi, fondo), v.P(semi, fondo), v.P(semi, y)}) {
    contorno.push_back(p);
  }
  plano.En(Capa::Cuna);
  plano.Area(contorno, {cuna.hormigon ? Tinta::Revestimiento : Tinta::Relleno, 0.45});
  plano.Rayado({contorno}, cuna.hormigon ? Trama::Hormigon : Trama::Grava, Tinta::Tenue, 2.6);
  plano.Area(contorno, {}, {Tinta::Tinta, kMedio});
}

void PintaTubo(Plano& plano, const Vista& v, const Tramo& t, const ParedDibujada& pared) {
  const double Re = t.De * kMm / 2.0, Ri = t.Di * kMm / 2.0;
  plano.En(Capa::Hormigon);
  plano.Corona(v.origen, v.L(Re), v.L(Ri), {Tinta::Hormigon, 0.6});
  if (pared.nucleo > 0) {
    plano.En(Capa::Revestimiento);
    plano.Corona(v.origen, v.L(Re), v.L(Ri + pared.nucleo), {Tinta::Revestimiento, 0.8});
  }
  plano.En(Capa::Agua);
  plano.Circulo(v.origen, v.L(Ri), {Tinta::Agua, 0.22});
  for (const auto& a : pared.acero) {
    plano.En(a.capa);
    plano.Macizo(a.grueso);
    plano.Circulo(v.origen, v.L(Ri + a.distancia), {},
                  {a.tinta, std::max(kMinimoAcero, v.L(a.grueso))});
  }
  plano.Macizo(0.0);
  plano.En(Capa::Hormigon);
  plano.Circulo(v.origen, v.L(Re), {}, {Tinta::Tinta, kGrueso});
  plano.Circulo(v.origen, v.L(Ri), {}, {Tinta::Tinta, kGrueso});
}

Lamina DibujaTransversal(const CasoDibujado& caso, const PalabrasDibujo& w,
                         const HojaDibujo& pedida) {
  const auto pared = ParedDe(caso);
  HojaDibujo hoja = pedida;
  Lamina lamina;
  Plano plano(lamina);
  Transversal transversal(plano, caso.Datos(), pared);
  if (hoja.escala > 0) {
    hoja.ancho = std::max(hoja.ancho, transversal.AnchoEnPapel(hoja.escala) + kMargenes);
    hoja.alto = std::max(hoja.alto, transversal.AltoEnPapel(hoja.escala) + kCabecera);
  }
  lamina = LaminaVacia(hoja);
  const Marco m = Cabeza(plano, caso, w, hoja);
  const double escala = hoja.escala > 0 ? hoja.escala : transversal.Cabe(m.ancho, m.alto);
  transversal.Pinta(m, escala, w);
  PonEscala(plano, hoja, w, escala);
  return lamina;
}

Lamina DibujaPared(const CasoDibujado& caso, const PalabrasDibujo& w, const HojaDibujo& hoja) {
  const auto pared = ParedDe(caso);
  Lamina lamina = LaminaVacia(hoja);
  Plano plano(lamina);
  const Marco m = Cabeza(plano, caso, w, hoja);
  Corte corte(plano, pared, m);
  corte.Pinta(w);
  PonEscala(plano, hoja, w, corte.Escala());
  return lamina;
}

Lamina DibujaSeccion(const CasoDibujado& caso, const PalabrasDibujo& w, const HojaDibujo& hoja) {
  return LaminaSeccion(caso.Datos(), ParedDe(caso),
                       caso.caso.EsArmado() ? LeyendaArmada(caso, w) : LeyendaPostesada(caso, w),
                       CasoConTramoEnLetra(caso, w), w, hoja);
}

Lamina DibujaTubo(const Tramo& t, const PalabrasDibujo& w, const HojaDibujo& hoja) {
  if (!HayTubo(t)) return LaminaSinDatos(w, hoja);
  return LaminaSeccion(t, ParedSinDisenar(t), {}, w.TramoEnLetra(t), w, hoja);
}

}  // namespace zorbin
