// The work behind the screens, over a copy of the sample Obra: what it says, and what it leaves.
#include "sesion/trabajo/mdTrabajo.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <future>
#include <map>
#include <sstream>

#include "base/textos.h"
#include "calculo/corrida/mdCalculaTramo.h"
#include "comun/comparaFichero.h"
#include "comun/textoEntero.h"
#include "listados/obra/mdDocumento.h"
#include "listados/obra/mdResumen.h"
#include "listados/papel/mdHojasTexto.h"
#include "persistencia/dpe/mdDpe.h"
#include "persistencia/proyecto/mdProyecto.h"
#include "sesion/captura/guion.h"
#include "sesion/captura/mdFaltas.h"

namespace zorbin::prueba {
namespace {

namespace fs = std::filesystem;

constexpr int kTramos = 7;
const Fecha kFecha{"21/11/2026", "09:30:00"};

std::string EnTexto(const Calculo& calculo, TipoListado tipo) {
  std::ostringstream salida;
  HojasTexto hojas(salida);
  EscribeListado(calculo, tipo, hojas, kFecha);
  return salida.str();
}

// A calculation and its summary; none where it is refused.
struct Hecho {
  std::optional<Calculo> calculo;
  std::string resumen;

  const Calculo* operator->() const { return &calculo.value(); }
};

// The capture over a copy of the sample Obra.
struct Oficina {
  Oficina() : Oficina(0, {}) {}
  /// A record of the copy holds another text.
  Oficina(int registro, const std::string& texto) {
    fs::copy_file(ZORBIN_FUENTES "muestras/acequia.zrb", obra);
    if (registro != 0) {
      FicheroRegistros f(obra, FicheroRegistros::Modo::LecturaEscritura);
      f.EscribeRegistro(registro, texto);
      f.Vacia();
    }
    EXPECT_TRUE(AbreObra(b.c, obra)) << b.voz.Ultimo();
  }

  void Elige(int numero) {
    b.Teclea(Ed::edTramo, std::to_string(numero));
    EXPECT_EQ(b.e.tramo.NumeroTramo, numero);
  }

  std::vector<std::string> Textos() const {
    std::vector<std::string> textos;
    for (const auto& control : b.c.pantalla.controles) textos.push_back(control.texto);
    return textos;
  }

  Hecho Haz(std::optional<Encargo> encargo) const {
    if (!encargo) return {};
    Hecho hecho{CalculaEncargo(std::move(*encargo), sigue, registros, 1), {}};
    hecho.resumen = Resume(*hecho.calculo);
    return hecho;
  }
  Hecho ElTramo() { return Haz(EncargaTramo(b.c)); }
  Hecho LaObra() { return Haz(EncargaObra(b.c)); }

