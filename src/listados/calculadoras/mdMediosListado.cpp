#include "listados/calculadoras/mdMediosListado.h"

#include <utility>

#include "base/mdTextos.h"

namespace zorbin {

namespace {

constexpr int kAnchoEtiqueta = 40;
constexpr int kSangriaCiclos = 2;
constexpr int kAntesNumero = 6;
constexpr int kAntesTexto = 12;

constexpr bool EsAgua(int medio) {
  return medio <= kSO4Exterior || medio == kSO4Interior;
}

class Lineas {
 public:
  Lineas(const ResultadoMedios& r, const Catalogo& catalogo, const EstiloNumeros& estilo)
      : r_(r), catalogo_(catalogo), estilo_(estilo) {}

  std::vector<LineaMedios> Escritas() {
    Titulo(txt::AnalisisDeMedios, '=', true);
    Vacia();
    Factores();
    Concreto();
    Resistividad();
    Corriente();
    if (!r_.HayMedida) Frase(txt::NingunaProteccion);
    return std::move(lineas_);
  }

 private:
  const std::string& T(int n) const { return catalogo_.Texto(n); }
  std::string Numero(double v) const { return estilo_.FormatoNumero(v, 8, 2); }

  void Linea(std::string texto) { lineas_.push_back({std::move(texto)}); }
  void Vacia() { Linea({}); }
  void Frase(int n) { lineas_.push_back({T(n), 0, false, true}); }

  void Titulo(int n, char raya, bool negrita = false) {
    lineas_.push_back({T(n), 0, negrita});
    lineas_.push_back({std::string(Largo(T(n)), raya), 0, negrita});
  }

  void Factores() {
    bool hayFactores = false;
    bool aguas = false;
    for (int i = 0; i < kMedios; ++i) {
      const double v = r_.muestra.valor[static_cast<std::size_t>(i)];
      if (!(v > 0.0)) continue;
      if (!std::exchange(hayFactores, true)) Titulo(txt::FactoresQueConsiderar, '-');
      const bool conMarco = !EsAgua(i) || !std::exchange(aguas, true);
      Factor(kCamposMedios[static_cast<std::size_t>(i)], v, conMarco);
      if (i == kSO4Suelo && r_.muestra.ciclos) {
        lineas_.push_back({T(txt::AlternaCiclos), kSangriaCiclos});
      }
    }
    if (!hayFactores) return;
    Vacia();
    Titulo(txt::TituloMedidas, '=');
    Vacia();
  }

  void Factor(const CampoMedio& campo, double v, bool conMarco) {
    if (conMarco) {
      Vacia();
      Linea(T(campo.marco));
    }
    const std::string etiqueta(Recorta(T(campo.etiqueta)));
    const int blancos = kAnchoEtiqueta - static_cast<int>(Largo(etiqueta));
    Linea(etiqueta + Blancos(blancos) + " = " + Numero(v) + " " +
          (campo.unidad != 0 ? T(campo.unidad) : std::string()));
  }

  void Concreto() {
    if (!(r_.Dosificacion > 0.0)) return;
    Linea(T(txt::TerrenosYAguas));
    Linea(T(txt::DosificacionDeCemento) + Blancos(kAntesNumero) + Numero(r_.Dosificacion) +
          T(txt::KgPorM2));
    Linea(T(txt::RelacionAguaCemento) + Blancos(kAntesNumero) + Numero(r_.RelacionAC));
    Linea(T(txt::TipoDeCemento) + Blancos(kAntesTexto) + T(r_.TipoCemento));
    Linea(T(txt::NecesidadesAdicionales) + Blancos(kAntesTexto) + T(r_.Adicional));
    hayMedida_ = true;
  }

  void Resistividad() {
    if (!r_.AislarTuberia) return;
    if (hayMedida_) Vacia();
    Frase(txt::SuelosBajaResistividad);
    Frase(txt::AislarLaTuberia);
    Frase(txt::ValoresDeResistividad);
    hayMedida_ = true;
  }

  void Corriente() {
    if (!r_.HayCorriente) return;
    if (hayMedida_) Vacia();
    Frase(txt::ExistenciaDeCorrientes);
    Frase(r_.ControlarCorriente ? txt::EliminarOControlar : txt::DiscontinuidadDeLaJunta);
  }

  const ResultadoMedios& r_;
  const Catalogo& catalogo_;
  const EstiloNumeros& estilo_;
  std::vector<LineaMedios> lineas_;
  bool hayMedida_ = false;  // a measure stands above
};

}  // namespace

std::vector<LineaMedios> LineasMedios(const ResultadoMedios& r, const Catalogo& catalogo,
                                      const EstiloNumeros& estilo) {
  return Lineas(r, catalogo, estilo).Escritas();
}

std::string TextoMedios(const ResultadoMedios& r, const Catalogo& catalogo,
                        const EstiloNumeros& estilo) {
  std::string area;
  for (const auto& linea : LineasMedios(r, catalogo, estilo)) {
    area += Blancos(linea.sangria) + linea.texto + '\n';
  }
  return area;
}

}  // namespace zorbin
