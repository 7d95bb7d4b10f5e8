// The manufacturers' tables, TUB#GM, TUB#ES and TUB#PM with a form feed between them, and the rules
// of a sound Obra over them.
#include <array>
#include <cmath>

#include "fuzz/comun.h"
#include "sesion/captura/mdFaltas.h"

namespace zorbin::hostil {

namespace {

namespace fs = std::filesystem;

constexpr std::array<const char*, 3> kNombres{"TUB#GM", "TUB#ES", "TUB#PM"};

void ExigeTablas(const TablasCatalogo& t) {
  Exige(t.NumDiametros() <= kMaxDimensiones, "rows are limited");
  Exige(t.NumArmaduras() >= 1 && t.NumArmaduras() <= kMaxArmaduras, "there is a series");
  Exige(t.MaxAnchoZanja >= 0 && t.MaxAnchoZanja <= 99, "the width is of two digits");
  for (const auto& fila : t.TablaDimensiones) {
    for (const auto& g : fila.grupos) {
      Exige(g.Reci >= 0 && g.Rece >= 0 && g.Esp >= 0 && g.Esp <= 9999, "values are of four digits");
    }
  }
  for (const double a : t.TablaArmaduras) Exige(a >= 0 && a < 1e9, "areas are areas");
}

void Usa(const TablasCatalogo& t) {
  Catalogo& textos = TextosParaCambiar();
  static const Proyecto proyecto = LeeProyecto(ZORBIN_FUENTES "muestras/acequia.zrb");
  const auto faltas = ValidaProyecto(proyecto, textos, t, {});
  for (const auto& a : faltas.avisos) Exige(EsTextoLimpio(a.texto), "a notice is clean text");
  for (const auto& [posicion, tramo] : faltas.tramos) {
    for (const double v : {tramo.Esp, tramo.Reci, tramo.Rece, tramo.De, tramo.B0}) {
      Exige(std::isfinite(v), "a dimension is a number");
    }
  }
}

void PruebaTablas(std::string_view datos) {
  VaciaCarpeta();
  for (const char* nombre : kNombres) {
    const auto corte = std::min(datos.find('\f'), datos.size());
    Pon(Carpeta() / nombre, datos.substr(0, corte));
    if (corte == datos.size()) break;
    datos.remove_prefix(corte + 1);
  }
  const auto t = LeeTablas(Carpeta());
  ExigeTablas(t);
  Usa(t);
}

}  // namespace

void Prueba(std::string_view datos) {
  try {
    PruebaTablas(datos);
  } catch (const ErrorFichero& error) {
    ExigeClaro(error.mensaje(), Carpeta());
  }
}

}  // namespace zorbin::hostil
