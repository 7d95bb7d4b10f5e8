#include "sesion/trabajo/mdTrabajo.h"

#include <algorithm>
#include <iterator>

#include "base/mdNumeros.h"
#include "base/mdTextos.h"
#include "base/textos.h"
#include "calculo/corrida/mdCalculaObra.h"
#include "calculo/corrida/mdCalculaTramo.h"
#include "listados/obra/mdAvisos.h"
#include "listados/obra/mdDocumento.h"
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

void Calculo::Rompe(std::size_t i, std::size_t fila, const ErrorEjecucion& error) {
  auto& r = tramos[i];
  if (fila >= r.filas.size()) throw error;
  const FilaCaso f = r.filas[fila];
  r.filas.resize(fila);
  r.fallo = FalloCorrida{error, f.NumCaso, f.Hr, f.DP, f.MDP, true};
  fallos[i] = Fallo(r, numeros[i], encargo);
}

Calculo CalculaEncargo(Encargo encargo, const Sigue& sigue, const std::filesystem::path& registros,
                       int hilos) {
  Calculo calculo;
  FicheroLog log(registros);
  Avance avance;
  avance.posiciones = static_cast<int>(encargo.tramos.size());
  TareaObra tarea;
  tarea.cuantos = encargo.tramos.size();
  tarea.registro = &log.registro();
  tarea.datos = [&](std::size_t i) { return encargo.tramos[i].datos; };
  tarea.sigue = [&](std::size_t i, const AvanceCorrida& a) {
    avance.posicion = static_cast<int>(i) + 1;
    avance.tramo = encargo.tramos[i].datos.tramo.NumeroTramo;
    avance.caso = a.caso;
    avance.casos = a.casos;
    return !sigue || sigue(avance);
  };
  tarea.toma = [&](std::size_t i, ResultadoTramo&& r) {
    const auto& numero = encargo.tramos[i].numero;
    calculo.numeros.push_back(numero);
    calculo.ids.push_back(encargo.tramos[i].id);
    calculo.fallos.push_back(Fallo(r, numero, encargo));
    if (r.cancelado) Cancela(calculo, avance);
    calculo.tramos.push_back(std::move(r));
    return true;
  };
  if (!CalculaObra(tarea, hilos) && calculo.fin != FinTrabajo::Cancelado) {
    Cancela(calculo, avance);
  }
  log.registro().Vuelca();
  calculo.sinRegistro = log.SinEscribir();
  encargo.tramos.clear();
  calculo.encargo = std::move(encargo);
  return calculo;
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
