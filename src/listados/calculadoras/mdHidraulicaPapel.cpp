#include "listados/calculadoras/mdHidraulicaPapel.h"

#include <array>

#include "base/mdTextos.h"
#include "base/textos.h"
#include "listados/calculadoras/mdHidraulicaListado.h"

namespace zorbin {

namespace {

// Columns of a printed table: its margin, and the blanks between the headings.
struct Columnas {
  int margen;
  std::array<int, 3> entre;
};

constexpr Columnas kSinReynolds{30, {12, 11, 0}};
constexpr Columnas kConExacta{20, {12, 11, 0}};  // without Reynolds number
constexpr Columnas kReynoldsCaudal{15, {7, 5, 8}};
constexpr Columnas kReynoldsPendiente{15, {7, 6, 6}};

// Blanks that bring a number of its width under the last letter of its heading.
constexpr int kBajoDiametro = 3;
constexpr int kBajoVelocidad = 4;
constexpr int kBajoReynolds = 1;

constexpr int kAntesExacta = 3;

constexpr int kLineasCabeza = 4;  // blank lines at the head of the page
constexpr int kMargen = 20;       // of the texts [columns]
constexpr int kAntesCritico = 7;
constexpr int kAnchoCritico = 15;
constexpr int kTrasCritico = 28;

const Columnas& ColumnasDe(const SalidaHidraulica& s) {
  if (!s.reynolds) return s.exacta() ? kConExacta : kSinReynolds;
  return s.porPendiente ? kReynoldsCaudal : kReynoldsPendiente;
}

class Documento {
 public:
  Documento(const ResultadoHidraulico& r, const Catalogo& catalogo, const EstiloNumeros& estilo,
            Papel& papel)
      : r_(r),
        s_(SalidaDe(r)),
        c_(ColumnasDe(s_)),
        catalogo_(catalogo),
        estilo_(estilo),
        papel_(papel) {}

  void Escribe() {
    AvisosFriccion();
    papel_.LineasEnBlanco(kLineasCabeza);
    Bloque(false);
    if (s_.dosSecciones) {
      papel_.LineasEnBlanco(3);
      Bloque(true);
    }
  }

 private:
  void EnNegrita(int margen, const std::string& texto) {
    papel_.Negrita(true);
    papel_.Linea(margen, texto);
    papel_.Negrita(false);
  }
  const std::string& T(int n) const { return catalogo_.Texto(n); }
  std::string Numero(double v, int ancho, int decimales) const {
    return estilo_.FormatoNumero(v, ancho, decimales);
  }

  void AvisosFriccion() {
    for (const auto& fila : r_.filas) {
      if (fila.ReLlena != -1.0) continue;
      papel_.LineasEnBlanco(1);
      EnNegrita(0, T(txt::ErrorFriccionDarcy));
      papel_.LineasEnBlanco(1);
    }
  }

  void Bloque(bool parcial) {
    EnNegrita(kMargen, T(s_.titulo));
    Parametros(parcial);
    papel_.LineasEnBlanco(1);
    papel_.Linea(kMargen, T(parcial ? txt::SeccionParcial : txt::SeccionLlena));
    if (parcial) papel_.Linea(kMargen, T(txt::LaminaLibre));
    papel_.LineasEnBlanco(2);
    papel_.Linea(c_.margen, Dato());
    papel_.LineasEnBlanco(2);
    Cabeza();
    papel_.LineasEnBlanco(1);
    for (const auto& fila : r_.filas) {
      papel_.Linea(c_.margen, Fila(fila, parcial));
      papel_.LineasEnBlanco(1);
    }
    if (s_.exacta()) papel_.Linea(c_.margen, T(txt::NotaExacta));
  }

  void Parametros(bool parcial) {
    if (s_.hazen) {
      const bool corto = parcial && s_.porPendiente;
      papel_.Linea(kMargen, LineaCoeficiente(catalogo_, estilo_, r_.rugosidad, corto ? 4 : 7,
                                             corto ? 0 : 2));
      return;
    }
    papel_.Linea(kMargen, LineaViscosidad(catalogo_, estilo_));
    papel_.Linea(kMargen, LineaValor(catalogo_, s_.reynolds ? txt::RugosidadKa : txt::RugosidadKs,
                                     Numero(r_.rugosidad, 8, 5), txt::RugosidadMm));
  }

  std::string Dato() const {
    if (s_.porPendiente) {
      return T(txt::ColumnaPendiente) + " " + Numero(r_.dato, 8, 6) + T(txt::MPorM);
    }
    return T(txt::ColumnaCaudal) + " " + Numero(r_.dato, 7, s_.reynolds ? 6 : 3) + T(txt::M3PorSg);
  }

  void Cabeza() {
    const int tercera = s_.porPendiente ? txt::ColumnaCaudal : txt::ColumnaPendiente;
    std::string cabeza = T(txt::ColumnaDiametro);
    std::string raya = Subrayado(cabeza);
    const auto suma = [&](int hueco, int columna) {
      cabeza += Blancos(hueco) + T(columna);
      raya += Blancos(hueco) + Subrayado(T(columna));
    };
    suma(c_.entre[0], txt::ColumnaVelocidad);
    suma(c_.entre[1], tercera);
    if (s_.reynolds) suma(c_.entre[2], txt::ColumnaReynolds);
    if (s_.exacta()) {
      const int unidad = s_.reynolds ? 0 : static_cast<int>(Largo(T(txt::MPorKm)));
      suma(kAntesExacta + unidad, txt::ColumnaExacta);
    }
    papel_.Linea(c_.margen, cabeza);
    papel_.Linea(c_.margen, raya);
  }

  std::string Fila(const FilaHidraulica& fila, bool parcial) const {
    std::string linea = Blancos(kBajoDiametro) + Numero(fila.DiamMM, 5, 0);
    if (s_.reynolds && fila.critico) {
      const std::string& critico = T(txt::RegimenCritico);
      const int tras = kAnchoCritico + kTrasCritico - static_cast<int>(Largo(critico));
      return linea + Blancos(kAntesCritico) + critico + Blancos(tras) +
             Numero(fila.ReLlena.value_or(0.0), 12, 1);
    }
    const double V = parcial ? fila.VParcial.value_or(0.0) : fila.VLlena;
    linea += Blancos(c_.entre[0] + kBajoVelocidad) + Numero(V, 5, 2) + Blancos(c_.entre[1]);
    linea += parcial ? TerceraColumna(s_, estilo_, fila.QParcial, fila.JParcial)
                     : TerceraColumna(s_, estilo_, fila.QLlena, fila.JLlena);
    int hueco = c_.entre[2] + kBajoReynolds;
    if (!s_.porPendiente) {
      linea += T(txt::MPorKm);
      hueco = kBajoReynolds;  // the unit takes the room between the headings
    }
    if (s_.reynolds) linea += Blancos(hueco) + Numero(fila.ReLlena.value_or(0.0), 12, 0);
    return linea + PendienteExacta(estilo_, fila, kAntesExacta);
  }

  const ResultadoHidraulico& r_;
  const SalidaHidraulica& s_;
  const Columnas& c_;
  const Catalogo& catalogo_;
  const EstiloNumeros& estilo_;
  Papel& papel_;
};

}  // namespace

void PapelHidraulico(const ResultadoHidraulico& r, const Catalogo& catalogo,
                     const EstiloNumeros& estilo, Papel& papel) {
  Documento(r, catalogo, estilo, papel).Escribe();
}

}  // namespace zorbin
