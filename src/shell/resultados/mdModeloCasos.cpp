#include "shell/resultados/mdModeloCasos.h"

#include <QBrush>
#include <QFont>
#include <QGuiApplication>
#include <QPalette>
#include <algorithm>
#include <numeric>

#include "shell/piezas/mdQt.h"
#include "shell/resultados/mdPiezasDiseno.h"

namespace zorbin {

void ModeloCasos::Pon(std::shared_ptr<CasosObra> casos, const Catalogo& textos,
                      EstiloNumeros estilo) {
  faena_.Abandona();
  faena_.Espera();
  ++numero_;
  beginResetModel();
  casos_ = std::move(casos);
  textos_ = std::make_shared<const Catalogo>(textos);
  estilo_ = estilo;
  orden_.resize(casos_->Cuantos());
  std::iota(orden_.begin(), orden_.end(), 0U);
  endResetModel();
  emit ordenado();
  Pide();
}

void ModeloCasos::PonVista(VistaCasos vista) {
  const bool otrasColumnas = vista.columnas != vista_.columnas;
  if (otrasColumnas) beginResetModel();
  vista_ = std::move(vista);
  if (otrasColumnas) endResetModel();
  Pide();
}

void ModeloCasos::PonEnteras(CasosObra::Enteras enteras) {
  faena_.Abandona();
  faena_.Espera();
  casos_->PonEnteras(std::move(enteras));
  Pide();
}

// Rows as they came need no thread.
void ModeloCasos::Pide() {
  if (textos_ == nullptr) return;
  const auto numero = ++numero_;
  faena_.Pide([this, numero, casos = std::shared_ptr<const CasosObra>(casos_), textos = textos_,
               estilo = estilo_, vista = vista_](const UltimaFaena::Sigue& sigue) {
    auto orden = Ordena(*casos, vista, {*textos, estilo}, sigue);
    if (!orden) return;
    QMetaObject::invokeMethod(
        this,
        [this, numero, orden = std::move(*orden)]() mutable {
          if (numero != numero_) return;
          if (orden == orden_) return;
          beginResetModel();
          orden_ = std::move(orden);
          endResetModel();
          emit ordenado();
        },
        Qt::QueuedConnection);
  });
}

int ModeloCasos::FilaDe(std::uint32_t caso) const {
  const auto i = std::ranges::find(orden_, caso);
  return i == orden_.end() ? -1 : static_cast<int>(i - orden_.begin());
}

int ModeloCasos::rowCount(const QModelIndex& padre) const {
  return padre.isValid() ? 0 : static_cast<int>(orden_.size());
}

int ModeloCasos::columnCount(const QModelIndex& padre) const {
  return padre.isValid() ? 0 : static_cast<int>(vista_.columnas.size());
}

QVariant ModeloCasos::data(const QModelIndex& indice, int papel) const {
  if (!indice.isValid()) return {};
  const auto caso = Caso(indice.row());
  const auto c = ColumnaDe(indice.column());
  if (papel == Qt::DisplayRole) {
    const QString texto = Q(casos_->Texto(caso, c, Palabras()));
    if (c != Columna::Veredicto) return texto;
    return SignoVeredicto(casos_->Fila(caso).verificacion.veredicto) + QStringLiteral(" ") + texto;
  }
  if (papel == Qt::TextAlignmentRole) {
    const bool derecha = De(c).numero || c == Columna::Tramo;
    return QVariant::fromValue(Qt::AlignVCenter | (derecha ? Qt::AlignRight : Qt::AlignLeft));
  }
  if (papel == Qt::ForegroundRole && c == Columna::Veredicto) {
    return QBrush(
        ColorVeredicto(casos_->Fila(caso).verificacion.veredicto, QGuiApplication::palette()));
  }
  return {};
}

QVariant ModeloCasos::headerData(int seccion, Qt::Orientation orientacion, int papel) const {
  if (orientacion != Qt::Horizontal || textos_ == nullptr) return {};
  if (papel == Qt::DisplayRole) return Q(Cabeza(ColumnaDe(seccion), Palabras()));
  return {};
}

void ModeloCasos::sort(int columna, Qt::SortOrder orden) {
  const bool hay = columna >= 0 && columna < columnCount();
  vista_.orden = hay ? std::optional(ColumnaDe(columna)) : std::nullopt;
  vista_.alReves = orden == Qt::DescendingOrder;
  Pide();
}

}  // namespace zorbin
