// The documents that come with the program, in the five languages.
#include <gtest/gtest.h>

#include <array>
#include <regex>
#include <set>
#include <sstream>

#include "base/mdCarpetas.h"
#include "base/textos.h"
#include "listados/calculadoras/mdMediosListado.h"
#include "persistencia/documentos/mdRtf.h"

namespace zorbin {
namespace {

constexpr std::array<int, 5> kDocumentos{txt::DocDerechoDeUso, txt::DocAguasPuras,
                                         txt::DocAvisoRecubrimientos, txt::DocVisorPdf,
                                         txt::DocMemoria};

class Documentos : public testing::TestWithParam<std::int16_t> {
 protected:
  Documentos() { textos.PonIdioma(GetParam()); }

  // A document by its entry: paragraphs on a line each, every gap between words a single blank.
  std::string Texto(int entrada) const {
    std::string texto;
    for (const auto& p : LeeRtf(RutaDocumento(textos.Texto(entrada))).parrafos) {
      for (const auto& t : p.trozos) texto += t.texto;
      texto += '\n';
    }
    return UnSoloBlanco(texto);
  }

  static std::string UnSoloBlanco(const std::string& texto) {
    return std::regex_replace(texto, std::regex("(\u00a0|[ \t])+"), " ");
  }

  std::string Analiza(const MuestraMedios& m) const {
    return UnSoloBlanco(TextoMedios(AnalizaMedios(m), textos, {.separador = separador}));
  }

  const char separador = GetParam() == 2 ? '.' : ',';  // of the texts in English
  Catalogo textos = Catalogo::Lee(CarpetaRecursos() / "textos");
};

TEST_P(Documentos, SeLeenEnterosYSonDeSuIdioma) {
  Catalogo es = textos;
  es.PonIdioma(1);
  for (const int entrada : kDocumentos) {
    const auto ruta = RutaDocumento(textos.Texto(entrada));
    ASSERT_FALSE(ruta.empty()) << textos.Texto(entrada);
    EXPECT_EQ(ruta.filename(), textos.Texto(entrada));
    const auto d = LeeRtf(ruta);
    EXPECT_TRUE(d.entero) << ruta;
    const std::string texto = Texto(entrada);
    EXPECT_GT(texto.size(), 800u) << ruta;
    EXPECT_LT(texto.size(), 4500u) << ruta;
    for (const char* resto : {"\ufffd", "\\", "{", "}"}) {
      EXPECT_EQ(texto.find(resto), std::string::npos) << ruta << " «" << resto << "»";
    }
    EXPECT_EQ(ruta == RutaDocumento(es.Texto(entrada)), GetParam() == 1) << ruta;
  }
  EXPECT_EQ(RutaDocumento("textoiet.rtf").filename(), "TEXTOIET.RTF");
  EXPECT_TRUE(RutaDocumento("TEXTOIET").empty());
  EXPECT_TRUE(RutaDocumento("").empty());
}

// Every line that the analysis writes stands in the example, and so do the measures of its
// variants.
TEST_P(Documentos, ElEjemploDeAguasPurasEsLoQueDaElPrograma) {
  const std::string ejemplo = Texto(txt::DocAguasPuras);
  MuestraMedios m;
  m.valor[kPH] = 6.2;
  m.valor[kCO2] = 35;
  m.valor[kMg] = 2;
  m.valor[kSO4Exterior] = 8;
  m.valor[kSO4Interior] = 8;
  m.valor[kResistividad] = 450;
  std::istringstream lineas(Analiza(m));
  std::size_t lugar = 0;
  int cuenta = 0;
  for (std::string linea; std::getline(lineas, linea);) {
    while (linea.ends_with(' ')) linea.pop_back();
    if (linea.find_first_not_of("=-") == std::string::npos) continue;
    lugar = ejemplo.find(linea + "\n", lugar);
    ASSERT_NE(lugar, std::string::npos) << "«" << linea << "» in " << ejemplo;
    ++cuenta;
  }
  EXPECT_EQ(cuenta, 16);
}

TEST_P(Documentos, LasVariantesDelEjemploTambien) {
  const std::string ejemplo = Texto(txt::DocAguasPuras);
  const EstiloNumeros estilo{.separador = separador};
  const auto analiza = [](double pH, double CO2) {
    MuestraMedios m;
    m.valor[kPH] = pH;
    m.valor[kCO2] = CO2;
    return AnalizaMedios(m);
  };
  // The rest of the line of the example that names a value.
  const auto linea = [&](double valor) {
    const auto lugar = ejemplo.find(" " + estilo.FormatoNumero(valor, 0, 2));
    return lugar == std::string::npos ? ""
                                      : ejemplo.substr(lugar, ejemplo.find('\n', lugar) - lugar);
  };
  const auto medida = [&](int entrada, const std::string& valor) {
    return UnSoloBlanco(textos.Texto(entrada) + " ") + valor;
  };
  const auto dosis = [&](const ResultadoMedios& r) {
    return medida(txt::DosificacionDeCemento, estilo.FormatoNumero(r.Dosificacion, 0, 2));
  };
  const auto relacion = [&](const ResultadoMedios& r) {
    return medida(txt::RelacionAguaCemento, estilo.FormatoNumero(r.RelacionAC, 0, 2));
  };
  const auto mas = analiza(6.2, 75), muchoMas = analiza(6.2, 110), acida = analiza(4.2, 35);
  EXPECT_NE(linea(75).find(dosis(mas)), std::string::npos) << linea(75);
  EXPECT_NE(linea(75).find(relacion(mas)), std::string::npos) << linea(75);
  EXPECT_EQ(dosis(muchoMas) + relacion(muchoMas), dosis(mas) + relacion(mas));  // "the same"
  EXPECT_NE(linea(110).find(medida(txt::NecesidadesAdicionales, textos.Texto(muchoMas.Adicional))),
            std::string::npos)
      << linea(110);
  EXPECT_NE(linea(4.2).find(dosis(acida)), std::string::npos) << linea(4.2);
  EXPECT_NE(linea(4.2).find(relacion(acida)), std::string::npos) << linea(4.2);
  EXPECT_EQ(acida.Adicional, txt::RespuestaNo);  // "nothing more"
}

INSTANTIATE_TEST_SUITE_P(Idioma, Documentos, testing::Values(1, 2, 3, 4, 5));

}  // namespace
}  // namespace zorbin
