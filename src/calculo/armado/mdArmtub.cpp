#include "calculo/armado/mdArmtub.h"

#include <algorithm>
#include <cmath>

#include "calculo/armado/mdCamisa.h"
#include "calculo/armado/mdFisuracion.h"
#include "calculo/armado/mdFlecom.h"
#include "calculo/armado/mdRetraccion.h"
#include "calculo/armado/mdTrcom.h"

namespace zorbin {

namespace {

constexpr double kPasoAcero = 0.5;      // [cm2/m]
constexpr int kMaxRondasTope = 10'000;  // rounds of the loops that the outer maximum limits
constexpr double kTolCaras = 0.01;      // [cm2/m]
constexpr double kRedondeoChapa = 4.9999999;
constexpr double kAreaMinChapa = 15.0;  // a sheet of 1.5 mm [cm2/m]

// The worst section in composite tension of one sign of moment.
struct PeorTraccion {
  double clave = 0;  // BRAZO·N ± M [m·t/m]
  int seccion = 0;

  bool Hay() const { return seccion > 0; }
  void Compara(double K, int s) {
    if (K > clave) *this = {K, s};
  }
};

Reparto Reparte(double A, std::int16_t TipoCamisa, double CamMax,
                const std::optional<Ajuste>& ajuste, Rastro* rastro) {
  return ReparteArmadura(A, TipoCamisa, CamMax, ajuste.has_value(), ajuste ? ajuste->Exterior : 0.0,
                         rastro);
}

Reparto DisponeInterior(const Tramo& t, double Ai, const std::optional<Ajuste>& ajuste,
                        AceroArmado& acero, Rastro* rastro) {
  const EnLugar lugar(rastro, Apartado::RepartoInterior);
  const auto p = Reparte(Ai, t.TipoCamisa, t.CamMax, ajuste, rastro);
  acero.CAMISA = p.CAMISA;
  acero.FIIN = p.DIA;
  acero.NESPIN = p.NESP;
  acero.IESP = p.IESP;
  return p;
}

Reparto DisponeExterior(const Tramo& t, double Ae, const std::optional<Ajuste>& ajuste,
                        AceroArmado& acero, Rastro* rastro) {
  const EnLugar lugar(rastro, Apartado::RepartoExterior);
  const auto p = Reparte(Ae, 0, t.CamMax, ajuste, rastro);
  acero.FIEX = p.DIA;
  acero.NEXPEX = p.NESP;
  acero.IESP = p.IESP;
  return p;
}

// One call of ArmTubo.
class Busqueda {
 public:
  Busqueda(const Tramo& t, const Esfuerzos& esfuerzos, const std::optional<Ajuste>& ajuste,
           int hipotesis, FaseAviso fase, Marcha& marcha, Rastro* rastro)
      : t_(t),
        esfuerzos_(esfuerzos),
        ajuste_(ajuste),
        h_(hipotesis),
        fase_(fase),
        marcha_(marcha),
        rastro_(rastro),
        topeActivo_(t.Icontes0),
        seccion_{t.Fck, t.Fyk, t.Fyd, t.GamaB, t.GamaY, t.GamaF, t.Esp, BrazoEntreCapas(t)} {}

  AceroBuscado Corre() {
    const EnLugar lugar(rastro_, {Apartado::Clasificacion, static_cast<std::int8_t>(h_)});
    if (rastro_) rastro_->Anota(Formula::Brazo, {t_.Esp, t_.Reci, t_.Rece}, seccion_.BRAZO);
    ClasificaSecciones();
    const EnLugar caras(rastro_, Apartado::Caras);
    if (t_.Icontes0 && asFlexExt_ > t_.Adato) {
      if (rastro_) rastro_->Anota(Formula::ExteriorNoCabe, {asFlexExt_, t_.Adato});
      Avisa(ClaseAviso::FlexionSobreTope);
      topeActivo_ = false;
    }
    if (!EligeCaras()) return r_;  // the wall is too thin
    if (t_.TipoCamisa > 0) {
      CompruebaRetraccion();
    } else {
      r_.sinFisuracion = {r_.FIIN, r_.NESPIN, Ri_, r_.FIEX, r_.NEXPEX, Re_, marcha_.avisos.size()};
      CompruebaFisuracion();
    }
    return r_;
  }

