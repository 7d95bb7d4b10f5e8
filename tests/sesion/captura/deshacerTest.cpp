// Steps that can be undone: each kind goes back and forth exactly, whatever was saved meanwhile.
#include <gtest/gtest.h>

#include <array>

#include <cmath>
#include <functional>
#include <random>

#include "persistencia/dpe/mdDpe.h"
#include "sesion/captura/guion.h"
#include "sesion/captura/mdBorrador.h"
#include "sesion/captura/mdComprueba.h"
#include "sesion/captura/mdPlausibilidad.h"

namespace zorbin::prueba {
namespace {

using enum Ed;

struct ClaseDePaso {
  const char* nombre;
  std::size_t pasos;
  std::function<void(ConMuestra&)> da;
};

const ClaseDePaso kClases[] = {
    {"a datum of the Obra", 1, [](auto& b) { b.Teclea(edCliente, "Comunidad"); }},
    {"a datum of a Tramo, with what it moves", 1, [](auto& b) { b.Teclea(edDi0, "1,4"); }},
    {"a refused text", 1, [](auto& b) { b.Teclea(edFck, "doce"); }},
    {"a tick", 1, [](auto& b) { CambiaMarca(b.c, edEnvolvente, true); }},
    {"a tick with its field", 1,
     [](auto& b) { CambiaMarca(b.c, edIcontes0, true), b.Teclea(edAdato, ""); }},
    {"an option", 1, [](auto& b) { EligeOpcion(b.c, rdGolpeAriete, 1); }},
    {"a typology with all it sets", 1, [](auto& b) { EligeOpcion(b.c, rdTipologia, 1); }},
    {"a laying", 1, [](auto& b) { EligeOpcion(b.c, rdTipoColocacion, 2); }},
    {"units", 1, [](auto& b) { EligeOpcion(b.c, rdSistemaUnidades, 1); }},
    {"the value of a notice", 2,
     [](auto& b) {
       b.Teclea(edDi0, "1,26");
       const auto avisos = b.c.pantalla.avisos;
       TomaRemedio(b.c, *std::ranges::find(avisos, edDi0, &AvisoDeCampo::campo));
     }},
    {"a new Tramo", 1, [](auto& b) { NuevoTramo(b.c); }},
    {"a new Tramo with a datum, given up", 3,
     [](auto& b) { NuevoTramo(b.c), b.Teclea(edDi0, "1"), Relee(b.c); }},
    {"copies", 1,
     [](auto& b) {
       DuplicaTramos(b.c, {b.Id(1), b.Id(6)});
     }},
    {"Tramos deleted, the one in hand too", 1,
     [](auto& b) {
       BorraTramos(b.c, {b.Id(2), b.Id(3), b.Id(7)});
     }},
    {"all deleted", 1, [](auto& b) { BorraTramos(b.c, IdsDe(b.c.version)); }},
    {"pasted", 1, [](auto& b) { PegaTramos(b.c, CopiaTramos(b.c, IdsDe(b.c.version))); }},
    {"moved", 1,
     [](auto& b) {
       MueveTramos(b.c, {b.Id(2), b.Id(3)}, -1);
     }},
    {"renumbered", 1, [](auto& b) { RenumeraTramo(b.c, b.Id(3), "40"); }},
    {"all renumbered", 2, [](auto& b) { BorraTramos(b.c, {b.Id(1)}), RenumeraTodos(b.c); }},
    {"reread", 2, [](auto& b) { b.Teclea(edGr0, "1,9"), Relee(b.c); }},
    {"a recovered draft", 1,
     [](ConMuestra& b) {
       ConMuestra otra;
       otra.Toma(4);
       otra.Teclea(edGr0, "1,99");
       BorraTramos(otra.c, {otra.Id(5)});
       PonBorrador(b.c, *LeeBorrador(TextoDeBorrador(TomaBorrador(otra.c))));
     }},
};

TEST(Deshacer, CadaClaseDePasoVaYVuelveTambienTrasGrabar) {
  for (const auto& clase : kClases) {
    SCOPED_TRACE(clase.nombre);
    ConMuestra b;
    b.Toma(3);
    const auto antes = VersionActual(b.c);
    clase.da(b);
    const auto despues = VersionActual(b.c);
    const int enMano = b.c.enMano;
    EXPECT_EQ(b.pasos.size(), clase.pasos);
    for (const auto& paso : b.pasos) EXPECT_NE(paso.nombre, "");
    while (b.Deshace()) {
    }
    EXPECT_TRUE(VersionActual(b.c) == antes);
    EXPECT_EQ(b.c.enMano, b.Id(3));
    EXPECT_FALSE(b.c.EnCambio());
    while (b.Rehace()) {
    }
    EXPECT_TRUE(VersionActual(b.c) == despues);
    EXPECT_EQ(b.c.enMano, enMano);
    // A save is no step but where the rules complete something; what is unsaved follows the file.
    if (!Graba(b.c)) continue;
    EXPECT_FALSE(b.c.EnCambio());
    while (b.Deshace()) {
    }
    EXPECT_TRUE(VersionActual(b.c) == antes);
    EXPECT_EQ(b.c.EnCambio(), !(antes == b.c.guardada));
    EXPECT_TRUE(Graba(b.c)) << b.Porque();
    b.Abre();
    EXPECT_EQ(RenglonesTramos(b.c).size(), 7u);
  }
}

TEST(Deshacer, LoQueNoCambiaNadaNoEsUnPaso) {
  ConMuestra b;
  for (const int n : {1, 6}) {
    b.Toma(n);
    b.Teclea(edTramo, "2");
    for (const auto& fila : TablaCampos()) {
      const std::string texto = b.c[fila.id].texto;
      if (texto.empty() || fila.id == edTramo) continue;
      Entra(b.c, fila.id);
      Sale(b.c, fila.id);
    }
    MueveTramos(b.c, {b.Id(1)}, -1);
    EligeOpcion(b.c, rdTipologia, b.e.tramo.EsArmado ? 0 : 1);
    EXPECT_TRUE(Graba(b.c));
  }
  EXPECT_TRUE(b.pasos.empty()) << b.pasos[0].nombre;
  EXPECT_FALSE(b.c.EnCambio());
}

// ---------------------------------------------------------------------------------------------

constexpr auto kTextos = std::to_array<const char*>(
    {"1",   "0,5",   "2", "30",      "0",    "1,2",   "12",      "99999999999999999999",
     "3,0", "210",   "",  "0,0003",  "-3",   "1e308", "nan",     "ñandú",
     "Ω",   "1.2.3", " ", "1.500,2", "2,75", "15,5",  "0,123456"});

// Somebody who does anything. The seeds are fixed, so that a fault can be repeated.
class Paseo {
 public:
  explicit Paseo(unsigned semilla) : azar_(semilla) {
    FicheroRegistros f(RutaDpe(b_.ruta), FicheroRegistros::Modo::LecturaEscritura);
    EscribeAjustes(f, {{5, 1, 2, {1, 2, 3}}, {4, 2, 2, {4, 5, 6}}, {6, 3, 3, {7, 8, 9}}}, ',');
  }

