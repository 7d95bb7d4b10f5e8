#include "shell/principal/mdPaginaInicio.h"

#include <QCommandLinkButton>
#include <QDir>
#include <QFileInfo>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "base/mdCarpetas.h"
#include "base/textos.h"
#include "shell/captura/frFiguras.h"
#include "shell/piezas/mdQt.h"

namespace zorbin {

namespace {

constexpr int kAnchoColumna = 460;  // [px]

}  // namespace

PaginaInicio::PaginaInicio(const Entorno& entorno, QWidget* padre)
    : QWidget(padre),
      entorno_(entorno),
      titulo_(new Figura(this)),
      nueva_(new QCommandLinkButton(this)),
      abrir_(new QCommandLinkButton(this)),
      suelta_(new QLabel(this)),
      rotuloRecientes_(new QLabel(this)),
      recientes_(new QVBoxLayout) {
  auto* filas = new QVBoxLayout(this);
  titulo_->setFixedSize(kAnchoColumna, kAnchoColumna / 2);
  QFont negrita = rotuloRecientes_->font();
  negrita.setBold(true);
  rotuloRecientes_->setFont(negrita);
  filas->addStretch(1);
  for (auto* w : {static_cast<QWidget*>(titulo_), static_cast<QWidget*>(nueva_),
                  static_cast<QWidget*>(abrir_), static_cast<QWidget*>(suelta_),
                  static_cast<QWidget*>(rotuloRecientes_)}) {
    w->setFixedWidth(kAnchoColumna);
    filas->addWidget(w, 0, Qt::AlignHCenter);
  }
  filas->addLayout(recientes_);
  filas->addStretch(2);
  connect(nueva_, &QPushButton::clicked, this, &PaginaInicio::nuevaPedida);
  connect(abrir_, &QPushButton::clicked, this, &PaginaInicio::abrirPedido);
}

void PaginaInicio::Renueva() {
  const auto texto = [this](int n) { return Q(entorno_.textos.Texto(n)); };
  titulo_->Pon(Q(RutaFigura(entorno_.textos.Texto(txt::PictoAnagrama)).string()));
  nueva_->setText(texto(txt::MenuNueva));
  abrir_->setText(texto(txt::MenuAbrir));
  suelta_->setText(texto(txt::SueltaObra));
  rotuloRecientes_->setText(texto(txt::MenuRecientes));
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
