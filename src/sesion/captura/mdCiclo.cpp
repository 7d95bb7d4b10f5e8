#include "sesion/captura/mdCiclo.h"

#include <algorithm>
#include <utility>

#include "base/mdNumeros.h"
#include "base/mdTextos.h"
#include "base/textos.h"
#include "persistencia/proyecto/mdAcompanantes.h"
#include "persistencia/proyecto/mdGrabaProyecto.h"
#include "sesion/captura/mdComprueba.h"
#include "sesion/captura/mdEtiquetas.h"
#include "sesion/captura/mdOrdenes.h"
#include "sesion/captura/mdPresenta.h"
#include "sesion/captura/mdTipologias.h"
#include "sesion/captura/mdTramos.h"

namespace zorbin {

namespace {

namespace fs = std::filesystem;

constexpr double kAlturaNuevaObra = 3.0;  // [m]
constexpr std::string_view kExtension = ".zrb";

void MuestraError(Captura& c, const ErrorFichero& error) {
  c.voz.Muestra(TextoDeError(c, error), {});
}

// Nothing of an Obra before survives: not its file, not its Tramos.
void Vacia(Captura& c) {
  const std::string carpeta = c.e.obra.RutaApp;
  c.fichero.reset();
  c.version = c.guardada = Version{};
  c.enMano = 0;
  c.faltas.clear();
  c.sinAjustes.clear();
  c.danos.clear();
  c.ObraCargada = c.Tecleando = false;
  c.e.obra = Obra{};
  c.e.tramo = Tramo{};
  c.e.obra.RutaApp = carpeta;
  PreparaPantalla(c);
  LimpiaCaptura(c, 0);
}

// ---- Opening

void TomaFichero(Captura& c, FicheroRegistros f) {
  c.fichero.emplace(std::move(f));
  c.fichero->PreparaGrabado();
  for (const auto& aviso : c.fichero->avisos()) c.voz.Anuncia(c.textos.Compone(aviso));
}

void AbreFichero(Captura& c, const fs::path& ruta) {
  try {
    TomaFichero(c, {ruta, FicheroRegistros::Modo::LecturaEscritura});
  } catch (const SoloParaLeer& error) {
    TomaFichero(c, {ruta, FicheroRegistros::Modo::Lectura});
    c.voz.Anuncia(TextoDeError(c, error) + " " +
                  c.textos.Compone(txt::AbiertoParaLeer, {c.fichero->Nombre()}));
  }
}

// What lies beside the file; what of it is refused is told.
Acompanantes LeeDeAlLado(Captura& c) {
  auto suyos = LeeAcompanantes(*c.fichero);
  c.sinAjustes.clear();
  for (const auto& aviso : suyos.avisos) {
    c.voz.Anuncia(c.textos.Compone(aviso));
    if (suyos.SinAjustes && c.sinAjustes.empty()) c.sinAjustes = c.textos.Compone(aviso);
  }
  return suyos;
}

std::vector<EntradaAjuste> LosDe(const std::vector<EntradaAjuste>& ajustes, int numero) {
  std::vector<EntradaAjuste> suyos;
  std::ranges::copy_if(ajustes, std::back_inserter(suyos), [numero](const EntradaAjuste& x) {
    return !x.Libre() && Redondea(x.Tramo) == numero;
  });
  return suyos;
}

// Those of numbers that no Tramo has. A save keeps them: who knows what they are for.
std::vector<EntradaAjuste> Sueltos(const std::vector<EntradaAjuste>& ajustes,
                                   const ListaTramos& lista) {
  std::vector<EntradaAjuste> sueltos;
  std::ranges::copy_if(ajustes, std::back_inserter(sueltos), [&](const EntradaAjuste& x) {
    return !x.Libre() && std::ranges::none_of(lista, [&](const std::string& numero) {
      return !numero.empty() && NumeroDe(numero) == static_cast<int>(Redondea(x.Tramo));
    });
  });
  return sueltos;
}

// Whether the file is still the same. What can't be read has the mark of nothing.
std::uint64_t HuellaDeTodo(const Captura& c) {
  std::uint64_t huella = HuellaDe(*c.fichero, 0);
  for (std::size_t i = 1; i <= c.version.tramos.size(); ++i) {
    try {
      huella = huella * 31 + HuellaDe(*c.fichero, static_cast<int>(i));
    } catch (const ErrorFichero&) {
      huella *= 31;
    }
  }
  return huella;
}

// All the Tramos of the file. One that cannot be read gives its place and why.
std::vector<TramoFijo> LeeTramos(Captura& c, const ObraLeida& leida, Acompanantes& suyos) {
  EstadoCalculo e;  // a blank record keeps the value of the Tramo before
  e.obra = c.e.obra;
  std::vector<TramoFijo> tramos;
  for (std::size_t i = 0; i < leida.lista.size(); ++i) {
    const int posicion = static_cast<int>(i) + 1;
    TramoEnObra t;
    t.id = ++c.ultimoId;
    t.numero = leida.lista[i];
    const int numero = NumeroDe(t.numero);
    if (!t.numero.empty()) {
      CargaTramo(e, *c.fichero, posicion);
      t.datos = e.tramo;
      PonAjustes(t, e.obra, LosDe(suyos.ajustes, numero));
      if (auto extras = TomaExtras(suyos.extras, t.numero, t.datos.DescriTramo)) {
        t.datos.Envolvente = extras->Envolvente;
        t.extras = std::move(extras->otras);
      }
    }
    const auto dano = std::ranges::find(leida.danos, posicion, &DanoObra::posicion);
    if (dano != leida.danos.end()) {
      t.dano = c.textos.Compone(dano->causa);
      t.numero = dano->numero;
    }
    t.datos.NumeroTramo = static_cast<std::int16_t>(numero);
    tramos.push_back(std::make_shared<TramoEnObra>(std::move(t)));
  }
  return tramos;
}

// What could not be read, told at once.
void DiDanos(Captura& c, const std::vector<DanoObra>& danos) {
  if (danos.empty()) return;
  std::string texto = c.textos.Compone(txt::ObraDanada, {c.fichero->Nombre()});
  for (const auto& dano : danos) {
    c.danos.push_back(c.textos.Compone(dano.causa));
    texto += "\n" + c.danos.back();
  }
  c.voz.Muestra(texto, {});
}

// Header and Tramos of the file that is open. @throws ErrorFichero
void LeeTodo(Captura& c) {
  const auto leida = RescataObra(c.e, *c.fichero);
  for (const auto& aviso : leida.avisos) c.voz.Anuncia(c.textos.Compone(aviso));
  auto suyos = LeeDeAlLado(c);
  c.version.tramos = LeeTramos(c, leida, suyos);
  for (const auto& aviso : AvisosDeExtras(suyos.extras, RutaZrx(c.fichero->ruta()))) {
    c.voz.Anuncia(c.textos.Compone(aviso));
  }
  c.version.extras = std::move(suyos.extras);
  c.version.ajustesSueltos = Sueltos(suyos.ajustes, leida.lista);
  c.huella = HuellaDeTodo(c);
  c.ObraCargada = true;
  DiDanos(c, leida.danos);
  MuestraObra(c);
  c.version = c.guardada = VersionActual(c);
  MuestraTodo(c);
}

// ---- Saving

// Name of a file with its extension; empty where none was given.
std::string PideNombre(Captura& c, int titulo) {
  const std::string actual = c.fichero ? c.fichero->Nombre() : std::string{};
  const auto nombre = c.voz.PideFichero(Texto(c, titulo), actual);
  if (!nombre) return {};
  const std::string corto = nombre->substr(0, nombre->find('\0'));
  if (Recorta(corto).empty()) {
    c.voz.Muestra(Texto(c, txt::SinNombreDeFichero), {});
    return {};
  }
  const bool conPunto = fs::path(corto).filename().string().find('.') != std::string::npos;
  return conPunto ? corto : corto + std::string(kExtension);
}

std::vector<int> Cambiados(const Captura& c, const Version& ahora) {
  std::vector<int> ids;
  for (const auto& t : ahora.tramos) {
    const auto antes = LugarDe(c.guardada, t->id);
    if (!t->numero.empty() && t->dano.empty() && (!antes || *c.guardada.tramos[*antes] != *t)) {
      ids.push_back(t->id);
    }
  }
  return ids;
}

// Whether the person wants the adjustments that a change makes void to go.
bool AceptaAnular(Captura& c, const AjustesAnulados& r) {
  if (r.anulados.empty()) return true;
  std::string cuales;
  for (const auto& [tramo, cuantos] : r.anulados) {
    cuales += "\n" + c.textos.Compone(txt::AjustesDelTramo, {tramo, TextoEntero(cuantos)});
  }
  return c.voz.Pregunta(
      Texto(c, txt::AjustesQueSeAnulan) + cuales + "\n\n" + Texto(c, txt::GrabaDeTodosModos),
      Texto(c, txt::TituloAviso));
}

// What is to be written: complete and without a fault. Nothing where there are some, which are
// listed and shown, or where the person thinks better of it.
std::optional<Version> QueGrabar(Captura& c) {
  const Version ahora = VersionActual(c);
  auto comprobado = Comprueba(c, Cambiados(c, ahora));
  if (MuestraFaltas(c, std::move(comprobado.faltas))) return std::nullopt;
  auto sinVanos = SinAjustesVanos(std::move(comprobado.version));
  if (!AceptaAnular(c, sinVanos)) return std::nullopt;
  std::erase_if(sinVanos.version.tramos, [](const TramoFijo& t) { return !t->dano.empty(); });
  return std::move(sinVanos.version);
}

// The block at a place, with what a Tramo has that no block says. @param e  what comes before it
Tramo Leido(const FicheroRegistros& f, EstadoCalculo& e, std::size_t lugar, const TramoEnObra& t) {
  CargaTramo(e, f, static_cast<int>(lugar) + 1);
  e.tramo.NumeroTramo = t.datos.NumeroTramo;
  e.tramo.Envolvente = t.datos.Envolvente;
  return e.tramo;
}

// Whether the file has a Tramo at its place already, whatever comes before it by now: a blank
// record of a block means the value of the Tramo before.
bool EstaEnElFichero(const Captura& c, const Version& v, std::size_t lugar) {
  const auto& t = *v.tramos[lugar];
  if (lugar >= c.guardada.tramos.size() || *c.guardada.tramos[lugar] != t) return false;
  if (t.numero.empty()) return true;
  EstadoCalculo e;
  e.obra = c.guardada.obra;
  for (std::size_t i = 0; i < lugar; ++i) {
    if (!v.tramos[i]->numero.empty()) e.tramo = v.tramos[i]->datos;
  }
  return Leido(*c.fichero, e, lugar, t) == t.datos;
}

// Blocks that the file has already stay as they are.
ProyectoAGrabar AGrabar(const Captura& c, const Version& v, bool todos) {
  ProyectoAGrabar p{v.obra, {}, {}, v.extras};
  for (std::size_t i = 0; i < v.tramos.size(); ++i) {
    const auto& t = *v.tramos[i];
    p.tramos.push_back({t.numero, t.datos, t.extras, !todos && EstaEnElFichero(c, v, i)});
    p.ajustes.insert(p.ajustes.end(), t.ajustes.begin(), t.ajustes.end());
  }
  // A number that was taken since means another pipe.
  const auto sueltos = Sueltos(v.ajustesSueltos, ListaDe(v));
  p.ajustes.insert(p.ajustes.end(), sueltos.begin(), sueltos.end());
  return p;
}

// A version that was saved, with the digits that the file has of it: today's calculation is that of
// tomorrow.
Version ComoEnElFichero(const Captura& c, Version v) {
  EstadoCalculo e;
  CargaObra(e, *c.fichero);
  v.obra = SinSesion(e.obra);
  for (std::size_t i = 0; i < v.tramos.size(); ++i) {
    auto leido = std::make_shared<TramoEnObra>(*v.tramos[i]);
    if (leido->numero.empty()) continue;
    e.tramo = leido->datos;
    leido->datos = Leido(*c.fichero, e, i, *leido);
    if (*leido != *v.tramos[i]) v.tramos[i] = std::move(leido);
  }
  return v;
}

// The file holds a version from now on.
void QuedaGrabada(Captura& c, Version v) {
  const EnUnPaso paso(c, Texto(c, txt::PasoCompleta));
  v = ComoEnElFichero(c, std::move(v));
  c.guardada = v;
  const auto& o = c.e.obra;
  v.obra.RutaApp = o.RutaApp;
  v.obra.NombreFichero = c.fichero->Nombre();
  v.obra.ObraAbierta = true;
  c.e.obra = v.obra;
  v.obra = SinSesion(v.obra);
  c.version = std::move(v);
  c.huella = HuellaDeTodo(c);
  c.Tecleando = false;
  MuestraObra(c);
  PonEnMano(c, c.enMano);
}

bool GrabaEn(Captura& c, const std::string& nombre, Version v) {
  try {
    auto f = GrabaProyectoComo(nombre, AGrabar(c, v, true), nullptr, c.textos, c.SeparadorDecimal);
    c.fichero.reset();
    c.danos.clear();
    TomaFichero(c, std::move(f));
  } catch (const ErrorFichero& error) {
    MuestraError(c, error);
    return false;
  }
  QuedaGrabada(c, std::move(v));
  return true;
}

// The error of a save that another file would not have.
bool OfreceOtroFichero(Captura& c, const ErrorFichero& error, const Version& v) {
  if (!c.voz.Pregunta(TextoDeError(c, error) + "\n" + Texto(c, txt::GrabarEnOtro),
                      Texto(c, txt::TituloAviso))) {
    return false;
  }
  const std::string nombre = PideNombre(c, txt::TituloGrabarComo);
  return !nombre.empty() && GrabaEn(c, nombre, v);
}

// Into the file that is open.
bool GrabaAqui(Captura& c, Version v) {
  try {
    const auto avisos =
        GrabaProyecto(*c.fichero, AGrabar(c, v, v.obra.SisUnid != c.guardada.obra.SisUnid),
                      c.textos, c.SeparadorDecimal);
    for (const auto& aviso : avisos) c.voz.Anuncia(c.textos.Compone(aviso));
  } catch (const ErrorFichero& error) {
    return OfreceOtroFichero(c, error, v);
  }
  QuedaGrabada(c, std::move(v));
  return true;
}

}  // namespace

// ---------------------------------------------------------------------------------------------

void NuevaObra(Captura& c, int idioma) {
  Vacia(c);
  auto& o = c.e.obra;
  o.Idioma = static_cast<std::int16_t>(idioma);
  o.IdiomaOffset = static_cast<std::int16_t>((idioma - 1) * kPasoIdioma);
  o.GolpeCalculado = true;
  o.Alt1 = kAlturaNuevaObra;
  MuestraObra(c);
  Desbloquea(c, Ed::edPrs2);
  Desbloquea(c, Ed::edAlt3);
  c.ObraCargada = true;
  c.version = c.guardada = VersionActual(c);
  ActualizaMenus(c);
  c.pantalla.pagina.TabPrincipal = 0;
  c.pantalla.foco = Ed::edObra;
}

void AbreParaMirar(Captura& c, const fs::path& ruta) {
  Vacia(c);
  c.fichero.emplace(ruta, FicheroRegistros::Modo::Lectura);
  LeeTodo(c);
}

bool AbreObra(Captura& c, const fs::path& ruta) {
  Vacia(c);
  try {
    AbreFichero(c, ruta);
    LeeTodo(c);
  } catch (const ErrorFichero& error) {
    MuestraError(c, error);
    Vacia(c);
    ActualizaMenus(c);
    return false;
  }
  return true;
}

bool Graba(Captura& c) {
  if (c.SoloLectura()) return GrabaComo(c);
  if (c.fichero && !c.EnCambio()) return true;
  auto v = QueGrabar(c);
  if (!v) return false;
  if (!c.fichero) {
    const std::string nombre = PideNombre(c, txt::TituloGrabar);
    return !nombre.empty() && GrabaEn(c, nombre, std::move(*v));
  }
  return GrabaAqui(c, std::move(*v));
}

bool GrabaComo(Captura& c) {
  auto v = QueGrabar(c);
  if (!v) return false;
  const std::string nombre = PideNombre(c, txt::TituloGrabarComo);
  if (nombre.empty()) return false;
  std::error_code sinFichero;
  const bool elMismo = c.fichero && fs::equivalent(nombre, c.fichero->ruta(), sinFichero);
  if (elMismo && !c.SoloLectura()) return GrabaAqui(c, std::move(*v));
  return GrabaEn(c, nombre, std::move(*v));
}

bool PuedeIrse(Captura& c) {
  if (!c.ObraCargada || !c.EnCambio()) return true;
  const std::string nombre =
      c.fichero ? c.fichero->ruta().filename().string() : Texto(c, txt::ObraSinNombre);
  switch (c.voz.PreguntaGrabar(c.textos.Compone(txt::HayCambiosEn, {nombre}))) {
    case Respuesta::Grabar:
      return Graba(c);
    case Respuesta::Descartar:
      return true;
    case Respuesta::Cancelar:
      break;
  }
  return false;
}

bool CierraObra(Captura& c) {
  if (!PuedeIrse(c)) return false;
  Descarta(c);
  return true;
}

void Descarta(Captura& c) {
  Vacia(c);
  ActualizaMenus(c);
}

void VuelveA(Captura& c, const Version& v, int enMano) {
  const auto& o = c.e.obra;
  Obra obra = v.obra;
  obra.RutaApp = o.RutaApp;
  obra.NombreFichero = o.NombreFichero;
  obra.ObraAbierta = o.ObraAbierta;
  c.e.obra = std::move(obra);
  c.version = v;
  c.Tecleando = false;
  MuestraObra(c);
  PonEnMano(c, enMano);
}

void RecogeAjustes(Captura& c) {
  if (!c.fichero) return;
  const EnUnPaso paso(c, Texto(c, txt::PasoAjusta));
  const auto ajustes = LeeDeAlLado(c).ajustes;
  for (auto* v : {&c.version, &c.guardada}) {
    for (auto& t : v->tramos) {
      auto otro = std::make_shared<TramoEnObra>(*t);
      PonAjustes(*otro, v->obra, LosDe(ajustes, NumeroDe(t->numero)));
      if (otro->ajustes != t->ajustes) t = std::move(otro);
    }
  }
}

}  // namespace zorbin
