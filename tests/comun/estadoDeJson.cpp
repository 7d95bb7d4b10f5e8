#include "comun/estadoDeJson.h"

#include <fstream>
#include <nlohmann/json.hpp>
#include <stdexcept>
#include <type_traits>

#include "calculo/corrida/mdCalculaTramo.h"
#include "comun/campos.h"
#include "core/mdUnidades.h"

namespace zorbin::pruebas {

namespace {

bool Bandera(const nlohmann::json& v) {
  return v.is_boolean() ? v.get<bool>() : v.get<int>() != 0;
}

// Takes the value of a name into a field; a name left out leaves 0.
template <class T>
void Lee(const nlohmann::json& j, const char* nombre, T& campo) {
  campo = T{};
  if (!j.contains(nombre)) return;
  if constexpr (std::is_same_v<T, bool>) {
    campo = Bandera(j[nombre]);
  } else {
    j[nombre].get_to(campo);
  }
}

}  // namespace

nlohmann::json LeeJson(const std::string& ruta) {
  std::ifstream f(ruta);
  if (!f) throw std::runtime_error("cannot open " + ruta);
  return nlohmann::json::parse(f);
}

#define LEE(campo) Lee(j, #campo, destino.campo)

void RellenaObra(EstadoCalculo& e, const nlohmann::json& j) {
  auto& destino = e.obra;
  LEE(Idioma), LEE(SisUnid), LEE(GolpeCalculado), LEE(NombreObra), LEE(Cliente);
  for (const auto& c : kNumerosObra) Lee(j, c.nombre, destino.*c.campo);
}

void RellenaTramo(EstadoCalculo& e, const nlohmann::json& j) {
  auto& destino = e.tramo;
  LEE(NumeroTramo), LEE(DescriTramo), LEE(Icontes0), LEE(Icontes1);
  for (const auto& c : kNumerosTramo) Lee(j, c.nombre, destino.*c.campo);
  for (const auto& c : kCodigosTramo) Lee(j, c.nombre, destino.*c.campo);
  Deriva(destino);
  if (destino.Fct == 0) destino.Fct = FctEnSistema(destino.Fck, e.obra.EsSI());
}

#undef LEE

EstadoCalculo EstadoDe(const nlohmann::json& entrada) {
  EstadoCalculo e;
  RellenaObra(e, entrada);
  RellenaTramo(e, entrada);
  return e;
}

EstadoCalculo EstadoDeMuestra(int posicion) {
  const auto datos = LeeJson(ZORBIN_FUENTES "muestras/acequia.json");
  EstadoCalculo e;
  RellenaObra(e, datos.at("obra"));
  RellenaTramo(e, datos.at("tramos").at(static_cast<std::size_t>(posicion - 1)));
  return e;
}

DatosTramo EnCalculo(const EstadoCalculo& e) {
  return DatosDeCalculo(e.obra, e.tramo);
}

EstadoCalculo EnMks(EstadoCalculo e) {
  auto& o = e.obra;
  auto& t = e.tramo;
  for (double* x :
       {&o.Prs1,     &o.Prs2,      &o.Prs3,      &o.PrsM1, &o.PrsM2, &t.Prs1Tram, &t.Prs2Tram,
        &t.Prs3Tram, &t.PrsM1Tram, &t.PrsM2Tram, &t.Fck,   &t.Fyk,   &t.Fyd,      &t.Es,
        &t.Ep,       &t.Fckno,     &t.Fckn,      &t.Fckr,  &t.SFck,  &t.Sf,       &t.FYKPost}) {
    *x *= 10.0;
  }
  t.QDato *= 100.0;
  t.Fct = FctDeFck(t.Fck);
  o.SisUnid = "MKS";
  return e;
}

}  // namespace zorbin::pruebas
