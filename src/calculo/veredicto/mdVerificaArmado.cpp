#include "calculo/veredicto/mdVerificaArmado.h"

#include <algorithm>

#include "calculo/ajustes/mdLineas.h"
#include "calculo/ajustes/mdTanteo.h"
#include "calculo/armado/mdCamisa.h"
#include "calculo/armado/mdFlecom.h"
#include "calculo/armado/mdRetraccion.h"
#include "calculo/veredicto/mdUso.h"

namespace zorbin {

namespace {

constexpr int kPrimeraConMomento = 2;  // the factory test has none
constexpr double kKpPorT = 1000.0;

constexpr double kBarraDeFisuracion = 0.25;  // outer steel that rounding alone does not add [cm2/m]

constexpr CaraPared Cara(std::size_t cara) {
  return cara == 0 ? CaraPared::Interior : CaraPared::Exterior;
}

// A section of a hypothesis: its forces, the face in tension, and what that face needs.
struct SeccionVista {
  int h, s;
  double M, N;       // [m·t/m], [t/m]
  std::size_t cara;  // in tension: 0 inner, 1 outer
  bool traccion;     // composite tension
  double necesaria;  // [cm2/m]
};

SeccionVista MiraSeccion(const DatosVerificacion& d, const Esfuerzos& x, const ArmaduraDispuesta& a,
                         int h, int s, Rastro* rastro) {
  const double M = x.M(h, s);
  const double N = x.N(h, s);
  const bool interior = TraccionaInterior(s, M);
  const std::size_t cara = interior ? 0 : 1;
  if (rastro) {
    rastro->lugar.cara = Cara(cara);
    rastro->Anota(Formula::MomentoKp, {M}, CalculaM(M));
    rastro->Anota(Formula::AxilKp, {N}, N * kKpPorT);
  }
  const auto c =
      Lineas_1050(interior ? a.AsInt : a.AsExt, interior ? a.AsExt : a.AsInt, CalculaM(M), d.BRAZO,
                  N * kKpPorT, d.seccion.Fyd, d.CANTO[cara], d.Fcad, rastro);
  return {h, s, M, N, cara, c.traccion, c.necesaria};
}

double Minima(const DatosVerificacion& d, const SeccionVista& v) {
  return v.traccion ? d.minimaTraccion : d.minimaFlexion[v.cara];
}

// What the tensioned face of a section asks for whatever the steel of the other one: all that
// flexure asks; in composite tension the couple of the moment, for the other face may take the
// rest.
double Ineludible(const DatosVerificacion& d, const SeccionVista& v, bool conMinima) {
  const double pide = v.traccion ? Div(CalculaM(v.M), d.BRAZO * d.seccion.Fyd) : v.necesaria;
  return conMinima ? std::max(pide, Minima(d, v)) : pide;
}

bool HayAxilNulo(const Esfuerzos& x) {
  for (int h = kPrimeraConMomento; h <= kHipotesisArmado; ++h) {
    for (int s = 1; s <= kSecciones; ++s) {
      if (x.N(h, s) == 0.0) return true;
    }
  }
  return false;
}

// A whole number of bars may pass the outer maximum, but not by a bar. An adjusted Caso has none.
bool PasaPorRedondeo(const ArmaduraDispuesta& a, double tope) {
  return !a.exteriorPorFisuracion && a.AsExt - tope < AreaBarras(a.FIEX, 1.0);
}

// All the checks of a Caso, each handed to `toma`.
template <class Toma>
class Recorrido {
 public:
  Recorrido(const DatosVerificacion& d, const ResultadoArmado& r, const ArmaduraDispuesta& a,
            Toma& toma, Rastro* rastro)
      : d_(d), r_(r), a_(a), dispuesta_{a.AsInt, a.AsExt}, toma_(toma), rastro_(rastro) {
    const EnLugar lugar(rastro, Apartado::Comprobaciones);
    if (d.TipoCamisa == 0) homogenea_ = Homogeneiza(d.pared, a.AsInt, a.AsExt, rastro);
  }

