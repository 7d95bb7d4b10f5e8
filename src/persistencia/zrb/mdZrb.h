// The project file: header of the Obra in records 1 to 20, then a block of 60 records a Tramo.
// Every field is text, numbers included; a field with two unit systems holds "MKS // SI".
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "base/mdCatalogo.h"
#include "core/estado_calculo.h"
#include "persistencia/registros/mdRegistros.h"

namespace zorbin {

inline constexpr std::string_view kVersionFichero = "Version: 2009-Mar.02";
inline constexpr int kMaxTramos = 545;

/// Numbers of the Tramos in file order; the place of a number, from 1, is that of its block. An
/// empty text keeps the place of a block without number.
using ListaTramos = std::vector<std::string>;

/// What cannot be read of an Obra: a datum of its header, or a whole Tramo.
struct DanoObra {
  int posicion = 0;    // of the Tramo, from 1; 0 for the header
  std::string numero;  // of the Tramo; empty where it cannot be read either
  Mensaje causa;
};

struct ObraLeida {
  ListaTramos lista;
  std::vector<Mensaje> avisos;  // what a person should know, although the Obra opens
  std::vector<DanoObra> danos;  // of one that was salvaged
};

/// Reads the header and the list of Tramos. Writes e.obra in the units of its system; NombreFichero
/// and ObraAbierta are set. Numbers may have either decimal separator.
/// @throws ErrorFichero naming the record and what was expected; the state is then untouched
ObraLeida CargaObra(EstadoCalculo& e, const FicheroRegistros& f);

/// What can be had of a damaged Obra: as CargaObra, but a datum of the header that cannot be read
/// is that of a new Obra, and a Tramo that cannot be read whole has an empty text in the list. A
/// number of Tramos that cannot be read is that of the blocks of the file.
/// @throws ErrorFichero for a file that is no Obra at all
ObraLeida RescataObra(EstadoCalculo& e, const FicheroRegistros& f);

/// Reads the block at a position, from 1, into e.tramo, in the units of the Obra's system, and sets
/// the load fields. A blank record leaves the field as it was; a paired
/// one is 0, and a blank description is a blank description. NumeroTramo is not written.
/// @throws ErrorFichero as CargaObra, also where the end of the file cuts the block
void CargaTramo(EstadoCalculo& e, const FicheroRegistros& f, int posicion);

/// Writes the header, all of it or nothing.
/// @param separador  decimal separator of the machine
/// @throws ErrorFichero naming the field that cannot be stored, or the disk's refusal
void EscribeObra(FicheroRegistros& f, const EstadoCalculo& e, const ListaTramos& lista,
                 const Catalogo& textos, char separador);

/// Tells whether the header and the block at a position, from 1, are still the same; 0 for the
/// header alone. @throws ErrorFichero as CargaTramo
std::uint64_t HuellaDe(const FicheroRegistros& f, int posicion);

/// Writes the block of e.tramo at a position, from 1. As EscribeObra.
void EscribeTramo(FicheroRegistros& f, const EstadoCalculo& e, const ListaTramos& lista,
                  int posicion, char separador);

/// Tramos that the header counts; 0 where it counts none, or what it says is no count.
int CuentaTramos(const FicheroRegistros& f);

/// Blanks the blocks at positions, from 1, `desde` to `hasta`.
void BorraTramos(FicheroRegistros& f, int desde, int hasta);

/// Copies the block at a position, from 1, as another file has it, read or not.
void CopiaTramo(FicheroRegistros& f, const FicheroRegistros& de, int posicion);

}  // namespace zorbin
