// Tramos as a table: a row each, a column for each datum, headed by its name and unit.
#include <algorithm>
#include <array>
#include <cmath>
#include <variant>

#include "base/aritmetica.h"
#include "base/mdNumeros.h"
#include "base/mdTextos.h"
#include "base/textos.h"
#include "core/mdUnidades.h"
#include "persistencia/entrada/mdColumnasTramo.h"
#include "sesion/captura/mdTramos.h"

namespace zorbin {

namespace {

constexpr int kDecimales = 6;

using DatoTramo = Dato<Tramo>;

// Neither a tabulator nor a break of line ends a cell from inside.
std::string Celda(std::string texto) {
  std::ranges::replace_if(
      texto, [](char letra) { return letra == '\t' || letra == '\n' || letra == '\r'; }, ' ');
  return texto;
}

std::string SinCerosFinales(std::string numero) {
  if (numero.find_first_of(".,") == std::string::npos) return numero;
  numero.erase(numero.find_last_not_of('0') + 1);
  if (numero.back() == '.' || numero.back() == ',') numero.pop_back();
  return numero;
}

struct EnTexto {
  char separador;
  std::string operator()(const std::string& texto) const { return Celda(texto); }
  std::string operator()(double valor) const {
    return SinCerosFinales(TextoDecimal(valor, kDecimales, separador));
  }
  std::string operator()(std::int16_t codigo) const { return TextoEntero(codigo); }
  std::string operator()(bool marca) const { return marca ? "1" : "0"; }
};

// ---- Reading

std::vector<std::string> Trozos(std::string_view texto, char corte) {
  std::vector<std::string> trozos;
  for (std::size_t desde = 0;;) {
    const auto hasta = texto.find(corte, desde);
    std::string trozo(texto.substr(desde, hasta - desde));
    if (!trozo.empty() && trozo.back() == '\r') trozo.pop_back();
    trozos.push_back(std::move(trozo));
    if (hasta == std::string_view::npos) return trozos;
    desde = hasta + 1;
  }
}

struct Columna {
  const DatoTramo* dato = nullptr;  // null for the number
  bool enSI = false;                // its values are in the unit of SI
};

class LectorTabla {
 public:
  explicit LectorTabla(Captura& c) : c_(c) {}

  std::vector<TramoEnObra> Lee(std::string_view tabla, Pegado& pegado) {
    const auto filas = Trozos(tabla, '\n');
    Cabeceras(Trozos(filas.front(), '\t'), pegado);
    std::vector<TramoEnObra> tramos;
    for (std::size_t i = 1; i < filas.size(); ++i) {
      if (Recorta(filas[i]).empty()) continue;
      tramos.push_back(Fila(Trozos(filas[i], '\t'), i + 1, pegado));
    }
    if (tramos.empty() && pegado.faltas.empty()) {
      pegado.faltas.push_back(Texto(c_, txt::TablaSinFilas));
    }
    return tramos;
  }

 private:
  void Cabeceras(const std::vector<std::string>& cabeceras, Pegado& pegado) {
    for (const auto& cabecera : cabeceras) {
      const auto abre = cabecera.find('(');
      const std::string nombre(Recorta(cabecera.substr(0, abre)));
      if (nombre == kColumnaNumero) {
        columnas_.push_back({});
        continue;
      }
      const auto datos = TablaDe(Tramo{});
      const auto dato = std::ranges::find_if(datos, [&](const DatoTramo& d) {
        return d.ficha.nombre == nombre && TieneColumna(d.ficha);
      });
      if (dato == datos.end()) {
        Falta(pegado, 1, columnas_.size(), c_.textos.Compone(txt::ColumnaDesconocida, {cabecera}));
        columnas_.push_back({});
        continue;
      }
      const std::string unidad(
          abre == std::string::npos
              ? std::string{}
              : Recorta(cabecera.substr(abre + 1, cabecera.find(')', abre) - abre - 1)));
      bool enSI = c_.EsSI();
      if (unidad == UnidadDe(dato->ficha, !enSI) && unidad != UnidadDe(dato->ficha, enSI)) {
        enSI = !enSI;
      } else if (!unidad.empty() && unidad != UnidadDe(dato->ficha, enSI)) {
        Falta(pegado, 1, columnas_.size(),
              c_.textos.Compone(txt::UnidadDesconocida,
                                {unidad, nombre, UnidadDe(dato->ficha, c_.EsSI())}));
      }
      columnas_.push_back({&*dato, enSI});
    }
  }

  TramoEnObra Fila(const std::vector<std::string>& celdas, std::size_t fila, Pegado& pegado) {
    TramoEnObra t;
    t.datos.Tipologia = kArmada;
    for (std::size_t i = 0; i < celdas.size(); ++i) {
      const std::string celda(Recorta(celdas[i]));
      if (i >= columnas_.size()) {
        if (!celda.empty()) Falta(pegado, fila, i, Texto(c_, txt::CeldaSinColumna));
        continue;
      }
      if (columnas_[i].dato == nullptr || celda.empty()) continue;
      if (auto porque = Pon(t.datos, columnas_[i], celda); !porque.empty()) {
        Falta(pegado, fila, i, porque);
      }
    }
    Completa(t.datos, fila, pegado);
    return t;
  }

