// What the readers of data from outside promise.
#pragma once

#include <cmath>

#include "base/textos.h"
#include "core/campos/obra.h"
#include "core/campos/tramo.h"
#include "fuzz/comun.h"
#include "persistencia/entrada/mdTablaEntrada.h"
#include "persistencia/zrb/mdZrb.h"

namespace zorbin::hostil {

template <class Bloque>
void ExigeDatos(const std::vector<DatoLeido<Bloque>>& datos) {
  for (const auto& d : datos) {
    Bloque bloque;
    Aplica(bloque, d, true);
    RecorreNumeros<Bloque>([&](const Ficha&, double Bloque::*m) {
      Exige(std::isfinite(bloque.*m) && bloque.*m >= 0, "a number is none below zero");
    });
  }
}

/// A refusal says something of a length that can be read, and names its cell.
inline void ExigeRechazo(const std::string& texto) {
  Exige(!texto.empty() && texto.size() < 2000 && EsTextoLimpio(texto), "a refusal is clear", texto);
}

template <class Lee>
void ExigeEntrada(const Lee& lee) try {
  const Entrada e = lee();
  Exige(e.tramos.size() <= static_cast<std::size_t>(kMaxTramos), "no more Tramos than an Obra has");
  ExigeDatos(e.obra);
  for (const auto& t : e.tramos) ExigeDatos(t.datos);
  for (const auto& r : e.rechazos) {
    Exige(!r.celda.empty() && r.tramo < static_cast<int>(e.tramos.size()),
          "a refusal has its cell");
    ExigeRechazo(
        Textos().Compone(txt::EntValorMalo, {r.celda, r.dato, r.valor, Textos().Compone(r.causa)}));
  }
  for (const auto& a : e.avisos) Exige(EsTextoLimpio(Textos().Compone(a)), "a notice is clean");
} catch (const ErrorEntrada& error) {
  ExigeRechazo(Textos().Compone(error.mensaje()));
}

}  // namespace zorbin::hostil
