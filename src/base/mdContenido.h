// What comes from outside: the bytes of a file of limited size, and texts that may be shown.
#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>

namespace zorbin {

/// Bytes of a file, and one more than `maximo` where it is larger. Of a folder, a device or a pipe,
/// which may never end, there are none.
/// @return why it can't be read, as errno has it; 0 when it was
[[nodiscard]] int LeeContenido(const std::filesystem::path& ruta, std::size_t maximo,
                               std::string& bytes);

/// A UTF-8 text in which what a terminal would not show but obey is seen: control characters other
/// than line ends and tabulators as "\x1B", sequences that are no character as U+FFFD.
std::string TextoLimpio(std::string_view utf8);

}  // namespace zorbin
