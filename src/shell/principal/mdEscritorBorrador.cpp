#include "shell/principal/mdEscritorBorrador.h"

#include "base/textos.h"

namespace zorbin {

EscritorBorrador::EscritorBorrador(Cajon cajon, std::function<void(const Mensaje&)> falla)
    : cajon_(std::move(cajon)), falla_(std::move(falla)), hilo_([this] { Trabaja(); }) {}

EscritorBorrador::~EscritorBorrador() {
  {
    const std::lock_guard guarda(cerrojo_);
    fin_ = true;
  }
  aviso_.notify_all();
  hilo_.join();
}

void EscritorBorrador::Guarda(std::string texto) {
  Encarga({false, std::move(texto)});
}

void EscritorBorrador::Borra() {
  Encarga({true, {}});
}

void EscritorBorrador::Encarga(Encargo encargo) {
  {
    const std::lock_guard guarda(cerrojo_);
    encargo_ = std::move(encargo);
  }
  aviso_.notify_all();
}

void EscritorBorrador::Espera() {
  std::unique_lock guarda(cerrojo_);
  aviso_.wait(guarda, [this] { return !encargo_ && !trabajando_; });
}

void EscritorBorrador::Trabaja() {
  std::unique_lock guarda(cerrojo_);
  while (true) {
    aviso_.wait(guarda, [this] { return encargo_ || fin_; });
    if (!encargo_) return;
    const Encargo encargo = std::move(*encargo_);
    encargo_.reset();
    trabajando_ = true;
    guarda.unlock();
    Haz(encargo);
    guarda.lock();
    trabajando_ = false;
    aviso_.notify_all();
  }
}

void EscritorBorrador::Haz(const Encargo& encargo) const {
  try {
    encargo.borra ? cajon_.Borra() : cajon_.Guarda(encargo.texto);
  } catch (const ErrorFichero& error) {
    falla_(error.mensaje());
  } catch (const std::exception& error) {  // out of a thread it would end the program
    falla_({txt::BorradorSinGuardar, {CarpetaBorradores().string(), error.what()}});
  }
}

}  // namespace zorbin
