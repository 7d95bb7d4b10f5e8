// A thread for work that is overtaken: of what is asked for, the newest wins.
#pragma once

#include <atomic>
#include <condition_variable>
#include <cstdint>
#include <functional>
#include <mutex>
#include <thread>

namespace zorbin {

class UltimaFaena {
 public:
  /// Whether nobody has asked for another work meanwhile.
  using Sigue = std::function<bool()>;
  /// Throws nothing: there is nobody to catch it.
  using Trabajo = std::function<void(const Sigue&)>;

  UltimaFaena() : hilo_([this] { Trabaja(); }) {}
  /// Gives up what is under way, and waits for its end.
  ~UltimaFaena();
  UltimaFaena(const UltimaFaena&) = delete;
  UltimaFaena& operator=(const UltimaFaena&) = delete;

  /// Work that waits is dropped; the one under way is told to give up.
  void Pide(Trabajo trabajo);
  void Abandona() { Pide({}); }
  /// Until nothing is under way.
  void Espera();

 private:
  std::mutex cerrojo_;
  std::condition_variable aviso_;
  Trabajo trabajo_;
  std::atomic<std::uint64_t> pedido_ = 0;
  bool pendiente_ = false;
  bool trabajando_ = false;
  bool fin_ = false;
  std::thread hilo_;

  void Trabaja();
};

}  // namespace zorbin
