#include "listados/obra/mdResumen.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <nlohmann/json.hpp>
#include <sstream>

#include "base/mdCarpetas.h"
#include "comun/comparaFichero.h"
#include "comun/estadoDeJson.h"
#include "comun/listado.h"

namespace zorbin {
namespace {

using pruebas::Compara;

std::string ResumenDe(const EstadoCalculo& e, char separador) {
  const Catalogo textos = Catalogo::Lee(CarpetaRecursos() / "textos");
  std::ostringstream salida;
  Pantalla pantalla(salida);
  Resumen resumen(pantalla, textos, {e.obra.EsSI(), separador});
  const std::vector<ResultadoTramo> resultado{pruebas::ResultadoDe(e)};
  const std::vector<std::string> numero{"1"};
  resumen.Veredictos(resultado, numero);
  resumen.Tramo(resultado[0], 1, "1", {});
  return salida.str();
}

EstadoCalculo UnCaso(int posicion) {
  auto e = pruebas::EstadoDeMuestra(posicion);
  e.tramo.NumeroTramo = static_cast<std::int16_t>(posicion);
  e.tramo.Hr0Tramo = e.tramo.Hr0Final = 3;
  e.obra.Prs2 = e.obra.Prs1;
  return e;
}

// One Caso with each kind of warning that the summary shows, in SI and in MKS.
TEST(Resumen, TextoDeLaPantalla) {
  std::string texto = ResumenDe(UnCaso(2), ',');
  auto e = UnCaso(3);
  e.tramo.Prs2Tram = e.tramo.Prs1Tram, e.tramo.PrsM2Tram = e.tramo.PrsM1Tram;
  e.tramo.Adato = 8;
  texto += ResumenDe(pruebas::EnMks(e), '.');
  for (const int posicion : {4, 2}) {
    e = UnCaso(posicion);
    e.obra.Prs1 = e.obra.Prs2 = 2, e.obra.PrsM1 = e.obra.PrsM2 = 2.8;
    texto += ResumenDe(e, ',');
  }
  EXPECT_EQ(Compara("resumen.txt", texto), "");
}

TEST(Resumen, TextoDeUnTramoPostesado) {
  auto e = pruebas::EstadoDeMuestra(7);
  e.tramo.NumeroTramo = 7;
  std::string texto = ResumenDe(pruebas::EnMks(e), '.');
  e.tramo.Fckno = 12;
  texto += ResumenDe(e, ',');
  EXPECT_EQ(Compara("resumen-postesado.txt", texto), "");
}

TEST(Resumen, ElMismoTramoEnSIYEnMksSoloCambiaDeUnidades) {
  const auto lineas = [](const std::string& t) { return std::count(t.begin(), t.end(), '\n'); };
  for (int posicion = 1; posicion <= 5; ++posicion) {
    const auto e = pruebas::EstadoDeMuestra(posicion);
    const std::string si = ResumenDe(e, '.');
    const std::string mks = ResumenDe(pruebas::EnMks(e), '.');
    EXPECT_EQ(lineas(si), lineas(mks));
    const auto areas = [](const std::string& t) {
      std::string r;
      std::istringstream f(t);
      for (std::string l; std::getline(f, l);) {
        if (l.find(" cm2/m") != std::string::npos || l.find("As/Acr") != std::string::npos)
          r += l + "\n";
      }
      return r;
    };
    EXPECT_EQ(areas(si), areas(mks));
  }
}

}  // namespace
}  // namespace zorbin
