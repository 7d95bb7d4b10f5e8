// The capture screen `CapturaDatos`: three pages drawn over the model of the capture. It decides
// nothing: every moment of a field goes to the rules, and what they left in the model is shown.
#pragma once

#include <QMap>
#include <QWidget>
#include <array>
#include <functional>
#include <memory>

#include "sesion/captura/mdCaptura.h"
#include "shell/captura/mdCampoPantalla.h"
#include "shell/captura/mdPaginasCaptura.h"
#include "shell/piezas/mdEntorno.h"
#include "shell/piezas/mdVigilanteFoco.h"

class QLabel;
class QPushButton;
class QToolButton;

namespace zorbin {

class AvisosPagina;
class FaltasPagina;
class Pestanas;

class CapturaDatos : public QWidget {
  Q_OBJECT

 public:
  CapturaDatos(Captura& c, const Entorno& entorno, QWidget* padre = nullptr);
  ~CapturaDatos() override;

  /// Brings the screen to what the model says.
  void Refresca();

  /// Every text that is not the model's, in the language in force; and the screen.
  void RenuevaTextos();

  /// Runs an action on the capture and shows what it left, the focus where the model has it. The
  /// field in hand is left first, and where it refuses nothing is done, unless the action
  /// abandons what was typed.
  /// @return whether the action ran
  bool Hace(const std::function<void()>& accion, bool abandona = false);

  CampoPantalla& campo(Ed id) const { return *campos_[static_cast<std::size_t>(id)]; }

 signals:
  /// The model changed: menus, title and status follow it.
  void cambiada();
  /// A button was pressed.
  void pedida(zorbin::Orden orden);

 protected:
  void changeEvent(QEvent* suceso) override;
  void keyPressEvent(QKeyEvent* suceso) override;

 private:
  struct Boton {
    QPushButton* widget;
    Orden orden;
    int texto;
  };

  Captura& c_;
  const Entorno& entorno_;
  PaginasCaptura::Campos campos_{};
  PaginasCaptura* paginas_ = nullptr;
  QMap<QWidget*, Ed> porWidget_;
  std::vector<Boton> botones_;
  std::vector<Rotulado> rotulados_;  // of what is no page
  VigilanteFoco* vigilante_ = nullptr;
  bool refrescando_ = false;

  QLabel* titulo_ = nullptr;
  QToolButton* cierre_ = nullptr;
  AvisosPagina* avisos_ = nullptr;
  FaltasPagina* faltas_ = nullptr;
  Pestanas* TabPrincipal_ = nullptr;
  QWidget* barraObra_ = nullptr;
  QWidget* barraTramo_ = nullptr;

  void CreaCampos();
  void CreaPaginas();
  QWidget* CreaCabecera();
  QWidget* CreaFaltas();
  QWidget* CreaAvisos();
  QWidget* CreaBotones();
  void CreaBoton(QWidget& barra, Orden orden, int texto);
  void OrdenaTabulador();
  void Enlaza(CampoPantalla& campo);
  void EligeEntradaDe(CampoPantalla& campo, const QString& texto);
  void EnlazaPestanas();
  void PideAyuda();

  QWidget* Entra(QWidget* widget);
  QWidget* Sale(QWidget* widget);
  QWidget* Destino(Ed campo) const;
  void TrasAccion();
  MarcaCampo MarcaDe(Ed campo) const;
  Aspecto AspectoDe(Ed campo) const;
  QString PorqueDe(MarcaCampo marca, Ed campo) const;
};

}  // namespace zorbin
