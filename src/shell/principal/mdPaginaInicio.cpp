#include "shell/principal/mdPaginaInicio.h"

#include <QButtonGroup>
#include <QCommandLinkButton>
#include <QDir>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QVBoxLayout>

#include "base/mdCarpetas.h"
#include "base/textos.h"
#include "shell/piezas/mdQt.h"
#include "shell/principal/mdFigura.h"

namespace zorbin {

namespace {

constexpr int kAnchoColumna = 520;  // [px]
constexpr int kAltoTitulo = 200;    // [px]

}  // namespace

PaginaInicio::PaginaInicio(const Entorno& entorno, QWidget* padre)
    : QWidget(padre),
      entorno_(entorno),
      titulo_(new Figura(this)),
      nueva_(new QCommandLinkButton(this)),
      abrir_(new QCommandLinkButton(this)),
      muestra_(new QCommandLinkButton(this)),
      suelta_(new QLabel(this)),
      rotuloRecientes_(new QLabel(this)),
      recientes_(new QVBoxLayout),
      advertencia_(new QLabel(this)) {
  auto* todo = new QVBoxLayout(this);
  todo->setContentsMargins(0, 0, 0, 0);
  auto* zona = new QScrollArea(this);
  auto* contenido = new QWidget;
  zona->setWidgetResizable(true);
  zona->setFrameShape(QFrame::NoFrame);
  zona->setFocusPolicy(Qt::NoFocus);
  zona->setWidget(contenido);
  todo->addWidget(zona);
  auto* filas = new QVBoxLayout(contenido);
  titulo_->setFixedSize(kAnchoColumna, kAltoTitulo);
  QFont negrita = rotuloRecientes_->font();
  negrita.setBold(true);
  rotuloRecientes_->setFont(negrita);
  suelta_->setWordWrap(true);
  advertencia_->setWordWrap(true);
  advertencia_->setObjectName(QStringLiteral("lbAdvertencia"));
  advertencia_->setTextInteractionFlags(Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard);
  muestra_->setObjectName(QStringLiteral("btMuestra"));
  filas->addStretch(1);
  for (auto* w : std::initializer_list<QWidget*>{titulo_, CreaIdiomas(), muestra_, nueva_, abrir_,
                                                 suelta_, advertencia_, rotuloRecientes_}) {
    w->setFixedWidth(kAnchoColumna);
    filas->addWidget(w, 0, Qt::AlignHCenter);
  }
  filas->addLayout(recientes_);
  filas->addStretch(2);
  connect(nueva_, &QPushButton::clicked, this, &PaginaInicio::nuevaPedida);
  connect(abrir_, &QPushButton::clicked, this, &PaginaInicio::abrirPedido);
  connect(muestra_, &QPushButton::clicked, this, &PaginaInicio::muestraPedida);
  connect(advertencia_, &QLabel::linkActivated, this, &PaginaInicio::advertenciaPedida);
}

// Each language is called by its own name, whichever is in force.
QWidget* PaginaInicio::CreaIdiomas() {
  auto* barra = new QWidget(this);
  auto* fila = new QHBoxLayout(barra);
  fila->setContentsMargins(0, 4, 0, 4);
  auto* grupo = new QButtonGroup(barra);
  for (std::size_t i = 0; i < idiomas_.size(); ++i) {
    const int idioma = static_cast<int>(i) + 1;
    auto* boton = new QPushButton(Q(entorno_.textos.Texto(txt::IdiomasPropios[0] + idioma - 1)));
    boton->setObjectName(QStringLiteral("btIdioma%1").arg(idioma));
    boton->setCheckable(true);
    grupo->addButton(boton);
    fila->addWidget(boton);
    idiomas_[i] = boton;
    connect(boton, &QPushButton::clicked, this, [this, idioma] { emit idiomaPedido(idioma); });
  }
  return barra;
}

void PaginaInicio::Renueva() {
  const auto texto = [this](int n) { return Q(entorno_.textos.Texto(n)); };
  titulo_->Pon(Q(RutaFigura(entorno_.textos.Texto(txt::PictoAnagrama)).string()));
  idiomas_[static_cast<std::size_t>(entorno_.textos.IdiomaOffset() / kPasoIdioma)]->setChecked(
      true);
  nueva_->setText(texto(txt::MenuNueva));
  abrir_->setText(texto(txt::MenuAbrir));
  muestra_->setText(texto(txt::AbreMuestra));
  muestra_->setDescription(texto(txt::NotaMuestra));
  suelta_->setText(texto(txt::SueltaObra));
  advertencia_->setText(
      QStringLiteral("⚠ <a href=\"#\">%1</a>").arg(texto(txt::LeaAdvertencia).toHtmlEscaped()));
  advertencia_->setVisible(entorno_.preferencias.AvisoDeUsoPendiente());
  rotuloRecientes_->setText(texto(txt::MenuRecientes));
  RenuevaRecientes();
}

void PaginaInicio::RenuevaRecientes() {
  while (auto* pieza = recientes_->takeAt(0)) {
    delete pieza->widget();
    delete pieza;
  }
  const auto rutas = entorno_.preferencias.ObrasRecientes();
  rotuloRecientes_->setVisible(!rutas.isEmpty());
  for (const auto& ruta : rutas) {
    auto* boton = new QPushButton(this);
    boton->setFlat(true);
    boton->setFixedWidth(kAnchoColumna);
    const QString larga = QDir::toNativeSeparators(ruta);
    boton->setText(boton->fontMetrics()
                       .elidedText(larga, Qt::ElideMiddle, kAnchoColumna - 24)
                       .replace(QLatin1Char('&'), QStringLiteral("&&")));
    boton->setToolTip(Consejo(larga));
    boton->setStyleSheet(QStringLiteral("text-align: left"));
    recientes_->addWidget(boton, 0, Qt::AlignHCenter);
    connect(boton, &QPushButton::clicked, this, [this, ruta] { emit obraPedida(ruta); });
  }
}

}  // namespace zorbin
