#include "persistencia/entrada/mdJsonObra.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <nlohmann/json.hpp>
#include <set>

#include "base/textos.h"
#include "persistencia/registros/mdRegistros.h"
#include "persistencia/zrb/mdZrb.h"

namespace zorbin {

namespace {

using Json = nlohmann::json;

// What the results say of a Tramo besides its data.
constexpr std::array<std::string_view, 6> kDeResultados{"posicion",  "casos",        "veredicto",
                                                        "noCumplen", "sinComprobar", "error"};
// They follow from the other data, and are found again.
constexpr std::array<std::string_view, 6> kDeducidos{"EsArmado", "PostFlag", "SubTipo",
                                                     "GamaY",    "GamaF",    "Fct"};

template <std::size_t N>
bool Esta(const std::array<std::string_view, N>& nombres, std::string_view nombre) {
  return std::ranges::find(nombres, nombre) != nombres.end();
}

template <class Bloque>
const Dato<Bloque>* DatoDe(std::string_view nombre) {
  const auto tabla = TablaDe(Bloque{});
  const auto i =
      std::ranges::find_if(tabla, [nombre](const auto& d) { return d.ficha.nombre == nombre; });
  return i == tabla.end() ? nullptr : &*i;
}

// Takes the text piece by piece: neither the Casos nor the text are ever held.
class Lector : public Json::json_sax_t {
 public:
  Entrada entrada;

  bool null() override { return Suelto() || true; }
  bool boolean(bool si) override {
    return Valor({si ? "true" : "false", si ? 1.0 : 0.0, ClaseCelda::Marca});
  }
  bool number_integer(number_integer_t n) override {
    return Numero(static_cast<double>(n), std::to_string(n));
  }
  bool number_unsigned(number_unsigned_t n) override {
    return Numero(static_cast<double>(n), std::to_string(n));
  }
  bool number_float(number_float_t x, const string_t& texto) override { return Numero(x, texto); }
  bool string(string_t& texto) override { return Valor({texto, 0.0, ClaseCelda::Texto}); }
  bool binary(binary_t&) override { return true; }

  bool start_object(std::size_t) override {
    if (saltos_ > 0 || donde_ == Donde::Obra || donde_ == Donde::Tramo) return Salta();
    if (donde_ == Donde::Fuera) {
      donde_ = Donde::Raiz;
    } else if (donde_ == Donde::Raiz) {
      if (clave_ == "tramos") throw ErrorEntrada({txt::EntJsonForma, {"tramos"}});
      if (clave_ != "obra") return Salta();
      donde_ = Donde::Obra;
    } else {
      if (entrada.tramos.size() >= static_cast<std::size_t>(kMaxTramos)) {
        throw ErrorEntrada({txt::EntTramosDeMas, {std::to_string(kMaxTramos)}});
      }
      entrada.tramos.push_back({});
      entrada.tramos.back().celda = Ruta({});
      donde_ = Donde::Tramo;
    }
    vistas_.clear();
    return true;
  }

  bool end_object() override {
    if (saltos_ > 0) return --saltos_, true;
    donde_ = donde_ == Donde::Tramo  ? Donde::Tramos
             : donde_ == Donde::Obra ? Donde::Raiz
                                     : Donde::Fuera;
    return true;
  }

  bool start_array(std::size_t) override {
    if (saltos_ == 0 && donde_ == Donde::Fuera) throw ErrorEntrada({txt::EntJsonForma, {"["}});
    if (saltos_ == 0 && donde_ == Donde::Tramos)
      throw ErrorEntrada({txt::EntJsonForma, {"tramos"}});
    if (saltos_ > 0 || donde_ != Donde::Raiz || (clave_ != "tramos" && clave_ != "obra")) {
      return Salta();
    }
    if (clave_ == "obra") throw ErrorEntrada({txt::EntJsonForma, {"obra"}});
    donde_ = Donde::Tramos;
    return true;
  }

  bool end_array() override {
    if (saltos_ > 0) return --saltos_, true;
    donde_ = Donde::Raiz;
    return true;
  }

  bool key(string_t& clave) override {
    if (saltos_ == 0) clave_ = clave;
    return true;
  }

  bool parse_error(std::size_t byte, const std::string&, const Json::exception&) override {
    throw ErrorEntrada({txt::EntNoEsJson, {std::to_string(byte)}});
  }

 private:
  enum class Donde { Fuera, Raiz, Obra, Tramos, Tramo };

  Donde donde_ = Donde::Fuera;
  std::size_t saltos_ = 0;  // objects and lists open that nobody reads
  std::string clave_;
  std::set<std::string> vistas_;  // data of the object in hand

  int Lugar() const {
    return donde_ == Donde::Tramo ? static_cast<int>(entrada.tramos.size()) - 1 : -1;
  }

  std::string Ruta(const std::string& clave) const {
    if (donde_ == Donde::Obra) return "obra." + clave;
    const std::string tramo = "tramos[" + std::to_string(entrada.tramos.size() - 1) + "]";
    return clave.empty() ? tramo : tramo + "." + clave;
  }

  // A value that stands where an object or a list is to be.
  bool Suelto() const {
    if (saltos_ == 0 && donde_ == Donde::Fuera) throw ErrorEntrada({txt::EntJsonForma, {"/"}});
    if (saltos_ == 0 && donde_ == Donde::Tramos)
      throw ErrorEntrada({txt::EntJsonForma, {"tramos"}});
    return false;
  }

