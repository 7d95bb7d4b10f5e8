#include "fallos/disco.h"

#include <sys/stat.h>

#include <algorithm>
#include <fstream>
#include <iterator>

#include "fallos/escenas.h"

namespace zorbin::fallos {

namespace {

constexpr std::size_t kSector = 512;  // bytes that a disk writes whole

std::string UltimoNombre(const char* ruta) {
  return fs::path(ruta).filename().string();
}

}  // namespace

Disco::Disco(const fs::path& carpeta) {
  for (const auto& f : fs::directory_iterator(carpeta)) {
    struct stat datos {};
    ::stat(f.path().c_str(), &datos);
    vivos_[f.path().filename().string()] = datos.st_ino;
    nodos_[datos.st_ino] = pruebas::Bytes(f.path());
  }
  nombres_ = vivos_;
}

void Disco::Muda(const fs::path& carpeta) {
  constexpr ino_t kSinNombre = ino_t{1} << 40;  // apart from those of the folder
  std::map<ino_t, ino_t> nuevo;
  for (const auto& [nodo, bytes] : nodos_) nuevo[nodo] = nodo + kSinNombre;
  for (const auto& [nombre, nodo] : vivos_) {
    struct stat datos {};
    ::stat((carpeta / nombre).c_str(), &datos);
    nuevo[nodo] = datos.st_ino;
  }
  Nodos nodos;
  for (auto& [nodo, bytes] : nodos_) nodos[nuevo.at(nodo)] = std::move(bytes);
  nodos_ = std::move(nodos);
  for (auto* nombres : {&nombres_, &vivos_}) {
    for (auto& [nombre, nodo] : *nombres) nodo = nuevo.at(nodo);
  }
  for (auto& p : pendientes_) {
    if (p.nodo != 0) p.nodo = nuevo[p.nodo];
  }
}

std::string Disco::NombreDe(ino_t nodo) const {
  const auto f = std::find_if(vivos_.begin(), vivos_.end(),
                              [&](const auto& par) { return par.second == nodo; });
  return f == vivos_.end() ? std::string{} : f->first;
}

void Disco::ApuntaEscritura(const fallos_suceso& s) {
  const std::string bytes(static_cast<const char*>(s.bytes), s.cuantos);
  const auto desde = static_cast<std::size_t>(s.desde);
  for (std::size_t i = 0; i < bytes.size();) {
    // Zeros after the end of a journal come or do not, and it is all the same.
    std::size_t cabe = kSector - (desde + i) % kSector;
    if (bytes.find_first_not_of('\0', i) == std::string::npos) cabe = bytes.size();
    Pendiente p;
    p.nombre = NombreDe(s.nodo);
    p.nodo = s.nodo;
    p.desde = desde + i;
    p.bytes = bytes.substr(i, cabe);
    i += p.bytes.size();
    pendientes_.push_back(std::move(p));
  }
}

void Disco::Apunta(const fallos_suceso& s) {
  Pendiente p;
  p.nodo = s.nodo;
  p.esNombre = true;
  switch (s.clase) {
    case SUCESO_ESCRIBE:
      return ApuntaEscritura(s);
    case SUCESO_TRUNCA:
      p.esNombre = false;
      p.esLargo = true;
      p.nombre = NombreDe(s.nodo);
      p.desde = static_cast<std::size_t>(s.desde);
      pendientes_.push_back(p);
      return;
    case SUCESO_SINCRONIZA:
      return Asienta([&](const Pendiente& x) { return !x.esNombre && x.nodo == s.nodo; });
    case SUCESO_SINCRONIZA_CARPETA:
      return Asienta([](const Pendiente& x) { return x.esNombre; });
    case SUCESO_CREA:
      nodos_[s.nodo].clear();  // a number that was another file's
      std::erase_if(pendientes_,
                    [&](const Pendiente& x) { return !x.esNombre && x.nodo == s.nodo; });
      p.nuevo = UltimoNombre(s.ruta);
      vivos_[p.nuevo] = s.nodo;
      break;
    case SUCESO_RENOMBRA:
      p.viejo = UltimoNombre(s.ruta);
      p.nuevo = UltimoNombre(s.destino);
      p.nodo = vivos_.at(p.viejo);
      vivos_.erase(p.viejo);
      vivos_[p.nuevo] = p.nodo;
      break;
    case SUCESO_BORRA:
      p.viejo = UltimoNombre(s.ruta);
      vivos_.erase(p.viejo);
      break;
    default:
      return;
  }
  p.nombre = p.nuevo.empty() ? p.viejo : p.nuevo;
  pendientes_.push_back(p);
}

void Disco::Hace(const Pendiente& p, Nodos& nodos, Nombres& nombres) {
  if (p.esNombre) {
    if (!p.viejo.empty()) nombres.erase(p.viejo);
    if (!p.nuevo.empty()) nombres[p.nuevo] = p.nodo;
    return;
  }
  std::string& contenido = nodos[p.nodo];
  if (p.esLargo) {
    contenido.resize(p.desde);
    return;
  }
  contenido.resize(std::max(contenido.size(), p.desde + p.bytes.size()));
  contenido.replace(p.desde, p.bytes.size(), p.bytes);
}

void Disco::Asienta(const std::function<bool(const Pendiente&)>& cuales) {
  for (const auto& p : pendientes_) {
    if (cuales(p)) Hace(p, nodos_, nombres_);
  }
  std::erase_if(pendientes_, cuales);
}

std::map<std::string, std::string> Disco::TrasApagon(
    const std::function<bool(std::size_t)>& llega) const {
  Nodos nodos = nodos_;
  Nombres nombres = nombres_;
  for (std::size_t i = 0; i < pendientes_.size(); ++i) {
    if (llega(i)) Hace(pendientes_[i], nodos, nombres);
  }
  std::map<std::string, std::string> ficheros;
  for (const auto& [nombre, nodo] : nombres) ficheros[nombre] = nodos[nodo];
  return ficheros;
}

void PonFicheros(const fs::path& carpeta, const std::map<std::string, std::string>& ficheros) {
  for (const auto& f : fs::directory_iterator(carpeta)) {
    if (!ficheros.contains(f.path().filename().string())) fs::remove(f.path());
  }
  for (const auto& [nombre, bytes] : ficheros) {
    std::ofstream(carpeta / nombre, std::ios::binary) << bytes;
  }
}

}  // namespace zorbin::fallos
