#include "azar/oraculo.h"

#include <signal.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cctype>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <iostream>
#include <memory>
#include <sstream>

#include "azar/generador.h"
#include "base/mdTextos.h"
#include "calculo/ajustes/mdNecesaria.h"
#include "calculo/ajustes/mdTanteo.h"
#include "core/mdUnidades.h"
#include "listados/datos/mdJson.h"
#include "listados/obra/mdAvisos.h"
#include "listados/obra/mdPantalla.h"
#include "listados/obra/mdResumen.h"
#include "listados/obra/mdTipoListado.h"
#include "listados/papel/mdHojasTexto.h"
#include "sesion/ajustes/mdHoja.h"
#include "sesion/captura/mdCiclo.h"
#include "sesion/captura/mdPresenta.h"
#include "sesion/captura/mdTipologias.h"
#include "sesion/captura/mdValidaObra.h"
#include "sesion/captura/mdValidaTramo.h"

namespace zorbin::pruebas {

namespace {

constexpr int kCasosQueSeLeen = 12;      // by the listings of one run
constexpr int kCasosQueSeTantean = 100;  // in the manner of the screen of adjustments
constexpr int kMaxQueja = 600;           // characters of what is told of one run
constexpr int kMayorEntero = 32767;

template <int N, class F>
void DeLista(const char* nombre, const Lista<double, N>& l, F f) {
  for (const double x : l.v) f(nombre, x);
}
template <int N, int M, class F>
void DeTabla(const char* nombre, const Tabla<double, N, M>& t, F f) {
  for (const auto& fila : t.filas.v) DeLista(nombre, fila, f);
}

#define REAL(x) f(#x, x)
#define LISTA(x) DeLista(#x, x, f)

template <class F>
void DeCargas(const Corrida& c, F f) {
  REAL(c.Q), REAL(c.QTerraplen), REAL(c.QTierras), REAL(c.QMovil), REAL(c.Impacto);
  REAL(c.Q1m), REAL(c.QTerraplen1m), REAL(c.QTierras1m), REAL(c.QMovil1m);
  REAL(c.Hr), REAL(c.DP), REAL(c.MDP), REAL(c.STP), REAL(c.PP), REAL(c.PPNeta), REAL(c.DPActual);
  REAL(c.IncDP), REAL(c.DPIni), REAL(c.DPFin), REAL(c.MDPIni), REAL(c.MDPFin);
  REAL(c.PendienteMDP), REAL(c.Hr0Actual), REAL(c.Hr0FinalActual), REAL(c.Landa);
}

template <class F>
void DeTablaCargas(const Corrida& c, F f) {
  for (const auto& fila : c.TablaCargas) {
    REAL(fila.H), REAL(fila.Total);
    for (const auto& x : {fila.Zanja, fila.Terraplen, fila.Adoptada, fila.Moviles}) {
      if (x) f("TablaCargas", *x);
    }
  }
}

template <class F>
void DeArmado(const ResultadoArmado& r, F f) {
  DeTabla("M", r.esfuerzos.M, f);
  DeTabla("N", r.esfuerzos.N, f);
  for (const auto& h : r.TablaHip.v) REAL(h.AsInt), REAL(h.AsExt), REAL(h.Total), REAL(h.CAMISA);
  LISTA(r.MRige), LISTA(r.NRige);
  REAL(r.CAMISA), REAL(r.FIIN), REAL(r.FIEX), REAL(r.AreaCamisa), REAL(r.AreaEspiras);
  REAL(r.AreaExterior), REAL(r.AsInt), REAL(r.AsExt), REAL(r.Total), REAL(r.TensionMax);
  REAL(r.TensionAdm), REAL(r.TensionAdmMin), REAL(r.BRAZO);
  const auto& s = r.sinFisuracion;
  REAL(s.FIIN), REAL(s.AsInt), REAL(s.FIEX), REAL(s.AsExt);
}

template <class F>
void DeHipotesis(const HipotesisPostesada& h, F f) {
  REAL(h.FIPR), REAL(h.NESP), REAL(h.PresHip), REAL(h.LimPrimario), REAL(h.TensionChapa);
  LISTA(h.MomHip), LISTA(h.AxilHip);
  REAL(h.Asp), REAL(h.sno), REAL(h.yno), REAL(h.sro), REAL(h.yi), REAL(h.ye), REAL(h.yr);
  REAL(h.Io), REAL(h.rco), REAL(h.rro), REAL(h.A), REAL(h.B), REAL(h.C), REAL(h.Ar), REAL(h.Br);
  REAL(h.Cr), REAL(h.k), REAL(h.D), REAL(h.PerdElastica), REAL(h.SigPostElastica);
  REAL(h.SigIniInt), REAL(h.SigIniExt), REAL(h.PerdRelajBruta), REAL(h.SigPostRelaj);
  REAL(h.SigPrimRelaj), REAL(h.PerdFluRet), REAL(h.PresionRev), REAL(h.PerdRelaj);
  REAL(h.SigRes), REAL(h.SigPI), REAL(h.SigPE), REAL(h.SigRI), REAL(h.SigRE);
  REAL(h.PresPrimario), REAL(h.PresAgotamiento), REAL(h.OvPImax), REAL(h.OvPEmax);
  REAL(h.OvRImax), REAL(h.OvREmax), REAL(h.KPI), REAL(h.KPE), REAL(h.KRI), REAL(h.KRE);
  REAL(h.KAc), REAL(h.LimPI), REAL(h.LimPE), REAL(h.LimRI), REAL(h.LimRE), REAL(h.PresLimite);
  REAL(h.PrPI), REAL(h.PrPE), REAL(h.PrRI), REAL(h.PrRE), REAL(h.PrAc);
  LISTA(h.OvPI), LISTA(h.OvPE), LISTA(h.OvRI), LISTA(h.OvRE), LISTA(h.OvAc);
  LISTA(h.SinPI), LISTA(h.SinPE), LISTA(h.SinRI), LISTA(h.SinRE), LISTA(h.SinAc);
  LISTA(h.TotPI), LISTA(h.TotPE), LISTA(h.TotRI), LISTA(h.TotRE), LISTA(h.TotAc);
}

template <class F>
void DePostesado(const ResultadoPostesado& r, F f) {
  const auto& m = r.materiales;
  REAL(r.radios.RadioInt), REAL(r.radios.RadioCam), REAL(r.radios.RadioNuc);
  REAL(r.radios.RadioRev), REAL(m.Ecno), REAL(m.Ecn), REAL(m.Ecr), REAL(m.Fctn), REAL(m.Fctr);
  REAL(m.ni), REAL(m.n), REAL(m.n1), REAL(m.n2), REAL(m.nc), REAL(m.RatioChapa), REAL(m.Delca);
  REAL(m.Epsc), REAL(m.Epsr), REAL(r.FIPR), REAL(r.NESP), REAL(r.FIPRDEFI), REAL(r.NESPDEFI);
  REAL(r.PP), REAL(r.TensionChapa), REAL(r.LimiteChapa);
  REAL(r.fila.FIPR), REAL(r.fila.NESP), REAL(r.fila.PP);
  for (const auto& h : r.hipotesis.v) DeHipotesis(h, f);
}

#undef LISTA
#undef REAL

// Calls `f(name, value)` for every real that a Caso leaves in the state.
template <class F>
void Reales(const EstadoCalculo& e, F f) {
  DeCargas(e.corrida, f);
  DeTabla("MHip", e.caso.MHip, f);
  DeTabla("NHip", e.caso.NHip, f);
  for (const auto& a : e.caso.avisos) {
    if (a.valor) f("aviso", *a.valor);
    f("aviso", a.alambre.NESP);
  }
  if (e.tramo.EsArmado) {
    DeArmado(e.caso.armado, f);
  } else {
    DePostesado(e.caso.postesado, f);
  }
}

}  // namespace

std::vector<Real> RealesDe(const ResultadoTramo& x, const FilaCaso& fila,
                           const ResultadoCaso& caso) {
  std::vector<Real> v;
  const auto f = [&v](const char* nombre, double valor) { v.push_back({nombre, valor}); };
  const auto& altura = x.Altura(fila);
  for (const auto* q : {&altura.cargas, &x.unMetro}) {
    f("Q", q->Q), f("QTerraplen", q->QTerraplen), f("QTierras", q->QTierras);
    f("QMovil", q->QMovil), f("Impacto", q->Impacto);
  }
  f("Landa", altura.Landa), f("Hr", fila.Hr), f("DP", fila.DP), f("MDP", fila.MDP);
  f("STP", fila.STP), f("PP", fila.PP), f("PPObtenida", fila.PPObtenida), f("AsInt", fila.AsInt);
  f("AsExt", fila.AsExt), f("Total", fila.Total), f("CAMISA", fila.CAMISA), f("FIIN", fila.FIIN);
  f("FIEX", fila.FIEX), f("NESPIN", fila.NESPIN), f("NEXPEX", fila.NEXPEX);
  DeTabla("MHip", caso.MHip, f);
  DeTabla("NHip", caso.NHip, f);
  for (const auto& a : caso.avisos) {
    if (a.valor) f("aviso", *a.valor);
    f("aviso", a.alambre.NESP);
  }
  if (caso.EsArmado()) {
    DeArmado(caso.Armado(), f);
  } else {
    DePostesado(caso.Postesado(), f);
  }
  return v;
}

std::string Basura(const std::string& texto, bool conExponentes) {
  if (texto.find("Falta Recurso") != std::string::npos) return "Falta Recurso";
  const auto letra = [&](std::size_t i) {
    return i < texto.size() && (std::isalpha(static_cast<unsigned char>(texto[i])) != 0 ||
                                static_cast<unsigned char>(texto[i]) >= 0x80);
  };
  const auto cifra = [&](std::size_t i) {
    return i < texto.size() && std::isdigit(static_cast<unsigned char>(texto[i])) != 0;
  };
  for (std::size_t i = 0; i < texto.size(); ++i) {
    const char c = static_cast<char>(std::tolower(static_cast<unsigned char>(texto[i])));
    if ((c == 'n' || c == 'i') && (i == 0 || !letra(i - 1)) && !letra(i + 3)) {
      const std::string palabra = texto.substr(i, 3);
      if (strcasecmp(palabra.c_str(), "nan") == 0 || strcasecmp(palabra.c_str(), "inf") == 0) {
        return texto.substr(i < 20 ? 0 : i - 20, 40);
      }
    }
    if (conExponentes || c != 'e' || i == 0 || !cifra(i - 1)) continue;
    const bool signo = i + 1 < texto.size() && (texto[i + 1] == '+' || texto[i + 1] == '-');
    if (cifra(i + 1) || (signo && cifra(i + 2))) return texto.substr(i < 20 ? 0 : i - 20, 40);
  }
  return {};
}

namespace {

// The part of a line where a number with decimals runs into the next one; empty for none. The
// separator of the listings here is the comma.
std::string Pegados(const std::string& linea) {
  const auto cifra = [&](std::size_t i) {
    return i < linea.size() && std::isdigit(static_cast<unsigned char>(linea[i])) != 0;
  };
  for (std::size_t i = 1; i < linea.size(); ++i) {
    if (linea[i] != ',' || !cifra(i - 1) || !cifra(i + 1)) continue;
    std::size_t fin = i + 1;
    while (cifra(fin)) ++fin;
    if (fin < linea.size() && (linea[fin] == ',' || linea[fin] == '-') && cifra(fin + 1)) {
      return linea.substr(i < 12 ? 0 : i - 12, 30);
    }
  }
  return {};
}

// What bars of one face leave wrong for an area: of the diameters there are, five at least, not a
// bar too few nor too many.
std::string QuejasDeBarras(double D, double n, double area) {
  if (D != 8 && D != 10 && D != 12) return "no hay barras de ese diametro; ";
  constexpr double kRedondeo = 1e-6;
  const double una = kPi * D * D / 400.0;
  const double hacen = area / una;
  if (n < 5 || n < hacen - 0.02 - kRedondeo) return "faltan barras; ";
  if (n > 5 && n - 1 >= hacen - 0.02 + kRedondeo) return "sobra una barra; ";
  return {};
}

// Where the factory test governs, what is provided covers its areas: the sheet that the kind of
// pipe allows, the bars that are left to put, and the areas told are those of both.
std::string QuejasDeLaPrueba(const EstadoCalculo& e) {
  const auto& r = e.caso.armado;
  const auto& t = e.tramo;
  if (r.HipotesisRige != 1) return {};
  const auto& pide = r.TablaHip(1);
  const double chapa = r.CAMISA * 10.0;
  std::string quejas = QuejasDeBarras(r.FIEX, r.NEXPEX, pide.AsExt);
  const bool soloChapa = t.TipoCamisa != 0 && r.NESPIN == 0;
  if (!soloChapa) quejas += QuejasDeBarras(r.FIIN, r.NESPIN, pide.AsInt - chapa);
  if (soloChapa && chapa < pide.AsInt) quejas += "falta chapa; ";
  if (soloChapa && chapa > 15.0 && chapa >= pide.AsInt + 5.0) quejas += "sobra chapa; ";
  if (t.TipoCamisa == 0 && chapa != 0) quejas += "chapa en un tubo que no la tiene; ";
  if (t.TipoCamisa == 1 && r.CAMISA > std::max(t.CamMax, 1.5)) quejas += "chapa de mas; ";
  if (pide.NESPIN != 0 || pide.NEXPEX != 0 || pide.CAMISA != 0) quejas += "acero en la fila; ";
  if (r.HayAjuste()) return quejas;
  const auto igual = [](double a, double b) { return std::fabs(a - b) <= 1e-9 * (1.0 + b); };
  const double interior = chapa + kPi * r.FIIN * r.FIIN / 400.0 * r.NESPIN;
  const double exterior = kPi * r.FIEX * r.FIEX / 400.0 * r.NEXPEX;
  if (!igual(r.AsInt, interior) || !igual(r.AsExt, exterior) ||
      !igual(r.Total, interior + exterior)) {
    quejas += "las areas no son las de la chapa y las barras; ";
  }
  return quejas;
}

// Everything that reads a run, on one run, and the oracle over all of it.
class Lector : public OyenteCorrida {
 public:
  Lector(Final& f, const Catalogo& textos, bool si, Lectura lectura)
      : f_(f),
        textos_(textos),
        estilo_{si, ','},
        todo_(lectura == Lectura::Todo),
        registro_([this](std::string_view bloque) { log_.append(bloque); }) {
    if (!todo_) return;
    for (int i = 0; i < kTiposListado; ++i) {
      papeles_.push_back(std::make_unique<UnPapel>(static_cast<TipoListado>(i), textos, estilo_));
    }
  }

