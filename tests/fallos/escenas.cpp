#include "fallos/escenas.h"

#include "fallos/fallos.h"

#include <algorithm>
#include <set>

#include "comun/proyecto.h"
#include "persistencia/disco/mdConjunto.h"

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
  static const std::vector<Escena> solas{
      {"header of the Obra", "obra.zrb", ConMuestra, AbreLaObra, {GrabaCabecera}, 120},
      {"a Tramo", "obra.zrb", ConMuestra, AbreLaObra, {GrabaTramoDos}, 180},
      {"a new Tramo", "obra.zrb", ConMuestra, AbreLaObra, {GrabaTramoNuevo}, 140},
      {"two Tramos and a new one",
       "obra.zrb",
       ConMuestra,
       AbreLaObra,
       {GrabaTramoDos, GrabaTramoCinco, GrabaTramoNuevo},
       380},
      {"a new Obra, then its header",
       "obra.zrb",
       nada,
       ObraNueva,
       {GrabaTramoNuevo, GrabaCabecera},
       310},
      {"adjustments: one changed, one more, those of a Tramo wiped",
       "obra.dpe",
       ConAjustes,
       [](Sesion& s) { EstrenaAjustes(s); },
       {PisaAjuste, AlargaAjustes, BorraAjustes},
       330},
      {"the first adjustment of an Obra",
       "obra.dpe",
       nada,
       [](Sesion&) {},
       {EstrenaAjustes, AlargaAjustes},
       280}};
  static const std::vector<Escena> escenas = [] {
    auto todas = solas;
    todas.insert(todas.end(), EscenasDeConjunto().begin(), EscenasDeConjunto().end());
    return todas;
  }();
  return escenas;
}

std::vector<Ficheros> Estados(const Escena& escena, const fs::path& carpeta) {
  Prepara(escena, carpeta);
  std::vector<Ficheros> estados{EstadoDe(carpeta)};
  Sesion s(carpeta);
  escena.abre(s);
  for (const auto& graba : escena.grabados) {
    if (!graba(s)) throw std::runtime_error(escena.nombre + ": " + s.queja);
    estados.push_back(EstadoDe(carpeta));
  }
  return estados;
}

void Prepara(const Escena& escena, const fs::path& carpeta) {
  fs::remove_all(carpeta);
  fs::create_directories(carpeta);
  escena.prepara(carpeta);
}

Ficheros AbreYCierra(const Escena& escena, const fs::path& carpeta) {
  const fs::path ruta = carpeta / escena.fichero;
  std::error_code error;
  if (fs::exists(ruta, error) || fs::exists(RutaConjunto(ruta), error)) {
    FicheroRegistros(ruta, FicheroRegistros::Modo::LecturaEscritura);
  }
  return EstadoDe(carpeta);
}

std::string Leido(const Escena& escena, const fs::path& carpeta) {
  const fs::path ruta = carpeta / escena.fichero;
  return ruta.extension() == ".zrb" && fs::exists(ruta) ? pruebas::Resumido(ruta) : std::string{};
}

int Indice(const std::vector<Ficheros>& estados, const Ficheros& ficheros) {
  const auto i = std::find(estados.begin(), estados.end(), ficheros);
  return i == estados.end() ? -1 : static_cast<int>(i - estados.begin());
}

Ficheros EstadoDe(const fs::path& carpeta) {
  Ficheros ficheros = FicherosDe(carpeta);
  std::erase_if(ficheros, [](const auto& par) {
    return !std::set<std::string>{".zrb", ".dpe", ".zrx"}.contains(
        fs::path(par.first).extension().string());
  });
  return ficheros;
}

Ficheros FicherosDe(const fs::path& carpeta) {
  Ficheros ficheros;
  for (const auto& f : fs::directory_iterator(carpeta)) {
    ficheros[f.path().filename().string()] = pruebas::Bytes(f.path());
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
  fallos_en_consultas(0);
  fallos_arma(ruta().c_str(), 0, FALLO_NINGUNO, 0);
}

CarpetaReal::~CarpetaReal() {
  fallos_desarma();
}

}  // namespace zorbin::fallos
