#include "sesion/captura/mdValidaTramo.h"

#include <array>

#include "base/textos.h"
#include "calculo/corrida/mdRango.h"
#include "core/mdUnidades.h"
#include "sesion/captura/mdEtiquetas.h"
#include "sesion/captura/mdGeometria.h"
#include "sesion/captura/mdTipologias.h"

namespace zorbin {

namespace {

constexpr double kMinimo = 0.001;
constexpr double kMinimoRetraccion = 0.0001;
constexpr double kAnguloMaximo = 90.0;  // [degrees]
constexpr std::int16_t kTerraplen = 31;
constexpr std::array<std::int16_t, 5> kCodigosRelleno{11, 12, 21, 22, 23};

// One validation, with its way of failing.
class Validacion {
 public:
  explicit Validacion(Captura& c) : c_(c) {}

  // Each part, so that all the faults are told at once; how many Casos there are can be asked of
  // data without a fault.
  bool Todo() {
    const bool vale = Cada({ValidaTexto(c_, Ed::edDescriTramo), Presiones(),
                            Tipologia() && (c_.e.tramo.EsArmado ? Armado() : Postesado()),
                            Dimensiones(), Apoyo(), Alturas(), Relleno(), Cargas()});
    return vale && Casos();
  }

 private:
  bool Falla(Ed campo, const std::string& texto, const std::string& titulo) {
    Rechaza(c_, campo, texto, titulo);
    return false;
  }
  bool Falla(Ed foco, int texto, const std::string& titulo) {
    return Falla(foco, Texto(c_, texto), titulo);
  }

  std::string Error() const { return Texto(c_, txt::TituloErrorCaptura) + ":"; }

  // A number of the field into its variable.
  bool Numero(Ed campo, double minimo, int etiqueta) {
    return ValidaNumero(c_, campo, minimo, Variable(c_, campo), etiqueta);
  }
  // As Numero; a failure makes the field available again.
  bool NumeroQueEnciende(Ed campo, double minimo, int etiqueta) {
    if (Numero(campo, minimo, etiqueta)) return true;
    Enciende(c_, campo);
    return false;
  }

  // A list: something chosen, and an entry of it.
  bool EnLista(Ed campo, const std::string& vacio, const std::string& fuera,
               const std::string& tituloFuera) {
    if (EnBlanco(c_, campo)) return Falla(campo, vacio, Error());
    const int posicion = PosicionEnLista(c_, campo);
    if (posicion == 0) return Falla(campo, fuera, tituloFuera);
    c_.e.tramo.*Fila(campo).codigo = ValorDeLista(c_, campo, posicion);
    return true;
  }
  bool EnLista(Ed campo, int vacio, int fuera) {
    return EnLista(campo, Texto(c_, vacio), Texto(c_, fuera), Error());
  }
  bool EnListaConNombre(Ed campo) {
    const std::string nombre = " " + SinDosPuntos(Texto(c_, Fila(campo).etiqueta));
    return EnLista(campo, Texto(c_, txt::NoHaSeleccionado) + nombre,
                   Texto(c_, txt::ValorIncorrectoDel) + nombre, Error());
  }

  bool Presiones() {
    auto& t = c_.e.tramo;
    if (EnBlanco(c_, Ed::edTramo)) {
      Desbloquea(c_, Ed::edTramo);
      return Falla(Ed::edTramo, txt::SinNumeroDeTramo, Error());
    }
    t.DescriTramo = c_[Ed::edDescriTramo].texto;
    if (!Cada({Numero(Ed::edPrs1Tram, kNadaBajoCero, txt::EtPrs1),
               Numero(Ed::edPrs2Tram, kNadaBajoCero, txt::EtPrs2),
               Numero(Ed::edPrsM1Tram, kNadaBajoCero, txt::EtPrsM1),
               Numero(Ed::edPrsM2Tram, kNadaBajoCero, txt::EtPrsM2)})) {
      return false;
    }
    if (t.Prs2Tram > t.Prs1Tram && !Numero(Ed::edPrs3Tram, kAlgo, txt::EtPrs3)) return false;
    if (t.PrsM2Tram > 0 && t.PrsM2Tram < t.PrsM1Tram) {
      return Falla(Ed::edPrsM1Tram, txt::MDPFinalInferior, {});
    }
    CompletaPresiones();
    return true;
  }

