#include "sesion/calculadoras/mdEntradaMedios.h"

#include <string_view>
#include <utility>

#include "base/aritmetica.h"
#include "base/mdNumeros.h"
#include "base/textos.h"

namespace zorbin {

namespace {

constexpr double kMinimo = 0.0;
constexpr double kMayorPH = 14.0;
constexpr std::string_view kMascara = "######0.00";

constexpr std::array<Medio, kMedios> kOrdenDeLectura{
    kPH, kCO2, kNH4, kMg, kSO4Exterior, kSO4Interior, kSO4Suelo, kResistividad, kCorriente};

CampoNumero& Campo(EntradaMedios& e, Medio medio) {
  return e.txpH[static_cast<std::size_t>(medio)];
}

const CampoMedio& Datos(Medio medio) {
  return kCamposMedios[static_cast<std::size_t>(medio)];
}

void Muestra(EntradaMedios& e, Medio medio, double valor) {
  Escribe(Campo(e, medio), valor, FormatoMascara(valor, kMascara, e.SeparadorDecimal));
}

void PonDefecto(EntradaMedios& e, Medio medio) {
  Muestra(e, medio, Datos(medio).defecto);
}

}  // namespace

EntradaMedios CargaProtecciones(char SeparadorDecimal) {
  EntradaMedios e;
  e.SeparadorDecimal = SeparadorDecimal;
  for (const Medio medio : kOrdenDeLectura) PonDefecto(e, medio);
  return e;
}

void Entra(EntradaMedios& e, Medio medio) {
  if (Campo(e, medio).texto.empty()) PonDefecto(e, medio);
  Campo(e, medio).seleccionado = true;
}

void Cambia(EntradaMedios& e, Medio medio, std::string texto) {
  if (Campo(e, medio).texto != texto) e.alDia = false;
  Cambia(Campo(e, medio), std::move(texto));
}

std::optional<AvisoCampo> Sale(EntradaMedios& e, Medio medio) {
  CampoNumero& campo = Campo(e, medio);
  campo.seleccionado = false;
  if (campo.texto.empty()) PonDefecto(e, medio);
  if (!PorLeer(campo)) return std::nullopt;
  double valor = 0;
  auto aviso = ValidaNumero(kMinimo, campo.texto, e.SeparadorDecimal, valor, Datos(medio).etiqueta);
  Muestra(e, medio, aviso ? campo.valor : valor);
  campo.seleccionado = aviso.has_value();
  return aviso;
}

std::optional<Mensaje> AvisoDePlausibilidad(const EntradaMedios& e, Medio medio) {
  const CampoNumero& campo = e.txpH[static_cast<std::size_t>(medio)];
  if (medio != kPH || campo.valor <= kMayorPH) return std::nullopt;
  return Mensaje{txt::PHFueraDeEscala, {campo.texto}};
}

void MarcaCiclos(EntradaMedios& e, bool marcado) {
  if (e.Check1 != marcado) e.alDia = false;
  e.Check1 = marcado;
}

std::optional<AvisoCampo> Analiza(EntradaMedios& e) {
  MuestraMedios muestra;
  muestra.ciclos = e.Check1;
  double valor = 0;
  for (const Medio medio : kOrdenDeLectura) {
    const CampoNumero& campo = Campo(e, medio);
    if (PorLeer(campo) && !campo.texto.empty()) {
      if (auto aviso = ValidaNumero(kMinimo, campo.texto, e.SeparadorDecimal, valor,
                                    Datos(medio).etiqueta)) {
        return aviso;
      }
    } else if (!campo.texto.empty()) {
      valor = campo.valor;
    }
    muestra.valor[static_cast<std::size_t>(medio)] = valor;
  }
  e.resultado = AnalizaMedios(muestra);
  e.alDia = true;
  return std::nullopt;
}

}  // namespace zorbin
