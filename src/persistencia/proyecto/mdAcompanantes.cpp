#include "persistencia/proyecto/mdAcompanantes.h"

#include <chrono>
#include <thread>
#include <utility>

#include "base/mdContenido.h"
#include "base/textos.h"
#include "persistencia/disco/mdConjunto.h"
#include "persistencia/dpe/mdDpe.h"

namespace zorbin {

namespace {

namespace fs = std::filesystem;
using Fichero = FotoProyecto::Fichero;

constexpr int kIntentos = 50;
constexpr std::chrono::milliseconds kEspera{2};

bool Falta(const fs::path& ruta) {
  std::error_code error;
  return fs::symlink_status(ruta, error).type() == fs::file_type::not_found;
}

Fichero LeeBytesDpe(const fs::path& ruta) try {
  if (Falta(ruta)) return {};
  return FicheroRegistros(ruta, FicheroRegistros::Modo::Lectura).Contenido();
} catch (const ErrorFichero& error) {
  return error.mensaje();
}

Fichero LeeBytesZrx(const fs::path& ruta) {
  if (Falta(ruta)) return {};
  std::string bytes;
  if (const int causa = LeeContenido(ruta, kMaxBytesZrx, bytes)) {
    return Mensaje{txt::NoSeAbre, {ruta.string(), TextoDeCausa(causa)}};
  }
  return bytes;
}

FotoProyecto Saca(FicheroRegistros obra) {
  const fs::path ruta = obra.ruta();
  auto conjunto = BytesDeConjunto(ruta);
  return {std::move(obra), std::move(conjunto), LeeBytesDpe(RutaDpe(ruta)),
          LeeBytesZrx(RutaZrx(ruta))};
}

FotoProyecto Saca(const fs::path& ruta) {
  return Saca(FicheroRegistros(ruta, FicheroRegistros::Modo::Lectura));
}

bool Iguales(const Fichero& a, const Fichero& b) {
  if (a.index() != b.index()) return false;
  const auto* bytes = std::get_if<std::string>(&a);
  return !bytes || *bytes == std::get<std::string>(b);
}

bool Iguales(const FotoProyecto& a, const FotoProyecto& b) {
  return a.obra.Contenido() == b.obra.Contenido() && a.conjunto == b.conjunto &&
         Iguales(a.dpe, b.dpe) && Iguales(a.zrx, b.zrx);
}

// A companion of the save half done, in place of what lies on the disk.
void PonDeAntes(const Companera& c, FotoProyecto& foto) {
  Fichero& fichero = c.extension == kExtensionDpe ? foto.dpe : foto.zrx;
  fichero = c.bytes ? Fichero(*c.bytes) : Fichero();
}

// Hands the bytes to a reader. @return whether it refused them
template <class Lee>
bool SeNiega(const Fichero& fichero, std::vector<Mensaje>& avisos, const Lee& lee) try {
  if (const auto* mensaje = std::get_if<Mensaje>(&fichero)) throw ErrorFichero(*mensaje);
  if (const auto* bytes = std::get_if<std::string>(&fichero)) lee(*bytes);
  return false;
} catch (const ErrorFichero& error) {
  avisos.push_back(error.mensaje());
  return true;
}

Acompanantes Interpreta(const FotoProyecto& foto) {
  const fs::path& ruta = foto.obra.ruta();
  Acompanantes a;
  a.SinAjustes = SeNiega(foto.dpe, a.avisos, [&](const std::string& bytes) {
    a.ajustes = LeeAjustes(FicheroRegistros::EnMemoria(RutaDpe(ruta), bytes));
  });
  a.SinExtras = SeNiega(foto.zrx, a.avisos, [&](const std::string& bytes) {
    a.extras = ExtrasDeTexto(bytes, RutaZrx(ruta));
  });
  return a;
}

}  // namespace

// Two pictures that are the same were taken between two saves.
FotoProyecto LeeFoto(const fs::path& ruta) {
  FotoProyecto foto = Saca(ruta);
  std::error_code error;
  if (!fs::is_regular_file(ruta, error)) return foto;  // a pipe is read once
  for (int i = 0; i < kIntentos; ++i) {
    FotoProyecto otra = Saca(ruta);
    if (Iguales(foto, otra)) return foto;
    foto = std::move(otra);
    std::this_thread::sleep_for(kEspera);
  }
  throw ErrorFichero({txt::EscribiendoOtro, {ruta.string()}});
}

Acompanantes LeeAcompanantes(const FotoProyecto& foto) {
  const auto pendiente = ConjuntoPendiente(foto.conjunto, foto.obra.ruta(), foto.obra.Contenido());
  if (!pendiente) return Interpreta(foto);
  FotoProyecto antes{FicheroRegistros::EnMemoria(foto.obra.ruta()), {}, foto.dpe, foto.zrx};
  for (const auto& c : pendiente->antes) PonDeAntes(c, antes);
  return Interpreta(antes);
}

Acompanantes LeeAcompanantes(const FicheroRegistros& f) {
  return LeeAcompanantes(Saca(FicheroRegistros::EnMemoria(f.ruta(), f.Contenido())));
}

}  // namespace zorbin
