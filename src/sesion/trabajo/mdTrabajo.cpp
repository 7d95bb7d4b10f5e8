#include "sesion/trabajo/mdTrabajo.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>
#include <sstream>

#include "base/mdNumeros.h"
#include "base/mdTextos.h"
#include "base/textos.h"
#include "core/mdUnidades.h"
#include "listados/obra/mdAvisos.h"
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

constexpr int kMasCasos = 32'767;  // of a Tramo: a run counts them in 16 bits

/// Whoever was asked gave up; never leaves this file.
struct Cancelacion {
  Avance en;
};

EstiloNumeros EstiloDe(const Captura& c) {
  return {c.EsSI(), c.SeparadorDecimal};
}

int AlturasPrevistas(const EstadoCalculo& e) {
  const auto& r = e.corrida;
  int alturas = 1;
  for (auto h = AlturaSiguiente(r.Hr0Actual, e.tramo.Hr0Delta, r.Hr0FinalActual);
       h && *h <= r.Hr0FinalActual && alturas < kMasCasos;
       h = AlturaSiguiente(*h, e.tramo.Hr0Delta, r.Hr0FinalActual)) {
    ++alturas;
  }
  return alturas;
}

// The loop goes up to 0.2 at beyond the last pressure, or makes a last, shorter step.
int PresionesPrevistas(const EstadoCalculo& e) {
  const double paso = e.corrida.IncDP;
  if (!(paso > 0)) return 1;
  const auto& t = e.tramo;
  const double rango = t.TieneDPPropia() ? t.Prs2Tram - t.Prs1Tram : e.obra.Prs2 - e.obra.Prs1;
  const double pasos = std::floor((rango + std::max(0.2, paso - 0.1)) / paso);
  return static_cast<int>(std::clamp<double>(1.0 + pasos, 1.0, kMasCasos));
}

// The state holds calculation units.
int CasosPrevistos(const EstadoCalculo& e) {
  return std::min(kMasCasos, AlturasPrevistas(e) * PresionesPrevistas(e));
}

// Tells how far the run has come, before anybody else hears of the Caso.
class OyenteAvance : public OyenteCorrida {
 public:
  explicit OyenteAvance(const Sigue& sigue) : sigue_(sigue) {}

  void Empieza(int posicion, int posiciones) { avance_ = {0, 0, 0, posicion, posiciones}; }

  void Progreso(const EstadoCalculo& e) override {
    if (!sigue_) return;
    if (avance_.caso == 0) avance_.casos = CasosPrevistos(e);
    avance_.tramo = e.tramo.NumeroTramo;
    ++avance_.caso;
    avance_.casos = std::max(avance_.casos, avance_.caso);
    if (!sigue_(avance_)) throw Cancelacion{avance_};
  }

 private:
  const Sigue& sigue_;
  Avance avance_;
};

// The debug log while it can be written. An engineer who cannot write it calculates all the same,
// and is told.
class LogDeTrabajo {
 public:
  explicit LogDeTrabajo(const std::filesystem::path& carpeta)
      : registro_([this](std::string_view bloque) { Escribe(bloque); }) {
    try {
      log_.emplace(carpeta);
    } catch (const ErrorEjecucion& error) {
      fichero_ = error.dato();
    }
  }

  LogDeTrabajo(const LogDeTrabajo&) = delete;
  LogDeTrabajo& operator=(const LogDeTrabajo&) = delete;

  Registro& registro() { return registro_; }
  const std::string& SinEscribir() const { return fichero_; }

 private:
  std::optional<FicheroLog> log_;
  std::string fichero_;  // that could not be written
  Registro registro_;

  void Escribe(std::string_view bloque) {
    if (!log_) return;
    try {
      log_->registro() << bloque;
      log_->registro().Vuelca();
    } catch (const ErrorEjecucion& error) {
      fichero_ = error.dato();
      log_.reset();
    }
  }
};

// The summary as the reader of a run, with what broke it off.
class LectorResumen : public OyenteObra {
 public:
  explicit LectorResumen(const Captura& c)
      : pantalla_(flujo_), resumen_(pantalla_, c.textos, EstiloDe(c)) {}

  void EmpiezaTramo(const EstadoCalculo&, int, const std::string&) override {}
  void AcabaTramo(const EstadoCalculo&, const ErrorCorrida*) override {}
  void Progreso(const EstadoCalculo& e) override { resumen_.Progreso(e); }
  void Caso(const EstadoCalculo& e) override { resumen_.Caso(e); }

  void Nota(const std::string& texto) { pantalla_.EscribePantalla(1, "** " + texto + " **", 2); }
  std::string Texto() { return std::move(flujo_).str(); }

