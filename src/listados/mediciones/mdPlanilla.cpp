#include "listados/mediciones/mdPlanilla.h"

#include <algorithm>

#include "base/mdNumeros.h"
#include "base/mdTextos.h"
#include "listados/datos/mdLibroXlsx.h"
#include "listados/papel/mdFormato.h"

namespace zorbin {

namespace {

constexpr int kEntreColumnas = 2;
constexpr double kAnchoNumero = 12;  // characters
constexpr double kAnchoPalabras = 28;

int Ancho(const std::string& texto) {
  return static_cast<int>(Largo(texto));
}

std::string Justifica(const std::string& texto, int ancho, bool derecha) {
  return derecha ? ALaDerecha(texto, ancho) : FormatoTexto(texto, ancho);
}

std::string SinBlancosFinales(std::string linea) {
  linea.erase(linea.find_last_not_of(' ') + 1);
  return linea + "\n";
}

std::string CampoCsv(std::string texto, char columna) {
  if (!texto.empty() && std::string_view("=+-@\t").find(texto.front()) != std::string::npos) {
    texto.insert(texto.begin(), '\'');
  }
  if (texto.find_first_of(std::string("\"\r\n") + columna) == std::string::npos) return texto;
  std::string citado = "\"";
  for (const char c : texto) citado += c == '"' ? std::string("\"\"") : std::string(1, c);
  return citado + "\"";
}

std::string ConUnidad(const ColumnaPlanilla& c) {
  return c.unidad.empty() ? c.titulo : c.titulo + " (" + c.unidad + ")";
}

}  // namespace

std::string Mostrada(const CeldaPlanilla& celda, char separador) {
  return celda.numero ? TextoDecimal(*celda.numero, celda.decimales, separador) : celda.texto;
}

std::string TextoDePlanilla(const Planilla& p, char separador) {
  std::vector<int> anchos;
  for (const auto& c : p.columnas) anchos.push_back(std::max(Ancho(c.titulo), Ancho(c.unidad)));
  for (const auto& fila : p.filas) {
    for (std::size_t i = 0; i < fila.celdas.size(); ++i) {
      anchos[i] = std::max(anchos[i], Ancho(Mostrada(fila.celdas[i], separador)));
    }
  }
  const auto linea = [&](const auto& texto) {
    std::string junta;
    for (std::size_t i = 0; i < p.columnas.size(); ++i) {
      junta += Justifica(texto(i), anchos[i], p.columnas[i].numeros) + Blancos(kEntreColumnas);
    }
    return SinBlancosFinales(std::move(junta));
  };
  int total = -kEntreColumnas;
  for (const int a : anchos) total += a + kEntreColumnas;
  const std::string raya = std::string(static_cast<std::size_t>(std::max(total, 0)), '-') + "\n";
  std::string texto = p.titulo + "\n" + raya;
  texto += linea([&](std::size_t i) { return p.columnas[i].titulo; });
  texto += linea([&](std::size_t i) { return p.columnas[i].unidad; }) + raya;
  for (const auto& fila : p.filas) {
    if (fila.total) texto += raya;
    texto += linea([&](std::size_t i) {
      return i < fila.celdas.size() ? Mostrada(fila.celdas[i], separador) : std::string();
    });
  }
  texto += raya;
  for (const auto& nota : p.notas) texto += nota + "\n";
  return texto;
}

std::string CsvDePlanillas(const std::vector<Planilla>& planillas, char separador) {
  const char columna = separador == ',' ? ';' : ',';
  std::string csv = "\xEF\xBB\xBF";
  const auto linea = [&](std::size_t n, const auto& campo) {
    for (std::size_t i = 0; i < n; ++i) csv += (i > 0 ? std::string(1, columna) : "") + campo(i);
    csv += "\r\n";
  };
  for (const auto& p : planillas) {
    if (&p != &planillas.front()) csv += "\r\n";
    csv += CampoCsv(p.titulo, columna) + "\r\n";
    linea(p.columnas.size(),
          [&](std::size_t i) { return CampoCsv(ConUnidad(p.columnas[i]), columna); });
    for (const auto& fila : p.filas) {
      linea(fila.celdas.size(), [&](std::size_t i) {
        const auto texto = Mostrada(fila.celdas[i], separador);
        return fila.celdas[i].numero ? texto : CampoCsv(texto, columna);
      });
    }
  }
  return csv;
}

void EscribeXlsx(const std::filesystem::path& fichero, const std::vector<Planilla>& planillas) {
  LibroXlsx libro(fichero);
  for (const auto& p : planillas) {
    auto* hoja = libro.NuevaHoja(p.titulo);
    for (std::size_t i = 0; i < p.columnas.size(); ++i) {
      const auto c = static_cast<lxw_col_t>(i);
      worksheet_set_column(hoja, c, c, p.columnas[i].numeros ? kAnchoNumero : kAnchoPalabras,
                           nullptr);
      libro.Texto(hoja, 0, i, p.columnas[i].unidad, Formato::Unidad);
    }
    for (std::size_t i = 0; i < p.columnas.size(); ++i) {
      libro.Texto(hoja, 1, i, p.columnas[i].titulo, Formato::Cabeza);
    }
    worksheet_freeze_panes(hoja, 2, 0);
    std::uint32_t n = 2;
    for (const auto& fila : p.filas) {
      for (std::size_t i = 0; i < fila.celdas.size(); ++i) {
        const auto& celda = fila.celdas[i];
        if (celda.numero) {
          libro.Numero(hoja, n, i, *celda.numero, celda.decimales);
        } else if (!celda.texto.empty()) {
          libro.Texto(hoja, n, i, celda.texto, fila.total ? Formato::Titulo : Formato::Texto);
        }
      }
      ++n;
    }
    ++n;
    for (const auto& nota : p.notas) libro.Texto(hoja, n++, 0, nota, Formato::Nota);
  }
  libro.Termina();
}

}  // namespace zorbin
