#include "azar/generador.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <sstream>

#include "base/aritmetica.h"
#include "core/campos/mdDatos.h"

namespace zorbin::pruebas {

namespace {

constexpr std::uint64_t kSemilla = 20261121;

std::uint64_t SemillaDe(Clase clase, int indice) {
  std::uint64_t x = kSemilla + static_cast<std::uint64_t>(clase) * 0x9E3779B97F4A7C15ULL +
                    static_cast<std::uint64_t>(indice) * 0xBF58476D1CE4E5B9ULL;
  x = (x ^ (x >> 30)) * 0x94D049BB133111EBULL;
  return x ^ (x >> 31);
}

// `unidades` of 10^-decimales: the double nearest to that decimal text.
double Cifras(int unidades, int decimales) {
  double escala = 1;
  for (int i = 0; i < std::abs(decimales); ++i) escala *= 10;
  return decimales < 0 ? unidades * escala : unidades / escala;
}

// A plausible Obra with its Tramo. A stress or a pressure is drawn in tenths (or less) of its MKS
// unit, and typed in the unit of the system.
class Plausible {
 public:
  Plausible(Azar& azar, bool si) : azar_(azar), si_(si ? 1 : 0) {}

  EstadoCalculo Crea() {
    auto& o = e_.obra;
    o.SisUnid = std::string(si_ == 1 ? "SI" : "MKS");
    o.Idioma = I16(azar_.Entre(1, 5));
    o.GolpeCalculado = azar_.Toca(0.5);
    o.NombreObra = std::string("Obra al azar");
    Presiones(o.Prs1, o.Prs2, o.Prs3, o.PrsM1, o.PrsM2);
    Alturas(o.Alt1, o.Alt2, o.Alt3);
    auto& t = e_.tramo;
    t.NumeroTramo = I16(azar_.Entre(1, 99));
    t.DescriTramo = std::string("Tramo al azar");
    if (azar_.Toca(0.25)) {
      Presiones(t.Prs1Tram, t.Prs2Tram, t.Prs3Tram, t.PrsM1Tram, t.PrsM2Tram);
    }
    if (azar_.Toca(0.25)) Alturas(t.Hr0Tramo, t.Hr0Final, t.Hr0Delta);
    t.Tipologia = azar_.Uno(std::array<std::int16_t, 4>{1210, 1210, 2211, 2221});
    t.Tipologia < kPrimeraPostesada ? Armado() : Postesado();
    return e_;
  }

 private:
  Azar& azar_;
  const int si_;
  EstadoCalculo e_;

  double Decimal(int desde, int hasta, int decimales) {
    return Cifras(azar_.Entre(desde, hasta), decimales);
  }
  // A stress or a pressure, in 10^-decimales of its MKS unit.
  double Tension(int desde, int hasta, int decimales) {
    return Decimal(desde, hasta, decimales + si_);
  }

  void Presiones(double& p1, double& p2, double& p3, double& m1, double& m2) {
    const int a = azar_.Entre(10, 150);  // [0.1 at]
    const int b = azar_.Toca(0.5) ? a : a + azar_.Entre(5, 60);
    const int da = a * azar_.Entre(60, 100) / 100;
    const int db = b == a ? da : std::max(da + 5, b * azar_.Entre(60, 100) / 100);
    const int paso = b == a ? 0 : std::max(2, (b - a) / azar_.Entre(1, 4));
    const auto typed = [this](int x) { return Cifras(x, 1 + si_); };
    p1 = typed(da), p2 = typed(std::min(db, b)), p3 = typed(paso), m1 = typed(a), m2 = typed(b);
  }

  void Alturas(double& h1, double& h2, double& h3) {
    const int a = azar_.Entre(100, 600);  // [cm]
    const int b = azar_.Toca(0.4) ? a : a + azar_.Entre(20, 600);
    h1 = Cifras(a, 2);
    h2 = Cifras(b, 2);
    h3 = b == a ? 0.0 : Cifras(std::max(10, (b - a) / azar_.Entre(1, 4)), 2);
  }

  void Seccion(int espesorMinimo) {
    auto& t = e_.tramo;
    const int di = azar_.Entre(6, 30) * 10;  // [cm]
    t.Di = Cifras(di, 2);
    const int esp = std::max(espesorMinimo, di * azar_.Entre(80, 125) / 100);  // [mm]
    t.Esp = Cifras(esp, 1);
    t.De = t.Di + 2.0 * t.Esp / 100.0;
    t.Gc = Decimal(230, 260, 2);
    t.TipoCuna = I16(azar_.Entre(1, 2));
  }

