#include "sesion/captura/mdPaginas.h"

#include "base/textos.h"
#include "core/mdUnidades.h"
#include "sesion/captura/mdEtiquetas.h"
#include "sesion/captura/mdValidaTramo.h"

namespace zorbin {

namespace {

// A check before a page is left: a failure goes back to the field.
bool Comprueba(Captura& c, Ed campo, double minimo, int etiqueta) {
  if (LeeAlSalir(c, campo, minimo, Variable(c, campo), etiqueta)) return true;
  VaA(c, campo);
  return false;
}

bool DejaPaginaObra(Captura& c) {
  const auto& o = c.e.obra;
  return Comprueba(c, Ed::edPrs1, kNadaBajoCero, txt::EtPrs1) &&
         Comprueba(c, Ed::edPrs2, kNadaBajoCero, txt::EtPrs2) &&
         (o.Prs2 <= o.Prs1 || Comprueba(c, Ed::edPrs3, kAlgo, txt::EtPrs3));
}

// A pressure with a text that passes ends the tests, as it always did.
bool LlegaAColocacion(Captura& c) {
  if (EnBlanco(c, Ed::edTramo)) {
    Rechaza(c, Ed::edTramo, Texto(c, txt::DebeSeleccionarTramo));
    VaA(c, Ed::edTramo);
    return false;
  }
  if (!Comprueba(c, Ed::edPrs1Tram, kNadaBajoCero, txt::EtPrs1)) return false;
  if (!EnBlanco(c, Ed::edPrs1Tram)) return true;
  if (!Comprueba(c, Ed::edPrs2Tram, kNadaBajoCero, txt::EtPrs2)) return false;
  if (!EnBlanco(c, Ed::edPrs2Tram)) return true;
  const auto& t = c.e.tramo;
  return t.Prs2Tram <= t.Prs1Tram || Comprueba(c, Ed::edPrs3Tram, kAlgo, txt::EtPrs3);
}

bool FaltaDato(Captura& c, Ed campo, int nombre) {
  Rechaza(c, campo, Texto(c, txt::NoHaSeleccionado) + " " + SinDosPuntos(Texto(c, nombre)));
  VaA(c, campo);
  return false;
}

bool LlegaACargas(Captura& c) {
  const auto& t = c.e.tramo;
  const auto r = EligeAlturas(c);
  if (r.Hr0 < 0.001) return FaltaDato(c, Ed::edHr0, txt::EtAlturas);
  if (t.De < 0.001) return FaltaDato(c, Ed::edDi0, txt::EtDe);
  if (t.B0 < 0.001 && t.TipoApoyo < 30) return FaltaDato(c, Ed::edB0, txt::EtB0);
  const bool arco = r.Hr0Final > 5.0 && r.Hr0Final > 5.0 * t.De;
  c.pantalla.avCargas1 =
      arco ? Texto(c, txt::AvisoArco1) + " " + Texto(c, txt::AvisoArco2) : std::string{};
  return true;
}

}  // namespace

bool CambiaPagina(Captura& c, int pagina) {
  auto& delante = c.pantalla.pagina.TabPrincipal;
  if (delante == 0 && pagina != 0 && !DejaPaginaObra(c)) return false;
  if (pagina == 2 && !LlegaAColocacion(c)) return false;
  if (EnBlanco(c, Ed::edObra2)) Escribe(c, Ed::edObra2, c[Ed::edObra].texto);
  delante = pagina;
  RenuevaTitulo(c);
  if (pagina == 2) {
    c.pantalla.foco = Ed::rdTipoColocacion;
    c.voz.VaA(Ed::rdTipoColocacion);
  }
  return true;
}

bool CambiaPaginaColocacion(Captura& c, int pagina) {
  if (pagina == 2 && !LlegaACargas(c)) return false;
  c.pantalla.pagina.TabDatosColocacion = pagina;
  return true;
}

void CambiaPaginaPostesados(Captura& c, int pagina) {
  c.pantalla.pagina.TabPostesados = pagina;
}

}  // namespace zorbin
