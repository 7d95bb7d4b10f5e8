#include "sesion/captura/mdCajon.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <algorithm>

#include "base/textos.h"
#include "persistencia/disco/mdCarpetaPropia.h"
#include "persistencia/disco/mdDescriptor.h"

namespace zorbin {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view kPrefijo = "borrador-";
constexpr std::string_view kExtension = ".json";
constexpr std::string_view kIlegible = ".ilegible";
constexpr std::string_view kAMedias = "-nuevo";
constexpr std::size_t kMaxLeido = 1'000'001;  // bytes; a draft is shorter
constexpr mode_t kSoloSuyo = 0600;

[[noreturn]] void Falla(int texto, const fs::path& ruta, Causa causa) {
  throw ErrorFichero({texto, {ruta.string(), TextoDeCausa(causa)}});
}

void Exige(Causa causa, const fs::path& ruta) {
  if (causa != 0) Falla(txt::BorradorSinGuardar, ruta, causa);
}

fs::path Con(fs::path ruta, std::string_view final) {
  ruta += final;
  return ruta;
}

bool EsBorrador(const fs::path& ruta) {
  const std::string nombre = ruta.filename().string();
  return nombre.starts_with(kPrefijo) && nombre.ends_with(kExtension);
}

std::optional<std::string> Contenido(const fs::path& ruta) {
  Descriptor d;
  std::string texto;
  struct stat datos;
  if (AbreFichero(d, ruta, O_RDONLY | O_NOFOLLOW | O_NONBLOCK) != 0 ||
      ::fstat(d.numero(), &datos) != 0 || !S_ISREG(datos.st_mode) ||
      LeeBytes(d, kMaxLeido, texto) != 0) {
    return std::nullopt;
  }
  return texto;
}

// "21/11/2026 09:30" as the days and hours follow each other.
std::string Cronologico(const std::string& cuando) {
  if (cuando.size() < 16) return {};
  return cuando.substr(6, 4) + cuando.substr(3, 2) + cuando.substr(0, 2) + cuando.substr(11);
}

}  // namespace

fs::path CarpetaBorradores() {
  return CarpetaPropia() / "borradores";
}

Cajon::Cajon(fs::path carpeta) : carpeta_(std::move(carpeta)) {
  const auto titular = EsteTitular();
  ruta_ = carpeta_ / (std::string(kPrefijo) + std::to_string(titular.proceso) + "-" +
                      std::to_string(titular.arranque) + std::string(kExtension));
}

void Cajon::Guarda(const std::string& texto) const {
  Exige(PreparaCarpeta(carpeta_), carpeta_);
  const auto nuevo = Con(ruta_, kAMedias);
  Descriptor d;
  Exige(AbreFichero(d, nuevo, O_WRONLY | O_CREAT | O_TRUNC | O_NOFOLLOW, kSoloSuyo), nuevo);
  Exige(EscribeBytes(d, texto, 0), nuevo);
  Exige(SincronizaDatos(d), nuevo);
  std::error_code error;
  fs::rename(nuevo, ruta_, error);
  Exige(error.value(), ruta_);
  Exige(SincronizaNombre(ruta_), ruta_);
}

void Cajon::Borra() const {
  static_cast<void>(BorraFichero(Con(ruta_, kAMedias)));  // one is only there after a full disk
  const Causa causa = BorraFichero(ruta_);
  if (causa != 0 && causa != ENOENT) Falla(txt::BorradorSinBorrar, ruta_, causa);
}

Hallazgo Cajon::Busca() const {
  Hallazgo hallazgo;
  std::error_code error;
  for (fs::directory_iterator i(carpeta_, error), fin; !error && i != fin; i.increment(error)) {
    const fs::path ruta = i->path();
    if (!EsBorrador(ruta) || ruta == ruta_) continue;
    const auto texto = Contenido(ruta);
    if (!texto) continue;  // taken by another program meanwhile, or not ours to read
    auto borrador = LeeBorrador(*texto);
    if (!borrador) {
      const auto aparte = Con(ruta, kIlegible);
      fs::rename(ruta, aparte, error);
      hallazgo.ilegibles.push_back(error ? ruta : aparte);
      error.clear();
    } else if (!SigueVivo(borrador->autor)) {
      hallazgo.borradores.push_back({ruta, std::move(*borrador)});
    }
  }
  std::sort(hallazgo.borradores.begin(), hallazgo.borradores.end(), [](auto& a, auto& b) {
    return Cronologico(a.borrador.cuando) > Cronologico(b.borrador.cuando);
  });
  return hallazgo;
}

bool Cajon::Toma(const fs::path& ruta) const {
  std::error_code error;
  fs::rename(ruta, ruta_, error);
  return !error;
}

void Cajon::Devuelve(const fs::path& ruta) const {
  std::error_code error;
  fs::rename(ruta_, ruta, error);
}

}  // namespace zorbin
