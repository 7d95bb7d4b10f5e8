// What every run is held to, whatever its data: it ends in finite results or in a named failure,
// and what reads results writes numbers and no more.
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "calculo/corrida/mdCalculaTramo.h"
#include "sesion/captura/mdCaptura.h"

namespace zorbin::pruebas {

/// A real of the results, by name.
struct Real {
  const char* nombre;
  double valor;
};
/// Every real of a Caso.
std::vector<Real> RealesDe(const ResultadoTramo& x, const FilaCaso& fila,
                           const ResultadoCaso& caso);

/// How a run ended.
struct Final {
  std::optional<FalloCorrida> fallo;
  int casos = 0;
  std::int64_t vueltas = 0;
  int largo = 0;        // of its longest line of text, listings upright [columns]
  std::string pegados;  // two numbers without a blank between them; empty for none
  std::string quejas;   // of the oracle; empty where the run kept its promises

  bool Exito() const { return !fallo && casos > 0; }
};

enum class Lectura {
  Resultados,  // the numbers of every Caso only
  Todo,        // debug log, and summary, listings, JSON and trial rows of the first Casos, too
};

/// Runs the Tramo of a state in capture units.
Final Corre(const EstadoCalculo& e, const Catalogo& textos, Lectura lectura);

/// The catalogue of the program, in Spanish.
const Catalogo& Textos();

/// Where a JSON says "null" for a number that is not finite; empty for nowhere. An adjustment and a
/// failure that there are not read so too.
std::string HuecoDeJson(const std::string& json);

/// What in a text is no text of a listing: an infinity, a NaN, an exponent, an entry that the
/// catalogue lacks. Empty where there is nothing.
std::string Basura(const std::string& texto, bool conExponentes);

/// What the JSON of the runs says.
std::string JsonDe(const std::vector<EstadoCalculo>& tramos, const Catalogo& textos);

/// Leads data through the rules of the capture, as `calcula` does. @return whether they pass
class Capturador {
 public:
  explicit Capturador(Catalogo& textos);
  /// The state takes what the rules complete. @return the refusal, if any
  std::optional<Falta> Valida(EstadoCalculo& e);

 private:
  struct Mudo : Interlocutor {
    void Muestra(const std::string&, const std::string&) override {}
    bool Pregunta(const std::string&, const std::string&) override { return true; }
    Respuesta PreguntaGrabar(const std::string&) override { return Respuesta::Cancelar; }
    std::optional<std::string> PideFichero(const std::string&, const std::string&) override {
      return std::nullopt;
    }
    void VaA(Ed) override {}
  };
  EstadoCalculo e_;
  TablasCatalogo tablas_;
  Mudo voz_;
  Captura c_;
};

/// Ends the process, naming what was at work, where it takes too long.
class Vigilante {
 public:
  explicit Vigilante(const std::string& trabajo);
  ~Vigilante();
  Vigilante(const Vigilante&) = delete;
  Vigilante& operator=(const Vigilante&) = delete;
};

/// How many of each class, and from which index: ZORBIN_AZAR_N and ZORBIN_AZAR_DESDE.
int Cuantos();
int Desde();

/// Counts of what happened, in the order of their names.
class Cuenta {
 public:
  void Suma(const std::string& nombre) { ++cuentas_[nombre]; }
  void Suma(const Final& f);
  int De(const std::string& nombre) const;
  void Imprime(const std::string& titulo) const;

 private:
  std::map<std::string, int> cuentas_;
};

}  // namespace zorbin::pruebas
