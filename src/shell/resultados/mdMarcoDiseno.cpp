#include "shell/resultados/mdMarcoDiseno.h"

#include <QCloseEvent>
#include <QMainWindow>
#include <QTimer>
#include <algorithm>

#include "base/textos.h"
#include "shell/piezas/mdQt.h"

namespace zorbin {

namespace {

// At first: a part of the window, so that the form keeps two columns in a narrow one.
constexpr double kParte = 0.27;
constexpr int kMenorAncho = 370, kMayorAncho = 560;  // [px]

}  // namespace

MarcoDiseno::MarcoDiseno(const Entorno& entorno, QMainWindow& ventana, QWidget* panel)
    : QDockWidget(&ventana), entorno_(entorno), ventana_(ventana) {
  setObjectName(QStringLiteral("marcoDiseno"));
  setWidget(panel);
  setAllowedAreas(Qt::LeftDockWidgetArea | Qt::RightDockWidgetArea);
  ventana.addDockWidget(Qt::RightDockWidgetArea, this);
  sinAncho_ = !ventana.restoreDockWidget(this);
  hide();
  ventana.installEventFilter(this);
  RenuevaTextos();
}

void MarcoDiseno::RenuevaTextos() {
  setWindowTitle(Q(entorno_.textos.Texto(txt::ResTituloDiseno)));
}

void MarcoDiseno::PonHayObra(bool hay) {
  if (hay == hayObra_) return;
  hayObra_ = hay;
  Aplica();
}

QString MarcoDiseno::Clave() const {
  return conSitio_ ? QStringLiteral("Diseno/Ancho") : QStringLiteral("Diseno/Estrecho");
}

bool MarcoDiseno::LoQuiere() const {
  return entorno_.preferencias.Valor(Clave(), conSitio_).toBool();
}

void MarcoDiseno::Quiere(bool si) {
  entorno_.preferencias.PonValor(Clave(), si);
  Aplica();
}

void MarcoDiseno::Alterna() {
  Quiere(!isVisible());
}

void MarcoDiseno::Aplica() {
  setVisible(hayObra_ && LoQuiere());
  if (!isVisible() || !sinAncho_) return;
  sinAncho_ = false;
  QTimer::singleShot(0, this, [this] {
    const int ancho =
        std::clamp(static_cast<int>(ventana_.width() * kParte), kMenorAncho, kMayorAncho);
    ventana_.resizeDocks({this}, {ancho}, Qt::Horizontal);
  });
}

void MarcoDiseno::closeEvent(QCloseEvent* suceso) {
  suceso->ignore();
  Quiere(false);
}

bool MarcoDiseno::eventFilter(QObject* quien, QEvent* suceso) {
  const bool cambia = suceso->type() == QEvent::Resize || suceso->type() == QEvent::Show;
  if (quien == &ventana_ && cambia) {
    const bool conSitio = ventana_.width() >= kAnchoConSitio;
    if (conSitio != conSitio_) {
      conSitio_ = conSitio;
      Aplica();
    }
  }
  return QDockWidget::eventFilter(quien, suceso);
}

}  // namespace zorbin
