#include "calculo/veredicto/mdVerificaPostesado.h"

#include <algorithm>
#include <cmath>

#include "calculo/postesado/mdAlambre.h"
#include "calculo/postesado/mdPerdidas.h"
#include "calculo/veredicto/mdUso.h"

namespace zorbin {

namespace {

constexpr std::int16_t kErrorEspesor = 5;
constexpr std::int16_t kErrorZunchado = 6;
constexpr std::int16_t kErrorCambio = 91;
constexpr double kEscalaChapa = 1000.0;  // with which the stress of the cylinder is told
constexpr double kCoefPrueba = 1.2;      // of MDP that the factory test should reach [-]
constexpr int kPosicionDeDiametro = 3;   // the wire of position i has i + 3 mm

// All the checks of a Caso, each handed to `toma`.
template <class Toma>
class RecorridoPostesado {
 public:
  RecorridoPostesado(const Tramo& t, const ResultadoPostesado& r, double DP, Toma& toma,
                     Rastro* rastro)
      : t_(t), r_(r), DP_(DP), toma_(toma), rastro_(rastro) {}

  void Corre() {
    const EnLugar lugar(rastro_, Apartado::Comprobaciones);
    const double FuerzaAnillo = DP_ * 10.0 * r_.radios.RadioNuc / 100.0;
    const double mayor = CalculaRangos(t_.SFck).FuerzaMax(kAlambres);
    Comprueba(QueComprueba::FuerzaAlambre, 0, FuerzaAnillo, mayor);
    AnotaUso(Formula::UsoAnillo, {FuerzaAnillo, mayor}, FuerzaAnillo, mayor);
    if (r_.fin == FinPostesado::SinAlambre) return SinDiseno(0, QueComprueba::Espesor);
    bool delAlambre = false;
    for (const auto& p : r_.hipotesis.v) {
      if (!p.hecha) continue;
      if (p.error == kErrorEspesor) {
        SinDiseno(p.h, QueComprueba::Espesor);
      } else if (p.error == kErrorCambio) {
        SinDiseno(p.h, QueComprueba::Alambre);
      } else {
        if (!delAlambre) CompruebaAlambre(p);
        delAlambre = true;
        if (p.error != kErrorZunchado) CompruebaHipotesis(p);
      }
    }
  }

 private:
  const Tramo& t_;
  const ResultadoPostesado& r_;
  const double DP_;
  Toma& toma_;
  Rastro* rastro_;

  void AnotaUso(Formula formula, std::initializer_list<double> valores, double valor,
                double limite) {
    if (rastro_ && valor > 0.0 && limite > 0.0)
      rastro_->Anota(formula, valores, Uso(valor, limite));
  }

  void Comprueba(QueComprueba que, int h, double valor, double limite) {
    toma_(ComprobacionCaso{que, static_cast<std::int8_t>(h), 0, CaraPared::Ninguna, valor, limite,
                           Uso(valor, limite)});
  }

  void SinDiseno(int h, QueComprueba que) {
    toma_(ComprobacionCaso{que, static_cast<std::int8_t>(h), 0, CaraPared::Ninguna, 0, 0,
                           kUsoSinLimite});
  }

  // What depends on the winding alone: the same in every hypothesis.
  void CompruebaAlambre(const HipotesisPostesada& p) {
    const double inicial = std::max(std::fabs(p.SigIniInt), std::fabs(p.SigIniExt));
    const double limite = LimiteZunchado(t_.Fckno);
    Comprueba(QueComprueba::Zunchado, 0, inicial, limite);
    AnotaUso(Formula::UsoZunchado, {inicial, t_.Fckno}, inicial, limite);
    if (t_.Icontes1 && p.error != kErrorZunchado) {
      const double prueba = DP_ * t_.Coepre1;
      Comprueba(QueComprueba::PruebaNucleo, 0, prueba, p.PresPrimario);
      AnotaUso(Formula::UsoNucleo, {DP_, t_.Coepre1, p.PresPrimario}, prueba, p.PresPrimario);
    }
  }

