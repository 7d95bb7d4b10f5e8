#include "shell/ayuda/mdVisorPdf.h"

#include <unistd.h>

#include <algorithm>
#include <cctype>
#include <fstream>
#include <map>
#include <set>
#include <string_view>

namespace zorbin {

namespace {

namespace fs = std::filesystem;

constexpr char kTipo[] = "application/pdf";
constexpr char kPredeterminadas[] = "Default Applications";
constexpr char kAnadidas[] = "Added Associations";
constexpr char kQuitadas[] = "Removed Associations";
constexpr char kCache[] = "MIME Cache";
constexpr char kEntrada[] = "Desktop Entry";
constexpr std::uintmax_t kMaxFichero = 8 * 1024 * 1024;  // bytes; these files have some kilobytes

// Without blanks, tabulators or a CR at its ends.
std::string_view Limpia(std::string_view texto) {
  constexpr std::string_view kBlancos = " \t\r";
  const auto desde = texto.find_first_not_of(kBlancos);
  if (desde == std::string_view::npos) return {};
  return texto.substr(desde, texto.find_last_not_of(kBlancos) - desde + 1);
}

std::vector<std::string> Parte(const std::string& texto, char separador) {
  std::vector<std::string> partes;
  std::size_t desde = 0;
  while (desde <= texto.size()) {
    const auto hasta = std::min(texto.find(separador, desde), texto.size());
    const auto parte = Limpia(std::string_view(texto).substr(desde, hasta - desde));
    if (!parte.empty()) partes.emplace_back(parte);
    desde = hasta + 1;
  }
  return partes;
}

std::vector<fs::path> Rutas(const std::string& lista) {
  std::vector<fs::path> rutas;
  for (const auto& parte : Parte(lista, ':')) {
    if (fs::path(parte).is_absolute()) rutas.emplace_back(parte);
  }
  return rutas;
}

// A file of groups of keys: "[group]" and "key=value".
class FicheroClaves {
 public:
  explicit FicheroClaves(const fs::path& ruta) {
    std::error_code error;
    if (!fs::is_regular_file(ruta, error) || fs::file_size(ruta, error) > kMaxFichero) return;
    std::ifstream f(ruta, std::ios::binary);
    std::string grupo, linea;
    while (std::getline(f, linea)) {
      const auto texto = Limpia(linea);
      const auto igual = texto.find('=');
      if (texto.starts_with('[') && texto.ends_with(']')) {
        grupo = std::string(texto.substr(1, texto.size() - 2));
      } else if (!texto.starts_with('#') && igual != std::string_view::npos) {
        claves_.try_emplace({grupo, std::string(Limpia(texto.substr(0, igual)))},
                            Limpia(texto.substr(igual + 1)));
      }
    }
    hay_ = true;
  }

  bool Hay() const { return hay_; }
  std::string Valor(const char* grupo, const char* clave) const {
    const auto v = claves_.find({grupo, clave});
    return v == claves_.end() ? std::string() : v->second;
  }
  std::vector<std::string> Aplicaciones(const char* grupo) const {
    return Parte(Valor(grupo, kTipo), ';');
  }

 private:
  std::map<std::pair<std::string, std::string>, std::string> claves_;
  bool hay_ = false;
};

bool EsPrograma(const fs::path& ruta) {
  std::error_code error;
  return fs::is_regular_file(ruta, error) && access(ruta.c_str(), X_OK) == 0;
}

class Buscador {
 public:
  explicit Buscador(const CarpetasEscritorio& carpetas) : carpetas_(carpetas) {
    for (const auto& carpeta : carpetas.datos) aplicaciones_.push_back(carpeta / "applications");
  }

  VisorPdf Busca() const {
    for (const auto& nombre : Candidatas()) {
      const auto visor = Mira(nombre);
      if (visor != VisorPdf::Ninguno) return visor;
    }
    return VisorPdf::Ninguno;
  }

 private:
  const CarpetasEscritorio& carpetas_;
  std::vector<fs::path> aplicaciones_;

  // The default ones stand before those that only can.
  std::vector<std::string> Candidatas() const {
    std::vector<std::string> nombres;
    const auto anade = [&nombres](const std::vector<std::string>& mas) {
      nombres.insert(nombres.end(), mas.begin(), mas.end());
    };
    for (const auto& lista : Listas(true)) anade(lista.Aplicaciones(kPredeterminadas));
    anade(Asociadas());
    return nombres;
  }

