#include "listados/maqueta/mdDatos.h"

#include <QHash>
#include <QJsonArray>
#include <QJsonValue>
#include <algorithm>
#include <cmath>
#include <functional>
#include <numbers>

#include "base/mdNumeros.h"
#include "listados/maqueta/mdError.h"
#include "listados/maqueta/mdFormula.h"

namespace zorbin::memoria {

namespace {

const QString kCifra = QStringLiteral("data-cifra");

using Argumentos = std::vector<double>;

constexpr int kMaxVueltas = 1000;

// Share of an axial force by fixed point, from half of it, until a round changes less than 0.01.
double Traccion(double e, double T, double Ao) {
  double A = (e + 0.5) * T;
  for (int vuelta = 0; vuelta < kMaxVueltas; ++vuelta) {
    const double antes = A;
    A = (e + antes / (Ao + antes)) * T;
    if (std::fabs(A - antes) < 0.01) break;
  }
  return A;
}

struct Funcion {
  std::size_t argumentos;
  std::function<double(const Argumentos&)> valor;
};

const QHash<QString, Funcion>& Funciones() {
  static const QHash<QString, Funcion> funciones{
      {"sqrt", {1, [](const Argumentos& a) { return std::sqrt(a[0]); }}},
      {"exp", {1, [](const Argumentos& a) { return std::exp(a[0]); }}},
      {"ln", {1, [](const Argumentos& a) { return std::log(a[0]); }}},
      {"log10", {1, [](const Argumentos& a) { return std::log10(a[0]); }}},
      {"abs", {1, [](const Argumentos& a) { return std::fabs(a[0]); }}},
      {"floor", {1, [](const Argumentos& a) { return std::floor(a[0]); }}},
      {"sen", {1, [](const Argumentos& a) { return std::sin(a[0]); }}},
      {"cos", {1, [](const Argumentos& a) { return std::cos(a[0]); }}},
      {"tan", {1, [](const Argumentos& a) { return std::tan(a[0]); }}},
      {"grados", {1, [](const Argumentos& a) { return a[0] * std::numbers::pi / 180.0; }}},
      {"min", {2, [](const Argumentos& a) { return std::min(a[0], a[1]); }}},
      {"max", {2, [](const Argumentos& a) { return std::max(a[0], a[1]); }}},
      {"traccion", {3, [](const Argumentos& a) { return Traccion(a[0], a[1], a[2]); }}},
  };
  return funciones;
}

using Nombres = QHash<QString, QJsonValue>;

Nombres NombresDe(const QJsonObject& datos) {
  Nombres nombres;
  for (auto d = datos.begin(); d != datos.end(); ++d) nombres.insert(d.key(), d.value());
  return nombres;
}

// Evaluates one expression by recursive descent.
class Evaluador {
 public:
  Evaluador(const QString& texto, const Nombres& nombres, int linea)
      : t_(texto), nombres_(nombres), linea_(linea) {}

  QJsonValue Evalua() {
    const QJsonValue v = Suma();
    if (Mira() != QChar()) Falla(QStringLiteral("'%1' is not expected").arg(Mira()));
    return v;
  }

 private:
  const QString t_;
  const Nombres& nombres_;
  const int linea_;
  qsizetype i_ = 0;

  [[noreturn]] void Falla(const QString& que) const {
    throw ErrorFuente(linea_, QStringLiteral("in '%1': %2").arg(t_.trimmed(), que));
  }

  QChar Mira() {
    while (i_ < t_.size() && t_[i_].isSpace()) ++i_;
    return i_ < t_.size() ? t_[i_] : QChar();
  }

  bool Toma(QChar c) {
    if (Mira() != c) return false;
    ++i_;
    return true;
  }

  void Exige(QChar c) {
    if (!Toma(c)) Falla(QStringLiteral("'%1' expected").arg(c));
  }

  double Numero(const QJsonValue& v) const {
    if (!v.isDouble()) Falla(QStringLiteral("not a number"));
    return v.toDouble();
  }

  QJsonValue Suma() {
    QJsonValue v = Producto();
    for (;;) {
      if (Toma('+')) {
        v = Numero(v) + Numero(Producto());
      } else if (Toma('-')) {
        v = Numero(v) - Numero(Producto());
      } else {
        return v;
      }
    }
  }

