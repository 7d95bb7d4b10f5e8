#include "persistencia/registros/mdRegistros.h"

#include <algorithm>
#include <cerrno>
#include <system_error>
#include <utility>

#include "base/mdAnsi.h"
#include "base/mdTextos.h"
#include "base/textos.h"
#include "persistencia/disco/mdConjunto.h"
#include "persistencia/disco/mdRecupera.h"

namespace zorbin {

FicheroRegistros::FicheroRegistros(std::filesystem::path ruta, Modo modo, PideCerrojo pide)
    : ruta_(std::move(ruta)) {
  if (modo == Modo::LecturaEscritura) {
    disco_ = std::make_unique<FicheroSeguro>(ruta_, pide);
    avisos_ = disco_->avisos();
    for (auto& aviso : RecuperaConjunto(ruta_, Contenido())) {
      const bool dicho = std::ranges::count(avisos_, aviso.texto, &Mensaje::texto) > 0;
      if (!dicho) avisos_.push_back(std::move(aviso));
    }
    return;
  }
  auto leido = LeeSinEscribir(ruta_);
  leido_ = std::move(leido.bytes);
  avisos_ = std::move(leido.avisos);
}

FicheroRegistros FicheroRegistros::EnMemoria(std::filesystem::path nombre, std::string contenido) {
  FicheroRegistros f(std::move(nombre));
  f.leido_ = std::move(contenido);
  f.enMemoria_ = true;
  return f;
}

void FicheroRegistros::PreparaGrabado() {
  if (disco_) disco_->PreparaGrabado();
}

int FicheroRegistros::UltimoRegistro() const {
  const auto enFichero = (Contenido().size() + kBytesRegistro - 1) / kBytesRegistro;
  const int pendiente = pendientes_.empty() ? 0 : pendientes_.rbegin()->first;
  return std::max(static_cast<int>(enFichero), pendiente);
}

// As far as the file has them.
std::string_view FicheroRegistros::Bytes(int registro) const {
  const auto pendiente = pendientes_.find(registro);
  if (pendiente != pendientes_.end()) {
    return {pendiente->second.data(), pendiente->second.size()};
  }
  if (Desde(registro) >= Contenido().size()) return {};
  return std::string_view(Contenido()).substr(Desde(registro), kBytesRegistro);
}

std::string FicheroRegistros::LeeRegistro(int numero) const {
  const std::string_view datos = Bytes(numero);
  if (datos.empty()) return {};
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
  if (SoloLectura()) throw ErrorFichero({txt::SoloLecturaNoGraba, {Nombre()}});
  if (ansi.size() > kMaxTexto) {
    throw ErrorFichero(
        {txt::TextoLargo,
         {Nombre(), TextoEntero(numero), TextoEntero(static_cast<int>(ansi.size()))}});
  }
  Bloque datos{};
  datos[0] = static_cast<char>(ansi.size() & 0xFF);
  datos[1] = static_cast<char>(ansi.size() >> 8);
  std::copy(ansi.begin(), ansi.end(), datos.begin() + 2);
  Pon(numero, datos);
}

void FicheroRegistros::CopiaRegistros(const FicheroRegistros& de, int primero, int ultimo) {
  for (int numero = primero; numero <= std::min(ultimo, de.UltimoRegistro()); ++numero) {
    Bloque datos{};
    std::ranges::copy(de.Bytes(numero), datos.begin());
    Pon(numero, datos);
  }
}

void FicheroRegistros::Pon(int numero, const Bloque& datos) {
  const auto [lugar, nuevo] = pendientes_.try_emplace(numero, datos);
  if (transacciones_ > 0) {
    anteriores_.push_back({numero, nuevo ? std::nullopt : std::optional(lugar->second)});
  }
  lugar->second = datos;
}

bool FicheroRegistros::Cambia() const {
  return std::ranges::any_of(pendientes_, [this](const auto& par) {
    const auto desde = std::min(Desde(par.first), Contenido().size());
    const auto hay = std::string_view(Contenido()).substr(desde, kBytesRegistro);
    return hay != std::string_view(par.second.data(), par.second.size());
  });
}

void FicheroRegistros::Asienta() {
  if (disco_) disco_->Asienta();
}

void FicheroRegistros::Vacia() {
  if (transacciones_ == 0) Graba();
}

void FicheroRegistros::Graba() {
  const Bloques bloques = std::exchange(pendientes_, {});
  anteriores_.clear();
  if (bloques.empty()) return;
  if (disco_) return disco_->Graba(bloques);
  leido_.resize(std::max(leido_.size(), Desde(bloques.rbegin()->first + 1)));
  for (const auto& [numero, b] : bloques)
    leido_.replace(Desde(numero), b.size(), b.data(), b.size());
}

// The records that wait are those of a moment before.
void FicheroRegistros::VuelveA(std::size_t lugar) {
  for (; anteriores_.size() > lugar; anteriores_.pop_back()) {
    const auto& [numero, bloque] = anteriores_.back();
    if (bloque) {
      pendientes_[numero] = *bloque;
    } else {
      pendientes_.erase(numero);
    }
  }
}

Transaccion::Transaccion(FicheroRegistros& f) : f_(f), lugar_(f.anteriores_.size()) {
  ++f_.transacciones_;
}

Transaccion::~Transaccion() {
  if (!abierta_) return;
  --f_.transacciones_;
  f_.VuelveA(lugar_);
}

void Transaccion::Confirma() {
  abierta_ = false;
  --f_.transacciones_;
  f_.Vacia();
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
