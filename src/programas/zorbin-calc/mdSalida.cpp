#include "programas/zorbin-calc/mdSalida.h"

#include <unistd.h>

#include <functional>
#include <streambuf>
#include <vector>

#include "programas/zorbin-calc/mdTerminal.h"

namespace zorbin {

namespace {

constexpr std::size_t kBloque = 64 * 1024;  // bytes

void EscribeEnPantalla(std::string_view bytes) {
  const Descriptor pantalla(::dup(STDOUT_FILENO));
  if (const Causa causa = EscribeSeguido(pantalla, bytes)) {
    throw ErrorSalida("stdout", TextoDeCausa(causa));
  }
}

}  // namespace

// Takes the bytes in blocks. A stream forgets why it failed: the first failure is kept for the end.
class Salida::Deposito : public std::streambuf {
 public:
  explicit Deposito(std::function<void(std::string_view)> escribe)
      : escribe_(std::move(escribe)), bloque_(kBloque) {
    Vacia();
  }

  void Acaba() {
    sync();
    if (fallo_) throw ErrorSalida(*fallo_);
  }

 protected:
  // A block ends where a line does, so that no character is cut in two.
  int_type overflow(int_type letra) override {
    const std::string_view bytes = Bytes();
    const auto linea = bytes.rfind('\n');
    const std::string resto(linea == std::string_view::npos ? "" : bytes.substr(linea + 1));
    pbump(-static_cast<int>(resto.size()));
    if (sync() != 0) return traits_type::eof();
    xsputn(resto.data(), static_cast<std::streamsize>(resto.size()));
    if (!traits_type::eq_int_type(letra, traits_type::eof())) {
      sputc(traits_type::to_char_type(letra));
    }
    return traits_type::not_eof(letra);
  }

  int sync() override {
    const std::string_view bytes = Bytes();
    try {
      if (!fallo_ && !bytes.empty()) escribe_(bytes);
    } catch (const ErrorSalida& error) {
      fallo_ = error;
    }
    Vacia();
    return fallo_ ? -1 : 0;
  }

 private:
  std::function<void(std::string_view)> escribe_;
  std::vector<char> bloque_;
  std::optional<ErrorSalida> fallo_;

  std::string_view Bytes() const { return {pbase(), static_cast<std::size_t>(pptr() - pbase())}; }
  void Vacia() { setp(bloque_.data(), bloque_.data() + bloque_.size()); }
};

Salida::Salida(const std::filesystem::path& fichero) : flujo_(nullptr) {
  std::function<void(std::string_view)> escribe = EscribeEnPantalla;
  if (!fichero.empty()) {
    fichero_.emplace(fichero);
    escribe = [this](std::string_view bytes) { fichero_->Escribe(bytes); };
    if (fichero_->esTerminal()) {
      escribe = [this](std::string_view bytes) { fichero_->Escribe(ParaTerminal(bytes)); };
    }
  } else if (::isatty(STDOUT_FILENO) != 0) {
    escribe = [](std::string_view bytes) { EscribeEnPantalla(ParaTerminal(bytes)); };
  }
  deposito_ = std::make_unique<Deposito>(std::move(escribe));
  flujo_.rdbuf(deposito_.get());
}

Salida::~Salida() = default;

void Salida::Cierra() {
  deposito_->Acaba();
  if (fichero_) fichero_->Termina();
}

}  // namespace zorbin
