// Listings of the calculators for golden files.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <sstream>
#include <string>
#include <vector>

#include "base/mdCarpetas.h"
#include "base/mdCatalogo.h"
#include "comun/comparaFichero.h"
#include "listados/papel/mdFormato.h"
#include "listados/papel/mdHojasTexto.h"

namespace zorbin::pruebas {

inline Catalogo Textos() {
  return Catalogo::Lee(CarpetaRecursos() / "textos");
}

inline constexpr EstiloNumeros kConComa{true, ','};

inline void ComparaDorado(const std::string& nombre, const std::string& texto) {
  EXPECT_EQ(Compara(nombre, texto), "");
}

/// The sheets of a document, and their text.
struct Impreso : DestinoHojas {
  std::vector<Hoja> hojas;
  std::string texto;

  void RecibeHoja(const Hoja& hoja) override {
    hojas.push_back(hoja);
    std::ostringstream salida;
    HojasTexto(salida).RecibeHoja(hoja);
    texto += salida.str();
  }
};

inline Impreso Imprime(const std::function<void(Papel&)>& documento) {
  Impreso impreso;
  Papel papel(impreso, Orientacion::Vertical);
  documento(papel);
  papel.FinDocumento();
  return impreso;
}

}  // namespace zorbin::pruebas
