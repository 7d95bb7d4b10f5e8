// The main window `FormaPrincipal`: menus, toolbar, status, and every other screen as its child.
//
// What the menus of Obra and Tramo offer is the model's; a menu entry, its button and its key are
// one action.
#pragma once

#include <QMainWindow>
#include <functional>
#include <map>
#include <vector>

#include "sesion/captura/mdBorrador.h"
#include "sesion/captura/mdCaptura.h"
#include "shell/captura/mdInterlocutorQt.h"
#include "shell/piezas/mdEntorno.h"

class QDockWidget;
class QMenu;
class QSessionManager;
class QStackedWidget;
class QToolBar;

namespace zorbin {

class AvisoEstado;
class BarraEstado;
class Historia;
class MenuRecientes;
class PanelTramos;
class CapturaDatos;
class MenuVer;
class PaginaInicio;

/// Screens that the window opens and does not make. Each runs to its end, or shows a window of its
/// own and comes back.
struct Pantallas {
  std::function<void()> calculaTramo;
  std::function<void()> imprimeObra;
  std::function<void()> ajusta;
  std::function<void()> resultados;
  std::function<void()> informe;
  std::function<void()> diseno;
  std::function<void()> hojaFabricacion;
  std::function<void()> mediciones;
  std::function<void()> seleccionaImpresora;
  std::function<void()> hidraulico;
  std::function<void()> medidas;
  std::function<void()> contenido;
  std::function<void()> indice;
  std::function<void()> acercaDe;
  std::function<void()> advertencia;
  std::function<void()> memoria;
  /// The language in force changed: windows that are open write their texts anew.
  std::function<void()> renuevaTextos;
};

class FormaPrincipal : public QMainWindow {
  Q_OBJECT

 public:
  FormaPrincipal(Captura& c, const Entorno& entorno, QWidget* padre = nullptr);
  ~FormaPrincipal() override;

  void PonPantallas(Pantallas pantallas) { pantallas_ = std::move(pantallas); }

  /// Opens an Obra by its file; one that is open is closed first, unless it has unsaved edits.
  bool Abre(const QString& ruta);

  /// Opens the Obra of a draft, or begins a new one, and puts the draft on the screen. One that
  /// is only read takes it too: it is then saved as another.
  bool Recupera(const Borrador& b, bool deFichero);

  /// Tells in the status bar what needs no answer; it stays there until the Obra is closed.
  void Anuncia(const QString& texto);

  CapturaDatos& captura();
  PanelTramos& panel() { return *panel_; }
  QAction* accion(Orden orden) const { return acciones_.at(orden); }

  /// The page of the start as the settings have it.
  void RenuevaInicio();

  /// All texts in the language in force.
  void AplicaIdioma();

 public slots:
  void AbreConDialogo();
  void Nueva();
  bool Cierra();

 signals:
  /// The capture may have changed.
  void actualizada();

 protected:
  void closeEvent(QCloseEvent* suceso) override;
  void dragEnterEvent(QDragEnterEvent* suceso) override;
  void dropEvent(QDropEvent* suceso) override;
  void changeEvent(QEvent* suceso) override;

 private:
  struct Entrada {
    QAction* accion;
    int texto;
  };
  struct Menu {
    QMenu* menu;
    int texto;
    std::vector<QAction*> acciones;
  };

  Captura& c_;
  const Entorno& entorno_;
  Pantallas pantallas_;
  CapturaDatos* captura_ = nullptr;
  PaginaInicio* inicio_ = nullptr;
  QStackedWidget* centro_ = nullptr;
  QToolBar* barra_ = nullptr;
  MenuRecientes* recientes_ = nullptr;
  std::vector<Menu> menus_;
  std::vector<Entrada> entradas_;
  std::map<Orden, QAction*> acciones_;
  MenuVer* ver_ = nullptr;
  AvisoEstado* aviso_ = nullptr;
  Historia* historia_ = nullptr;
  PanelTramos* panel_ = nullptr;
  QDockWidget* marcoTramos_ = nullptr;
  QAction* deshacer_ = nullptr;
  QAction* rehacer_ = nullptr;
  BarraEstado* estado_ = nullptr;
  QString recuperado_;  // announcement of recovered work that is not yet saved
  int idiomaPuesto_ = 0;
  bool ocupada_ = false;  // an action is running: none other begins

  void CreaMenus();
  void CreaMenuEdicion();
  void CreaMenuTramos();
  void PonIdioma(int idioma);
  void CreaPanelTramos();
  void CreaBarra();
  QMenu* NuevoMenu(int texto);
  QAction* NuevaAccion(QMenu& menu, int texto, const QKeySequence& tecla,
                       const std::function<void()>& hace);
  QAction* NuevaAccion(QMenu& menu, Orden orden, int texto, const QKeySequence& tecla);
  void PonMnemonicos();
  void Ejecuta(Orden orden);
  void EjecutaDeVerdad(Orden orden);
  void Protege(const std::function<void()>& hace);
  void LanzaPantalla(const std::function<void()>& pantalla, bool dejaCampo);
  void GrabaCon(bool (*graba)(Captura&));
  bool DejaLaObra();
  bool AbreFichero(const QString& ruta);
  void Trae(const QString& ruta);
  void AbreOTrae(const QString& ruta);
  void AbreMuestra();
  void Actualiza();
  void ActualizaEstado();
  void DibujaIconos();
  void GuardaSesion(QSessionManager& sesion);
};

}  // namespace zorbin
