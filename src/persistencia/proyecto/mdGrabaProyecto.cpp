#include "persistencia/proyecto/mdGrabaProyecto.h"

#include <algorithm>
#include <utility>

#include "base/mdContenido.h"
#include "base/textos.h"
#include "core/estado_calculo.h"
#include "persistencia/disco/mdConjunto.h"
#include "persistencia/dpe/mdDpe.h"
#include "persistencia/zrb/mdZrb.h"

namespace zorbin {

namespace {

namespace fs = std::filesystem;

constexpr int kMaxApartados = 99;

// ---- What the files are to hold

bool Falta(const fs::path& ruta) {
  std::error_code error;
  return fs::symlink_status(ruta, error).type() == fs::file_type::not_found;
}

// A companion that a save changes.
struct Cambio {
  Companera antes;
  Companera despues;
};

// Records of the adjustments as the disk would hold them.
FicheroRegistros Registros(const fs::path& dpe, const std::vector<EntradaAjuste>& ajustes,
                           char separador) {
  auto f = FicheroRegistros::EnMemoria(dpe);
  EscribeAjustes(f, ajustes, separador);
  return f;
}

// Extras with the entries of the Tramos, those that fit none after them.
Extras TodosLosExtras(const ProyectoAGrabar& p) {
  Extras todos = p.extras;
  todos.tramos.clear();
  for (const auto& t : p.tramos) {
    todos.tramos.push_back({t.numero, t.datos.DescriTramo, t.datos.Envolvente, t.otras});
  }
  todos.tramos.insert(todos.tramos.end(), p.extras.tramos.begin(), p.extras.tramos.end());
  return todos;
}

// Which of the companions change, looked at once all of them are locked.
class Companeras {
 public:
  /// @param sustituye  what lies there is another Obra's and goes with it
  Companeras(const fs::path& obra, bool sustituye) : obra_(obra), sustituye_(sustituye) {}

  void Ajustes(const std::vector<EntradaAjuste>& ajustes, char separador) {
    const fs::path ruta = RutaDpe(obra_);
    const bool alguno = std::ranges::any_of(ajustes, [](const auto& x) { return !x.Libre(); });
    if (Falta(ruta)) {
      if (alguno) Cambia(kExtensionDpe, {}, Registros(ruta, ajustes, separador).Contenido());
      return;
    }
    const auto nuevo = Registros(ruta, ajustes, separador);
    if (!sustituye_ && SonLosDelDisco(ruta, LeeAjustes(nuevo), alguno)) return;
    dpe_.emplace(AbreDpe(ruta));  // nobody else changes them meanwhile
    const bool quedan = sustituye_ ? alguno : !ajustes.empty();
    Cambia(kExtensionDpe, dpe_->Contenido(),
           quedan ? std::optional(nuevo.Contenido()) : std::nullopt);
  }

  void DeExtras(const Extras& extras) {
    const fs::path ruta = RutaZrx(obra_);
    const std::string nuevo = TextoDeExtras(extras);
    const auto despues = nuevo.empty() ? std::nullopt : std::optional(nuevo);
    if (Falta(ruta)) {
      if (despues) Cambia(kExtensionZrx, {}, despues);
      return;
    }
    if (!sustituye_ && EstaDicho(ruta, extras, nuevo)) return;
    if (Falta(ruta)) return Cambia(kExtensionZrx, {}, despues);  // set aside
    Cambia(kExtensionZrx, BytesDe(ruta), despues);
  }

  const std::vector<Cambio>& cambios() const { return cambios_; }
  std::vector<Mensaje>& avisos() { return avisos_; }

 private:
  void Cambia(std::string_view extension, std::optional<std::string> antes,
              std::optional<std::string> despues) {
    if (antes == despues) return;
    cambios_.push_back(
        {{std::string(extension), std::move(antes)}, {std::string(extension), std::move(despues)}});
  }

  // A file that the disk does not give is no file that is not understood: the save is refused.
  static bool SonLosDelDisco(const fs::path& ruta, const std::vector<EntradaAjuste>& nuevos,
                             bool alguno) {
    const FicheroRegistros hay(ruta, FicheroRegistros::Modo::Lectura);
    try {
      return LeeAjustes(hay) == nuevos;
    } catch (const ErrorFichero&) {
      if (alguno) throw;
      return true;  // what can't be read is not thrown away for nothing
    }
  }

