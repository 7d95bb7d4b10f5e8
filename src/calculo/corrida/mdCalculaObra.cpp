#include "calculo/corrida/mdCalculaObra.h"

#include <algorithm>
#include <condition_variable>
#include <exception>
#include <map>
#include <mutex>
#include <optional>
#include <string>
#include <thread>
#include <vector>

#include "calculo/corrida/mdRango.h"

namespace zorbin {

namespace {

// Results that may wait for the one before them, for each thread: what is kept is bounded.
constexpr std::size_t kAdelanto = 4;

struct Hecho {
  ResultadoTramo resultado;
  std::string registro;
  std::exception_ptr fallo;
  bool preguntado = false;  // whether to go on
};

class Cuadrilla {
 public:
  Cuadrilla(const TareaObra& tarea, int hilos)
      : tarea_(tarea), adelanto_(kAdelanto * static_cast<std::size_t>(hilos)) {
    for (int i = 0; i < hilos; ++i) hilos_.emplace_back([this] { Trabaja(); });
  }
  ~Cuadrilla() { Para(); }
  Cuadrilla(const Cuadrilla&) = delete;
  Cuadrilla& operator=(const Cuadrilla&) = delete;

  bool Reparte() {
    for (std::size_t i = 0; i < tarea_.cuantos; ++i) {
      Hecho hecho = Espera(i);
      if (hecho.fallo) std::rethrow_exception(hecho.fallo);
      const bool cancelado = hecho.resultado.cancelado;
      if (!cancelado && !hecho.preguntado && !Permite(i, hecho.resultado)) return false;
      if (tarea_.registro != nullptr) *tarea_.registro << hecho.registro;
      if (!tarea_.toma(i, std::move(hecho.resultado)) || cancelado) return !cancelado;
      const std::lock_guard cierra(cerrojo_);
      entregados_ = i + 1;
      cambio_.notify_all();
    }
    return true;
  }

 private:
  const TareaObra& tarea_;
  const std::size_t adelanto_;
  std::mutex cerrojo_;
  std::condition_variable cambio_;
  std::size_t siguiente_ = 0;   // to be begun
  std::size_t entregados_ = 0;  // taken
  bool parada_ = false;
  std::map<std::size_t, Hecho> hechos_;
  std::vector<std::jthread> hilos_;

  void Para() {
    const std::lock_guard cierra(cerrojo_);
    parada_ = true;
    cambio_.notify_all();
  }

  Hecho Espera(std::size_t i) {
    std::unique_lock cierra(cerrojo_);
    cambio_.wait(cierra, [&] { return hechos_.contains(i); });
    return std::move(hechos_.extract(i).mapped());
  }

  // @return none where there is nothing more to begin
  std::optional<std::size_t> Empieza() {
    std::unique_lock cierra(cerrojo_);
    cambio_.wait(cierra, [&] {
      return parada_ || siguiente_ >= tarea_.cuantos || siguiente_ < entregados_ + adelanto_;
    });
    if (parada_ || siguiente_ >= tarea_.cuantos) return std::nullopt;
    return siguiente_++;
  }

  void Trabaja() {
    while (const auto i = Empieza()) {
      Hecho hecho;
      try {
        Calcula(*i, hecho);
      } catch (...) {
        hecho.fallo = std::current_exception();
      }
      const std::lock_guard cierra(cerrojo_);
      hechos_.emplace(*i, std::move(hecho));
      cambio_.notify_all();
    }
  }

  void Calcula(std::size_t i, Hecho& hecho) {
    const auto datos = tarea_.datos(i);
    const auto sigue = [&](const AvanceCorrida& avance) {
      return Sigue(i, avance, hecho.preguntado);
    };
    if (tarea_.registro == nullptr) {
      hecho.resultado = CalculaTramo(datos, RangoDe(datos), sigue);
      return;
    }
    Registro registro([&](std::string_view bloque) { hecho.registro += bloque; });
    hecho.resultado = CalculaTramo(datos, RangoDe(datos), sigue, &registro);
    registro.Vuelca();
  }

  // A Tramo that ran before its turn came asked nobody.
  bool Permite(std::size_t i, const ResultadoTramo& r) {
    const int casos = std::max(1, static_cast<int>(r.filas.size()));
    return !tarea_.sigue || tarea_.sigue(i, {casos, casos});
  }

  bool Sigue(std::size_t i, const AvanceCorrida& avance, bool& preguntado) {
    {
      const std::lock_guard cierra(cerrojo_);
      if (parada_) return false;
      if (!tarea_.sigue || i != entregados_) return true;
    }
    preguntado = true;
    if (tarea_.sigue(i, avance)) return true;
    Para();
    return false;
  }
};

bool EnEsteHilo(const TareaObra& tarea) {
  for (std::size_t i = 0; i < tarea.cuantos; ++i) {
    const auto datos = tarea.datos(i);
    SigueCorrida sigue;
    if (tarea.sigue) sigue = [&](const AvanceCorrida& avance) { return tarea.sigue(i, avance); };
    auto resultado = CalculaTramo(datos, RangoDe(datos), sigue, tarea.registro);
    const bool cancelado = resultado.cancelado;
    if (!tarea.toma(i, std::move(resultado)) || cancelado) return !cancelado;
  }
  return true;
}

}  // namespace

int HilosDeLaMaquina() {
  return std::max(1, static_cast<int>(std::thread::hardware_concurrency()));
}

bool CalculaObra(const TareaObra& tarea, int hilos) {
  const auto utiles = static_cast<int>(std::min<std::size_t>(
      static_cast<std::size_t>(std::max(1, hilos)), std::max<std::size_t>(1, tarea.cuantos)));
  if (utiles == 1) return EnEsteHilo(tarea);
  return Cuadrilla(tarea, utiles).Reparte();
}

}  // namespace zorbin
