#include "sesion/trabajo/mdTrabajo.h"

#include <algorithm>
#include <iterator>
#include <sstream>

#include "base/mdNumeros.h"
#include "base/mdTextos.h"
#include "base/textos.h"
#include "calculo/corrida/mdCalculaTramo.h"
#include "listados/obra/mdAvisos.h"
#include "listados/obra/mdDocumento.h"
#include "listados/obra/mdResumen.h"
#include "sesion/captura/mdCiclo.h"
#include "sesion/captura/mdComprueba.h"

namespace zorbin {

namespace {

// ---------------------------------------------------------------------------------------------
// What is to be calculated

// A fault in one line.
std::string EnUnaLinea(const Falta& falta) {
  std::string texto = falta.titulo.empty() ? falta.mensaje : falta.titulo + ": " + falta.mensaje;
  std::string linea;
  for (const char letra : texto) {
    const bool blanco = letra == ' ' || letra == '\r' || letra == '\n';
    if (!blanco) {
      linea += letra;
    } else if (!linea.empty() && linea.back() != ' ') {
      linea += ' ';
    }
  }
  return std::string(Recorta(linea));
}

// The words and the file of an order without Tramos yet. Its language is that of the paper.
Encargo EncargoVacio(const Captura& c) {
  Encargo encargo;
  encargo.textos = c.textos;
  encargo.textos.PonIdioma(c.e.obra.Idioma);
  encargo.estilo = {c.EsSI(), c.SeparadorDecimal};
  encargo.fichero =
      c.fichero ? c.fichero->ruta().filename().string() : Texto(c, txt::ObraSinNombre);
  return encargo;
}

// Calculating is asked of an Obra that has a file: its listings name it.
bool TieneFichero(Captura& c) {
  return c.fichero || Graba(c);
}

// What was checked and complies, and what was not.
void LlenaEncargo(Encargo& encargo, const Captura& c, const Comprobado& comprobado,
                  const std::vector<int>& ids) {
  encargo.sinAjustes = c.sinAjustes;
  const auto& v = comprobado.version;
  for (const auto& t : v.tramos) {
    if (std::ranges::find(ids, t->id) == ids.end()) continue;
    if (!comprobado.Vale(t->id)) {
      const auto falta = std::ranges::find_if(
          comprobado.faltas, [&](const Falta& f) { return f.tramo == 0 || f.tramo == t->id; });
      encargo.rechazados.push_back(
          c.textos.Compone(txt::TramoConFaltas, {t->numero, EnUnaLinea(*falta)}));
      continue;
    }
    encargo.tramos.push_back(
        {DatosDeCalculo(v.obra, t->datos, t->ajustes, !c.sinAjustes.empty()), t->numero, t->id});
  }
}

// ---------------------------------------------------------------------------------------------
// Its results

std::string Fallo(const ResultadoTramo& r, const std::string& numero, const Encargo& encargo) {
  if (r.fallo) return TextoFallo(*r.fallo, encargo.fichero, numero, encargo.textos, encargo.estilo);
  if (r.filas.empty() && !r.cancelado) {
    return encargo.textos.Compone(txt::TramoSinNingunCaso, {numero});
  }
  return {};
}

void Cancela(Calculo& calculo, const Avance& en) {
  calculo.fin = FinTrabajo::Cancelado;
  calculo.cancelado = en;
}

// A Caso that cannot be written, since a number of it is none, ends its Tramo as one that cannot be
// calculated does. @param caso  of the Tramo, from 1
void Rompe(Calculo& calculo, std::size_t i, int caso, const ErrorEjecucion& error) {
  auto& r = calculo.tramos[i];
  const auto bien = static_cast<std::size_t>(std::max(0, caso - 1));
  if (bien >= r.filas.size()) throw error;
  const FilaCaso f = r.filas[bien];
  r.filas.resize(bien);
  r.fallo = FalloCorrida{error, f.NumCaso, f.Hr, f.DP, f.MDP, true};
  calculo.fallos[i] = Fallo(r, calculo.numeros[i], calculo.encargo);
}

// The end of the summary, where not everything was done.
std::string NotaFinal(const Calculo& calculo) {
  const auto& textos = calculo.encargo.textos;
  switch (calculo.fin) {
    case FinTrabajo::Completo:
      break;
    case FinTrabajo::Cancelado:
      return textos.Compone(txt::TrabajoCancelado, {TextoEntero(calculo.cancelado.tramo),
                                                    TextoEntero(calculo.cancelado.caso)});
  }
  return {};
}

}  // namespace

std::optional<Encargo> EncargaTramos(Captura& c, const std::vector<int>& ids) {
  auto comprobado = Comprueba(c, ids);
  const bool deLaObra =
      std::ranges::any_of(comprobado.faltas, [](const Falta& f) { return f.tramo == 0; });
  if (deLaObra || ids.size() == 1) {
    if (MuestraFaltas(c, comprobado.faltas)) return std::nullopt;
  }
  c.faltas = comprobado.faltas;
  if (!TieneFichero(c)) return std::nullopt;
  Encargo encargo = EncargoVacio(c);
  encargo.sinAjustes = c.sinAjustes;
  LlenaEncargo(encargo, c, comprobado, ids);
  return encargo;
}

std::optional<Encargo> EncargaTramo(Captura& c) {
  if (c.SinTramoEnMano()) return std::nullopt;
  return EncargaTramos(c, {c.enMano});
}

std::optional<Encargo> EncargaObra(Captura& c) {
  const auto ids = IdsDe(c.version);
  if (ids.empty()) {
    c.voz.Muestra(c.textos.Compone(txt::ObraSinTramos, {EncargoVacio(c).fichero}),
                  Texto(c, txt::TituloAviso));
    return std::nullopt;
  }
  return EncargaTramos(c, ids);
}

Encargo EncargaParaVer(const Captura& c) {
  Encargo encargo = EncargoVacio(c);
  encargo.textos = c.textos;
  const auto ids = IdsDe(c.version);
  LlenaEncargo(encargo, c, Comprueba(c, ids), ids);
  return encargo;
}

bool Calculo::HayPostesado() const {
  return std::any_of(tramos.begin(), tramos.end(),
                     [](const ResultadoTramo& r) { return !r.datos.tramo.EsArmado; });
}

std::vector<std::string> Calculo::Fallos() const {
  std::vector<std::string> dichos;
  std::copy_if(fallos.begin(), fallos.end(), std::back_inserter(dichos),
               [](const std::string& fallo) { return !fallo.empty(); });
  return dichos;
}

std::string Calculo::Aviso() const {
  std::string aviso = encargo.sinAjustes;
  if (sinRegistro.empty()) return aviso;
  if (!aviso.empty()) aviso += '\n';
  return aviso + encargo.textos.Compone(txt::SinRegistro, {sinRegistro});
}

Calculo CalculaEncargo(Encargo encargo, const Sigue& sigue,
                       const std::filesystem::path& registros) {
  Calculo calculo;
  FicheroLog log(registros);
  Avance avance;
  avance.posiciones = static_cast<int>(encargo.tramos.size());
  const auto pregunta = [&](const AvanceCorrida& a) {
    avance.caso = a.caso;
    avance.casos = a.casos;
    return !sigue || sigue(avance);
  };
  for (const auto& [datos, numero, id] : encargo.tramos) {
    avance.posicion = static_cast<int>(calculo.tramos.size()) + 1;
    avance.tramo = datos.tramo.NumeroTramo;
    calculo.tramos.push_back(CalculaTramo(datos, RangoDe(datos), pregunta, &log.registro()));
    calculo.numeros.push_back(numero);
    calculo.ids.push_back(id);
    calculo.fallos.push_back(Fallo(calculo.tramos.back(), numero, encargo));
    if (!calculo.tramos.back().cancelado) continue;
    Cancela(calculo, avance);
    break;
  }
  log.registro().Vuelca();
  calculo.sinRegistro = log.SinEscribir();
  encargo.tramos.clear();
  calculo.encargo = std::move(encargo);
  return calculo;
}

namespace {

// The first block of the summary; it is written last, for a Caso that cannot be written changes it.
std::string PrimerBloque(const Calculo& calculo) {
  std::ostringstream flujo;
  Pantalla pantalla(flujo);
  Resumen(pantalla, calculo.encargo.textos, calculo.encargo.estilo)
      .Veredictos(calculo.tramos, calculo.numeros);
  return std::move(flujo).str();
}

}  // namespace

std::string Resume(Calculo& calculo, const Sigue& sigue) {
  std::ostringstream flujo;
  Pantalla pantalla(flujo);
  Resumen resumen(pantalla, calculo.encargo.textos, calculo.encargo.estilo);
  const auto nota = [&pantalla](const std::string& texto) {
    if (!texto.empty()) pantalla.EscribePantalla(1, "** " + texto + " **", 2);
  };
  nota(calculo.encargo.sinAjustes);
  for (const auto& rechazado : calculo.encargo.rechazados) nota(rechazado);
  const auto tramos = calculo.tramos.size();
  for (std::size_t i = 0; i < tramos; ++i) {
    const auto& r = calculo.tramos[i];
    Avance avance{r.datos.tramo.NumeroTramo, 0, static_cast<int>(r.filas.size()),
                  static_cast<int>(i) + 1, static_cast<int>(tramos)};
    const auto pregunta = [&] {
      ++avance.caso;
      return !sigue || sigue(avance);
    };
    try {
      if (!resumen.Tramo(r, avance.posicion, calculo.numeros[i], pregunta)) {
        Cancela(calculo, avance);
        break;
      }
    } catch (const ErrorEjecucion& error) {
      Rompe(calculo, i, avance.caso, error);
    }
    nota(calculo.fallos[i]);
  }
  nota(NotaFinal(calculo));
  return PrimerBloque(calculo) + std::move(flujo).str();
}

void EscribeListado(const Calculo& calculo, TipoListado tipo, DestinoHojas& hojas,
                    const Fecha& fecha) {
  const auto& e = calculo.encargo;
  const Obra obra = calculo.tramos.empty() ? Obra{} : calculo.tramos.front().datos.obra;
  const DocumentoObra documento(
      tipo,
      {obra.NombreObra, obra.Cliente, std::filesystem::path(e.fichero).filename().string(),
       "ZORBIN " ZORBIN_VERSION, e.textos, e.estilo, fecha},
      [&](Listado& listado) {
        for (std::size_t i = 0; i < calculo.tramos.size(); ++i) {
          listado.Tramo(calculo.tramos[i], static_cast<int>(i) + 1, calculo.numeros[i], {});
        }
      });
  documento.Escribe(hojas);
}

}  // namespace zorbin
