#include "persistencia/disco/mdDiario.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <chrono>

namespace zorbin {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view kMagia = "ZORDIARI";
constexpr std::uint32_t kVersion = 1;
constexpr std::size_t kCabecera = 64;
constexpr std::size_t kLugarVersion = 8;
constexpr std::size_t kLugarCuenta = 12;
constexpr std::size_t kLugarAntes = 16;
constexpr std::size_t kLugarDespues = 24;
constexpr std::size_t kLugarResto = 32;
constexpr std::size_t kLugarSuma = 40;
constexpr std::size_t kLugarSerie = 48;
constexpr std::size_t kDatos = 16;  // of a record, after its number and its checksum
constexpr std::size_t kRegistro = kDatos + 2 * kBytesRegistro;
constexpr std::size_t kMaxDiario = kCabecera + kMaxRegistros * kRegistro;
constexpr std::size_t kEscalon = 32 * 1024;  // a save of usual size never makes the file longer

// ---- Numbers and checksums

template <class Entero>
void Pon(std::string& bytes, std::size_t lugar, Entero n) {
  for (std::size_t i = 0; i < sizeof n; ++i) {
    bytes[lugar + i] = static_cast<char>(n & 0xff);
    n = static_cast<Entero>(n >> 8);
  }
}

template <class Entero>
Entero Toma(std::string_view bytes, std::size_t lugar) {
  Entero n = 0;
  for (std::size_t i = sizeof n; i-- > 0;) {
    n = static_cast<Entero>(n << 8 | static_cast<unsigned char>(bytes[lugar + i]));
  }
  return n;
}

// Of pieces that are whole words, but for the last one.
class Suma {
 public:
  Suma& operator<<(std::string_view bytes) {
    while (bytes.size() >= sizeof(std::uint64_t)) {
      Mezcla(Toma<std::uint64_t>(bytes, 0));
      bytes.remove_prefix(sizeof(std::uint64_t));
    }
    for (const char c : bytes) Mezcla(static_cast<unsigned char>(c));
    return *this;
  }
  std::uint64_t valor() const { return valor_; }

 private:
  void Mezcla(std::uint64_t palabra) {
    valor_ = (valor_ ^ palabra) * 0x100000001b3;
    valor_ ^= valor_ >> 32;
  }