 private:
  const Tramo& t_;
  const Esfuerzos& esfuerzos_;
  const std::optional<Ajuste>& ajuste_;
  const int h_;
  const FaseAviso fase_;
  Marcha& marcha_;
  Rastro* rastro_;
  bool topeActivo_;
  const DatosSeccion seccion_;
  AceroBuscado r_;
  double asFlexInt_ = 0;  // largest inner area by flexure, M > 0 [cm2/m]
  double asFlexExt_ = 0;  // largest outer area by flexure, M <= 0 [cm2/m]
  PeorTraccion pos_;      // composite tension, M > 0
  PeorTraccion neg_;      // composite tension, M <= 0
  double A_ = 0;          // area of FlexoCompuesta; beyond the limit moment it keeps its value
  double Ri_ = 0;         // provided inner area [cm2/m]
  double Re_ = 0;         // provided outer area [cm2/m]
  unsigned dados_ = 0;    // warnings of this call, a bit a class

  double M(int s) const { return esfuerzos_.M(h_, s); }
  double N(int s) const { return esfuerzos_.N(h_, s); }

  void Avisa(ClaseAviso clase, std::optional<double> valor = {}) {
    const unsigned bit = 1u << static_cast<unsigned>(clase);
    if ((dados_ & bit) != 0) return;
    dados_ |= bit;
    const bool pantalla = clase != ClaseAviso::MomentoTope;
    marcha_.avisos.push_back({clase, h_, fase_, valor, pantalla});
  }

  void ClasificaSecciones() {
    for (int s = 1; s <= kSecciones; ++s) ClasificaSeccion(s);
  }

  void ClasificaSeccion(int s) {
    const double m = M(s);
    const double n = N(s);
    const double excentricidad = Div(std::fabs(m), n);
    const EnLugar lugar(rastro_, Apartado::Clasificacion, s);
    if (rastro_) AnotaClase(m, n, excentricidad);
    if (n > 0 && excentricidad <= seccion_.BRAZO / 2.0) {
      if (m > 0) {
        pos_.Compara(seccion_.BRAZO * n + m, s);
      } else {
        neg_.Compara(seccion_.BRAZO * n - m, s);
      }
    } else if (m > 0) {
      asFlexInt_ = std::max(asFlexInt_, Flexion(m, n, t_.Reci));
    } else {
      asFlexExt_ = std::max(asFlexExt_, Flexion(-m, n, t_.Rece));
    }
  }

  void AnotaClase(double m, double n, double excentricidad) {
    const double z = seccion_.BRAZO;
    rastro_->Anota(Formula::Excentricidad, {m, n}, excentricidad);
    if (n <= 0) {
      rastro_->Anota(Formula::EsCompresion, {n});
    } else if (excentricidad > z / 2.0) {
      rastro_->Anota(Formula::EsFlexion, {m, n, z});
    } else {
      rastro_->Anota(Formula::EsTraccion, {m, n, z});
      const bool positiva = m > 0;
      rastro_->Anota(positiva ? Formula::ClavePositiva : Formula::ClaveNegativa, {z, n, m},
                     positiva ? z * n + m : z * n - m);
    }
  }

  double Flexion(double m, double n, double cobertura) {
    const auto A = FlexoCompuesta(seccion_, m, n, t_.Esp, cobertura, rastro_);
    if (A) {
      A_ = *A;
    } else {
      Avisa(ClaseAviso::MomentoTope);
      r_.ErrorPostesado = 4;
      r_.MomentoTope = true;
    }
    return A_;
  }

