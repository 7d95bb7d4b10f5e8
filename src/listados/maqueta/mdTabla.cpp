#include "listados/maqueta/mdTabla.h"

#include <algorithm>
#include <numeric>

#include "listados/maqueta/mdError.h"

namespace zorbin::memoria {

namespace {

constexpr double kHueco = 11.0;        // between columns [pt]
constexpr double kBajoCabeza = 1.3;    // more above the first row [pt]
constexpr double kInterlinea = 1.28;   // of the size
constexpr double kAire = 2.1;          // above and below a row [pt]
constexpr double kMaximoEntera = 380;  // a table up to this height is not cut [pt]
constexpr double kGruesa = 0.9, kFina = 0.4;

struct Celda {
  const Elemento* e = nullptr;
  std::vector<Palabra> palabras;
  std::size_t columna = 0;
  std::size_t abarca = 1;
  bool cabeza = false;
};

using Fila = std::vector<Celda>;

class Tablero {
 public:
  Tablero(const Tipografia& tipografia, const Referencia& referencia, const Elemento& tabla)
      : tipos_(tipografia), referencia_(referencia), tabla_(tabla) {
    cols_ = tabla.Atributo(QStringLiteral("cols"));
    if (cols_.isEmpty()) throw ErrorFuente(tabla.linea, QStringLiteral("cols is missing"));
    if (!tabla.Atributo(QStringLiteral("cuerpo")).isEmpty()) {
      cuerpo_ = tabla.Atributo(QStringLiteral("cuerpo")).toDouble();
    }
  }

  std::vector<Franja> Franjas() {
    LeeFilas();
    ReparteAnchos();
    std::vector<Franja> franjas;
    for (const auto& fila : filas_) franjas.push_back(DeFila(fila));
    if (Cabezas() < franjas.size()) franjas[Cabezas()].caja.alto += kBajoCabeza;
    Rayas(franjas);
    Une(franjas);
    return franjas;
  }

 private:
  const Tipografia& tipos_;
  const Referencia& referencia_;
  const Elemento& tabla_;
  QString cols_;
  double cuerpo_ = 9.0;
  std::vector<Fila> filas_;
  std::vector<double> anchos_;
  double x0_ = 0;
  double ancho_ = 0;

  void LeeFilas() {
    for (const auto& tr : tabla_.hijos) {
      if (tr.EsTexto() || tr.nombre == "caption") continue;
      if (tr.nombre != "tr") throw ErrorFuente(tr.linea, QStringLiteral("<tr> expected"));
      filas_.push_back(LeeFila(tr));
    }
    if (filas_.empty()) throw ErrorFuente(tabla_.linea, QStringLiteral("a table without rows"));
  }

  Fila LeeFila(const Elemento& tr) const {
    Fila fila;
    std::size_t columna = 0;
    for (const auto& e : tr.hijos) {
      if (e.EsTexto()) continue;
      if (e.nombre != "td" && e.nombre != "th") {
        throw ErrorFuente(e.linea, QStringLiteral("<td> expected"));
      }
      Celda c;
      c.e = &e;
      c.cabeza = e.nombre == "th";
      c.columna = columna;
      const QString abarca = e.Atributo(QStringLiteral("colspan"));
      if (!abarca.isEmpty()) c.abarca = abarca.toUInt();
      columna += c.abarca;
      c.palabras =
          Palabras(tipos_, e, {c.cabeza ? Letra::Negrita : Letra::Recta, cuerpo_}, referencia_);
      fila.push_back(std::move(c));
    }
    if (columna != static_cast<std::size_t>(cols_.size())) {
      throw ErrorFuente(tr.linea, QStringLiteral("%1 columns, not %2")
                                      .arg(static_cast<int>(columna))
                                      .arg(static_cast<int>(cols_.size())));
    }
    return fila;
  }

  // Natural widths where they fit; otherwise the widest columns give way.
  void ReparteAnchos() {
    const auto columnas = static_cast<std::size_t>(cols_.size());
    std::vector<double> minimo(columnas, 0.0);
    anchos_.assign(columnas, 0.0);
    for (const auto& fila : filas_) {
      for (const auto& c : fila) {
        if (c.abarca > 1) continue;
        minimo[c.columna] = std::max(minimo[c.columna], AnchoMinimo(c.palabras) + 0.1);
        anchos_[c.columna] = std::max(anchos_[c.columna], AnchoNatural(c.palabras) + 0.1);
      }
    }
    const double libre = kColumna - kHueco * static_cast<double>(columnas - 1);
    const double pide = std::accumulate(anchos_.begin(), anchos_.end(), 0.0);
    if (pide > libre) Estrecha(minimo, libre);
    ancho_ = std::accumulate(anchos_.begin(), anchos_.end(), 0.0) +
             kHueco * static_cast<double>(columnas - 1);
    x0_ = (kColumna - ancho_) / 2.0;
  }

  void Estrecha(const std::vector<double>& minimo, double libre) {
    const double menos = std::accumulate(minimo.begin(), minimo.end(), 0.0);
    if (menos > libre) {
      throw ErrorFuente(
          tabla_.linea,
          QStringLiteral("the table is %1 pt too wide").arg(menos - libre, 0, 'f', 0));
    }
    const auto conTope = [&](double tope) {
      std::vector<double> anchos = anchos_;
      for (std::size_t i = 0; i < anchos.size(); ++i) {
        anchos[i] = std::min(anchos[i], std::max(tope, minimo[i]));
      }
      return anchos;
    };
    double bajo = 0;
    double alto = libre;
    for (int vuelta = 0; vuelta < 40; ++vuelta) {
      const double tope = (bajo + alto) / 2.0;
      const auto anchos = conTope(tope);
      (std::accumulate(anchos.begin(), anchos.end(), 0.0) <= libre ? bajo : alto) = tope;
    }
    anchos_ = conTope(bajo);
  }

