#include "shell/resultados/mdBuscador.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QToolButton>
#include <functional>
#include <limits>
#include <optional>

#include "base/textos.h"
#include "shell/piezas/mdFaena.h"
#include "shell/piezas/mdQt.h"

namespace zorbin {

namespace {

// Looks through a text block by block. No match goes over a line end, which cannot be typed.
class Busqueda {
 public:
  /// @param sigue  asked before each block, with the part of the text that has been seen
  Busqueda(const TextoLargo& texto, QString que, std::function<bool(double)> sigue)
      : texto_(texto), que_(std::move(que)), sigue_(std::move(sigue)) {}

  /// The first match from a place on.
  std::optional<Lugar> Adelante(Lugar desde) {
    const auto primero = texto_.BloqueDe(desde.linea);
    for (auto b = primero; b < texto_.Bloques() && Espera(b); ++b) {
      const QString bloque = Q(texto_.Bloque(b));
      const auto sitio = b == primero ? Sitio(bloque, b, desde) : 0;
      const auto hallado = bloque.indexOf(que_, sitio, Qt::CaseInsensitive);
      if (hallado >= 0) return En(bloque, b, hallado);
    }
    return {};
  }

  /// The last match that begins before a place.
  std::optional<Lugar> Atras(Lugar antes) {
    const auto primero = texto_.BloqueDe(antes.linea);
    for (auto b = primero + 1; b-- > 0 && Espera(b);) {
      const QString bloque = Q(texto_.Bloque(b));
      const auto sitio = b == primero ? Sitio(bloque, b, antes) : bloque.size();
      if (sitio == 0) continue;
      const auto hallado = bloque.lastIndexOf(que_, sitio - 1, Qt::CaseInsensitive);
      if (hallado >= 0) return En(bloque, b, hallado);
    }
    return {};
  }

  /// The same from the end of the text.
  std::optional<Lugar> AtrasDesdeElFinal() {
    if (texto_.Bloques() == 0 || !Espera(texto_.Bloques() - 1)) return {};
    return Atras({std::numeric_limits<int>::max(), 0});
  }

 private:
  const TextoLargo& texto_;
  const QString que_;
  std::function<bool(double)> sigue_;
  std::size_t vistos_ = 0;

  bool Espera(std::size_t b) {
    const auto todos = static_cast<double>(2 * texto_.Bloques());  // it may go round
    const double hecho = static_cast<double>(vistos_++) / todos;
    if (!sigue_(hecho)) return false;
    return texto_.EsperaBloque(b, [&] { return sigue_(hecho); });
  }

  // A place as letters from the beginning of its block.
  qsizetype Sitio(const QString& bloque, std::size_t b, Lugar lugar) const {
    qsizetype sitio = 0;
    for (int n = texto_.PrimeraLinea(b); n < lugar.linea; ++n) {
      const auto fin = bloque.indexOf('\n', sitio);
      if (fin < 0) return bloque.size();
      sitio = fin + 1;
    }
    return std::min(sitio + lugar.columna, bloque.size());
  }