  Registro* registro() { return todo_ ? &registro_ : nullptr; }

  void EmpiezaTramo(const EstadoCalculo& e) {
    Lee([&](OyenteObra& o) { o.EmpiezaTramo(e, 1, TextoEntero(e.tramo.NumeroTramo)); });
  }
  void AcabaTramo(const EstadoCalculo& e, const ErrorCorrida* fallo) {
    Lee([&](OyenteObra& o) { o.AcabaTramo(e, fallo); });
    for (auto& p : papeles_) p->papel.FinDocumento();
    MiraTextos();
    MiraTexto("log", log_, true);
  }

  void Progreso(const EstadoCalculo& e) override {
    ++f_.casos;
    if (f_.casos > kMayorEntero) Queja("demasiados Casos");
    if (!SeLee()) return;
    resumen_.Progreso(e);
    Lee([&](OyenteObra& o) { o.Progreso(e); });
  }
  void Cabecera(const EstadoCalculo& e) override {
    DeTablaCargas(e.corrida, [this](const char* nombre, double x) { Mira(nombre, x); });
    Lee([&](OyenteObra& o) { o.Cabecera(e); });
  }
  void Caso(const EstadoCalculo& e) override {
    Reales(e, [this](const char* nombre, double x) { Mira(nombre, x); });
    if (e.tramo.EsArmado) {
      const auto quejas = QuejasDeLaPrueba(e);
      if (!quejas.empty()) Queja("rige la prueba en fabrica: " + quejas);
      if (f_.casos <= kCasosQueSeTantean) Tanteos(e);
    }
    if (!SeLee()) return;
    resumen_.Caso(e);
    Lee([&](OyenteObra& o) { o.Caso(e); });
    MiraTextos();
  }
  void FinAltura(const EstadoCalculo& e) override {
    if (SeLee()) Lee([&](OyenteObra& o) { o.FinAltura(e); });
  }
  void FinCorrida(const EstadoCalculo& e) override {
    Lee([&](OyenteObra& o) { o.FinCorrida(e); });
  }