  double X(std::size_t columna) const {
    return x0_ +
           std::accumulate(anchos_.begin(), anchos_.begin() + static_cast<std::ptrdiff_t>(columna),
                           0.0) +
           kHueco * static_cast<double>(columna);
  }

  double Ancho(const Celda& c) const {
    const std::size_t ultima = c.columna + c.abarca - 1;
    return X(ultima) + anchos_[ultima] - X(c.columna);
  }

  Alinea AlineaDe(const Celda& c) const {
    if (c.abarca > 1) return Alinea::Centro;
    const QChar letra = cols_[static_cast<qsizetype>(c.columna)];
    if (letra == 'r') return Alinea::Derecha;
    return letra == 'c' ? Alinea::Centro : Alinea::Izquierda;
  }

  // Lines of a cell from the first baseline down. @return how deep they go
  double PonCelda(const Celda& c, Caja& fila, double& alto) const {
    double y = 0;
    double hondo = 0;
    bool primera = true;
    for (const auto& linea : Lineas(c.palabras, Ancho(c), AlineaDe(c))) {
      const double sobre = std::max(linea.alto, 0.72 * cuerpo_);
      if (primera) {
        alto = std::max(alto, sobre);
      } else {
        y += std::max(kInterlinea * cuerpo_, hondo - y + sobre + 1.0);
      }
      primera = false;
      fila.Pon(linea, {X(c.columna), y});
      hondo = y + std::max(linea.hondo, 0.24 * cuerpo_);
    }
    return hondo;
  }

  Franja DeFila(const Fila& fila) const {
    Franja f;
    f.linea = tabla_.linea;
    f.caja.ancho = kColumna;
    double alto = 0;
    for (const auto& c : fila) {
      f.caja.hondo = std::max(f.caja.hondo, PonCelda(c, f.caja, alto));
    }
    const bool alta = alto + f.caja.hondo > 1.9 * cuerpo_;
    f.caja.alto = alto + kAire + (alta ? 1.6 : 0.0);
    f.caja.hondo += kAire + (alta ? 1.6 : 0.0);
    for (const auto& c : fila) {
      if (c.cabeza && c.abarca > 1 && !c.palabras.empty()) {
        f.caja.Raya({X(c.columna), f.caja.hondo}, {X(c.columna) + Ancho(c), f.caja.hondo}, kFina);
      }
    }
    return f;
  }

  std::size_t Cabezas() const {
    std::size_t n = 0;
    const auto esCabeza = [](const Celda& c) { return c.cabeza; };
    while (n < filas_.size() && std::all_of(filas_[n].begin(), filas_[n].end(), esCabeza)) ++n;
    return n;
  }

  void Rayas(std::vector<Franja>& franjas) const {
    const auto raya = [this](Caja& caja, double y, double grueso) {
      caja.Raya({x0_ - 3, y}, {x0_ + ancho_ + 3, y}, grueso);
    };
    const std::size_t cabezas = Cabezas();
    raya(franjas.front().caja, -franjas.front().caja.alto, kGruesa);
    if (cabezas > 0) {
      auto& ultima = franjas[cabezas - 1].caja;
      raya(ultima, ultima.hondo, kFina);
    }
    for (std::size_t i = cabezas; i + 1 < filas_.size(); ++i) {
      const bool corte = !filas_[i + 1].front().e->Atributo(QStringLiteral("corte")).isEmpty();
      if (corte) raya(franjas[i].caja, franjas[i].caja.hondo, kFina);
    }
    raya(franjas.back().caja, franjas.back().caja.hondo, kGruesa);
  }

  void Une(std::vector<Franja>& franjas) const {
    double total = 0;
    for (const auto& f : franjas) total += f.caja.Altura();
    const std::size_t cabezas = Cabezas();
    auto cabecera = std::make_shared<Caja>();
    for (std::size_t i = 0; i < cabezas; ++i) Apila(*cabecera, franjas[i].caja);
    for (std::size_t i = 0; i < franjas.size(); ++i) {
      const bool ultima = i + 1 == franjas.size();
      const bool borde = i < cabezas + 1 || i + 2 == franjas.size();
      franjas[i].pega = !ultima && (total <= kMaximoEntera || borde);
      if (i > cabezas && cabezas > 0) franjas[i].cabecera = cabecera;
    }
  }

  static void Apila(Caja& pila, const Caja& caja) {
    const double y = pila.piezas.empty() ? 0 : pila.hondo + caja.alto;
    if (pila.piezas.empty()) pila.alto = caja.alto;
    pila.Pon(caja, {0, y});
    pila.hondo = y + caja.hondo;
  }
};

}  // namespace

std::vector<Franja> FranjasDeTabla(const Tipografia& tipografia, const Referencia& referencia,
                                   const Elemento& tabla) {
  return Tablero(tipografia, referencia, tabla).Franjas();
}

}  // namespace zorbin::memoria
