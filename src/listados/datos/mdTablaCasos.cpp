#include "listados/datos/mdTablaCasos.h"

#include <algorithm>

#include "base/mdNumeros.h"
#include "base/mdTextos.h"
#include "persistencia/disco/mdFicheroSalida.h"
#include "persistencia/entrada/mdCsv.h"

namespace zorbin {

namespace {

constexpr std::size_t kBloque = 256 * 1024;  // bytes

class Csv : public TablaCasos {
 public:
  Csv(const std::vector<Columna>& columnas, const PalabrasDibujo& w,
      std::function<void(std::string_view)> escribe)
      : w_(w), escribe_(std::move(escribe)), decimal_(w.Estilo().separador) {
    for (const auto c : columnas) modos_.emplace_back(c, w);
    bloque_.reserve(kBloque + 4096);
    bloque_ = kMarcaUtf8;
    Linea([&](const ModoColumna& m) {
      const std::string unidad = UnidadDe(m.columna, w_);
      AnadeCelda(bloque_, Titulo(m.columna, w_) + (unidad.empty() ? "" : " (" + unidad + ")"),
                 SeparadorDeCeldas(decimal_));
    });
  }

  void Caso(const ResultadoTramo& t, const FilaCaso& f, const ValoresEnteros* enteras) override {
    Linea([&](const ModoColumna& m) {
      if (De(m.columna).numero) {
        const auto lugar = static_cast<std::size_t>(static_cast<int>(m.columna) - kPrimeraEntera);
        const bool entera = EsEntera(m.columna) && enteras != nullptr;
        const double valor = entera ? (*enteras)[lugar] : ValorDe(m.columna, t, f);
        return AnadeNumero(bloque_, m.Mostrado(valor), m.decimales, decimal_);
      }
      const std::string texto = TextoPalabra(m.columna, t, f, w_);
      if (texto != "-") AnadeCelda(bloque_, texto, SeparadorDeCeldas(decimal_));
    });
    if (bloque_.size() >= kBloque) Vuelca();
  }

  void Termina() override { Vuelca(); }

 private:
  PalabrasDibujo w_;
  std::function<void(std::string_view)> escribe_;
  char decimal_;
  std::vector<ModoColumna> modos_;
  std::string bloque_;

  template <class Celda>
  void Linea(const Celda& celda) {
    for (std::size_t i = 0; i < modos_.size(); ++i) {
      if (i > 0) bloque_ += SeparadorDeCeldas(decimal_);
      celda(modos_[i]);
    }
    bloque_ += "\r\n";
  }

  void Vuelca() {
    escribe_(bloque_);
    bloque_.clear();
  }
};

// Into a file of its own.
class CsvEnFichero : public TablaCasos {
 public:
  CsvEnFichero(const std::vector<Columna>& columnas, const PalabrasDibujo& w,
               const std::filesystem::path& fichero)
      : salida_(fichero),
        csv_(columnas, w, [this](std::string_view bytes) { salida_.Escribe(bytes); }) {}

  void Caso(const ResultadoTramo& t, const FilaCaso& f, const ValoresEnteros* enteras) override {
    csv_.Caso(t, f, enteras);
  }
  void Termina() override {
    csv_.Termina();
    salida_.Termina();
  }

 private:
  FicheroSalida salida_;
  Csv csv_;
};

std::string Extension(const std::filesystem::path& fichero) {
  std::string e = fichero.extension().string();
  std::ranges::transform(e, e.begin(), [](char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
  });
  return e;
}

}  // namespace

std::unique_ptr<TablaCasos> TablaCsv(const std::vector<Columna>& columnas, const PalabrasDibujo& w,
                                     std::function<void(std::string_view)> escribe) {
  return std::make_unique<Csv>(columnas, w, std::move(escribe));
}

std::unique_ptr<TablaCasos> TablaCsv(const std::vector<Columna>& columnas, const PalabrasDibujo& w,
                                     const std::filesystem::path& fichero) {
  return std::make_unique<CsvEnFichero>(columnas, w, fichero);
}

bool EsNombreDeTabla(const std::filesystem::path& fichero) {
  return Extension(fichero) == ".csv" || Extension(fichero) == ".xlsx";
}

std::unique_ptr<TablaCasos> TablaPorNombre(const ObraDeTabla& obra, const PalabrasDibujo& w,
                                           const std::filesystem::path& fichero) {
  if (Extension(fichero) == ".csv") return TablaCsv(obra.columnas, w, fichero);
  if (Extension(fichero) == ".xlsx") return TablaXlsx(obra, w, fichero);
  return nullptr;
}

ListadoTabla::ListadoTabla(TablaCasos& tabla, const std::vector<Columna>& columnas,
                           const std::map<int, zorbin::Tramo>& capturados)
    : tabla_(tabla), capturados_(capturados), enteras_(std::ranges::any_of(columnas, EsEntera)) {}

bool ListadoTabla::Tramo(const ResultadoTramo& r, int posicion, const std::string& numero,
                         const SigueListado& sigue) {
  for (const auto& f : r.filas) {
    if (sigue && !sigue()) return false;
    if (!enteras_) {
      tabla_.Caso(r, f, nullptr);
      continue;
    }
    const auto enteras = EnterosDe(r, f);
    tabla_.Caso(r, f, &enteras);
  }
  tabla_.Tramo({r, capturados_.at(posicion), numero});
  return true;
}

std::string NombresDeColumnas() {
  std::string nombres;
  for (const auto& f : TablaColumnas())
    nombres += (nombres.empty() ? "" : ", ") + std::string(f.clave);
  return nombres;
}

std::optional<std::vector<Columna>> ColumnasDeLista(std::string_view lista, std::string& mala) {
  std::vector<Columna> columnas;
  if (Recorta(lista).empty() || Recorta(lista) == "todas") {
    for (const auto& f : TablaColumnas()) {
      if (f.alPrincipio || !Recorta(lista).empty()) columnas.push_back(f.columna);
    }
    return columnas;
  }
  while (true) {
    const auto coma = lista.find(',');
    const auto nombre = Recorta(lista.substr(0, coma));
    const auto columna = ColumnaPorClave(nombre);
    if (!columna) {
      mala = std::string(nombre);
      return std::nullopt;
    }
    columnas.push_back(*columna);
    if (coma == std::string_view::npos) return columnas;
    lista.remove_prefix(coma + 1);
  }
}

}  // namespace zorbin
