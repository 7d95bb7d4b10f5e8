#include "calculo/postesado/mdPostesado.h"

#include <algorithm>
#include <cmath>

#include "calculo/postesado/mdAlambre.h"
#include "calculo/postesado/mdComprueba.h"
#include "calculo/postesado/mdHipotesis.h"
#include "calculo/postesado/mdLame.h"
#include "calculo/postesado/mdPerdidas.h"

namespace zorbin {

namespace {

constexpr int kHipotesisMDP = 4;        // the one whose pass gives the factory test pressure
constexpr double kMomento = 1000.0;     // m·t/m to kp·cm/cm
constexpr double kAxil = 10.0;          // t/m to kp/cm
constexpr double kFraccionChapa = 0.8;  // of the strength of the cylinder [-]
constexpr int kVueltasDePasada = 50;    // work of a winding
constexpr std::int16_t kErrorEspesor = 5;
constexpr std::int16_t kErrorZunchado = 6;
constexpr std::int16_t kErrorCambio = 91;

// One Caso. The result is built in place of the caller's: it is the larger part of the work area.
class Analisis {
 public:
  Analisis(const Tramo& t, const TerminosAnillo& terminos, const PresionesCaso& presiones,
           Zunchados& zunchados, Marcha& marcha, ResultadoPostesado& r, Rastro* rastro)
      : t_(t),
        caso_(presiones),
        zunchados_(zunchados),
        marcha_(marcha),
        r_(r),
        rastro_(rastro),
        esfuerzos_(EsfuerzosHipotesis(terminos, rastro)),
        presiones_(PresionesHipotesis(presiones, rastro)) {
    r_.radios = zunchados.radios();
    r_.materiales = zunchados.materiales();
    if (rastro) AnotaTramo();
    r_.PP = caso_.PP;
    r_.LimiteChapa = kFraccionChapa * t_.FYKPost;
    for (int h = 1; h <= kHipotesisPostesado; ++h) Carga(r_.hipotesis(h), h);
  }

  void Corre() {
    if (EligePrimero()) {
      Busca();
      PruebaBajoMDP();
      r_.fila = {{alambre_}, r_.PP, r_.MensajePostesado};
      r_.fin = Verifica();
    }
    r_.FIPR = alambre_.FIPR;
    r_.NESP = alambre_.NESP;
  }

 private:
  const Tramo& t_;
  const PresionesCaso& caso_;
  Zunchados& zunchados_;
  Marcha& marcha_;
  ResultadoPostesado& r_;
  Rastro* rastro_;
  double partida_ = 0;          // spirals with which the search of the hypothesis starts [1/m]
  Rastro* enPasada_ = nullptr;  // of the pass in hand: those of the verification leave steps
  const EsfuerzosPostesado esfuerzos_;
  const Lista<double, kHipotesisPostesado> presiones_;
  FaseAviso fase_ = FaseAviso::Final;
  Alambre alambre_;             // of the pass in hand
  int IdxAlambre_ = 0;          // its position; the search, MDP and verification share it
  TensionesHipotesis ultimas_;  // of the last pass that got to its stresses
  int ultimaHipotesis_ = 0;     // its hypothesis

  // What is the same in all Casos of the Tramo.
  void AnotaTramo() const {
    const EnLugar radios(rastro_, Apartado::Radios);
    Radios(t_, rastro_);
    const EnLugar materiales(rastro_, Apartado::Materiales);
    Materiales(t_, rastro_);
  }

  void Avisa(int h, ClaseAviso clase, std::optional<double> valor = {}) {
    r_.MensajePostesado = clase;
    marcha_.avisos.push_back({clase, h, fase_, valor, fase_ == FaseAviso::Final, alambre_});
  }

  void Falla(HipotesisPostesada& p, std::int16_t error, ClaseAviso clase,
             std::optional<double> valor = {}) {
    r_.ErrorPostesado = p.error = error;
    p.texto = clase;
    static_cast<Alambre&>(p) = alambre_;
    Avisa(p.h, clase, valor);
  }

  void Carga(HipotesisPostesada& p, int h) const {
    p = {};
    p.h = h;
    p.PresHip = presiones_(h);
    p.LimPrimario = LimitesPrimario(r_.materiales.Fctn)(h);
    for (int s = 1; s <= kSecciones; ++s) {
      p.MomHip(s) = esfuerzos_.TablaMom(h, s) * kMomento;
      p.AxilHip(s) = esfuerzos_.TablaAxil(h, s) * kAxil;
    }
  }

