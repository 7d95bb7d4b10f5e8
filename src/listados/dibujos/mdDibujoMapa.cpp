#include "listados/dibujos/mdDibujoMapa.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <map>
#include <optional>

#include "base/mdTextos.h"
#include "base/textos.h"
#include "listados/dibujos/mdRotulosMapa.h"

namespace zorbin {

namespace {

constexpr double kNada = std::numeric_limits<double>::quiet_NaN();
constexpr std::string_view kPresion = "at->MPa";
constexpr int kTonos = 5;            // of the steel, within a colour
constexpr int kNiveles = 7;          // lines of equal steel, about
constexpr double kTonoMenor = 0.22;  // of the least steel
constexpr double kTonoMayor = 0.62;

Trama TramaDe(int hipotesis) {
  constexpr std::array<Trama, 7> kTramas{Trama::Ninguna,    Trama::Vertical, Trama::Puntos,
                                         Trama::Horizontal, Trama::Diagonal, Trama::Ninguna,
                                         Trama::Contraria};
  return kTramas[static_cast<std::size_t>(std::clamp(hipotesis, 0, 6))];
}

Tinta TintaDe(int hipotesis) {
  constexpr std::array<Tinta, 7> kTintasMapa{Tinta::Rejilla, Tinta::Serie4, Tinta::Serie6,
                                             Tinta::Serie5,  Tinta::Serie2, Tinta::Serie3,
                                             Tinta::Serie1};
  return kTintasMapa[static_cast<std::size_t>(std::clamp(hipotesis, 0, 6))];
}

// Joins segments into lines by their equal ends.
class Cadenas {
 public:
  void Pon(Xy a, Xy b) {
    const auto ia = Busca(a), ib = Busca(b);
    if (ia != finales_.end() && ib != finales_.end() && ia->second != ib->second) {
      Une(ia, ib);
    } else if (ia != finales_.end()) {
      Alarga(ia, b);
    } else if (ib != finales_.end()) {
      Alarga(ib, a);
    } else {
      lineas_.push_back({a, b});
      finales_.emplace(Clave(a), lineas_.size() - 1);
      finales_.emplace(Clave(b), lineas_.size() - 1);
    }
  }

  std::vector<std::vector<Xy>> Lineas() {
    std::erase_if(lineas_, [](const auto& l) { return l.size() < 2; });
    return std::move(lineas_);
  }

 private:
  using Extremo = std::pair<long, long>;
  using Finales = std::multimap<Extremo, std::size_t>;
  std::vector<std::vector<Xy>> lineas_;
  Finales finales_;

  static Extremo Clave(Xy p) { return {std::lround(p.x * 1e6), std::lround(p.y * 1e6)}; }
  Finales::iterator Busca(Xy p) { return finales_.find(Clave(p)); }

  // With `fin` at its end.
  std::vector<Xy>& Derecha(std::size_t i, Extremo fin) {
    auto& l = lineas_[i];
    if (Clave(l.back()) != fin) std::reverse(l.begin(), l.end());
    return l;
  }
  void Alarga(Finales::iterator i, Xy hasta) {
    const std::size_t linea = i->second;
    Derecha(linea, i->first).push_back(hasta);
    finales_.erase(i);
    finales_.emplace(Clave(hasta), linea);
  }
  void Une(Finales::iterator ia, Finales::iterator ib) {
    const std::size_t primera = ia->second, segunda = ib->second;
    auto& l = Derecha(primera, ia->first);
    auto otra = std::move(Derecha(segunda, ib->first));
    lineas_[segunda].clear();
    l.insert(l.end(), otra.rbegin(), otra.rend());
    finales_.erase(ia);
    finales_.erase(ib);
    for (auto& [clave, linea] : finales_) {
      if (linea == segunda) linea = primera;
    }
  }
};

class DibujoMapa {
 public:
  DibujoMapa(Plano& plano, const Malla& malla, const DatosTramo& datos, const PalabrasDibujo& w)
      : plano_(plano), malla_(malla), datos_(datos), w_(w) {
    for (const auto& p : malla.puntos) {
      const double a = p ? p->acero.value_or(kNada) : kNada;
      acero_.push_back(a);
      if (std::isfinite(a)) {
        minimo_ = std::min(minimo_, a);
        maximo_ = std::max(maximo_, a);
      }
    }
  }

