#include "persistencia/dpe/mdDpe.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string_view>

#include "base/mdNumeros.h"
#include "base/mdTextos.h"
#include "base/textos.h"
#include "core/mdAjustes.h"
#include "persistencia/disco/mdConjunto.h"

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

void CompruebaQueCaben(const FicheroRegistros& f, const std::vector<EntradaAjuste>& entradas) {
  if (entradas.size() <= static_cast<std::size_t>(kMaxEntradas)) return;
  throw ErrorFichero({txt::DpeLleno, {f.Nombre(), TextoEntero(kMaxEntradas)}});
}

// The entry as it reads back from its texts.
EntradaAjuste Guardada(EntradaAjuste x) {
  for (const auto& c : kCampos) {
    double& valor = c.campo(x);
    valor = NumeroTexto(FormatoMascara(valor, kMascara, '.')).value_or(0.0);
  }
  return x;
}

void EscribeEntrada(FicheroRegistros& f, int posicion, EntradaAjuste x, char separador) {
  const int primero = PrimerRegistro(posicion);
  int r = primero;
  for (const auto& c : kCampos) {
    f.EscribeRegistro(r++, FormatoMascara(c.campo(x), kMascara, separador));
  }
  while (r < primero + kRegistrosEntrada) {
    f.EscribeRegistro(r++, FormatoMascara(0.0, kMascara, separador));
  }
}

}  // namespace

std::filesystem::path RutaDpe(const std::filesystem::path& obra) {
  return RutaCompanera(obra, kExtensionDpe);
}

// Who holds it has the adjustment of reinforcement open, and it is there that it is let go.
FicheroRegistros AbreDpe(const std::filesystem::path& ruta, PideCerrojo pide) {
  try {
    return {ruta, FicheroRegistros::Modo::LecturaEscritura, pide};
  } catch (const SoloParaLeer& error) {
    if (error.motivo() != SoloParaLeer::Motivo::Ocupado) throw;
    throw ErrorFichero({txt::DpeOcupado, {ruta.string()}});
  }
}

std::vector<EntradaAjuste> LeeAjustes(const std::filesystem::path& dpe) {
  std::error_code error;
  // A link without a file, or a name that can't be looked at, is an error of its opening.
  if (symlink_status(dpe, error).type() == std::filesystem::file_type::not_found) return {};
  return LeeAjustes(FicheroRegistros(dpe, FicheroRegistros::Modo::Lectura));
}

std::vector<EntradaAjuste> LeeAjustes(const FicheroRegistros& f) {
  std::vector<EntradaAjuste> entradas(static_cast<std::size_t>(CuentaEntradas(f)));
  int registro = PrimerRegistro(1);
  for (auto& x : entradas) {
    int r = registro;
    for (const auto& c : kCampos) c.campo(x) = LeeNumero(f, r++, c.nombre);
    registro += kRegistrosEntrada;
  }
  return entradas;
}

void EscribeAjustes(FicheroRegistros& f, const std::vector<EntradaAjuste>& entradas,
                    char separador) {
  CompruebaQueCaben(f, entradas);
  Transaccion juntos(f);
  f.EscribeRegistro(1, TextoEntero(TotalRegistros(entradas.size())));
  for (std::size_t i = 0; i < entradas.size(); ++i) {
    EscribeEntrada(f, static_cast<int>(i) + 1, entradas[i], separador);
  }
  juntos.Confirma();
}

FicheroDpe::FicheroDpe(const std::filesystem::path& ruta, char separador, PideCerrojo pide)
    : f_(AbreDpe(ruta, pide)), separador_(separador), entradas_(LeeAjustes(f_)) {
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
  if (hallado <= 0 && sinDatos) return;
  auto entradas = entradas_;
  if (hallado > 0) {
    auto& entrada = entradas[static_cast<std::size_t>(hallado - 1)];
    const EntradaAjuste nueva{entrada.DP, entrada.Tramo, caso.Hr, caso.areas};
    entrada = sinDatos ? EntradaAjuste{} : nueva;
  } else if (hallado < 0) {
    entradas[static_cast<std::size_t>(-hallado - 1)] = caso;
  } else {
    entradas.push_back(caso);
  }
  Graba(std::move(entradas));
}

void FicheroDpe::BorraTramo(int NumeroTramo) {
  auto entradas = entradas_;
  for (auto& x : entradas) {
    if (!x.Libre() && std::lround(x.Tramo) == NumeroTramo) x = {};
  }
  Graba(std::move(entradas));
}

// The entries that differ from those of the file, and their count.
void FicheroDpe::Graba(std::vector<EntradaAjuste> entradas) {
  CompruebaQueCaben(f_, entradas);
  Transaccion juntas(f_);
  for (std::size_t i = 0; i < entradas.size(); ++i) {
    if (i < entradas_.size() && entradas[i] == entradas_[i]) continue;
    entradas[i] = Guardada(entradas[i]);
    EscribeEntrada(f_, static_cast<int>(i) + 1, entradas[i], separador_);
  }
  if (entradas.size() != entradas_.size()) {
    f_.EscribeRegistro(1, TextoEntero(TotalRegistros(entradas.size())));
  }
  juntas.Confirma();
  entradas_ = std::move(entradas);
}

}  // namespace zorbin
