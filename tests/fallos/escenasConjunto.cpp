// Saves of an Obra with the files beside it.
#include "comun/proyecto.h"
#include "fallos/escenas.h"

namespace zorbin::fallos {

namespace {

constexpr const char* kObra = "obra.zrb";

Catalogo& Textos() {
  static Catalogo textos = Catalogo::Lee(ZORBIN_FUENTES "recursos/textos");
  return textos;
}

// Two Tramos, adjustments of one, extras of the other.
ProyectoAGrabar DeTodo() {
  static const ProyectoAGrabar muestra = [] {
    auto p = pruebas::EnMemoria(ZORBIN_FUENTES "muestras/acequia.zrb");
    p.tramos.resize(2);
    p.tramos[1].datos.Envolvente = true;
    p.ajustes = {{6, 1, 2.5, {20, 3, 18}}};
    return p;
  }();
  return muestra;
}

ProyectoAGrabar OtroDeTodo() {
  auto p = DeTodo();
  p.obra.Cliente = "Otro cliente";
  p.tramos[0].datos.Envolvente = true;
  p.ajustes.push_back({8, 2, 2, {1, 2, 3}});
  return p;
}

ProyectoAGrabar SinCompaneras() {
  auto p = DeTodo();
  p.obra.Cliente = "Sin nada al lado";
  p.tramos.pop_back();
  p.ajustes.clear();
  return p;
}

ProyectoAGrabar SoloCompaneras() {
  auto p = OtroDeTodo();
  p.obra.Cliente = DeTodo().obra.Cliente;
  return p;
}

ProyectoAGrabar SoloExtras() {
  auto p = SoloCompaneras();
  p.tramos[1].datos.Envolvente = false;
  return p;
}

void Pon(const fs::path& carpeta, const ProyectoAGrabar& p) {
  GrabaProyectoComo(carpeta / kObra, p, nullptr, Textos(), ',');
}

void Abre(Sesion& s) {
  s.abierta.emplace(s.carpeta / kObra, FicheroRegistros::Modo::LecturaEscritura);
}

template <class Accion>
bool SinQueja(Sesion& s, Accion accion) {
  try {
    accion();
    s.queja.clear();
    return true;
  } catch (const ErrorFichero& error) {
    s.queja = Textos().Compone(error.mensaje());
    return false;
  }
}

template <ProyectoAGrabar (*kCual)()>
bool Graba(Sesion& s) {
  return SinQueja(s, [&] {
    if (!s.abierta) Abre(s);
    GrabaProyecto(*s.abierta, kCual(), Textos(), ',');
  });
}

template <ProyectoAGrabar (*kCual)()>
bool GrabaComo(Sesion& s) {
  s.abierta.reset();
  return SinQueja(s, [&] {
    s.abierta.emplace(GrabaProyectoComo(s.carpeta / kObra, kCual(), nullptr, Textos(), ','));
  });
}

}  // namespace

const std::vector<Escena>& EscenasDeConjunto() {
  static const auto conTodo = [](const fs::path& carpeta) { Pon(carpeta, DeTodo()); };
  static const auto conOtra = [](const fs::path& carpeta) { Pon(carpeta, OtroDeTodo()); };
  static const auto nada = [](Sesion&) {};
  static const std::vector<Escena> escenas{
      {"an Obra, its adjustments and its extras, changed and taken away",
       kObra,
       conTodo,
       Abre,
       {Graba<OtroDeTodo>, Graba<SinCompaneras>}},
      {"adjustments and extras without the Obra, then extras alone",
       kObra,
       conTodo,
       Abre,
       {Graba<SoloCompaneras>, Graba<SoloExtras>}},
      {"an Obra under a new name, then all of it changed",
       kObra,
       [](const fs::path&) {},
       nada,
       {GrabaComo<DeTodo>, Graba<OtroDeTodo>}},
      {"an Obra over another one with its companions",
       kObra,
       conOtra,
       nada,
       {GrabaComo<SinCompaneras>}}};
  return escenas;
}

}  // namespace zorbin::fallos
