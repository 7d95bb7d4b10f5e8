// The blocks of a document that a program writes: headings, paragraphs, tables, formulas, figures.
#pragma once

#include <optional>

#include "listados/maqueta/mdCuadro.h"
#include "listados/maqueta/mdHtml.h"

namespace zorbin::memoria {

/// A drawing of a figure, of a size [pt].
struct DibujoFigura {
  double ancho = 0, alto = 0;
  std::shared_ptr<const std::function<void(QPainter&)>> pinta;
};

class Redactor {
 public:
  /// @param ancho  of the text [pt]
  /// @param tabla, figura  words before the numbers of captions
  Redactor(const Tipografia& tipografia, double ancho, QString tabla, QString figura)
      : tipos_(tipografia), ancho_(ancho), tabla_(std::move(tabla)), figura_(std::move(figura)) {}

  double Ancho() const { return ancho_; }
  const Tipografia& Letras() const { return tipos_; }

  /// Takes what was written since it was last taken.
  std::vector<Franja> Toma() { return std::move(franjas_); }

  /// A chapter with the next number, on a new page where the one in hand is half full.
  void Capitulo(const QString& titulo, const QString& ancla = {});
  /// A chapter without number, at the top of a page.
  void Hoja(const QString& titulo, const QString& ancla);
  void Apartado(const QString& titulo, const QString& ancla = {});
  void Epigrafe(const QString& titulo, const QString& ancla = {});

  /// A paragraph of plain text. @param pega  it stays with what follows
  void Parrafo(const QString& texto, bool pega = false, bool negrita = false);
  /// A paragraph with the marks of a line: <b>, <i>, $formula$.
  /// @throws ErrorFuente of a mark that is none
  void Marcado(const QString& html, bool pega = false);
  /// A remark with a bar at its side.
  void Nota(const QString& texto, bool negrita = false);
  /// A formula on a line of its own; one wider than the text is broken at its equal signs.
  /// @param numero  at the right end, empty for none
  void Formula(const QString& texto, const QString& numero = {}, const QString& ancla = {});
  /// A step of a calculation: what it gives on the left, and the parts of its formula, the later
  /// ones below the first where they do not fit beside it. @param pega  it stays with what follows
  void Paso(const QString& rotulo, const std::vector<QString>& partes, const QString& numero,
            bool pega = false);
  /// @param titulo  its caption, which takes the next number; none when empty
  void Tabla(const Cuadro& cuadro, const QString& titulo = {});
  /// Drawings side by side where they fit, each with its caption.
  void Figuras(std::vector<std::pair<DibujoFigura, QString>> dibujos);
  void Hueco(double alto);
  void Pon(Franja franja) { franjas_.push_back(std::move(franja)); }

 private:
  const Tipografia& tipos_;
  double ancho_;
  QString tabla_, figura_;
  std::vector<Franja> franjas_;
  int capitulo_ = 0, apartado_ = 0, tablas_ = 0, figuras_ = 0;

  struct Aspecto {
    Tipo tipo;
    double antes = 0;
    double sangria = 0;
    bool justifica = false;
    bool centra = false;
  };
  void Lineas(const Elemento& e, const Aspecto& aspecto, bool pega, bool entero);
  void Titular(int nivel, const QString& numero, const QString& titulo, const QString& ancla);
  QString Siguiente(int& cuenta) const;
  void FilaDeFiguras(std::vector<std::pair<DibujoFigura, QString>>& dibujos, std::size_t desde,
                     std::size_t hasta, double ancho);
};

}  // namespace zorbin::memoria