  static std::string BytesDe(const fs::path& ruta) {
    std::string bytes;
    if (const int causa = LeeContenido(ruta, kMaxContenido, bytes)) {
      throw ErrorFichero({txt::NoSeAbre, {ruta.string(), TextoDeCausa(causa)}});
    }
    return bytes;
  }

  // What a file that is not understood says may be mended by hand: it is not written over.
  bool EstaDicho(const fs::path& ruta, const Extras& extras, const std::string& nuevo) {
    const std::string bytes = BytesDe(ruta);
    try {
      const Extras hay = ExtrasDeTexto(bytes, ruta);
      if (TextoDeExtras(hay) == nuevo) return true;
      if (hay.ajeno.empty()) return false;
      throw ErrorFichero({txt::ZrxMasNuevo, {ruta.string()}});
    } catch (const ErrorFichero& error) {
      if (nuevo.empty()) return true;
      if (error.mensaje().texto == txt::ZrxMasNuevo || !extras.ajeno.empty()) throw;
      Aparta(ruta, error);
      return false;
    }
  }

  void Aparta(const fs::path& ruta, const ErrorFichero& error) {
    Causa causa = EEXIST;
    fs::path aparte;
    for (int i = 1; i <= kMaxApartados && causa == EEXIST; ++i) {
      aparte = ruta.string() + "-" + std::to_string(i);
      causa = PonNombre(ruta, aparte);
    }
    if (causa != 0) throw error;
    avisos_.push_back({txt::ZrxApartado, {ruta.string(), aparte.string()}});
  }

