#include "sesion/resultados/mdUltimaFaena.h"

#include <utility>

namespace zorbin {

UltimaFaena::~UltimaFaena() {
  {
    const std::lock_guard guarda(cerrojo_);
    fin_ = true;
    pendiente_ = false;
    ++pedido_;
  }
  aviso_.notify_all();
  hilo_.join();
}

void UltimaFaena::Pide(Trabajo trabajo) {
  {
    const std::lock_guard guarda(cerrojo_);
    pendiente_ = trabajo != nullptr;
    trabajo_ = std::move(trabajo);
    ++pedido_;
  }
  aviso_.notify_all();
}

void UltimaFaena::Espera() {
  std::unique_lock guarda(cerrojo_);
  aviso_.wait(guarda, [this] { return !pendiente_ && !trabajando_; });
}

void UltimaFaena::Trabaja() {
  std::unique_lock guarda(cerrojo_);
  while (true) {
    aviso_.wait(guarda, [this] { return pendiente_ || fin_; });
    if (fin_) return;
    const Trabajo trabajo = std::exchange(trabajo_, {});
    const std::uint64_t mio = pedido_;
    pendiente_ = false;
    trabajando_ = true;
    guarda.unlock();
    trabajo([this, mio] { return pedido_ == mio; });
    guarda.lock();
    trabajando_ = false;
    aviso_.notify_all();
  }
}

}  // namespace zorbin
