#include <gtest/gtest.h>

#include <cmath>
#include <map>
#include <set>

#include "base/mdCarpetas.h"
#include "base/mdTextos.h"
#include "comun/comparaFichero.h"
#include "comun/estadoDeJson.h"
#include "comun/listado.h"
#include "listados/dibujos/mdDibujoAnillo.h"
#include "listados/dibujos/mdDibujoMapa.h"
#include "listados/dibujos/mdDibujoTubo.h"
#include "listados/dibujos/mdDibujoZanja.h"
#include "listados/dibujos/mdDxf.h"
#include "listados/dibujos/mdGraficoComparado.h"
#include "listados/dibujos/mdGraficosTramo.h"
#include "listados/dibujos/mdHojaFabricacion.h"
#include "listados/dibujos/mdSvg.h"

namespace zorbin {
namespace {

using Ajusta = std::function<void(Tramo&)>;

// A Tramo of the sample Obra, changed, with the words of a language; its last Caso is in hand.
class Escena {
 public:
  explicit Escena(int posicion, std::int16_t idioma = 1, const Ajusta& ajusta = {})
      : textos_(Catalogo::Lee(CarpetaRecursos() / "textos")) {
    textos_.PonIdioma(idioma);
    auto e = pruebas::EstadoDeMuestra(posicion);
    if (ajusta) ajusta(e.tramo);
    resultado_ = pruebas::ResultadoDe(e);
    caso_ = CasoEntero(resultado_, Fila());
  }
  // The same with the steel of its last Caso adjusted by hand.
  Escena(int posicion, std::int16_t idioma, const Ajuste& areas) : Escena(posicion, idioma) {
    const auto e = pruebas::EstadoDeMuestra(posicion);
    const double Tramo = e.tramo.NumeroTramo;
    resultado_ = pruebas::ResultadoDe(e, {{Fila().DP, Tramo, Fila().Hr, areas}});
    caso_ = CasoEntero(resultado_, Fila());
  }
  const FilaCaso& Fila() const { return resultado_.filas.back(); }
  CasoDibujado Caso() const { return {resultado_, Fila(), caso_}; }
  const DatosTramo& Datos() const { return resultado_.datos; }
  PalabrasDibujo Palabras() const { return {textos_, {true, ','}}; }

  std::vector<Lamina> Todas(const HojaDibujo& hoja) const {
    const auto w = Palabras();
    std::vector<Lamina> x{
        hoja.cabecera ? DibujaSeccion(Caso(), w, hoja) : DibujaTransversal(Caso(), w, hoja),
        DibujaPared(Caso(), w, hoja),
        DibujaZanja(Caso(), w, hoja),
        DibujaTubo(Datos().tramo, w, hoja),
        DibujaColocacion(Datos().tramo, Fila().Hr, w, hoja),
        DibujaMapa(CalculaMapa(Datos()), Datos(), &Fila(), w, hoja).lamina};
    for (int h = 1; h <= CuentaHipotesis(Datos()); ++h) {
      x.push_back(DibujaAnillo(Caso(), h, w, hoja,
                               hoja.cabecera ? LeyesDibujadas::Ambas : LeyesDibujadas::Momentos));
      if (!Datos().tramo.EsArmado) x.push_back(DibujaTensiones(Caso(), h, w, hoja).lamina);
    }
    Fabricacion fab;
    fab.Longitud = 1850.0;
    fab.AceroJunta = 24.5;
    if (hoja.cabecera) x.push_back(DibujaHojaFabricacion(Caso(), fab, w));
    for (const auto eje : {EjeDeGrafico::Altura, EjeDeGrafico::Presion}) {
      const auto malla = CalculaMalla(Datos(), EjesDelGrafico(Datos(), eje, 12), true);
      for (const auto que : {QueGrafico::Acero, QueGrafico::Momentos, QueGrafico::Cargas}) {
        x.push_back(DibujaGraficoTramo(que, eje, Datos(), malla, w, hoja).lamina);
      }
      const TramoComparado uno{Datos(), std::make_shared<const Malla>(malla)};
      x.push_back(DibujaGraficoComparado(QueCompara::Momento, eje, {uno, uno}, w, hoja).lamina);
    }
    return x;
  }

