#include "programas/zorbin/mdPrograma.h"

#include <QApplication>
#include <QFileInfo>
#include <QLibraryInfo>
#include <QMessageBox>
#include <QTimer>
#include <QTranslator>
#include <array>
#include <cstdlib>
#include <stdexcept>

#include "base/mdCarpetas.h"
#include "base/mdNumeros.h"
#include "base/textos.h"
#include "programas/zorbin/mdSinPantalla.h"
#include "sesion/captura/mdCiclo.h"
#include "shell/ajustes/frAjustes.h"
#include "shell/ayuda/frAcercaDe.h"
#include "shell/ayuda/frAyuda.h"
#include "shell/ayuda/frmTip.h"
#include "shell/ayuda/mdMemoria.h"
#include "shell/calculadoras/CalculoHidraulico.h"
#include "shell/calculadoras/Protecciones.h"
#include "shell/captura/mdPanelTramos.h"
#include "shell/impresion/frImpresoras.h"
#include "shell/informe/frInforme.h"
#include "shell/piezas/mdDialogos.h"
#include "shell/piezas/mdQt.h"
#include "shell/piezas/mdTema.h"
#include "shell/principal/mdArranque.h"
#include "shell/resultados/frDiseno.h"
#include "shell/resultados/frHojaFabricacion.h"
#include "shell/resultados/frMediciones.h"
#include "shell/resultados/frResultados.h"
#include "shell/resultados/mdCalculos.h"
#include "shell/resultados/mdMarcoDiseno.h"

