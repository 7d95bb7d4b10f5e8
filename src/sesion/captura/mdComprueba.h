// The rules over an Obra in memory, without a screen: what has faults, and what they complete.
#pragma once

#include <memory>
#include <vector>

#include "sesion/captura/mdCaptura.h"

namespace zorbin {

/// A capture that nobody sees, over its own state and texts. Questions are answered yes.
class Sombra {
 public:
  Sombra(const Catalogo& catalogo, const TablasCatalogo& tablas, char separador);
  ~Sombra();
  Sombra(const Sombra&) = delete;
  Sombra& operator=(const Sombra&) = delete;

 private:
  EstadoCalculo e_;
  Catalogo textos_;
  std::unique_ptr<Interlocutor> nadie_;

 public:
  Captura c;
};

/// What came of it.
struct Comprobado {
  Version version;            // with what the rules complete, where nothing was refused
  std::vector<Falta> faltas;  // of the Obra first, then of the Tramos in their order

  bool Vale() const { return faltas.empty(); }
  /// Whether a Tramo may be calculated; a fault of the Obra is a fault of all.
  bool Vale(int id) const;
};

/// Validates the Obra, and those Tramos of it whose ids are given.
/// @param textos     its language is that of what is said
/// @param separador  decimal separator of the texts
Comprobado Comprueba(const Version& version, const std::vector<int>& ids, const Catalogo& textos,
                     const TablasCatalogo& tablas, char separador);
/// Of what a capture has in hand.
Comprobado Comprueba(const Captura& c, const std::vector<int>& ids);

/// The ids of all Tramos that have a number and can be read.
std::vector<int> IdsDe(const Version& version);

/// The faults are those of the capture, and the first one leads to its field. @return whether there
/// are any
bool MuestraFaltas(Captura& c, std::vector<Falta> faltas);

/// Shows one of the faults: its Tramo in hand, its page, its field, and what was said there.
void LlevaALaFalta(Captura& c, const Falta& falta);

}  // namespace zorbin
