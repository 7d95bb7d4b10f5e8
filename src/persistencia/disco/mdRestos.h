// A file that is in the making has a name of its own. One whose program was killed before its first
// save would lie there, and its mark too, until somebody used that name again.
#pragma once

#include <filesystem>

namespace zorbin {

/// The name under which a file is made.
std::filesystem::path RutaProvisional(const std::filesystem::path& fichero);

/// Takes away what programs of this machine that were killed left in a folder of files that never
/// came to be. What a living program has, or cannot be told of, stays.
void RecogeRestos(const std::filesystem::path& carpeta);

}  // namespace zorbin
