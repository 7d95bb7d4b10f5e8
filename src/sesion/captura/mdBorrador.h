// Work that is typed and not yet saved, as it is kept against a crash: the Obra with all its
// Tramos, with every digit, and the field that is being typed.
//
// A draft put back gives the Obra as it was, but for what its file says meanwhile.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "persistencia/disco/mdTitular.h"
#include "sesion/captura/mdCaptura.h"

namespace zorbin {

/// Where a Tramo of a draft comes from.
struct OrigenTramo {
  int posicion = 0;    // in the file, from 1; 0 for one that the file does not have
  std::string numero;  // that it has there

  bool operator==(const OrigenTramo&) const = default;
};

/// A field that is being typed.
struct CampoTecleado {
  Ed campo = Ed::edObra;
  std::string texto;
};

struct Borrador {
  Titular autor;             // the program that it was typed in
  std::string cuando;        // "21/11/2026 09:30"
  std::string fichero;       // of the Obra; empty for one that has none yet
  std::uint64_t huella = 0;  // of what the file held (HuellaDeTodo)
  Version version;
  std::vector<OrigenTramo> origenes;  // of its Tramos, in their order
  ListaTramos lista;                  // of the file
  int enMano = -1;                    // place of the Tramo in hand, from 0; -1 for none
  bool AnchoZanjaAuto = false;
  Paginas pagina;
  Ed foco = Ed::edObra;
  std::optional<CampoTecleado> tecleado;

  bool ConTramo() const { return enMano >= 0; }
};

/// Whether there is something to keep: a change, also of an Obra that is
/// only read, since it can be saved as another.
bool HayTrabajoSinGuardar(const Captura& c);

Borrador TomaBorrador(const Captura& c);

/// Puts a draft into a capture that has its Obra open, or a new one. A Tramo that is no longer in
/// the file becomes a new one; those that came into it meanwhile stay. A number that was taken
/// gives way.
void PonBorrador(Captura& c, const Borrador& b);

// ---- In a file

std::string TextoDeBorrador(const Borrador& b);
/// No value for anything that TextoDeBorrador does not write: cut, of another version, out of
/// range.
std::optional<Borrador> LeeBorrador(std::string_view texto);

// ---- Both versions

/// A datum that differs, in the words of the language in force.
struct RenglonVersion {
  std::string dato;
  std::string enFichero;
  std::string tecleado;
};

struct Versiones {
  std::vector<RenglonVersion> renglones;
  std::string causa;      // why the file cannot be read, else empty
  bool cambiado = false;  // the file is no longer the one that was being changed
};

/// What was typed beside what the file holds, in the units of the draft. Nothing is opened for
/// writing.
Versiones ComparaVersiones(const Borrador& b, const Catalogo& textos, const TablasCatalogo& tablas,
                           char separador);

}  // namespace zorbin
