#include "hidraulica/mdHidraulicaListado.h"

#include "core/mdTextos.h"
#include "hidraulica/textosHidraulica.h"

namespace zorbin {

namespace {

constexpr double kViscosidadImpresa = 1.31e-06;  // [m2/s]
constexpr double kMetrosPorKm = 1000.0;

// Columns of the screen. The numbers end under the last letter of their heading.
constexpr int kEntreColumnas = 4;
constexpr int kAntesDiametro = 3;
constexpr int kAntesVelocidad = 8;
constexpr int kAntesReynolds = 5;
constexpr int kAnchoReynolds = 12;
constexpr int kEntreTitulos = 18;   // between the titles of the two sections
constexpr int kEntreSecciones = 10; // between the headings of the two sections

class Listado {
 public:
  Listado(const ResultadoHidraulico& r, const Catalogo& catalogo, const EstiloNumeros& estilo)
      : r_(r),
        catalogo_(catalogo),
        estilo_(estilo),
        hazen_(r.metodo == MetodoHidraulico::HazenWilliams),
        pendiente_(r.tipoDato != DatoHidraulico::Caudal),
        reynolds_(r.metodo == MetodoHidraulico::DarcyWeissbach),
        dosSecciones_(hazen_ ||
                      (r.metodo == MetodoHidraulico::PrandtlColebrook && pendiente_)) {}

  std::string Texto() {
    Parametros();
    Titulos();
    for (const auto& fila : r_.filas) SumaTextoCh(area_, 0, Fila(fila), 1);
    return std::move(area_);
  }

 private:
  const std::string& T(int n) const { return catalogo_.Texto(n); }
  std::string Numero(double v, int ancho, int decimales) const {
    return estilo_.FormatoNumero(v, ancho, decimales);
  }

  void Parametros() {
    const int titulo = hazen_ ? txt::FormulaHazen : reynolds_ ? txt::FormulaDarcy : txt::FormulaPrandtl;
    SumaTextoCh(area_, 0, T(titulo), 1);
    if (hazen_) {
      SumaTextoCh(area_, 0, LineaCoeficiente(catalogo_, estilo_, r_.rugosidad, 7, 2), 1);
    } else {
      SumaTextoCh(area_, 0, LineaViscosidad(catalogo_, estilo_), 1);
      SumaTextoCh(area_, 0,
                  LineaValor(catalogo_, txt::RugosidadKs, Numero(r_.rugosidad, 8, 5),
                             txt::RugosidadMm),
                  1);
    }
    const std::string dato = Numero(r_.dato, 8, 6);
    SumaTextoCh(area_, 0,
                pendiente_ ? LineaValor(catalogo_, txt::LineaPendiente, dato, txt::MPorM)
                           : LineaValor(catalogo_, txt::LineaCaudal, dato, txt::M3PorSg),
                2);
  }

  void Titulos() {
    const std::string& llena = T(txt::SeccionLlena);
    if (dosSecciones_) {
      SumaTextoCh(area_, 0, llena + Blancos(kEntreTitulos) + T(txt::SeccionParcial), 1);
      const int hasta = static_cast<int>(Largo(llena)) + kEntreTitulos;
      SumaTextoCh(area_, 0, Blancos(hasta) + T(txt::LaminaLibre), 2);
    } else {
      SumaTextoCh(area_, 0, llena, 2);
    }
    const std::string& diametro = T(txt::ColumnaDiametro);
    const std::string& velocidad = T(txt::ColumnaVelocidad);
    const std::string& tercera = T(pendiente_ ? txt::ColumnaCaudal : txt::ColumnaPendiente);
    const std::string hueco = Blancos(kEntreColumnas);
    std::string cabeza = diametro + hueco + velocidad + hueco + tercera;
    std::string raya =
        Subrayado(diametro) + hueco + Subrayado(velocidad) + hueco + Subrayado(tercera);
    if (reynolds_) {
      cabeza += hueco + T(txt::ColumnaReynolds);
      raya += hueco + Subrayado(T(txt::ColumnaReynolds));
    }
    if (dosSecciones_) {
      cabeza += Blancos(kEntreSecciones) + cabeza;
      raya += Blancos(kEntreSecciones) + raya;
    }
    SumaTextoCh(area_, 0, cabeza, 1);
    SumaTextoCh(area_, 0, raya, 1);
  }

  std::string Diametro(const FilaHidraulica& fila) const {
    return Blancos(kAntesDiametro) + Numero(fila.DiamMM, 5, 0);
  }

  // Flow in m3/s or slope in m/km.
  std::string Tercera(const std::optional<double>& Q, const std::optional<double>& J) const {
    return pendiente_ ? Numero(Q.value_or(0.0), 6, 3)
                      : Numero(J.value_or(0.0) * kMetrosPorKm, 9, 3);
  }

  std::string Seccion(const FilaHidraulica& fila, double V, const std::optional<double>& Q,
                      const std::optional<double>& J) const {
    return Diametro(fila) + Blancos(kAntesVelocidad) + Numero(V, 5, 2) + Blancos(kEntreColumnas) +
           Tercera(Q, J);
  }

  std::string Fila(const FilaHidraulica& fila) const {
    std::string linea = Seccion(fila, fila.VLlena, fila.QLlena, fila.JLlena);
    if (reynolds_) {
      const int hasta = static_cast<int>(Largo(linea)) + kAntesReynolds;
      linea = fila.critico ? Diametro(fila) + Blancos(kEntreColumnas) + T(txt::RegimenCritico) : linea;
      linea += Blancos(hasta - static_cast<int>(Largo(linea)));
      return linea + Numero(fila.ReLlena.value_or(0.0), kAnchoReynolds, 0);
    }
    const std::string unidad = pendiente_ ? std::string() : T(txt::MPorKm);
    linea += unidad;
    if (!dosSecciones_) return linea;
    // The heading of the second section starts after that of the first; the unit takes its room.
    linea += Blancos(kEntreSecciones - static_cast<int>(Largo(unidad)));
    return linea + Seccion(fila, fila.VParcial.value_or(0.0), fila.QParcial, fila.JParcial) + unidad;
  }

  const ResultadoHidraulico& r_;
  const Catalogo& catalogo_;
  const EstiloNumeros& estilo_;
  const bool hazen_;
  const bool pendiente_;
  const bool reynolds_;
  const bool dosSecciones_;
  std::string area_;
};

}  // namespace

void SumaTextoCh(std::string& area, int Antes, std::string_view Texto, int Despues) {
  area.append(static_cast<std::size_t>(Antes), '\n');
  area += Texto;
  area.append(static_cast<std::size_t>(Despues), '\n');
}

std::string LineaViscosidad(const Catalogo& catalogo, const EstiloNumeros& estilo) {
  return LineaValor(catalogo, txt::ViscosidadCinematica,
                    estilo.FormatoNumero(kViscosidadImpresa, 11, 9), txt::M2PorSg);
}

std::string LineaValor(const Catalogo& catalogo, int antes, const std::string& valor, int despues) {
  return catalogo.Texto(antes) + valor + (despues != 0 ? catalogo.Texto(despues) : std::string());
}

std::string LineaCoeficiente(const Catalogo& catalogo, const EstiloNumeros& estilo, double Cwh,
                             int ancho, int decimales) {
  return catalogo.Texto(txt::LineaCwh) + (Cwh != 0.0 ? estilo.FormatoNumero(Cwh, ancho, decimales)
                                                     : catalogo.Texto(txt::ReglaCwh));
}

std::string Subrayado(std::string_view texto) { return std::string(Largo(texto), '='); }

}  // namespace zorbin