  EjesEnLamina Ejes(const Marco& m) const {
    const auto& [H, P] = malla_.ejes;
    const double mediaH = (H[1] - H[0]) / 2, mediaP = (P[1] - P[0]) / 2;
    return {m,
            {w_.Con(txt::DibEjePresion, {w_.Unidad(kPresion)}), V(P.front() - mediaP),
             V(P.back() + mediaP)},
            {w_.T(txt::DibEjeAltura), H.front() - mediaH, H.back() + mediaH, true}};
  }

  void Pinta(const EjesEnLamina& ejes, const FilaCaso* caso) {
    ejes_ = &ejes;
    plano_.En(Capa::Datos);
    Celdas();
    Tramas();
    Rango();
    const auto rotulos = Rotulos(caso);
    Niveles(rotulos);
    if (caso != nullptr) Marca(*caso);
    for (const auto& r : rotulos) {
      plano_.Encima(r.centro, r.texto, AnclaX::Centro, AnclaY::Medio, kLetraMenor);
    }
    PintaEjes(plano_, ejes, w_, false);
  }

  void Leyenda(Xy sitio) {
    plano_.En(Capa::Textos);
    for (const int h : Hipotesis()) {
      const Puntos caja = Rectangulo({sitio.x, sitio.y - 3.2, 7.0, 4.0});
      plano_.Area(caja, {TintaDe(h), 0.5});
      plano_.Rayado({caja}, TramaDe(h), TintaDe(h), kPaso);
      plano_.Area(caja, {}, {TintaDe(h), kFino});
      Linea(sitio, Nombre(h));
    }
    if (HayIncumplidos()) {
      const Puntos caja = Rectangulo({sitio.x, sitio.y - 3.2, 7.0, 4.0});
      plano_.Rayado({caja}, Trama::Cruzada, Tinta::NoCumple, 1.4);
      plano_.Area(caja, {}, {Tinta::NoCumple, kFino});
      Linea(sitio, w_.T(txt::DibNoCumple));
    }
    plano_.Linea({sitio.x, sitio.y - 1.2}, {sitio.x + 7.0, sitio.y - 1.2}, {Tinta::Tinta, 0.3});
    Linea(sitio, w_.T(datos_.tramo.EsArmado ? txt::DibLineasAcero : txt::DibLineasAlambre));
    plano_.Area(Rectangulo({sitio.x, sitio.y - 3.2, 7.0, 4.0}), {},
                {Tinta::Tinta, 0.4, Patron::Discontinuo});
    Linea(sitio, w_.T(txt::DibRangoTramo));
    plano_.Circulo({sitio.x + 3.5, sitio.y - 1.2}, 1.3, {Tinta::Papel, 1.0}, {Tinta::Tinta, 0.5});
    Linea(sitio, w_.T(txt::DibCasoEnMano));
  }

  // Of a panel: the colours alone, one after another in as many lines as they need.
  void LeyendaSeguida(const Marco& m) {
    plano_.En(Capa::Textos);
    Xy sitio{m.x, m.y + 3.2};
    for (const auto& [fuerza, trama, tinta, texto] : Muestras()) {
      const double ancho = AnchoTexto(texto, kLetraMenor) + 8.0;
      if (sitio.x > m.x && sitio.x + ancho > m.Derecha()) sitio = {m.x, sitio.y + kLineaSeguida};
      const Puntos muestra = Rectangulo({sitio.x, sitio.y - 2.4, 4.2, 2.8});
      plano_.Area(muestra, {tinta, fuerza}, {tinta, kFino});
      plano_.Rayado({muestra}, trama, tinta, 1.2);
      plano_.Texto({sitio.x + 5.2, sitio.y}, texto, AnclaX::Izquierda, AnclaY::Base, kLetraMenor);
      sitio.x += ancho + 1.0;
    }
  }

