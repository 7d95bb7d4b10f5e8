// Watches the focus of a screen whose fields may refuse to be left. The rule of a field runs once,
// when the focus really goes to another place of the same screen: not for a message box, another
// window or a menu, and not on the way to a button that cancels.
#pragma once

#include <QObject>
#include <QPointer>
#include <QSet>
#include <functional>

class QWidget;

namespace zorbin {

class VigilanteFoco : public QObject {
  Q_OBJECT

 public:
  /// What the moments of a field do. Both say which widget has to have the focus afterwards; null:
  /// the one that was getting it.
  struct Reglas {
    std::function<QWidget*(QWidget* campo)> entra;
    std::function<QWidget*(QWidget* campo)> sale;
  };

  VigilanteFoco(QWidget& pantalla, Reglas reglas);

  /// While it lives, the focus goes where it likes and no rule runs.
  class Pausa {
   public:
    explicit Pausa(VigilanteFoco& vigilante) : vigilante_(vigilante), estaba_(vigilante.ocupado_) {
      vigilante_.ocupado_ = true;
    }
    ~Pausa() { vigilante_.ocupado_ = estaba_; }
    Pausa(const Pausa&) = delete;
    Pausa& operator=(const Pausa&) = delete;

   private:
    VigilanteFoco& vigilante_;
    bool estaba_;
  };

  /// A field: a widget whose children count as itself. Enter goes on to the next field.
  void Vigila(QWidget& campo);
  /// Going to this widget never leaves the field in hand.
  void Exime(QWidget& widget);

  /// Enter does this, instead of going on to the next field.
  void PonAceptar(std::function<void()> acepta) { acepta_ = std::move(acepta); }

  QWidget* EnMano() const { return enMano_; }

  /// Leaves the field in hand, as a button does before it acts. @return whether it may act
  bool DejaCampo();
  /// Drops the field in hand: its rule does not run.
  void Olvida() { enMano_ = nullptr; }
  /// Gives a field the focus and enters it; the rule of the field in hand does not run.
  void VaA(QWidget& campo);

 protected:
  bool eventFilter(QObject* objeto, QEvent* suceso) override;

 private:
  QWidget& pantalla_;
  Reglas reglas_;
  std::function<void()> acepta_;
  QSet<QWidget*> campos_;
  QSet<QWidget*> exentos_;
  QPointer<QWidget> enMano_;
  bool ocupado_ = false;

  void FocoCambia(QWidget* ahora);
  bool SaleDelCampo();
  void Toma(QWidget* campo);
  QWidget* CampoDe(QWidget* widget) const;
  bool Es(const QSet<QWidget*>& widgets, QWidget* widget) const;
};

}  // namespace zorbin
