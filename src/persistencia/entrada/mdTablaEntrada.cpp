#include "persistencia/entrada/mdTablaEntrada.h"

#include <algorithm>
#include <array>

#include "base/mdTextos.h"
#include "base/textos.h"
#include "persistencia/entrada/mdColumnasTramo.h"

namespace zorbin {

namespace {

constexpr std::size_t kFilasDeCabeza = 12;  // among which the heads are looked for
constexpr std::size_t kBastantes = 2;       // data that make a row one of heads
constexpr std::size_t kDatosDeObra = 3;     // names that make a sheet one of the Obra

// A unit as it may be written: what it is in letters of ours, and what it is worth in it.
struct UnidadLeida {
  std::string_view escrita, nuestra;
  double factor;
};
constexpr std::array<UnidadLeida, 13> kUnidades{{{"mts", "m", 1.0},
                                                 {"n/mm2", "mpa", 1.0},
                                                 {"kg/cm2", "kp/cm2", 1.0},
                                                 {"cms", "cm", 1.0},
                                                 {"°", "º", 1.0},
                                                 {"grd", "º", 1.0},
                                                 {"grados", "º", 1.0},
                                                 {"mm", "m", 0.001},
                                                 {"cm", "m", 0.01},
                                                 {"m", "cm", 100.0},
                                                 {"mm", "cm", 0.1},
                                                 {"cm", "mm", 10.0},
                                                 {"m", "mm", 1000.0}}};

std::string LlanaDeUnidad(std::string_view unidad) {
  std::string u;
  for (std::size_t i = 0; i < unidad.size(); ++i) {
    const char c = unidad[i];
    if (unidad.substr(i).starts_with("²") || unidad.substr(i).starts_with("³")) {
      u += unidad.substr(i).starts_with("²") ? '2' : '3';
      ++i;
    } else if (c >= 'A' && c <= 'Z') {
      u += static_cast<char>(c - 'A' + 'a');
    } else if (c != ' ' && c != '.') {
      u += c;
    }
  }
  return u;
}

// A unit of a datum. @return whether it is one
bool PonUnidad(ColumnaLeida& columna, std::string_view escrita) {
  const std::string u = LlanaDeUnidad(escrita);
  const auto& suyas = UnidadesDe(columna.dato->ficha.magnitud);
  const auto prueba = [&](std::string_view unidad, double factor) {
    const bool si = unidad == LlanaDeUnidad(suyas.si);
    if (!si && unidad != LlanaDeUnidad(suyas.mks)) return false;
    if (suyas.Escala()) columna.enSI = si;
    columna.factor = factor;
    return true;
  };
  if (prueba(u, 1.0)) return true;
  return std::ranges::any_of(kUnidades, [&](const UnidadLeida& x) {
    return x.escrita == u && prueba(x.nuestra, x.factor);
  });
}

std::string TextoDe(const std::vector<CeldaLeida>& fila, std::size_t i) {
  return i < fila.size() ? std::string(Recorta(fila[i].texto)) : std::string{};
}

std::string EntreParentesis(std::string_view cabeza) {
  const auto cierra = cabeza.rfind(')');
  const auto abre = cabeza.rfind('(', cierra);
  if (cierra == std::string_view::npos || abre == std::string_view::npos) return {};
  return std::string(Recorta(cabeza.substr(abre + 1, cierra - abre - 1)));
}

struct Cabezas {
  const Cuadro* hoja = nullptr;
  std::size_t fila = 0;
  std::size_t cuantas = 0;  // data that it names
};

class LectorTabla {
 public:
  LectorTabla(const std::vector<Cuadro>& hojas, const Catalogo& textos)
      : hojas_(hojas), textos_(textos), nombres_(&textos) {}

  Entrada Lee() {
    const auto cabezas = Busca();
    for (const auto& hoja : hojas_) {
      if (&hoja != cabezas.hoja) LeeObra(hoja);
    }
    if (cabezas.hoja == nullptr && e_.obra.empty()) throw ErrorEntrada({txt::EntSinCabeceras, {}});
    if (cabezas.hoja != nullptr) {
      LeeCabezas(cabezas);
      for (std::size_t i = cabezas.fila + 1; i < cabezas.hoja->filas.size(); ++i) {
        LeeFila(*cabezas.hoja, i);
      }
    }
    e_.Revisa();
    return std::move(e_);
  }

