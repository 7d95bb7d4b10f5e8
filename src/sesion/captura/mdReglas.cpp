#include "sesion/captura/mdReglas.h"

#include <algorithm>
#include <array>

#include "base/textos.h"
#include "core/mdUnidades.h"
#include "sesion/captura/mdEtiquetas.h"
#include "sesion/captura/mdGeometria.h"
#include "sesion/captura/mdPaginas.h"
#include "sesion/captura/mdPresionesAlturas.h"
#include "sesion/captura/mdReglasDimensiones.h"
#include "sesion/captura/mdTipologias.h"
#include "sesion/captura/mdTramos.h"
#include "sesion/captura/mdValidaTramo.h"

namespace zorbin {

namespace {

constexpr double kFckMinimo = 275.0;  // [kp/cm2]

bool LeeFila(Captura& c, Ed campo) {
  const auto& fila = Fila(campo);
  return LeeAlSalir(c, campo, fila.ficha->minimo, Variable(c, campo), fila.etiqueta);
}

SalidaCampo Queda(Captura& c, Ed campo, const std::string& texto, const std::string& titulo) {
  Rechaza(c, campo, texto, titulo);
  return SalidaCampo::Queda;
}

void PonDefecto(Captura& c, Ed campo, double valor) {
  Variable(c, campo) = valor;
  MuestraVariable(c, campo);
}

void CalculaFct(Captura& c) {
  c.e.tramo.Fct = FctEnSistema(c.e.tramo.Fck, c.EsSI());
  MuestraVariable(c, Ed::edFct);
}

// Default of a blank number.
void RellenaNumero(Captura& c, Ed campo) {
  if (const auto defecto = Fila(campo).EnBlanco(c.EsSI())) PonDefecto(c, campo, *defecto);
  switch (campo) {
    case Ed::edFck:
      CalculaFct(c);
      break;
    case Ed::edFyd:
      PonDefecto(c, campo, FydDeFyk(c.e.tramo.Fyk));
      break;
    case Ed::edSf:
      PonDefecto(c, campo, SfDeSFck(c.e.tramo.SFck));
      break;
    case Ed::edB0:
      if (!EnBlanco(c, Ed::edDi0)) RecalculaB0(c);
      break;
    default:
      break;
  }
}

// The plain rule: a refusal takes the default, where there is one.
SalidaCampo SaleNumero(Captura& c, Ed campo) {
  const auto& fila = Fila(campo);
  if (fila.etiqueta == 0) return SalidaCampo::Pasa;
  const bool leido = LeeFila(c, campo);
  const auto defecto = fila.EnBlanco(c.EsSI());
  if (!leido && defecto) Variable(c, campo) = *defecto;
  if (leido || defecto) MuestraVariable(c, campo);
  return leido ? SalidaCampo::Pasa : SalidaCampo::Queda;
}

SalidaCampo SaleFck(Captura& c, Ed campo) {
  if (SaleNumero(c, campo) != SalidaCampo::Pasa) return SalidaCampo::Queda;
  const double minimo = c.EsSI() ? kFckMinimo / kFactorTension : kFckMinimo;
  if (c.e.tramo.Fck < minimo) {
    const std::string tecleado = c[campo].texto;
    PonDefecto(c, campo, minimo);
    c.voz.Anuncia(
        c.textos.Compone(txt::PuestoElMinimo, {NombreDeCampo(c, campo), tecleado, c[campo].texto}));
  }
  CalculaFct(c);
  return SalidaCampo::Pasa;
}

SalidaCampo SaleFyk(Captura& c, Ed campo) {
  if (SaleNumero(c, campo) != SalidaCampo::Pasa) return SalidaCampo::Queda;
  if (c.e.tramo.Fyk != c.FykAnterior) PonDefecto(c, Ed::edFyd, FydDeFyk(c.e.tramo.Fyk));
  return SalidaCampo::Pasa;
}

SalidaCampo SaleFyd(Captura& c, Ed campo) {
  if (!LeeFila(c, campo)) {
    PonDefecto(c, campo, FydDeFyk(c.e.tramo.Fyk));
    return SalidaCampo::Queda;
  }
  MuestraVariable(c, campo);
  return SalidaCampo::Pasa;
}

SalidaCampo SaleSFck(Captura& c, Ed campo) {
  if (SaleNumero(c, campo) != SalidaCampo::Pasa) return SalidaCampo::Queda;
  if (c.SFckEditado) PonDefecto(c, Ed::edSf, SfDeSFck(c.e.tramo.SFck));
  return SalidaCampo::Pasa;
}

SalidaCampo SaleSf(Captura& c, Ed campo) {
  const bool leido = LeeFila(c, campo);
  if (!leido) c.e.tramo.Sf = SfDeSFck(c.e.tramo.SFck);
  MuestraVariable(c, campo);
  return leido ? SalidaCampo::Pasa : SalidaCampo::Queda;
}

SalidaCampo SaleFi(Captura& c, Ed campo) {
  if (SaleNumero(c, campo) != SalidaCampo::Pasa) return SalidaCampo::Queda;
  if (c.e.tramo.Fi <= 90.0) return SalidaCampo::Pasa;
  return Queda(c, campo, Texto(c, txt::AnguloFueraDeRango), Texto(c, txt::TituloErrorCaptura));
}

SalidaCampo SaleHr1(Captura& c, Ed campo) {
  const auto colocacion = c.e.tramo.TipoColocacion;
  if (colocacion == 0) return SalidaCampo::Pasa;
  if (SaleNumero(c, campo) != SalidaCampo::Pasa) return SalidaCampo::Queda;
  const double altura = AlturasDe(c.e.obra, c.e.tramo).Hr0;
  if (colocacion != 1 || c.e.tramo.Hr1 <= altura) return SalidaCampo::Pasa;
  return Queda(c, campo, Texto(c, txt::GeneratrizSuperior) + "\n" + Texto(c, txt::MayorQueRelleno),
               Texto(c, txt::TituloErrorCaptura));
}

SalidaCampo SaleQDato(Captura& c, Ed campo) {
  const bool leido = LeeFila(c, campo);
  if (!leido) c.e.tramo.QDato = 0.0;
  MuestraVariable(c, campo);
  if (!leido) return SalidaCampo::Queda;
  // The choice of a traffic load stays for as long as another one may be cleared again.
  const auto elegida = c.e.tramo.ICar;
  EligeCarga(c.e.tramo);
  c.e.tramo.ICar = elegida;
  c.e.tramo.IndCar == 1 ? Enciende(c, Ed::edICar0) : Apaga(c, Ed::edICar0);
  return SalidaCampo::Pasa;
}

bool ListaEnUso(const Captura& c, Ed campo) {
  const auto colocacion = c.e.tramo.TipoColocacion;
  if (campo == Ed::edTipoApoyo0) return colocacion != 2;
  if (campo == Ed::edTipoRelleno0) return colocacion == 0;
  if (campo == Ed::edIAs) return colocacion == 2;
  return true;
}

SalidaCampo RechazaLista(Captura& c, Ed campo, int texto) {
  const auto& fila = Fila(campo);
  Rechaza(c, campo, Texto(c, texto), SinDosPuntos(Texto(c, fila.etiqueta)));
  return SalidaCampo::Queda;
}

SalidaCampo SaleIdioma(Captura& c, int posicion) {
  c.e.obra.Idioma = static_cast<std::int16_t>(posicion);
  c.e.obra.IdiomaOffset = static_cast<std::int16_t>((posicion - 1) * kPasoIdioma);
  return SalidaCampo::Pasa;
}

SalidaCampo SaleLista(Captura& c, Ed campo) {
  if (!ListaEnUso(c, campo)) return SalidaCampo::Pasa;
  if (EnBlanco(c, campo)) return RechazaLista(c, campo, txt::DatoRequerido);
  const int posicion = PosicionEnLista(c, campo);
  if (posicion == 0) return RechazaLista(c, campo, txt::ValorIncorrecto);
  if (campo == Ed::edIdioma) return SaleIdioma(c, posicion);
  auto& codigo = c.e.tramo.*Fila(campo).codigo;
  codigo = ValorDeLista(c, campo, posicion);
  return SalidaCampo::Pasa;
}

SalidaCampo SaleDescripcion(Captura& c, Ed campo) {
  if (!ValidaTexto(c, campo)) return SalidaCampo::Queda;
  Escribe(c, Ed::edDescriTramo2, c[campo].texto);
  c.e.tramo.DescriTramo = c[campo].texto;
  return SalidaCampo::Pasa;
}

SalidaCampo SaleObra(Captura& c, Ed campo) {
  if (!ValidaTexto(c, campo)) return SalidaCampo::Queda;
  if (campo == Ed::edObra) Escribe(c, Ed::edObra2, c[campo].texto);
  (campo == Ed::edObra ? c.e.obra.NombreObra : c.e.obra.Cliente) = c[campo].texto;
  return SalidaCampo::Pasa;
}

SalidaCampo SaleTramo(Captura& c, Ed) {
  return EligeTramo(c);
}

SalidaCampo SinRegla(Captura&, Ed) {
  return SalidaCampo::Pasa;
}

struct ReglaDeCampo {
  Ed campo;
  SalidaCampo (*sale)(Captura& c, Ed campo);
};

// The fields with a rule of their own.
constexpr auto kReglas = std::to_array<ReglaDeCampo>({
    {Ed::edObra, SaleObra},
    {Ed::edCliente, SaleObra},
    {Ed::edPrs1, SalePresion},
    {Ed::edPrs2, SalePresion},
    {Ed::edPrs3, SalePresion},
    {Ed::edPrsM1, SalePresion},
    {Ed::edPrsM2, SalePresion},
    {Ed::edAlt1, SaleAlturaObra},
    {Ed::edAlt2, SaleAlturaObra},
    {Ed::edAlt3, SaleAlturaObra},
    {Ed::edTramo, SaleTramo},
    {Ed::edDescriTramo, SaleDescripcion},
    {Ed::edPrs1Tram, SalePresion},
    {Ed::edPrs2Tram, SalePresion},
    {Ed::edPrs3Tram, SalePresion},
    {Ed::edPrsM1Tram, SalePresion},
    {Ed::edPrsM2Tram, SalePresion},
    {Ed::edFck, SaleFck},
    {Ed::edFyk, SaleFyk},
    {Ed::edFyd, SaleFyd},
    {Ed::edSFck, SaleSFck},
    {Ed::edSf, SaleSf},
    {Ed::edDi0, SaleDi},
    {Ed::edEsp0, SaleDimension},
    {Ed::edReci0, SaleDimension},
    {Ed::edRece0, SaleDimension},
    {Ed::edHr0, SaleAlturaTramo},
    {Ed::edHr0Final, SaleAlturaTramo},
    {Ed::edHr0Delta, SaleAlturaTramo},
    {Ed::edB0, SaleB0},
    {Ed::edFi0, SaleFi},
    {Ed::edHr1, SaleHr1},
    {Ed::edQDato0, SaleQDato},
});

auto ReglaDe(Ed campo) {
  const auto f = std::ranges::find(kReglas, campo, &ReglaDeCampo::campo);
  if (f != kReglas.end()) return f->sale;
  const Clase clase = Fila(campo).clase;
  return clase == Clase::Lista ? SaleLista : clase == Clase::Numero ? SaleNumero : SinRegla;
}

}  // namespace

SalidaCampo AplicaRegla(Captura& c, Ed campo) {
  return ReglaDe(campo)(c, campo);
}

void Rellena(Captura& c, Ed campo) {
  const auto& fila = Fila(campo);
  if (fila.clase == Clase::Numero) RellenaNumero(c, campo);
  if (fila.clase == Clase::Lista) EligeEntrada(c, campo, fila.entradaDefecto);
}

}  // namespace zorbin
