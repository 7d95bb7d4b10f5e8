#include "sesion/captura/mdComprueba.h"

#include <algorithm>

#include "sesion/captura/mdCiclo.h"
#include "sesion/captura/mdTramos.h"
#include "sesion/captura/mdValidaObra.h"
#include "sesion/captura/mdValidaTramo.h"

namespace zorbin {

namespace {

// Nobody is there.
class Nadie : public Interlocutor {
 public:
  void Muestra(const std::string&, const std::string&) override {}
  bool Pregunta(const std::string&, const std::string&) override { return true; }
  Respuesta PreguntaGrabar(const std::string&) override { return Respuesta::Cancelar; }
  std::optional<std::string> PideFichero(const std::string&, const std::string&) override {
    return std::nullopt;
  }
  void VaA(Ed) override {}
};

// The faults of a validation, with what they are of; those of fields that it does not look at too.
void Recoge(std::vector<Falta>& todas, Captura& c, int tramo,
            const std::vector<TextoPendiente>& pendientes) {
  for (const auto& p : pendientes) {
    const bool dicha =
        std::ranges::any_of(c.faltas, [&](const Falta& f) { return f.campo == p.campo; });
    const bool leido = c[p.campo].falta.empty();
    if (!dicha && !leido) c.faltas.push_back({p.campo, p.texto, {}, p.mensaje, 0});
  }
  for (auto& falta : c.faltas) {
    falta.tramo = tramo;
    todas.push_back(std::move(falta));
  }
  c.faltas.clear();
}

}  // namespace

Sombra::Sombra(const Catalogo& catalogo, const TablasCatalogo& tablas, char separador)
    : textos_(catalogo),
      nadie_(std::make_unique<Nadie>()),
      c(e_, textos_, tablas, *nadie_, separador) {
  NuevaObra(c);
}

Sombra::~Sombra() = default;

bool Comprobado::Vale(int id) const {
  return std::ranges::none_of(
      faltas, [id](const Falta& f) { return f.tramo == 0 || f.tramo == id; });
}

Comprobado Comprueba(const Version& version, const std::vector<int>& ids, const Catalogo& textos,
                     const TablasCatalogo& tablas, char separador) {
  Comprobado r;
  Sombra sombra(textos, tablas, separador);
  Captura& c = sombra.c;
  VuelveA(c, version, 0);
  ValidaObra(c);
  Recoge(r.faltas, c, 0, version.pendientes);
  for (auto& t : c.version.tramos) {
    if (std::ranges::find(ids, t->id) == ids.end()) continue;
    if (!t->dano.empty()) {
      r.faltas.push_back({Ed::edTramo, t->numero, {}, t->dano, t->id});
      continue;
    }
    PonEnMano(c, t->id);
    c.faltas.clear();
    ValidaTramo(c);
    const bool vale = c.faltas.empty();
    Recoge(r.faltas, c, t->id, t->pendientes);
    if (!vale) continue;
    auto completo = std::make_shared<TramoEnObra>(*t);
    completo->datos = c.e.tramo;
    completo->pendientes.clear();
    if (*completo != *t) t = std::move(completo);
  }
  r.version = std::move(c.version);
  r.version.obra = SinSesion(c.e.obra);
  r.version.pendientes.clear();
  return r;
}

Comprobado Comprueba(const Captura& c, const std::vector<int>& ids) {
  return Comprueba(VersionActual(c), ids, c.textos, c.tablas, c.SeparadorDecimal);
}

std::vector<int> IdsDe(const Version& version) {
  std::vector<int> ids;
  for (const auto& t : version.tramos) {
    if (!t->numero.empty()) ids.push_back(t->id);
  }
  return ids;
}

void LlevaALaFalta(Captura& c, const Falta& falta) {
  if (falta.tramo != 0 && falta.tramo != c.enMano) {
    c.version = VersionActual(c);
    PonEnMano(c, falta.tramo);
  }
  auto& control = c[falta.campo];
  if (control.falta.empty()) {
    control.falta =
        falta.titulo.empty() ? falta.mensaje : SinDosPuntos(falta.titulo) + ": " + falta.mensaje;
  }
  VaA(c, falta.campo);
}

}  // namespace zorbin
