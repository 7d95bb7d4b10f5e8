#include "persistencia/mdDpe.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string_view>

#include "core/mdAjustes.h"
#include "core/mdNumeros.h"
#include "core/mdTextos.h"
#include "persistencia/textosDpe.h"
#include "recursos/textos.h"

namespace zorbin {

namespace {

constexpr int kRegistrosEntrada = 8;
constexpr int kMaxRegistrosDpe = 32767;  // that the 16-bit arithmetic of the format can name
constexpr int kMaxEntradas = (kMaxRegistrosDpe - 1) / kRegistrosEntrada;
constexpr std::string_view kMascara = "#####0.00";

// Fields of an entry in the order of its records; the two after them are reserved.
struct CampoEntrada {
  std::string_view nombre;
  double& (*campo)(EntradaAjuste&);
};

constexpr int kCamposEntrada = 6;
constexpr std::array<CampoEntrada, kCamposEntrada> kCampos{{
    {"DP", [](EntradaAjuste& x) -> double& { return x.DP; }},
    {"Tramo", [](EntradaAjuste& x) -> double& { return x.Tramo; }},
    {"Camisa", [](EntradaAjuste& x) -> double& { return x.areas.Camisa; }},
    {"Refuerzo", [](EntradaAjuste& x) -> double& { return x.areas.Espiras; }},
    {"Exterior", [](EntradaAjuste& x) -> double& { return x.areas.Exterior; }},
    {"Hr", [](EntradaAjuste& x) -> double& { return x.Hr; }},
}};

double LeeNumero(const FicheroRegistros& f, int registro, std::string_view nombre) {
  const std::string texto = f.LeeRegistro(registro);
  const auto valor = NumeroTexto(texto);
  if (!valor || std::fabs(*valor) > kMayorNumero) {
    throw ErrorFichero(
        {txt::NoEsNumero, {f.Nombre(), TextoEntero(registro), std::string(nombre), texto}});
  }
  return *valor;
}

int PrimerRegistro(int entrada) {
  return (entrada - 1) * kRegistrosEntrada + 2;
}

int TotalRegistros(std::size_t entradas) {
  return entradas == 0 ? 0 : static_cast<int>(entradas) * kRegistrosEntrada + 1;
}

// Entries that the first record counts. The last of them may lack its reserved records; a file that
// ends before its fields has lost something.
int CuentaEntradas(const FicheroRegistros& f) {
  const std::string texto = f.LeeRegistro(1);
  const auto total = NumeroTexto(texto);
  if (!total || *total < 0 || *total > kMaxRegistrosDpe || *total != std::floor(*total)) {
    throw ErrorFichero({txt::DpeSinCuenta, {f.Nombre(), texto}});
  }
  const int cuenta = static_cast<int>(*total) / kRegistrosEntrada;
  if (cuenta > 0 && f.UltimoRegistro() < PrimerRegistro(cuenta) + kCamposEntrada - 1) {
    throw ErrorFichero(
        {txt::DpeCortado, {f.Nombre(), TextoEntero(cuenta), TextoEntero(f.UltimoRegistro())}});
  }
  return cuenta;
}

std::vector<EntradaAjuste> LeeEntradas(const FicheroRegistros& f) {
  std::vector<EntradaAjuste> entradas(static_cast<std::size_t>(CuentaEntradas(f)));
  int registro = PrimerRegistro(1);
  for (auto& x : entradas) {
    int r = registro;
    for (const auto& c : kCampos) c.campo(x) = LeeNumero(f, r++, c.nombre);
    registro += kRegistrosEntrada;
  }
  return entradas;
}

// The entry as it reads back from its texts.
EntradaAjuste Guardada(EntradaAjuste x) {
  for (const auto& c : kCampos) {
    double& valor = c.campo(x);
    valor = NumeroTexto(FormatoMascara(valor, kMascara, '.')).value_or(0.0);
  }
  return x;
}

bool Iguales(EntradaAjuste a, EntradaAjuste b) {
  return std::all_of(kCampos.begin(), kCampos.end(),
                     [&](const CampoEntrada& c) { return c.campo(a) == c.campo(b); });
}

}  // namespace

std::filesystem::path RutaDpe(const std::filesystem::path& obra) {
  auto ruta = obra;
  ruta.replace_extension(".dpe");
  if (ruta == obra) ruta += ".dpe";
  return ruta;
}

std::vector<EntradaAjuste> LeeAjustes(const std::filesystem::path& dpe) {
  std::error_code error;
  if (!std::filesystem::exists(dpe, error)) return {};
  return LeeEntradas(FicheroRegistros(dpe, FicheroRegistros::Modo::Lectura));
}

std::optional<Mensaje> CargaAjustes(EstadoCalculo& e, const std::filesystem::path& obra) {
  e.corrida.ajustes.clear();
  e.corrida.SinAjustes = false;
  try {
    e.corrida.ajustes = LeeAjustes(RutaDpe(obra));
    return std::nullopt;
  } catch (const ErrorFichero& error) {
    e.corrida.SinAjustes = true;
    return error.mensaje();
  }
}

void EscribeAjustes(FicheroRegistros& f, const std::vector<EntradaAjuste>& entradas,
                    char separador) {
  f.EscribeRegistro(1, TextoEntero(TotalRegistros(entradas.size())));
  int registro = PrimerRegistro(1);
  for (EntradaAjuste x : entradas) {
    int r = registro;
    for (const auto& c : kCampos) {
      f.EscribeRegistro(r++, FormatoMascara(c.campo(x), kMascara, separador));
    }
    while (r < registro + kRegistrosEntrada) {
      f.EscribeRegistro(r++, FormatoMascara(0.0, kMascara, separador));
    }
    registro += kRegistrosEntrada;
  }
  f.Vacia();
}

FicheroDpe::FicheroDpe(const std::filesystem::path& ruta, char separador, PideCerrojo pide)
    : cerrojo_(ruta, pide),
      f_(ruta, FicheroRegistros::Modo::LecturaEscritura),
      separador_(separador) {
  if (cerrojo_.estado() == Cerrojo::Estado::Ocupado) {
    throw ErrorFichero({txt::DpeOcupado, {f_.Nombre()}});
  }
  entradas_ = LeeEntradas(f_);
  if (!f_.LeeRegistro(1).empty()) return;
  f_.EscribeRegistro(1, TextoEntero(0));
  f_.Vacia();
}

int FicheroDpe::TotalRegistrosDpe() const {
  return TotalRegistros(entradas_.size());
}

void FicheroDpe::GrabaUnTramoPresion(const EntradaAjuste& caso, bool sinDatos) {
  const int hallado =
      BuscaCaso(entradas_, caso.DP, static_cast<int>(std::lround(caso.Tramo)), caso.Hr);
  if (hallado > 0) {
    EntradaAjuste entrada;
    if (!sinDatos) {
      entrada = entradas_[static_cast<std::size_t>(hallado - 1)];
      entrada.areas = caso.areas;
      entrada.Hr = caso.Hr;
    }
    EscribeEntrada(hallado, entrada);
  } else if (!sinDatos) {
    EscribeEntrada(hallado < 0 ? -hallado : static_cast<int>(entradas_.size()) + 1, caso);
  }
}

void FicheroDpe::BorraTramo(int NumeroTramo) {
  for (std::size_t i = 0; i < entradas_.size(); ++i) {
    const auto& x = entradas_[i];
    if (x.Libre() || std::lround(x.Tramo) != NumeroTramo) continue;
    EscribeEntrada(static_cast<int>(i) + 1, {});
  }
}

void FicheroDpe::EscribeEntrada(int posicion, const EntradaAjuste& entrada) {
  const bool nueva = posicion > static_cast<int>(entradas_.size());
  if (posicion > kMaxEntradas) {
    throw ErrorFichero({txt::DpeLleno, {f_.Nombre(), TextoEntero(kMaxEntradas)}});
  }
  EntradaAjuste x = Guardada(entrada);
  if (!nueva && Iguales(x, entradas_[static_cast<std::size_t>(posicion - 1)])) return;
  const int primero = PrimerRegistro(posicion);
  int r = primero;
  for (const auto& c : kCampos) {
    f_.EscribeRegistro(r++, FormatoMascara(c.campo(x), kMascara, separador_));
  }
  while (r < primero + kRegistrosEntrada) {
    f_.EscribeRegistro(r++, FormatoMascara(0.0, kMascara, separador_));
  }
  // The count last: an entry that the disk cut short is not counted.
  f_.Vacia();
  if (nueva) {
    f_.EscribeRegistro(1, TextoEntero(TotalRegistros(entradas_.size() + 1)));
    f_.Vacia();
    entradas_.push_back(x);
  } else {
    entradas_[static_cast<std::size_t>(posicion - 1)] = x;
  }
}

}  // namespace zorbin