  void Colocacion() {
    auto& t = e_.tramo;
    t.TipoApoyo = azar_.Uno(std::array<std::int16_t, 5>{11, 12, 21, 22, 31});
    t.TipoColocacion = t.TipoApoyo < 20 ? 0 : t.TipoApoyo < 30 ? 1 : 2;
    t.B0 = t.TipoApoyo == 31 ? 0.0 : std::round((t.De * azar_.Real(1.3, 1.8) + 0.6) * 100) / 100;
    t.Gr = Decimal(160, 220, 2);
    t.Fi = Decimal(20, 40, 0);
    if (t.TipoApoyo < 20) {
      t.TipoRelleno = azar_.Uno(std::array<std::int16_t, 5>{11, 12, 21, 22, 23});
    } else {
      t.Hr1 = Decimal(30, 100, 2);
    }
    if (t.TipoApoyo == 31) t.IAs = I16(azar_.Entre(1, 3));
    if (azar_.Toca(0.2)) {
      t.QDato = Decimal(20, 200, 1 + 2 * si_);  // [t/m2]
    } else {
      t.IndCar = 1;
      t.ICar = I16(azar_.Entre(0, 4));
    }
  }

  void Armado() {
    auto& t = e_.tramo;
    Seccion(80);
    t.Reci = Decimal(4, 6, 0) / 2.0;
    t.Rece = Decimal(4, 6, 0) / 2.0;
    t.TipoControl = I16(azar_.Entre(1, 2));
    t.TipoCamisa = azar_.Uno(std::array<std::int16_t, 5>{0, 1, 1, 2, 2});
    t.CamMax = Decimal(15, 60, 1);
    t.Fck = Tension(300, 500, 0);
    t.Fct = FctDeFck(t.Fck);
    t.Fyk = Tension(2100, 5100, 0);
    t.Fyd = Tension(1200, 1400, 0);
    t.GamaB = Decimal(140, 160, 2);
    t.Icontes0 = azar_.Toca(0.15);
    if (t.Icontes0) t.Adato = Decimal(50, 350, 1);
    Colocacion();
  }

