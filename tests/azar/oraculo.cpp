#include "azar/oraculo.h"

#include <signal.h>
#include <unistd.h>

#include <algorithm>
#include <cctype>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <iostream>
#include <sstream>

#include "azar/generador.h"
#include "base/mdTextos.h"
#include "calculo/ajustes/mdNecesaria.h"
#include "calculo/ajustes/mdTanteo.h"
#include "comun/reales.h"
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

constexpr std::size_t kCasosQueSeLeen = 12;  // by the listings of one run
constexpr int kCasosQueSeTantean = 100;      // in the manner of the screen of adjustments
constexpr int kMaxQueja = 600;               // characters of what is told of one run

// Of a run as a whole: its range and the table of loads.
std::vector<Real> RealesDeCorrida(const ResultadoTramo& x) {
  const auto& r = x.rango;
  std::vector<Real> v{{"Hr0", r.Hr0},           {"Hr0Final", r.Hr0Final},
                      {"Hr0Delta", r.Hr0Delta}, {"DPIni", r.DPIni},
                      {"DPFin", r.DPFin},       {"MDPIni", r.MDPIni},
                      {"MDPFin", r.MDPFin},     {"PendienteMDP", r.PendienteMDP},
                      {"IncDP", r.IncDP}};
  for (const auto& fila : x.TablaCargas) {
    for (const double valor : {fila.H, fila.Total}) v.push_back({"TablaCargas", valor});
    for (const auto& valor : {fila.Zanja, fila.Terraplen, fila.Adoptada, fila.Moviles}) {
      if (valor) v.push_back({"TablaCargas", *valor});
    }
  }
  return v;
}

}  // namespace

std::vector<Real> RealesDe(const ResultadoTramo& x, const FilaCaso& fila,
                           const ResultadoCaso& caso) {
  std::vector<Real> v;
  const auto f = [&v](const char* nombre, double valor) { v.push_back({nombre, valor}); };
  DeFila(x, fila, f);
  f("PP", fila.PP), f("PPObtenida", fila.PPObtenida), f("AsInt", fila.AsInt);
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
    const auto& r = caso.Postesado();
    DePostesado(r, f);
    DeMateriales(r.materiales, f);
    for (const double valor : {r.materiales.Delca, r.materiales.Epsc, r.materiales.Epsr,
                               r.fila.FIPR, r.fila.NESP, r.fila.PP}) {
      f("postesado", valor);
    }
    for (const auto& h : r.hipotesis.v) DeHipotesis(h, f);
  }
  return v;
}

const Catalogo& Textos() {
  static const Catalogo textos = Catalogo::Lee(ZORBIN_FUENTES "recursos/textos");
  return textos;
}

