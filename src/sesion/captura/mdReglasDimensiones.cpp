#include "sesion/captura/mdReglasDimensiones.h"

#include <array>
#include <cmath>

#include "base/textos.h"
#include "sesion/captura/mdEtiquetas.h"
#include "sesion/captura/mdGeometria.h"

namespace zorbin {

namespace {

constexpr double kMinimo = 0.001;  // below it a dimension is not given

// A dimension of the table takes the place of another when the diameter is another or the field is
// blank.
void Propone(Captura& c, Ed campo, ModoGeom modo, bool otroDi) {
  if (!otroDi && !EnBlanco(c, campo)) return;
  BuscaEnTramo(c, modo);
  MuestraVariable(c, campo);
}

// The inner cover of a lined cylinder is what the coating leaves.
void RecubrimientoRevestida(Captura& c) {
  auto& t = c.e.tramo;
  t.Reci = t.Esp - t.Rece;
  MuestraVariable(c, Ed::edReci0);
}

// What a dimension brings with it, so that nothing typed goes in silence.
class LoQueTrae {
 public:
  LoQueTrae(Captura& c, Ed campo) : c_(c), campo_(campo) {
    for (std::size_t i = 0; i < kSiguen.size(); ++i) {
      if (!EnBlanco(c, kSiguen[i])) antes_[i] = Variable(c, kSiguen[i]);
    }
    // A width that follows the pipe was typed by nobody.
    constexpr double kCifra = 0.005;  // [m]
    if (std::fabs(c.e.tramo.B0 - AnchoAutomatico(c)) < kCifra) antes_.back().reset();
  }

  void Di() const {
    std::string cambios;
    for (std::size_t i = 0; i < kSiguen.size(); ++i) {
      const double ahora = Variable(c_, kSiguen[i]);
      if (kSiguen[i] == campo_ || !antes_[i] || *antes_[i] == ahora) continue;
      const auto texto = [&](double valor) {
        return Formato(c_, valor, Fila(kSiguen[i]).ficha->MascaraTecleada(c_.EsSI()));
      };
      if (!cambios.empty()) cambios += "; ";
      cambios += c_.textos.Compone(
          txt::CambioDe, {NombreDeCampo(c_, kSiguen[i]), texto(*antes_[i]), texto(ahora)});
    }
    if (!cambios.empty()) c_.voz.Anuncia(c_.textos.Compone(txt::DiametroTrae, {cambios}));
  }

 private:
  static constexpr std::array kSiguen{Ed::edEsp0, Ed::edReci0, Ed::edRece0, Ed::edB0};
  Captura& c_;
  Ed campo_;
  std::array<std::optional<double>, kSiguen.size()> antes_;
};

// A diameter of the table brings its dimensions; any other has none, and no band.
void TomaDimensiones(Captura& c, bool otroDi) {
  PonBandas(c);
  if (!c.EsComercial) return;
  Propone(c, Ed::edEsp0, ModoGeom::Espesor, otroDi);
  if (c.e.tramo.Tipologia != kRevestida) Propone(c, Ed::edReci0, ModoGeom::Interior, otroDi);
  Propone(c, Ed::edRece0, ModoGeom::Exterior, otroDi);
}

// One that is not given takes that of the table. @return whether there is one
bool TieneDimension(Captura& c, Ed campo) {
  if (Variable(c, campo) >= kMinimo) return true;
  const ModoGeom modo = campo == Ed::edEsp0    ? ModoGeom::Espesor
                        : campo == Ed::edReci0 ? ModoGeom::Interior
                                               : ModoGeom::Exterior;
  if (BuscaEnTramo(c, modo) == kGeomHallado) return true;
  Rechaza(c, campo, Texto(c, txt::NoEsComercial), Texto(c, txt::EtEsp));
  return false;
}

// What follows from a thickness or an outer cover.
void SigueADimension(Captura& c, Ed campo) {
  const bool revestida = c.e.tramo.Tipologia == kRevestida;
  if (campo == Ed::edRece0 && revestida) RecubrimientoRevestida(c);
  if (campo != Ed::edEsp0) return;
  if (revestida && !EnBlanco(c, Ed::edRece0)) RecubrimientoRevestida(c);
  CalculaDe(c);
}

}  // namespace

SalidaCampo SaleDi(Captura& c, Ed campo) {
  auto& t = c.e.tramo;
  const double anterior = t.Di;
  const LoQueTrae trae(c, campo);
  c.AnchoZanjaAuto = false;
  if (!LeeAlSalir(c, campo, kMinimo, t.Di, Fila(campo).etiqueta)) return SalidaCampo::Queda;
  c.EsComercial = BuscaEnTramo(c, ModoGeom::Busca) == kGeomHallado;
  const bool otro = t.Di != anterior;
  TomaDimensiones(c, otro);
  RenuevaEtiquetas(c);
  CalculaDe(c);
  MuestraVariable(c, campo);
  if (otro) {
    c.AnchoZanjaAuto = true;
    RecalculaB0(c);
  }
  trae.Di();
  return SalidaCampo::Pasa;
}

SalidaCampo SaleDimension(Captura& c, Ed campo) {
  if (campo == Ed::edReci0 && c.e.tramo.Tipologia == kRevestida) return SalidaCampo::Pasa;
  double& valor = Variable(c, campo);
  const double anterior = valor;
  const LoQueTrae trae(c, campo);
  const int etiqueta = Fila(campo).etiqueta;
  if (!c.EsComercial && !LeeAlSalir(c, campo, kMinimo, valor, etiqueta)) return SalidaCampo::Queda;
  if (!LeeAlSalir(c, campo, 0.0, valor, etiqueta) || !TieneDimension(c, campo)) {
    return SalidaCampo::Queda;
  }
  SigueADimension(c, campo);
  MuestraVariable(c, campo);
  // A new thickness overwrites a width typed by hand.
  if (valor != anterior && campo == Ed::edEsp0) {
    RecalculaB0(c);
    trae.Di();
  }
  return SalidaCampo::Pasa;
}

SalidaCampo SaleB0(Captura& c, Ed campo) {
  auto& t = c.e.tramo;
  if (t.TipoColocacion == 2) return SalidaCampo::Pasa;
  const bool leido = LeeAlSalir(c, campo, 0.0, t.B0, Fila(campo).etiqueta);
  if (!leido || t.B0 < kMinimo) RecalculaB0(c);
  if (!leido) return SalidaCampo::Queda;
  MuestraVariable(c, campo);
  return SalidaCampo::Pasa;
}

}  // namespace zorbin
