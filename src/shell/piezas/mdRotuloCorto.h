// A label of one line that takes the room there is: what does not fit is left out in the middle.
#pragma once

#include <QLabel>

namespace zorbin {

class RotuloCorto : public QLabel {
  Q_OBJECT

 public:
  explicit RotuloCorto(QWidget* padre);

 protected:
  void paintEvent(QPaintEvent* suceso) override;
};

}  // namespace zorbin
