// The runs behind the screens, over a copy of the sample Obra: what they say, and what they leave.
#include "sesion/trabajo/mdTrabajo.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <map>
#include <sstream>

#include "base/textos.h"
#include "comun/comparaFichero.h"
#include "listados/obra/mdFlujo.h"
#include "listados/obra/mdResumen.h"
#include "listados/papel/mdHojasTexto.h"
#include "persistencia/dpe/mdDpe.h"
#include "sesion/captura/guion.h"
#include "sesion/captura/mdFaltas.h"
#include "sesion/captura/mdValidaTramo.h"

namespace zorbin::prueba {
namespace {

namespace fs = std::filesystem;

constexpr int kTramos = 7;

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
    medios.registros = carpeta / "registros";
    medios.fecha = {"21/11/2026", "09:30:00"};
  }

  void Elige(int numero) {
    if (!b.c.SinTramoEnMano()) CancelaCaptura(b.c);
    b.Teclea(Ed::edTramo, std::to_string(numero));
    EXPECT_EQ(b.e.tramo.NumeroTramo, numero);
    ValidaTramo(b.c, true);  // what it completes is written on the screen
  }

  std::vector<std::string> Textos() const {
    std::vector<std::string> textos;
    for (const auto& control : b.c.pantalla.controles) textos.push_back(control.texto);
    return textos;
  }

  std::string Papel(bool todaLaObra, TipoListado tipo, ResultadoTrabajo* r = nullptr) {
    std::ostringstream salida;
    HojasTexto hojas(salida);
    auto resultado =
        todaLaObra ? ListaObra(b.c, tipo, hojas, medios) : ListaTramo(b.c, tipo, hojas, medios);
    if (r != nullptr) *r = std::move(resultado);
    return salida.str();
  }

  Carpeta carpeta;
  fs::path obra = carpeta / "copia.zrb";
  Banco b;
  MediosTrabajo medios;
};

// What the command line writes for a Tramo of the sample, or for all: summary, or a listing.
class SinPantalla : public OyenteObra {
 public:
  SinPantalla(const Catalogo& textos, EstiloNumeros estilo)
      : pantalla_(flujo_), resumen_(pantalla_, textos, estilo) {}
  void EmpiezaTramo(const EstadoCalculo&, int, const std::string&) override {}
  void AcabaTramo(const EstadoCalculo&, const ErrorCorrida*) override {}
  void Progreso(const EstadoCalculo& e) override { resumen_.Progreso(e); }
  void Caso(const EstadoCalculo& e) override { resumen_.Caso(e); }
  std::string Texto() const { return flujo_.str(); }

 private:
  std::ostringstream flujo_;
  Pantalla pantalla_;
  Resumen resumen_;
};

void CorreSinPantalla(Oficina& o, std::vector<int> posiciones, OyenteObra& lector) {
  EstadoCalculo e;
  const auto obra = AbreObra(e, o.obra);
  auto lista = ValidaObraEnFichero(o.obra, o.b.textos, o.b.tablas, {posiciones, ','});
  PonComprobada(e.obra, lista.obra);
  CalculaObra(e, obra, {std::move(posiciones), o.medios.registros, {}, std::move(lista.tramos)},
              lector);
}

std::string ResumenSinPantalla(Oficina& o, int posicion) {
  SinPantalla lector(o.b.textos, {true, ','});
  CorreSinPantalla(o, {posicion}, lector);
  return lector.Texto();
}

