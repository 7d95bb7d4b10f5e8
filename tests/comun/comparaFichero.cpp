#include "comun/comparaFichero.h"

#include <algorithm>
#include <cstdio>
#include <fstream>
#include <iterator>

#include "comun/estadoDeJson.h"

namespace zorbin::pruebas {

std::string Compara(const std::string& dorado, const std::string& texto) {
  const std::string ruta = Datos(dorado);
  std::ifstream f(ruta, std::ios::binary);
  const std::string esperado(std::istreambuf_iterator<char>(f), {});
  if (f && esperado == texto) {
    std::remove((ruta + ".out").c_str());
    return {};
  }
  std::ofstream(ruta + ".out", std::ios::binary) << texto;
  const auto [a, b] = std::mismatch(esperado.begin(), esperado.end(), texto.begin(), texto.end());
  const auto linea = std::count(esperado.begin(), a, '\n') + 1;
  return "differs from " + ruta + " at line " + std::to_string(linea) + "; see " + ruta + ".out";
}

}  // namespace zorbin::pruebas
