// Every save, with every call that changes the folder, or asks for something of it, failing,
// falling short or being the last one of the program: the file afterwards is that of before a save
// or that of after it, byte for byte.
#include "fallos/fallos.h"

#include <gtest/gtest.h>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <iostream>
#include <set>

#include "fallos/escenas.h"

namespace zorbin::fallos {
namespace {

struct Clase {
  const char* nombre;
  fallos_tipo tipo;
  bool siempre;  // all calls after it too
  bool pasa;     // the save is done all the same
  bool mata;
  bool alDeshacer;        // tried on the undoing too
  bool consulta = false;  // it is stat, pread or flock that fails
};

constexpr auto kClases = std::to_array<Clase>({
    {"I/O error", FALLO_EIO, false, false, false, true},
    {"disk full", FALLO_ENOSPC, false, false, false, false},
    {"interrupted call", FALLO_EINTR, false, true, false, false},
    {"short write", FALLO_CORTO, false, true, false, true},
    {"short write, then disk full", FALLO_CORTO_Y_ENOSPC, false, false, false, false},
    {"I/O error from there on", FALLO_EIO, true, false, false, true},
    {"killed in the middle", FALLO_CORTO_Y_MUERE, false, false, true, true},
    {"killed after", FALLO_HACE_Y_MUERE, false, false, true, true},
    {"query refused", FALLO_EIO, false, false, false, true, true},
    {"interrupted query", FALLO_EINTR, false, true, false, false, true},
    {"short read", FALLO_CORTO, false, true, false, true, true},
});
constexpr const Clase& kMata = kClases[6];

// What happens when a save was refused.
enum class Entonces {
  Acaba,    // the program goes without another call
  Cierra,   // the cause is mended and the program ended
  Insiste,  // the cause is mended and the person saves again
};

// What a program leaves behind for the one that looks.
struct Parte {
  int grabados = 0;           // saves that it was told were done
  int llamadas = 0;           // that were counted
  int puestos = 0;            // of them, those that suffered the fault
  bool negado = false;        // a save was refused
  bool dicho = true;          // with a message
  bool enteroAlNegar = true;  // the file was then as the message says
};

class Fallos : public testing::TestWithParam<std::size_t> {
 protected:
  const Escena& escena = Escenas().at(GetParam());
  CarpetaReal casa;
  fs::path carpeta = casa.ruta() / "obra";
  std::vector<Ficheros> estados = Estados(escena, carpeta);
  Parte* parte = nullptr;
  int puntos = 0;
  int minimo = escena.puntos;
  int rotos = 0;