  double AltoDeLeyendaSeguida(double ancho) const {
    double x = 0, alto = kLineaSeguida;
    for (const auto& m : Muestras()) {
      const double largo = AnchoTexto(m.texto, kLetraMenor) + 8.0;
      if (x > 0 && x + largo > ancho) {
        x = 0;
        alto += kLineaSeguida;
      }
      x += largo + 1.0;
    }
    return alto;
  }

  double AnchoDeLeyenda() const {
    double ancho = 0;
    for (const int n : {txt::DibNoCumple, txt::DibLineasAcero, txt::DibLineasAlambre,
                        txt::DibRangoTramo, txt::DibCasoEnMano}) {
      ancho = std::max(ancho, AnchoTexto(w_.T(n), kLetraMenor));
    }
    for (const int h : Hipotesis()) {
      ancho = std::max(ancho, AnchoTexto(Nombre(h), kLetraMenor));
    }
    return ancho + 9.0;
  }

 private:
  static constexpr double kLineaSeguida = 4.4;  // [mm]

  struct Muestra {
    double fuerza;
    Trama trama;
    Tinta tinta;
    std::string texto;
  };

  std::vector<Muestra> Muestras() const {
    std::vector<Muestra> x;
    for (const int h : Hipotesis()) {
      x.push_back({0.5, TramaDe(h), TintaDe(h), Nombre(h)});
    }
    if (HayIncumplidos()) {
      x.push_back({0.0, Trama::Cruzada, Tinta::NoCumple, w_.T(txt::DibNoCumple)});
    }
    return x;
  }

  static constexpr double kPaso = 1.8;  // of the hatches [mm]

  Plano& plano_;
  const Malla& malla_;
  const DatosTramo& datos_;
  const PalabrasDibujo& w_;
  const EjesEnLamina* ejes_ = nullptr;
  std::vector<double> acero_;
  double minimo_ = std::numeric_limits<double>::infinity(), maximo_ = -minimo_;

  std::string Nombre(int h) const {
    return TextoEntero(h) + " · " + w_.Hipotesis(datos_.tramo.EsArmado, h);
  }

  // The governing hypothesis written into its area, or its number where the name has no room.
  std::vector<RotuloArea> Rotulos(const FilaCaso* caso) const {
    CeldasMapa celdas{{}, Columnas(), ejes_->marco};
    for (std::size_t i = 0; i < Filas(); ++i) {
      for (std::size_t j = 0; j < Columnas(); ++j) celdas.claves.push_back(HipotesisDe(i, j));
    }
    std::vector<Marco> ocupados;
    if (caso != nullptr) {
      constexpr double kMarca = 2.5;
      const Xy p = ejes_->P(V(caso->DP), caso->Hr);
      ocupados.push_back({p.x - kMarca, p.y - kMarca, 2 * kMarca, 2 * kMarca});
    }
    if (const auto r = MarcoDelRango()) {
      for (const double x : {r->x, r->Derecha()}) ocupados.push_back({x, r->y, 0.0, r->alto});
      for (const double y : {r->y, r->Abajo()}) ocupados.push_back({r->x, y, r->ancho, 0.0});
    }
    return RotulosDeAreas(
        celdas,
        [this](int h) {
          return std::vector{Nombre(h), TextoEntero(h)};
        },
        ocupados);
  }

  double V(double at) const { return w_.Convertido(at, kPresion); }
  std::size_t Columnas() const { return malla_.ejes.presiones.size(); }
  std::size_t Filas() const { return malla_.ejes.alturas.size(); }

  void Linea(Xy& sitio, const std::string& texto) {
    plano_.Texto({sitio.x + 9.0, sitio.y - 0.2}, texto, AnclaX::Izquierda, AnclaY::Base,
                 kLetraMenor);
    sitio.y += 5.6;
  }

