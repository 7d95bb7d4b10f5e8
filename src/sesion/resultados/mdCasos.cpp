#include "sesion/resultados/mdCasos.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <limits>
#include <numeric>

#include "calculo/anillo/mdAnilloCaso.h"
#include "listados/obra/mdVeredictoCaso.h"

namespace zorbin {

namespace {

constexpr std::size_t kCadaCuanto = 4096;  // Casos between two questions

// Letters without case, those of the alphabet of the five languages too: two bytes that begin with
// C3, of which the capitals go from 80 to 9E.
std::string SinMayusculas(std::string texto) {
  for (std::size_t i = 0; i < texto.size(); ++i) {
    auto& b = texto[i];
    const auto u = static_cast<unsigned char>(b);
    if (b >= 'A' && b <= 'Z') b = static_cast<char>(b - 'A' + 'a');
    const bool tras = i > 0 && static_cast<unsigned char>(texto[i - 1]) == 0xC3;
    if (tras && u >= 0x80 && u <= 0x9E && u != 0x97) b = static_cast<char>(u + 0x20);
  }
  return texto;
}

// Whether a column of figures could show a text.
bool EsDeCifras(std::string_view texto) {
  return texto.find_first_not_of("0123456789.,-\xE2\x88\x9E") == std::string_view::npos;
}

// A text looked for in what columns show. To compose what they show takes long, and few values are
// met again and again: what was found of a value is kept until another one takes its place.
class Buscado {
 public:
  Buscado(const CasosObra& casos, const VistaCasos& vista, const PalabrasDibujo& palabras)
      : casos_(casos), w_(palabras), texto_(SinMayusculas(vista.texto)) {
    if (texto_.empty()) return;
    const bool cifras = EsDeCifras(texto_);
    for (const auto c : vista.columnas) {
      if (!De(c).numero || cifras) columnas_.push_back({c, {}});
    }
    for (auto& columna : columnas_) columna.vistos.resize(kVistos);
  }

  bool Vacio() const { return texto_.empty(); }

  bool Esta(std::size_t caso, const ResultadoTramo& t, const FilaCaso& f) {
    return std::ranges::any_of(columnas_, [&](ColumnaBuscada& columna) {
      const Clave clave = ClaveDe(caso, columna.columna, t, f);
      auto& visto = columna.vistos[Lugar(clave)];
      if (!visto.puesto || visto.clave != clave) {
        const std::string texto = SinMayusculas(casos_.Texto(caso, columna.columna, w_));
        visto = {clave, true, texto.find(texto_) != std::string::npos};
      }
      return visto.hay;
    });
  }

 private:
  static constexpr int kBits = 15;
  static constexpr std::size_t kVistos = std::size_t{1} << kBits;

  // The bits of what a text is made of, in a Tramo of a kind.
  struct Clave {
    std::uint64_t primero = 0, segundo = 0;
    bool armado = false;

    bool operator==(const Clave&) const = default;
  };
  struct Visto {
    Clave clave;
    bool puesto = false;
    bool hay = false;
  };
  struct ColumnaBuscada {
    Columna columna;
    std::vector<Visto> vistos;
  };

  const CasosObra& casos_;
  const PalabrasDibujo& w_;
  const std::string texto_;
  std::vector<ColumnaBuscada> columnas_;

  Clave ClaveDe(std::size_t caso, Columna c, const ResultadoTramo& t, const FilaCaso& f) const {
    const auto bits = [&t](double a, double b) {
      return Clave{std::bit_cast<std::uint64_t>(a), std::bit_cast<std::uint64_t>(b),
                   t.datos.tramo.EsArmado};
    };
    if (c == Columna::Descripcion) {
      return bits(static_cast<double>(casos_.LugarTramo(caso)), 0.0);
    }
    if (c == Columna::Interior) return bits(f.NESPIN, f.FIIN);
    if (c == Columna::Exterior) return bits(f.NEXPEX, f.FIEX);
    return bits(EsEntera(c) ? casos_.Valor(caso, c) : ValorDe(c, t, f), 0.0);
  }

  static std::size_t Lugar(const Clave& clave) {
    constexpr std::uint64_t kMezcla = 0x9E3779B97F4A7C15U;
    return static_cast<std::size_t>(((clave.primero ^ (clave.segundo * kMezcla)) * kMezcla) >>
                                    (64 - kBits));
  }
};

class Filtro {
 public:
  Filtro(const CasosObra& casos, const VistaCasos& vista, const PalabrasDibujo& palabras)
      : casos_(casos), v_(vista), buscado_(casos, vista, palabras) {}

