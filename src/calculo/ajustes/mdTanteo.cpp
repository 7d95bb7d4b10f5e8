#include "calculo/ajustes/mdTanteo.h"

#include <algorithm>
#include <array>

namespace zorbin {

namespace {

constexpr double kMinimoInterior = 15.0;  // a sheet of 1.5 mm [cm2/m]

double Canto(const DatosDelCaso& d, int s) {
  return TraccionaInterior(s, d.secciones(s).m) ? d.CantoInterior() : d.CantoExterior();
}

// Needed inner areas, and the least that a row may have.
void AreasNecesarias(const DatosDelCaso& d, Tanteo& t) {
  t.Minimo = kMinimoInterior;
  for (const int s : {SOLERA, RINONES, CLAVE}) {
    const auto& x = d.secciones(s);
    t.As(s) = Linea_5050(x.N, x.M, d.Brazo(), d.fyd, Canto(d, s), d.Fcad);
    if (!t.As(s).traccion && x.m > 0) t.Minimo = std::max(t.Minimo, t.As(s).area);
  }
}

// Inner areas of the rows: the mean, and around it the entries of the series.
void ElijeInteriores(std::span<const double> tabla, int FilaTanteo, Tanteo& t) {
  const double media =
      std::max(t.Minimo, (t.As(CLAVE).area + t.As(RINONES).area + t.As(SOLERA).area) / 3.0);
  const auto mayor =
      std::find_if(tabla.begin(), tabla.end(), [media](double x) { return x > media; });
  const int i = static_cast<int>(mayor - tabla.begin()) + 1;
  const int Igual = i > 1 && *(mayor - 1) == media ? 1 : 0;
  t.filas(FilaTanteo) = {true, media, 0.0};
  for (int k = 1; k <= kFilasTanteo; ++k) {
    if (k == FilaTanteo) continue;
    const int base = k < FilaTanteo ? i - Igual : i - 1;
    const auto entrada = BuscaTablaArmaduras(tabla, t.Minimo, base, k - FilaTanteo);
    if (entrada) t.filas(k) = {true, *entrada, 0.0};
  }
}

// Outer area for each row in turn. A section that calculates nothing compares the last value again,
// whatever section or row left it.
class ExterioresDeFila {
 public:
  ExterioresDeFila(const DatosDelCaso& d, const Tanteo& t) : d_(d), t_(t) {}

  double AreaExteriorFila(double Aint) {
    double exterior = 0.0;
    for (const int s : {CLAVE, RINONES, SOLERA}) {
      Seccion(s, Aint);
      exterior = std::max(exterior, Ultima_);
    }
    return exterior;
  }

 private:
  const DatosDelCaso& d_;
  const Tanteo& t_;
  double Ultima_ = 0.0;

  void Seccion(int s, double Aint) {
    const auto& x = d_.secciones(s);
    const double BRAZO = d_.Brazo();
    if (x.m >= 0) {
      if (t_.As(s).traccion) Ultima_ = Linea_6030(d_.fyd, BRAZO, Aint, x.N, x.M);
    } else if (t_.As(s).traccion) {
      Ultima_ = Linea_6000(BRAZO, d_.fyd, Aint, x.N, x.M);
    } else {
      Ultima_ = Linea_5240(x.M, x.N, BRAZO, d_.CantoExterior(), d_.Fcad, d_.fyd);
    }
  }
};

}  // namespace

bool TraccionaInterior(int seccion, double m) {
  return seccion == RINONES ? m > 0 : m >= 0;
}

DatosDelCaso DatosCaso(const Tramo& t, const FilaCaso& fila, const ResultadoArmado& r,
                       const Espesores& pared) {
  DatosDelCaso d;
  static_cast<Espesores&>(d) = pared;
  d.HipotesisRige = r.HipotesisRige;
  d.Hr = fila.Hr;
  d.DP = fila.DP;
  d.presion = PresionQueRige(r.HipotesisRige, fila);
  d.Di = t.Di;
  d.fyd = t.Fyd;
  d.Fcad = Div(t.Fck, t.GamaB * t.GamaF);
  for (int s = 1; s <= kSecciones; ++s) {
    d.secciones(s) = {r.MRige(s), r.NRige(s), CalculaM(r.MRige(s)),
                      CalculaN(r.NRige(s), d.presion, t.Di)};
  }
  return d;
}

std::optional<double> BuscaTablaArmaduras(std::span<const double> TablaArmaduras, double minimo,
                                          int base, int d) {
  const int p = base + d;
  if (p < 1 || p > static_cast<int>(TablaArmaduras.size())) return std::nullopt;
  const double entrada = TablaArmaduras[static_cast<std::size_t>(p - 1)];
  if (entrada < minimo) return std::nullopt;
  return entrada;
}

Tanteo Tantea(const DatosDelCaso& d, std::span<const double> TablaArmaduras, int FilaTanteo) {
  Tanteo t;
  AreasNecesarias(d, t);
  ElijeInteriores(TablaArmaduras, FilaTanteo, t);
  ExterioresDeFila exteriores(d, t);
  for (auto& fila : t.filas.v) {
    if (fila.utilizable) fila.Exterior = exteriores.AreaExteriorFila(fila.Interior);
  }
  return t;
}

}  // namespace zorbin
