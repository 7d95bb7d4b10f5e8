#include "persistencia/proyecto/mdGrabaProyecto.h"

#include <gtest/gtest.h>

#include <set>

#include "base/textos.h"
#include "comun/carpeta.h"
#include "comun/proyecto.h"
#include "persistencia/disco/mdConjunto.h"
#include "persistencia/dpe/mdDpe.h"
#include "persistencia/proyecto/mdAcompanantes.h"
#include "persistencia/proyecto/mdProyecto.h"

namespace zorbin {
namespace {

namespace fs = std::filesystem;
using pruebas::Bytes;
using pruebas::EnMemoria;
using pruebas::Resumido;

constexpr auto kEscribe = FicheroRegistros::Modo::LecturaEscritura;

class GrabaTodo : public testing::Test {
 protected:
  const pruebas::Carpeta carpeta;
  const fs::path obra = carpeta / "o.zrb";
  const fs::path dpe = carpeta / "o.dpe";
  const fs::path zrx = carpeta / "o.zrx";
  Catalogo textos = Catalogo::Lee(ZORBIN_FUENTES "recursos/textos");

  // Three Tramos, two of them with an adjustment, one with extras.
  void SetUp() override {
    fs::copy_file(ZORBIN_FUENTES "muestras/acequia.zrb", obra);
    auto p = EnMemoria(obra);
    p.tramos.resize(3);
    for (std::size_t i = 0; i < 3; ++i) {
      p.tramos[i].numero = std::to_string(i + 1);
      p.tramos[i].datos.DescriTramo = "Tramo-" + std::to_string(i + 1);
    }
    p.tramos[1].datos.Envolvente = true;
    p.tramos[1].otras = R"({"color":"rojo"})";
    p.extras.otras = R"({"autor":"yo"})";
    p.ajustes = {{6, 1, 2.5, {11, 3, 18}}, {}, {8, 3, 2, {33, 2, 3}}};
    p.obra.Cliente = "C";
    Graba(p);
  }

  std::vector<Mensaje> Graba(const ProyectoAGrabar& p) {
    FicheroRegistros f(obra, kEscribe);
    return GrabaProyecto(f, p, textos, ',');
  }

  // The refusal of a save, as the entry of its message; 0 when it is done.
  int Rechazo(const ProyectoAGrabar& p) {
    try {
      Graba(p);
      return 0;
    } catch (const ErrorFichero& error) {
      return error.mensaje().texto;
    }
  }

