// From the start of the process to a painted window, beside a program with an empty one. Read the
// two as a ratio.
#include <benchmark/benchmark.h>
#include <spawn.h>
#include <sys/wait.h>
#include <array>
#include <stdexcept>

extern char** environ;

namespace {

void Ejecuta(const char* programa) {
  std::array<char*, 4> palabras{const_cast<char*>(programa), const_cast<char*>("-platform"),
                                const_cast<char*>("offscreen"), nullptr};
  pid_t hijo = 0;
  if (posix_spawn(&hijo, programa, nullptr, nullptr, palabras.data(), environ) != 0) {
    throw std::runtime_error(programa);
  }
  int estado = 0;
  waitpid(hijo, &estado, 0);
  if (estado != 0) throw std::runtime_error(programa);
}

void ArranqueVentanaVacia(benchmark::State& estado) {
  for (auto _ : estado) Ejecuta(ZORBIN_ARRANQUE_VACIO);
}
BENCHMARK(ArranqueVentanaVacia)->UseRealTime()->Unit(benchmark::kMillisecond)->MinTime(2.0);

void ArranqueZorbin(benchmark::State& estado) {
  for (auto _ : estado) Ejecuta(ZORBIN_ARRANQUE);
}
BENCHMARK(ArranqueZorbin)->UseRealTime()->Unit(benchmark::kMillisecond)->MinTime(2.0);

}  // namespace
