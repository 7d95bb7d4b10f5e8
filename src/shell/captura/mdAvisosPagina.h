// The notices of the page in front, at its foot. What is told is no refusal, and asks for no
// answer.
#pragma once

#include <QLabel>
#include <vector>

#include "sesion/captura/mdPlausibilidad.h"

namespace zorbin {

class AvisosPagina : public QLabel {
  Q_OBJECT

 public:
  explicit AvisosPagina(QWidget* padre = nullptr);

  void Refresca(const Captura& c);

 signals:
  /// The remedy that a notice offers is taken.
  void remedioPedido(const AvisoDeCampo& aviso);

 private:
  std::vector<AvisoDeCampo> avisos_;
};

}  // namespace zorbin