  void CompletaPresiones() {
    auto& t = c_.e.tramo;
    if (t.PrsM2Tram == 0 && t.PrsM1Tram > 0) t.PrsM2Tram = t.PrsM1Tram;
    if (t.PrsM2Tram != 0) MuestraVariable(c_, Ed::edPrsM2Tram);
    if (EnBlanco(c_, Ed::edPrs1Tram) && t.PrsM1Tram > 0) t.Prs1Tram = t.PrsM1Tram / kRelacionMDPDP;
    MuestraSinCero(c_, Ed::edPrs1Tram);
    if (EnBlanco(c_, Ed::edPrs2Tram) && t.PrsM2Tram > 0) t.Prs2Tram = t.PrsM2Tram / kRelacionMDPDP;
    MuestraSinCero(c_, Ed::edPrs2Tram);
  }

  bool Tipologia() {
    auto& t = c_.e.tramo;
    if (t.Tipologia != kArmada && t.Tipologia != kEmbebida && t.Tipologia != kRevestida) {
      return Falla(Ed::edTipoControl, txt::SinTipologia, Error());
    }
    t.EsArmado = t.Tipologia < kPrimeraPostesada;
    t.PostFlag = t.EsArmado ? 0 : 1;
    return true;
  }

  // A tick and the value that it asks for.
  bool Marcado(Ed marca, Ed campo, bool& indicador, int etiqueta) {
    indicador = false;
    if (c_[marca].opcion != 1) {
      Variable(c_, campo) = 0.0;
      return true;
    }
    if (!NumeroQueEnciende(campo, kMinimo, etiqueta)) return false;
    indicador = true;
    return true;
  }

  bool Armado() {
    auto& t = c_.e.tramo;
    t.SubTipo = 3;
    t.GamaY = t.GamaF = 1.0;
    const bool vale =
        Cada({Marcado(Ed::edIcontes0, Ed::edAdato, t.Icontes0, txt::EtAdato),
              EnLista(Ed::edTipoControl, Texto(c_, txt::SinTipoControl),
                      Texto(c_, txt::ValorIncorrecto), Texto(c_, txt::EtTipoControl)),
              EnLista(Ed::edTipoCamisa, txt::SinTipoCamisa, txt::TipoCamisaIncorrecto),
              Numero(Ed::edCamMax, 0.0, txt::EtCamMax), Hormigon(),
              Numero(Ed::edFyk, kMinimo, txt::EtFyk), Numero(Ed::edFyd, kMinimo, txt::EtFyd),
              Numero(Ed::edGamaB, kMinimo, txt::EtGamaB)});
    if (vale) OlvidaPostesado(t);
    return vale;
  }

  bool Hormigon() {
    auto& t = c_.e.tramo;
    if (!Numero(Ed::edFck, kMinimo, txt::EtFck)) return false;
    t.Fct = FctEnSistema(t.Fck, c_.EsSI());
    MuestraVariable(c_, Ed::edFct);
    return t.Fct > 0 || Falla(Ed::edFck, txt::FctIncorrecto, Error());
  }

  // FYKPost stays as it is.
  static void OlvidaPostesado(Tramo& t) {
    t.Icontes1 = false;
    t.Coepre1 = t.Delca = t.Es = t.Ep = 0.0;
    t.Fckno = t.Fckn = t.Fckr = t.SFck = t.Sf = 0.0;
    t.Rel = t.Fic = t.Fir = t.Epsc = t.Epsr = 0.0;
  }

  // Fyk stays as it is.
  static void OlvidaArmado(Tramo& t) {
    t.EsArmado = false;
    t.Icontes0 = false;
    t.TipoControl = t.TipoCamisa = t.SubTipo = 0;
    t.Adato = t.CamMax = t.Fck = t.Fct = t.Fyd = 0.0;
    t.GamaB = t.GamaY = t.GamaF = 0.0;
  }

