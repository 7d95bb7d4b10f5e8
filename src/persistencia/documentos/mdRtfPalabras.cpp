#include "persistencia/documentos/mdRtfPalabras.h"

#include <algorithm>
#include <array>

namespace zorbin {

namespace {

using Numero = std::optional<int>;

constexpr double kTwipsPorPunto = 20;
constexpr double kMaxSangria = 400;  // [pt]
constexpr double kMaxEspacio = 100;  // [pt]
constexpr double kMinCuerpo = 4;     // [pt]
constexpr double kMaxCuerpo = 96;    // [pt]
constexpr int kCuerpoNormal = 24;    // [half points]
constexpr int kMaxReserva = 255;

bool Encendido(Numero n) {
  return n.value_or(1) != 0;
}

double Puntos(Numero n, double minimo, double maximo) {
  return std::clamp(n.value_or(0) / kTwipsPorPunto, minimo, maximo);
}

struct OrdenDeGrupo {
  std::string_view palabra;
  void (*hace)(GrupoRtf& g, Numero n);
};

template <AlineacionRtf A>
void Alinea(GrupoRtf& g, Numero) {
  g.caja.alineacion = A;
}

void Subraya(GrupoRtf& g, Numero n) {
  g.letra.subrayado = Encendido(n);
}

void PonLetraNormal(GrupoRtf& g, Numero) {
  g.letra = {};
  g.oculto = false;
}

void PonCuerpo(GrupoRtf& g, Numero n) {
  g.letra.cuerpo = std::clamp(n.value_or(kCuerpoNormal) / 2.0, kMinCuerpo, kMaxCuerpo);
}

constexpr auto kOrdenes = std::to_array<OrdenDeGrupo>({
    {"b", [](GrupoRtf& g, Numero n) { g.letra.negrita = Encendido(n); }},
    {"i", [](GrupoRtf& g, Numero n) { g.letra.cursiva = Encendido(n); }},
    {"ul", Subraya},
    {"uld", Subraya},
    {"uldash", Subraya},
    {"uldb", Subraya},
    {"ulth", Subraya},
    {"ulw", Subraya},
    {"ulwave", Subraya},
    {"ulnone", [](GrupoRtf& g, Numero) { g.letra.subrayado = false; }},
    {"v", [](GrupoRtf& g, Numero n) { g.oculto = Encendido(n); }},
    {"fs", PonCuerpo},
    {"plain", PonLetraNormal},
    {"pard", [](GrupoRtf& g, Numero) { g.caja = {}; }},
    {"ql", Alinea<AlineacionRtf::Izquierda>},
    {"qc", Alinea<AlineacionRtf::Centro>},
    {"qr", Alinea<AlineacionRtf::Derecha>},
    {"qj", Alinea<AlineacionRtf::Justificada>},
    {"li", [](GrupoRtf& g, Numero n) { g.caja.sangria = Puntos(n, 0, kMaxSangria); }},
    {"fi",
     [](GrupoRtf& g, Numero n) { g.caja.primeraLinea = Puntos(n, -kMaxSangria, kMaxSangria); }},
    {"sb", [](GrupoRtf& g, Numero n) { g.caja.antes = Puntos(n, 0, kMaxEspacio); }},
    {"sa", [](GrupoRtf& g, Numero n) { g.caja.despues = Puntos(n, 0, kMaxEspacio); }},
    {"uc", [](GrupoRtf& g, Numero n) { g.reserva = std::clamp(n.value_or(1), 0, kMaxReserva); }},
    {"pntext", [](GrupoRtf& g, Numero) { g.marca = true; }},
    {"listtext", [](GrupoRtf& g, Numero) { g.marca = true; }},
});

// Groups that hold no text of the document.
constexpr auto kDestinosSinTexto = std::to_array<std::string_view>(
    {"annotation", "atnauthor", "atnid",    "colortbl", "filetbl",  "fldinst", "fonttbl",
     "footer",     "footerf",   "footerl",  "footerr",  "footnote", "ftncn",   "ftnsep",
     "ftnsepc",    "header",    "headerf",  "headerl",  "headerr",  "info",    "nonshppict",
     "object",     "pict",      "private",  "revtbl",   "rsidtbl",  "rxe",     "shppict",
     "stylesheet", "tc",        "template", "xe",       "xmlnstbl"});

struct PalabraDeCaracter {
  std::string_view palabra;
  char32_t caracter;
};

constexpr auto kCaracteres = std::to_array<PalabraDeCaracter>({
    {"bullet", kRedondoRtf},
    {"cell", U'\t'},
    {"emdash", 0x2014},
    {"emspace", 0x2003},
    {"endash", 0x2013},
    {"enspace", 0x2002},
    {"ldblquote", 0x201C},
    {"line", U'\n'},
    {"lquote", 0x2018},
    {"nestcell", U'\t'},
    {"qmspace", 0x2005},
    {"rdblquote", 0x201D},
    {"rquote", 0x2019},
    {"softline", U'\n'},
    {"tab", U'\t'},
});

constexpr auto kFinesDeParrafo =
    std::to_array<std::string_view>({"page", "par", "row", "nestrow", "sect"});

template <typename Tabla>
auto Busca(const Tabla& tabla, std::string_view palabra) {
  return std::find_if(tabla.begin(), tabla.end(),
                      [palabra](const auto& fila) { return fila.palabra == palabra; });
}

template <typename Tabla>
bool Contiene(const Tabla& tabla, std::string_view palabra) {
  return std::find(tabla.begin(), tabla.end(), palabra) != tabla.end();
}

}  // namespace

bool Ordena(GrupoRtf& grupo, std::string_view palabra, Numero numero) {
  if (Contiene(kDestinosSinTexto, palabra)) {
    grupo.salta = true;
    return true;
  }
  const auto orden = Busca(kOrdenes, palabra);
  if (orden == kOrdenes.end()) return false;
  orden->hace(grupo, numero);
  return true;
}

std::optional<char32_t> CaracterDePalabra(std::string_view palabra) {
  const auto caracter = Busca(kCaracteres, palabra);
  if (caracter == kCaracteres.end()) return std::nullopt;
  return caracter->caracter;
}

bool EsFinDeParrafo(std::string_view palabra) {
  return Contiene(kFinesDeParrafo, palabra);
}

}  // namespace zorbin
