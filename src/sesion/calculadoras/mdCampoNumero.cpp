#include "sesion/calculadoras/mdCampoNumero.h"

#include <utility>

#include "base/mdNumeros.h"
#include "base/textos.h"

namespace zorbin {

namespace {

constexpr char kRetroceso = 8;

char OtroSeparador(char separador) {
  return separador == ',' ? '.' : ',';
}

}  // namespace

std::string TextoAviso(const AvisoCampo& aviso, const Catalogo& catalogo) {
  std::string texto;
  for (const int n : aviso.texto) texto += catalogo.Texto(n);
  return texto;
}

void Escribe(CampoNumero& campo, double valor, std::string texto) {
  campo.valor = valor;
  campo.texto = std::move(texto);
  campo.escrito = campo.texto;
  campo.tocado = false;
  campo.seleccionado = false;
}

void Cambia(CampoNumero& campo, std::string texto) {
  campo.seleccionado = false;
  if (campo.texto == texto) return;
  campo.texto = std::move(texto);
  campo.tocado = true;
}

bool PorLeer(const CampoNumero& campo) {
  return campo.tocado && (campo.texto.empty() || campo.texto != campo.escrito);
}

char FiltraTecla(char tecla, std::string_view texto, char SeparadorDecimal) {
  if (tecla == OtroSeparador(SeparadorDecimal)) tecla = SeparadorDecimal;
  if (tecla == SeparadorDecimal) {
    return texto.find(SeparadorDecimal) == std::string_view::npos ? tecla : '\0';
  }
  return (tecla >= '0' && tecla <= '9') || tecla == kRetroceso ? tecla : '\0';
}

std::optional<AvisoCampo> ValidaNumero(double minimo, std::string_view texto, double& destino,
                                       int etiqueta) {
  const auto valor = NumeroTexto(texto);
  if (!valor) return AvisoCampo{{txt::NoEsValorNumerico}, etiqueta};
  destino = *valor;
  if (!(*valor >= minimo)) return AvisoCampo{{txt::ValorIncorrecto}, etiqueta};
  return std::nullopt;
}

}  // namespace zorbin
