#include <QHash>

#include "listados/maqueta/mdError.h"
#include "listados/maqueta/mdFormula.h"

namespace zorbin::memoria {

namespace {

struct Signo {
  Clase clase;
  const char* texto;
  bool cursiva;
};

// clang-format off
const QHash<QString, Signo>& Signos() {
  static const QHash<QString, Signo> signos{
      {"alpha", {Clase::Normal, "α", true}},    {"beta", {Clase::Normal, "β", true}},
      {"gamma", {Clase::Normal, "γ", true}},    {"delta", {Clase::Normal, "δ", true}},
      {"epsilon", {Clase::Normal, "ε", true}},  {"eta", {Clase::Normal, "η", true}},
      {"theta", {Clase::Normal, "θ", true}},    {"kappa", {Clase::Normal, "κ", true}},
      {"lambda", {Clase::Normal, "λ", true}},
      {"mu", {Clase::Normal, "μ", true}},       {"nu", {Clase::Normal, "ν", true}},
      {"xi", {Clase::Normal, "ξ", true}},       {"pi", {Clase::Normal, "π", true}},
      {"rho", {Clase::Normal, "ρ", true}},      {"sigma", {Clase::Normal, "σ", true}},
      {"tau", {Clase::Normal, "τ", true}},      {"phi", {Clase::Normal, "φ", true}},
      {"psi", {Clase::Normal, "ψ", true}},      {"omega", {Clase::Normal, "ω", true}},
      {"Delta", {Clase::Normal, "Δ", false}},   {"Phi", {Clase::Normal, "Φ", false}},
      {"Sigma", {Clase::Normal, "Σ", false}},   {"Omega", {Clase::Normal, "Ω", false}},
      {"infty", {Clase::Normal, "∞", false}},   {"ldots", {Clase::Normal, "…", false}},
      {"lbrace", {Clase::Abre, "{", false}},    {"rbrace", {Clase::Cierra, "}", false}},
      {"{", {Clase::Abre, "{", false}},         {"}", {Clase::Cierra, "}", false}},
      {"%", {Clase::Normal, " %", false}},
      {"cdot", {Clase::Binario, "·", false}},   {"times", {Clase::Binario, "×", false}},
      {"pm", {Clase::Binario, "±", false}},     {"mp", {Clase::Binario, "∓", false}},
      {"le", {Clase::Relacion, "≤", false}},    {"ge", {Clase::Relacion, "≥", false}},
      {"ne", {Clase::Relacion, "≠", false}},    {"approx", {Clase::Relacion, "≈", false}},
      {"to", {Clase::Relacion, "→", false}},    {"equiv", {Clase::Relacion, "≡", false}},
      {"tan", {Clase::Funcion, "tan", false}},  {"sin", {Clase::Funcion, "sen", false}},
      {"cos", {Clase::Funcion, "cos", false}},  {"log", {Clase::Funcion, "log", false}},
      {"ln", {Clase::Funcion, "ln", false}},    {"max", {Clase::Funcion, "máx", false}},
      {"min", {Clase::Funcion, "mín", false}},  {"exp", {Clase::Funcion, "exp", false}},
      {"ent", {Clase::Funcion, "ent", false}},
      {"e", {Clase::Normal, "e", false}},
  };
  return signos;
}
// clang-format on

const QHash<QString, double>& Espacios() {
  static const QHash<QString, double> espacios{
      {",", 0.17}, {";", 0.28}, {"quad", 1.0}, {"qquad", 2.0}};
  return espacios;
}

bool EsLetra(QChar c) {
  return c.isLetter();
}

class Lector {
 public:
  Lector(const QString& texto, int linea) : t_(texto), linea_(linea) {}

  Formula Lee() {
    f_.nodos = Filas(false, QChar());
    if (i_ < t_.size()) Falla(QStringLiteral("'%1' closes nothing").arg(t_[i_]));
    return std::move(f_);
  }

 private:
  const QString t_;
  const int linea_;
  qsizetype i_ = 0;
  Formula f_;

  int Linea() const { return linea_ + static_cast<int>(t_.left(i_).count('\n')); }

  [[noreturn]] void Falla(const QString& texto) const { throw ErrorFuente(Linea(), texto); }

  void SaltaBlancos() {
    while (i_ < t_.size() && t_[i_].isSpace()) ++i_;
  }

  bool Sigue(const char* que) const {
    return QStringView(t_).mid(i_).startsWith(QLatin1String(que));
  }

  bool Fin() const {
    return i_ >= t_.size() || t_[i_] == '}' || t_[i_] == '&' || Sigue("\\\\") || Sigue("\\right");
  }

