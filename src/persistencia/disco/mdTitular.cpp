#include "persistencia/disco/mdTitular.h"

#include <fcntl.h>
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <ctime>
#include <map>

#include "base/mdContenido.h"
#include "persistencia/disco/mdDescriptor.h"

namespace zorbin {

namespace {

namespace fs = std::filesystem;

constexpr std::size_t kMaxMarca = 2048;  // bytes of the file
constexpr std::size_t kMaxDato = 128;    // bytes that are shown of a name
constexpr std::string_view kCabecera = "ZORBIN 1";
constexpr int kCampoArranque = 22;  // of /proc/PID/stat

bool EsContinuacion(char c) {
  return (static_cast<unsigned char>(c) & 0xC0) == 0x80;
}

// Lines can't be broken, nor a box overrun, by a name.
std::string Legible(std::string_view texto) {
  std::string limpio(texto.substr(0, kMaxDato));
  std::replace_if(
      limpio.begin(), limpio.end(), [](unsigned char c) { return c < ' ' || c == 0x7f; }, ' ');
  limpio = TextoLimpio(limpio);
  std::size_t fin = std::min(limpio.size(), kMaxDato);
  while (fin > 0 && fin < limpio.size() && EsContinuacion(limpio[fin])) --fin;
  limpio.resize(fin);
  return limpio;
}

std::string Usuario() {
  std::array<char, 4096> espacio{};
  struct passwd datos, *hallado = nullptr;
  const auto uid = ::geteuid();
  if (::getpwuid_r(uid, &datos, espacio.data(), espacio.size(), &hallado) == 0 && hallado) {
    return Legible(datos.pw_name);
  }
  return std::to_string(uid);
}

std::string Equipo() {
  std::array<char, 256> nombre{};
  if (::gethostname(nombre.data(), nombre.size() - 1) != 0) return "?";
  return Legible(nombre.data());
}

std::string Ahora() {
  const std::time_t t = std::time(nullptr);
  std::tm local{};
  ::localtime_r(&t, &local);
  std::array<char, 32> texto{};
  const auto n = std::strftime(texto.data(), texto.size(), "%d/%m/%Y %H:%M", &local);
  return {texto.data(), n};
}

template <class Entero>
std::optional<Entero> NumeroDe(std::string_view texto) {
  Entero n{};
  const auto r = std::from_chars(texto.data(), texto.data() + texto.size(), n);
  if (r.ec != std::errc{} || r.ptr != texto.data() + texto.size()) return std::nullopt;
  return n;
}

// When a process began, in ticks of the machine; 0 when there is no such process, or only what its
// parent has not yet fetched of it. The name of the program stands in brackets before it and may
// hold anything.
std::uint64_t Arranque(int proceso) {
  Descriptor d;
  std::string texto;
  const fs::path ruta = "/proc/" + std::to_string(proceso) + "/stat";
  if (AbreFichero(d, ruta, O_RDONLY) != 0 || LeeBytes(d, kMaxMarca, texto) != 0) return 0;
  std::size_t i = texto.rfind(')');
  if (i == std::string::npos || texto.substr(i + 1, 2) == " Z") return 0;
  for (int campo = 2; campo < kCampoArranque && i != std::string::npos; ++campo) {
    i = texto.find(' ', i + 1);
  }
  if (i == std::string::npos) return 0;
  const auto fin = texto.find(' ', i + 1);
  return NumeroDe<std::uint64_t>(std::string_view(texto).substr(i + 1, fin - i - 1)).value_or(0);
}

bool EsFicheroCorriente(const Descriptor& d) {
  struct stat datos;
  return ::fstat(d.numero(), &datos) == 0 && S_ISREG(datos.st_mode);
}

}  // namespace

Titular EsteTitular() {
  const int proceso = ::getpid();
  return {Usuario(), Equipo(), Ahora(), proceso, Arranque(proceso)};
}

bool EsDeEsteEquipo(const Titular& titular) {
  return titular.equipo == Equipo();
}

bool SigueVivo(const Titular& titular) {
  return EsDeEsteEquipo(titular) && titular.arranque != 0 &&
         Arranque(titular.proceso) == titular.arranque;
}

fs::path RutaMarca(const fs::path& fichero) {
  auto ruta = fichero;
  ruta += "-uso";
  return ruta;
}

std::string TextoMarca(const Titular& t) {
  std::string texto(kCabecera);
  for (const auto& dato :
       {t.usuario, t.equipo, t.desde, std::to_string(t.proceso), std::to_string(t.arranque)}) {
    texto += "\n" + Legible(dato);
  }
  return texto + "\n";
}

std::optional<Titular> LeeTextoMarca(std::string_view texto) {
  std::array<std::string_view, 6> lineas;
  for (auto& linea : lineas) {
    const auto fin = texto.find('\n');
    if (fin == std::string_view::npos) return std::nullopt;
    linea = texto.substr(0, fin);
    texto.remove_prefix(fin + 1);
  }
  const auto proceso = NumeroDe<int>(lineas[4]);
  const auto arranque = NumeroDe<std::uint64_t>(lineas[5]);
  if (lineas[0] != kCabecera || !proceso || *proceso <= 0 || !arranque) return std::nullopt;
  return Titular{Legible(lineas[1]), Legible(lineas[2]), Legible(lineas[3]), *proceso, *arranque};
}

std::optional<Titular> LeeMarca(const fs::path& fichero) {
  Descriptor d;
  std::string texto;
  if (AbreFichero(d, RutaMarca(fichero), O_RDONLY | O_NOFOLLOW | O_NONBLOCK) != 0 ||
      !EsFicheroCorriente(d) || LeeBytes(d, kMaxMarca, texto) != 0) {
    return std::nullopt;
  }
  return LeeTextoMarca(texto);
}

Marca::Marca(const fs::path& fichero) : ruta_(RutaMarca(fichero)) {
  Descriptor d;
  // A mark left behind is of no one: the file is in our hands.
  if (AbreFichero(d, ruta_, O_WRONLY | O_CREAT | O_NOFOLLOW | O_NONBLOCK) != 0) return;
  struct stat datos;
  const bool seSabe = ::fstat(d.numero(), &datos) == 0;
  if (seSabe && !S_ISREG(datos.st_mode)) return;
  puesta_ = true;  // also where the system does not tell: it must not stay behind
  if (!seSabe) return;
  const std::string texto = TextoMarca(EsteTitular());
  if (EscribeBytes(d, texto, 0) == 0 && Trunca(d, texto.size()) == 0) return;
  puesta_ = BorraFichero(ruta_) != 0;
}

Marca::~Marca() {
  // One that stays names a process that no longer is.
  if (puesta_) static_cast<void>(BorraFichero(ruta_));
}

}  // namespace zorbin