  std::uint64_t valor_ = 0xcbf29ce484222325;
};

std::uint64_t SumaDe(std::string_view bytes) {
  return (Suma() << bytes).valor();
}

std::string_view Vista(const Bloque& b) {
  return {b.data(), b.size()};
}

// ---- What a save changes

// What the contents have of a stretch, which may lie past their end.
std::string_view Parte(std::string_view contenido, std::size_t desde, std::size_t hasta) {
  const auto fin = std::min(hasta, contenido.size());
  return desde < fin ? contenido.substr(desde, fin - desde) : std::string_view{};
}

Bloque BloqueDe(std::string_view contenido, int numero) {
  Bloque b{};
  const auto bytes = Parte(contenido, Desde(numero), Desde(numero + 1));
  std::copy(bytes.begin(), bytes.end(), b.begin());
  return b;
}

std::uint64_t SumaDe(int numero, const Bloque& b) {
  std::string cabeza(sizeof(std::uint64_t), '\0');
  Pon(cabeza, 0, static_cast<std::uint64_t>(numero));
  return (Suma() << cabeza << Vista(b)).valor();
}

int RegistrosEn(std::uint64_t largo) {
  return static_cast<int>((largo + kBytesRegistro - 1) / kBytesRegistro);
}

std::uint64_t SumaDelResto(const Cambios& c, std::string_view contenido) {
  contenido = Parte(contenido, 0, c.largoAntes);
  std::uint64_t suma = SumaDeRegistros(contenido);
  for (const auto& r : c.registros) {
    if (r.numero > RegistrosEn(contenido.size())) break;
    suma -= SumaDe(r.numero, BloqueDe(contenido, r.numero));
  }
  return suma;
}

std::uint64_t LargoCon(const std::vector<CambioRegistro>& registros, std::uint64_t largo) {
  const std::uint64_t fin = registros.empty() ? 0 : Desde(registros.back().numero + 1);
  return std::max(largo, fin);
}

// A write that broke off leaves any byte of a record on either side of the save.
bool PuedeSer(const Bloque& ahora, const CambioRegistro& r) {
  for (std::size_t i = 0; i < ahora.size(); ++i) {
    if (ahora[i] != r.antes[i] && ahora[i] != r.despues[i]) return false;
  }
  return true;
}

// Records that follow one another go in one write.
Causa EscribeRegistros(const Descriptor& d, const std::vector<CambioRegistro>& registros,
                       const Bloque CambioRegistro::*lado) {
  std::string bytes;
  for (std::size_t i = 0; i < registros.size(); i += bytes.size() / kBytesRegistro) {
    bytes.clear();
    for (std::size_t j = i; j < registros.size(); ++j) {
      if (registros[j].numero != registros[i].numero + static_cast<int>(j - i)) break;
      bytes += Vista(registros[j].*lado);
    }
    if (const Causa causa = EscribeBytes(d, bytes, Desde(registros[i].numero))) return causa;
  }
  return 0;
}

// ---- Bytes of the journal

std::uint64_t SumaDelDiario(std::string bytes) {
  Pon(bytes, kLugarSuma, std::uint64_t{0});
  return SumaDe(bytes);
}

CambioRegistro LeeRegistroDiario(std::string_view bytes, bool& vale) {
  CambioRegistro r;
  r.numero = static_cast<int>(Toma<std::uint32_t>(bytes, 0));
  vale = vale && Toma<std::uint64_t>(bytes, 8) == SumaDe(bytes.substr(kDatos));
  const auto lados = bytes.substr(kDatos);
  std::copy_n(lados.begin(), kBytesRegistro, r.antes.begin());
  std::copy_n(lados.begin() + kBytesRegistro, kBytesRegistro, r.despues.begin());
  return r;
}

// Numbers that a save can have written.
bool TieneSentido(const Cambios& c) {
  int anterior = 0;
  for (const auto& r : c.registros) {
    if (r.numero <= anterior || r.numero > kMaxRegistros) return false;
    anterior = r.numero;
  }
  return c.largoDespues == LargoCon(c.registros, c.largoAntes);
}

// Also a beginning of the magic, or some zeros in it: neither a first write nor that which makes it
// void came to its end.
bool AMedioAnular(std::string_view bytes) {
  const auto n = std::min(bytes.size(), kMagia.size());
  for (std::size_t i = 0; i < n; ++i) {
    if (bytes[i] != '\0' && bytes[i] != kMagia[i]) return false;
  }
  return true;
}

DiarioLeido LeeCompleto(std::string_view bytes, std::size_t cuenta) {
  Cambios c;
  bool vale = true;
  c.largoAntes = Toma<std::uint64_t>(bytes, kLugarAntes);
  c.largoDespues = Toma<std::uint64_t>(bytes, kLugarDespues);
  c.resto = Toma<std::uint64_t>(bytes, kLugarResto);
  for (std::size_t i = 0; i < cuenta; ++i) {
    c.registros.push_back(
        LeeRegistroDiario(bytes.substr(kCabecera + i * kRegistro, kRegistro), vale));
  }
  if (!vale || !TieneSentido(c)) return {DiarioLeido::Estado::Ajeno};
  return {DiarioLeido::Estado::Completo, std::move(c)};
}

bool EsCorriente(const Descriptor& d) {
  struct stat datos;
  return ::fstat(d.numero(), &datos) == 0 && S_ISREG(datos.st_mode);
}

}  // namespace

std::uint64_t SumaDeRegistros(std::string_view contenido) {
  std::uint64_t suma = 0;
  for (int r = 1; r <= RegistrosEn(contenido.size()); ++r)
    suma += SumaDe(r, BloqueDe(contenido, r));
  return suma;
}

std::uint64_t SumaDespues(const Cambios& c) {
  std::uint64_t suma = c.resto;
  for (const auto& r : c.registros) suma += SumaDe(r.numero, r.despues);
  return suma;
}

Cambios CalculaCambios(std::string_view contenido, std::uint64_t largo, const Bloques& bloques) {
  return CalculaCambios(contenido, largo, SumaDeRegistros(contenido), bloques);
}

