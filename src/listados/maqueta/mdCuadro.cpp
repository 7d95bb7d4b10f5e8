#include "listados/maqueta/mdCuadro.h"

#include <QStringList>
#include <algorithm>
#include <numeric>

#include "listados/maqueta/mdFormula.h"

namespace zorbin::memoria {

namespace {

constexpr double kHueco = 9.0;         // between columns, at least [pt]
constexpr double kHuecoMayor = 30.0;   // and at most, where the table is as wide as the text
constexpr double kMargen = 4.0;        // of the first and last column [pt]
constexpr double kAire = 3.1;          // above and below a row [pt]
constexpr double kInterlinea = 1.22;   // of the size
constexpr double kCuerpoMinimo = 6.2;  // letters are not made smaller [pt]
constexpr double kMaximoEntera = 150;  // a table up to this height is not cut [pt]
constexpr int kGrisCabeza = 90, kFondoCabeza = 243, kRaya = 215;

double Suma(const std::vector<double>& v) {
  return std::accumulate(v.begin(), v.end(), 0.0);
}

// Words of a text, and where a line must end.
QStringList PalabrasDe(const QString& linea) {
  return linea.split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

class Tablero {
 public:
  Tablero(const Tipografia& tipografia, const Cuadro& cuadro, double ancho)
      : tipos_(tipografia), c_(cuadro), texto_(ancho), cuerpo_(cuadro.cuerpo) {}

  std::vector<Franja> Franjas() {
    ReparteAnchos();
    std::vector<Franja> franjas;
    for (const auto& cabeza : c_.cabezas) franjas.push_back(DeCabeza(cabeza));
    const std::size_t cabezas = franjas.size();
    for (const auto& fila : c_.filas) franjas.push_back(DeFila(fila));
    Une(franjas, cabezas);
    return franjas;
  }

 private:
  const Tipografia& tipos_;
  const Cuadro& c_;
  const double texto_;  // width of the text
  double cuerpo_;
  double hueco_ = kHueco;
  std::vector<double> anchos_;
  double x0_ = 0, ancho_ = 0;

  std::size_t Columnas() const { return static_cast<std::size_t>(c_.columnas.size()); }

  Tipo TipoDe(bool negrita) const { return {negrita ? Letra::Negrita : Letra::Recta, cuerpo_}; }
  Tipo TipoCabeza() const { return {Letra::Negrita, cuerpo_ * 0.94, kGrisCabeza}; }

  Caja DeFormula(const QString& texto) const {
    return ComponeFormula(tipos_, LeeFormula(texto, 0), cuerpo_, false);
  }

  void MideTexto(const QString& texto, const Tipo& tipo, double& natural, double& minimo) const {
    for (const auto& linea : texto.split(QLatin1Char('\n'))) {
      natural = std::max(natural, tipos_.Ancho(linea, tipo));
      if (linea.contains(QLatin1Char(' '))) {
        for (const auto& palabra : PalabrasDe(linea)) {
          minimo = std::max(minimo, tipos_.Ancho(palabra, tipo));
        }
      } else {
        minimo = std::max(minimo, tipos_.Ancho(linea, tipo));
      }
    }
  }

  // @param cabezas  the heads ask for their whole width; otherwise they are broken into lines
  void Mide(std::vector<double>& natural, std::vector<double>& minimo, bool cabezas) const {
    natural.assign(Columnas(), 0.0);
    minimo.assign(Columnas(), 0.0);
    for (const auto& fila : c_.filas) {
      for (std::size_t i = 0; i < fila.celdas.size() && i < Columnas(); ++i) {
        const auto& celda = fila.celdas[i];
        if (celda.formula) {
          const double ancho = DeFormula(celda.texto).ancho;
          natural[i] = std::max(natural[i], ancho);
          minimo[i] = std::max(minimo[i], ancho);
        } else {
          MideTexto(celda.texto, TipoDe(fila.negrita || celda.negrita), natural[i], minimo[i]);
        }
      }
    }
    for (const auto& fila : c_.cabezas) {
      std::size_t i = 0;
      for (const auto& cabeza : fila) {
        double suyo = 0;
        if (cabeza.abarca == 1) MideTexto(cabeza.texto, TipoCabeza(), suyo, minimo[i]);
        natural[i] = std::max(natural[i], cabezas ? suyo : minimo[i]);
        i += static_cast<std::size_t>(cabeza.abarca);
      }
    }
    // No column is asked to be wider than a third of the text for one word.
    for (auto& m : minimo) m = std::min(m, texto_ / 3.0);
  }

  void ReparteAnchos() {
    const double huecos = static_cast<double>(Columnas() - 1);
    const double libre = texto_ - 2 * kMargen - kHueco * huecos;
    std::vector<double> minimo;
    for (;; cuerpo_ -= 0.4) {
      Mide(anchos_, minimo, true);
      if (Suma(anchos_) > libre) Mide(anchos_, minimo, false);
      if (Suma(minimo) <= libre || cuerpo_ - 0.4 < kCuerpoMinimo) break;
    }
    if (Suma(anchos_) > libre) Estrecha(minimo, libre);
    const double sobra = libre - Suma(anchos_);
    if (c_.ancho && sobra > 0) {
      if (huecos > 0) hueco_ = std::min(kHuecoMayor, kHueco + sobra / huecos);
      const double queda = sobra - (hueco_ - kHueco) * huecos;
      anchos_[ColumnaElastica()] += std::max(0.0, queda);
    }
    ancho_ = Suma(anchos_) + hueco_ * huecos + 2 * kMargen;
    x0_ = (texto_ - ancho_) / 2.0;
  }

  // What is left of the width goes to the widest column of words.
  std::size_t ColumnaElastica() const {
    std::size_t mayor = 0;
    bool hay = false;
    for (std::size_t i = 0; i < Columnas(); ++i) {
      if (c_.columnas[static_cast<qsizetype>(i)] != QLatin1Char('l')) continue;
      if (!hay || anchos_[i] > anchos_[mayor]) mayor = i;
      hay = true;
    }
    return mayor;
  }

  void Estrecha(const std::vector<double>& minimo, double libre) {
    if (Suma(minimo) > libre) {
      const double parte = libre / Suma(minimo);
      for (std::size_t i = 0; i < anchos_.size(); ++i) anchos_[i] = minimo[i] * parte;
      return;
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
    for (int vuelta = 0; vuelta < 30; ++vuelta) {
      const double tope = (bajo + alto) / 2.0;
      (Suma(conTope(tope)) <= libre ? bajo : alto) = tope;
    }
    anchos_ = conTope(bajo);
  }

  double X(std::size_t columna) const {
    const auto fin = anchos_.begin() + static_cast<std::ptrdiff_t>(columna);
    return x0_ + kMargen + std::accumulate(anchos_.begin(), fin, 0.0) +
           hueco_ * static_cast<double>(columna);
  }

  double Sitio(const Caja& caja, std::size_t columna, double ancho, QChar letra) const {
    const double sobra = ancho - caja.ancho;
    return X(columna) + (letra == u'r' ? sobra : letra == u'c' ? sobra / 2.0 : 0.0);
  }

  // Lines of a cell from the first baseline down. @return how deep they go
  double Pon(const QString& texto, const Tipo& tipo, std::size_t columna, double ancho, QChar letra,
             Caja& fila) const {
    double y = 0;
    for (const auto& renglon : Renglones(tipos_, texto, tipo, ancho + 0.05)) {
      Caja caja = tipos_.DeTexto(renglon, tipo);
      const double x = Sitio(caja, columna, ancho, letra);
      fila.Pon(std::move(caja), {x, y});
      y += kInterlinea * cuerpo_;
    }
    return std::max(0.0, y - kInterlinea * cuerpo_) + 0.24 * cuerpo_;
  }

  Franja DeFila(const FilaCuadro& fila) const {
    Franja f;
    f.caja.ancho = texto_;
    f.caja.alto = 0.72 * cuerpo_;
    for (std::size_t i = 0; i < fila.celdas.size() && i < Columnas(); ++i) {
      const auto& celda = fila.celdas[i];
      const QChar letra = c_.columnas[static_cast<qsizetype>(i)];
      if (celda.formula) {
        Caja caja = DeFormula(celda.texto);
        f.caja.alto = std::max(f.caja.alto, caja.alto);
        f.caja.hondo = std::max(f.caja.hondo, caja.hondo);
        const double x = Sitio(caja, i, anchos_[i], letra);
        f.caja.Pon(std::move(caja), {x, 0});
        continue;
      }
      const Tipo tipo = TipoDe(fila.negrita || celda.negrita);
      f.caja.hondo = std::max(f.caja.hondo, Pon(celda.texto, tipo, i, anchos_[i], letra, f.caja));
      if (!celda.destino.isEmpty()) {
        f.caja.Enlaza({X(i) - 2, -f.caja.alto, anchos_[i] + 4, f.caja.Altura()}, celda.destino);
      }
    }
    f.caja.alto += kAire;
    f.caja.hondo += kAire;
    f.caja.Raya({x0_, f.caja.hondo}, {x0_ + ancho_, f.caja.hondo}, 0.35, kRaya);
    if (fila.corte)
      f.caja.Raya({x0_, -f.caja.alto}, {x0_ + ancho_, -f.caja.alto}, 0.6, kGrisCabeza);
    return f;
  }

  Franja DeCabeza(const std::vector<CabezaCuadro>& cabezas) const {
    Franja f;
    const Tipo tipo = TipoCabeza();
    Caja letras;
    std::size_t columna = 0;
    for (const auto& cabeza : cabezas) {
      const auto ultima = columna + static_cast<std::size_t>(cabeza.abarca) - 1;
      const double ancho = X(ultima) + anchos_[ultima] - X(columna);
      const QChar letra =
          cabeza.abarca > 1 ? QChar(u'c') : c_.columnas[static_cast<qsizetype>(columna)];
      letras.hondo = std::max(letras.hondo, Pon(cabeza.texto, tipo, columna, ancho, letra, letras));
      if (cabeza.abarca > 1 && !cabeza.texto.isEmpty()) {
        letras.Raya({X(columna), 0.5 * cuerpo_}, {X(columna) + ancho, 0.5 * cuerpo_}, 0.4, 150);
      }
      columna = ultima + 1;
    }
    f.caja.ancho = texto_;
    f.caja.alto = 0.72 * cuerpo_ + kAire;
    f.caja.hondo = letras.hondo + kAire;
    f.caja.Fondo({x0_, -f.caja.alto, ancho_, f.caja.Altura()}, kFondoCabeza);
    f.caja.Pon(std::move(letras), {0, 0});
    return f;
  }

  static void Une(std::vector<Franja>& franjas, std::size_t cabezas) {
    double total = 0;
    for (const auto& f : franjas) total += f.caja.Altura();
    auto cabecera = std::make_shared<Caja>();
    for (std::size_t i = 0; i < cabezas; ++i) {
      const auto& caja = franjas[i].caja;
      const double y = i == 0 ? 0 : cabecera->hondo + caja.alto;
      if (i == 0) cabecera->alto = caja.alto;
      cabecera->Pon(caja, {0, y});
      cabecera->hondo = y + caja.hondo;
    }
    for (std::size_t i = 0; i < franjas.size(); ++i) {
      const bool ultima = i + 1 == franjas.size();
      const bool borde = i < cabezas + 1 || i + 2 == franjas.size();
      franjas[i].pega = !ultima && (total <= kMaximoEntera || borde);
      if (i > cabezas && cabezas > 0) franjas[i].cabecera = cabecera;
    }
  }
};

// The first characters of a word that fit a width, one at least.
qsizetype Cabe(const Tipografia& tipografia, const QString& palabra, const Tipo& tipo,
               double ancho) {
  qsizetype bajo = 1;
  qsizetype alto = palabra.size();
  while (bajo < alto) {
    const qsizetype medio = (bajo + alto + 1) / 2;
    (tipografia.Ancho(palabra.left(medio), tipo) <= ancho ? bajo : alto) =
        tipografia.Ancho(palabra.left(medio), tipo) <= ancho ? medio : medio - 1;
  }
  return bajo;
}

}  // namespace

std::vector<QString> Renglones(const Tipografia& tipografia, const QString& texto, const Tipo& tipo,
                               double ancho) {
  std::vector<QString> renglones;
  for (const auto& parrafo : texto.split(QLatin1Char('\n'))) {
    if (tipografia.Ancho(parrafo, tipo) <= ancho) {
      renglones.push_back(parrafo);
      continue;
    }
    QString linea;
    for (QString palabra : PalabrasDe(parrafo)) {
      const QString junta = linea.isEmpty() ? palabra : linea + QLatin1Char(' ') + palabra;
      if (tipografia.Ancho(junta, tipo) <= ancho) {
        linea = junta;
        continue;
      }
      if (!linea.isEmpty()) renglones.push_back(linea);
      while (tipografia.Ancho(palabra, tipo) > ancho) {
        const auto caben = Cabe(tipografia, palabra, tipo, ancho);
        if (caben >= palabra.size()) break;
        renglones.push_back(palabra.left(caben));
        palabra = palabra.mid(caben);
      }
      linea = palabra;
    }
    renglones.push_back(linea);
  }
  return renglones;
}

QString Acortado(const Tipografia& tipografia, const QString& texto, const Tipo& tipo,
                 double ancho) {
  if (tipografia.Ancho(texto, tipo) <= ancho) return texto;
  const QString puntos = QStringLiteral("…");
  const auto caben = Cabe(tipografia, texto, tipo, ancho - tipografia.Ancho(puntos, tipo));
  return texto.left(caben).trimmed() + puntos;
}

std::vector<Franja> FranjasDeCuadro(const Tipografia& tipografia, const Cuadro& cuadro,
                                    double ancho) {
  return Tablero(tipografia, cuadro, ancho).Franjas();
}

}  // namespace zorbin::memoria
