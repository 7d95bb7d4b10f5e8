#include "shell/dibujos/mdVistaLamina.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QFile>
#include <QFontInfo>
#include <QGuiApplication>
#include <QHelpEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>
#include <algorithm>
#include <cmath>
#include <filesystem>

#include "base/textos.h"
#include "listados/dibujos/mdDxf.h"
#include "listados/dibujos/mdSvg.h"
#include "listados/pintor/mdPintaLamina.h"
#include "persistencia/disco/mdFicheroSalida.h"
#include "shell/impresion/mdGuardar.h"
#include "shell/piezas/mdQt.h"

namespace zorbin {

namespace {

constexpr double kLetraIgual =
    3.1;  // of the drawings that is as large as the letter of the window [mm]
constexpr double kOpacidadAtrasada = 0.32;
constexpr double kMayorAumento = 12.0;
constexpr double kPasoRueda = 1.2;
constexpr double kPorMmCopia = 8.0;
constexpr int kMargenArrastre = 4;  // [px]

Color ColorDe(const QColor& c) {
  return {static_cast<std::uint8_t>(c.red()), static_cast<std::uint8_t>(c.green()),
          static_cast<std::uint8_t>(c.blue())};
}

}  // namespace

Paleta PaletaDe(const QPalette& colores) {
  const QColor papel = colores.color(QPalette::Base);
  Paleta paleta(papel.lightnessF() < 0.5 ? TemaDibujo::Oscuro : TemaDibujo::Claro);
  paleta.Pon(Tinta::Papel, ColorDe(papel));
  paleta.Pon(Tinta::Tinta, ColorDe(colores.color(QPalette::Text)));
  return paleta;
}

VistaLamina::VistaLamina(const Entorno& entorno, QSize minimo, QWidget* padre)
    : QWidget(padre), entorno_(entorno) {
  setMinimumSize(minimo);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
  setMouseTracking(true);
}

void VistaLamina::Pon(Dibuja dibuja) {
  dibuja_ = std::move(dibuja);
  hecha_.reset();
  update();
}

void VistaLamina::PonAtrasada(bool atrasada) {
  if (atrasada == atrasada_) return;
  atrasada_ = atrasada;
  update();
}

double VistaLamina::PorMm() const {
  if (entera_ && hecha_ && hecha_->lamina.ancho > 0) {
    return std::min(width() / hecha_->lamina.ancho, height() / hecha_->lamina.alto);
  }
  return QFontInfo(font()).pixelSize() / kLetraIgual;
}

const LaminaConEjes& VistaLamina::Ahora() {
  if (hecha_ && deTamano_ == size()) return *hecha_;
  deTamano_ = size();
  const HojaDibujo hoja{width() / PorMm(), height() / PorMm(), false, 0};
  hecha_ = dibuja_ ? dibuja_(hoja) : LaminaConEjes{};
  return *hecha_;
}

Xy VistaLamina::EnHoja(QPointF sitio) const {
  const QPointF p = (sitio - origen_) / (PorMm() * aumento_);
  return {p.x(), p.y()};
}

QImage VistaLamina::Imagen(double porMm) {
  const auto& lamina = Ahora().lamina;
  QImage imagen(static_cast<int>(std::ceil(lamina.ancho * porMm)),
                static_cast<int>(std::ceil(lamina.alto * porMm)), QImage::Format_RGB32);
  if (imagen.isNull()) return imagen;
  QPainter pintor(&imagen);
  PintaLamina(pintor, lamina, PaletaDe(palette()), porMm);
  return imagen;
}

// No empty strip comes in at an edge.
void VistaLamina::Encaja() {
  const auto dentro = [this](double x, double lado) {
    return std::clamp(x, lado * (1.0 - aumento_), 0.0);
  };
  origen_ = {dentro(origen_.x(), width()), dentro(origen_.y(), height())};
}

void VistaLamina::paintEvent(QPaintEvent*) {
  QPainter pintor(this);
  const auto paleta = PaletaDe(palette());
  pintor.fillRect(rect(), palette().color(QPalette::Base));
  if (!dibuja_) return;
  const auto& lamina = Ahora().lamina;
  Encaja();
  pintor.setRenderHint(QPainter::Antialiasing);
  if (atrasada_) pintor.setOpacity(kOpacidadAtrasada);
  pintor.translate(origen_);
  PintaLamina(pintor, lamina, paleta, PorMm() * aumento_, false);
}

QString VistaLamina::Dicho(QPointF sitio) {
  return cuenta_ && dibuja_ ? cuenta_(Ahora(), EnHoja(sitio)) : QString{};
}

bool VistaLamina::event(QEvent* suceso) {
  if (suceso->type() == QEvent::ToolTip) {
    const auto* ayuda = static_cast<QHelpEvent*>(suceso);
    QToolTip::showText(ayuda->globalPos(), Consejo(Dicho(ayuda->pos())), this);
    return true;
  }
  if (suceso->type() == QEvent::Leave) emit apuntado({});
  return QWidget::event(suceso);
}

void VistaLamina::mousePressEvent(QMouseEvent* suceso) {
  if (suceso->button() != Qt::LeftButton) return;
  arrastre_ = suceso->position();
  arrastrado_ = false;
}

void VistaLamina::mouseMoveEvent(QMouseEvent* suceso) {
  if (!arrastre_) {
    emit apuntado(Dicho(suceso->position()));
    return;
  }
  const QPointF paso = suceso->position() - *arrastre_;
  if (!arrastrado_ && paso.manhattanLength() < kMargenArrastre) return;
  arrastrado_ = true;
  arrastre_ = suceso->position();
  origen_ += paso;
  update();
}

void VistaLamina::mouseReleaseEvent(QMouseEvent* suceso) {
  if (suceso->button() != Qt::LeftButton || !arrastre_) return;
  arrastre_.reset();
  if (!arrastrado_) emit elegido(EnHoja(suceso->position()));
}

void VistaLamina::mouseDoubleClickEvent(QMouseEvent*) {
  aumento_ = 1.0;
  origen_ = {};
  update();
}

void VistaLamina::wheelEvent(QWheelEvent* suceso) {
  if (!rueda_ && !(suceso->modifiers() & Qt::ControlModifier)) return suceso->ignore();
  const double paso = std::pow(kPasoRueda, suceso->angleDelta().y() / 120.0);
  const double nuevo = std::clamp(aumento_ * paso, 1.0, kMayorAumento);
  const QPointF p = suceso->position();
  origen_ = p - (p - origen_) * (nuevo / aumento_);
  aumento_ = nuevo;
  suceso->accept();
  update();
}

// ---------------------------------------------------------------------------------------------
// Out of the window

void VistaLamina::contextMenuEvent(QContextMenuEvent* suceso) {
  if (!dibuja_) return;
  QMenu menu(this);
  menu.addAction(Q(entorno_.textos.Texto(txt::ResCopiarImagen)), this, &VistaLamina::Copia);
  for (const auto* extension : {"png", "svg", "pdf", "dxf"}) {
    const QString e = QString::fromLatin1(extension);
    menu.addAction(Q(entorno_.textos.Compone(txt::ResGuardarDibujo, {S(e.toUpper())})), this,
                   [this, e] { Guarda(e); });
  }
  menu.exec(suceso->globalPos());
}

void VistaLamina::Copia() {
  QGuiApplication::clipboard()->setImage(Imagen(kPorMmCopia));
}

// A file has the colours of paper.
void VistaLamina::Guarda(const QString& extension) {
  const auto& textos = entorno_.textos;
  const QString ruta =
      PideNombreFichero(this, textos, entorno_.preferencias,
                        {txt::ResTituloGuardar, txt::ResFiltroDibujo, extension}, nombre_);
  if (ruta.isEmpty()) return;
  DiFallos(this, textos, ruta, [&] {
    const std::filesystem::path fichero(QFile::encodeName(ruta).toStdString());
    const auto& lamina = Ahora().lamina;
    const Paleta papel(TemaDibujo::Papel);
    if (extension == QStringLiteral("pdf")) {
      return EscribeLaminaPdf(fichero, lamina, papel, S(nombre_));
    }
    FicheroSalida salida(fichero);
    salida.Escribe(extension == QStringLiteral("svg")   ? SvgDe(lamina, papel, S(nombre_))
                   : extension == QStringLiteral("dxf") ? DxfDe(lamina, S(nombre_))
                                                        : LaminaPng(lamina, papel));
    salida.Termina();
  });
}

}  // namespace zorbin
