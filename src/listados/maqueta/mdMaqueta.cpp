#include "listados/maqueta/mdMaqueta.h"

#include <QHash>
#include <algorithm>

#include "listados/maqueta/mdBloques.h"
#include "listados/maqueta/mdError.h"
#include "listados/maqueta/mdPaginador.h"

namespace zorbin::memoria {

namespace {

constexpr double kIzquierda = (kPaginaAncho - kColumna) / 2.0;
constexpr double kArriba = 84.0;                     // top of the text
constexpr double kAbajo = 772.0;                     // and its end
constexpr double kMedia = (kArriba + kAbajo) / 2.0;  // a chapter may begin as far down
constexpr double kAntesCapitulo = 26.0;
constexpr double kCabecera = 58.0;  // baseline of the running head
constexpr double kNumero = 800.0;   // baseline of the page number
constexpr double kCuerpoCabecera = 9.0, kCuerpoIndice = 9.5;

struct Numerado {
  QString clase;  // h1, h2, formula, table or figure
  QString numero;
};

using Numeros = QHash<QString, Numerado>;

// Gives every heading, numbered formula, table and figure its number, by chapters.
class Numerador {
 public:
  Numeros Numera(std::vector<Capitulo>& capitulos, QString& fichero) {
    for (auto& c : capitulos) {
      fichero = c.fichero;
      Recorre(c.raiz);
    }
    return std::move(numeros_);
  }

 private:
  Numeros numeros_;
  int capitulo_ = 0, apartado_ = 0, formula_ = 0, tabla_ = 0, figura_ = 0;

  void Recorre(Elemento& e) {
    Uno(e);
    for (auto& hijo : e.hijos) Recorre(hijo);
  }

  void Uno(Elemento& e) {
    const QString id = e.Atributo(QStringLiteral("id"));
    if (e.nombre == "h1") {
      ++capitulo_;
      apartado_ = formula_ = tabla_ = figura_ = 0;
      e.numero = QString::number(capitulo_);
    } else if (e.nombre == "h2") {
      e.numero = DentroDe(++apartado_);
    } else if (e.nombre == "div" && !id.isEmpty()) {
      e.numero = DentroDe(++formula_);
    } else if (e.nombre == "table" && Hijo(e, QStringLiteral("caption")) != nullptr) {
      e.numero = DentroDe(++tabla_);
    } else if (e.nombre == "figure") {
      e.numero = DentroDe(++figura_);
    }
    if (id.isEmpty()) return;
    if (e.numero.isEmpty()) throw ErrorFuente(e.linea, QStringLiteral("an id without a number"));
    if (numeros_.contains(id)) throw ErrorFuente(e.linea, QStringLiteral("twice the id ") + id);
    numeros_.insert(id, {e.nombre, e.numero});
  }

  QString DentroDe(int n) const { return QStringLiteral("%1.%2").arg(capitulo_).arg(n); }
};

Referencia Referencias(const Numeros& numeros, const Rotulos& r) {
  return [&numeros, &r](const Elemento& e) {
    const QString id = e.Atributo(QStringLiteral("href")).mid(1);
    const auto n = numeros.constFind(id);
    if (n == numeros.constEnd()) throw ErrorFuente(e.linea, QStringLiteral("no id ") + id);
    if (e.Atributo(QStringLiteral("class")) == "n") return n->numero;
    if (n->clase == "div") {
      const QString palabra = TextoLlano(e);
      const QString numero = "(" + n->numero + ")";
      return palabra.isEmpty() ? numero : palabra + QChar::Nbsp + numero;
    }
    QString palabra = TextoLlano(e);
    if (palabra.isEmpty()) {
      palabra = n->clase == "h1"       ? r.capitulo
                : n->clase == "h2"     ? r.apartado
                : n->clase == "table"  ? r.tabla.toLower()
                : n->clase == "figure" ? r.figura.toLower()
                                       : QString();
    }
    return palabra + QChar::Nbsp + n->numero;
  };
}

const Elemento& Cuerpo(const Elemento& raiz) {
  const auto* html = Hijo(raiz, QStringLiteral("html"));
  const auto* cuerpo = html == nullptr ? nullptr : Hijo(*html, QStringLiteral("body"));
  if (cuerpo == nullptr) throw ErrorFuente(1, QStringLiteral("<html><body> is missing"));
  return *cuerpo;
}

Marcos MarcosDelTexto() {
  return {kIzquierda, kArriba, kAbajo, kAntesCapitulo, kMedia};
}

class Impresor {
 public:
  Impresor(const Tipografia& tipografia, const Rotulos& rotulos)
      : tipos_(tipografia), rotulos_(rotulos) {}

