// A power cut after any call of a save, or of the undoing of one, with what was not synced lost or
// kept in many mixtures: the file is that of before a save or that of after it, and a save that was
// told done is there.
#include <gtest/gtest.h>

#include <algorithm>

#include <iostream>
#include <optional>
#include <random>
#include <set>
#include <utility>

#include "fallos/disco.h"
#include "fallos/escenas.h"

namespace zorbin::fallos {
namespace {

constexpr int kAlAzar = 8;  // mixtures by chance at each cut
constexpr unsigned kSemilla = 20091102;

// What a save is undone from.
bool EsDiario(const std::string& nombre) {
  return nombre.ends_with("-diario") || nombre.ends_with("-conjunto");
}

// What may be on the disk at this moment.
std::set<Ficheros> Mezclas(const Disco& disco, std::mt19937& azar) {
  const auto& p = disco.pendientes();
  std::set<Ficheros> mezclas;
  const auto anade = [&](const auto& llega) { mezclas.insert(disco.TrasApagon(llega)); };
  for (const bool diario : {false, true}) {
    for (const bool fichero : {false, true}) {
      for (const bool nombres : {false, true}) {
        anade([&](std::size_t i) {
          return p[i].esNombre ? nombres : EsDiario(p[i].nombre) ? diario : fichero;
        });
      }
    }
  }
  for (std::size_t solo = 0; solo < p.size(); ++solo) {
    anade([&](std::size_t i) { return i == solo; });
    anade([&](std::size_t i) { return i != solo; });
  }
  for (int vez = 0; vez < kAlAzar && !p.empty(); ++vez) {
    std::vector<bool> llega(p.size());
    for (auto&& x : llega) x = azar() % 2 == 0;
    anade([&](std::size_t i) { return llega[i]; });
  }
  // A mark names a process; it says nothing of the file.
  std::set<Ficheros> sinMarca;
  for (Ficheros f : mezclas) {
    std::erase_if(f, [](const auto& par) { return par.first.ends_with("-uso"); });
    sinMarca.insert(std::move(f));
  }
  return sinMarca;
}

bool HayDiario(const Ficheros& ficheros) {
  return std::any_of(ficheros.begin(), ficheros.end(),
                     [](const auto& par) { return EsDiario(par.first); });
}

// A moment of a program: the disk, the folder as programs see it, and the saves told done.
struct Momento {
  Disco disco;
  Ficheros ficheros;
  int grabados;
};

class Apagon : public testing::TestWithParam<std::size_t> {
 protected:
  const Escena& escena = Escenas().at(GetParam());
  CarpetaReal casa;
  fs::path carpeta = casa.ruta() / "obra";
  fs::path otra = casa.ruta() / "otra";
  std::vector<Ficheros> estados = Estados(escena, carpeta);
  std::mt19937 azar{kSemilla};
  std::map<Ficheros, int> vistos;  // after a cut, and the saves told done before it
  int puntos = 0;
  int rotos = 0;

  void SetUp() override { fs::create_directories(otra); }
  void TearDown() override {
    EXPECT_GE(puntos, 7) << "disks that power cuts left";
    std::cout << escena.nombre << ": " << puntos << " power cuts, " << rotos << " torn files\n";
  }

  void Anota(const Disco& disco, int grabados) {
    for (const auto& mezcla : Mezclas(disco, azar)) {
      int& hechos = vistos[mezcla];
      hechos = std::max(hechos, grabados);
    }
  }

  // Does something in a folder. @return its moments after each call that changes it
  template <class Accion>
  std::vector<Momento> Sigue(const fs::path& donde, Disco disco, const int& grabados,
                             Accion accion) {
    struct Quien {
      const fs::path& donde;
      Disco& disco;
      const int& grabados;
      std::vector<Momento> momentos;
    } quien{donde, disco, grabados, {}};
    fallos_escucha(
        [](const fallos_suceso* s, void* de) {
          auto& q = *static_cast<Quien*>(de);
          q.disco.Apunta(*s);
          q.momentos.push_back({q.disco, FicherosDe(q.donde), q.grabados});
        },
        &quien);
    fallos_arma(donde.c_str(), 0, FALLO_NINGUNO, 0);
    accion();
    fallos_escucha(nullptr, nullptr);
    casa.Sana();
    return std::move(quien.momentos);
  }

  std::vector<Momento> LosGrabados() {
    int grabados = 0;
    Prepara(escena, carpeta);
    return Sigue(carpeta, Disco(carpeta), grabados, [&] {
      Sesion s(carpeta);
      escena.abre(s);
      for (const auto& graba : escena.grabados) grabados += graba(s);
    });
  }

  // The next start of the program finds what a moment left, and the power goes while it undoes it;
  // once a journal is dealt with, what the file was found to hold stays.
  void AbreConApagones(const Ficheros& ficheros, std::optional<Disco> disco, int grabados) {
    PonFicheros(otra, ficheros);
    if (disco) disco->Muda(otra);
    int indice = 0;
    const auto momentos = Sigue(otra, disco ? *disco : Disco(otra), grabados,
                                [&] { indice = Indice(estados, AbreYCierra(escena, otra)); });
    for (const auto& m : momentos) Anota(m.disco, grabados);
    if (!momentos.empty() && HayDiario(ficheros)) Anota(momentos.back().disco, indice);
  }

  void CompruebaLosVistos() {
    for (const auto& [ficheros, grabados] : vistos) {
      ++puntos;
      PonFicheros(otra, ficheros);
      const int indice = Indice(estados, AbreYCierra(escena, otra));
      rotos += indice < 0;
      EXPECT_GE(indice, grabados) << escena.nombre;
      EXPECT_LE(indice, grabados + 1) << escena.nombre;
    }
    EXPECT_GT(puntos, 0);
  }
};

TEST_P(Apagon, AlGrabar) {
  for (const auto& m : LosGrabados()) Anota(m.disco, m.grabados);
  CompruebaLosVistos();
}

// The first cut, or the program being killed, left a save half done.
TEST_P(Apagon, AlDeshacer) {
  const auto momentos = LosGrabados();
  for (const auto& m : momentos) Anota(m.disco, m.grabados);
  for (const auto& [ficheros, grabados] : std::exchange(vistos, {})) {
    AbreConApagones(ficheros, std::nullopt, grabados);
  }
  for (const auto& m : momentos) AbreConApagones(m.ficheros, m.disco, m.grabados);
  CompruebaLosVistos();
}

INSTANTIATE_TEST_SUITE_P(Grabados, Apagon, testing::Range(std::size_t{0}, Escenas().size()));

}  // namespace
}  // namespace zorbin::fallos
