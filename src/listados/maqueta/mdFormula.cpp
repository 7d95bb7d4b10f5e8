#include "listados/maqueta/mdFormula.h"

#include <QTransform>
#include <algorithm>

namespace zorbin::memoria {

namespace {

// Proportions of the em.
constexpr double kEje = 0.25;           // of the fraction bar over the baseline
constexpr double kBarra = 0.045;        // thickness of fraction bar and root
constexpr double kFino = 0.17;          // space round a function
constexpr double kBinario = 0.22;       // round + and ·
constexpr double kRelacion = 0.28;      // round =
constexpr double kNormalAlto = 1.25;    // content up to this height takes plain parentheses
constexpr double kEntreFilas = 0.45;    // between rows
constexpr double kEntrePares = 2.0;     // between pairs of aligned columns
constexpr double kEntreCasos = 1.3;     // between value and condition
constexpr double kIndice = 0.72;        // size of an index
constexpr double kIndiceSegundo = 0.6;  // and of the index of an index

struct Estilo {
  double base;      // size of the formula [pt]
  bool despliegue;  // fractions at full size
  int nivel = 0;    // 1 index, 2 index of an index

  double Em() const { return base * (nivel == 0 ? 1.0 : nivel == 1 ? kIndice : kIndiceSegundo); }
  Estilo Indice() const { return {base, false, std::min(nivel + 1, 2)}; }
  Estilo Termino(bool entero) const {
    if (entero || despliegue) return {base, false, nivel};
    return Indice();
  }
};

double Espacio(Clase a, Clase b, int nivel) {
  const auto es = [&](Clase c) { return a == c || b == c; };
  if (a == Clase::Abre || b == Clase::Cierra) return 0;
  if (b == Clase::Coma) return 0;
  if (nivel > 0) return a == Clase::Funcion && b == Clase::Normal ? kFino : 0;
  if (a == Clase::Coma) return kRelacion;
  if (es(Clase::Relacion)) return kRelacion;
  if (es(Clase::Binario)) return kBinario;
  if (b == Clase::Abre) return 0;
  if (es(Clase::Funcion) || es(Clase::Palabra)) return kFino;
  return 0;
}

class Compositor {
 public:
  explicit Compositor(const Tipografia& tipografia) : tipos_(tipografia) {}

  Caja Lista(const Nodos& nodos, const Estilo& e) const {
    Caja c;
    Clase antes = Clase::Abre;  // nothing before: a sign stands close
    for (const auto& n : nodos) {
      Clase clase = n.clase;
      const bool suelto = antes == Clase::Abre || antes == Clase::Binario ||
                          antes == Clase::Relacion || antes == Clase::Coma;
      if (clase == Clase::Binario && suelto) clase = Clase::Normal;
      if (n.forma == Forma::Espacio) {
        c.ancho += n.em * e.Em();
        continue;
      }
      c.ancho += Espacio(antes, clase, e.nivel) * e.Em();
      c.Sigue(ConIndices(n, e));
      antes = clase == Clase::Normal && n.clase == Clase::Binario ? Clase::Abre : clase;
    }
    return c;
  }

 private:
  const Tipografia& tipos_;

  Caja Nucleo(const Nodo& n, const Estilo& e) const {
    switch (n.forma) {
      case Forma::Simbolo:
        return tipos_.DeTexto(n.texto, {n.letra, e.Em()});
      case Forma::Grupo:
        return Lista(n.partes[0], e);
      case Forma::Fraccion:
        return Fraccion(n, e);
      case Forma::Raiz:
        return Raiz(Lista(n.partes[0], e), e);
      case Forma::Cercado:
        return Cercado(n, e);
      case Forma::Filas:
        return Filas(n, e);
      case Forma::Suma:
        return Suma(e);
      case Forma::Espacio:
        break;
    }
    return {};
  }

  Caja ConIndices(const Nodo& n, const Estilo& e) const {
    Caja c = Nucleo(n, e);
    if (n.sub.empty() && n.sup.empty()) return c;
    const Caja sub = Lista(n.sub, e.Indice());
    if (SoloPrimas(n.sup)) return ConPrimas(n, std::move(c), sub, e);
    const Caja sup = Lista(n.sup, e.Indice());
    if (n.forma == Forma::Suma && e.despliegue) return ConLimites(c, sub, sup, e);
    return ALaDerecha(n, std::move(c), sub, sup, e);
  }

