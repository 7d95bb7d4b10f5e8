#include "sesion/ajustes/mdTecleado.h"

#include <cmath>

#include "base/mdNumeros.h"
#include "base/textos.h"
#include "sesion/ajustes/mdPresentaAjustes.h"
#include "sesion/captura/mdGeometria.h"

namespace zorbin {

namespace {

constexpr double kMinimo = 0.001;  // of a cover [cm]

bool Rechaza(Ajustes& a, const std::string& texto, int titulo) {
  a.c.voz.Muestra(texto, Texto(a, titulo));
  return false;
}

bool ValidaNumero(Ajustes& a, CampoAjuste campo, double minimo, double& destino, int etiqueta) {
  const auto leido = NumeroTecleado(a.t.pantalla.Texto(campo), a.c.SeparadorDecimal);
  const bool numero = leido.valor && std::fabs(*leido.valor) <= kMayorTecleado;
  if (numero && *leido.valor >= minimo) {
    destino = *leido.valor;
    return true;
  }
  a.c.voz.Muestra(numero ? Texto(a, txt::ValorIncorrecto) : TextoDeFalta(a.c, leido),
                  SinDosPuntos(Texto(a, etiqueta)));
  return false;
}

bool SaleDirecta(Ajustes& a, CampoAjuste campo) {
  const bool camisa = campo == CampoAjuste::txArmCamisa;
  const bool exterior = campo == CampoAjuste::txArmExterior;
  double& destino = camisa ? a.t.Dir.Camisa : exterior ? a.t.Dir.Exterior : a.t.Dir.Espiras;
  const bool vale = ValidaNumero(a, campo, 0.0, destino,
                                 camisa     ? txt::AjEtCamisa
                                 : exterior ? txt::AjExterior
                                            : txt::AjEtRefuerzo);
  // What is chosen and stored is what the field shows.
  destino = vale ? AreaMostrada(destino) : 0.0;
  MuestraDirecta(a);
  return vale;
}

// A cover left at 0 takes that of the manufacturers' table.
bool TomaElDeLaTabla(Ajustes& a, bool interior) {
  const auto& t = a.tramo.tramo;
  double Esp = t.Esp;
  const int codigo = RecomendadosGeom(a.c, Esp, a.t.RecIntAlt, a.t.RecExtAlt, t.Tipologia, t.Di,
                                      interior ? ModoGeom::Interior : ModoGeom::Exterior);
  return codigo == kGeomHallado || Rechaza(a, Texto(a, txt::NoEsComercial), txt::EtEsp);
}

bool SaleRecubrimiento(Ajustes& a, CampoAjuste campo) {
  const bool interior = campo == CampoAjuste::txRecInterior;
  double& destino = interior ? a.t.RecIntAlt : a.t.RecExtAlt;
  if (!ValidaNumero(a, campo, a.tramo.EsComercial ? 0.0 : kMinimo, destino,
                    interior ? txt::EtReci : txt::EtRece)) {
    return false;
  }
  if (destino < kMinimo && !TomaElDeLaTabla(a, interior)) return false;
  // The cover in force is the one that the field shows.
  destino = NumeroTexto(FormatoMascara(destino, kMascaraRecubrimiento, '.')).value_or(destino);
  Escribe(a, campo, destino, kMascaraRecubrimiento);
  return true;
}

}  // namespace

void Cambia(Ajustes& a, CampoAjuste campo, std::string texto) {
  auto& p = a.t.pantalla;
  if (!p.Abierto(campo)) return;
  p.Texto(campo) = std::move(texto);
  p.tocados[static_cast<std::size_t>(campo)] = true;
}

bool Sale(Ajustes& a, CampoAjuste campo) {
  const auto& p = a.t.pantalla;
  if (!p.Abierto(campo) || !p.tocados[static_cast<std::size_t>(campo)]) return true;
  return p.estado == EstadoAjuste::Directa ? SaleDirecta(a, campo) : SaleRecubrimiento(a, campo);
}

bool TomaDirecta(Ajustes& a) {
  for (const auto campo :
       {CampoAjuste::txArmCamisa, CampoAjuste::txArmRefuerzo, CampoAjuste::txArmExterior}) {
    if (!Sale(a, campo)) return false;
  }
  const auto& dir = a.t.Dir;
  if (dir.Camisa == 0.0 && dir.Espiras == 0.0) {
    return Rechaza(a, Texto(a, txt::AjInteriorCero), txt::TituloAviso);
  }
  return dir.Exterior != 0.0 || Rechaza(a, Texto(a, txt::AjExteriorCero), txt::TituloAviso);
}

bool TomaRecubrimientos(Ajustes& a) {
  if (!Sale(a, CampoAjuste::txRecInterior) || !Sale(a, CampoAjuste::txRecExterior)) return false;
  const double suma = a.t.RecIntAlt + a.t.RecExtAlt;
  const double Esp = a.tramo.tramo.Esp;
  return suma < Esp ||
         Rechaza(a,
                 a.c.textos.Compone(txt::AjSinBrazo, {Formato(a, suma, kMascaraRecubrimiento),
                                                      Formato(a, Esp, kMascaraRecubrimiento)}),
                 txt::TituloAviso);
}

}  // namespace zorbin