  void Corre() {
    const EnLugar lugar(rastro_, {Apartado::Comprobaciones, kHipPPNeta});
    Comprueba(QueComprueba::PruebaFabrica, kHipPPNeta, 0, CaraPared::Ninguna,
              r_.TablaHip(kHipPPNeta).Total, a_.AsInt + a_.AsExt);
    for (int h = kPrimeraConMomento; h <= kHipotesisArmado; ++h) {
      for (int s = 1; s <= kSecciones; ++s) CompruebaSeccion(h, s);
    }
    if (!a_.ajustada) {
      for (const std::size_t cara : {0u, 1u}) CompruebaMinima(cara);
    }
    if (d_.tope) CompruebaTope(*d_.tope);
  }

 private:
  const DatosVerificacion& d_;
  const ResultadoArmado& r_;
  const ArmaduraDispuesta& a_;
  const std::array<double, 2> dispuesta_;
  Toma& toma_;
  Rastro* rastro_;
  SeccionHomogenea homogenea_{};
  struct MinimaDeCara {
    double area = 0;  // [cm2/m]
    int h = 0, s = 0;
  };
  std::array<MinimaDeCara, 2> minimas_;

  void Comprueba(QueComprueba que, int h, int s, CaraPared cara, double valor, double limite) {
    toma_(ComprobacionCaso{que, static_cast<std::int8_t>(h), static_cast<std::int8_t>(s), cara,
                           valor, limite, Uso(valor, limite)});
    if (rastro_ && valor > 0.0 && limite > 0.0) AnotaUso(que, valor, limite);
  }

  void AnotaUso(QueComprueba que, double valor, double limite) {
    const Formula formula = que == QueComprueba::MomentoLimite ? Formula::UsoMomento
                            : que == QueComprueba::Fisuracion  ? Formula::UsoFisuracion
                                                               : Formula::UsoArmadura;
    rastro_->Anota(formula, {valor, limite}, Uso(valor, limite));
  }

  void CompruebaSeccion(int h, int s) {
    const EnLugar lugar(rastro_, {Apartado::Comprobaciones, static_cast<std::int8_t>(h),
                                  static_cast<std::int8_t>(s), CaraPared::Ninguna});
    const auto v = MiraSeccion(d_, r_.esfuerzos, a_, h, s, rastro_);
    const auto cara = Cara(v.cara);
    Comprueba(QueComprueba::Armadura, h, s, cara, v.necesaria, dispuesta_[v.cara]);
    if (!v.traccion) {
      const double Mr =
          MomentoReducido(d_.seccion, v.M, v.N, d_.seccion.Esp, d_.recubrimiento[v.cara], rastro_);
      Comprueba(QueComprueba::MomentoLimite, h, s, cara, Mr, d_.momentoLimite[v.cara]);
    }
    if (d_.tope && cara == CaraPared::Exterior) {
      Comprueba(QueComprueba::ExteriorIneludible, h, s, cara, Ineludible(d_, v, !a_.ajustada),
                *d_.tope);
    }
    const double minima = Minima(d_, v);
    if (minima > minimas_[v.cara].area) minimas_[v.cara] = {minima, h, s};
    if (d_.TipoCamisa == 0) {
      const auto t = TensionDeFisuracion(d_.pared, homogenea_, v.M, v.N, rastro_);
      Comprueba(QueComprueba::Fisuracion, h, s, cara, t.Sx, t.Sa);
    }
  }

  void CompruebaMinima(std::size_t cara) {
    const auto& m = minimas_[cara];
    if (m.h == 0) return;
    Comprueba(QueComprueba::ArmaduraMinima, m.h, m.s, Cara(cara), m.area, dispuesta_[cara]);
  }

