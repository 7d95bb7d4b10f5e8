#include "persistencia/disco/mdDescriptor.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <system_error>
#include <utility>

namespace zorbin {

namespace {

constexpr std::size_t kTrozo = 64 * 1024;  // bytes
constexpr int kMaxApartados = 99;

// A call again and again while a signal interrupts it. @return what it returned
template <class Llamada>
auto Repite(Llamada llamada) {
  auto r = llamada();
  while (r < 0 && errno == EINTR) r = llamada();
  return r;
}

Causa CausaDe(long resultado) {
  return resultado < 0 ? errno : 0;
}

// A pipe has no positions. While somebody has it to write into, it is waited for; without anybody
// it is at its end.
ssize_t LeeEn(const Descriptor& d, char* destino, std::size_t n, std::size_t desde) {
  const auto leidos =
      Repite([&] { return ::pread(d.numero(), destino, n, static_cast<off_t>(desde)); });
  if (leidos >= 0 || errno != ESPIPE) return leidos;
  const auto lee = [&] { return Repite([&] { return ::read(d.numero(), destino, n); }); };
  auto deTuberia = lee();
  for (pollfd espera{d.numero(), POLLIN, 0}; deTuberia < 0 && errno == EAGAIN; deTuberia = lee()) {
    static_cast<void>(::poll(&espera, 1, -1));
  }
  return deTuberia;
}

bool NoLoHay(Causa causa) {
  return causa == ENOENT || causa == ENOTDIR;
}

// A file system that does not know how to take a name only where it is free.
bool NoSabeSinPisar(Causa causa) {
  return causa == EINVAL || causa == ENOSYS || causa == EOPNOTSUPP;
}

}  // namespace

std::string TextoDeCausa(Causa causa) {
  return std::generic_category().message(causa);
}

Descriptor& Descriptor::operator=(Descriptor&& otro) noexcept {
  if (this != &otro) {
    Cierra();
    numero_ = otro.Suelta();
  }
  return *this;
}

void Descriptor::Cierra() {
  if (numero_ >= 0) ::close(numero_);
  numero_ = -1;
}

int Descriptor::Suelta() {
  return std::exchange(numero_, -1);
}

Causa AbreFichero(Descriptor& d, const std::filesystem::path& ruta, int banderas, mode_t permisos) {
  const int n = Repite([&] { return ::open(ruta.c_str(), banderas | O_CLOEXEC, permisos); });
  if (n < 0) return errno;
  d = Descriptor(n);
  return 0;
}

Causa LeeBytes(const Descriptor& d, std::size_t maximo, std::string& bytes) {
  bytes.clear();
  while (bytes.size() < maximo) {
    const std::size_t hay = bytes.size();
    const std::size_t trozo = std::min(kTrozo, maximo - hay);
    bytes.resize(hay + trozo);
    const auto leidos = LeeEn(d, bytes.data() + hay, trozo, hay);
    bytes.resize(hay + static_cast<std::size_t>(std::max<ssize_t>(leidos, 0)));
    if (leidos < 0) return errno;
    if (leidos == 0) break;
  }
  return 0;
}

Causa ComparaBytes(const Descriptor& d, std::size_t maximo, std::string_view bytes, bool& iguales) {
  std::string trozo(kTrozo, '\0');
  std::size_t hecho = 0;
  iguales = true;
  while (iguales && hecho < maximo) {
    const auto leidos = LeeEn(d, trozo.data(), std::min(kTrozo, maximo - hecho), hecho);
    if (leidos < 0) return errno;
    if (leidos == 0) break;
    const auto n = static_cast<std::size_t>(leidos);
    iguales =
        bytes.substr(std::min(hecho, bytes.size()), n) == std::string_view(trozo).substr(0, n);
    hecho += n;
  }
  iguales = iguales && hecho == bytes.size();
  return 0;
}

Causa EscribeBytes(const Descriptor& d, std::string_view bytes, std::uint64_t desde) {
  while (!bytes.empty()) {
    const auto escritos = Repite([&] {
      return ::pwrite(d.numero(), bytes.data(), bytes.size(), static_cast<off_t>(desde));
    });
    if (escritos < 0) return errno;
    if (escritos == 0) return EIO;  // it would never end
    bytes.remove_prefix(static_cast<std::size_t>(escritos));
    desde += static_cast<std::uint64_t>(escritos);
  }
  return 0;
}

Causa Trunca(const Descriptor& d, std::uint64_t largo) {
  return CausaDe(Repite([&] { return ::ftruncate(d.numero(), static_cast<off_t>(largo)); }));
}

Causa SincronizaDatos(const Descriptor& d) {
  return CausaDe(Repite([&] { return ::fdatasync(d.numero()); }));
}

Causa SincronizaNombre(const std::filesystem::path& fichero) {
  auto carpeta = fichero.parent_path();
  if (carpeta.empty()) carpeta = ".";
  Descriptor d;
  // A folder that may be written in but not listed can't be asked.
  if (const Causa c = AbreFichero(d, carpeta, O_RDONLY | O_DIRECTORY)) return c == EACCES ? 0 : c;
  const Causa causa = CausaDe(Repite([&] { return ::fsync(d.numero()); }));
  return causa == EINVAL || causa == EOPNOTSUPP ? 0 : causa;
}

bool Permite(const std::filesystem::path& ruta, int modo) {
  return ::faccessat(AT_FDCWD, ruta.c_str(), modo, AT_EACCESS) == 0;
}

Causa EsElMismo(const Descriptor& d, const std::filesystem::path& ruta, bool& si) {
  struct stat abierto, nombrado;
  si = false;
  if (::fstat(d.numero(), &abierto) != 0) return errno;
  if (::stat(ruta.c_str(), &nombrado) != 0) return NoLoHay(errno) ? 0 : errno;
  si = abierto.st_ino == nombrado.st_ino && abierto.st_dev == nombrado.st_dev;
  return 0;
}

Causa HayAlgo(const std::filesystem::path& ruta, bool& si) {
  struct stat datos;
  si = ::lstat(ruta.c_str(), &datos) == 0;
  return si || NoLoHay(errno) ? 0 : errno;
}

Causa PonNombre(const std::filesystem::path& de, const std::filesystem::path& a) {
  const Causa causa = CausaDe(Repite(
      [&] { return ::renameat2(AT_FDCWD, de.c_str(), AT_FDCWD, a.c_str(), RENAME_NOREPLACE); }));
  if (!NoSabeSinPisar(causa)) return causa;
  bool ocupado = false;
  if (const Causa otra = HayAlgo(a, ocupado)) return otra;
  if (ocupado) return EEXIST;
  return TomaNombre(de, a);
}

Causa TomaNombre(const std::filesystem::path& de, const std::filesystem::path& a) {
  return CausaDe(Repite([&] { return ::rename(de.c_str(), a.c_str()); }));
}

Causa ApartaFichero(const std::filesystem::path& ruta, std::filesystem::path& aparte) {
  Causa causa = EEXIST;
  for (int i = 1; i <= kMaxApartados && causa == EEXIST; ++i) {
    aparte = ruta.string() + "-" + std::to_string(i);
    causa = PonNombre(ruta, aparte);
  }
  return causa;
}

Causa BorraFichero(const std::filesystem::path& ruta) {
  return CausaDe(Repite([&] { return ::unlink(ruta.c_str()); }));
}

}  // namespace zorbin
