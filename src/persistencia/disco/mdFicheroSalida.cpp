#include "persistencia/disco/mdFicheroSalida.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>

namespace zorbin {

namespace {

namespace fs = std::filesystem;

constexpr int kIntentos = 100;  // names tried for what is being written
constexpr mode_t kPermisos = 07777;
constexpr std::size_t kMaxSalida = std::size_t{1} << 30;  // bytes of one that is copied

// Where a name leads to; a name without a file stands in its folder.
fs::path SinEnlaces(const fs::path& ruta) {
  std::error_code error;
  if (!fs::is_symlink(fs::symlink_status(ruta, error))) return ruta;
  fs::path real = fs::weakly_canonical(ruta, error);
  return error ? ruta : real;
}

// An access list, or what somebody noted of the file. The system gives its own label to any file.
bool TieneAtributos(const fs::path& ruta) {
  std::array<char, 4096> nombres{};
  const auto n = ::listxattr(ruta.c_str(), nombres.data(), nombres.size());
  if (n < 0) return errno == ERANGE;
  std::string_view quedan(nombres.data(), static_cast<std::size_t>(n));
  while (!quedan.empty()) {
    const auto nombre = quedan.substr(0, quedan.find('\0'));
    if (nombre.starts_with("user.") || nombre == "system.posix_acl_access") return true;
    quedan.remove_prefix(std::min(nombre.size() + 1, quedan.size()));
  }
  return false;
}

// All of its bytes and no more, on the disk.
Causa Deja(const Descriptor& d, std::string_view bytes) {
  if (const Causa causa = EscribeBytes(d, bytes, 0)) return causa;
  if (const Causa causa = Trunca(d, bytes.size())) return causa;
  return SincronizaDatos(d);
}

}  // namespace

Causa EscribeSeguido(const Descriptor& d, std::string_view bytes) {
  while (!bytes.empty()) {
    const auto escritos = ::write(d.numero(), bytes.data(), bytes.size());
    if (escritos < 0 && errno == EINTR) continue;
    if (escritos < 0) return errno;
    if (escritos == 0) return EIO;  // it would never end
    bytes.remove_prefix(static_cast<std::size_t>(escritos));
  }
  return 0;
}

FicheroSalida::FicheroSalida(const fs::path& ruta)
    : nombre_(ruta.string()), ruta_(SinEnlaces(ruta)) {
  struct stat datos {};
  const bool existe = ::stat(ruta_.c_str(), &datos) == 0;
  if (!existe && errno != ENOENT) Comprueba(errno);
  if (existe && S_ISDIR(datos.st_mode)) Comprueba(EISDIR);
  if (existe && !S_ISREG(datos.st_mode)) {
    Comprueba(AbreFichero(descriptor_, ruta_, O_WRONLY));
    return;
  }
  // One that must not be changed is not replaced either.
  if (existe && !Permite(ruta_, W_OK)) Comprueba(errno);
  AbreProvisional();
  if (existe) HeredaDe(datos);
}

// The new file is to be as that of before; otherwise that one takes the bytes.
void FicheroSalida::HeredaDe(const struct stat& antes) {
  const int d = descriptor_.numero();
  struct stat datos {};
  const bool suyo =
      ::fchown(d, antes.st_uid, antes.st_gid) == 0 ||
      (::fstat(d, &datos) == 0 && datos.st_uid == antes.st_uid && datos.st_gid == antes.st_gid);
  // A file system without rights needs none.
  static_cast<void>(::fchmod(d, antes.st_mode & kPermisos));
  enSuSitio_ = !suyo || antes.st_nlink > 1 || TieneAtributos(ruta_);
}

FicheroSalida::~FicheroSalida() {
  // What cannot be deleted has a name that nobody asked for.
  if (!provisional_.empty()) static_cast<void>(BorraFichero(provisional_));
}

void FicheroSalida::Comprueba(Causa causa) const {
  if (causa != 0) throw ErrorSalida(nombre_, TextoDeCausa(causa));
}

// A short name of its own, however long the one that was asked for.
void FicheroSalida::AbreProvisional() {
  Causa causa = EEXIST;
  for (int i = 0; causa == EEXIST && i < kIntentos; ++i) {
    const fs::path ruta = ruta_.parent_path() / (".zorbin-" + std::to_string(::getpid()) + "-" +
                                                 std::to_string(i) + ".tmp");
    causa = AbreFichero(descriptor_, ruta, O_RDWR | O_CREAT | O_EXCL);
    if (causa == 0) provisional_ = ruta;
  }
  Comprueba(causa);
}

bool FicheroSalida::esTerminal() const {
  return ::isatty(descriptor_.numero()) != 0;
}

void FicheroSalida::Escribe(std::string_view bytes) {
  Comprueba(EscribeSeguido(descriptor_, bytes));
}

// What the disk refuses leaves the file of before, which is kept in memory so long. A disk that is
// full says so before the first byte changes.
Causa FicheroSalida::CopiaEnSuSitio() {
  Descriptor d;
  std::string nuevo, antes;
  if (const Causa causa = AbreFichero(d, ruta_, O_RDWR | O_NOFOLLOW | O_NONBLOCK)) return causa;
  if (const Causa causa = LeeBytes(descriptor_, kMaxSalida, nuevo)) return causa;
  if (const Causa causa = LeeBytes(d, kMaxSalida, antes)) return causa;
  const auto largo = static_cast<off_t>(nuevo.size());
  if (largo > 0 && ::fallocate(d.numero(), FALLOC_FL_KEEP_SIZE, 0, largo) != 0 && errno == ENOSPC) {
    return ENOSPC;
  }
  const Causa causa = Deja(d, nuevo);
  if (causa != 0 && Deja(d, antes) != 0) provisional_.clear();  // the new one is the only whole one
  return causa;
}

void FicheroSalida::Termina() {
  if (!provisional_.empty()) {
    Comprueba(SincronizaDatos(descriptor_));
    if (enSuSitio_) {
      Comprueba(CopiaEnSuSitio());
      static_cast<void>(BorraFichero(provisional_));
    } else if (::rename(provisional_.c_str(), ruta_.c_str()) != 0) {
      Comprueba(errno);
    }
    provisional_.clear();
  }
  descriptor_.Cierra();
}

}  // namespace zorbin