  void Da(int acciones) {
    b_.Abre();
    inicio_ = VersionActual(b_.c);
    for (int i = 0; i < acciones && !testing::Test::HasFailure(); ++i) {
      SCOPED_TRACE("action " + std::to_string(i));
      b_.Olvida();
      Accion();
      Comprueba();
    }
  }

  int grabados() const { return grabados_; }

 private:
  int Dado(int caras) { return static_cast<int>(azar_() % static_cast<unsigned>(caras)); }

  int UnTramo() {
    const auto& tramos = b_.c.version.tramos;
    return tramos.empty()
               ? 0
               : tramos[static_cast<std::size_t>(Dado(static_cast<int>(tramos.size())))]->id;
  }

  void Accion() {
    auto& c = b_.c;
    const Ed campo = static_cast<Ed>(Dado(kCamposCaptura));
    const auto entradas = static_cast<int>(campo == edTramo ? 0 : c[campo].entradas.size());
    const std::function<void()> acciones[]{
        [&] { Teclea(campo); },
        [&] { Teclea(campo); },
        [&] { Teclea(campo); },
        [&] { Teclea(campo); },
        [&] { entradas > 0 ? b_.Escoge(campo, 1 + Dado(entradas)) : void(); },
        [&] { EligeOpcion(c, campo, Dado(3)); },
        [&] { EligeOpcion(c, rdTipologia, Dado(2)); },
        [&] { CambiaMarca(c, Dado(2) ? edIcontes0 : edEnvolvente, Dado(2) != 0); },
        [&] { PonEnMano(c, UnTramo()); },
        [&] { c.version.tramos.size() < 12 ? void(NuevoTramo(c)) : void(); },
        [&] {
          c.version.tramos.size() < 12 ? void(DuplicaTramos(c, {UnTramo(), UnTramo()})) : void();
        },
        [&] { Dado(3) == 0 ? BorraTramos(c, {UnTramo()}) : void(); },
        [&] { MueveTramos(c, {UnTramo()}, Dado(2) ? 1 : -1); },
        [&] { RenumeraTramo(c, UnTramo(), std::to_string(Dado(20))); },
        [&] { EligeOpcion(c, rdSistemaUnidades, Dado(2)); },
        [&] {
          c.version.tramos.size() < 12 ? void(PegaTramos(c, CopiaTramos(c, {UnTramo()}))) : void();
        },
        [&] { Vuelve(1 + Dado(4)); },
        [&] { Vuelve(1 + Dado(4)); },
        [&] {
          for (int n = Dado(4); n > 0 && b_.Rehace(); --n) {
          }
        },
        [&] { Graba(); },
        [&] { Dado(12) == 0 ? Reabre() : void(); },
        [&] { Dado(12) == 0 ? TodoAtras() : void(); },
        [&] { Relee(c); },
    };
    acciones[static_cast<std::size_t>(Dado(std::size(acciones)))]();
  }

