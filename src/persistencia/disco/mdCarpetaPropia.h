// The folder where the program keeps what is its own and the person's alone: debug log, drafts.
#pragma once

#include <filesystem>

#include "persistencia/disco/mdDescriptor.h"

namespace zorbin {

/// $XDG_STATE_HOME/zorbin, or .local/state/zorbin in $HOME or, without one, in the home that the
/// system knows of the person. It never lies in a folder that is everybody's; whoever has no home
/// gets a name that cannot be made.
std::filesystem::path CarpetaPropia();

/// Makes a folder, with those it lies in, that nobody else may enter. CarpetaPropia and what lies
/// in it is closed to others where it was open, and refused (EPERM) where it is somebody else's.
[[nodiscard]] Causa PreparaCarpeta(const std::filesystem::path& carpeta);

}  // namespace zorbin
