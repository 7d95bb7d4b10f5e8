#include "core/campos/mdDatos.h"

#include <gtest/gtest.h>

#include <set>

namespace zorbin {
namespace {

// Two data in one record would overwrite each other, and two of one name in the results.
template <class Bloque>
void ExigeUnicos(int primero, int ultimo) {
  std::set<int> registros;
  std::set<std::string_view> nombres;
  const Bloque bloque;
  RecorreDatos(bloque, [&](const Ficha& ficha, const auto&) {
    EXPECT_TRUE(nombres.insert(ficha.nombre).second) << ficha.nombre;
    for (const int n : {ficha.registro, ficha.registroMks}) {
      if (n == 0) continue;
      EXPECT_TRUE(registros.insert(n).second && n >= primero && n <= ultimo) << ficha.nombre;
    }
  });
}

TEST(Datos, CadaUnoTieneNombreYRegistroPropios) {
  ExigeUnicos<Obra>(5, 19);
  ExigeUnicos<Tramo>(8, 65);
}

}  // namespace
}  // namespace zorbin
