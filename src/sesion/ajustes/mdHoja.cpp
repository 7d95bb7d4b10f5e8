#include "sesion/ajustes/mdHoja.h"

#include "base/mdNumeros.h"
#include "persistencia/disco/mdFicheroSalida.h"

namespace zorbin {

namespace {

constexpr int kMargen = 10;  // columns count from 1
constexpr int kTitulo = 20;
constexpr int kSegunda = 45;  // column of the second datum of a line
constexpr double kMmPorM = 1000.0;

class Hoja {
 public:
  explicit Hoja(const Comprobacion& c) : c_(c), d_(c.datos) {}

  std::string Texto() {
    Cabecera();
    Seccion(SOLERA, "  ");
    SaltoDePagina();
    Titulo("CLAVE");
    Seccion(CLAVE, " ");
    Titulo("RIÑONES");
    Seccion(RINONES, " ");
    SaltoDePagina();
    return std::move(texto_);
  }

 private:
  const Comprobacion& c_;
  const DatosDelCaso& d_;
  std::string texto_;

  void EnBlanco(int n) { texto_.append(static_cast<std::size_t>(n), '\n'); }
  void En(int columna, std::string_view texto) {
    const auto salto = texto_.rfind('\n');
    const auto hay = texto_.size() - (salto == std::string::npos ? 0 : salto + 1);
    const auto hasta = static_cast<std::size_t>(columna - 1);
    if (hay < hasta) texto_.append(hasta - hay, ' ');
    texto_ += texto;
  }
  void Linea(int columna, std::string_view texto) {
    En(columna, texto);
    EnBlanco(1);
  }
  void Linea(std::string_view plantilla, std::initializer_list<double> valores) {
    Linea(kMargen, Rellena(plantilla, valores));
  }

  void Titulo(std::string_view texto) {
    EnBlanco(1);
    Linea(kTitulo, texto);
    EnBlanco(1);
  }
  void SaltoDePagina() {
    texto_ += '\f';
    EnBlanco(2);
  }

  void Cabecera() {
    EnBlanco(3);
    Linea(kTitulo, "DATOS BASICOS");
    Linea(kTitulo, "=============");
    EnBlanco(1);
    Linea("DIAMETRO INTERIOR  ####. mm ", {d_.Di * kMmPorM});
    EnBlanco(1);
    En(kMargen, Rellena("ALTURA DE TIERRAS = #.# m.", {d_.Hr}));
    Linea(kSegunda, Rellena("PRESION ##.# ATM", {d_.DP}));
    EnBlanco(3);
    Linea("tension admisible arm. int. =####. kp/cm2", {d_.fyd});
    Linea("tension admisible arm. ext. =####. kp/cm2", {d_.fyd});
    EnBlanco(3);
    Linea("ARM. INTERIOR CAMISA = ##.## cm2/m", {c_.disp.Camisa});
    Linea("ARM. INTERIOR ESPIRAS = ##.## cm2/m", {c_.disp.Espiras});
    EnBlanco(2);
    Linea("ARM. INTERIOR TOTAL = ##.## cm2/m", {c_.disp.Camisa + c_.disp.Espiras});
    EnBlanco(3);
    Linea("ARM. EXTERIOR = ##.## cm2/m", {c_.disp.Exterior});
  }

  void Seccion(int s, std::string_view separacion) {
    const auto& x = d_.secciones(s);
    const auto& r = c_.secciones(s);
    En(kMargen, Rellena("CANTO UTIL cm. = ##.#", {r.CANTO}));
    Linea(kSegunda, Rellena("BRAZO cm = ##.#", {d_.Brazo()}));
    Linea("MOMENTO = ######.", {x.M});
    Linea("AXIL= (###.### +##.#*10*#.###/2 ) * 1000.=######.", {x.n, d_.presion, d_.Di, x.N});
    Linea(" A1 = ###.##                  A2 = ###.##", {r.A1, r.A2});
    EnBlanco(2);
    Linea(" M/N = ######. / ######.= ###.## ", {x.M, x.N, x.M / x.N});
    if (x.N < 0) {
      Linea(kMargen, " N  < 0.  ");
      EnBlanco(1);
    }
    r.c.traccion ? Traccion(x, r) : Flexion(x, r);
    Linea(" ARMADURA DISPUESTA ###.## cm2/m" + std::string(separacion) +
              "ARMADURA NECESARIA ###.## cm2/m",
          {r.A1, r.c.necesaria});
  }

