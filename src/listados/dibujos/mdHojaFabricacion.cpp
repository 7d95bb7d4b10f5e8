#include "listados/dibujos/mdHojaFabricacion.h"

#include <algorithm>
#include <cmath>

#include "base/mdTextos.h"
#include "base/textos.h"
#include "listados/dibujos/mdCorte.h"
#include "listados/dibujos/mdDesarrollo.h"
#include "listados/dibujos/mdTablaDibujo.h"

namespace zorbin {

namespace {

constexpr double kMm = 1000.0;           // of a metre
constexpr Marco kA3{0, 0, 420, 297};     // [mm]
constexpr double kBorde = 5.0;           // of the frame
constexpr double kLado = 10.0;           // of what stands in it
constexpr double kArriba = 26.0;         // of the drawings, under the head
constexpr double kAltoDibujos = 124.0;   // [mm]
constexpr double kAnchoSeccion = 138.0;  // with its marks
constexpr double kAltoCorte = 50.0;      // with its marks
constexpr double kEntre = 6.0;           // from one thing to the next
constexpr int kBloques = 4;              // of data, side by side

std::size_t ElementoDe(Partida p, bool exterior) {
  switch (p) {
    case Partida::Chapa:
      return 0;
    case Partida::EspirasInteriores:
      return 1;
    case Partida::EspirasExteriores:
      return 2;
    case Partida::Longitudinales:
      return exterior ? 4 : 3;
    case Partida::Alambre:
      return 5;
    default:
      return 6;
  }
}

class Hoja {
 public:
  Hoja(Plano& plano, const CasoDibujado& caso, const Fabricacion& fab, const PalabrasDibujo& w)
      : plano_(plano),
        caso_(caso),
        t_(caso.Datos()),
        fab_(fab),
        w_(w),
        m_(MideCaso(caso.tramo, caso.fila, fab)),
        pared_(ParedDe(caso)) {
    // The outer cage begins with its spirals.
    for (const auto& capa : m_.capas) {
      const bool nueva = jaulas_.empty() || capa.partida == Partida::EspirasExteriores;
      if (nueva) jaulas_.push_back({TituloJaula(capa.partida), {}});
      jaulas_.back().capas.push_back({++marcas_, &capa});
    }
  }

  void Pinta() {
    plano_.En(Capa::Textos);
    plano_.Area(Rectangulo({kBorde, kBorde, kA3.ancho - 2 * kBorde, kA3.alto - 2 * kBorde}), {},
                {Tinta::Tinta, kGrueso});
    Seccion({kLado, kArriba, kAnchoSeccion, kAltoDibujos});
    Cabeza();
    const double x = kLado + kAnchoSeccion + kEntre, ancho = kA3.ancho - kLado - x;
    CorteDeLaPared({x, kArriba, ancho, kAltoCorte});
    Desarrollos({x, kArriba + kAltoCorte + kEntre, ancho, kAltoDibujos - kAltoCorte - kEntre});
    const double y = Tabla(kArriba + kAltoDibujos + kEntre);
    Datos(y + kEntre);
  }

 private:
  Plano& plano_;
  const CasoDibujado& caso_;
  const Tramo& t_;
  const Fabricacion& fab_;
  const PalabrasDibujo& w_;
  const Medicion m_;
  const ParedDibujada pared_;
  std::vector<Jaula> jaulas_;
  int marcas_ = 0;

  bool Ajustada() const { return t_.EsArmado && caso_.fila.ajustado; }
  bool HayChapa() const { return !m_.capas.empty() && m_.capas.front().partida == Partida::Chapa; }
  const std::string& TituloJaula(Partida primera) const {
    const std::size_t i = !t_.EsArmado ? 2 : primera == Partida::EspirasExteriores ? 1 : 0;
    return w_.T(txt::HojaJaula[i]);
  }
  std::string Tension(double kp) const { return w_.Numero(kp, 0, "Kp/cm2->MPa"); }
  std::string PorTubo(double porMetro, const char* unidad, int decimales) const {
    return w_.Con(txt::HojaPorTubo, {w_.Numero(porMetro, decimales), unidad,
                                     w_.Numero(porMetro * fab_.LongitudTubo, decimales)});
  }

