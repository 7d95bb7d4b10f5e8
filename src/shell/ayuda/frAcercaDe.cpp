#include "shell/ayuda/frAcercaDe.h"

#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QVBoxLayout>

#include "base/textos.h"
#include "persistencia/zrb/mdZrb.h"
#include "shell/piezas/mdDialogos.h"
#include "shell/piezas/mdQt.h"

namespace zorbin {

namespace {

constexpr int kAnchoLetras = 34;  // of the box, in heights of its letter
constexpr double kTitular = 1.6;  // of the name of the program, in sizes of its letter

// The title picture, as wide as the box and as sharp as the screen.
class Portada : public QWidget {
 public:
  Portada(QPixmap figura, int ancho) : figura_(std::move(figura)) {
    setFixedSize(ancho, ancho * figura_.height() / figura_.width());
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter pintor(this);
    const QSize puntos = size() * devicePixelRatioF();
    QPixmap figura = figura_.scaled(puntos, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    pintor.drawPixmap(rect(), figura);
  }

 private:
  QPixmap figura_;
};

QLabel* Texto(const QString& texto) {
  auto* etiqueta = new QLabel(texto);
  etiqueta->setTextFormat(Qt::PlainText);
  etiqueta->setWordWrap(true);
  etiqueta->setTextInteractionFlags(Qt::TextSelectableByMouse);
  return etiqueta;
}

// Of any length: it scrolls, and can be copied whole.
QLineEdit* Ruta(const QString& ruta) {
  constexpr int kSangria = -2;  // takes back the one that the field has and a label has not
  auto* campo = new QLineEdit(ruta);
  campo->setReadOnly(true);
  campo->setFrame(false);
  campo->setTextMargins(kSangria, 0, 0, 0);
  campo->setFixedHeight(campo->fontMetrics().height());
  campo->setCursorPosition(0);
  QPalette colores = campo->palette();
  colores.setBrush(QPalette::Base, Qt::NoBrush);
  colores.setBrush(QPalette::Text, colores.windowText());
  campo->setPalette(colores);
  return campo;
}

QLabel* Nombre() {
  auto* nombre = Texto(QString::fromLatin1(kTituloAplicacion));
  QFont letra = nombre->font();
  letra.setBold(true);
  letra.setPointSizeF(QFontInfo(letra).pointSizeF() * kTitular);
  nombre->setFont(letra);
  return nombre;
}

// "Version: 2009-Mar.02" without the word, which is of the file and of no language.
QString FormatoDeFichero() {
  const QString version = Q(kVersionFichero);
  return version.mid(version.indexOf(':') + 1).trimmed();
}

}  // namespace

frAcercaDe::frAcercaDe(const Entorno& entorno, const std::filesystem::path& figura,
                       const std::filesystem::path& datos, QWidget* padre)
    : QDialog(padre) {
  const auto rotulo = [&entorno](int n) { return Rotulo(entorno.textos.Texto(n)); };
  setWindowTitle(rotulo(txt::AcercaDe));
  auto* filas = new QVBoxLayout(this);
  const int ancho = fontMetrics().height() * kAnchoLetras;
  const QPixmap portada(Q(figura.string()));
  if (!portada.isNull()) filas->addWidget(new Portada(portada, ancho), 0, Qt::AlignHCenter);
  filas->addWidget(Nombre());
  filas->addWidget(Texto(rotulo(txt::QueHace)));

  auto* datosPrograma = new QGridLayout;
  datosPrograma->setColumnStretch(1, 1);
  datosPrograma->setHorizontalSpacing(fontMetrics().height());
  const auto fila = [&](int que, QWidget* valor) {
    const int n = datosPrograma->rowCount();
    datosPrograma->addWidget(new QLabel(rotulo(que)), n, 0, Qt::AlignTop);
    datosPrograma->addWidget(valor, n, 1, Qt::AlignTop);
  };
  fila(txt::Version, Texto(QStringLiteral(ZORBIN_VERSION)));
  fila(txt::FormatoFichero, Texto(FormatoDeFichero()));
  fila(txt::Norma, Texto(rotulo(txt::NormaTexto)));
  fila(txt::Herramientas, Texto(QStringLiteral("Qt %1").arg(QString::fromLatin1(qVersion()))));
  auto* ruta = Ruta(Q(datos.string()));
  ruta->setAccessibleName(Rotulo(entorno.textos.Texto(txt::CarpetaDatos)));
  fila(txt::CarpetaDatos, ruta);
  filas->addSpacing(fontMetrics().height() / 2);
  filas->addLayout(datosPrograma);
  filas->addSpacing(fontMetrics().height() / 2);

  auto* botones = new QDialogButtonBox;
  botones->addButton(rotulo(txt::AceptarAcerca), QDialogButtonBox::AcceptRole)->setDefault(true);
  connect(botones, &QDialogButtonBox::accepted, this, &QDialog::accept);
  filas->addWidget(botones);
  const int marco = ancho + filas->contentsMargins().left() + filas->contentsMargins().right();
  setFixedSize(marco, filas->totalHeightForWidth(marco));
}

}  // namespace zorbin
