#include "persistencia/disco/mdFicheroSalida.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

namespace zorbin {

namespace {

namespace fs = std::filesystem;

constexpr int kIntentos = 100;  // names tried for what is being written
constexpr mode_t kPermisos = 07777;

// Where a name leads to; a name without a file stands in its folder.
fs::path SinEnlaces(const fs::path& ruta) {
  std::error_code error;
  if (!fs::is_symlink(fs::symlink_status(ruta, error))) return ruta;
  fs::path real = fs::weakly_canonical(ruta, error);
  return error ? ruta : real;
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
  // Its rights are those of the one before, as far as the file system knows of rights.
  if (existe) static_cast<void>(::fchmod(descriptor_.numero(), datos.st_mode & kPermisos));
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
    causa = AbreFichero(descriptor_, ruta, O_WRONLY | O_CREAT | O_EXCL);
    if (causa == 0) provisional_ = ruta;
  }
  Comprueba(causa);
}

void FicheroSalida::Escribe(std::string_view bytes) {
  Comprueba(EscribeSeguido(descriptor_, bytes));
}

void FicheroSalida::Termina() {
  if (!provisional_.empty()) {
    Comprueba(SincronizaDatos(descriptor_));
    if (::rename(provisional_.c_str(), ruta_.c_str()) != 0) Comprueba(errno);
    provisional_.clear();
  }
  descriptor_.Cierra();
}

}  // namespace zorbin
