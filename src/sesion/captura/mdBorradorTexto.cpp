// The bytes of a draft: JSON, a key a datum. Reading and writing go through the same list.
#include <cmath>
#include <limits>
#include <nlohmann/json.hpp>
#include <type_traits>

#include "sesion/captura/mdBorrador.h"

namespace zorbin {

namespace {

using Json = nlohmann::ordered_json;

constexpr int kVersion = 2;
constexpr std::size_t kMaxBytes = 16'000'000;

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

double Obra::*VariableDe(const FilaCampo& fila, const Obra&) {
  return fila.obra;
}
double Tramo::*VariableDe(const FilaCampo& fila, const Tramo&) {
  return fila.tramo;
}

// The data of the project. The numbers go by the names of their fields, in their order.
void RecorreBloque(auto& b, const auto& v) {
  RecorreDatos(b, [&](const Ficha& ficha, auto& dato) {
    if (!ficha.deSesion && !EsNumeroDeCampo(ficha)) v(ficha.nombre.data(), dato);
  });
  for (const auto& fila : TablaCampos()) {
    if (const auto numero = VariableDe(fila, b)) v(fila.nombre.data(), b.*numero);
  }
}

void RecorrePagina(auto& p, const auto& v) {
  v("TabPrincipal", p.TabPrincipal);
  v("TabTipologia", p.TabTipologia);
  v("TabPostesados", p.TabPostesados);
  v("TabDatosColocacion", p.TabDatosColocacion);
}

void RecorreAutor(auto& t, const auto& v) {
  v("usuario", t.usuario);
  v("equipo", t.equipo);
  v("desde", t.desde);
  v("proceso", t.proceso);
  v("arranque", t.arranque);
}

// The texts that rules refused.
void PonPendientes(Json& j, const std::vector<TextoPendiente>& pendientes) {
  for (const auto& p : pendientes) {
    j.push_back({{"campo", Fila(p.campo).nombre}, {"texto", p.texto}, {"mensaje", p.mensaje}});
  }
}

Ed CampoDe(const Json& j) {
  const auto campo = CampoPorNombre(j.get<std::string>());
  Exige(campo.has_value());
  return *campo;
}

std::vector<TextoPendiente> PendientesDe(const Json& j) {
  std::vector<TextoPendiente> pendientes;
  for (const auto& p : j) {
    pendientes.push_back({CampoDe(p.at("campo")), p.at("texto").get<std::string>(),
                          p.at("mensaje").get<std::string>()});
  }
  return pendientes;
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

// What the screen takes as an index must be one.
void Comprueba(const Borrador& b) {
  const auto& o = b.version.obra;
  Exige(o.SisUnid == "SI" || o.SisUnid == "MKS");
  Exige(Entre(o.Idioma, 1, kIdiomas));
  Exige(Entre(b.pagina.TabPrincipal, 0, 2) && Entre(b.pagina.TabTipologia, 0, 1) &&
        Entre(b.pagina.TabPostesados, 0, 3) && Entre(b.pagina.TabDatosColocacion, 0, 2));
  Exige(Entre(b.enMano, -1, static_cast<int>(b.version.tramos.size()) - 1));
  Exige(b.version.tramos.size() <= kMaxTramos && b.lista.size() <= kMaxTramos);
  for (const auto& t : b.version.tramos) {
    Exige(Entre(t->datos.TipoColocacion, 0, 2) && t->datos.NumeroTramo >= 0);
    Exige(NumeroDe(t->numero) == t->datos.NumeroTramo);
  }
}

Json TramoEnJson(const TramoEnObra& t, const OrigenTramo& origen) {
  Json j;
  j["numero"] = t.numero;
  j["posicion"] = origen.posicion;
  j["numeroEnFichero"] = origen.numero;
  RecorreBloque(t.datos, Escritor(j["datos"]));
  PonPendientes(j["pendientes"] = Json::array(), t.pendientes);
  return j;
}

void LeeTramo(const Json& j, Borrador& b) {
  auto t = std::make_shared<TramoEnObra>();
  OrigenTramo origen;
  Lee(j, "numero", t->numero);
  Lee(j, "posicion", origen.posicion);
  Lee(j, "numeroEnFichero", origen.numero);
  RecorreBloque(t->datos, Lector(j.at("datos")));
  t->pendientes = PendientesDe(j.at("pendientes"));
  Exige(origen.posicion >= 0);
  b.version.tramos.push_back(std::move(t));
  b.origenes.push_back(std::move(origen));
}

Borrador BorradorDe(const Json& j) {
  Exige(j.is_object() && EnteroDe<int>(j.at("version")) == kVersion);
  Borrador b;
  b.fichero = NombreDeLlano(j.at("fichero").get<std::string>());
  Lee(j, "cuando", b.cuando);
  Lee(j, "huella", b.huella);
  Lee(j, "lista", b.lista);
  Lee(j, "enMano", b.enMano);
  Lee(j, "AnchoZanjaAuto", b.AnchoZanjaAuto);
  RecorreAutor(b.autor, Lector(j.at("autor")));
  RecorreBloque(b.version.obra, Lector(j.at("obra")));
  b.version.pendientes = PendientesDe(j.at("pendientes"));
  for (const auto& tramo : j.at("tramos")) LeeTramo(tramo, b);
  RecorrePagina(b.pagina, Lector(j.at("pagina")));
  b.foco = CampoDe(j.at("foco"));
  if (j.contains("tecleado")) {
    const auto& tecleado = j.at("tecleado");
    b.tecleado =
        CampoTecleado{CampoDe(tecleado.at("campo")), tecleado.at("texto").get<std::string>()};
  }
  Comprueba(b);
  return b;
}

}  // namespace

std::string TextoDeBorrador(const Borrador& b) {
  Json j;
  j["version"] = kVersion;
  j["fichero"] = NombreLlano(b.fichero);
  Escribe(j, "cuando", b.cuando);
  Escribe(j, "huella", b.huella);
  Escribe(j, "lista", b.lista);
  Escribe(j, "enMano", b.enMano);
  Escribe(j, "AnchoZanjaAuto", b.AnchoZanjaAuto);
  RecorreAutor(b.autor, Escritor(j["autor"]));
  RecorreBloque(b.version.obra, Escritor(j["obra"]));
  PonPendientes(j["pendientes"] = Json::array(), b.version.pendientes);
  auto& tramos = j["tramos"] = Json::array();
  for (std::size_t i = 0; i < b.version.tramos.size(); ++i) {
    tramos.push_back(TramoEnJson(*b.version.tramos[i], b.origenes[i]));
  }
  RecorrePagina(b.pagina, Escritor(j["pagina"]));
  j["foco"] = Fila(b.foco).nombre;
  if (b.tecleado) {
    j["tecleado"] = {{"campo", Fila(b.tecleado->campo).nombre}, {"texto", b.tecleado->texto}};
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
