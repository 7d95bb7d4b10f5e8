#include "listados/calculadoras/mdMediosPapel.h"

#include <string>

#include "base/mdTextos.h"

namespace zorbin {

namespace {

constexpr int kLineasCabeza = 4;  // blank lines at the head of the page
constexpr int kMargen = 20;       // [columns]

void Partida(Papel& papel, const LineaMedios& linea) {
  std::string_view resto = linea.texto;
  // Every round takes at least one character away.
  for (int corte = BuscaBlanco(resto); corte > 0; corte = BuscaBlanco(resto)) {
    const auto primera = Primeros(resto, static_cast<std::size_t>(corte));
    papel.Linea(kMargen, std::string(primera));
    resto = Recorta(resto.substr(primera.size()));
  }
  papel.Linea(kMargen, std::string(resto));
}

}  // namespace

int BuscaBlanco(std::string_view Texto) {
  if (Largo(Texto) <= static_cast<std::size_t>(kAnchoPartido)) return -1;
  const auto principio = Primeros(Texto, static_cast<std::size_t>(kAnchoPartido));
  const auto blanco = principio.rfind(' ');
  if (blanco == std::string_view::npos) return -1;
  return static_cast<int>(Largo(principio.substr(0, blanco)));
}

void PapelMedios(const ResultadoMedios& r, const Catalogo& catalogo, const EstiloNumeros& estilo,
                 Papel& papel) {
  papel.LineasEnBlanco(kLineasCabeza);
  for (const auto& linea : LineasMedios(r, catalogo, estilo)) {
    papel.Negrita(linea.negrita);
    if (linea.texto.empty()) {
      papel.LineasEnBlanco(1);
    } else if (linea.partible) {
      Partida(papel, linea);
    } else {
      papel.Linea(kMargen, linea.texto);
    }
  }
  papel.Negrita(false);
}

}  // namespace zorbin
