// Takes a target through the inputs of its folders, and through a number of damaged copies of them
// that is always the same: bytes changed, added, left out, repeated, pieces of another input, cuts.
// Without a compiler that can guide itself by what is covered, this is what every build can do.
//
//   OBJETIVO COPIAS FOLDER...
#include <algorithm>
#include <charconv>
#include <cstdio>
#include <cstring>
#include <ctime>
#include <random>
#include <string>
#include <vector>

#include "fuzz/comun.h"

namespace zorbin::hostil {

namespace {

namespace fs = std::filesystem;

constexpr int kMaxDanos = 4;           // of a copy
constexpr std::size_t kMaxTrozo = 64;  // bytes
#ifdef __SANITIZE_ADDRESS__
constexpr double kMaxSegundos = 20.0;  // of the processor, for one input
#else
constexpr double kMaxSegundos = 3.0;
#endif
constexpr std::uint32_t kSemilla = 20090302;

struct Entrada {
  std::string nombre;
  std::string bytes;
};

std::vector<Entrada> EntradasDe(const fs::path& carpeta) {
  std::vector<Entrada> entradas;
  if (!fs::is_directory(carpeta)) return entradas;
  for (const auto& f : fs::directory_iterator(carpeta)) {
    entradas.push_back({f.path().string(), Bytes(f.path())});
  }
  std::sort(entradas.begin(), entradas.end(),
            [](const Entrada& a, const Entrada& b) { return a.nombre < b.nombre; });
  return entradas;
}

class Danador {
 public:
  explicit Danador(const std::vector<Entrada>& entradas) : entradas_(entradas) {}

  std::string Copia() {
    std::string b = Otra();
    for (int n = 1 + Menor(kMaxDanos); n > 0; --n) Dana(b);
    return b;
  }

 private:
  const std::vector<Entrada>& entradas_;
  std::mt19937 azar_{kSemilla};

  // Below n. The distributions of the library are not the same everywhere.
  template <class Entero>
  Entero Menor(Entero n) {
    return n == 0 ? Entero{0} : static_cast<Entero>(azar_() % static_cast<std::uint32_t>(n));
  }
  const std::string& Otra() { return entradas_[Menor(entradas_.size())].bytes; }
  char Byte() {
    constexpr std::string_view kSenalados("\0\x7f\x80\xff\n\r 09-,.@{}\\\"", 18);
    return Menor(2) == 0 ? kSenalados[Menor(kSenalados.size())] : static_cast<char>(Menor(256));
  }

  void Dana(std::string& b) {
    const std::size_t lugar = Menor(b.size() + 1);
    const std::size_t trozo = 1 + Menor(std::min(kMaxTrozo, b.size() - lugar + 1));
    switch (Menor(6)) {
      case 0:
        b.resize(lugar);
        return;
      case 1:
        b.erase(lugar, trozo);
        return;
      case 2:
        b.insert(lugar, b.substr(lugar, trozo));
        return;
      case 3:
        b.insert(lugar, 1, Byte());
        return;
      case 4: {
        const std::string& otra = Otra();
        b.replace(lugar, trozo, otra.substr(Menor(otra.size() + 1), trozo));
        return;
      }
      default:
        if (lugar < b.size()) b[lugar] = Byte();
        return;
    }
  }
};

double Segundos() {
  timespec t{};
  ::clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &t);
  return static_cast<double>(t.tv_sec) + static_cast<double>(t.tv_nsec) * 1e-9;
}

// What broke a promise, or the program, can be tried again from the file that it leaves behind.
void Prueba(const Entrada& entrada) {
  const double antes = Segundos();
  LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(entrada.bytes.data()),
                         entrada.bytes.size());
  Exige(Segundos() - antes < kMaxSegundos, "an input takes its time", entrada.nombre);
}

int Repasa(const std::string& objetivo, int copias, const std::vector<std::string>& carpetas) {
  std::vector<Entrada> entradas;
  for (const auto& carpeta : carpetas) {
    for (auto& e : EntradasDe(carpeta)) entradas.push_back(std::move(e));
  }
  if (entradas.empty()) {
    std::fprintf(stderr, "%s: no inputs\n", objetivo.c_str());
    return 1;
  }
  const std::string ultima = Carpeta().parent_path() / ("zorbin-" + objetivo + "-ultima.bin");
  for (const auto& e : entradas) {
    Pon(ultima, e.bytes);
    Prueba(e);
  }
  Danador danador(entradas);
  for (int i = 0; i < copias; ++i) {
    const Entrada copia{ultima, danador.Copia()};
    Pon(ultima, copia.bytes);
    Prueba(copia);
  }
  fs::remove(ultima);
  std::printf("%s: %zu inputs kept, %d damaged copies of them, %.1f s\n", objetivo.c_str(),
              entradas.size(), copias, Segundos());
  return 0;
}

}  // namespace

}  // namespace zorbin::hostil

int main(int argc, char** argv) {
  int copias = 0;
  const bool vale =
      argc >= 3 &&
      std::from_chars(argv[1], argv[1] + std::strlen(argv[1]), copias).ec == std::errc{};
  if (!vale) {
    std::fprintf(stderr, "usage: %s COPIES FOLDER...\n", argv[0]);
    return 2;
  }
  const auto nombre = std::filesystem::path(argv[0]).filename().string();
  return zorbin::hostil::Repasa(nombre, copias, {argv + 2, argv + argc});
}
