#include "sesion/captura/mdPlausibilidad.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <iterator>
#include <limits>

#include "base/mdNumeros.h"
#include "base/mdTextos.h"
#include "base/textos.h"
#include "core/mdUnidades.h"
#include "sesion/captura/mdEtiquetas.h"
#include "sesion/captura/mdGeometria.h"
#include "sesion/captura/mdReglas.h"

namespace zorbin {

namespace {

constexpr std::string_view kMascaraAltura = "#####0.00";  // and of ratios

constexpr double kSinTope = std::numeric_limits<double>::infinity();
constexpr double kParedMinima = 0.07;  // of the internal diameter; manufacturers go down to 0.077
constexpr double kTraficoSobre = 0.6;  // cover below which wheels act almost as they stand [m]
constexpr double kDosCapas = 35.06;    // outer reinforcement that takes two layers [cm2/m]
constexpr double kFydUsual = 1400.0;   // above it cracks open wider than 0.1 mm [kp/cm2]
constexpr double kArcoDesde = 5.0;     // height and multiple of De beyond which soil arches [m, -]

double AlturaInicial(const Obra& o, const Tramo& t) {
  return t.Hr0Tramo > 0 || t.Hr0Final > 0 ? t.Hr0Tramo : o.Alt1;
}
double AlturaFinal(const Obra& o, const Tramo& t) {
  return t.Hr0Tramo > 0 || t.Hr0Final > 0 ? t.Hr0Final : o.Alt2;
}

bool Postesado(const Tramo& t) {
  return t.Tipologia >= kPrimeraPostesada;
}
bool Armado(const Tramo& t) {
  return !Postesado(t);
}

struct Limites {
  double desde = -kSinTope;
  double hasta = kSinTope;
};

// A datum, or what is made of several, with its usual range; in calculation units.
struct Regla {
  Ed campo;
  int rotulo;  // 0 for that of the field
  Magnitud magnitud;
  bool (*toca)(const Tramo&);
  double (*valor)(const Obra&, const Tramo&);
  Limites (*usual)(const Tramo&);
  int consecuencia;
};

// The value of a datum of the Tramo.
template <double Tramo::*miembro>
double Valor(const Obra&, const Tramo& t) {
  return t.*miembro;
}

// A range of stresses [kp/cm2].
template <int desde, int hasta>
Limites Entre(const Tramo&) {
  return {desde, hasta};
}

// Ranges of what pipes are made of: steels from smooth bars to wire, concretes from the least that
// a pipe may have. A value outside them is most often one of the other system.
constexpr auto
    kReglas =
        std::
            to_array<Regla>(
                {
                    {Ed::edB0, 0, Magnitud::Longitud,
                     [](const Tramo& t) { return t.TipoColocacion != 2; }, Valor<&Tramo::B0>,
                     [](const Tramo& t) {
                       return Limites{t.De, kSinTope};
                     },
                     txt::PorZanjaEstrecha},
                    {Ed::edEsp0, 0, Magnitud::Grueso, [](const Tramo& t) { return t.Di > 0; },
                     Valor<&Tramo::Esp>,
                     [](const Tramo& t) {
                       return Limites{100.0 * kParedMinima * t.Di, kSinTope};
                     },
                     txt::PorParedDelgada},
                    {Ed::edReci0, txt::RotRecubrimientos, Magnitud::Grueso,
                     [](const Tramo& t) { return t.Tipologia != kRevestida && t.Esp > 0; },
                     [](const Obra&, const Tramo& t) { return t.Reci + t.Rece; },
                     [](const Tramo& t) {
                       return Limites{-kSinTope, t.Esp};
                     },
                     txt::PorRecubrimientos},
                    {Ed::edAdato, txt::RotCuantiaExterior, Magnitud::Porcentaje,
                     [](const Tramo& t) { return Armado(t) && t.Icontes0 && t.Esp > 0; },
                     [](const Obra&, const Tramo& t) { return t.Adato / t.Esp; },
                     [](const Tramo&) {
                       return Limites{0.1, 4.0};
                     },
                     txt::PorCuantia},
                    {Ed::edAdato, 0, Magnitud::Cuantia,
                     [](const Tramo& t) { return Armado(t) && t.Icontes0; }, Valor<&Tramo::Adato>,
                     [](const Tramo&) {
                       return Limites{-kSinTope, kDosCapas};
                     },
                     txt::PorDosCapas},
                    {Ed::edFyd, 0, Magnitud::Tension, Armado, Valor<&Tramo::Fyd>,
                     [](const Tramo&) {
                       return Limites{-kSinTope, kFydUsual};
                     },
                     txt::PorFyd},
                    {Ed::edFck, 0, Magnitud::Tension, Armado, Valor<&Tramo::Fck>, Entre<250, 700>,
                     txt::PorMaterial},
                    {Ed::edFyk, 0, Magnitud::Tension, Armado, Valor<&Tramo::Fyk>, Entre<2000, 6000>,
                     txt::PorMaterial},
                    {Ed::edFyd, 0, Magnitud::Tension, Armado, Valor<&Tramo::Fyd>,
                     [](const Tramo& t) {
                       return Limites{0.5 * t.Fyk, t.Fyk};
                     },
                     txt::PorMaterial},
                    {Ed::edEs, 0, Magnitud::Tension, Postesado, Valor<&Tramo::Es>,
                     Entre<1900000, 2200000>, txt::PorMaterial},
                    {Ed::edEp, 0, Magnitud::Tension, Postesado, Valor<&Tramo::Ep>,
                     Entre<1800000, 2200000>, txt::PorMaterial},
                    {Ed::edFYKPost, 0, Magnitud::Tension, Postesado, Valor<&Tramo::FYKPost>,
                     Entre<2000, 6000>, txt::PorMaterial},
                    {Ed::edFckno, 0, Magnitud::Tension, Postesado, Valor<&Tramo::Fckno>,
                     Entre<200, 700>, txt::PorMaterial},
                    {Ed::edFckn, 0, Magnitud::Tension, Postesado, Valor<&Tramo::Fckn>,
                     Entre<300, 800>, txt::PorMaterial},
                    {Ed::edFckr, 0, Magnitud::Tension, Postesado, Valor<&Tramo::Fckr>,
                     Entre<250, 700>, txt::PorMaterial},
                    {Ed::edSFck, 0, Magnitud::Tension, Postesado, Valor<&Tramo::SFck>,
                     Entre<14000, 20000>, txt::PorMaterial},
                    {Ed::edSf, 0, Magnitud::Tension, Postesado, Valor<&Tramo::Sf>,
                     [](const Tramo& t) {
                       return Limites{0.5 * t.SFck, 0.8 * t.SFck};
                     },
                     txt::PorMaterial},
                    {Ed::edHr0, 0, Magnitud::Longitud,
                     [](const Tramo& t) { return t.IndCar == 1 && t.ICar != 0; }, AlturaInicial,
                     [](const Tramo&) {
                       return Limites{kTraficoSobre, kSinTope};
                     },
                     txt::PorTrafico},
                    {Ed::edQDato0, txt::EtAlt2, Magnitud::Longitud,
                     [](const Tramo& t) { return t.De > 0 && t.IndCar == 1; }, AlturaFinal,
                     [](const Tramo& t) {
                       return Limites{-kSinTope, kArcoDesde * std::max(1.0, t.De)};
                     },
                     txt::PorArco},
                });

// Without the colon and the unit, which the value has.
std::string Nombre(const std::string& rotulo) {
  return std::string(Recorta(SinDosPuntos(rotulo.substr(0, rotulo.find('(')))));
}

// Collects the notices of a set of data.
class Recogida {
 public:
  Recogida(const Catalogo& textos, char separador) : textos_(textos), separador_(separador) {}