  bool EligePrimero() {
    const double FuerzaAnillo = Finito(caso_.DP * 10.0 * r_.radios.RadioNuc / 100.0);
    const EnLugar lugar(rastro_, Apartado::AlambreInicial);
    if (rastro_) {
      rastro_->Anota(Formula::FuerzaAnillo, {caso_.DP, r_.radios.RadioNuc}, FuerzaAnillo);
    }
    const auto primero = PrimerAlambre(FuerzaAnillo, t_.SFck, t_.Tipologia, rastro_);
    if (!primero) {
      r_.ErrorPostesado = kErrorEspesor;
      Avisa(0, ClaseAviso::EspesorInsuficiente);
      r_.fila.MensajePostesado = r_.MensajePostesado;
      return false;
    }
    alambre_ = primero->alambre;
    IdxAlambre_ = primero->IdxAlambre;
    return true;
  }

  // Wire and spirals go from one hypothesis to the next; a failed one does not stop the search.
  void Busca() {
    fase_ = FaseAviso::Busqueda;
    HipotesisPostesada p;
    for (int h = 1; h <= kHipotesisPostesado; ++h) {
      Carga(p, h);
      partida_ = alambre_.NESP;
      const EnLugar lugar(rastro_, {Apartado::AlambreInicial, static_cast<std::int8_t>(h)});
      Pasada(p);
      if (rastro_ && p.error == 0) {
        rastro_->Anota(Formula::BuscaEspiras, {partida_, alambre_.NESP - partida_}, alambre_.NESP);
      }
    }
    r_.FIPRDEFI = alambre_.FIPR;
    r_.NESPDEFI = alambre_.NESP;
  }

  Alambre Final() const { return {r_.FIPRDEFI, r_.NESPDEFI}; }

  // The wire goes back to the final one; its position in the tables does not, so spirals are
  // spaced as those of the last wire tried, and the next wire is the one after it.
  void PasadaConFinal(HipotesisPostesada& p) {
    alambre_ = Final();
    r_.ErrorPostesado = 0;
    Pasada(p);
  }

  void PruebaBajoMDP() {
    HipotesisPostesada p;
    Carga(p, kHipotesisMDP);
    PasadaConFinal(p);
    if (alambre_ != Final()) {
      r_.PP = kPPAlambreCambia;
    } else {
      const EnLugar lugar(rastro_, Apartado::PruebaNeta);
      r_.PP = PruebaFabricaNeta(ultimas_, r_.materiales.Fctr, caso_.MDP, rastro_);
      r_.PPHipotesis = ultimaHipotesis_;
      r_.PPConAlambreFinal = p.error == 0;
    }
  }

  FinPostesado Verifica() {
    fase_ = FaseAviso::Final;
    enPasada_ = rastro_;
    bool hay = false;
    for (int h = 1; h <= kHipotesisPostesado; ++h) {
      auto& p = r_.hipotesis(h);
      p.hecha = true;
      PasadaConFinal(p);
      if (alambre_ != Final()) {
        Falla(p, kErrorCambio, ClaseAviso::CambiaAlambre);
        return FinPostesado::CambiaAlambre;
      }
      if (!p.Impresa()) continue;
      r_.TensionChapa = hay ? std::max(r_.TensionChapa, p.TensionChapa) : p.TensionChapa;
      hay = true;
    }
    return FinPostesado::Completo;
  }

  // One pass: adds spirals to the winding in hand until the hypothesis of `p` holds.
  void Pasada(HipotesisPostesada& p) {
    const EnLugar lugar(enPasada_, {Apartado::Limites, static_cast<std::int8_t>(p.h)});
    UltimaVuelta ultima(enPasada_);
    for (int vuelta = 0; vuelta < kMaxVueltas; ++vuelta) {
      ultima.Empieza();
      ++r_.Vueltas;
      marcha_.vueltas.Suma(kVueltasDePasada);
      if (!CabenEspiras()) return Falla(p, kErrorEspesor, ClaseAviso::EspesorInsuficiente);
      alambre_.NESP = EspirasEnteras(alambre_.NESP);
      const Intento x = Intenta(p);
      if (!x.zunchado.perdidas.NucleoAguanta) return NoAguanta(p, x);
      if (Aceptado(p, x)) return Resultados(p, x);
      alambre_.NESP = alambre_.NESP + 1.0;
    }
    throw ErrorEjecucion(CausaError::SinConvergencia, "CalculaPostesado");
  }

