#include "sesion/captura/mdBorrador.h"

#include <algorithm>

#include "base/mdNumeros.h"
#include "base/mdTextos.h"
#include "base/textos.h"
#include "sesion/captura/mdCiclo.h"
#include "sesion/captura/mdComprueba.h"
#include "sesion/captura/mdEtiquetas.h"
#include "sesion/captura/mdTramos.h"

namespace zorbin {

namespace {

std::string FicheroDe(const Captura& c) {
  return c.fichero ? c.fichero->Nombre() : std::string{};
}

// ---- Putting back

// The Tramo of the file that one of a draft was.
const TramoEnObra* DelFichero(const Version& fichero, const OrigenTramo& origen) {
  if (origen.posicion == 0) return nullptr;
  const auto lugar = static_cast<std::size_t>(origen.posicion - 1);
  if (lugar < fichero.tramos.size() && fichero.tramos[lugar]->numero == origen.numero) {
    return fichero.tramos[lugar].get();
  }
  const auto otro = LugarDeNumero(fichero, NumeroDe(origen.numero));
  return otro ? fichero.tramos[*otro].get() : nullptr;
}

// The version of a draft, over what the file holds now.
Version SobreElFichero(Captura& c, const Borrador& b) {
  Version v = b.version;
  Version fichero = c.guardada;
  CambiaUnidades(fichero, v.obra.EsSI());
  std::vector<TramoFijo> tramos;
  const auto llegados = [&](const TramoFijo& t) {
    return std::ranges::find(b.lista, t->numero) == b.lista.end();
  };
  for (std::size_t i = 0; i < v.tramos.size(); ++i) {
    auto t = std::make_shared<TramoEnObra>(*v.tramos[i]);
    const auto* suyo = DelFichero(c.guardada, b.origenes[i]);
    t->id = suyo != nullptr ? suyo->id : ++c.ultimoId;
    if (suyo != nullptr) {
      t->ajustes = suyo->ajustes;
      t->base = suyo->base;
      t->extras = suyo->extras;
    }
    for (auto& ajuste : t->ajustes) ajuste.Tramo = t->datos.NumeroTramo;
    tramos.push_back(std::move(t));
  }
  for (const auto& t : fichero.tramos) {
    if (!llegados(t)) continue;
    tramos.push_back(t);
    // The number of a new Tramo gives way to the one that the file has by now.
    for (auto& nuevo : tramos) {
      if (nuevo == t || nuevo->numero != t->numero) continue;
      v.tramos = tramos;
      auto otro = std::make_shared<TramoEnObra>(*nuevo);
      const int numero = NumeroLibre(v);
      otro->numero = TextoEntero(numero);
      otro->datos.NumeroTramo = static_cast<std::int16_t>(numero);
      nuevo = std::move(otro);
    }
  }
  v.tramos = std::move(tramos);
  return v;
}

// ---- Both versions

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

// The fields that differ, of the Obra or of the Tramos in hand. @param delante  of each datum
void Compara(std::vector<RenglonVersion>& renglones, const Captura& fichero,
             const Captura& tecleado, bool deTramo, const std::string& delante) {
  for (const auto& fila : TablaCampos()) {
    if (EsCopia(fila.id) || fila.id == Ed::edTramo) continue;
    if ((fila.pagina.TabPrincipal != 0) != deTramo) continue;
    if (!tecleado[fila.id].habilitado && !fichero[fila.id].habilitado) continue;
    const bool sinTramo = deTramo && fichero.SinTramoEnMano();
    const std::string antes = sinTramo ? std::string{} : Valor(fichero, fila.id);
    const std::string ahora = Valor(tecleado, fila.id);
    if (SonIguales(fila, antes, ahora)) continue;
    renglones.push_back({delante + NombreDeCampo(tecleado, fila.id), antes, ahora});
  }
}

}  // namespace

bool HayTrabajoSinGuardar(const Captura& c) {
  return c.ObraCargada && c.EnCambio();
}

Borrador TomaBorrador(const Captura& c) {
  Borrador b;
  b.autor = EsteTitular();
  b.cuando = b.autor.desde;
  b.fichero = FicheroDe(c);
  b.huella = c.huella;
  b.version = VersionActual(c);
  // What could not be read is no work of anybody, and the file has it still.
  std::erase_if(b.version.tramos, [](const TramoFijo& t) { return !t->dano.empty(); });
  b.lista = ListaDe(c.guardada);
  for (const auto& t : b.version.tramos) {
    const auto lugar = LugarDe(c.guardada, t->id);
    b.origenes.push_back(
        lugar ? OrigenTramo{static_cast<int>(*lugar) + 1, c.guardada.tramos[*lugar]->numero}
              : OrigenTramo{});
  }
  const auto enMano = LugarDe(b.version, c.enMano);
  b.enMano = enMano ? static_cast<int>(*enMano) : -1;
  b.AnchoZanjaAuto = c.AnchoZanjaAuto;
  b.pagina = c.pantalla.pagina;
  b.foco = c.pantalla.foco;
  if (c.Tecleando && c[b.foco].tocado) b.tecleado = CampoTecleado{b.foco, c[b.foco].texto};
  return b;
}

void PonBorrador(Captura& c, const Borrador& b) {
  const EnUnPaso paso(c, Texto(c, txt::PasoRecupera));
  const Version v = SobreElFichero(c, b);
  VuelveA(c, v, b.ConTramo() ? v.tramos[static_cast<std::size_t>(b.enMano)]->id : 0);
  c.AnchoZanjaAuto = b.AnchoZanjaAuto;
  const int tipologia = c.pantalla.pagina.TabTipologia;
  c.pantalla.pagina = b.pagina;
  c.pantalla.pagina.TabTipologia = tipologia;
  c.pantalla.foco = b.foco;
  if (b.tecleado) {
    auto& control = c[b.tecleado->campo];
    control.texto = b.tecleado->texto;
    control.tocado = c.Tecleando = true;
  }
  RenuevaEtiquetas(c);
  RenuevaTitulo(c);
}

Versiones ComparaVersiones(const Borrador& b, const Catalogo& textos, const TablasCatalogo& tablas,
                           char separador) {
  Versiones v;
  Sombra fichero(textos, tablas, separador);
  Sombra tecleado(textos, tablas, separador);
  for (auto* c : {&fichero.c, &tecleado.c}) {
    if (b.fichero.empty()) continue;
    try {
      AbreParaMirar(*c, b.fichero);
      if (c->danos.empty()) continue;
      v.causa = c->danos.front();
      NuevaObra(*c);
    } catch (const ErrorFichero& error) {
      v.causa = textos.Compone(error.mensaje());
      NuevaObra(*c);
    }
  }
  v.cambiado = !b.fichero.empty() && v.causa.empty() && fichero.c.huella != b.huella;
  PonBorrador(tecleado.c, b);
  RevisaUnidades(fichero.c, b.version.obra.EsSI());
  Compara(v.renglones, fichero.c, tecleado.c, false, {});
  for (const auto& t : tecleado.c.version.tramos) {
    const auto* suyo = Busca(fichero.c.version, t->id);
    if (suyo != nullptr && *suyo == *t && t->id != tecleado.c.enMano) continue;
    const std::string delante = textos.Compone(txt::DatoDelTramo, {t->numero});
    PonEnMano(fichero.c, t->id);
    if (t->id != tecleado.c.enMano) PonEnMano(tecleado.c, t->id);
    Compara(v.renglones, fichero.c, tecleado.c, true, delante);
  }
  for (const auto& t : fichero.c.version.tramos) {
    if (Busca(tecleado.c.version, t->id) != nullptr) continue;
    v.renglones.push_back({textos.Compone(txt::DatoDelTramo, {t->numero}), t->datos.DescriTramo,
                           textos.Texto(txt::TramoBorrado)});
  }
  return v;
}

}  // namespace zorbin