  // Rectangle of the cells of a row, from one column to before another.
  Puntos Celda(std::size_t fila, std::size_t desde, std::size_t hasta) const {
    const Marco& m = ejes_->marco;
    const double dx = m.ancho / static_cast<double>(Columnas());
    const double dy = m.alto / static_cast<double>(Filas());
    return Rectangulo({m.x + dx * static_cast<double>(desde), m.y + dy * static_cast<double>(fila),
                       dx * static_cast<double>(hasta - desde), dy});
  }

  // Cells side by side that share a key, as one rectangle each.
  template <class Clave, class Toma>
  void PorTramos(const Clave& clave, const Toma& toma) const {
    for (std::size_t i = 0; i < Filas(); ++i) {
      for (std::size_t desde = 0, j = 1; j <= Columnas(); ++j) {
        if (j < Columnas() && clave(i, j) == clave(i, desde)) continue;
        toma(clave(i, desde), Celda(i, desde, j));
        desde = j;
      }
    }
  }

  int HipotesisDe(std::size_t i, std::size_t j) const {
    const auto& p = malla_.En(i, j);
    return p ? p->hipotesis : 0;
  }

  int Tono(std::size_t i, std::size_t j) const {
    const double a = acero_[i * Columnas() + j];
    if (!std::isfinite(a) || maximo_ <= minimo_) return kTonos / 2;
    return std::min(kTonos - 1, static_cast<int>((a - minimo_) / (maximo_ - minimo_) * kTonos));
  }

  void Celdas() {
    const auto clave = [this](std::size_t i, std::size_t j) {
      return HipotesisDe(i, j) * kTonos + Tono(i, j);
    };
    std::map<int, std::vector<Puntos>> areas;
    PorTramos(clave, [&](int k, Puntos p) { areas[k].push_back(std::move(p)); });
    for (auto& [k, region] : areas) {
      const double tono = kTonoMenor + (kTonoMayor - kTonoMenor) * (k % kTonos) / (kTonos - 1);
      const Mancha mancha{TintaDe(k / kTonos), k / kTonos == 0 ? 0.4 : tono};
      plano_.Region(std::move(region), mancha);
    }
  }

  void Tramas() {
    std::map<int, std::vector<Puntos>> areas;
    PorTramos([this](std::size_t i, std::size_t j) { return HipotesisDe(i, j); },
              [&](int h, Puntos p) { areas[h].push_back(std::move(p)); });
    for (const auto& [h, region] : areas) {
      if (TramaDe(h) == Trama::Puntos) {
        for (const auto& p : region) plano_.Rayado({p}, Trama::Puntos, TintaDe(h), kPaso);
      } else {
        plano_.Rayado(region, TramaDe(h), TintaDe(h), kPaso);
      }
    }
    std::vector<Puntos> mal;
    PorTramos([this](std::size_t i, std::size_t j) { return Incumple(i, j); },
              [&](bool incumple, Puntos p) {
                if (incumple) mal.push_back(std::move(p));
              });
    plano_.Rayado(mal, Trama::Cruzada, Tinta::NoCumple, 2.2);
  }

  bool Incumple(std::size_t i, std::size_t j) const {
    const auto& p = malla_.En(i, j);
    return !p || p->fila.verificacion.veredicto == Veredicto::NoCumple;
  }

  bool HayIncumplidos() const {
    for (const auto& p : malla_.puntos) {
      if (!p || p->fila.verificacion.veredicto == Veredicto::NoCumple) return true;
    }
    return false;
  }

  std::vector<int> Hipotesis() const {
    std::array<bool, 7> hay{};
    for (const auto& p : malla_.puntos) {
      if (p) hay[static_cast<std::size_t>(std::clamp(p->hipotesis, 0, 6))] = true;
    }
    std::vector<int> v;
    for (int h = 1; h <= 6; ++h) {
      if (hay[static_cast<std::size_t>(h)]) v.push_back(h);
    }
    return v;
  }

  Xy EnPapel(Xy celda) const {
    const Marco& m = ejes_->marco;
    return {m.x + m.ancho * (celda.x + 0.5) / static_cast<double>(Columnas()),
            m.y + m.alto * (celda.y + 0.5) / static_cast<double>(Filas())};
  }

