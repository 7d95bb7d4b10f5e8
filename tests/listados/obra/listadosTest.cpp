// Pages of the listings. Each golden file was read by eye; a difference leaves the new text
// beside it.
#include <gtest/gtest.h>

#include <sstream>

#include "base/mdCarpetas.h"
#include "base/mdTextos.h"
#include "comun/comparaFichero.h"
#include "comun/estadoDeJson.h"
#include "comun/listado.h"
#include "listados/obra/mdResumen.h"
#include "listados/obra/mdRotulos.h"
#include "listados/obra/mdTipoListado.h"
#include "listados/papel/mdHojasTexto.h"
#include "listados/papel/mdPapel.h"

namespace zorbin {
namespace {

using pruebas::Compara;
using pruebas::EnMks;
using pruebas::HojasDe;
using pruebas::ListadoDe;

EstadoCalculo Tramo(int posicion, double altura) {
  auto e = pruebas::EstadoDeMuestra(posicion);
  e.tramo.NumeroTramo = static_cast<std::int16_t>(posicion);
  e.tramo.Hr0Tramo = e.tramo.Hr0Final = altura;
  return e;
}

EstadoCalculo UnaPresion(EstadoCalculo e) {
  e.obra.Prs2 = e.obra.Prs1;
  e.tramo.Prs2Tram = e.tramo.Prs1Tram;
  e.tramo.PrsM2Tram = e.tramo.PrsM1Tram;
  return e;
}

std::vector<std::string> Lineas(const std::string& texto) {
  std::vector<std::string> lineas;
  std::istringstream f(texto);
  for (std::string l; std::getline(f, l);) lineas.push_back(l);
  return lineas;
}

// Trench with traffic; the embankment governs at the lower heights, so that the moving load per
// metre is left out there. Two heights, one pressure: the heading once, ovalisation per height.
TEST(ListadoNormal, ZanjaEnSI) {
  auto e = UnaPresion(Tramo(1, 2));
  e.tramo.Hr0Final = 4, e.tramo.Hr0Delta = 2;
  EXPECT_EQ(Compara("normal-zanja-si.txt", ListadoDe({e}, "normal")), "");
}

// Embankment without sheet, in MKS and in English: cracking, settlement, both later forms of the
// width, then a given load with a limit that flexure exceeds.
TEST(ListadoNormal, TerraplenYCargaDadaEnMksYEnIngles) {
  auto a = UnaPresion(Tramo(4, 3));
  a.tramo.TipoCamisa = 0;
  a.tramo.TipoControl = 2;
  a.obra.Prs1 = a.obra.Prs2 = 0.1, a.obra.PrsM1 = a.obra.PrsM2 = 0.15;
  auto b = UnaPresion(Tramo(5, 3));
  b.tramo.Icontes0 = true;
  b.tramo.Adato = 5;
  b.tramo.QDato = 0.2;
  EXPECT_EQ(
      Compara("normal-terraplen-mks-en.txt", ListadoDe({EnMks(a), EnMks(b)}, "normal", 2, '.')),
      "");
}

// Every warning that paper shows: limit moment, steel ratio, layers.
TEST(ListadoNormal, Avisos) {
  auto tope = UnaPresion(Tramo(4, 40));
  auto capas = UnaPresion(Tramo(2, 3));
  capas.obra.Prs1 = capas.obra.Prs2 = 2, capas.obra.PrsM1 = capas.obra.PrsM2 = 2.8;
  const std::string texto = ListadoDe({tope, capas}, "normal");
  const auto cuenta = [&texto](const std::string& que) {
    int n = 0;
    for (auto i = texto.find(que); i != std::string::npos; i = texto.find(que, i + 1)) ++n;
    return n;
  };
  EXPECT_GT(cuenta("*** MOMENTO MAYOR QUE MOMENTO TOPE ***"), 0);
  EXPECT_EQ(cuenta("ARMADURA INTERIOR  "), 1);  // the limit moment suppresses the result block
  EXPECT_EQ(cuenta("As/Acr tot.="), 2);
  EXPECT_EQ(Compara("normal-avisos.txt", texto), "");
}

TEST(ListadoTabular, FilasAlturasYAjustes) {
  auto e = pruebas::EstadoDeMuestra(1);
  e.tramo.NumeroTramo = 1;
  const std::vector<EntradaAjuste> ajustes{{5, 1, 3, {20, 0, 19.5}}};
  const auto texto = ListadoDe({e, Tramo(4, 3)}, "tabular", 1, ',', ajustes);
  EXPECT_EQ(Compara("tabular-si.txt", texto), "");
}

// A page takes 43 lines after its head (49 less 6): 9 of the Tramo, 4 of its data and 6 of the
// table's head on the first one, all but the data on the others, and the row that would leave none
// goes over. 16 heights of 3 pressures, two blank lines after each height.
TEST(ListadoTabular, SaltaDePaginaConSusCabezas) {
  auto e = Tramo(1, 2);
  e.tramo.Hr0Final = 3.5, e.tramo.Hr0Delta = 0.1;
  e.obra.NombreObra = "Obra";
  const auto mks = EnMks(e);
  int filas = 0;
  int cabezas = 0;  // rows of the Tramo
  std::vector<int> porPagina{0};
  for (const auto& l : Lineas(ListadoDe({mks}, "tabular", 1, '.'))) {
    if (l.starts_with('\f') && l.size() > 1) porPagina.push_back(0);
    if (l.find("******") != std::string::npos) filas = 0;
    if (l.find("Zanja, relleno sin compactar") != std::string::npos) ++cabezas;
    if (l.ends_with("MDP + TIERRAS")) {
      ++porPagina.back();
      if (filas++ == 0 && porPagina.size() == 1) {
        EXPECT_EQ(l.substr(5, 6), "  2.00");
      }
    }
  }
  // 24 lines of rows and gaps fit on the first page, 28 on the next: by groups of 5.
  EXPECT_EQ(porPagina, (std::vector<int>{15, 18, 15}));
  EXPECT_EQ(cabezas, 3);
}

TEST(ListadoPantalla, CasosEnSusPaginas) {
  auto capas = UnaPresion(Tramo(2, 3));
  capas.obra.Prs1 = capas.obra.Prs2 = 2, capas.obra.PrsM1 = capas.obra.PrsM2 = 2.8;
  const std::string texto = ListadoDe({UnaPresion(Tramo(3, 3)), capas}, "pantalla");
  EXPECT_EQ(Compara("pantalla-si.txt", texto), "");
  EXPECT_EQ(std::count(texto.begin(), texto.end(), '\f'), 2);
}

TEST(Listados, SIYMksTienenLasMismasPaginas) {
  const auto esqueleto = [](const std::string& texto) {
    std::string r;
    for (const auto& l : Lineas(texto)) r += l.empty() ? '-' : l[0] == '\f' ? 'F' : 'x';
    return r;
  };
  for (const char* clase : {"normal", "tabular", "pantalla"}) {
    for (int posicion : {1, 3, 4, 5, 6, 7}) {
      const auto e = pruebas::EstadoDeMuestra(posicion);
      EXPECT_EQ(esqueleto(ListadoDe({e}, clase)), esqueleto(ListadoDe({EnMks(e)}, clase))) << clase;
    }
  }
}

// A post-tensioned Tramo of each typology. "Coef. Lamé" is "Normal" with a page more for each
// hypothesis, which takes exactly the 72 lines of a sheet, and one for the verdict.
TEST(ListadosPostesado, NormalYLame) {
  EXPECT_EQ(Compara("postesado-normal-si.txt", ListadoDe({Tramo(7, 2.5)}, "normal")), "");
  const std::string lame = ListadoDe({EnMks(Tramo(7, 2.5))}, "lame", 1, '.');
  EXPECT_EQ(Compara("postesado-lame-mks.txt", lame), "");
  EXPECT_EQ(std::count(lame.begin(), lame.end(), '\f'), 5 + 2 * 6 + 1);
}

TEST(ListadosPostesado, TabularYPantalla) {
  auto mixto = pruebas::EstadoDeMuestra(6);
  mixto.tramo.NumeroTramo = 6;
  EXPECT_EQ(Compara("postesado-tabular-si.txt",
                    ListadoDe({mixto, Tramo(4, 3), Tramo(7, 2.5)}, "tabular")),
            "");
  EXPECT_EQ(
      Compara("postesado-tabular-mks.txt", ListadoDe({EnMks(Tramo(7, 2.5))}, "tabular", 1, '.')),
      "");
  EXPECT_EQ(
      Compara("postesado-pantalla-mks.txt", ListadoDe({EnMks(Tramo(7, 2.5))}, "pantalla", 1, '.')),
      "");
}

// A core too weak at winding: no hypothesis is printed, each has its page with the diagnostic, and
// the wire follows where there is a place for it. No wire at all: one page, no hypothesis line.
TEST(ListadosPostesado, LosDiagnosticos) {
  auto debil = Tramo(7, 2.5);
  debil.tramo.Fckno = 12;
  auto imposible = Tramo(7, 2.5);
  imposible.tramo.Prs1Tram = imposible.tramo.Prs2Tram = 9;
  imposible.tramo.PrsM1Tram = imposible.tramo.PrsM2Tram = 9.5;
  const auto cuenta = [](const std::string& texto, const std::string& que) {
    int n = 0;
    for (auto i = texto.find(que); i != std::string::npos; i = texto.find(que, i + 1)) ++n;
    return n;
  };
  const std::string normal = ListadoDe({debil, imposible}, "normal");
  EXPECT_EQ(cuenta(normal, "RESISTENCIA INICIAL INSUFICIENTE"), 6);
  EXPECT_EQ(cuenta(normal, "HIPOTESIS DE CALCULO:  "), 6);
  EXPECT_EQ(cuenta(normal, "PERDIDAS DE  POSTESADO"), 0);
  EXPECT_EQ(cuenta(normal, "ESPESOR DE TUBO INSUFICIENTE"), 1);
  EXPECT_EQ(Compara("postesado-avisos-pantalla.txt", ListadoDe({debil, imposible}, "pantalla")),
            "");
  EXPECT_EQ(Compara("postesado-avisos-tabular.txt", ListadoDe({debil, imposible}, "tabular")), "");
}

// What nobody may take for a design like the others says so in every output, and shows no area
// where there is none to build.
TEST(Listados, LoQueNoEsUnDisenoComoLosDemasSeDiceEnTodas) {
  auto tope = UnaPresion(Tramo(4, 40));
  auto sinSolucion = UnaPresion(Tramo(1, 3));
  sinSolucion.tramo.Icontes0 = true, sinSolucion.tramo.Adato = 3;
  const auto ajustado = UnaPresion(Tramo(1, 3));
  struct Fila {
    const EstadoCalculo& e;
    std::vector<EntradaAjuste> ajustes;
    std::string marca;      // of the row of Tabular
    std::string veredicto;  // in the others
    std::string dice;       // in all
    std::string calla;      // in none
  };
  const auto filas = std::to_array<Fila>({
      {tope,
       {},
       "\n  *   40,00 ",
       "NO CUMPLE (uso 1,222)",
       "omento mayor que el momento límite",
       "ARMADURA INTERIOR  "},
      {sinSolucion,
       {},
       "\n  *    3,00 ",
       "VEREDICTO: NO CUMPLE\n",
       "sin solución con la armadura exterior máxima",
       "501"},
      {ajustado,
       {{4, 1, 3, {20, 0, 19.5}}},
       "\n  ?A   3,00 ",
       "SIN COMPROBAR (uso 0,",
       "interior 19,5",
       "redondos por"},
      {ajustado,
       {{4, 1, 3, {15, 0, 9}}},
       "\n  *A   3,00 ",
       "NO CUMPLE (uso 1,",
       "interior 19,5",
       "redondos por"},
  });
  const Catalogo textos = Catalogo::Lee(CarpetaRecursos() / "textos");
  for (const auto& f : filas) {
    std::ostringstream flujo;
    Pantalla pantalla(flujo);
    Resumen(pantalla, textos, {true, ','}).Tramo(pruebas::ResultadoDe(f.e, f.ajustes), 1, "1", {});
    for (const std::string clase : {"normal", "tabular", "pantalla", "resumen"}) {
      const auto texto =
          clase == "resumen" ? flujo.str() : ListadoDe({f.e}, clase, 1, ',', f.ajustes);
      EXPECT_NE(texto.find(clase == "tabular" ? f.marca : f.veredicto), std::string::npos) << texto;
      EXPECT_NE(texto.find(f.dice), std::string::npos) << clase << f.dice << texto;
      EXPECT_EQ(texto.find(f.calla), std::string::npos) << clase << f.calla << texto;
    }
  }
}

// The steps of the heights miss the last one: head and summary tell which has no Caso.
TEST(Listados, LaAlturaFinalQueNoSeCalculaSeDice) {
  for (const int posicion : {1, 7}) {
    auto e = UnaPresion(Tramo(posicion, 2));
    e.tramo.Hr0Delta = 1;
    for (const bool falta : {true, false}) {
      e.tramo.Hr0Final = falta ? 3.5 : 3.0;
      const std::vector<ResultadoTramo> resultados{pruebas::ResultadoDe(e)};
      const std::vector<std::string> numeros{"1"};
      const Catalogo textos = Catalogo::Lee(CarpetaRecursos() / "textos");
      std::ostringstream flujo;
      Pantalla pantalla(flujo);
      Resumen(pantalla, textos, {true, ','}).Veredictos(resultados, numeros);
      for (const std::string clase : {"normal", "tabular", "pantalla", "lame", "resumen"}) {
        const auto texto = clase == "resumen" ? flujo.str() : ListadoDe({e}, clase);
        const std::string detras = clase == "tabular" ? "  " : "\n";  // another datum beside it
        const bool seDice =
            texto.find("** Altura final") != std::string::npos &&
            texto.find(": 3,50 m sin calcular; última: 3,00 m" + detras) != std::string::npos;
        EXPECT_EQ(seDice, falta) << clase << texto;
      }
    }
  }
}

// Size, bold and underline of the first line that holds a text; size 0 when there is none.
std::string Letra(const std::vector<Hoja>& hojas, const std::string& que) {
  for (const auto& hoja : hojas) {
    for (const auto& t : hoja.textos) {
      if (t.texto.find(que) == std::string::npos) continue;
      return TextoEntero(static_cast<int>(t.cuerpo)) + (t.negrita ? "b" : "") +
             (t.subrayado ? "_" : "");
    }
  }
  return "0";
}

TEST(Listados, LetraDeLosTitulosYDiagnosticos) {
  const auto normal = HojasDe({UnaPresion(Tramo(1, 2))}, "normal");
  EXPECT_EQ(Letra(normal, "Pag"), "14b");
  EXPECT_EQ(Letra(normal, "HIPOTESIS   Peso propio"), "10b");
  EXPECT_EQ(Letra(normal, "SECCION     MOMENTO"), "10_");
  EXPECT_EQ(Letra(normal, "ARMADURA INTERIOR"), "10b");
  auto debil = Tramo(7, 2.5);
  debil.tramo.Fckno = 12;
  EXPECT_EQ(Letra(HojasDe({debil}, "normal"), "RESISTENCIA INICIAL INSUF"), "12b");
  EXPECT_EQ(Letra(HojasDe({Tramo(7, 2.5)}, "tabular"), "Fck Prim."), "10b");
  EXPECT_EQ(Letra(HojasDe({Tramo(3, 3)}, "pantalla"), "CASO NUMERO"), "10b");
}

// A Tramo that breaks off says so on its page. A dozen of them leave little of the page, and the
// next Caso breaks its own block, whose rest says of which Caso and pressure it is.
TEST(ListadoPantalla, TramosFallidosYSaltoDentroDeUnCaso) {
  auto fallido = UnaPresion(Tramo(2, 3));
  fallido.tramo.Fi = 0;
  std::vector<EstadoCalculo> tramos(12, fallido);
  auto debil = UnaPresion(Tramo(7, 2.5));
  debil.tramo.Fckno = 12;
  tramos.push_back(debil);
  EXPECT_EQ(Compara("pantalla-fallos.txt", ListadoDe(tramos, "pantalla")), "");
  for (const char* clase : {"normal", "tabular"}) {
    EXPECT_NE(ListadoDe({fallido}, clase).find("División por cero"), std::string::npos) << clase;
  }
}

// Whoever is asked before the second Caso says no: nothing of it is on the pages.
TEST(Listados, SeCancelanEntreCasoYCaso) {
  const auto resultado = pruebas::ResultadoDe(Tramo(1, 2));
  ASSERT_GT(resultado.filas.size(), 2u);
  const Catalogo textos = Catalogo::Lee(CarpetaRecursos() / "textos");
  for (int i = 0; i < kTiposListado; ++i) {
    const auto tipo = static_cast<TipoListado>(i);
    std::ostringstream salida;
    HojasTexto hojas(salida);
    Papel papel(hojas, OrientacionDe(tipo));
    int preguntas = 0;
    const auto listado = CreaListado(tipo, {papel, textos, {true, ','}, {}});
    EXPECT_FALSE(listado->Tramo(resultado, 1, "1", [&] { return ++preguntas < 2; }));
    papel.FinDocumento();
    EXPECT_EQ(salida.str().find("0,500"), std::string::npos) << i;
    EXPECT_NE(salida.str().find("0,4"), std::string::npos) << i;
  }
}

// The foot tells which sheet of how many, whatever the listing, and stands under every line.
TEST(Listados, ElPieDeCadaHoja) {
  auto largo = Tramo(1, 1);
  largo.tramo.Hr0Final = 60, largo.tramo.Hr0Delta = 1;
  largo.obra.Cliente = std::string(200, 'x');
  for (const char* clase : {"normal", "tabular", "pantalla"}) {
    const auto hojas = HojasDe({largo}, clase);
    ASSERT_GT(hojas.size(), 2u);
    for (std::size_t i = 0; i < hojas.size(); ++i) {
      const auto& textos = hojas[i].textos;
      const auto& pie = textos.back();
      const auto pagina = "ZORBIN 1.2.3 · 21/11/2026 · Página " + std::to_string(i + 1) + " de " +
                          std::to_string(hojas.size());
      EXPECT_TRUE(pie.texto.ends_with(pagina)) << pie.texto;
      EXPECT_NE(pie.texto.find("Conducción de la Acequia Real · xxx"), std::string::npos);
      EXPECT_NE(pie.texto.find("… · acequia.zrb"), std::string::npos);
      EXPECT_LE(static_cast<double>(Largo(pie.texto)) * AnchoColumna(pie.cuerpo),
                hojas[i].Ancho() - 5.0);
      const auto& ultima = textos[textos.size() - 2];
      EXPECT_LE(ultima.y + AltoLinea(ultima.cuerpo), pie.y + 1e-9) << clase << i;
    }
  }
}

// Sixty heights take several sheets: none of them shows rows without the head of their table.
TEST(ListadoNormal, LasTablasQueSiguenRepitenSuCabeza) {
  auto e = UnaPresion(Tramo(4, 1));
  e.tramo.Hr0Final = 60, e.tramo.Hr0Delta = 1;
  int conFilas = 0;
  for (const auto& hoja : HojasDe({e}, "normal")) {
    int cabezas = 0;
    int filas = 0;
    for (const auto& t : hoja.textos) {
      if (t.texto.find("CARGAS DE CADA ALTURA") != std::string::npos) ++cabezas;
      if (t.texto.find("Tierr Carg de tierras") != std::string::npos) ++cabezas;
      const auto numeros = t.texto.find_first_not_of(" ,0123456789") == std::string::npos;
      if (numeros && t.texto.size() > 55 && t.texto.find("  0,") == std::string::npos) ++filas;
    }
    if (filas > 10) ++conFilas;
    EXPECT_TRUE(filas <= 10 || cabezas > 0) << hoja.textos.at(0).texto;
  }
  EXPECT_GE(conFilas, 3);
}

// No mark is ever printed as a pressure; 99999 at is 9999.9 MPa.
TEST(ListadosPostesado, LaPruebaObtenidaQueNoEsPresion) {
  const Catalogo textos = Catalogo::Lee(CarpetaRecursos() / "textos");
  struct Fila {
    double PP;
    int hipotesis;
    bool final;
    std::string texto, pasada;
  };
  const std::vector<Fila> filas{{16.2, 4, true, "1,620", ""},
                                {16.2, 6, false, "1,620", "hipótesis 6"},
                                {kPPSinLimite, 4, true, "sin límite", ""},
                                {kPPSinLimite, 0, false, "sin comprobar", ""},
                                {kPPAlambreCambia, 0, false, "cambia el alambre", ""},
                                {16.8, 0, false, "sin comprobar", ""}};
  for (const auto& f : filas) {
    ResultadoPostesado r;
    r.PP = f.PP, r.PPHipotesis = f.hipotesis, r.PPConAlambreFinal = f.final;
    const auto texto = TextoPruebaFabrica(r, 16.8, textos, {true, ','});
    EXPECT_NE(texto.find("exigida 1,68"), std::string::npos) << texto;
    EXPECT_NE(texto.find("obtenida " + f.texto), std::string::npos) << texto;
    EXPECT_NE(TextoPasadaPP(r, textos).find(f.pasada), std::string::npos);
    EXPECT_EQ(TextoPasadaPP(r, textos).empty(), f.pasada.empty());
  }
}

// Sheets as they come out of the paper.
struct Guarda : DestinoHojas {
  std::vector<Hoja> hojas;
  void RecibeHoja(const Hoja& h) override { hojas.push_back(h); }
};

TEST(Papel, Caben72LineasYLaSiguienteVaAOtraHoja) {
  Guarda g;
  Papel p(g, Orientacion::Vertical);
  p.Cuerpo(kCuerpoTitulo);
  p.Linea(6, "cabeza");
  p.Cuerpo(kCuerpoNormal);
  for (int i = 1; i < 72; ++i) p.Linea(0, "x");
  EXPECT_TRUE(g.hojas.empty());
  p.LineasEnBlanco(5);  // a blank line begins no sheet
  EXPECT_TRUE(g.hojas.empty());
  p.Linea(0, "x");
  EXPECT_EQ(g.hojas.size(), 1u);
  p.FinDocumento();
  EXPECT_EQ(g.hojas.size(), 2u);
  const auto& ultima = g.hojas[0].textos.back();
  EXPECT_LT(ultima.y + AltoLinea(10), 297.0);
}

TEST(Papel, UnTextoMasAnchoQueLaHojaSeEncoge) {
  Guarda g;
  Papel p(g, Orientacion::Vertical);
  p.Linea(8, std::string(120, 'w'));
  p.Linea(8, std::string(80, 'w'));
  p.Linea(8, "ñ" + std::string(85, ' '));  // trailing blanks take no room
  p.FinDocumento();
  const auto& t = g.hojas.at(0).textos;
  EXPECT_LE(128 * AnchoColumna(t[0].cuerpo), 205.0 + 1e-9);
  EXPECT_EQ(t[1].cuerpo, 10.0);
  EXPECT_EQ(t[2].cuerpo, 10.0);
}

}  // namespace
}  // namespace zorbin
