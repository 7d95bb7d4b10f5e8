// For files of records in the form of a text, and for JSON: half of the mutations put another
// number, or half a pair, in the place of a line, or another value in that of a value. By chance
// the bytes of a datum change too seldom to something that passes a reader.
#include <array>
#include <cstring>
#include <random>

#include "fuzz/comun.h"

extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t* datos, std::size_t largo, std::size_t maximo);
extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* datos, std::size_t largo,
                                               std::size_t maximo, unsigned semilla);

namespace zorbin::hostil {

namespace {

constexpr std::array<std::string_view, 32> kNumeros{
    "",     "0",   "1",    "2",    "3",    "4",     "-1",        "0,001",
    "0,01", "0,1", "0,5",  "0,9",  "1,00", "1,5",   "2,5",       "5,0",
    "10,0", "11",  "12",   "21",   "22",   "23",    "31",        "90",
    "100",  "350", "1210", "2211", "2221", "20000", "999999999", "1000000000000"};

class Azar {
 public:
  explicit Azar(unsigned semilla) : azar_(semilla) {}
  std::size_t Menor(std::size_t n) { return azar_() % n; }
  std::string_view Numero() { return kNumeros[Menor(kNumeros.size())]; }

 private:
  std::minstd_rand azar_;
};

// Another text for the line, from the place on at which it begins.
std::string OtraLinea(Azar& azar, std::string_view linea) {
  const auto par = linea.find(" // ");
  if (par == std::string_view::npos) return std::string(azar.Numero());
  const std::string_view mks = linea.substr(0, par);
  const std::string_view si = linea.substr(par + 4);
  switch (azar.Menor(4)) {
    case 0:
      return std::string(azar.Numero()) + " // " + std::string(si);
    case 1:
      return std::string(mks) + " // " + std::string(azar.Numero());
    case 2:
      return std::string(azar.Numero());
    default:
      return std::string(azar.Numero()) + " // " + std::string(azar.Numero());
  }
}

std::string ConOtraLinea(Azar& azar, std::string texto) {
  const std::size_t lugar = azar.Menor(texto.size());
  const auto antes = texto.rfind('\n', lugar == 0 ? 0 : lugar - 1);
  const std::size_t desde = antes == std::string::npos ? 0 : antes + 1;
  const std::size_t hasta = std::min(texto.find('\n', desde), texto.size());
  const auto linea = OtraLinea(azar, std::string_view(texto).substr(desde, hasta - desde));
  return texto.replace(desde, hasta - desde, linea);
}

constexpr std::array<std::string_view, 20> kValores{
    "0",     "1",          "2",         "-1",      "3",      "32767",          "-32768",
    "99",    "2147483647", "1e12",      "-1e12",   "1e-320", "0.001",          "true",
    "false", "null",       "\"ALTAS\"", "\"1,2\"", "\"\"",   "\"x\\u001b[2J\""};

std::string ConOtroValor(Azar& azar, std::string json) {
  const std::size_t desde = json.find(':', azar.Menor(json.size()));
  if (desde == std::string::npos) return json;
  const std::size_t hasta = std::min(json.find_first_of(",}", desde), json.size());
  return json.replace(desde + 1, hasta - desde - 1, kValores[azar.Menor(kValores.size())]);
}

}  // namespace

}  // namespace zorbin::hostil

std::size_t LLVMFuzzerCustomMutator(std::uint8_t* datos, std::size_t largo, std::size_t maximo,
                                    unsigned semilla) {
  using namespace zorbin::hostil;
  Azar azar(semilla);
  if (largo == 0 || datos[0] < ' ' || azar.Menor(2) == 0) {
    return LLVMFuzzerMutate(datos, largo, maximo);
  }
  const std::string antes(Vista(datos, largo));
  std::string texto = antes[0] == '{' ? ConOtroValor(azar, antes) : ConOtraLinea(azar, antes);
  texto.resize(std::min(texto.size(), maximo));
  std::memcpy(datos, texto.data(), texto.size());
  return texto.size();
}