  double Traccion(const PeorTraccion& peor, double Aotra) {
    const EnLugar lugar(rastro_, Apartado::Caras, peor.seccion);
    return TraccionCompuesta(seccion_, M(peor.seccion), N(peor.seccion), Aotra, marcha_.vueltas,
                             rastro_);
  }
  double TraccionPos(double Aotra) { return Traccion(pos_, Aotra); }
  double TraccionNeg(double Aotra) { return Traccion(neg_, Aotra); }

  // Real steel for the inner face. @return whether the wall takes it.
  bool ReparteInterior(double Ai) {
    const auto p = DisponeInterior(t_, Ai, ajuste_, r_, rastro_);
    Ri_ = p.AREA;
    if (p.VariasCapas) Avisa(ClaseAviso::CapasInterior);
    return r_.IESP <= 0;
  }

  // Real steel for the outer face, which never has a sheet.
  bool ReparteExterior(double Ae) {
    const auto p = DisponeExterior(t_, Ae, ajuste_, r_, rastro_);
    Re_ = p.AREA;
    if (p.VariasCapas) Avisa(ClaseAviso::CapasExterior);
    return r_.IESP <= 0;
  }

  bool EligeCaras() {
    if (pos_.Hay()) return neg_.Hay() ? CarasAmbas() : CarasPositivas();
    return neg_.Hay() ? CarasNegativas() : CarasSinTraccion();
  }

  bool CarasNegativas() {
    double Ai = asFlexInt_;
    double Ae = 0;
    UltimaVuelta ultima(rastro_);
    for (int ronda = 0;; ++ronda) {
      ultima.Empieza();
      AnotaInterior(asFlexInt_, Ai);
      if (!ReparteInterior(Ai)) return false;
      Ae = TraccionNeg(Ri_);
      AnotaMayor(Formula::ExteriorTraccion, Ae, asFlexExt_);
      if (Ae < asFlexExt_) {
        Ae = asFlexExt_;
        break;
      }
      if (rastro_ && topeActivo_ && Ae <= t_.Adato) {
        rastro_->Anota(Formula::ExteriorCabe, {Ae, t_.Adato});
      }
      if (!topeActivo_ || Ae <= t_.Adato) break;
      if (ronda == kMaxRondasTope) {
        Avisa(ClaseAviso::NoLlegaNegativos);
        break;
      }
      Ai = Ai + kPasoAcero;
    }
    return ReparteExterior(Ae);
  }

  bool CarasPositivas() {
    AnotaExterior();
    if (!ReparteExterior(asFlexExt_)) return false;
    const double T = TraccionPos(Re_);
    AnotaMayor(Formula::InteriorTraccion, T, asFlexInt_);
    return ReparteInterior(std::max(T, asFlexInt_));
  }

  bool CarasSinTraccion() {
    AnotaInterior(asFlexInt_, asFlexInt_);
    AnotaExterior();
    return ReparteInterior(asFlexInt_) && ReparteExterior(asFlexExt_);
  }

  void AnotaMayor(Formula formula, double traccion, double flexion) {
    if (rastro_) rastro_->Anota(formula, {traccion, flexion}, std::max(traccion, flexion));
  }

  // The inner area, by flexure or tension, and what it has grown since.
  void AnotaInterior(double inicial, double Ai) {
    if (rastro_ && Ai == asFlexInt_) rastro_->Anota(Formula::InteriorFlexion, {asFlexInt_}, Ai);
    if (rastro_ && Ai != inicial)
      rastro_->Anota(Formula::InteriorCrece, {inicial, Ai - inicial}, Ai);
  }

  void AnotaExterior() {
    if (rastro_) rastro_->Anota(Formula::ExteriorFlexion, {asFlexExt_}, asFlexExt_);
  }

  bool CarasAmbas() {
    if (!ReparteInterior(AcoplaCaras())) return false;
    const double T = TraccionNeg(Ri_);
    AnotaMayor(Formula::ExteriorTraccion, T, asFlexExt_);
    return ReparteExterior(std::max(T, asFlexExt_));
  }