  void Niveles(const std::vector<RotuloArea>& rotulos) {
    if (!(maximo_ > minimo_)) return;
    std::vector<Xy> puestos;
    for (const double nivel : Marcas(minimo_, maximo_, kNiveles)) {
      // A value just beyond the round ones is where steel of bars comes to stand.
      std::vector<Puntos> lineas = LineasDeNivel(acero_, Columnas(), nivel + 1e-7);
      for (auto& l : lineas) {
        for (auto& p : l) p = EnPapel(p);
      }
      if (lineas.empty()) continue;
      plano_.Quebradas(lineas, {Tinta::Papel, 0.9});
      plano_.Quebradas(lineas, {Tinta::Tinta, 0.3});
      const auto larga = std::max_element(lineas.begin(), lineas.end(),
                                          [](auto& a, auto& b) { return a.size() < b.size(); });
      if (larga->size() >= 6) Cifra(*larga, w_.Corto(nivel, 2), puestos, rotulos);
    }
  }

  // At the middle of a line, or further along where something else is written.
  void Cifra(const Puntos& linea, const std::string& cifra, std::vector<Xy>& puestos,
             const std::vector<RotuloArea>& rotulos) {
    const double ancho = AnchoTexto(cifra, kLetraMenor, true), alto = kLetraMenor;
    for (const double donde : {0.5, 0.35, 0.65, 0.2, 0.8}) {
      const Xy p = linea[static_cast<std::size_t>(donde * static_cast<double>(linea.size() - 1))];
      const Marco& m = ejes_->marco;
      const bool lejos = std::all_of(puestos.begin(), puestos.end(), [p](Xy q) {
        return std::fabs(p.x - q.x) > 9.0 || std::fabs(p.y - q.y) > 4.5;
      });
      const Marco caja{p.x - ancho / 2, p.y - alto / 2, ancho, alto};
      const bool tapa = std::any_of(rotulos.begin(), rotulos.end(),
                                    [&caja](const RotuloArea& r) { return SePisan(r.caja, caja); });
      if (!lejos || tapa || p.x < m.x + 5 || p.x > m.Derecha() - 5 || p.y < m.y + 3 ||
          p.y > m.Abajo() - 3) {
        continue;
      }
      plano_.Encima(p, cifra, AnclaX::Centro, AnclaY::Medio, kLetraMenor, Tinta::Tinta, true);
      puestos.push_back(p);
      return;
    }
  }

  // Of the heights and pressures that the Tramo goes through; none where it has none.
  std::optional<Marco> MarcoDelRango() const {
    const auto propios = EjesDelTramo(datos_, 2);
    if (propios.alturas.empty() || propios.presiones.empty()) return std::nullopt;
    const Xy a = ejes_->P(V(propios.presiones.front()), propios.alturas.front());
    const Xy b = ejes_->P(V(propios.presiones.back()), propios.alturas.back());
    return Marco{a.x, a.y, b.x - a.x, b.y - a.y};
  }

  void Rango() {
    const auto rango = MarcoDelRango();
    if (!rango) return;
    const Puntos marco = Rectangulo(*rango);
    plano_.Area(marco, {}, {Tinta::Papel, 1.0});
    plano_.Area(marco, {}, {Tinta::Tinta, 0.4, Patron::Discontinuo});
  }