 private:
  std::ostringstream flujo_;
  Pantalla pantalla_;
  Resumen resumen_;
};

// One call: its state, which nothing else sees, and what came of it.
class Trabajo {
 public:
  Trabajo(const Captura& c, const MediosTrabajo& medios, OyenteObra& lector)
      : c_(c), lector_(lector), avance_(medios.sigue), log_(medios.registros) {}

  /// What failed is also said there.
  void Anota(std::function<void(const std::string&)> nota) { nota_ = std::move(nota); }

  // A file of adjustments that is refused takes nothing else with it.
  void Empieza() {
    const auto causa = CargaAjustes(e_, c_.e.obra.NombreFichero);
    if (!causa) return;
    resultado.aviso = c_.textos.Compone(*causa);
    if (nota_) nota_(resultado.aviso);
  }

  /// Runs the Tramo of the capture. `numero` is its text in the list, `mostrado` the number of the
  /// listing.
  void UnTramo(int posicion, int posiciones, const std::string& numero, std::int16_t mostrado) {
    e_.obra = c_.e.obra;
    e_.tramo = c_.e.tramo;
    e_.tramo.NumeroTramo = mostrado;
    resultado.hayPostesado = resultado.hayPostesado || !e_.tramo.EsArmado;
    avance_.Empieza(posicion, posiciones);
    lector_.EmpiezaTramo(e_, posicion, numero);
    try {
      Corre();
    } catch (const ErrorCorrida& fallo) {
      Fallo(TextoFallo(fallo, Fichero(), numero, c_.textos, EstiloDe(c_)));
      lector_.AcabaTramo(e_, &fallo);
      return;
    }
    lector_.AcabaTramo(e_, nullptr);
    if (e_.corrida.CuentaCasos == 0) Fallo(c_.textos.Compone(txt::TramoSinNingunCaso, {numero}));
  }

  void Cancelado(const Cancelacion& cancelacion) {
    resultado.fin = FinTrabajo::Cancelado;
    if (nota_) {
      nota_(c_.textos.Compone(txt::TrabajoCancelado, {TextoEntero(cancelacion.en.tramo),
                                                      TextoEntero(cancelacion.en.caso)}));
    }
  }

  void Detenido(const std::string& numero, const std::string& causa) {
    resultado.fin = FinTrabajo::Detenido;
    resultado.detenido = c_.textos.Compone(txt::TrabajoDetenido, {numero, causa});
    if (nota_) nota_(resultado.detenido);
  }

  void Acaba() {
    log_.registro().Vuelca();
    if (log_.SinEscribir().empty()) return;
    if (!resultado.aviso.empty()) resultado.aviso += '\n';
    resultado.aviso += c_.textos.Compone(txt::SinRegistro, {log_.SinEscribir()});
  }

  ResultadoTrabajo resultado;

 private:
  const Captura& c_;
  OyenteObra& lector_;
  OyenteAvance avance_;
  LogDeTrabajo log_;
  std::function<void(const std::string&)> nota_;
  EstadoCalculo e_;

  std::string Fichero() const {
    return std::filesystem::path(c_.e.obra.NombreFichero).filename().string();
  }

  void Fallo(const std::string& texto) {
    resultado.fallos.push_back(texto);
    if (nota_) nota_(texto);
  }

  void Corre() {
    const std::array<OyenteCorrida*, 2> oyentes{&avance_, &lector_};
    e_.corrida.registro = &log_.registro();
    const EnUnidadesDeCalculo unidades(e_);
    CalculaCasos(e_, kSinForzar, kSinForzar, oyentes);
  }
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

// Takes the Tramos of the file one after another into the capture, and runs each.
class RecorridoObra {
 public:
  RecorridoObra(Captura& c, Trabajo& trabajo) : c_(c), trabajo_(trabajo) {}

  void Recorre() {
    const auto posiciones = Posiciones(c_.lista);
    if (posiciones.empty()) return;
    // The same file gives the same listing, whatever was on the screen: a blank record keeps the
    // value of the Tramo before.
    LimpiaCaptura(c_, 0);
    int i = 0;
    for (const int posicion : posiciones) {
      const std::string& numero = c_.lista[static_cast<std::size_t>(posicion - 1)];
      if (!Toma(posicion, numero)) return;
      trabajo_.UnTramo(++i, static_cast<int>(posiciones.size()), numero, I16(posicion));
    }
  }

 private:
  Captura& c_;
  Trabajo& trabajo_;

