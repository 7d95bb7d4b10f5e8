#include "sesion/captura/mdCaptura.h"

#include <cmath>
#include <utility>

#include "base/mdAnsi.h"
#include "base/mdNumeros.h"
#include "base/mdTextos.h"
#include "base/textos.h"
#include "persistencia/registros/mdRegistros.h"
#include "sesion/captura/mdEtiquetas.h"

namespace zorbin {

namespace {

// Lower case of the letters that the code page has, accents included.
std::string Minusculas(std::string_view texto) {
  std::string salida;
  bool trasC3 = false;
  for (const char letra : texto) {
    auto b = static_cast<unsigned char>(letra);
    const bool acentuada = trasC3 && b >= 0x80 && b <= 0x9E && b != 0x97;
    if ((b >= 'A' && b <= 'Z') || acentuada) b = static_cast<unsigned char>(b + 0x20);
    trasC3 = b == 0xC3;
    salida.push_back(static_cast<char>(b));
  }
  return salida;
}

void AdelantaSi(int& pagina, int pedida) {
  if (pedida >= 0) pagina = pedida;
}

std::vector<TextoPendiente> Pendientes(const Captura& c, bool deObra) {
  std::vector<TextoPendiente> pendientes;
  for (const auto& fila : TablaCampos()) {
    const auto& control = c[fila.id];
    if (fila.id == Ed::edTramo) continue;  // the choice of a Tramo is no datum
    if (!control.rehusado || (fila.pagina.TabPrincipal == 0) != deObra) continue;
    pendientes.push_back({fila.id, control.texto, control.falta});
  }
  return pendientes;
}

}  // namespace

Version VersionActual(const Captura& c) {
  Version v = c.version;
  v.obra = SinSesion(c.e.obra);
  v.pendientes = Pendientes(c, true);
  const auto lugar = LugarDe(v, c.enMano);
  if (!lugar) return v;
  TramoEnObra actual = *v.tramos[*lugar];
  actual.datos = c.e.tramo;
  actual.pendientes = Pendientes(c, false);
  if (actual != *v.tramos[*lugar]) {
    v.tramos[*lugar] = std::make_shared<TramoEnObra>(std::move(actual));
  }
  return v;
}

bool Captura::EnCambio() const {
  return Tecleando || VersionActual(*this) != guardada;
}

bool SinGrabar(const Captura& c, int id) {
  const Version ahora = VersionActual(c);
  const auto lugar = LugarDe(ahora, id);
  const auto antes = LugarDe(c.guardada, id);
  return !lugar || !antes || *ahora.tramos[*lugar] != *c.guardada.tramos[*antes];
}

EnUnPaso::EnUnPaso(Captura& c, std::string nombre)
    : c_(c), nombre_(std::move(nombre)), antes_(c.version), enManoAntes_(c.enMano) {
  ++c_.pasosAbiertos;
}

EnUnPaso::~EnUnPaso() {
  if (--c_.pasosAbiertos > 0) return;
  c_.version = VersionActual(c_);
  if (c_.version == antes_ || !c_.alDarPaso) return;
  c_.alDarPaso({std::move(antes_), c_.version, enManoAntes_, c_.enMano, std::move(nombre_)});
}

std::string TextoDeError(const Captura& c, const ErrorFichero& error) {
  return c.textos.Compone(error.mensaje());
}

const std::string& Texto(const Captura& c, int entrada) {
  return c.textos.Texto(entrada);
}

std::string NombreDeCampo(const Captura& c, Ed campo) {
  const auto& control = c[campo];
  const std::string etiqueta = SinDosPuntos(control.etiqueta);
  const std::string grupo = SinDosPuntos(control.grupo);
  if (etiqueta.empty()) return grupo.empty() ? SinDosPuntos(control.consejo) : grupo;
  return grupo.empty() ? etiqueta : grupo + ": " + etiqueta;
}

std::string SinMarcas(std::string texto) {
  std::erase(texto, '&');
  return texto;
}

std::string SinDosPuntos(const std::string& texto) {
  return texto.ends_with(':') ? texto.substr(0, texto.size() - 1) : texto;
}

std::string TextoDe(const Captura& c, Ed campo) {
  return std::string(Recorta(c[campo].texto));
}

bool EnBlanco(const Captura& c, Ed campo) {
  return TextoDe(c, campo).empty();
}

std::string Formato(const Captura& c, double valor, std::string_view mascara) {
  return FormatoMascara(valor, mascara, c.SeparadorDecimal);
}

std::string UnidadTension(const Captura& c, int codigo) {
  if (codigo != 1) return {};
  std::string unidad = " ";
  for (const char letra : Texto(c, c.EsSI() ? txt::UnidadMPa : txt::UnidadKpCm2)) {
    if (letra != '(' && letra != ')') unidad.push_back(letra);
  }
  return unidad;
}

void Escribe(Captura& c, Ed campo, std::string texto) {
  auto& control = c[campo];
  control.texto = std::move(texto);
  control.falta.clear();
  control.rehusado = false;
  control.tocado = false;
  control.seleccionado = false;
}

void Escribe(Captura& c, Ed campo, double valor, std::string_view mascara) {
  Escribe(c, campo, Formato(c, valor, mascara));
}

double& Variable(Captura& c, Ed campo) {
  const auto& fila = Fila(campo);
  return fila.obra != nullptr ? c.e.obra.*fila.obra : c.e.tramo.*fila.tramo;
}

void MuestraVariable(Captura& c, Ed campo) {
  Escribe(c, campo, Variable(c, campo), Fila(campo).ficha->MascaraTecleada(c.EsSI()));
}

void MuestraSinCero(Captura& c, Ed campo) {
  MuestraVariable(c, campo);
  // What the mask shows is what is saved: less than its last digit is a zero too.
  if (NumeroTexto(c[campo].texto) == 0.0) Escribe(c, campo, "");
}

void Apaga(Captura& c, Ed campo) {
  auto& control = c[campo];
  control.habilitado = control.etiquetaHabilitada = false;
  control.gris = true;
}

void Enciende(Captura& c, Ed campo) {
  auto& control = c[campo];
  control.habilitado = control.etiquetaHabilitada = true;
  control.gris = false;
}

void Bloquea(Captura& c, Ed campo) {
  auto& control = c[campo];
  control.bloqueado = control.gris = true;
  control.tabulador = false;
}

void Desbloquea(Captura& c, Ed campo) {
  auto& control = c[campo];
  control.bloqueado = control.gris = false;
  control.tabulador = true;
}

void Libera(Captura& c, Ed campo, bool libre) {
  libre ? Desbloquea(c, campo) : Bloquea(c, campo);
}

int PosicionEnLista(const Captura& c, Ed campo) {
  const std::string texto = Minusculas(TextoDe(c, campo));
  const auto& entradas = c[campo].entradas;
  for (auto i = entradas.size(); i > 0; --i) {
    if (Minusculas(entradas[i - 1]) == texto) return static_cast<int>(i);
  }
  return 0;
}

void EligeEntrada(Captura& c, Ed campo, int posicion) {
  const auto& entradas = c[campo].entradas;
  const bool hay = posicion >= 1 && posicion <= static_cast<int>(entradas.size());
  Escribe(c, campo, hay ? entradas[static_cast<std::size_t>(posicion - 1)] : std::string{});
}

void Rechaza(Captura& c, Ed campo, const std::string& texto, const std::string& titulo) {
  c.faltas.push_back({campo, c[campo].texto, titulo, texto, 0});
  c[campo].falta = titulo.empty() ? texto : SinDosPuntos(titulo) + ": " + texto;
}

void MuestraPagina(Captura& c, const Paginas& pagina) {
  auto& delante = c.pantalla.pagina;
  AdelantaSi(delante.TabPrincipal, pagina.TabPrincipal);
  AdelantaSi(delante.TabTipologia, pagina.TabTipologia);
  AdelantaSi(delante.TabPostesados, pagina.TabPostesados);
  AdelantaSi(delante.TabDatosColocacion, pagina.TabDatosColocacion);
  RenuevaTitulo(c);
}

void VaA(Captura& c, Ed campo) {
  MuestraPagina(c, Fila(campo).pagina);
  c.pantalla.foco = campo;
  c.voz.VaA(campo);
}

std::string TextoDeFalta(const Captura& c, const Tecleado& leido) {
  return leido.valor ? Texto(c, txt::NoEsValorNumerico) : c.textos.Compone(leido.falta);
}

std::string FaltaDeTexto(const Catalogo& textos, std::string_view texto) {
  const auto ansi = AAnsi(texto);
  if (!ansi.sobra.empty()) return textos.Compone(txt::CaracterNoGuardable, {ansi.sobra});
  const int largo = static_cast<int>(ansi.bytes.size());
  if (largo <= kMaxTexto) return {};
  return textos.Compone(txt::TextoPasaDelLimite, {TextoEntero(kMaxTexto), TextoEntero(largo)});
}

bool ValidaTexto(Captura& c, Ed campo) {
  const std::string falta = FaltaDeTexto(c.textos, c[campo].texto);
  if (!falta.empty()) Rechaza(c, campo, falta, NombreDeCampo(c, campo));
  return falta.empty();
}

namespace {

// What a number below its least value is told.
std::string TextoDeMinimo(const Captura& c, Ed campo, double minimo) {
  if (minimo <= 0.0) return Texto(c, txt::NoPuedeSerNegativo);
  if (minimo <= kAlgo) return std::string(Recorta(Texto(c, txt::DebeSerMayorQueCero)));
  const auto& ficha = *Fila(campo).ficha;
  const auto& unidades = UnidadesDe(ficha.magnitud);
  std::string limite = Formato(c, minimo, minimo < 0.001 ? "0.0000" : "0.000");
  const std::string_view unidad = c.EsSI() ? unidades.si : unidades.mks;
  if (!unidad.empty() && unidad != "-") limite += " " + std::string(unidad);
  return c.textos.Compone(txt::DebeSerAlMenos, {limite});
}

}  // namespace

bool ValidaNumero(Captura& c, Ed campo, double minimo, double& destino,
                  const std::string& etiqueta) {
  const auto leido = NumeroTecleado(c[campo].texto, c.SeparadorDecimal);
  if (!leido.valor || std::fabs(*leido.valor) > kMayorTecleado) {
    Rechaza(c, campo, TextoDeFalta(c, leido), etiqueta);
    return false;
  }
  destino = *leido.valor;
  if (destino >= minimo) return true;
  Rechaza(c, campo, TextoDeMinimo(c, campo, minimo), etiqueta);
  return false;
}

bool ValidaNumero(Captura& c, Ed campo, double minimo, double& destino, int etiqueta) {
  return ValidaNumero(c, campo, minimo, destino, SinDosPuntos(Texto(c, etiqueta)));
}

bool LeeAlSalir(Captura& c, Ed campo, double minimo, double& destino, int etiqueta) {
  const auto& control = c[campo];
  const bool intacto =
      !control.tocado && destino >= minimo &&
      control.texto == Formato(c, destino, Fila(campo).ficha->MascaraTecleada(c.EsSI()));
  return intacto || ValidaNumero(c, campo, minimo, destino, etiqueta);
}

double Redondea(double x) {
  return std::nearbyint(x);
}

}  // namespace zorbin
