// The bytes of a draft: JSON, a key a datum. Reading and writing go through the same list.
#include <cmath>
#include <limits>
#include <nlohmann/json.hpp>
#include <type_traits>

#include "sesion/captura/mdBorrador.h"

namespace zorbin {

namespace {

using Json = nlohmann::ordered_json;

constexpr int kVersion = 1;
constexpr std::size_t kMaxBytes = 1'000'000;

struct Ilegible {};

void Exige(bool condicion) {
  if (!condicion) throw Ilegible{};
}

// ---- One datum

void Escribe(Json& j, const char* clave, const auto& valor) {
  j[clave] = valor;
}

template <class T>
T EnteroDe(const Json& valor) {
  Exige(valor.is_number_integer());
  const auto n = valor.get<std::int64_t>();
  Exige(n >= std::numeric_limits<T>::min() && n <= std::numeric_limits<T>::max());
  return static_cast<T>(n);
}

template <class T>
void Lee(const Json& j, const char* clave, T& destino) {
  const auto& valor = j.at(clave);
  if constexpr (std::is_same_v<T, std::uint64_t>) {
    Exige(valor.is_number_unsigned());
    destino = valor.get<std::uint64_t>();
  } else if constexpr (std::is_integral_v<T> && !std::is_same_v<T, bool>) {
    destino = EnteroDe<T>(valor);
  } else if constexpr (std::is_same_v<T, double>) {
    Exige(valor.is_number());
    destino = valor.get<double>();
    Exige(std::isfinite(destino) && std::abs(destino) <= kMayorNumero);
  } else {
    destino = valor.get<T>();
  }
}

// ---- Lists of the data. `v(clave, dato)` is called for each.

bool EsNumeroDeCampo(const Ficha& ficha) {
  return ficha.EnPantalla() && ficha.campo.clase == Clase::Numero;
}

double Obra::*NumeroDe(const FilaCampo& fila, const Obra&) {
  return fila.obra;
}
double Tramo::*NumeroDe(const FilaCampo& fila, const Tramo&) {
  return fila.tramo;
}

// The data of the project. The numbers go by the names of their fields, in their order.
void RecorreBloque(auto& b, const auto& v) {
  RecorreDatos(b, [&](const Ficha& ficha, auto& dato) {
    if (!ficha.deSesion && !EsNumeroDeCampo(ficha)) v(ficha.nombre.data(), dato);
  });
  for (const auto& fila : TablaCampos()) {
    if (const auto numero = NumeroDe(fila, b)) v(fila.nombre.data(), b.*numero);
  }
}

void RecorreMemoria(auto& m, const auto& v) {
  v("AjustesPorBorrar", m.AjustesPorBorrar);
  v("AnchoZanjaAuto", m.AnchoZanjaAuto);
  v("SFckEditado", m.SFckEditado);
  v("EsComercial", m.EsComercial);
  v("SinAvisoGeom", m.SinAvisoGeom);
  v("BandaReci", m.BandaReci);
  v("BandaRece", m.BandaRece);
  v("FykAnterior", m.FykAnterior);
  v("EspRecomMin", m.EspRecomMin);
  v("EspRecomMax", m.EspRecomMax);
}

void RecorrePagina(auto& p, const auto& v) {
  v("TabPrincipal", p.TabPrincipal);
  v("TabTipologia", p.TabTipologia);
  v("TabPostesados", p.TabPostesados);
  v("TabDatosColocacion", p.TabDatosColocacion);
}

void RecorreCampo(auto& campo, const auto& v) {
  v("texto", campo.texto);
  v("entrada", campo.entrada);
  v("opcion", campo.opcion);
  v("habilitado", campo.habilitado);
  v("etiquetaHabilitada", campo.etiquetaHabilitada);
  v("bloqueado", campo.bloqueado);
  v("gris", campo.gris);
  v("tabulador", campo.tabulador);
  v("tocado", campo.tocado);
}

void RecorreAutor(auto& t, const auto& v) {
  v("usuario", t.usuario);
  v("equipo", t.equipo);
  v("desde", t.desde);
  v("proceso", t.proceso);
  v("arranque", t.arranque);
}

void RecorreBorrador(auto& b, const auto& v) {
  v("cuando", b.cuando);
  v("huella", b.huella);
  v("estado", b.estado);
  v("obraEditada", b.obraEditada);
  v("tramoEditado", b.tramoEditado);
  v("avCargas1", b.avCargas1);
  v("figuraColocacion", b.figuraColocacion);
  v("figuraTubo", b.figuraTubo);
}

// ---- The file's name, whose bytes need not be a text: those that are not plain go as %XX

constexpr std::string_view kHexadecimal = "0123456789ABCDEF";

std::string NombreLlano(std::string_view nombre) {
  std::string llano;
  for (const char letra : nombre) {
    const auto byte = static_cast<unsigned char>(letra);
    if (byte > ' ' && byte < 0x7f && letra != '%') {
      llano += letra;
    } else {
      llano += {'%', kHexadecimal[byte / 16], kHexadecimal[byte % 16]};
    }
  }
  return llano;
}

std::string NombreDeLlano(std::string_view llano) {
  std::string nombre;
  for (std::size_t i = 0; i < llano.size(); ++i) {
    if (llano[i] != '%') {
      nombre += llano[i];
      continue;
    }
    Exige(i + 2 < llano.size());
    const auto alto = kHexadecimal.find(llano[i + 1]);
    const auto bajo = kHexadecimal.find(llano[i + 2]);
    Exige(alto != std::string_view::npos && bajo != std::string_view::npos);
    nombre += static_cast<char>(alto * 16 + bajo);
    i += 2;
  }
  return nombre;
}

// ---- Wholes

auto Escritor(Json& j) {
  return [&j](const char* clave, const auto& valor) { Escribe(j, clave, valor); };
}

auto Lector(const Json& j) {
  return [&j](const char* clave, auto& destino) { Lee(j, clave, destino); };
}

bool Entre(int n, int primero, int ultimo) {
  return n >= primero && n <= ultimo;
}

// What the screen takes as an index, or as the name of a figure, must be one.
void Comprueba(const Borrador& b) {
  Exige(b.estado == kSinTramo || b.estado == kAltas || b.estado == kModificaciones);
  Exige(b.obra.SisUnid == "SI" || b.obra.SisUnid == "MKS");
  Exige(Entre(b.obra.Idioma, 1, kIdiomas) && Entre(b.tramo.TipoColocacion, 0, 2));
  Exige(b.tramo.NumeroTramo >= 0);
  Exige((b.figuraColocacion + b.figuraTubo).find('/') == std::string::npos);
  Exige(Entre(b.pagina.TabPrincipal, 0, 2) && Entre(b.pagina.TabTipologia, 0, 1) &&
        Entre(b.pagina.TabPostesados, 0, 3) && Entre(b.pagina.TabDatosColocacion, 0, 2));
  for (const auto& fila : TablaCampos()) {
    const int ultima = fila.id == Ed::rdTipoColocacion ? 2 : 1;
    Exige(Entre(b.campos[static_cast<std::size_t>(fila.id)].opcion, -1, ultima));
  }
}

Borrador BorradorDe(const Json& j) {
  Exige(j.is_object() && EnteroDe<int>(j.at("version")) == kVersion);
  Borrador b;
  b.fichero = NombreDeLlano(j.at("fichero").get<std::string>());
  RecorreBorrador(b, Lector(j));
  RecorreAutor(b.autor, Lector(j.at("autor")));
  RecorreBloque(b.obra, Lector(j.at("obra")));
  RecorreBloque(b.tramo, Lector(j.at("tramo")));
  RecorreMemoria(b.memoria, Lector(j.at("memoria")));
  RecorrePagina(b.pagina, Lector(j.at("pagina")));
  const auto foco = CampoPorNombre(j.at("foco").get<std::string>());
  Exige(foco.has_value());
  b.foco = *foco;
  const auto& campos = j.at("campos");
  for (const auto& fila : TablaCampos()) {
    RecorreCampo(b.campos[static_cast<std::size_t>(fila.id)], Lector(campos.at(fila.nombre)));
  }
  Comprueba(b);
  return b;
}

}  // namespace

std::string TextoDeBorrador(const Borrador& b) {
  Json j;
  j["version"] = kVersion;
  j["fichero"] = NombreLlano(b.fichero);
  RecorreBorrador(b, Escritor(j));
  RecorreAutor(b.autor, Escritor(j["autor"]));
  RecorreBloque(b.obra, Escritor(j["obra"]));
  RecorreBloque(b.tramo, Escritor(j["tramo"]));
  RecorreMemoria(b.memoria, Escritor(j["memoria"]));
  RecorrePagina(b.pagina, Escritor(j["pagina"]));
  j["foco"] = Fila(b.foco).nombre;
  auto& campos = j["campos"];
  for (const auto& fila : TablaCampos()) {
    RecorreCampo(b.campos[static_cast<std::size_t>(fila.id)],
                 Escritor(campos[std::string(fila.nombre)]));
  }
  return j.dump(1, ' ', false, Json::error_handler_t::replace) + "\n";
}

std::optional<Borrador> LeeBorrador(std::string_view texto) {
  if (texto.size() > kMaxBytes) return std::nullopt;
  try {
    return BorradorDe(Json::parse(texto));
  } catch (const Json::exception&) {
    return std::nullopt;
  } catch (const Ilegible&) {
    return std::nullopt;
  }
}

}  // namespace zorbin
