// What a file from outside says of an Obra and its Tramos: values that stand for a datum each, and
// those that cannot, with their place and what would do.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "core/campos/mdDatos.h"
#include "persistencia/entrada/mdCuadro.h"

namespace zorbin {

inline constexpr double kMayorLeido = 1e9;  // no quantity of a pipe is larger, in any unit

using ValorDato = std::variant<double, std::int16_t, bool, std::string>;

template <class Bloque>
struct DatoLeido {
  const Dato<Bloque>* dato = nullptr;
  ValorDato valor;
  std::optional<bool> enSI;  // unit of the value; none: that of the Obra
  std::string celda;
};

struct TramoLeido {
  std::string numero;  // empty: it has none, and takes a free one
  std::string celda;   // where it begins
  std::vector<DatoLeido<Tramo>> datos;

  const DatoLeido<Tramo>* Busca(std::string_view nombre) const;
};

/// A value that is refused.
struct Rechazo {
  int tramo = -1;  // place in `tramos`; -1 for the Obra
  std::string celda;
  std::string dato;
  std::string valor;
  Mensaje causa;  // what is allowed
};

struct Entrada {
  std::vector<DatoLeido<Obra>> obra;
  std::vector<TramoLeido> tramos;
  std::vector<Rechazo> rechazos;
  std::vector<Mensaje> avisos;  // what is passed over

  /// Tells something that is passed over, as long as anyone would read it.
  void Avisa(Mensaje aviso);
  /// Numbers of Tramos that the file has twice. @throws ErrorEntrada for more than an Obra holds,
  /// or where nothing was read
  void Revisa();
};

/// How strictly values are taken: JSON has kinds, a sheet has texts for everything.
struct ModoLectura {
  bool conClases = false;
  char decimal = ',';
  const Catalogo* textos = nullptr;  // of the lists, in all languages; null for codes alone
};

/// A value for a datum. `factor` is what a number is multiplied by.
/// @return none, with what would do in `causa`
template <class Bloque>
std::optional<ValorDato> LeeValor(const Dato<Bloque>& dato, const CeldaLeida& celda,
                                  const ModoLectura& modo, double factor, Mensaje& causa);

/// A number of a Tramo. @return empty, with what would do in `causa`
std::string LeeNumeroTramo(const CeldaLeida& celda, const ModoLectura& modo, Mensaje& causa);

/// Puts a value into its datum. @param si  the Obra is in SI
template <class Bloque>
void Aplica(Bloque& bloque, const DatoLeido<Bloque>& leido, bool si);

/// System that the values of the Obra say; none where they say nothing.
std::optional<bool> SistemaDe(const Entrada& entrada);

/// The word of a code in a language, 0 to 4; empty where it has none.
std::string PalabraDeCodigo(const Ficha& ficha, std::int16_t codigo, const Catalogo& textos,
                            int idioma);

/// A text for comparing heads and words: without case, accents, blanks at the ends, what stands in
/// parentheses, and a colon or point at its end.
std::string Llano(std::string_view texto);

}  // namespace zorbin
