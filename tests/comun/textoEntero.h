// Long texts whole, for the tests that compare them.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "sesion/trabajo/mdResumenPorBloques.h"

namespace zorbin::prueba {

inline std::string Junta(FuenteTexto& fuente) {
  std::string texto;
  for (std::size_t i = 1; i < fuente.Bloques(); ++i) texto += fuente.Bloque(i);
  return fuente.Bloques() == 0 ? texto : fuente.Bloque(0) + texto;  // others may change it
}

/// The text of the summary.
inline std::string Resume(Calculo& calculo) {
  ResumenPorBloques resumen(calculo);
  return Junta(resumen);
}

/// A text in blocks of some lines.
class TextoTroceado : public FuenteTexto {
 public:
  explicit TextoTroceado(const std::string& texto, int lineas = 1000) {
    bloques_.emplace_back();
    int van = 0;
    for (const char c : texto) {
      bloques_.back() += c;
      if (c == '\n' && ++van % lineas == 0) bloques_.emplace_back();
    }
  }
  std::size_t Bloques() const override { return bloques_.size(); }
  std::string Bloque(std::size_t i) override { return bloques_[i]; }

 private:
  std::vector<std::string> bloques_;
};

}  // namespace zorbin::prueba
