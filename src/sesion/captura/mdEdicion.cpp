#include "sesion/captura/mdEdicion.h"

#include <utility>

#include "base/textos.h"
#include "core/mdUnidades.h"
#include "sesion/calculadoras/mdCampoNumero.h"
#include "sesion/captura/mdAjustesTramo.h"
#include "sesion/captura/mdCiclo.h"
#include "sesion/captura/mdEtiquetas.h"
#include "sesion/captura/mdGeometria.h"
#include "sesion/captura/mdOrdenes.h"
#include "sesion/captura/mdPresionesAlturas.h"
#include "sesion/captura/mdTipologias.h"
#include "sesion/captura/mdValidaTramo.h"

namespace zorbin {

namespace {

constexpr double kNadaBajoCero = -1e-10;
constexpr double kAlgo = 1e-10;
constexpr double kExteriorSinPregunta = 35.06;  // outer reinforcement of two layers [cm2/m]
constexpr double kFckMinimo = 275.0;            // [kp/cm2]

bool EsDeObra(Ed campo) {
  return Fila(campo).pagina.TabPrincipal == 0;
}

void MarcaCambio(Captura& c, Ed campo) {
  (EsDeObra(campo) ? c.ObraEditada : c.TramoEditado) = true;
}

bool LeeFila(Captura& c, Ed campo) {
  const auto& fila = Fila(campo);
  return LeeAlSalir(c, campo, fila.minimo, Variable(c, campo), fila.etiqueta);
}

SalidaCampo Queda(Captura& c, Ed campo, const std::string& texto, const std::string& titulo) {
  Rechaza(c, campo, texto, titulo);
  return SalidaCampo::Queda;
}

void PonDefecto(Captura& c, Ed campo, double valor) {
  Variable(c, campo) = valor;
  MuestraVariable(c, campo);
}

// ---------------------------------------------------------------------------------------------
// Entering

void CalculaFct(Captura& c) {
  c.e.tramo.Fct = FctDeFck(c.e.tramo.Fck);
  MuestraVariable(c, Ed::edFct);
}

double FydDeFyk(const Captura& c) {
  return 2.0 * c.e.tramo.Fyk / 3.0;
}
double SfDeSFck(const Captura& c) {
  return 0.75 * c.e.tramo.SFck;
}

// Default of a blank number.
void RellenaNumero(Captura& c, Ed campo) {
  if (const auto defecto = Fila(campo).Defecto(c.EsSI())) PonDefecto(c, campo, *defecto);
  switch (campo) {
    case Ed::edFck:
      CalculaFct(c);
      break;
    case Ed::edFyd:
      PonDefecto(c, campo, FydDeFyk(c));
      break;
    case Ed::edSf:
      PonDefecto(c, campo, SfDeSFck(c));
      break;
    case Ed::edB0:
      if (!EnBlanco(c, Ed::edDi0)) RecalculaB0(c);
      break;
    default:
      break;
  }
}

void Rellena(Captura& c, Ed campo) {
  const auto& fila = Fila(campo);
  if (fila.clase == Clase::Numero) RellenaNumero(c, campo);
  if (fila.clase == Clase::Lista) EligeEntrada(c, campo, fila.entradaDefecto);
}

// ---------------------------------------------------------------------------------------------
// Leaving

// The plain rule: a refusal takes the default, where there is one.
SalidaCampo SaleNumero(Captura& c, Ed campo) {
  const auto& fila = Fila(campo);
  if (fila.etiqueta == 0) return SalidaCampo::Pasa;
  const bool leido = LeeFila(c, campo);
  const auto defecto = fila.Defecto(c.EsSI());
  if (!leido && defecto) Variable(c, campo) = *defecto;
  if (leido || defecto) MuestraVariable(c, campo);
  return leido ? SalidaCampo::Pasa : SalidaCampo::Queda;
}

SalidaCampo SaleAdato(Captura& c, Ed campo) {
  if (SaleNumero(c, campo) != SalidaCampo::Pasa) return SalidaCampo::Queda;
  if (c.e.tramo.Adato <= kExteriorSinPregunta) return SalidaCampo::Pasa;
  const bool sigue = c.voz.Pregunta(
      Texto(c, txt::ExteriorExcesiva1) + "\n" + Texto(c, txt::ExteriorExcesiva2) + "\n" +
          Texto(c, txt::ExteriorExcesiva3) + " " + Texto(c, txt::ContinuaPregunta),
      Texto(c, txt::TituloAviso));
  return sigue ? SalidaCampo::Pasa : SalidaCampo::Queda;
}

// The last field of the post-tensioned pages leads to the page of the laying.
SalidaCampo SaleEpsr(Captura& c, Ed campo) {
  if (SaleNumero(c, campo) != SalidaCampo::Pasa) return SalidaCampo::Queda;
  if (!CambiaPagina(c, 2)) return SalidaCampo::VaOtro;
  CambiaPaginaColocacion(c, 0);
  return SalidaCampo::Pasa;
}

SalidaCampo SaleFck(Captura& c, Ed campo) {
  if (SaleNumero(c, campo) != SalidaCampo::Pasa) return SalidaCampo::Queda;
  const double minimo = c.EsSI() ? kFckMinimo / kFactorTension : kFckMinimo;
  if (c.e.tramo.Fck < minimo) {
    PonDefecto(c, campo, minimo);
    c.voz.Muestra(Texto(c, txt::TituloAviso) + ": " + Texto(c, txt::ValorMinimo) + "  ",
                  Texto(c, txt::EtFck));
  }
  CalculaFct(c);
  return SalidaCampo::Pasa;
}

SalidaCampo SaleFyk(Captura& c, Ed campo) {
  if (SaleNumero(c, campo) != SalidaCampo::Pasa) return SalidaCampo::Queda;
  if (c.e.tramo.Fyk != c.FykAnterior) PonDefecto(c, Ed::edFyd, FydDeFyk(c));
  return SalidaCampo::Pasa;
}

SalidaCampo SaleFyd(Captura& c, Ed campo) {
  if (!LeeFila(c, campo)) {
    PonDefecto(c, campo, FydDeFyk(c));
    return SalidaCampo::Queda;
  }
  MuestraVariable(c, campo);
  return CompruebaFyd(c) ? SalidaCampo::Pasa : SalidaCampo::Queda;
}

SalidaCampo SaleSFck(Captura& c, Ed campo) {
  if (SaleNumero(c, campo) != SalidaCampo::Pasa) return SalidaCampo::Queda;
  if (c.SFckEditado) PonDefecto(c, Ed::edSf, SfDeSFck(c));
  return SalidaCampo::Pasa;
}

SalidaCampo SaleSf(Captura& c, Ed campo) {
  const bool leido = LeeFila(c, campo);
  if (!leido) c.e.tramo.Sf = SfDeSFck(c);
  MuestraVariable(c, campo);
  return leido ? SalidaCampo::Pasa : SalidaCampo::Queda;
}

SalidaCampo SaleFi(Captura& c, Ed campo) {
  if (SaleNumero(c, campo) != SalidaCampo::Pasa) return SalidaCampo::Queda;
  if (c.e.tramo.Fi <= 90.0) return SalidaCampo::Pasa;
  return Queda(c, campo, Texto(c, txt::AnguloFueraDeRango), Texto(c, txt::TituloErrorCaptura));
}

SalidaCampo SaleHr1(Captura& c, Ed campo) {
  const auto colocacion = c.e.tramo.TipoColocacion;
  if (colocacion == 0) return SalidaCampo::Pasa;
  if (SaleNumero(c, campo) != SalidaCampo::Pasa) return SalidaCampo::Queda;
  EligeAlturas(c.e);
  if (colocacion != 1 || c.e.tramo.Hr1 <= c.e.corrida.Hr) return SalidaCampo::Pasa;
  return Queda(c, campo, Texto(c, txt::GeneratrizSuperior) + "\n" + Texto(c, txt::MayorQueRelleno),
               Texto(c, txt::TituloErrorCaptura));
}

void AvisaZanjaAncha(Captura& c, double anterior) {
  const auto& t = c.e.tramo;
  const int veces = c.tablas.MaxAnchoZanja;
  if (veces <= 0 || t.TipoColocacion != 1 || t.B0 == anterior || t.B0 <= veces * t.Di) return;
  c.voz.Muestra(
      Texto(c, txt::ZanjaAncha1) + " " + std::to_string(veces) + "\n" + Texto(c, txt::ZanjaAncha2),
      Texto(c, txt::TituloAtencion));
}

SalidaCampo SaleB0(Captura& c, Ed campo) {
  if (c.e.tramo.TipoColocacion == 2) return SalidaCampo::Pasa;
  const double anterior = c.e.tramo.B0;
  if (!CompruebaB0(c)) {
    RecalculaB0(c);
    return SalidaCampo::Queda;
  }
  MuestraVariable(c, campo);
  AvisaZanjaAncha(c, anterior);
  return SalidaCampo::Pasa;
}

SalidaCampo SaleQDato(Captura& c, Ed campo) {
  const bool leido = LeeFila(c, campo);
  if (!leido) c.e.tramo.QDato = 0.0;
  MuestraVariable(c, campo);
  if (!leido) return SalidaCampo::Queda;
  EligeAlturas(c.e);
  CargasDeQDato(c, c.e.corrida.Hr);
  c.e.tramo.IndCar == 1 ? Enciende(c, Ed::edICar0) : Apaga(c, Ed::edICar0);
  return SalidaCampo::Pasa;
}

// The width follows a dimension; where it changes, the adjustments are void.
void AnchoPorDimension(Captura& c) {
  const std::string anterior = c[Ed::edB0].texto;
  RecalculaB0(c);
  if (c[Ed::edB0].texto != anterior) RegistraCambios(c);
}

SalidaCampo SaleDi(Captura& c, Ed campo) {
  const double anterior = c.e.tramo.Di;
  c.AnchoZanjaAuto = false;
  if (!CompruebaDi(c)) return SalidaCampo::Queda;
  MuestraVariable(c, campo);
  if (c.e.tramo.Di != anterior) {
    c.AnchoZanjaAuto = true;
    c.TramoEditado = true;
    AnchoPorDimension(c);
  }
  return SalidaCampo::Pasa;
}

SalidaCampo SaleDimension(Captura& c, Ed campo) {
  if (campo == Ed::edReci0 && c.e.tramo.Tipologia == 2221) return SalidaCampo::Pasa;
  const double anterior = Variable(c, campo);
  const int codigo = campo == Ed::edEsp0    ? CompruebaEsp(c)
                     : campo == Ed::edReci0 ? CompruebaReci(c)
                                            : CompruebaRece(c);
  if (codigo == kDimSeQueda) return SalidaCampo::Queda;
  if (codigo == kDimVuelveADi) {
    VaA(c, Ed::edDi0);
    return SalidaCampo::VaOtro;
  }
  MuestraVariable(c, campo);
  if (Variable(c, campo) != anterior) {
    c.TramoEditado = true;
    // A new thickness overwrites a width typed by hand.
    if (campo == Ed::edEsp0) AnchoPorDimension(c);
  }
  return SalidaCampo::Pasa;
}

// ---- Lists

bool ListaEnUso(const Captura& c, Ed campo) {
  const auto colocacion = c.e.tramo.TipoColocacion;
  if (campo == Ed::edTipoApoyo0) return colocacion != 2;
  if (campo == Ed::edTipoRelleno0) return colocacion == 0;
  if (campo == Ed::edIAs) return colocacion == 2;
  return true;
}

SalidaCampo RechazaLista(Captura& c, Ed campo, int texto) {
  const auto& fila = Fila(campo);
  Rechaza(c, campo, Texto(c, texto), SinDosPuntos(Texto(c, fila.etiqueta)));
  EligeEntrada(c, campo, fila.entradaDefecto);
  return SalidaCampo::Queda;
}

SalidaCampo SaleIdioma(Captura& c, int posicion) {
  if (posicion != c.e.obra.Idioma) {
    CambiaIdioma(c, static_cast<std::int16_t>(posicion));
    RenuevaFiguras(c);
  }
  return SalidaCampo::Pasa;
}

SalidaCampo SaleLista(Captura& c, Ed campo) {
  if (!ListaEnUso(c, campo)) return SalidaCampo::Pasa;
  if (EnBlanco(c, campo)) return RechazaLista(c, campo, txt::DatoRequerido);
  const int posicion = PosicionEnLista(c, campo);
  if (posicion == 0) return RechazaLista(c, campo, txt::ValorIncorrecto);
  if (campo == Ed::edIdioma) return SaleIdioma(c, posicion);
  auto& codigo = c.e.tramo.*Fila(campo).codigo;
  const auto valor = ValorDeLista(c, campo, posicion);
  if (valor != codigo) {
    codigo = valor;
    c.TramoEditado = true;
    RegistraCambios(c);
  }
  if (campo == Ed::edTipoCuna0) RenuevaFiguras(c);
  return SalidaCampo::Pasa;
}

SalidaCampo SaleDescripcion(Captura& c) {
  Escribe(c, Ed::edDescriTramo2, c[Ed::edDescriTramo].texto);
  c.e.tramo.DescriTramo = c[Ed::edDescriTramo].texto;
  return SalidaCampo::Pasa;
}

// The fields with a rule of their own.
SalidaCampo Regla(Captura& c, Ed campo) {
  switch (campo) {
    case Ed::edTramo:
      return EligeTramo(c) ? SalidaCampo::Pasa : SalidaCampo::Queda;
    case Ed::edDescriTramo:
      return SaleDescripcion(c);
    case Ed::edObra:
      c.e.obra.NombreObra = c[campo].texto;
      return SalidaCampo::Pasa;
    case Ed::edCliente:
      c.e.obra.Cliente = c[campo].texto;
      return SalidaCampo::Pasa;
    case Ed::edAlt1:
    case Ed::edAlt2:
    case Ed::edAlt3:
      return SaleAlturaObra(c, campo);
    case Ed::edHr0:
    case Ed::edHr0Final:
    case Ed::edHr0Delta:
      return SaleAlturaTramo(c, campo);
    case Ed::edAdato:
      return SaleAdato(c, campo);
    case Ed::edEpsr:
      return SaleEpsr(c, campo);
    case Ed::edFck:
      return SaleFck(c, campo);
    case Ed::edFyk:
      return SaleFyk(c, campo);
    case Ed::edFyd:
      return SaleFyd(c, campo);
    case Ed::edSFck:
      return SaleSFck(c, campo);
    case Ed::edSf:
      return SaleSf(c, campo);
    case Ed::edFi0:
      return SaleFi(c, campo);
    case Ed::edHr1:
      return SaleHr1(c, campo);
    case Ed::edB0:
      return SaleB0(c, campo);
    case Ed::edQDato0:
      return SaleQDato(c, campo);
    case Ed::edDi0:
      return SaleDi(c, campo);
    case Ed::edEsp0:
    case Ed::edReci0:
    case Ed::edRece0:
      return SaleDimension(c, campo);
    default:
      break;
  }
  const auto& fila = Fila(campo);
  if (fila.clase == Clase::Lista) return SaleLista(c, campo);
  if (fila.clase != Clase::Numero) return SalidaCampo::Pasa;
  return fila.grupo != 0 ? SalePresion(c, campo) : SaleNumero(c, campo);
}

// ---------------------------------------------------------------------------------------------
// Pages

// A check before a page is left: a failure goes back to the field.
bool Comprueba(Captura& c, Ed campo, double minimo, int etiqueta) {
  if (LeeAlSalir(c, campo, minimo, Variable(c, campo), etiqueta)) return true;
  VaA(c, campo);
  return false;
}

bool DejaPaginaObra(Captura& c) {
  const auto& o = c.e.obra;
  return Comprueba(c, Ed::edPrs1, kNadaBajoCero, txt::EtPrs1) &&
         Comprueba(c, Ed::edPrs2, kNadaBajoCero, txt::EtPrs2) &&
         (o.Prs2 <= o.Prs1 || Comprueba(c, Ed::edPrs3, kAlgo, txt::EtPrs3));
}

// A pressure with a text that passes ends the tests, as it always did.
bool LlegaAColocacion(Captura& c) {
  if (EnBlanco(c, Ed::edTramo)) {
    Rechaza(c, Ed::edTramo, Texto(c, txt::DebeSeleccionarTramo));
    VaA(c, Ed::edTramo);
    return false;
  }
  if (!Comprueba(c, Ed::edPrs1Tram, kNadaBajoCero, txt::EtPrs1)) return false;
  if (!EnBlanco(c, Ed::edPrs1Tram)) return true;
  if (!Comprueba(c, Ed::edPrs2Tram, kNadaBajoCero, txt::EtPrs2)) return false;
  if (!EnBlanco(c, Ed::edPrs2Tram)) return true;
  const auto& t = c.e.tramo;
  return t.Prs2Tram <= t.Prs1Tram || Comprueba(c, Ed::edPrs3Tram, kAlgo, txt::EtPrs3);
}

bool FaltaDato(Captura& c, Ed campo, int nombre) {
  Rechaza(c, campo, Texto(c, txt::NoHaSeleccionado) + " " + SinDosPuntos(Texto(c, nombre)));
  VaA(c, campo);
  return false;
}

bool LlegaACargas(Captura& c) {
  const auto& t = c.e.tramo;
  EligeAlturas(c.e);
  const auto& r = c.e.corrida;
  if (r.Hr0Actual < 0.001) return FaltaDato(c, Ed::edHr0, txt::EtAlturas);
  if (t.De < 0.001) return FaltaDato(c, Ed::edDi0, txt::EtDe);
  if (t.B0 < 0.001 && t.TipoApoyo < 30) return FaltaDato(c, Ed::edB0, txt::EtB0);
  const bool arco = r.Hr0FinalActual > 5.0 && r.Hr0FinalActual > 5.0 * t.De;
  c.pantalla.avCargas1 =
      arco ? Texto(c, txt::AvisoArco1) + " " + Texto(c, txt::AvisoArco2) : std::string{};
  return true;
}

void EligeGolpe(Captura& c, int opcion) {
  const bool no = opcion == 1;
  if (no && !c.e.obra.ObraAbierta &&
      !c.voz.Pregunta(Texto(c, txt::GolpeNoCalculado), Texto(c, txt::TituloAviso))) {
    opcion = 0;
  }
  c[Ed::rdGolpeAriete].opcion = opcion;
  if (c.e.obra.GolpeCalculado != (opcion == 0)) c.ObraEditada = true;
  c.e.obra.GolpeCalculado = opcion == 0;
}

}  // namespace

void Entra(Captura& c, Ed campo) {
  auto& control = c[campo];
  if (!control.habilitado) return;
  const auto& pagina = Fila(campo).pagina;
  // The page of loads has rules of its own on arriving.
  if (pagina.TabDatosColocacion == 2 && c.pantalla.pagina.TabDatosColocacion != 2 &&
      !c.LeyendoDatos && !CambiaPaginaColocacion(c, 2)) {
    return;
  }
  MuestraPagina(c, pagina);
  if (!control.bloqueado && EnBlanco(c, campo)) Rellena(c, campo);
  if (campo == Ed::edFyk) c.FykAnterior = c.e.tramo.Fyk;
  if (campo == Ed::edSFck) c.SFckEditado = false;
  control.seleccionado = true;
  c.pantalla.foco = campo;
}

char Tecla(Captura& c, Ed campo, char tecla) {
  const auto& control = c[campo];
  if (control.bloqueado || !control.habilitado) return '\0';
  if (!Fila(campo).filtra) return tecla;
  // What is selected whole gives way to the key.
  return FiltraTecla(tecla, control.seleccionado ? std::string_view{} : control.texto,
                     c.SeparadorDecimal);
}

void Cambia(Captura& c, Ed campo, std::string texto) {
  auto& control = c[campo];
  control.seleccionado = false;
  if (control.bloqueado || !control.habilitado || control.texto == texto) return;
  control.texto = std::move(texto);
  control.tocado = true;
  const auto& fila = Fila(campo);
  // Neither the language nor the choice of a Tramo is a datum.
  if (campo == Ed::edIdioma || campo == Ed::edTramo) return;
  MarcaCambio(c, campo);
  if (fila.registra && fila.clase == Clase::Numero) RegistraCambios(c);
  if (campo == Ed::edDi0) c.AnchoZanjaAuto = true;
  if (campo == Ed::edB0) c.AnchoZanjaAuto = false;
  if (campo == Ed::edSFck) c.SFckEditado = true;
}

SalidaCampo Sale(Captura& c, Ed campo) {
  c.falta.reset();
  c[campo].seleccionado = false;
  if (c[campo].bloqueado || !c[campo].habilitado) return SalidaCampo::Pasa;
  const SalidaCampo salida = Regla(c, campo);
  RenuevaEtiquetas(c);
  if (salida == SalidaCampo::Queda) c.pantalla.foco = campo;
  return salida;
}

void CambiaMarca(Captura& c, Ed marca, bool puesta) {
  auto& t = c.e.tramo;
  const bool deArmado = marca == Ed::edIcontes0;
  const Ed campo = deArmado ? Ed::edAdato : Ed::edCoepre1;
  bool& indicador = deArmado ? t.Icontes0 : t.Icontes1;
  const bool cambia = (c[marca].opcion == 1) != puesta;
  c[marca].opcion = puesta ? 1 : 0;
  indicador = puesta;
  if (puesta) {
    Enciende(c, campo);
  } else {
    Apaga(c, campo);
    Escribe(c, campo, "");
    Variable(c, campo) = 0.0;
  }
  if (!cambia || c.LeyendoDatos) return;
  c.TramoEditado = true;
  if (deArmado) RegistraCambios(c);
}

void EligeOpcion(Captura& c, Ed grupo, int opcion) {
  if (!c[grupo].habilitado || opcion < 0 || opcion >= static_cast<int>(c[grupo].entradas.size())) {
    return;
  }
  switch (grupo) {
    case Ed::rdSistemaUnidades:
      if (opcion != c[grupo].opcion && RevisaUnidades(c, opcion == 0 ? "SI" : "MKS")) {
        c.ObraEditada = true;
      }
      break;
    case Ed::rdGolpeAriete:
      EligeGolpe(c, opcion);
      break;
    case Ed::rdTipoCamisa:
      EligeOpcionCamisa(c, opcion);
      break;
    case Ed::rdTipoColocacion:
      EligeColocacion(c, opcion);
      break;
    default:
      break;
  }
}

bool CambiaPagina(Captura& c, int pagina) {
  auto& delante = c.pantalla.pagina.TabPrincipal;
  if (delante == 0 && pagina != 0 && !DejaPaginaObra(c)) return false;
  if (pagina == 2 && !LlegaAColocacion(c)) return false;
  if (EnBlanco(c, Ed::edObra2)) Escribe(c, Ed::edObra2, c[Ed::edObra].texto);
  delante = pagina;
  RenuevaTitulo(c);
  if (pagina == 2) {
    c.pantalla.foco = Ed::rdTipoColocacion;
    c.voz.VaA(Ed::rdTipoColocacion);
  }
  return true;
}

bool CambiaPaginaColocacion(Captura& c, int pagina) {
  if (pagina == 2 && !LlegaACargas(c)) return false;
  c.pantalla.pagina.TabDatosColocacion = pagina;
  return true;
}

void CambiaPaginaPostesados(Captura& c, int pagina) {
  c.pantalla.pagina.TabPostesados = pagina;
}

}  // namespace zorbin
