// Sheets on whatever has pages: a printer, or the page of a file.
#pragma once

#include <QPagedPaintDevice>
#include <QPainter>
#include <memory>

#include "listados/mdPapel.h"
#include "shell/mdPintor.h"

namespace zorbin {

/// Paints each sheet on a page of its own in its orientation, to the edges of an A4; on a smaller
/// paper the whole sheet is made smaller, so that no line is lost. Black on white.
class HojasImpresora : public DestinoHojas {
 public:
  /// @throws ErrorFuente
  explicit HojasImpresora(QPagedPaintDevice& dispositivo) : dispositivo_(dispositivo) {}

  /// @throws ErrorPintor when the device takes no page
  void RecibeHoja(const Hoja& hoja) override;

  /// Ends the document. @throws ErrorPintor
  void Cierra();
  int paginas() const { return paginas_; }

 private:
  QPagedPaintDevice& dispositivo_;
  std::unique_ptr<QPainter> lienzo_;
  Pintor pintor_;
  int paginas_ = 0;
};

/// Keeps the sheets of a document.
class HojasEnMemoria : public DestinoHojas {
 public:
  void RecibeHoja(const Hoja& hoja) override { hojas.push_back(hoja); }

  std::vector<Hoja> hojas;
};

}  // namespace zorbin
