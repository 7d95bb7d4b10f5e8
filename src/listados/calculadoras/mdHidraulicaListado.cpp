#include "listados/calculadoras/mdHidraulicaListado.h"

#include <utility>

#include "base/mdTextos.h"
#include "base/textos.h"

namespace zorbin {

// clang-format off
//                                        title                porPend. dosSecc. Reynolds hazen  unidad
constexpr SalidaHidraulica Sub3000        {txt::FormulaPrandtl, true,    true,    false,   false, false};
constexpr SalidaHidraulica Sub3000_P      {txt::FormulaPrandtl, false,   false,   false,   false, true};
constexpr SalidaHidraulica Sub3000_Hazen  {txt::FormulaHazen,   true,    true,    false,   true,  false};
constexpr SalidaHidraulica Sub3000_Hazen_P{txt::FormulaHazen,   false,   true,    false,   true,  true};
constexpr SalidaHidraulica Sub3500        {txt::FormulaDarcy,   true,    false,   true,    false, false};
constexpr SalidaHidraulica Sub3500_P      {txt::FormulaDarcy,   false,   false,   true,    false, false};
// clang-format on

namespace {

constexpr double kMetrosPorKm = 1000.0;

// Columns of a row: every number ends under the last letter of its heading.
constexpr int kEntreColumnas = 4;
constexpr int kAntesDiametro = 3;
constexpr int kAnchoDiametro = 5;
constexpr int kAntesVelocidad = 8;
constexpr int kAnchoVelocidad = 5;
constexpr int kAnchoCaudal = 6;
constexpr int kAnchoPendiente = 9;
constexpr int kAntesReynolds = 5;
constexpr int kAnchoReynolds = 12;
constexpr int kAnchoExacta = 14;
constexpr int kEntreTitulos = 18;    // between the titles of the two sections
constexpr int kEntreSecciones = 10;  // between the headings of the two sections

class Area {
 public:
  Area(const ResultadoHidraulico& r, const Catalogo& catalogo, const EstiloNumeros& estilo)
      : r_(r), s_(SalidaDe(r)), catalogo_(catalogo), estilo_(estilo) {}

  std::string Escrita() {
    Parametros();
    Titulos();
    Cabeza();
    for (const auto& fila : r_.filas) Linea(s_.reynolds ? ConReynolds(fila) : SinReynolds(fila));
    if (s_.exacta()) SumaTextoCh(area_, 1, T(txt::NotaExacta), 1);
    return std::move(area_);
  }

 private:
  const std::string& T(int n) const { return catalogo_.Texto(n); }
  std::string Numero(double v, int ancho, int decimales) const {
    return estilo_.FormatoNumero(v, ancho, decimales);
  }
  void Linea(const std::string& texto, int despues = 1) { SumaTextoCh(area_, 0, texto, despues); }

  void Parametros() {
    Linea(T(s_.titulo));
    if (s_.hazen) {
      Linea(LineaCoeficiente(catalogo_, estilo_, r_.rugosidad, 7, 2));
    } else {
      Linea(LineaViscosidad(catalogo_, estilo_));
      Linea(LineaValor(catalogo_, txt::RugosidadKs, Numero(r_.rugosidad, 8, 5), txt::RugosidadMm));
    }
    const std::string dato = Numero(r_.dato, 8, 6);
    Linea(s_.porPendiente ? LineaValor(catalogo_, txt::LineaPendiente, dato, txt::MPorM)
                          : LineaValor(catalogo_, txt::LineaCaudal, dato, txt::M3PorSg),
          2);
  }

  void Titulos() {
    const std::string& llena = T(txt::SeccionLlena);
    if (!s_.dosSecciones) {
      Linea(llena, 2);
      return;
    }
    Linea(llena + Blancos(kEntreTitulos) + T(txt::SeccionParcial));
    Linea(Blancos(static_cast<int>(Largo(llena)) + kEntreTitulos) + T(txt::LaminaLibre), 2);
  }

  void Cabeza() {
    std::vector<int> columnas{txt::ColumnaDiametro, txt::ColumnaVelocidad,
                              s_.porPendiente ? txt::ColumnaCaudal : txt::ColumnaPendiente};
    if (s_.reynolds) columnas.push_back(txt::ColumnaReynolds);
    std::string cabeza;
    std::string raya;
    for (const int columna : columnas) {
      const std::string hueco = Blancos(cabeza.empty() ? 0 : kEntreColumnas);
      cabeza += hueco + T(columna);
      raya += hueco + Subrayado(T(columna));
    }
    if (s_.exacta()) {
      const std::string hueco =
          Blancos(kEntreColumnas + (s_.unidadEnFila ? static_cast<int>(Largo(T(txt::MPorKm))) : 0));
      cabeza += hueco + T(txt::ColumnaExacta);
      raya += hueco + Subrayado(T(txt::ColumnaExacta));
    }
    if (s_.dosSecciones) {
      cabeza += Blancos(kEntreSecciones) + cabeza;
      raya += Blancos(kEntreSecciones) + raya;
    }
    Linea(cabeza);
    Linea(raya);
  }