  // The entries, with the pages of the text shifted by those of the table of contents itself.
  std::vector<PaginaTexto> Indice(const std::vector<EntradaIndice>& indice) const {
    std::vector<PaginaTexto> paginas;
    // One pass to count its pages, one with the numbers that follow from the count.
    for (int vuelta = 0; vuelta < 2; ++vuelta) {
      const int primera = 2 + static_cast<int>(paginas.size());
      Paginador p(MarcosDelTexto());
      p.Anade(FranjasDeIndice(indice, primera));
      paginas = std::move(p.paginas);
    }
    return paginas;
  }

  Caja Acaba(const PaginaTexto& pagina, int numero) const {
    const Tipo tipo{Letra::Cursiva, kCuerpoCabecera};
    Caja c = pagina.caja;
    c.Pon(tipos_.DeTexto(rotulos_.documento, tipo), {kIzquierda, kCabecera});
    const Caja capitulo = tipos_.DeTexto(pagina.capitulo, tipo);
    c.Pon(capitulo, {kIzquierda + kColumna - capitulo.ancho, kCabecera});
    c.Raya({kIzquierda, kCabecera + 5}, {kIzquierda + kColumna, kCabecera + 5}, 0.4);
    const Caja n = tipos_.DeTexto(QString::number(numero), {Letra::Recta, kCuerpo});
    c.Pon(n, {(kPaginaAncho - n.ancho) / 2.0, kNumero});
    return c;
  }

 private:
  const Tipografia& tipos_;
  const Rotulos& rotulos_;

  std::vector<Franja> FranjasDeIndice(const std::vector<EntradaIndice>& indice, int primera) const {
    std::vector<Franja> franjas;
    Franja titulo;
    titulo.caja = tipos_.DeTexto(rotulos_.indice, {Letra::Negrita, 17});
    titulo.caja.hondo += 8;
    franjas.push_back(std::move(titulo));
    for (const auto& e : indice) franjas.push_back(DeEntrada(e, primera + e.lugar.pagina));
    for (std::size_t i = 0; i + 1 < indice.size(); ++i) {
      if (indice[i].nivel == 1) franjas[i + 1].pega = true;
    }
    return franjas;
  }

  Franja DeEntrada(const EntradaIndice& e, int pagina) const {
    const bool capitulo = e.nivel == 1;
    const Tipo tipo{capitulo ? Letra::Negrita : Letra::Recta, kCuerpoIndice};
    const double xNumero = capitulo ? 0 : 20;
    const double xTitulo = capitulo ? 20 : 48;
    const Caja titulo = tipos_.DeTexto(e.titulo, tipo);
    const Caja numero = tipos_.DeTexto(QString::number(pagina), tipo);
    Franja f;
    f.antes = capitulo ? 4.0 : 0;
    f.caja.ancho = kColumna;
    f.caja.alto = 8.4;
    f.caja.hondo = 2.8;
    f.caja.Pon(tipos_.DeTexto(e.numero, tipo), {xNumero, 0});
    f.caja.Pon(titulo, {xTitulo, 0});
    f.caja.Pon(numero, {kColumna - numero.ancho, 0});
    if (!capitulo) Puntos(f.caja, xTitulo + titulo.ancho + 6, kColumna - numero.ancho - 6, tipo);
    return f;
  }

