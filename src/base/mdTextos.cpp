#include "base/mdTextos.h"

#include <algorithm>

namespace zorbin {

namespace {

bool EmpiezaCaracter(char c) {
  return (static_cast<unsigned char>(c) & 0xC0) != 0x80;
}

}  // namespace

std::size_t Largo(std::string_view texto) {
  return static_cast<std::size_t>(std::count_if(texto.begin(), texto.end(), EmpiezaCaracter));
}

std::string_view Primeros(std::string_view texto, std::size_t n) {
  std::size_t i = 0;
  for (std::size_t cuenta = 0; i < texto.size(); ++i) {
    if (EmpiezaCaracter(texto[i]) && cuenta++ == n) break;
  }
  return texto.substr(0, i);
}

std::string_view Recorta(std::string_view texto) {
  const auto desde = texto.find_first_not_of(' ');
  if (desde == std::string_view::npos) return {};
  return texto.substr(desde, texto.find_last_not_of(' ') - desde + 1);
}

std::string TextoEntero(int n) {
  return std::to_string(n);
}

}  // namespace zorbin
