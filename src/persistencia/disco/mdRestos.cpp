#include "persistencia/disco/mdRestos.h"

#include <fcntl.h>

#include <cerrno>
#include <string>
#include <string_view>
#include <vector>

#include "persistencia/disco/mdCerrojo.h"
#include "persistencia/disco/mdTitular.h"

namespace zorbin {

namespace {

namespace fs = std::filesystem;

// The file that a mark of a program of this machine that is gone belongs to; empty for another.
fs::path DeUnMuerto(const fs::path& marca) {
  const std::string sufijo = RutaMarca({}).string();
  const std::string nombre = marca.string();
  if (!nombre.ends_with(sufijo)) return {};
  const fs::path fichero = nombre.substr(0, nombre.size() - sufijo.size());
  const auto titular = LeeMarca(fichero);
  return titular && EsDeEsteEquipo(*titular) && !SigueVivo(*titular) ? fichero : fs::path();
}

// Whoever makes the file anew at this moment has the lock of what is in the making.
void Recoge(const fs::path& fichero) {
  Descriptor d;
  bool hay = true;
  if (HayAlgo(fichero, hay) != 0 || hay) return;
  const Causa causa = AbreFichero(d, RutaProvisional(fichero), O_RDWR | O_NOFOLLOW | O_NONBLOCK);
  if (causa != 0 && causa != ENOENT) return;
  if (causa == 0) {
    if (TomaCerrojo(d) != Cerrojo::Tomado) return;
    if (BorraFichero(RutaProvisional(fichero)) != 0) return;
  }
  static_cast<void>(BorraFichero(RutaMarca(fichero)));
}

}  // namespace

fs::path RutaProvisional(const fs::path& fichero) {
  auto provisional = fichero;
  provisional += "-nuevo";
  return provisional;
}

void RecogeRestos(const fs::path& carpeta) {
  std::vector<fs::path> ficheros;
  std::error_code error;
  for (fs::directory_iterator i(carpeta, error), fin; !error && i != fin; i.increment(error)) {
    if (auto fichero = DeUnMuerto(i->path()); !fichero.empty()) {
      ficheros.push_back(std::move(fichero));
    }
  }
  for (const auto& fichero : ficheros) Recoge(fichero);
}

}  // namespace zorbin
