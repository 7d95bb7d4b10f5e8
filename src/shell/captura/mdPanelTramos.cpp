#include "shell/captura/mdPanelTramos.h"

#include <QActionGroup>
#include <QHeaderView>
#include <QLineEdit>
#include <QMenu>
#include <QShortcut>
#include <QToolButton>
#include <QVBoxLayout>
#include <algorithm>
#include <array>
#include <utility>

#include "base/textos.h"
#include "shell/captura/mdListaArrastrable.h"
#include "shell/piezas/mdQt.h"

namespace zorbin {

namespace {

enum Columna { kEstado, kNumero, kDescripcion, kDi, kEsp, kTipologia, kColumnas };
constexpr int kPapelId = ListaArrastrable::kPapelId;
constexpr int kPorLaObra = -1;
constexpr auto kOrdenables =
    std::to_array<int>({kPorLaObra, kNumero, kDescripcion, kDi, kEsp, kTipologia, kEstado});

// Numbers sort as numbers.
class FilaTramo : public QTreeWidgetItem {
 public:
  FilaTramo() { setFlags(flags() & ~Qt::ItemIsDropEnabled); }  // beside another, not into it

  bool operator<(const QTreeWidgetItem& otra) const override {
    const int columna = treeWidget()->sortColumn();
    if (columna != kNumero && columna != kDi && columna != kEsp) {
      return text(columna).localeAwareCompare(otra.text(columna)) < 0;
    }
    const auto numero = [columna](const QTreeWidgetItem& fila) {
      return fila.text(columna).replace(QLatin1Char(','), QLatin1Char('.')).toDouble();
    };
    return numero(*this) < numero(otra);
  }
};

// Diameter [mm], wall [cm] and typology, as far as they are known.
QString Detalle(const RenglonTramo& r) {
  QStringList partes;
  const double Di = Q(r.Di).replace(QLatin1Char(','), QLatin1Char('.')).toDouble();
  if (Di > 0) partes += QStringLiteral("DN %1").arg(qRound(Di * 1000));
  if (!r.Esp.empty()) partes += QStringLiteral("e %1 cm").arg(Q(r.Esp));
  if (!r.tipologia.empty()) partes += Q(r.tipologia);
  return partes.join(QStringLiteral(" · "));
}

bool Iguales(const RenglonTramo& a, const RenglonTramo& b) {
  return a.id == b.id && a.numero == b.numero && a.descripcion == b.descripcion &&
         a.tipologia == b.tipologia && a.Di == b.Di && a.Esp == b.Esp &&
         a.sinGrabar == b.sinGrabar && a.conFaltas == b.conFaltas;
}

}  // namespace

PanelTramos::PanelTramos(const Captura& c, QWidget* padre)
    : QWidget(padre),
      c_(c),
      busca_(new QLineEdit(this)),
      ordena_(new QToolButton(this)),
      lista_(new ListaArrastrable(this)) {
  auto* filas = new QVBoxLayout(this);
  filas->setContentsMargins(6, 6, 6, 6);
  busca_->setObjectName(QStringLiteral("buscaTramo"));
  busca_->setClearButtonEnabled(true);
  CreaLista();
  CreaOrden();
  auto* cabeza = new QHBoxLayout;
  cabeza->addWidget(busca_, 1);
  cabeza->addWidget(ordena_);
  filas->addLayout(cabeza);
  filas->addWidget(lista_, 1);
  connect(busca_, &QLineEdit::textChanged, this, &PanelTramos::Filtra);
  RenuevaTextos();
}

// One column is seen, in which all of them are drawn; the others are looked for and sorted by.
void PanelTramos::CreaLista() {
  lista_->setObjectName(QStringLiteral("Tramos"));
  lista_->setRootIsDecorated(false);
  lista_->setUniformRowHeights(true);
  lista_->setHeaderHidden(true);
  lista_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  lista_->setSelectionMode(QAbstractItemView::ExtendedSelection);
  lista_->setColumnCount(kColumnas);
  lista_->setItemDelegate(new PintorTramo(lista_));
  for (int i = 0; i < kColumnas; ++i) lista_->setColumnHidden(i, i != kDescripcion);
  lista_->setContextMenuPolicy(Qt::ActionsContextMenu);
  lista_->header()->setStretchLastSection(false);
  lista_->header()->setSectionResizeMode(kDescripcion, QHeaderView::Stretch);
  connect(lista_, &QTreeWidget::currentItemChanged, this,
          [this](QTreeWidgetItem* fila, QTreeWidgetItem*) { Pide(fila); });
  for (const auto senal : {&QTreeWidget::itemActivated, &QTreeWidget::itemClicked}) {
    connect(lista_, senal, this, [this](QTreeWidgetItem* fila, int) { Pide(fila); });
  }
  connect(lista_, &ListaArrastrable::llevados, this, &PanelTramos::ordenPedido);
  const auto tecla = [this](Qt::Key key, auto pide) {
    connect(new QShortcut(key, lista_, nullptr, nullptr, Qt::WidgetShortcut), &QShortcut::activated,
            this, pide);
  };
  tecla(Qt::Key_Delete, &PanelTramos::borradoPedido);
  tecla(Qt::Key_F2, &PanelTramos::numeroPedido);
}

void PanelTramos::CreaOrden() {
  auto* menu = new QMenu(ordena_);
  auto* grupo = new QActionGroup(menu);
  for (const int columna : kOrdenables) {
    auto* accion = menu->addAction(QString());
    accion->setCheckable(true);
    accion->setChecked(columna < 0);
    accion->setData(columna);
    grupo->addAction(accion);
    connect(accion, &QAction::triggered, this, [this, columna] { OrdenaPor(columna); });
  }
  ordena_->setObjectName(QStringLiteral("ordenaTramos"));
  ordena_->setMenu(menu);
  ordena_->setPopupMode(QToolButton::InstantPopup);
  ordena_->setText(QStringLiteral("⇅"));
  ordena_->setFocusPolicy(Qt::TabFocus);
}

// By a column, or -1 for the order of the Obra.
void PanelTramos::OrdenaPor(int columna) {
  orden_ = columna;
  lista_->PonArrastre(columna < 0);
  puestos_.clear();
  Refresca();
}

void PanelTramos::RenuevaTextos() {
  const auto texto = [this](int n) { return Rotulo(c_.textos.Texto(n)); };
  busca_->setPlaceholderText(texto(txt::BuscaTramo));
  busca_->setAccessibleName(texto(txt::BuscaTramo));
  lista_->setAccessibleName(texto(txt::MenuTramos));
  const QStringList cabezas{texto(txt::ColEstado),      texto(txt::ColNumero),
                            texto(txt::RotDescriTramo), texto(txt::ColDN),
                            texto(txt::ColEspesor),     texto(txt::ColTipologia)};
  lista_->setHeaderLabels(cabezas);
  ordena_->setToolTip(texto(txt::OrdenaTramos));
  ordena_->setAccessibleName(texto(txt::OrdenaTramos));
  for (auto* accion : ordena_->menu()->actions()) {
    const int columna = accion->data().toInt();
    accion->setText(columna < 0 ? texto(txt::OrdenDeLaObra) : cabezas[columna]);
  }
  puestos_.clear();
  Refresca();
}

void PanelTramos::PonAcciones(const QList<QAction*>& acciones) {
  lista_->addActions(acciones);
}

void PanelTramos::PonEstado(int id, EstadoTramo estado) {
  if (std::exchange(estados_[id], estado) == estado) return;
  puestos_.clear();
  Refresca();
}

void PanelTramos::OlvidaEstados() {
  estados_.clear();
  puestos_.clear();
}

void PanelTramos::Pon(QTreeWidgetItem& fila, const RenglonTramo& r) {
  const auto texto = [this](int n) { return Q(c_.textos.Texto(n)); };
  const auto f = estados_.find(r.id);
  const auto estado = f == estados_.end() ? EstadoTramo::SinCalcular : f->second;
  const bool mal = r.conFaltas || estado == EstadoTramo::NoCumple || estado == EstadoTramo::Falla;
  const int dicho = r.conFaltas                       ? txt::TramoFaltas
                    : estado == EstadoTramo::Cumple   ? txt::TramoCumple
                    : estado == EstadoTramo::NoCumple ? txt::TramoNoCumple
                    : estado == EstadoTramo::Falla    ? txt::TramoFalla
                                                      : txt::TramoSinCalcular;
  fila.setData(0, kPapelId, r.id);
  const QString guardado = r.sinGrabar ? "; " + texto(txt::SinGuardar) : QString();
  fila.setText(kEstado, (mal                             ? QStringLiteral("✕")
                         : estado == EstadoTramo::Cumple ? QStringLiteral("✓")
                                                         : QStringLiteral("·")) +
                            (r.sinGrabar ? QStringLiteral("*") : QString()));
  fila.setText(kNumero, Q(r.numero));
  fila.setText(kDescripcion, Q(r.descripcion));
  fila.setText(kDi, Q(r.Di));
  fila.setText(kEsp, Q(r.Esp));
  fila.setText(kTipologia, Q(r.tipologia));
  SenasTramo senas;
  senas.titulo = Q(r.numero) + (r.sinGrabar ? "* · " : " · ") + Q(r.descripcion);
  senas.detalle = Detalle(r);
  senas.estado = estado;
  senas.conFaltas = r.conFaltas;
  senas.sinGrabar = r.sinGrabar;
  const QString todo = senas.titulo + '\n' + senas.detalle + '\n' + texto(dicho) + guardado;
  fila.setToolTip(kDescripcion, Consejo(todo));
  fila.setData(kDescripcion, Qt::AccessibleTextRole, todo);
  fila.setData(kDescripcion, PintorTramo::kPapel, QVariant::fromValue(senas));
}

void PanelTramos::Refresca() {
  auto renglones = c_.ObraCargada ? RenglonesTramos(c_) : std::vector<RenglonTramo>{};
  if (std::ranges::equal(renglones, puestos_, Iguales)) return MarcaEnMano();
  refrescando_ = true;
  const auto elegidos = Elegidos();
  while (lista_->topLevelItemCount() > static_cast<int>(renglones.size())) {
    delete lista_->takeTopLevelItem(lista_->topLevelItemCount() - 1);
  }
  while (lista_->topLevelItemCount() < static_cast<int>(renglones.size())) {
    lista_->addTopLevelItem(new FilaTramo);
  }
  for (int i = 0; i < lista_->topLevelItemCount(); ++i) {
    auto& fila = *lista_->topLevelItem(i);
    Pon(fila, renglones[static_cast<std::size_t>(i)]);
    fila.setSelected(std::ranges::find(elegidos, fila.data(0, kPapelId).toInt()) != elegidos.end());
  }
  puestos_ = std::move(renglones);
  if (orden_ >= 0) lista_->sortItems(orden_, Qt::AscendingOrder);
  Filtra();
  refrescando_ = false;
  MarcaEnMano();
}

void PanelTramos::Pide(const QTreeWidgetItem* fila) {
  if (refrescando_ || fila == nullptr) return;
  emit tramoPedido(fila->data(0, kPapelId).toInt());
}

void PanelTramos::MarcaEnMano() {
  for (int i = 0; i < lista_->topLevelItemCount(); ++i) {
    auto* fila = lista_->topLevelItem(i);
    if (fila->data(0, kPapelId).toInt() != c_.enMano) continue;
    if (lista_->currentItem() == fila && fila->isSelected()) continue;
    refrescando_ = true;
    const bool varios = lista_->selectedItems().size() > 1;
    const auto orden = varios ? QItemSelectionModel::Current | QItemSelectionModel::Select
                              : QItemSelectionModel::ClearAndSelect;
    lista_->setCurrentItem(fila, kDescripcion, orden | QItemSelectionModel::Rows);
    refrescando_ = false;
  }
}

void PanelTramos::Filtra() {
  const QString busca = busca_->text().trimmed();
  for (int i = 0; i < lista_->topLevelItemCount(); ++i) {
    auto* fila = lista_->topLevelItem(i);
    bool dentro = busca.isEmpty();
    for (int k = kNumero; k < kColumnas && !dentro; ++k) {
      dentro = fila->text(k).contains(busca, Qt::CaseInsensitive);
    }
    fila->setHidden(!dentro);
  }
}

void PanelTramos::DaFoco() {
  lista_->setFocus(Qt::OtherFocusReason);
}

std::vector<int> PanelTramos::Elegidos() const {
  std::vector<int> ids;
  for (int i = 0; i < lista_->topLevelItemCount(); ++i) {
    const auto* fila = lista_->topLevelItem(i);
    if (fila->isSelected()) ids.push_back(fila->data(0, kPapelId).toInt());
  }
  if (ids.empty() && c_.enMano != 0) ids.push_back(c_.enMano);
  return ids;
}

}  // namespace zorbin