 private:
  const std::vector<Cuadro>& hojas_;
  const Catalogo& textos_;
  NombresDeDatos nombres_;
  std::vector<ColumnaLeida> columnas_;
  Entrada e_;

  // The row with most names of data, of all sheets.
  Cabezas Busca() const {
    Cabezas mejor;
    for (const auto& hoja : hojas_) {
      for (std::size_t f = 0; f < std::min(hoja.filas.size(), kFilasDeCabeza); ++f) {
        std::size_t cuantas = 0;
        for (std::size_t i = 0; i < hoja.filas[f].size(); ++i) {
          Mensaje falta;
          const auto c = nombres_.Columna(TextoDe(hoja.filas[f], i), {}, f, i, falta);
          if (!c || c->que != ColumnaLeida::Que::Nada) ++cuantas;
        }
        if (cuantas > mejor.cuantas) mejor = {&hoja, f, cuantas};
      }
    }
    return mejor.cuantas >= kBastantes ? mejor : Cabezas{};
  }

  void LeeCabezas(const Cabezas& cabezas) {
    const auto& fila = cabezas.hoja->filas[cabezas.fila];
    static const std::vector<CeldaLeida> kNada;
    const auto& encima = cabezas.fila > 0 ? cabezas.hoja->filas[cabezas.fila - 1] : kNada;
    for (std::size_t i = 0; i < fila.size(); ++i) {
      Mensaje falta;
      const std::string texto = TextoDe(fila, i);
      const auto columna = nombres_.Columna(texto, TextoDe(encima, i), cabezas.fila, i, falta);
      if (!columna) throw ErrorEntrada(falta);
      if (columna->que == ColumnaLeida::Que::Nada && !texto.empty()) {
        e_.Avisa({txt::EntColumnaDesconocida, {NombreCelda(cabezas.fila, i), Visto(texto)}});
      }
      const bool repetida =
          columna->dato != nullptr &&
          std::ranges::find(columnas_, columna->dato, &ColumnaLeida::dato) != columnas_.end();
      if (repetida) {
        throw ErrorEntrada(
            {txt::EntEnCelda, {NombreCelda(cabezas.fila, i), textos_.Texto(txt::EntRepetido)}});
      }
      columnas_.push_back(*columna);
    }
  }

  void LeeFila(const Cuadro& hoja, std::size_t f) {
    const auto& fila = hoja.filas[f];
    if (std::ranges::all_of(fila, &CeldaLeida::Vacia)) return;
    const ModoLectura modo{false, hoja.decimal, &textos_};
    TramoLeido t;
    t.celda = NombreCelda(f, 0);
    const int lugar = static_cast<int>(e_.tramos.size());
    for (std::size_t i = 0; i < std::min(fila.size(), columnas_.size()); ++i) {
      const auto& c = columnas_[i];
      if (c.que == ColumnaLeida::Que::Nada || fila[i].Vacia()) continue;
      Mensaje causa;
      const auto rehusa = [&](std::string_view dato) {
        e_.rechazos.push_back(
            {lugar, NombreCelda(f, i), std::string(dato), Visto(fila[i].texto), causa});
      };
      if (c.que == ColumnaLeida::Que::Numero) {
        t.numero = LeeNumeroTramo(fila[i], modo, causa);
        if (t.numero.empty()) rehusa(kColumnaNumero);
        continue;
      }
      auto valor = LeeValor(*c.dato, fila[i], modo, c.factor, causa);
      if (!valor) {
        rehusa(c.dato->ficha.nombre);
        continue;
      }
      t.datos.push_back({c.dato, std::move(*valor), c.enSI, NombreCelda(f, i)});
    }
    e_.tramos.push_back(std::move(t));
  }

