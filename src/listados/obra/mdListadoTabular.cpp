#include "listados/obra/mdListadoTabular.h"

#include <algorithm>
#include <array>

#include "base/mdTextos.h"
#include "base/textos.h"
#include "listados/obra/mdAvisos.h"
#include "listados/obra/mdEntradas.h"
#include "listados/obra/mdRotulos.h"

namespace zorbin {

namespace {

constexpr int kBloqueArmado = 15;     // lines that a reinforced Tramo takes before its rows
constexpr int kBloquePostesado = 20;  // the same of a post-tensioned one
constexpr int kCabezaPagina = 6;
constexpr int kLineasFilas = 20;  // that a long description leaves to the rows
constexpr int kFilaTramo = 9;
constexpr int kCabezaTabla = 6;
constexpr int kDatosPostesado = 6;
constexpr int kCabezaPostesado = 5;
constexpr int kAnchoMarca = 3;     // before a row
constexpr int kAnchoFila = 72;     // of a reinforced row without its verdict
constexpr int kAnchoAlambre = 27;  // of the verdict before a post-tensioned row
constexpr int kAnchoMotivo = 52;   // that the sheet leaves behind a row without steel
constexpr int kAnchoBarras = 9;
constexpr std::size_t kHastaPP = 48;  // columns of the head up to the pressure obtained
constexpr int kAnchoExigida = 10;     // of the pressure required [columns]

constexpr int kAnchoEntrada = 68;  // of the first of two columns [columns]
constexpr int kAnchoCarga = 21;

constexpr int LineasDeEntradas(std::size_t entradas) {
  return static_cast<int>((entradas + 1) / 2) + 1;
}

// Value of the fill as the row shows it.
std::string ValorRelleno(std::int16_t TipoRelleno) {
  switch (TipoRelleno) {
    case 11:
      return "(0,192)";
    case 12:
      return "(0,165)";
    case 21:
      return "(0,150)";
    case 22:
      return "(0,130)";
    case 23:
      return "(0,110)";
    default:
      return Blancos(7);
  }
}

// The mark column: what nobody may take for a result like the others.
std::string Marca(const FilaCaso& f) {
  std::string marca;
  if (f.verificacion.veredicto == Veredicto::NoCumple) marca += '*';
  if (f.verificacion.veredicto == Veredicto::SinComprobar) marca += '?';
  if (f.ajustado) marca += 'A';
  return FormatoTexto(marca, kAnchoMarca);
}

// Figures are never cut.
std::string ALaIzquierda(const std::string& texto, int ancho) {
  return texto + Blancos(ancho - static_cast<int>(Largo(texto)));
}

}  // namespace

void ListadoTabular::CabeceraPagina(const Obra& obra) {
  Pagina = papel_.NumeroHoja();
  papel_.Cuerpo(kCuerpoTitulo);
  EnNegrita(4, Blancos(12 + 64) + Texto(txt::PagTabular) + ":" + FormatoEntero(Pagina, 5));
  papel_.Cuerpo(kCuerpoNormal);
  const int masLineas = BloqueObra(obra) - 1;  // the head counts one of the description
  LineasResto = std::max(kLineasFilas, kLineasTabular - kCabezaPagina - masLineas);
}

void ListadoTabular::PaginaNueva(const Obra& obra) {
  papel_.NuevaPagina();
  CabeceraPagina(obra);
}

void ListadoTabular::Cabecera(const ResultadoTramo& r) {
  const auto& d = r.datos;
  HrAnterior = -1;
  const auto entradas = TextoEntradas(r, textos_, estilo_, true);
  const int bloque =
      (d.tramo.EsArmado ? kBloqueArmado : kBloquePostesado) + LineasDeEntradas(entradas.size());
  if (Pagina == 0) {
    CabeceraPagina(d.obra);
  } else if (LineasResto < bloque + 1) {
    PaginaNueva(d.obra);
  }
  FilaTramo(d.tramo);
  EntradasDelTramo(entradas);
  if (d.tramo.EsArmado) ResumenTabular(d);
}

// In two columns, the ranges in the first one, and a blank line.
void ListadoTabular::EntradasDelTramo(const std::vector<std::string>& entradas) {
  const std::size_t filas = (entradas.size() + 1) / 2;
  for (std::size_t i = 0; i < filas; ++i) {
    const bool pareja = i + filas < entradas.size();
    Linea(5, pareja ? FormatoTexto(entradas[i], kAnchoEntrada) + entradas[i + filas] : entradas[i]);
  }
  EnBlanco(1);
  LineasResto -= LineasDeEntradas(entradas.size());
}

void ListadoTabular::FilaTramo(const zorbin::Tramo& t) {
  const auto milimetros = [this](double metros) { return Numero(metros * 1000.0, 7, 0); };
  EnNegrita(5, Texto(txt::TipoDeTubo) + FormatoTexto(TextoTipologia(t.Tipologia), 53));
  EnBlanco(1);
  for (const int n : txt::TitulosTabular) Linea(5, Texto(n));
  Linea(5, std::string(127, '-'));
  const int carga =
      txt::TiposDeCarga[static_cast<std::size_t>(t.ICar >= 0 && t.ICar <= 4 ? t.ICar : 0)];
  Linea(4, FormatoEntero(t.NumeroTramo, 4) + Blancos(3) + milimetros(t.Di) + milimetros(t.Esp) +
               milimetros(t.Reci) + Blancos(2) + milimetros(t.Rece) + Blancos(4) +
               FormatoTexto(TextoCuna(t.TipoCuna), 14) + " " +
               FormatoTexto(TextoColocacionCabecera(t.TipoApoyo), 38) + Blancos(3) +
               (t.TipoApoyo < 30 ? Numero(t.B0, 7, 3) : Blancos(7)) + " " +
               (t.TipoApoyo >= 20 ? Blancos(7) : ValorRelleno(t.TipoRelleno)) + " " +
               FormatoTexto(Texto(carga), kAnchoCarga));
  EnBlanco(2);
  LineasResto -= kFilaTramo;
}

void ListadoTabular::Leyenda(const DatosTramo& d) {
  const bool envolvente = d.envolvente && d.tramo.EsArmado;
  Linea(5, Texto(txt::TabularLeyenda) +
               (envolvente ? Blancos(4) + Texto(txt::TabularEnvolvente) : std::string{}));
}

void ListadoTabular::ResumenTabular(const DatosTramo& d) {
  Leyenda(d);
  const auto con = [this](int n, int detras) {
    Linea(5, FormatoTexto(Texto(n), kAnchoFila) + Texto(detras));
  };
  Linea(5, Texto(txt::ResumenTabular[0]));
  Linea(5, Texto(txt::ResumenTabular[1]));
  con(txt::ResumenTabular[2], txt::TabularVeredicto[0]);
  con(d.obra.EsSI() ? txt::ResumenTabularSI : txt::ResumenTabularMKS, txt::TabularVeredicto[1]);
  Linea(5, Texto(txt::ResumenTabularRaya));
  LineasResto -= kCabezaTabla;
}

void ListadoTabular::CasoSinAcabar(const ResultadoTramo& resultado, const FalloCorrida&) {
  if (resultado.filas.empty() && resultado.hayCabecera) Cabecera(resultado);
}

void ListadoTabular::Caso(const VistaCaso& v) {
  const bool armado = v.Datos().EsArmado;
  const DatosTramo& datos = v.tramo.datos;
  if (v.primero) {
    Cabecera(v.tramo);
    if (!armado) {
      DatosPostesado(v);
      CabeceraTabularPostesado(datos);
    }
  }
  --LineasResto;
  if (LineasResto <= 0) {
    PaginaNueva(datos.obra);
    FilaTramo(datos.tramo);
    armado ? ResumenTabular(datos) : CabeceraTabularPostesado(datos);
  }
  armado ? FilaArmado(v) : FilaTabular(v);
  if (v.cierraAltura) FinAltura();
}

void ListadoTabular::DatosPostesado(const VistaCaso& v) {
  const auto& t = v.Datos();
  const auto tension = [this](double f, int decimales = 0) {
    return Numero(f, 10, decimales, "Kp/cm2->MPa");
  };
  papel_.Negrita(true);
  for (const int n : txt::DatosTabular) Linea(5 + 7, Texto(n));
  Linea(5 + 7, Texto(v.tramo.datos.obra.EsSI() ? txt::DatosTabularSI : txt::DatosTabularMKS));
  Linea(5 + 7, std::string(96, '-'));
  papel_.Negrita(false);
  Linea(9, tension(t.Fckno) + " " + tension(t.Fckn) + tension(t.Fckr) + " " +
               tension(v.Postesado().materiales.Fctr, 2) + Blancos(3) + tension(t.Ep) + " " +
               tension(t.SFck) + Blancos(2) + tension(t.Sf) + Numero(t.Delca * 10.0, 9, 2) +
               Blancos(2) + FormatoTexto(TextoDeCamisaTabular(t.Tipologia, textos_), 10));
  EnBlanco(1);
  LineasResto -= kDatosPostesado;
}

void ListadoTabular::CabeceraTabularPostesado(const DatosTramo& d) {
  Leyenda(d);
  papel_.Negrita(true);
  const auto conExigida = [this](int cabeza, const std::string& exigida) {
    const std::string& texto = Texto(cabeza);
    const auto obtenida = Primeros(texto, kHastaPP);
    return std::string(obtenida) + exigida + texto.substr(obtenida.size());
  };
  const auto con = [this](int delante, const std::string& texto) {
    Linea(5, FormatoTexto(Texto(delante), kAnchoAlambre) + texto);
  };
  const bool si = d.obra.EsSI();
  Linea(32, conExigida(txt::CabeceraPostesado[0], Texto(txt::PPExigidaTabular[0])));
  con(txt::TabularAlambre[0],
      conExigida(txt::CabeceraPostesado[1], Texto(txt::PPExigidaTabular[1])));
  con(txt::TabularAlambre[1],
      conExigida(si ? txt::CabeceraPostesadoSI : txt::CabeceraPostesadoMKS,
                 Texto(si ? txt::PPExigidaTabularSI : txt::PPExigidaTabularMKS)));
  Linea(32, conExigida(txt::CabeceraPostesadoRaya, std::string(kAnchoExigida, '*')));
  papel_.Negrita(false);
  LineasResto -= kCabezaPostesado;
}

// Use and final winding.
std::string ListadoTabular::VeredictoPostesado(const VistaCaso& v) const {
  const auto& r = v.Postesado();
  const std::string alambre =
      OfreceArmadura(v) ? palabras_.Barras(r.NESPDEFI, r.FIPRDEFI * 10.0, 1) : "-";
  return ALaDerecha(palabras_.Uso(v.caso.verificacion), 9) + " " + alambre;
}

// The Caso as it stood before the verification; before it, how it ended.
void ListadoTabular::FilaTabular(const VistaCaso& v) {
  const auto& f = v.Postesado().fila;
  const std::string altura = CampoAltura(v.fila.Hr);
  const auto& r = v.Postesado();
  const bool esPresion = r.PPHipotesis > 0 && f.PP < kPPAlambreCambia;
  std::string mensaje = f.MensajePostesado ? TextoAviso(*f.MensajePostesado, textos_) : "";
  std::string nota = TextoPasadaPP(r, textos_);
  if (!esPresion) nota = "PP " + TextoPP(r, f.PP, textos_, estilo_);
  if (!mensaje.empty() && !nota.empty()) mensaje += "; ";
  Linea(5 - kAnchoMarca, Marca(v.fila) + FormatoTexto(VeredictoPostesado(v), kAnchoAlambre) +
                             altura + Blancos(3) + Numero(v.fila.DP, 6, 2, "at->MPa") + Blancos(5) +
                             Numero(f.FIPR * 10.0, 5, 1) + Blancos(4) + Numero(f.NESP, 5, 0) +
                             Blancos(8) + (esPresion ? Numero(f.PP, 6, 2, "at->MPa") : Blancos(6)) +
                             Blancos(4) + Numero(v.fila.PP, 6, 2, "at->MPa") + Blancos(4) +
                             mensaje + nota);
}

std::string ListadoTabular::CampoAltura(double Hr) {
  if (Hr == HrAnterior) return Blancos(6);
  HrAnterior = Hr;
  return Numero(Hr, 6, 2);
}

void ListadoTabular::FilaArmado(const VistaCaso& v) {
  const std::string altura = CampoAltura(v.fila.Hr) + Blancos(2);
  Linea(5 - kAnchoMarca,
        Marca(v.fila) + FormatoTexto(altura + AreasArmado(v), kAnchoFila) + VeredictoArmado(v));
}

// Pressure and areas of a row.
std::string ListadoTabular::AreasArmado(const VistaCaso& v) const {
  const auto& r = v.Armado();
  const std::string presion = Numero(v.fila.DP, 7, 1, "at->MPa");
  if (!OfreceArmadura(v)) return presion;
  const auto& a = r.ajuste;
  const double camisa = a ? a->Camisa : r.AreaCamisa;
  const double espiras = a ? a->Espiras : r.NESPIN == 0 ? 0.0 : r.AreaEspiras;
  return presion + Blancos(4) + Numero(camisa, 6, 1) + Blancos(4) +
         (espiras == 0 ? Blancos(5) : Numero(espiras, 5, a ? 1 : 0)) + " " + Numero(r.AsInt, 7, 1) +
         Blancos(2) + Numero(r.AsExt, 10, 1) + Blancos(7) + Numero(r.Total, 6, 1);
}

// Use, what is to be built, and the governing hypothesis.
std::string ListadoTabular::VeredictoArmado(const VistaCaso& v) const {
  const auto& r = v.Armado();
  const std::string uso = ALaDerecha(palabras_.Uso(v.caso.verificacion), 7) + " ";
  if (r.ajuste) {
    return uso + textos_.Compone(txt::TabularCalculado,
                                 {palabras_.Numero(r.AreaCamisa + r.AreaEspiras, 1),
                                  palabras_.Numero(r.AreaExterior, 1)});
  }
  if (!OfreceArmadura(v)) return uso + FormatoTexto(palabras_.MotivoCorto(v), kAnchoMotivo);
  return uso + ALaDerecha(r.CAMISA > 0.0 ? palabras_.Numero(r.CAMISA, 1) : "-", 6) + " " +
         ALaIzquierda(palabras_.Barras(r.NESPIN, r.FIIN, 0), kAnchoBarras) + " " +
         ALaIzquierda(palabras_.Barras(r.NEXPEX, r.FIEX, 0), kAnchoBarras) + " " +
         palabras_.Rige(v);
}

void ListadoTabular::FinAltura() {
  if (LineasResto < 2) return;
  EnBlanco(2);
  LineasResto -= 2;
}

}  // namespace zorbin