Cambios CalculaCambios(std::string_view contenido, std::uint64_t largo, std::uint64_t suma,
                       const Bloques& bloques) {
  Cambios c;
  c.largoAntes = largo;
  c.resto = suma;
  for (const auto& [numero, despues] : bloques) {
    const Bloque antes = BloqueDe(contenido, numero);
    if (antes == despues && Desde(numero + 1) <= contenido.size()) continue;
    if (Desde(numero) < contenido.size()) c.resto -= SumaDe(numero, antes);
    c.registros.push_back({numero, antes, despues});
  }
  c.largoDespues = LargoCon(c.registros, largo);
  return c;
}

Encaje Encaja(const Cambios& c, std::string_view contenido, std::uint64_t largo) {
  if (largo < c.largoAntes || largo > c.largoDespues || c.resto != SumaDelResto(c, contenido)) {
    return Encaje::OtroFichero;
  }
  bool antes = largo == c.largoAntes;
  bool despues = largo == c.largoDespues;
  for (const auto& r : c.registros) {
    const Bloque ahora = BloqueDe(contenido, r.numero);
    if (!PuedeSer(ahora, r)) return Encaje::OtroFichero;
    antes = antes && ahora == r.antes;
    despues = despues && ahora == r.despues;
  }
  return antes ? Encaje::Antes : despues ? Encaje::Despues : Encaje::AMedias;
}

std::string ComoAntes(const Cambios& c, std::string contenido) {
  for (const auto& r : c.registros) {
    if (Desde(r.numero) >= contenido.size()) continue;
    contenido.replace(Desde(r.numero), kBytesRegistro, Vista(r.antes));
  }
  if (contenido.size() > c.largoAntes) contenido.resize(c.largoAntes);
  return contenido;
}

Causa EscribeAntes(const Descriptor& d, const Cambios& c) {
  auto quedan = c.registros;  // the others go with the length
  std::erase_if(quedan, [&](const CambioRegistro& r) { return Desde(r.numero) >= c.largoAntes; });
  if (const Causa causa = EscribeRegistros(d, quedan, &CambioRegistro::antes)) return causa;
  if (const Causa causa = Trunca(d, c.largoAntes)) return causa;
  return SincronizaDatos(d);
}

Causa EscribeDespues(const Descriptor& d, const Cambios& c) {
  if (const Causa causa = EscribeRegistros(d, c.registros, &CambioRegistro::despues)) return causa;
  return SincronizaDatos(d);
}

fs::path RutaDiario(const fs::path& fichero) {
  auto ruta = fichero;
  ruta += "-diario";
  return ruta;
}

std::string BytesDiario(const Cambios& c, std::uint64_t serie) {
  std::string bytes(kCabecera + c.registros.size() * kRegistro, '\0');
  bytes.replace(0, kMagia.size(), kMagia);
  Pon(bytes, kLugarVersion, kVersion);
  Pon(bytes, kLugarCuenta, static_cast<std::uint32_t>(c.registros.size()));
  Pon(bytes, kLugarAntes, c.largoAntes);
  Pon(bytes, kLugarDespues, c.largoDespues);
  Pon(bytes, kLugarResto, c.resto);
  Pon(bytes, kLugarSerie, serie);
  std::size_t lugar = kCabecera;
  for (const auto& r : c.registros) {
    Pon(bytes, lugar, static_cast<std::uint32_t>(r.numero));
    bytes.replace(lugar + kDatos, kBytesRegistro, Vista(r.antes));
    bytes.replace(lugar + kDatos + kBytesRegistro, kBytesRegistro, Vista(r.despues));
    Pon(bytes, lugar + 8,
        SumaDe(std::string_view(bytes).substr(lugar + kDatos, 2 * kBytesRegistro)));
    lugar += kRegistro;
  }
  Pon(bytes, kLugarSuma, SumaDe(bytes));
  return bytes;
}

DiarioLeido InterpretaDiario(std::string_view bytes) {
  using Estado = DiarioLeido::Estado;
  if (!bytes.starts_with(kMagia)) return {AMedioAnular(bytes) ? Estado::Nulo : Estado::Ajeno};
  if (bytes.size() < kCabecera) return {Estado::Incompleto};
  if (Toma<std::uint32_t>(bytes, kLugarVersion) > kVersion) return {Estado::MasNuevo};
  const std::size_t cuenta = Toma<std::uint32_t>(bytes, kLugarCuenta);
  if (cuenta > kMaxRegistros || bytes.size() < kCabecera + cuenta * kRegistro) {
    return {Estado::Incompleto};
  }
  bytes = bytes.substr(0, kCabecera + cuenta * kRegistro);
  if (SumaDelDiario(std::string(bytes)) != Toma<std::uint64_t>(bytes, kLugarSuma)) {
    return {Estado::Incompleto};
  }
  return LeeCompleto(bytes, cuenta);
}