  void Cabeza() {
    plano_.En(Capa::Textos);
    plano_.Negrita({kLado, 13.5}, w_.T(txt::HojaTitulo), AnclaX::Izquierda, AnclaY::Base, 5.0);
    const std::string escala = w_.Con(txt::DibEscala, {w_.Corto(plano_.lamina().escala, 2)});
    plano_.Texto({kA3.ancho - kLado, 13.5}, escala, AnclaX::Derecha);
    const std::string caso = w_.TramoEnLetra(t_) + " · " + w_.CasoEnLetra(caso_.fila);
    plano_.Texto({kLado, 19.0}, Recortado(caso, kA3.ancho - 2 * kLado, kLetra), AnclaX::Izquierda,
                 AnclaY::Base, kLetra, Tinta::Tenue);
    plano_.Linea({kLado, 22.0}, {kA3.ancho - kLado, 22.0}, {Tinta::Rejilla, kMedio});
  }

  // ---------------------------------------------------------------------------------------------
  // Views

  void Seccion(const Marco& m) {
    constexpr double kMarcas = 18.0, kCotas = 18.0, kAire = 4.0;
    const double De = t_.De * kMm, Di = t_.Di * kMm;
    Vista v;
    v.escala = EscalaRedonda(
        std::max(De / (m.ancho - kMarcas - 2 * kAire), De / (m.alto - kCotas - kAire)));
    const double libre = m.ancho - kMarcas - v.L(De);
    v.origen = {m.x + libre / 2 + v.L(De / 2), m.y + (m.alto - kCotas) / 2};
    plano_.lamina().escala = v.escala;
    PintaTubo(plano_, v, t_, pared_);
    for (const auto& jaula : jaulas_) Longitudinales(v, jaula);
    plano_.En(Capa::Ejes);
    const double r = v.L(De / 2) + 2.5;
    const Trazo eje{Tinta::Tenue, kFino, Patron::Eje};
    plano_.Linea({v.origen.x, v.origen.y - r}, {v.origen.x, v.origen.y + r}, eje);
    plano_.Linea({v.origen.x - r, v.origen.y}, {v.origen.x + r, v.origen.y}, eje);
    const double abajo = v.origen.y + v.L(De / 2);
    plano_.CotaHorizontal(v.P(-Di / 2, 0).x, v.P(Di / 2, 0).x, abajo, 6.0, "Di " + w_.Corto(Di, 1));
    plano_.CotaHorizontal(v.P(-De / 2, 0).x, v.P(De / 2, 0).x, abajo, 11.5,
                          "De " + w_.Corto(De, 1));
    MarcasDeLaSeccion(v, m.Derecha() - 6.0);
  }

  void Longitudinales(const Vista& v, const Jaula& jaula) {
    const bool fuera = jaula.capas.front().capa->partida == Partida::EspirasExteriores;
    for (const auto& [marca, c] : jaula.capas) {
      if (c->partida != Partida::Longitudinales) continue;
      plano_.En(CapaDe(c->partida, fuera));
      plano_.Macizo(c->grueso);
      for (int i = 0; i < static_cast<int>(c->numero); ++i) {
        const Xy p = Polar(v.origen, v.L(c->diametro * kMm / 2), 2 * kPi * i / c->numero);
        plano_.Circulo(p, std::max(0.35, v.L(c->grueso / 2)), {Tinta::Tinta, 1.0});
      }
      plano_.Macizo(0.0);
    }
  }

  // One under another at the right, each at the height of what it names.
  void MarcasDeLaSeccion(const Vista& v, double x) {
    constexpr double kPrimera = 35.0 * kPi / 180.0, kGiro = 14.0 * kPi / 180.0;
    for (const auto& jaula : jaulas_) {
      for (const auto& [marca, c] : jaula.capas) {
        double a = kPrimera + kGiro * (marca - 1);
        if (c->partida == Partida::Longitudinales) {
          a = 2 * kPi * std::round(a * c->numero / (2 * kPi)) / c->numero;
        }
        const Xy cosa = Polar(v.origen, v.L(c->diametro * kMm / 2), a);
        const double y = v.origen.y + (marca - 3) * 11.0;
        PintaMarca(plano_, {x, y}, marca, cosa);
      }
    }
  }