 private:
  struct UnPapel {
    UnPapel(TipoListado tipo, const Catalogo& textos, const EstiloNumeros& estilo)
        : alta(OrientacionDe(tipo) == Orientacion::Vertical),
          papel(hojas, OrientacionDe(tipo)),
          listado(CreaListado(tipo, {papel, textos, estilo, {"21/11/2026", "09:30:00"}})) {}
    bool alta;
    std::ostringstream salida;
    HojasTexto hojas{salida};
    Papel papel;
    std::unique_ptr<OyenteObra> listado;
  };

  Final& f_;
  const Catalogo& textos_;
  EstiloNumeros estilo_;
  bool todo_;
  std::string log_;
  Registro registro_;
  std::ostringstream jsonSalida_;
  ListadoJson json_{jsonSalida_, "azar.zrb", textos_, estilo_};
  std::ostringstream resumenSalida_;
  Pantalla pantalla_{resumenSalida_};
  Resumen resumen_{pantalla_, textos_, estilo_};
  std::vector<std::unique_ptr<UnPapel>> papeles_;

  bool SeLee() const { return todo_ && f_.casos <= kCasosQueSeLeen; }

  void Queja(const std::string& texto) {
    if (static_cast<int>(f_.quejas.size()) < kMaxQueja) f_.quejas += texto + "; ";
  }

