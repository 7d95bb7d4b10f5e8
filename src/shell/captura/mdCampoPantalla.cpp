#include "shell/captura/mdCampoPantalla.h"

#include <QAbstractItemView>
#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QEvent>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QStyle>
#include <QTimer>
#include <QVBoxLayout>

#include "base/textos.h"
#include "shell/piezas/mdCasillaNumero.h"
#include "shell/piezas/mdIconos.h"
#include "shell/piezas/mdQt.h"
#include "shell/piezas/mdTema.h"

namespace zorbin {

namespace {

constexpr int kColumnasNumero = 10;
constexpr int kColumnasTexto = 24;
constexpr int kLineasParrafo = 3;
constexpr int kColumnasLista = 8;

// What is pasted from a clipboard that holds no text, or nothing at all, is nothing.
class Parrafo : public QPlainTextEdit {
 public:
  using QPlainTextEdit::QPlainTextEdit;

 protected:
  bool canInsertFromMimeData(const QMimeData* datos) const override {
    return datos != nullptr && datos->hasText();
  }
  void insertFromMimeData(const QMimeData* datos) override {
    if (canInsertFromMimeData(datos)) insertPlainText(datos->text());
  }
};

// Numbers with a list of commercial values beside them.
bool OfreceValores(Ed id) {
  return id == Ed::edDi0 || id == Ed::edEsp0 || id == Ed::edReci0 || id == Ed::edRece0;
}

int AnchoDe(const QWidget& widget, int columnas) {
  return widget.fontMetrics().horizontalAdvance(QLatin1Char('0')) * columnas;
}

QString ConSaltosDeFichero(QString texto) {
  return texto.replace('\n', QStringLiteral("\r\n"));
}
QString SinSaltosDeFichero(QString texto) {
  return texto.remove('\r');
}

}  // namespace

CampoPantalla::CampoPantalla(Ed id, const Catalogo& textos, QWidget* padre)
    : QObject(padre), id_(id), textos_(textos) {
  const auto& fila = Fila(id);
  Crea(padre);
  widget_->setObjectName(Q(fila.nombre));
  etiqueta_ = new QLabel(padre);
  etiqueta_->setObjectName(QStringLiteral("lb") + Q(fila.nombre.substr(2)));
  etiqueta_->setTextFormat(Qt::PlainText);
  etiqueta_->setBuddy(widget_);
  etiqueta_->setWordWrap(true);
  nota_ = new QLabel(padre);
  nota_->setObjectName(QStringLiteral("nt") + Q(fila.nombre.substr(2)));
  nota_->setTextFormat(Qt::PlainText);
  nota_->setWordWrap(true);
  nota_->setForegroundRole(QPalette::WindowText);
  nota_->hide();
}

void CampoPantalla::Crea(QWidget* padre) {
  switch (Fila(id_).clase) {
    case Clase::Texto:
      if (id_ == Ed::edObra) return CreaParrafo(padre);
      if (id_ == Ed::edTramo) return CreaLista(padre, true);
      return CreaLinea(padre);
    case Clase::Numero:
      if (OfreceValores(id_)) return CreaLista(padre, true);
      return CreaLinea(padre);
    case Clase::Lista:
      return CreaLista(padre, false);
    case Clase::Marca:
      return CreaMarca(padre);
    case Clase::Opcion:
      return CreaOpciones(padre);
  }
}

void CampoPantalla::CreaLinea(QWidget* padre) {
  const auto& fila = Fila(id_);
  if (fila.clase == Clase::Numero) {
    auto* casilla = new CasillaNumero(padre);
    casilla->setFixedWidth(AnchoDe(*casilla, kColumnasNumero + 3));
    linea_ = casilla;
  } else {
    linea_ = new QLineEdit(padre);
    linea_->setMinimumWidth(AnchoDe(*linea_, kColumnasTexto / 2));
  }
  widget_ = linea_;
  EnlazaLinea();
}

void CampoPantalla::CreaLista(QWidget* padre, bool editable) {
  lista_ = new QComboBox(padre);
  widget_ = lista_;
  lista_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  lista_->setMinimumContentsLength(kColumnasLista);
  lista_->setFocusPolicy(Qt::StrongFocus);
  lista_->installEventFilter(this);
  if (!editable) {
    connect(lista_, &QComboBox::activated, this, [this](int) {
      if (!escribiendo_) emit entradaElegida(lista_->currentText());
    });
    return;
  }
  lista_->setEditable(true);
  lista_->setInsertPolicy(QComboBox::NoInsert);
  if (Fila(id_).clase == Clase::Numero) {
    lista_->setLineEdit(new CasillaNumero(lista_));
  }
  lista_->setCompleter(nullptr);
  lista_->setFixedWidth(AnchoDe(*lista_, kColumnasNumero + 6));
  linea_ = lista_->lineEdit();
  EnlazaLinea();
  if (id_ == Ed::edTramo) {
    connect(lista_, &QComboBox::activated, this, [this](int) {
      if (!escribiendo_) emit entradaElegida(lista_->currentText());
    });
  }
}

// The wheel that scrolls a page never changes a datum under the pointer; and a field undoes what is
// being typed in it, but leaves to the window what was taken.
bool CampoPantalla::eventFilter(QObject* objeto, QEvent* suceso) {
  if (suceso->type() == QEvent::ShortcutOverride && !tecleando_) {
    const auto* tecla = static_cast<QKeyEvent*>(suceso);
    if (!tecla->matches(QKeySequence::Undo) && !tecla->matches(QKeySequence::Redo)) return false;
    suceso->ignore();
    return true;
  }
  if (suceso->type() != QEvent::Wheel || objeto != lista_ || lista_->hasFocus()) return false;
  suceso->ignore();
  return true;
}

void CampoPantalla::EnlazaLinea() {
  linea_->installEventFilter(this);
  connect(linea_, &QLineEdit::textChanged, this, [this](const QString& texto) {
    if (!escribiendo_) emit textoCambiado(texto);
  });
}

void CampoPantalla::CreaParrafo(QWidget* padre) {
  parrafo_ = new Parrafo(padre);
  widget_ = parrafo_;
  parrafo_->setTabChangesFocus(true);
  parrafo_->installEventFilter(this);
  const int linea = parrafo_->fontMetrics().lineSpacing();
  parrafo_->setFixedHeight(linea * kLineasParrafo + linea);
  connect(parrafo_, &QPlainTextEdit::textChanged, this, [this] {
    if (escribiendo_) return;
    emit textoCambiado(ConSaltosDeFichero(parrafo_->toPlainText()));
  });
}

void CampoPantalla::CreaMarca(QWidget* padre) {
  auto* marca = new QCheckBox(padre);
  widget_ = marca;
  connect(marca, &QCheckBox::clicked, this, &CampoPantalla::marcaCambiada);
}

void CampoPantalla::CreaOpciones(QWidget* padre) {
  auto* marco = new QGroupBox(padre);
  marco->setFlat(true);
  widget_ = marco;
  botones_ = new QButtonGroup(this);
  const bool enFila = id_ == Ed::rdTipoCamisa || id_ == Ed::rdTipologia;
  auto* fila = new QBoxLayout(enFila ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom, marco);
  fila->setContentsMargins(0, 2, 0, 2);
  connect(botones_, &QButtonGroup::idClicked, this, &CampoPantalla::opcionElegida);
}

void CampoPantalla::Refresca(const Control& control, const Aspecto& aspecto) {
  escribiendo_ = true;
  tecleando_ = control.tocado;
  const QString& rotulo = aspecto.rotulo;
  if (etiqueta_->text() != rotulo) etiqueta_->setText(rotulo);
  etiqueta_->setEnabled(control.etiquetaHabilitada);
  const QString nombre =
      control.grupo.empty() ? rotulo : Q(control.grupo) + QStringLiteral(", ") + rotulo;
  const QString unidad =
      aspecto.unidad.isEmpty() ? QString() : QStringLiteral(" (%1)").arg(aspecto.unidad);
  if (!nombre.isEmpty()) widget_->setAccessibleName(nombre + unidad);
  if (widget_->toolTip() != Q(control.consejo)) {
    widget_->setToolTip(Q(control.consejo));
    widget_->setAccessibleDescription(Q(control.consejo));
    etiqueta_->setToolTip(Q(control.consejo));
  }
  PonOpciones(control);
  PonTexto(control);
  if (lista_ != nullptr && control.bloqueado) {
    widget_->setEnabled(false);
  } else {
    widget_->setEnabled(control.habilitado);
  }
  PonColores(control);
  PonMarca(aspecto.marca, aspecto.porque);
  PonNota(aspecto);
  if (linea_ != nullptr && linea_->placeholderText() != aspecto.enBlanco) {
    linea_->setPlaceholderText(aspecto.enBlanco);
  }
  escribiendo_ = false;
}

void CampoPantalla::PonTexto(const Control& control) {
  const QString texto = Q(control.texto);
  if (linea_ != nullptr) {
    if (linea_->text() != texto) linea_->setText(texto);
    linea_->setReadOnly(control.bloqueado);
    // Nobody goes on writing there: what is too long is read from its beginning.
    if (control.bloqueado && !linea_->hasFocus()) linea_->setCursorPosition(0);
  } else if (parrafo_ != nullptr) {
    const QString corto = SinSaltosDeFichero(texto);
    if (parrafo_->toPlainText() != corto) parrafo_->setPlainText(corto);
    parrafo_->setReadOnly(control.bloqueado);
  } else if (lista_ != nullptr) {
    const int lugar = lista_->findText(texto, Qt::MatchFixedString);
    if (lista_->currentIndex() != lugar) lista_->setCurrentIndex(lugar);
  } else if (auto* marca = qobject_cast<QCheckBox*>(widget_)) {
    if (marca->text() != Q(control.etiqueta)) marca->setText(Q(control.etiqueta));
    marca->setChecked(control.opcion == 1);
  }
}

void CampoPantalla::PonOpciones(const Control& control) {
  if (lista_ != nullptr) {
    bool iguales = lista_->count() == static_cast<int>(control.entradas.size());
    for (int i = 0; iguales && i < lista_->count(); ++i) {
      iguales = lista_->itemText(i) == Q(control.entradas[static_cast<std::size_t>(i)]);
    }
    if (iguales) return;
    const QString texto = linea_ != nullptr ? linea_->text() : QString();
    lista_->clear();
    for (const auto& entrada : control.entradas) lista_->addItem(Q(entrada));
    // Open, the list shows its entries whole, however narrow the field is.
    auto* vista = lista_->view();
    vista->setMinimumWidth(vista->sizeHintForColumn(0) +
                           vista->style()->pixelMetric(QStyle::PM_ScrollBarExtent) + 8);
    if (linea_ != nullptr) linea_->setText(texto);
    return;
  }
  if (botones_ == nullptr) return;
  auto* marco = qobject_cast<QGroupBox*>(widget_);
  marco->setTitle(Q(control.etiqueta));
  for (int i = 0; i < static_cast<int>(control.entradas.size()); ++i) {
    auto* boton = botones_->button(i);
    if (boton == nullptr) {
      boton = new QRadioButton(marco);
      boton->setObjectName(widget_->objectName() + QString::number(i));
      botones_->addButton(boton, i);
      marco->layout()->addWidget(boton);
      boton->setFocusPolicy(Qt::StrongFocus);
    }
    boton->setText(Q(control.entradas[static_cast<std::size_t>(i)]));
    boton->setToolTip(Q(control.consejo));
  }
  const int elegida = botones_->checkedId();
  if (elegida == control.opcion) return;
  if (control.opcion >= 0) {
    botones_->button(control.opcion)->setChecked(true);
  } else {
    botones_->setExclusive(false);
    botones_->button(elegida)->setChecked(false);
    botones_->setExclusive(true);
  }
}

void CampoPantalla::PonColores(const Control& control) {
  if (linea_ == nullptr) return;
  const bool gris = control.gris || control.bloqueado || !control.habilitado;
  const auto fondo = gris ? QPalette::Window : QPalette::Base;
  if (linea_->backgroundRole() != fondo) {
    QPalette paleta = linea_->palette();
    paleta.setBrush(QPalette::Base, gris ? widget_->parentWidget()->palette().window()
                                         : widget_->parentWidget()->palette().base());
    linea_->setPalette(paleta);
    linea_->setBackgroundRole(fondo);
  }
}

void CampoPantalla::PonMarca(MarcaCampo marca, const QString& porque) {
  if (linea_ == nullptr) return;
  if (senal_ != nullptr) senal_->setToolTip(Consejo(porque));
  if (marca == marca_) return;
  marca_ = marca;
  delete senal_;
  senal_ = nullptr;
  if (marca == MarcaCampo::Ninguna) return;
  const auto icono = marca == MarcaCampo::Requerido   ? Icono::Requerido
                     : marca == MarcaCampo::Bloqueado ? Icono::Bloqueado
                                                      : Icono::Rechazado;
  senal_ = linea_->addAction(DibujaIcono(icono, linea_->palette()), QLineEdit::LeadingPosition);
  senal_->setToolTip(Consejo(porque));
}

void CampoPantalla::PonNota(const Aspecto& aspecto) {
  const bool falta = aspecto.marca == MarcaCampo::Rechazado;
  if (widget_->property(kPropiedadFalta).toBool() != falta) {
    widget_->setProperty(kPropiedadFalta, falta);
    widget_->update();
  }
  const QString texto = falta ? aspecto.porque : callaUnidad_ ? QString() : aspecto.unidad;
  if (nota_->text() != texto) nota_->setText(texto);
  nota_->setVisible(!texto.isEmpty());
  QPalette colores;
  colores.setColor(QPalette::WindowText,
                   falta ? ColorFalta(colores) : colores.color(QPalette::PlaceholderText));
  if (nota_->palette() != colores) nota_->setPalette(colores);
}

void CampoPantalla::RenuevaTema() {
  if (linea_ == nullptr) return;
  linea_->setBackgroundRole(QPalette::NoRole);
  linea_->setPalette(QPalette());
  marca_ = MarcaCampo::Ninguna;
  delete senal_;
  senal_ = nullptr;
}

void CampoPantalla::SeleccionaTodo() {
  auto* linea = linea_;
  if (linea == nullptr) return;
  // A click places the cursor after the focus came: once it has, everything is selected.
  QTimer::singleShot(0, linea, [linea] {
    if (linea->hasFocus()) linea->selectAll();
  });
  linea->selectAll();
}

}  // namespace zorbin
