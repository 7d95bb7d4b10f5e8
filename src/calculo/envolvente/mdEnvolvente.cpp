#include "calculo/envolvente/mdEnvolvente.h"

#include <algorithm>

#include "calculo/armado/mdCamisa.h"

namespace zorbin {

namespace {

constexpr double kPasoAcero = 0.5;  // [cm2/m]
constexpr int kMaxRondas = 400;

bool Corta(double uso) {
  return uso > kUsoCumple;
}

// The steel of a Caso while it grows: what is asked of each face, and what lies in it.
class Crecimiento {
 public:
  Crecimiento(const DatosVerificacion& d, const ResultadoArmado& metodo)
      : d_(d), r_(metodo), a_(DispuestaDe(metodo)), Ai_(metodo.AsInt), Ae_(metodo.AsExt) {
    a_.exteriorPorFisuracion = false;
    if (d.tope && Ae_ > *d.tope) {
      Ae_ = *d.tope;
      DisponeExterior();
    }
  }

  // Starts from the row of a hypothesis instead.
  void EmpiezaEn(const FilaHip& fila) {
    Ai_ = fila.AsInt;
    Ae_ = d_.tope ? std::min(fila.AsExt, *d_.tope) : fila.AsExt;
    DisponeInterior();
    DisponeExterior();
  }

  // @return whether it complies
  bool Crece() {
    for (;; ++rondas_) {
      resumen_ = ResumeArmado(d_, r_, a_, false, &usos_);
      if (resumen_.veredicto == Veredicto::Cumple) return true;
      if (rondas_ == kMaxRondas || !Ronda()) return false;
    }
  }

  // The last round: what each face is asked for, and the steel that lies in it.
  void Anota(Rastro& rastro) const {
    const auto cara = [&](double A, std::int16_t TipoCamisa, CaraPared que) {
      const EnLugar lugar(&rastro, {Apartado::Envolvente, 0, 0, que});
      ReparteArmadura(A, TipoCamisa, d_.CamMax, false, 0.0, &rastro);
    };
    if (interior_) cara(Ai_, d_.TipoCamisa, CaraPared::Interior);
    if (exterior_) cara(Ae_, 0, CaraPared::Exterior);
    const EnLugar lugar(&rastro, Apartado::Envolvente);
    rastro.Anota(Formula::InteriorFinal, {r_.AreaCamisa, r_.AreaEspiras}, r_.AsInt);
    rastro.Anota(Formula::ExteriorFinal, {r_.AreaExterior}, r_.AsExt);
    rastro.Anota(Formula::TotalFinal, {r_.AsInt, r_.AsExt}, r_.Total);
  }

  bool LoPideLaFisuracion() const { return Corta(usos_.fisuracion[1]) && EnTope(); }

  DisenoEnvolvente Resultado() {
    PonTensiones();
    return {r_, a_, resumen_, false, rondas_};
  }

 private:
  const DatosVerificacion& d_;
  ResultadoArmado r_;
  ArmaduraDispuesta a_;
  double Ai_, Ae_;  // asked of each face [cm2/m]
  UsosArmado usos_;
  ResumenVerificacion resumen_;
  int rondas_ = 0;
  bool interior_ = false;  // laid out anew
  bool exterior_ = false;

  bool EnTope() const { return d_.tope && Ae_ >= *d_.tope; }

  // @return whether some face grew
  bool Ronda() {
    bool interior = Corta(usos_.armadura[0]) || Corta(usos_.fisuracion[0]) || Corta(usos_.prueba);
    bool exterior = Corta(usos_.armadura[1]) || Corta(usos_.fisuracion[1]);
    if (exterior && EnTope()) {
      exterior = false;
      interior = interior || Corta(usos_.armadura[1]);
    }
    if (interior) {
      Ai_ += kPasoAcero;
      DisponeInterior();
    }
    if (exterior) {
      Ae_ = d_.tope ? std::min(Ae_ + kPasoAcero, *d_.tope) : Ae_ + kPasoAcero;
      DisponeExterior();
    }
    return interior || exterior;
  }

