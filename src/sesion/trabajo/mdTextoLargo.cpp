#include "sesion/trabajo/mdTextoLargo.h"

#include <algorithm>
#include <utility>

namespace zorbin {

namespace {

constexpr std::size_t kVistos = 32;  // blocks that are kept
constexpr std::chrono::milliseconds kPregunta{50};

// Line ends of a text, and the letters of its longest line.
struct Medida {
  std::uint32_t fines = 0;
  int ancho = 0;
};

Medida Mide(std::string_view texto) {
  Medida m;
  int letras = 0;
  for (const char c : texto) {
    if (c == '\n') {
      ++m.fines;
      letras = 0;
    } else if ((static_cast<unsigned char>(c) & 0xC0U) != 0x80U) {  // not inside a letter
      m.ancho = std::max(m.ancho, ++letras);
    }
  }
  return m;
}

std::string_view LineaDesde(std::string_view texto, std::size_t comienzo) {
  return texto.substr(comienzo, texto.find('\n', comienzo) - comienzo);
}

}  // namespace

TextoLargo::TextoLargo(std::unique_ptr<FuenteTexto> fuente) : fuente_(std::move(fuente)) {
  primeras_.reserve(fuente_->Bloques());
  hilo_ = std::jthread([this](const std::stop_token& para) { CuentaTodo(para); });
}

// ---------------------------------------------------------------------------------------------
// Counting

void TextoLargo::CuentaTodo(const std::stop_token& para) {
  std::exception_ptr fallo;
  try {
    const auto bloques = fuente_->Bloques();
    for (std::size_t i = 0; i < bloques; ++i) {
      if (para.stop_requested()) return;
      CuentaOtro(i);
      if (fuente_->CambiaElPrimero()) CuentaElPrimero();
    }
  } catch (...) {
    fallo = std::current_exception();
  }
  const std::lock_guard cierra(cerrojo_);
  fallo_ = fallo;
  entera_ = true;
  avanza_.notify_all();
}

void TextoLargo::CuentaOtro(std::size_t i) {
  const Medida m = Mide(fuente_->Bloque(i));
  const std::lock_guard cierra(cerrojo_);
  primeras_.push_back(fines_);
  fines_ += m.fines;
  if (i == 0) finesPrimero_ = m.fines;
  ancho_ = std::max(ancho_, m.ancho);
  avanza_.notify_all();
}

void TextoLargo::CuentaElPrimero() {
  const Medida m = Mide(fuente_->Bloque(0));
  const std::lock_guard cierra(cerrojo_);
  const std::uint32_t mas = m.fines - finesPrimero_;  // where there are less it goes round
  for (std::size_t i = 1; i < primeras_.size(); ++i) primeras_[i] += mas;
  fines_ += mas;
  finesPrimero_ = m.fines;
  ancho_ = std::max(ancho_, m.ancho);
  ++cambios_;
}

TextoLargo::Cuenta TextoLargo::LaCuenta() const {
  const std::lock_guard cierra(cerrojo_);
  if (fallo_) std::rethrow_exception(fallo_);
  const auto bloques = std::max<std::size_t>(1, fuente_->Bloques());
  // What comes behind the last line end is a line too.
  return {static_cast<int>(fines_) + (entera_ ? 1 : 0), static_cast<int>(finesPrimero_), ancho_,
          static_cast<double>(primeras_.size()) / static_cast<double>(bloques), entera_};
}

bool TextoLargo::Espera(std::chrono::milliseconds tiempo) const {
  std::unique_lock cierra(cerrojo_);
  return avanza_.wait_for(cierra, tiempo, [this] { return entera_; });
}

bool TextoLargo::EsperaBloque(std::size_t i, const Sigue& sigue) const {
  std::unique_lock cierra(cerrojo_);
  while (i >= primeras_.size() && !entera_) {
    avanza_.wait_for(cierra, kPregunta);
    if (!sigue()) return false;
  }
  if (fallo_) std::rethrow_exception(fallo_);
  return i < primeras_.size();
}

bool TextoLargo::EsperaTodo(const Sigue& sigue) const {
  while (!Espera(kPregunta)) {
    if (!sigue()) return false;
  }
  LaCuenta();  // throws what went wrong
  return true;
}

// ---------------------------------------------------------------------------------------------
// Reading

std::size_t TextoLargo::BloqueDe(int linea) const {
  const std::lock_guard cierra(cerrojo_);
  const auto tras = std::ranges::upper_bound(primeras_, static_cast<std::uint32_t>(linea));
  return tras == primeras_.begin() ? 0 : static_cast<std::size_t>(tras - primeras_.begin()) - 1;
}

int TextoLargo::PrimeraLinea(std::size_t bloque) const {
  const std::lock_guard cierra(cerrojo_);
  return bloque < primeras_.size() ? static_cast<int>(primeras_[bloque]) : 0;
}

const TextoLargo::Visto& TextoLargo::Mira(std::size_t bloque) {
  {
    const std::lock_guard cierra(cerrojo_);
    if (std::exchange(cambiosVistos_, cambios_) != cambios_) vistos_.clear();
  }
  const auto esta = std::ranges::find(vistos_, bloque, &Visto::bloque);
  if (esta != vistos_.end()) {
    std::rotate(vistos_.begin(), esta, esta + 1);
    return vistos_.front();
  }
  Visto nuevo{bloque, Bloque(bloque), {0}};
  for (auto fin = nuevo.texto.find('\n'); fin != std::string::npos;
       fin = nuevo.texto.find('\n', fin + 1)) {
    nuevo.comienzos.push_back(fin + 1);
  }
  if (vistos_.size() == kVistos) vistos_.pop_back();
  return *vistos_.insert(vistos_.begin(), std::move(nuevo));
}

std::string TextoLargo::Linea(int n) {
  if (n < 0 || n >= LaCuenta().lineas || Bloques() == 0) return {};
  const auto bloque = BloqueDe(n);
  const Visto& visto = Mira(bloque);
  const auto cual = static_cast<std::size_t>(n - PrimeraLinea(bloque));
  if (cual >= visto.comienzos.size()) return {};
  return std::string(LineaDesde(visto.texto, visto.comienzos[cual]));
}

void TextoLargo::Recorre(int desde, int hasta,
                         const std::function<bool(std::string_view)>& lee) const {
  if (Bloques() == 0) return;
  int n = std::max(0, desde);
  const auto primero = BloqueDe(n);
  const auto ultimo = BloqueDe(hasta);
  for (auto b = primero; b <= ultimo; ++b) {
    const std::string texto = Bloque(b);
    std::size_t comienzo = 0;
    if (b == primero) {
      for (int l = PrimeraLinea(b); l < n; ++l) comienzo = texto.find('\n', comienzo) + 1;
    }
    // What follows the last line end belongs to the next block, except in the last one.
    while (n <= hasta) {
      const auto fin = texto.find('\n', comienzo);
      if (fin == std::string::npos && b < ultimo) break;
      if (!lee(LineaDesde(texto, comienzo))) return;
      ++n;
      if (fin == std::string::npos) break;
      comienzo = fin + 1;
    }
  }
}

}  // namespace zorbin
