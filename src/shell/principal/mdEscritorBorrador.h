// Writes drafts to the disk behind the person's back: whoever types never waits for it.
#pragma once

#include <condition_variable>
#include <functional>
#include <mutex>
#include <optional>
#include <string>
#include <thread>

#include "sesion/captura/mdCajon.h"

namespace zorbin {

class EscritorBorrador {
 public:
  /// @param falla  is called from the thread of the writer
  EscritorBorrador(Cajon cajon, std::function<void(const Mensaje&)> falla);
  /// What was asked for is done first.
  ~EscritorBorrador();
  EscritorBorrador(const EscritorBorrador&) = delete;
  EscritorBorrador& operator=(const EscritorBorrador&) = delete;

  const Cajon& cajon() const { return cajon_; }

  /// The last thing asked for is what is done; those before it may be left out.
  void Guarda(std::string texto);
  void Borra();
  /// Returns once all is done.
  void Espera();

 private:
  struct Encargo {
    bool borra = false;
    std::string texto;
  };

  Cajon cajon_;
  std::function<void(const Mensaje&)> falla_;
  std::mutex cerrojo_;
  std::condition_variable aviso_;
  std::optional<Encargo> encargo_;
  bool trabajando_ = false;
  bool fin_ = false;
  std::thread hilo_;

  void Encarga(Encargo encargo);
  void Trabaja();
  void Haz(const Encargo& encargo) const;
};

}  // namespace zorbin