  void DisponeInterior() {
    interior_ = true;
    const auto p = ReparteArmadura(Ai_, d_.TipoCamisa, d_.CamMax, false, 0.0);
    r_.CAMISA = p.CAMISA;
    r_.FIIN = p.DIA;
    r_.NESPIN = p.NESP;
    PonAreas();
  }

  void DisponeExterior() {
    exterior_ = true;
    const auto p = ReparteArmadura(Ae_, 0, d_.CamMax, false, 0.0);
    r_.FIEX = p.DIA;
    r_.NEXPEX = p.NESP;
    PonAreas();
  }

  void PonAreas() {
    r_.AreaCamisa = r_.CAMISA * 10.0;
    r_.AreaEspiras = AreaBarras(r_.FIIN, r_.NESPIN);
    r_.AreaExterior = AreaBarras(r_.FIEX, r_.NEXPEX);
    r_.AsInt = r_.AreaEspiras + r_.AreaCamisa;
    r_.AsExt = r_.AreaExterior;
    r_.Total = r_.AsInt + r_.AsExt;
    a_ = DispuestaDe(r_);
    a_.exteriorPorFisuracion = false;
  }

  // Cracking of the governing hypothesis, which the listings show, with the steel that there is.
  void PonTensiones() {
    if (d_.TipoCamisa != 0 || r_.HipotesisRige == kHipPPNeta) return;
    const auto homogenea = Homogeneiza(d_.pared, r_.AsInt, r_.AsExt);
    r_.TensionMax = 0;
    for (int s = 1; s <= kSecciones; ++s) {
      const auto t = TensionDeFisuracion(d_.pared, homogenea, r_.esfuerzos.M(r_.HipotesisRige, s),
                                         r_.esfuerzos.N(r_.HipotesisRige, s));
      if (t.Sx <= r_.TensionMax) continue;
      r_.TensionMax = t.Sx;
      r_.TensionAdm = t.Sa;
    }
  }
};

// Of the hypotheses for which the search found a solution.
const FilaHip& MayorConSolucion(const ResultadoArmado& r, std::span<const Aviso> avisos) {
  int mayor = kHipPPNeta;
  for (int h = kHipPPNeta + 1; h <= kHipotesisArmado; ++h) {
    const bool sin = std::any_of(avisos.begin(), avisos.end(), [h](const Aviso& a) {
      return a.hipotesis == h && SinSolucionExterior({&a, 1});
    });
    if (!sin && r.TablaHip(h).Total >= r.TablaHip(mayor).Total) mayor = h;
  }
  return r.TablaHip(mayor);
}

}  // namespace

DisenoEnvolvente Envuelve(const DatosVerificacion& d, const ResultadoArmado& metodo,
                          std::span<const Aviso> avisos, Rastro* rastro) {
  const bool sinSolucion = SinSolucionExterior(avisos);
  UsosArmado usos;
  DisenoEnvolvente x{metodo, DispuestaDe(metodo), {}, sinSolucion, 0};
  x.resumen = ResumeArmado(d, metodo, x.dispuesta, sinSolucion, &usos);
  const bool crece = x.resumen.veredicto == Veredicto::NoCumple && !metodo.HayAjuste() &&
                     metodo.IESP <= 0 && usos.momento <= 1.0 && !Corta(usos.ineludible) &&
                     x.resumen.motivo != MotivoVeredicto::FisuracionSobreTope;
  if (!crece) return x;
  Crecimiento crecimiento(d, metodo);
  if (sinSolucion) crecimiento.EmpiezaEn(MayorConSolucion(metodo, avisos));
  if (crecimiento.Crece()) {
    if (rastro) crecimiento.Anota(*rastro);
    return crecimiento.Resultado();
  }
  if (crecimiento.LoPideLaFisuracion()) x.resumen.motivo = MotivoVeredicto::FisuracionSobreTope;
  return x;
}

}  // namespace zorbin
