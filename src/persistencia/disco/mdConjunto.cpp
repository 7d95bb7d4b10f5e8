#include "persistencia/disco/mdConjunto.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <charconv>

#include "base/textos.h"
#include "persistencia/disco/mdDiario.h"

namespace zorbin {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view kMagia = "ZORCONJUNTO ";
constexpr int kVersion = 1;
constexpr std::array kExtensiones{kExtensionDpe, kExtensionZrx};
constexpr std::string_view kSinFichero = "-";
constexpr std::size_t kMaxCabecera = 1024;
constexpr std::size_t kMaxConjunto = kMaxCabecera + kExtensiones.size() * kMaxContenido;
constexpr mode_t kBitsDePermiso = 0666;

// ---- The text

// Takes the words of the text from its front.
class Lector {
 public:
  explicit Lector(std::string_view texto) : texto_(texto) {}

  std::string_view Hasta(char fin) {
    const auto corte = texto_.find(fin);
    bien_ = bien_ && corte != std::string_view::npos;
    return bien_ ? Toma(corte, 1) : std::string_view{};
  }
  std::uint64_t Numero(char fin) { return Numero(Hasta(fin)); }
  std::uint64_t Numero(std::string_view cifras) {
    std::uint64_t n = 0;
    const auto [hasta, error] = std::from_chars(cifras.data(), cifras.data() + cifras.size(), n);
    bien_ = bien_ && error == std::errc{} && hasta == cifras.data() + cifras.size();
    return n;
  }
  std::string Bytes(std::uint64_t cuantos) {
    bien_ = bien_ && cuantos <= texto_.size();
    return bien_ ? std::string(Toma(cuantos, 0)) : std::string{};
  }
  bool bien() const { return bien_; }
  std::string_view resto() const { return texto_; }

 private:
  std::string_view Toma(std::size_t cuantos, std::size_t detras) {
    const auto trozo = texto_.substr(0, cuantos);
    texto_.remove_prefix(cuantos + detras);
    return trozo;
  }

