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
constexpr double kLimiteFyd = 1400.0;   // [kp/cm2]
constexpr double kAnguloMaximo = 90.0;  // [degrees]
constexpr std::int16_t kTerraplen = 31;
constexpr std::array<std::int16_t, 5> kCodigosRelleno{11, 12, 21, 22, 23};

// One validation, with its way of failing.
class Validacion {
 public:
  Validacion(Captura& c, bool interactivo) : c_(c), interactivo_(interactivo) {}

  bool Todo() {
    return Presiones() && Tipologia() && (c_.e.tramo.EsArmado ? Armado() : Postesado()) &&
           Dimensiones() && Apoyo() && Alturas() && Relleno() && Cargas() && Casos();
  }

 private:
  bool Foco(Ed foco) {
    if (interactivo_) VaA(c_, foco);
    return false;
  }

  bool Falla(Ed foco, const std::string& texto, const std::string& titulo) {
    Rechaza(c_, foco, texto, titulo);
    return Foco(foco);
  }
  bool Falla(Ed foco, int texto, const std::string& titulo) {
    return Falla(foco, Texto(c_, texto), titulo);
  }

  std::string Error() const { return Texto(c_, txt::TituloErrorCaptura) + ":"; }

  // A number of the field into its variable; the focus of a failure may be another field.
  bool Numero(Ed campo, double minimo, int etiqueta, Ed foco) {
    return ValidaNumero(c_, campo, minimo, Variable(c_, campo), etiqueta) || Foco(foco);
  }
  bool Numero(Ed campo, double minimo, int etiqueta) {
    return Numero(campo, minimo, etiqueta, campo);
  }
  // As Numero; a failure makes the field available again.
  bool NumeroQueEnciende(Ed campo, double minimo, int etiqueta) {
    if (ValidaNumero(c_, campo, minimo, Variable(c_, campo), etiqueta)) return true;
    Enciende(c_, campo);
    return Foco(campo);
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

  // A derived text of a batch must not look like an edit.
  void Derivado() {
    if (!interactivo_) OlvidaCambios(c_);
  }

  bool Presiones() {
    auto& t = c_.e.tramo;
    if (EnBlanco(c_, Ed::edTramo)) {
      Desbloquea(c_, Ed::edTramo);
      return Falla(Ed::edTramo, txt::SinNumeroDeTramo, Error());
    }
    t.DescriTramo = c_[Ed::edDescriTramo].texto;
    // The focus of the final pressures is that of the initial ones.
    if (!Numero(Ed::edPrs1Tram, kNadaBajoCero, txt::EtPrs1) ||
        !Numero(Ed::edPrs2Tram, kNadaBajoCero, txt::EtPrs2, Ed::edPrs1Tram)) {
      return false;
    }
    if (t.Prs2Tram > t.Prs1Tram && !Numero(Ed::edPrs3Tram, kAlgo, txt::EtPrs3)) return false;
    if (!Numero(Ed::edPrsM1Tram, kNadaBajoCero, txt::EtPrsM1) ||
        !Numero(Ed::edPrsM2Tram, kNadaBajoCero, txt::EtPrsM2, Ed::edPrsM1Tram)) {
      return false;
    }
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
      Rechaza(c_, Ed::edTipoControl, Texto(c_, txt::SinTipologia), Error());
      if (interactivo_) MuestraPagina(c_, {1, 0});
      return false;
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
    if (!Marcado(Ed::edIcontes0, Ed::edAdato, t.Icontes0, txt::EtAdato) ||
        !EnLista(Ed::edTipoControl, Texto(c_, txt::SinTipoControl), Texto(c_, txt::ValorIncorrecto),
                 Texto(c_, txt::EtTipoControl)) ||
        !EnLista(Ed::edTipoCamisa, txt::SinTipoCamisa, txt::TipoCamisaIncorrecto)) {
      return false;
    }
    t.SubTipo = 3;
    if (!Numero(Ed::edCamMax, 0.0, txt::EtCamMax) || !Numero(Ed::edFck, kMinimo, txt::EtFck)) {
      return false;
    }
    t.Fct = FctEnSistema(t.Fck, c_.EsSI());
    MuestraVariable(c_, Ed::edFct);
    Derivado();
    if (!(t.Fct > 0)) return Falla(Ed::edFck, txt::FctIncorrecto, Error());
    if (!Numero(Ed::edFyk, kMinimo, txt::EtFyk) || !Numero(Ed::edFyd, kMinimo, txt::EtFyd) ||
        !Numero(Ed::edGamaB, kMinimo, txt::EtGamaB)) {
      return false;
    }
    t.GamaY = t.GamaF = 1.0;
    if (!AceptaFyd()) return false;
    OlvidaPostesado(t);
    return true;
  }

  bool AceptaFyd() {
    if (CompruebaFyd(c_)) return true;
    if (interactivo_) {
      VaA(c_, Ed::edFyd);
      c_.TramoEditado = true;
    } else {
      OlvidaCambios(c_);
    }
    for (const Orden o : {Orden::btCancelar, Orden::btGrabar}) {
      c_.pantalla.habilitadas[static_cast<std::size_t>(o)] = true;
    }
    return false;
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
    if (!Marcado(Ed::edIcontes1, Ed::edCoepre1, t.Icontes1, txt::EtCoepre1)) return false;
    for (const Ed campo :
         {Ed::edDelca, Ed::edEs, Ed::edEp, Ed::edFYKPost, Ed::edFckno, Ed::edFckn}) {
      if (!Numero(campo, kMinimo, Fila(campo).etiqueta)) return false;
    }
    if (t.Fckn < t.Fckno) return Falla(Ed::edFckn, txt::FcknMenorQueFckno, Error());
    if (!Numero(Ed::edFckr, kMinimo, txt::EtFckr) || !Numero(Ed::edSFck, kMinimo, txt::EtSFck) ||
        !Tesado() || !Numero(Ed::edRel, kMinimo, txt::EtRel) ||
        !Numero(Ed::edFic, kMinimo, txt::EtFic) || !Numero(Ed::edFir, kMinimo, txt::EtFir)) {
      return false;
    }
    // The same field twice: that of the coating is not read here.
    if (!Numero(Ed::edEpsc, kMinimoRetraccion, txt::EtEpsc) ||
        !Numero(Ed::edEpsc, kMinimoRetraccion, txt::EtEpsr, Ed::edEpsr)) {
      return false;
    }
    OlvidaArmado(t);
    return true;
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
    if (!Numero(Ed::edDi0, kMinimo, txt::EtDi)) return false;
    c_.EsComercial = RecomendadosGeom(c_, t.Esp, t.Reci, t.Rece, t.Tipologia, t.Di,
                                      ModoGeom::Busca) == kGeomHallado;
    if (!Numero(Ed::edEsp0, kMinimo, txt::EtEsp)) return false;
    t.De = t.Di + 2.0 * t.Esp / 100.0;
    MuestraVariable(c_, Ed::edDe0);
    Derivado();
    if (c_.AnchoZanjaAuto) RecalculaB0(c_);
    const bool revestida = t.Tipologia == kRevestida;
    if (!revestida && !NumeroQueEnciende(Ed::edReci0, kMinimo, txt::EtReci)) return false;
    if (!Numero(Ed::edRece0, kMinimo, txt::EtRece)) return false;
    if (revestida) {
      t.Reci = t.Esp - t.Rece;
      MuestraVariable(c_, Ed::edReci0);
    }
    return AceptaDimensiones() && Numero(Ed::edGc0, kMinimo, txt::EtGc);
  }

  bool AceptaDimensiones() {
    c_.SinAvisoGeom = !interactivo_;
    const int codigo = CompruebaRecomendados(c_);
    c_.SinAvisoGeom = false;
    if (codigo == kGeomHallado || !interactivo_) return true;
    c_.falta = Falta{Ed::edDi0, c_[Ed::edDi0].texto, {}, Texto(c_, txt::RecTitulo)};
    return Foco(Ed::edDi0);
  }

  bool Apoyo() {
    auto& t = c_.e.tramo;
    if (!EnListaConNombre(Ed::edTipoCuna0)) return false;
    if (t.TipoColocacion < 2) return EnListaConNombre(Ed::edTipoApoyo0);
    t.TipoApoyo = kTerraplen;
    return true;
  }

  // Page and focus first, the message after them.
  bool FallaAltura(Ed campo, int texto) {
    Foco(campo);
    Rechaza(c_, campo, Texto(c_, texto), {});
    return false;
  }

  bool Alturas() {
    const auto r = EligeAlturas(c_);
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
    if (t.Hr0Delta < 0.01 &&
        !ValidaNumero(c_, Ed::edHr0Delta, -kMayorTecleado, t.Hr0Delta, txt::EtAlt3)) {
      return Foco(Ed::edHr0Delta);
    }
    if (t.Hr0Delta <= 0 && r.Hr0Final != r.Hr0) {
      return FallaAltura(Ed::edHr0Delta, txt::DebeIncrementoAlturas);
    }
    return true;
  }

  bool Relleno() {
    auto& t = c_.e.tramo;
    if (t.TipoApoyo == kTerraplen) {
      t.B0 = 0.0;
    } else if (!NumeroQueEnciende(Ed::edB0, kMinimo, txt::EtB0)) {
      return false;
    }
    if (!Numero(Ed::edGr0, kMinimo, txt::EtGr) || !Numero(Ed::edFi0, 0.0, txt::EtFi)) return false;
    if (t.Fi > kAnguloMaximo) {
      return Falla(Ed::edFi0, txt::AnguloFueraDeRango, Texto(c_, txt::TituloErrorCaptura));
    }
    if (t.TipoApoyo >= 20) {
      t.TipoRelleno = 0;
    } else if (!EnListaConNombre(Ed::edTipoRelleno0)) {
      return false;
    }
    return Generatriz() && Asentamiento();
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
      return Foco(Ed::edQDato0);
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
  bool interactivo_;
};

}  // namespace

bool ValidaTramo(Captura& c, bool Interactivo) {
  c.falta.reset();
  const bool vale = Validacion(c, Interactivo).Todo();
  RenuevaEtiquetas(c);
  return vale;
}

bool CompruebaFyd(Captura& c) {
  const double limite = c.EsSI() ? kLimiteFyd / kFactorTension : kLimiteFyd;
  if (c.e.tramo.Fyd <= limite) return true;
  const std::string texto =
      Texto(c, txt::FydSuperaElValor) + Formato(c, limite, "#####0.000") + UnidadTension(c, 1);
  if (c.voz.Pregunta(texto + "\n" + Texto(c, txt::DeseaContinuar), Texto(c, txt::TituloAviso))) {
    return true;
  }
  c.falta = Falta{Ed::edFyd, c[Ed::edFyd].texto, Texto(c, txt::TituloAviso), texto};
  return false;
}

Alturas EligeAlturas(Captura& c) {
  const auto alturas = AlturasDe(c.e.obra, c.e.tramo);
  c.e.tramo.Hr0Delta = alturas.Hr0Delta;
  return alturas;
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
