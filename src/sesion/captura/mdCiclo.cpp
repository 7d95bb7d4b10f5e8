#include "sesion/captura/mdCiclo.h"

#include <algorithm>
#include <utility>

#include "base/mdNumeros.h"
#include "base/mdTextos.h"
#include "base/textos.h"
#include "core/mdUnidades.h"
#include "sesion/captura/mdAjustesTramo.h"
#include "sesion/captura/mdEtiquetas.h"
#include "sesion/captura/mdOrdenes.h"
#include "sesion/captura/mdPresenta.h"
#include "sesion/captura/mdTipologias.h"
#include "sesion/captura/mdValidaObra.h"
#include "sesion/captura/mdValidaTramo.h"

namespace zorbin {

namespace {

namespace fs = std::filesystem;

constexpr int kErrorDeTipo = 13;
constexpr int kMayorNumeroTramo = 32767;
constexpr double kAlturaNuevaObra = 3.0;  // [m]
constexpr std::string_view kExtension = ".zrb";

void MuestraError(Captura& c, const ErrorFichero& error) {
  c.voz.Muestra(TextoDeError(c, error), {});
}

bool Confirma(Captura& c, int texto, int titulo) {
  return c.voz.Pregunta(Texto(c, texto), Texto(c, titulo));
}

void Avisa(Captura& c, int texto) {
  c.voz.Muestra(Texto(c, texto), Texto(c, txt::TituloAviso));
}

int NumeroDe(const std::string& texto) {
  const auto valor = NumeroTexto(texto);
  return valor && *valor >= 0 && *valor <= kMayorNumeroTramo ? static_cast<int>(Redondea(*valor))
                                                             : 0;
}

void PonNumero(Captura& c, int numero) {
  c.e.tramo.NumeroTramo = static_cast<std::int16_t>(numero);
  const std::string texto = numero == 0 ? std::string{} : TextoEntero(numero);
  Escribe(c, Ed::edTramo, texto);
  Escribe(c, Ed::edTramo2, texto);
}

void PonEstado(Captura& c, std::string_view estado) {
  c.EstadoCaptura = estado;
  RenuevaTitulo(c);
  ActualizaMenus(c);
}

// Nothing of an Obra before survives: not its file, not its Tramo.
void Vacia(Captura& c) {
  const std::string carpeta = c.e.obra.RutaApp;
  c.fichero.reset();
  c.lista.clear();
  c.UltimoTramo = 0;
  c.ObraCargada = false;
  c.AjustesPorBorrar = false;
  c.falta.reset();
  c.e.obra = Obra{};
  c.e.tramo = Tramo{};
  c.e.obra.RutaApp = carpeta;
  c.EstadoCaptura = kSinTramo;
  PreparaPantalla(c);
  LimpiaCaptura(c, 0);
}

// ---- Saving

// Whether a number is read from its text again before it is written. Fct follows from Fck, and the
// other numbers of a Tramo were read by their rules.
bool SeRelee(const FilaCampo& fila, bool deObra) {
  if (fila.clase != Clase::Numero || (fila.obra != nullptr) != deObra) return false;
  return deObra || (fila.ficha->Escala() && fila.id != Ed::edFct);
}

// Texts into variables. A text that is no number leaves everything as it was, and is the refusal.
bool LeeTextos(Captura& c, bool deObra) {
  std::vector<std::pair<Ed, double>> leidos;
  for (const auto& fila : TablaCampos()) {
    if (!SeRelee(fila, deObra)) continue;
    const auto leido = NumeroTecleado(c[fila.id].texto, c.SeparadorDecimal);
    if (!leido.valor || *leido.valor > kMayorTecleado) {
      c.falta = Falta{fila.id, c[fila.id].texto, {}, TextoDeFalta(c, leido)};
      return false;
    }
    leidos.emplace_back(fila.id, *leido.valor);
  }
  for (const auto& [campo, valor] : leidos) Variable(c, campo) = valor;
  return true;
}

// Texts that may not fit in a record, in the order of the file.
void CompruebaTextos(const Captura& c, const std::string& fichero, bool conTramo) {
  BytesDeCampo(fichero, "NombreObra", c[Ed::edObra].texto);
  BytesDeCampo(fichero, "Cliente", c[Ed::edCliente].texto);
  if (conTramo) BytesDeCampo(fichero, "DescriTramo", c[Ed::edDescriTramo].texto);
}

// Name of the file of a new Obra, with its extension; empty when none was given, and told.
std::string PideNombre(Captura& c) {
  const auto nombre = c.voz.PideFichero(Texto(c, txt::TituloGrabar));
  if (!nombre) {
    c.e.obra.NombreFichero = " ";
    c.voz.Muestra(Texto(c, txt::NoHaSalvado), {});
    return {};
  }
  const std::string corto = nombre->substr(0, nombre->find('\0'));
  if (Recorta(corto).empty()) {
    c.voz.Muestra(Texto(c, txt::SinNombreDeFichero), {});
    return {};
  }
  const bool conPunto = fs::path(corto).filename().string().find('.') != std::string::npos;
  return conPunto ? corto : corto + std::string(kExtension);
}

void TomaFichero(Captura& c, FicheroRegistros f) {
  c.fichero.emplace(std::move(f));
  c.fichero->PreparaGrabado();
  for (const auto& aviso : c.fichero->avisos()) c.voz.Anuncia(c.textos.Compone(aviso));
}

// The file of the Obra, asked for when there is none.
bool TieneFichero(Captura& c) {
  if (c.fichero) return true;
  const std::string nombre = PideNombre(c);
  if (nombre.empty()) return false;
  TomaFichero(c, {nombre, FicheroRegistros::Modo::LecturaEscritura});
  c.e.obra.NombreFichero = nombre;
  c.e.obra.ObraAbierta = true;
  ActualizaMenus(c);
  return true;
}

void TraeTextosObra(Captura& c) {
  c.e.obra.NombreObra = c[Ed::edObra].texto;
  c.e.obra.Cliente = c[Ed::edCliente].texto;
}

// ---- Choosing a Tramo

bool AceptaPerderCambios(Captura& c) {
  return !c.EnCambio() ||
         c.voz.Pregunta(Texto(c, txt::HaCambiadoDatos) + "\n" + Texto(c, txt::DeseaContinuar),
                        Texto(c, txt::TituloAviso));
}

// Reads another Tramo into the screen. @return whether it could be read
bool LeeYEdita(Captura& c, int posicion) {
  try {
    LeeTramo(c, posicion);
    PonEstado(c, kModificaciones);
    return true;
  } catch (const ErrorFichero& error) {
    PonEstado(c, kSinTramo);
    MuestraError(c, error);
    return false;
  }
}

// A number that is not there, or a block that cannot be read, brings the number before back.
void CambiaDeTramo(Captura& c, int numero, int anterior) {
  const int posicion = PosicionDelTramo(c, numero);
  if (posicion != 0 && LeeYEdita(c, posicion)) return;
  c.TramoEditado = false;  // the person agreed to lose those edits, and nothing is in hand now
  PonEstado(c, kSinTramo);
  PonNumero(c, anterior);
  if (posicion == 0) Rechaza(c, Ed::edTramo, Texto(c, txt::NoExisteEseTramo));
}

// The texts of the Tramo in its state; says what cannot be read and goes to the field.
bool TextosEnElEstado(Captura& c) {
  if (LeeTextos(c, false)) {
    c.e.tramo.Fct = FctEnSistema(c.e.tramo.Fck, c.EsSI());
    return true;
  }
  c.voz.Muestra(Texto(c, txt::ErrorNumero) + TextoEntero(kErrorDeTipo) +
                    Texto(c, txt::AlCambiarUnidadesTramo),
                {});
  if (c.falta) VaA(c, c.falta->campo);
  return false;
}

// Brings the texts of the Obra into the state and has a file to write them to. What keeps it from
// that is told. @throws ErrorFichero
bool DisponeObra(Captura& c) {
  CompruebaTextos(c, c.e.obra.NombreFichero, false);
  TraeTextosObra(c);
  if (LeeTextos(c, true)) return TieneFichero(c);
  c.voz.Muestra(
      Texto(c, txt::ErrorNumero) + TextoEntero(kErrorDeTipo) + Texto(c, txt::AlCambiarUnidades),
      {});
  c.pantalla.pagina.TabPrincipal = 0;
  c[Ed::edPrs3].gris = false;
  VaA(c, Ed::edPrs3);
  return false;
}

void EscribeCabecera(Captura& c) {
  EscribeObra(*c.fichero, c.e, c.lista, c.textos, c.SeparadorDecimal);
}

void EscribeBloque(Captura& c) {
  const int posicion = PosicionDelTramo(c, c.e.tramo.NumeroTramo);
  EscribeTramo(*c.fichero, c.e, c.lista, posicion, c.SeparadorDecimal);
}

bool EstaEnLista(Captura& c) {
  if (PosicionDelTramo(c, c.e.tramo.NumeroTramo) != 0) return true;
  c.voz.Muestra(Texto(c, txt::NoEstaEnLista), {});
  return false;
}

void TramoEscrito(Captura& c) {
  if (std::exchange(c.AjustesPorBorrar, false)) RegistraCambios(c);
}

// Header and block of the Tramo in hand: in the file both, or neither.
void EscribeObraYTramo(Captura& c) {
  Transaccion juntos(*c.fichero);
  EscribeCabecera(c);
  EscribeBloque(c);
  juntos.Confirma();
}

bool EscribeTramoEnMano(Captura& c) {
  const bool nuevo = c.EnAltas();
  const ListaTramos lista = c.lista;
  if (!TextosEnElEstado(c)) return false;
  if (nuevo) c.lista.push_back(TextoEntero(c.e.tramo.NumeroTramo));
  try {
    if (EstaEnLista(c) && DisponeObra(c)) {
      EscribeObraYTramo(c);
      c.ObraEditada = false;
      TramoEscrito(c);
      return true;
    }
  } catch (const ErrorFichero& error) {
    MuestraError(c, error);
  }
  c.lista = lista;
  return false;
}

// ---- Reading only

// One that another program has is asked about: it may be a slip. @return whether it is open
bool AbreParaLeer(Captura& c, const fs::path& ruta, const SoloParaLeer& error) {
  if (error.motivo() == SoloParaLeer::Motivo::Ocupado &&
      !c.voz.Pregunta(TextoDeError(c, error) + "\n" + Texto(c, txt::AbrirParaLeer),
                      Texto(c, txt::TituloAviso))) {
    return false;
  }
  TomaFichero(c, {ruta, FicheroRegistros::Modo::Lectura});
  c.voz.Anuncia(c.textos.Compone(txt::AbiertoParaLeer, {c.fichero->Nombre()}));
  return true;
}

bool AbreFichero(Captura& c, const fs::path& ruta) {
  try {
    TomaFichero(c, {ruta, FicheroRegistros::Modo::LecturaEscritura});
    return true;
  } catch (const SoloParaLeer& error) {
    return AbreParaLeer(c, ruta, error);
  }
}

bool NiegaGrabar(Captura& c) {
  if (!c.SoloLectura()) return false;
  c.voz.Muestra(c.textos.Compone(txt::SoloLecturaNoGraba, {c.fichero->Nombre()}), {});
  return true;
}

// In an Obra that is only read there is nothing to save first.
bool AceptaCerrarSinGrabar(Captura& c) {
  return c.SoloLectura() &&
         c.voz.Pregunta(Texto(c, txt::CerrarSinGrabar), Texto(c, txt::TituloAviso));
}

}  // namespace

// ---------------------------------------------------------------------------------------------
// The Obra

void NuevaObra(Captura& c) {
  Vacia(c);
  auto& o = c.e.obra;
  o.Idioma = static_cast<std::int16_t>(c.textos.IdiomaOffset() / kPasoIdioma + 1);
  o.GolpeCalculado = true;
  o.Alt1 = kAlturaNuevaObra;
  MuestraObra(c);
  Desbloquea(c, Ed::edPrs2);
  Desbloquea(c, Ed::edAlt3);
  c.ObraCargada = true;
  OlvidaCambios(c);
  ActualizaMenus(c);
  c.pantalla.pagina.TabPrincipal = 0;
  c.pantalla.foco = Ed::edObra;
}

bool AbreObra(Captura& c, const fs::path& ruta) {
  Vacia(c);
  try {
    if (!AbreFichero(c, ruta)) {
      ActualizaMenus(c);
      return false;
    }
    auto leida = CargaObra(c.e, *c.fichero);
    c.lista = std::move(leida.lista);
    for (const auto& aviso : leida.avisos) c.voz.Muestra(c.textos.Compone(aviso), {});
  } catch (const ErrorFichero& error) {
    MuestraError(c, error);
    Vacia(c);
    ActualizaMenus(c);
    return false;
  }
  c.ObraCargada = true;
  c.UltimoTramo = static_cast<int>(c.lista.size());
  MuestraObra(c);
  MuestraListaTramos(c);
  OlvidaCambios(c);
  ActualizaMenus(c);
  return true;
}

bool GrabaObra(Captura& c) {
  try {
    if (!DisponeObra(c)) return false;
    EscribeCabecera(c);
  } catch (const ErrorFichero& error) {
    MuestraError(c, error);
    return false;
  }
  c.ObraEditada = false;
  return true;
}

bool GrabaTramo(Captura& c) {
  if (!c.fichero || !EstaEnLista(c) || !TextosEnElEstado(c)) return false;
  try {
    EscribeBloque(c);
  } catch (const ErrorFichero& error) {
    MuestraError(c, error);
    return false;
  }
  TramoEscrito(c);
  return true;
}

bool AccionGrabaObra(Captura& c) {
  return !NiegaGrabar(c) && ValidaObra(c) && GrabaObra(c);
}

bool CierraObra(Captura& c) {
  if (c.EnCambio() && !AceptaCerrarSinGrabar(c)) {
    if (!c.SoloLectura()) Avisa(c, txt::SalvePrimero);
    return false;
  }
  Vacia(c);
  ActualizaMenus(c);
  return true;
}

bool CierraFormulario(Captura& c) {
  if (!c.EnCambio() || AceptaCerrarSinGrabar(c)) return true;
  if (c.SoloLectura()) return false;
  c.voz.Muestra(Texto(c, txt::NoPuedeCerrar) + "\n" + Texto(c, txt::DatosCambiados), {});
  return false;
}

// ---------------------------------------------------------------------------------------------
// The Tramo

int PosicionDelTramo(const Captura& c, int numero) {
  // The last of equal ones: a new Tramo never takes the block of another.
  const auto f = std::find_if(c.lista.rbegin(), c.lista.rend(), [&](const std::string& texto) {
    return !texto.empty() && NumeroDe(texto) == numero;
  });
  return static_cast<int>(c.lista.rend() - f);
}

void LeeTramo(Captura& c, int posicion) {
  LeeTramo(c, *c.fichero, posicion);
}

void LeeTramo(Captura& c, const FicheroRegistros& f, int posicion) {
  CargaTramo(c.e, f, posicion);
  c.AjustesPorBorrar = false;
  PonNumero(c, NumeroDe(c.lista[static_cast<std::size_t>(posicion - 1)]));
  MuestraTramo(c);
}

void NuevoTramo(Captura& c) {
  const auto& entradas = c[Ed::edTramo].entradas;
  const int numero = entradas.empty() ? 1 : NumeroDe(entradas.back()) + 1;
  if (static_cast<int>(c.lista.size()) >= kMaxTramos || numero > kMayorNumeroTramo) {
    c.voz.Muestra(c.textos.Compone(txt::DemasiadosTramos, {TextoEntero(kMaxTramos)}), {});
    return;
  }
  if (!EnBlanco(c, Ed::edTramo)) {
    if (Confirma(c, txt::LimpiaDatos, txt::TituloConfirmacion)) {
      LimpiaCaptura(c, 0);
      DefectosArmado(c);
    }
  } else if (c.e.tramo.Tipologia == kArmada && EnBlanco(c, Ed::edFck)) {
    DefectosArmado(c);  // the screen as a reset left it
  }
  PonNumero(c, numero);
  c.UltimoTramo = static_cast<int>(c.lista.size()) + 1;
  PonEstado(c, kAltas);
  Bloquea(c, Ed::edTramo);
  c.TramoEditado = true;
  if (c.pantalla.pagina.TabPrincipal == 0) c.pantalla.pagina.TabPrincipal = 1;
  RenuevaTitulo(c);
  VaA(c, Ed::edDescriTramo);
}

bool AccionGrabaTramo(Captura& c) {
  if (c.SinTramoEnMano() || NiegaGrabar(c)) return false;
  if (!Confirma(c, txt::SalvaElTramo, txt::TituloConfirmacion)) return false;
  if (!ValidaObra(c) || !ValidaTramo(c, true)) return false;
  try {
    CompruebaTextos(c, c.e.obra.NombreFichero, true);
  } catch (const ErrorFichero& error) {
    MuestraError(c, error);
    return false;
  }
  if (!EscribeTramoEnMano(c)) return false;
  MuestraListaTramos(c);
  c.UltimoTramo = static_cast<int>(c.lista.size());
  Desbloquea(c, Ed::edTramo);
  OlvidaCambios(c);
  c.pantalla.pagina.TabPrincipal = 0;
  PonEstado(c, kModificaciones);
  c.pantalla.foco = Ed::edTramo;
  c.voz.VaA(Ed::edTramo);
  return true;
}

void CancelaCaptura(Captura& c) {
  if (c.SinTramoEnMano()) return;
  if ((c.EnAltas() || c.EnCambio()) && !Confirma(c, txt::DeseaCancelar, txt::TituloAviso)) return;
  Desbloquea(c, Ed::edTramo);
  if (c.EnAltas()) {
    LimpiaCaptura(c, 0);
    c.e.tramo.NumeroTramo = 0;
    c.UltimoTramo = static_cast<int>(c.lista.size());
  } else {
    c.EstadoCaptura = kSinTramo;
    const int posicion = PosicionDelTramo(c, NumeroDe(c[Ed::edTramo].texto));
    if (posicion != 0) LeeYEdita(c, posicion);
  }
  OlvidaCambios(c);
  c.pantalla.pagina.TabPrincipal = 1;
  PonEstado(c, c.EstadoCaptura);
  c.pantalla.foco = Ed::edTramo;
  c.voz.VaA(Ed::edTramo);
}

bool EligeTramo(Captura& c) {
  if (EnBlanco(c, Ed::edTramo)) return true;
  const int anterior = c.e.tramo.NumeroTramo;
  double valor = 0;
  if (!ValidaNumero(c, Ed::edTramo, 0.0, valor, txt::EtNumeroTramo)) return false;
  if (valor > kMayorNumeroTramo) {
    Rechaza(c, Ed::edTramo, Texto(c, txt::ValorIncorrecto), Texto(c, txt::EtNumeroTramo));
    return false;
  }
  const int numero = static_cast<int>(Redondea(valor));
  if (numero == 0) {
    c.e.tramo.NumeroTramo = 0;
    if (Confirma(c, txt::CreaNuevoTramo, txt::TituloAviso)) NuevoTramo(c);
    return true;
  }
  if (numero == anterior && !c.SinTramoEnMano()) {
    PonNumero(c, numero);
    c[Ed::edTramo].bloqueado = true;
    return true;
  }
  if (!AceptaPerderCambios(c)) {
    PonNumero(c, anterior);
    return true;
  }
  CambiaDeTramo(c, numero, anterior);
  // Another Tramo is chosen once this one is saved or cancelled.
  c[Ed::edTramo].bloqueado = c.EnModificaciones();
  return true;
}

void TomaEnMano(Captura& c, int numero, std::string_view estado) {
  PonNumero(c, numero);
  c.UltimoTramo = static_cast<int>(c.lista.size()) + (estado == kAltas ? 1 : 0);
  PonEstado(c, estado);
  Bloquea(c, Ed::edTramo);
}

bool PreparaCalculo(Captura& c, bool ajuste) {
  if (!ValidaObra(c) || !ValidaTramo(c, true)) return false;
  if (!c.e.obra.ObraAbierta) {
    Avisa(c, txt::DebeSalvarObra);
    return false;
  }
  if (ajuste && NiegaGrabar(c)) return false;
  if (ajuste && c.EnCambio()) {
    Avisa(c, txt::DebeSalvarCambios);
    return false;
  }
  c.e.obra.NombreObra = c[Ed::edObra].texto;
  c.e.tramo.DescriTramo = c[Ed::edDescriTramo].texto;
  c.e.tramo.NumeroTramo = static_cast<std::int16_t>(NumeroDe(c[Ed::edTramo].texto));
  return true;
}

}  // namespace zorbin