  void CompruebaTope(double tope) {
    ComprobacionCaso c{QueComprueba::TopeExterior, 0, 0, CaraPared::Exterior, a_.AsExt, tope,
                       Uso(a_.AsExt, tope)};
    if (c.uso > 1.0 && PasaPorRedondeo(a_, tope)) c.uso = 1.0;
    toma_(c);
  }
};

bool EnVariasCapas(double D, double n) {
  return n > 0.0 && !CabenEnUnaCapa(D, n);
}

std::uint32_t Avisos(const DatosVerificacion& d, const ResultadoArmado& r,
                     const ArmaduraDispuesta& a) {
  std::uint32_t avisos = 0;
  if (d.TipoCamisa > 0) {
    const bool segunDiseno = !a.ajustada && r.HipotesisRige != kHipPPNeta && r.ErrorPostesado == 2;
    const double total = Div(a.AsInt + a.AsExt, d.seccion.Esp * 10000.0);
    if (segunDiseno || total > d.ASC) avisos |= kAvisoRetraccion;
  } else {
    const auto t = TensionDeFisuracion(d.pared, Homogeneiza(d.pared, a.AsInt, a.AsExt), 0.0,
                                       r.esfuerzos.N(kHipPPNeta, CLAVE));
    if (Uso(t.Sx, t.Sa) > kUsoCumple) avisos |= kAvisoFisuracionPrueba;
  }
  if (EnVariasCapas(a.FIIN, a.NESPIN)) avisos |= kAvisoCapasInterior;
  if (EnVariasCapas(a.FIEX, a.NEXPEX)) avisos |= kAvisoCapasExterior;
  if (d.tope && Uso(a.AsExt, *d.tope) > kUsoCumple && PasaPorRedondeo(a, *d.tope)) {
    avisos |= kAvisoTopePorRedondeo;
  }
  return avisos;
}

// Uses that decide why a Caso does not comply.
struct UsosDelMotivo {
  double momento = 0;
  double ineludible = 0;
  double tope = 0;

