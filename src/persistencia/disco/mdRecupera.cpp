#include "persistencia/disco/mdRecupera.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <cerrno>
#include <chrono>
#include <optional>
#include <thread>

#include "base/textos.h"
#include "persistencia/disco/mdCerrojo.h"
#include "persistencia/disco/mdDiario.h"

namespace zorbin {

namespace {

namespace fs = std::filesystem;
using Estado = DiarioLeido::Estado;

constexpr int kIntentosLectura = 50;
constexpr std::chrono::milliseconds kEsperaLectura{2};

std::string NombreDiario(const fs::path& ruta) {
  return RutaDiario(ruta).string();
}

ErrorFichero NoSeAbre(const std::string& nombre, Causa causa) {
  return ErrorFichero({txt::NoSeAbre, {nombre, TextoDeCausa(causa)}});
}

std::optional<std::string> BytesDelDiario(const fs::path& ruta, const std::string& nombre) {
  std::optional<std::string> bytes;
  if (const Causa causa = LeeDiario(ruta, bytes)) {
    throw ErrorFichero({txt::DiarioIlegible, {nombre, NombreDiario(ruta), TextoDeCausa(causa)}});
  }
  return bytes;
}

DiarioLeido Interpreta(const std::optional<std::string>& bytes, const fs::path& ruta,
                       const std::string& nombre) {
  if (!bytes) return {};
  auto leido = InterpretaDiario(*bytes);
  if (leido.estado == Estado::MasNuevo) {
    throw ErrorFichero({txt::DiarioMasNuevo, {nombre, NombreDiario(ruta)}});
  }
  return leido;
}

DiarioLeido DiarioDe(const fs::path& ruta, const std::string& nombre) {
  return Interpreta(BytesDelDiario(ruta, nombre), ruta, nombre);
}

ErrorFichero NoSeDeshace(const fs::path& ruta, const std::string& nombre, Causa causa) {
  return ErrorFichero({txt::NoSeDeshace, {nombre, TextoDeCausa(causa), NombreDiario(ruta)}});
}

ErrorFichero NoSeQuita(const fs::path& ruta, const std::string& nombre, Causa causa) {
  return ErrorFichero({txt::DiarioNoSeQuita, {nombre, NombreDiario(ruta), TextoDeCausa(causa)}});
}

Causa QuitaDiario(const fs::path& ruta) {
  const Causa causa = BorraFichero(RutaDiario(ruta));
  if (causa != 0) return causa == ENOENT ? 0 : causa;
  // One that came back after a power cut would tell of what the file already is.
  static_cast<void>(SincronizaNombre(ruta));
  return 0;
}

Mensaje Aparta(const fs::path& ruta, const std::string& nombre) {
  fs::path aparte;
  if (const Causa causa = ApartaFichero(RutaDiario(ruta), aparte)) {
    throw NoSeQuita(ruta, nombre, causa);
  }
  return {txt::DiarioAjeno, {nombre, NombreDiario(ruta), aparte.string()}};
}

// A journal from which nothing is undone.
std::vector<Mensaje> RetiraOtro(const DiarioLeido& diario, const fs::path& ruta,
                                const std::string& nombre) {
  if (diario.estado == Estado::Falta) return {};
  if (diario.estado == Estado::Ajeno) return {Aparta(ruta, nombre)};
  // Where the folder does not let it go, saving says so.
  static_cast<void>(QuitaDiario(ruta));
  if (diario.estado == Estado::Nulo) return {};
  return {{txt::LoAMediasDeshecho, {nombre}}};
}

std::uint64_t Largo(const Descriptor& f, const std::string& nombre) {
  struct stat datos;
  if (::fstat(f.numero(), &datos) != 0) throw NoSeAbre(nombre, errno);
  return static_cast<std::uint64_t>(datos.st_size);
}

Encaje EncajaEnDisco(const Descriptor& f, const Cambios& cambios, const std::string& nombre) {
  std::string contenido;
  if (const Causa causa = LeeBytes(f, kMaxContenido, contenido)) {
    throw ErrorFichero({txt::ErrorDeLectura, {nombre, TextoDeCausa(causa)}});
  }
  return Encaja(cambios, contenido, Largo(f, nombre));
}

// ---- Reading only

// The contents between two saves, and whether a save stands half done.
struct Vista {
  std::string contenido;
  bool aMedias = false;
  bool ajeno = false;
};

std::string BytesDelFichero(const Descriptor& f, const std::string& nombre) {
  std::string bytes;
  if (const Causa causa = LeeBytes(f, kMaxContenido, bytes)) throw NoSeAbre(nombre, causa);
  return bytes;
}

Vista Compon(const DiarioLeido& diario, std::string contenido, std::uint64_t largo) {
  Vista v{std::move(contenido), false, diario.estado == Estado::Ajeno};
  if (diario.estado != Estado::Completo) return v;
  const Encaje encaje = Encaja(diario.cambios, v.contenido, largo);
  v.ajeno = encaje == Encaje::OtroFichero;
  v.aMedias = encaje == Encaje::AMedias || encaje == Encaje::Antes;
  if (v.aMedias) v.contenido = ComoAntes(diario.cambios, std::move(v.contenido));
  return v;
}

// No value when another program began a save meanwhile.
std::optional<Vista> Mira(const Descriptor& f, const fs::path& ruta, const std::string& nombre) {
  const auto diario = BytesDelDiario(ruta, nombre);
  std::string contenido = BytesDelFichero(f, nombre);
  const auto largo = Largo(f, nombre);
  // Without a journal it may have come and gone.
  if (!diario && BytesDelFichero(f, nombre) != contenido) return std::nullopt;
  if (!MismoGrabado(diario, BytesDelDiario(ruta, nombre))) return std::nullopt;
  return Compon(Interpreta(diario, ruta, nombre), std::move(contenido), largo);
}

Vista MiraHastaQueRepose(const Descriptor& f, const fs::path& ruta, const std::string& nombre) {
  for (int i = 0; i < kIntentosLectura; ++i) {
    if (auto vista = Mira(f, ruta, nombre)) return std::move(*vista);
    std::this_thread::sleep_for(kEsperaLectura);
  }
  throw ErrorFichero({txt::EscribiendoOtro, {nombre}});
}

}  // namespace

std::vector<Mensaje> Recupera(const Descriptor& f, const fs::path& ruta,
                              const std::string& nombre) {
  const DiarioLeido diario = DiarioDe(ruta, nombre);
  if (diario.estado != Estado::Completo) return RetiraOtro(diario, ruta, nombre);
  const Encaje encaje = EncajaEnDisco(f, diario.cambios, nombre);
  if (encaje == Encaje::OtroFichero) return {Aparta(ruta, nombre)};
  // What is there may not have reached the disk.
  const bool acabado = encaje == Encaje::Despues;
  const Causa causa = acabado ? EscribeDespues(f, diario.cambios) : EscribeAntes(f, diario.cambios);
  if (causa != 0) throw NoSeDeshace(ruta, nombre, causa);
  if (const Causa c = QuitaDiario(ruta)) throw NoSeQuita(ruta, nombre, c);
  if (acabado) return {};
  return {{txt::LoAMediasDeshecho, {nombre}}};
}

std::vector<Mensaje> RetiraDiario(const fs::path& ruta, const std::string& nombre) {
  const DiarioLeido diario = DiarioDe(ruta, nombre);
  if (diario.estado == Estado::Completo) return {Aparta(ruta, nombre)};
  return RetiraOtro(diario, ruta, nombre);
}

ContenidoLeido LeeSinEscribir(const fs::path& ruta) {
  const std::string nombre = ruta.string();
  Descriptor f;
  if (const Causa causa = AbreFichero(f, ruta, O_RDONLY | O_NONBLOCK | O_NOCTTY))
    throw NoSeAbre(nombre, causa);
  struct stat datos;
  if (::fstat(f.numero(), &datos) != 0) throw NoSeAbre(nombre, errno);
  ContenidoLeido leido;
  if (!S_ISREG(datos.st_mode)) {  // a pipe is read once, and nobody saves into it
    if (const Causa causa = LeeBytes(f, kMaxContenido, leido.bytes)) throw NoSeAbre(nombre, causa);
    return leido;
  }
  std::error_code error;
  fs::path lugar = fs::canonical(ruta, error);
  if (error) lugar = ruta;
  Vista v = MiraHastaQueRepose(f, lugar, nombre);
  leido.bytes = std::move(v.contenido);
  if (v.ajeno) leido.avisos.push_back({txt::DiarioAjenoLeido, {nombre, NombreDiario(lugar)}});
  if (v.aMedias && !LoTieneOtro(f)) leido.avisos.push_back({txt::LeidoComoAntes, {nombre}});
  return leido;
}

}  // namespace zorbin
