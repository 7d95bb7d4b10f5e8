#include "listados/maqueta/mdRedactor.h"

#include <algorithm>

#include "listados/maqueta/mdFormula.h"
#include "listados/maqueta/mdParrafo.h"

namespace zorbin::memoria {

namespace {

constexpr double kCuerpo = 10.0;
constexpr double kCuerpoPie = 8.5;
constexpr double kCuerpoPaso = 9.2;
constexpr double kLineaAlto = 1.02, kLineaHondo = 0.36;  // of a line, of the size
constexpr double kAire = 0.8;                            // round the ink of a higher one [pt]
constexpr double kHuecoFiguras = 16.0;
constexpr double kCuerpoFormulaMinimo = 6.5;

Elemento Llano(const QString& texto) {
  Elemento e;
  Elemento t;
  t.texto = texto;
  e.hijos.push_back(std::move(t));
  return e;
}

// Without a reference: the documents of a program have none in their lines.
QString SinReferencia(const Elemento& e) {
  return TextoLlano(e);
}

}  // namespace

QString Redactor::Siguiente(int& cuenta) const {
  return QStringLiteral("%1.%2").arg(capitulo_).arg(++cuenta);
}

void Redactor::Lineas(const Elemento& e, const Aspecto& aspecto, bool pega, bool entero) {
  const Tipo& tipo = aspecto.tipo;
  const double ancho = ancho_ - 2 * aspecto.sangria;
  const auto alinea = aspecto.centra      ? Alinea::Centro
                      : aspecto.justifica ? Alinea::Justificado
                                          : Alinea::Izquierda;
  auto palabras = Palabras(tipos_, e, tipo, SinReferencia);
  auto lineas = memoria::Lineas(palabras, ancho, alinea);
  const std::size_t primera = franjas_.size();
  for (auto& linea : lineas) {
    if (linea.ancho > ancho + 0.5) {  // a word longer than the line
      const double escala = ancho / linea.ancho;
      Tipo menor = tipo;
      menor.cuerpo *= std::max(escala, 0.5);
      QString texto;
      for (const auto& pieza : linea.piezas) {
        if (const auto* t = std::get_if<TextoPuesto>(&pieza)) texto += t->texto;
      }
      linea = tipos_.DeTexto(Acortado(tipos_, texto, menor, ancho), menor);
    }
    Franja f;
    f.caja.ancho = ancho_;
    f.caja.alto = std::max(kLineaAlto * tipo.cuerpo, linea.alto + kAire);
    f.caja.hondo = std::max(kLineaHondo * tipo.cuerpo, linea.hondo + kAire);
    f.caja.Pon(std::move(linea), {aspecto.sangria, 0});
    f.pega = entero;
    franjas_.push_back(std::move(f));
  }
  if (franjas_.size() == primera) return;
  franjas_[primera].antes = aspecto.antes;
  if (franjas_.size() - primera > 1) {
    franjas_[primera].pega = true;
    franjas_[franjas_.size() - 2].pega = true;
  }
  franjas_.back().pega = pega;
}

void Redactor::Titular(int nivel, const QString& numero, const QString& titulo,
                       const QString& ancla) {
  const double cuerpo = nivel == 1 ? 16.0 : nivel == 2 ? 12.5 : 10.5;
  const std::size_t primera = franjas_.size();
  const QString rotulo = numero.isEmpty() ? titulo : numero + QString(2, QChar::Nbsp) + titulo;
  Lineas(Llano(rotulo), {{Letra::Negrita, cuerpo}, nivel == 2 ? 15.0 : 10.0}, true, true);
  if (franjas_.size() == primera) return;
  auto& f = franjas_[primera];
  f.nuevaPagina = nivel == 1;
  f.nivel = nivel;
  f.numero = numero;
  f.titulo = titulo;
  f.ancla = ancla;
  if (nivel == 1) franjas_.back().caja.hondo += 6;
}

void Redactor::Capitulo(const QString& titulo, const QString& ancla) {
  ++capitulo_;
  apartado_ = tablas_ = figuras_ = 0;
  Titular(1, QString::number(capitulo_), titulo, ancla);
}

void Redactor::Hoja(const QString& titulo, const QString& ancla) {
  Titular(1, {}, titulo, ancla);
}

void Redactor::Apartado(const QString& titulo, const QString& ancla) {
  Titular(2, Siguiente(apartado_), titulo, ancla);
}

void Redactor::Epigrafe(const QString& titulo, const QString& ancla) {
  Titular(3, {}, titulo, ancla);
}

void Redactor::Parrafo(const QString& texto, bool pega, bool negrita) {
  const Letra letra = negrita ? Letra::Negrita : Letra::Recta;
  Lineas(Llano(texto), {{letra, kCuerpo}, 5.0, 0, true}, pega, false);
}

void Redactor::Marcado(const QString& html, bool pega) {
  Elemento e = LeeHtml(html);
  Lineas(e, {{Letra::Recta, kCuerpo}, 5.0, 0, true}, pega, false);
}

void Redactor::Nota(const QString& texto, bool negrita) {
  const std::size_t primera = franjas_.size();
  const Letra letra = negrita ? Letra::Negrita : Letra::Recta;
  Lineas(Llano(texto), {{letra, 9.0}, 6.0, 12.0, false}, false, false);
  for (std::size_t i = primera; i < franjas_.size(); ++i) {
    auto& c = franjas_[i].caja;
    c.Raya({3, -c.alto}, {3, c.hondo + 0.05}, 2.0, negrita ? 60 : 150);
  }
}

void Redactor::Formula(const QString& texto, const QString& numero, const QString& ancla) {
  const auto leida = LeeFormula(texto, 0);
  const Caja rotulo = numero.isEmpty()
                          ? Caja()
                          : tipos_.DeTexto(QStringLiteral("(%1)").arg(numero), {Letra::Recta, 9.0});
  const double libre = ancho_ - rotulo.ancho - (numero.isEmpty() ? 0 : 10);
  double cuerpo = kCuerpo;
  Caja formula = ComponeFormula(tipos_, leida, cuerpo, true);
  if (formula.ancho > libre) {
    cuerpo = std::max(kCuerpoFormulaMinimo, cuerpo * libre / formula.ancho);
    formula = ComponeFormula(tipos_, leida, cuerpo, true);
  }
  Franja f;
  f.antes = 5.0;
  f.ancla = ancla;
  f.caja.ancho = ancho_;
  f.caja.alto = std::max(kLineaAlto * kCuerpo, formula.alto);
  f.caja.hondo = std::max(kLineaHondo * kCuerpo, formula.hondo) + 2.0;
  const double x = std::max(0.0, std::min((ancho_ - formula.ancho) / 2.0, libre - formula.ancho));
  f.caja.Pon(std::move(formula), {x, 0});
  f.caja.Pon(rotulo, {ancho_ - rotulo.ancho, 0});
  franjas_.push_back(std::move(f));
}

void Redactor::Paso(const QString& rotulo, const std::vector<QString>& partes,
                    const QString& numero, bool pega) {
  constexpr double kRotulo = 128.0, kHueco = 10.0, kEntreLineas = 3.5;
  const Tipo menor{Letra::Recta, 8.2, 70};
  const Caja cifra =
      numero.isEmpty() ? Caja() : tipos_.DeTexto(QStringLiteral("(%1)").arg(numero), menor);
  const double x = kRotulo + kHueco;
  const double libre = ancho_ - x - 34.0;
  std::vector<Caja> lineas;
  for (const auto& parte : partes) {
    const auto leida = LeeFormula(parte, 0);
    Caja caja = ComponeFormula(tipos_, leida, kCuerpoPaso, true);
    if (caja.ancho > libre) {
      const double cuerpo = std::max(kCuerpoFormulaMinimo, kCuerpoPaso * libre / caja.ancho * 0.98);
      caja = ComponeFormula(tipos_, leida, cuerpo, true);
    }
    constexpr double kEntrePartes = 0.28 * kCuerpoPaso;
    if (!lineas.empty() && lineas.back().ancho + kEntrePartes + caja.ancho <= libre) {
      lineas.back().ancho += kEntrePartes;
      lineas.back().Sigue(caja);
    } else {
      lineas.push_back(std::move(caja));
    }
  }
  Franja f;
  f.pega = pega;
  f.antes = 4.5;
  f.caja.ancho = ancho_;
  f.caja.alto = 0.8 * kCuerpoPaso;
  double y = 0;
  for (const auto& renglon : Renglones(tipos_, rotulo, menor, kRotulo)) {
    f.caja.Pon(tipos_.DeTexto(renglon, menor), {0, y});
    f.caja.hondo = y + 0.3 * menor.cuerpo;
    y += 1.2 * menor.cuerpo;
  }
  y = 0;
  for (std::size_t i = 0; i < lineas.size(); ++i) {
    if (i == 0) {
      f.caja.alto = std::max(f.caja.alto, lineas[i].alto);
    } else {
      y += lineas[i - 1].hondo + kEntreLineas + lineas[i].alto;
    }
    f.caja.hondo = std::max(f.caja.hondo, y + lineas[i].hondo);
    f.caja.Pon(Caja(lineas[i]), {i == 0 ? x : x + 12.0, y});
  }
  f.caja.Pon(cifra, {ancho_ - cifra.ancho, 0});
  franjas_.push_back(std::move(f));
}

void Redactor::Tabla(const Cuadro& cuadro, const QString& titulo) {
  if (!titulo.isEmpty()) {
    const QString numero = tabla_ + QChar::Nbsp + Siguiente(tablas_) + ". ";
    Elemento e = Llano(titulo);
    Elemento b = Llano(numero);
    b.nombre = QStringLiteral("b");
    e.hijos.insert(e.hijos.begin(), std::move(b));
    Lineas(e, {{Letra::Recta, kCuerpoPie}, 11.0}, true, true);
  }
  auto franjas = FranjasDeCuadro(tipos_, cuadro, ancho_);
  if (franjas.empty()) return;
  franjas.front().antes = titulo.isEmpty() ? 7.0 : 3.0;
  franjas.back().caja.hondo += 7.0;
  for (auto& f : franjas) franjas_.push_back(std::move(f));
}

void Redactor::Figuras(std::vector<std::pair<DibujoFigura, QString>> dibujos) {
  for (std::size_t i = 0; i < dibujos.size();) {
    double ancho = dibujos[i].first.ancho;
    std::size_t fin = i + 1;
    while (fin < dibujos.size() && ancho + kHuecoFiguras + dibujos[fin].first.ancho <= ancho_) {
      ancho += kHuecoFiguras + dibujos[fin++].first.ancho;
    }
    FilaDeFiguras(dibujos, i, fin, ancho);
    i = fin;
  }
}

void Redactor::FilaDeFiguras(std::vector<std::pair<DibujoFigura, QString>>& dibujos,
                             std::size_t desde, std::size_t hasta, double ancho) {
  Franja f;
  f.antes = 9.0;
  f.caja.ancho = ancho_;
  Caja pies;
  double x = (ancho_ - ancho) / 2.0;
  double bajo = 0;
  for (std::size_t i = desde; i < hasta; ++i) {
    const auto& d = dibujos[i].first;
    f.caja.Dibuja({x, -d.alto, d.ancho, d.alto}, d.pinta);
    f.caja.alto = std::max(f.caja.alto, d.alto);
    const QString pie = figura_ + QChar::Nbsp + Siguiente(figuras_) + ". " + dibujos[i].second;
    const Tipo tipo{Letra::Recta, kCuerpoPie};
    // A caption may be wider than a narrow drawing that stands alone.
    const double cabe = hasta - desde == 1 ? std::max(d.ancho, ancho_ * 0.8) : d.ancho;
    double y = 12.0;
    for (const auto& renglon : Renglones(tipos_, pie, tipo, cabe)) {
      Caja c = tipos_.DeTexto(renglon, tipo);
      const double sitio = x + (d.ancho - c.ancho) / 2.0;
      pies.Pon(std::move(c), {sitio, y});
      bajo = std::max(bajo, y);
      y += 1.25 * kCuerpoPie;
    }
    x += d.ancho + kHuecoFiguras;
  }
  f.caja.Pon(std::move(pies), {0, 0});
  f.caja.hondo = bajo + 7.0;
  franjas_.push_back(std::move(f));
}

void Redactor::Hueco(double alto) {
  Franja f;
  f.caja.ancho = ancho_;
  f.caja.alto = alto;
  franjas_.push_back(std::move(f));
}

}  // namespace zorbin::memoria
