#include "shell/resultados/frCompara.h"

#include <QHeaderView>
#include <QTableWidget>
#include <QVBoxLayout>

#include "base/mdTextos.h"
#include "base/textos.h"
#include "shell/piezas/mdQt.h"

namespace zorbin {

namespace {

QString NombreDe(const CasoDibujado& c, const PalabrasDibujo& w) {
  return Q(w.T(txt::ResCol[0]) + " " + TextoEntero(c.Datos().NumeroTramo) + "\n" +
           w.CasoEnLetra(c.fila));
}

}  // namespace

frCompara::frCompara(const Entorno& entorno, const CasoDibujado& a, const CasoDibujado& b,
                     EstiloNumeros estilo, QWidget* padre)
    : QDialog(padre) {
  const PalabrasDibujo w(entorno.textos, estilo);
  setWindowTitle(Q(w.T(txt::ResComparar)));
  auto* tabla = new QTableWidget(this);
  tabla->setObjectName(QStringLiteral("tablaComparada"));
  tabla->setEditTriggers(QAbstractItemView::NoEditTriggers);
  tabla->setColumnCount(4);
  tabla->setHorizontalHeaderLabels({QString{}, NombreDe(a, w), NombreDe(b, w), QString{}});
  tabla->verticalHeader()->hide();
  QFont negrita = tabla->font();
  negrita.setBold(true);
  std::string grupo;
  const auto anade = [&](const QStringList& celdas, bool destacada) {
    const int fila = tabla->rowCount();
    tabla->insertRow(fila);
    for (int i = 0; i < celdas.size(); ++i) {
      auto* celda = new QTableWidgetItem(celdas[i]);
      if (destacada) celda->setFont(negrita);
      tabla->setItem(fila, i, celda);
    }
  };
  for (const auto& f : Compara(DetalleDe(a, w), DetalleDe(b, w))) {
    if (f.grupo != grupo) {
      grupo = f.grupo;
      anade({Q(grupo).toUpper()}, true);
      tabla->setSpan(tabla->rowCount() - 1, 0, 1, 4);
    }
    anade({Q(f.nombre), Q(f.a), Q(f.b), f.Difiere() ? QStringLiteral("≠") : QString{}},
          f.Difiere());
  }
  tabla->resizeColumnsToContents();
  tabla->horizontalHeader()->setSectionResizeMode(1, QHeaderView::Stretch);
  tabla->horizontalHeader()->setSectionResizeMode(2, QHeaderView::Stretch);
  auto* filas = new QVBoxLayout(this);
  filas->addWidget(tabla);
  resize(860, 620);
}

}  // namespace zorbin