  // The covers are read here. A layer of the wall and one of the bill go together by their order.
  void CorteDeLaPared(const Marco& m) {
    constexpr double kMarca = 7.0;
    Corte corte(plano_, pared_, {m.x, m.y + kMarca + 2.0, m.ancho, m.alto - kMarca - 2.0});
    plano_.EnDetalle(corte.Escala());
    corte.Pinta(w_);
    std::size_t i = 0;
    for (const auto& jaula : jaulas_) {
      for (const auto& [marca, c] : jaula.capas) {
        if (c->partida == Partida::Longitudinales || i == pared_.acero.size()) continue;
        const Xy cosa = corte.EnCapa(pared_.acero[i], 0.15 + 0.25 * static_cast<double>(i));
        ++i;
        PintaMarca(plano_, {cosa.x, corte.Arriba() - kMarca}, marca, cosa);
      }
    }
    plano_.En(Capa::Textos);
    plano_.Texto(
        {corte.CentroX(), corte.Abajo() + 6.0},
        w_.Con(txt::DibPared, {w_.Metros(corte.Largo() / kMm), w_.Corto(corte.Escala(), 2)}),
        AnclaX::Centro, AnclaY::Base, kLetra, Tinta::Tenue);
    plano_.EnPrincipal();
  }

  void Desarrollos(const Marco& m) {
    if (jaulas_.empty()) return;
    const double n = static_cast<double>(jaulas_.size());
    Marco sitio{m.x, m.y, (m.ancho - kEntre * (n - 1)) / n, m.alto};
    double mayor = 0;
    for (const auto& jaula : jaulas_) mayor = std::max(mayor, jaula.Desarrollo());
    const double escala = EscalaDesarrollo(mayor, sitio);
    for (const auto& jaula : jaulas_) {
      PintaDesarrollo(plano_, sitio, escala, jaula, w_);
      sitio.x += sitio.ancho + kEntre;
    }
  }

  // ---------------------------------------------------------------------------------------------
  // Figures

  FilaTabla Fila(const CapaMarcada& marcada, bool exterior) const {
    const auto& [marca, c] = marcada;
    const auto si = [this](double valor, int decimales) {
      return valor > 0 ? w_.Numero(valor, decimales) : std::string("-");
    };
    std::string elemento = w_.T(txt::HojaElemento[ElementoDe(c->partida, exterior)]);
    if (!(c->grueso > 0)) {
      const double cm2 = c->kg / kDensidadAcero / (kPi * c->diametro) * 10'000.0;
      const std::string area = w_.Con(txt::DibArea, {w_.Numero(cm2, 2)});
      elemento += " · " + w_.Con(txt::DibAjustada, {area});
    }
    const bool barras = c->partida == Partida::Longitudinales;
    std::string numero = "-";
    if (c->numero > 0) {
      numero =
          barras ? w_.Numero(c->numero, 0) : w_.Con(txt::HojaPorMetro, {w_.Numero(c->numero, 1)});
    }
    const double paso = barras && c->numero > 0 ? kPi * c->diametro * kMm / c->numero : c->Paso();
    return {{TextoEntero(marca), elemento, c->grueso > 0 ? w_.Corto(c->grueso, 2) : "-",
             si(c->diametro * kMm, 1), numero, si(paso, 1), si(c->desarrollo, 2), si(c->kg, 1),
             si(c->kg * fab_.LongitudTubo, 0)},
            false};
  }

