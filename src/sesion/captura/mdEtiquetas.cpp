#include "sesion/captura/mdEtiquetas.h"

#include <array>
#include <optional>
#include <vector>

#include "base/aritmetica.h"
#include "base/textos.h"
#include "core/mdUnidades.h"
#include "sesion/captura/mdCiclo.h"
#include "sesion/captura/mdPlausibilidad.h"
#include "sesion/captura/mdTipologias.h"

namespace zorbin {

namespace {

constexpr std::string_view kBandaRecubrimiento = " (2 - 4)";  // [cm]

std::string EtiquetaEspesor(const Captura& c) {
  std::string texto = Texto(c, txt::EtEsp);
  if (c.EspRecomMin == 0 && c.EspRecomMax == 0) return texto;
  return texto + " (" + Formato(c, c.EspRecomMin, "0") + " - " + Formato(c, c.EspRecomMax, "0") +
         ")";
}

std::string EtiquetaHr1(const Captura& c) {
  const auto colocacion = c.e.tramo.TipoColocacion;
  return Texto(c, txt::RotHr1) + (colocacion == 1 ? "'' (m):" : "' (m):");
}

std::string EtiquetaDe(const Captura& c, const FilaCampo& fila) {
  const auto conBanda = [&](bool banda, int corta) {
    return banda ? Texto(c, corta) + std::string(kBandaRecubrimiento) : Texto(c, fila.rotulo);
  };
  switch (fila.id) {
    case Ed::edEsp0:
      return EtiquetaEspesor(c);
    case Ed::edReci0:
      return conBanda(c.BandaReci, txt::RecubInteriorBanda);
    case Ed::edRece0:
      return conBanda(c.BandaRece, txt::RecubExteriorBanda);
    case Ed::edHr1:
      return EtiquetaHr1(c);
    case Ed::edSf:
      return Texto(c, txt::RotSf) + " (" + c[Ed::edSf].texto + ")";
    default:
      break;
  }
  if (fila.rotulo == 0) return {};
  return Texto(c, c.EsSI() && fila.rotuloSI != 0 ? fila.rotuloSI : fila.rotulo);
}

std::string GrupoDe(const Captura& c, const FilaCampo& fila) {
  if (fila.grupo == 0) return {};
  const std::string texto = Texto(c, fila.grupo);
  if (!fila.ficha->Escala()) return texto;
  return texto + " " + Texto(c, c.EsSI() ? txt::UnidadMPa : txt::UnidadAt);
}

std::vector<std::string> Entradas(const Captura& c, std::initializer_list<int> textos) {
  std::vector<std::string> entradas;
  for (const int n : textos) entradas.push_back(Texto(c, n));
  return entradas;
}

// The entries of a list, in the language in force; the entry chosen stays chosen.
void RenuevaLista(Captura& c, const FilaCampo& fila) {
  const int posicion = PosicionEnLista(c, fila.id);
  auto& control = c[fila.id];
  control.entradas.clear();
  for (int i = 0; i < fila.entradas; ++i) {
    control.entradas.push_back(Texto(c, fila.entrada + i));
  }
  if (posicion > 0) EligeEntrada(c, fila.id, posicion);
}

void RenuevaOpciones(Captura& c) {
  c[Ed::rdSistemaUnidades].entradas = Entradas(c, {txt::RotSI, txt::RotMKS});
  c[Ed::rdGolpeAriete].entradas = Entradas(c, {txt::Si, txt::No});
  c[Ed::rdTipologia].entradas = {SinMarcas(Texto(c, txt::PagArmado)),
                                 SinMarcas(Texto(c, txt::PagPostesado))};
  c[Ed::rdTipoCamisa].entradas = Entradas(c, {txt::OpcionEmbebida, txt::OpcionRevestida});
  c[Ed::rdTipoColocacion].entradas =
      Entradas(c, {txt::OpcionZanja, txt::OpcionZanjaTerraplenada, txt::OpcionTerraplen});
}

// As the captions of the catalogue write them.
constexpr auto kUnidadesEnRotulos = std::to_array<std::string_view>(
    {"(mts.)", "(mts)", "(m)", "(cm.)", "(cm)", "(mm.)", "(mm)", "(cm2/m)", "(Kp/cm2)", "(MPa)",
     "(at)", "(T/m2)", "(T/m3)", "(%)", "(º)", "(°)"});

// The field of the Obra that one of the Tramo takes its value from; itself where there is none.
Ed DeLaObra(Ed campo) {
  switch (campo) {
    case Ed::edPrsM1Tram:
      return Ed::edPrsM1;
    case Ed::edPrsM2Tram:
      return Ed::edPrsM2;
    case Ed::edPrs1Tram:
      return Ed::edPrs1;
    case Ed::edPrs2Tram:
      return Ed::edPrs2;
    case Ed::edPrs3Tram:
      return Ed::edPrs3;
    case Ed::edHr0:
      return Ed::edAlt1;
    case Ed::edHr0Final:
      return Ed::edAlt2;
    case Ed::edHr0Delta:
      return Ed::edAlt3;
    default:
      return campo;
  }
}

double ValorDe(const Captura& c, Ed campo) {
  const auto& fila = Fila(campo);
  if (fila.obra != nullptr) return c.e.obra.*fila.obra;
  return fila.tramo != nullptr ? c.e.tramo.*fila.tramo : 0.0;
}

// The maximum that a design pressure follows from.
std::optional<Ed> MaximaDe(Ed campo) {
  switch (campo) {
    case Ed::edPrs1:
      return Ed::edPrsM1;
    case Ed::edPrs2:
      return Ed::edPrsM2;
    case Ed::edPrs1Tram:
      return Ed::edPrsM1Tram;
    case Ed::edPrs2Tram:
      return Ed::edPrsM2Tram;
    default:
      return std::nullopt;
  }
}

// All pressures of a Tramo are its own as soon as one is, and so are its heights.
bool TieneSuyas(const Captura& c, Ed campo) {
  const auto& t = c.e.tramo;
  const auto de = DeLaObra(campo);
  if (de == campo) return true;
  if (de == Ed::edAlt1 || de == Ed::edAlt2 || de == Ed::edAlt3) {
    return AlturasDe(c.e.obra, t).AlturasPropias;
  }
  return t.TieneDPPropia() || t.PrsM1Tram > 0 || t.PrsM2Tram > 0;
}

}  // namespace

std::string UnidadEscrita(Ed campo, bool si) {
  const auto& unidades = UnidadesDe(Fila(campo).ficha->magnitud);
  std::string texto;
  for (const char letra : si ? unidades.si : unidades.mks) {
    if (letra == '2') {
      texto += "²";
    } else if (letra == '3') {
      texto += "³";
    } else {
      texto += letra;
    }
  }
  return texto == "º" ? "°" : texto;
}

std::string SinUnidad(std::string rotulo) {
  for (const auto unidad : kUnidadesEnRotulos) {
    const auto donde = rotulo.find(unidad);
    if (donde == std::string::npos) continue;
    rotulo.erase(donde, unidad.size());
    auto antes = donde;
    while (antes > 0 && rotulo[antes - 1] == ' ') rotulo.erase(--antes, 1);
    break;
  }
  while (!rotulo.empty() && (rotulo.back() == ' ' || rotulo.back() == ':')) rotulo.pop_back();
  return rotulo;
}

std::string ValorEnBlanco(const Captura& c, Ed campo) {
  const bool suyas = TieneSuyas(c, campo);
  const Ed donde = suyas ? campo : DeLaObra(campo);
  double valor = ValorDe(c, donde);
  if (const auto maxima = MaximaDe(donde); maxima && valor == 0) {
    valor = ValorDe(c, *maxima) / kRelacionMDPDP;
  }
  if (valor == 0 || !Fila(campo).ficha || (donde == campo && !MaximaDe(campo))) return {};
  return Formato(c, valor, Fila(campo).ficha->Mascara(c.EsSI()));
}

std::string TextoUnidades(const Captura& c) {
  return Texto(c, c.EsSI() ? txt::SistemaSI : txt::SistemaMKS) + ". ";
}

void RenuevaEtiquetas(Captura& c) {
  for (const auto& fila : TablaCampos()) {
    c[fila.id].etiqueta = EtiquetaDe(c, fila);
    c[fila.id].grupo = GrupoDe(c, fila);
  }
  // This tip ends with an example in the units in force.
  c[Ed::edFck].consejo = Texto(c, Fila(Ed::edFck).consejo) + (c.EsSI() ? " (35)" : " (350)");
  RenuevaAvisos(c);
}

void RenuevaTitulo(Captura& c) {
  auto& p = c.pantalla;
  const int marca = c.EnAltas()            ? txt::AltaDeTramo
                    : c.EnModificaciones() ? txt::ModificacionDeTramo
                                           : 0;
  p.titulo = TextoUnidades(c);
  if (p.pagina.TabPrincipal > 0 && marca != 0) p.titulo += Texto(c, marca) + " ";
  p.titulo += Texto(c, txt::CapturaDatos);
  p.textoCancelar = Texto(c, c.EnAltas() ? txt::BotonCancelar : txt::BotonReleer);
}

void PoneTextosCaptura(Captura& c) {
  for (const auto& fila : TablaCampos()) {
    if (fila.clase == Clase::Lista) RenuevaLista(c, fila);
    if (fila.consejo != 0) c[fila.id].consejo = Texto(c, fila.consejo);
  }
  RenuevaOpciones(c);
  RenuevaEtiquetas(c);
  RenuevaTitulo(c);
}

void CambiaIdioma(Captura& c, std::int16_t idioma) {
  c.textos.PonIdioma(idioma);
  PoneTextosCaptura(c);
}

void RevisaUnidades(Captura& c, bool aSI) {
  if (c.LeyendoDatos || aSI == c.EsSI()) return;
  Version v = VersionActual(c);
  CambiaUnidades(v, aSI);
  VuelveA(c, v, c.enMano);
}

}  // namespace zorbin