  Carpeta carpeta;
  fs::path obra = carpeta / "copia.zrb";
  fs::path registros = carpeta / "registros";
  Banco b;
  Sigue sigue;
};

// What the command line writes of some Tramos of the file, or of all: summary, or a listing.
void SinPantalla(Oficina& o, const std::vector<int>& posiciones, Listado& lector) {
  const auto proyecto = LeeProyecto(o.obra);
  const auto lista = ValidaProyecto(proyecto, o.b.textos, o.b.tablas, {posiciones, ','});
  Obra obra = proyecto.obra;
  PonComprobada(obra, lista.obra);
  for (const auto& p : TramosPedidos(proyecto, posiciones)) {
    Tramo tramo = lista.tramos.at(p.posicion);
    tramo.NumeroTramo = p.tramo.NumeroTramo;
    const auto datos = DatosDeCalculo(obra, tramo, proyecto.ajustes);
    lector.Tramo(CalculaTramo(datos, RangoDe(datos)), p.posicion, p.numero, {});
  }
}

struct Guarda : Listado {
  std::vector<ResultadoTramo> resultados;
  std::vector<std::string> numeros;
  bool Tramo(const ResultadoTramo& r, int, const std::string& numero,
             const SigueListado&) override {
    resultados.push_back(r);
    numeros.push_back(numero);
    return true;
  }
};

// A summary behind its first block.
std::string SinVeredictos(const std::string& resumen) {
  return resumen.substr(resumen.find("\n\n"));
}

std::string ResumenSinPantalla(Oficina& o, int posicion) {
  std::ostringstream flujo;
  Pantalla pantalla(flujo);
  Resumen resumen(pantalla, o.b.textos, {true, ','});
  Guarda guarda;
  SinPantalla(o, {posicion}, guarda);
  resumen.Veredictos(guarda.resultados, guarda.numeros);
  resumen.Tramo(guarda.resultados.at(0), posicion, guarda.numeros.at(0), {});
  return flujo.str();
}

std::string PapelSinPantalla(Oficina& o, const std::vector<int>& posiciones, TipoListado tipo) {
  std::ostringstream salida;
  HojasTexto hojas(salida);
  const Obra obra = LeeProyecto(o.obra).obra;
  const DocumentoObra documento(tipo,
                                {obra.NombreObra,
                                 obra.Cliente,
                                 "copia.zrb",
                                 "ZORBIN " ZORBIN_VERSION,
                                 o.b.textos,
                                 {true, ','},
                                 kFecha},
                                [&](Listado& listado) { SinPantalla(o, posiciones, listado); });
  documento.Escribe(hojas);
  return salida.str();
}

// Where a text begins to differ, for a message of a few lines.
std::string Diferencia(const std::string& a, const std::string& b) {
  if (a == b) return {};
  const auto corte = std::mismatch(a.begin(), a.end(), b.begin(), b.end()).first - a.begin();
  const auto desde = static_cast<std::size_t>(std::max<std::ptrdiff_t>(0, corte - 200));
  return "---\n" + a.substr(desde, 400) + "\n+++\n" + b.substr(std::min(desde, b.size()), 400);
}

TEST(Trabajo, CadaTramoSaleComoEnLaLineaYNadaSeMueve) {
  Oficina o;
  for (int n = 1; n <= kTramos; ++n) {
    o.Elige(n);
    const auto textos = o.Textos();
    const auto antes = o.b.e;
    const auto hecho = o.ElTramo();
    EXPECT_EQ(hecho->fin, FinTrabajo::Completo);
    EXPECT_EQ(Diferencia(ResumenSinPantalla(o, n), hecho.resumen), "") << n;
    EXPECT_EQ(hecho->HayPostesado(), n >= 6);
    for (const auto tipo :
         {TipoListado::Normal, TipoListado::Tabular, TipoListado::Pantalla, TipoListado::Lame}) {
      EXPECT_EQ(Diferencia(PapelSinPantalla(o, {n}, tipo), EnTexto(*hecho.calculo, tipo)), "") << n;
    }
    EXPECT_EQ(o.Textos(), textos);
    EXPECT_EQ(o.b.e.tramo.Esp, antes.tramo.Esp);
    EXPECT_EQ(o.b.e.tramo.TipoCuna, antes.tramo.TipoCuna);
    EXPECT_EQ(o.b.e.tramo.Hr1, antes.tramo.Hr1);
    EXPECT_EQ(o.b.e.tramo.Fck, antes.tramo.Fck);
    EXPECT_EQ(o.b.e.obra.Prs1, antes.obra.Prs1);
    EXPECT_FALSE(o.b.c.EnCambio());
  }
  EXPECT_TRUE(o.b.voz.mensajes.empty());
}

TEST(Trabajo, LaObraEnteraDejaTodoComoEstaba) {
  Oficina o;
  o.Elige(3);  // whatever is on the screen, the same file gives the same listing
  const auto hecho = o.LaObra();
  EXPECT_EQ(hecho->fin, FinTrabajo::Completo);
  EXPECT_EQ(pruebas::Compara("acequia-resumen.txt", hecho.resumen), "");
  EXPECT_TRUE(hecho->HayPostesado());
  EXPECT_TRUE(hecho->Fallos().empty());
  EXPECT_EQ(hecho->Aviso(), "");
  EXPECT_EQ(o.b.c[Ed::edTramo].texto, "3");
  EXPECT_FALSE(o.b.c.EnCambio());
  for (const auto tipo : {TipoListado::Normal, TipoListado::Tabular}) {
    EXPECT_EQ(Diferencia(PapelSinPantalla(o, {}, tipo), EnTexto(*hecho.calculo, tipo)), "");
  }
}

// What was taken is its own: on another thread, with the capture gone meanwhile, nothing differs.
TEST(Trabajo, OtroHiloCalculaLoTomadoAunqueLaCapturaSiga) {
  Oficina o;
  const auto aqui = o.LaObra();
  auto encargo = EncargaObra(o.b.c);
  auto otro = std::async(std::launch::async,
                         [&o, e = std::move(*encargo)]() mutable { return o.Haz(std::move(e)); });
  o.Elige(2);
  o.b.Teclea(Ed::edGr0, "1,9");
  o.b.textos.PonIdioma(3);
  const auto alli = otro.get();
  EXPECT_EQ(Diferencia(aqui.resumen, alli.resumen), "");
  EXPECT_EQ(EnTexto(*alli.calculo, TipoListado::Normal),
            EnTexto(*aqui.calculo, TipoListado::Normal));
}

// Tramo 1 has no width of trench (record 61): the one of the Tramo on the screen is not taken for
// it.
TEST(Trabajo, LoQueHabiaEnPantallaNoEntraEnLaObra) {
  for (const int antes : {0, 3}) {
    Oficina o(61, "");
    if (antes != 0) o.Elige(antes);
    const auto r = o.LaObra();
    ASSERT_EQ(r->encargo.rechazados.size(), 1u) << antes;
    EXPECT_NE(r->encargo.rechazados[0].find('1'), std::string::npos) << r->encargo.rechazados[0];
    EXPECT_EQ(r->tramos.size(), 6u);
  }
}

// All is calculated as it stands in memory, saved or not. An Obra that has no file yet is saved.
TEST(Trabajo, SinGrabarSeCalculaLoQueHay) {
  Oficina o;
  o.Elige(2);
  o.b.Teclea(Ed::edGr0, "1,9");
  o.Elige(3);
  const auto r = o.LaObra();
  EXPECT_EQ(r->tramos.at(1).datos.tramo.Gr, 1.9);
  EXPECT_TRUE(o.b.c.EnCambio());
  EXPECT_TRUE(o.b.voz.mensajes.empty() && o.b.voz.preguntas.empty());

  Banco nueva;
  nueva.TramoValido();
  EXPECT_FALSE(EncargaTramo(nueva.c));
  EXPECT_EQ(nueva.voz.ficherosPedidos, 1);
  nueva.voz.fichero = (o.carpeta / "nueva.zrb").string();
  EXPECT_TRUE(EncargaTramo(nueva.c));
  EXPECT_FALSE(nueva.c.EnCambio());
}

TEST(Trabajo, UnaObraSinTramosSeDice) {
  Oficina o(20, "0");
  EXPECT_FALSE(EncargaObra(o.b.c));
  EXPECT_EQ(o.b.voz.Ultimo(), o.b.textos.Compone(txt::ObraSinTramos, {"copia.zrb"}));
}

TEST(Trabajo, ElAvanceCuentaLosCasosQueHay) {
  Oficina o;
  std::map<int, Avance> ultimos;
  std::vector<int> previstos;
  o.sigue = [&](const Avance& a) {
    if (a.caso == 1) previstos.push_back(a.casos);
    ultimos[a.tramo] = a;
    return true;
  };
  CalculaEncargo(EncargaObra(o.b.c).value(), o.sigue, o.registros, 1);
  ASSERT_EQ(previstos.size(), static_cast<std::size_t>(kTramos));
  for (int n = 1; n <= kTramos; ++n) {
    EXPECT_EQ(ultimos[n].caso, previstos[static_cast<std::size_t>(n - 1)]) << n;
    EXPECT_EQ(ultimos[n].posicion, n);
    EXPECT_EQ(ultimos[n].posiciones, kTramos);
  }
}

TEST(Trabajo, CancelarDejaLosDatosYUnResumenCortado) {
  Oficina o;
  o.Elige(1);
  const auto textos = o.Textos();
  const std::string entero = SinVeredictos(o.ElTramo().resumen);
  int van = 0;
  o.sigue = [&](const Avance&) { return ++van < 3; };
  const auto cortado = o.ElTramo();
  EXPECT_EQ(cortado->fin, FinTrabajo::Cancelado);
  const auto resumen = SinVeredictos(cortado.resumen);
  const auto nota = resumen.find("\n** Cálculo cancelado antes del Caso ");
  ASSERT_NE(nota, std::string::npos);
  EXPECT_EQ(Diferencia(entero.substr(0, nota), resumen.substr(0, nota)), "");
  EXPECT_EQ(o.Textos(), textos);
  o.sigue = [](const Avance& a) { return a.caso < 3; };
  const auto r = o.ElTramo();
  EXPECT_NE(r.resumen.find("Caso 3 del Tramo 1: el resumen llega"), std::string::npos);
  EXPECT_EQ(r->tramos.at(0).filas.size(), 2U);

  o.sigue = [](const Avance& a) { return a.tramo < 4; };
  EXPECT_EQ(o.LaObra()->fin, FinTrabajo::Cancelado);
  o.sigue = {};
  EXPECT_EQ(o.ElTramo().resumen, ResumenSinPantalla(o, 1));
}

// Tramo 2 has no friction angle (record 49 of its block): the others are calculated all the same.
TEST(Trabajo, UnFalloAritmeticoSeDiceConSuLugar) {
  Oficina o(14 + 60 + 49, "0,00");
  const auto r = o.LaObra();
  EXPECT_EQ(r->fin, FinTrabajo::Completo);
  ASSERT_EQ(r->Fallos().size(), 1U);
  EXPECT_EQ(r->Fallos()[0],
            "copia.zrb: Tramo 2, Caso 1, altura 2,00 m, DP 0,400 MPa: División por cero");
  const auto nota = r.resumen.find("** " + r->Fallos()[0] + " **");
  const auto tercero = r.resumen.find("1/   3  ");
  EXPECT_NE(r.resumen.find("SIN COMPROBAR\n         División por cero\n"), std::string::npos);
  ASSERT_NE(nota, std::string::npos);
  EXPECT_LT(nota, tercero);
  EXPECT_NE(tercero, std::string::npos);
  const std::string papel = EnTexto(*r.calculo, TipoListado::Tabular);
  EXPECT_NE(papel.find("** SIN COMPROBAR: "), std::string::npos);
  EXPECT_NE(papel.find("División por cero"), std::string::npos);

  o.Elige(2);
  const auto textos = o.Textos();
  const double Esp = o.b.e.tramo.Esp;
  EXPECT_EQ(o.ElTramo()->Fallos().size(), 1U);
  EXPECT_EQ(o.Textos(), textos);
  EXPECT_EQ(o.b.e.tramo.Esp, Esp);
}

// Strength of the concrete of Tramo 2, record 30 of its block: the others are calculated, and it
// is told with its fault. A fault of the Obra is one of all.
TEST(Trabajo, UnTramoConFaltasSeDiceYLosDemasSeCalculan) {
  Oficina o(30 + 60, "0 // 0,0");
  o.Elige(3);
  const auto r = o.LaObra();
  EXPECT_EQ(r->fin, FinTrabajo::Completo);
  ASSERT_EQ(r->encargo.rechazados.size(), 1u);
  EXPECT_NE(r->encargo.rechazados[0].find("Resist. del hormigón a compresión: Debe ser"),
            std::string::npos);
  EXPECT_EQ(r->tramos.size(), 6u);
  EXPECT_EQ(o.b.c[Ed::edTramo].texto, "3");
  ASSERT_EQ(o.b.c.faltas.size(), 1u);
  EXPECT_EQ(o.b.c.faltas[0].tramo, o.b.Id(2));
  EXPECT_FALSE(o.b.c.EnCambio());
  o.Elige(2);
  EXPECT_FALSE(EncargaTramo(o.b.c));
  EXPECT_EQ(o.b.voz.foco, Ed::edFck);
  EXPECT_NE(o.b.c[Ed::edFck].falta, "");
  EXPECT_FALSE(o.b.c.EnCambio());  // what is shown of the file is no change of it
  o.Elige(1);
  EXPECT_TRUE(EncargaTramo(o.b.c));
  o.b.Teclea(Ed::edAlt1, "0,5");
  EXPECT_FALSE(EncargaTramo(o.b.c) || EncargaObra(o.b.c));
  EXPECT_EQ(o.b.voz.foco, Ed::edAlt1);
  EXPECT_TRUE(o.b.voz.mensajes.empty() && o.b.voz.preguntas.empty());
}

TEST(Trabajo, DeUnaObraDanadaSeCalculaLoEntero) {
  Oficina o;
  {
    std::fstream f(o.obra, std::ios::binary | std::ios::in | std::ios::out);
    f.seekp((20 + 60 + 60 + 10 - 1) * kBytesRegistro);
    f.write("\xFF\x7F", 2);  // a length that no record has
  }
  Banco b;
  EXPECT_TRUE(AbreObra(b.c, o.obra));
  EXPECT_NE(b.voz.Ultimo().find("copia.zrb: registro"), std::string::npos) << b.voz.Ultimo();
  const auto r = o.Haz(EncargaObra(b.c));
  EXPECT_EQ(r->tramos.size(), 6u);
  ASSERT_EQ(r->encargo.rechazados.size(), 1u);
  EXPECT_NE(r->encargo.rechazados[0].find('3'), std::string::npos) << r->encargo.rechazados[0];
}

TEST(Trabajo, LosAjustesEntranYUnFicheroDeAjustesRotoNoSeCalla) {
  Oficina o;
  {
    FicheroRegistros f(RutaDpe(o.obra), FicheroRegistros::Modo::LecturaEscritura);
    EscribeAjustes(f, {{4, 1, 2, {30, 5, 25}}}, '.');
  }
  ASSERT_TRUE(AbreObra(o.b.c, o.obra));
  o.Elige(1);
  EXPECT_NE(o.ElTramo().resumen.find(" 60,00 cm2/m"), std::string::npos);
  {
    FicheroRegistros f(RutaDpe(o.obra), FicheroRegistros::Modo::LecturaEscritura);
    f.EscribeRegistro(1, "x");
    f.Vacia();
  }
  ASSERT_TRUE(AbreObra(o.b.c, o.obra));
  o.Elige(1);
  const auto sinAjustes = o.ElTramo();
  EXPECT_EQ(sinAjustes->fin, FinTrabajo::Completo);
  EXPECT_NE(sinAjustes->Aviso().find("copia.dpe"), std::string::npos) << sinAjustes->Aviso();
  EXPECT_NE(sinAjustes.resumen.find("copia.dpe"), std::string::npos);
  EXPECT_EQ(sinAjustes.resumen.find(" 60,00 cm2/m"), std::string::npos);
  EXPECT_NE(EnTexto(*sinAjustes.calculo, TipoListado::Normal), "");
}

// Whoever cannot write the debug log calculates all the same, and is told.
TEST(Trabajo, SinRegistroSeCalculaYSeAvisa) {
  Oficina o;
  o.Elige(1);
  const auto con = o.ElTramo();
  EXPECT_EQ(con->Aviso(), "");
  EXPECT_GT(fs::file_size(o.registros / "Debugpim_cal.txt"), 1000U);
  const auto lleno = o.carpeta / "lleno";
  fs::create_directories(lleno);
  fs::create_symlink("/dev/full", lleno / "Debugpim_cal.txt");
  for (const fs::path& mala : {fs::path("/proc/no"), lleno}) {
    o.registros = mala;
    const auto sin = o.ElTramo();
    EXPECT_EQ(sin->fin, FinTrabajo::Completo);
    EXPECT_EQ(sin.resumen, con.resumen);
    EXPECT_NE(sin->Aviso().find((mala / "Debugpim_cal.txt").string()), std::string::npos)
        << sin->Aviso();
  }
}

}  // namespace
}  // namespace zorbin::prueba