namespace zorbin {

namespace {

// Names of the toolkit's own texts, by language of the catalogue.
constexpr std::array<const char*, kIdiomas> kIdiomasDialogos{"es", "en", "ca", "pt_BR", "fr"};

// Each opening begins anew.
template <class Ventana>
Ventana* EnVentana(Ventana* ventana) {
  ventana->setAttribute(Qt::WA_DeleteOnClose);
  return ventana;
}

EstadoTramo EstadoDe(Veredicto veredicto) {
  if (veredicto == Veredicto::Cumple) return EstadoTramo::Cumple;
  return veredicto == Veredicto::NoCumple ? EstadoTramo::NoCumple : EstadoTramo::Falla;
}

template <class Ventana>
void Delante(Ventana& ventana) {
  ventana.show();
  ventana.raise();
  ventana.activateWindow();
}

}  // namespace

Programa::Programa(std::unique_ptr<Preferencias> preferencias, Cajon cajon)
    : preferencias_(std::move(preferencias)),
      textos_(Catalogo::Lee(CarpetaRecursos() / "textos")),
      impresora_(textos_, *preferencias_),
      documentos_(DocumentosDelPrograma(textos_, RutaDocumento)),
      entorno_{textos_, tablas_, *preferencias_, impresora_},
      voz_(textos_, *preferencias_) {
  PonTema(static_cast<Tema>(preferencias_->Tema()));
  EligeIdioma();
  LeeLasTablas();
  estado_.obra.RutaApp = (CarpetaRecursos() / "").string();
  captura_ = std::make_unique<Captura>(estado_, textos_, tablas_, voz_, entorno_.SeparadorDecimal);
  CierraObra(*captura_);
  entorno_.ayuda = [this](const QString& ancla) { Ayuda().Muestra(ancla); };
  impresora_.PonAyuda(entorno_.ayuda);
  ventana_ = std::make_unique<FormaPrincipal>(*captura_, entorno_);
  voz_.PonPadre(ventana_.get());
  voz_.PonAnuncios([this](const QString& texto) { ventana_->Anuncia(texto); });
  guarda_ = std::make_unique<GuardaBorradores>(*captura_, std::move(cajon));
  connect(ventana_.get(), &FormaPrincipal::actualizada, guarda_.get(), &GuardaBorradores::Mira);
  connect(guarda_.get(), &GuardaBorradores::falla, ventana_.get(), &FormaPrincipal::Anuncia);
  CreaDiseno();
  Enlaza();
  RenuevaTextos();
}

Programa::~Programa() = default;

// Calculated when it opens; while it is open, when it is asked to.
void Programa::MuestraResultados() {
  if (!captura_->ObraCargada) return;
  const bool nueva = resultados_ == nullptr;
  if (nueva) {
    resultados_ = EnVentana(new frResultados(
        *captura_, entorno_, [this] { ventana_->accion(Orden::MnImprimir)->trigger(); },
        ventana_.get()));
    connect(ventana_.get(), &FormaPrincipal::actualizada, resultados_.data(), [this] {
      if (captura_->ObraCargada) {
        resultados_->Mira();
      } else {
        resultados_->close();
      }
    });
    connect(resultados_.data(), &frResultados::verificado, ventana_.get(),
            [this](int id, Veredicto veredicto) { PonVeredicto(id, veredicto); });
  }
  Delante(*resultados_);
  if (nueva) resultados_->Calcula();
}

void Programa::CreaDiseno() {
  diseno_ = new PanelDiseno(*captura_, entorno_);
  marcoDiseno_ = new MarcoDiseno(entorno_, *ventana_, diseno_);
  connect(ventana_.get(), &FormaPrincipal::actualizada, diseno_, [this] {
    marcoDiseno_->PonHayObra(captura_->ObraCargada);
    diseno_->Sigue();
  });
  connect(diseno_, &PanelDiseno::verificado, ventana_.get(),
          [this](int id, Veredicto veredicto) { PonVeredicto(id, veredicto); });
  connect(diseno_, &PanelDiseno::sinDiseno, ventana_.get(),
          [this](int id) { ventana_->panel().PonEstado(id, EstadoTramo::SinCalcular); });
}

void Programa::PonVeredicto(int id, Veredicto veredicto) {
  ventana_->panel().PonEstado(id, EstadoDe(veredicto));
}

void Programa::EligeIdioma() {
  IdiomaAlEmpezar(*preferencias_, textos_, IdiomaDelSistema(),
                  [](const std::string& n) { return !RutaAyuda(n + ".html").empty(); });
  entorno_.SeparadorDecimal = SeparadorDeIdioma(textos_.IdiomaOffset() / kPasoIdioma + 1);
}

// Without the tables the program does not begin, and says so in the language in force.
void Programa::LeeLasTablas() {
  try {
    tablas_ = LeeTablas(CarpetaRecursos() / "tablas");
  } catch (const ErrorFichero& error) {
    throw std::runtime_error(textos_.Compone(error.mensaje()) + "\n\n" +
                             textos_.Texto(txt::SinTablas));
  }
}

void Programa::Empieza(const QString& ruta) {
  ventana_->show();
  QTimer::singleShot(0, this, [this, ruta] { AbreLoPedido(ruta); });
}

void Programa::DiFallo(const std::exception* error) {
  auto* delante = QApplication::activeModalWidget();
  Avisa(delante != nullptr ? delante : ventana_.get(), textos_, TextoInesperado(textos_, error));
}

// Recovered work comes before what was asked for, which may be the same Obra.
void Programa::AbreLoPedido(const QString& ruta) {
  const auto recuperada = OfreceRecuperar(entorno_, *guarda_, *ventana_);
  if (ruta.isEmpty()) return;
  if (recuperada && QFileInfo(Q(*recuperada)) == QFileInfo(ruta)) return;
  ventana_->Abre(ruta);
}

void Programa::Enlaza() {
  Pantallas p;
  auto* padre = ventana_.get();
  const AlVerificar enLaLista = [this](int id, Veredicto v) { PonVeredicto(id, v); };
  p.calculaTramo = [this, padre, enLaLista] {
    CalculaElTramo(*captura_, entorno_, padre, enLaLista);
  };
  p.imprimeObra = [this, padre, enLaLista] {
    ImprimeLaObra(*captura_, entorno_, padre, enLaLista);
  };
  p.ajusta = [this, padre] { AbreAjustes(*captura_, entorno_, documentos_, padre); };
  p.resultados = [this] { MuestraResultados(); };
  p.informe = [this, padre] {
    if (captura_->ObraCargada) frInforme(*captura_, entorno_, padre).exec();
  };
  p.diseno = [this] { marcoDiseno_->Alterna(); };
  p.hojaFabricacion = [this, padre] {
    MuestraHojaFabricacion(*captura_, entorno_, diseno_->elegido(), padre);
  };
  p.mediciones = [this, padre] { MuestraMediciones(*captura_, entorno_, padre); };
  p.seleccionaImpresora = [this, padre] {
    frImpresoras(textos_, *preferencias_, impresora_, padre).exec();
  };
  p.hidraulico = [this, padre] {
    if (hidraulico_ == nullptr) hidraulico_ = EnVentana(new CalculoHidraulico(entorno_, padre));
    Delante(*hidraulico_);
  };
  p.medidas = [this, padre] {
    if (protecciones_ == nullptr) {
      protecciones_ = EnVentana(new Protecciones(entorno_, documentos_, padre));
    }
    Delante(*protecciones_);
  };
  p.contenido = [this] { Ayuda().MuestraContenido(); };
  p.indice = [this] { Ayuda().MuestraIndice(); };
  p.acercaDe = [this, padre] {
    frAcercaDe(entorno_, RutaFigura(textos_.Texto(txt::PictoAnagrama)), CarpetaRecursos(), padre)
        .exec();
  };
  p.advertencia = [this] { MuestraAdvertencia(1); };
  p.memoria = [this] { Memoria(); };
  p.renuevaTextos = [this] { RenuevaTextos(); };
  ventana_->PonPantallas(std::move(p));
}

frAyuda& Programa::Ayuda() {
  if (ayuda_ == nullptr) {
    ayuda_ = new frAyuda(entorno_, [](const std::string& nombre) { return RutaAyuda(nombre); });
    connect(ventana_.get(), &QObject::destroyed, ayuda_, &QObject::deleteLater);
  }
  return *ayuda_;
}

void Programa::MuestraAdvertencia(int modo) {
  const int respuesta = frmTip(entorno_, modo, documentos_, ventana_.get()).exec();
  if (respuesta != QDialog::Accepted) return;
  preferencias_->AnotaAvisoDeUso();
  ventana_->RenuevaInicio();
}

void Programa::Memoria() {
  MemoriaTecnica memoria;
  memoria.ruta = RutaDocumento(textos_.Texto(txt::FicheroMemoria));
  memoria.carpetas = CarpetasDeLaSesion([](const char* v) { return std::getenv(v); });
  memoria.documento = documentos_;
  MuestraMemoria(entorno_, memoria, ventana_.get());
}

void Programa::RenuevaTextos() {
  TraduceDialogos();
  entorno_.SeparadorDecimal = captura_->SeparadorDecimal;
  marcoDiseno_->RenuevaTextos();
  diseno_->RenuevaTextos();
  if (resultados_ != nullptr) resultados_->RenuevaTextos();
  if (hidraulico_ != nullptr) hidraulico_->RenuevaTextos();
  if (protecciones_ != nullptr) protecciones_->RenuevaTextos();
  if (ayuda_ != nullptr) ayuda_->RenuevaTextos();
}

// The buttons of the toolkit's own dialogs speak the language in force too.
void Programa::TraduceDialogos() {
  const int idioma = textos_.IdiomaOffset() / kPasoIdioma + 1;
  if (idioma == idiomaTraducido_) return;
  idiomaTraducido_ = idioma;
  if (traductor_ != nullptr) QApplication::removeTranslator(traductor_.get());
  traductor_ = std::make_unique<QTranslator>();
  const auto nombre = QStringLiteral("qtbase_") +
                      QLatin1String(kIdiomasDialogos[static_cast<std::size_t>(idioma - 1)]);
  if (traductor_->load(nombre, QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
    QApplication::installTranslator(traductor_.get());
  }
}

}  // namespace zorbin
