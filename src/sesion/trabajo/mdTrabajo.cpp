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
#include "persistencia/dpe/mdDpe.h"
#include "sesion/captura/mdAjustesTramo.h"
#include "sesion/captura/mdCiclo.h"
#include "sesion/captura/mdEtiquetas.h"
#include "sesion/captura/mdOrdenes.h"
#include "sesion/captura/mdPresenta.h"
#include "sesion/captura/mdTipologias.h"
#include "sesion/captura/mdValidaObra.h"
#include "sesion/captura/mdValidaTramo.h"

namespace zorbin {

namespace {

// ---------------------------------------------------------------------------------------------
// What is to be calculated

// Takes the data of Tramos out of the capture, with the hand adjustments of each.
class Encargante {
 public:
  explicit Encargante(const Captura& c) : c_(c) {
    encargo.textos = c.textos;
    encargo.estilo = {c.EsSI(), c.SeparadorDecimal};
    encargo.fichero = std::filesystem::path(c.e.obra.NombreFichero).filename().string();
    try {
      ajustes_ = LeeAjustes(RutaDpe(c.e.obra.NombreFichero));
    } catch (const ErrorFichero& error) {  // it takes nothing else with it
      encargo.sinAjustes = TextoDeError(c, error);
    }
  }

  /// The Tramo of the capture. `mostrado` is the number of the listing.
  void Toma(const std::string& numero, std::int16_t mostrado) {
    Tramo tramo = c_.e.tramo;
    tramo.NumeroTramo = mostrado;
    std::vector<EntradaAjuste> suyos;
    std::copy_if(ajustes_.begin(), ajustes_.end(), std::back_inserter(suyos),
                 [mostrado](const EntradaAjuste& x) { return x.Tramo == mostrado; });
    encargo.tramos.push_back(
        {DatosDeCalculo(c_.e.obra, tramo, std::move(suyos), !encargo.sinAjustes.empty()), numero});
  }

  Encargo encargo;

 private:
  const Captura& c_;
  std::vector<EntradaAjuste> ajustes_;
};

// A message of several lines, with its title, in one line.
std::string Causa(const Falta& falta) {
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

std::vector<int> Posiciones(const ListaTramos& lista) {
  std::vector<int> posiciones;
  for (std::size_t i = 0; i < lista.size(); ++i) {
    if (!lista[i].empty()) posiciones.push_back(static_cast<int>(i) + 1);
  }
  return posiciones;
}

// The Tramo that the screen was left with is the one being modified.
void QuedaEnPantalla(Captura& c) {
  OlvidaCambios(c);
  if (!EnBlanco(c, Ed::edTramo)) {
    c.EstadoCaptura = std::string(kModificaciones);
    c[Ed::edTramo].bloqueado = true;
  }
  RenuevaTitulo(c);
  ActualizaMenus(c);
}

// What stands before the Tramos of an Obra are taken from its file.
bool PuedeRecorrerse(Captura& c) {
  const auto aviso = [&](int texto) {
    c.voz.Muestra(Texto(c, texto), Texto(c, txt::TituloAviso));
    return false;
  };
  if (c.EnCambio()) return aviso(txt::SalvePrimero);
  if (!ValidaObra(c)) return false;
  if (!c.fichero) return aviso(txt::DebeSalvarObra);
  if (!Posiciones(c.lista).empty()) return true;
  const auto fichero = std::filesystem::path(c.e.obra.NombreFichero).filename().string();
  c.voz.Muestra(c.textos.Compone(txt::ObraSinTramos, {fichero}), Texto(c, txt::TituloAviso));
  return false;
}

// Takes a Tramo of the file into the capture. @return why it is refused; what there was to show has
// been shown
std::optional<std::string> TraeTramo(Captura& c, int posicion) {
  try {
    LeeTramo(c, posicion);
  } catch (const ErrorFichero& error) {
    const std::string causa = TextoDeError(c, error);
    c.voz.Muestra(causa, {});
    return causa;
  }
  if (ValidaTramo(c, false)) return std::nullopt;
  return c.falta ? Causa(*c.falta) : std::string{};
}

void TomaTramos(Captura& c, Encargante& encargante, const std::function<void()>& respira) {
  const auto posiciones = Posiciones(c.lista);
  // The same file gives the same listing, whatever was on the screen: a blank record keeps the
  // value of the Tramo before.
  LimpiaCaptura(c, 0);
  for (const int posicion : posiciones) {
    const std::string& numero = c.lista[static_cast<std::size_t>(posicion - 1)];
    if (const auto causa = TraeTramo(c, posicion)) {
      encargante.encargo.detenido = c.textos.Compone(txt::TrabajoDetenido, {numero, *causa});
      return;
    }
    encargante.Toma(numero, I16(NumeroTexto(numero).value_or(0.0)));
    if (respira) respira();
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
    case FinTrabajo::Detenido:
      return calculo.encargo.detenido;
    case FinTrabajo::Cancelado:
      return textos.Compone(txt::TrabajoCancelado, {TextoEntero(calculo.cancelado.tramo),
                                                    TextoEntero(calculo.cancelado.caso)});
  }
  return {};
}

}  // namespace

std::optional<Encargo> EncargaTramo(Captura& c) {
  if (!PreparaCalculo(c, false)) return std::nullopt;
  Encargante encargante(c);
  encargante.Toma(TextoEntero(c.e.tramo.NumeroTramo), c.e.tramo.NumeroTramo);
  return std::move(encargante.encargo);
}

std::optional<Encargo> EncargaObra(Captura& c, const std::function<void()>& respira) {
  if (!PuedeRecorrerse(c)) return std::nullopt;
  c.e.obra.NombreObra = c[Ed::edObra].texto;
  Encargante encargante(c);
  TomaTramos(c, encargante, respira);
  QuedaEnPantalla(c);
  return std::move(encargante.encargo);
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
  if (!encargo.detenido.empty()) calculo.fin = FinTrabajo::Detenido;
  for (const auto& [datos, numero] : encargo.tramos) {
    avance.posicion = static_cast<int>(calculo.tramos.size()) + 1;
    avance.tramo = datos.tramo.NumeroTramo;
    calculo.tramos.push_back(CalculaTramo(datos, RangoDe(datos), pregunta, &log.registro()));
    calculo.numeros.push_back(numero);
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
