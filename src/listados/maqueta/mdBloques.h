// The blocks of a chapter as strips that the pages take one after the other.
#pragma once

#include <QDir>

#include "listados/maqueta/mdFranja.h"
#include "listados/maqueta/mdMaqueta.h"

namespace zorbin::memoria {

inline constexpr double kColumna = 453.5;  // width of the text [pt]
inline constexpr double kCuerpo = 10.5;

/// Strips of a chapter whose elements are numbered.
class Bloques {
 public:
  Bloques(const Tipografia& tipografia, const Rotulos& rotulos, const Referencia& referencia,
          const QDir& figuras)
      : tipos_(tipografia), rotulos_(rotulos), referencia_(referencia), figuras_(figuras) {}

  std::vector<Franja> DeCapitulo(const Elemento& cuerpo);

  /// Picture or drawing of an <img>, scaled to its width; its baseline is its foot.
  Caja Imagen(const Elemento& img) const;

 private:
  const Tipografia& tipos_;
  const Rotulos& rotulos_;
  const Referencia& referencia_;
  const QDir& figuras_;
  std::vector<Franja> franjas_;

  void Bloque(const Elemento& e);
  void Titular(const Elemento& e);
  void Lista(const Elemento& e);
  void Nota(const Elemento& e);
  void Formula(const Elemento& e, const QString& numero);
  void Tabla(const Elemento& e);
  void Figura(const Elemento& e);
  std::vector<Franja> Parrafo(const Elemento& e, const Tipo& tipo, double sangria, double ancho,
                              Alinea alinea) const;
  void Anade(std::vector<Franja> franjas, double antes);
  void Pie(const Elemento& e, const QString& rotulo, double antes, bool pega);
};

/// Element of that name among the children.
const Elemento* Hijo(const Elemento& e, const QString& nombre);

}  // namespace zorbin::memoria