  void SetUp() override {
    void* memoria =
        ::mmap(nullptr, sizeof(Parte), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
    ASSERT_NE(memoria, MAP_FAILED);
    parte = new (memoria) Parte;
  }
  void TearDown() override {
    ::munmap(parte, sizeof(Parte));
    std::cout << escena.nombre << ": " << puntos << " points injected, " << rotos
              << " torn files\n";
    EXPECT_GE(puntos, minimo);
    RecordProperty("points", puntos);
    RecordProperty("torn", rotos);
  }

  // In a process of its own. @return whether it was killed
  template <class Accion>
  bool EnOtroProceso(Accion accion) {
    std::cout.flush();
    *parte = Parte{};
    const pid_t hijo = ::fork();
    if (hijo == 0) {
      accion();
      Cuenta();
      ::_exit(0);
    }
    int estado = 0;
    ::waitpid(hijo, &estado, 0);
    EXPECT_TRUE(WIFSIGNALED(estado) ? WTERMSIG(estado) == SIGKILL : WEXITSTATUS(estado) == 0)
        << escena.nombre << ": status " << estado;
    return WIFSIGNALED(estado);
  }

  void Cuenta() {
    parte->llamadas = std::max(parte->llamadas, fallos_cuenta(-1));
    parte->puestos = std::max(parte->puestos, fallos_puestos());
  }

  // A point at which the fault did happen. @return false where the call was not reached
  bool Toco(int n, const Clase& clase, bool muerto, const std::string& donde) {
    if (!muerto && parte->llamadas < n) return false;
    ++puntos;
    EXPECT_EQ(muerto, clase.mata) << donde;
    EXPECT_TRUE(muerto || parte->puestos > 0) << donde << ": nothing was injected";
    return true;
  }

  bool GrabaUno(Sesion& s, std::size_t i) {
    const bool grabado = escena.grabados[i](s);
    if (grabado) {
      ++parte->grabados;
    } else {
      parte->negado = true;
      parte->dicho = parte->dicho && !s.queja.empty();
    }
    return grabado;
  }

  void Arma(int n, const Clase& clase) const {
    fallos_en_consultas(clase.consulta);
    fallos_arma(carpeta.c_str(), n, clase.tipo, clase.siempre);
  }

  // The saves of the scene with a fault in their n-th call.
  bool Graba(int n, const Clase& clase, Entonces entonces) {
    return EnOtroProceso([&] {
      Sesion s(carpeta);
      escena.abre(s);
      Arma(n, clase);
      for (std::size_t i = 0; i < escena.grabados.size(); ++i) {
        if (GrabaUno(s, i)) continue;
        const int indice = Indice(estados, EstadoDe(carpeta));
        parte->enteroAlNegar = clase.siempre || indice >= 0;
        Cuenta();
        if (entonces == Entonces::Acaba) ::_exit(0);
        casa.Sana();
        if (entonces == Entonces::Cierra) return;
        if (!GrabaUno(s, i)) ::_exit(1);
      }
    });
  }

  // The program is started again on what was left. @return which of the states it found
  int Comprueba(const std::string& donde) {
    const std::string leido = Leido(escena, carpeta);
    const Ficheros ficheros = AbreYCierra(escena, carpeta);
    const int indice = Indice(estados, ficheros);
    rotos += indice < 0;
    EXPECT_GE(indice, parte->grabados)
        << donde << ": a save that was done is lost" << Nombres(carpeta);
    EXPECT_LE(indice, parte->grabados + 1) << donde;
    EXPECT_TRUE(parte->dicho) << donde << ": refused without a word";
    EXPECT_TRUE(parte->enteroAlNegar) << donde << ": not undone at once";
    EXPECT_TRUE(leido.empty() || leido == Leido(escena, carpeta)) << donde << ": read " << leido;
    fs::remove(RutaMarca(carpeta / "obra.dpe"));  // who had it; it is no part of what is saved
    EXPECT_TRUE(!ficheros.contains(escena.fichero) || FicherosDe(carpeta) == ficheros)
        << donde << Nombres(carpeta);
    return indice;
  }

  // From what was left, all of the scene can still be done.
  void Acaba(int desde, const std::string& donde) {
    Sesion s(carpeta);
    escena.abre(s);
    for (std::size_t i = static_cast<std::size_t>(desde); i < escena.grabados.size(); ++i) {
      EXPECT_TRUE(escena.grabados[i](s)) << donde << ": " << s.queja;
    }
  }
};

TEST_P(Fallos, UnGrabadoEsTodoONada) {
  const int todos = static_cast<int>(escena.grabados.size());
  for (const auto& clase : kClases) {
    for (const Entonces entonces : {Entonces::Acaba, Entonces::Cierra, Entonces::Insiste}) {
      if (clase.mata && entonces != Entonces::Acaba) continue;
      if (!clase.siempre && entonces == Entonces::Cierra) continue;
      const bool insiste = entonces == Entonces::Insiste;
      for (int n = 1;; ++n) {
        Prepara(escena, carpeta);
        const std::string donde = escena.nombre + ", " + clase.nombre + ", call " +
                                  std::to_string(n) + (insiste ? ", again" : "");
        // At the end the saves pass untouched.
        if (!Toco(n, clase, Graba(n, clase, entonces), donde)) break;
        const int indice = Comprueba(donde);
        if (indice < 0) continue;
        EXPECT_FALSE(clase.pasa && parte->negado) << donde;
        EXPECT_TRUE(!insiste || indice == todos) << donde;
        if (!insiste) Acaba(indice, donde);
      }
    }
  }
  EXPECT_EQ(rotos, 0);
  EXPECT_GT(puntos, 0);
}

// A program killed while it undoes what another left, again and again.
class FallosAlDeshacer : public Fallos {};

TEST_P(FallosAlDeshacer, PuedeRomperseYRepetirse) {
  const fs::path dejado = casa.ruta() / "dejado";
  minimo = 370;
  std::set<Ficheros> vistos;
  for (int n = 1;; ++n) {
    Prepara(escena, carpeta);
    if (!Graba(n, kMata, Entonces::Acaba)) break;
    const int grabados = parte->grabados;
    for (const char* marca : {"obra.zrb", "obra.dpe"}) {  // never the same twice
      fs::remove(RutaMarca(carpeta / marca));
    }
    if (!vistos.insert(FicherosDe(carpeta)).second) continue;
    fs::remove_all(dejado);
    fs::copy(carpeta, dejado);
    for (const auto& clase : kClases) {
      if (!clase.alDeshacer) continue;
      for (int m = 1;; ++m) {
        fs::remove_all(carpeta);
        fs::copy(dejado, carpeta);
        const bool muerto = EnOtroProceso([&] {
          Arma(m, clase);
          try {
            AbreYCierra(escena, carpeta);
          } catch (const ErrorFichero& error) {
            parte->dicho = error.mensaje().texto != 0;
          }
        });
        const std::string donde = escena.nombre + ", killed at call " + std::to_string(n) +
                                  ", then " + clase.nombre + " at call " + std::to_string(m);
        if (!Toco(m, clase, muerto, donde)) break;
        parte->grabados = grabados;
        Comprueba(donde);
      }
    }
  }
  EXPECT_EQ(rotos, 0);
  EXPECT_GT(puntos, 0);
}

// An Obra that is there is never taken for a new one, and what could not be asked once can be asked
// again.
TEST(FallosAlAbrir, LoQueNoSePuedePreguntarSeDice) {
  const CarpetaReal casa;
  const fs::path carpeta = casa.ruta();
  const fs::path ruta = carpeta / "obra.zrb";
  fs::copy_file(ZORBIN_FUENTES "muestras/acequia.zrb", ruta);
  const std::string obra = FicheroRegistros(ruta, FicheroRegistros::Modo::Lectura).LeeRegistro(5);
  const auto graba = [&](int n) {
    FicheroRegistros f(ruta, FicheroRegistros::Modo::LecturaEscritura);
    EXPECT_EQ(f.LeeRegistro(5), obra) << n;
    f.EscribeRegistro(6, "Cliente " + std::to_string(n));
    f.Vacia();
  };
  int puntos = 0, negados = 0;
  for (int n = 1;; ++n) {
    fallos_en_consultas(1);
    fallos_arma(carpeta.c_str(), n, FALLO_EIO, 0);
    bool negado = false;
    try {
      graba(n);
    } catch (const ErrorFichero& error) {
      negado = error.mensaje().texto != 0;
    }
    if (fallos_cuenta(-1) < n) break;
    EXPECT_EQ(fallos_puestos(), 1);
    ++puntos;
    negados += negado;
    casa.Sana();
    EXPECT_EQ(Nombres(carpeta), "obra.zrb ") << n;
    EXPECT_NO_THROW(graba(-n)) << n;
  }
  EXPECT_GE(puntos, 12);
  EXPECT_GE(negados, 8);
}

INSTANTIATE_TEST_SUITE_P(Grabados, Fallos, testing::Range(std::size_t{0}, Escenas().size()));
// The file grows; a journal that was used before is used again; companions are brought back.
INSTANTIATE_TEST_SUITE_P(Grabados, FallosAlDeshacer, testing::Values(2, 3, Escenas().size() - 1));

}  // namespace
}  // namespace zorbin::fallos
