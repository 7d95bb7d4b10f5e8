// The table of Casos as a workbook.
#include <algorithm>
#include <array>

#include "base/mdNumeros.h"
#include "base/mdTextos.h"
#include "base/textos.h"
#include "listados/datos/mdLibroXlsx.h"
#include "listados/datos/mdTablaCasos.h"
#include "listados/obra/mdVeredictoCaso.h"
#include "persistencia/entrada/mdColumnasTramo.h"

namespace zorbin {

namespace {

constexpr std::uint32_t kFilaUnidades = 0;
constexpr std::uint32_t kFilaCabezas = 1;
constexpr std::uint32_t kPrimeraFila = 2;
constexpr double kAnchoNumero = 10;  // characters
constexpr double kAnchoPalabras = 22;
constexpr int kDecimalesDato = 3;

Formato FormatoDe(Veredicto v) {
  constexpr std::array<Formato, 3> kFormatos{Formato::Cumple, Formato::NoCumple,
                                             Formato::SinComprobar};
  return kFormatos[static_cast<std::size_t>(v)];
}

int Decimales(const Ficha& ficha, bool si) {
  const auto mascara = ficha.Mascara(si);
  const auto punto = mascara.find('.');
  return punto == std::string_view::npos ? 0 : static_cast<int>(mascara.size() - punto - 1);
}

class Xlsx : public TablaCasos {
 public:
  Xlsx(const ObraDeTabla& obra, const PalabrasDibujo& w, const std::filesystem::path& fichero,
       std::uint32_t porHoja)
      : w_(w), libro_(fichero), porHoja_(porHoja), si_(obra.obra.EsSI()) {
    for (const auto c : obra.columnas) modos_.emplace_back(c, w);
    AbreCasos();
    tramos_ = libro_.NuevaHoja(w.T(txt::MenuTramos));
    CabezasDeTramos();
    EscribeObra(obra.obra);
  }

  void Caso(const ResultadoTramo& t, const FilaCaso& f, const ValoresEnteros* enteras) override {
    if (fila_ >= porHoja_) {
      CierraCasos();
      AbreCasos();
    }
    for (std::size_t i = 0; i < modos_.size(); ++i) Celda(i, t, f, enteras);
    ++fila_;
  }

  void Tramo(const TramoDeTabla& t) override {
    const auto cuenta = CuentaDeVeredictos(t.resultado);
    std::size_t columna = 0;
    const auto pon = [&](const auto& valor, int decimales) {
      PonDato(tramos_, filaTramos_, columna++, valor, decimales);
    };
    pon(t.numero, 0);
    for (const auto* dato : ColumnasDeTramo()) {
      std::visit([&](const auto m) { pon(t.capturado.*m, Decimales(dato->ficha, si_)); },
                 dato->miembro);
    }
    for (const int n : {cuenta.casos, cuenta.noCumplen, cuenta.sinComprobar}) {
      pon(static_cast<double>(n), 0);
    }
    libro_.Texto(tramos_, filaTramos_, columna, Palabra(cuenta.veredicto),
                 FormatoDe(cuenta.veredicto));
    ++filaTramos_;
  }

  void Termina() override {
    CierraCasos();
    Filtra(tramos_, filaTramos_, columnasTramos_);
    libro_.Termina();
  }

 private:
  PalabrasDibujo w_;
  LibroXlsx libro_;
  std::uint32_t porHoja_;
  bool si_;
  std::vector<ModoColumna> modos_;
  lxw_worksheet* casos_ = nullptr;
  lxw_worksheet* tramos_ = nullptr;
  int hojas_ = 0;  // of Casos
  std::uint32_t fila_ = 0;
  std::uint32_t filaTramos_ = kPrimeraFila;
  std::size_t columnasTramos_ = 0;

  const std::string& Palabra(Veredicto v) const {
    return w_.T(txt::Veredictos[static_cast<std::size_t>(v)]);
  }

  // Units first: a row is closed when the next one begins.
  template <class Titulo, class Unidad, class Ancho>
  void Cabezas(lxw_worksheet* hoja, std::size_t cuantas, const Titulo& titulo, const Unidad& unidad,
               const Ancho& ancho) {
    for (std::size_t i = 0; i < cuantas; ++i) {
      libro_.Texto(hoja, kFilaUnidades, i, unidad(i), Formato::Unidad);
    }
    for (std::size_t i = 0; i < cuantas; ++i) {
      const auto c = static_cast<lxw_col_t>(i);
      worksheet_set_column(hoja, c, c, ancho(i), nullptr);
      libro_.Texto(hoja, kFilaCabezas, i, titulo(i), Formato::Cabeza);
    }
  }

  void AbreCasos() {
    const std::string cual = ++hojas_ > 1 ? " (" + std::to_string(hojas_) + ")" : "";
    casos_ = libro_.NuevaHoja(w_.T(txt::TablaHojaCasos) + cual);
    Cabezas(
        casos_, modos_.size(), [this](auto i) { return Titulo(modos_[i].columna, w_); },
        [this](auto i) { return zorbin::UnidadDe(modos_[i].columna, w_); },
        [this](auto i) {
          const bool palabras = !De(modos_[i].columna).numero;
          return palabras && modos_[i].columna != Columna::Tramo ? kAnchoPalabras : kAnchoNumero;
        });
    fila_ = kPrimeraFila;
  }

