#include "listados/dibujos/mdDibujoZanja.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "base/textos.h"
#include "listados/dibujos/mdDibujoTubo.h"

namespace zorbin {

namespace {

constexpr double kMm = 1000.0;  // of a metre
constexpr double kTalud = 1.5;  // of an embankment, horizontal to 1 vertical
constexpr double kLados = 6.0;  // paper beside the ground [mm]
constexpr double kEncima = 9.0;
constexpr double kDebajo = 12.0;

enum class Colocacion { Zanja, ZanjaTerraplenada, Terraplen };

Colocacion ColocacionDe(const Tramo& t) {
  if (t.TipoApoyo >= 30) return Colocacion::Terraplen;
  return t.TipoApoyo >= 20 ? Colocacion::ZanjaTerraplenada : Colocacion::Zanja;
}

// Levels and widths of a laying [mm], with the centre of the pipe at 0 and y downwards.
struct Corte {
  Colocacion clase;
  double R;           // external radius
  double superficie;  // top of the fill
  double natural;     // natural ground
  double fondo;       // of the excavation
  double semiZanja;   // half width of the trench; of an embankment, of the ditch for the pipe
  double semi;        // half width that is drawn
  double coronacion;  // half width of the top of an embankment that lies over the ground

  bool SobreTerreno() const { return superficie < natural; }
};

Corte CorteDe(const Tramo& t, double Hr) {
  Corte c{};
  c.clase = ColocacionDe(t);
  c.R = t.De * kMm / 2.0;
  const double clave = -c.R;
  c.superficie = clave - Hr * kMm;
  c.fondo = c.R + Lecho(2 * c.R);
  switch (c.clase) {
    case Colocacion::Zanja:
      c.natural = c.superficie;
      break;
    case Colocacion::ZanjaTerraplenada:
      c.natural = clave - t.Hr1 * kMm;
      break;
    case Colocacion::Terraplen:
      c.natural = std::min(clave + t.Hr1 * kMm, c.fondo);
      break;
  }
  c.semiZanja = c.clase == Colocacion::Terraplen ? SemiCuna(2 * c.R) : t.B0 * kMm / 2.0;
  const double ancho = std::max(c.R, c.semiZanja);
  c.coronacion = ancho + 0.8 * c.R;
  const double alto = std::max(0.0, c.natural - c.superficie);
  c.semi = std::max(ancho + std::max(1.2 * c.R, 600.0),
                    c.coronacion + std::min(kTalud * alto, 2.0 * c.R + alto) + 0.6 * c.R);
  return c;
}

class DibujoColocacion {
 public:
  DibujoColocacion(Plano& plano, const Tramo& t, double Hr, ParedDibujada pared,
                   const PalabrasDibujo& w)
      : plano_(plano), t_(t), Hr_(Hr), pared_(std::move(pared)), w_(w), c_(CorteDe(t, Hr)) {
    pared_.acero.clear();  // at this scale it would be a smear
  }

  double Ancho() const { return 2 * c_.semi; }
  double Alto() const { return Abajo() - Arriba(); }
  static double LadosEnPapel() { return 2 * kLados + kCotas; }
  static double AltoEnPapel() { return kEncima + kDebajo; }

  void Pinta(const Marco& m, double escala) {
    v_.escala = escala;
    const double libre = m.ancho - LadosEnPapel() - v_.L(Ancho());
    const double alto = m.alto - AltoEnPapel() - v_.L(Alto());
    v_.origen = {m.x + kLados + libre / 2 + v_.L(c_.semi),
                 m.y + kEncima + std::max(0.0, alto / 2) - v_.L(Arriba())};
    Terreno();
    Relleno();
    Perfil();
    PintaCuna(plano_, v_, t_, std::max(c_.semiZanja, c_.R * 1.02));
    PintaTubo(plano_, v_, t_, pared_);
    Carga();
    Cotas();
    Nombres();
  }

 private:
  static constexpr double kCotas = 34.0;  // paper for the heights at the right [mm]

  Plano& plano_;
  const Tramo& t_;
  double Hr_;
  ParedDibujada pared_;
  const PalabrasDibujo& w_;
  Corte c_;
  Vista v_;

  double Arriba() const { return std::min(c_.superficie, c_.natural); }
  double Abajo() const { return std::max(c_.fondo, c_.R) + std::max(0.35 * c_.R, 200.0); }