  void Mira(const char* nombre, double x) {
    if (!std::isfinite(x)) Queja(std::string(nombre) + " no es finito");
  }

  template <class F>
  void Lee(F f) {
    if (!todo_) return;
    f(json_);
    for (auto& p : papeles_) f(*p->listado);
  }

  void MiraTexto(const char* cual, const std::string& texto, bool conExponentes) {
    const auto basura = Basura(texto, conExponentes);
    if (!basura.empty()) Queja(std::string(cual) + ": \"" + basura + "\"");
  }

  // A number that is not finite reads "null" in JSON.
  void MiraJson() {
    const std::string texto = jsonSalida_.str();
    for (auto i = texto.find("null"); i != std::string::npos; i = texto.find("null", i + 4)) {
      const auto antes = texto.substr(i < 10 ? 0 : i - 10, std::min<std::size_t>(i, 10));
      if (antes.ends_with("\"ajuste\":") || antes.ends_with("\"error\":")) continue;
      Queja("json: " + texto.substr(i < 30 ? 0 : i - 30, 40));
      break;
    }
    jsonSalida_.str({});
  }

  void Mide(const std::string& texto) {
    std::istringstream lineas(texto);
    for (std::string linea; std::getline(lineas, linea);) {
      f_.largo = std::max(f_.largo, static_cast<int>(Largo(linea)));
      if (f_.pegados.empty()) f_.pegados = Pegados(linea);
    }
  }