  void CompruebaHipotesis(const HipotesisPostesada& p) {
    const double Fctr = r_.materiales.Fctr;
    const EnLugar lugar(rastro_, {Apartado::Comprobaciones, static_cast<std::int8_t>(p.h)});
    for (int s = 1; s <= kSecciones; ++s) {
      const EnLugar seccion(rastro_, Apartado::Comprobaciones, s);
      const auto tension = [&](QueComprueba que, CaraPared cara, double total, double base,
                               double limite) {
        toma_(ComprobacionCaso{que, static_cast<std::int8_t>(p.h), static_cast<std::int8_t>(s),
                               cara, total, limite, UsoTension(total, base, limite)});
        if (rastro_ && limite > base) AnotaCamino(que, cara, total, base, limite);
      };
      using enum QueComprueba;
      tension(TensionNucleo, CaraPared::Interior, p.TotPI(s), p.SigPI, p.LimPrimario);
      tension(TensionNucleo, CaraPared::Exterior, p.TotPE(s), p.SigPE, p.LimPrimario);
      tension(TensionRevestimiento, CaraPared::Interior, p.TotRI(s), p.SigRI, Fctr);
      tension(TensionRevestimiento, CaraPared::Exterior, p.TotRE(s), p.SigRE, Fctr);
    }
    const double chapa = p.TensionChapa / kEscalaChapa;
    Comprueba(QueComprueba::TensionChapa, p.h, chapa, r_.LimiteChapa);
    AnotaUso(Formula::UsoChapa, {chapa, t_.FYKPost}, chapa, r_.LimiteChapa);
  }

  void AnotaCamino(QueComprueba que, CaraPared cara, double total, double base, double limite) {
    using enum PuntoPared;
    const bool interior = cara == CaraPared::Interior;
    const bool nucleo = que == QueComprueba::TensionNucleo;
    const EnLugar lugar(rastro_, Apartado::Comprobaciones);
    rastro_->lugar.punto = nucleo ? (interior ? PI : PE) : (interior ? RI : RE);
    rastro_->Anota(Formula::UsoCamino, {total, base, limite}, UsoTension(total, base, limite));
  }
};

// A hypothesis that the final winding does not meet, however near it comes.
bool HayFallida(const ResultadoPostesado& r) {
  const auto& h = r.hipotesis.v;
  return std::any_of(h.begin(), h.end(), [](const auto& p) { return p.error != 0; });
}

bool SeparacionCorta(const Alambre& a) {
  if (a.NESP <= 0.0) return false;
  const int posicion = static_cast<int>(std::lround(a.FIPR * 10.0)) - kPosicionDeDiametro;
  return LuzEspiras(a.FIPR, a.NESP) * 10.0 < EspMinimo(posicion);
}

std::uint32_t Avisos(const ResultadoPostesado& r, bool PPVale, double MDP) {
  std::uint32_t avisos = 0;
  if (PPVale && r.PP < kCoefPrueba * MDP) avisos |= kAvisoPruebaBaja;
  if (SeparacionCorta({r.FIPRDEFI, r.NESPDEFI})) avisos |= kAvisoSeparacionAlambre;
  return avisos;
}

template <class Toma>
ResumenVerificacion Juzga(const Tramo& t, const ResultadoPostesado& r, double DP, double MDP,
                          Toma&& toma, Rastro* rastro = nullptr) {
  ResumenVerificacion resumen;
  double usoHipotesis = 0;
  const auto anota = [&](const ComprobacionCaso& c) {
    Anota(resumen, c);
    if (c.hipotesis != 0 && c.uso > usoHipotesis) {
      usoHipotesis = c.uso;
      resumen.hipotesis = c.hipotesis;
    }
    toma(c);
  };
  RecorridoPostesado(t, r, DP, anota, rastro).Corre();
  const bool PPVale = r.fin != FinPostesado::SinAlambre && r.PPConAlambreFinal;
  resumen.avisos = Avisos(r, PPVale, MDP);
  if (resumen.uso > kUsoCumple || HayFallida(r)) {
    resumen.veredicto = Veredicto::NoCumple;
    resumen.motivo = MotivoVeredicto::Comprobacion;
  } else if (!PPVale) {
    resumen.motivo = MotivoVeredicto::PruebaOtraPasada;
  } else {
    resumen.veredicto = Veredicto::Cumple;
  }
  return resumen;
}

}  // namespace

ResumenVerificacion ResumePostesado(const Tramo& t, const ResultadoPostesado& r, double DP,
                                    double MDP) {
  return Juzga(t, r, DP, MDP, [](const ComprobacionCaso&) {});
}

Verificacion VerificaPostesado(const Tramo& t, const ResultadoPostesado& r, double DP, double MDP,
                               Rastro* rastro) {
  Verificacion v;
  auto& lista = v.comprobaciones;
  static_cast<ResumenVerificacion&>(v) = Juzga(
      t, r, DP, MDP, [&lista](const ComprobacionCaso& c) { lista.push_back(c); }, rastro);
  return v;
}

}  // namespace zorbin
