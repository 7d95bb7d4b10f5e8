// zorbin-calc brings data in and takes tables out.
#include <gtest/gtest.h>
#include <sys/wait.h>

#include <cstdlib>

#include "comun/carpeta.h"
#include "persistencia/proyecto/mdProyecto.h"

namespace zorbin {
namespace {

namespace fs = std::filesystem;
using pruebas::Bytes;
using pruebas::PonBytes;

struct Importa : testing::Test {
  pruebas::Carpeta carpeta;
  std::string acequia = ZORBIN_FUENTES "muestras/acequia.zrb";
  std::string json = (carpeta / "a.json").string();
  std::string obra = (carpeta / "o.zrb").string();

  int Llama(const std::string& palabras) const {
    const std::string orden = "XDG_STATE_HOME=" + carpeta.ruta().string() +
                              " LC_ALL=C " ZORBIN_CALC " " + palabras + " >" +
                              (carpeta / "salida").string() + " 2>" + (carpeta / "quejas").string();
    return WEXITSTATUS(std::system(orden.c_str()));
  }
  std::string Quejas() const { return Bytes(carpeta / "quejas"); }
};

TEST_F(Importa, DeLaObraAlJsonYVueltaSonLosMismosBytes) {
  ASSERT_EQ(Llama("calcula " + acequia + " --formato json --salida " + json), 0);
  const std::string primera = (carpeta / "p.zrb").string();
  ASSERT_EQ(Llama("importa " + json + " " + primera + " --separador coma"), 0) << Quejas();
  ASSERT_EQ(Llama("calcula " + primera + " --formato json --salida " + json), 0);
  ASSERT_EQ(Llama("importa " + json + " " + obra + " --separador coma"), 0) << Quejas();
  EXPECT_EQ(Bytes(obra), Bytes(primera));
  // And a table of the same, over what is there: nothing changes.
  const std::string libro = (carpeta / "t.xlsx").string();
  ASSERT_EQ(Llama("calcula " + primera + " --tabla " + libro), 0) << Quejas();
  ASSERT_EQ(Llama("importa " + libro + " " + obra + " --separador coma"), 0) << Quejas();
  EXPECT_EQ(Bytes(carpeta / "salida"), obra + ": Tramos nuevos 0, cambiados 0, iguales 7\n");
  EXPECT_EQ(Bytes(obra), Bytes(primera));
}

TEST_F(Importa, NadaSeEscribeSiAlgoNoValeSalvoLoQueVale) {
  ASSERT_EQ(Llama("calcula " + acequia + " --formato json --salida " + json), 0);
  std::string datos = Bytes(json);
  const auto lugar = datos.find("\"TipoApoyo\":11");
  ASSERT_NE(lugar, std::string::npos);
  PonBytes(json, datos.replace(lugar, 14, "\"TipoApoyo\":77"));
  EXPECT_EQ(Llama("importa " + json + " " + obra), 1);
  EXPECT_NE(Quejas().find("Celda tramos[0].TipoApoyo: Tramo 1, TipoApoyo = «77»: se espera uno de "
                          "estos: 0, 11, 12, 21, 22, 31"),
            std::string::npos)
      << Quejas();
  EXPECT_FALSE(fs::exists(obra));
  EXPECT_EQ(Llama("importa " + json + " " + obra + " --parcial"), 1);
  EXPECT_EQ(PosicionesDe(LeeProyecto(obra).lista).size(), 6U);
}

TEST_F(Importa, LasPalabrasQueNoSirven) {
  for (const std::string& palabras : std::vector<std::string>{
           "importa", "importa " + json, "importa a.txt " + obra, "importa --plantilla p.csv",
           "calcula " + acequia + " --tabla a.txt", "calcula " + acequia + " --columnas Hr",
           "calcula " + acequia + " --tabla a.csv --columnas no",
           "calcula " + acequia + " --tabla a.csv --formato json",
           "calcula " + acequia + " --tabla " + acequia}) {
    EXPECT_EQ(Llama(palabras), 2) << palabras;
    EXPECT_NE(Quejas(), "") << palabras;
  }
  EXPECT_EQ(Llama("importa " + json + " " + obra), 1);  // no such file
  EXPECT_FALSE(fs::exists(obra));
}

}  // namespace
}  // namespace zorbin
