// crea-obra DATOS.json OBRA.zrb: writes a project file from its data in the form of the JSON
// listing ("obra" and "tramos" with their fields by name; a field left out is 0).
#include <filesystem>
#include <iostream>
#include <nlohmann/json.hpp>

#include "base/mdCarpetas.h"
#include "base/mdTextos.h"
#include "comun/estadoDeJson.h"
#include "persistencia/zrb/mdZrb.h"

int main(int argc, char** argv) try {
  using namespace zorbin;
  if (argc != 3) {
    std::cerr << "usage: crea-obra DATOS.json OBRA.zrb\n";
    return 2;
  }
  const auto datos = pruebas::LeeJson(argv[1]);
  const Catalogo textos = Catalogo::Lee(CarpetaRecursos() / "textos");
  ListaTramos lista;
  for (const auto& t : datos.at("tramos")) {
    lista.push_back(TextoEntero(t.at("NumeroTramo").get<int>()));
  }
  std::filesystem::remove(argv[2]);
  FicheroRegistros f(argv[2], FicheroRegistros::Modo::LecturaEscritura);
  EstadoCalculo e;
  pruebas::RellenaObra(e, datos.at("obra"));
  EscribeObra(f, e, lista, textos, ',');
  int posicion = 0;
  for (const auto& t : datos.at("tramos")) {
    pruebas::RellenaTramo(e, t);
    EscribeTramo(f, e, lista, ++posicion, ',');
  }
  return 0;
} catch (const std::exception& error) {
  std::cerr << "crea-obra: " << error.what() << '\n';
  return 1;
}