  static bool SoloPrimas(const Nodos& sup) {
    return !sup.empty() && std::all_of(sup.begin(), sup.end(), [](const Nodo& n) {
      return n.texto == QStringLiteral("′");
    });
  }

  // A prime stands at full size, as its sign is high by itself; an index goes below it.
  Caja ConPrimas(const Nodo& n, Caja c, const Caja& sub, const Estilo& e) const {
    const double x = c.ancho + (n.letra == Letra::Cursiva ? 0.05 * e.Em() : 0.0);
    const Caja primas = Lista(n.sup, e);
    c.Pon(primas, {x, 0});
    c.alto = std::max(c.alto, primas.alto);
    if (!n.sub.empty()) {
      const double baja = std::max(0.17 * e.Em(), sub.alto - 0.38 * e.Em());
      c.Pon(sub, {c.ancho + 0.01 * e.Em(), baja});
      c.hondo = std::max(c.hondo, sub.hondo + baja);
    }
    c.ancho = std::max(x + primas.ancho, c.ancho + sub.ancho) + 0.03 * e.Em();
    return c;
  }

  Caja ALaDerecha(const Nodo& n, Caja c, const Caja& sub, const Caja& sup, const Estilo& e) const {
    const double em = e.Em();
    const bool alta = n.forma != Forma::Simbolo;
    double sube = 0.36 * em;
    double baja = 0.17 * em;
    if (alta) sube = std::max(sube, c.alto - 0.32 * em);
    if (alta) baja = std::max(baja, c.hondo + 0.02 * em);
    sube = std::max(sube, sup.hondo + 0.2 * em);
    baja = std::max(baja, sub.alto - 0.38 * em);
    if (!n.sub.empty() && !n.sup.empty()) {
      const double hueco = (sube - sup.hondo) + (baja - sub.alto);
      if (hueco < 0.1 * em) baja += 0.1 * em - hueco;
    }
    const double x = c.ancho;
    const bool cursiva = n.letra == Letra::Cursiva && n.forma == Forma::Simbolo;
    const double inclina = cursiva ? 0.07 * em : 0.02 * em;
    Caja indices;
    indices.Pon(sup, {inclina, -sube});
    indices.Pon(sub, {0.01 * em, baja});
    indices.ancho = std::max(n.sup.empty() ? 0.0 : sup.ancho + inclina, sub.ancho) + 0.04 * em;
    c.Pon(indices, {x, 0});
    c.ancho = x + indices.ancho;
    if (!n.sup.empty()) c.alto = std::max(c.alto, sup.alto + sube);
    if (!n.sub.empty()) c.hondo = std::max(c.hondo, sub.hondo + baja);
    return c;
  }

  static Caja ConLimites(const Caja& signo, const Caja& sub, const Caja& sup, const Estilo& e) {
    const double aire = 0.12 * e.Em();
    Caja c;
    c.ancho = std::max({signo.ancho, sub.ancho, sup.ancho});
    const auto centro = [&](const Caja& x) { return (c.ancho - x.ancho) / 2.0; };
    const double sube = signo.alto + aire + sup.hondo;
    const double baja = signo.hondo + aire + sub.alto;
    c.Pon(signo, {centro(signo), 0});
    c.Pon(sup, {centro(sup), -sube});
    c.Pon(sub, {centro(sub), baja});
    c.alto = sube + sup.alto;
    c.hondo = baja + sub.hondo;
    return c;
  }

  Caja Fraccion(const Nodo& n, const Estilo& e) const {
    const double em = e.Em();
    const bool grande = n.despliegue || e.despliegue;
    const Caja num = Lista(n.partes[0], e.Termino(n.despliegue));
    const Caja den = Lista(n.partes[1], e.Termino(n.despliegue));
    const double aire = (grande ? 0.17 : 0.1) * em;
    const double lado = 0.08 * em;
    Caja c;
    c.ancho = std::max(num.ancho, den.ancho) + 4 * lado;
    const double eje = kEje * em;
    const double sube = eje + aire + num.hondo;
    const double altoDen = std::max(den.alto, 0.66 * em * (grande ? 1.0 : kIndice));
    const double baja = aire + altoDen - eje;
    c.Pon(num, {(c.ancho - num.ancho) / 2.0, -sube});
    c.Pon(den, {(c.ancho - den.ancho) / 2.0, baja});
    c.Raya({lado, -eje}, {c.ancho - lado, -eje}, kBarra * em);
    c.alto = sube + num.alto;
    c.hondo = std::max(0.0, baja + den.hondo);
    return c;
  }

