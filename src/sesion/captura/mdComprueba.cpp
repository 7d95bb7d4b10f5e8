#include "sesion/captura/mdComprueba.h"

#include <algorithm>

#include "sesion/captura/mdCiclo.h"
#include "sesion/captura/mdEdicion.h"
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

// What is refused is not the datum: the rules look at that.
void MuestraSoloDatos(Captura& c) {
  Version v = VersionActual(c);
  v.pendientes.clear();
  if (const auto lugar = LugarDe(v, c.enMano)) {
    auto t = std::make_shared<TramoEnObra>(*v.tramos[*lugar]);
    t->pendientes.clear();
    v.tramos[*lugar] = std::move(t);
  }
  VuelveA(c, v, c.enMano);
}

// Texts that were refused are tried again, since what kept them out may be right by now. @return
// the faults of those that still are not taken
std::vector<Falta> Reintenta(Captura& c, const std::vector<TextoPendiente>& pendientes) {
  std::vector<Falta> faltas;
  for (const auto& p : pendientes) {
    auto& control = c[p.campo];
    c.faltas.clear();
    control.texto.push_back(' ');  // so that it counts as typed
    Cambia(c, p.campo, p.texto);
    Sale(c, p.campo);
    if (control.falta.empty()) continue;
    faltas.push_back(c.faltas.empty() ? Falta{p.campo, p.texto, {}, p.mensaje} : c.faltas.front());
  }
  if (!pendientes.empty()) MuestraSoloDatos(c);
  return faltas;
}

// The faults of refused texts, then those of a validation, with what they are of.
void Recoge(std::vector<Falta>& todas, Captura& c, int tramo, std::vector<Falta> rechazadas) {
  std::erase_if(c.faltas, [&](const Falta& f) {
    return std::ranges::find(rechazadas, f.campo, &Falta::campo) != rechazadas.end();
  });
  for (auto* faltas : {&rechazadas, &c.faltas}) {
    for (auto& falta : *faltas) {
      falta.tramo = tramo;
      todas.push_back(std::move(falta));
    }
  }
  c.faltas.clear();
}

// Validates a Tramo of the shadow. @return it with what the rules complete; as it was with a fault
TramoFijo Completo(Captura& c, const TramoFijo& t, std::vector<Falta>& faltas) {
  if (!t->dano.empty()) {
    faltas.push_back({Ed::edTramo, t->numero, {}, t->dano, t->id});
    return t;
  }
  PonEnMano(c, t->id);
  auto rechazadas = Reintenta(c, t->pendientes);
  const bool vale = ValidaTramo(c) && rechazadas.empty();
  Recoge(faltas, c, t->id, std::move(rechazadas));
  if (!vale) return t;
  auto completo = std::make_shared<TramoEnObra>(*t);
  completo->datos = c.e.tramo;
  completo->pendientes.clear();
  return *completo == *t ? t : completo;
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
  return std::ranges::none_of(faltas,
                              [id](const Falta& f) { return f.tramo == 0 || f.tramo == id; });
}

Comprobado Comprueba(const Version& version, const std::vector<int>& ids, const Catalogo& textos,
                     const TablasCatalogo& tablas, char separador) {
  Comprobado r;
  Sombra sombra(textos, tablas, separador);
  Captura& c = sombra.c;
  VuelveA(c, version, 0);
  auto rechazadas = Reintenta(c, version.pendientes);
  ValidaObra(c);
  Recoge(r.faltas, c, 0, std::move(rechazadas));
  auto tramos = c.version.tramos;
  for (auto& t : tramos) {
    if (std::ranges::find(ids, t->id) != ids.end()) t = Completo(c, t, r.faltas);
  }
  r.version = std::move(c.version);
  r.version.tramos = std::move(tramos);
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
    if (!t->numero.empty() || !t->dano.empty()) ids.push_back(t->id);
  }
  return ids;
}

bool MuestraFaltas(Captura& c, std::vector<Falta> faltas) {
  if (!faltas.empty()) LlevaALaFalta(c, faltas.front());
  c.faltas = std::move(faltas);
  return !c.faltas.empty();
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
