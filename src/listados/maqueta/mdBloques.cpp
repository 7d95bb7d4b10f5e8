#include "listados/maqueta/mdBloques.h"

#include <algorithm>

#include "listados/maqueta/mdDibujos.h"
#include "listados/maqueta/mdError.h"
#include "listados/maqueta/mdFormula.h"
#include "listados/maqueta/mdTabla.h"

namespace zorbin::memoria {

namespace {

constexpr double kAntesParrafo = 5.5;
constexpr double kAntesFormula = 7.0;
constexpr double kAntesFigura = 12.0;
constexpr double kLineaAlto = 10.6;  // room of a line above its baseline, at least
constexpr double kLineaHondo = 3.6;  // and below
constexpr double kAire = 0.8;        // round the ink of a line that is higher
constexpr double kSangriaLista = 15.0;
constexpr double kSangriaNota = 12.0;
constexpr double kCuerpoPie = 9.5;
constexpr double kMm = 72.0 / 25.4;

double LineaAlto(const Caja& linea, double cuerpo) {
  return std::max(kLineaAlto * cuerpo / kCuerpo, linea.alto + kAire);
}
double LineaHondo(const Caja& linea, double cuerpo) {
  return std::max(kLineaHondo * cuerpo / kCuerpo, linea.hondo + kAire);
}

Elemento DeTexto(const QString& texto, int linea) {
  Elemento e;
  e.texto = texto;
  e.linea = linea;
  return e;
}

// `e` with a label in bold before its text.
Elemento ConRotulo(const Elemento& e, const QString& rotulo) {
  Elemento con = e;
  Elemento b;
  b.nombre = QStringLiteral("b");
  b.linea = e.linea;
  b.hijos.push_back(DeTexto(rotulo, e.linea));
  con.hijos.insert(con.hijos.begin(), {b, DeTexto(QStringLiteral(" "), e.linea)});
  return con;
}

double Milimetros(const Elemento& e, const QString& atributo) {
  QString s = e.Atributo(atributo);
  if (s.endsWith("mm")) s.chop(2);
  bool bien = false;
  const double mm = s.toDouble(&bien);
  if (!bien || mm <= 0) throw ErrorFuente(e.linea, QStringLiteral("width in mm expected"));
  return mm * kMm;
}

}  // namespace

const Elemento* Hijo(const Elemento& e, const QString& nombre) {
  for (const auto& hijo : e.hijos) {
    if (hijo.nombre == nombre) return &hijo;
  }
  return nullptr;
}

std::vector<Franja> Bloques::DeCapitulo(const Elemento& cuerpo) {
  franjas_.clear();
  for (const auto& e : cuerpo.hijos) Bloque(e);
  return std::move(franjas_);
}

void Bloques::Bloque(const Elemento& e) {
  if (e.EsTexto()) {
    if (!e.texto.simplified().isEmpty()) {
      throw ErrorFuente(e.linea, QStringLiteral("text outside a paragraph"));
    }
    return;
  }
  if (e.nombre == "datos") return;
  if (e.nombre == "h1" || e.nombre == "h2" || e.nombre == "h3") return Titular(e);
  if (e.nombre == "p") {
    auto franjas = Parrafo(e, {Letra::Recta, kCuerpo}, 0, kColumna, Alinea::Justificado);
    if (!franjas.empty() && TextoLlano(e).endsWith(':')) franjas.back().pega = true;
    return Anade(std::move(franjas), kAntesParrafo);
  }
  if (e.nombre == "ul" || e.nombre == "ol") return Lista(e);
  if (e.nombre == "aside") return Nota(e);
  if (e.nombre == "$$") return Formula(e, {});
  if (e.nombre == "div") {
    if (const auto* f = Hijo(e, QStringLiteral("$$"))) return Formula(*f, e.numero);
    throw ErrorFuente(e.linea, QStringLiteral("a <div> holds a formula $$…$$"));
  }
  if (e.nombre == "table") return Tabla(e);
  if (e.nombre == "figure") return Figura(e);
  throw ErrorFuente(e.linea, QStringLiteral("<%1> is no block").arg(e.nombre));
}

void Bloques::Anade(std::vector<Franja> franjas, double antes) {
  if (franjas.empty()) return;
  franjas.front().antes = antes;
  for (auto& f : franjas) franjas_.push_back(std::move(f));
}

// Lines of a paragraph; its first two and its last two stay together.
std::vector<Franja> Bloques::Parrafo(const Elemento& e, const Tipo& tipo, double sangria,
                                     double ancho, Alinea alinea) const {
  std::vector<Franja> franjas;
  for (const auto& linea : Lineas(Palabras(tipos_, e, tipo, referencia_), ancho, alinea)) {
    if (linea.ancho > ancho + 0.5) {
      throw ErrorFuente(e.linea, QStringLiteral("something here is wider than the line"));
    }
    Franja f;
    f.caja.ancho = kColumna;
    f.caja.alto = LineaAlto(linea, tipo.cuerpo);
    f.caja.hondo = LineaHondo(linea, tipo.cuerpo);
    f.caja.Pon(linea, {sangria, 0});
    f.linea = e.linea;
    franjas.push_back(std::move(f));
  }
  if (franjas.size() > 1) {
    franjas.front().pega = true;
    franjas[franjas.size() - 2].pega = true;
  }
  return franjas;
}

void Bloques::Titular(const Elemento& e) {
  const int nivel = e.nombre[1].digitValue();
  const double cuerpo = nivel == 1 ? 17.0 : nivel == 2 ? 12.5 : 10.5;
  const Letra letra = nivel == 3 ? Letra::NegritaCursiva : Letra::Negrita;
  Elemento con = e;
  if (!e.numero.isEmpty()) {
    const auto hueco = QString(2, QChar::Nbsp);
    con.hijos.insert(con.hijos.begin(), DeTexto(e.numero + hueco, e.linea));
  }
  auto franjas = Parrafo(con, {letra, cuerpo}, 0, kColumna, Alinea::Izquierda);
  for (auto& f : franjas) f.pega = true;
  if (nivel == 1) {
    auto& ultima = franjas.back().caja;
    ultima.hondo += 5;
    ultima.Raya({0, ultima.hondo}, {kColumna, ultima.hondo}, 0.8);
    ultima.hondo += 8;
  }
  auto& primera = franjas.front();
  primera.nuevaPagina = nivel == 1;
  primera.nivel = nivel;
  primera.numero = e.numero;
  primera.titulo = TextoLlano(e);
  Anade(std::move(franjas), nivel == 2 ? 15.0 : 9.0);
}

void Bloques::Lista(const Elemento& e) {
  int cuenta = 0;
  for (const auto& li : e.hijos) {
    if (li.EsTexto()) continue;
    if (li.nombre != "li") throw ErrorFuente(li.linea, QStringLiteral("<li> expected"));
    ++cuenta;
    const QString marca =
        e.nombre == "ol" ? QStringLiteral("%1.").arg(cuenta) : QStringLiteral("–");
    const Tipo tipo{Letra::Recta, kCuerpo};
    auto franjas = Parrafo(li, tipo, kSangriaLista, kColumna - kSangriaLista, Alinea::Justificado);
    if (!franjas.empty()) franjas.front().caja.Pon(tipos_.DeTexto(marca, tipo), {2.0, 0});
    Anade(std::move(franjas), cuenta == 1 ? 4.0 : 2.5);
  }
}

// A remark with a bar at its side.
void Bloques::Nota(const Elemento& e) {
  const Tipo tipo{Letra::Recta, kCuerpoPie};
  auto franjas = Parrafo(e, tipo, kSangriaNota, kColumna - 2 * kSangriaNota, Alinea::Justificado);
  for (auto& f : franjas) f.caja.Raya({3, -f.caja.alto}, {3, f.caja.hondo + 0.05}, 2.0, 150);
  Anade(std::move(franjas), 7.5);
}

void Bloques::Formula(const Elemento& e, const QString& numero) {
  const auto formula = ComponeFormula(tipos_, LeeFormula(e.texto, e.linea), kCuerpo, true);
  const Caja rotulo =
      numero.isEmpty() ? Caja() : tipos_.DeTexto("(" + numero + ")", {Letra::Recta, kCuerpo});
  const double libre = kColumna - 2 * rotulo.ancho;
  double x = (kColumna - formula.ancho) / 2.0;
  if (formula.ancho > libre - 8) x = std::max(0.0, libre + rotulo.ancho - 8 - formula.ancho);
  if (formula.ancho > kColumna - rotulo.ancho - 8) {
    throw ErrorFuente(e.linea,
                      QStringLiteral("the formula is %1 mm too wide")
                          .arg((formula.ancho - kColumna + rotulo.ancho + 8) / kMm, 0, 'f', 1));
  }
  Franja f;
  f.linea = e.linea;
  f.antes = kAntesFormula;
  f.caja.ancho = kColumna;
  f.caja.alto = std::max(kLineaAlto, formula.alto);
  f.caja.hondo = std::max(kLineaHondo, formula.hondo) + kAntesFormula - kAntesParrafo;
  f.caja.Pon(formula, {x, 0});
  f.caja.Pon(rotulo, {kColumna - rotulo.ancho, 0});
  if (!franjas_.empty()) franjas_.back().pega = true;  // with the words that announce it
  franjas_.push_back(std::move(f));
}

// Caption of a table or figure.
void Bloques::Pie(const Elemento& e, const QString& rotulo, double antes, bool pega) {
  const Tipo tipo{Letra::Recta, kCuerpoPie};
  auto franjas = Parrafo(ConRotulo(e, rotulo), tipo, 15, kColumna - 30, Alinea::Centro);
  for (auto& f : franjas) f.pega = true;
  if (!franjas.empty()) franjas.back().pega = pega;
  Anade(std::move(franjas), antes);
}

void Bloques::Tabla(const Elemento& e) {
  if (const auto* titulo = Hijo(e, QStringLiteral("caption"))) {
    Pie(*titulo, rotulos_.tabla + QChar::Nbsp + e.numero + ".", kAntesFigura, true);
  }
  const double antes = Hijo(e, QStringLiteral("caption")) != nullptr ? 4.0 : kAntesFigura - 4.0;
  auto franjas = FranjasDeTabla(tipos_, referencia_, e);
  if (!franjas.empty()) franjas.back().caja.hondo += 6.0;
  Anade(std::move(franjas), antes);
}

Caja Bloques::Imagen(const Elemento& img) const {
  const double ancho = Milimetros(img, QStringLiteral("width"));
  const QString nombre = img.Atributo(QStringLiteral("src"));
  Caja c;
  c.ancho = ancho;
  if (nombre.startsWith("dibujo:")) {
    const auto dibujo = Dibujo(tipos_, nombre.mid(7));
    if (!dibujo) throw ErrorFuente(img.linea, QStringLiteral("no drawing ") + nombre);
    if (dibujo->ancho > ancho + 0.5) {
      throw ErrorFuente(
          img.linea,
          QStringLiteral("the drawing is %1 mm wide").arg(dibujo->ancho / kMm, 0, 'f', 0));
    }
    return *dibujo;
  }
  const QImage imagen(figuras_.filePath(nombre));
  if (imagen.isNull()) throw ErrorFuente(img.linea, QStringLiteral("no picture ") + nombre);
  c.alto = ancho * imagen.height() / imagen.width();
  c.piezas.push_back(ImagenPuesta{{0, -c.alto, ancho, c.alto}, imagen});
  return c;
}

void Bloques::Figura(const Elemento& e) {
  constexpr double kHueco = 10.0;
  Franja f;
  f.linea = e.linea;
  double ancho = -kHueco;
  std::vector<Caja> imagenes;
  for (const auto& hijo : e.hijos) {
    if (hijo.nombre != "img") continue;
    imagenes.push_back(Imagen(hijo));
    ancho += imagenes.back().ancho + kHueco;
  }
  if (imagenes.empty() || ancho > kColumna) {
    throw ErrorFuente(e.linea, QStringLiteral("the pictures do not fit the line"));
  }
  double x = (kColumna - ancho) / 2.0;
  f.caja.ancho = kColumna;
  for (const auto& imagen : imagenes) {
    f.caja.Pon(imagen, {x, 0});
    f.caja.alto = std::max(f.caja.alto, imagen.alto);
    f.caja.hondo = std::max(f.caja.hondo, imagen.hondo);
    x += imagen.ancho + kHueco;
  }
  const auto* pie = Hijo(e, QStringLiteral("figcaption"));
  f.pega = pie != nullptr;
  f.antes = kAntesFigura;
  franjas_.push_back(std::move(f));
  if (pie == nullptr) return;
  Pie(*pie, rotulos_.figura + QChar::Nbsp + e.numero + ".", 3.0, false);
  franjas_.back().caja.hondo += 6.0;
}

}  // namespace zorbin::memoria
