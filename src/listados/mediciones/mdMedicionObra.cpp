#include "listados/mediciones/mdMedicionObra.h"

#include <nlohmann/json.hpp>

#include "base/mdTextos.h"
#include "base/textos.h"
#include "listados/obra/mdVeredictoCaso.h"
#include "persistencia/zrx/mdFabricacionZrx.h"

namespace zorbin {

namespace {

using Celda = CeldaPlanilla;
using Json = nlohmann::ordered_json;

constexpr int kDecimalesKg = 2;
constexpr int kDecimalesM3 = 3;
constexpr int kDecimalesCoste = 2;
constexpr double kMm = 1000.0;  // of a metre

template <class Haz>
void ParaCadaPartida(Haz haz) {
  for (std::size_t i = 0; i < kPartidas; ++i) haz(static_cast<Partida>(i));
}

bool HayPrecios(const Precios& precios) {
  return Suma(precios.precio) > 0;
}

const char* Unidad(Partida p) {
  return EsAcero(p) ? "kg" : "m³";
}

Celda NumeroSiHay(double valor, int decimales) {
  return valor > 0 ? Celda::Numero(valor, decimales) : Celda{};
}

std::string CasoDe(const CasoMedido& c, const PalabrasDibujo& w) {
  return w.Metros(c.fila.Hr) + " · " + w.Presion(c.fila.DP);
}

class Partidas {
 public:
  Partidas(const Precios& precios, QueCasos que, const PalabrasDibujo& w)
      : precios_(precios), que_(que), w_(w), conPrecios_(HayPrecios(precios)) {
    p_.titulo = w.T(txt::MedicionesTitulo);
    p_.columnas = {{w.T(txt::MedicionTramo), {}, false},   {w.T(txt::MedicionCaso), {}, false},
                   {w.T(txt::MedicionPartida), {}, false}, {w.T(txt::MedicionUnidad), {}, false},
                   {w.T(txt::MedicionPorMetro), {}, true}, {w.T(txt::MedicionTotal), {}, true}};
    if (!conPrecios_) return;
    p_.columnas.push_back({w.T(txt::MedicionPrecio), precios.moneda, true});
    p_.columnas.push_back({w.T(txt::MedicionCosteMetro), precios.moneda + "/m", true});
    p_.columnas.push_back({w.T(txt::MedicionCoste), precios.moneda, true});
  }

  Planilla De(const std::vector<CasoMedido>& casos) {
    double obra = 0;
    for (const auto& c : casos) {
      Caso(c);
      obra += c.CosteTotal(precios_);
    }
    if (que_ == QueCasos::Peor && conPrecios_ && obra > 0) {
      FilaPlanilla fila{{Celda::Palabra(w_.T(txt::MedicionObra))}, true};
      fila.celdas.resize(8);
      fila.celdas.push_back(Celda::Numero(obra, kDecimalesCoste));
      p_.filas.push_back(std::move(fila));
    }
    for (const int n : {txt::MedicionNotaCapas, txt::MedicionNotaLongitudinales,
                        txt::MedicionNotaPeso, txt::MedicionNotaZanja}) {
      p_.notas.push_back(w_.T(n));
    }
    return std::move(p_);
  }

 private:
  const Precios& precios_;
  QueCasos que_;
  const PalabrasDibujo& w_;
  bool conPrecios_;
  Planilla p_;

  void Caso(const CasoMedido& c) {
    ParaCadaPartida([&](Partida p) {
      const double cuanto = c.medicion.porMetro[p];
      if (!(cuanto > 0)) return;
      const int decimales = EsAcero(p) ? kDecimalesKg : kDecimalesM3;
      auto fila = Cabeza(c, NombreDe(p, w_.Textos()), Unidad(p));
      fila.celdas.push_back(Celda::Numero(cuanto, decimales));
      fila.celdas.push_back(NumeroSiHay(c.Total(p), decimales - 1));
      if (conPrecios_) {
        const double precio = precios_.precio[p];
        fila.celdas.push_back(NumeroSiHay(precio, kDecimalesCoste));
        fila.celdas.push_back(NumeroSiHay(c.coste[p], kDecimalesCoste));
        fila.celdas.push_back(NumeroSiHay(c.Total(p) * precio, kDecimalesCoste));
      }
      p_.filas.push_back(std::move(fila));
    });
    auto peso = Cabeza(c, w_.T(txt::MedicionPeso), "kg");
    peso.celdas.push_back(Celda::Numero(c.medicion.peso, 0));
    peso.celdas.push_back(NumeroSiHay(c.medicion.peso * c.fabricacion.Longitud, 0));
    p_.filas.push_back(std::move(peso));
    if (!conPrecios_) return;
    FilaPlanilla suma = Cabeza(c, w_.T(txt::MedicionSuma), precios_.moneda);
    suma.total = true;
    suma.celdas.resize(7);
    suma.celdas.push_back(Celda::Numero(Suma(c.coste), kDecimalesCoste));
    suma.celdas.push_back(NumeroSiHay(c.CosteTotal(precios_), kDecimalesCoste));
    p_.filas.push_back(std::move(suma));
  }

