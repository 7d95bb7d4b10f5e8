#include "shell/principal/mdHistoria.h"

#include <QAction>
#include <QKeySequence>
#include <QUndoCommand>

#include "base/textos.h"
#include "sesion/captura/mdCiclo.h"
#include "shell/piezas/mdQt.h"

namespace zorbin {

namespace {

constexpr int kPasos = 500;  // kept; each shares with the others what it did not change

class Hecho : public QUndoCommand {
 public:
  Hecho(Captura& c, PasoHecho paso) : QUndoCommand(Q(paso.nombre)), c_(c), paso_(std::move(paso)) {}

  void undo() override { zorbin::Deshace(c_, paso_); }
  // A step comes here when it has been done.
  void redo() override {
    if (hecha_) zorbin::Rehace(c_, paso_);
    hecha_ = true;
  }

 private:
  Captura& c_;
  PasoHecho paso_;
  bool hecha_ = false;
};

std::optional<std::string> Nombre(bool puede, const QString& texto) {
  if (!puede) return std::nullopt;
  return S(texto);
}

}  // namespace

Historia::Historia(Captura& c, std::function<void(const std::function<void()>&)> hace)
    : c_(c), hace_(std::move(hace)) {
  pila_.setUndoLimit(kPasos);
  c_.alDarPaso = [this](PasoHecho paso) { pila_.push(new Hecho(c_, std::move(paso))); };
}

Historia::~Historia() {
  c_.alDarPaso = {};
}

void Historia::Deshace() {
  hace_([this] { pila_.undo(); });
}

void Historia::Rehace() {
  hace_([this] { pila_.redo(); });
}

void Historia::Olvida() {
  pila_.clear();
}

std::optional<std::string> Historia::PorDeshacer() const {
  return Nombre(pila_.canUndo(), pila_.undoText());
}

std::optional<std::string> Historia::PorRehacer() const {
  return Nombre(pila_.canRedo(), pila_.redoText());
}

void Historia::Refresca(QAction& deshacer, QAction& rehacer) const {
  const auto pon = [this](QAction& accion, int texto, const std::optional<std::string>& nombre) {
    accion.setEnabled(c_.ObraCargada && nombre.has_value());
    const QString verbo = Q(c_.textos.Texto(texto));
    accion.setText(nombre ? verbo + QStringLiteral(": ") +
                                Q(*nombre).replace(QLatin1Char('&'), QStringLiteral("&&"))
                          : verbo);
    accion.setIconText(verbo);
    accion.setToolTip(Consejo(accion.text()) + QStringLiteral(" (") +
                      accion.shortcut().toString(QKeySequence::NativeText) + ')');
  };
  pon(deshacer, txt::MenuDeshacer, PorDeshacer());
  pon(rehacer, txt::MenuRehacer, PorRehacer());
}

}  // namespace zorbin
