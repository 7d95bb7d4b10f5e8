#include "programas/zorbin-calc/mdVigia.h"

#include <unistd.h>

#include <iostream>

#include "base/mdTextos.h"
#include "base/textos.h"
#include "listados/obra/mdAvisos.h"
#include "persistencia/proyecto/mdProyecto.h"
#include "programas/zorbin-calc/mdTerminal.h"

namespace zorbin {

namespace {

constexpr std::chrono::seconds kPaciencia{1};
constexpr std::chrono::milliseconds kRefresco{200};

}  // namespace

void Queja(const std::string& texto) {
  std::cerr << "zorbin-calc: " << ParaTerminal(texto) << '\n';
}

std::optional<std::vector<int>> BuscaTramos(const std::vector<int>& numeros,
                                            const std::filesystem::path& obra,
                                            const ListaTramos& lista, const Catalogo& textos) {
  std::vector<int> posiciones;
  for (const int numero : numeros) {
    posiciones.push_back(PosicionDe(lista, numero));
    if (posiciones.back() != 0) continue;
    std::string presentes;
    for (const auto& n : lista) {
      if (!n.empty()) presentes += (presentes.empty() ? "" : ", ") + n;
    }
    Queja(textos.Compone(txt::TramoQueNoEsta, {TextoEntero(numero), obra.string(),
                                               presentes.empty() ? "-" : presentes}));
    return std::nullopt;
  }
  return posiciones;
}

Vigia::Vigia(std::string fichero, const Catalogo& textos, EstiloNumeros estilo)
    : fichero_(std::move(fichero)),
      textos_(textos),
      estilo_(estilo),
      siguiente_(Reloj::now() + kPaciencia) {}

Vigia::~Vigia() {
  BorraProgreso();
}

void Vigia::BorraProgreso() {
  if (hayProgreso_) std::cerr << "\r\033[K" << std::flush;
  hayProgreso_ = false;
}

void Vigia::MuestraProgreso(int NumeroTramo, int caso) {
  if (Reloj::now() < siguiente_) return;
  std::cerr << '\r'
            << textos_.Compone(txt::Calculando, {TextoEntero(NumeroTramo), TextoEntero(caso)})
            << "\033[K" << std::flush;
  hayProgreso_ = true;
  siguiente_ = Reloj::now() + kRefresco;
}

std::function<bool(int, const AvanceCorrida&)> Vigia::Progreso() {
  if (isatty(STDERR_FILENO) == 0) return {};
  return [this](int NumeroTramo, const AvanceCorrida& avance) {
    MuestraProgreso(NumeroTramo, avance.caso);
    return true;
  };
}

void Vigia::Acaba(const ResultadoTramo& resultado, const std::string& numero) {
  if (resultado.fallo) {
    hayFallo_ = true;
    BorraProgreso();
    Queja(TextoFallo(*resultado.fallo, fichero_, numero, textos_, estilo_));
  } else if (resultado.filas.empty()) {
    BorraProgreso();
    Queja(textos_.Compone(txt::TramoSinCasos, {fichero_, numero}));
  }
}

}  // namespace zorbin
