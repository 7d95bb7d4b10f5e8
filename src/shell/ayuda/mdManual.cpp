#include "shell/ayuda/mdManual.h"

#include <QCollator>
#include <QHash>
#include <QRegularExpression>
#include <QTextDocumentFragment>
#include <algorithm>
#include <cmath>

namespace zorbin {

namespace {

struct Etiqueta {
  QString nombre;  // lower case, with the bar of a closing one
  QHash<QString, QString> atributos;
};

QString SinEntidades(const QString& texto) {
  if (!texto.contains('&')) return texto;
  QString html = texto;
  html.replace('<', QStringLiteral("&lt;")).replace('>', QStringLiteral("&gt;"));
  return QTextDocumentFragment::fromHtml(html).toPlainText();
}

QHash<QString, QString> Atributos(const QString& texto) {
  static const QRegularExpression forma(
      QStringLiteral(R"(([\w:-]+)\s*=\s*(?:"([^"]*)\"|'([^']*)'|([^\s"'>]+)))"));
  QHash<QString, QString> atributos;
  for (auto i = forma.globalMatch(texto); i.hasNext();) {
    const auto m = i.next();
    atributos.insert(m.captured(1).toLower(),
                     SinEntidades(m.captured(2) + m.captured(3) + m.captured(4)));
  }
  return atributos;
}

// Walks the tags of the page and gathers sections and index on the way.
class Lector {
 public:
  explicit Lector(const QString& html) : html_(html) { manual_.html = html; }

  Manual Lee() {
    while (i_ < html_.size()) {
      const auto abre = html_.indexOf('<', i_);
      Texto(html_.mid(i_, (abre < 0 ? html_.size() : abre) - i_));
      if (abre < 0) break;
      i_ = abre;
      if (!SaltaComentario()) TrataEtiqueta(LeeEtiqueta());
    }
    return std::move(manual_);
  }

 private:
  const QString& html_;
  qsizetype i_ = 0;
  Manual manual_;
  ApartadoManual titular_;  // the heading being read
  bool enTitular_ = false;
  bool primerHijo_ = false;  // nothing of the heading has come yet

  void Texto(const QString& texto) {
    if (!enTitular_) return;
    titular_.titulo += texto;
    if (!texto.trimmed().isEmpty()) primerHijo_ = false;
  }

  bool SaltaComentario() {
    if (!QStringView(html_).sliced(i_).startsWith(QLatin1String("<!--"))) return false;
    const auto cierra = html_.indexOf(QLatin1String("-->"), i_ + 4);
    i_ = cierra < 0 ? html_.size() : cierra + 3;
    return true;
  }

  // A tag ends at the first '>' that no attribute quotes.
  qsizetype FinDeEtiqueta() const {
    QChar comilla;
    for (auto j = i_ + 1; j < html_.size(); ++j) {
      const QChar c = html_.at(j);
      if (!comilla.isNull()) {
        if (c == comilla) comilla = QChar();
      } else if (c == '>') {
        return j;
      } else if (c == '"' || c == '\'') {
        comilla = c;
      }
    }
    return html_.size();
  }

  Etiqueta LeeEtiqueta() {
    const auto fin = FinDeEtiqueta();
    const QString dentro = html_.mid(i_ + 1, fin - i_ - 1);
    i_ = std::min(fin + 1, html_.size());
    static const QRegularExpression nombre(QStringLiteral("^/?[A-Za-z][A-Za-z0-9]*"));
    const auto m = nombre.match(dentro);
    return {m.captured().toLower(), Atributos(dentro.mid(m.capturedEnd()))};
  }

  void TrataEtiqueta(const Etiqueta& e) {
    if (e.nombre == QLatin1String("html")) manual_.idioma = e.atributos.value("lang");
    if (e.nombre == QLatin1String("style") || e.nombre == QLatin1String("script")) {
      const auto cierra = html_.indexOf("</" + e.nombre, i_, Qt::CaseInsensitive);
      i_ = cierra < 0 ? html_.size() : cierra;
    }
    if (e.nombre.size() == 2 && e.nombre[0] == 'h' && e.nombre[1].isDigit()) {
      AbreTitular(e.nombre[1].digitValue());
      return;
    }
    if (enTitular_ && e.nombre == QStringLiteral("/h%1").arg(titular_.nivel)) CierraTitular();
    if (e.nombre == QLatin1String("a") && e.atributos.contains("name")) TrataAncla(e);
    primerHijo_ = false;
  }

  void TrataAncla(const Etiqueta& e) {
    const QString ancla = e.atributos.value("name");
    if (enTitular_ && primerHijo_) titular_.ancla = ancla;
    for (const auto& palabra : e.atributos.value("title").split(';')) {
      const QString texto = palabra.simplified();
      if (!texto.isEmpty()) manual_.indice.push_back({texto, ancla});
    }
  }

  void AbreTitular(int nivel) {
    titular_ = {nivel, {}, {}};
    enTitular_ = nivel >= 1 && nivel <= 3;
    primerHijo_ = enTitular_;
  }

  void CierraTitular() {
    titular_.titulo = SinEntidades(titular_.titulo).simplified();
    if (!titular_.ancla.isEmpty()) manual_.apartados.push_back(titular_);
    enTitular_ = false;
  }
};

void OrdenaIndice(Manual& manual) {
  QCollator orden{QLocale(manual.idioma)};
  orden.setCaseSensitivity(Qt::CaseInsensitive);
  orden.setNumericMode(true);
  std::stable_sort(manual.indice.begin(), manual.indice.end(),
                   [&](const EntradaIndice& a, const EntradaIndice& b) {
                     return orden.compare(a.texto, b.texto) < 0;
                   });
}

QString VisteHoja(QString css, const Vestido& vestido) {
  static const QRegularExpression forma(
      QStringLiteral(R"(#(?:[0-9a-fA-F]{6}|[0-9a-fA-F]{3})(?=\s*[;}])|(\d+(?:\.\d+)?)(p[tx])\b)"));
  QString vestida;
  qsizetype hasta = 0;
  for (auto i = forma.globalMatch(css); i.hasNext();) {
    const auto m = i.next();
    vestida += css.mid(hasta, m.capturedStart() - hasta);
    vestida +=
        m.captured(2).isEmpty()
            ? ColorVestido(QColor(m.captured()), vestido).name()
            : QString::number(m.captured(1).toDouble() * vestido.escala, 'f', 2) + m.captured(2);
    hasta = m.capturedEnd();
  }
  return vestida + css.mid(hasta);
}

double Croma(double saturacion, double luz) {
  return saturacion * (1 - std::abs(2 * luz - 1));
}

}  // namespace

Manual InterpretaManual(const QString& html) {
  Manual manual = Lector(html).Lee();
  OrdenaIndice(manual);
  return manual;
}

QColor ColorVestido(const QColor& color, const Vestido& vestido) {
  const double luz = color.lightnessF();
  const auto entre = [luz](double tinta, double papel) { return tinta + luz * (papel - tinta); };
  if (color.hslSaturation() == 0) {
    const auto canal = [&](float t, float p) { return static_cast<float>(entre(t, p)); };
    return QColor::fromRgbF(canal(vestido.tinta.redF(), vestido.papel.redF()),
                            canal(vestido.tinta.greenF(), vestido.papel.greenF()),
                            canal(vestido.tinta.blueF(), vestido.papel.blueF()));
  }
  const double nueva = entre(vestido.tinta.lightnessF(), vestido.papel.lightnessF());
  const double cabe = Croma(1, nueva);
  const double croma = Croma(color.hslSaturationF(), luz);
  const double saturacion = cabe > 0 ? std::min(1.0, croma / cabe) : 0;
  return QColor::fromHslF(color.hslHueF(), static_cast<float>(saturacion),
                          static_cast<float>(nueva));
}

QString VisteManual(const QString& html, const Vestido& vestido) {
  static const QRegularExpression hojas(
      QStringLiteral("(<style\\b[^>]*>)(.*?)(</style)"),
      QRegularExpression::CaseInsensitiveOption | QRegularExpression::DotMatchesEverythingOption);
  QString vestida;
  qsizetype hasta = 0;
  for (auto i = hojas.globalMatch(html); i.hasNext();) {
    const auto m = i.next();
    vestida += html.mid(hasta, m.capturedStart(2) - hasta) + VisteHoja(m.captured(2), vestido);
    hasta = m.capturedEnd(2);
  }
  return vestida + html.mid(hasta);
}

QString Pliega(const QString& texto) {
  QString plegado = texto;
  for (QChar& c : plegado) {
    const QString partes = c.decomposition();
    const bool letra = c.decompositionTag() == QChar::Canonical && !partes.isEmpty();
    c = (letra ? partes.at(0) : c).toCaseFolded();
  }
  return plegado;
}

qsizetype BuscaPalabra(QStringView texto, const QString& palabra, qsizetype desde) {
  const bool letras = !palabra.isEmpty() && palabra[0].isLetterOrNumber();
  auto i = texto.indexOf(palabra, desde);
  while (letras && i > 0 && texto[i - 1].isLetterOrNumber()) i = texto.indexOf(palabra, i + 1);
  return i;
}

QString CaminoDe(const Manual& manual, std::size_t apartado) {
  QString camino;
  int nivel = 4;  // below every one
  for (auto i = apartado + 1; i-- > 0;) {
    const auto& a = manual.apartados[i];
    if (a.nivel >= nivel) continue;
    camino = camino.isEmpty() ? a.titulo : QStringLiteral("%1 › %2").arg(a.titulo, camino);
    nivel = a.nivel;
  }
  return camino;
}

}  // namespace zorbin