  std::string Nombres() const {
    std::set<std::string> nombres;
    for (const auto& f : fs::directory_iterator(carpeta.ruta())) {
      nombres.insert(f.path().filename().string());
    }
    std::string todos;
    for (const auto& n : nombres) todos += n + " ";
    return todos;
  }
};

TEST_F(GrabaTodo, LoQueSeGrabaSeLeeYLoQueNoCambiaNoSeToca) {
  EXPECT_EQ(Resumido(obra), "C: 1(Tramo-1)+11 2E(Tramo-2) 3(Tramo-3)+33");
  EXPECT_EQ(Nombres(), "o.dpe o.zrb o.zrx ");
  EXPECT_NE(Bytes(zrx).find("\"color\": \"rojo\""), std::string::npos);
  EXPECT_NE(Bytes(zrx).find("\"autor\": \"yo\""), std::string::npos);
  const auto antes = Bytes(dpe) + Bytes(zrx);
  auto p = EnMemoria(obra);
  const auto cuando = fs::last_write_time(dpe);
  fs::permissions(dpe, fs::perms::owner_read);  // a write would be refused
  fs::permissions(zrx, fs::perms::owner_read);
  p.obra.Cliente = "D";
  Graba(p);
  EXPECT_EQ(Bytes(dpe) + Bytes(zrx), antes);
  EXPECT_EQ(fs::last_write_time(dpe), cuando);
  EXPECT_EQ(EnMemoria(obra).obra.Cliente, "D");
}

// Reordered, deleted, renumbered: adjustments and extras are where the memory has them, and no
// block of a Tramo that went away stays behind.
TEST_F(GrabaTodo, MoverBorrarYRenumerarLlevanTodoConsigo) {
  auto p = EnMemoria(obra);
  std::swap(p.tramos[0], p.tramos[1]);
  p.tramos.pop_back();
  p.tramos[0].numero = "7";
  p.ajustes[2] = {};
  Graba(p);
  EXPECT_EQ(Resumido(obra), "C: 7E(Tramo-2) 1(Tramo-1)+11");
  EXPECT_EQ(EnMemoria(obra).tramos[0].otras, R"({"color":"rojo"})");
  EXPECT_EQ(Bytes(obra).find("Tramo-3"), std::string::npos);
  EXPECT_EQ(LeeAjustes(dpe).size(), 3u);  // places stay

  // A block without data stays as the file has it; what says nothing any more goes away.
  p.tramos[1].intacto = true;
  p.tramos[0].datos.Envolvente = false;
  p.tramos[0].otras.clear();
  p.extras.otras.clear();
  p.ajustes.clear();
  Graba(p);
  EXPECT_EQ(Resumido(obra), "C: 7(Tramo-2) 1(Tramo-1)");
  EXPECT_EQ(Nombres(), "o.zrb ");
}

TEST_F(GrabaTodo, LoQueNoEncajaSeConservaYSeDice) {
  auto p = EnMemoria(obra);
  p.tramos[1].datos.DescriTramo = "Otra";
  {
    FicheroRegistros f(obra, kEscribe);  // as a program that knows no extras
    EstadoCalculo e{p.obra, p.tramos[1].datos};
    EscribeTramo(f, e, {"1", "2", "3"}, 2, ',');
  }
  const auto leido = LeeProyecto(obra);
  ASSERT_EQ(leido.avisos.size(), 1u);
  EXPECT_EQ(leido.avisos[0].datos, (std::vector<std::string>{zrx.string(), "2", "Tramo-2"}));
  auto otra = EnMemoria(obra);
  EXPECT_FALSE(otra.tramos[1].datos.Envolvente);
  otra.tramos[0].datos.Envolvente = true;
  Graba(otra);
  const auto extras = LeeExtras(zrx);
  ASSERT_EQ(extras.tramos.size(), 2u);
  EXPECT_EQ(extras.tramos[1].descripcion, "Tramo-2");
  EXPECT_EQ(extras.tramos[1].otras, R"({"color":"rojo"})");
}

TEST_F(GrabaTodo, LoQueNoSeEntiendeNoSePierde) {
  const std::string danado = "{\"tramos\": ";
  const std::string nuevo = R"({"version": 2, "algo": 1})";
  pruebas::PonBytes(zrx, danado);
  pruebas::PonBytes(dpe, "nada");
  EXPECT_EQ(Resumido(obra), "C: 1(Tramo-1) 2(Tramo-2) 3(Tramo-3) sin ajustes sin extras");
  auto p = EnMemoria(obra);
  p.obra.Cliente = "D";
  EXPECT_TRUE(Graba(p).empty());
  EXPECT_EQ(Bytes(zrx) + Bytes(dpe), danado + "nada");
  p.tramos[0].datos.Envolvente = true;
  ASSERT_EQ(Graba(p).size(), 1u);
  EXPECT_EQ(Bytes(carpeta / "o.zrx-1"), danado);
  EXPECT_EQ(EnMemoria(obra).tramos[0].datos.Envolvente, true);
  p.ajustes = {{6, 1, 2.5, {11, 3, 18}}};
  EXPECT_NE(Rechazo(p), 0);  // the adjustments of a person are not written over
  EXPECT_EQ(Bytes(dpe), "nada");
  p.ajustes.clear();

  pruebas::PonBytes(zrx, nuevo);
  EXPECT_EQ(Rechazo(p), txt::ZrxMasNuevo);
  EXPECT_EQ(Rechazo(EnMemoria(obra)), 0);
  EXPECT_EQ(Bytes(zrx), nuevo);
}

// The adjustments are open in a window of this program, or in another one.
TEST_F(GrabaTodo, LosAjustesAbiertosSeDicenYNadaCambia) {
  auto p = EnMemoria(obra);
  p.obra.Cliente = "D";
  p.tramos[0].datos.Envolvente = true;
  p.ajustes[0].areas.Camisa = 12;
  const auto antes = Bytes(obra) + Bytes(zrx);
  {
    const FicheroDpe abierto(dpe, ',');
    EXPECT_EQ(Rechazo(p), txt::DpeOcupado);
    EXPECT_EQ(Bytes(obra) + Bytes(zrx), antes);
  }
  EXPECT_EQ(Rechazo(p), 0);
  EXPECT_EQ(Resumido(obra), "D: 1E(Tramo-1)+12 2E(Tramo-2) 3(Tramo-3)+33");
}

// A program that was killed between the companions and the Obra.
TEST_F(GrabaTodo, QuienSoloLeeVeElConjuntoComoAntesYNoTocaNada) {
  const std::string antes = Resumido(obra);
  const auto bytes = Bytes(dpe) + Bytes(zrx);
  const Conjunto conjunto = ConjuntoDe(Bytes(obra), {{".dpe", Bytes(dpe)}, {".zrx", Bytes(zrx)}});
  ASSERT_EQ(EscribeConjunto(obra, conjunto), 0);
  const std::string entero = Bytes(RutaConjunto(obra));
  pruebas::PonBytes(dpe, "a medias");
  fs::remove(zrx);
  EXPECT_EQ(Resumido(obra), antes);
  EXPECT_EQ(Bytes(dpe), "a medias");
  EXPECT_FALSE(fs::exists(zrx));
  // Damaged or cut anywhere it brings nothing back, and is removed.
  for (std::size_t i = 0; i < entero.size(); i += i < 100 ? 1 : 97) {
    std::string otro = entero;
    otro[i] = static_cast<char>(otro[i] ^ 1);
    for (const auto& malo : {otro, entero.substr(0, i)}) {
      EXPECT_FALSE(malo.starts_with("ZORCONJUNTO 1\n") && InterpretaConjunto(malo, obra)) << i;
    }
  }
  {
    const FicheroRegistros f(obra, kEscribe);
    EXPECT_EQ(f.avisos().at(0).texto, txt::LoAMediasDeshecho);
  }
  EXPECT_EQ(Bytes(dpe) + Bytes(zrx), bytes);
  EXPECT_EQ(Nombres(), "o.dpe o.zrb o.zrx ");

  // The Obra went on: its companions stand as they were written. A later version keeps out.
  pruebas::PonBytes(RutaConjunto(obra), entero);
  fs::remove(zrx);
  fs::resize_file(obra, fs::file_size(obra) + 128);
  EXPECT_EQ(Resumido(obra), "C: 1(Tramo-1)+11 2(Tramo-2) 3(Tramo-3)+33");
  { const FicheroRegistros f(obra, kEscribe); }
  EXPECT_EQ(Nombres(), "o.dpe o.zrb ");
  pruebas::PonBytes(RutaConjunto(obra), "ZORCONJUNTO 2\nalgo");
  EXPECT_THROW(LeeProyecto(obra), ErrorFichero);
  EXPECT_THROW(FicheroRegistros(obra, kEscribe), ErrorFichero);
  EXPECT_TRUE(fs::exists(RutaConjunto(obra)));
}

TEST_F(GrabaTodo, ComoOtroNombreSinDejarNadaDeLoQueHabia) {
  const fs::path otra = carpeta / "p.zrb";
  const auto p = EnMemoria(obra);
  auto graba = [&](const ProyectoAGrabar& x) {
    const FicheroRegistros origen(obra, FicheroRegistros::Modo::Lectura);
    return GrabaProyectoComo(otra, x, &origen, textos, ',');
  };
  pruebas::PonBytes(carpeta / "p.zrx", "{\"tramos\": ");  // nobody's
  {
    auto f = graba(p);
    EXPECT_EQ(Resumido(otra), Resumido(obra));
    EXPECT_EQ(Bytes(carpeta / "p.zrx"), Bytes(zrx));
    EXPECT_THROW(FicheroRegistros(otra, kEscribe), SoloParaLeer);
    auto q = p;
    q.obra.Cliente = "Otro";
    GrabaProyecto(f, q, textos, ',');  // it goes on
    EXPECT_THROW(graba(p), SoloParaLeer);
  }
  EXPECT_EQ(Resumido(otra), "Otro: 1(Tramo-1)+11 2E(Tramo-2) 3(Tramo-3)+33");

  // Over it, an Obra of one Tramo that can't be read, without anything beside it.
  auto corta = p;
  corta.tramos.resize(1);
  corta.tramos[0].intacto = true;
  corta.ajustes.clear();
  corta.extras = {};
  pruebas::PonBytes(carpeta / "p.dpe", "damaged");
  graba(corta);
  EXPECT_EQ(Resumido(otra), "C: 1(Tramo-1)");
  EXPECT_EQ(Bytes(otra).find("Tramo-2"), std::string::npos);
  EXPECT_EQ(Nombres(), "o.dpe o.zrb o.zrx p.zrb ");

  pruebas::PonBytes(otra, "Querido diario");
  EXPECT_THROW(graba(p), ErrorFichero);
  EXPECT_EQ(Bytes(otra), "Querido diario");
}

}  // namespace
}  // namespace zorbin
