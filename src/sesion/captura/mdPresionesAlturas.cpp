#include "sesion/captura/mdPresionesAlturas.h"

#include "base/textos.h"
#include "core/mdUnidades.h"

namespace zorbin {

namespace {

// The five pressures of the Obra or of the Tramo. The fields of the Tramo show nothing for a 0.
struct Presiones {
  bool deTramo;
  Ed prs1, prs2, prs3, prsM1, prsM2;
};
constexpr Presiones kDeObra{false, Ed::edPrs1, Ed::edPrs2, Ed::edPrs3, Ed::edPrsM1, Ed::edPrsM2};
constexpr Presiones kDeTramo{true,           Ed::edPrs1Tram,  Ed::edPrs2Tram,
                             Ed::edPrs3Tram, Ed::edPrsM1Tram, Ed::edPrsM2Tram};

void Muestra(Captura& c, const Presiones& p, Ed campo) {
  p.deTramo ? MuestraSinCero(c, campo) : MuestraVariable(c, campo);
}

bool Lee(Captura& c, Ed campo, double minimo) {
  return LeeAlSalir(c, campo, minimo, Variable(c, campo), Fila(campo).etiqueta);
}

SalidaCampo Queda(Captura& c, Ed campo, int texto) {
  Rechaza(c, campo, Texto(c, texto));
  return SalidaCampo::Queda;
}

// A DP that follows from its MDP, where there is one and the MDP is another by now.
void SigueAMDP(Captura& c, const Presiones& p, Ed dp, Ed mdp, double anterior) {
  if (Variable(c, dp) == 0.0 || Variable(c, mdp) == anterior) return;
  Variable(c, dp) = Variable(c, mdp) / kRelacionMDPDP;
  Muestra(c, p, dp);
}

SalidaCampo SalePrsM1(Captura& c, const Presiones& p) {
  const double anterior = Variable(c, p.prsM1);
  if (!Lee(c, p.prsM1, kNadaBajoCero)) return SalidaCampo::Queda;
  if (!p.deTramo && Variable(c, p.prsM1) < 0) return Queda(c, p.prsM1, txt::SinMDPInicial);
  Muestra(c, p, p.prsM1);
  SigueAMDP(c, p, p.prs1, p.prsM1, anterior);
  if (p.deTramo && Variable(c, p.prsM1) < Variable(c, p.prsM2)) c[p.prsM2].tabulador = true;
  return SalidaCampo::Pasa;
}

SalidaCampo SalePrsM2(Captura& c, const Presiones& p) {
  const double anterior = Variable(c, p.prsM2);
  if (!Lee(c, p.prsM2, kNadaBajoCero)) return SalidaCampo::Queda;
  const double inicial = Variable(c, p.prsM1);
  double& final = Variable(c, p.prsM2);
  if (final > 0 && final < inicial) return Queda(c, p.prsM2, txt::MDPFinalInferior);
  if (final == 0 && inicial > 0) final = inicial;
  if (final > 0 && final == inicial) {
    // The increment of the Tramo keeps its value behind the field, as it always did.
    if (!p.deTramo) Variable(c, p.prs3) = 0.0;
    p.deTramo ? Escribe(c, p.prs3, "") : Escribe(c, p.prs3, 0.0, "#####0");
  }
  Muestra(c, p, p.prsM2);
  SigueAMDP(c, p, p.prs2, p.prsM2, anterior);
  const bool rango = final > 0 && final > inicial;
  Libera(c, p.prs2, rango);
  Libera(c, p.prs3, rango);
  return SalidaCampo::Pasa;
}

SalidaCampo SalePrs1(Captura& c, const Presiones& p) {
  if (!Lee(c, p.prs1, kNadaBajoCero)) return SalidaCampo::Queda;
  double& dp = Variable(c, p.prs1);
  if (dp == 0) dp = Variable(c, p.prsM1) / kRelacionMDPDP;
  if (dp > Variable(c, p.prsM1)) return Queda(c, p.prs1, txt::MDPInferiorADP);
  Muestra(c, p, p.prs1);
  if (Variable(c, p.prsM1) == Variable(c, p.prsM2)) {
    Variable(c, p.prs2) = dp;
    Muestra(c, p, p.prs2);
    Bloquea(c, p.prs2);
  }
  return SalidaCampo::Pasa;
}

void TrasPrs2Tramo(Captura& c) {
  auto& t = c.e.tramo;
  if (t.Prs2Tram > 0 && t.Prs2Tram > t.Prs1Tram) {
    Desbloquea(c, Ed::edPrs2Tram);
    Desbloquea(c, Ed::edPrs3Tram);
  } else if (t.Prs2Tram == t.Prs1Tram) {
    for (const Ed campo : {Ed::edPrs2Tram, Ed::edPrs3Tram}) {
      Escribe(c, campo, "");
      Bloquea(c, campo);
    }
    t.Prs3Tram = 0.0;
  }
}

SalidaCampo SalePrs2(Captura& c, const Presiones& p) {
  if (!Lee(c, p.prs2, kNadaBajoCero)) return SalidaCampo::Queda;
  double& final = Variable(c, p.prs2);
  const double mdpFinal = Variable(c, p.prsM2);
  if (Variable(c, p.prs1) > 0 && mdpFinal > Variable(c, p.prsM1) && final < 0.01) {
    final = mdpFinal / kRelacionMDPDP;
  }
  if (final > 0 && final < Variable(c, p.prs1)) return Queda(c, p.prs2, txt::DPFinalInferior);
  if (final > mdpFinal) return Queda(c, p.prs2, txt::MDPInferiorADP);
  Muestra(c, p, p.prs2);
  if (p.deTramo) TrasPrs2Tramo(c);
  return SalidaCampo::Pasa;
}

SalidaCampo SalePrs3(Captura& c, const Presiones& p) {
  const double inicial = Variable(c, p.prsM1);
  const double final = Variable(c, p.prsM2);
  double& incremento = Variable(c, p.prs3);
  if (final > inicial) {
    if (!Lee(c, p.prs3, kIncrementoMinimo)) return SalidaCampo::Queda;
  } else {
    incremento = 0.0;
  }
  if (final > 0 && incremento == 0 && inicial != final) {
    return Queda(c, p.prs3, txt::DebeIncrementoMayor);
  }
  if (incremento > 0) MuestraVariable(c, p.prs3);
  return SalidaCampo::Pasa;
}

void SinIncremento(Captura& c, Ed campo) {
  Variable(c, campo) = 0.0;
  Escribe(c, campo, "");
}

SalidaCampo SaleAlt2(Captura& c) {
  auto& o = c.e.obra;
  if (!Lee(c, Ed::edAlt2, kNadaBajoCero)) return SalidaCampo::Queda;
  if (o.Alt2 > 0 && o.Alt2 < o.Alt1) return Queda(c, Ed::edAlt2, txt::AlturaFinalInferior);
  if (o.Alt2 == 0 && o.Alt1 > 0) o.Alt2 = o.Alt1;
  MuestraVariable(c, Ed::edAlt2);
  const bool rango = o.Alt2 > o.Alt1;
  if (!rango) SinIncremento(c, Ed::edAlt3);
  Libera(c, Ed::edAlt3, rango);
  return SalidaCampo::Pasa;
}

// The increment of a range of heights.
SalidaCampo SaleIncremento(Captura& c, Ed campo, bool rango) {
  if (!rango) {
    Variable(c, campo) = 0.0;
  } else if (!Lee(c, campo, kAlgo)) {
    return SalidaCampo::Queda;
  }
  MuestraVariable(c, campo);
  return SalidaCampo::Pasa;
}

SalidaCampo SaleHr0(Captura& c) {
  auto& t = c.e.tramo;
  const auto& o = c.e.obra;
  const bool sinObra = o.Alt1 <= 0;
  if (!Lee(c, Ed::edHr0, sinObra ? 0.001 : 0.0)) return SalidaCampo::Queda;
  if (sinObra && t.Hr0Tramo < 1.0) return Queda(c, Ed::edHr0, txt::AlturaMinima1m);
  MuestraSinCero(c, Ed::edHr0);
  return SalidaCampo::Pasa;
}

SalidaCampo SaleHr0Final(Captura& c) {
  auto& t = c.e.tramo;
  if (!Lee(c, Ed::edHr0Final, kNadaBajoCero)) return SalidaCampo::Queda;
  if (t.Hr0Final > 0 && t.Hr0Final < t.Hr0Tramo) {
    return Queda(c, Ed::edHr0Final, txt::AlturaFinalInferior);
  }
  if (t.Hr0Final == 0 && t.Hr0Tramo > 0) t.Hr0Final = t.Hr0Tramo;
  if (t.Hr0Tramo != 0) {
    MuestraVariable(c, Ed::edHr0Final);
  } else {
    Escribe(c, Ed::edHr0Final, "");
  }
  const bool rango = t.Hr0Final > t.Hr0Tramo;
  if (!rango) SinIncremento(c, Ed::edHr0Delta);
  Libera(c, Ed::edHr0Delta, rango);
  return SalidaCampo::Pasa;
}

}  // namespace

SalidaCampo SalePresion(Captura& c, Ed campo) {
  for (const auto& p : {kDeObra, kDeTramo}) {
    if (campo == p.prs1) return SalePrs1(c, p);
    if (campo == p.prs2) return SalePrs2(c, p);
    if (campo == p.prs3) return SalePrs3(c, p);
    if (campo == p.prsM1) return SalePrsM1(c, p);
    if (campo == p.prsM2) return SalePrsM2(c, p);
  }
  return SalidaCampo::Pasa;
}

SalidaCampo SaleAlturaObra(Captura& c, Ed campo) {
  const auto& o = c.e.obra;
  if (campo == Ed::edAlt2) return SaleAlt2(c);
  if (campo == Ed::edAlt3) return SaleIncremento(c, campo, o.Alt2 > o.Alt1);
  if (!Lee(c, Ed::edAlt1, kNadaBajoCero)) return SalidaCampo::Queda;
  if (o.Alt1 < 1.0) return Queda(c, Ed::edAlt1, txt::AlturaMinima1m);
  MuestraVariable(c, Ed::edAlt1);
  return SalidaCampo::Pasa;
}

SalidaCampo SaleAlturaTramo(Captura& c, Ed campo) {
  const auto& t = c.e.tramo;
  if (campo == Ed::edHr0) return SaleHr0(c);
  if (campo == Ed::edHr0Final) return SaleHr0Final(c);
  return SaleIncremento(c, campo, t.Hr0Final > t.Hr0Tramo);
}

}  // namespace zorbin