  double Tabla(double y) {
    constexpr std::array<double, 9> kAnchos{16, 108, 38, 34, 34, 32, 48, 44, 46};
    std::vector<ColumnaTabla> columnas;
    for (std::size_t i = 0; i < kAnchos.size(); ++i) {
      const AnclaX ancla = i == 0 ? AnclaX::Centro : i == 1 ? AnclaX::Izquierda : AnclaX::Derecha;
      columnas.push_back({w_.T(txt::HojaCabeza[i]), kAnchos[i], ancla});
    }
    std::vector<FilaTabla> filas;
    double acero = m_.porMetro[Partida::Juntas];
    for (const auto& jaula : jaulas_) {
      const bool fuera = jaula.capas.front().capa->partida == Partida::EspirasExteriores;
      for (const auto& c : jaula.capas) {
        filas.push_back(Fila(c, fuera));
        acero += c.capa->kg;
      }
    }
    const auto suma = [&](const std::string& que, double kg, bool negrita) {
      filas.push_back(
          {{"", que, "", "", "", "", "", w_.Numero(kg, 1), w_.Numero(kg * fab_.LongitudTubo, 0)},
           negrita});
    };
    const double juntas = m_.porMetro[Partida::Juntas];
    if (juntas > 0)
      suma(w_.T(txt::HojaElemento[ElementoDe(Partida::Juntas, false)]), juntas, false);
    suma(w_.T(jaulas_.empty() ? txt::DibSinArmadura : txt::HojaAceroTotal), acero, true);
    return PintaTabla(plano_, {kLado, y}, columnas, filas);
  }

  void Datos(double y) {
    const double libre = kA3.ancho - 2 * kLado;
    const double ancho = (libre - 2 * kEntre * (kBloques - 1)) / kBloques;
    const auto x = [&](int bloque) { return kLado + bloque * (ancho + 2 * kEntre); };
    const auto ficha = [&](int bloque, double arriba, std::size_t titulo,
                           const std::vector<DatoFicha>& datos) {
      return PintaFicha(plano_, {x(bloque), arriba}, ancho, w_.T(txt::HojaBloque[titulo]), datos);
    };
    const double bajo = std::max(ficha(0, y, 0, Tubo()), ficha(1, y, 1, Materiales()));
    double tercero = y;
    if (!t_.EsArmado && caso_.fila.FIIN > 0) {
      tercero = ficha(2, tercero, 2, DelAlambre()) + kEntre / 2;
    }
    ficha(2, tercero, 3, Pruebas());
    ficha(3, y, 4, DeLaObra());
    Notas({x(0), bajo + kEntre / 2}, x(1) + ancho - x(0));
  }

  std::vector<DatoFicha> Tubo() const {
    const auto mm = [this](double m) { return w_.Milimetros(m * kMm); };
    std::vector<DatoFicha> datos;
    const auto pon = [&](std::size_t i, std::string valor) {
      datos.emplace_back(w_.T(txt::HojaTubo[i]), std::move(valor));
    };
    pon(0, mm(t_.Di));
    pon(1, mm(t_.De));
    pon(2, mm(t_.Esp));
    pon(3, mm(t_.Reci));
    pon(4, mm(t_.Rece));
    pon(5, w_.Metros(fab_.LongitudTubo));
    if (const double tubos = NumeroDeTubos(fab_); tubos > 0) pon(6, w_.Numero(tubos, 0));
    pon(7, PorTubo(m_.peso, "kg", 0));
    return datos;
  }

  std::vector<DatoFicha> Materiales() const {
    std::vector<DatoFicha> datos;
    const auto pon = [&](std::size_t i, std::string valor) {
      datos.emplace_back(w_.T(txt::HojaMaterial[i]), std::move(valor));
    };
    const double nucleo = m_.porMetro[Partida::HormigonNucleo];
    if (t_.EsArmado) {
      pon(0, Tension(t_.Fck));
      pon(4, Tension(t_.Fyk));
      pon(6, PorTubo(nucleo, "m³", 3));
      return datos;
    }
    pon(1, Tension(t_.Fckno));
    pon(2, Tension(t_.Fckn));
    pon(3, Tension(t_.Fckr));
    if (HayChapa()) pon(5, Tension(t_.FYKPost));
    pon(7, PorTubo(nucleo, "m³", 3));
    pon(8, PorTubo(m_.porMetro[Partida::HormigonRevestimiento], "m³", 3));
    return datos;
  }

