#include "sesion/captura/mdBorrador.h"

#include <algorithm>

#include "base/mdNumeros.h"
#include "base/textos.h"
#include "sesion/captura/mdCiclo.h"
#include "sesion/captura/mdEtiquetas.h"
#include "sesion/captura/mdOrdenes.h"
#include "sesion/captura/mdPresenta.h"
#include "sesion/captura/mdTipologias.h"

namespace zorbin {

namespace {

constexpr auto kDeTramo = std::to_array<Ed>({Ed::edTramo, Ed::edTramo2});

int NumeroEnLista(const std::string& texto) {
  return static_cast<int>(NumeroTexto(texto).value_or(0));
}

std::string FicheroDe(const Captura& c) {
  return c.e.obra.ObraAbierta ? c.e.obra.NombreFichero : std::string{};
}

// What can't be read has the mark of nothing.
std::uint64_t HuellaActual(const FicheroRegistros& f, int posicion) {
  try {
    return HuellaDe(f, posicion);
  } catch (const ErrorFichero&) {
    return 0;
  }
}

int PosicionGuardada(const Captura& c, const Borrador& b) {
  return b.estado == kModificaciones ? PosicionDelTramo(c, b.tramo.NumeroTramo) : 0;
}

// ---- Taking

CampoTecleado TomaCampo(const Captura& c, Ed id) {
  const auto& control = c[id];
  const int entrada = Fila(id).clase == Clase::Lista ? PosicionEnLista(c, id) : 0;
  return {control.texto,
          entrada,
          control.opcion,
          control.habilitado,
          control.etiquetaHabilitada,
          control.bloqueado,
          control.gris,
          control.tabulador,
          control.tocado};
}

MemoriaReglas TomaMemoria(const Captura& c) {
  return {c.AjustesPorBorrar, c.AnchoZanjaAuto, c.SFckEditado, c.EsComercial, c.SinAvisoGeom,
          c.BandaReci,        c.BandaRece,      c.FykAnterior, c.EspRecomMin, c.EspRecomMax};
}

// ---- Putting back

void PonObra(Captura& c, const Borrador& b) {
  auto& o = c.e.obra;
  auto nueva = b.obra;
  nueva.RutaApp = o.RutaApp;
  nueva.NombreFichero = o.NombreFichero;
  nueva.ObraAbierta = o.ObraAbierta;
  o = std::move(nueva);
  MuestraObra(c);
}

int NumeroSiguiente(const Captura& c) {
  int mayor = 0;
  for (const auto& numero : c.lista) mayor = std::max(mayor, NumeroEnLista(numero));
  return mayor + 1;
}

void PonTramo(Captura& c, const Borrador& b) {
  const bool guardado = PosicionGuardada(c, b) != 0;
  int numero = b.tramo.NumeroTramo;
  const bool tomado = PosicionDelTramo(c, numero) != 0;
  if (numero <= 0 || (tomado && !guardado)) numero = NumeroSiguiente(c);
  c.e.tramo = b.tramo;
  MuestraTramo(c);
  TomaEnMano(c, numero, guardado ? kModificaciones : kAltas);
}

void PonCampo(Captura& c, Ed id, const CampoTecleado& campo) {
  auto& control = c[id];
  const auto numero = std::find(kDeTramo.begin(), kDeTramo.end(), id);
  if (numero == kDeTramo.end()) control.texto = campo.texto;
  if (campo.entrada > 0) EligeEntrada(c, id, campo.entrada);
  control.opcion = campo.opcion;
  control.habilitado = campo.habilitado;
  control.etiquetaHabilitada = campo.etiquetaHabilitada;
  control.bloqueado = campo.bloqueado;
  control.gris = campo.gris;
  control.tabulador = campo.tabulador;
  control.tocado = campo.tocado;
}

void PonMemoria(Captura& c, const MemoriaReglas& m) {
  c.AjustesPorBorrar = m.AjustesPorBorrar;
  c.AnchoZanjaAuto = m.AnchoZanjaAuto;
  c.SFckEditado = m.SFckEditado;
  c.EsComercial = m.EsComercial;
  c.SinAvisoGeom = m.SinAvisoGeom;
  c.BandaReci = m.BandaReci;
  c.BandaRece = m.BandaRece;
  c.FykAnterior = m.FykAnterior;
  c.EspRecomMin = m.EspRecomMin;
  c.EspRecomMax = m.EspRecomMax;
}

// ---- Both versions

// Nobody is there to be asked.
class Mudo : public Interlocutor {
 public:
  void Muestra(const std::string&, const std::string&) override {}
  bool Pregunta(const std::string&, const std::string&) override { return false; }
  std::optional<std::string> PideFichero(const std::string&) override { return std::nullopt; }
  void VaA(Ed) override {}
};

// A capture that nobody sees, over its own state and texts.
struct Sombra {
  Sombra(const Catalogo& catalogo, const TablasCatalogo& tablas, char separador)
      : textos(catalogo), c(e, textos, tablas, voz, separador) {
    NuevaObra(c);
  }