  // An object or a list that nobody reads; in the place of a datum it is refused.
  bool Salta() {
    const bool deDato = saltos_ == 0 && (donde_ == Donde::Obra || donde_ == Donde::Tramo);
    if (deDato) Dato({"[…]", 0.0, ClaseCelda::Error});
    ++saltos_;
    return true;
  }

  bool Numero(double x, const std::string& texto) {
    return Valor({texto, x, std::isfinite(x) ? ClaseCelda::Numero : ClaseCelda::Error});
  }

  bool Valor(const CeldaLeida& celda) {
    if (saltos_ > 0) return true;
    Suelto();
    if (donde_ == Donde::Raiz) {
      if (clave_ == "obra" || clave_ == "tramos") throw ErrorEntrada({txt::EntJsonForma, {clave_}});
      return true;
    }
    Dato(celda);
    return true;
  }

  void Dato(const CeldaLeida& celda) {
    if (donde_ == Donde::Obra) return DeObra(celda);
    if (Esta(kDeResultados, clave_) || Esta(kDeducidos, clave_)) return;
    auto& t = entrada.tramos.back();
    if (clave_ == "NumeroTramo") {
      Mensaje causa;
      if (!vistas_.insert(clave_).second) return Rehusa(celda, {txt::EntRepetido, {}});
      t.numero = LeeNumeroTramo(celda, {true, '.', nullptr}, causa);
      if (t.numero.empty()) Rehusa(celda, causa);
      return;
    }
    const auto* dato = DatoDe<Tramo>(clave_);
    if (dato == nullptr) {
      return entrada.Avisa(
          {txt::EntClaveDesconocida, {t.numero.empty() ? t.celda : t.numero, Visto(clave_)}});
    }
    Pon(*dato, celda, t.datos);
  }

  void DeObra(const CeldaLeida& celda) {
    const auto* dato = DatoDe<Obra>(clave_);
    if (dato == nullptr) return entrada.Avisa({txt::EntClaveDesconocidaObra, {Visto(clave_)}});
    if (!dato->ficha.deSesion) Pon(*dato, celda, entrada.obra);
  }

  template <class Bloque>
  void Pon(const zorbin::Dato<Bloque>& dato, const CeldaLeida& celda,
           std::vector<DatoLeido<Bloque>>& datos) {
    Mensaje causa;
    if (!vistas_.insert(clave_).second) return Rehusa(celda, {txt::EntRepetido, {}});
    auto valor = LeeValor(dato, celda, {true, '.', nullptr}, 1.0, causa);
    if (!valor) return Rehusa(celda, causa);
    datos.push_back({&dato, std::move(*valor), std::nullopt, Ruta(clave_)});
  }

  void Rehusa(const CeldaLeida& celda, Mensaje causa) {
    entrada.rechazos.push_back(
        {Lugar(), Ruta(clave_), clave_, Visto(celda.texto), std::move(causa)});
  }
};

// ---- Schema

Json TipoDe(const Ficha&, const double*) {
  return {{"type", "number"}, {"minimum", 0}, {"maximum", kMayorLeido}};
}
Json TipoDe(const Ficha& ficha, const std::int16_t*) {
  return {{"type", "integer"},
          {"enum", std::vector<int>(ficha.codigos.begin(), ficha.codigos.end())}};
}
Json TipoDe(const Ficha&, const bool*) {
  return {{"type", "boolean"}};
}
Json TipoDe(const Ficha& ficha, const std::string*) {
  if (ficha.nombre == "SisUnid") return {{"enum", {"SI", "MKS"}}};
  return {{"type", "string"}, {"maxLength", kMaxTexto}};
}

std::string UnidadEscrita(const Ficha& ficha) {
  const auto& u = UnidadesDe(ficha.magnitud);
  if (u.si == u.mks) return std::string(u.si);
  return std::string(u.si) + " (SI), " + std::string(u.mks) + " (MKS)";
}

template <class Bloque>
nlohmann::ordered_json Propiedades(const Bloque& bloque) {
  nlohmann::ordered_json claves = nlohmann::ordered_json::object();
  for (const auto& dato : TablaDe(bloque)) {
    const auto& ficha = dato.ficha;
    if (ficha.deSesion || Esta(kDeducidos, ficha.nombre) || ficha.nombre == "NumeroTramo") continue;
    nlohmann::ordered_json tipo = std::visit(
        [&]<class T>(T Bloque::*) { return TipoDe(ficha, static_cast<const T*>(nullptr)); },
        dato.miembro);
    if (const auto unidad = UnidadEscrita(ficha); !unidad.empty()) tipo["description"] = unidad;
    claves[std::string(ficha.nombre)] = std::move(tipo);
  }
  return claves;
}

}  // namespace

Entrada LeeJsonObra(std::istream& datos) {
  Lector lector;
  Json::sax_parse(datos, &lector);
  lector.entrada.Revisa();
  return std::move(lector.entrada);
}

std::string EsquemaJsonObra() {
  nlohmann::ordered_json tramo = {
      {"NumeroTramo", {{"type", "integer"}, {"minimum", 1}, {"maximum", 32767}}}};
  tramo.update(Propiedades(Tramo{}));
  nlohmann::ordered_json esquema;
  esquema["$schema"] = "https://json-schema.org/draft/2020-12/schema";
  esquema["title"] = "Obra";
  esquema["type"] = "object";
  esquema["properties"]["obra"] = {{"type", "object"}, {"properties", Propiedades(Obra{})}};
  esquema["properties"]["tramos"] = {
      {"type", "array"},
      {"maxItems", kMaxTramos},
      {"items", {{"type", "object"}, {"properties", std::move(tramo)}}}};
  return esquema.dump(1, ' ') + "\n";
}

}  // namespace zorbin
