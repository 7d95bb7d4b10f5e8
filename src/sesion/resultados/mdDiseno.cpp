#include "sesion/resultados/mdDiseno.h"

#include <algorithm>

#include "base/textos.h"
#include "calculo/anillo/mdAnilloCaso.h"
#include "listados/obra/mdAvisos.h"
#include "listados/obra/mdVeredictoCaso.h"

namespace zorbin {

namespace {

VistaCaso VistaDe(const CasoDibujado& c) {
  return {c.tramo, c.fila, c.tramo.Altura(c.fila), c.caso, true, true, true};
}

PalabrasCaso PalabrasDe(const PalabrasDibujo& w) {
  return {w.Textos(), w.Estilo(), NombresHipotesis::Resumen};
}

std::string EnLinea(std::string texto) {
  std::ranges::replace(texto, '\n', ' ');
  std::erase(texto, '\r');
  return texto;
}

Diseno SinDiseno(Diseno d, std::string motivo) {
  d.motivo = EnLinea(std::move(motivo));
  return d;
}

// Why a run left no Caso.
std::string PorQueNada(const ResultadoTramo& r, const Catalogo& textos) {
  return r.fallo ? TextoCausa(r.fallo->error, textos) : textos.Texto(txt::SinNingunCaso);
}

}  // namespace

std::shared_ptr<const CasoConTramo> CasoConSuTramo(const ResultadoTramo& tramo,
                                                   const FilaCaso& fila) {
  auto c = std::make_shared<CasoConTramo>();
  c->fila = fila;
  c->caso = CasoEntero(tramo, fila);
  // A long run stays with whoever has it: of it, a Caso asks for its height alone.
  c->tramo.datos = tramo.datos;
  c->tramo.rango = tramo.rango;
  c->tramo.TablaCargas = tramo.TablaCargas;
  c->tramo.unMetro = tramo.unMetro;
  c->tramo.radios = tramo.radios;
  c->tramo.materiales = tramo.materiales;
  c->tramo.hayCabecera = tramo.hayCabecera;
  c->tramo.alturas = {tramo.Altura(fila)};
  c->fila.altura = 0;
  return c;
}

std::optional<Diseno> CalculaDiseno(const PedidoDiseno& p, const std::function<bool()>& sigue) {
  const auto va = [&sigue] { return !sigue || sigue(); };
  Diseno d;
  d.id = p.id;
  d.si = p.version.obra.EsSI();
  const auto comprobado = Comprueba(p.version, {p.id}, *p.textos, *p.tablas, p.separador);
  if (!va()) return std::nullopt;
  if (!comprobado.Vale(p.id)) {
    const auto falta = std::ranges::find_if(
        comprobado.faltas, [&](const Falta& f) { return f.tramo == 0 || f.tramo == p.id; });
    const bool conTitulo = !falta->titulo.empty();
    return SinDiseno(d, (conTitulo ? falta->titulo + ": " : std::string{}) + falta->mensaje);
  }
  const auto* t = Busca(comprobado.version, p.id);
  if (t == nullptr) return SinDiseno(d, p.textos->Texto(txt::SinTramo));
  const auto datos = DatosDeCalculo(comprobado.version.obra, t->datos, t->ajustes, p.sinAjustes);
  try {
    auto r = CalculaTramo(datos, RangoDe(datos), [&](const AvanceCorrida&) { return va(); });
    if (r.cancelado) return std::nullopt;
    const auto cuenta = CuentaDeVeredictos(r);
    d.veredicto = cuenta.veredicto;
    d.casos = cuenta.casos;
    if (p.caso) {
      const auto uno = CalculaTramo(datos, RangoDeUnCaso(datos, p.caso->Hr, p.caso->DP));
      if (uno.filas.empty()) return SinDiseno(d, PorQueNada(uno, *p.textos));
      d.elegido = true;
      d.caso = CasoConSuTramo(uno, uno.filas.front());
      return d;
    }
    if (cuenta.peor == nullptr) return SinDiseno(d, PorQueNada(r, *p.textos));
    d.caso = CasoConSuTramo(r, *cuenta.peor);
    return d;
  } catch (const ErrorEjecucion& error) {
    return SinDiseno(d, TextoCausa(error, *p.textos));
  }
}

// ---------------------------------------------------------------------------------------------
// At a glance

std::vector<BarraHipotesis> BarrasDe(const CasoDibujado& c) {
  const auto& datos = c.tramo.datos;
  const int rige = HipotesisQueRige(datos, c.fila);
  std::vector<BarraHipotesis> barras;
  for (int h = 1; h <= CuentaHipotesis(datos); ++h) {
    BarraHipotesis b{h, std::nullopt, h == rige};
    if (c.caso.EsArmado()) {
      b.valor = c.caso.Armado().TablaHip(h).Total;
    } else {
      for (const auto& x : c.caso.verificacion.comprobaciones) {
        if (x.hipotesis == h) b.valor = std::max(b.valor.value_or(0.0), x.uso);
      }
    }
    barras.push_back(b);
  }
  return barras;
}

AceroCaso AceroDe(const CasoDibujado& c) {
  AceroCaso a;
  a.interior.dispuesta = c.fila.AsInt;
  a.exterior.dispuesta = c.fila.AsExt;
  a.total.dispuesta = c.fila.Total;
  const auto pide = [](AceroCara& cara, double valor) {
    cara.necesaria = std::max(cara.necesaria.value_or(0.0), valor);
  };
  for (const auto& x : c.caso.verificacion.comprobaciones) {
    const bool deCara = x.que == QueComprueba::Armadura || x.que == QueComprueba::ArmaduraMinima;
    if (deCara && x.cara == CaraPared::Interior) pide(a.interior, x.valor);
    if (deCara && x.cara == CaraPared::Exterior) pide(a.exterior, x.valor);
    if (x.que == QueComprueba::PruebaFabrica) pide(a.total, x.valor);
  }
  if (a.interior.necesaria && a.exterior.necesaria) {
    pide(a.total, *a.interior.necesaria + *a.exterior.necesaria);
  }
  return a;
}

std::string ObraInterior(const CasoDibujado& c, const PalabrasDibujo& w) {
  const auto& f = c.fila;
  if (!c.caso.EsArmado()) {
    if (f.NESPIN <= 0) return "-";
    return w.Con(txt::DibAlambre, {w.Corto(f.FIIN, 1), w.Corto(f.NESPIN, 1)});
  }
  if (c.caso.Armado().HayAjuste()) return w.T(txt::ResAjustada);
  std::string texto;
  if (f.CAMISA > 0) texto = w.Con(txt::DibChapa, {w.Corto(f.CAMISA, 1)});
  if (f.NESPIN > 0) {
    texto += (texto.empty() ? "" : " + ") +
             w.Con(txt::DibBarras, {w.Corto(f.NESPIN, 0), w.Corto(f.FIIN, 0)});
  }
  return texto.empty() ? "-" : texto;
}

std::string ObraExterior(const CasoDibujado& c, const PalabrasDibujo& w) {
  const auto& f = c.fila;
  if (!c.caso.EsArmado()) return "-";
  if (c.caso.Armado().HayAjuste()) return w.T(txt::ResAjustada);
  if (f.NEXPEX <= 0) return "-";
  return w.Con(txt::DibBarras, {w.Corto(f.NEXPEX, 0), w.Corto(f.FIEX, 0)});
}

std::string VeredictoConUso(const FilaCaso& fila, const PalabrasDibujo& w) {
  const auto palabras = PalabrasDe(w);
  const auto& v = fila.verificacion;
  const auto uso = palabras.Uso(v);
  const auto& veredicto = palabras.Veredicto(v.veredicto);
  return uso == "-" ? veredicto : veredicto + " · " + w.Con(txt::ResUso, {uso});
}

std::string MotivoDe(const CasoDibujado& c, const PalabrasDibujo& w) {
  return PalabrasDe(w).Motivo(VistaDe(c));
}

std::vector<std::string> AvisosDe(const CasoDibujado& c, const PalabrasDibujo& w) {
  std::vector<std::string> lineas;
  const auto& avisos = c.caso.avisos;
  const auto sale = [](const Aviso& a) { return a.fase == FaseAviso::Final; };
  for (std::size_t i = 0; i < avisos.size(); ++i) {
    if (!sale(avisos[i]) || DichoAntes(avisos, i, sale)) continue;
    lineas.push_back(EnLinea(TextoAviso(avisos[i], w.Textos())));
  }
  if (auto texto = PalabrasDe(w).Avisos(VistaDe(c)); !texto.empty()) {
    lineas.push_back(std::move(texto));
  }
  return lineas;
}

}  // namespace zorbin
