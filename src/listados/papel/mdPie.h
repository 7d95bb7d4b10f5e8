// The foot of the sheets of a document: whose it is, what made it, and which sheet of how many.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "base/mdCatalogo.h"
#include "listados/papel/mdPapel.h"

namespace zorbin {

/// Date and time on the sheets; a listing never looks at a clock.
struct Fecha {
  std::string dia;
  std::string hora;
};

/// Date and time of the machine.
Fecha Ahora();

/// Counts the sheets of a document, which their feet tell.
class CuentaHojas : public DestinoHojas {
 public:
  void RecibeHoja(const Hoja&) override { ++hojas_; }
  int hojas() const { return hojas_; }

 private:
  int hojas_ = 0;
};

/// What stands on the left, of which the longest text is cut first where the line is too narrow,
/// and on the right before the number of the sheet.
struct TextosPie {
  std::vector<std::string> izquierda;
  std::string derecha;
};

/// Hands sheets on with a foot under the last line that a sheet has room for.
class HojasConPie : public DestinoHojas {
 public:
  /// @param total  sheets of the document
  HojasConPie(DestinoHojas& destino, TextosPie pie, int total, const Catalogo& textos)
      : destino_(destino), pie_(std::move(pie)), total_(total), textos_(textos) {}

  void RecibeHoja(const Hoja& hoja) override;

 private:
  DestinoHojas& destino_;
  TextosPie pie_;
  int total_;
  const Catalogo& textos_;
  int hoja_ = 0;

  std::string Linea(int columnas) const;
};

/// Writes a document with its feet. It is made twice, since the foot of the first sheet tells how
/// many there are.
void EscribeConPie(DestinoHojas& destino, Orientacion orientacion, TextosPie pie,
                   const Catalogo& textos, const std::function<void(Papel&)>& documento);

}  // namespace zorbin
