// What the command line says of its own words, in the language of the program: help and refusals.
#pragma once

#include <CLI/CLI.hpp>
#include <string>
#include <vector>

#include "base/mdCatalogo.h"

namespace zorbin {

/// Headings of the help in the language of the catalogue.
void PonRotulosDeAyuda(CLI::App& app, const Catalogo& textos);

/// What is wrong with the words, in one line.
std::string TextoPalabrasMalas(const CLI::ParseError& error, const Catalogo& textos);

/// A validator that takes one of the values and tells the refused one as the catalogue says it.
CLI::Validator UnoDe(std::vector<std::string> valores, const Catalogo& textos, std::string opcion);

/// A validator of a whole number, with its limits in the refusal.
CLI::Validator EnteroEntre(int minimo, int maximo, const Catalogo& textos, std::string opcion);

}  // namespace zorbin