  FilaPlanilla Cabeza(const CasoMedido& c, const std::string& partida, std::string unidad) const {
    return {{Celda::Palabra(c.numero), Celda::Palabra(CasoDe(c, w_)), Celda::Palabra(partida),
             Celda::Palabra(std::move(unidad))},
            false};
  }
};

Json JsonDeCaso(const CasoMedido& c, const Precios& precios) {
  Json capas = Json::array();
  for (const auto& capa : c.medicion.capas) {
    capas.push_back({{"partida", ClaveDe(capa.partida)},
                     {"grueso", capa.grueso},
                     {"diametro", capa.diametro},
                     {"numero", capa.numero},
                     {"paso", capa.Paso()},
                     {"desarrollo", capa.desarrollo},
                     {"kg", capa.kg}});
  }
  Json porMetro = Json::object(), total = Json::object();
  ParaCadaPartida([&](Partida p) {
    if (!(c.medicion.porMetro[p] > 0)) return;
    porMetro[ClaveDe(p)] = c.medicion.porMetro[p];
    if (c.fabricacion.Longitud > 0) total[ClaveDe(p)] = c.Total(p);
  });
  Json j{{"tramo", c.numero},         {"Hr", c.fila.Hr},
         {"DP", c.fila.DP},           {"MDP", c.fila.MDP},
         {"capas", std::move(capas)}, {"porMetro", std::move(porMetro)},
         {"peso", c.medicion.peso},   {"longitud", c.fabricacion.Longitud}};
  if (!total.empty()) j["total"] = std::move(total);
  if (HayPrecios(precios)) {
    j["costePorMetro"] = Suma(c.coste);
    if (c.fabricacion.Longitud > 0) j["coste"] = c.CosteTotal(precios);
  }
  return j;
}

}  // namespace

double CasoMedido::Total(Partida p) const {
  if (p == Partida::Juntas) return NumeroDeTubos(fabricacion) * fabricacion.AceroJunta;
  return medicion.porMetro[p] * fabricacion.Longitud;
}

double CasoMedido::CosteTotal(const Precios& precios) const {
  double suma = 0;
  ParaCadaPartida([&](Partida p) { suma += Total(p) * precios.precio[p]; });
  return suma;
}

std::vector<CasoMedido> MideObra(const std::vector<TramoAMedir>& tramos, const Precios& precios,
                                 QueCasos que) {
  std::vector<CasoMedido> casos;
  for (const auto& t : tramos) {
    const auto mide = [&](const FilaCaso& fila) {
      auto medicion = MideCaso(t.resultado, fila, t.fabricacion);
      auto coste = CostePorMetro(medicion, precios);
      casos.push_back({t.resultado, fila, t.numero, t.fabricacion, std::move(medicion), coste});
    };
    if (que == QueCasos::Todos) {
      for (const auto& fila : t.resultado.filas) mide(fila);
    } else if (const auto* peor = CuentaDeVeredictos(t.resultado).peor) {
      mide(*peor);
    }
  }
  return casos;
}

const std::string& NombreDe(Partida p, const Catalogo& textos) {
  return textos.Texto(txt::Partidas[static_cast<std::size_t>(p)]);
}

Planilla PlanillaDePartidas(const std::vector<CasoMedido>& casos, const Precios& precios,
                            QueCasos que, const PalabrasDibujo& palabras) {
  return Partidas(precios, que, palabras).De(casos);
}

Planilla PlanillaDeCapas(const std::vector<CasoMedido>& casos, const PalabrasDibujo& w) {
  Planilla p;
  p.titulo = w.T(txt::MedicionCapas);
  p.columnas = {
      {w.T(txt::MedicionTramo), {}, false},     {w.T(txt::MedicionCaso), {}, false},
      {w.T(txt::MedicionCapa), {}, false},      {w.T(txt::MedicionGrueso), "mm", true},
      {w.T(txt::MedicionDiametro), "mm", true}, {w.T(txt::MedicionNumero), {}, true},
      {w.T(txt::MedicionPaso), "mm", true},     {w.T(txt::MedicionDesarrollo), "m/m", true},
      {w.T(txt::MedicionKg), "kg/m", true}};
  for (const auto& c : casos) {
    for (const auto& capa : c.medicion.capas) {
      p.filas.push_back({{Celda::Palabra(c.numero), Celda::Palabra(CasoDe(c, w)),
                          Celda::Palabra(NombreDe(capa.partida, w.Textos())),
                          NumeroSiHay(capa.grueso, 1), Celda::Numero(capa.diametro * kMm, 1),
                          NumeroSiHay(capa.numero, 1), NumeroSiHay(capa.Paso(), 1),
                          NumeroSiHay(capa.desarrollo, 3), Celda::Numero(capa.kg, kDecimalesKg)},
                         false});
    }
  }
  p.notas.push_back(w.T(txt::MedicionNotaCapas));
  return p;
}

std::string JsonDeMedicion(const std::vector<CasoMedido>& casos, const Precios& precios) {
  Json filas = Json::array();
  double obra = 0;
  for (const auto& c : casos) {
    filas.push_back(JsonDeCaso(c, precios));
    obra += c.CosteTotal(precios);
  }
  Json j{{"version", 1}, {"casos", std::move(filas)}};
  if (HayPrecios(precios)) {
    j["moneda"] = precios.moneda;
    if (obra > 0) j["coste"] = obra;
  }
  return j.dump(1, ' ', false, Json::error_handler_t::replace) + "\n";
}

}  // namespace zorbin
