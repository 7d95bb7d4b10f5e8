// Sheets as plain text: a line of text for each line of the sheet, rules as underscores, pictures
// as their name in brackets, and a form feed after each sheet.
#pragma once

#include <ostream>

#include "listados/papel/mdPapel.h"

namespace zorbin {

class HojasTexto : public DestinoHojas {
 public:
  explicit HojasTexto(std::ostream& salida) : salida_(salida) {}
  void RecibeHoja(const Hoja& hoja) override;

 private:
  std::ostream& salida_;
};

}  // namespace zorbin