  // Inner area with which both faces are in equilibrium, within the outer maximum if there is one.
  double AcoplaCaras() {
    double Ae0 = asFlexExt_;
    UltimaVuelta ultima(rastro_);
    for (int vuelta = 0; vuelta < kMaxVueltas; ++vuelta) {
      ultima.Empieza();
      const double pos = TraccionPos(Ae0);
      const double Ai = std::max(pos, asFlexInt_);
      AnotaMayor(Formula::InteriorTraccion, pos, asFlexInt_);
      const double neg = TraccionNeg(Ai);
      const double Ae = std::max(neg, asFlexExt_);
      AnotaMayor(Formula::ExteriorTraccion, neg, asFlexExt_);
      if (topeActivo_ && Ae > t_.Adato) {
        ultima.Empieza();
        return AcoplaConTope();
      }
      if (std::fabs(Ae - Ae0) <= kTolCaras) return Ai;
      Ae0 = Ae;
    }
    throw ErrorEjecucion(CausaError::SinConvergencia, "ArmTubo");
  }

  double AcoplaConTope() {
    const double pos = TraccionPos(t_.Adato);
    const double inicial = std::max(pos, asFlexInt_);
    AnotaMayor(Formula::InteriorTraccion, pos, asFlexInt_);
    double Ai = inicial;
    UltimaVuelta ultima(rastro_);
    double neg = TraccionNeg(Ai);
    for (int ronda = 0; neg > t_.Adato; ++ronda) {
      if (ronda == kMaxRondasTope) {
        Avisa(ClaseAviso::NoLlegaAmbos);
        break;
      }
      Ai = Ai + kPasoAcero;
      ultima.Empieza();
      neg = TraccionNeg(Ai);
    }
    if (rastro_ && Ai != inicial) {
      rastro_->Anota(Formula::InteriorCrece, {inicial, Ai - inicial}, Ai);
    }
    if (rastro_ && neg <= t_.Adato) rastro_->Anota(Formula::ExteriorCabe, {neg, t_.Adato});
    return Ai;
  }

  void CompruebaRetraccion() {
    const double ri = Div(asFlexInt_, (t_.Reci + t_.Reci) * 10000.0);
    const double re = Div(asFlexExt_, (t_.Rece + t_.Rece) * 10000.0);
    const double rt = Div(Ri_ + Re_, t_.Esp * 100.0 * 100.0);
    const EnLugar lugar(rastro_, Apartado::Retraccion);
    const double ASC = LimiteLisas(t_.Fck, rastro_).ASC;
    const bool pasa = std::max({ri, re, rt}) > ASC;
    if (rastro_) {
      rastro_->Anota(Formula::CuantiaInterior, {asFlexInt_, t_.Reci}, ri);
      rastro_->Anota(Formula::CuantiaExterior, {asFlexExt_, t_.Rece}, re);
      rastro_->Anota(Formula::CuantiaTotal, {Ri_, Re_, t_.Esp}, rt);
      rastro_->Anota(pasa ? Formula::RetraccionPasa : Formula::RetraccionCumple, {ri, re, rt, ASC});
    }
    if (pasa) {
      Avisa(ClaseAviso::RetraccionLisas, rt);
      r_.ErrorPostesado = 2;
    }
  }

