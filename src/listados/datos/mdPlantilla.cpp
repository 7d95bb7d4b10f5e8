#include "listados/datos/mdPlantilla.h"

#include <algorithm>

#include "base/textos.h"
#include "listados/datos/mdLibroXlsx.h"
#include "persistencia/entrada/mdColumnasTramo.h"
#include "persistencia/entrada/mdDatosLeidos.h"
#include "persistencia/zrb/mdZrb.h"

namespace zorbin {

namespace {

constexpr double kAncho = 14;  // characters
constexpr double kAnchoTexto = 40;
constexpr std::uint32_t kFilaCabezas = 1;
constexpr std::uint32_t kUltimaFila = kFilaCabezas + kMaxTramos;

class Plantilla {
 public:
  Plantilla(const std::filesystem::path& fichero, const Catalogo& textos, bool si)
      : libro_(fichero), textos_(textos), si_(si) {}

  void Escribe() {
    Tramos();
    LaObra();
    libro_.Termina();
  }

 private:
  LibroXlsx libro_;
  const Catalogo& textos_;
  bool si_;

  const std::string& T(int n) const { return textos_.Texto(n); }
  int Idioma() const { return textos_.IdiomaOffset() / kPasoIdioma; }

  std::string QueEs(const Ficha& ficha) const {
    const auto& c = ficha.campo;
    std::string texto = c.grupo == 0 ? "" : T(c.grupo) + ": ";
    if (c.rotulo != 0) texto += T(si_ && c.rotuloSI != 0 ? c.rotuloSI : c.rotulo);
    return texto;
  }

  // The codes of a datum with their words.
  std::string Valores(const Ficha& ficha) const {
    std::string lista;
    for (const auto c : ficha.codigos) {
      const std::string palabra = PalabraDeCodigo(ficha, c, textos_, Idioma());
      lista += "\n" + std::to_string(c) + (palabra.empty() ? "" : " = " + palabra);
    }
    return lista;
  }

  std::string Comentario(const Ficha& ficha) const {
    std::string texto = QueEs(ficha);
    if (ficha.campo.consejo != 0) texto += "\n" + T(ficha.campo.consejo);
    if (!ficha.codigos.empty())
      texto += "\n" + textos_.Compone(txt::PlantillaValores, {Valores(ficha)});
    return texto;
  }

  // What a cell takes: one of a list, or a number that is not below zero.
  void Valida(lxw_worksheet* hoja, lxw_col_t columna, std::vector<std::string> lista) {
    lxw_data_validation v{};
    v.ignore_blank = LXW_VALIDATION_ON;
    std::vector<char*> palabras;
    if (lista.empty()) {
      v.validate = LXW_VALIDATION_TYPE_DECIMAL;
      v.criteria = LXW_VALIDATION_CRITERIA_GREATER_THAN_OR_EQUAL_TO;
      v.value_number = 0;
    } else {
      v.validate = LXW_VALIDATION_TYPE_LIST;
      for (auto& l : lista) palabras.push_back(l.data());
      palabras.push_back(nullptr);
      v.value_list = palabras.data();
    }
    worksheet_data_validation_range(hoja, kFilaCabezas + 1, columna, kUltimaFila, columna, &v);
  }

  void Columna(lxw_worksheet* hoja, std::size_t i, const Dato<Tramo>& dato) {
    const auto c = static_cast<lxw_col_t>(i);
    const auto& ficha = dato.ficha;
    const bool texto = ficha.magnitud == Magnitud::Texto;
    worksheet_set_column(hoja, c, c, texto ? kAnchoTexto : kAncho, nullptr);
    libro_.Texto(hoja, kFilaCabezas, i, Cabecera(ficha, si_), Formato::Cabeza);
    if (const auto comentario = Comentario(ficha); !comentario.empty()) {
      worksheet_write_comment(hoja, kFilaCabezas, c, comentario.c_str());
    }
    if (texto) return;
    std::vector<std::string> lista;
    for (const auto codigo : ficha.codigos) lista.push_back(std::to_string(codigo));
    if (ficha.magnitud == Magnitud::Marca) lista = {"0", "1"};
    Valida(hoja, c, std::move(lista));
  }

  void Tramos() {
    auto* hoja = libro_.NuevaHoja(T(txt::MenuTramos));
    libro_.Texto(hoja, 0, 0, T(txt::PlantillaNota), Formato::Nota);
    libro_.Texto(hoja, kFilaCabezas, 0, std::string(kColumnaNumero), Formato::Cabeza);
    worksheet_set_column(hoja, 0, 0, kAncho, nullptr);
    std::size_t i = 1;
    for (const auto* dato : ColumnasDeTramo()) Columna(hoja, i++, *dato);
    worksheet_freeze_panes(hoja, kFilaCabezas + 1, 1);
  }

  void LaObra() {
    auto* hoja = libro_.NuevaHoja(T(txt::TarjetaObra));
    worksheet_set_column(hoja, 0, 1, kAncho, nullptr);
    worksheet_set_column(hoja, 3, 3, 2 * kAnchoTexto, nullptr);
    std::uint32_t fila = 0;
    for (const auto& dato : TablaDe(Obra{})) {
      const auto& ficha = dato.ficha;
      if (ficha.deSesion) continue;
      libro_.Texto(hoja, fila, 0, std::string(ficha.nombre), Formato::Titulo);
      if (ficha.nombre == "SisUnid") libro_.Texto(hoja, fila, 1, si_ ? "SI" : "MKS");
      libro_.Texto(hoja, fila, 2, UnidadDe(ficha, si_), Formato::Unidad);
      libro_.Texto(hoja, fila, 3, QueEs(ficha), Formato::Nota);
      ++fila;
    }
  }
};

}  // namespace

void EscribePlantilla(const std::filesystem::path& fichero, const Catalogo& textos, bool si) {
  Plantilla(fichero, textos, si).Escribe();
}

}  // namespace zorbin
