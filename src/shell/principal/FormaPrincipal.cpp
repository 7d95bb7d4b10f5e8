#include "shell/principal/FormaPrincipal.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDockWidget>
#include <QFile>
#include <QFileInfo>
#include <QMenu>
#include <QMenuBar>
#include <QSessionManager>
#include <QStackedWidget>
#include <QStatusBar>
#include <QTimer>
#include <QToolBar>

#include "base/mdCarpetas.h"
#include "base/mdNumeros.h"
#include "base/textos.h"
#include "sesion/captura/mdCiclo.h"
#include "sesion/captura/mdEtiquetas.h"
#include "sesion/captura/mdPaginas.h"
#include "sesion/captura/mdTramos.h"
#include "shell/captura/CapturaDatos.h"
#include "shell/captura/mdPanelTramos.h"
#include "shell/piezas/mdDialogos.h"
#include "shell/piezas/mdIconos.h"
#include "shell/piezas/mdQt.h"
#include "shell/principal/mdAvisoEstado.h"
#include "shell/principal/mdBarraEstado.h"
#include "shell/principal/mdHistoria.h"
#include "shell/principal/mdLetrasMenu.h"
#include "shell/principal/mdMandosTramos.h"
#include "shell/principal/mdMenuRecientes.h"
#include "shell/principal/mdMenuVer.h"
#include "shell/principal/mdPaginaInicio.h"