  // The steps of a range of heights that miss the last one.
  void Alturas(Ed campo, Ed incremento, double primera, double ultima, double paso) {
    const auto fuera = AlturaFueraDe(primera, ultima, paso);
    if (!fuera) return;
    const auto metros = [this](double h) { return Numero(h, kMascaraAltura); };
    std::string texto = textos_.Compone(
        txt::AlturaFinalFuera,
        {metros(fuera->ultima), metros(primera), metros(paso), metros(fuera->alcanzada)});
    AvisoDeCampo aviso{campo, std::move(texto)};
    if (fuera->incremento > 0) {
      aviso.remedio = {{incremento, fuera->incremento}};
      aviso.boton = textos_.Compone(txt::TomarIncremento, {metros(fuera->incremento)});
    }
    avisos_.push_back(std::move(aviso));
  }

  // A datum without value is asked for elsewhere.
  void Usual(const Regla& regla, const Obra& obra, const Tramo& t) {
    if (!regla.toca(t)) return;
    const double valor = regla.valor(obra, t);
    const auto [desde, hasta] = regla.usual(t);
    if (!(valor > 0) || (valor >= desde && valor <= hasta)) return;
    const bool si = obra.EsSI();
    const auto cantidad = [&](double x) { return Cantidad(x, regla, si); };
    const int rotulo = regla.rotulo != 0 ? regla.rotulo : Fila(regla.campo).etiqueta;
    std::vector<std::string> datos{Nombre(textos_.Texto(rotulo)), cantidad(valor),
                                   textos_.Texto(regla.consecuencia)};
    if (std::isfinite(desde)) datos.push_back(cantidad(desde));
    if (std::isfinite(hasta)) datos.push_back(cantidad(hasta));
    const int texto = !std::isfinite(hasta)   ? txt::UsualDesde
                      : !std::isfinite(desde) ? txt::UsualHasta
                                              : txt::UsualEntre;
    avisos_.push_back({regla.campo, textos_.Compone(texto, datos)});
  }

  std::vector<AvisoDeCampo> Avisos() && { return std::move(avisos_); }

 private:
  std::string Numero(double valor, std::string_view mascara) const {
    return FormatoMascara(valor, mascara, separador_);
  }