 private:
  Catalogo textos_;
  ResultadoTramo resultado_;
  ResultadoCaso caso_;
};

std::vector<Letrero> Rotulos(const Lamina& l) {
  std::vector<Letrero> r;
  for (const auto& p : l.piezas) {
    if (const auto* x = std::get_if<Letrero>(&p); x != nullptr && x->giro == 0) r.push_back(*x);
  }
  return r;
}

bool SePisan(const Letrero& a, const Letrero& b) {
  const auto p = CajaTexto(a), q = CajaTexto(b);
  return p.x < q.Derecha() && q.x < p.Derecha() && p.y < q.Abajo() && q.y < p.Abajo();
}

// No text runs over another or off the sheet, in any drawing, language and size of pipe.
TEST(Dibujos, NingunTextoPisaOtroNiSeSaleDeLaHoja) {
  const Ajusta enorme = [](Tramo& t) { t.Di = 12.0, t.Esp = 50.0, t.De = 13.0, t.B0 = 1.0; };
  const Ajusta menudo = [](Tramo& t) {
    t.Di = 0.2, t.Esp = 5.0, t.De = 0.3, t.Hr0Tramo = t.Hr0Final = 20.0;
  };
  const std::vector<Escena> escenas{
      Escena(1),    Escena(3, 5),         Escena(4, 2),
      Escena(6, 5), Escena(1, 1, enorme), Escena(4, 3, menudo),
      Escena(7, 4), Escena(2, 5),         Escena(1, 2, Ajuste{20.0, 6.5, 24.25})};
  for (std::size_t e = 0; e < escenas.size(); ++e) {
    auto laminas = escenas[e].Todas({});
    // On a panel of a window too.
    const HojaDibujo panel{120, 80, false, 0};
    for (auto& l : escenas[e].Todas(panel)) laminas.push_back(std::move(l));
    for (std::size_t n = 0; n < laminas.size(); ++n) {
      const auto rotulos = Rotulos(laminas[n]);
      for (std::size_t i = 0; i < rotulos.size(); ++i) {
        const auto m = CajaTexto(rotulos[i]);
        EXPECT_TRUE(m.x >= 0 && m.y >= 0 && m.Derecha() <= laminas[n].ancho &&
                    m.Abajo() <= laminas[n].alto)
            << e << "," << n << ": " << rotulos[i].texto;
        for (std::size_t j = 0; j < i; ++j) {
          EXPECT_FALSE(SePisan(rotulos[i], rotulos[j]))
              << e << "," << n << ": " << rotulos[i].texto << " / " << rotulos[j].texto;
        }
      }
    }
  }
}

// Of data typed halfway or wrongly: nothing that is not finite, nothing far off the sheet, and a
// frame without a pipe where they make none.
TEST(Dibujos, LosDatosRotosDejanElMarcoVacio) {
  struct Roto {
    Ajusta pon;
    bool tubo, colocacion;
  };
  const double nada = std::nan(""), sinFin = HUGE_VAL;
  const std::vector<Roto> rotos{
      {[](Tramo&) {}, true, true},
      {[](Tramo& t) { t.Di = 0, t.De = 2 * t.Esp; }, false, false},
      {[](Tramo& t) { t.Esp = 0, t.De = t.Di; }, false, false},
      {[](Tramo& t) { t.Esp = -0.1; }, false, false},
      {[](Tramo& t) { t.De = t.Di / 2; }, false, false},
      {[nada](Tramo& t) { t.Reci = nada; }, false, false},
      {[sinFin](Tramo& t) { t.De = sinFin; }, false, false},
      {[](Tramo& t) { t.Rece = -1; }, false, false},
      {[](Tramo& t) { t.Reci = t.Rece = 1e9; }, true, true},
      {[](Tramo& t) { t.Delca = 1e9; }, true, true},
      {[](Tramo& t) { t.Di = 1e9, t.De = 1.5e9, t.Esp = 2.5e8; }, true, true},
      {[](Tramo& t) { t.Di = 1e-6, t.De = 3e-6, t.Esp = 1e-6; }, true, true},
      {[](Tramo& t) { t.B0 = 0; }, true, false},
      {[nada](Tramo& t) { t.B0 = nada; }, true, false},
      {[](Tramo& t) { t.B0 = 1e9; }, true, true},
      {[](Tramo& t) { t.B0 = 1e-9; }, true, true},
      {[](Tramo& t) { t.TipoApoyo = 21, t.Hr1 = -1e9; }, true, false},
      {[](Tramo& t) { t.TipoApoyo = 21, t.Hr1 = 1e9; }, true, true},
      {[](Tramo& t) { t.TipoApoyo = 31, t.B0 = 0, t.Hr1 = 1e9; }, true, true},
      {[](Tramo& t) { t.TipoCuna = -7, t.ICar = 99; }, true, true},
  };
  const auto mira = [](const Lamina& l, bool dibuja, const std::string& cual) {
    const auto dentro = [&](Xy p, double radio) {
      const double lejos = 3 * (l.ancho + l.alto);
      EXPECT_LE(std::max(std::fabs(p.x), std::fabs(p.y)) + radio, lejos) << cual;
    };
    bool tubo = false;
    for (const auto& pieza : l.piezas) {
      if (const auto* r = std::get_if<Redondo>(&pieza)) {
        tubo = true;
        dentro(r->centro, r->radio);
        EXPECT_LE(r->trazo.grueso, l.alto) << cual;
      } else if (const auto* f = std::get_if<Forma>(&pieza)) {
        for (const auto& contorno : f->contornos) {
          for (const auto& p : contorno) dentro(p, f->trazo.grueso);
        }
      }
    }
    EXPECT_EQ(tubo, dibuja) << cual;
    EXPECT_LT(l.piezas.size(), 5000U) << cual;
  };
  for (const int posicion : {1, 6}) {
    const Escena escena(posicion);
    const auto w = escena.Palabras();
    for (std::size_t i = 0; i < rotos.size(); ++i) {
      Tramo t = escena.Datos().tramo;
      rotos[i].pon(t);
      const auto cual = TextoEntero(posicion) + "," + TextoEntero(static_cast<int>(i));
      for (const HojaDibujo& hoja : {HojaDibujo{}, HojaDibujo{90, 85, false, 0}}) {
        mira(DibujaTubo(t, w, hoja), rotos[i].tubo, cual);
        for (const double Hr : {0.0, 3.0, 1e9}) {
          mira(DibujaColocacion(t, Hr, w, hoja), rotos[i].colocacion, cual);
        }
        for (const double Hr : {-1.0, nada, sinFin}) {
          mira(DibujaColocacion(t, Hr, w, hoja), false, cual);
        }
      }
    }
  }
}

// What is told in figures is what is drawn: diameters, covers and number of bars by the scale.
TEST(Dibujos, LaSeccionEstaAEscala) {
  const Escena escena(1);
  HojaDibujo hoja;
  hoja.escala = 10.0;
  const auto l = DibujaTransversal(escena.Caso(), escena.Palabras(), hoja);
  const auto& t = escena.Datos().tramo;
  EXPECT_EQ(l.escala, 10.0);
  EXPECT_GE(l.ancho, t.De * 100.0);
  std::vector<double> radios;
  for (const auto& p : l.piezas) {
    const auto* r = std::get_if<Redondo>(&p);
    if (r != nullptr && r->trazo.grueso > 0) radios.push_back(r->radio * 10.0);
  }
  const auto& f = escena.Fila();
  const double Ri = t.Di * 500.0;
  for (const double radio :
       {Ri, t.De * 500.0, Ri + 25.0, t.De * 500.0 - 25.0, Ri + 25.0 + (f.CAMISA + f.FIIN) / 2.0}) {
    EXPECT_TRUE(std::any_of(radios.begin(), radios.end(), [radio](double r) {
      return std::fabs(r - radio) < 1e-6;
    })) << radio;
  }
  const auto pared = ParedDe(escena.Caso());
  const auto seccion = DibujaPared(escena.Caso(), escena.Palabras());
  int barras = 0;
  for (const auto& p : seccion.piezas) {
    const auto* r = std::get_if<Redondo>(&p);
    barras += r != nullptr && (r->capa == Capa::Interior || r->capa == Capa::Exterior);
  }
  // The cut is 0.5 m long.
  EXPECT_EQ(barras, static_cast<int>(f.NESPIN * 0.5) + static_cast<int>(f.NEXPEX * 0.5));
}

TEST(Dibujos, LasMarcasSonRedondasYCaenDentro) {
  const std::vector<std::tuple<double, double, int, std::vector<double>>> casos{
      {0.0, 1.0, 5, {0.0, 0.2, 0.4, 0.6, 0.8, 1.0}},
      {23.0, 61.0, 4, {30.0, 40.0, 50.0, 60.0}},
      {-3.1, 2.2, 6, {-3.0, -2.0, -1.0, 0.0, 1.0, 2.0}},
      {5.0, 5.0, 3, {5.0}},
  };
  for (const auto& [desde, hasta, cuantas, esperadas] : casos) {
    const auto marcas = Marcas(desde, hasta, cuantas);
    ASSERT_EQ(marcas.size(), esperadas.size()) << desde;
    for (std::size_t i = 0; i < marcas.size(); ++i) EXPECT_NEAR(marcas[i], esperadas[i], 1e-12);
  }
}

// On z = x + y, on a saddle and round a peak; a hole in the values cuts the line.
TEST(Dibujos, LasLineasDeNivelSiguenLosValores) {
  const auto malla = [](const std::function<double(double, double)>& z) {
    std::vector<double> v;
    for (int y = 0; y < 6; ++y) {
      for (int x = 0; x < 8; ++x) v.push_back(z(x, y));
    }
    return v;
  };
  auto plano = malla([](double x, double y) { return x + y; });
  const auto recta = LineasDeNivel(plano, 8, 4.5);
  ASSERT_EQ(recta.size(), 1u);
  for (const auto& p : recta.front()) EXPECT_NEAR(p.x + p.y, 4.5, 1e-12);
  const auto cima = LineasDeNivel(
      malla([](double x, double y) { return -std::hypot(x - 3.3, y - 2.4); }), 8, -1.5);
  ASSERT_EQ(cima.size(), 1u);
  EXPECT_NEAR(cima.front().front().x, cima.front().back().x, 1e-9);
  EXPECT_EQ(
      LineasDeNivel(malla([](double x, double y) { return (x - 3.5) * (y - 2.5); }), 8, 0.1).size(),
      2u);
  plano[2 * 8 + 2] = std::nan("");
  EXPECT_EQ(LineasDeNivel(plano, 8, 4.5).size(), 2u);
}

TEST(Dibujos, SeSenalaLoQueHayBajoElPuntero) {
  Lamina l;
  Plano plano(l);
  plano.Id(7);
  plano.Area(Rectangulo({10, 10, 20, 20}), {Tinta::Agua, 1.0});
  plano.Id(8);
  plano.Corona({20, 20}, 6, 3, {Tinta::Hormigon, 1.0});
  plano.Id(9);
  plano.Linea({0, 50}, {50, 50}, {Tinta::Tinta, 0.2});
  EXPECT_EQ(QueHayEn(l, {12, 12}, 0.5), 7);
  EXPECT_EQ(QueHayEn(l, {20, 15.5}, 0.5), 8);
  EXPECT_EQ(QueHayEn(l, {20, 20}, 0.5), 7);  // through the hole of the ring
  EXPECT_EQ(QueHayEn(l, {25, 50.4}, 0.5), 9);
  EXPECT_EQ(QueHayEn(l, {25, 51}, 0.5), kSinId);
  const Escena escena(1);
  const auto malla = CalculaMapa(escena.Datos());
  const auto mapa = DibujaMapa(malla, escena.Datos(), nullptr, escena.Palabras());
  const auto& ejes = malla.ejes;
  const Xy p = mapa.ejes.P(ejes.presiones[12] / 10.0, ejes.alturas[30]);
  const auto punto = PuntoEn(mapa, malla, escena.Palabras(), p);
  ASSERT_TRUE(punto);
  EXPECT_EQ(punto->altura, 30u);
  EXPECT_EQ(punto->presion, 12u);
  EXPECT_FALSE(PuntoEn(mapa, malla, escena.Palabras(), {1, 1}));
}

// The bytes of a DXF, and what stands for a letter that they lack or that would mean something
// else.
TEST(Dibujos, LosTextosDeUnDxfSonDeSuPagina) {
  for (const auto& [texto, bytes] : std::vector<std::pair<std::string, std::string>>{
           {"Échelle Ø8/m² · 90°",
            "\xC9"
            "chelle \xD8"
            "8/m\xB2 \xB7 90\xB0"},
           {"σ − Σ ≤ τ ≥ ψ, Ω", "sigma - Sigma <= tau >= psi, Omega"},
           {"Łódź \U0001F600",
            "\\U+0141\xF3"
            "d\\U+017A \\U+1F600"},
           {"80 % y 50 %%d", "80 %%% y 50 %%%%%%d"},
           {"5 % más", "5 % m\xE1s"},
           {"a^b\nc", "a^ b c"},
           {std::string(400, 'x'), std::string(255, 'x')}}) {
    EXPECT_EQ(TextoDxf(texto), bytes) << texto;
  }
}

// A detail that would grow beyond its place stands beside the sheet, at its size.
TEST(Dibujos, UnDetalleMayorQueSuVistaSeApartaEnElDxf) {
  Lamina l;
  l.ancho = 100, l.alto = 50, l.escala = 10;
  Plano plano(l);
  plano.EnDetalle(20);
  plano.Linea({10, 10}, {30, 10}, {Tinta::Tinta, kMedio});
  plano.EnDetalle(2);
  plano.Linea({10, 20}, {30, 20}, {Tinta::Tinta, kMedio});
  const auto dxf = DxfDe(l, "x");
  for (const auto* linea :
       {"10\r\n1100.0\r\n20\r\n500.0\r\n30\r\n0.0\r\n11\r\n1500.0\r\n21\r\n500.0\r\n",
        "10\r\n180.0\r\n20\r\n300.0\r\n30\r\n0.0\r\n11\r\n220.0\r\n21\r\n300.0\r\n"}) {
    EXPECT_NE(dxf.find(linea), std::string::npos) << dxf;
  }
}

// Each name stands wholly on cells that its hypothesis governs, and the great areas have one.
TEST(Dibujos, ElMapaNombraSusAreas) {
  for (const int tramo : {1, 3, 6}) {
    const Escena escena(tramo);
    const auto w = escena.Palabras();
    const auto malla = CalculaMapa(escena.Datos());
    for (const HojaDibujo& hoja : {HojaDibujo{}, HojaDibujo{105, 70, false, 0}}) {
      const auto mapa = DibujaMapa(malla, escena.Datos(), &escena.Fila(), w, hoja);
      std::set<int> nombradas;
      for (const auto& r : Rotulos(mapa.lamina)) {
        if (!r.halo || r.negrita) continue;
        const int h = std::stoi(r.texto);
        nombradas.insert(h);
        const auto m = CajaTexto(r);
        for (const Xy p :
             {Xy{m.x, m.y}, Xy{m.Derecha(), m.y}, Xy{m.x, m.Abajo()}, Xy{m.Derecha(), m.Abajo()}}) {
          const auto sitio = PuntoEn(mapa, malla, w, p);
          ASSERT_TRUE(sitio) << r.texto;
          EXPECT_EQ(malla.En(sitio->altura, sitio->presion)->hipotesis, h) << r.texto;
        }
      }
      std::map<int, std::size_t> celdas;
      for (const auto& p : malla.puntos) ++celdas[p ? p->hipotesis : 0];
      for (const auto& [h, cuantas] : celdas) {
        if (h == 0 || cuantas < malla.puntos.size() / 5) continue;
        EXPECT_TRUE(nombradas.contains(h)) << tramo << ": " << h;
      }
    }
  }
}

// At each place of the axis, the greatest of what its Tramo has there.
TEST(Dibujos, LaComparacionTomaElMayorDeCadaTramo) {
  const Escena escena(1);
  const auto w = escena.Palabras();
  const auto ejes = EjesDelGrafico(escena.Datos(), EjeDeGrafico::Presion, 12);
  const auto malla = std::make_shared<const Malla>(CalculaMalla(escena.Datos(), ejes));
  const auto l = DibujaGraficoComparado(QueCompara::Acero, EjeDeGrafico::Presion,
                                        {{escena.Datos(), malla}}, w);
  double mayor = 0;
  for (std::size_t i = 0; i < ejes.alturas.size(); ++i) {
    mayor = std::max(mayor, malla->En(i, 6)->acero.value_or(0));
  }
  const Xy p = l.ejes.P(w.Convertido(ejes.presiones[6], "at->MPa"), mayor);
  EXPECT_EQ(QueHayEn(l.lamina, p, 0.3), 0);
  EXPECT_EQ(QueHayEn(l.lamina, {p.x, p.y + 3.0}, 0.3), kSinId);
  EXPECT_GT(ejes.alturas.size(), 1U);
}

TEST(Dibujos, DoradosEnSvg) {
  const Escena armado(1), postesado(6, 5);
  const Paleta papel(TemaDibujo::Papel), oscuro(TemaDibujo::Oscuro);
  const auto w = armado.Palabras(), fr = postesado.Palabras();
  const auto compara = [](const char* nombre, const Lamina& l, const Paleta& paleta) {
    EXPECT_EQ(pruebas::Compara(std::string("dibujos/") + nombre, SvgDe(l, paleta, nombre)), "");
  };
  compara("seccion.svg", DibujaSeccion(armado.Caso(), w), papel);
  compara("seccion-postesado-fr-oscuro.svg", DibujaSeccion(postesado.Caso(), fr), oscuro);
  compara("anillo.svg", DibujaAnillo(armado.Caso(), 5, w), papel);
}

}  // namespace
}  // namespace zorbin