  void Postesado() {
    auto& t = e_.tramo;
    t.EsArmado = false;
    t.PostFlag = 1;
    t.SubTipo = 0;
    Seccion(120);
    t.Rece = Decimal(20, 35, 1);
    t.Reci = t.Tipologia == 2221 ? t.Esp - t.Rece : Decimal(20, 40, 1);
    t.Delca = Decimal(10, 30, 1);
    const int zunchado = azar_.Entre(280, 420);  // [kp/cm2]
    t.Fckno = Cifras(zunchado, si_);
    t.Fckn = Cifras(zunchado + azar_.Entre(0, 200), si_);
    t.Fckr = Tension(300, 400, 0);
    t.Es = Cifras(2'100'000, si_);
    t.Ep = Cifras(2'000'000, si_);
    t.SFck = Tension(1500, 1800, -1);
    t.Sf = Tension(1050, 1300, -1);
    t.FYKPost = Tension(2100, 2700, 0);
    t.Rel = Decimal(200, 600, 2);
    t.Fic = Decimal(1000, 2500, 3);
    t.Fir = Decimal(500, 2000, 3);
    t.Epsc = Decimal(1, 5, 4);
    t.Epsr = Decimal(1, 5, 4);
    t.Icontes1 = azar_.Toca(0.15);
    if (t.Icontes1) t.Coepre1 = Decimal(100, 150, 2);
    Colocacion();
  }
};

// One captured field, by its place among all of them.
void Estropea(EstadoCalculo& e, Azar& azar, std::size_t lugar) {
  const auto toca = [&](auto& bloque, const auto& campos, auto imposible) {
    const bool aqui = lugar < campos.size();
    if (aqui) bloque.*campos[lugar].campo = imposible(azar);
    lugar -= campos.size();
    return aqui;
  };
  if (toca(e.obra, kNumerosObra, NumeroImposible)) return;
  if (toca(e.tramo, kNumerosTramo, NumeroImposible)) return;
  if (toca(e.tramo, kCodigosTramo, CodigoImposible)) return;
  bool& marca = lugar == 0 ? e.tramo.Icontes0 : e.tramo.Icontes1;
  marca = !marca;
}

constexpr std::size_t kCampos =
    kNumerosObra.size() + kNumerosTramo.size() + kCodigosTramo.size() + 2;

template <class Bloque, class Campos>
void Compara(std::string& lista, const Bloque& a, const Bloque& b, const Campos& campos) {
  for (const auto& c : campos) {
    if (std::memcmp(&(a.*c.campo), &(b.*c.campo), sizeof(a.*c.campo)) == 0) continue;
    std::ostringstream texto;
    texto.precision(17);
    texto << ' ' << c.nombre << ' ' << a.*c.campo << " -> " << b.*c.campo;
    lista += texto.str();
  }
}

}  // namespace

int Azar::Entre(int a, int b) {
  return a + static_cast<int>(Bits() % static_cast<std::uint64_t>(b - a + 1));
}

double Azar::Real(double a, double b) {
  const double unidad = static_cast<double>(Bits() >> 11) / 9007199254740992.0;  // 2^53
  return a + (b - a) * unidad;
}

double Azar::Magnitud(int a, int b) {
  const double cifra = Real(1, 10);
  const int n = Entre(a, b - 1);
  double escala = 1;
  for (int i = 0; i < std::abs(n); ++i) escala *= 10;
  return n < 0 ? cifra / escala : cifra * escala;
}

const char* NombreDe(Clase clase) {
  constexpr std::array kNombres{"plausible", "estropeado", "disparatado"};
  return kNombres[static_cast<std::size_t>(clase)];
}

double NumeroImposible(Azar& azar) {
  static constexpr auto kFijos = std::to_array<double>(
      {0.0,  0.0,   -0.0, -1.0, 1.0,   2.0, 1e-300, 5e-324, -1e-300, 1e-13, 1e-6, 0.001,
       0.01, -0.01, 45.0, 90.0, 180.0, 1e3, 1e5,    1e9,    -1e9,    1e12,  -1e12});
  if (azar.Toca(0.6)) return azar.Uno(kFijos);
  const double x = azar.Magnitud(-8, 8);
  return azar.Toca(0.3) ? -x : x;
}

std::string TextoImposible(Azar& azar) {
  static constexpr std::string_view kLetras = "0123456789,.-+ eEinfa";
  std::string texto;
  for (int n = azar.Toca(0.05) ? azar.Entre(100, 400) : azar.Entre(0, 9); n > 0; --n) {
    const auto hasta = azar.Toca(0.9) ? 12 : static_cast<int>(kLetras.size());
    texto.push_back(kLetras[static_cast<std::size_t>(azar.Entre(0, hasta - 1))]);
  }
  return texto;
}

std::int16_t CodigoImposible(Azar& azar) {
  static constexpr auto kFijos = std::to_array<std::int16_t>(
      {0,  1,  2,  3,  4,    5,    7,    10,   11,   12,   13,   20,   21,    22, 23,    29,
       30, 31, 32, 99, 1100, 1210, 2210, 2211, 2212, 2221, 2222, 3000, 32767, -1, -32768});
  return azar.Uno(kFijos);
}

EstadoCalculo PlausibleEn(int indice, bool si) {
  Azar azar(SemillaDe(Clase::Plausible, indice));
  azar.Bits();  // as EstadoAlAzar draws the system first
  return Plausible(azar, si).Crea();
}

EstadoCalculo EstadoAlAzar(Clase clase, int indice) {
  Azar azar(SemillaDe(clase, indice));
  const bool si = (azar.Bits() & 1U) == 0;
  EstadoCalculo e = Plausible(azar, si).Crea();
  if (clase == Clase::Estropeado) {
    for (int n = azar.Entre(1, 3); n > 0; --n) {
      Estropea(e, azar, static_cast<std::size_t>(azar.Entre(0, int{kCampos} - 1)));
    }
  } else if (clase == Clase::Disparatado) {
    const double cuantos = azar.Uno(std::array{0.1, 0.2, 0.5, 1.0});
    for (std::size_t lugar = 0; lugar < kCampos; ++lugar) {
      if (azar.Toca(cuantos)) Estropea(e, azar, lugar);
    }
  }
  Deriva(e.tramo);
  return e;
}

std::string Diferencias(const EstadoCalculo& a, const EstadoCalculo& b) {
  std::string lista;
  Compara(lista, a.obra, b.obra, kNumerosObra);
  Compara(lista, a.tramo, b.tramo, kNumerosTramo);
  Compara(lista, a.tramo, b.tramo, kCodigosTramo);
  const auto& s = a.tramo;
  const auto& t = b.tramo;
  if (s.EsArmado != t.EsArmado || s.PostFlag != t.PostFlag || s.SubTipo != t.SubTipo ||
      s.Icontes0 != t.Icontes0 || s.Icontes1 != t.Icontes1 || s.DescriTramo != t.DescriTramo ||
      s.TipoColocacion != t.TipoColocacion || s.NumeroTramo != t.NumeroTramo ||
      a.obra.NombreObra != b.obra.NombreObra || a.obra.SisUnid != b.obra.SisUnid ||
      a.obra.GolpeCalculado != b.obra.GolpeCalculado || a.obra.Idioma != b.obra.Idioma) {
    lista += " (indicador o texto)";
  }
  return lista;
}

std::string Datos(const EstadoCalculo& e) {
  std::ostringstream texto;
  texto.precision(17);
  texto << e.obra.SisUnid << (e.obra.GolpeCalculado ? " golpe" : "");
  for (const auto& c : kNumerosObra) texto << ' ' << c.nombre << '=' << e.obra.*c.campo;
  for (const auto& c : kCodigosTramo) texto << ' ' << c.nombre << '=' << e.tramo.*c.campo;
  texto << " Icontes0=" << e.tramo.Icontes0 << " Icontes1=" << e.tramo.Icontes1;
  for (const auto& c : kNumerosTramo) texto << ' ' << c.nombre << '=' << e.tramo.*c.campo;
  return texto.str();
}

}  // namespace zorbin::pruebas
