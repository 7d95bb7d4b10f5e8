// What the windows of the two calculators have in common: numeric fields bound to their rules,
// buttons that leave the field in hand before they act, help, a place that is remembered.
#pragma once

#include <QDialog>
#include <functional>
#include <initializer_list>
#include <optional>
#include <string>
#include <vector>

#include "sesion/calculadoras/mdCampoNumero.h"
#include "shell/piezas/mdAreaResultado.h"
#include "shell/piezas/mdCasillaNumero.h"
#include "shell/piezas/mdEntorno.h"
#include "shell/piezas/mdVigilanteFoco.h"

class QLabel;
class QLayout;
class QPushButton;

namespace zorbin {

class PantallaCalculadora : public QDialog {
  Q_OBJECT

 protected:
  /// @param nombre  of the window among the settings
  /// @param ancla   of its page in the manual
  PantallaCalculadora(Entorno& entorno, const QString& nombre, const QString& ancla,
                      QWidget* padre);
  ~PantallaCalculadora() override;

  /// A field and its moments.
  struct Campo {
    CasillaNumero* casilla = nullptr;
    const CampoNumero* campo = nullptr;  // what it shows
    std::function<void()> entra;
    std::function<void(std::string)> cambia;
    std::function<std::optional<AvisoCampo>()> sale;
  };

  Entorno& entorno_;

  const std::string& T(int n) const { return entorno_.textos.Texto(n); }

  CasillaNumero* CreaCasilla(const QString& nombre);
  AreaResultado* CreaArea(const QString& nombre, int columnas, int lineas);
  QPushButton* CreaBoton(const QString& nombre, std::function<void()> accion);
  /// The buttons with the one that closes, and before them the notice that the data have changed
  /// since the result.
  QLayout* FilaDeBotones(std::initializer_list<QPushButton*> botones);

  /// @param calcula  caption of the button that calculates
  void RenuevaResultado(const QString& calcula);
  void MuestraResultado(const std::string& texto);
  void MuestraAtrasado(bool atrasado);

  void Une(Campo campo);
  void MuestraCampos();
  /// An option: leaving a field for it does not run the rule of the field. Enter goes on from it.
  void UneOpcion(QWidget& opcion);

  /// Prints the sheets of a result under their title.
  void ImprimeHojas(const QString& titulo, const std::function<void(Papel&)>& escribe);

  void Dice(const AvisoCampo& aviso);
  void VaA(CasillaNumero& casilla) { vigilante_.VaA(casilla); }

  /// Makes room for texts that have changed.
  void Recoloca();

  /// The window is complete: it takes its place, or the size that shows all of it.
  void TomaSuSitio();

  void hideEvent(QHideEvent* suceso) override;

 private:
  QString nombre_;
  VigilanteFoco vigilante_;
  std::vector<Campo> campos_;
  AreaResultado* area_ = nullptr;
  QLabel* lbAtrasado_ = nullptr;
  QPushButton* btCerrar_ = nullptr;

  const Campo* CampoDe(const QWidget* casilla) const;
  static void Muestra(const Campo& campo);
  QWidget* AlEntrar(QWidget* casilla);
  QWidget* AlSalir(QWidget* casilla);
  void Actua(const std::function<void()>& accion);
  void GuardaSitio() { entorno_.preferencias.GuardaVentana(nombre_, *this); }
};

}  // namespace zorbin
