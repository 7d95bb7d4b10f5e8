// What the journal of a save costs: a Tramo saved, beside the same bytes written plainly and
// synced. One after the other at every turn, so that a busy disk is busy for both; on the disk of
// the folder from which it runs.
#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <vector>

#include "persistencia/registros/mdRegistros.h"

namespace zorbin {
namespace {

namespace fs = std::filesystem;
using Reloj = std::chrono::steady_clock;

constexpr int kTramos = 100;
constexpr int kRegistrosBloque = 60;
constexpr int kRegistrosCabecera = 20;
constexpr int kVeces = 400;

class Carpeta {
 public:
  Carpeta() : ruta_(fs::current_path() / (".zorbin-bench-" + std::to_string(::getpid()))) {
    fs::create_directories(ruta_);
  }
  ~Carpeta() { fs::remove_all(ruta_); }
  Carpeta(const Carpeta&) = delete;
  Carpeta& operator=(const Carpeta&) = delete;
  fs::path operator/(const char* nombre) const { return ruta_ / nombre; }

 private:
  fs::path ruta_;
};

// Header and block of the 50th Tramo.
std::vector<int> RegistrosDelGrabado() {
  std::vector<int> registros;
  for (int r = 1; r <= kRegistrosCabecera; ++r) registros.push_back(r);
  for (int r = 0; r <= kRegistrosBloque; ++r) {
    registros.push_back(50 * kRegistrosBloque + kRegistrosCabecera + r);
  }
  return registros;
}

void Llena(const fs::path& ruta) {
  FicheroRegistros f(ruta, FicheroRegistros::Modo::LecturaEscritura);
  for (int r = 1; r <= kTramos * kRegistrosBloque + kRegistrosCabecera; ++r) {
    f.EscribeRegistro(r, "0,00 // 0,00");
  }
  f.Vacia();
}

std::string TextoDe(int vez) {
  return std::to_string(vez % 2) + ",00 // 0,00";
}

void GrabaConDiario(FicheroRegistros& f, const std::vector<int>& registros, int vez) {
  for (const int r : registros) f.EscribeRegistro(r, TextoDe(vez));
  f.Vacia();
}

void GrabaSinMas(int descriptor, const std::vector<int>& registros, int vez) {
  Bloque b{};
  const std::string texto = TextoDe(vez);
  b[0] = static_cast<char>(texto.size());
  std::copy(texto.begin(), texto.end(), b.begin() + 2);
  for (const int r : registros) {
    if (::pwrite(descriptor, b.data(), b.size(), static_cast<off_t>(Desde(r))) < 0) std::abort();
  }
  if (::fsync(descriptor) != 0) std::abort();
}

template <class Accion>
double Milisegundos(Accion accion) {
  const auto desde = Reloj::now();
  accion();
  return std::chrono::duration<double, std::milli>(Reloj::now() - desde).count();
}

double Mediana(std::vector<double> v) {
  std::nth_element(v.begin(), v.begin() + static_cast<std::ptrdiff_t>(v.size() / 2), v.end());
  return v[v.size() / 2];
}

void GrabaUnTramo(benchmark::State& state) {
  const Carpeta carpeta;
  const auto registros = RegistrosDelGrabado();
  for (const char* nombre : {"diario.zrb", "llano.zrb"}) Llena(carpeta / nombre);
  FicheroRegistros f(carpeta / "diario.zrb", FicheroRegistros::Modo::LecturaEscritura);
  f.PreparaGrabado();
  const int llano = ::open((carpeta / "llano.zrb").c_str(), O_RDWR);
  std::vector<double> conDiario, sinMas;
  int vez = 0;
  for (auto _ : state) {
    sinMas.push_back(Milisegundos([&] { GrabaSinMas(llano, registros, vez); }));
    conDiario.push_back(Milisegundos([&] { GrabaConDiario(f, registros, vez); }));
    ++vez;
  }
  ::close(llano);
  state.counters["diario_ms"] = Mediana(conDiario);
  state.counters["llano_ms"] = Mediana(sinMas);
  state.counters["razon"] = Mediana(conDiario) / Mediana(sinMas);
}
BENCHMARK(GrabaUnTramo)->Iterations(kVeces);

}  // namespace
}  // namespace zorbin
