// How the rows of a detail are written.
#pragma once

#include <cmath>
#include <string_view>
#include <utility>

#include "listados/datos/mdColumnas.h"
#include "sesion/resultados/mdDetalle.h"

namespace zorbin {

class EscribeDetalle {
 public:
  explicit EscribeDetalle(const PalabrasDibujo& palabras) : w_(palabras) {}

  const PalabrasDibujo& Palabras() const { return w_; }
  void Grupo(int titulo) { detalle_.push_back({w_.T(titulo), {}}); }
  void Grupo(std::string titulo) { detalle_.push_back({std::move(titulo), {}}); }
  void Texto(std::string nombre, std::string valor) {
    detalle_.back().filas.push_back({std::move(nombre), std::move(valor)});
  }
  void Texto(int nombre, std::string valor) { Texto(w_.T(nombre), std::move(valor)); }
  std::string Valor(double valor, int decimales, std::string_view conversion = {}) const {
    return std::isfinite(valor) ? w_.Numero(valor, decimales, conversion) : std::string("∞");
  }
  template <class Nombre>
  void Numero(Nombre nombre, double valor, int decimales, std::string_view conversion = {},
              std::string_view detras = {}) {
    Texto(nombre, Valor(valor, decimales, conversion) + std::string(detras));
  }
  Detalle Toma() { return std::move(detalle_); }

 private:
  const PalabrasDibujo& w_;
  Detalle detalle_;
};

/// What the post-tensioned design adds to a detail.
void DetallaPostesado(EscribeDetalle& d, const CasoDibujado& caso);

}  // namespace zorbin
