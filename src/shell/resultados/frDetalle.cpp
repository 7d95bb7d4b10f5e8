#include "shell/resultados/frDetalle.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>
#include <QTableWidget>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "base/mdTextos.h"
#include "base/textos.h"
#include "calculo/anillo/mdAnilloCaso.h"
#include "listados/dibujos/mdDibujoAnillo.h"
#include "listados/dibujos/mdDibujoTubo.h"
#include "listados/dibujos/mdDibujoZanja.h"
#include "listados/dibujos/mdGraficosTramo.h"
#include "shell/dibujos/mdVistaLamina.h"
#include "shell/informe/frPasos.h"
#include "shell/piezas/mdQt.h"
#include "shell/resultados/mdPiezasDiseno.h"
#include "shell/resultados/mdVariosTramos.h"

namespace zorbin {

namespace {

constexpr QSize kMenorDibujo{160, 160};

bool PideMomentos(QueGrafico que) {
  return que == QueGrafico::Momentos;
}

}  // namespace

PanelDetalle::PanelDetalle(const Entorno& entorno, QWidget* padre)
    : QTabWidget(padre), entorno_(entorno) {
  setObjectName(QStringLiteral("panelDetalle"));
  setDocumentMode(true);
  zanja_ = new VistaLamina(entorno, kMenorDibujo, this);
  todo_ = new QTreeWidget(this);
  todo_->setColumnCount(2);
  todo_->setHeaderHidden(true);
  todo_->setSelectionMode(QAbstractItemView::ExtendedSelection);
  auto* seccion = CreaSeccion();
  auto* grafico = CreaGrafico();
  auto* esfuerzos = CreaEsfuerzos();
  auto* comprobaciones = CreaComprobaciones();
  for (QWidget* w : {grafico, seccion, static_cast<QWidget*>(zanja_), esfuerzos, comprobaciones,
                     static_cast<QWidget*>(todo_)}) {
    addTab(w, QString{});
  }
  varios_ = new PanelVariosTramos(entorno, this);
  addTab(varios_, QString{});
  setUsesScrollButtons(true);
  RenuevaTextos();
}

// Along the wall each bar is seen; across, where they stand.
QWidget* PanelDetalle::CreaSeccion() {
  auto* pagina = new QWidget(this);
  seccion_ = new VistaLamina(entorno_, kMenorDibujo, pagina);
  pared_ = new VistaLamina(entorno_, kMenorDibujo, pagina);
  auto* filas = new QVBoxLayout(pagina);
  filas->setContentsMargins(0, 0, 0, 0);
  filas->setSpacing(0);
  filas->addWidget(seccion_, 3);
  filas->addWidget(pared_, 2);
  return pagina;
}

QWidget* PanelDetalle::CreaGrafico() {
  auto* pagina = new QWidget(this);
  que_ = new QComboBox(pagina);
  que_->setObjectName(QStringLiteral("cbGrafico"));
  eje_ = new QComboBox(pagina);
  eje_->setObjectName(QStringLiteral("cbEje"));
  for (auto* combo : {que_, eje_}) {
    combo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    connect(combo, &QComboBox::activated, this, &PanelDetalle::MuestraGrafico);
  }
  grafico_ = new VistaLamina(entorno_, kMenorDibujo, pagina);
  valores_ = new QLabel(pagina);
  valores_->setTextFormat(Qt::PlainText);
  auto* arriba = new QHBoxLayout;
  arriba->addWidget(que_, 1);
  arriba->addWidget(eje_, 1);
  auto* filas = new QVBoxLayout(pagina);
  filas->addLayout(arriba);
  filas->addWidget(grafico_, 1);
  filas->addWidget(valores_);
  connect(grafico_, &VistaLamina::apuntado, valores_, &QLabel::setText);
  grafico_->PonCuenta([this](const LaminaConEjes& l, Xy sitio) -> QString {
    return l.ejes.Contiene(sitio) ? Q(ValoresEn(l.ejes, sitio, Palabras())) : QString{};
  });
  return pagina;
}

QWidget* PanelDetalle::CreaEsfuerzos() {
  auto* pagina = new QWidget(this);
  hipotesis_ = new QComboBox(pagina);
  hipotesis_->setObjectName(QStringLiteral("cbHipotesisDetalle"));
  anillo_ = new VistaLamina(entorno_, kMenorDibujo, pagina);
  tensiones_ = new VistaLamina(entorno_, kMenorDibujo, pagina);
  auto* filas = new QVBoxLayout(pagina);
  filas->addWidget(hipotesis_);
  filas->addWidget(anillo_, 1);
  filas->addWidget(tensiones_, 1);
  connect(hipotesis_, &QComboBox::activated, this, &PanelDetalle::MuestraEsfuerzos);
  return pagina;
}

QWidget* PanelDetalle::CreaComprobaciones() {
  auto* pagina = new QWidget(this);
  matriz_ = new QTableWidget(pagina);
  matriz_->setObjectName(QStringLiteral("matriz"));
  matriz_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  comprobaciones_ = new QLabel(pagina);
  comprobaciones_->setTextFormat(Qt::PlainText);
  comprobaciones_->setWordWrap(true);
  pasos_ = new QPushButton(pagina);
  pasos_->setObjectName(QStringLiteral("btPasos"));
  connect(pasos_, &QPushButton::clicked, this, [this] { MuestraPasos(); });
  auto* filas = new QVBoxLayout(pagina);
  filas->addWidget(matriz_, 1);
  filas->addWidget(comprobaciones_);
  filas->addWidget(pasos_);
  connect(matriz_, &QTableWidget::currentCellChanged, this, [this](int fila, int columna) {
    const auto* celda = matriz_->item(fila, columna);
    comprobaciones_->setText(celda == nullptr ? QString{} : celda->data(Qt::UserRole).toString());
  });
  return pagina;
}

void PanelDetalle::RenuevaTextos() {
  for (int i = 0; i < indexOf(varios_); ++i) {
    setTabText(i, Q(entorno_.textos.Texto(txt::ResPestanas[static_cast<std::size_t>(i)])));
  }
  setTabText(indexOf(varios_), Q(entorno_.textos.Texto(txt::ResVariosTramos)));
  varios_->RenuevaTextos();
  pasos_->setText(Rotulo(entorno_.textos.Texto(txt::InfPasoAPaso)));
  LlenaListas();
  Muestra();
}

void PanelDetalle::MuestraPasos() {
  if (!caso_) return;
  const auto caso = caso_;
  frPasos(entorno_, caso->tramo, caso->fila, estilo_, this).exec();
}

// The stresses through the wall are of a Caso, and stand with its forces.
void PanelDetalle::LlenaListas() {
  const auto w = Palabras();
  const int que = std::max(0, que_->currentIndex());
  que_->clear();
  for (int i = 0; i < static_cast<int>(QueGrafico::Tensiones); ++i) {
    que_->addItem(Q(w.T(txt::DibGrafico[static_cast<std::size_t>(i)])));
  }
  que_->setCurrentIndex(que);
  const int eje = eje_->currentIndex();
  eje_->clear();
  for (const auto e : {EjeDeGrafico::Altura, EjeDeGrafico::Presion}) {
    eje_->addItem(Q(TituloEje(e, w)));
  }
  eje_->setCurrentIndex(eje < 0 ? 1 : eje);
}

void PanelDetalle::Pon(std::shared_ptr<const CasoConTramo> caso, EstiloNumeros estilo) {
  const bool otroSistema = estilo.si != estilo_.si;
  caso_ = std::move(caso);
  estilo_ = estilo;
  if (otroSistema) LlenaListas();
  Muestra();
}

void PanelDetalle::Muestra() {
  for (int i = 0; i < indexOf(varios_); ++i) widget(i)->setEnabled(caso_ != nullptr);
  if (caso_ == nullptr) {
    for (auto* v : {grafico_, seccion_, pared_, zanja_, anillo_, tensiones_}) v->Pon({});
    todo_->clear();
    matriz_->setRowCount(0);
    comprobaciones_->clear();
    return;
  }
  const auto w = Palabras();
  seccion_->Pon([caso = caso_, w](const HojaDibujo& hoja) {
    return LaminaConEjes{DibujaTransversal(caso->Dibujado(), w, hoja), {}};
  });
  pared_->Pon([caso = caso_, w](const HojaDibujo& hoja) {
    return LaminaConEjes{DibujaPared(caso->Dibujado(), w, hoja), {}};
  });
  zanja_->Pon([caso = caso_, w](const HojaDibujo& hoja) {
    return LaminaConEjes{DibujaZanja(caso->Dibujado(), w, hoja), {}};
  });
  hipotesis_->clear();
  for (int h = 1; h <= CuentaHipotesis(caso_->tramo.datos); ++h) {
    hipotesis_->addItem(Q(TextoEntero(h) + " · " + w.Hipotesis(caso_->caso.EsArmado(), h)));
  }
  hipotesis_->setCurrentIndex(std::max(1, HipotesisQueRige(caso_->tramo.datos, caso_->fila)) - 1);
  MuestraEsfuerzos();
  MuestraMatriz();
  MuestraTodo();
  MuestraGrafico();
}

// ---------------------------------------------------------------------------------------------
// Charts

void PanelDetalle::MuestraGrafico() {
  if (caso_ == nullptr) return;
  eje_->setEnabled(static_cast<QueGrafico>(que_->currentIndex()) != QueGrafico::Cargas);
  PideMalla();
}

void PanelDetalle::PideMalla() {
  const auto numero = ++numero_;
  const auto que = static_cast<QueGrafico>(que_->currentIndex());
  const auto eje = static_cast<EjeDeGrafico>(que == QueGrafico::Cargas ? 0 : eje_->currentIndex());
  faena_.Pide([this, numero, que, eje, caso = caso_](const UltimaFaena::Sigue& sigue) {
    std::shared_ptr<const Malla> malla;
    try {
      const auto& datos = caso->tramo.datos;
      auto m = CalculaMalla(datos, EjesDelGrafico(datos, eje), PideMomentos(que), sigue);
      if (!m.entera) return;
      malla = std::make_shared<const Malla>(std::move(m));
    } catch (const std::exception&) {  // of such data there is no chart
    }
    QMetaObject::invokeMethod(
        this,
        [this, numero, malla] {
          if (numero != numero_) return;
          malla_ = malla;
          PintaGrafico();
        },
        Qt::QueuedConnection);
  });
}

void PanelDetalle::PintaGrafico() {
  if (malla_ == nullptr || caso_ == nullptr) return grafico_->Pon({});
  const auto que = static_cast<QueGrafico>(que_->currentIndex());
  const auto eje = static_cast<EjeDeGrafico>(que == QueGrafico::Cargas ? 0 : eje_->currentIndex());
  grafico_->Pon([que, eje, malla = malla_, caso = caso_, w = Palabras()](const HojaDibujo& hoja) {
    return DibujaGraficoTramo(que, eje, caso->tramo.datos, *malla, w, hoja);
  });
}

// ---------------------------------------------------------------------------------------------
// Forces, checks, values

void PanelDetalle::MuestraEsfuerzos() {
  if (caso_ == nullptr) return;
  const auto w = Palabras();
  const int h = hipotesis_->currentIndex() + 1;
  anillo_->Pon([caso = caso_, w, h](const HojaDibujo& hoja) {
    return LaminaConEjes{DibujaAnillo(caso->Dibujado(), h, w, hoja), {}};
  });
  tensiones_->setVisible(!caso_->caso.EsArmado());
  if (caso_->caso.EsArmado()) return;
  tensiones_->Pon([caso = caso_, w, h](const HojaDibujo& hoja) {
    return DibujaTensiones(caso->Dibujado(), h, w, hoja);
  });
}

void PanelDetalle::MuestraMatriz() {
  const auto w = Palabras();
  const auto caso = caso_->Dibujado();
  const auto filas = MatrizDe(caso, w);
  matriz_->clear();
  matriz_->setRowCount(static_cast<int>(filas.size()));
  matriz_->setColumnCount(kColumnasMatriz);
  QStringList cabezas, nombres;
  for (int i = 0; i < kColumnasMatriz; ++i) cabezas += Q(CabezaMatriz(i, w));
  for (int i = 0; i < static_cast<int>(filas.size()); ++i) {
    const auto& f = filas[static_cast<std::size_t>(i)];
    nombres +=
        f.hipotesis == 0
            ? Q(w.T(txt::ResDelCaso))
            : Q(TextoEntero(f.hipotesis) + " · " + w.Hipotesis(caso.caso.EsArmado(), f.hipotesis));
    for (int j = 0; j < kColumnasMatriz; ++j) {
      const auto& celda = f.celdas[static_cast<std::size_t>(j)];
      if (!celda.uso) continue;
      const bool cumple = *celda.uso <= kUsoCumple;
      const auto veredicto = cumple ? Veredicto::Cumple : Veredicto::NoCumple;
      auto* item = new QTableWidgetItem(SignoVeredicto(veredicto) + QStringLiteral(" ") +
                                        Q(TextoUso(*celda.uso, w)));
      item->setForeground(ColorVeredicto(veredicto, palette()));
      item->setTextAlignment(Qt::AlignCenter);
      QStringList dichas;
      for (const auto& c : celda.comprobaciones) dichas += Q(c);
      item->setData(Qt::UserRole, dichas.join('\n'));
      item->setToolTip(Consejo(dichas.join('\n')));
      matriz_->setItem(i, j, item);
    }
  }
  matriz_->setHorizontalHeaderLabels(cabezas);
  matriz_->setVerticalHeaderLabels(nombres);
  matriz_->resizeColumnsToContents();
  comprobaciones_->clear();
}

void PanelDetalle::MuestraTodo() {
  todo_->clear();
  for (const auto& g : DetalleDe(caso_->Dibujado(), Palabras())) {
    auto* grupo = new QTreeWidgetItem(todo_, {Q(g.titulo)});
    QFont letra = todo_->font();
    letra.setBold(true);
    grupo->setFont(0, letra);
    grupo->setFirstColumnSpanned(true);
    for (const auto& f : g.filas) {
      auto* fila = new QTreeWidgetItem(grupo, {Q(f.nombre), Q(f.valor)});
      fila->setToolTip(1, Consejo(Q(f.valor)));
    }
  }
  todo_->expandAll();
  todo_->resizeColumnToContents(0);
}

}  // namespace zorbin
