#include "shell/resultados/mdVariosTramos.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QSignalBlocker>
#include <QVBoxLayout>
#include <set>

#include "base/mdTextos.h"
#include "base/textos.h"
#include "shell/dibujos/mdVistaLamina.h"
#include "shell/piezas/mdQt.h"

namespace zorbin {

namespace {

constexpr QSize kMenorDibujo{160, 160};
constexpr int kAlPrincipio = 6;     // Tramos chosen
constexpr int kRenglones = 6;       // of the list in sight
constexpr int kEntreRenglones = 2;  // [px]

}  // namespace

PanelVariosTramos::PanelVariosTramos(const Entorno& entorno, QWidget* padre)
    : QWidget(padre),
      entorno_(entorno),
      que_(new QComboBox(this)),
      eje_(new QComboBox(this)),
      grafico_(new VistaLamina(entorno, kMenorDibujo, this)),
      valores_(new QLabel(this)),
      cuantos_(new QLabel(this)),
      lista_(new QListWidget(this)) {
  setObjectName(QStringLiteral("variosTramos"));
  que_->setObjectName(QStringLiteral("cbCompara"));
  eje_->setObjectName(QStringLiteral("cbEjeCompara"));
  lista_->setObjectName(QStringLiteral("tramosComparados"));
  grafico_->PonNombre(QStringLiteral("tramos"));
  lista_->setSpacing(kEntreRenglones);
  lista_->setMaximumHeight((fontMetrics().height() + 2 * kEntreRenglones + 4) * kRenglones);
  for (auto* rotulo : {valores_, cuantos_}) rotulo->setTextFormat(Qt::PlainText);
  auto* arriba = new QHBoxLayout;
  for (auto* combo : {que_, eje_}) {
    combo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    arriba->addWidget(combo, 1);
    connect(combo, &QComboBox::activated, this, &PanelVariosTramos::Pide);
  }
  auto* filas = new QVBoxLayout(this);
  filas->addLayout(arriba);
  filas->addWidget(grafico_, 1);
  filas->addWidget(valores_);
  filas->addWidget(cuantos_);
  filas->addWidget(lista_);
  connect(lista_, &QListWidget::itemChanged, this, [this] {
    if (!llenando_) Pide();
  });
  connect(grafico_, &VistaLamina::apuntado, valores_, &QLabel::setText);
  grafico_->PonCuenta([this](const LaminaConEjes& l, Xy sitio) -> QString {
    return l.ejes.Contiene(sitio) ? Q(ValoresEn(l.ejes, sitio, Palabras())) : QString{};
  });
  RenuevaTextos();
}

void PanelVariosTramos::RenuevaTextos() {
  const auto w = Palabras();
  const auto llena = [](QComboBox& combo, const QStringList& entradas, int alPrincipio) {
    const int elegida = combo.currentIndex();
    combo.clear();
    combo.addItems(entradas);
    combo.setCurrentIndex(elegida < 0 ? alPrincipio : elegida);
  };
  QStringList que;
  for (const int n : txt::DibComparado) que += Q(w.T(n));
  llena(*que_, que, 0);
  llena(*eje_, {Q(TituloEje(EjeDeGrafico::Altura, w)), Q(TituloEje(EjeDeGrafico::Presion, w))}, 1);
  lista_->setAccessibleName(Q(w.T(txt::ResVariosTramos)));
  LlenaLista();
}

void PanelVariosTramos::Pon(std::vector<DatosTramo> tramos, EstiloNumeros estilo) {
  std::set<int> elegidos;
  for (const auto& d : Elegidos()) elegidos.insert(d.tramo.NumeroTramo);
  tramos_ = std::move(tramos);
  estilo_ = estilo;
  RenuevaTextos();
  llenando_ = true;
  for (int i = 0; i < lista_->count(); ++i) {
    const int numero = tramos_[static_cast<std::size_t>(i)].tramo.NumeroTramo;
    const bool dentro = elegidos.empty() ? i < kAlPrincipio : elegidos.contains(numero);
    lista_->item(i)->setCheckState(dentro ? Qt::Checked : Qt::Unchecked);
  }
  llenando_ = false;
  Pide();
}

void PanelVariosTramos::LlenaLista() {
  const auto w = Palabras();
  llenando_ = true;
  while (lista_->count() > static_cast<int>(tramos_.size())) delete lista_->takeItem(0);
  while (lista_->count() < static_cast<int>(tramos_.size())) {
    auto* fila = new QListWidgetItem(lista_);
    fila->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
    fila->setCheckState(Qt::Unchecked);
  }
  for (int i = 0; i < lista_->count(); ++i) {
    lista_->item(i)->setText(Q(w.TramoEnLetra(tramos_[static_cast<std::size_t>(i)].tramo)));
  }
  llenando_ = false;
}

std::vector<DatosTramo> PanelVariosTramos::Elegidos() const {
  std::vector<DatosTramo> elegidos;
  for (int i = 0; i < lista_->count(); ++i) {
    if (lista_->item(i)->checkState() == Qt::Checked) {
      elegidos.push_back(tramos_[static_cast<std::size_t>(i)]);
    }
  }
  return elegidos;
}

void PanelVariosTramos::showEvent(QShowEvent* suceso) {
  QWidget::showEvent(suceso);
  Pide();
}

// Nothing is calculated for a chart that nobody sees.
void PanelVariosTramos::Pide() {
  auto elegidos = Elegidos();
  const auto w = Palabras();
  cuantos_->setText(Q(w.Con(txt::ResCuantosTramos,
                            {std::to_string(elegidos.size()), std::to_string(tramos_.size())})));
  if (!isVisible()) return;
  const auto numero = ++numero_;
  const auto que = static_cast<QueCompara>(que_->currentIndex());
  const auto eje = static_cast<EjeDeGrafico>(eje_->currentIndex());
  faena_.Pide(
      [this, numero, que, eje, elegidos = std::move(elegidos)](const UltimaFaena::Sigue& sigue) {
        std::vector<TramoComparado> tramos;
        for (const auto& datos : elegidos) {
          try {
            auto m = CalculaMalla(datos, EjesDelGrafico(datos, eje), PideMomentos(que), sigue);
            if (!m.entera) return;
            tramos.push_back({datos, std::make_shared<const Malla>(std::move(m))});
          } catch (const std::exception&) {  // of such data there is no line
          }
        }
        QMetaObject::invokeMethod(
            this,
            [this, numero, que, eje, tramos = std::move(tramos)] {
              if (numero == numero_) Pinta(que, eje, tramos);
            },
            Qt::QueuedConnection);
      });
}

void PanelVariosTramos::Pinta(QueCompara que, EjeDeGrafico eje,
                              std::vector<TramoComparado> tramos) {
  if (tramos.empty()) return grafico_->Pon({});
  grafico_->Pon([que, eje, tramos = std::move(tramos), w = Palabras()](const HojaDibujo& hoja) {
    return DibujaGraficoComparado(que, eje, tramos, w, hoja);
  });
}

}  // namespace zorbin
