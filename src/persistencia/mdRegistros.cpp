#include "persistencia/mdRegistros.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <system_error>

#include "core/mdTextos.h"
#include "recursos/mdAnsi.h"
#include "recursos/textos.h"

namespace zorbin {

namespace {

// Records that the 16-bit arithmetic of the format can name.
constexpr std::size_t kMaxRegistros = 32767;

std::string CausaDelSistema() {
  return std::generic_category().message(errno);
}

bool SoloSeLee(int error) {
  return error == EACCES || error == EPERM || error == EROFS;
}

std::size_t Desde(int numero) {
  return static_cast<std::size_t>(numero - 1) * kBytesRegistro;
}

}  // namespace

FicheroRegistros::FicheroRegistros(std::filesystem::path ruta, Modo modo) : ruta_(std::move(ruta)) {
  std::error_code error;
  if (std::filesystem::is_directory(ruta_, error)) {
    throw ErrorFichero({txt::NoSeAbre, {Nombre(), std::generic_category().message(EISDIR)}});
  }
  errno = 0;
  auto banderas = std::ios::binary | std::ios::in;
  if (modo != Modo::Lectura) {
    banderas |= std::ios::out;
    if (!std::filesystem::exists(ruta_, error)) std::ofstream(ruta_, std::ios::binary);
  }
  fichero_.open(ruta_, banderas);
  if (!fichero_ && modo == Modo::EscrituraSiPuede && SoloSeLee(errno)) {
    porQueNo_ = CausaDelSistema();
    fichero_.open(ruta_, std::ios::binary | std::ios::in);
  }
  if (!fichero_) throw ErrorFichero({txt::NoSeAbre, {Nombre(), CausaDelSistema()}});
  contenido_.resize(kMaxRegistros * kBytesRegistro);
  fichero_.read(contenido_.data(), static_cast<std::streamsize>(contenido_.size()));
  if (fichero_.bad()) throw ErrorFichero({txt::NoSeAbre, {Nombre(), CausaDelSistema()}});
  contenido_.resize(static_cast<std::size_t>(fichero_.gcount()));
}

int FicheroRegistros::UltimoRegistro() const {
  return static_cast<int>((contenido_.size() + kBytesRegistro - 1) / kBytesRegistro);
}

std::string FicheroRegistros::LeeRegistro(int numero) const {
  const auto desde = Desde(numero);
  if (desde >= contenido_.size()) return {};
  const auto datos = std::string_view(contenido_).substr(desde, kBytesRegistro);
  if (datos.size() < 2) {
    throw ErrorFichero(
        {txt::RegistroCortado, {Nombre(), TextoEntero(numero), TextoEntero(2), TextoEntero(1)}});
  }
  const int largo =
      static_cast<unsigned char>(datos[0]) | (static_cast<unsigned char>(datos[1]) << 8);
  if (largo > kMaxTexto) {
    throw ErrorFichero(
        {txt::LongitudExcesiva, {Nombre(), TextoEntero(numero), TextoEntero(largo)}});
  }
  const int hay = static_cast<int>(datos.size());
  if (hay < 2 + largo) {
    throw ErrorFichero({txt::RegistroCortado,
                        {Nombre(), TextoEntero(numero), TextoEntero(2 + largo), TextoEntero(hay)}});
  }
  const auto texto = DeAnsi(datos.substr(2, static_cast<std::size_t>(largo)));
  if (!texto) throw ErrorFichero({txt::ByteSinCaracter, {Nombre(), TextoEntero(numero)}});
  return *texto;
}

void FicheroRegistros::EscribeRegistro(int numero, const std::string& ansi) {
  if (ansi.size() > kMaxTexto) {
    throw ErrorFichero(
        {txt::TextoLargo,
         {Nombre(), TextoEntero(numero), TextoEntero(static_cast<int>(ansi.size()))}});
  }
  if (!porQueNo_.empty()) throw ErrorFichero({txt::NoSeEscribe, {Nombre(), porQueNo_}});
  std::array<char, kBytesRegistro> datos{};
  datos[0] = static_cast<char>(ansi.size() & 0xFF);
  datos[1] = static_cast<char>(ansi.size() >> 8);
  std::copy(ansi.begin(), ansi.end(), datos.begin() + 2);
  const auto desde = Desde(numero);
  fichero_.clear();
  errno = 0;
  fichero_.seekp(static_cast<std::streamoff>(desde));
  fichero_.write(datos.data(), datos.size());
  if (!fichero_) throw ErrorFichero({txt::NoSeEscribe, {Nombre(), CausaDelSistema()}});
  if (contenido_.size() < desde + kBytesRegistro) contenido_.resize(desde + kBytesRegistro, '\0');
  std::copy(datos.begin(), datos.end(), contenido_.begin() + static_cast<std::ptrdiff_t>(desde));
}

void FicheroRegistros::Vacia() {
  fichero_.clear();
  errno = 0;
  if (!fichero_.flush()) throw ErrorFichero({txt::NoSeEscribe, {Nombre(), CausaDelSistema()}});
}

std::string BytesDeCampo(const std::string& fichero, const std::string& campo,
                         std::string_view utf8) {
  const auto ansi = AAnsi(utf8);
  if (!ansi.sobra.empty()) {
    throw ErrorFichero({txt::CaracterImposible, {fichero, campo, ansi.sobra}});
  }
  if (ansi.bytes.size() > kMaxTexto) {
    throw ErrorFichero(
        {txt::TextoLargo, {fichero, campo, TextoEntero(static_cast<int>(ansi.bytes.size()))}});
  }
  return ansi.bytes;
}

}  // namespace zorbin
