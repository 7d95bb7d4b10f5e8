#include "persistencia/mdDpe.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string_view>

#include "core/mdNumeros.h"
#include "core/mdTextos.h"
#include "recursos/textos.h"

namespace zorbin {

namespace {

constexpr int kRegistrosEntrada = 8;
constexpr std::string_view kMascara = "#####0.00";

// Fields of an entry in the order of its records; the two after them are reserved.
struct CampoEntrada {
  std::string_view nombre;
  double& (*campo)(EntradaAjuste&);
};

constexpr std::array<CampoEntrada, 6> kCampos{{
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
  const FicheroRegistros f(dpe, FicheroRegistros::Modo::Lectura);
  const double total = LeeNumero(f, 1, "TotalRegistrosDpe");
  // Entries wholly past the end of the file would all read as free ones.
  const int hay = (f.UltimoRegistro() - 2) / kRegistrosEntrada + 1;
  const int cuenta =
      f.UltimoRegistro() < 2
          ? 0
          : std::clamp(static_cast<int>(std::clamp(total, 0.0, 32767.0)) / kRegistrosEntrada, 0,
                       hay);
  std::vector<EntradaAjuste> entradas(static_cast<std::size_t>(cuenta));
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
  const int total =
      entradas.empty() ? 0 : static_cast<int>(entradas.size()) * kRegistrosEntrada + 1;
  f.EscribeRegistro(1, TextoEntero(total));
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

}  // namespace zorbin