  std::string_view texto_;
  bool bien_ = true;
};

std::optional<Conjunto> LeeCuerpo(Lector l) {
  Conjunto c;
  c.largo = l.Numero(' ');
  c.suma = l.Numero('\n');
  std::vector<std::uint64_t> largos;
  for (auto linea = l.Hasta('\n'); l.bien() && !linea.empty(); linea = l.Hasta('\n')) {
    const auto corte = linea.find(' ');
    if (corte == std::string_view::npos) return std::nullopt;
    const auto extension = linea.substr(0, corte);
    const auto largo = linea.substr(corte + 1);
    if (std::ranges::find(kExtensiones, extension) == kExtensiones.end()) return std::nullopt;
    c.antes.push_back({std::string(extension), std::nullopt});
    if (largo != kSinFichero) c.antes.back().bytes.emplace();
    largos.push_back(largo != kSinFichero ? l.Numero(largo) : 0);
  }
  for (std::size_t i = 0; i < c.antes.size(); ++i) {
    if (c.antes[i].bytes) c.antes[i].bytes = l.Bytes(largos[i]);
  }
  if (!l.bien()) return std::nullopt;
  return c;
}

// ---- The files

struct Datos {
  Causa causa = 0;
  struct stat st {};
};

Datos DatosDe(const fs::path& ruta) {
  Datos d;
  if (::stat(ruta.c_str(), &d.st) != 0) d.causa = errno;
  return d;
}

mode_t PermisosComo(const fs::path& obra) {
  const Datos d = DatosDe(obra);
  return d.causa == 0 ? d.st.st_mode & kBitsDePermiso : kPermisosFichero;
}

// Where a name leads to; a name without a file stands in its folder.
fs::path SinEnlaces(const fs::path& ruta) {
  std::error_code error;
  if (!fs::is_symlink(fs::symlink_status(ruta, error))) return ruta;
  const fs::path real = fs::weakly_canonical(ruta, error);
  return error ? ruta : real;
}

fs::path RutaGrabando(const fs::path& fichero) {
  return fichero.string() + "-grabando";
}

fs::path RutaAntes(const fs::path& fichero) {
  return fichero.string() + "-antes";
}

bool Hay(const fs::path& ruta) {
  std::error_code error;
  return fs::symlink_status(ruta, error).type() != fs::file_type::not_found;
}

Causa Borra(const fs::path& ruta) {
  const Causa causa = BorraFichero(ruta);
  if (causa != 0) return causa == ENOENT ? 0 : causa;
  return SincronizaNombre(ruta);
}

Causa Escribe(const fs::path& ruta, std::string_view bytes, mode_t permisos) {
  Descriptor d;
  if (const Causa causa =
          AbreFichero(d, ruta, O_WRONLY | O_CREAT | O_TRUNC | O_NOFOLLOW | O_NONBLOCK, permisos)) {
    return causa;
  }
  // A file system without rights needs none.
  static_cast<void>(::fchmod(d.numero(), permisos));
  if (const Causa causa = EscribeBytes(d, bytes, 0)) return causa;
  return SincronizaDatos(d);
}

// Of a companion that is there.
Causa SePuedeSustituir(const fs::path& ruta, const Datos& d) {
  if (d.causa != 0) return d.causa == ENOENT ? 0 : d.causa;
  if (!S_ISREG(d.st.st_mode)) return EINVAL;
  // One that must not be changed is not replaced either.
  return Permite(ruta, W_OK) ? 0 : errno;
}

Causa Prepara(const fs::path& ruta, std::string_view bytes, mode_t permisos) {
  const Datos antes = DatosDe(ruta);
  if (const Causa causa = SePuedeSustituir(ruta, antes)) return causa;
  const bool existe = antes.causa == 0;
  const fs::path nueva = RutaGrabando(ruta);
  const Causa causa = Escribe(nueva, bytes, existe ? antes.st.st_mode & kBitsDePermiso : permisos);
  if (causa != 0) static_cast<void>(BorraFichero(nueva));
  // Only root gives a file away; to anybody else it stays his own.
  if (causa == 0 && existe && ::chown(nueva.c_str(), antes.st.st_uid, antes.st.st_gid) != 0)
    errno = 0;
  return causa;
}

std::string NombreDe(const fs::path& obra) {
  return RutaConjunto(obra).string();
}

Causa Sincroniza(const fs::path& ruta) {
  Descriptor d;
  if (const Causa causa = AbreFichero(d, ruta, O_RDONLY | O_NONBLOCK | O_NOCTTY)) return causa;
  return SincronizaDatos(d);
}

bool Tiene(const fs::path& ruta, std::string_view bytes) {
  Descriptor d;
  bool iguales = false;
  return AbreFichero(d, ruta, O_RDONLY | O_NONBLOCK | O_NOCTTY) == 0 &&
         ComparaBytes(d, kMaxContenido, bytes, iguales) == 0 && iguales;
}

bool EstaComo(const fs::path& obra, const Companera& c) {
  const fs::path ruta = RutaCompanera(obra, c.extension);
  return c.bytes ? Tiene(ruta, *c.bytes) : !Hay(ruta);
}

std::vector<Mensaje> Restaura(const fs::path& obra, const Conjunto& conjunto) {
  std::vector<Mensaje> avisos;
  for (const auto& c : conjunto.antes) {
    if (!EstaComo(obra, c)) avisos = {{txt::LoAMediasDeshecho, {obra.string()}}};
    if (const Causa causa = RestauraCompanera(obra, c)) {
      throw ErrorFichero({txt::NoSeDeshace, {obra.string(), TextoDeCausa(causa), NombreDe(obra)}});
    }
  }
  return avisos;
}

// Once its save is undone, or came to its end: the name of a new Obra may not have reached the
// disk.
void Retira(const fs::path& obra, bool deshecho) {
  Causa causa = deshecho ? 0 : SincronizaNombre(SinEnlaces(obra));
  if (causa == 0) causa = QuitaConjunto(obra);
  if (causa == 0) return;
  throw ErrorFichero({txt::DiarioNoSeQuita, {obra.string(), NombreDe(obra), TextoDeCausa(causa)}});
}

}  // namespace

fs::path RutaCompanera(const fs::path& obra, std::string_view extension) {
  auto ruta = obra;
  ruta.replace_extension(extension);
  if (ruta == obra) ruta += extension;
  return ruta;
}

bool Conjunto::EsAntes(std::string_view contenido) const {
  return contenido.size() == largo && SumaDeRegistros(contenido) == suma;
}

Conjunto ConjuntoDe(std::string_view contenido, std::vector<Companera> antes) {
  return {contenido.size(), SumaDeRegistros(contenido), std::move(antes)};
}

fs::path RutaConjunto(const fs::path& obra) {
  return obra.string() + "-conjunto";
}

std::string TextoDeConjunto(const Conjunto& c) {
  std::string cuerpo = std::to_string(c.largo) + " " + std::to_string(c.suma) + "\n";
  for (const auto& x : c.antes) {
    cuerpo += x.extension + " ";
    cuerpo += x.bytes ? std::to_string(x.bytes->size()) : std::string(kSinFichero);
    cuerpo += "\n";
  }
  cuerpo += "\n";
  for (const auto& x : c.antes) cuerpo += x.bytes.value_or("");
  return std::string(kMagia) + std::to_string(kVersion) + "\n" +
         std::to_string(SumaDeRegistros(cuerpo)) + "\n" + cuerpo;
}

std::optional<Conjunto> InterpretaConjunto(std::string_view bytes, const fs::path& obra) {
  if (!bytes.starts_with(kMagia)) return std::nullopt;
  Lector l(bytes.substr(kMagia.size()));
  const auto version = l.Numero('\n');
  if (l.bien() && version > kVersion) {
    throw ErrorFichero({txt::DiarioMasNuevo, {obra.string(), NombreDe(obra)}});
  }
  const auto suma = l.Numero('\n');
  if (!l.bien() || suma != SumaDeRegistros(l.resto())) return std::nullopt;
  return LeeCuerpo(l);
}

