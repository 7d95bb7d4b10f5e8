// The file of adjusted Casos: read, changed, saved and read again.
#include <cmath>

#include "core/mdAjustes.h"
#include "fuzz/comun.h"
#include "persistencia/dpe/mdDpe.h"

namespace zorbin::hostil {

namespace {

namespace fs = std::filesystem;

constexpr std::size_t kMaxCambios = 3;

bool Iguales(const EntradaAjuste& a, const EntradaAjuste& b) {
  return a.DP == b.DP && a.Tramo == b.Tramo && a.Hr == b.Hr && a.areas.Camisa == b.areas.Camisa &&
         a.areas.Espiras == b.areas.Espiras && a.areas.Exterior == b.areas.Exterior;
}

void ExigeLoMismoEnElFichero(const FicheroDpe& f) {
  const auto leidas = LeeAjustes(f.ruta());
  Exige(leidas.size() == f.entradas().size() &&
            std::equal(leidas.begin(), leidas.end(), f.entradas().begin(), Iguales),
        "what it says it holds is what the file holds");
}

// Everything but one place stays as it was.
void ExigeLoDemasIgual(const std::vector<EntradaAjuste>& antes,
                       const std::vector<EntradaAjuste>& despues, std::size_t lugar) {
  for (std::size_t i = 0; i < antes.size(); ++i) {
    Exige(i == lugar || Iguales(antes[i], despues[i]), "a change touches its Caso only");
  }
}

void CambiaUno(FicheroDpe& f, EntradaAjuste caso, bool sinDatos) {
  const auto antes = f.entradas();
  const int numero = static_cast<int>(std::lround(caso.Tramo));
  const int hallado = BuscaCaso(antes, caso.DP, numero, caso.Hr);
  caso.areas = {1.5, 2.25, 3.75};
  f.GrabaUnTramoPresion(caso, sinDatos);
  const auto lugar = hallado != 0 ? static_cast<std::size_t>(std::abs(hallado) - 1) : antes.size();
  ExigeLoDemasIgual(antes, f.entradas(), lugar);
  ExigeLoMismoEnElFichero(f);
  if (sinDatos) return;
  const auto& grabada = f.entradas().at(lugar);
  Exige(grabada.areas.Espiras == 2.25, "the adjustment is stored");
}

void Cambia(const fs::path& ruta) {
  FicheroDpe f(ruta, ',');
  ExigeLoMismoEnElFichero(f);
  const auto casos = f.entradas();
  for (std::size_t i = 0; i < std::min(kMaxCambios, casos.size()); ++i) {
    CambiaUno(f, casos[i], i == 1);
  }
  CambiaUno(f, {6.0, 3, 2.5, {}}, false);
  f.BorraTramo(3);
  ExigeLoMismoEnElFichero(f);
  Exige(BuscaCaso(f.entradas(), 6.0, 3, 2.5) <= 0, "a Tramo that is wiped has no Caso left");
}

}  // namespace

void Prueba(std::string_view datos) {
  VaciaCarpeta();
  const auto ruta = Carpeta() / "obra.dpe";
  const std::string bytes = FicheroDeRegistros(datos);
  Pon(ruta, bytes);
  bool rechazado = false;
  std::vector<EntradaAjuste> leidas;
  try {
    leidas = LeeAjustes(ruta);
  } catch (const ErrorFichero& error) {
    ExigeClaro(error.mensaje(), ruta);
    rechazado = true;
  }
  Exige(Bytes(ruta) == bytes, "reading writes nothing");
  for (const auto& x : leidas) {
    for (const double v : {x.DP, x.Tramo, x.Hr, x.areas.Camisa, x.areas.Espiras, x.areas.Exterior})
      Exige(std::isfinite(v), "a number is a number");
  }
  try {
    Cambia(ruta);
    Exige(!rechazado, "what is refused for reading is refused for writing");
  } catch (const ErrorFichero& error) {
    ExigeClaro(error.mensaje(), ruta);
    Exige(rechazado && Bytes(ruta) == bytes, "what is refused is not touched");
  }
  Exige(NombresEnCarpeta() == std::vector<std::string>{"obra.dpe"}, "nothing is left beside it");
}

}  // namespace zorbin::hostil
