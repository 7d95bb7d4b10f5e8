// The table of Casos for a view: rows are formatted when they are seen, and put in order on another
// thread while the ones before stay in sight.
#pragma once

#include <QAbstractTableModel>
#include <memory>
#include <vector>

#include "base/mdCatalogo.h"
#include "sesion/resultados/mdCasos.h"
#include "sesion/resultados/mdUltimaFaena.h"

namespace zorbin {

class ModeloCasos : public QAbstractTableModel {
  Q_OBJECT

 public:
  explicit ModeloCasos(QObject* padre = nullptr) : QAbstractTableModel(padre) {}

  /// Other Casos, all of them in sight until they have been filtered.
  void Pon(std::shared_ptr<CasosObra> casos, const Catalogo& textos, EstiloNumeros estilo);
  void PonVista(VistaCasos vista);
  const VistaCasos& vista() const { return vista_; }
  const CasosObra& casos() const { return *casos_; }
  PalabrasDibujo Palabras() const { return {*textos_, estilo_}; }
  /// Values of the columns of the whole Caso. Nothing is put in order meanwhile.
  void PonEnteras(CasosObra::Enteras enteras);

  /// Number of the Caso of a row.
  std::uint32_t Caso(int fila) const { return orden_[static_cast<std::size_t>(fila)]; }
  /// Row of a Caso; -1 where it is not shown.
  int FilaDe(std::uint32_t caso) const;
  Columna ColumnaDe(int columna) const {
    return vista_.columnas[static_cast<std::size_t>(columna)];
  }
  /// Until the order has been found; the next events show it.
  void Espera() { faena_.Espera(); }

  int rowCount(const QModelIndex& padre = {}) const override;
  int columnCount(const QModelIndex& padre = {}) const override;
  QVariant data(const QModelIndex& indice, int papel) const override;
  QVariant headerData(int seccion, Qt::Orientation orientacion, int papel) const override;
  void sort(int columna, Qt::SortOrder orden) override;

 signals:
  /// Rows have come, gone or moved.
  void ordenado();

 private:
  std::shared_ptr<CasosObra> casos_ = std::make_shared<CasosObra>();
  std::shared_ptr<const Catalogo> textos_;
  EstiloNumeros estilo_;
  VistaCasos vista_;
  std::vector<std::uint32_t> orden_;
  std::uint64_t numero_ = 0;
  UltimaFaena faena_;

  void Pide();
};

}  // namespace zorbin