  void Puntos(Caja& caja, double desde, double hasta, const Tipo& tipo) const {
    constexpr double kPaso = 5.5;
    const Caja punto = tipos_.DeTexto(QStringLiteral("."), tipo);
    const double ultimo = hasta - punto.ancho;
    for (double x = kColumna - kPaso; x > desde; x -= kPaso) {
      if (x < ultimo) caja.Pon(punto, {x, 0});
    }
  }
};

// Cover: picture, title and lines, the last ones (class "pie") at the foot.
Caja Portada(const Tipografia& tipografia, const Elemento& cuerpo, const Bloques& bloques) {
  Caja pagina;
  double y = 150;
  double yPie = 700;
  const auto centra = [&](const Caja& c, double& donde, double hueco) {
    donde += c.alto;
    pagina.Pon(c, {(kPaginaAncho - c.ancho) / 2.0, donde});
    donde += c.hondo + hueco;
  };
  for (const auto& e : cuerpo.hijos) {
    if (e.EsTexto()) continue;
    if (e.nombre == "img") {
      centra(bloques.Imagen(e), y, 70);
    } else if (e.nombre == "h1") {
      centra(tipografia.DeTexto(TextoLlano(e), {Letra::Negrita, 30}), y, 26);
    } else if (e.nombre == "p") {
      const bool pie = e.Atributo(QStringLiteral("class")) == "pie";
      const Tipo tipo{Letra::Recta, pie ? 11.0 : 14.0};
      QString texto = TextoLlano(e);
      texto.replace("{version}", QStringLiteral(ZORBIN_VERSION));
      centra(tipografia.DeTexto(texto, tipo), pie ? yPie : y, pie ? 7 : 10);
    }
  }
  return pagina;
}

}  // namespace

Rotulos LeeRotulos(const Elemento& portada) {
  const auto* html = Hijo(portada, QStringLiteral("html"));
  const auto* head = html == nullptr ? nullptr : Hijo(*html, QStringLiteral("head"));
  if (head == nullptr) throw ErrorFuente(1, QStringLiteral("<html><head> is missing"));
  QHash<QString, QString> metas;
  for (const auto& e : head->hijos) {
    metas.insert(e.Atributo(QStringLiteral("name")), e.Atributo(QStringLiteral("content")));
  }
  const auto lee = [&](const char* nombre) {
    const QString valor = metas.value(QString::fromLatin1(nombre));
    if (valor.isEmpty()) {
      throw ErrorFuente(head->linea, QStringLiteral("no <meta name=\"%1\">").arg(nombre));
    }
    return valor;
  };
  return {lee("documento"), lee("indice"), lee("capitulo"),
          lee("apartado"),  lee("tabla"),  lee("figura")};
}

std::vector<Caja> Maqueta(const Tipografia& tipografia, const Rotulos& rotulos,
                          const Elemento& portada, std::vector<Capitulo>& capitulos,
                          const QDir& figuras, QString& fichero) {
  const Numeros numeros = Numerador().Numera(capitulos, fichero);
  const Referencia referencia = Referencias(numeros, rotulos);
  Bloques bloques(tipografia, rotulos, referencia, figuras);
  Paginador texto(MarcosDelTexto());
  for (const auto& c : capitulos) {
    fichero = c.fichero;
    texto.Anade(bloques.DeCapitulo(Cuerpo(c.raiz)));
  }
  fichero = QStringLiteral("portada.html");
  const Impresor impresor(tipografia, rotulos);
  std::vector<Caja> paginas{Portada(tipografia, Cuerpo(portada), bloques)};
  const auto numera = [&](const std::vector<PaginaTexto>& parte) {
    for (const auto& p : parte) {
      paginas.push_back(impresor.Acaba(p, static_cast<int>(paginas.size()) + 1));
    }
  };
  numera(impresor.Indice(texto.indice));
  numera(texto.paginas);
  return paginas;
}

}  // namespace zorbin::memoria
