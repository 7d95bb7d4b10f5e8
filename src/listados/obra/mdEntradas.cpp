#include "listados/obra/mdEntradas.h"

#include "base/mdTextos.h"
#include "base/textos.h"
#include "core/mdUnidades.h"

namespace zorbin {

namespace {

constexpr int kAnchoRotulo = 26;  // [columns]

class Entradas {
 public:
  Entradas(const ResultadoTramo& r, const Catalogo& textos, const EstiloNumeros& estilo)
      : r_(r), t_(r.datos.tramo), textos_(textos), estilo_(estilo) {}

  std::vector<std::string> Escritas(bool conControl) {
    Rangos();
    if (conControl) Control();
    Acero();
    Pruebas();
    return std::move(lineas_);
  }

 private:
  const ResultadoTramo& r_;
  const Tramo& t_;
  const Catalogo& textos_;
  const EstiloNumeros& estilo_;
  std::vector<std::string> lineas_;

  std::string Numero(double v, int decimales, std::string_view conversion = {}) const {
    return std::string(Recorta(estilo_.FormatoNumero(v, 0, decimales, conversion)));
  }

  void Linea(int rotulo, const std::string& valor) {
    lineas_.push_back(FormatoTexto(textos_.Texto(rotulo), kAnchoRotulo) + ": " + valor);
  }

  void Rango(int rotulo, const std::string& desde, const std::string& hasta,
             const std::string& paso, const std::string& unidad) {
    Linea(rotulo, desde == hasta
                      ? desde + " " + unidad
                      : textos_.Compone(txt::EntradaRango, {desde, hasta, paso, unidad}));
  }

  void Rangos() {
    const auto& x = r_.rango;
    const std::string presion = estilo_.si ? "MPa" : "at";
    const auto p = [this](double at) { return Numero(at, 1, "at->MPa"); };
    Rango(txt::EntradaAlturas, Numero(x.Hr0, 2), Numero(x.Hr0Final, 2), Numero(x.Hr0Delta, 2), "m");
    if (const auto corta = TextoAlturaCorta(x, textos_, estilo_); !corta.empty()) {
      Linea(txt::EntradaAlturaFinal, corta);
    }
    Rango(txt::EntradaDP, p(x.PrimeraDP), p(x.UltimaDP), p(x.IncDP), presion);
    Rango(txt::EntradaMDP, p(x.MDPIni), p(x.MDPFin), p(x.IncDP * x.PendienteMDP), presion);
  }

  void Control() {
    Linea(txt::EntradaGolpe,
          textos_.Texto(r_.datos.obra.GolpeCalculado ? txt::Calculado : txt::Estimado));
    if (!t_.EsArmado) return;
    Linea(txt::EntradaControl,
          textos_.Texto(t_.TipoControl == 1 ? txt::ControlIntenso : txt::ControlNormal));
  }

  void Acero() {
    if (!t_.EsArmado) return;
    const bool conCamisa = t_.TipoCamisa == 1 || t_.TipoCamisa == 2;
    Linea(txt::EntradaCamisa,
          textos_.Texto(conCamisa ? txt::TiposDeCamisa[static_cast<std::size_t>(t_.TipoCamisa - 1)]
                                  : txt::EntradaSinCamisa));
    if (t_.Icontes0) {
      Linea(txt::EntradaTope, Numero(t_.Adato, 2) + std::string(textos_.Texto(txt::Cm2PorM)));
    }
  }

  void Pruebas() {
    if (t_.Icontes1) Linea(txt::EntradaNucleo, Numero(t_.Coepre1, 2) + " DP");
    if (t_.IndCar != 1) {
      Linea(txt::EntradaCargaDada,
            Numero(t_.QDato, 3, "T/M2->kN/M2") + (estilo_.si ? " kN/m2" : " t/m2"));
    }
  }
};

}  // namespace

std::string TextoAlturaCorta(const Rango& r, const Catalogo& textos, const EstiloNumeros& estilo) {
  const auto fuera = AlturaFueraDe(r.Hr0, r.Hr0Final, r.Hr0Delta);
  if (!fuera) return {};
  const auto metros = [&estilo](double h) {
    return std::string(Recorta(estilo.FormatoNumero(h, 0, 2)));
  };
  return textos.Compone(txt::AlturaFinalCorta, {metros(fuera->ultima), metros(fuera->alcanzada)});
}

std::vector<std::string> TextoEntradas(const ResultadoTramo& r, const Catalogo& textos,
                                       const EstiloNumeros& estilo, bool conControl) {
  return Entradas(r, textos, estilo).Escritas(conControl);
}

}  // namespace zorbin
