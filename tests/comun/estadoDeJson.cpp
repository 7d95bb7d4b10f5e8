#include "comun/estadoDeJson.h"

#include <fstream>
#include <nlohmann/json.hpp>
#include <stdexcept>
#include <type_traits>

#include "calculo/corrida/mdCalculaTramo.h"
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
  LEE(Prs1), LEE(Prs2), LEE(Prs3), LEE(PrsM1), LEE(PrsM2), LEE(Alt1), LEE(Alt2), LEE(Alt3);
}

void RellenaTramo(EstadoCalculo& e, const nlohmann::json& j) {
  auto& destino = e.tramo;
  LEE(NumeroTramo), LEE(DescriTramo), LEE(Tipologia), LEE(Icontes0), LEE(Adato), LEE(Icontes1);
  LEE(Coepre1), LEE(TipoControl), LEE(TipoCamisa), LEE(CamMax), LEE(Fck), LEE(Fct), LEE(Fyk);
  LEE(Fyd), LEE(GamaB), LEE(Delca), LEE(Es), LEE(Ep), LEE(Fckno), LEE(Fckn), LEE(Fckr);
  LEE(SFck), LEE(Sf), LEE(FYKPost), LEE(Rel), LEE(Fic), LEE(Fir), LEE(Epsc), LEE(Epsr), LEE(Di);
  LEE(De), LEE(Esp), LEE(Reci), LEE(Rece), LEE(Gc), LEE(TipoCuna), LEE(TipoApoyo), LEE(B0);
  LEE(Gr), LEE(Fi), LEE(TipoRelleno), LEE(Hr1), LEE(IAs), LEE(QDato), LEE(IndCar), LEE(ICar);
  LEE(Prs1Tram), LEE(Prs2Tram), LEE(Prs3Tram), LEE(PrsM1Tram), LEE(PrsM2Tram), LEE(Hr0Tramo);
  LEE(Hr0Final), LEE(Hr0Delta);
  destino.EsArmado = destino.Tipologia < kPrimeraPostesada;
  destino.SubTipo = destino.EsArmado ? 3 : 0;
  destino.PostFlag = destino.EsArmado ? 0 : 1;
  destino.TipoColocacion = destino.TipoApoyo < 20 ? 0 : destino.TipoApoyo < 30 ? 1 : 2;
  if (destino.Fct == 0) destino.Fct = FctDeFck(destino.Fck);
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
  return DatosDeCalculo(e.obra, e.tramo, e.corrida.ajustes, e.corrida.SinAjustes);
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