  QJsonValue Producto() {
    QJsonValue v = Signo();
    for (;;) {
      if (Toma('*')) {
        v = Numero(v) * Numero(Signo());
      } else if (Toma('/')) {
        v = Numero(v) / Numero(Signo());
      } else {
        return v;
      }
    }
  }

  QJsonValue Signo() {
    if (Toma('-')) return -Numero(Signo());
    const QJsonValue base = Atomo();
    if (!Toma('^')) return base;
    return std::pow(Numero(base), Numero(Signo()));
  }

  QJsonValue Atomo() {
    const QChar c = Mira();
    if (Toma('(')) {
      const QJsonValue v = Suma();
      Exige(')');
      return v;
    }
    if (c.isDigit()) return Cifras();
    if (c.isLetter()) return Nombre();
    Falla(QStringLiteral("a value is missing"));
  }

  double Cifras() {
    const qsizetype desde = i_;
    while (i_ < t_.size() && (t_[i_].isDigit() || t_[i_] == '.')) ++i_;
    bool bien = false;
    const double v = t_.mid(desde, i_ - desde).toDouble(&bien);
    if (!bien) Falla(QStringLiteral("not a number"));
    return v;
  }

  QString Identificador() {
    const qsizetype desde = i_;
    while (i_ < t_.size() && (t_[i_].isLetterOrNumber() || t_[i_] == '_')) ++i_;
    return t_.mid(desde, i_ - desde);
  }

  QJsonValue Nombre() {
    const QString nombre = Identificador();
    if (Mira() == '(') return Llamada(nombre);
    if (nombre == "pi") return std::numbers::pi;
    const auto n = nombres_.constFind(nombre);
    if (n == nombres_.constEnd()) Falla(QStringLiteral("'%1' is not known").arg(nombre));
    return Camino(*n);
  }

  QJsonValue Camino(QJsonValue v) {
    for (;;) {
      if (Toma('.')) {
        const QString campo = Identificador();
        v = v.toObject().value(campo);
        if (v.isUndefined()) Falla(QStringLiteral("there is no '%1'").arg(campo));
      } else if (Toma('[')) {
        const auto i = static_cast<qsizetype>(Cifras());
        Exige(']');
        if (!v.isArray() || i >= v.toArray().size()) Falla(QStringLiteral("no such index"));
        v = v.toArray().at(i);
      } else {
        return v;
      }
    }
  }

  double Llamada(const QString& nombre) {
    const auto f = Funciones().constFind(nombre);
    if (f == Funciones().constEnd()) Falla(QStringLiteral("no function '%1'").arg(nombre));
    Exige('(');
    Argumentos a;
    do {
      a.push_back(Numero(Suma()));
    } while (Toma(','));
    Exige(')');
    if (a.size() != f->argumentos) Falla(QStringLiteral("wrong number of arguments"));
    return f->valor(a);
  }
};

// A number as the page shows it, and how many decimals it shows.
struct Escrito {
  double valor;
  int decimales;
};

Escrito LeeEscrito(const Dato& d) {
  QString s = d.texto;
  s.remove("\\,").remove(QChar::Nbsp).remove(' ').replace(QChar(0x2212), '-').replace(',', '.');
  bool bien = false;
  const double valor = s.toDouble(&bien);
  if (!bien) throw ErrorFuente(d.linea, QStringLiteral("'%1' is not a number").arg(d.texto));
  const auto punto = s.indexOf('.');
  return {valor, punto < 0 ? 0 : static_cast<int>(s.size() - punto - 1)};
}

void RecogeFormula(const Elemento& e, std::vector<Dato>& datos) {
  const auto f = LeeFormula(e.texto, e.linea);
  datos.insert(datos.end(), f.datos.begin(), f.datos.end());
}

// Definitions come with an empty text.
void Recoge(const Elemento& e, std::vector<Dato>& datos) {
  if (e.nombre == "$" || e.nombre == "$$") RecogeFormula(e, datos);
  if (e.nombre == "datos") {
    int linea = e.linea;
    for (const auto& renglon : e.texto.split('\n')) {
      if (!renglon.trimmed().isEmpty()) datos.push_back({linea, renglon, {}});
      ++linea;
    }
  }
  const QString expresion = e.Atributo(QStringLiteral("data-dato"));
  if (!expresion.isEmpty()) datos.push_back({e.linea, expresion, TextoLlano(e)});
  for (const auto& hijo : e.hijos) Recoge(hijo, datos);
}

class Comprobador {
 public:
  Comprobador(const QString& fichero, const QJsonObject& datos, Comprobacion& r)
      : fichero_(fichero), r_(r), nombres_(NombresDe(datos)) {}

