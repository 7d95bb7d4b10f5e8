// Files as the system knows them. A call that a signal interrupts is repeated, and a write goes on
// until all of it is written or the system refuses.
#pragma once

#include <sys/types.h>

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

namespace zorbin {

/// Why a call failed, as errno has it; 0 for a call that did not.
using Causa = int;

/// In the words of the system.
std::string TextoDeCausa(Causa causa);

class Descriptor {
 public:
  Descriptor() = default;
  explicit Descriptor(int numero) : numero_(numero) {}
  ~Descriptor() { Cierra(); }
  Descriptor(Descriptor&& otro) noexcept : numero_(otro.Suelta()) {}
  Descriptor& operator=(Descriptor&& otro) noexcept;

  bool abierto() const { return numero_ >= 0; }
  int numero() const { return numero_; }
  void Cierra();

 private:
  int Suelta();

  int numero_ = -1;
};

inline constexpr mode_t kPermisosFichero = 0666;

/// @param banderas  those of open; O_CLOEXEC is added
[[nodiscard]] Causa AbreFichero(Descriptor& d, const std::filesystem::path& ruta, int banderas,
                                mode_t permisos = kPermisosFichero);

/// Its bytes from the first on, as many as `maximo`.
[[nodiscard]] Causa LeeBytes(const Descriptor& d, std::size_t maximo, std::string& bytes);
/// Whether these are its bytes, as far as `maximo`.
[[nodiscard]] Causa ComparaBytes(const Descriptor& d, std::size_t maximo, std::string_view bytes,
                                 bool& iguales);
[[nodiscard]] Causa EscribeBytes(const Descriptor& d, std::string_view bytes, std::uint64_t desde);
[[nodiscard]] Causa Trunca(const Descriptor& d, std::uint64_t largo);

/// The bytes, and the length, are on the disk when this returns.
[[nodiscard]] Causa SincronizaDatos(const Descriptor& d);

/// The name of a file in its folder is on the disk, or its absence, as far as the file system and
/// the rights of the person allow it to be asked for.
[[nodiscard]] Causa SincronizaNombre(const std::filesystem::path& fichero);

/// Whether the person may do it to what a name leads to.
/// @param modo  R_OK or W_OK
bool Permite(const std::filesystem::path& ruta, int modo);

/// Whether a name leads to the file that is open. @return why the system does not tell
[[nodiscard]] Causa EsElMismo(const Descriptor& d, const std::filesystem::path& ruta, bool& si);

/// Whether something has the name, a link too. @return why the system does not tell
[[nodiscard]] Causa HayAlgo(const std::filesystem::path& ruta, bool& si);

/// Gives a file its final name unless something has that name. @return EEXIST where it has
[[nodiscard]] Causa PonNombre(const std::filesystem::path& de, const std::filesystem::path& a);

/// Gives a file its final name, whatever has it.
[[nodiscard]] Causa TomaNombre(const std::filesystem::path& de, const std::filesystem::path& a);
/// Gives it the name that is free of NAME-1, NAME-2...
[[nodiscard]] Causa ApartaFichero(const std::filesystem::path& ruta, std::filesystem::path& aparte);

[[nodiscard]] Causa BorraFichero(const std::filesystem::path& ruta);

}  // namespace zorbin
