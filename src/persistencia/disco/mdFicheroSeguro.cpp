#include "persistencia/disco/mdFicheroSeguro.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>

#include "base/mdTextos.h"
#include "base/textos.h"
#include "persistencia/disco/mdRecupera.h"
#include "persistencia/disco/mdRestos.h"

namespace zorbin {

namespace {

namespace fs = std::filesystem;

constexpr int kIntentosAbrir = 5;
constexpr mode_t kBitsDePermiso = 0666;

ErrorFichero Error(int texto, const std::string& nombre, Causa causa) {
  return ErrorFichero({texto, {nombre, TextoDeCausa(causa)}});
}

bool EsDePermisos(Causa causa) {
  return causa == EACCES || causa == EPERM || causa == EROFS;
}

Mensaje DeTitular(int texto, const std::string& nombre, const Titular& t) {
  return {texto, {nombre, t.usuario, t.equipo, std::to_string(t.proceso), t.desde}};
}

SoloParaLeer Ocupado(const std::string& nombre, const std::optional<Titular>& titular) {
  // A mark of a process of this machine that is gone was left by someone else.
  if (!titular || (EsDeEsteEquipo(*titular) && !SigueVivo(*titular))) {
    return {{txt::OcupadoPorAlguien, {nombre}}, SoloParaLeer::Motivo::Ocupado};
  }
  return {DeTitular(txt::OcupadoPor, nombre, *titular), SoloParaLeer::Motivo::Ocupado, titular};
}

// Through links as far as the file exists; a file that is to be made lies in its folder.
fs::path SinEnlaces(const fs::path& ruta) {
  std::error_code error;
  fs::path real = fs::canonical(ruta, error);
  if (!error) return real;
  if (error != std::errc::no_such_file_or_directory) {
    throw Error(txt::NoSeAbre, ruta.string(), error.value());
  }
  const fs::path carpeta = ruta.has_parent_path() ? ruta.parent_path() : fs::path(".");
  real = fs::canonical(carpeta, error);
  return error ? ruta : real / ruta.filename();
}

std::string Contenido(const Bloques& bloques) {
  std::string bytes(bloques.empty() ? 0 : Desde(bloques.rbegin()->first + 1), '\0');
  for (const auto& [numero, b] : bloques)
    bytes.replace(Desde(numero), b.size(), b.data(), b.size());
  return bytes;
}

}  // namespace

// ---------------------------------------------------------------------------------------------
// Opening

FicheroSeguro::FicheroSeguro(const fs::path& ruta, PideCerrojo pide)
    : nombre_(ruta.string()), ruta_(SinEnlaces(ruta)) {
  std::error_code error;
  if (fs::is_directory(ruta_, error)) throw Error(txt::NoSeAbre, nombre_, EISDIR);
  RecogeRestos(ruta_.parent_path());
  bool existe = false;
  if (const Causa causa = HayAlgo(ruta_, existe)) throw Error(txt::NoSeAbre, nombre_, causa);
  if (existe) {
    AbreExistente(pide);
  } else {
    AbreNuevo(pide);
  }
  marca_.emplace(ruta_);
  diario_.emplace(ruta_, ConCerrojo());
  AvisaDeCarpeta();
}

Provisional::~Provisional() {
  // The disk may refuse it: the next file of that name takes it over.
  if (hay()) static_cast<void>(BorraFichero(ruta_));
}

void FicheroSeguro::AbreExistente(PideCerrojo pide) {
  for (int i = 0; !d_.abierto(); ++i) {
    const Causa causa = AbreFichero(d_, ruta_, O_RDWR | O_NONBLOCK | O_NOCTTY);
    if (EsDePermisos(causa) && Permite(ruta_, R_OK)) {
      throw SoloParaLeer({txt::SinPermiso, {nombre_, TextoDeCausa(causa)}},
                         SoloParaLeer::Motivo::SinPermiso);
    }
    if (causa != 0) throw Error(txt::NoSeAbre, nombre_, causa);
    TomaOSeNiega(pide);
    CompruebaNombre(ruta_, i);
  }
  struct stat datos;
  if (::fstat(d_.numero(), &datos) != 0) throw Error(txt::NoSeAbre, nombre_, errno);
  if (!S_ISREG(datos.st_mode)) throw ErrorFichero({txt::NoEsCorriente, {nombre_}});
  permisos_ = datos.st_mode & kBitsDePermiso;
  for (auto& aviso : Recupera(d_, ruta_, nombre_)) avisos_.push_back(std::move(aviso));
  if (::fstat(d_.numero(), &datos) != 0) throw Error(txt::NoSeAbre, nombre_, errno);
  largo_ = static_cast<std::uint64_t>(datos.st_size);
  if (const Causa causa = LeeBytes(d_, kMaxContenido, contenido_)) {
    throw Error(txt::ErrorDeLectura, nombre_, causa);
  }
  suma_ = SumaDeRegistros(contenido_);
}

// The file takes its name when its first save is on the disk: nobody ever finds half of it.
void FicheroSeguro::AbreNuevo(PideCerrojo pide) {
  const fs::path provisional = RutaProvisional(ruta_);
  for (int i = 0; !d_.abierto(); ++i) {
    const Causa causa = AbreFichero(d_, provisional, O_RDWR | O_CREAT | O_NOFOLLOW | O_NONBLOCK);
    if (causa != 0) throw Error(txt::NoSeAbre, nombre_, causa);
    TomaOSeNiega(pide);
    CompruebaNombre(provisional, i);
  }
  provisional_.Pon(provisional);
  for (auto& aviso : RetiraDiario(ruta_, nombre_)) avisos_.push_back(std::move(aviso));
}

// Another program may have put another file in its place before the lock was ours.
void FicheroSeguro::CompruebaNombre(const fs::path& ruta, int intento) {
  bool mismo = false;
  if (const Causa causa = EsElMismo(d_, ruta, mismo)) throw Error(txt::NoSeAbre, nombre_, causa);
  if (!mismo && intento < kIntentosAbrir) d_.Cierra();
}

void FicheroSeguro::TomaOSeNiega(PideCerrojo pide) {
  cerrojo_ = TomaCerrojo(d_, pide);
  const auto titular = cerrojo_ == Cerrojo::Tomado ? std::nullopt : LeeMarca(ruta_);
  const bool vivo = titular && SigueVivo(*titular);
  if (cerrojo_ == Cerrojo::Ocupado || vivo) throw Ocupado(nombre_, titular);
  if (cerrojo_ == Cerrojo::Tomado) return;
  const bool deOtroEquipo = titular && !EsDeEsteEquipo(*titular);
  avisos_ = {deOtroEquipo ? DeTitular(txt::SinCerrojosYMarca, nombre_, *titular)
                          : Mensaje{txt::SinCerrojos, {nombre_}}};
}

void FicheroSeguro::AvisaDeCarpeta() {
  const fs::path carpeta = ruta_.parent_path();
  if (Permite(carpeta, W_OK)) return;
  avisos_.push_back({txt::CarpetaCerrada, {nombre_, carpeta.string()}});
}

// ---------------------------------------------------------------------------------------------
// Saving

void FicheroSeguro::PreparaGrabado() {
  diarioListo_ = true;
  if (!provisional_.hay()) static_cast<void>(diario_->Prepara(permisos_));
}

void FicheroSeguro::Graba(const Bloques& bloques) {
  if (provisional_.hay()) return GrabaNuevo(bloques);
  DeshacePendiente();
  CompruebaQueSigueAhi();
  FijaNombre();
  const Cambios cambios = CalculaCambios(contenido_, largo_, suma_, bloques);
  if (cambios.registros.empty()) return;
  GrabaCambios(cambios);
  const bool mismoLargo = largo_ == cambios.largoDespues;
  largo_ = cambios.largoDespues;
  if (contenido_.size() < largo_) contenido_.resize(std::min<std::size_t>(largo_, kMaxContenido));
  for (const auto& r : cambios.registros) {
    contenido_.replace(Desde(r.numero), r.despues.size(), r.despues.data(), r.despues.size());
  }
  suma_ = mismoLargo ? SumaDespues(cambios) : SumaDeRegistros(contenido_);
}

void FicheroSeguro::Asienta() {
  DeshacePendiente();
  FijaNombre();
}

void FicheroSeguro::GrabaCambios(const Cambios& cambios) {
  if (const Causa causa = diario_->Escribe(cambios, permisos_)) {
    diario_->Anula();
    throw ErrorFichero({txt::SinDiario, {nombre_, diario_->ruta().string(), TextoDeCausa(causa)}});
  }
  if (const Causa causa = EscribeDespues(d_, cambios)) Deshace(cambios, causa);
  diario_->Anula();
}

void FicheroSeguro::Deshace(const Cambios& cambios, Causa causa) {
  const Causa otra = EscribeAntes(d_, cambios);
  if (otra == 0) {
    diario_->Anula();
    throw Error(txt::NadaGrabado, nombre_, causa);
  }
  porDeshacer_ = cambios;
  diario_->Conserva(true);
  throw ErrorFichero(
      {txt::GrabadoEnDuda,
       {nombre_, TextoDeCausa(causa), TextoDeCausa(otra), diario_->ruta().string()}});
}

void FicheroSeguro::DeshacePendiente() {
  if (!porDeshacer_) return;
  if (const Causa causa = EscribeAntes(d_, *porDeshacer_)) {
    throw ErrorFichero(
        {txt::NoSeDeshace, {nombre_, TextoDeCausa(causa), diario_->ruta().string()}});
  }
  porDeshacer_.reset();
  diario_->Conserva(false);
}

void FicheroSeguro::CompruebaQueSigueAhi() const {
  bool mismo = false;
  if (const Causa causa = EsElMismo(d_, ruta_, mismo))
    throw Error(txt::NadaGrabado, nombre_, causa);
  if (!mismo) throw ErrorFichero({txt::YaNoEsta, {nombre_}});
  if (!Permite(ruta_, W_OK)) throw Error(txt::NadaGrabado, nombre_, errno);
  bool igual = false;
  if (const Causa causa = ComparaBytes(d_, kMaxContenido, contenido_, igual)) {
    throw Error(txt::ErrorDeLectura, nombre_, causa);
  }
  if (!igual) throw ErrorFichero({txt::CambiadoPorOtro, {nombre_}});
}

void FicheroSeguro::GrabaNuevo(const Bloques& bloques) {
  const std::string bytes = Contenido(bloques);
  Causa causa = EscribeBytes(d_, bytes, 0);
  if (causa == 0) causa = Trunca(d_, bytes.size());
  if (causa == 0) causa = SincronizaDatos(d_);
  if (causa == 0) causa = PonNombre(provisional_.ruta(), ruta_);
  if (causa == EEXIST) throw ErrorFichero({txt::NombreYaTomado, {nombre_}});
  if (causa != 0) throw Error(txt::NadaGrabado, nombre_, causa);
  provisional_.Olvida();
  contenido_ = bytes;
  largo_ = bytes.size();
  suma_ = SumaDeRegistros(contenido_);
  nombrePorSincronizar_ = true;
  FijaNombre();
  if (diarioListo_) PreparaGrabado();
}

void FicheroSeguro::FijaNombre() {
  if (!nombrePorSincronizar_) return;
  if (const Causa causa = SincronizaNombre(ruta_)) throw Error(txt::NombreEnDuda, nombre_, causa);
  nombrePorSincronizar_ = false;
}

}  // namespace zorbin
