// Work that is typed and not yet saved, as it is kept against a crash: what the screen shows of the
// Obra and of the Tramo in hand, field by field, and the variables behind it, which know more
// digits than a field shows.
//
// A draft put back gives the capture as it was, but for what the file of the Obra says meanwhile.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "persistencia/disco/mdTitular.h"
#include "sesion/captura/mdCaptura.h"

namespace zorbin {

/// A field of the screen without its texts of the catalogue.
struct CampoTecleado {
  std::string texto;
  int entrada = 0;  // chosen entry of a list, from 1; 0 for none
  int opcion = -1;
  bool habilitado = true;
  bool etiquetaHabilitada = true;
  bool bloqueado = false;
  bool gris = false;
  bool tabulador = true;
  bool tocado = false;

  bool operator==(const CampoTecleado&) const = default;
};

/// What the rules remember between two fields, as in Captura.
struct MemoriaReglas {
  bool AjustesPorBorrar = false;
  bool AnchoZanjaAuto = false;
  bool SFckEditado = false;
  bool EsComercial = false;
  bool SinAvisoGeom = false;
  bool BandaReci = false;
  bool BandaRece = false;
  double FykAnterior = 0;
  double EspRecomMin = 0;
  double EspRecomMax = 0;

  bool operator==(const MemoriaReglas&) const = default;
};

struct Borrador {
  Titular autor;             // the program that it was typed in
  std::string cuando;        // "21/11/2026 09:30"
  std::string fichero;       // of the Obra; empty for one that has none yet
  std::uint64_t huella = 0;  // of what the file held (HuellaDe)
  std::string estado{kSinTramo};
  bool obraEditada = false;
  bool tramoEditado = false;
  Obra obra;  // without file and folder
  Tramo tramo;
  MemoriaReglas memoria;
  Paginas pagina;
  Ed foco = Ed::edObra;
  std::string avCargas1;  // as in Modelo
  std::string figuraColocacion;
  std::string figuraTubo;
  std::array<CampoTecleado, kCamposCaptura> campos;

  bool ConTramo() const { return estado != kSinTramo; }
};

/// Whether there is something to keep: edits, or a new Tramo in hand, of an Obra that can be saved.
bool HayTrabajoSinGuardar(const Captura& c);

Borrador TomaBorrador(const Captura& c);

/// Puts a draft into a capture that has its Obra open, or a new one. A new Tramo whose number was
/// taken meanwhile gets the next one; a stored one that is no longer there becomes a new one.
void PonBorrador(Captura& c, const Borrador& b);

// ---- In a file

std::string TextoDeBorrador(const Borrador& b);
/// No value for anything that TextoDeBorrador does not write: cut, of a later version, out of
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
  std::string causa;         // why the file cannot be read, else empty
  bool cambiado = false;     // header or Tramo are no longer those that were being changed
  bool tramoEsNuevo = true;  // the file has no such Tramo
};

/// What was typed beside what the file holds, in the units of the draft. Nothing is opened for
/// writing.
Versiones ComparaVersiones(const Borrador& b, const Catalogo& textos, const TablasCatalogo& tablas,
                           char separador);

}  // namespace zorbin
