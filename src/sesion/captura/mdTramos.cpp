#include "sesion/captura/mdTramos.h"

#include <algorithm>

#include "base/mdNumeros.h"
#include "base/mdTextos.h"
#include "base/textos.h"
#include "sesion/captura/mdEtiquetas.h"
#include "sesion/captura/mdOrdenes.h"
#include "sesion/captura/mdPresenta.h"
#include "sesion/captura/mdTipologias.h"

namespace zorbin {

namespace {

bool Esta(const std::vector<int>& ids, int id) {
  return std::ranges::find(ids, id) != ids.end();
}

std::string TextoTipologia(const Captura& c, int tipologia) {
  const std::string armado = SinMarcas(Texto(c, txt::PagArmado));
  if (tipologia < kPrimeraPostesada) return armado;
  const int camisa = tipologia == kRevestida ? txt::OpcionRevestida : txt::OpcionEmbebida;
  return SinMarcas(Texto(c, txt::PagPostesado)) + ", " + Texto(c, camisa);
}

RenglonTramo Renglon(const Captura& c, const TramoEnObra& t, bool sinGrabar) {
  if (!t.dano.empty()) return {t.id, t.numero, t.dano, {}, {}, {}, {}, false, true};
  const int colocacion = txt::OpcionZanja + std::clamp<int>(t.datos.TipoColocacion, 0, 2);
  return {t.id,
          t.numero,
          t.datos.DescriTramo,
          TextoTipologia(c, t.datos.Tipologia),
          t.datos.Di > 0 ? Formato(c, t.datos.Di, "#####0.000") : std::string{},
          t.datos.Esp > 0 ? Formato(c, t.datos.Esp, "#####0.0") : std::string{},
          Texto(c, colocacion),
          sinGrabar,
          !t.pendientes.empty()};
}

// What keeps so many Tramos more from fitting is told.
bool HaySitio(Captura& c, std::size_t cuantos) {
  if (Caben(c.version, cuantos)) return true;
  c.voz.Muestra(c.textos.Compone(txt::DemasiadosTramos, {TextoEntero(kMaxTramos)}), {});
  return false;
}

TramoFijo ConNumero(TramoEnObra t, int numero) {
  t.numero = TextoEntero(numero);
  t.datos.NumeroTramo = static_cast<std::int16_t>(numero);
  for (auto& ajuste : t.ajustes) ajuste.Tramo = numero;
  return std::make_shared<TramoEnObra>(std::move(t));
}

void MuestraPendientes(Captura& c, const std::vector<TextoPendiente>& pendientes) {
  for (const auto& p : pendientes) {
    auto& control = c[p.campo];
    control.texto = p.texto;
    control.falta = p.mensaje;
    control.rehusado = true;
  }
}

// A change of the list itself: what is in hand goes into its version first, and is shown anew.
template <class F>
void CambiaLista(Captura& c, const F& cambia) {
  c.version = VersionActual(c);
  cambia(c.version);
  MuestraListaTramos(c);
  PonEnMano(c, LugarDe(c.version, c.enMano) ? c.enMano : 0);
}

std::string NombreDeIds(const Captura& c, int texto, const std::vector<int>& ids) {
  if (ids.size() != 1) return c.textos.Compone(texto, {TextoEntero(static_cast<int>(ids.size()))});
  const auto* t = Busca(c.version, ids.front());
  return c.textos.Compone(texto, {t == nullptr ? std::string{} : t->numero});
}

// Another order of the same Tramos, as one step. @return whether it is another
bool PonOrden(Captura& c, std::vector<TramoFijo> tramos, const std::vector<int>& movidos) {
  if (tramos == c.version.tramos) return false;
  const EnUnPaso paso(c, NombreDeIds(c, txt::PasoMueve, movidos));
  CambiaLista(c, [&](Version& v) {
    // The order asked for, with what is in hand by now.
    for (auto& t : tramos) t = v.tramos[*LugarDe(v, t->id)];
    v.tramos = tramos;
  });
  return true;
}

}  // namespace

void PonEnMano(Captura& c, int id) {
  const auto* t = Busca(c.version, id);
  const bool hay = t != nullptr && t->dano.empty();
  c.enMano = hay ? id : 0;
  c.e.tramo = hay ? t->datos : Tramo{};
  if (!hay) LimpiaCaptura(c, 0);
  MuestraTodo(c);
}

void MuestraTodo(Captura& c) {
  MuestraListaTramos(c);
  const auto* t = Busca(c.version, c.enMano);
  if (t != nullptr) {
    Escribe(c, Ed::edTramo, t->numero);
    Escribe(c, Ed::edTramo2, t->numero);
    MuestraTramo(c);
    MuestraPendientes(c, t->pendientes);
  }
  MuestraPendientes(c, c.version.pendientes);
  RenuevaTitulo(c);
  ActualizaMenus(c);
}

bool NuevoTramo(Captura& c) {
  if (!HaySitio(c, 1)) return false;
  const int numero = NumeroLibre(c.version);
  const EnUnPaso paso(c, c.textos.Compone(txt::PasoNuevoTramo, {TextoEntero(numero)}));
  c.version = VersionActual(c);
  c.enMano = 0;
  c.e.tramo = Tramo{};
  LimpiaCaptura(c, 0);
  PonTipologia(c, kArmada);
  DefectosArmado(c);
  TramoEnObra t;
  t.id = ++c.ultimoId;
  t.datos = c.e.tramo;
  c.version.tramos.push_back(ConNumero(std::move(t), numero));
  PonEnMano(c, c.ultimoId);
  c.pantalla.pagina.TabPrincipal = std::max(c.pantalla.pagina.TabPrincipal, 1);
  RenuevaTitulo(c);
  VaA(c, Ed::edDescriTramo);
  return true;
}

bool DuplicaTramos(Captura& c, const std::vector<int>& ids) {
  if (ids.empty() || !HaySitio(c, ids.size())) return false;
  const EnUnPaso paso(c, NombreDeIds(c, txt::PasoDuplica, ids));
  const int primero = c.ultimoId + 1;
  CambiaLista(c, [&](Version& v) {
    std::vector<TramoFijo> copias;
    std::size_t tras = 0;
    int numero = NumeroLibre(v);
    for (std::size_t i = 0; i < v.tramos.size(); ++i) {
      if (!Esta(ids, v.tramos[i]->id) || !v.tramos[i]->dano.empty()) continue;
      TramoEnObra copia = *v.tramos[i];
      copia.id = ++c.ultimoId;
      copias.push_back(ConNumero(std::move(copia), numero++));
      tras = i + 1;
    }
    v.tramos.insert(v.tramos.begin() + static_cast<std::ptrdiff_t>(tras), copias.begin(),
                    copias.end());
  });
  if (c.ultimoId >= primero) PonEnMano(c, primero);
  return c.ultimoId >= primero;
}

void AnadeTramos(Captura& c, std::vector<TramoEnObra> tramos, std::string nombre) {
  if (tramos.empty()) return;
  const EnUnPaso paso(c, std::move(nombre));
  const int primero = c.ultimoId + 1;
  CambiaLista(c, [&](Version& v) {
    for (auto& t : tramos) {
      t.id = ++c.ultimoId;
      v.tramos.push_back(ConNumero(std::move(t), NumeroLibre(v)));
    }
  });
  PonEnMano(c, primero);
}

void BorraTramos(Captura& c, const std::vector<int>& ids) {
  if (ids.empty()) return;
  const EnUnPaso paso(c, NombreDeIds(c, txt::PasoBorra, ids));
  int siguiente = c.enMano;
  CambiaLista(c, [&](Version& v) {
    const auto lugar = LugarDe(v, c.enMano);
    std::erase_if(v.tramos, [&](const TramoFijo& t) { return Esta(ids, t->id); });
    if (LugarDe(v, c.enMano) || v.tramos.empty()) return;
    siguiente = v.tramos[std::min(lugar.value_or(0), v.tramos.size() - 1)]->id;
  });
  PonEnMano(c, siguiente);
}

bool MueveTramos(Captura& c, const std::vector<int>& ids, int paso) {
  auto tramos = c.version.tramos;
  const auto mueve = [&](auto primero, auto ultimo) {
    // From the end that they move to, so that neighbours move together.
    for (auto i = primero; i != ultimo; ++i) {
      if (!Esta(ids, (*i)->id)) continue;
      if (i == primero || Esta(ids, (*std::prev(i))->id)) continue;
      std::iter_swap(std::prev(i), i);
    }
  };
  paso < 0 ? mueve(tramos.begin(), tramos.end()) : mueve(tramos.rbegin(), tramos.rend());
  return PonOrden(c, std::move(tramos), ids);
}

bool LlevaTramos(Captura& c, const std::vector<int>& ids, int antesDe) {
  std::vector<TramoFijo> llevados;
  std::vector<TramoFijo> tramos;
  std::optional<std::size_t> sitio;
  for (const auto& t : c.version.tramos) {
    if (t->id == antesDe) sitio = tramos.size();
    (Esta(ids, t->id) ? llevados : tramos).push_back(t);
  }
  const auto donde = static_cast<std::ptrdiff_t>(sitio.value_or(tramos.size()));
  tramos.insert(tramos.begin() + donde, llevados.begin(), llevados.end());
  return PonOrden(c, std::move(tramos), ids);
}

std::string RenumeraTramo(Captura& c, int id, const std::string& texto) {
  const auto leido = NumeroTecleado(texto, c.SeparadorDecimal);
  const int numero = NumeroDe(texto);
  if (!leido.valor || numero < 1 || *leido.valor != numero) {
    return c.textos.Compone(txt::NumeroDeTramoMalo, {texto, TextoEntero(kMayorNumeroDeTramo)});
  }
  const auto otro = LugarDeNumero(c.version, numero);
  if (otro && c.version.tramos[*otro]->id != id) {
    return c.textos.Compone(txt::NumeroDeTramoTomado, {TextoEntero(numero)});
  }
  const EnUnPaso paso(c, NombreDeIds(c, txt::PasoRenumera, {id}));
  CambiaLista(c, [&](Version& v) {
    if (const auto lugar = LugarDe(v, id)) v.tramos[*lugar] = ConNumero(*v.tramos[*lugar], numero);
  });
  return {};
}

void RenumeraTodos(Captura& c) {
  const EnUnPaso paso(c, Texto(c, txt::PasoRenumeraTodos));
  CambiaLista(c, [](Version& v) {
    int numero = 0;
    for (auto& t : v.tramos) {
      if (!t->numero.empty()) t = ConNumero(*t, ++numero);
    }
  });
}

void Relee(Captura& c) {
  if (c.SinTramoEnMano()) return;
  if (c.EnAltas()) return BorraTramos(c, {c.enMano});
  const EnUnPaso paso(c, NombreDeIds(c, txt::PasoRelee, {c.enMano}));
  Version guardada = c.guardada;
  CambiaUnidades(guardada, c.EsSI());
  TramoFijo antes = guardada.tramos[*LugarDe(guardada, c.enMano)];
  c.Tecleando = false;
  CambiaLista(c, [&](Version& v) {
    auto& t = v.tramos[*LugarDe(v, c.enMano)];
    // Its number may have gone to another Tramo meanwhile.
    const auto lugar = LugarDeNumero(v, NumeroDe(antes->numero));
    const bool tomado = lugar && v.tramos[*lugar]->id != c.enMano;
    t = tomado ? ConNumero(*antes, NumeroDe(t->numero)) : antes;
  });
}

SalidaCampo EligeTramo(Captura& c) {
  const auto* actual = Busca(c.version, c.enMano);
  if (actual != nullptr && c[Ed::edTramo].texto == actual->numero) return SalidaCampo::Pasa;
  if (EnBlanco(c, Ed::edTramo)) {
    if (actual != nullptr) Escribe(c, Ed::edTramo, actual->numero);
    return SalidaCampo::Pasa;
  }
  double valor = 0;
  if (!ValidaNumero(c, Ed::edTramo, 0.0, valor, txt::EtNumeroTramo)) return SalidaCampo::Queda;
  if (valor == 0.0) {
    Escribe(c, Ed::edTramo, actual == nullptr ? std::string{} : actual->numero);
    NuevoTramo(c);
    return SalidaCampo::Pasa;
  }
  const auto lugar = valor <= kMayorNumeroDeTramo && valor == Redondea(valor)
                         ? LugarDeNumero(c.version, static_cast<int>(valor))
                         : std::nullopt;
  if (!lugar) {
    Rechaza(c, Ed::edTramo, Texto(c, txt::NoExisteEseTramo));
    return SalidaCampo::Queda;
  }
  c[Ed::edTramo].falta.clear();
  c.version = VersionActual(c);
  PonEnMano(c, c.version.tramos[*lugar]->id);
  return SalidaCampo::Pasa;
}

std::vector<RenglonTramo> RenglonesTramos(const Captura& c) {
  const Version ahora = VersionActual(c);
  std::vector<RenglonTramo> renglones;
  for (const auto& t : ahora.tramos) {
    if (t->numero.empty() && t->dano.empty()) continue;
    const auto antes = LugarDe(c.guardada, t->id);
    const bool sinGrabar =
        !antes || (c.guardada.tramos[*antes] != t && *c.guardada.tramos[*antes] != *t);
    renglones.push_back(Renglon(c, *t, sinGrabar));
  }
  return renglones;
}

}  // namespace zorbin