  EstadoCalculo e;
  Catalogo textos;
  Mudo voz;
  Captura c;
};

// The Obra as its file has it, in the units of the draft; the Tramo too where it has it.
// @throws ErrorFichero
void AbreSombra(Captura& c, const Borrador& b) {
  if (!b.fichero.empty()) {
    c.fichero.emplace(b.fichero, FicheroRegistros::Modo::Lectura);
    c.lista = CargaObra(c.e, *c.fichero).lista;
    MuestraObra(c);
    MuestraListaTramos(c);
  }
  RevisaUnidades(c, b.obra.SisUnid);
  const int posicion = PosicionGuardada(c, b);
  if (posicion != 0) LeeTramo(c, posicion);
}

std::string Valor(const Captura& c, Ed campo) {
  const auto& control = c[campo];
  switch (Fila(campo).clase) {
    case Clase::Marca:
      return Texto(c, control.opcion == 1 ? txt::Si : txt::No);
    case Clase::Opcion: {
      const auto i = static_cast<std::size_t>(control.opcion);
      return control.opcion >= 0 && i < control.entradas.size() ? control.entradas[i]
                                                                : std::string{};
    }
    default:
      return TextoDe(c, campo);
  }
}

bool SonIguales(const FilaCampo& fila, const std::string& a, const std::string& b) {
  if (a == b) return true;
  if (fila.clase != Clase::Numero || a.empty() || b.empty()) return false;
  const auto x = NumeroTexto(a);
  return x && x == NumeroTexto(b);
}

std::string NombreDe(const Captura& c, const FilaCampo& fila) {
  const auto& control = c[fila.id];
  const std::string etiqueta = SinDosPuntos(control.etiqueta);
  const std::string grupo = SinDosPuntos(control.grupo);
  if (etiqueta.empty()) return grupo.empty() ? SinDosPuntos(control.consejo) : grupo;
  return grupo.empty() ? etiqueta : grupo + ": " + etiqueta;
}

std::vector<RenglonVersion> Renglones(const Captura& fichero, const Captura& tecleado,
                                      bool conTramo, bool tramoEnFichero) {
  std::vector<RenglonVersion> renglones;
  for (const auto& fila : TablaCampos()) {
    const bool deTramo = fila.pagina.TabPrincipal != 0;
    if (EsCopia(fila.id) || fila.id == Ed::edTramo || (deTramo && !conTramo)) continue;
    if (!tecleado[fila.id].habilitado && !fichero[fila.id].habilitado) continue;
    const std::string antes = deTramo && !tramoEnFichero ? std::string{} : Valor(fichero, fila.id);
    const std::string ahora = Valor(tecleado, fila.id);
    if (!SonIguales(fila, antes, ahora)) {
      renglones.push_back({NombreDe(tecleado, fila), antes, ahora});
    }
  }
  return renglones;
}

}  // namespace

bool HayTrabajoSinGuardar(const Captura& c) {
  return c.ObraCargada && !c.SoloLectura() && (c.EnCambio() || c.EnAltas());
}

Borrador TomaBorrador(const Captura& c) {
  Borrador b;
  b.autor = EsteTitular();
  b.cuando = b.autor.desde;
  b.fichero = FicheroDe(c);
  b.estado = c.EstadoCaptura;
  b.obraEditada = c.ObraEditada;
  b.tramoEditado = c.TramoEditado;
  b.obra = c.e.obra;
  b.tramo = c.e.tramo;
  b.memoria = TomaMemoria(c);
  b.pagina = c.pantalla.pagina;
  b.foco = c.pantalla.foco;
  b.avCargas1 = c.pantalla.avCargas1;
  b.figuraColocacion = c.pantalla.figuraColocacion;
  b.figuraTubo = c.pantalla.figuraTubo;
  for (const auto& fila : TablaCampos()) {
    b.campos[static_cast<std::size_t>(fila.id)] = TomaCampo(c, fila.id);
  }
  if (c.fichero) b.huella = HuellaActual(*c.fichero, PosicionGuardada(c, b));
  return b;
}

void PonBorrador(Captura& c, const Borrador& b) {
  PonObra(c, b);
  if (b.ConTramo()) {
    PonTramo(c, b);
  } else {
    c.e.tramo = b.tramo;
  }
  for (const auto& fila : TablaCampos()) {
    PonCampo(c, fila.id, b.campos[static_cast<std::size_t>(fila.id)]);
  }
  PonMemoria(c, b.memoria);
  c.pantalla.pagina = b.pagina;
  c.pantalla.foco = b.foco;
  c.pantalla.avCargas1 = b.avCargas1;
  c.pantalla.figuraColocacion = b.figuraColocacion;
  c.pantalla.figuraTubo = b.figuraTubo;
  RenuevaEtiquetas(c);
  RenuevaTitulo(c);
  ActualizaMenus(c);
  c.ObraEditada = b.obraEditada;
  c.TramoEditado = b.tramoEditado;
}

Versiones ComparaVersiones(const Borrador& b, const Catalogo& textos, const TablasCatalogo& tablas,
                           char separador) {
  Versiones v;
  Sombra fichero(textos, tablas, separador);
  Sombra tecleado(textos, tablas, separador);
  for (auto* sombra : {&fichero, &tecleado}) {
    try {
      AbreSombra(sombra->c, b);
    } catch (const ErrorFichero& error) {
      v.causa = textos.Compone(error.mensaje());
      sombra->c.fichero.reset();
      sombra->c.lista.clear();
      NuevaObra(sombra->c);
    }
  }
  const int posicion = PosicionGuardada(fichero.c, b);
  v.tramoEsNuevo = posicion == 0;
  v.cambiado = !b.fichero.empty() && v.causa.empty() &&
               HuellaActual(*fichero.c.fichero, posicion) != b.huella;
  PonBorrador(tecleado.c, b);
  const auto idioma = static_cast<std::int16_t>(textos.IdiomaOffset() / kPasoIdioma + 1);
  CambiaIdioma(tecleado.c, idioma);
  CambiaIdioma(fichero.c, idioma);
  v.renglones = Renglones(fichero.c, tecleado.c, b.ConTramo(), !v.tramoEsNuevo);
  return v;
}

}  // namespace zorbin
