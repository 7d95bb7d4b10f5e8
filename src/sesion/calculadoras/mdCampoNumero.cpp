#include "sesion/calculadoras/mdCampoNumero.h"

#include <utility>

#include "base/mdNumeros.h"
#include "base/textos.h"

namespace zorbin {

std::string TextoAviso(const AvisoCampo& aviso, const Catalogo& catalogo) {
  if (!aviso.datos.empty()) return catalogo.Compone(aviso.texto.front(), aviso.datos);
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

std::optional<AvisoCampo> ValidaNumero(double minimo, std::string_view texto, char separador,
                                       double& destino, int etiqueta) {
  const auto leido = NumeroTecleado(texto, separador);
  if (!leido.valor) return AvisoCampo{{leido.falta.texto}, etiqueta, leido.falta.datos};
  destino = *leido.valor;
  if (!(destino >= minimo)) return AvisoCampo{{txt::ValorIncorrecto}, etiqueta};
  return std::nullopt;
}

}  // namespace zorbin
