// An Obra: opened as the command line opens it, validated, calculated, and each of its Tramos
// chosen and saved at the capture, which then finds what it saved.
#include <chrono>
#include <cmath>
#include <sstream>

#include "comun/campos.h"
#include "core/mdUnidades.h"
#include "fuzz/asiente.h"
#include "listados/datos/mdJson.h"
#include "sesion/captura/mdCiclo.h"
#include "sesion/captura/mdEdicion.h"
#include "sesion/captura/mdFaltas.h"
#include "sesion/captura/mdPresenta.h"
#include "sesion/captura/mdTramos.h"

namespace zorbin::hostil {

namespace {

namespace fs = std::filesystem;

// A run goes to its end unless it is longer than an input may take: more Casos, or more time.
constexpr int kMaxCasos = 200;
constexpr std::chrono::milliseconds kMaxEspera{500};
constexpr std::chrono::seconds kMaxCaso{15};  // of sanitizers, on a busy machine
constexpr std::size_t kMaxTramosUsados = 2;   // of an Obra

// ---- The state

template <class Bloque>
void ExigeFinitos(const Bloque& b) {
  RecorreNumeros<Bloque>([&](const Ficha& ficha, double Bloque::*campo) {
    Exige(std::isfinite(b.*campo), "data are numbers", std::string(ficha.nombre));
  });
}

// ---- The run

// What ends a run before its time is this target, never an endless Caso.
ResultadoTramo CorreEntera(const DatosTramo& datos) {
  const auto limite = std::chrono::steady_clock::now() + kMaxEspera;
  const auto sigue = [limite](const AvanceCorrida& avance) {
    return avance.caso <= kMaxCasos && std::chrono::steady_clock::now() < limite;
  };
  auto resultado = CalculaTramo(datos, RangoDe(datos), sigue);
  Exige(resultado.vueltas.total() <= kMaxVueltasCorrida + kMaxVueltasCaso,
        "the work of a run has a bound");
  const bool acaba = resultado.cancelado || resultado.fallo ||
                     resultado.filas.size() <= static_cast<std::size_t>(kMaxCasos);
  Exige(acaba, "a run ends, fails or is given up");
  Exige(std::chrono::steady_clock::now() < limite + kMaxCaso, "a Caso has a bound");
  return resultado;
}

// The JSON of a run; every number of it must be one.
void Corre(const Obra& obra, const TramoPedido& p, const fs::path& ruta) {
  const std::map<int, Tramo> capturados{{p.posicion, p.tramo}};
  std::ostringstream flujo;
  ListadoJson json(flujo, ruta.string(), capturados, Textos(), {true, ','});
  const auto resultado = CorreEntera(DatosDeCalculo(obra, p.tramo));
  json.EmpiezaObra(obra);
  json.Tramo(resultado, p.posicion, p.numero, {});
  json.AcabaObra();
  Exige(EsJson(flujo.str()), "results are numbers", flujo.str());
}

// ---- The rules

void CorreValidados(const Proyecto& proyecto, const ListaFaltas& lista, const fs::path& ruta) {
  Obra obra = proyecto.obra;
  PonComprobada(obra, lista.obra);
  std::size_t usados = 0;
  for (const auto& [posicion, tramo] : lista.tramos) {
    ExigeFinitos(tramo);
    if (!lista.Vale(posicion) || ++usados > kMaxTramosUsados) continue;
    Corre(obra, {posicion, proyecto.lista[static_cast<std::size_t>(posicion - 1)], tramo}, ruta);
  }
}

void ExigeFaltasClaras(const ListaFaltas& lista) {
  for (const auto& f : lista.faltas) {
    Exige(!f.mensaje.empty() && EsTextoLimpio(f.mensaje + f.titulo + f.valor + f.numero),
          "a fault is told in clean text", f.mensaje);
  }
}

void Valida(const Proyecto& proyecto, const fs::path& ruta) {
  Catalogo& textos = TextosParaCambiar();
  const auto lista = ValidaProyecto(proyecto, textos, Tablas(), {});
  ExigeFaltasClaras(lista);
  ExigeFinitos(lista.obra);
  CorreValidados(proyecto, lista, ruta);
}

// ---- The capture

// Opens the Obra at the capture, chooses a Tramo and saves it. @return whether it was saved
bool GrabaTramoDe(const fs::path& ruta, const std::string& numero, std::string& queja) {
  EstadoCalculo e;
  Catalogo& textos = TextosParaCambiar();
  Asiente voz;
  Captura c(e, textos, Tablas(), voz, ',');
  PreparaPantalla(c);
  Exige(AbreObra(c, ruta), "what is read can be opened", voz.ultimo);
  const auto antes = VersionActual(c);
  Escribe(c, Ed::edTramo, numero);
  EligeTramo(c);
  Exige(VersionActual(c) == antes, "to look is not to change");
  if (c.SinTramoEnMano()) return false;
  // Any change, for what is as it was is not saved.
  Cambia(c, Ed::edDescriTramo, c[Ed::edDescriTramo].texto == "x" ? "y" : "x");
  Sale(c, Ed::edDescriTramo);
  const bool grabado = Graba(c);
  queja = c.faltas.empty() ? voz.ultimo : c.faltas.front().mensaje;
  return grabado;
}

std::string TextoDe(std::string_view registro) {
  const std::string_view texto = registro.substr(std::min<std::size_t>(2, registro.size()));
  return std::string(texto.substr(0, texto.find('\0')));
}

// The first record that is not the same; empty when all are. Three may differ: what was typed, the
// surge, which the format keeps as a word of the language of the Obra and reads in Spanish, and the
// increment of a Tramo without heights of its own, which follows the Obra's one save later and is
// of no use.
std::string Diferencia(const std::string& una, const std::string& otra) {
  constexpr std::size_t kGolpe = 4, kDescripcion = 22, kIncremento = 76, kPaso = 60;
  for (std::size_t n = 1; (n - 1) * kBytesRegistro < std::max(una.size(), otra.size()); ++n) {
    const auto a = una.substr(std::min((n - 1) * kBytesRegistro, una.size()), kBytesRegistro);
    const auto b = otra.substr(std::min((n - 1) * kBytesRegistro, otra.size()), kBytesRegistro);
    const bool puede = n == kGolpe || n % kPaso == kIncremento % kPaso ||
                       (n > kDescripcion - 1 && n % kPaso == kDescripcion % kPaso);
    if (a != b && !puede) return std::to_string(n) + ": " + TextoDe(a) + " | " + TextoDe(b);
  }
  return {};
}

void Graba(const fs::path& ruta, const std::string& numero) {
  const std::string antes = Bytes(ruta);
  std::string queja;
  if (!GrabaTramoDe(ruta, numero, queja)) {
    Exige(Bytes(ruta) == antes, "what is not saved is not touched");
    return;
  }
  try {
    LeeProyecto(ruta);
  } catch (const ErrorFichero& error) {
    Exige(false, "what was saved can be read", Textos().Compone(error.mensaje()));
  }
  // What the rules complete has the digits of the file from the second save on.
  static_cast<void>(GrabaTramoDe(ruta, numero, queja));
  const std::string una = Bytes(ruta);
  // Final pressures that follow from MDP may ask for an increment the second time.
  const bool otraVez = GrabaTramoDe(ruta, numero, queja);
  Exige(otraVez || !queja.empty(), "a refusal is told");
  const std::string otra = Bytes(ruta);
  Exige(Diferencia(una, otra).empty(), "saved again it is the same", Diferencia(una, otra));
}

// ---------------------------------------------------------------------------------------------

void PruebaObra(const fs::path& ruta, const std::string& bytes) {
  const Proyecto proyecto = LeeProyecto(ruta);
  ExigeFinitos(proyecto.obra);
  std::size_t usados = 0;
  for (const auto& pedido : TramosPedidos(proyecto)) {
    if (++usados > kMaxTramosUsados) break;
    ExigeFinitos(pedido.tramo);
    Corre(proyecto.obra, pedido, ruta);
  }
  Valida(proyecto, ruta);
  Exige(Bytes(ruta) == bytes, "reading writes nothing");
  usados = 0;
  for (const auto& numero : proyecto.lista) {
    if (!numero.empty() && ++usados <= kMaxTramosUsados) Graba(ruta, numero);
  }
}

}  // namespace

void Prueba(std::string_view datos) {
  VaciaCarpeta();
  const auto ruta = Carpeta() / "obra.zrb";
  const std::string bytes = FicheroDeRegistros(datos);
  Pon(ruta, bytes);
  try {
    PruebaObra(ruta, bytes);
  } catch (const ErrorFichero& error) {
    ExigeClaro(error.mensaje(), ruta);
    Exige(Bytes(ruta) == bytes, "what is refused is not touched");
  }
}

}  // namespace zorbin::hostil