  bool Pasa(std::size_t i) {
    const auto lugar = casos_.LugarTramo(i);
    if (v_.tramo && *v_.tramo != lugar) return false;
    if (v_.soloPeores && casos_.Peor(lugar) != i) return false;
    const auto& fila = casos_.Fila(i);
    if (v_.veredicto && fila.verificacion.veredicto != *v_.veredicto) return false;
    const auto& datos = casos_.Tramos()[lugar].datos;
    if (v_.hipotesis != 0 && HipotesisQueRige(datos, fila) != v_.hipotesis) return false;
    return buscado_.Vacio() || buscado_.Esta(i, casos_.Tramos()[lugar], fila);
  }

 private:
  const CasosObra& casos_;
  const VistaCasos& v_;
  Buscado buscado_;
};

struct Llave {
  double valor;
  std::uint32_t caso;
};

}  // namespace

CasosObra::CasosObra(std::vector<ResultadoTramo> tramos) : tramos_(std::move(tramos)) {
  std::size_t n = 0;
  for (const auto& t : tramos_) {
    desde_.push_back(n);
    const auto* peor = CuentaDeVeredictos(t).peor;
    peores_.push_back(peor == nullptr
                          ? std::nullopt
                          : std::optional(n + static_cast<std::size_t>(peor - t.filas.data())));
    n += t.filas.size();
  }
  desde_.push_back(n);
}

std::size_t CasosObra::LugarTramo(std::size_t caso) const {
  const auto i = std::upper_bound(desde_.begin(), desde_.end() - 1, caso);
  return static_cast<std::size_t>(i - desde_.begin()) - 1;
}

const FilaCaso& CasosObra::Fila(std::size_t caso) const {
  const auto t = LugarTramo(caso);
  return tramos_[t].filas[caso - desde_[t]];
}

double CasosObra::Valor(std::size_t caso, Columna c) const {
  if (!EsEntera(c)) return ValorDe(c, Tramo(caso), Fila(caso));
  if (enteras_ == nullptr) return std::numeric_limits<double>::quiet_NaN();
  return (*enteras_)[caso][static_cast<std::size_t>(static_cast<int>(c) - kPrimeraEntera)];
}

std::string CasosObra::Texto(std::size_t caso, Columna c, const PalabrasDibujo& w) const {
  return De(c).numero ? TextoNumero(c, Valor(caso, c), w)
                      : TextoPalabra(c, Tramo(caso), Fila(caso), w);
}

CasosObra::Enteras CasosObra::CalculaEnteras(const Sigue& sigue) const {
  constexpr std::size_t kCada = 256;
  auto valores = std::make_shared<std::vector<ValoresEnteros>>();
  valores->reserve(Cuantos());
  for (const auto& t : tramos_) {
    for (const auto& f : t.filas) {
      const auto hechos = valores->size();
      if (sigue && hechos % kCada == 0 &&
          !sigue(static_cast<double>(hechos) / static_cast<double>(Cuantos()))) {
        return nullptr;
      }
      valores->push_back(EnterosDe(t, f));
    }
  }
  return valores;
}

std::optional<std::vector<std::uint32_t>> Ordena(const CasosObra& casos, const VistaCasos& v,
                                                 const PalabrasDibujo& w,
                                                 const std::function<bool()>& sigue) {
  Filtro filtro(casos, v, w);
  std::vector<Llave> llaves;
  llaves.reserve(casos.Cuantos());
  for (std::size_t i = 0; i < casos.Cuantos(); ++i) {
    if (i % kCadaCuanto == 0 && sigue && !sigue()) return std::nullopt;
    if (!filtro.Pasa(i)) continue;
    llaves.push_back({v.orden ? casos.Valor(i, *v.orden) : 0.0, static_cast<std::uint32_t>(i)});
  }
  if (v.orden) {
    std::ranges::stable_sort(llaves, [&v](const Llave& a, const Llave& b) {
      if (std::isnan(a.valor) || std::isnan(b.valor))
        return !std::isnan(a.valor) && std::isnan(b.valor);
      return v.alReves ? b.valor < a.valor : a.valor < b.valor;
    });
  }
  if (sigue && !sigue()) return std::nullopt;
  std::vector<std::uint32_t> orden(llaves.size());
  std::ranges::transform(llaves, orden.begin(), &Llave::caso);
  return orden;
}

std::string TextoTabulado(const CasosObra& casos, const std::vector<std::uint32_t>& cuales,
                          const std::vector<Columna>& columnas, const PalabrasDibujo& w) {
  std::string texto;
  const auto linea = [&](const auto& celda) {
    for (std::size_t i = 0; i < columnas.size(); ++i) {
      std::string t = celda(columnas[i]);
      std::ranges::replace_if(
          t, [](char c) { return c == '\t' || c == '\n' || c == '\r'; }, ' ');
      texto += (i == 0 ? "" : "\t") + t;
    }
    texto += '\n';
  };
  linea([&](Columna c) { return Cabeza(c, w); });
  for (const auto i : cuales) {
    linea([&](Columna c) { return casos.Texto(i, c, w); });
  }
  return texto;
}

}  // namespace zorbin