  void MiraTextos() {
    if (!todo_) return;
    MiraJson();
    MiraTexto("resumen", resumenSalida_.str(), false);
    Mide(resumenSalida_.str());
    resumenSalida_.str({});
    for (auto& p : papeles_) {
      MiraTexto("listado", p->salida.str(), false);
      if (p->alta) Mide(p->salida.str());
      p->salida.str({});
    }
  }

  // The screen of adjustments over the Caso: a failure of its arithmetic is told there.
  void Tanteos(const EstadoCalculo& e) {
    EstadoCalculo x;
    x.tramo = e.tramo;
    x.caso.armado = e.caso.armado;
    x.corrida = Sin(e.corrida);
    x.tramo.Esp *= 100.0, x.tramo.Reci *= 100.0, x.tramo.Rece *= 100.0;
    static const auto serie = [] {
      std::vector<double> v;
      for (int i = 1; i <= 100; ++i) v.push_back(5.0 * i);
      return v;
    }();
    try {
      const auto datos = DatosCaso(x, x.tramo.Reci, x.tramo.Rece);
      for (int fila = 1; fila <= kFilasTanteo; fila += 3) {
        const auto t = Tantea(datos, serie, fila);
        for (const auto& r : t.filas.v) {
          if (std::isfinite(r.Interior) && std::isfinite(r.Exterior)) continue;
          Queja("fila de tanteo no finita");
        }
        const auto& r = t.filas(fila);
        Hoja(datos, x, {0, r.Interior, r.Exterior});
      }
      Hoja(datos, x, {});
    } catch (const ErrorEjecucion&) {
    }
  }

