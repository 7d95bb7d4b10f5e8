#include "listados/papel/mdPie.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <ctime>

#include "base/mdTextos.h"
#include "base/textos.h"
#include "listados/papel/mdFormato.h"

namespace zorbin {

namespace {

constexpr double kCuerpoPie = 7.0;     // [pt]
constexpr double kMargenLados = 10.0;  // [mm]
constexpr int kEntreLados = 3;         // at least [columns]
constexpr std::string_view kEntreTextos = " · ";

std::string Juntos(const std::vector<std::string>& partes) {
  std::string texto;
  for (const auto& parte : partes) {
    if (parte.empty()) continue;
    if (!texto.empty()) texto += kEntreTextos;
    texto += parte;
  }
  return texto;
}

// Cuts a letter of the longest part at a time until all of them fit.
std::string Ajustados(std::vector<std::string> partes, int columnas) {
  const auto masCorta = [](const std::string& a, const std::string& b) {
    return Largo(a) < Largo(b);
  };
  while (static_cast<int>(Largo(Juntos(partes))) > columnas) {
    auto larga = std::max_element(partes.begin(), partes.end(), masCorta);
    if (Largo(*larga) < 3) break;
    *larga = std::string(Primeros(*larga, Largo(*larga) - 2)) + "…";
  }
  return Juntos(partes);
}

}  // namespace

Fecha Ahora() {
  const std::time_t ahora = std::chrono::system_clock::to_time_t(std::chrono::system_clock::now());
  std::tm local{};
  localtime_r(&ahora, &local);
  std::array<char, 32> dia{};
  std::array<char, 32> hora{};
  std::strftime(dia.data(), dia.size(), "%d/%m/%Y", &local);
  std::strftime(hora.data(), hora.size(), "%H:%M:%S", &local);
  return {dia.data(), hora.data()};
}

void HojasConPie::RecibeHoja(const Hoja& hoja) {
  ++hoja_;
  const double ancho = AnchoColumna(kCuerpoPie);
  const int margen = static_cast<int>(kMargenLados / ancho);
  const int columnas = static_cast<int>((hoja.Ancho() - 2.0 * kMargenLados) / ancho);
  Hoja conPie = hoja;
  conPie.textos.push_back(
      {hoja.Alto() - kAltoPie, kCuerpoPie, false, false, Blancos(margen) + Linea(columnas)});
  destino_.RecibeHoja(conPie);
}

std::string HojasConPie::Linea(int columnas) const {
  const std::string derecha =
      pie_.derecha + std::string(kEntreTextos) +
      textos_.Compone(txt::PaginaDe, {TextoEntero(hoja_), TextoEntero(total_)});
  const int queda = columnas - static_cast<int>(Largo(derecha));
  const std::string izquierda = Ajustados(pie_.izquierda, queda - kEntreLados);
  return izquierda + ALaDerecha(derecha, columnas - static_cast<int>(Largo(izquierda)));
}

void EscribeConPie(DestinoHojas& destino, Orientacion orientacion, TextosPie pie,
                   const Catalogo& textos, const std::function<void(Papel&)>& documento) {
  const auto escribe = [&](DestinoHojas& hojas) {
    Papel papel(hojas, orientacion);
    documento(papel);
    papel.FinDocumento();
  };
  CuentaHojas cuenta;
  escribe(cuenta);
  HojasConPie conPie(destino, std::move(pie), cuenta.hojas(), textos);
  escribe(conPie);
}

}  // namespace zorbin