  // Cells separated by '&' in rows separated by '\\'; a single cell comes out bare.
  Nodos Filas(bool porCasos, QChar cierre) {
    std::vector<std::vector<Nodos>> filas(1);
    for (;;) {
      filas.back().push_back(Lista());
      if (i_ < t_.size() && t_[i_] == '&') {
        ++i_;
      } else if (Sigue("\\\\")) {
        i_ += 2;
        filas.emplace_back();
      } else {
        break;
      }
    }
    if (!cierre.isNull()) Exige(cierre);
    if (filas.size() == 1 && filas[0].size() == 1 && !porCasos) return filas[0][0];
    return {Cuadro(filas, porCasos)};
  }

  static Nodo Cuadro(const std::vector<std::vector<Nodos>>& filas, bool porCasos) {
    Nodo n;
    n.forma = Forma::Filas;
    n.porCasos = porCasos;
    for (const auto& fila : filas) n.columnas = std::max(n.columnas, static_cast<int>(fila.size()));
    for (const auto& fila : filas) {
      for (int c = 0; c < n.columnas; ++c) {
        const auto k = static_cast<std::size_t>(c);
        n.partes.push_back(k < fila.size() ? fila[k] : Nodos{});
      }
    }
    return n;
  }

  Nodos Lista() {
    Nodos nodos;
    for (SaltaBlancos(); !Fin(); SaltaBlancos()) {
      if (t_[i_] == '_' || t_[i_] == '^') Falla(QStringLiteral("an index without its base"));
      Nodo n = Atomo();
      Indices(n);
      nodos.push_back(std::move(n));
    }
    return nodos;
  }

  void Indices(Nodo& n) {
    for (;;) {
      SaltaBlancos();
      if (i_ >= t_.size()) return;
      const QChar c = t_[i_];
      if (c == '\'') {
        ++i_;
        n.sup.push_back(Simbolo(QStringLiteral("′")));
      } else if (c == '_' || c == '^') {
        ++i_;
        SaltaBlancos();
        auto& lugar = c == '_' ? n.sub : n.sup;
        const Nodos indice = Argumento();
        lugar.insert(lugar.end(), indice.begin(), indice.end());
      } else {
        return;
      }
    }
  }

  // A group in braces, or the next atom.
  Nodos Argumento() {
    SaltaBlancos();
    if (i_ < t_.size() && t_[i_] == '{') {
      ++i_;
      return Filas(false, '}');
    }
    if (Fin()) Falla(QStringLiteral("an argument is missing"));
    if (t_[i_].isDigit()) return {Simbolo(QString(t_[i_++]))};
    return {Atomo()};
  }

  QString Crudo() {
    SaltaBlancos();
    Exige('{');
    const qsizetype desde = i_;
    for (int hondo = 1; i_ < t_.size(); ++i_) {
      if (t_[i_] == '{') ++hondo;
      if (t_[i_] == '}' && --hondo == 0) return t_.mid(desde, i_++ - desde);
    }
    Falla(QStringLiteral("a brace is not closed"));
  }

  void Exige(QChar c) {
    if (i_ >= t_.size() || t_[i_] != c) Falla(QStringLiteral("'%1' expected").arg(c));
    ++i_;
  }

  static Nodo Simbolo(const QString& texto, Clase clase = Clase::Normal,
                      Letra letra = Letra::Recta) {
    Nodo n;
    n.clase = clase;
    n.texto = texto;
    n.letra = letra;
    return n;
  }

  Nodo Atomo() {
    const QChar c = t_[i_];
    if (c == '{') return Grupo(Argumento());
    if (c == '\\') return Orden();
    if (EsLetra(c)) return Palabra();
    if (c.isDigit()) return Numero();
    ++i_;
    return DeCaracter(c);
  }

  static Nodo Grupo(Nodos nodos) {
    Nodo n;
    n.forma = Forma::Grupo;
    n.partes.push_back(std::move(nodos));
    return n;
  }

  Nodo Palabra() {
    const qsizetype desde = i_;
    while (i_ < t_.size() && EsLetra(t_[i_])) ++i_;
    const QString palabra = t_.mid(desde, i_ - desde);
    if (palabra.size() == 1) return Simbolo(palabra, Clase::Normal, Letra::Cursiva);
    return Simbolo(palabra, Clase::Palabra);
  }

  // Digits with one decimal comma between them.
  Nodo Numero() {
    const qsizetype desde = i_;
    while (i_ < t_.size() && t_[i_].isDigit()) ++i_;
    if (i_ + 1 < t_.size() && t_[i_] == ',' && t_[i_ + 1].isDigit()) {
      ++i_;
      while (i_ < t_.size() && t_[i_].isDigit()) ++i_;
    }
    return Simbolo(t_.mid(desde, i_ - desde));
  }