  void Filtra(lxw_worksheet* hoja, std::uint32_t filas, std::size_t columnas) {
    worksheet_freeze_panes(hoja, kPrimeraFila, 1);
    worksheet_autofilter(hoja, kFilaCabezas, 0, std::max(filas, kPrimeraFila) - 1,
                         static_cast<lxw_col_t>(columnas - 1));
  }

  void CierraCasos() { Filtra(casos_, fila_, modos_.size()); }

  void Celda(std::size_t i, const ResultadoTramo& t, const FilaCaso& f,
             const ValoresEnteros* enteras) {
    const auto& m = modos_[i];
    if (m.columna == Columna::Tramo) {
      return libro_.Numero(casos_, fila_, i, t.datos.tramo.NumeroTramo, 0);
    }
    if (De(m.columna).numero) {
      const bool entera = EsEntera(m.columna) && enteras != nullptr;
      const auto lugar = static_cast<std::size_t>(static_cast<int>(m.columna) - kPrimeraEntera);
      const double valor = entera ? (*enteras)[lugar] : ValorDe(m.columna, t, f);
      return libro_.Numero(casos_, fila_, i, m.Mostrado(valor), m.decimales);
    }
    const bool veredicto = m.columna == Columna::Veredicto;
    libro_.Texto(casos_, fila_, i, TextoPalabra(m.columna, t, f, w_),
                 veredicto ? FormatoDe(f.verificacion.veredicto) : Formato::Texto);
  }

  void CabezasDeTramos() {
    std::vector<std::string> titulos{std::string(kColumnaNumero)};
    std::vector<std::string> unidades{""};
    for (const auto* dato : ColumnasDeTramo()) {
      titulos.emplace_back(dato->ficha.nombre);
      unidades.push_back(zorbin::UnidadDe(dato->ficha, si_));
    }
    for (const int n :
         {txt::TablaHojaCasos, txt::TablaNoCumplen, txt::TablaSinComprobar, txt::ResCol[1]}) {
      titulos.push_back(w_.T(n));
      unidades.emplace_back();
    }
    columnasTramos_ = titulos.size();
    Cabezas(
        tramos_, titulos.size(), [&](auto i) { return titulos[i]; },
        [&](auto i) { return unidades[i]; },
        [](auto i) { return i == 1 ? kAnchoPalabras : kAnchoNumero; });
  }

  void PonDato(lxw_worksheet* hoja, std::uint32_t fila, std::size_t c, const std::string& valor,
               int) {
    const auto numero = NumeroTexto(valor);
    if (c == 0 && !valor.empty() && numero) return libro_.Numero(hoja, fila, c, *numero, 0);
    libro_.Texto(hoja, fila, c, valor);
  }
  void PonDato(lxw_worksheet* hoja, std::uint32_t fila, std::size_t c, double valor,
               int decimales) {
    libro_.Numero(hoja, fila, c, valor, decimales);
  }
  void PonDato(lxw_worksheet* hoja, std::uint32_t fila, std::size_t c, std::int16_t valor, int) {
    libro_.Numero(hoja, fila, c, valor, 0);
  }
  void PonDato(lxw_worksheet* hoja, std::uint32_t fila, std::size_t c, bool valor, int) {
    libro_.Numero(hoja, fila, c, valor ? 1 : 0, 0);
  }

  // A line for each datum: its name, value, unit, and what it is.
  void EscribeObra(const Obra& obra) {
    auto* hoja = libro_.NuevaHoja(w_.T(txt::TarjetaObra));
    constexpr lxw_col_t kNombre = 0, kValor = 1, kUnidad = 2, kQue = 3;
    worksheet_set_column(hoja, kNombre, kValor, kAnchoPalabras, nullptr);
    worksheet_set_column(hoja, kUnidad, kUnidad, kAnchoNumero, nullptr);
    worksheet_set_column(hoja, kQue, kQue, 3 * kAnchoPalabras, nullptr);
    std::uint32_t fila = 0;
    RecorreDatos(obra, [&](const Ficha& ficha, const auto& dato) {
      if (ficha.deSesion) return;
      libro_.Texto(hoja, fila, kNombre, std::string(ficha.nombre), Formato::Titulo);
      PonDato(hoja, fila, kValor, dato, Decimales(ficha, si_) + kDecimalesDato - 2);
      libro_.Texto(hoja, fila, kUnidad, zorbin::UnidadDe(ficha, si_), Formato::Unidad);
      const std::string grupo = ficha.campo.grupo == 0 ? "" : w_.T(ficha.campo.grupo) + ": ";
      if (ficha.campo.rotulo != 0) {
        libro_.Texto(hoja, fila, kQue, grupo + w_.T(ficha.campo.rotulo), Formato::Nota);
      }
      ++fila;
    });
  }
};

}  // namespace

std::unique_ptr<TablaCasos> TablaXlsx(const ObraDeTabla& obra, const PalabrasDibujo& w,
                                      const std::filesystem::path& fichero, std::uint32_t porHoja) {
  return std::make_unique<Xlsx>(obra, w, fichero, porHoja);
}

}  // namespace zorbin