  void Traccion(const SeccionDelCaso& x, const SeccionComprobada& r) {
    const double BRAZO = d_.Brazo();
    Linea(" M / N  <= BRAZO / 2 = ##.## / 2 = ##.## ", {BRAZO, BRAZO / 2.0});
    EnBlanco(1);
    Linea("A1 / ( A1 + A2 ) = ###.## / ( ###.## + ###.## ) = #.## ", {r.A1, r.A1, r.A2, r.c.r});
    Linea("A1 = N / ####. * ( A1/ (A1+A2) + M / N * BRAZO ) ", {d_.fyd});
    Linea("A1= ######./ ####.*( #.##+ ######./ ######.* ##.###)= ###.##",
          {x.N, d_.fyd, r.c.r, x.M, x.N, BRAZO, r.c.necesaria});
  }

  void Flexion(const SeccionDelCaso& x, const SeccionComprobada& r) {
    const double BRAZO = d_.Brazo();
    if (x.N < 0) {
      Linea(kMargen, " N  < 0.");
    } else {
      Linea(" M / N  > BRAZO / 2 = ##.## / 2 = ###.## ", {BRAZO, BRAZO / 2.0});
    }
    EnBlanco(1);
    Linea(kMargen, "K1 = (M / N - BRAZO/2 ) / CANTO");
    Linea("K1 = (######. / ######. - ##.## /2) / ##.##", {x.M, x.N, BRAZO, r.CANTO});
    Linea("K1 = ###.###", {r.c.K1});
    Linea(kMargen, "K2 = (M - N * BRAZO/2 ) /(Fcad*ANCHO*CANTO*CANTO)");
    Linea("K2 = (######. - ######. * ##.## /2) / (###.##*100*##.##*##.##)",
          {x.M, x.N, BRAZO, d_.Fcad, r.CANTO, r.CANTO});
    Linea("K2 = ####.###", {r.c.K2});
    Linea("A1 = N /####. * ( 1 + K1 * 0.97 * (1+K2))", {d_.fyd});
    Linea("A1 = ######. /####. * ( 1 + ####.### * 0.97 * (1+####.###))",
          {x.N, d_.fyd, r.c.K1, r.c.K2});
  }
};

// A mask at `i` of a text: its end, after a last point, and its decimals.
struct Mascara {
  std::size_t fin;
  int decimales;
};
Mascara MascaraEn(std::string_view t, std::size_t i) {
  std::size_t fin = std::min(t.find_first_not_of('#', i), t.size());
  if (fin == t.size() || t[fin] != '.') return {fin, 0};
  const std::size_t punto = fin++;
  while (fin < t.size() && t[fin] == '#') ++fin;
  return {fin, static_cast<int>(fin - punto) - 1};
}

}  // namespace

std::string Rellena(std::string_view plantilla, std::initializer_list<double> valores) {
  std::string texto;
  auto valor = valores.begin();
  for (std::size_t i = 0; i < plantilla.size();) {
    if (plantilla[i] != '#' || valor == valores.end()) {
      texto += plantilla[i++];
      continue;
    }
    const Mascara m = MascaraEn(plantilla, i);
    std::string numero = TextoDecimal(*valor++, m.decimales, '.');
    if (plantilla[m.fin - 1] == '.') numero += '.';
    const std::size_t ancho = m.fin - i;
    if (numero.size() < ancho) texto.append(ancho - numero.size(), ' ');
    texto += numero;
    i = m.fin;
  }
  return texto;
}

std::string HojaDeTrabajo(const Comprobacion& c) {
  return c.traccionPura ? std::string{} : Hoja(c).Texto();
}

std::filesystem::path RutaHoja(const std::filesystem::path& carpeta) {
  return carpeta / "Debug_cal.txt";
}

bool EscribeHoja(const std::filesystem::path& carpeta, const std::string& hoja) {
  std::error_code error;
  std::filesystem::create_directories(carpeta, error);  // a folder that is missing shows below
  try {
    FicheroSalida f(RutaHoja(carpeta));
    f.Escribe(hoja);
    f.Termina();
    return true;
  } catch (const ErrorSalida&) {  // the caller names the file
    return false;
  }
}

}  // namespace zorbin
