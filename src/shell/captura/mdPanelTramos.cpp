#include "shell/captura/mdPanelTramos.h"

#include <QHeaderView>
#include <QLineEdit>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "base/textos.h"
#include "shell/piezas/mdIconos.h"
#include "shell/piezas/mdQt.h"

namespace zorbin {

namespace {

enum Columna { kEstado, kNumero, kDescripcion, kDi, kEsp, kTipologia, kColumnas };
constexpr int kPapelId = Qt::UserRole;

// Numbers sort as numbers.
class FilaTramo : public QTreeWidgetItem {
 public:
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

bool Iguales(const RenglonTramo& a, const RenglonTramo& b) {
  return a.id == b.id && a.numero == b.numero && a.descripcion == b.descripcion &&
         a.tipologia == b.tipologia && a.Di == b.Di && a.Esp == b.Esp &&
         a.sinGrabar == b.sinGrabar && a.conFaltas == b.conFaltas;
}

}  // namespace

PanelTramos::PanelTramos(const Captura& c, QWidget* padre)
    : QWidget(padre), c_(c), busca_(new QLineEdit(this)), lista_(new QTreeWidget(this)) {
  auto* filas = new QVBoxLayout(this);
  filas->setContentsMargins(6, 6, 6, 6);
  busca_->setObjectName(QStringLiteral("buscaTramo"));
  busca_->setClearButtonEnabled(true);
  lista_->setObjectName(QStringLiteral("Tramos"));
  lista_->setRootIsDecorated(false);
  lista_->setUniformRowHeights(true);
  lista_->setSelectionMode(QAbstractItemView::ExtendedSelection);
  lista_->setColumnCount(kColumnas);
  lista_->setContextMenuPolicy(Qt::ActionsContextMenu);
  lista_->header()->setStretchLastSection(true);
  lista_->header()->setSortIndicatorClearable(true);
  lista_->header()->setSortIndicator(-1, Qt::AscendingOrder);
  lista_->setSortingEnabled(true);
  filas->addWidget(busca_);
  filas->addWidget(lista_, 1);
  connect(busca_, &QLineEdit::textChanged, this, &PanelTramos::Filtra);
  connect(lista_, &QTreeWidget::currentItemChanged, this,
          [this](QTreeWidgetItem* fila, QTreeWidgetItem*) {
            if (refrescando_ || fila == nullptr) return;
            emit tramoPedido(fila->data(0, kPapelId).toInt());
          });
  RenuevaTextos();
}

void PanelTramos::RenuevaTextos() {
  const auto texto = [this](int n) { return Rotulo(c_.textos.Texto(n)); };
  busca_->setPlaceholderText(texto(txt::BuscaTramo));
  busca_->setAccessibleName(texto(txt::BuscaTramo));
  lista_->setAccessibleName(texto(txt::MenuTramos));
  lista_->setHeaderLabels({QString(), texto(txt::ColNumero), texto(txt::RotDescriTramo),
                           texto(txt::ColDN), texto(txt::ColEspesor), texto(txt::ColTipologia)});
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
  const int dicho = r.conFaltas                      ? txt::TramoFaltas
                    : estado == EstadoTramo::Cumple  ? txt::TramoCumple
                    : estado == EstadoTramo::NoCumple ? txt::TramoNoCumple
                    : estado == EstadoTramo::Falla    ? txt::TramoFalla
                                                      : txt::TramoSinCalcular;
  fila.setData(0, kPapelId, r.id);
  fila.setText(kEstado, (mal                              ? QStringLiteral("✕")
                         : estado == EstadoTramo::Cumple ? QStringLiteral("✓")
                                                         : QStringLiteral("·")) +
                            (r.sinGrabar ? QStringLiteral("*") : QString()));
  fila.setToolTip(kEstado, texto(dicho) + (r.sinGrabar ? "; " + texto(txt::SinGuardar) : QString()));
  fila.setText(kNumero, Q(r.numero));
  fila.setText(kDescripcion, Q(r.descripcion));
  fila.setToolTip(kDescripcion, Consejo(Q(r.descripcion)));
  fila.setText(kDi, Q(r.Di));
  fila.setText(kEsp, Q(r.Esp));
  fila.setText(kTipologia, Q(r.tipologia));
  for (const int columna : {kNumero, kDi, kEsp}) {
    fila.setTextAlignment(columna, Qt::AlignRight | Qt::AlignVCenter);
  }
  fila.setTextAlignment(kEstado, Qt::AlignCenter);
  QFont fuente = lista_->font();
  fuente.setItalic(r.sinGrabar);
  for (int i = 0; i < kColumnas; ++i) fila.setFont(i, fuente);
}

void PanelTramos::Refresca() {
  auto renglones = c_.ObraCargada ? RenglonesTramos(c_) : std::vector<RenglonTramo>{};
  if (std::ranges::equal(renglones, puestos_, Iguales)) return MarcaEnMano();
  refrescando_ = true;
  lista_->setSortingEnabled(false);
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
    fila.setSelected(std::ranges::find(elegidos, fila.data(0, kPapelId).toInt()) !=
                     elegidos.end());
  }
  if (puestos_.size() != renglones.size()) {
    for (int i = 0; i < kTipologia; ++i) lista_->resizeColumnToContents(i);
  }
  puestos_ = std::move(renglones);
  lista_->setSortingEnabled(true);
  Filtra();
  refrescando_ = false;
  MarcaEnMano();
}

void PanelTramos::MarcaEnMano() {
  for (int i = 0; i < lista_->topLevelItemCount(); ++i) {
    auto* fila = lista_->topLevelItem(i);
    if (fila->data(0, kPapelId).toInt() != c_.enMano || lista_->currentItem() == fila) continue;
    refrescando_ = true;
    const bool varios = lista_->selectedItems().size() > 1;
    lista_->setCurrentItem(fila, 0,
                           varios ? QItemSelectionModel::Current | QItemSelectionModel::Select
                                  : QItemSelectionModel::ClearAndSelect);
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