  void Hoja(const DatosDelCaso& datos, const EstadoCalculo& x, const Ajuste& disp) {
    const auto c = Calculo_Arm_Necesaria(datos, x.caso.armado.TablaHip(1), disp);
    for (const auto& l : c.lineas) {
      if (!std::isfinite(l.necesaria) || !std::isfinite(l.dispuesta)) Queja("linea no finita");
    }
    if (c.LineaQueRige() < 0) Queja("ninguna linea rige");
    if (SeLee()) MiraTexto("hoja", HojaDeTrabajo(c), false);
  }

  static Corrida Sin(const Corrida& c) {
    Corrida copia;
    copia.PPNeta = c.PPNeta, copia.STP = c.STP, copia.MDP = c.MDP, copia.DP = c.DP;
    copia.Hr = c.Hr;
    return copia;
  }
};

std::string QuejasDelFallo(const ErrorCorrida& fallo, const EstadoCalculo& e,
                           const Catalogo& textos) {
  std::string quejas;
  if (fallo.numeroTramo() != e.tramo.NumeroTramo) quejas += "el fallo nombra otro Tramo; ";
  const auto& error = fallo.error();
  const bool necesitaDato = error.causa() == CausaError::SinConvergencia ||
                            error.causa() == CausaError::DemasiadosCasos ||
                            error.causa() == CausaError::IncrementoAltura ||
                            error.causa() == CausaError::IncrementoPresion;
  if (necesitaDato && error.dato().empty()) quejas += "el fallo no nombra su dato; ";
  try {
    const auto texto = TextoFallo(fallo, "azar.zrb", TextoEntero(e.tramo.NumeroTramo), textos,
                                  {e.obra.EsSI(), ','});
    if (TextoCausa(error, textos).empty() || !Basura(texto, false).empty()) {
      quejas += "texto del fallo: " + texto + "; ";
    }
  } catch (const std::exception& x) {
    quejas += std::string("el fallo no se puede escribir: ") + x.what() + "; ";
  }
  return quejas;
}

}  // namespace

Final Corre(EstadoCalculo& e, const Catalogo& textos, Lectura lectura) {
  Final f;
  { const EnUnidadesDeCalculo unidades(e); }  // Fct and the twins as they stand around every run
  const EstadoCalculo antes = e;
  try {
    Lector lector(f, textos, e.obra.EsSI(), lectura);
    e.corrida.registro = lector.registro();
    lector.EmpiezaTramo(e);
    try {
      const std::array<OyenteCorrida*, 1> oyentes{&lector};
      const EnUnidadesDeCalculo unidades(e);
      CalculaCasos(e, kSinForzar, kSinForzar, oyentes);
    } catch (const ErrorCorrida& fallo) {
      f.fallo = fallo;
      f.quejas += QuejasDelFallo(fallo, e, textos);
    }
    lector.AcabaTramo(e, f.fallo ? &*f.fallo : nullptr);
  } catch (const std::exception& x) {
    f.quejas += std::string("excepcion sin nombre: ") + x.what() + "; ";
  }
  e.corrida.registro = nullptr;
  f.vueltas = e.corrida.vueltas.total();
  EstadoCalculo despues = e;
  if (!f.fallo) {  // what a run leaves on purpose
    despues.tramo.Hr1 = antes.tramo.Hr1;
    despues.tramo.Hr0Delta = antes.tramo.Hr0Delta;
  }
  const auto cambios = Diferencias(antes, despues);
  if (!cambios.empty()) f.quejas += "datos cambiados:" + cambios + "; ";
  if (e.corrida.ParaCalculoActivo) f.quejas += "unidades de calculo; ";
  return f;
}

std::string JsonDe(const std::vector<EstadoCalculo>& tramos, const Catalogo& textos) {
  std::ostringstream salida;
  EstadoCalculo e;
  for (const auto& t : tramos) {
    ListadoJson json(salida, "azar.zrb", textos, {t.obra.EsSI(), ','});
    const std::array<OyenteCorrida*, 1> oyentes{&json};
    e = t;
    const EnUnidadesDeCalculo unidades(e);
    try {
      CalculaCasos(e, kSinForzar, kSinForzar, oyentes);
      json.AcabaTramo(e, nullptr);
    } catch (const ErrorCorrida& fallo) {
      json.AcabaTramo(e, &fallo);
    }
  }
  return salida.str();
}

Capturador::Capturador(Catalogo& textos)
    : tablas_(LeeTablas(ZORBIN_FUENTES "recursos/tablas")), c_(e_, textos, tablas_, voz_, ',') {
  PreparaPantalla(c_);
}

std::optional<Falta> Capturador::Valida(EstadoCalculo& e) {
  e_ = e;
  LimpiaCaptura(c_, 0);
  e_ = e;
  c_[Ed::rdSistemaUnidades].opcion = e.obra.EsSI() ? 0 : 1;
  MuestraObra(c_);
  if (!ValidaObra(c_)) return c_.falta;
  Escribe(c_, Ed::edTramo, TextoEntero(e.tramo.NumeroTramo));
  MuestraTramo(c_);
  c_.falta.reset();
  if (!ValidaTramo(c_, false)) return c_.falta ? c_.falta : Falta{};
  e.obra = e_.obra;
  e.tramo = e_.tramo;
  return std::nullopt;
}

// ---------------------------------------------------------------------------------------------

namespace {

#if defined(__SANITIZE_ADDRESS__)
constexpr unsigned kPaciencia = 120;  // [s]
#else
constexpr unsigned kPaciencia = 20;  // [s]
#endif

char trabajoEnMano[200];

void SeAcabo(int) {
  const char aviso[] = "\nNO ACABA: ";
  [[maybe_unused]] auto n = ::write(STDERR_FILENO, aviso, sizeof aviso - 1);
  n = ::write(STDERR_FILENO, trabajoEnMano, std::strlen(trabajoEnMano));
  n = ::write(STDERR_FILENO, "\n", 1);
  ::_exit(97);
}

}  // namespace

Vigilante::Vigilante(const std::string& trabajo) {
  std::strncpy(trabajoEnMano, trabajo.c_str(), sizeof trabajoEnMano - 1);
  ::signal(SIGALRM, SeAcabo);
  ::alarm(kPaciencia);
}

Vigilante::~Vigilante() {
  ::alarm(0);
}

namespace {

int DelEntorno(const char* nombre, int porDefecto) {
  const char* texto = std::getenv(nombre);
  return texto == nullptr ? porDefecto : std::atoi(texto);
}

}  // namespace

int Cuantos() {
  return DelEntorno("ZORBIN_AZAR_N", ZORBIN_AZAR_N);
}
int Desde() {
  return DelEntorno("ZORBIN_AZAR_DESDE", 0);
}

void Cuenta::Suma(const Final& f) {
  if (!f.fallo) return Suma(f.casos > 0 ? "calculados" : "sin Casos");
  static const std::map<CausaError, std::string> kNombres{
      {CausaError::DivisionPorCero, "division por cero"},
      {CausaError::Desbordamiento, "desbordamiento"},
      {CausaError::Subindice, "subindice"},
      {CausaError::SinConvergencia, "sin convergencia"},
      {CausaError::DemasiadasVueltas, "demasiadas vueltas"},
      {CausaError::DemasiadosCasos, "demasiados Casos"},
      {CausaError::IncrementoPresion, "incremento de presion"},
      {CausaError::IncrementoAltura, "incremento de altura"},
      {CausaError::Registro, "registro"}};
  const auto& error = f.fallo->error();
  Suma("fallo: " + kNombres.at(error.causa()) + (error.dato().empty() ? "" : ", " + error.dato()));
}

int Cuenta::De(const std::string& nombre) const {
  const auto i = cuentas_.find(nombre);
  return i == cuentas_.end() ? 0 : i->second;
}

void Cuenta::Imprime(const std::string& titulo) const {
  std::cout << "[ azar     ] " << titulo << ":";
  for (const auto& [nombre, n] : cuentas_) std::cout << ' ' << nombre << ' ' << n << ';';
  std::cout << '\n';
}

}  // namespace zorbin::pruebas