  std::string Cantidad(double valor, const Regla& regla, bool si) const {
    const auto par = Pareja(valor, false, regla.magnitud);
    const auto& unidades = UnidadesDe(regla.magnitud);
    const auto& ficha = *Fila(regla.campo).ficha;
    const auto mascara = regla.magnitud == ficha.magnitud ? ficha.Mascara(si) : kMascaraAltura;
    return Numero(si ? par.si : par.mks, mascara) + " " +
           std::string(si ? unidades.si : unidades.mks);
  }

  const Catalogo& textos_;
  char separador_;
  std::vector<AvisoDeCampo> avisos_;
};

// What the table of dimensions says of the Tramo in hand.
void AvisosDeTabla(const Captura& c, std::vector<AvisoDeCampo>& avisos) {
  const auto& t = c.e.tramo;
  const auto numero = [&c](double x, std::string_view mascara) { return Formato(c, x, mascara); };
  constexpr std::string_view kMetros = "#####0.000";
  constexpr std::string_view kCm = "#####0.0";
  if (const auto cercano = DiametroCercano(c); cercano && t.Di > 0 && !c.EsComercial) {
    avisos.push_back({Ed::edDi0,
                      c.textos.Compone(txt::DiametroNoComercial, {numero(t.Di, kMetros)}),
                      {{Ed::edDi0, *cercano}},
                      c.textos.Compone(txt::TomarDiametro, {numero(*cercano, kMetros)})});
  }
  if (const auto r = RecomendadasDistintas(c)) {
    AvisoDeCampo aviso{
        Ed::edEsp0,
        c.textos.Compone(txt::FueraDeRecomendadas,
                         {numero(t.Esp, kCm), numero(t.Reci, kCm), numero(t.Rece, kCm),
                          numero(r->Esp, kCm), numero(r->Reci, kCm), numero(r->Rece, kCm)}),
        {{Ed::edEsp0, r->Esp}},
        Texto(c, txt::TomarRecomendadas)};
    if (t.Tipologia != kRevestida) aviso.remedio.emplace_back(Ed::edReci0, r->Reci);
    aviso.remedio.emplace_back(Ed::edRece0, r->Rece);
    avisos.push_back(std::move(aviso));
  }
  const int veces = c.tablas.MaxAnchoZanja;
  if (veces > 0 && t.TipoColocacion == 1 && t.Di > 0 && t.B0 > veces * t.Di) {
    avisos.push_back({Ed::edB0, c.textos.Compone(txt::ZanjaMuyAncha, {numero(t.B0, kMascaraAltura),
                                                                      std::to_string(veces)})});
  }
}

// Whether the page in front shows a field.
bool Delante(const Paginas& delante, const Paginas& pagina) {
  return pagina.TabPrincipal == delante.TabPrincipal &&
         (pagina.TabTipologia < 0 || pagina.TabTipologia == delante.TabTipologia);
}

}  // namespace

std::vector<AvisoDeCampo> AvisosDeObra(const Obra& obra, const Catalogo& textos, char separador) {
  Recogida recogida(textos, separador);
  recogida.Alturas(Ed::edAlt2, Ed::edAlt3, obra.Alt1, obra.Alt2, obra.Alt3);
  return std::move(recogida).Avisos();
}

std::vector<AvisoDeCampo> AvisosDePlausibilidad(const Obra& obra, const Tramo& tramo,
                                                const Catalogo& textos, char separador) {
  Recogida recogida(textos, separador);
  recogida.Alturas(Ed::edHr0Final, Ed::edHr0Delta, tramo.Hr0Tramo, tramo.Hr0Final, tramo.Hr0Delta);
  const Tramo enCalculo = TramoEnCalculo(tramo, obra.EsSI());
  for (const auto& regla : kReglas) recogida.Usual(regla, obra, enCalculo);
  return std::move(recogida).Avisos();
}

void RenuevaAvisos(Captura& c) {
  auto& avisos = c.pantalla.avisos;
  avisos = AvisosDeObra(c.e.obra, c.textos, c.SeparadorDecimal);
  if (c.SinTramoEnMano()) return;
  auto delTramo = AvisosDePlausibilidad(c.e.obra, c.e.tramo, c.textos, c.SeparadorDecimal);
  std::ranges::move(delTramo, std::back_inserter(avisos));
  AvisosDeTabla(c, avisos);
}

std::vector<AvisoDeCampo> AvisosDelante(const Modelo& pantalla) {
  std::vector<AvisoDeCampo> avisos;
  std::ranges::copy_if(pantalla.avisos, std::back_inserter(avisos), [&](const AvisoDeCampo& a) {
    return Delante(pantalla.pagina, Fila(a.campo).pagina);
  });
  return avisos;
}

void TomaRemedio(Captura& c, const AvisoDeCampo& aviso) {
  if (aviso.remedio.empty()) return;
  const EnUnPaso paso(c, aviso.boton);
  for (const auto& [campo, valor] : aviso.remedio) {
    Escribe(c, campo, valor, Fila(campo).ficha->MascaraTecleada(c.EsSI()));
    c[campo].tocado = true;
    AplicaRegla(c, campo);
    c[campo].tocado = false;
  }
  RenuevaEtiquetas(c);
}

}  // namespace zorbin
