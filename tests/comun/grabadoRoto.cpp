#include "comun/grabadoRoto.h"

#include <algorithm>

namespace zorbin::pruebas {

Bloque BloqueDe(const std::string& texto) {
  Bloque b{};
  b[0] = static_cast<char>(texto.size());
  std::copy(texto.begin(), texto.end(), b.begin() + 2);
  return b;
}

void DejaAMedias(const std::filesystem::path& fichero, const Bloques& bloques, int escritos) {
  std::string bytes = Bytes(fichero);
  const Cambios cambios = CalculaCambios(bytes, bytes.size(), bloques);
  PonBytes(RutaDiario(fichero), BytesDiario(cambios));
  for (const auto& r : cambios.registros) {
    if (escritos < 0) break;
    const std::size_t n = escritos-- > 0 ? r.despues.size() : r.despues.size() / 2;
    bytes.resize(std::max(bytes.size(), Desde(r.numero) + n));
    bytes.replace(Desde(r.numero), n, r.despues.data(), n);
  }
  PonBytes(fichero, bytes);
}

void DejaCabeceraAMedias(const std::filesystem::path& fichero) {
  const int ultimo = static_cast<int>(Bytes(fichero).size() / kBytesRegistro);
  DejaAMedias(fichero,
              {{5, BloqueDe("Obra a medias")},
               {6, BloqueDe("Cliente a medias")},
               {ultimo + 10, BloqueDe("más allá")}},
              2);
}

}  // namespace zorbin::pruebas
