#include "sesion/captura/mdCampos.h"

#include <algorithm>
#include <array>

#include "core/campos/mdTablaDatos.h"

namespace zorbin {

namespace {

// Fields that choose what is shown, or repeat a field of another page.
// clang-format off
constexpr auto kSinDato = std::to_array<Campo>({
    {.id = Ed::edTramo, .nombre = "edTramo", .clase = Clase::Texto, .pagina = kPaginaTramo, .etiqueta = txt::EtNumeroTramo, .rotulo = txt::RotTramo, .consejo = txt::TipTramo},
    {.id = Ed::rdTipologia, .nombre = "rdTipologia", .clase = Clase::Opcion, .pagina = kPaginaTramo, .grupo = txt::GrupoTipologia, .consejo = txt::TipTipologia},
    {.id = Ed::rdTipoCamisa, .nombre = "rdTipoCamisa", .clase = Clase::Opcion, .pagina = kPaginaPostesado, .consejo = txt::TipOpcionCamisa},
    {.id = Ed::edObra2, .nombre = "edObra2", .clase = Clase::Texto, .pagina = kPaginaColocacion, .rotulo = txt::RotObra, .consejo = txt::TipObra},
    {.id = Ed::edTramo2, .nombre = "edTramo2", .clase = Clase::Texto, .pagina = kPaginaColocacion, .rotulo = txt::RotTramo, .consejo = txt::TipTramo},
    {.id = Ed::edDescriTramo2, .nombre = "edDescriTramo2", .clase = Clase::Texto, .pagina = kPaginaColocacion, .rotulo = txt::RotDescriTramo, .consejo = txt::TipDescriTramo},
});
// clang-format on

using Tabla = std::array<FilaCampo, kCamposCaptura>;

constexpr void Toma(FilaCampo& fila, const Dato<Obra>& dato) {
  if (const auto* numero = std::get_if<double Obra::*>(&dato.miembro)) fila.obra = *numero;
}

constexpr void Toma(FilaCampo& fila, const Dato<Tramo>& dato) {
  if (const auto* numero = std::get_if<double Tramo::*>(&dato.miembro)) fila.tramo = *numero;
  if (const auto* codigo = std::get_if<std::int16_t Tramo::*>(&dato.miembro)) fila.codigo = *codigo;
}

constexpr FilaCampo& En(Tabla& tabla, const Campo& campo) {
  auto& fila = tabla[static_cast<std::size_t>(campo.id)];
  static_cast<Campo&>(fila) = campo;
  return fila;
}

constexpr void Anade(Tabla& tabla, const auto& datos) {
  for (const auto& dato : datos) {
    if (!dato.ficha.EnPantalla()) continue;
    auto& fila = En(tabla, dato.ficha.campo);
    fila.ficha = &dato.ficha;
    Toma(fila, dato);
  }
}

constexpr Tabla kCampos = [] {
  Tabla tabla;
  for (const auto& campo : kSinDato) En(tabla, campo);
  Anade(tabla, kDatosObra);
  Anade(tabla, kDatosTramo);
  return tabla;
}();

// Neither a field without a row nor two rows for one.
constexpr bool Completa() {
  const auto enPantalla = [](const auto& dato) { return dato.ficha.EnPantalla(); };
  return std::ranges::count_if(kDatosObra, enPantalla) +
                 std::ranges::count_if(kDatosTramo, enPantalla) + std::ssize(kSinDato) ==
             kCamposCaptura &&
         std::ranges::none_of(kCampos, [](const auto& fila) { return fila.nombre.empty(); });
}
static_assert(Completa(), "every field of Ed shows a datum or stands on its own");

}  // namespace

std::span<const FilaCampo> TablaCampos() {
  return kCampos;
}

const FilaCampo& Fila(Ed id) {
  return kCampos[static_cast<std::size_t>(id)];
}

bool EsCopia(Ed id) {
  return id == Ed::edObra2 || id == Ed::edTramo2 || id == Ed::edDescriTramo2;
}

std::optional<Ed> CampoPorNombre(std::string_view nombre) {
  const auto f = std::find_if(kCampos.begin(), kCampos.end(),
                              [&](const FilaCampo& c) { return c.nombre == nombre; });
  if (f == kCampos.end()) return std::nullopt;
  return f->id;
}

}  // namespace zorbin