std::optional<std::string> BytesDeConjunto(const fs::path& obra) {
  Descriptor d;
  Causa causa = AbreFichero(d, RutaConjunto(obra), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY);
  if (causa == ENOENT) return std::nullopt;
  std::string bytes;
  struct stat datos;
  if (causa == 0 && (::fstat(d.numero(), &datos) != 0 || !S_ISREG(datos.st_mode))) causa = EINVAL;
  if (causa == 0) causa = LeeBytes(d, kMaxConjunto, bytes);
  if (causa != 0) {
    throw ErrorFichero({txt::DiarioIlegible, {obra.string(), NombreDe(obra), TextoDeCausa(causa)}});
  }
  return bytes;
}

std::optional<Conjunto> ConjuntoPendiente(const std::optional<std::string>& bytes,
                                          const fs::path& obra, std::string_view contenido) {
  if (!bytes) return std::nullopt;
  auto conjunto = InterpretaConjunto(*bytes, obra);
  return conjunto && conjunto->EsAntes(contenido) ? std::move(conjunto) : std::nullopt;
}

std::vector<Mensaje> RecuperaConjunto(const fs::path& obra, std::string_view contenido) {
  const auto bytes = BytesDeConjunto(obra);
  const auto pendiente = ConjuntoPendiente(bytes, obra, contenido);
  std::vector<Mensaje> avisos;
  if (pendiente) avisos = Restaura(obra, *pendiente);
  if (bytes) Retira(obra, pendiente.has_value());
  QuitaRestos(obra);
  return avisos;
}

Causa EscribeConjunto(const fs::path& obra, const Conjunto& conjunto) {
  const fs::path ruta = RutaConjunto(obra);
  Causa causa = Escribe(ruta, TextoDeConjunto(conjunto), PermisosComo(obra));
  if (causa == 0) causa = SincronizaNombre(ruta);
  if (causa != 0) static_cast<void>(QuitaConjunto(obra));
  return causa;
}

// Removed and come back after a power cut it would undo a later save: either it is void for good,
// or its absence is.
Causa QuitaConjunto(const fs::path& obra) {
  const fs::path ruta = RutaConjunto(obra);
  Descriptor d;
  Causa nulo = AbreFichero(d, ruta, O_WRONLY | O_NOFOLLOW | O_NONBLOCK);
  if (nulo == ENOENT) return 0;
  if (nulo == 0) nulo = Trunca(d, 0);
  if (nulo == 0) nulo = SincronizaDatos(d);
  const Causa borrado = Borra(ruta);
  return nulo == 0 ? 0 : borrado;
}

Causa PreparaCompanera(const fs::path& obra, const Companera& c) {
  if (!c.bytes) return 0;
  return Prepara(SinEnlaces(RutaCompanera(obra, c.extension)), *c.bytes, PermisosComo(obra));
}

Causa PonCompanera(const fs::path& obra, const Companera& c, bool guardaAntes) {
  const fs::path ruta = RutaCompanera(obra, c.extension);
  if (!c.bytes && !guardaAntes) return Borra(ruta);
  const fs::path lugar = c.bytes ? SinEnlaces(ruta) : ruta;
  Causa causa = 0;
  if (guardaAntes && Hay(lugar)) causa = TomaNombre(lugar, RutaAntes(lugar));
  if (causa == 0 && c.bytes) causa = TomaNombre(RutaGrabando(lugar), lugar);
  return causa != 0 ? causa : SincronizaNombre(lugar);
}

// One that is as before already may not have reached the disk so.
Causa RestauraCompanera(const fs::path& obra, const Companera& c) {
  const fs::path ruta = RutaCompanera(obra, c.extension);
  if (!c.bytes) return Borra(ruta);
  const fs::path lugar = SinEnlaces(ruta);
  const bool esta = Tiene(lugar, *c.bytes);
  const fs::path antes = RutaAntes(lugar);
  const bool guardada = !esta && Tiene(antes, *c.bytes);  // it takes no room on a full disk
  Causa causa = 0;
  if (esta || guardada) causa = Sincroniza(esta ? lugar : antes);
  if (!esta && !guardada) causa = Prepara(lugar, *c.bytes, PermisosComo(obra));
  if (causa == 0 && !esta) causa = TomaNombre(guardada ? antes : RutaGrabando(lugar), lugar);
  return causa != 0 ? causa : SincronizaNombre(lugar);
}

void QuitaRestos(const fs::path& obra) {
  for (const auto extension : kExtensiones) {
    const fs::path ruta = RutaCompanera(obra, extension);
    for (const auto& lugar : {ruta, SinEnlaces(ruta)}) {
      for (const auto& resto : {RutaGrabando(lugar), RutaAntes(lugar)}) {
        if (Hay(resto)) static_cast<void>(BorraFichero(resto));
      }
    }
  }
}

}  // namespace zorbin
