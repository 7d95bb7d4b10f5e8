// Contents of a page with no more digits than can be seen.
#pragma once

#include <string>
#include <string_view>

namespace zorbin {

/// The operators of a page with its real numbers shortened: to a tenth from 10 upwards, where they
/// are hundredths of a point or thousandths of a letter, and to four decimals below. A page with
/// text in brackets is given back as it is.
std::string Aligerado(std::string_view pagina);

}  // namespace zorbin