std::string PapelSinPantalla(Oficina& o, std::vector<int> posiciones, TipoListado tipo) {
  std::ostringstream salida;
  HojasTexto hojas(salida);
  Papel papel(hojas, OrientacionDe(tipo));
  const auto listado = CreaListado(tipo, {papel, o.b.textos, {true, ','}, o.medios.fecha});
  CorreSinPantalla(o, std::move(posiciones), *listado);
  papel.FinDocumento();
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
    const auto r = ResumeTramo(o.b.c, o.medios);
    EXPECT_EQ(r.fin, FinTrabajo::Completo);
    EXPECT_EQ(Diferencia(ResumenSinPantalla(o, n), r.resumen), "") << n;
    EXPECT_EQ(r.hayPostesado, n >= 6);
    for (const auto tipo :
         {TipoListado::Normal, TipoListado::Tabular, TipoListado::Pantalla, TipoListado::Lame}) {
      EXPECT_EQ(Diferencia(PapelSinPantalla(o, {n}, tipo), o.Papel(false, tipo)), "") << n;
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

TEST(Trabajo, LaObraEnteraDejaElUltimoTramoEnPantalla) {
  Oficina o;
  o.Elige(3);  // whatever is on the screen, the same file gives the same listing
  const auto r = ResumeObra(o.b.c, o.medios);
  EXPECT_EQ(r.fin, FinTrabajo::Completo);
  EXPECT_EQ(pruebas::Compara("acequia-resumen.txt", r.resumen), "");
  EXPECT_TRUE(r.hayPostesado);
  EXPECT_TRUE(r.fallos.empty());
  EXPECT_EQ(r.aviso, "");

  EXPECT_EQ(o.b.c[Ed::edTramo].texto, "7");
  EXPECT_EQ(o.b.c.EstadoCaptura, kModificaciones);
  EXPECT_TRUE(o.b.c[Ed::edTramo].bloqueado);
  EXPECT_TRUE(o.b.c.pantalla.Habilitada(Orden::mnCalculaTramo));
  EXPECT_FALSE(o.b.c.pantalla.Habilitada(Orden::mnAjustarArmaduras));
  EXPECT_FALSE(o.b.c.EnCambio());
  for (const auto tipo : {TipoListado::Normal, TipoListado::Tabular}) {
    EXPECT_EQ(Diferencia(PapelSinPantalla(o, {}, tipo), o.Papel(true, tipo)), "");
  }
}

// Tramo 1 has no width of trench (record 61): the one of the Tramo on the screen is not taken for
// it.
TEST(Trabajo, LoQueHabiaEnPantallaNoEntraEnLaObra) {
  for (const int antes : {0, 3}) {
    Oficina o(61, "");
    if (antes != 0) o.Elige(antes);
    const auto r = ResumeObra(o.b.c, o.medios);
    EXPECT_EQ(r.fin, FinTrabajo::Detenido) << antes;
    EXPECT_NE(r.resumen.find("Tramo 1"), std::string::npos) << r.resumen.substr(0, 200);
  }
}

TEST(Trabajo, SinGrabarOConCambiosNoEmpieza) {
  Oficina o;
  o.Elige(2);
  o.b.Teclea(Ed::edGr0, "1,9");
  EXPECT_EQ(ResumeObra(o.b.c, o.medios).fin, FinTrabajo::NoEmpieza);
  EXPECT_EQ(o.b.voz.Ultimo(), o.b.textos.Texto(txt::SalvePrimero));
  EXPECT_EQ(o.b.voz.Titulo(), "AVISO");
  EXPECT_EQ(o.b.c[Ed::edTramo].texto, "2");
  // A Tramo is calculated as it stands on the screen, saved or not.
  EXPECT_NE(ResumeTramo(o.b.c, o.medios).resumen, ResumenSinPantalla(o, 2));
  EXPECT_EQ(o.b.c[Ed::edGr0].texto, "1,90");
  EXPECT_TRUE(o.b.c.EnCambio());

  Banco nueva;
  nueva.TramoValido();
  EXPECT_EQ(ResumeTramo(nueva.c, o.medios).fin, FinTrabajo::NoEmpieza);
  EXPECT_EQ(nueva.voz.Ultimo(), "Debe primero salvar la obra");
}

TEST(Trabajo, UnaObraSinTramosDaUnResumenVacio) {
  Oficina o(20, "0");
  const auto r = ResumeObra(o.b.c, o.medios);
  EXPECT_EQ(r.fin, FinTrabajo::Completo);
  EXPECT_EQ(r.resumen, "");
  EXPECT_EQ(o.Papel(true, TipoListado::Normal), "");
  EXPECT_EQ(o.b.c.EstadoCaptura, kSinTramo);
}

TEST(Trabajo, ElAvanceCuentaLosCasosQueHay) {
  Oficina o;
  std::map<int, Avance> ultimos;
  std::vector<int> previstos;
  o.medios.sigue = [&](const Avance& a) {
    if (a.caso == 1) previstos.push_back(a.casos);
    ultimos[a.tramo] = a;
    return true;
  };
  ResumeObra(o.b.c, o.medios);
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
  const std::string entero = ResumeTramo(o.b.c, o.medios).resumen;
  o.medios.sigue = [](const Avance& a) { return a.caso < 3; };
  const auto r = ResumeTramo(o.b.c, o.medios);
  EXPECT_EQ(r.fin, FinTrabajo::Cancelado);
  const auto nota = r.resumen.find("\n** Cálculo cancelado antes del Caso 3 del Tramo 1");
  ASSERT_NE(nota, std::string::npos);
  EXPECT_GT(nota, 1000U);  // two Casos
  EXPECT_EQ(Diferencia(entero.substr(0, nota), r.resumen.substr(0, nota)), "");
  EXPECT_EQ(o.Textos(), textos);
  EXPECT_EQ(o.b.c.EstadoCaptura, kModificaciones);
  ResultadoTrabajo papel;
  o.Papel(false, TipoListado::Normal, &papel);
  EXPECT_EQ(papel.fin, FinTrabajo::Cancelado);

  o.medios.sigue = [](const Avance& a) { return a.tramo < 4; };
  EXPECT_EQ(ResumeObra(o.b.c, o.medios).fin, FinTrabajo::Cancelado);
  EXPECT_EQ(o.b.c[Ed::edTramo].texto, "4");
  EXPECT_EQ(o.b.c.EstadoCaptura, kModificaciones);
  o.medios.sigue = {};
  EXPECT_EQ(ResumeTramo(o.b.c, o.medios).resumen, ResumenSinPantalla(o, 4));
}

// Tramo 2 has no friction angle (record 49 of its block): the others are calculated all the same.
TEST(Trabajo, UnFalloAritmeticoSeDiceConSuLugar) {
  Oficina o(14 + 60 + 49, "0,00");
  const auto r = ResumeObra(o.b.c, o.medios);
  EXPECT_EQ(r.fin, FinTrabajo::Completo);
  ASSERT_EQ(r.fallos.size(), 1U);
  EXPECT_EQ(r.fallos[0],
            "copia.zrb: Tramo 2, Caso 1, altura 2,00 m, DP 0,400 MPa: División por cero");
  const auto nota = r.resumen.find("** " + r.fallos[0] + " **");
  const auto tercero = r.resumen.find("1/   3  ");
  ASSERT_NE(nota, std::string::npos);
  EXPECT_LT(nota, tercero);
  EXPECT_NE(tercero, std::string::npos);
  const std::string papel = o.Papel(true, TipoListado::Tabular);
  EXPECT_NE(papel.find("Tramo 2, Caso 1, altura 2,00 m,"), std::string::npos);
  EXPECT_NE(papel.find("División por cero"), std::string::npos);

  o.Elige(2);
  const auto textos = o.Textos();
  const double Esp = o.b.e.tramo.Esp;
  EXPECT_EQ(ResumeTramo(o.b.c, o.medios).fallos.size(), 1U);
  EXPECT_EQ(o.Textos(), textos);
  EXPECT_EQ(o.b.e.tramo.Esp, Esp);
}

// Strength of the concrete of Tramo 2, record 30 of its block.
TEST(Trabajo, UnTramoRechazadoDetieneLaObraYLoHechoSale) {
  Oficina o(30 + 60, "0 // 0,0");
  const auto r = ResumeObra(o.b.c, o.medios);
  EXPECT_EQ(r.fin, FinTrabajo::Detenido);
  const std::string nota =
      "El cálculo de la Obra se detiene en el Tramo 2: Resist. del hormigón a compresión: Valor "
      "incorrecto";
  EXPECT_EQ(r.detenido, nota);
  EXPECT_EQ(r.resumen, ResumenSinPantalla(o, 1) + "\n** " + nota + " **\n\n");
  EXPECT_EQ(o.b.voz.mensajes.size(), 1U);
  EXPECT_EQ(o.b.c[Ed::edTramo].texto, "2");
  EXPECT_EQ(o.b.c.EstadoCaptura, kModificaciones);
  EXPECT_FALSE(o.b.c.EnCambio());
  ResultadoTrabajo papel;
  EXPECT_EQ(o.Papel(true, TipoListado::Pantalla, &papel),
            PapelSinPantalla(o, {1}, TipoListado::Pantalla));
  EXPECT_EQ(papel.fin, FinTrabajo::Detenido);
}

// Design strength of the steel of Tramo 2, record 33 of its block, over the limit.
TEST(Trabajo, ElLimiteDelAceroSePreguntaTambienEnLaObra) {
  for (const bool sigue : {true, false}) {
    Oficina o(33 + 60, "2000 // 200,0");
    o.b.Olvida();
    o.b.voz.responde = sigue;
    const auto r = ResumeObra(o.b.c, o.medios);
    EXPECT_EQ(o.b.voz.preguntas.size(), 1U);
    EXPECT_EQ(r.fin, sigue ? FinTrabajo::Completo : FinTrabajo::Detenido);
    EXPECT_EQ(r.resumen.find("1/   3  ") != std::string::npos, sigue);
    EXPECT_EQ(o.b.c[Ed::edTramo].texto, sigue ? "7" : "2");
  }
}

TEST(Trabajo, UnFicheroQueSeRompeMientrasTantoDetieneLaObra) {
  Oficina o;
  {
    std::fstream f(o.obra, std::ios::binary | std::ios::in | std::ios::out);
    f.seekp((20 + 60 + 60 + 10 - 1) * kBytesRegistro);
    f.write("\xFF\x7F", 2);  // a length that no record has
  }
  Banco b;
  const bool abre = AbreObra(b.c, o.obra);
  EXPECT_TRUE(abre);  // the header is whole
  const auto r = ResumeObra(b.c, o.medios);
  EXPECT_EQ(r.fin, FinTrabajo::Detenido);
  EXPECT_NE(r.detenido.find("Tramo 3"), std::string::npos) << r.detenido;
  EXPECT_NE(b.voz.Ultimo().find("copia.zrb: registro"), std::string::npos) << b.voz.Ultimo();
  EXPECT_EQ(b.c[Ed::edTramo].texto, "2");
}

TEST(Trabajo, LosAjustesEntranYUnFicheroDeAjustesRotoNoSeCalla) {
  Oficina o;
  {
    FicheroRegistros f(RutaDpe(o.obra), FicheroRegistros::Modo::LecturaEscritura);
    EscribeAjustes(f, {{4, 1, 2, {30, 5, 25}}}, '.');
  }
  o.Elige(1);
  EXPECT_NE(ResumeTramo(o.b.c, o.medios).resumen.find(" 60,00 cm2/m"), std::string::npos);
  {
    FicheroRegistros f(RutaDpe(o.obra), FicheroRegistros::Modo::LecturaEscritura);
    f.EscribeRegistro(1, "x");
    f.Vacia();
  }
  const auto sinAjustes = ResumeTramo(o.b.c, o.medios);
  EXPECT_EQ(sinAjustes.fin, FinTrabajo::Completo);
  EXPECT_NE(sinAjustes.aviso.find("copia.dpe"), std::string::npos) << sinAjustes.aviso;
  EXPECT_NE(sinAjustes.resumen.find("copia.dpe"), std::string::npos);
  EXPECT_EQ(sinAjustes.resumen.find(" 60,00 cm2/m"), std::string::npos);
  EXPECT_NE(o.Papel(false, TipoListado::Normal), "");
}

// Whoever cannot write the debug log calculates all the same, and is told.
TEST(Trabajo, SinRegistroSeCalculaYSeAvisa) {
  Oficina o;
  o.Elige(1);
  const auto con = ResumeTramo(o.b.c, o.medios);
  EXPECT_EQ(con.aviso, "");
  EXPECT_GT(fs::file_size(o.medios.registros / "Debugpim_cal.txt"), 1000U);
  const auto lleno = o.carpeta / "lleno";
  fs::create_directories(lleno);
  fs::create_symlink("/dev/full", lleno / "Debugpim_cal.txt");
  for (const fs::path& mala : {fs::path("/proc/no"), lleno}) {
    o.medios.registros = mala;
    const auto sin = ResumeTramo(o.b.c, o.medios);
    EXPECT_EQ(sin.fin, FinTrabajo::Completo);
    EXPECT_EQ(sin.resumen, con.resumen);
    EXPECT_NE(sin.aviso.find((mala / "Debugpim_cal.txt").string()), std::string::npos) << sin.aviso;
  }
}

}  // namespace
}  // namespace zorbin::prueba