  void Anota(const ComprobacionCaso& c) {
    if (c.que == QueComprueba::MomentoLimite) momento = std::max(momento, c.uso);
    if (c.que == QueComprueba::ExteriorIneludible) ineludible = std::max(ineludible, c.uso);
    if (c.que == QueComprueba::TopeExterior) tope = c.uso;
  }
};

MotivoVeredicto PorQueNoCumple(const ArmaduraDispuesta& a, bool sinSolucion,
                               const UsosDelMotivo& u) {
  if (sinSolucion) return MotivoVeredicto::SinSolucion;
  if (u.momento > 1.0) return MotivoVeredicto::MomentoLimite;
  if (u.ineludible > kUsoCumple) return MotivoVeredicto::FlexionSobreTope;
  if (u.tope > kUsoCumple && a.exteriorPorFisuracion) return MotivoVeredicto::FisuracionSobreTope;
  return MotivoVeredicto::Comprobacion;
}

ResumenVerificacion SinComprobar(MotivoVeredicto motivo) {
  return {Veredicto::SinComprobar, motivo};
}

// Runs the checks into `toma` and tells the verdict.
template <class Toma>
ResumenVerificacion Juzga(const DatosVerificacion& d, const ResultadoArmado& r,
                          const ArmaduraDispuesta& a, bool sinSolucion, Toma&& toma,
                          Rastro* rastro = nullptr) {
  ResumenVerificacion resumen;
  if (r.IESP > 0) {
    const ComprobacionCaso pared{
        QueComprueba::Espesor, 0, 0, CaraPared::Ninguna, static_cast<double>(r.IESP), 0.0,
        kUsoSinLimite};
    toma(pared);
    Anota(resumen, pared);
    resumen.veredicto = Veredicto::NoCumple;
    resumen.motivo = MotivoVeredicto::Comprobacion;
    return resumen;
  }
  if (HayAxilNulo(r.esfuerzos)) return SinComprobar(MotivoVeredicto::AxilNulo);
  UsosDelMotivo usos;
  const auto anota = [&](const ComprobacionCaso& c) {
    Anota(resumen, c);
    usos.Anota(c);
    toma(c);
  };
  Recorrido(d, r, a, anota, rastro).Corre();
  resumen.avisos = Avisos(d, r, a);
  const bool agotado = sinSolucion && !a.ajustada;
  if (agotado || usos.momento > 1.0 || resumen.uso > kUsoCumple) {
    resumen.veredicto = Veredicto::NoCumple;
    resumen.motivo = PorQueNoCumple(a, agotado, usos);
  } else if (a.ajustada) {
    resumen.motivo = MotivoVeredicto::CapasDeAjuste;
  } else {
    resumen.veredicto = Veredicto::Cumple;
  }
  return resumen;
}

void AnotaUso(UsosArmado& u, const ComprobacionCaso& c) {
  const std::size_t cara = c.cara == CaraPared::Exterior ? 1 : 0;
  const auto sube = [&c](double& uso) { uso = std::max(uso, c.uso); };
  switch (c.que) {
    case QueComprueba::Armadura:
    case QueComprueba::ArmaduraMinima:
      return sube(u.armadura[cara]);
    case QueComprueba::Fisuracion:
      return sube(u.fisuracion[cara]);
    case QueComprueba::PruebaFabrica:
      return sube(u.prueba);
    case QueComprueba::MomentoLimite:
      return sube(u.momento);
    case QueComprueba::ExteriorIneludible:
      return sube(u.ineludible);
    default:
      return;
  }
}

}  // namespace

DatosVerificacion DatosDeVerificacion(const Tramo& t) {
  DatosVerificacion d;
  const double BRAZO = t.Esp - t.Reci - t.Rece;
  d.seccion = {t.Fck, t.Fyk, t.Fyd, t.GamaB, t.GamaY, t.GamaF, t.Esp, BRAZO};
  d.recubrimiento = {t.Reci, t.Rece};
  d.BRAZO = BRAZO * 100.0;
  d.Fcad = Div(t.Fck, t.GamaB * t.GamaF);
  d.minimaTraccion = MinimaTraccion(d.seccion);
  for (const std::size_t cara : {0u, 1u}) {
    const double canto = t.Esp - d.recubrimiento[cara];  // [m]
    d.CANTO[cara] = canto * 100.0;
    d.minimaFlexion[cara] = MinimaFlexion(d.seccion, canto);
    d.momentoLimite[cara] = MomentoLimite(d.seccion, canto);
  }
  if (t.Icontes0) d.tope = t.Adato;
  d.TipoCamisa = t.TipoCamisa;
  d.CamMax = t.CamMax;
  d.ASC = LimiteLisas(t.Fck).ASC;
  if (t.TipoCamisa == 0) d.pared = ParedDe(t);
  return d;
}

ArmaduraDispuesta DispuestaDe(const ResultadoArmado& r) {
  ArmaduraDispuesta a;
  a.AsInt = r.AsInt;
  a.AsExt = r.AsExt;
  a.ajustada = r.HayAjuste();
  if (a.ajustada) return a;
  a.FIIN = r.FIIN;
  a.FIEX = r.FIEX;
  a.NESPIN = r.NESPIN;
  a.NEXPEX = r.NEXPEX;
  a.exteriorPorFisuracion = r.sinFisuracion.NEXPEX > 0 && r.HipotesisRige != kHipPPNeta &&
                            r.AsExt > r.sinFisuracion.AsExt + kBarraDeFisuracion;
  return a;
}

ResumenVerificacion ResumeArmado(const DatosVerificacion& d, const ResultadoArmado& r,
                                 const ArmaduraDispuesta& a, bool sinSolucion, UsosArmado* usos) {
  if (usos == nullptr) return Juzga(d, r, a, sinSolucion, [](const ComprobacionCaso&) {});
  *usos = {};
  return Juzga(d, r, a, sinSolucion, [usos](const ComprobacionCaso& c) { AnotaUso(*usos, c); });
}

Verificacion VerificaArmado(const DatosVerificacion& d, const ResultadoArmado& r,
                            const ArmaduraDispuesta& a, bool sinSolucion, Rastro* rastro) {
  Verificacion v;
  auto& lista = v.comprobaciones;
  static_cast<ResumenVerificacion&>(v) = Juzga(
      d, r, a, sinSolucion, [&lista](const ComprobacionCaso& c) { lista.push_back(c); }, rastro);
  return v;
}

bool SinSolucionExterior(std::span<const Aviso> avisos) {
  return std::any_of(avisos.begin(), avisos.end(), [](const Aviso& a) {
    return a.clase == ClaseAviso::NoLlegaNegativos || a.clase == ClaseAviso::NoLlegaAmbos;
  });
}

}  // namespace zorbin