  bool Postesado() {
    auto& t = c_.e.tramo;
    bool vale = Marcado(Ed::edIcontes1, Ed::edCoepre1, t.Icontes1, txt::EtCoepre1);
    for (const Ed campo : {Ed::edDelca, Ed::edEs, Ed::edEp, Ed::edFYKPost, Ed::edFckno, Ed::edFckn,
                           Ed::edFckr, Ed::edSFck}) {
      vale = Cada({Numero(campo, kMinimo, Fila(campo).etiqueta), vale});
    }
    // The shrinkage of the coating is taken as it stands.
    vale = Cada({t.Fckn >= t.Fckno || Falla(Ed::edFckn, txt::FcknMenorQueFckno, Error()), Tesado(),
                 Numero(Ed::edRel, kMinimo, txt::EtRel), Numero(Ed::edFic, kMinimo, txt::EtFic),
                 Numero(Ed::edFir, kMinimo, txt::EtFir),
                 Numero(Ed::edEpsc, kMinimoRetraccion, txt::EtEpsc), vale});
    if (vale) OlvidaArmado(t);
    return vale;
  }

  bool Tesado() {
    auto& t = c_.e.tramo;
    if (!EnBlanco(c_, Ed::edSf)) return Numero(Ed::edSf, kAlgo, txt::TensionDeTesado);
    t.Sf = SfDeSFck(t.SFck);
    Escribe(c_, Ed::edSf, t.Sf, "#####0");
    return true;
  }

  bool Dimensiones() {
    auto& t = c_.e.tramo;
    const bool revestida = t.Tipologia == kRevestida;
    const bool diametro = Numero(Ed::edDi0, kMinimo, txt::EtDi);
    c_.EsComercial = diametro && BuscaEnTramo(c_, ModoGeom::Busca) == kGeomHallado;
    const bool espesor = Numero(Ed::edEsp0, kMinimo, txt::EtEsp);
    if (diametro && espesor) {
      t.De = t.Di + 2.0 * t.Esp / 100.0;
      MuestraVariable(c_, Ed::edDe0);
      if (c_.AnchoZanjaAuto) RecalculaB0(c_);
    }
    const bool interior = revestida || NumeroQueEnciende(Ed::edReci0, kMinimo, txt::EtReci);
    const bool exterior = Numero(Ed::edRece0, kMinimo, txt::EtRece);
    if (revestida && espesor && exterior) {
      t.Reci = t.Esp - t.Rece;
      MuestraVariable(c_, Ed::edReci0);
    }
    return Cada({diametro, espesor, interior, exterior, Numero(Ed::edGc0, kMinimo, txt::EtGc)});
  }

  bool Apoyo() {
    auto& t = c_.e.tramo;
    if (!EnListaConNombre(Ed::edTipoCuna0)) return false;
    if (t.TipoColocacion < 2) return EnListaConNombre(Ed::edTipoApoyo0);
    t.TipoApoyo = kTerraplen;
    return true;
  }

  bool FallaAltura(Ed campo, int texto) { return Falla(campo, texto, {}); }

  bool Alturas() {
    const auto r = AlturasDe(c_.e.obra, c_.e.tramo);
    if (!(r.Hr0 > 0)) return FallaAltura(Ed::edHr0, txt::DebeTeclearAltura);
    // Only an Obra without a height is held to the 1 m.
    if (r.Hr0 < 1.0 && !(c_.e.obra.Alt1 > 0.01)) {
      return FallaAltura(Ed::edHr0, txt::AlturaMinima1m);
    }
    if (!(r.Hr0Final > 0)) return true;
    if (r.Hr0Final < r.Hr0) return FallaAltura(Ed::edHr0, txt::AlturaFinalInferior);
    return IncrementoDeAlturas(r);
  }

  bool IncrementoDeAlturas(const zorbin::Alturas& r) {
    auto& t = c_.e.tramo;
    if (r.AlturasPropias && t.Hr0Delta < 0.01 &&
        !ValidaNumero(c_, Ed::edHr0Delta, -kMayorTecleado, t.Hr0Delta, txt::EtAlt3)) {
      return false;
    }
    const double paso = r.AlturasPropias ? t.Hr0Delta : r.Hr0Delta;
    if (paso <= 0 && r.Hr0Final != r.Hr0) {
      return FallaAltura(Ed::edHr0Delta, txt::DebeIncrementoAlturas);
    }
    return true;
  }

