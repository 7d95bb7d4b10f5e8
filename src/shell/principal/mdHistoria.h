// What was done and can be undone, of the Obra that is open.
#pragma once

#include <QObject>
#include <QUndoStack>
#include <functional>
#include <optional>
#include <string>

#include "sesion/captura/mdCaptura.h"

class QAction;

namespace zorbin {

class Historia : public QObject {
  Q_OBJECT

 public:
  /// @param hace  runs an action on the capture once the field in hand has been left
  Historia(Captura& c, std::function<void(const std::function<void()>&)> hace);
  ~Historia() override;

  void Deshace();
  void Rehace();
  /// Another Obra: nothing of before can be undone.
  void Olvida();

  /// The entries of the menu, with what they would undo or do again.
  void Refresca(QAction& deshacer, QAction& rehacer) const;

  /// What would be undone or done again; none for nothing.
  std::optional<std::string> PorDeshacer() const;
  std::optional<std::string> PorRehacer() const;

 private:
  Captura& c_;
  std::function<void(const std::function<void()>&)> hace_;
  QUndoStack pila_;
};

}  // namespace zorbin
