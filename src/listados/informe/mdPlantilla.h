// What the parts of a report share: words, figures, drawings, and where they are written.
#pragma once

#include "core/mdUnidades.h"
#include "listados/dibujos/mdHoja.h"
#include "listados/informe/mdInforme.h"
#include "listados/maqueta/mdRedactor.h"
#include "listados/obra/mdVeredictoCaso.h"

namespace zorbin {

inline QString Q(const std::string& texto) {
  return QString::fromStdString(texto);
}

/// Width of the text and of what stands beside it [pt].
inline constexpr double kPaginaAnchoInforme = 595.28, kPaginaAltoInforme = 841.89;
inline constexpr double kMargenInforme = 51.0;
inline constexpr double kColumnaInforme = kPaginaAnchoInforme - 2 * kMargenInforme;
inline constexpr double kPuntosPorMm = 72.0 / 25.4;

class Plantilla {
 public:
  Plantilla(const DatosInforme& datosInforme, const Catalogo& catalogo,
            const EstiloNumeros& numeros, memoria::Redactor& redactor)
      : datos(datosInforme),
        textos(catalogo),
        estilo(numeros),
        dibujo(catalogo, numeros),
        caso(catalogo, numeros),
        r(redactor) {}

  const DatosInforme& datos;
  const Catalogo& textos;
  const EstiloNumeros estilo;
  const PalabrasDibujo dibujo;
  const PalabrasCaso caso;
  memoria::Redactor& r;

  QString T(int n) const { return Q(textos.Texto(n)).trimmed(); }
  QString Con(int n, const std::vector<std::string>& datosTexto) const {
    return Q(textos.Compone(n, datosTexto));
  }
  /// A figure of calculation in the system of the report, without its unit; ∞ for none.
  QString Num(double valor, int decimales, std::string_view conversion = {}) const {
    return Q(caso.Numero(valor, decimales, conversion));
  }
  /// Pressure [at].
  QString Presion(double at) const { return Num(at, 0, "at->MPa"); }
  /// Unit of a conversion, written for paper.
  QString Unidad(std::string_view conversion) const { return Q(dibujo.Unidad(conversion)); }
  /// A head with its unit after a comma.
  QString ConUnidad(int texto, const QString& unidad) const {
    return T(texto) + QStringLiteral(", ") + unidad;
  }
  QString Hipotesis(bool armado, int h) const { return Q(dibujo.Hipotesis(armado, h)); }
  QString NombreTramo(const TramoInforme& t) const;

  /// A drawing as a figure, of the size of its sheet.
  static memoria::DibujoFigura Figura(Lamina lamina);

  /// A cell, plain or a formula.
  static memoria::CeldaCuadro Celda(QString texto, bool negrita = false) {
    return {std::move(texto), false, negrita, {}};
  }
  static memoria::CeldaCuadro Simbolo(const QString& formula) { return {formula, true, false, {}}; }
};

/// Name of the anchor of a Tramo, and of a Caso of it.
QString AnclaTramo(std::size_t i);
QString AnclaCaso(std::size_t tramo, std::size_t fila);

// ---- The parts

memoria::Caja PortadaDe(const Plantilla& p, const memoria::Tipografia& letras);
void EscribeResumenObra(Plantilla& p);
void EscribeBases(Plantilla& p);
void EscribeDatosTramo(Plantilla& p, const TramoInforme& t);
void EscribeTablaDeCasos(Plantilla& p, const TramoInforme& t, std::size_t i);
void EscribeAvisos(Plantilla& p, const TramoInforme& t);
/// A Caso with its tables, its figures and its steps. @param figuras  with its drawings
void EscribeCaso(Plantilla& p, const TramoInforme& t, std::size_t i, std::size_t fila,
                 bool figuras);
/// Its formulas with their figures. @param todos  the checks of all hypotheses too, and not only
/// those of the governing one
void EscribePasos(Plantilla& p, const TramoInforme& t, const FilaCaso& fila, bool todos = false);
/// What the worst Caso of each Tramo takes.
void EscribeMediciones(Plantilla& p);
/// What comes before the Casos told one by one.
void EscribeTramo(Plantilla& p, const TramoInforme& t, std::size_t i);

}  // namespace zorbin