  // Half width of the embankment at a level.
  double SemiTerraplen(double y) const {
    return std::min(c_.semi, c_.coronacion + kTalud * (y - c_.superficie));
  }

  Puntos Excavacion() const {
    return {v_.P(-c_.semiZanja, c_.natural), v_.P(-c_.semiZanja, c_.fondo),
            v_.P(c_.semiZanja, c_.fondo), v_.P(c_.semiZanja, c_.natural)};
  }

  void Terreno() {
    Puntos suelo{v_.P(-c_.semi, c_.natural)};
    for (const auto& p : Excavacion()) suelo.push_back(p);
    suelo.push_back(v_.P(c_.semi, c_.natural));
    suelo.push_back(v_.P(c_.semi, Abajo()));
    suelo.push_back(v_.P(-c_.semi, Abajo()));
    plano_.En(Capa::Terreno);
    plano_.Area(suelo, {Tinta::Terreno, 0.22});
    plano_.Rayado({suelo}, Trama::Tierra, Tinta::Terreno, 4.8);
  }

  void Relleno() {
    plano_.En(Capa::Relleno);
    const Mancha fondo{Tinta::Relleno, 0.22};
    const auto excavacion = Excavacion();
    plano_.Area(excavacion, fondo);
    plano_.Rayado({excavacion}, Trama::Puntos, Tinta::Relleno, 2.2);
    if (!c_.SobreTerreno()) return;
    const Puntos terraplen{v_.P(-c_.coronacion, c_.superficie), v_.P(c_.coronacion, c_.superficie),
                           v_.P(SemiTerraplen(c_.natural), c_.natural),
                           v_.P(-SemiTerraplen(c_.natural), c_.natural)};
    plano_.Area(terraplen, fondo);
    plano_.Rayado({terraplen}, Trama::Puntos, Tinta::Relleno, 2.2);
  }

  void Perfil() {
    plano_.En(Capa::Terreno);
    const Trazo trazo{Tinta::Tinta, kGrueso};
    for (const double lado : {-1.0, 1.0}) {
      plano_.Quebrada({v_.P(lado * c_.semi, c_.natural), v_.P(lado * c_.semiZanja, c_.natural),
                       v_.P(lado * c_.semiZanja, c_.fondo), v_.P(0, c_.fondo)},
                      trazo);
      if (c_.SobreTerreno()) {
        plano_.Quebrada({v_.P(0, c_.superficie), v_.P(lado * c_.coronacion, c_.superficie),
                         v_.P(lado * SemiTerraplen(c_.natural), c_.natural)},
                        trazo);
      }
    }
    const Trazo linea{Tinta::Tinta, kMedio,
                      c_.SobreTerreno() ? Patron::Discontinuo : Patron::Continuo};
    plano_.Linea(v_.P(-c_.semiZanja, c_.natural), v_.P(c_.semiZanja, c_.natural), linea);
  }

  // The concentrated load stands on the fill over the pipe.
  void Carga() {
    if (t_.ICar <= 0 || t_.ICar >= static_cast<int>(txt::Cargas.size())) return;
    plano_.En(Capa::Datos);
    const Xy p = v_.P(0, c_.superficie);
    plano_.Flecha({p.x, p.y - 6.0}, {p.x, p.y - 0.3}, Tinta::NoCumple);
    plano_.Encima({p.x + 2.0, p.y - 3.0}, w_.T(txt::Cargas[static_cast<std::size_t>(t_.ICar)]),
                  AnclaX::Izquierda, AnclaY::Base, kLetraMenor);
  }