Causa LeeDiario(const fs::path& fichero, std::optional<std::string>& bytes) {
  bytes.reset();
  Descriptor d;
  const Causa causa = AbreFichero(d, RutaDiario(fichero), O_RDONLY | O_NOFOLLOW | O_NONBLOCK);
  if (causa == ENOENT) return 0;
  if (causa != 0) return causa;
  if (!EsCorriente(d)) return EINVAL;
  return LeeBytes(d, kMaxDiario, bytes.emplace());
}

bool MismoGrabado(const std::optional<std::string>& a, const std::optional<std::string>& b) {
  const auto sinMagia = [](const std::string& bytes) {
    return std::string_view(bytes).substr(std::min(bytes.size(), kMagia.size()));
  };
  return a && b ? sinMagia(*a) == sinMagia(*b) : !a && !b;
}

// ---------------------------------------------------------------------------------------------

Diario::Diario(const fs::path& fichero, bool nuestro)
    : ruta_(RutaDiario(fichero)),
      serie_(
          static_cast<std::uint64_t>(std::chrono::system_clock::now().time_since_epoch().count())),
      nuestro_(nuestro) {}

Diario::~Diario() {
  if (!d_.abierto() || seConserva_) return;
  // A void journal that stays, or comes back after a power cut, undoes nothing.
  if (BorraFichero(ruta_) == 0) static_cast<void>(SincronizaNombre(ruta_));
}

Causa Diario::Crea(mode_t permisos) {
  d_.Cierra();
  largo_ = 0;
  nombreEnDisco_ = false;
  constexpr int kNuevo = O_RDWR | O_CREAT | O_EXCL | O_NOFOLLOW;
  Causa causa = AbreFichero(d_, ruta_, kNuevo, permisos);
  if (causa == EEXIST && nuestro_) {
    causa = HazSitio();
    if (causa == 0) causa = AbreFichero(d_, ruta_, kNuevo, permisos);
  }
  if (causa != 0) return causa;
  nuestro_ = true;
  // Who may read the file may read what it was. A file system without rights needs none.
  static_cast<void>(::fchmod(d_.numero(), permisos));
  return 0;
}

// Somebody put something in the place of the journal.
Causa Diario::HazSitio() const {
  Descriptor d;
  std::string bytes;
  const bool nulo = AbreFichero(d, ruta_, O_RDONLY | O_NOFOLLOW | O_NONBLOCK) == 0 &&
                    EsCorriente(d) && LeeBytes(d, kMaxDiario, bytes) == 0 &&
                    InterpretaDiario(bytes).estado == DiarioLeido::Estado::Nulo;
  if (nulo) return BorraFichero(ruta_);
  fs::path aparte;
  return ApartaFichero(ruta_, aparte);
}

Causa Diario::Prepara(mode_t permisos) {
  if (d_.abierto()) return 0;
  if (const Causa causa = Crea(permisos)) return causa;
  return Fija(std::string(1, '\0'));
}

Causa Diario::Escribe(const Cambios& cambios, mode_t permisos) {
  bool sigue = false;
  if (d_.abierto()) {
    if (const Causa causa = EsElMismo(d_, ruta_, sigue)) return causa;
  }
  if (!sigue) {
    if (const Causa causa = Crea(permisos)) return causa;
  }
  return Fija(BytesDiario(cambios, ++serie_));
}

// Writes it and waits for the disk.
Causa Diario::Fija(std::string bytes) {
  if (bytes.size() > largo_) {
    largo_ = (bytes.size() + kEscalon - 1) / kEscalon * kEscalon;
    bytes.resize(largo_);
  }
  if (const Causa causa = EscribeBytes(d_, bytes, 0)) return causa;
  if (const Causa causa = SincronizaDatos(d_)) return causa;
  if (nombreEnDisco_) return 0;
  const Causa causa = SincronizaNombre(ruta_);
  nombreEnDisco_ = causa == 0;
  return causa;
}

void Diario::Anula() {
  if (!d_.abierto()) return;
  static_cast<void>(EscribeBytes(d_, std::string(kMagia.size(), '\0'), 0));
}

}  // namespace zorbin