  // A refused text is there when one comes back to its Tramo.
  void Teclea(Ed campo) {
    const bool deTramo = Fila(campo).pagina.TabPrincipal != 0;
    if (campo == edTramo || (deTramo && b_.c.SinTramoEnMano())) return;
    const std::string texto = kTextos[static_cast<std::size_t>(Dado(kTextos.size()))];
    const auto antes = b_.e;
    if (b_.Teclea(campo, texto) != SalidaCampo::Queda) return;
    EXPECT_TRUE(b_.e.obra == antes.obra);
    const std::string falta = b_.c[campo].falta;
    EXPECT_NE(falta, "") << Fila(campo).nombre << " " << texto;
    b_.c.version = VersionActual(b_.c);
    const int id = b_.c.enMano;
    PonEnMano(b_.c, UnTramo());
    PonEnMano(b_.c, id);
    EXPECT_EQ(b_.c[campo].texto, texto) << Fila(campo).nombre;
    EXPECT_EQ(b_.c[campo].falta, falta);
  }

  void Vuelve(int pasos) {
    while (pasos-- > 0 && b_.Deshace()) {
    }
  }

  void TodoAtras() {
    while (b_.Deshace()) {
    }
    EXPECT_TRUE(VersionActual(b_.c) == inicio_);
    if (Dado(2)) return;
    while (b_.Rehace()) {
    }
  }

