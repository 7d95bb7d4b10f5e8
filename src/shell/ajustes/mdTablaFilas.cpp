#include "shell/ajustes/mdTablaFilas.h"

#include <QButtonGroup>
#include <QGridLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>

#include "shell/piezas/mdQt.h"

namespace zorbin {

namespace {

constexpr std::array<const char*, 4> kNombres{"txArmCamisa", "txArmRefuerzo", "txArmExterior",
                                              "txArmTotal"};
constexpr int kCifras = 9;     // of an area in its field
constexpr int kOpacidad = 60;  // of the band, over 255
constexpr int kAireFilas = 1;  // [px]
constexpr int kAireColumnas = 12;
constexpr int kAltoFila = 8;  // beyond its text

// The unit under the name.
QString Cabeza(const std::string& texto) {
  return Rotulo(texto).simplified().replace(QStringLiteral(" ("), QStringLiteral("\n("));
}

std::array<QString, 4> Areas(const FilaAjuste& fila) {
  return {Q(fila.txArmCamisa), Q(fila.txArmRefuerzo), Q(fila.txArmExterior), Q(fila.txArmTotal)};
}

}  // namespace

TablaFilas::TablaFilas(QWidget* padre)
    : QWidget(padre), rejilla_(new QGridLayout(this)), obSeleccion_(new QButtonGroup(this)) {
  rejilla_->setContentsMargins(6, 0, 6, 0);
  rejilla_->setVerticalSpacing(kAireFilas);
  rejilla_->setHorizontalSpacing(kAireColumnas);
  rejilla_->setColumnStretch(0, 1);
  for (int columna = 0; columna < kColumnas; ++columna) {
    auto* cabeza = new QLabel(this);
    cabeza->setObjectName(QStringLiteral("lbCabeza%1").arg(columna));
    cabeza->setAlignment(Qt::AlignRight | Qt::AlignBottom);
    cabezas_[static_cast<std::size_t>(columna)] = cabeza;
    rejilla_->addWidget(cabeza, 0, columna + 1);
  }
  for (int fila = 0; fila < kFilasAjuste; ++fila) CreaFila(fila);
  connect(obSeleccion_, &QButtonGroup::idClicked, this, &TablaFilas::elegida);
}

void TablaFilas::CreaFila(int fila) {
  auto* opcion = new QRadioButton(this);
  opcion->setObjectName(QStringLiteral("obSeleccion%1").arg(fila));
  obSeleccion_->addButton(opcion, fila);
  rejilla_->addWidget(opcion, fila + 1, 0);
  rejilla_->setRowMinimumHeight(fila + 1, fontMetrics().height() + kAltoFila);
  for (int columna = 0; columna < kColumnas; ++columna) {
    const auto i = static_cast<std::size_t>(columna);
    const auto nombre = QLatin1String(kNombres[i]) + QString::number(fila);
    if (fila == kFilaDirecta && i < casillas_.size()) {
      auto* casilla = new CasillaNumero(this);
      casilla->setObjectName(nombre);
      casilla->setMinimumWidth(casilla->fontMetrics().horizontalAdvance('0') * kCifras +
                               casilla->sizeHint().height() / 2);
      casillas_[i] = casilla;
      rejilla_->addWidget(casilla, fila + 1, columna + 1);
      continue;
    }
    auto* celda = new QLabel(this);
    celda->setObjectName(nombre);
    celda->setTextFormat(Qt::PlainText);
    celda->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    // Its figures under those of the fields.
    celda->setContentsMargins(0, 2, 4, 2);
    celdas_[static_cast<std::size_t>(fila)][i] = celda;
    rejilla_->addWidget(celda, fila + 1, columna + 1);
  }
}

QRadioButton* TablaFilas::Opcion(int fila) const {
  return static_cast<QRadioButton*>(obSeleccion_->button(fila));
}

void TablaFilas::Muestra(const ModeloAjustes& modelo,
                         const std::array<QString, kFilasAjuste>& sinRotulo) {
  for (std::size_t i = 0; i < cabezas_.size(); ++i) {
    cabezas_[i]->setText(Cabeza(modelo.cabezas[i]));
  }
  for (std::size_t fila = 0; fila < modelo.filas.size(); ++fila) {
    const auto& f = modelo.filas[fila];
    const auto areas = Areas(f);
    auto* opcion = Opcion(static_cast<int>(fila));
    opcion->setText(Rotulo(f.rotulo));
    opcion->setEnabled(f.habilitada);
    QString nombre = f.rotulo.empty() ? sinRotulo[fila] : Rotulo(f.rotulo);
    for (std::size_t i = 0; i < areas.size(); ++i) {
      nombre += QStringLiteral("; %1 %2").arg(Rotulo(modelo.cabezas[i]).simplified(), areas[i]);
      if (celdas_[fila][i] == nullptr) continue;
      celdas_[fila][i]->setText(areas[i]);
      celdas_[fila][i]->setEnabled(f.utilizable);
    }
    opcion->setAccessibleName(nombre);
  }
  Opcion(modelo.opcion)->setChecked(true);
  update();
}

QRect TablaFilas::Banda(int fila) const {
  const QRect celda = rejilla_->cellRect(fila + 1, 0);
  return {0, celda.top(), width(), celda.height()};
}

void TablaFilas::paintEvent(QPaintEvent*) {
  QColor color = palette().color(QPalette::Highlight);
  color.setAlpha(kOpacidad);
  QPainter(this).fillRect(Banda(obSeleccion_->checkedId()), color);
}

void TablaFilas::mousePressEvent(QMouseEvent* suceso) {
  for (int fila = 0; fila < kFilasAjuste; ++fila) {
    auto* opcion = Opcion(fila);
    if (!opcion->isEnabled() || !Banda(fila).contains(suceso->position().toPoint())) continue;
    opcion->setFocus(Qt::MouseFocusReason);
    opcion->click();
    return;
  }
  QWidget::mousePressEvent(suceso);
}

}  // namespace zorbin