  fs::path obra_;
  bool sustituye_;
  std::optional<FicheroRegistros> dpe_;
  std::vector<Cambio> cambios_;
  std::vector<Mensaje> avisos_;
};

// ---- The records

void EscribeRegistros(FicheroRegistros& f, const ProyectoAGrabar& p, const Catalogo& textos,
                      char separador) {
  ListaTramos lista;
  for (const auto& t : p.tramos) lista.push_back(t.numero);
  const int antes = CuentaTramos(f);
  const int ahora = static_cast<int>(lista.size());
  EstadoCalculo e;
  e.obra = p.obra;
  EscribeObra(f, e, lista, textos, separador);
  for (int posicion = 1; posicion <= ahora; ++posicion) {
    const auto& t = p.tramos[static_cast<std::size_t>(posicion - 1)];
    if (t.intacto) continue;
    e.tramo = t.datos;
    EscribeTramo(f, e, lista, posicion, separador);
  }
  // A Tramo that was deleted is not left for others to find.
  if (antes > ahora) BorraTramos(f, ahora + 1, antes);
}

// ---- The save

ErrorFichero NadaGrabado(const fs::path& ruta, Causa causa) {
  return ErrorFichero({txt::NadaGrabado, {ruta.string(), TextoDeCausa(causa)}});
}

void Exige(Causa causa, const fs::path& obra, const Companera& c) {
  if (causa != 0) throw NadaGrabado(RutaCompanera(obra, c.extension), causa);
}

// After a refusal. What can't be brought back now is brought back when the Obra is opened.
void Deshace(const fs::path& obra, const Conjunto& conjunto, const ErrorFichero& error) {
  Causa causa = 0;
  for (const auto& c : conjunto.antes) {
    if (causa == 0) causa = RestauraCompanera(obra, c);
  }
  if (causa == 0) causa = QuitaConjunto(obra);
  if (causa == 0) throw error;
  throw ErrorFichero(
      {txt::ConjuntoEnDuda, {obra.string(), TextoDeCausa(causa), RutaConjunto(obra).string()}});
}

Conjunto EscribeElDeAntes(const FicheroRegistros& f, const std::vector<Cambio>& cambios) {
  std::vector<Companera> antes;
  for (const auto& c : cambios) antes.push_back(c.antes);
  Conjunto conjunto = ConjuntoDe(f.Contenido(), std::move(antes));
  if (const Causa causa = EscribeConjunto(f.ruta(), conjunto)) {
    throw ErrorFichero(
        {txt::SinDiario, {f.Nombre(), RutaConjunto(f.ruta()).string(), TextoDeCausa(causa)}});
  }
  return conjunto;
}

void GrabaConjunto(FicheroRegistros& f, Transaccion& registros,
                   const std::vector<Cambio>& cambios) {
  const fs::path& obra = f.ruta();
  const bool cambiaLaObra = f.Cambia();
  const Conjunto conjunto = EscribeElDeAntes(f, cambios);
  try {
    for (const auto& c : cambios) Exige(PonCompanera(obra, c.despues, true), obra, c.despues);
    registros.Confirma();
    // Where it stays, the next save removes it before anything else.
    const Causa causa = QuitaConjunto(obra);
    if (causa != 0 && !cambiaLaObra) throw NadaGrabado(obra, causa);
  } catch (const ErrorFichero& error) {
    if (!conjunto.EsAntes(f.Contenido())) throw;
    Deshace(obra, conjunto, error);
  }
}

void Graba(FicheroRegistros& f, Transaccion& registros, const std::vector<Cambio>& cambios) {
  if (cambios.empty()) return registros.Confirma();
  const fs::path& obra = f.ruta();
  for (const auto& c : cambios) Exige(PreparaCompanera(obra, c.despues), obra, c.despues);
  if (cambios.size() > 1 || f.Cambia()) return GrabaConjunto(f, registros, cambios);
  registros.Confirma();  // changes nothing, and tells when the file is no longer there
  const auto& sola = cambios.front().despues;
  Exige(PonCompanera(obra, sola, false), obra, sola);
}

// What a save leaves beside the companions goes, however it ends.
struct SinRestos {
  const fs::path& obra;
  ~SinRestos() { QuitaRestos(obra); }
};

std::vector<Mensaje> GrabaTodo(FicheroRegistros& f, const ProyectoAGrabar& proyecto, bool sustituye,
                               const FicheroRegistros* origen, const Catalogo& textos,
                               char separador) {
  if (f.SoloLectura()) throw ErrorFichero({txt::SoloLecturaNoGraba, {f.Nombre()}});
  f.Asienta();
  auto avisos = RecuperaConjunto(f.ruta(), f.Contenido());
  Transaccion registros(f);
  for (std::size_t i = 0; origen && i < proyecto.tramos.size(); ++i) {
    if (proyecto.tramos[i].intacto) CopiaTramo(f, *origen, static_cast<int>(i) + 1);
  }
  EscribeRegistros(f, proyecto, textos, separador);
  Companeras companeras(f.ruta(), sustituye);
  companeras.Ajustes(proyecto.ajustes, separador);
  companeras.DeExtras(TodosLosExtras(proyecto));
  {
    const SinRestos limpia{f.ruta()};
    Graba(f, registros, companeras.cambios());
  }
  for (auto& aviso : companeras.avisos()) avisos.push_back(std::move(aviso));
  return avisos;
}

// A file of something else is nobody's to write over, whatever was agreed to.
void ExigeObra(const FicheroRegistros& f) {
  const auto otra = [&] { return ErrorFichero({txt::NoEsObraParaPisar, {f.Nombre()}}); };
  if (f.Contenido().empty()) return;
  try {
    if (f.LeeRegistro(1) == kVersionFichero) return;
  } catch (const ErrorFichero&) {
    throw otra();
  }
  throw otra();
}

}  // namespace

std::vector<Mensaje> GrabaProyecto(FicheroRegistros& f, const ProyectoAGrabar& proyecto,
                                   const Catalogo& textos, char separador) {
  return GrabaTodo(f, proyecto, false, nullptr, textos, separador);
}

FicheroRegistros GrabaProyectoComo(const fs::path& ruta, const ProyectoAGrabar& proyecto,
                                   const FicheroRegistros* origen, const Catalogo& textos,
                                   char separador) {
  FicheroRegistros f(ruta, FicheroRegistros::Modo::LecturaEscritura);
  ExigeObra(f);
  GrabaTodo(f, proyecto, true, origen, textos, separador);
  return f;
}

}  // namespace zorbin