  std::vector<DatoFicha> DelAlambre() const {
    const auto alambre = std::find_if(m_.capas.begin(), m_.capas.end(),
                                      [](const auto& c) { return c.partida == Partida::Alambre; });
    if (alambre == m_.capas.end()) return {};
    const double area = kPi * alambre->grueso * alambre->grueso / 400.0;  // [cm2]
    const std::vector<std::string> valores{
        Tension(t_.SFck),
        Tension(t_.Sf),
        w_.Numero(t_.Sf * area / 1000.0, 3, "T->kN"),
        w_.Con(txt::HojaPorMetro, {w_.Numero(alambre->numero, 1)}),
        w_.Milimetros(alambre->Paso()),
        PorTubo(alambre->desarrollo, "m", 1)};
    std::vector<DatoFicha> datos;
    for (std::size_t i = 0; i < valores.size(); ++i) {
      datos.emplace_back(w_.T(txt::HojaAlambre[i]), valores[i]);
    }
    return datos;
  }

  std::vector<DatoFicha> Pruebas() const {
    const auto& f = caso_.fila;
    std::vector<DatoFicha> datos;
    const auto pon = [&](std::size_t i, std::string valor) {
      datos.emplace_back(w_.T(txt::HojaPrueba[i]), std::move(valor));
    };
    pon(0, w_.Presion(f.DP));
    pon(1, w_.Presion(f.MDP));
    pon(2, w_.Presion(f.STP));
    pon(3, w_.Presion(f.PP));
    if (t_.EsArmado) return datos;
    if (f.PPObtenida > 0) pon(4, PPObtenida(f.PPObtenida));
    if (t_.Icontes1) pon(5, w_.Presion(f.DP * t_.Coepre1));
    return datos;
  }

  std::string PPObtenida(double at) const {
    if (at == kPPSinLimite) return w_.T(txt::PPSinLimite);
    return at == kPPAlambreCambia ? w_.T(txt::PPAlambreCambia) : w_.Presion(at);
  }

  std::vector<DatoFicha> DeLaObra() const {
    const auto& obra = caso_.tramo.datos.obra;
    const auto veredicto = static_cast<std::size_t>(caso_.fila.verificacion.veredicto);
    std::string nombre;
    for (const char c : obra.NombreObra) {
      if (c == '\n') nombre += ' ';
      if (c != '\r' && c != '\n') nombre += c;
    }
    const std::vector<std::string> valores{nombre, obra.Cliente, w_.TramoEnLetra(t_),
                                           w_.Metros(caso_.fila.Hr),
                                           w_.T(txt::Veredictos[veredicto])};
    std::vector<DatoFicha> datos;
    for (std::size_t i = 0; i < valores.size(); ++i) {
      datos.emplace_back(w_.T(txt::HojaObra[i]), valores[i]);
    }
    return datos;
  }

  void Notas(Xy sitio, double ancho) {
    sitio.y = PintaFicha(plano_, sitio, ancho, w_.T(txt::HojaBloque[5]), {});
    std::vector<std::string> notas{w_.T(txt::HojaNota[t_.EsArmado ? 0 : 2])};
    if (t_.EsArmado && HayChapa()) notas.push_back(w_.T(txt::HojaNota[1]));
    const bool largas = std::any_of(m_.capas.begin(), m_.capas.end(), [](const auto& c) {
      return c.partida == Partida::Longitudinales;
    });
    if (largas) {
      notas.push_back(
          w_.Con(txt::HojaNota[3], {w_.Numero(fab_.SepLong * kMm, 0), TextoEntero(kMinimoLong)}));
    }
    if (Ajustada()) notas.push_back(w_.T(txt::HojaNota[5]));
    notas.push_back(
        w_.Con(txt::HojaNota[4], {w_.Numero(kDensidadAcero, 0), w_.Numero(t_.Gc * kMm, 0)}));
    for (const auto& nota : notas) sitio.y = PintaParrafo(plano_, sitio, ancho, nota);
  }
};

}  // namespace

Lamina DibujaHojaFabricacion(const CasoDibujado& caso, const Fabricacion& fab,
                             const PalabrasDibujo& w) {
  Lamina lamina;
  lamina.ancho = kA3.ancho;
  lamina.alto = kA3.alto;
  Plano plano(lamina);
  Hoja(plano, caso, fab, w).Pinta();
  return lamina;
}

}  // namespace zorbin