  Lugar En(const QString& bloque, std::size_t b, qsizetype sitio) const {
    const auto antes = QStringView(bloque).first(sitio);
    const auto columna = sitio - (antes.lastIndexOf('\n') + 1);
    return {texto_.PrimeraLinea(b) + static_cast<int>(antes.count('\n')),
            static_cast<int>(columna)};
  }
};

}  // namespace

Buscador::Buscador(const Catalogo& textos, VisorTexto& visor, QWidget* padre)
    : QWidget(padre),
      textos_(textos),
      visor_(visor),
      que_(new QLineEdit(this)),
      dice_(new QLabel(this)) {
  que_->setObjectName(QStringLiteral("edBuscar"));
  dice_->setObjectName(QStringLiteral("lbBuscar"));
  que_->setClearButtonEnabled(true);
  que_->setMinimumWidth(fontMetrics().averageCharWidth() * 16);
  dice_->setTextFormat(Qt::PlainText);
  auto* rotulo = new QLabel(Tx(txt::RotuloBuscar), this);
  rotulo->setBuddy(que_);
  auto* anterior = new QPushButton(Tx(txt::BuscarAnterior), this);
  auto* siguiente = new QPushButton(Tx(txt::BuscarSiguiente), this);
  auto* cierra = new QToolButton(this);
  cierra->setText(QString(QChar(0x00D7)));
  cierra->setToolTip(Tx(txt::CerrarBusqueda));
  cierra->setAccessibleName(Tx(txt::CerrarBusqueda));
  cierra->setAutoRaise(true);
  for (auto* boton : {anterior, siguiente}) boton->setAutoDefault(false);

  auto* fila = new QHBoxLayout(this);
  fila->setContentsMargins(0, 0, 0, 0);
  fila->addWidget(rotulo);
  fila->addWidget(que_, 1);
  fila->addWidget(anterior);
  fila->addWidget(siguiente);
  fila->addWidget(dice_, 1);
  fila->addWidget(cierra);

  connect(que_, &QLineEdit::textChanged, this, [this] { Busca(false, visor_.Desde()); });
  connect(anterior, &QPushButton::clicked, this, &Buscador::Anterior);
  connect(siguiente, &QPushButton::clicked, this, &Buscador::Siguiente);
  connect(cierra, &QToolButton::clicked, this, &Buscador::Cierra);
  hide();
}

QString Buscador::Tx(int n) const {
  return Rotulo(textos_.Texto(n));
}

void Buscador::Abre() {
  const QString elegido = visor_.Elegido();
  show();
  if (!elegido.isEmpty()) que_->setText(elegido);
  que_->setFocus();
  que_->selectAll();
  Marca();
}

void Buscador::Cierra() {
  hide();
  dice_->clear();
  Marca();
  visor_.setFocus();
}

void Buscador::Siguiente() {
  if (que_->text().isEmpty()) return Abre();
  Busca(false, visor_.Hasta());
}

void Buscador::Anterior() {
  if (que_->text().isEmpty()) return Abre();
  Busca(true, visor_.Desde());
}

void Buscador::Busca(bool atras, Lugar desde) {
  dice_->clear();
  const QString que = que_->text();
  if (que.isEmpty()) return Marca();
  show();
  const std::string rotulo = textos_.Compone(txt::BuscandoEnElResumen, {S(que)});
  std::optional<Lugar> hallado;
  bool daLaVuelta = false;
  bool cancelada = false;
  HazFaena(this, textos_, txt::ResumenDeCalculo, [&](MarchaFaena& marcha) {
    Busqueda busqueda(visor_.Texto(), que, [&](double hecho) {
      if (marcha.Espera()) marcha.Di({rotulo, hecho});
      return marcha.Sigue();
    });
    hallado = atras ? busqueda.Atras(desde) : busqueda.Adelante(desde);
    daLaVuelta = !hallado;
    if (daLaVuelta) hallado = atras ? busqueda.AtrasDesdeElFinal() : busqueda.Adelante({});
    cancelada = !marcha.Sigue();
  });
  if (cancelada) return Marca();
  if (!hallado) {
    dice_->setText(Q(textos_.Compone(txt::NoSeEncuentra, {S(que)})));
  } else {
    if (daLaVuelta) dice_->setText(Tx(atras ? txt::SigueDesdeElFinal : txt::SigueDesdeElPrincipio));
    visor_.Elige(*hallado, {hallado->linea, hallado->columna + static_cast<int>(que.size())});
  }
  Marca();
}

void Buscador::Marca() {
  visor_.Marca(isVisible() ? que_->text() : QString());
}

void Buscador::keyPressEvent(QKeyEvent* suceso) {
  switch (suceso->key()) {
    case Qt::Key_Escape:
      return Cierra();
    case Qt::Key_Return:
    case Qt::Key_Enter:
      return (suceso->modifiers() & Qt::ShiftModifier) != 0 ? Anterior() : Siguiente();
    default:
      QWidget::keyPressEvent(suceso);
  }
}

}  // namespace zorbin
