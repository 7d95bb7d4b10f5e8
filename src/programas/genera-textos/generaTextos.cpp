// genera-textos TEXTS SOURCES HEADER: writes the header by which the code names the entries of the
// catalogue, from its Spanish file, in which an entry is {"nombre": NAME, "texto": TEXT} with
// perhaps a "nota" on its marks, or {"reserva": true, "texto": TEXT} where no code reads it.
// Entries called NAME[0], NAME[1]... are an array, and their numbers follow each other.
#include <charconv>
#include <cstddef>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <map>
#include <nlohmann/json.hpp>
#include <set>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace {

namespace fs = std::filesystem;

constexpr std::string_view kLetras =
    "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789_";

using Entradas = std::map<int, nlohmann::json>;

struct Nombre {
  int primera = 0;
  int cuantas = 0;  // of an array; 0 of a single entry
  std::string nota;
};

using Nombres = std::map<std::string, Nombre>;
using Lecturas = std::map<std::string, std::string>;  // name to a place that reads it
using Faltas = std::vector<std::string>;

std::string Contenido(const fs::path& ruta) {
  std::ifstream f(ruta, std::ios::binary);
  return {std::istreambuf_iterator<char>(f), {}};
}

std::string Entrada(int n) {
  return "entry " + std::to_string(n);
}

// A parser keeps the last of two equal keys; here the second is a fault.
Entradas LeeIdioma(const fs::path& ruta, Faltas& faltas) {
  std::set<std::string> claves;
  const auto mira = [&](int hondo, nlohmann::json::parse_event_t suceso, const nlohmann::json& v) {
    if (hondo == 1 && suceso == nlohmann::json::parse_event_t::key &&
        !claves.insert(v.get<std::string>()).second) {
      faltas.push_back(ruta.filename().string() + ": " + v.dump() + " stands twice");
    }
    return true;
  };
  const auto json = nlohmann::json::parse(Contenido(ruta), mira);
  Entradas entradas;
  for (const auto& [clave, valor] : json.items()) entradas.emplace(std::stoi(clave), valor);
  return entradas;
}

std::string Choque(const std::string& nombre, int primera, int n) {
  return Entrada(primera) + " and " + Entrada(n) + " are both called " + nombre;
}

// NAME[i], whose array has its entries before it.
void AnadeALista(const std::string& nombre, int n, Nombres& nombres, Faltas& faltas) {
  const auto corchete = nombre.find('[');
  const std::string lista = nombre.substr(0, corchete);
  auto& [primera, cuantas, nota] = nombres.try_emplace(lista, Nombre{n, 0, ""}).first->second;
  if (cuantas == 0 && primera != n) {
    faltas.push_back(Choque(lista, primera, n));
  } else if (nombre.substr(corchete) != '[' + std::to_string(cuantas) + ']' ||
             n != primera + cuantas) {
    faltas.push_back(Entrada(n) + ", " + nombre + ", does not follow the one before it");
  }
  ++cuantas;
}

Nombres NombresDe(const Entradas& es, Faltas& faltas) {
  Nombres nombres;
  for (const auto& [n, e] : es) {
    const std::string nombre = e.is_object() ? e.value("nombre", "") : "";
    const bool reserva = e.is_object() && e.value("reserva", false);
    if (!e.is_object() || !e.contains("texto") || nombre.empty() != reserva) {
      faltas.push_back(Entrada(n) + " needs a \"texto\", and a \"nombre\" or \"reserva\": true");
    } else if (const auto fin = nombre.find_first_not_of(kLetras);
               fin != std::string::npos && nombre[fin] == '[') {
      AnadeALista(nombre, n, nombres, faltas);
    } else if (fin != std::string::npos) {
      faltas.push_back(Entrada(n) + ": \"" + nombre + "\" is not a name");
    } else if (!reserva) {
      const auto [otro, nuevo] = nombres.try_emplace(nombre, Nombre{n, 0, e.value("nota", "")});
      if (!nuevo) faltas.push_back(Choque(nombre, otro->second.primera, n));
    }
  }
  return nombres;
}