  void Cotas() {
    const double x = v_.P(c_.semi, 0).x;
    const auto rotulo = [&](const char* nombre, double m) {
      return std::string(nombre) + " = " + w_.Metros(m);
    };
    const double clave = v_.P(0, -c_.R).y;
    plano_.En(Capa::Ejes);
    const Trazo guia{Tinta::Tenue, kFino, Patron::Discontinuo};
    plano_.Linea(v_.P(0, -c_.R), {x + 1.0, clave}, guia);
    if (c_.SobreTerreno()) {
      plano_.Linea(v_.P(c_.coronacion, c_.superficie), {x + 1.0, v_.P(0, c_.superficie).y}, guia);
    }
    plano_.CotaVertical(v_.P(0, c_.superficie).y, clave, x, 5.0, rotulo("Hr", Hr_));
    if (c_.clase != Colocacion::Zanja && t_.Hr1 > 0) {
      plano_.CotaVertical(v_.P(0, c_.natural).y, clave, x, c_.SobreTerreno() ? 20.0 : 5.0,
                          rotulo("Hr1", t_.Hr1));
    }
    const double abajo = v_.P(0, Abajo()).y;
    const double De = 2 * c_.R;
    const bool zanja = c_.clase != Colocacion::Terraplen;
    // The shorter one nearer, or its lines would cross the figure of the other.
    const bool cabe = !zanja || De <= 2 * c_.semiZanja;
    plano_.CotaHorizontal(v_.P(-De / 2, 0).x, v_.P(De / 2, 0).x, abajo, cabe ? 4.0 : 9.5,
                          rotulo("De", t_.De));
    if (!zanja) return;
    plano_.CotaHorizontal(v_.P(-c_.semiZanja, 0).x, v_.P(c_.semiZanja, 0).x, abajo,
                          cabe ? 9.5 : 4.0, rotulo("B", t_.B0));
  }

  void Nombres() {
    plano_.En(Capa::Textos);
    const double natural = v_.P(0, c_.natural).y;
    const std::string terreno = w_.T(txt::DibTerrenoNatural);
    const double libre = v_.L(c_.semi - c_.semiZanja);
    if (AnchoTexto(terreno, kLetraMenor) + 3.0 < libre) {
      plano_.Encima({v_.P(-c_.semi, 0).x + 1.5, natural + 4.5}, terreno, AnclaX::Izquierda,
                    AnclaY::Base, kLetraMenor);
    }
    if (c_.clase != Colocacion::Terraplen && c_.R > c_.semiZanja) {
      plano_.Encima({v_.origen.x, v_.origen.y}, w_.T(txt::DibNoCabe), AnclaX::Centro, AnclaY::Medio,
                    kLetra, Tinta::NoCumple, true);
    }
  }
};

Lamina LaminaColocacion(const Tramo& t, double Hr, ParedDibujada pared,
                        const std::string& subtitulo, const PalabrasDibujo& w, HojaDibujo hoja) {
  Lamina lamina;
  Plano plano(lamina);
  DibujoColocacion dibujo(plano, t, Hr, std::move(pared), w);
  const double lados = DibujoColocacion::LadosEnPapel(), alto = DibujoColocacion::AltoEnPapel();
  if (hoja.escala > 0) {
    hoja.ancho = std::max(hoja.ancho, dibujo.Ancho() / hoja.escala + lados + 8);
    hoja.alto = std::max(hoja.alto, dibujo.Alto() / hoja.escala + alto + 24);
  }
  lamina = LaminaVacia(hoja);
  const Marco m = PonCabecera(plano, hoja, w.T(txt::DibTituloZanja), subtitulo);
  const double escala = hoja.escala > 0 ? hoja.escala
                                        : EscalaRedonda(std::max(dibujo.Ancho() / (m.ancho - lados),
                                                                 dibujo.Alto() / (m.alto - alto)));
  dibujo.Pinta(m, escala);
  PonEscala(plano, hoja, w, escala);
  return lamina;
}

// A width and levels that can be drawn.
bool HayColocacion(const Tramo& t, double Hr) {
  const auto clase = ColocacionDe(t);
  const bool zanja = clase == Colocacion::Terraplen || (std::isfinite(t.B0) && t.B0 > 0);
  const bool terreno = clase == Colocacion::Zanja || (std::isfinite(t.Hr1) && t.Hr1 >= 0);
  return HayTubo(t) && zanja && terreno && std::isfinite(Hr) && Hr >= 0;
}

}  // namespace

Lamina DibujaZanja(const CasoDibujado& caso, const PalabrasDibujo& w, const HojaDibujo& hoja) {
  return LaminaColocacion(caso.Datos(), caso.fila.Hr, ParedDe(caso),
                          w.TramoEnLetra(caso.Datos()) + " · " + w.CasoEnLetra(caso.fila), w, hoja);
}

Lamina DibujaColocacion(const Tramo& t, double Hr, const PalabrasDibujo& w,
                        const HojaDibujo& hoja) {
  if (!HayColocacion(t, Hr)) return LaminaSinDatos(w, hoja);
  return LaminaColocacion(t, Hr, ParedSinDisenar(t), w.TramoEnLetra(t), w, hoja);
}

}  // namespace zorbin