  // @return why it cannot be
  std::string Pon(Tramo& t, const Columna& columna, const std::string& celda) const {
    const auto& ficha = columna.dato->ficha;
    if (const auto* texto = std::get_if<std::string Tramo::*>(&columna.dato->miembro)) {
      t.*(*texto) = celda;
      return FaltaDeTexto(c_.textos, celda);
    }
    const auto leido = NumeroTecleado(celda, c_.SeparadorDecimal);
    if (!leido.valor || std::fabs(*leido.valor) > kMayorTecleado) return TextoDeFalta(c_, leido);
    const double valor = *leido.valor;
    if (const auto* numero = std::get_if<double Tramo::*>(&columna.dato->miembro)) {
      const auto par = Pareja(valor, columna.enSI, ficha.magnitud);
      t.*(*numero) = ficha.Escala() ? (c_.EsSI() ? par.si : par.mks) : valor;
      return {};
    }
    if (valor != Redondea(valor) || valor < 0 || valor > 9999) {
      return c_.textos.Compone(txt::CodigoMalo, {celda, std::string(ficha.nombre)});
    }
    if (const auto* codigo = std::get_if<std::int16_t Tramo::*>(&columna.dato->miembro)) {
      t.*(*codigo) = static_cast<std::int16_t>(valor);
    } else if (const auto* marca = std::get_if<bool Tramo::*>(&columna.dato->miembro)) {
      t.*(*marca) = valor != 0;
    }
    return {};
  }

  // What follows from the columns. The codes of lists are checked here: no field would hold others.
  void Completa(Tramo& t, std::size_t fila, Pegado& pegado) const {
    const auto falla = [&](std::string_view nombre, int codigo) {
      Falta(pegado, fila, LugarDeColumna(nombre),
            c_.textos.Compone(txt::CodigoMalo, {TextoEntero(codigo), std::string(nombre)}));
    };
    if (t.Tipologia != kArmada && t.Tipologia != kEmbebida && t.Tipologia != kRevestida) {
      falla("Tipologia", t.Tipologia);
    }
    if (t.TipoColocacion > 2) falla("TipoColocacion", t.TipoColocacion);
    t.EsArmado = t.Tipologia < kPrimeraPostesada;
    t.PostFlag = t.EsArmado ? 0 : 1;
    t.SubTipo = t.EsArmado ? 3 : 0;
    t.De = t.Di + 2.0 * t.Esp / 100.0;
    t.Fct = FctEnSistema(t.Fck, c_.EsSI());
  }

  std::size_t LugarDeColumna(std::string_view nombre) const {
    const auto f = std::ranges::find_if(columnas_, [&](const Columna& columna) {
      return columna.dato != nullptr && columna.dato->ficha.nombre == nombre;
    });
    return static_cast<std::size_t>(f == columnas_.end() ? 0 : f - columnas_.begin());
  }

  void Falta(Pegado& pegado, std::size_t fila, std::size_t columna,
             const std::string& texto) const {
    pegado.faltas.push_back(c_.textos.Compone(
        txt::FaltaEnTabla, {std::to_string(fila), std::to_string(columna + 1), texto}));
  }

  Captura& c_;
  std::vector<Columna> columnas_;
};

}  // namespace

std::string CopiaTramos(const Captura& c, const std::vector<int>& ids) {
  const Version v = VersionActual(c);
  std::string tabla(kColumnaNumero);
  const auto datos = TablaDe(Tramo{});
  for (const auto& dato : datos) {
    if (TieneColumna(dato.ficha)) tabla += "\t" + Cabecera(dato.ficha, c.EsSI());
  }
  tabla += "\n";
  for (const auto& t : v.tramos) {
    if (std::ranges::find(ids, t->id) == ids.end() || !t->dano.empty()) continue;
    tabla += t->numero;
    for (const auto& dato : datos) {
      if (!TieneColumna(dato.ficha)) continue;
      const EnTexto enTexto{c.SeparadorDecimal};
      tabla += "\t" + std::visit([&](const auto m) { return enTexto(t->datos.*m); }, dato.miembro);
    }
    tabla += "\n";
  }
  return tabla;
}

Pegado PegaTramos(Captura& c, std::string_view tabla) {
  Pegado pegado;
  auto tramos = LectorTabla(c).Lee(tabla, pegado);
  if (!pegado.faltas.empty()) return pegado;
  if (!Caben(c.version, tramos.size())) {
    pegado.faltas.push_back(c.textos.Compone(txt::DemasiadosTramos, {TextoEntero(kMaxTramos)}));
    return pegado;
  }
  pegado.tramos = static_cast<int>(tramos.size());
  AnadeTramos(c, std::move(tramos), c.textos.Compone(txt::PasoPega, {TextoEntero(pegado.tramos)}));
  return pegado;
}

}  // namespace zorbin
