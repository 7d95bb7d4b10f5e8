#include "listados/datos/mdJsonVeredicto.h"

#include <array>

namespace zorbin {

namespace {

// In the order of their enumerations.
constexpr std::array<std::string_view, 3> kVeredictos{"cumple", "nocumple", "sincomprobar"};
constexpr std::array<std::string_view, 10> kMotivos{"",
                                                    "comprobacion",
                                                    "momentoLimite",
                                                    "flexionSobreTope",
                                                    "fisuracionSobreTope",
                                                    "sinSolucion",
                                                    "falloCorrida",
                                                    "axilNulo",
                                                    "pruebaOtraPasada",
                                                    "capasDeAjuste"};
constexpr std::array<std::string_view, 15> kQue{"armadura",
                                                "pruebaFabrica",
                                                "armaduraMinima",
                                                "momentoLimite",
                                                "fisuracion",
                                                "topeExterior",
                                                "exteriorIneludible",
                                                "espesor",
                                                "fuerzaAlambre",
                                                "zunchado",
                                                "pruebaNucleo",
                                                "tensionNucleo",
                                                "tensionRevestimiento",
                                                "tensionChapa",
                                                "alambre"};
constexpr std::array<std::string_view, 4> kLugares{"", "clave", "rinones", "solera"};
constexpr std::array<std::string_view, 3> kCaras{"", "int", "ext"};
constexpr std::array<std::string_view, 7> kAdvertencias{
    "retraccion",       "capasInterior", "capasExterior",  "separacionAlambre",
    "fisuracionPrueba", "pruebaBaja",    "topePorRedondeo"};

template <std::size_t N, class E>
std::string_view De(const std::array<std::string_view, N>& nombres, E lugar) {
  return nombres.at(static_cast<std::size_t>(lugar));
}

// A name, or null where it is of none.
void Nombre(EscritorJson& j, std::string_view clave, std::string_view nombre) {
  j.Clave(clave);
  nombre.empty() ? j.Valor(std::nullopt) : j.Valor(nombre);
}

void DeComprobacion(EscritorJson& j, const ComprobacionCaso& c) {
  j.Abre('{');
  j.Campo("que", De(kQue, c.que));
  j.Clave("hipotesis");
  c.hipotesis == 0 ? j.Valor(std::nullopt) : j.Valor(c.hipotesis);
  Nombre(j, "seccion", De(kLugares, c.seccion));
  Nombre(j, "cara", De(kCaras, c.cara));
  j.Campo("valor", c.valor);
  j.Campo("limite", c.limite);
  j.Campo("uso", c.uso);
  j.Cierra('}');
}

}  // namespace

std::string_view CodigoDe(Veredicto veredicto) {
  return De(kVeredictos, veredicto);
}

void DeVeredicto(EscritorJson& j, const Verificacion& v, bool ajustado) {
  j.Campo("veredicto", CodigoDe(v.veredicto));
  j.Campo("uso", v.uso);
  j.Campo("ajustado", ajustado);
  Nombre(j, "motivo", De(kMotivos, v.motivo));
  j.Clave("advertencias");
  j.Abre('[');
  for (std::size_t i = 0; i < kAdvertencias.size(); ++i) {
    if ((v.avisos & (1u << i)) != 0) j.Valor(kAdvertencias[i]);
  }
  j.Cierra(']');
  j.Clave("comprobaciones");
  j.Abre('[');
  for (const auto& c : v.comprobaciones) DeComprobacion(j, c);
  j.Cierra(']');
}

}  // namespace zorbin
