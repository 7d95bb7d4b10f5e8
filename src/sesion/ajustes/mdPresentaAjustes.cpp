#include "sesion/ajustes/mdPresentaAjustes.h"

#include <array>
#include <charconv>
#include <cmath>

#include "base/mdNumeros.h"
#include "base/mdTextos.h"
#include "base/textos.h"
#include "core/mdUnidades.h"
#include "listados/obra/mdAvisos.h"

namespace zorbin {

namespace {

constexpr int kSangriaTitulo = 9;  // blanks before the title of the window

struct TextoDeBoton {
  BotonAjuste boton;
  int texto;
};
constexpr auto kTextosBotones = std::to_array<TextoDeBoton>({
    {BotonAjuste::btAceptarAjuste, txt::BtAceptarAjuste},
    {BotonAjuste::btSalir, txt::BotonSalir},
    {BotonAjuste::btGuardar, txt::BtGuardarAjuste},
    {BotonAjuste::btSubirValorMedio, txt::BtSubirMedio},
    {BotonAjuste::btBajarValorMedio, txt::BtBajarMedio},
    {BotonAjuste::btSeleccionDirecta, txt::BtAceptarDirecta},
    {BotonAjuste::btAnulaSeleccionDirecta, txt::BtRechazarDirecta},
    {BotonAjuste::btCambiarRecubrimientos, txt::BtCambiarRecubrimientos},
    {BotonAjuste::btAceptarRecubrimientos, txt::BtAceptarRecubrimientos},
    {BotonAjuste::btAnularRecubrimientos, txt::BtAnularRecubrimientos},
    {BotonAjuste::btRecubrimientosOrigen, txt::BtRecubrimientosOrigen},
    {BotonAjuste::btAnteriorAltura, txt::BtAnteriorAltura},
    {BotonAjuste::btSiguienteAltura, txt::BtSiguienteAltura},
    {BotonAjuste::btAnteriorPresion, txt::BtAnteriorPresion},
    {BotonAjuste::btSiguientePresion, txt::BtSiguientePresion},
});
static_assert(kTextosBotones.size() == kBotonesAjuste);

// A button belongs to a state; those of the heights ask for more than one of them besides.
EstadoAjuste EstadoDelBoton(BotonAjuste boton) {
  switch (boton) {
    case BotonAjuste::btSeleccionDirecta:
    case BotonAjuste::btAnulaSeleccionDirecta:
      return EstadoAjuste::Directa;
    case BotonAjuste::btAceptarRecubrimientos:
    case BotonAjuste::btAnularRecubrimientos:
      return EstadoAjuste::Recubrimientos;
    default:
      return EstadoAjuste::Libre;
  }
}

bool EsDeAlturas(BotonAjuste boton) {
  return boton == BotonAjuste::btAnteriorAltura || boton == BotonAjuste::btSiguienteAltura;
}

std::string EnTotal(double valor, char separador) {
  std::array<char, 32> letras;
  const auto fin = std::to_chars(letras.data(), letras.data() + letras.size(), valor);
  std::string texto(letras.data(), fin.ptr);
  for (char& letra : texto) {
    if (letra == '.') letra = separador;
  }
  return texto;
}

int RotuloDeLinea(const Comprobacion& c, int j) {
  constexpr std::array<int, 3> kTraccion{txt::Exterior, txt::Interior, txt::AjLineaTotal};
  return c.traccionPura ? kTraccion[static_cast<std::size_t>(j)] : txt::AjSecciones[0] + j;
}

// Areas of a row before they are shown.
Ajuste AreasExactas(const Ajustes& a, int fila) {
  if (fila != kFilaResultado) {
    const auto& x = a.t.tanteo.filas(fila);
    return {x.Interior, 0.0, x.Exterior};
  }
  const auto& r = a.t.e.caso.armado;
  if (r.HipotesisRige != kHipPPNeta) return {r.AreaCamisa, r.AreaEspiras, r.AreaExterior};
  return {r.TablaHip(kHipPPNeta).AsInt, 0.0, r.TablaHip(kHipPPNeta).AsExt};
}

void MuestraAreas(Ajustes& a, int fila, const Ajuste& areas) {
  auto& f = a.t.pantalla.filas[static_cast<std::size_t>(fila)];
  f.txArmCamisa = Formato(a, areas.Camisa, kMascaraArea);
  f.txArmRefuerzo = Formato(a, areas.Espiras, kMascaraArea);
  f.txArmExterior = Formato(a, areas.Exterior, kMascaraArea);
  f.txArmTotal = Formato(a, areas.Camisa + areas.Espiras + areas.Exterior, kMascaraArea);
}

}  // namespace

const std::string& Texto(const Ajustes& a, int entrada) {
  return a.c.textos.Texto(entrada);
}

std::string Formato(const Ajustes& a, double valor, std::string_view mascara) {
  return FormatoMascara(valor, mascara, a.c.SeparadorDecimal);
}

void Avisa(Ajustes& a, int texto) {
  a.c.voz.Muestra(Texto(a, texto), Texto(a, txt::TituloAviso));
}

bool ValidaNumero(Ajustes& a, CampoAjuste campo, double minimo, double& destino, int etiqueta) {
  const auto valor = NumeroTexto(a.t.pantalla.Texto(campo));
  const bool numero = valor && std::fabs(*valor) <= kMayorTecleado;
  if (numero && *valor >= minimo) {
    destino = *valor;
    return true;
  }
  a.c.voz.Muestra(Texto(a, numero ? txt::ValorIncorrecto : txt::NoEsValorNumerico),
                  SinDosPuntos(Texto(a, etiqueta)));
  return false;
}

void MuestraRotulos(Ajustes& a) {
  auto& p = a.t.pantalla;
  p.titulo = std::string(kSangriaTitulo, ' ') + Texto(a, txt::AjTitulo);
  p.rotulo = Texto(a, txt::AjRotulo);
  for (const auto& [boton, texto] : kTextosBotones) {
    p.botones[static_cast<std::size_t>(boton)].texto = Texto(a, texto);
  }
  p.cabezas = {Texto(a, txt::AjCamisa), Texto(a, txt::AjRefuerzo), Texto(a, txt::AjExterior),
               Texto(a, txt::AjTotal)};
  p.filas[kFilaResultado].rotulo = Texto(a, txt::AjResultado);
  p.filas[kFilaDirecta].rotulo = Texto(a, txt::AjDirecta);
  p.rotuloNecesaria = Texto(a, txt::AjNecesaria);
  p.rotuloDispuesta = Texto(a, txt::AjDispuesta);
  p.rotuloPresion = Texto(a, txt::AjDP) + Texto(a, a.t.e.obra.EsSI() ? txt::AjMPa : txt::AjAt);
  p.rotuloAltura = Texto(a, txt::AjAltura);
  p.rotuloRecubrimientos = Texto(a, txt::AjRecubrimientos);
  p.rotuloRecInterior = Texto(a, txt::AjRecInterior);
  p.rotuloRecExterior = Texto(a, txt::AjRecExterior);
  p.tbAviso = Texto(a, txt::DocAvisoRecubrimientos);
  p.edAvisoCaldera = Texto(a, txt::AjAvisoCaldera);
}

void MuestraCaso(Ajustes& a) {
  auto& p = a.t.pantalla;
  const double factor = a.t.e.obra.EsSI() ? kFactorTension : 1.0;
  p.txPresion = Formato(a, a.t.PrsAjuste / factor, kMascaraArea);
  p.txAltura = Formato(a, a.t.HrAjuste, kMascaraArea);
  p.tbHRaCalcular = EnTotal(a.t.HrAjuste, a.c.SeparadorDecimal);
  p.tbPRSaCalcular = EnTotal(a.t.PrsAjuste, a.c.SeparadorDecimal);
  p.edAvisoCalderaVisible = a.t.e.caso.armado.HipotesisRige == kHipPPNeta;
  p.avisosDelCaso.clear();
  for (const auto& aviso : a.t.e.caso.avisos) {
    if (aviso.fase == FaseAviso::Final) p.avisosDelCaso.push_back(TextoAviso(aviso, a.c.textos));
  }
}

void MuestraFilas(Ajustes& a) {
  auto& filas = a.t.pantalla.filas;
  for (int i = kFilaResultado; i <= kFilasTanteo; ++i) {
    MuestraAreas(a, i, AreasExactas(a, i));
    auto& fila = filas[static_cast<std::size_t>(i)];
    fila.utilizable = i == kFilaResultado || a.t.tanteo.filas(i).utilizable;
    if (i == kFilaResultado) continue;
    fila.rotulo = i == a.t.FilaTanteo ? Texto(a, txt::AjValorMedio) : std::string{};
  }
  filas[kFilaDirecta].utilizable = true;
}

void MuestraDirecta(Ajustes& a) {
  MuestraAreas(a, kFilaDirecta, a.t.Dir);
  auto& p = a.t.pantalla;
  for (const auto campo :
       {CampoAjuste::txArmCamisa, CampoAjuste::txArmRefuerzo, CampoAjuste::txArmExterior}) {
    p.tocados[static_cast<std::size_t>(campo)] = false;
  }
}

void MuestraComprobacion(Ajustes& a) {
  const auto& c = a.t.comprobacion;
  for (int j = 0; j < kLineasNecesarias; ++j) {
    const auto& linea = c.lineas[static_cast<std::size_t>(j)];
    auto& l = a.t.pantalla.lineas[static_cast<std::size_t>(j)];
    l.lbPosicion = std::string(Recorta(Texto(a, RotuloDeLinea(c, j))));
    l.txArmNecesaria = Formato(a, linea.necesaria, kMascaraArea);
    l.txArmDispuesta = Formato(a, linea.dispuesta, kMascaraArea);
    l.imAlerta = linea.alerta;
    l.consejo = linea.alerta
                    ? a.c.textos.Compone(txt::AjFalta, {l.txArmNecesaria, l.txArmDispuesta})
                    : std::string{};
  }
}

void MuestraEstado(Ajustes& a) {
  auto& p = a.t.pantalla;
  const bool alturas = a.t.e.corrida.Hr0Actual < a.t.e.corrida.Hr0FinalActual;
  for (const auto& [boton, texto] : kTextosBotones) {
    p.botones[static_cast<std::size_t>(boton)].habilitado =
        p.estado == EstadoDelBoton(boton) && (alturas || !EsDeAlturas(boton));
  }
  for (int i = 0; i < kFilasAjuste; ++i) {
    auto& fila = p.filas[static_cast<std::size_t>(i)];
    fila.habilitada = p.estado == EstadoAjuste::Libre
                          ? fila.utilizable
                          : p.estado == EstadoAjuste::Directa && i == kFilaDirecta;
  }
  for (int i = 0; i < kCamposAjuste; ++i) {
    const bool deRecubrimientos = i >= static_cast<int>(CampoAjuste::txRecInterior);
    p.abiertos[static_cast<std::size_t>(i)] =
        p.estado == (deRecubrimientos ? EstadoAjuste::Recubrimientos : EstadoAjuste::Directa);
  }
  p.tbAvisoVisible = p.estado == EstadoAjuste::Recubrimientos;
  p.opcion =
      p.estado == EstadoAjuste::Directa || a.t.SeleccionDirecta ? kFilaDirecta : a.t.FilaElegida;
}

void Escribe(Ajustes& a, CampoAjuste campo, double valor, std::string_view mascara) {
  a.t.pantalla.Texto(campo) = Formato(a, valor, mascara);
  a.t.pantalla.tocados[static_cast<std::size_t>(campo)] = false;
}

Ajuste AreasDeFila(const Ajustes& a, int fila) {
  const Ajuste x = AreasExactas(a, fila);
  return {AreaMostrada(x.Camisa), AreaMostrada(x.Espiras), AreaMostrada(x.Exterior)};
}

}  // namespace zorbin