  void Marca(const FilaCaso& f) {
    const Xy p = ejes_->P(V(f.DP), f.Hr);
    if (ejes_->Contiene(p)) plano_.Circulo(p, 1.5, {Tinta::Papel, 1.0}, {Tinta::Tinta, 0.6});
  }
};

std::size_t Cercano(const std::vector<double>& valores, double v) {
  const auto i = std::min_element(valores.begin(), valores.end(), [v](double a, double b) {
    return std::fabs(a - v) < std::fabs(b - v);
  });
  return static_cast<std::size_t>(i - valores.begin());
}

}  // namespace

Malla CalculaMapa(const DatosTramo& datos, const SigueMalla& sigue) {
  return CalculaMalla(datos, EjesAlrededor(datos, kColumnasMapa, kFilasMapa), false, sigue);
}

std::vector<std::vector<Xy>> LineasDeNivel(const std::vector<double>& z, std::size_t columnas,
                                           double nivel) {
  Cadenas cadenas;
  const std::size_t filas = z.size() / columnas;
  for (std::size_t i = 0; i + 1 < filas; ++i) {
    for (std::size_t j = 0; j + 1 < columnas; ++j) {
      // Corners and sides clockwise from the upper left one.
      const std::array<double, 4> v{z[i * columnas + j], z[i * columnas + j + 1],
                                    z[(i + 1) * columnas + j + 1], z[(i + 1) * columnas + j]};
      if (!std::isfinite(v[0] + v[1] + v[2] + v[3])) continue;
      const double x = static_cast<double>(j), y = static_cast<double>(i);
      const std::array<Xy, 4> esquina{{{x, y}, {x + 1, y}, {x + 1, y + 1}, {x, y + 1}}};
      std::vector<Xy> cortes;
      for (std::size_t k = 0; k < 4; ++k) {
        const std::size_t s = (k + 1) % 4;
        if ((v[k] < nivel) == (v[s] < nivel)) continue;
        const double u = (nivel - v[k]) / (v[s] - v[k]);
        cortes.push_back({esquina[k].x + u * (esquina[s].x - esquina[k].x),
                          esquina[k].y + u * (esquina[s].y - esquina[k].y)});
      }
      if (cortes.size() == 2) cadenas.Pon(cortes[0], cortes[1]);
      if (cortes.size() != 4) continue;
      // A saddle: the corner that agrees with the middle is not cut off.
      const bool mitad = (v[0] + v[1] + v[2] + v[3]) / 4 < nivel;
      const bool primera = v[0] < nivel;
      cadenas.Pon(cortes[0], cortes[mitad == primera ? 1 : 3]);
      cadenas.Pon(cortes[2], cortes[mitad == primera ? 3 : 1]);
    }
  }
  return cadenas.Lineas();
}

LaminaConEjes DibujaMapa(const Malla& malla, const DatosTramo& datos, const FilaCaso* caso,
                         const PalabrasDibujo& w, const HojaDibujo& hoja) {
  LaminaConEjes l{LaminaVacia(hoja), {}};
  Plano plano(l.lamina);
  const Marco m = PonCabecera(plano, hoja, w.T(txt::DibTituloMapa), w.TramoEnLetra(datos.tramo));
  DibujoMapa dibujo(plano, malla, datos, w);
  if (!hoja.cabecera) {
    const double alto = dibujo.AltoDeLeyendaSeguida(m.ancho);
    l.ejes = dibujo.Ejes({m.x + kMargenEjeY, m.y + 2.0, m.ancho - kMargenEjeY - 4.0,
                          m.alto - 3.0 - kMargenEjeX - alto});
    dibujo.Pinta(l.ejes, caso);
    dibujo.LeyendaSeguida({m.x, m.Abajo() - alto, m.ancho, alto});
    return l;
  }
  const double leyenda = dibujo.AnchoDeLeyenda() + 5.0;
  l.ejes = dibujo.Ejes({m.x + kMargenEjeY, m.y + 2.0, m.ancho - kMargenEjeY - leyenda - 1.0,
                        m.alto - 3.0 - kMargenEjeX});
  dibujo.Pinta(l.ejes, caso);
  dibujo.Leyenda({l.ejes.marco.Derecha() + 5.0, l.ejes.marco.y + 4.0});
  return l;
}

std::optional<PuntoDelMapa> PuntoEn(const LaminaConEjes& mapa, const Malla& malla,
                                    const PalabrasDibujo& w, Xy sitio) {
  if (!mapa.ejes.Contiene(sitio)) return std::nullopt;
  const Xy v = mapa.ejes.Valores(sitio);
  const double at = v.x / w.Convertido(1.0, kPresion);
  return PuntoDelMapa{Cercano(malla.ejes.alturas, v.y), Cercano(malla.ejes.presiones, at)};
}

}  // namespace zorbin
