#include "persistencia/entrada/mdCuadro.h"

#include "base/mdTextos.h"
#include "base/textos.h"

namespace zorbin {

std::string Visto(std::string_view texto) {
  constexpr std::size_t kLetras = 60;
  const auto visto = Primeros(texto, kLetras);
  return visto.size() < texto.size() ? std::string(visto) + "…" : std::string(texto);
}

std::string NombreCelda(std::size_t fila, std::size_t columna) {
  constexpr std::size_t kLetras = 26;
  std::string letras;
  for (std::size_t n = columna + 1; n > 0; n = (n - 1) / kLetras) {
    letras.insert(letras.begin(), static_cast<char>('A' + (n - 1) % kLetras));
  }
  return letras + std::to_string(fila + 1);
}

void Cuadro::Pon(std::size_t fila, std::size_t columna, CeldaLeida celda) {
  const auto exige = [&](bool cabe, std::size_t cuantos, int texto) {
    if (!cabe) throw ErrorEntrada({texto, {NombreCelda(fila, columna), std::to_string(cuantos)}});
  };
  exige(fila < kMaxFilasEntrada, kMaxFilasEntrada, txt::EntDemasiadasFilas);
  exige(columna < kMaxColumnasEntrada, kMaxColumnasEntrada, txt::EntDemasiadasColumnas);
  exige(celda.texto.size() <= kMaxTextoCelda, kMaxTextoCelda, txt::EntCeldaLarga);
  if (fila >= filas.size()) filas.resize(fila + 1);
  auto& f = filas[fila];
  if (columna >= f.size()) {
    celdas_ += columna + 1 - f.size();
    exige(celdas_ <= kMaxCeldas, kMaxCeldas, txt::EntDemasiadasCeldas);
    f.resize(columna + 1);
  }
  f[columna] = std::move(celda);
}

}  // namespace zorbin
