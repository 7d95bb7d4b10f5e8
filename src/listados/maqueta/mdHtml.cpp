#include "listados/maqueta/mdHtml.h"

#include <QSet>

#include "listados/maqueta/mdError.h"

namespace zorbin::memoria {

namespace {

const QSet<QString>& Conocidos() {
  static const QSet<QString> nombres{
      "html", "head",  "title", "meta", "body", "h1",   "h2",      "h3",     "p",   "ul",
      "ol",   "li",    "table", "tr",   "th",   "td",   "caption", "figure", "img", "figcaption",
      "div",  "aside", "datos", "b",    "i",    "code", "span",    "a",      "br"};
  return nombres;
}

const QSet<QString>& Vacios() {
  static const QSet<QString> nombres{"meta", "img", "br"};
  return nombres;
}

QString SinEntidades(QString s) {
  s.replace("&nbsp;", QString(QChar::Nbsp));
  s.replace("&lt;", "<").replace("&gt;", ">").replace("&quot;", "\"");
  return s.replace("&amp;", "&");
}

class Lector {
 public:
  explicit Lector(const QString& texto) : t_(texto) {}

  Elemento Lee() {
    Elemento raiz;
    raiz.nombre = QStringLiteral("raiz");
    Dentro(raiz);
    return raiz;
  }

 private:
  const QString t_;
  qsizetype i_ = 0;
  int linea_ = 1;

  [[noreturn]] void Falla(const QString& texto) const { throw ErrorFuente(linea_, texto); }

  bool Fin() const { return i_ >= t_.size(); }
  bool Sigue(const QString& que) const { return QStringView(t_).mid(i_).startsWith(que); }

  void Avanza(qsizetype n) {
    for (; n > 0 && !Fin(); --n, ++i_) {
      if (t_[i_] == '\n') ++linea_;
    }
  }

  // Text up to `que`, which is taken as well.
  QString Hasta(const QString& que) {
    const qsizetype donde = t_.indexOf(que, i_);
    if (donde < 0) Falla(QStringLiteral("'%1' is missing").arg(que));
    const QString s = t_.mid(i_, donde - i_);
    Avanza(donde - i_ + que.size());
    return s;
  }

  bool EmpiezaMarca() const {
    if (Fin() || t_[i_] != '<' || i_ + 1 >= t_.size()) return false;
    const QChar c = t_[i_ + 1];
    return c.isLetter() || c == '/' || c == '!';
  }

  void Dentro(Elemento& padre) {
    while (!Fin()) {
      if (Sigue("<!--")) {
        Hasta("-->");
      } else if (Sigue("<!")) {
        Hasta(">");
      } else if (Sigue("</")) {
        Avanza(2);
        const QString nombre = Hasta(">").trimmed().toLower();
        if (nombre != padre.nombre) {
          Falla(QStringLiteral("</%1> closes <%2>").arg(nombre, padre.nombre));
        }
        return;
      } else if (EmpiezaMarca()) {
        Marca(padre);
      } else if (t_[i_] == '$') {
        FormulaEntera(padre);
      } else {
        Texto(padre);
      }
    }
    if (padre.nombre != "raiz") Falla(QStringLiteral("<%1> is not closed").arg(padre.nombre));
  }

  void Texto(Elemento& padre) {
    Elemento e;
    e.linea = linea_;
    const qsizetype desde = i_;
    while (!Fin() && t_[i_] != '$' && !EmpiezaMarca()) Avanza(1);
    e.texto = SinEntidades(t_.mid(desde, i_ - desde)).replace('~', QChar::Nbsp);
    padre.hijos.push_back(std::move(e));
  }

  void FormulaEntera(Elemento& padre) {
    Elemento e;
    e.linea = linea_;
    e.nombre = Sigue("$$") ? QStringLiteral("$$") : QStringLiteral("$");
    Avanza(e.nombre.size());
    e.texto = Hasta(e.nombre);
    padre.hijos.push_back(std::move(e));
  }

  void Marca(Elemento& padre) {
    Elemento e;
    e.linea = linea_;
    Avanza(1);
    e.nombre = Nombre();
    if (!Conocidos().contains(e.nombre)) Falla(QStringLiteral("unknown tag <%1>").arg(e.nombre));
    const bool cerrada = Atributos(e);
    if (e.nombre == "datos") {
      e.texto = Hasta("</datos>");
    } else if (!cerrada && !Vacios().contains(e.nombre)) {
      Dentro(e);
    }
    padre.hijos.push_back(std::move(e));
  }

  QString Nombre() {
    const qsizetype desde = i_;
    while (!Fin() && (t_[i_].isLetterOrNumber() || t_[i_] == '-')) Avanza(1);
    return t_.mid(desde, i_ - desde).toLower();
  }

  void SaltaBlancos() {
    while (!Fin() && t_[i_].isSpace()) Avanza(1);
  }

  // @return whether the tag closes itself
  bool Atributos(Elemento& e) {
    for (;;) {
      SaltaBlancos();
      if (Sigue("/>")) {
        Avanza(2);
        return true;
      }
      if (Sigue(">")) {
        Avanza(1);
        return false;
      }
      const QString nombre = Nombre();
      if (nombre.isEmpty() || !Sigue("=\"")) Falla(QStringLiteral("attribute expected"));
      Avanza(2);
      e.atributos.insert(nombre, SinEntidades(Hasta("\"")));
    }
  }
};

}  // namespace

Elemento LeeHtml(const QString& texto) {
  return Lector(texto).Lee();
}

QString TextoLlano(const Elemento& e) {
  QString s = e.EsTexto() ? e.texto : QString();
  for (const auto& hijo : e.hijos) s += TextoLlano(hijo);
  return s.simplified();
}

}  // namespace zorbin::memoria
