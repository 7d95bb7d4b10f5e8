#include "persistencia/entrada/mdCsv.h"

#include "base/mdAnsi.h"
#include "base/textos.h"

namespace zorbin {

namespace {

constexpr std::string_view kPeligrosas = "=+-@\t\r";

bool EsUtf8(std::string_view texto) {
  while (!texto.empty()) {
    const auto c = PrimerCaracter(texto);
    if (c.codigo == 0xFFFD && c.bytes == 1) return false;
    texto.remove_prefix(c.bytes);
  }
  return true;
}

std::string DePaginaDeCodigos(std::string_view bytes) {
  constexpr char32_t kNinguno = 0xFFFD;
  std::string texto;
  for (const char c : bytes) {
    AnadeUtf8(texto, CaracterAnsi(static_cast<unsigned char>(c)).value_or(kNinguno));
  }
  return texto;
}

// The separator of the first line, outside of quotes.
char Separador(std::string_view bytes) {
  bool comillas = false, coma = false, tabulador = false;
  for (const char c : bytes) {
    if (c == '"') comillas = !comillas;
    if (comillas) continue;
    if (c == ';') return ';';
    tabulador |= c == '\t';
    coma |= c == ',';
    if (c == '\n') break;
  }
  return tabulador ? '\t' : coma ? ',' : ';';
}

// Reads one cell after another.
class Lector {
 public:
  explicit Lector(std::string_view bytes) : resto_(bytes), separador_(Separador(bytes)) {}

  Cuadro Lee() {
    cuadro_.decimal = separador_ == ',' ? '.' : ',';
    while (!resto_.empty()) {
      Celda();
      if (resto_.empty()) break;
      const char c = resto_.front();
      resto_.remove_prefix(1);
      if (c == separador_) {
        ++columna_;
        continue;
      }
      if (c == '\r' && resto_.starts_with('\n')) resto_.remove_prefix(1);
      ++fila_;
      columna_ = 0;
    }
    return std::move(cuadro_);
  }

 private:
  std::string_view resto_;
  char separador_;
  Cuadro cuadro_;
  std::size_t fila_ = 0, columna_ = 0;

  void Celda() {
    std::string texto = resto_.starts_with('"') ? EntreComillas() : std::string{};
    const char corte[] = {separador_, '\r', '\n', '\0'};
    const auto fin = resto_.find_first_of(corte);
    texto += resto_.substr(0, fin);
    resto_.remove_prefix(fin == std::string_view::npos ? resto_.size() : fin);
    // The apostrophe that keeps a spreadsheet from running a text is none of it.
    if (texto.size() > 1 && texto.front() == '\'' &&
        kPeligrosas.find(texto[1]) != std::string_view::npos) {
      texto.erase(0, 1);
    }
    if (!texto.empty()) cuadro_.Pon(fila_, columna_, {std::move(texto)});
  }

  std::string EntreComillas() {
    std::string texto;
    resto_.remove_prefix(1);
    while (true) {
      const auto fin = resto_.find('"');
      if (fin == std::string_view::npos) {
        throw ErrorEntrada({txt::EntComillasAbiertas, {NombreCelda(fila_, columna_)}});
      }
      texto += resto_.substr(0, fin);
      resto_.remove_prefix(fin + 1);
      if (!resto_.starts_with('"')) return texto;
      texto += '"';
      resto_.remove_prefix(1);
    }
  }
};

}  // namespace

void AnadeCelda(std::string& linea, std::string_view texto, char separador) {
  const bool peligra = !texto.empty() && kPeligrosas.find(texto.front()) != std::string_view::npos;
  const char malas[] = {separador, '"', '\r', '\n', '\0'};
  const bool comillas = texto.find_first_of(malas) != std::string_view::npos;
  if (comillas) linea += '"';
  if (peligra) linea += '\'';
  for (const char c : texto) {
    if (c == '"') linea += '"';
    linea += c;
  }
  if (comillas) linea += '"';
}

Cuadro LeeCsv(std::string_view bytes) {
  if (bytes.size() > kMaxEntrada) {
    throw ErrorEntrada({txt::EntDemasiado, {std::to_string(kMaxEntrada >> 20)}});
  }
  if (bytes.starts_with(kMarcaUtf8)) bytes.remove_prefix(kMarcaUtf8.size());
  if (EsUtf8(bytes)) return Lector(bytes).Lee();
  const std::string texto = DePaginaDeCodigos(bytes);
  return Lector(texto).Lee();
}

}  // namespace zorbin
