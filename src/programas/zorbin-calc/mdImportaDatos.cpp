#include "programas/zorbin-calc/mdImportaDatos.h"

#include "base/mdCarpetas.h"
#include "base/mdTextos.h"
#include "base/textos.h"
#include "listados/datos/mdPlantilla.h"
#include "persistencia/disco/mdDescriptor.h"
#include "persistencia/dpe/mdDpe.h"
#include "persistencia/proyecto/mdGrabaProyecto.h"
#include "persistencia/tablas/mdTablas.h"
#include "programas/zorbin-calc/mdPalabras.h"
#include "programas/zorbin-calc/mdRescata.h"
#include "programas/zorbin-calc/mdSalida.h"
#include "programas/zorbin-calc/mdVigia.h"
#include "sesion/captura/mdCiclo.h"
#include "sesion/captura/mdComprueba.h"
#include "sesion/captura/mdImporta.h"

namespace zorbin {

namespace {

// The Obra that the data go into: that of the file, or a new one.
class Destino {
 public:
  Destino(const OpcionesImporta& o, const Catalogo& textos, const TablasCatalogo& tablas)
      : ruta_(o.obra),
        separador_(SeparadorDeLinea(o.separador)),
        sombra_(textos, tablas, separador_) {
    bool hay = false;
    if (const Causa causa = HayAlgo(ruta_, hay)) {
      throw ErrorFichero({txt::NoSeAbre, {ruta_.string(), TextoDeCausa(causa)}});
    }
    if (hay) {
      // What is damaged or held by another program is refused as a whole.
      LeeProyectoEntero(ruta_, textos);
      AbreParaMirar(sombra_.c, ruta_);
      existe_ = true;
    } else {
      sombra_.c.e.obra.Alt1 = 0;  // a height that nobody gave would be of use to nobody
      sombra_.c.e.obra.GolpeCalculado = false;
      sombra_.c.version = VersionActual(sombra_.c);
    }
  }

  Version Base() const { return VersionActual(sombra_.c); }

  void Graba(const Version& v, const Catalogo& textos) {
    const auto valida = SinAjustesVanos(v);
    ProyectoAGrabar p{valida.version.obra, {}, {}, valida.version.extras};
    for (const auto& t : valida.version.tramos) {
      p.tramos.push_back({t->numero, t->datos, t->extras});
      p.ajustes.insert(p.ajustes.end(), t->ajustes.begin(), t->ajustes.end());
    }
    p.ajustes.insert(p.ajustes.end(), v.ajustesSueltos.begin(), v.ajustesSueltos.end());
    for (const auto& [tramo, cuantos] : valida.anulados) {
      Queja(textos.Texto(txt::AjustesQueSeAnulan) + " " +
            textos.Compone(txt::AjustesDelTramo, {tramo, TextoEntero(cuantos)}));
    }
    FicheroRegistros f(ruta_, FicheroRegistros::Modo::LecturaEscritura);
    for (const auto& aviso : GrabaProyecto(f, p, textos, separador_)) Queja(textos.Compone(aviso));
  }

 private:
  std::filesystem::path ruta_;
  char separador_;
  Sombra sombra_;
  bool existe_ = false;
};

int Plantilla(const OpcionesImporta& o, Catalogo& textos) {
  if (!o.idioma.empty()) PonIdiomaDeLinea(textos, o.idioma);
  EscribePlantilla(o.plantilla, textos, true);
  Salida salida({});
  salida.flujo() << textos.Compone(txt::PlantillaEscrita, {o.plantilla.string()}) << '\n';
  salida.Cierra();
  return kHecho;
}

// What is wrong with the words, or nothing.
std::string PalabrasQueNoSirven(const OpcionesImporta& o, const Catalogo& textos) {
  if (!o.plantilla.empty()) {
    if (!o.datos.empty()) return textos.Compone(txt::NoVanJuntas, {"--plantilla", "DATOS"});
    if (o.plantilla.extension() != ".xlsx") {
      return textos.Compone(txt::ExtensionDeTabla, {o.plantilla.string()});
    }
    return "";
  }
  if (o.datos.empty()) return textos.Compone(txt::FaltaPalabra, {"DATOS"});
  if (o.obra.empty()) return textos.Compone(txt::FaltaPalabra, {"OBRA.zrb"});
  if (!EsNombreDeDatos(o.datos)) return textos.Compone(txt::ExtensionDeDatos, {o.datos.string()});
  return "";
}

int Trae(const OpcionesImporta& o, Catalogo& textos) {
  const TablasCatalogo tablas =
      LeeTablas(o.tablas.empty() ? CarpetaRecursos() / "tablas" : o.tablas);
  Destino destino(o, textos, tablas);
  const Version base = destino.Base();
  const auto entrada = LeeDatos(o.datos, textos);
  const auto r =
      PreparaImportacion(base, entrada, {textos, tablas, SeparadorDeLinea(o.separador), true, 0});
  for (const auto& aviso : r.avisos) Queja(aviso);
  for (const auto& rechazo : r.Rechazos(textos)) Queja(rechazo);
  const bool nada = r.obra.suerte == Suerte::Rechazado || r.version.tramos.empty();
  if (nada || (r.HayRechazos() && !o.parcial)) {
    Queja(textos.Compone(txt::NadaImportado, {o.obra.string()}));
    return kFicheroRechazado;
  }
  destino.Graba(r.version, textos);
  Salida salida({});
  salida.flujo() << textos.Compone(txt::Importado,
                                   {o.obra.string(), TextoEntero(r.Cuantos(Suerte::Nuevo)),
                                    TextoEntero(r.Cuantos(Suerte::Cambia)),
                                    TextoEntero(r.Cuantos(Suerte::Igual))})
                 << '\n';
  salida.Cierra();
  return r.HayRechazos() ? kFicheroRechazado : kHecho;
}

}  // namespace

int ImportaDatos(const OpcionesImporta& o, Catalogo& textos) try {
  if (const auto queja = PalabrasQueNoSirven(o, textos); !queja.empty()) {
    Queja(queja);
    return kPalabrasMalas;
  }
  return o.plantilla.empty() ? Trae(o, textos) : Plantilla(o, textos);
} catch (const ErrorEntrada& error) {
  Queja(textos.Compone(txt::EntFichero, {o.datos.string(), textos.Compone(error.mensaje())}));
  return kFicheroRechazado;
} catch (const ErrorFichero& error) {
  Queja(textos.Compone(error.mensaje()));
  return kFicheroRechazado;
} catch (const ErrorSalida& error) {
  Queja(textos.Compone(txt::SalidaNoSeEscribe, {error.nombre(), error.what()}));
  return kSalidaImposible;
}

}  // namespace zorbin
