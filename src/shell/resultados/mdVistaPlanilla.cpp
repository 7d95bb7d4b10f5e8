#include "shell/resultados/mdVistaPlanilla.h"

#include <QHeaderView>
#include <QLabel>
#include <QTableWidget>
#include <QVBoxLayout>

#include "shell/piezas/mdQt.h"

namespace zorbin {

namespace {

QTableWidgetItem& Celda(QTableWidget& tabla, int fila, int columna) {
  auto* item = tabla.item(fila, columna);
  if (item == nullptr) {
    item = new QTableWidgetItem;
    tabla.setItem(fila, columna, item);
  }
  return *item;
}

}  // namespace

VistaPlanilla::VistaPlanilla(QWidget* padre)
    : QWidget(padre), tabla_(new QTableWidget(this)), notas_(new QLabel(this)) {
  tabla_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  tabla_->verticalHeader()->hide();
  notas_->setTextFormat(Qt::PlainText);
  notas_->setWordWrap(true);
  auto* filas = new QVBoxLayout(this);
  filas->addWidget(tabla_, 1);
  filas->addWidget(notas_);
}

void VistaPlanilla::Pon(const Planilla& planilla, char separador) {
  const int columnas = static_cast<int>(planilla.columnas.size());
  const bool otras = tabla_->columnCount() != columnas || tabla_->rowCount() == 0;
  tabla_->setAccessibleName(Q(planilla.titulo));
  tabla_->setColumnCount(columnas);
  QStringList titulos;
  for (const auto& c : planilla.columnas) {
    titulos << Q(c.unidad.empty() ? c.titulo : c.titulo + "\n" + c.unidad);
  }
  tabla_->setHorizontalHeaderLabels(titulos);
  tabla_->setRowCount(static_cast<int>(planilla.filas.size()));
  for (int f = 0; f < tabla_->rowCount(); ++f) {
    const auto& fila = planilla.filas[static_cast<std::size_t>(f)];
    for (int c = 0; c < columnas; ++c) {
      const auto i = static_cast<std::size_t>(c);
      auto& item = Celda(*tabla_, f, c);
      item.setText(i < fila.celdas.size() ? Q(Mostrada(fila.celdas[i], separador)) : QString());
      item.setTextAlignment((planilla.columnas[i].numeros ? Qt::AlignRight : Qt::AlignLeft) |
                            Qt::AlignVCenter);
      QFont letra = tabla_->font();
      letra.setBold(fila.total);
      item.setFont(letra);
    }
  }
  if (otras) tabla_->resizeColumnsToContents();
  QStringList notas;
  for (const auto& nota : planilla.notas) notas << Q(nota);
  notas_->setText(notas.join('\n'));
}

}  // namespace zorbin