void LeeFuente(const fs::path& ruta, Lecturas& lecturas) {
  std::ifstream f(ruta);
  int numero = 0;
  for (std::string linea; std::getline(f, linea);) {
    ++numero;
    const std::string_view codigo = std::string_view(linea).substr(0, linea.find("//"));
    for (auto i = codigo.find("txt::"); i != codigo.npos; i = codigo.find("txt::", i + 1)) {
      const auto resto = codigo.substr(i + 5);
      const auto nombre = std::string(resto.substr(0, resto.find_first_not_of(kLetras)));
      if (!nombre.empty()) {
        lecturas.try_emplace(nombre, ruta.string() + ':' + std::to_string(numero));
      }
    }
  }
}

Lecturas LecturasDe(const fs::path& fuentes) {
  Lecturas lecturas;
  for (const auto& f : fs::recursive_directory_iterator(fuentes)) {
    if (f.path().extension() == ".cpp" || f.path().extension() == ".h") {
      LeeFuente(f.path(), lecturas);
    }
  }
  return lecturas;
}

void Empareja(const Nombres& nombres, const Lecturas& lecturas, Faltas& faltas) {
  for (const auto& [nombre, n] : nombres) {
    if (!lecturas.contains(nombre)) {
      faltas.push_back(Entrada(n.primera) + ", " + nombre +
                       ", is read by no source: take it out or mark it \"reserva\": true");
    }
  }
  for (const auto& [nombre, lugar] : lecturas) {
    if (!nombres.contains(nombre)) {
      faltas.push_back(lugar + ": no entry of es.json is called " + nombre);
    }
  }
}

// Every other language holds the entries of Spanish and no more.
void MiraIdiomas(const fs::path& textos, const Entradas& es, Faltas& faltas) {
  for (const auto& f : fs::directory_iterator(textos)) {
    const std::string fichero = f.path().filename().string();
    if (fichero == "es.json") continue;
    const Entradas otro = LeeIdioma(f.path(), faltas);
    for (const auto& [n, e] : es) {
      if (!otro.contains(n)) faltas.push_back(fichero + ": " + Entrada(n) + " is missing");
    }
    for (const auto& [n, e] : otro) {
      if (!es.contains(n)) faltas.push_back(fichero + ": " + Entrada(n) + " is not in es.json");
    }
  }
}

std::string Declaracion(const std::string& nombre, const Nombre& n) {
  if (n.cuantas == 0) {
    return "inline constexpr int " + nombre + " = " + std::to_string(n.primera) + ';' +
           (n.nota.empty() ? "" : "  // " + n.nota) + '\n';
  }
  std::string valores = std::to_string(n.primera);
  for (int i = 1; i < n.cuantas; ++i) valores += ", " + std::to_string(n.primera + i);
  return "inline constexpr std::array<int, " + std::to_string(n.cuantas) + "> " + nombre + '{' +
         valores + "};\n";
}

std::string Cabecera(const Nombres& nombres) {
  std::string texto =
      "// Names of the entries of the catalogue. Made from recursos/textos/es.json by the build.\n"
      "#pragma once\n\n#include <array>\n\nnamespace zorbin::txt {\n\n";
  for (const auto& [nombre, n] : nombres) texto += Declaracion(nombre, n);
  return texto + "\n}  // namespace zorbin::txt\n";
}

// A header that stays as it is compiles nothing again: most changes of a text are such.
void Escribe(const fs::path& ruta, const std::string& texto) {
  if (Contenido(ruta) == texto) return;
  fs::create_directories(ruta.parent_path());
  std::ofstream f(ruta, std::ios::binary);
  if (!(f << texto << std::flush)) throw std::runtime_error(ruta.string() + ": cannot be written");
}

int Genera(const fs::path& textos, const fs::path& fuentes, const fs::path& cabecera) {
  Faltas faltas;
  const Entradas es = LeeIdioma(textos / "es.json", faltas);
  const Nombres nombres = NombresDe(es, faltas);
  Empareja(nombres, LecturasDe(fuentes), faltas);
  MiraIdiomas(textos, es, faltas);
  for (const auto& falta : faltas) std::cerr << "genera-textos: " << falta << '\n';
  if (faltas.empty()) Escribe(cabecera, Cabecera(nombres));
  return faltas.empty() ? 0 : 1;
}

}  // namespace

int main(int n, char** palabras) {
  if (n != 4) {
    std::cerr << "genera-textos TEXTS SOURCES HEADER\n";
    return 2;
  }
  try {
    return Genera(palabras[1], palabras[2], palabras[3]);
  } catch (const std::exception& error) {
    std::cerr << "genera-textos: " << error.what() << '\n';
    return 1;
  }
}