  void LeeObra(const Cuadro& hoja) {
    const auto tabla = TablaDe(Obra{});
    const auto dato = [&](const std::vector<CeldaLeida>& fila) {
      const std::string nombre = TextoDe(fila, 0);
      return std::ranges::find_if(
          tabla, [&](const auto& d) { return d.ficha.nombre == nombre && !d.ficha.deSesion; });
    };
    const auto suyas = std::ranges::count_if(
        hoja.filas, [&](const auto& fila) { return dato(fila) != tabla.end(); });
    if (static_cast<std::size_t>(suyas) < kDatosDeObra) return;
    for (std::size_t f = 0; f < hoja.filas.size(); ++f) {
      const auto& fila = hoja.filas[f];
      const auto d = dato(fila);
      if (d == tabla.end() || fila.size() < 2 || fila[1].Vacia()) continue;
      Mensaje causa;
      auto valor = LeeValor(*d, fila[1], {false, hoja.decimal, &textos_}, 1.0, causa);
      if (!valor) {
        e_.rechazos.push_back(
            {-1, NombreCelda(f, 1), std::string(d->ficha.nombre), Visto(fila[1].texto), causa});
        continue;
      }
      std::optional<bool> enSI;
      if (const auto u = LlanaDeUnidad(TextoDe(fila, 2)); !u.empty() && d->ficha.Escala()) {
        enSI = u == LlanaDeUnidad(UnidadesDe(d->ficha.magnitud).si);
      }
      e_.obra.push_back({&*d, std::move(*valor), enSI, NombreCelda(f, 1)});
    }
  }
};

}  // namespace

NombresDeDatos::NombresDeDatos(const Catalogo* textos) {
  deNumero_[Llano(kColumnaNumero)] = true;
  const auto datos = ColumnasDeTramo();
  if (textos != nullptr) {
    for (int i = 0; i < kIdiomas; ++i) {
      const auto texto = [&](int n) {
        return n == 0 ? std::string{} : textos->LoadRes(n + i * kPasoIdioma);
      };
      deNumero_[Llano(texto(txt::RotTramo))] = true;
      for (const auto* d : datos) {
        const auto& campo = d->ficha.campo;
        Pon(texto(campo.grupo) + (campo.grupo == 0 ? "" : " ") + texto(campo.rotulo), d);
        if (campo.grupo != 0) Pon(texto(campo.rotulo), d);  // others share it
        Pon(texto(campo.etiqueta), d);
        if (campo.rotuloSI != 0) Pon(texto(campo.rotuloSI), d);
      }
    }
  }
  // The name of a datum is its own, whatever label reads as it does.
  for (const auto* d : datos) nombres_[Llano(d->ficha.nombre)] = d;
}

void NombresDeDatos::Pon(std::string_view nombre, const Dato<Tramo>* dato) {
  const std::string llano = Llano(nombre);
  if (llano.empty()) return;
  const auto [i, nuevo] = nombres_.try_emplace(llano, dato);
  if (!nuevo && i->second != dato) i->second = nullptr;
}

std::optional<ColumnaLeida> NombresDeDatos::Columna(std::string_view cabeza,
                                                    std::string_view unidad, std::size_t fila,
                                                    std::size_t columna, Mensaje& falta) const {
  ColumnaLeida c;
  const std::string llana = Llano(cabeza);
  if (deNumero_.contains(llana)) {
    c.que = ColumnaLeida::Que::Numero;
    return c;
  }
  const auto i = nombres_.find(llana);
  if (i == nombres_.end() || i->second == nullptr) return c;
  c.que = ColumnaLeida::Que::Dato;
  c.dato = i->second;
  const std::string suya = EntreParentesis(cabeza);
  const std::string dicha = suya.empty() ? std::string(unidad) : suya;
  const auto& magnitud = UnidadesDe(c.dato->ficha.magnitud);
  if (dicha.empty() || magnitud.si.empty() || PonUnidad(c, dicha)) return c;
  const std::string unidades = magnitud.si == magnitud.mks
                                   ? std::string(magnitud.si)
                                   : std::string(magnitud.si) + ", " + std::string(magnitud.mks);
  falta = {txt::EntUnidadMala,
           {NombreCelda(fila, columna), Visto(dicha), std::string(c.dato->ficha.nombre), unidades}};
  return std::nullopt;
}

Entrada LeeTablas(const std::vector<Cuadro>& hojas, const Catalogo& textos) {
  return LectorTabla(hojas, textos).Lee();
}

}  // namespace zorbin
