// genera-memoria: lays out the technical report from its chapters, and checks its numbers.
//
//   genera-memoria CAPITULOS FIGURAS SALIDA.PDF
//   genera-memoria CAPITULOS --comprueba NOMBRE=FICHERO.json...
//
// CAPITULOS is the folder of a language, with portada.html and the chapters in the order of their
// names; FIGURAS holds the pictures. A check binds every JSON file to a name that the expressions
// of the chapters begin with; `v` is bound already, to the published examples. Needs no display.
// Ends with 0, with 1 on a fault of the sources, which is told with file and line, or when a number
// is wrong, with 2 on a wrong call.
#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QPageSize>
#include <QPdfWriter>
#include <QSaveFile>
#include <iostream>

#include "calculo/verificacion/mdEjemplos.h"
#include "listados/maqueta/mdDatos.h"
#include "listados/maqueta/mdError.h"
#include "listados/maqueta/mdMaqueta.h"

namespace zorbin::memoria {

namespace {

constexpr int kFalla = 1;
constexpr int kMalLlamado = 2;

int Falla(int codigo, const QString& texto) {
  std::cerr << "genera-memoria: " << texto.toStdString() << '\n';
  return codigo;
}

QByteArray Lee(const QString& ruta) {
  QFile f(ruta);
  if (!f.open(QIODevice::ReadOnly)) throw ErrorFuente(0, QStringLiteral("cannot be read"));
  return f.readAll();
}

std::vector<Capitulo> LeeCapitulos(const QDir& carpeta, QString& fichero) {
  std::vector<Capitulo> capitulos;
  for (const auto& nombre : carpeta.entryList({"[0-9]*.html"}, QDir::Files, QDir::Name)) {
    fichero = nombre;
    capitulos.push_back({nombre, LeeHtml(QString::fromUtf8(Lee(carpeta.filePath(nombre))))});
  }
  if (capitulos.empty()) throw ErrorFuente(0, QStringLiteral("no chapters"));
  return capitulos;
}

QJsonObject JsonDe(const Rango& r) {
  return {{"min", r.min}, {"max", r.max}};
}

QJsonArray JsonDe(const std::vector<ExcesoDelMetodo>& filas) {
  QJsonArray v;
  for (const auto& f : filas) {
    QJsonArray dif;
    for (const double d : f.dif) dif.append(d);
    v.append(QJsonObject{{"rsdp", f.rsdp}, {"dif", dif}, {"usual", JsonDe(f.usual)}});
  }
  return v;
}

// What the chapters call by `v`: the published examples by their keys, and how far the simplified
// formulas of the method lie from the full ones.
QJsonObject Verificacion() {
  QJsonObject v;
  for (const auto& x : EjemplosPublicados()) {
    v.insert(
        QString::fromUtf8(x.clave.data(), static_cast<qsizetype>(x.clave.size())),
        QJsonObject{{"publicado", x.publicado}, {"zorbin", x.zorbin}, {"dif", x.Diferencia()}});
  }
  v.insert("terraplen", JsonDe(ExcesosTerraplen()));
  v.insert("negativa", JsonDe(ExcesosNegativa()));
  const auto pendiente = CalculaExcesosDePendiente();
  v.insert("prandtl", JsonDe(pendiente.prandtl));
  v.insert("darcy", JsonDe(pendiente.darcy));
  return {{"v", v}};
}

// The document in memory: the PDF writer does not tell what became of its bytes.
QByteArray Pdf(const Tipografia& tipografia, const std::vector<Caja>& paginas,
               const QString& titulo) {
  QByteArray bytes;
  QBuffer destino(&bytes);
  destino.open(QIODevice::WriteOnly);
  QPdfWriter pdf(&destino);
  pdf.setResolution(72 * kPorPunto);
  pdf.setTitle(titulo);
  pdf.setCreator(QStringLiteral("ZORBIN"));
  pdf.setPageSize(QPageSize(QPageSize::A4));
  pdf.setPageMargins(QMarginsF());
  QPainter pintor(&pdf);
  for (std::size_t i = 0; i < paginas.size(); ++i) {
    if (i > 0) pdf.newPage();
    tipografia.Pinta(pintor, paginas[i], {0, 0});
  }
  pintor.end();
  return bytes;
}

int Genera(const QDir& carpeta, const QDir& figuras, const QString& salida) {
  QString fichero = QStringLiteral("portada.html");
  try {
    const Tipografia tipografia;
    const auto portada = LeeHtml(QString::fromUtf8(Lee(carpeta.filePath(fichero))));
    const Rotulos rotulos = LeeRotulos(portada);
    auto capitulos = LeeCapitulos(carpeta, fichero);
    const QJsonObject datos = Verificacion();
    for (auto& c : capitulos) {
      fichero = c.fichero;
      PonCifras(c.raiz, datos);
    }
    const auto paginas = Maqueta(tipografia, rotulos, portada, capitulos, figuras, fichero);
    QDir().mkpath(QFileInfo(salida).path());
    QSaveFile f(salida);
    const QByteArray bytes = Pdf(tipografia, paginas, rotulos.documento);
    const bool escrito =
        f.open(QIODevice::WriteOnly) && f.write(bytes) == bytes.size() && f.commit();
    return escrito ? 0 : Falla(kFalla, salida + ": " + f.errorString());
  } catch (const ErrorFuente& error) {
    return Falla(kFalla, QStringLiteral("%1:%2: %3")
                             .arg(carpeta.filePath(fichero))
                             .arg(error.linea())
                             .arg(QString::fromUtf8(error.what())));
  }
}

int Comprueba(const QDir& carpeta, const QStringList& ficheros) {
  QString fichero;
  try {
    QJsonObject datos = Verificacion();
    for (const auto& palabra : ficheros) {
      const auto igual = palabra.indexOf('=');
      fichero = palabra.mid(igual + 1);
      const auto json = QJsonDocument::fromJson(Lee(fichero));
      if (igual < 1 || !json.isObject()) {
        return Falla(kMalLlamado, palabra + ": NAME=FILE.json expected");
      }
      datos.insert(palabra.left(igual), json.object());
    }
    Comprobacion r;
    for (const auto& c : LeeCapitulos(carpeta, fichero)) {
      fichero = c.fichero;
      CompruebaCapitulo(carpeta.filePath(c.fichero), c.raiz, datos, r);
    }
    for (const auto& falta : r.faltas) Falla(kFalla, falta);
    std::cout << r.cifras << " numbers compared, " << r.faltas.size() << " faults\n";
    return r.faltas.isEmpty() ? 0 : kFalla;
  } catch (const ErrorFuente& error) {
    return Falla(kFalla, QStringLiteral("%1:%2: %3")
                             .arg(fichero)
                             .arg(error.linea())
                             .arg(QString::fromUtf8(error.what())));
  }
}

int Corre(const QStringList& palabras) {
  if (palabras.size() >= 4 && palabras[2] == "--comprueba") {
    return Comprueba(QDir(palabras[1]), palabras.mid(3));
  }
  if (palabras.size() == 4) return Genera(QDir(palabras[1]), QDir(palabras[2]), palabras[3]);
  return Falla(kMalLlamado,
               "use: genera-memoria CHAPTERS PICTURES OUTPUT.PDF\n"
               "     genera-memoria CHAPTERS --comprueba NAME=FILE.json...");
}

}  // namespace

}  // namespace zorbin::memoria

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  const QGuiApplication app(argc, argv);
  return zorbin::memoria::Corre(QGuiApplication::arguments());
}