  static Caja Raiz(const Caja& dentro, const Estilo& e) {
    const double em = e.Em();
    const double grueso = kBarra * em;
    const double arriba = dentro.alto + 0.14 * em;
    const double abajo = dentro.hondo + 0.06 * em;
    const double ancho = 0.55 * em;  // of the tick
    QPainterPath rabo({0.02 * em, -(arriba - abajo) * 0.35});
    rabo.lineTo(0.14 * em, -(arriba - abajo) * 0.35 - 0.09 * em);
    QPainterPath trazo({0.14 * em, -(arriba - abajo) * 0.35 - 0.07 * em});
    trazo.lineTo(0.30 * em, abajo);
    QPainterPath subida({0.30 * em, abajo});
    subida.lineTo(ancho, -arriba);
    subida.lineTo(ancho + dentro.ancho + 0.1 * em, -arriba);
    Caja c;
    c.piezas.push_back(CaminoPuesto{rabo, grueso});
    c.piezas.push_back(CaminoPuesto{trazo, grueso * 2.0});
    c.piezas.push_back(CaminoPuesto{subida, grueso});
    c.Pon(dentro, {ancho + 0.04 * em, 0});
    c.ancho = ancho + dentro.ancho + 0.14 * em;
    c.alto = arriba + grueso;
    c.hondo = abajo;
    return c;
  }

  Caja Suma(const Estilo& e) const {
    const Tipo tipo{Letra::Recta, e.Em() * (e.despliegue ? 1.6 : 1.15)};
    const Caja signo = tipos_.DeTexto(QStringLiteral("∑"), tipo);
    const double baja = (signo.alto - signo.hondo) / 2.0 - kEje * e.Em();
    Caja c;
    c.Pon(signo, {0, baja});
    c.ancho = signo.ancho + kFino * e.Em();
    c.alto = signo.alto - baja;
    c.hondo = signo.hondo + baja;
    return c;
  }

  // Delimiter that covers `alto` and `hondo`.
  Caja Delimitador(QChar signo, double alto, double hondo, const Estilo& e) const {
    const double em = e.Em();
    if (signo == '.') return {};
    if (signo == '{' || signo == '}') return Llave(signo == '}', alto, hondo, em);
    if (alto + hondo <= kNormalAlto * em) return tipos_.DeTexto(signo, {Letra::Recta, em});
    const QPainterPath glifo = tipos_.Contorno(signo, {Letra::Recta, em});
    const QRectF tinta = glifo.boundingRect();
    const double pide = alto + hondo + 0.1 * em;
    const double ensancha = signo == '|' ? 1.0 : 1.25;
    QTransform t;
    t.translate(0.06 * em, -alto - 0.05 * em);
    t.scale(ensancha, pide / tinta.height());
    t.translate(-tinta.left(), -tinta.top());
    Caja c;
    c.piezas.push_back(CaminoPuesto{t.map(glifo)});
    c.ancho = tinta.width() * ensancha + 0.12 * em;
    c.alto = alto + 0.05 * em;
    c.hondo = hondo + 0.05 * em;
    return c;
  }

  static Caja Llave(bool cierra, double alto, double hondo, double em) {
    const double medio = (hondo - alto) / 2.0;
    const double x0 = 0.08 * em;
    const double x1 = 0.28 * em;
    const double x2 = 0.48 * em;
    const double r = std::min(0.4 * em, (alto + hondo) / 4.0);
    QPainterPath p({x2, -alto});
    p.quadTo(x1, -alto, x1, -alto + r);
    p.lineTo(x1, medio - r);
    p.quadTo(x1, medio, x0, medio);
    p.quadTo(x1, medio, x1, medio + r);
    p.lineTo(x1, hondo - r);
    p.quadTo(x1, hondo, x2, hondo);
    Caja c;
    c.ancho = x2 + 0.1 * em;
    if (cierra) p = QTransform(-1, 0, 0, 1, c.ancho, 0).map(p);
    c.piezas.push_back(CaminoPuesto{p, 0.065 * em});
    c.alto = alto;
    c.hondo = hondo;
    return c;
  }

