#include "listados/obra/mdFlujo.h"

#include <array>
#include <optional>

#include "base/mdNumeros.h"
#include "core/mdUnidades.h"
#include "persistencia/disco/mdLog.h"
#include "persistencia/dpe/mdDpe.h"

namespace zorbin {

namespace {

std::int16_t NumeroDe(const std::string& texto) {
  return I16(NumeroTexto(texto).value_or(0.0));
}

// The debug log belongs to one run; the state must not keep a pointer to a closed one.
class LogDeCorrida {
 public:
  LogDeCorrida(EstadoCalculo& e, const std::filesystem::path& carpeta) : e_(e), log_(carpeta) {
    e_.corrida.registro = &log_.registro();
  }
  ~LogDeCorrida() { e_.corrida.registro = nullptr; }
  LogDeCorrida(const LogDeCorrida&) = delete;
  LogDeCorrida& operator=(const LogDeCorrida&) = delete;

 private:
  EstadoCalculo& e_;
  FicheroLog log_;
};

void CorreTramo(EstadoCalculo& e, const std::filesystem::path& registros, OyenteObra& oyente) {
  const std::array<OyenteCorrida*, 1> oyentes{&oyente};
  std::optional<LogDeCorrida> log;
  try {
    log.emplace(e, registros);
  } catch (const ErrorEjecucion& error) {
    e.corrida.CuentaCasos = 0;
    throw ErrorCorrida(error, e);
  }
  const EnUnidadesDeCalculo unidades(e);
  CalculaCasos(e, kSinForzar, kSinForzar, oyentes);
}

void UnTramo(EstadoCalculo& e, const ObraEnFichero& obra, const PeticionCalculo& peticion,
             int posicion, OyenteObra& oyente) {
  const std::string& numero = obra.lista[static_cast<std::size_t>(posicion - 1)];
  CargaTramo(e, obra.fichero, posicion);
  const auto comprobado = peticion.comprobados.find(posicion);
  if (comprobado != peticion.comprobados.end()) e.tramo = comprobado->second;
  e.tramo.NumeroTramo = peticion.posiciones.empty() ? I16(posicion) : NumeroDe(numero);
  oyente.EmpiezaTramo(e, posicion, numero);
  const Tramo leido = e.tramo;
  try {
    CorreTramo(e, peticion.carpetaRegistros, oyente);
    oyente.AcabaTramo(e, nullptr);
  } catch (const ErrorCorrida& fallo) {
    oyente.AcabaTramo(e, &fallo);
  }
  e.tramo = leido;  // a blank record of the next Tramo finds no trace of this run
}

std::vector<int> TodasLasPosiciones(const ListaTramos& lista) {
  std::vector<int> posiciones;
  for (std::size_t i = 0; i < lista.size(); ++i) {
    if (!lista[i].empty()) posiciones.push_back(static_cast<int>(i) + 1);
  }
  return posiciones;
}

}  // namespace

ObraEnFichero AbreObra(EstadoCalculo& e, const std::filesystem::path& ruta) {
  ObraEnFichero obra{FicheroRegistros(ruta, FicheroRegistros::Modo::Lectura), {}, {}};
  e = EstadoCalculo{};
  auto leida = CargaObra(e, obra.fichero);
  obra.lista = std::move(leida.lista);
  obra.avisos = obra.fichero.avisos();
  obra.avisos.insert(obra.avisos.end(), leida.avisos.begin(), leida.avisos.end());
  EstadoCalculo prueba = e;
  for (const int posicion : TodasLasPosiciones(obra.lista)) {
    CargaTramo(prueba, obra.fichero, posicion);
  }
  if (auto causa = CargaAjustes(e, ruta)) obra.avisos.push_back(std::move(*causa));
  return obra;
}

int PosicionDe(const ListaTramos& lista, int numero) {
  for (std::size_t i = 0; i < lista.size(); ++i) {
    if (!lista[i].empty() && NumeroDe(lista[i]) == numero) return static_cast<int>(i) + 1;
  }
  return 0;
}

void CalculaObra(EstadoCalculo& e, const ObraEnFichero& obra, const PeticionCalculo& peticion,
                 OyenteObra& oyente) {
  const auto posiciones =
      peticion.posiciones.empty() ? TodasLasPosiciones(obra.lista) : peticion.posiciones;
  for (const int posicion : posiciones) {
    const auto& omitidas = peticion.omitidas;
    if (std::find(omitidas.begin(), omitidas.end(), posicion) != omitidas.end()) continue;
    UnTramo(e, obra, peticion, posicion, oyente);
  }
}

}  // namespace zorbin
