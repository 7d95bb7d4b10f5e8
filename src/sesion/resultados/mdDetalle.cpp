#include "sesion/resultados/mdDetalle.h"

#include <algorithm>

#include "base/mdTextos.h"
#include "base/textos.h"
#include "calculo/anillo/mdAnilloCaso.h"
#include "calculo/postesado/mdHipotesis.h"
#include "listados/dibujos/mdDibujoAnillo.h"
#include "listados/obra/mdVeredictoCaso.h"
#include "sesion/resultados/mdDiseno.h"
#include "sesion/resultados/mdEscribeDetalle.h"

namespace zorbin {

namespace {

constexpr std::string_view kPorM = " cm²/m";

void DetallaCaso(EscribeDetalle& d, const CasoDibujado& c) {
  const auto& f = c.fila;
  const auto& w = d.Palabras();
  d.Grupo(txt::ResCaso);
  d.Texto(txt::ResCol[0], w.TramoEnLetra(c.Datos()));
  d.Numero("Hr", f.Hr, 2, {}, " m");
  d.Numero("DP", f.DP, 0, kPresion);
  d.Numero("MDP", f.MDP, 0, kPresion);
  d.Numero("STP", f.STP, 0, kPresion);
  d.Numero("PP", f.PP, 0, kPresion);
  d.Texto(txt::ResCol[1], VeredictoConUso(f, w));
  if (const auto motivo = MotivoDe(c, w); !motivo.empty()) d.Texto(txt::ResMotivo, motivo);
  const int rige = HipotesisQueRige(c.tramo.datos, f);
  if (rige > 0) {
    d.Texto(txt::ResCol[2], TextoEntero(rige) + " · " + w.Hipotesis(c.caso.EsArmado(), rige));
  }
  for (const auto& aviso : AvisosDe(c, w)) d.Texto(txt::ResAviso, aviso);
}

void DetallaCargas(EscribeDetalle& d, const CasoDibujado& c) {
  const auto& altura = c.tramo.Altura(c.fila);
  const auto& q = altura.cargas;
  d.Grupo(txt::ResCargas);
  d.Numero(txt::ResCarga[0], q.Q, 2, kCarga);
  d.Numero(txt::ResCarga[1], q.Q - q.QMovil, 2, kCarga);
  d.Numero(txt::ResCarga[2], q.QMovil, 2, kCarga);
  d.Numero(txt::ResCarga[3], q.Impacto, 3);
  d.Numero(txt::ResCarga[4], q.QTerraplen, 2, kCarga);
  d.Numero(txt::ResCarga[5], q.QTierras, 2, kCarga);
  d.Numero(txt::ResCarga[6], altura.Landa, 3);
  if (!altura.contraste) return;
  const auto contraste = [&d](int nombre, const CargaContrastada& x) {
    d.Numero(nombre, x.completa, 2, kCarga);
  };
  contraste(txt::ResCarga[7], altura.contraste->adoptada);
  contraste(txt::ResCarga[8], altura.contraste->terraplen);
}

void DetallaArmado(EscribeDetalle& d, const CasoDibujado& c) {
  const auto& r = c.caso.Armado();
  const auto& w = d.Palabras();
  const auto acero = AceroDe(c);
  d.Grupo(txt::ResArmadura);
  const auto cara = [&](int nombre, const AceroCara& x) {
    if (x.necesaria) {
      d.Numero(w.T(nombre) + ", " + w.T(txt::ResNecesaria), *x.necesaria, 2, {}, kPorM);
    }
    d.Numero(w.T(nombre) + ", " + w.T(txt::ResDispuesta), x.dispuesta, 2, {}, kPorM);
  };
  cara(txt::ResInterior, acero.interior);
  d.Texto(txt::ResInterior, ObraInterior(c, w));
  cara(txt::ResExterior, acero.exterior);
  d.Texto(txt::ResExterior, ObraExterior(c, w));
  cara(txt::ResTotal, acero.total);
  d.Numero(txt::ResBrazo, r.BRAZO * 1000.0, 1, {}, " mm");
  if (r.TensionAdm > 0) {
    d.Numero(txt::ResFisuracion[0], r.TensionMax, 1, kTension);
    d.Numero(txt::ResFisuracion[1], r.TensionAdm, 1, kTension);
  }
  if (r.sinFisuracion.AsInt > 0) {
    d.Numero(txt::ResFisuracion[2], r.sinFisuracion.AsInt, 2, {}, kPorM);
    d.Numero(txt::ResFisuracion[3], r.sinFisuracion.AsExt, 2, {}, kPorM);
  }
  d.Grupo(txt::ResAceroPorHipotesis);
  for (int h = 1; h <= kHipotesisArmado; ++h) {
    const auto& fila = r.TablaHip(h);
    d.Texto(TextoEntero(h) + " · " + w.Hipotesis(true, h),
            d.Valor(fila.AsInt, 2) + " + " + d.Valor(fila.AsExt, 2) + " = " +
                d.Valor(fila.Total, 2) + std::string(kPorM));
  }
}

void DetallaEsfuerzos(EscribeDetalle& d, const CasoDibujado& c) {
  const auto& w = d.Palabras();
  for (int h = 1; h <= CuentaHipotesis(c.tramo.datos); ++h) {
    const auto anillo = AnilloDe(c.tramo, c.fila, c.caso, h);
    if (anillo.sinMomento && anillo.presion == 0) continue;
    d.Grupo(w.T(txt::ResEsfuerzos) + " · " + TextoEntero(h) + " " +
            w.Hipotesis(c.caso.EsArmado(), h));
    for (int s = 1; s <= kSecciones; ++s) {
      d.Texto(txt::DibSeccionAnillo[static_cast<std::size_t>(s - 1)],
              "M " + d.Valor(anillo.M(s), 3, kMomento) + "/m · N " +
                  d.Valor(anillo.N(s), 2, kFuerza) + "/m");
    }
    for (const auto& exceso : TextoExcesos(anillo, w)) d.Texto(txt::ResAviso, exceso);
  }
}

}  // namespace

Detalle DetalleDe(const CasoDibujado& c, const PalabrasDibujo& palabras) {
  EscribeDetalle d(palabras);
  DetallaCaso(d, c);
  if (c.caso.EsArmado()) {
    DetallaArmado(d, c);
  } else {
    DetallaPostesado(d, c);
  }
  DetallaCargas(d, c);
  DetallaEsfuerzos(d, c);
  return d.Toma();
}

std::vector<FilaComparada> Compara(const Detalle& a, const Detalle& b) {
  std::vector<FilaComparada> filas;
  const auto busca = [&filas](const std::string& grupo, const std::string& nombre, bool libre) {
    return std::ranges::find_if(filas, [&](const FilaComparada& f) {
      return f.grupo == grupo && f.nombre == nombre && (!libre || f.b.empty());
    });
  };
  for (const auto& g : a) {
    for (const auto& f : g.filas) filas.push_back({g.titulo, f.nombre, f.valor, {}});
  }
  for (const auto& g : b) {
    for (const auto& f : g.filas) {
      if (const auto i = busca(g.titulo, f.nombre, true); i != filas.end()) {
        i->b = f.valor;
        continue;
      }
      const auto ultima = std::find_if(filas.rbegin(), filas.rend(),
                                       [&](const auto& x) { return x.grupo == g.titulo; });
      filas.insert(ultima == filas.rend() ? filas.end() : ultima.base(),
                   {g.titulo, f.nombre, {}, f.valor});
    }
  }
  return filas;
}

// ---------------------------------------------------------------------------------------------
// Checks

namespace {

std::size_t ColumnaDe(const ComprobacionCaso& c) {
  if (c.seccion < CLAVE || c.seccion > SOLERA || c.cara == CaraPared::Ninguna) {
    return kColumnasMatriz - 1;
  }
  return static_cast<std::size_t>(2 * (c.seccion - 1) + (c.cara == CaraPared::Exterior ? 1 : 0));
}

}  // namespace

std::vector<FilaMatriz> MatrizDe(const CasoDibujado& c, const PalabrasDibujo& w) {
  const PalabrasCaso palabras(w.Textos(), w.Estilo());
  std::vector<FilaMatriz> filas;
  for (int h = 0; h <= CuentaHipotesis(c.tramo.datos); ++h) filas.push_back({h, {}});
  for (const auto& x : c.caso.verificacion.comprobaciones) {
    auto& celda = filas[static_cast<std::size_t>(x.hipotesis)].celdas[ColumnaDe(x)];
    celda.uso = std::max(celda.uso.value_or(0.0), x.uso);
    celda.comprobaciones.push_back(palabras.Comprobacion(x, c.caso.EsArmado()));
  }
  std::erase_if(filas, [](const FilaMatriz& f) {
    return std::ranges::none_of(f.celdas, [](const auto& x) { return x.uso.has_value(); });
  });
  return filas;
}

std::string CabezaMatriz(int columna, const PalabrasDibujo& w) {
  if (columna == kColumnasMatriz - 1) return w.T(txt::ResDelCaso);
  return w.T(txt::DibSeccionAnillo[static_cast<std::size_t>(columna / 2)]) + "\n" +
         w.T(columna % 2 == 0 ? txt::ResInterior : txt::ResExterior);
}

std::string TextoUso(double uso, const PalabrasDibujo& w) {
  return std::isfinite(uso) ? w.Numero(uso, 3) : "∞";
}

}  // namespace zorbin
