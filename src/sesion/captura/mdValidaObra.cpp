#include "sesion/captura/mdValidaObra.h"

#include "base/textos.h"
#include "core/mdUnidades.h"
#include "sesion/captura/mdPresionesAlturas.h"

namespace zorbin {

namespace {

constexpr double kAlturaMinima = 1.0;  // [m]

// A fault is no use in a field that is locked.
bool Abre(Captura& c, Ed campo) {
  Desbloquea(c, campo);
  return false;
}

bool Falla(Captura& c, Ed campo, int texto, const std::string& titulo = {}) {
  Rechaza(c, campo, Texto(c, texto), titulo);
  return Abre(c, campo);
}

std::string TituloError(const Captura& c) {
  return Texto(c, txt::TituloErrorCaptura) + ":";
}

// A field with a value for a blank one. What is written back is shown.
bool Completa(Captura& c, Ed campo, double minimo, int etiqueta, double enBlanco) {
  double& variable = Variable(c, campo);
  if (EnBlanco(c, campo)) {
    variable = enBlanco;
  } else if (!ValidaNumero(c, campo, minimo, variable, etiqueta)) {
    return Abre(c, campo);
  }
  MuestraVariable(c, campo);
  return true;
}

// The increment is checked on a copy: the variable is the one that the editing of the field stored.
bool CompruebaIncremento(Captura& c) {
  auto& o = c.e.obra;
  if (EnBlanco(c, Ed::edPrs3)) {
    o.Prs3 = 0.0;
    return true;
  }
  double copia = o.Prs3;
  if (!ValidaNumero(c, Ed::edPrs3, kNadaBajoCero, copia, txt::EtPrs3)) {
    return Abre(c, Ed::edPrs3);
  }
  MuestraVariable(c, Ed::edPrs3);
  return true;
}

bool CompletaPresiones(Captura& c) {
  const auto& o = c.e.obra;
  return Cada({Completa(c, Ed::edPrs1, kNadaBajoCero, txt::EtPrs1, o.PrsM1 / kRelacionMDPDP),
               Completa(c, Ed::edPrs2, kNadaBajoCero, txt::EtPrs2, o.PrsM2 / kRelacionMDPDP),
               CompruebaIncremento(c), Completa(c, Ed::edPrsM1, kNadaBajoCero, txt::EtPrsM1, 0.0),
               Completa(c, Ed::edPrsM2, kNadaBajoCero, txt::EtPrsM2, 0.0)});
}

bool ComparaPresiones(Captura& c) {
  auto& o = c.e.obra;
  if (o.PrsM1 < 0) return Falla(c, Ed::edPrsM1, txt::SinMDPInicial, TituloError(c));
  if (o.PrsM2 == 0) {
    o.PrsM2 = o.PrsM1;
    o.Prs3 = 0.0;
    MuestraVariable(c, Ed::edPrsM2);
    MuestraVariable(c, Ed::edPrs3);
  }
  if (o.Prs1 > o.PrsM1) return Falla(c, Ed::edPrs1, txt::MDPInferiorADP);
  if (o.Prs2 > o.PrsM2) return Falla(c, Ed::edPrs2, txt::MDPInferiorADP);
  if (o.PrsM2 == o.PrsM1 && o.Prs3 != 0) return Falla(c, Ed::edPrs3, txt::DebeIncremento);
  if (o.PrsM2 != o.PrsM1 && o.Prs3 < kIncrementoMinimo) {
    return Falla(c, Ed::edPrs3, txt::DebeIncrementoMayor);
  }
  return true;
}

bool CompruebaAlturas(Captura& c) {
  auto& o = c.e.obra;
  if (!Completa(c, Ed::edAlt1, kAlgo, txt::EtAlt1, 0.0)) return false;
  if (o.Alt1 < kAlturaMinima) return Falla(c, Ed::edAlt1, txt::AlturaMinima1m);
  if (!Completa(c, Ed::edAlt2, kAlgo, txt::EtAlt2, o.Alt1)) return false;
  if (o.Alt2 > o.Alt1) {
    if (!ValidaNumero(c, Ed::edAlt3, kAlgo, o.Alt3, txt::EtAlt3)) return Abre(c, Ed::edAlt3);
  } else {
    o.Alt3 = 0.0;
  }
  MuestraVariable(c, Ed::edAlt3);
  return true;
}

}  // namespace

bool ValidaObra(Captura& c) {
  c.faltas.clear();
  // The last two guards of the increments can't be reached: the tests before them are as strict.
  const bool textos = Cada({ValidaTexto(c, Ed::edObra), ValidaTexto(c, Ed::edCliente)});
  const bool presiones = CompletaPresiones(c) && ComparaPresiones(c);
  return CompruebaAlturas(c) && presiones && textos;
}

}  // namespace zorbin
