#include "fallos/escenas.h"

#include "fallos/fallos.h"

#include <algorithm>
#include <fstream>

namespace zorbin::fallos {

namespace {

Catalogo& Textos() {
  static Catalogo textos = Catalogo::Lee(ZORBIN_FUENTES "recursos/textos");
  return textos;
}

const TablasCatalogo& Tablas() {
  static const TablasCatalogo tablas = LeeTablas(ZORBIN_FUENTES "recursos/tablas");
  return tablas;
}

void ConMuestra(const fs::path& carpeta) {
  fs::copy_file(ZORBIN_FUENTES "muestras/acequia.zrb", carpeta / "obra.zrb");
}

// Entries of two Tramos, one of them free.
void ConAjustes(const fs::path& carpeta) {
  FicheroRegistros f(carpeta / "obra.dpe", FicheroRegistros::Modo::LecturaEscritura);
  EscribeAjustes(f, {{6, 1, 2.5, {20, 3, 18}}, {}, {8, 2, 2, {1, 2, 3}}, {9, 1, 2, {4, 5, 6}}},
                 ',');
}

void AbreLaObra(Sesion& s) {
  AbreObra(s.c, s.carpeta / "obra.zrb");
}

// A save that the disk refuses is told in a question: into another file? No.
bool GrabaLaObra(Sesion& s) {
  s.voz.Olvida();
  s.voz.responde = false;
  const bool grabado = Graba(s.c);
  s.queja.clear();
  if (!grabado) s.queja = s.voz.preguntas.empty() ? s.voz.Ultimo() : s.voz.preguntas.back().texto;
  return grabado;
}

bool GrabaTramoDos(Sesion& s) {
  s.EligeElTramo("2");
  s.Teclea(Ed::edDescriTramo, "Descripción cambiada del Tramo 2");
  s.Teclea(Ed::edGr0, "1,95");
  s.Teclea(Ed::edGamaB, "1,55");
  return GrabaLaObra(s);
}

bool GrabaTramoCinco(Sesion& s) {
  s.EligeElTramo("5");
  s.Teclea(Ed::edDescriTramo, std::string(120, 'x'));
  return GrabaLaObra(s);
}

bool GrabaTramoNuevo(Sesion& s) {
  if (!s.c.EnAltas()) {
    NuevoTramo(s.c);
    s.Teclea(Ed::edDescriTramo, "Tramo nuevo");
    s.Teclea(Ed::edDi0, "1,2");
  }
  return GrabaLaObra(s);
}

bool GrabaCabecera(Sesion& s) {
  s.Teclea(Ed::edCliente, "Otro cliente");
  s.Teclea(Ed::edObra, "Otra obra");
  return GrabaLaObra(s);
}

void ObraNueva(Sesion& s) {
  NuevaObra(s.c);
  s.voz.fichero = (s.carpeta / "obra.zrb").string();
  s.Teclea(Ed::edPrsM1, "0,5");
}

template <class Accion>
bool EnLosAjustes(Sesion& s, Accion accion) {
  try {
    if (!s.dpe) s.dpe.emplace(s.carpeta / "obra.dpe", ',');
    accion(*s.dpe);
    s.queja.clear();
    return true;
  } catch (const ErrorFichero& error) {
    s.queja = Textos().Compone(error.mensaje());
    return false;
  }
}

bool PisaAjuste(Sesion& s) {
  return EnLosAjustes(s, [](FicheroDpe& f) {
    f.GrabaUnTramoPresion({9, 1, 2, {14, 15, 16}}, false);
  });
}

bool AlargaAjustes(Sesion& s) {
  return EnLosAjustes(s, [](FicheroDpe& f) { f.GrabaUnTramoPresion({3, 4, 2, {1, 1, 1}}, false); });
}

bool BorraAjustes(Sesion& s) {
  return EnLosAjustes(s, [](FicheroDpe& f) { f.BorraTramo(1); });
}

bool EstrenaAjustes(Sesion& s) {
  return EnLosAjustes(s, [](FicheroDpe&) {});
}

}  // namespace

Sesion::Sesion(const fs::path& donde) : carpeta(donde), c(e, Textos(), Tablas(), voz, ',') {
  NuevaObra(c);
}

void Sesion::Teclea(Ed campo, const std::string& texto) {
  Entra(c, campo);
  Cambia(c, campo, texto);
  Sale(c, campo);
}

void Sesion::EligeElTramo(const std::string& numero) {
  if (c.e.tramo.NumeroTramo != std::stoi(numero)) Teclea(Ed::edTramo, numero);
}

const std::vector<Escena>& Escenas() {
  static const auto nada = [](const fs::path&) {};
  static const std::vector<Escena> escenas{
      {"header of the Obra", "obra.zrb", ConMuestra, AbreLaObra, {GrabaCabecera}},
      {"a Tramo", "obra.zrb", ConMuestra, AbreLaObra, {GrabaTramoDos}},
      {"a new Tramo", "obra.zrb", ConMuestra, AbreLaObra, {GrabaTramoNuevo}},
      {"two Tramos and a new one",
       "obra.zrb",
       ConMuestra,
       AbreLaObra,
       {GrabaTramoDos, GrabaTramoCinco, GrabaTramoNuevo}},
      {"a new Obra, then its header",
       "obra.zrb",
       nada,
       ObraNueva,
       {GrabaTramoNuevo, GrabaCabecera}},
      {"adjustments: one changed, one more, those of a Tramo wiped",
       "obra.dpe",
       ConAjustes,
       [](Sesion& s) { EstrenaAjustes(s); },
       {PisaAjuste, AlargaAjustes, BorraAjustes}},
      {"the first adjustment of an Obra",
       "obra.dpe",
       nada,
       [](Sesion&) {},
       {EstrenaAjustes, AlargaAjustes}}};
  return escenas;
}

Bytes BytesDe(const fs::path& ruta) {
  std::ifstream f(ruta, std::ios::binary);
  if (!f) return std::nullopt;
  return std::string(std::istreambuf_iterator<char>(f), {});
}

std::vector<Bytes> Estados(const Escena& escena, const fs::path& carpeta) {
  Prepara(escena, carpeta);
  std::vector<Bytes> estados{BytesDe(carpeta / escena.fichero)};
  Sesion s(carpeta);
  escena.abre(s);
  for (const auto& graba : escena.grabados) {
    if (!graba(s)) throw std::runtime_error(escena.nombre + ": " + s.queja);
    estados.push_back(BytesDe(carpeta / escena.fichero));
  }
  return estados;
}

void Prepara(const Escena& escena, const fs::path& carpeta) {
  fs::remove_all(carpeta);
  fs::create_directories(carpeta);
  escena.prepara(carpeta);
}

Bytes AbreYCierra(const Escena& escena, const fs::path& carpeta) {
  const fs::path ruta = carpeta / escena.fichero;
  if (fs::exists(ruta)) FicheroRegistros(ruta, FicheroRegistros::Modo::LecturaEscritura);
  return BytesDe(ruta);
}

int Indice(const std::vector<Bytes>& estados, const Bytes& bytes) {
  const auto i = std::find(estados.begin(), estados.end(), bytes);
  return i == estados.end() ? -1 : static_cast<int>(i - estados.begin());
}

Ficheros FicherosDe(const fs::path& carpeta) {
  Ficheros ficheros;
  for (const auto& f : fs::directory_iterator(carpeta)) {
    ficheros[f.path().filename().string()] = *BytesDe(f.path());
  }
  return ficheros;
}

std::string Nombres(const fs::path& carpeta) {
  std::string todos;
  for (const auto& [nombre, bytes] : FicherosDe(carpeta)) todos += nombre + " ";
  return todos;
}

CarpetaReal::CarpetaReal() {
  Sana();
}

void CarpetaReal::Sana() const {
  fallos_arma(ruta().c_str(), 0, FALLO_NINGUNO, 0);
}

CarpetaReal::~CarpetaReal() {
  fallos_desarma();
}

}  // namespace zorbin::fallos