  void CompruebaFisuracion() {
    const EnLugar lugar(rastro_, Apartado::Fisuracion);
    Fisuracion f(t_, esfuerzos_, h_, marcha_.vueltas, rastro_);
    f.Comprueba(Ri_, Re_);
    if (ReparteInterior(Ri_) && ReparteExterior(Re_)) f.Comprueba(Ri_, Re_);
    r_.TensionMax = f.TensionMax();
    r_.TensionAdm = f.TensionAdm();
    r_.TensionAdmMin = f.TensionAdmMin();
  }
};

void AnotaReparto(const Tramo& t, double At, double AsInt, bool conTope, bool soloCamisa,
                  Rastro& rastro) {
  if (conTope) {
    rastro.Anota(soloCamisa ? Formula::PruebaTopeCamisa : Formula::PruebaTope, {At, t.Adato},
                 AsInt);
  } else if (soloCamisa && t.CamMax > 0) {
    rastro.Anota(Formula::PruebaCamisa, {At, t.CamMax}, AsInt);
  } else {
    rastro.Anota(Formula::PruebaMitad, {At}, AsInt);
  }
  rastro.Anota(Formula::PruebaExterior, {At, AsInt}, At - AsInt);
}

}  // namespace

double BrazoEntreCapas(const Tramo& t) {
  return t.Esp - t.Reci - t.Rece;
}

AreasCaras ArmPPNeta(const Tramo& t, double PP, Rastro* rastro) {
  const double R = t.Di / 2.0;
  const double At = Div(PP * R, t.Fyd) * 10000.0;
  const bool conTope = t.Adato > 0 && t.Icontes0;
  const bool soloCamisa = t.TipoCamisa == 2;
  if (rastro) {
    rastro->Anota(Formula::Radio, {t.Di}, R);
    rastro->Anota(Formula::AreaPrueba, {PP, R, t.Fyd}, At);
  }
  if (!conTope && t.CamMax <= 0) {
    if (rastro) AnotaReparto(t, At, At / 2.0, false, false, *rastro);
    return {At / 2.0, At / 2.0};
  }
  double AsInt = 0;
  if (conTope) {
    const double R1 = At - std::min(At / 2.0, t.Adato);
    // The division comes after the floor, so this form does not reach a multiple of 5.
    AsInt = soloCamisa ? std::max(Int(R1 + kRedondeoChapa) / 5.0 * 5.0, kAreaMinChapa) : R1;
  } else {
    const double R1 = At / 2.0;
    AsInt = R1;
    if (soloCamisa) {
      AsInt = std::max(Int((R1 + kRedondeoChapa) / 5.0) * 5.0, kAreaMinChapa);
      if (t.CamMax * 10.0 < AsInt) AsInt = t.CamMax * 10.0;
    }
  }
  if (rastro) AnotaReparto(t, At, AsInt, conTope, soloCamisa, *rastro);
  return {Finito(AsInt), Finito(At - AsInt)};
}

AceroArmado DisponePPNeta(const Tramo& t, const AreasCaras& as, const std::optional<Ajuste>& ajuste,
                          std::vector<Aviso>& avisos, Rastro* rastro) {
  AceroArmado acero;
  const EnLugar lugar(rastro, {Apartado::RepartoInterior, kHipPPNeta});
  const auto avisa = [&](ClaseAviso clase, bool variasCapas) {
    if (variasCapas) {
      avisos.push_back({clase, kHipPPNeta, FaseAviso::Final, std::nullopt, true});
    }
  };
  const auto interior = DisponeInterior(t, as.AsInt, ajuste, acero, rastro);
  avisa(ClaseAviso::CapasInterior, interior.VariasCapas);
  if (acero.IESP > 0) return acero;
  const auto exterior = DisponeExterior(t, as.AsExt, ajuste, acero, rastro);
  // An adjusted Caso is built with its adjusted area, whatever the bars of the calculated one.
  avisa(ClaseAviso::CapasExterior, ajuste ? ajuste->Exterior > kAreaUnaCapa : exterior.VariasCapas);
  return acero;
}

AceroBuscado ArmTubo(const Tramo& t, const Esfuerzos& esfuerzos, int hipotesis, FaseAviso fase,
                     const std::optional<Ajuste>& ajuste, Marcha& marcha, Rastro* rastro) {
  return Busqueda(t, esfuerzos, ajuste, hipotesis, fase, marcha, rastro).Corre();
}

}  // namespace zorbin