  // The lists "mimeapps.list" in order; those of a desktop name default applications only.
  std::vector<FicheroClaves> Listas(bool conEscritorio) const {
    std::vector<FicheroClaves> listas;
    for (const auto* carpetas : {&carpetas_.configuracion, &aplicaciones_}) {
      for (const auto& carpeta : *carpetas) {
        if (conEscritorio) {
          for (const auto& e : carpetas_.escritorios) {
            listas.emplace_back(carpeta / (e + "-mimeapps.list"));
          }
        }
        listas.emplace_back(carpeta / "mimeapps.list");
      }
    }
    return listas;
  }

  // A list that takes an application away takes it from those that come after it.
  std::vector<std::string> Asociadas() const {
    std::vector<std::string> nombres;
    std::set<std::string> quitadas;
    const auto anade = [&](const std::vector<std::string>& mas) {
      std::copy_if(mas.begin(), mas.end(), std::back_inserter(nombres),
                   [&](const std::string& nombre) { return !quitadas.contains(nombre); });
    };
    for (const auto& lista : Listas(false)) {
      anade(lista.Aplicaciones(kAnadidas));
      for (auto& nombre : lista.Aplicaciones(kQuitadas)) quitadas.insert(nombre);
    }
    for (const auto& carpeta : aplicaciones_) {
      anade(FicheroClaves(carpeta / "mimeinfo.cache").Aplicaciones(kCache));
    }
    return nombres;
  }

  VisorPdf Mira(const std::string& nombre) const {
    const FicheroClaves aplicacion(RutaDe(nombre));
    if (!aplicacion.Hay() || aplicacion.Valor(kEntrada, "Hidden") == "true") {
      return VisorPdf::Ninguno;
    }
    const auto prueba = aplicacion.Valor(kEntrada, "TryExec");
    if (!prueba.empty() && !HayPrograma(prueba)) return VisorPdf::Ninguno;
    return aplicacion.Valor(kEntrada, "Exec").empty() ? VisorPdf::SinOrden : VisorPdf::Presente;
  }

  // The name of an application in a folder of its own has '-' where its path has '/'.
  fs::path RutaDe(const std::string& nombre) const {
    if (nombre.find('/') != std::string::npos) return {};
    std::error_code error;
    for (const auto& carpeta : aplicaciones_) {
      std::string ruta = nombre;
      for (auto guion = ruta.find('-');; guion = ruta.find('-', guion)) {
        if (fs::exists(carpeta / ruta, error)) return carpeta / ruta;
        if (guion == std::string::npos) break;
        ruta[guion] = '/';
      }
    }
    return {};
  }

  bool HayPrograma(const fs::path& programa) const {
    if (programa.is_absolute()) return EsPrograma(programa);
    return std::any_of(carpetas_.programas.begin(), carpetas_.programas.end(),
                       [&](const fs::path& carpeta) { return EsPrograma(carpeta / programa); });
  }
};

}  // namespace

CarpetasEscritorio CarpetasDeLaSesion(const std::function<const char*(const char*)>& variable) {
  const auto valor = [&variable](const char* nombre, const std::string& defecto) {
    const char* v = variable(nombre);
    return v == nullptr || *v == '\0' ? defecto : std::string(v);
  };
  const std::string casa = valor("HOME", "");
  CarpetasEscritorio c;
  c.configuracion = Rutas(valor("XDG_CONFIG_HOME", casa + "/.config") + ":" +
                          valor("XDG_CONFIG_DIRS", "/etc/xdg"));
  c.datos = Rutas(valor("XDG_DATA_HOME", casa + "/.local/share") + ":" +
                  valor("XDG_DATA_DIRS", "/usr/local/share:/usr/share"));
  std::string escritorios = valor("XDG_CURRENT_DESKTOP", "");
  std::transform(escritorios.begin(), escritorios.end(), escritorios.begin(),
                 [](unsigned char l) { return static_cast<char>(std::tolower(l)); });
  c.escritorios = Parte(escritorios, ':');
  c.programas = Rutas(valor("PATH", "/usr/local/bin:/usr/bin:/bin"));
  return c;
}

VisorPdf BuscaVisorPdf(const CarpetasEscritorio& carpetas) {
  return Buscador(carpetas).Busca();
}

}  // namespace zorbin