namespace zorbin {

namespace {

const QString kNombreVentana = QStringLiteral("FormaPrincipal");
constexpr char kMuestra[] = "acequia.zrb";

}  // namespace

FormaPrincipal::FormaPrincipal(Captura& c, const Entorno& entorno, QWidget* padre)
    : QMainWindow(padre), c_(c), entorno_(entorno) {
  setObjectName(kNombreVentana);
  setWindowTitle(QString::fromLatin1(kTituloAplicacion));
  setAcceptDrops(true);
  centro_ = new QStackedWidget(this);
  inicio_ = new PaginaInicio(entorno, this);
  centro_->addWidget(inicio_);
  setCentralWidget(centro_);
  connect(inicio_, &PaginaInicio::nuevaPedida, this, &FormaPrincipal::Nueva);
  connect(inicio_, &PaginaInicio::abrirPedido, this, &FormaPrincipal::AbreConDialogo);
  connect(inicio_, &PaginaInicio::obraPedida, this, &FormaPrincipal::Abre);
  connect(inicio_, &PaginaInicio::muestraPedida, this,
          [this] { Protege([this] { AbreMuestra(); }); });
  connect(inicio_, &PaginaInicio::advertenciaPedida, this,
          [this] { Protege([this] { pantallas_.advertencia(); }); });
  connect(inicio_, &PaginaInicio::idiomaPedido, this, &FormaPrincipal::PonIdioma);
  historia_ = new Historia(c_, [this](const std::function<void()>& hace) {
    captura().Hace(hace);
    Actualiza();
  });
  CreaPanelTramos();
  CreaMenus();
  CreaBarra();
  aviso_ = new AvisoEstado(c_.textos, this);
  statusBar()->addPermanentWidget(aviso_);
  estado_ = new BarraEstado(*statusBar());
  connect(
      qApp, &QGuiApplication::commitDataRequest, this,
      [this](QSessionManager& sesion) { GuardaSesion(sesion); }, Qt::DirectConnection);
  AplicaIdioma();
  resize(1180, 720);
  entorno_.preferencias.RecuperaVentana(kNombreVentana, *this);
  restoreState(entorno_.preferencias.Estado(kNombreVentana));
}

FormaPrincipal::~FormaPrincipal() = default;

// Made when it is first needed: the window stands at once.
CapturaDatos& FormaPrincipal::captura() {
  if (captura_ != nullptr) return *captura_;
  captura_ = new CapturaDatos(c_, entorno_, this);
  centro_->addWidget(captura_);
  connect(captura_, &CapturaDatos::cambiada, this, &FormaPrincipal::Actualiza);
  connect(captura_, &CapturaDatos::pedida, this, [this](Orden o) { Ejecuta(o); });
  return *captura_;
}

// ---------------------------------------------------------------------------------------------
// Menus

QMenu* FormaPrincipal::NuevoMenu(int texto) {
  auto* menu = menuBar()->addMenu(QString());
  menus_.push_back({menu, texto, {}});
  return menu;
}

QAction* FormaPrincipal::NuevaAccion(QMenu& menu, int texto, const QKeySequence& tecla,
                                     const std::function<void()>& hace) {
  auto* accion = new QAction(this);
  accion->setShortcut(tecla);
  menu.addAction(accion);
  menus_.back().acciones.push_back(accion);
  entradas_.push_back({accion, texto});
  connect(accion, &QAction::triggered, this, [this, hace] { Protege(hace); });
  return accion;
}

QAction* FormaPrincipal::NuevaAccion(QMenu& menu, Orden orden, int texto,
                                     const QKeySequence& tecla) {
  auto* accion = NuevaAccion(menu, texto, tecla, [this, orden] { Ejecuta(orden); });
  acciones_[orden] = accion;
  return accion;
}

void FormaPrincipal::CreaMenus() {
  auto* obras = NuevoMenu(txt::MenuObras);
  NuevaAccion(*obras, Orden::MnAbriFichero, txt::MenuAbrir, QKeySequence::Open);
  NuevaAccion(*obras, Orden::MnNuevaObra, txt::MenuNueva, QKeySequence::New);
  NuevaAccion(*obras, txt::MenuImportar, {}, [this] {
    Trae({});
  })->setObjectName(QStringLiteral("mnImportar"));
  NuevaAccion(*obras, Orden::MnSeleccionarImpresora, txt::MenuImpresora, {});
  NuevaAccion(*obras, Orden::MnImprimir, txt::MenuImprimir, QKeySequence::Print);
  NuevaAccion(*obras, Orden::mnGrabaObra, txt::BtGrabar, QKeySequence::Save);
  NuevaAccion(*obras, Orden::mnGrabarComo, txt::MenuGrabarComo, Qt::CTRL | Qt::SHIFT | Qt::Key_S);
  NuevaAccion(*obras, Orden::mnCerrarObra, txt::MenuCerrar, Qt::CTRL | Qt::Key_W);
  obras->addSeparator();
  recientes_ = new MenuRecientes(entorno_.preferencias, this);
  obras->addMenu(recientes_);
  connect(recientes_, &MenuRecientes::obraPedida, this,
          [this](const QString& ruta) { Protege([&] { Abre(ruta); }); });
  menus_.back().acciones.push_back(recientes_->menuAction());
  entradas_.push_back({recientes_->menuAction(), txt::MenuRecientes});
  obras->addSeparator();
  auto* salir = NuevaAccion(*obras, Orden::mnSalir, txt::MenuSalir, Qt::CTRL | Qt::Key_Q);
  salir->setMenuRole(QAction::QuitRole);
  CreaMenuEdicion();
  CreaMenuTramos();
  auto* resultados = NuevoMenu(txt::MenuResultados);
  NuevaAccion(*resultados, txt::MenuTablaResultados, Qt::Key_F10, [this] {
    LanzaPantalla(pantallas_.resultados, false);
  })->setObjectName(QStringLiteral("mnResultados"));
  NuevaAccion(*resultados, txt::MenuInforme, {},
              [this] { LanzaPantalla(pantallas_.informe, true); });
  NuevaAccion(*resultados, txt::MenuDiseno, Qt::Key_F8, [this] {
    pantallas_.diseno();
  })->setObjectName(QStringLiteral("mnDiseno"));
  NuevaAccion(*resultados, txt::HojaMenu, {}, [this] {
    LanzaPantalla(pantallas_.hojaFabricacion, false);
  })->setObjectName(QStringLiteral("mnHojaFabricacion"));
  NuevaAccion(*resultados, txt::MedMenu, {}, [this] {
    LanzaPantalla(pantallas_.mediciones, true);
  })->setObjectName(QStringLiteral("mnMediciones"));
  ver_ = new MenuVer(*NuevoMenu(txt::MenuVer), c_.textos, entorno_.preferencias);
  connect(ver_, &MenuVer::idiomaPedido, this, &FormaPrincipal::PonIdioma);
  auto* otras = NuevoMenu(txt::MenuOtras);
  NuevaAccion(*otras, txt::MenuHidraulico, {}, [this] {
    pantallas_.hidraulico();
  })->setObjectName(QStringLiteral("mnCalculoHidraulico"));
  NuevaAccion(*otras, txt::MenuMedidas, {}, [this] {
    pantallas_.medidas();
  })->setObjectName(QStringLiteral("mnMedidas"));
  auto* ayuda = NuevoMenu(txt::MenuAyuda);
  NuevaAccion(*ayuda, txt::MenuContenido, {}, [this] { pantallas_.contenido(); });
  NuevaAccion(*ayuda, txt::MenuIndice, {}, [this] { pantallas_.indice(); });
  NuevaAccion(*ayuda, txt::MenuAcercaDe, {}, [this] {
    pantallas_.acercaDe();
  })->setObjectName(QStringLiteral("mnAcercaDe"));
  NuevaAccion(*ayuda, txt::MenuAdvertencia, {}, [this] {
    pantallas_.advertencia();
  })->setObjectName(QStringLiteral("mnAdvertencia"));
  NuevaAccion(*ayuda, txt::MenuMemoria, {}, [this] {
    pantallas_.memoria();
  })->setObjectName(QStringLiteral("mnMemoria"));
}

// What was done is named in the entries.
void FormaPrincipal::CreaMenuEdicion() {
  auto* edicion = NuevoMenu(txt::MenuEdicion);
  deshacer_ = NuevaAccion(*edicion, txt::MenuDeshacer, QKeySequence::Undo,
                          [this] { historia_->Deshace(); });
  rehacer_ = NuevaAccion(*edicion, txt::MenuRehacer, Qt::CTRL | Qt::SHIFT | Qt::Key_Z,
                         [this] { historia_->Rehace(); });
  deshacer_->setObjectName(QStringLiteral("mnDeshacer"));
  rehacer_->setObjectName(QStringLiteral("mnRehacer"));
}

void FormaPrincipal::CreaMenuTramos() {
  auto* tramos = NuevoMenu(txt::MenuTramos);
  acciones_[Orden::mnTramos] = tramos->menuAction();
  NuevaAccion(*tramos, Orden::mnNuevoTramo, txt::MenuNuevoTramo, Qt::CTRL | Qt::Key_T);
  NuevaAccion(*tramos, Orden::mnDuplicaTramos, txt::MenuDuplicar, Qt::CTRL | Qt::Key_D);
  NuevaAccion(*tramos, Orden::mnBorraTramos, txt::MenuBorrar, Qt::CTRL | Qt::Key_Delete);
  NuevaAccion(*tramos, Orden::mnRenumeraTramo, txt::MenuRenumerar, Qt::CTRL | Qt::Key_R);
  NuevaAccion(*tramos, Orden::mnRenumeraTodos, txt::MenuRenumerarTodos, {});
  NuevaAccion(*tramos, Orden::mnSubeTramos, txt::MenuSubir, Qt::CTRL | Qt::Key_Up);
  NuevaAccion(*tramos, Orden::mnBajaTramos, txt::MenuBajar, Qt::CTRL | Qt::Key_Down);
  NuevaAccion(*tramos, Orden::mnCopiaTramos, txt::MenuCopiarTramos,
              Qt::CTRL | Qt::SHIFT | Qt::Key_C);
  NuevaAccion(*tramos, Orden::mnPegaTramos, txt::MenuPegarTramos, Qt::CTRL | Qt::SHIFT | Qt::Key_V);
  tramos->addSeparator();
  NuevaAccion(*tramos, Orden::mnCancelar, txt::BotonReleer, {});
  NuevaAccion(*tramos, Orden::mnCalculaTramo, txt::MenuCalcula, Qt::Key_F9);
  NuevaAccion(*tramos, Orden::mnAjustarArmaduras, txt::MenuAjustar, {});
  QList<QAction*> delPanel;
  for (const Orden o :
       {Orden::mnNuevoTramo, Orden::mnDuplicaTramos, Orden::mnBorraTramos, Orden::mnRenumeraTramo,
        Orden::mnSubeTramos, Orden::mnBajaTramos, Orden::mnCopiaTramos, Orden::mnPegaTramos}) {
    delPanel += acciones_[o];
  }
  panel_->PonAcciones(delPanel);
}

void FormaPrincipal::CreaPanelTramos() {
  marcoTramos_ = new QDockWidget(this);
  marcoTramos_->setObjectName(QStringLiteral("marcoTramos"));
  marcoTramos_->setFeatures(QDockWidget::NoDockWidgetFeatures);
  panel_ = new PanelTramos(c_, marcoTramos_);
  marcoTramos_->setWidget(panel_);
  addDockWidget(Qt::LeftDockWidgetArea, marcoTramos_);
  marcoTramos_->hide();
  connect(panel_, &PanelTramos::borradoPedido, this, [this] { Ejecuta(Orden::mnBorraTramos); });
  connect(panel_, &PanelTramos::numeroPedido, this, [this] { Ejecuta(Orden::mnRenumeraTramo); });
  connect(panel_, &PanelTramos::ordenPedido, this, [this](const std::vector<int>& ids, int antes) {
    Protege([&] { captura().Hace([&] { LlevaTramos(c_, ids, antes); }); });
  });
  connect(panel_, &PanelTramos::tramoPedido, this, [this](int id) {
    // Whoever goes down the list by its keys stays in it.
    const bool enLaLista = panel_->isAncestorOf(QApplication::focusWidget());
    captura().Hace([this, id] {
      if (id != c_.enMano) PonEnMano(c_, id);
      if (c_.pantalla.pagina.TabPrincipal == 0) CambiaPagina(c_, 1);
      if (c_.pantalla.pagina.TabPrincipal == 1) c_.pantalla.foco = Ed::edDescriTramo;
    });
    if (enLaLista) panel_->DaFoco();
  });
}

void FormaPrincipal::CreaBarra() {
  barra_ = addToolBar(QString());
  barra_->setObjectName(QStringLiteral("barra"));
  barra_->setIconSize({22, 22});
  for (const Orden o : {Orden::MnNuevaObra, Orden::MnAbriFichero, Orden::mnGrabaObra}) {
    barra_->addAction(acciones_[o]);
  }
  barra_->addSeparator();
  barra_->addAction(deshacer_);
  barra_->addAction(rehacer_);
  barra_->addSeparator();
  for (const Orden o : {Orden::mnNuevoTramo, Orden::mnDuplicaTramos, Orden::mnCalculaTramo,
                        Orden::mnAjustarArmaduras}) {
    barra_->addAction(acciones_[o]);
  }
  barra_->addSeparator();
  barra_->addAction(acciones_[Orden::MnImprimir]);
  barra_->addSeparator();
  barra_->addAction(findChild<QAction*>(QStringLiteral("mnCalculoHidraulico")));
  barra_->addAction(findChild<QAction*>(QStringLiteral("mnMedidas")));
  DibujaIconos();
}

void FormaPrincipal::DibujaIconos() {
  const auto pon = [this](QAction* accion, Icono icono) {
    accion->setIcon(DibujaIcono(icono, palette()));
  };
  pon(acciones_[Orden::MnNuevaObra], Icono::Nueva);
  pon(acciones_[Orden::MnAbriFichero], Icono::Abrir);
  pon(acciones_[Orden::mnGrabaObra], Icono::Grabar);
  pon(acciones_[Orden::MnImprimir], Icono::Imprimir);
  pon(acciones_[Orden::mnNuevoTramo], Icono::NuevoTramo);
  pon(acciones_[Orden::mnDuplicaTramos], Icono::Duplicar);
  pon(deshacer_, Icono::Deshacer);
  pon(rehacer_, Icono::Rehacer);
  pon(acciones_[Orden::mnCalculaTramo], Icono::Calcular);
  pon(acciones_[Orden::mnAjustarArmaduras], Icono::Ajustar);
  pon(findChild<QAction*>(QStringLiteral("mnCalculoHidraulico")), Icono::Hidraulico);
  pon(findChild<QAction*>(QStringLiteral("mnMedidas")), Icono::Medios);
}

// A letter of each entry answers to the keyboard; where the text marks one, it is that.
void FormaPrincipal::PonMnemonicos() {
  std::vector<std::pair<QAction*, QString>> principales;
  for (const auto& menu : menus_) {
    principales.emplace_back(menu.menu->menuAction(), Q(c_.textos.Texto(menu.texto)));
    std::vector<std::pair<QAction*, QString>> entradas;
    for (auto* accion : menu.acciones) {
      const auto e = std::find_if(entradas_.begin(), entradas_.end(),
                                  [&](const Entrada& x) { return x.accion == accion; });
      entradas.emplace_back(accion, Q(c_.textos.Texto(e->texto)));
    }
    ReparteLetras(entradas);
  }
  ReparteLetras(principales, LetrasDePestanas(c_.textos));
}

void FormaPrincipal::AplicaIdioma() {
  idiomaPuesto_ = c_.textos.IdiomaOffset();
  if (captura_ != nullptr) captura_->RenuevaTextos();
  PonMnemonicos();
  for (const auto& entrada : entradas_) {
    const QString texto = Rotulo(c_.textos.Texto(entrada.texto)).remove(QLatin1Char('&'));
    const auto tecla = entrada.accion->shortcut().toString(QKeySequence::NativeText);
    entrada.accion->setToolTip(tecla.isEmpty() ? texto : texto + " (" + tecla + ")");
  }
  barra_->setWindowTitle(Q(c_.textos.Texto(txt::BarraHerramientas)));
  inicio_->Renueva();
  ver_->Renueva();
  marcoTramos_->setWindowTitle(Rotulo(c_.textos.Texto(txt::MenuTramos)));
  panel_->RenuevaTextos();
  if (pantallas_.renuevaTextos) pantallas_.renuevaTextos();
  Actualiza();
}

// The screen speaks it at once; the paper goes on in the language of the Obra.
void FormaPrincipal::PonIdioma(int idioma) {
  Protege([this, idioma] {
    const auto cambia = [this, idioma] {
      CambiaIdioma(c_, static_cast<std::int16_t>(idioma));
      c_.SeparadorDecimal = SeparadorDeIdioma(idioma);
      if (c_.ObraCargada) MuestraTodo(c_);
    };
    captura_ != nullptr ? static_cast<void>(captura_->Hace(cambia)) : cambia();
    entorno_.preferencias.GrabaIdioma(idioma);
  });
}

// ---------------------------------------------------------------------------------------------
// State

void FormaPrincipal::Actualiza() {
  if (c_.textos.IdiomaOffset() != idiomaPuesto_) {
    AplicaIdioma();
    return;
  }
  for (const auto& [orden, accion] : acciones_) {
    accion->setEnabled(c_.pantalla.Habilitada(orden));
  }
  historia_->Refresca(*deshacer_, *rehacer_);
  panel_->Refresca();
  marcoTramos_->setVisible(c_.ObraCargada);
  QWidget* delante = c_.ObraCargada ? static_cast<QWidget*>(&captura()) : inicio_;
  if (centro_->currentWidget() != delante) {
    centro_->setCurrentWidget(delante);
    if (delante == inicio_) inicio_->Renueva();
    recientes_->Renueva();
  }
  ActualizaEstado();
  emit actualizada();
}

void FormaPrincipal::Anuncia(const QString& texto) {
  aviso_->Anade(texto);
}

void FormaPrincipal::ActualizaEstado() {
  setWindowModified(c_.EnCambio());
  if (!c_.EnCambio()) aviso_->Quita(std::exchange(recuperado_, {}));
  estado_->Refresca(c_);
  setWindowTitle(c_.ObraCargada ? EnTitulo(NombreDeObra(c_)) + QStringLiteral("[*] - ") +
                                      QString::fromLatin1(kTituloAplicacion)
                                : QString::fromLatin1(kTituloAplicacion));
}

// ---------------------------------------------------------------------------------------------
// Actions

// A failure that no action foresaw is told; what was typed stays.
void FormaPrincipal::Protege(const std::function<void()>& hace) {
  if (ocupada_ || !hace) return;
  ocupada_ = true;
  try {
    hace();
  } catch (const ErrorFichero& error) {
    Avisa(this, c_.textos, Q(TextoDeError(c_, error)));
  } catch (const std::exception& error) {
    Avisa(this, c_.textos, TextoInesperado(c_.textos, &error));
  } catch (...) {
    Avisa(this, c_.textos, TextoInesperado(c_.textos, nullptr));
  }
  ocupada_ = false;
  if (captura_ != nullptr) captura_->Refresca();
  Actualiza();
}

void FormaPrincipal::Ejecuta(Orden orden) {
  if (ocupada_) return EjecutaDeVerdad(orden);
  Protege([this, orden] { EjecutaDeVerdad(orden); });
}

void FormaPrincipal::LanzaPantalla(const std::function<void()>& pantalla, bool dejaCampo) {
  if (!pantalla) return;
  captura().Hace(pantalla, !dejaCampo);
}

void FormaPrincipal::EjecutaDeVerdad(Orden orden) {
  switch (orden) {
    case Orden::MnAbriFichero:
      return AbreConDialogo();
    case Orden::MnNuevaObra:
      return Nueva();
    case Orden::MnSeleccionarImpresora:
      if (pantallas_.seleccionaImpresora) pantallas_.seleccionaImpresora();
      return;
    case Orden::MnImprimir:
    case Orden::btImprimir:
      return LanzaPantalla(pantallas_.imprimeObra, true);
    case Orden::mnGrabaObra:
    case Orden::btGrabaObra:
      return GrabaCon(zorbin::Graba);
    case Orden::mnGrabarComo:
      return GrabaCon(GrabaComo);
    case Orden::mnCerrarObra:
    case Orden::btCerrarObra:
      Cierra();
      return;
    case Orden::mnSalir:
      close();
      return;
    case Orden::mnNuevoTramo:
    case Orden::btNuevoTramo:
      captura().Hace([this] { NuevoTramo(c_); });
      return;
    case Orden::mnCancelar:
    case Orden::btCancelar:
      captura().Hace([this] { Relee(c_); }, true);
      return;
    case Orden::mnCalculaTramo:
    case Orden::btCalcular:
      return LanzaPantalla(pantallas_.calculaTramo, true);
    case Orden::mnAjustarArmaduras:
    case Orden::btAjustar:
      return LanzaPantalla(pantallas_.ajusta, true);
    default:
      captura().Hace([this, orden] { HazConTramos(c_, orden, panel_->Elegidos(), this); });
      return;
  }
}

void FormaPrincipal::GrabaCon(bool (*graba)(Captura&)) {
  captura().Hace([this, graba] {
    if (graba(c_)) entorno_.preferencias.AnotaObra(Q(c_.e.obra.NombreFichero));
  });
  recientes_->Renueva();
}

// Whether what is open may give way to another Obra.
bool FormaPrincipal::DejaLaObra() {
  if (!c_.ObraCargada) return true;
  bool puede = false;
  captura().Hace([&] { puede = PuedeIrse(c_); });
  return puede;
}

bool FormaPrincipal::AbreFichero(const QString& ruta) {
  bool abierta = false;
  aviso_->Vacia();
  captura().Hace(
      [&] { abierta = AbreObra(c_, std::filesystem::path(QFile::encodeName(ruta).toStdString())); },
      true);
  if (abierta) {
    entorno_.preferencias.AnotaObra(ruta);
  } else {
    entorno_.preferencias.OlvidaObra(ruta);
  }
  if (abierta && !c_.version.tramos.empty()) {
    captura().Hace([this] { PonEnMano(c_, c_.version.tramos.front()->id); }, true);
  }
  historia_->Olvida();
  panel_->OlvidaEstados();
  recientes_->Renueva();
  Actualiza();
  return abierta;
}

// It stays as it is: what is made of it is saved under another name.
void FormaPrincipal::AbreMuestra() {
  if (!DejaLaObra()) return;
  aviso_->Vacia();
  captura().Hace([this] { AbreParaMirar(c_, RutaMuestra(kMuestra)); }, true);
  historia_->Olvida();
  panel_->OlvidaEstados();
  if (!c_.version.tramos.empty()) PonEnMano(c_, c_.version.tramos.front()->id);
}

void FormaPrincipal::RenuevaInicio() {
  inicio_->Renueva();
}

bool FormaPrincipal::Recupera(const Borrador& b, bool deFichero) {
  if (c_.ObraCargada) return false;
  if (deFichero) {
    std::error_code sinFichero;
    if (std::filesystem::equivalent(b.fichero, RutaMuestra(kMuestra), sinFichero)) {
      AbreMuestra();
    } else if (!AbreFichero(QFile::decodeName(b.fichero.c_str()))) {
      return false;
    }
  } else {
    Nueva();
  }
  captura().Hace([&] { PonBorrador(c_, b); }, true);
  recuperado_ = Q(c_.textos.Texto(txt::Recuperado));
  Anuncia(recuperado_);
  Actualiza();
  return true;
}

void FormaPrincipal::Nueva() {
  if (!DejaLaObra()) return;
  aviso_->Vacia();
  captura().Hace(
      [this] {
        NuevaObra(c_, c_.textos.IdiomaOffset() / kPasoIdioma + 1);
        if (!entorno_.preferencias.NuevaEnSI()) {
          RevisaUnidades(c_, false);
          c_.guardada = c_.version = VersionActual(c_);
        }
      },
      true);
  historia_->Olvida();
  panel_->OlvidaEstados();
  // The page was not in sight when the action ended.
  captura().Hace([] {}, true);
}

bool FormaPrincipal::Cierra() {
  if (!DejaLaObra()) return false;
  captura().Hace([&] { Descarta(c_); }, true);
  historia_->Olvida();
  aviso_->Vacia();
  Actualiza();
  return true;
}

void FormaPrincipal::closeEvent(QCloseEvent* suceso) {
  if (!Cierra()) {
    suceso->ignore();
    return;
  }
  entorno_.preferencias.GuardaVentana(kNombreVentana, *this);
  entorno_.preferencias.GuardaEstado(kNombreVentana, saveState());
  if (!entorno_.preferencias.Guarda()) {
    Avisa(this, c_.textos,
          Q(c_.textos.Compone(txt::AjustesSinGuardar, {S(entorno_.preferencias.Fichero())})));
  }
  suceso->accept();
  QApplication::closeAllWindows();
}

// Logging out with unsaved edits is refused, as closing is.
void FormaPrincipal::GuardaSesion(QSessionManager& sesion) {
  if (!c_.EnCambio()) return;
  if (sesion.allowsInteraction()) {
    Cierra();
    sesion.release();
  }
  sesion.cancel();
}

void FormaPrincipal::changeEvent(QEvent* suceso) {
  QMainWindow::changeEvent(suceso);
  if (suceso->type() == QEvent::PaletteChange && barra_ != nullptr) DibujaIconos();
  if (suceso->type() == QEvent::ThemeChange && ver_ != nullptr) ver_->RenuevaTema();
}

}  // namespace zorbin
