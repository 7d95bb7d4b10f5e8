#include "programas/zorbin-calc/mdVigia.h"

#include <unistd.h>

#include <iostream>

#include "base/mdTextos.h"
#include "base/textos.h"
#include "listados/obra/mdAvisos.h"
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

Vigia::Vigia(OyenteObra& lector, std::string fichero, const Catalogo& textos, EstiloNumeros estilo)
    : lector_(lector),
      fichero_(std::move(fichero)),
      textos_(textos),
      estilo_(estilo),
      terminal_(isatty(STDERR_FILENO) != 0),
      siguiente_(Reloj::now() + kPaciencia) {}

Vigia::~Vigia() {
  BorraProgreso();
}

void Vigia::BorraProgreso() {
  if (hayProgreso_) std::cerr << "\r\033[K" << std::flush;
  hayProgreso_ = false;
}

void Vigia::EmpiezaTramo(const EstadoCalculo& e, int posicion, const std::string& numero) {
  tramo_ = numero;
  lector_.EmpiezaTramo(e, posicion, numero);
}

void Vigia::Progreso(const EstadoCalculo& e) {
  if (terminal_ && Reloj::now() >= siguiente_) {
    std::cerr << '\r'
              << textos_.Compone(txt::Calculando, {TextoEntero(e.tramo.NumeroTramo),
                                                   TextoEntero(e.corrida.CuentaCasos)})
              << "\033[K" << std::flush;
    hayProgreso_ = true;
    siguiente_ = Reloj::now() + kRefresco;
  }
  lector_.Progreso(e);
}

void Vigia::FinCorrida(const EstadoCalculo& e) {
  if (e.corrida.CuentaCasos == 0) {
    BorraProgreso();
    Queja(textos_.Compone(txt::TramoSinCasos, {fichero_, tramo_}));
  }
  lector_.FinCorrida(e);
}

void Vigia::AcabaTramo(const EstadoCalculo& e, const ErrorCorrida* fallo) {
  if (fallo != nullptr) {
    hayFallo_ = true;
    BorraProgreso();
    Queja(TextoFallo(*fallo, fichero_, tramo_, textos_, estilo_));
  }
  lector_.AcabaTramo(e, fallo);
}

}  // namespace zorbin