  bool Relleno() {
    auto& t = c_.e.tramo;
    if (t.TipoApoyo == kTerraplen) t.B0 = 0.0;
    if (t.TipoApoyo >= 20) t.TipoRelleno = 0;
    return Cada({t.TipoApoyo == kTerraplen || NumeroQueEnciende(Ed::edB0, kMinimo, txt::EtB0),
                 Numero(Ed::edGr0, kMinimo, txt::EtGr), Rozamiento(),
                 t.TipoApoyo >= 20 || EnListaConNombre(Ed::edTipoRelleno0), Generatriz(),
                 Asentamiento()});
  }

  bool Rozamiento() {
    if (!Numero(Ed::edFi0, 0.0, txt::EtFi)) return false;
    return c_.e.tramo.Fi <= kAnguloMaximo ||
           Falla(Ed::edFi0, txt::AnguloFueraDeRango, Texto(c_, txt::TituloErrorCaptura));
  }

  bool Generatriz() {
    auto& t = c_.e.tramo;
    if (t.TipoApoyo <= 20) {
      t.Hr1 = 0.0;
      return true;
    }
    if (!NumeroQueEnciende(Ed::edHr1, kMinimo, txt::EtHr1)) return false;
    if (t.TipoApoyo >= kTerraplen || t.Hr1 <= AlturasDe(c_.e.obra, t).Hr0) return true;
    Enciende(c_, Ed::edHr1);
    return Falla(Ed::edHr1,
                 Texto(c_, txt::GeneratrizSuperior) + "\n" + Texto(c_, txt::MayorQueRelleno),
                 Texto(c_, txt::TituloErrorCaptura));
  }

  bool Asentamiento() {
    if (c_.e.tramo.TipoApoyo > 30) return EnLista(Ed::edIAs, txt::SinIAs, txt::IAsIncorrecto);
    c_.e.tramo.IAs = 0;
    return true;
  }

  bool Cargas() {
    auto& t = c_.e.tramo;
    if (!ValidaNumero(c_, Ed::edQDato0, 0.0, t.QDato, txt::EtQDato)) {
      Desbloquea(c_, Ed::edQDato0);
      return false;
    }
    EligeCarga(t);
    if (t.IndCar == 0) return true;
    return EnLista(Ed::edICar0, txt::SinICar, txt::ICarIncorrecto);
  }

  // A number past the last one would spoil a run that is long already.
  bool Casos() {
    DatosTramo datos;
    datos.obra = ObraEnCalculo(c_.e.obra);
    datos.tramo = TramoEnCalculo(c_.e.tramo, c_.EsSI());
    const Rango rango = RangoDe(datos);
    const auto cuenta = CuentaDe(rango);
    if (cuenta.Casos() <= kMaxCasosCorrida) return true;
    const bool altura = cuenta.MasAlturas();
    const Ed campo = altura ? (rango.AlturasPropias ? Ed::edHr0Delta : Ed::edAlt3)
                            : (rango.PresionesPropias ? Ed::edPrs3Tram : Ed::edPrs3);
    const std::string nombre = SinDosPuntos(Texto(c_, altura ? txt::EtAlt3 : txt::EtPrs3));
    return Falla(campo, c_.textos.Compone(txt::DemasiadosCasos, {nombre}), Error());
  }

  Captura& c_;
};

}  // namespace

bool ValidaTramo(Captura& c) {
  c.faltas.clear();
  const bool vale = Validacion(c).Todo();
  RenuevaEtiquetas(c);
  return vale;
}

void EligeCarga(Tramo& t) {
  t.IndCar = t.QDato < 0.001 ? 1 : 0;
  if (t.IndCar == 0) t.ICar = 0;
}

std::int16_t ValorDeLista(const Captura& c, Ed campo, int posicion) {
  switch (campo) {
    case Ed::edTipoApoyo0:
      return static_cast<std::int16_t>(posicion + (c.e.tramo.TipoColocacion == 1 ? 20 : 10));
    case Ed::edTipoRelleno0:
      return kCodigosRelleno[static_cast<std::size_t>(posicion - 1)];
    case Ed::edICar0:
      return static_cast<std::int16_t>(posicion - 1);
    default:
      return static_cast<std::int16_t>(posicion);
  }
}

}  // namespace zorbin