std::string HuecoDeJson(const std::string& json) {
  // Where a null says something: what a Caso does not have, and a use without a bound, which none
  // that complies may have.
  constexpr std::array<std::string_view, 7> kPuedenFaltar{
      "\"ajuste\":",  "\"error\":", "\"motivo\":", "\"hipotesis\":",
      "\"seccion\":", "\"cara\":",  "\"uso\":"};
  for (auto i = json.find("null"); i != std::string::npos; i = json.find("null", i + 4)) {
    const auto antes = std::string_view(json).substr(0, i);
    if (!antes.ends_with("\"cumple\",\"uso\":") &&
        std::any_of(kPuedenFaltar.begin(), kPuedenFaltar.end(),
                    [&](std::string_view clave) { return antes.ends_with(clave); })) {
      continue;
    }
    return json.substr(i < 30 ? 0 : i - 30, 40);
  }
  return {};
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
std::string QuejasDeLaPrueba(const Tramo& t, const ResultadoArmado& r) {
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

std::string JsonDe(const ResultadoTramo& x, const Tramo& capturado, const Catalogo& textos,
                   const EstiloNumeros& estilo) {
  const std::map<int, Tramo> capturados{{1, capturado}};
  std::ostringstream salida;
  ListadoJson json(salida, "azar.zrb", capturados, textos, estilo);
  json.EmpiezaObra(x.datos.obra);
  json.Tramo(x, 1, "1", {});
  json.AcabaObra();
  return salida.str();
}

// The oracle over the numbers of a run, and over what reads its first Casos.
class Lector {
 public:
  Lector(Final& f, const ResultadoTramo& x, bool conTextos) : f_(f), x_(x), conTextos_(conTextos) {}

  void MiraNumeros() {
    Mira(RealesDeCorrida(x_));
    for (const auto& fila : x_.filas) {
      ++f_.casos;
      const auto caso = CasoEntero(x_, fila);
      Mira(RealesDe(x_, fila, caso));
      if (!caso.EsArmado()) continue;
      const auto quejas = QuejasDeLaPrueba(x_.datos.tramo, caso.Armado());
      if (!quejas.empty()) Queja("rige la prueba en fabrica: " + quejas);
      if (f_.casos <= kCasosQueSeTantean) Tanteos(fila, caso.Armado());
    }
    if (f_.casos > kMaxCasosCorrida) Queja("demasiados Casos");
  }

  void MiraTextos(const Tramo& capturado, const Catalogo& textos, const std::string& log) {
    MiraTexto("log", log, true);
    auto corto = x_;
    corto.filas.resize(std::min(corto.filas.size(), kCasosQueSeLeen));
    const EstiloNumeros estilo{x_.datos.obra.EsSI(), ','};
    const auto hueco = HuecoDeJson(JsonDe(corto, capturado, textos, estilo));
    if (!hueco.empty()) Queja("json: " + hueco);
    std::ostringstream salida;
    Pantalla pantalla(salida);
    Resumen(pantalla, textos, estilo).Tramo(corto, 1, "1", {});
    MiraTexto("resumen", salida.str(), false);
    Mide(salida.str());
    for (int i = 0; i < kTiposListado; ++i) {
      const auto tipo = static_cast<TipoListado>(i);
      const auto listado = EnPapel(tipo, corto, textos, estilo);
      MiraTexto("listado", listado, false);
      if (OrientacionDe(tipo) == Orientacion::Vertical) Mide(listado);
    }
  }

 private:
  Final& f_;
  const ResultadoTramo& x_;
  const bool conTextos_;

  void Queja(const std::string& texto) {
    if (static_cast<int>(f_.quejas.size()) < kMaxQueja) f_.quejas += texto + "; ";
  }

  void Mira(const std::vector<Real>& reales) {
    for (const auto& r : reales) {
      if (!std::isfinite(r.valor)) Queja(std::string(r.nombre) + " no es finito");
    }
  }

  void MiraTexto(const char* cual, const std::string& texto, bool conExponentes) {
    const auto basura = Basura(texto, conExponentes);
    if (!basura.empty()) Queja(std::string(cual) + ": \"" + basura + "\"");
  }

  static std::string EnPapel(TipoListado tipo, const ResultadoTramo& x, const Catalogo& textos,
                             const EstiloNumeros& estilo) {
    std::ostringstream salida;
    HojasTexto hojas(salida);
    Papel papel(hojas, OrientacionDe(tipo));
    CreaListado(tipo, {papel, textos, estilo, {"21/11/2026", "09:30:00"}})->Tramo(x, 1, "1", {});
    papel.FinDocumento();
    return salida.str();
  }

  void Mide(const std::string& texto) {
    std::istringstream lineas(texto);
    for (std::string linea; std::getline(lineas, linea);) {
      f_.largo = std::max(f_.largo, static_cast<int>(Largo(linea)));
      if (f_.pegados.empty()) f_.pegados = Pegados(linea);
    }
  }

  // The screen of adjustments over the Caso: a failure of its arithmetic is told there.
  void Tanteos(const FilaCaso& fila, const ResultadoArmado& armado) {
    static const auto serie = [] {
      std::vector<double> v;
      for (int i = 1; i <= 100; ++i) v.push_back(5.0 * i);
      return v;
    }();
    const auto& t = x_.datos.tramo;
    try {
      const auto datos =
          DatosCaso(t, fila, armado, {t.Esp * 100.0, t.Reci * 100.0, t.Rece * 100.0});
      for (int n = 1; n <= kFilasTanteo; n += 3) {
        const auto tanteo = Tantea(datos, serie, n);
        for (const auto& r : tanteo.filas.v) {
          if (std::isfinite(r.Interior) && std::isfinite(r.Exterior)) continue;
          Queja("fila de tanteo no finita");
        }
        const auto& r = tanteo.filas(n);
        Hoja(datos, armado, {0, r.Interior, r.Exterior});
      }
      Hoja(datos, armado, {});
    } catch (const ErrorEjecucion&) {
    }
  }

  void Hoja(const DatosDelCaso& datos, const ResultadoArmado& armado, const Ajuste& disp) {
    const auto c = Calculo_Arm_Necesaria(datos, armado.TablaHip(1), disp);
    for (const auto& l : c.lineas) {
      if (!std::isfinite(l.necesaria) || !std::isfinite(l.dispuesta)) Queja("linea no finita");
    }
    if (c.LineaQueRige() < 0) Queja("ninguna linea rige");
    const bool seLee = conTextos_ && f_.casos <= static_cast<int>(kCasosQueSeLeen);
    if (seLee) MiraTexto("hoja", HojaDeTrabajo(c), false);
  }
};

std::string QuejasDelFallo(const FalloCorrida& fallo, const EstadoCalculo& e,
                           const Catalogo& textos) {
  std::string quejas;
  const auto& error = fallo.error;
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

Final Corre(const EstadoCalculo& e, const Catalogo& textos, Lectura lectura) {
  Final f;
  const bool todo = lectura == Lectura::Todo;
  std::string log;
  Registro registro([&log](std::string_view bloque) { log.append(bloque); });
  try {
    const auto datos = DatosDeCalculo(e.obra, e.tramo);
    const auto x = CalculaTramo(datos, RangoDe(datos), {}, todo ? &registro : nullptr);
    f.fallo = x.fallo;
    f.vueltas = x.vueltas.total();
    if (x.fallo) f.quejas += QuejasDelFallo(*x.fallo, e, textos);
    Lector lector(f, x, todo);
    lector.MiraNumeros();
    if (todo) lector.MiraTextos(e.tramo, textos, log);
  } catch (const std::exception& x) {
    f.quejas += std::string("excepcion sin nombre: ") + x.what() + "; ";
  }
  return f;
}

std::string JsonDe(const std::vector<EstadoCalculo>& tramos, const Catalogo& textos) {
  std::string todo;
  for (const auto& e : tramos) {
    const auto datos = DatosDeCalculo(e.obra, e.tramo);
    todo += JsonDe(CalculaTramo(datos, RangoDe(datos)), e.tramo, textos, {e.obra.EsSI(), ','});
  }
  return todo;
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
  if (!ValidaObra(c_)) return c_.faltas.front();
  Escribe(c_, Ed::edTramo, TextoEntero(e.tramo.NumeroTramo));
  MuestraTramo(c_);
  if (!ValidaTramo(c_)) return c_.faltas.front();
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
      {CausaError::IncrementoAltura, "incremento de altura"}};
  const auto& error = f.fallo->error;
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
