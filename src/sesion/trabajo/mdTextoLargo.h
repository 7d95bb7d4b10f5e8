// A text too long to be kept. It is made in blocks, each when it is looked at; only where the lines
// of each begin is kept of it.
#pragma once

#include <chrono>
#include <condition_variable>
#include <cstddef>
#include <cstdint>
#include <exception>
#include <functional>
#include <memory>
#include <mutex>
#include <string>
#include <string_view>
#include <thread>
#include <vector>

namespace zorbin {

/// Whoever makes the blocks. They are asked for on several threads.
class FuenteTexto {
 public:
  virtual ~FuenteTexto() = default;
  /// How many there are; it does not change.
  virtual std::size_t Bloques() const = 0;
  /// Lines with their ends; only in the last block may that of the last line be missing.
  virtual std::string Bloque(std::size_t i) = 0;
  /// Whether making another block has changed the first one since this was asked.
  virtual bool CambiaElPrimero() { return false; }
};

/// The lines of such a text, counted on a thread of its own from the first block to the last.
class TextoLargo {
 public:
  /// How far the counting has come.
  struct Cuenta {
    int lineas = 0;      // that can be read
    int delPrimero = 0;  // those of the first block
    int ancho = 0;       // letters of the longest one
    double hecho = 0;    // part of the blocks, 0 to 1
    bool entera = false;
  };
  using Sigue = std::function<bool()>;

  explicit TextoLargo(std::unique_ptr<FuenteTexto> fuente);
  /// @throws whatever the source threw while it was counted
  Cuenta LaCuenta() const;
  /// Waits for the end of the counting, no longer than told. @return whether it has come
  bool Espera(std::chrono::milliseconds tiempo) const;
  /// Waits until a block is counted, or somebody says no. @return whether it is counted
  bool EsperaBloque(std::size_t i, const Sigue& sigue) const;
  /// The same for all of them.
  bool EsperaTodo(const Sigue& sigue) const;

  // ---- What has been counted

  std::size_t Bloques() const { return fuente_->Bloques(); }
  std::string Bloque(std::size_t i) const { return fuente_->Bloque(i); }
  std::size_t BloqueDe(int linea) const;
  int PrimeraLinea(std::size_t bloque) const;
  /// A line without its end; empty behind the last one. The blocks seen last are kept for it, so
  /// that it is asked for on one thread only.
  std::string Linea(int n);
  /// Reads lines one after another, both ends among them, until the reader says no. Keeps nothing.
  void Recorre(int desde, int hasta, const std::function<bool(std::string_view)>& lee) const;

 private:
  struct Visto {
    std::size_t bloque = 0;
    std::string texto;
    std::vector<std::size_t> comienzos;  // of its lines
  };

  std::unique_ptr<FuenteTexto> fuente_;
  mutable std::mutex cerrojo_;
  mutable std::condition_variable avanza_;
  std::vector<std::uint32_t> primeras_;  // line that each counted block begins with
  std::uint32_t fines_ = 0;              // line ends of the counted blocks
  std::uint32_t finesPrimero_ = 0;       // and those of the first one
  int ancho_ = 0;
  int cambios_ = 0;  // of the first block
  bool entera_ = false;
  std::exception_ptr fallo_;
  std::vector<Visto> vistos_;  // the last one first
  int cambiosVistos_ = 0;
  std::jthread hilo_;  // the last member: it stops before the others go

  void CuentaTodo(const std::stop_token& para);
  void CuentaOtro(std::size_t i);
  void CuentaElPrimero();
  const Visto& Mira(std::size_t bloque);
};

}  // namespace zorbin