  // What the file holds, read by another program, is what is in memory.
  void Graba() {
    auto& c = b_.c;
    if (Dado(2)) MasSensato();
    b_.voz.responde = Dado(4) > 0;
    const auto antes = VersionActual(c);
    const auto bytes = pruebas::Bytes(b_.ruta);
    const bool preguntara = !SinAjustesVanos(antes).anulados.empty();
    if (!zorbin::Graba(c)) {
      EXPECT_EQ(pruebas::Bytes(b_.ruta), bytes);
      EXPECT_TRUE(!c.faltas.empty() || !b_.voz.preguntas.empty());
      return;
    }
    ++grabados_;
    EXPECT_FALSE(c.EnCambio());
    // Adjustments end with a question, and with nothing else.
    const auto cuantos = [](const Version& v) {
      std::size_t n = 0;
      for (const auto& t : v.tramos) n += t->ajustes.size();
      return n;
    };
    if (!preguntara && b_.voz.preguntas.empty()) {
      EXPECT_EQ(cuantos(c.version), cuantos(antes));
    }
    Banco otro;
    AbreParaMirar(otro.c, b_.ruta);
    ASSERT_EQ(ListaDe(otro.c.version), ListaDe(c.version));
    EXPECT_TRUE(otro.c.version.obra == c.version.obra);
    for (std::size_t i = 0; i < c.version.tramos.size(); ++i) {
      const auto& leido = *otro.c.version.tramos[i];
      const auto& suyo = *c.version.tramos[i];
      EXPECT_TRUE(leido.datos == suyo.datos) << suyo.numero;
      EXPECT_EQ(leido.ajustes, suyo.ajustes);
    }
  }

  // What makes a save likely now and then.
  void MasSensato() {
    auto& c = b_.c;
    for (const auto& t : std::vector(c.version.tramos)) {
      if (!t->pendientes.empty() || Dado(3) == 0) PonEnMano(c, t->id), Relee(c);
    }
    while (!zorbin::Comprueba(c, IdsDe(c.version)).Vale() && b_.Deshace()) {
    }
  }

  void Reabre() {
    b_.c.alDarPaso = nullptr;
    Descarta(b_.c);
    b_.c.alDarPaso = [this](PasoHecho paso) {
      b_.pasos.resize(b_.dados);
      b_.pasos.push_back(std::move(paso));
      ++b_.dados;
    };
    b_.Abre();
    inicio_ = VersionActual(b_.c);
  }

  void Comprueba() {
    const auto& c = b_.c;
    for (const auto& fila : TablaCampos()) {
      if (fila.clase != Clase::Numero) continue;
      const double valor = Variable(b_.c, fila.id);
      ASSERT_TRUE(std::isfinite(valor) && std::fabs(valor) < 1e12) << fila.nombre << " " << valor;
    }
    EXPECT_EQ(c[edTramo].entradas, ListaDe(c.version));
    for (const auto& t : c.version.tramos) {
      EXPECT_EQ(NumeroDe(t->numero), t->datos.NumeroTramo);
      EXPECT_EQ(LugarDe(c.version, t->id), LugarDeNumero(c.version, NumeroDe(t->numero)));
      for (const auto& ajuste : t->ajustes) EXPECT_EQ(ajuste.Tramo, t->datos.NumeroTramo);
    }
    if (c.enMano != 0) {
      EXPECT_EQ(c[edTramo].texto, Busca(c.version, c.enMano)->numero);
    }
  }

  std::mt19937 azar_;
  ConMuestra b_;
  Version inicio_;
  int grabados_ = 0;
};

TEST(Deshacer, PaseosAlAzar) {
  int grabados = 0;
  for (unsigned semilla = 1; semilla <= 4 && !HasFailure(); ++semilla) {
    SCOPED_TRACE("seed " + std::to_string(semilla));
    Paseo paseo(semilla);
    paseo.Da(500);
    grabados += paseo.grabados();
  }
  EXPECT_GT(grabados, 20);
}

}  // namespace
}  // namespace zorbin::prueba
