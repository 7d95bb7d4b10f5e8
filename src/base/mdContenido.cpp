#include "base/mdContenido.h"

#include <algorithm>
#include <cerrno>
#include <fstream>
#include <system_error>

#include "base/mdAnsi.h"

namespace zorbin {

namespace {

namespace fs = std::filesystem;

constexpr std::size_t kTrozo = 64 * 1024;  // bytes
constexpr std::string_view kHexadecimal = "0123456789ABCDEF";

bool EsControl(char32_t c) {
  const bool blanco = c == U'\n' || c == U'\r' || c == U'\t';
  return (c < 0x20 && !blanco) || (c >= 0x7F && c < 0xA0);
}

}  // namespace

int LeeContenido(const fs::path& ruta, std::size_t maximo, std::string& bytes) {
  std::error_code error;
  bytes.clear();
  if (fs::is_directory(ruta, error)) return EISDIR;
  if (fs::is_other(ruta, error)) return EINVAL;
  errno = 0;
  std::ifstream fichero(ruta, std::ios::binary);
  if (!fichero) return errno != 0 ? errno : EIO;
  while (fichero && bytes.size() <= maximo) {
    const std::size_t hay = bytes.size();
    const std::size_t trozo = std::min(kTrozo, maximo + 1 - hay);
    bytes.resize(hay + trozo);
    fichero.read(bytes.data() + hay, static_cast<std::streamsize>(trozo));
    bytes.resize(hay + static_cast<std::size_t>(fichero.gcount()));
  }
  return fichero.bad() ? (errno != 0 ? errno : EIO) : 0;
}

std::string TextoLimpio(std::string_view utf8) {
  std::string limpio;
  while (!utf8.empty()) {
    const CaracterUtf8 c = PrimerCaracter(utf8);
    if (EsControl(c.codigo)) {
      limpio += {'\\', 'x', kHexadecimal[c.codigo / 16], kHexadecimal[c.codigo % 16]};
    } else {
      AnadeUtf8(limpio, c.codigo);
    }
    utf8.remove_prefix(c.bytes);
  }
  return limpio;
}

}  // namespace zorbin