  bool Toma(int posicion, const std::string& numero) {
    try {
      LeeTramo(c_, posicion);
    } catch (const ErrorFichero& error) {
      const std::string causa = TextoDeError(c_, error);
      c_.voz.Muestra(causa, {});
      trabajo_.Detenido(numero, causa);
      return false;
    }
    if (ValidaTramo(c_, false)) return true;
    trabajo_.Detenido(numero, c_.falta ? Causa(*c_.falta) : std::string{});
    return false;
  }
};

// Does the work, whatever ends it.
void Haz(const Captura& c, Trabajo& trabajo, const std::function<void()>& trabajos) {
  try {
    trabajo.Empieza();
    trabajos();
  } catch (const Cancelacion& cancelacion) {
    trabajo.Cancelado(cancelacion);
  } catch (const ErrorFichero& error) {  // the hand adjustments cannot be read
    c.voz.Muestra(TextoDeError(c, error), {});
    trabajo.resultado.fin = FinTrabajo::NoEmpieza;
  }
  trabajo.Acaba();
}

ResultadoTrabajo EnPantalla(Captura& c, const MediosTrabajo& medios,
                            const std::function<void(Trabajo&)>& trabajos) {
  LectorResumen lector(c);
  Trabajo trabajo(c, medios, lector);
  trabajo.Anota([&lector](const std::string& texto) { lector.Nota(texto); });
  Haz(c, trabajo, [&] { trabajos(trabajo); });
  trabajo.resultado.resumen = lector.Texto();
  return std::move(trabajo.resultado);
}

ResultadoTrabajo EnPapel(const Captura& c, TipoListado tipo, DestinoHojas& hojas,
                         const MediosTrabajo& medios,
                         const std::function<void(Trabajo&)>& trabajos) {
  Papel papel(hojas, OrientacionDe(tipo));
  const auto listado = CreaListado(tipo, {papel, c.textos, EstiloDe(c), medios.fecha});
  Trabajo trabajo(c, medios, *listado);
  Haz(c, trabajo, [&] { trabajos(trabajo); });
  const auto fin = trabajo.resultado.fin;
  if (fin == FinTrabajo::Completo || fin == FinTrabajo::Detenido) papel.FinDocumento();
  return std::move(trabajo.resultado);
}

void ElTramo(const Captura& c, Trabajo& trabajo) {
  trabajo.UnTramo(1, 1, TextoEntero(c.e.tramo.NumeroTramo), c.e.tramo.NumeroTramo);
}

void LaObra(Captura& c, Trabajo& trabajo) {
  c.e.obra.NombreObra = c[Ed::edObra].texto;
  RecorridoObra recorrido(c, trabajo);
  try {
    recorrido.Recorre();
  } catch (...) {
    QuedaEnPantalla(c);
    throw;
  }
  QuedaEnPantalla(c);
}

ResultadoTrabajo NoEmpieza() {
  ResultadoTrabajo resultado;
  resultado.fin = FinTrabajo::NoEmpieza;
  return resultado;
}

// What stands before the Tramos of an Obra are taken from its file.
bool PuedeRecorrerse(Captura& c) {
  const auto aviso = [&](int texto) {
    c.voz.Muestra(Texto(c, texto), Texto(c, txt::TituloAviso));
    return false;
  };
  if (c.EnCambio()) return aviso(txt::SalvePrimero);
  if (!ValidaObra(c)) return false;
  return c.fichero ? true : aviso(txt::DebeSalvarObra);
}

}  // namespace

ResultadoTrabajo ResumeTramo(Captura& c, const MediosTrabajo& medios) {
  if (!PreparaCalculo(c, false)) return NoEmpieza();
  return EnPantalla(c, medios, [&c](Trabajo& trabajo) { ElTramo(c, trabajo); });
}

ResultadoTrabajo ResumeObra(Captura& c, const MediosTrabajo& medios) {
  if (!PuedeRecorrerse(c)) return NoEmpieza();
  return EnPantalla(c, medios, [&c](Trabajo& trabajo) { LaObra(c, trabajo); });
}

ResultadoTrabajo ListaTramo(const Captura& c, TipoListado tipo, DestinoHojas& hojas,
                            const MediosTrabajo& medios) {
  return EnPapel(c, tipo, hojas, medios, [&c](Trabajo& trabajo) { ElTramo(c, trabajo); });
}

ResultadoTrabajo ListaObra(Captura& c, TipoListado tipo, DestinoHojas& hojas,
                           const MediosTrabajo& medios) {
  return EnPapel(c, tipo, hojas, medios, [&c](Trabajo& trabajo) { LaObra(c, trabajo); });
}

}  // namespace zorbin
