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
                const std::optional<Ajuste>& ajuste) {
  return ReparteArmadura(A, TipoCamisa, CamMax, ajuste.has_value(),
                         ajuste ? ajuste->Exterior : 0.0);
}

Reparto DisponeInterior(const Tramo& t, double Ai, const std::optional<Ajuste>& ajuste,
                        AceroArmado& acero) {
  const auto p = Reparte(Ai, t.TipoCamisa, t.CamMax, ajuste);
  acero.CAMISA = p.CAMISA;
  acero.FIIN = p.DIA;
  acero.NESPIN = p.NESP;
  acero.IESP = p.IESP;
  return p;
}

Reparto DisponeExterior(const Tramo& t, double Ae, const std::optional<Ajuste>& ajuste,
                        AceroArmado& acero) {
  const auto p = Reparte(Ae, 0, t.CamMax, ajuste);
  acero.FIEX = p.DIA;
  acero.NEXPEX = p.NESP;
  acero.IESP = p.IESP;
  return p;
}

// One call of ArmTubo.
class Busqueda {
 public:
  Busqueda(const Tramo& t, const Esfuerzos& esfuerzos, const std::optional<Ajuste>& ajuste,
           int hipotesis, FaseAviso fase, Marcha& marcha)
      : t_(t),
        esfuerzos_(esfuerzos),
        ajuste_(ajuste),
        h_(hipotesis),
        fase_(fase),
        marcha_(marcha),
        topeActivo_(t.Icontes0),
        seccion_{t.Fck, t.Fyk, t.Fyd, t.GamaB, t.GamaY, t.GamaF, t.Esp, BrazoEntreCapas(t)} {}

  AceroBuscado Corre() {
    ClasificaSecciones();
    if (t_.Icontes0 && asFlexExt_ > t_.Adato) {
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

  double Flexion(double m, double n, double cobertura) {
    const auto A = FlexoCompuesta(seccion_, m, n, t_.Esp, cobertura);
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
    return TraccionCompuesta(seccion_, M(peor.seccion), N(peor.seccion), Aotra, marcha_.vueltas);
  }
  double TraccionPos(double Aotra) { return Traccion(pos_, Aotra); }
  double TraccionNeg(double Aotra) { return Traccion(neg_, Aotra); }

  // Real steel for the inner face. @return whether the wall takes it.
  bool ReparteInterior(double Ai) {
    const auto p = DisponeInterior(t_, Ai, ajuste_, r_);
    Ri_ = p.AREA;
    if (p.VariasCapas) Avisa(ClaseAviso::CapasInterior);
    return r_.IESP <= 0;
  }

  // Real steel for the outer face, which never has a sheet.
  bool ReparteExterior(double Ae) {
    const auto p = DisponeExterior(t_, Ae, ajuste_, r_);
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
    for (int ronda = 0;; ++ronda) {
      if (!ReparteInterior(Ai)) return false;
      Ae = TraccionNeg(Ri_);
      if (Ae < asFlexExt_) {
        Ae = asFlexExt_;
        break;
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
    if (!ReparteExterior(asFlexExt_)) return false;
    return ReparteInterior(std::max(TraccionPos(Re_), asFlexInt_));
  }

  bool CarasSinTraccion() { return ReparteInterior(asFlexInt_) && ReparteExterior(asFlexExt_); }

  bool CarasAmbas() {
    if (!ReparteInterior(AcoplaCaras())) return false;
    return ReparteExterior(std::max(TraccionNeg(Ri_), asFlexExt_));
  }

  // Inner area with which both faces are in equilibrium, within the outer maximum if there is one.
  double AcoplaCaras() {
    double Ae0 = asFlexExt_;
    for (int vuelta = 0; vuelta < kMaxVueltas; ++vuelta) {
      const double Ai = std::max(TraccionPos(Ae0), asFlexInt_);
      const double Ae = std::max(TraccionNeg(Ai), asFlexExt_);
      if (topeActivo_ && Ae > t_.Adato) return AcoplaConTope();
      if (std::fabs(Ae - Ae0) <= kTolCaras) return Ai;
      Ae0 = Ae;
    }
    throw ErrorEjecucion(CausaError::SinConvergencia, "ArmTubo");
  }

  double AcoplaConTope() {
    double Ai = std::max(TraccionPos(t_.Adato), asFlexInt_);
    for (int ronda = 0; TraccionNeg(Ai) > t_.Adato; ++ronda) {
      if (ronda == kMaxRondasTope) {
        Avisa(ClaseAviso::NoLlegaAmbos);
        break;
      }
      Ai = Ai + kPasoAcero;
    }
    return Ai;
  }

  void CompruebaRetraccion() {
    const double ri = Div(asFlexInt_, (t_.Reci + t_.Reci) * 10000.0);
    const double re = Div(asFlexExt_, (t_.Rece + t_.Rece) * 10000.0);
    const double rt = Div(Ri_ + Re_, t_.Esp * 100.0 * 100.0);
    if (std::max({ri, re, rt}) > LimiteLisas(t_.Fck).ASC) {
      Avisa(ClaseAviso::RetraccionLisas, rt);
      r_.ErrorPostesado = 2;
    }
  }

  void CompruebaFisuracion() {
    Fisuracion f(t_, esfuerzos_, h_, marcha_.vueltas);
    f.Comprueba(Ri_, Re_);
    if (ReparteInterior(Ri_) && ReparteExterior(Re_)) f.Comprueba(Ri_, Re_);
    r_.TensionMax = f.TensionMax();
    r_.TensionAdm = f.TensionAdm();
    r_.TensionAdmMin = f.TensionAdmMin();
  }
};

}  // namespace

double BrazoEntreCapas(const Tramo& t) {
  return t.Esp - t.Reci - t.Rece;
}

AreasCaras ArmPPNeta(const Tramo& t, double PP) {
  const double R = t.Di / 2.0;
  const double At = Div(PP * R, t.Fyd) * 10000.0;
  const bool conTope = t.Adato > 0 && t.Icontes0;
  if (!conTope && t.CamMax <= 0) return {At / 2.0, At / 2.0};
  const bool soloCamisa = t.TipoCamisa == 2;
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
  return {Finito(AsInt), Finito(At - AsInt)};
}

AceroArmado DisponePPNeta(const Tramo& t, const AreasCaras& as, const std::optional<Ajuste>& ajuste,
                          std::vector<Aviso>& avisos) {
  AceroArmado acero;
  const auto avisa = [&](ClaseAviso clase, bool variasCapas) {
    if (variasCapas) {
      avisos.push_back({clase, kHipPPNeta, FaseAviso::Final, std::nullopt, true});
    }
  };
  const auto interior = DisponeInterior(t, as.AsInt, ajuste, acero);
  avisa(ClaseAviso::CapasInterior, interior.VariasCapas);
  if (acero.IESP > 0) return acero;
  const auto exterior = DisponeExterior(t, as.AsExt, ajuste, acero);
  // An adjusted Caso is built with its adjusted area, whatever the bars of the calculated one.
  avisa(ClaseAviso::CapasExterior, ajuste ? ajuste->Exterior > kAreaUnaCapa : exterior.VariasCapas);
  return acero;
}

AceroBuscado ArmTubo(const Tramo& t, const Esfuerzos& esfuerzos, int hipotesis, FaseAviso fase,
                     const std::optional<Ajuste>& ajuste, Marcha& marcha) {
  return Busqueda(t, esfuerzos, ajuste, hipotesis, fase, marcha).Corre();
}

}  // namespace zorbin
