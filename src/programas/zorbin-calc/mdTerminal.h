// What a terminal is shown.
#pragma once

#include <string>
#include <string_view>

namespace zorbin {

/// A text in UTF-8 with its control codes, and those that turn the direction of writing, told by
/// their numbers ("\x1B", "\u202E"): a name must not command the terminal. Ends of lines and
/// tabulators stay.
std::string ParaTerminal(std::string_view texto);

}  // namespace zorbin
