#include "comun/estadoDeJson.h"

#include <fstream>
#include <stdexcept>

namespace zorbin::pruebas {

namespace {

bool Bandera(const nlohmann::json& v) { return v.is_boolean() ? v.get<bool>() : v.get<int>() != 0; }

}  // namespace

nlohmann::json LeeJson(const std::string& ruta) {
  std::ifstream f(ruta);
  if (!f) throw std::runtime_error("cannot open " + ruta);
  return nlohmann::json::parse(f);
}

EstadoCalculo EstadoDe(const nlohmann::json& j) {
  EstadoCalculo e;
  auto& o = e.obra;
  auto& t = e.tramo;
  const auto lee = [&j](const char* nombre, auto& campo) { j.at(nombre).get_to(campo); };
#define OBRA(campo) lee(#campo, o.campo)
#define TRAMO(campo) lee(#campo, t.campo)
  OBRA(Idioma), OBRA(SisUnid), OBRA(NombreObra), OBRA(Cliente), OBRA(Prs1), OBRA(Prs2), OBRA(Prs3);
  OBRA(PrsM1), OBRA(PrsM2), OBRA(Alt1), OBRA(Alt2), OBRA(Alt3);
  TRAMO(NumeroTramo), TRAMO(DescriTramo), TRAMO(Tipologia), TRAMO(PostFlag), TRAMO(SubTipo);
  TRAMO(Adato), TRAMO(Coepre1), TRAMO(TipoControl), TRAMO(TipoCamisa), TRAMO(CamMax);
  TRAMO(Fck), TRAMO(Fct), TRAMO(Fyk), TRAMO(Fyd), TRAMO(GamaB), TRAMO(GamaY), TRAMO(GamaF);
  TRAMO(Delca), TRAMO(Es), TRAMO(Ep), TRAMO(Fckno), TRAMO(Fckn), TRAMO(Fckr), TRAMO(SFck);
  TRAMO(Sf), TRAMO(FYKPost), TRAMO(Rel), TRAMO(Fic), TRAMO(Fir), TRAMO(Epsc), TRAMO(Epsr);
  TRAMO(Di), TRAMO(De), TRAMO(Esp), TRAMO(Reci), TRAMO(Rece), TRAMO(Gc), TRAMO(TipoCuna);
  TRAMO(TipoApoyo), TRAMO(TipoColocacion), TRAMO(B0), TRAMO(Gr), TRAMO(Fi), TRAMO(TipoRelleno);
  TRAMO(Hr1), TRAMO(IAs), TRAMO(QDato), TRAMO(IndCar), TRAMO(ICar), TRAMO(Prs1Tram);
  TRAMO(Prs2Tram), TRAMO(Prs3Tram), TRAMO(PrsM1Tram), TRAMO(PrsM2Tram), TRAMO(Hr0Tramo);
  TRAMO(Hr0Final), TRAMO(Hr0Delta);
#undef OBRA
#undef TRAMO
  o.GolpeCalculado = Bandera(j.at("GolpeCalculado"));
  t.EsArmado = Bandera(j.at("EsArmado"));
  t.Icontes0 = Bandera(j.at("Icontes0"));
  t.Icontes1 = Bandera(j.at("Icontes1"));
  return e;
}

}  // namespace zorbin::pruebas