  Caja Cercado(const Nodo& n, const Estilo& e) const {
    const Caja dentro = Lista(n.partes[0], e);
    // Delimiters stand even about the axis.
    const double eje = kEje * e.Em();
    const double medio = std::max(dentro.alto - eje, dentro.hondo + eje);
    Caja c;
    c.Sigue(Delimitador(n.texto[0], medio + eje, medio - eje, e));
    c.Sigue(dentro);
    c.Sigue(Delimitador(n.texto[1], medio + eje, medio - eje, e));
    return c;
  }

  Caja Filas(const Nodo& n, const Estilo& e) const {
    const double em = e.Em();
    const auto columnas = static_cast<std::size_t>(n.columnas);
    std::vector<Caja> celdas;
    std::vector<double> anchos(columnas, 0.0);
    for (std::size_t i = 0; i < n.partes.size(); ++i) {
      celdas.push_back(Celda(n.partes[i], e));
      anchos[i % columnas] = std::max(anchos[i % columnas], celdas.back().ancho);
    }
    Caja c;
    double y = 0;
    double abajo = 0;  // lowest ink so far
    for (std::size_t fila = 0; fila * columnas < celdas.size(); ++fila) {
      double alto = 0.7 * em;
      double hondo = 0.2 * em;
      for (std::size_t k = 0; k < columnas; ++k) {
        alto = std::max(alto, celdas[fila * columnas + k].alto);
        hondo = std::max(hondo, celdas[fila * columnas + k].hondo);
      }
      if (fila == 0) {
        c.alto = alto;
      } else {
        y = abajo + kEntreFilas * em + alto;
      }
      c.ancho = std::max(c.ancho, PonFila(n, celdas, anchos, fila, y, em, c));
      abajo = y + hondo;
    }
    c.hondo = abajo;
    return CentraEnEje(c, n.porCasos, e);
  }

  // Cells of aligned rows begin at a relation, which keeps its space.
  Caja Celda(const Nodos& nodos, const Estilo& e) const {
    Caja c;
    if (!nodos.empty() && nodos[0].clase == Clase::Relacion) c.ancho = kRelacion * e.Em();
    c.Sigue(Lista(nodos, e));
    return c;
  }

  static double PonFila(const Nodo& n, const std::vector<Caja>& celdas,
                        const std::vector<double>& anchos, std::size_t fila, double y, double em,
                        Caja& c) {
    double x = 0;
    for (std::size_t k = 0; k < anchos.size(); ++k) {
      const Caja& celda = celdas[fila * anchos.size() + k];
      const bool derecha = !n.porCasos && k % 2 == 0;
      c.Pon(celda, {derecha ? x + anchos[k] - celda.ancho : x, y});
      x += anchos[k];
      if (k + 1 == anchos.size()) break;
      if (n.porCasos) x += kEntreCasos * em;
      if (!n.porCasos && k % 2 == 1) x += kEntrePares * em;
    }
    return x;
  }

  Caja CentraEnEje(const Caja& filas, bool conLlave, const Estilo& e) const {
    const double eje = kEje * e.Em();
    const double medio = (filas.alto + filas.hondo) / 2.0;
    const double baja = filas.alto - medio - eje;
    Caja c;
    if (conLlave) {
      c.Sigue(Delimitador('{', medio + eje, medio - eje, e));
      c.ancho += 0.15 * e.Em();
    }
    c.Pon(filas, {c.ancho, baja});
    c.ancho += filas.ancho;
    c.alto = medio + eje;
    c.hondo = medio - eje;
    return c;
  }
};

}  // namespace

Caja ComponeFormula(const Tipografia& tipografia, const Formula& formula, double cuerpo,
                    bool despliegue) {
  return Compositor(tipografia).Lista(formula.nodos, {cuerpo, despliegue});
}

}  // namespace zorbin::memoria