  Nodo DeCaracter(QChar c) {
    switch (c.unicode()) {
      case '+':
        return Simbolo(c, Clase::Binario);
      case '-':
        return Simbolo(QStringLiteral("−"), Clase::Binario);
      case '*':
        return Simbolo(QStringLiteral("·"), Clase::Binario);
      case '=':
      case '<':
      case '>':
        return Simbolo(c, Clase::Relacion);
      case '(':
      case '[':
        return Simbolo(c, Clase::Abre);
      case ')':
      case ']':
        return Simbolo(c, Clase::Cierra);
      case ',':
      case ';':
      case ':':
        return Simbolo(c, Clase::Coma);
      case '~': {
        Nodo n;
        n.forma = Forma::Espacio;
        n.em = 0.28;
        return n;
      }
      case '/':
      case '|':
      case '.':
      case '%':
      case u'º':
      case u'°':
        return Simbolo(c);
      default:
        --i_;
        Falla(QStringLiteral("the sign '%1' has no place in a formula").arg(c));
    }
  }

  QString NombreOrden() {
    ++i_;
    const qsizetype desde = i_;
    while (i_ < t_.size() && t_[i_].unicode() < 128 && EsLetra(t_[i_])) ++i_;
    if (i_ == desde && i_ < t_.size()) ++i_;
    return t_.mid(desde, i_ - desde);
  }

  Nodo Orden() {
    const QString orden = NombreOrden();
    if (const auto s = Signos().constFind(orden); s != Signos().constEnd()) {
      return Simbolo(QString::fromUtf8(s->texto), s->clase,
                     s->cursiva ? Letra::Cursiva : Letra::Recta);
    }
    if (const auto e = Espacios().constFind(orden); e != Espacios().constEnd()) {
      Nodo n;
      n.forma = Forma::Espacio;
      n.em = *e;
      return n;
    }
    if (orden == "frac" || orden == "dfrac") return Fraccion(orden == "dfrac");
    if (orden == "sqrt") return ConPartes(Forma::Raiz, {Argumento()});
    if (orden == "text") return Simbolo(Crudo().replace('~', QChar::Nbsp), Clase::Palabra);
    if (orden == "left") return Cercado();
    if (orden == "sum") return ConPartes(Forma::Suma, {});
    if (orden == "cases") {
      Exige('{');
      return Grupo(Filas(true, '}'));
    }
    if (orden == "v") return Cifra();
    Falla(QStringLiteral("unknown command \\%1").arg(orden));
  }

  static Nodo ConPartes(Forma forma, std::vector<Nodos> partes) {
    Nodo n;
    n.forma = forma;
    n.partes = std::move(partes);
    return n;
  }

  Nodo Fraccion(bool despliegue) {
    Nodos numerador = Argumento();
    Nodos denominador = Argumento();
    Nodo n = ConPartes(Forma::Fraccion, {std::move(numerador), std::move(denominador)});
    n.despliegue = despliegue;
    return n;
  }

  QChar Delimitador() {
    SaltaBlancos();
    if (i_ < t_.size() && t_[i_] == '\\') ++i_;  // \left\{
    if (i_ >= t_.size() || !QStringLiteral("()[]{}|.").contains(t_[i_])) {
      Falla(QStringLiteral("a delimiter is missing"));
    }
    return t_[i_++];
  }

  Nodo Cercado() {
    const QChar abre = Delimitador();
    Nodos dentro = Lista();
    if (!Sigue("\\right")) Falla(QStringLiteral("\\left without \\right"));
    i_ += 6;
    Nodo n = ConPartes(Forma::Cercado, {std::move(dentro)});
    n.texto = QString(abre) + Delimitador();
    return n;
  }

  // Its text is that of the formula in its second argument.
  Nodo Cifra() {
    const int linea = Linea();
    const QString expresion = Crudo();
    const qsizetype desde = i_;
    const QString texto = Crudo();
    f_.datos.push_back({linea, expresion, texto});
    const qsizetype hasta = i_;
    i_ = desde;
    Nodos nodos = Argumento();
    i_ = hasta;
    // A negative number keeps its sign close.
    if (!nodos.empty() && nodos[0].clase == Clase::Binario) nodos[0].clase = Clase::Normal;
    return Grupo(std::move(nodos));
  }
};

}  // namespace

Formula LeeFormula(const QString& texto, int linea) {
  return Lector(texto, linea).Lee();
}

}  // namespace zorbin::memoria