  void Comprueba(const Dato& d) {
    try {
      for (const auto& expresion : d.expresion.split(';')) ComparaUna(d, expresion);
    } catch (const ErrorFuente& error) {
      Falta(error.linea(), QString::fromUtf8(error.what()));
    }
  }

 private:
  const QString fichero_;
  Comprobacion& r_;
  Nombres nombres_;

  void Falta(int linea, const QString& que) {
    r_.faltas.push_back(QStringLiteral("%1:%2: %3").arg(fichero_).arg(linea).arg(que));
  }

  void ComparaUna(const Dato& d, const QString& expresion) {
    const auto igual = expresion.indexOf('=');
    const QJsonValue v = Evaluador(expresion.mid(igual + 1), nombres_, d.linea).Evalua();
    if (igual >= 0) nombres_.insert(expresion.left(igual).trimmed(), v);
    if (d.texto.isEmpty()) return;
    const Escrito escrito = LeeEscrito(d);
    if (!v.isDouble()) throw ErrorFuente(d.linea, QStringLiteral("not a number: ") + expresion);
    ++r_.cifras;
    const double medio = 0.5 * std::pow(10.0, -escrito.decimales);
    if (std::fabs(v.toDouble() - escrito.valor) <= medio * (1.0 + 1e-6)) return;
    Falta(d.linea, QStringLiteral("says %1, but %2 gives %3")
                       .arg(d.texto, expresion.trimmed())
                       .arg(v.toDouble(), 0, 'f', escrito.decimales + 4));
  }
};

// As a page of the report shows it, with a comma and a true minus.
QString TextoDeCifra(const Elemento& e, const Nombres& nombres) {
  const QString expresion = e.Atributo(kCifra);
  const QJsonValue v = Evaluador(expresion, nombres, e.linea).Evalua();
  bool bien = false;
  const int decimales = e.Atributo(QStringLiteral("decimales")).toInt(&bien);
  if (!v.isDouble() || !std::isfinite(v.toDouble()) || !bien) {
    throw ErrorFuente(e.linea, QStringLiteral("not a number with its decimals: ") + expresion);
  }
  QString s = QString::fromStdString(TextoDecimal(v.toDouble(), decimales, ','));
  const bool nada = s.count('0') + s.count(',') == s.size();
  if (!e.Atributo(QStringLiteral("signo")).isEmpty() && !nada && v.toDouble() > 0) s.prepend('+');
  return s.replace('-', QChar(0x2212));
}

void PonCifrasEn(Elemento& e, const Nombres& nombres) {
  if (!e.Atributo(kCifra).isEmpty()) {
    if (!e.hijos.empty()) throw ErrorFuente(e.linea, QStringLiteral("a number of its own"));
    Elemento texto;
    texto.linea = e.linea;
    texto.texto = TextoDeCifra(e, nombres);
    e.hijos.push_back(std::move(texto));
    return;
  }
  for (auto& hijo : e.hijos) PonCifrasEn(hijo, nombres);
}

}  // namespace

void PonCifras(Elemento& capitulo, const QJsonObject& datos) {
  PonCifrasEn(capitulo, NombresDe(datos));
}

void CompruebaCapitulo(const QString& fichero, const Elemento& capitulo, const QJsonObject& datos,
                       Comprobacion& resultado) {
  std::vector<Dato> citados;
  Recoge(capitulo, citados);
  Comprobador c(fichero, datos, resultado);
  for (const auto& d : citados) c.Comprueba(d);
}

}  // namespace zorbin::memoria