  std::string Diametro(const FilaHidraulica& fila) const {
    return Blancos(kAntesDiametro) + Numero(fila.DiamMM, kAnchoDiametro, 0);
  }

  std::string Seccion(const FilaHidraulica& fila, double V, const std::optional<double>& Q,
                      const std::optional<double>& J) const {
    return Diametro(fila) + Blancos(kAntesVelocidad) + Numero(V, kAnchoVelocidad, 2) +
           Blancos(kEntreColumnas) + TerceraColumna(s_, estilo_, Q, J) +
           (s_.unidadEnFila ? T(txt::MPorKm) : std::string());
  }

  std::string SinReynolds(const FilaHidraulica& fila) const {
    const std::string llena = Seccion(fila, fila.VLlena, fila.QLlena, fila.JLlena);
    if (!s_.dosSecciones) return llena + PendienteExacta(estilo_, fila, kEntreColumnas);
    // The unit of the first section takes room of the gap, so that the second one stands under
    // its heading.
    const auto unidad = s_.unidadEnFila ? Largo(T(txt::MPorKm)) : 0;
    return llena + Blancos(kEntreSecciones - static_cast<int>(unidad)) +
           Seccion(fila, fila.VParcial.value_or(0.0), fila.QParcial, fila.JParcial);
  }

  std::string ConReynolds(const FilaHidraulica& fila) const {
    const std::string Re = Numero(fila.ReLlena.value_or(0.0), kAnchoReynolds, 0);
    if (!fila.critico) {
      return Seccion(fila, fila.VLlena, fila.QLlena, fila.JLlena) + Blancos(kAntesReynolds) + Re +
             PendienteExacta(estilo_, fila, kEntreColumnas);
    }
    constexpr int hastaTercera = kAntesVelocidad + kAnchoVelocidad + kEntreColumnas;
    const int hastaReynolds =
        hastaTercera + (s_.porPendiente ? kAnchoCaudal : kAnchoPendiente) + kAntesReynolds;
    const std::string aviso = Blancos(kEntreColumnas) + T(txt::RegimenCritico);
    return Diametro(fila) + aviso + Blancos(hastaReynolds - static_cast<int>(Largo(aviso))) + Re;
  }

  const ResultadoHidraulico& r_;
  const SalidaHidraulica& s_;
  const Catalogo& catalogo_;
  const EstiloNumeros& estilo_;
  std::string area_;
};

}  // namespace

const SalidaHidraulica& SalidaDe(const ResultadoHidraulico& r) {
  const bool caudal = r.tipoDato == DatoHidraulico::Caudal;
  switch (r.metodo) {
    case MetodoHidraulico::PrandtlColebrook:
      return caudal ? Sub3000_P : Sub3000;
    case MetodoHidraulico::HazenWilliams:
      return caudal ? Sub3000_Hazen_P : Sub3000_Hazen;
    case MetodoHidraulico::DarcyWeissbach:
      break;
  }
  return caudal ? Sub3500_P : Sub3500;
}

void SumaTextoCh(std::string& area, int Antes, std::string_view Texto, int Despues) {
  area.append(static_cast<std::size_t>(Antes), '\n');
  area += Texto;
  area.append(static_cast<std::size_t>(Despues), '\n');
}

std::string TextoHidraulico(const ResultadoHidraulico& r, const Catalogo& catalogo,
                            const EstiloNumeros& estilo) {
  return Area(r, catalogo, estilo).Escrita();
}

std::string LineaViscosidad(const Catalogo& catalogo, const EstiloNumeros& estilo) {
  return LineaValor(catalogo, txt::ViscosidadCinematica, estilo.FormatoNumero(kViscosidad, 11, 9),
                    txt::M2PorSg);
}

std::string LineaValor(const Catalogo& catalogo, int antes, const std::string& valor, int despues) {
  return catalogo.Texto(antes) + valor + catalogo.Texto(despues);
}

std::string LineaCoeficiente(const Catalogo& catalogo, const EstiloNumeros& estilo, double Cwh,
                             int ancho, int decimales) {
  return catalogo.Texto(txt::LineaCwh) +
         (Cwh != 0.0 ? estilo.FormatoNumero(Cwh, ancho, decimales) : catalogo.Texto(txt::ReglaCwh));
}

std::string Subrayado(std::string_view texto) {
  return std::string(Largo(texto), '=');
}

std::string PendienteExacta(const EstiloNumeros& estilo, const FilaHidraulica& fila, int hueco) {
  if (!fila.JExacta) return {};
  return Blancos(hueco) + estilo.FormatoNumero(*fila.JExacta * kMetrosPorKm, kAnchoExacta, 3);
}

std::string TerceraColumna(const SalidaHidraulica& s, const EstiloNumeros& estilo,
                           const std::optional<double>& Q, const std::optional<double>& J) {
  return s.porPendiente ? estilo.FormatoNumero(Q.value_or(0.0), kAnchoCaudal, 3)
                        : estilo.FormatoNumero(J.value_or(0.0) * kMetrosPorKm, kAnchoPendiente, 3);
}

}  // namespace zorbin