  // Spirals too close call the next wire, which starts at its widest spacing and is not looked at
  // again before the next spiral. @return whether there is a wire left.
  bool CabenEspiras() {
    if (LuzEspiras(alambre_.FIPR, alambre_.NESP) * 10.0 >= EspMinimo(IdxAlambre_)) return true;
    if (IdxAlambre_ == kAlambres) return false;
    ++IdxAlambre_;
    Rastro* busca = fase_ == FaseAviso::Busqueda ? rastro_ : nullptr;
    alambre_ = AlambreMasAbierto(IdxAlambre_, t_.Tipologia, busca);
    partida_ = alambre_.NESP;
    return true;
  }

  // What one winding gives for the hypothesis of `p`.
  struct Intento {
    const Zunchado& zunchado;
    OvalizacionPostesada oval;
    LimitesPresion limites;
  };

  Intento Intenta(const HipotesisPostesada& p) {
    const auto& m = r_.materiales;
    Rastro* seccion = DelAlambre(p);
    Intento x{zunchados_.De(alambre_, seccion), {}, {}};
    const Zunchado& z = x.zunchado;
    if (!z.perdidas.NucleoAguanta) return x;
    x.oval = TensionesOvalizacion(m, z.seccion, alambre_.FIPR, p.MomHip, p.AxilHip, enPasada_);
    x.limites = PresionesLimite(p.LimPrimario, m.Fctr, z.perdidas, x.oval, z.K, enPasada_);
    return x;
  }

  // What depends on the winding alone is the same in every hypothesis, but for one that asks for
  // another winding: the first one leaves its steps, and that one.
  Rastro* DelAlambre(const HipotesisPostesada& p) const {
    return p.h == 1 || alambre_ != Final() ? enPasada_ : nullptr;
  }

  void NoAguanta(HipotesisPostesada& p, const Intento& x) {
    static_cast<SeccionPostesada&>(p) = x.zunchado.seccion;
    static_cast<PerdidasPostesado&>(p) = x.zunchado.perdidas;
    Falla(p, kErrorZunchado, ClaseAviso::ResistenciaInicial,
          std::max(std::fabs(p.SigIniInt), std::fabs(p.SigIniExt)));
  }

  bool Aceptado(const HipotesisPostesada& p, const Intento& x) const {
    const bool nucleo = !t_.Icontes1 || caso_.DP * t_.Coepre1 <= x.zunchado.perdidas.PresPrimario;
    const bool aceptado = nucleo && p.PresHip <= x.limites.PresLimite;
    if (enPasada_ && aceptado) AnotaAceptado(p, x);
    return aceptado;
  }

  void AnotaAceptado(const HipotesisPostesada& p, const Intento& x) const {
    LuzEspiras(alambre_.FIPR, alambre_.NESP, enPasada_);
    if (t_.Icontes1) {
      enPasada_->Anota(Formula::AceptaNucleo,
                       {caso_.DP, t_.Coepre1, x.zunchado.perdidas.PresPrimario});
    }
    enPasada_->Anota(Formula::AceptaHipotesis, {p.PresHip, x.limites.PresLimite});
  }

  void Resultados(HipotesisPostesada& p, const Intento& x) {
    static_cast<Alambre&>(p) = alambre_;
    const Zunchado& z = x.zunchado;
    static_cast<SeccionPostesada&>(p) = z.seccion;
    static_cast<PerdidasPostesado&>(p) = z.perdidas;
    static_cast<OvalizacionPostesada&>(p) = x.oval;
    static_cast<PorPresion&>(p) = z.K;
    static_cast<LimitesPresion&>(p) = x.limites;
    ultimas_ = Tensiones(p.PresHip, z.perdidas, x.oval, z.K, enPasada_);
    ultimaHipotesis_ = p.h;
    static_cast<TensionesHipotesis&>(p) = ultimas_;
    p.TensionChapa = CompruebaChapa(t_, r_.materiales.RatioChapa, p);
    const auto error = CompruebaHormigon(p, p.h, t_.Fckn, t_.Fckr);
    if (error != 0) Falla(p, error, ClaseAviso::ResistenciaHormigon);
  }
};

}  // namespace

ResultadoPostesado CalculaPostesado(const Tramo& t, const TerminosAnillo& terminos,
                                    const PresionesCaso& presiones, Zunchados& zunchados,
                                    Marcha& marcha, Rastro* rastro) {
  ResultadoPostesado r;
  Analisis(t, terminos, presiones, zunchados, marcha, r, rastro).Corre();
  return r;
}

}  // namespace zorbin
