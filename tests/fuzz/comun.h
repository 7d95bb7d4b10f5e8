// What the fuzz targets share. A target is one function, Prueba, that is handed the bytes of a
// hostile file and ends the process where the program does not keep what it promises of such a
// file.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "base/mdCatalogo.h"
#include "persistencia/disco/mdErrorFichero.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t largo);

namespace zorbin::hostil {

/// What a target does with the bytes: its own.
void Prueba(std::string_view datos);

inline std::string_view Vista(const std::uint8_t* datos, std::size_t largo) {
  return {reinterpret_cast<const char*>(datos), largo};
}

/// Ends the process, saying what was promised, unless it holds.
void Exige(bool cumple, std::string_view promesa, std::string_view detalle = {});

/// Well-formed UTF-8 without control characters but line ends and tabulators: whatever shows it, a
/// terminal too, shows nothing else than its text.
bool EsTextoLimpio(std::string_view texto);

/// The catalogue of the program, in Spanish.
const Catalogo& Textos();
/// Another one, in Spanish again, whose language may be changed.
Catalogo& TextosParaCambiar();

/// A refusal says something, names the file, is of a length that can be read, and is clean.
void ExigeClaro(const std::string& texto, const std::filesystem::path& fichero);
void ExigeClaro(const Mensaje& mensaje, const std::filesystem::path& fichero);

/// A folder in memory that goes away with the process.
const std::filesystem::path& Carpeta();
void VaciaCarpeta();
/// Names of what lies in it, in order.
std::vector<std::string> NombresEnCarpeta();

void Pon(const std::filesystem::path& fichero, std::string_view bytes);
/// Empty for a file that is not there.
std::string Bytes(const std::filesystem::path& fichero);

bool EsJson(std::string_view texto);
/// Keys and texts of a JSON object of texts.
std::vector<std::pair<std::string, std::string>> TextosDeJson(std::string_view json);

/// A file of numbered records. The bytes themselves, or, where they begin with a printable
/// character, a text that is easier to mutate: a line for each record, one after another or from
/// the number n on after "@n ".
std::string FicheroDeRegistros(std::string_view datos);

}  // namespace zorbin::hostil
