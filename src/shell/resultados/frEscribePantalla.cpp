#include "shell/resultados/frEscribePantalla.h"

#include <QApplication>
#include <QButtonGroup>
#include <QClipboard>
#include <QFontDatabase>
#include <QFontInfo>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QShortcut>
#include <QTimer>
#include <QVBoxLayout>
#include <QWheelEvent>
#include <algorithm>
#include <array>

#include "base/textos.h"
#include "shell/impresion/mdGuardar.h"
#include "shell/piezas/mdQt.h"
#include "shell/resultados/mdBuscador.h"

namespace zorbin {

namespace {

constexpr std::size_t kTrozo = 256 * 1024;  // of the text, shown without the screen standing still
constexpr int kMenorCuerpo = 6;             // [pt]
constexpr int kMayorCuerpo = 40;
constexpr int kColumnas = 86;  // that the screen opens with
constexpr int kFilas = 40;
constexpr std::array<int, kTiposListado> kRotulosListado{txt::Normal, txt::ListadoTabular,
                                                         txt::ListadoPantalla, txt::ListadoLame};
constexpr int kAireBoton = 18;  // round its text [pixels]
const QString kVentana = QStringLiteral("frEscribePantalla");
const QString kCuerpo = QStringLiteral("Resumen/Cuerpo");

QFont FuenteFija() {
  QFont fuente = QFontDatabase::systemFont(QFontDatabase::FixedFont);
  fuente.setStyleHint(QFont::Monospace);
  fuente.setFixedPitch(true);
  return fuente;
}

int CuerpoNormal() {
  return std::max(kMenorCuerpo, QFontInfo(FuenteFija()).pointSize());
}

}  // namespace

frEscribePantalla::frEscribePantalla(const Entorno& entorno, Resumido resumido, QWidget* padre)
    : QDialog(padre),
      entorno_(entorno),
      resumido_(std::move(resumido)),
      edPantalla_(new QPlainTextEdit(this)),
      buscador_(new Buscador(entorno.textos, *edPantalla_, this)),
      rdTipoListado_(new QButtonGroup(this)) {
  setObjectName(kVentana);
  setWindowTitle(QString(9, ' ') + Tx(txt::ResumenDeCalculo));
  setWindowFlag(Qt::WindowMaximizeButtonHint);
  edPantalla_->setObjectName(QStringLiteral("edPantalla"));
  edPantalla_->setAccessibleName(Tx(txt::ResumenDeCalculo));
  edPantalla_->setUndoRedoEnabled(false);
  edPantalla_->setReadOnly(true);
  edPantalla_->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  edPantalla_->setLineWrapMode(QPlainTextEdit::NoWrap);
  edPantalla_->viewport()->installEventFilter(this);
  edPantalla_->setFont(FuenteFija());
  PonCuerpo(entorno_.preferencias.Valor(kCuerpo, CuerpoNormal()).toInt());
  Distribuye();
  CreaTeclas();
  connect(buscador_, &Buscador::busca, this, &frEscribePantalla::MuestraTodo);
  if (!entorno_.preferencias.RecuperaVentana(kVentana, *this)) {
    const QFontMetrics letra(edPantalla_->font());
    edPantalla_->setMinimumSize(letra.averageCharWidth() * kColumnas, letra.height() * kFilas);
    adjustSize();
    edPantalla_->setMinimumSize(0, 0);
  }
  edPantalla_->setFocus();
  MuestraTrozo();
  // The first text pushed the cursor along; the rest comes after it.
  edPantalla_->moveCursor(QTextCursor::Start);
}

frEscribePantalla::~frEscribePantalla() {
  entorno_.preferencias.GuardaVentana(kVentana, *this);
  entorno_.preferencias.PonValor(kCuerpo, cuerpo_);
}

QString frEscribePantalla::Tx(int n) const {
  return Rotulo(entorno_.textos.Texto(n));
}

void frEscribePantalla::Distribuye() {
  auto* izquierda = new QVBoxLayout;
  izquierda->addWidget(edPantalla_, 1);
  izquierda->addWidget(buscador_);
  if (!resumido_.aviso.empty()) {
    auto* aviso = new QLabel(Q(resumido_.aviso), this);
    aviso->setObjectName(QStringLiteral("lbAviso"));
    aviso->setTextFormat(Qt::PlainText);
    aviso->setWordWrap(true);
    izquierda->addWidget(aviso);
  }
  auto* derecha = new QVBoxLayout;
  CreaOpciones(*derecha);
  CreaBotones(*derecha);
  auto* columnas = new QHBoxLayout(this);
  columnas->addLayout(izquierda, 1);
  columnas->addLayout(derecha);
}

void frEscribePantalla::CreaOpciones(QVBoxLayout& columna) {
  auto* grupo = new QGroupBox(Tx(txt::TipoDeListado), this);
  grupo->setObjectName(QStringLiteral("rdTipoListado"));
  auto* filas = new QVBoxLayout(grupo);
  for (int tipo = 0; tipo < kTiposListado; ++tipo) {
    auto* opcion = new QRadioButton(Tx(kRotulosListado[static_cast<std::size_t>(tipo)]), grupo);
    rdTipoListado_->addButton(opcion, tipo);
    filas->addWidget(opcion);
  }
  constexpr int kLame = static_cast<int>(TipoListado::Lame);
  rdTipoListado_->button(kLame)->setEnabled(resumido_.conLame);
  // Where it is not offered the choice of it is not forgotten.
  const int ultimo = entorno_.preferencias.TipoListado();
  rdTipoListado_->button(ultimo == kLame && !resumido_.conLame ? 0 : ultimo)->setChecked(true);
  connect(rdTipoListado_, &QButtonGroup::idClicked, this,
          [this](int tipo) { entorno_.preferencias.PonTipoListado(tipo); });
  columna.addWidget(grupo);
}

void frEscribePantalla::CreaBotones(QVBoxLayout& columna) {
  const auto boton = [&](const char* nombre, int texto, auto accion) {
    auto* b = new QPushButton(Tx(texto), this);
    b->setObjectName(QString::fromLatin1(nombre));
    b->setAutoDefault(false);
    b->setMinimumWidth(b->sizeHint().width() + kAireBoton);
    connect(b, &QPushButton::clicked, this, accion);
    columna.addWidget(b);
  };
  auto& textos = entorno_.textos;
  auto& preferencias = entorno_.preferencias;
  boton("btImprimeTramo", txt::BotonImprimir, [this] { Imprime(); });
  boton("btVistaPrevia", txt::VistaPrevia,
        [this] { entorno_.impresion.VistaPrevia(this, NombreDocumento(), ElDocumento()); });
  boton("btPdf", txt::ResumenPdf, [this, &textos, &preferencias] {
    GuardaPdf(this, textos, preferencias, NombreDocumento(), ElDocumento());
  });
  columna.addSpacing(12);
  boton("btTexto", txt::ResumenTexto, [this, &textos, &preferencias] {
    GuardaTexto(this, textos, preferencias, resumido_.nombre, resumido_.texto);
  });
  boton("btCopiar", txt::ResumenCopiar, [this] { Copia(); });
  boton("btBuscar", txt::ResumenBuscar, [this] { buscador_->Abre(); });
  columna.addStretch();
  boton("btSalir", txt::BotonSalir, [this] { reject(); });
}

void frEscribePantalla::CreaTeclas() {
  const auto tecla = [this](const QKeySequence& teclas, auto accion) {
    connect(new QShortcut(teclas, this), &QShortcut::activated, this, accion);
  };
  tecla(QKeySequence::Find, [this] { buscador_->Abre(); });
  tecla(QKeySequence(Qt::Key_F3), [this] { buscador_->Siguiente(); });
  tecla(QKeySequence(Qt::SHIFT | Qt::Key_F3), [this] { buscador_->Anterior(); });
  tecla(QKeySequence::Print, [this] { Imprime(); });
  tecla(QKeySequence::HelpContents, [this] { entorno_.ayuda(QStringLiteral("resumen")); });
  tecla(QKeySequence(Qt::CTRL | Qt::Key_Plus), [this] { PonCuerpo(cuerpo_ + 1); });
  tecla(QKeySequence(Qt::CTRL | Qt::Key_Equal), [this] { PonCuerpo(cuerpo_ + 1); });
  tecla(QKeySequence(Qt::CTRL | Qt::Key_Minus), [this] { PonCuerpo(cuerpo_ - 1); });
  tecla(QKeySequence(Qt::CTRL | Qt::Key_0), [this] { PonCuerpo(CuerpoNormal()); });
}

// ---------------------------------------------------------------------------------------------
// The text

// A long text comes in pieces, so that it can be read and left at once.
void frEscribePantalla::MuestraTrozo() {
  const std::string& texto = resumido_.texto;
  std::size_t fin = std::min(texto.size(), mostrado_ + kTrozo);
  if (fin < texto.size()) fin = texto.find('\n', fin);
  fin = fin == std::string::npos ? texto.size() : std::min(fin + 1, texto.size());
  QTextCursor final(edPantalla_->document());
  final.movePosition(QTextCursor::End);
  final.insertText(Q(std::string_view(texto).substr(mostrado_, fin - mostrado_)));
  mostrado_ = fin;
  if (mostrado_ < texto.size()) QTimer::singleShot(0, this, &frEscribePantalla::MuestraTrozo);
}

void frEscribePantalla::MuestraTodo() {
  if (mostrado_ == resumido_.texto.size()) return;
  QApplication::setOverrideCursor(Qt::WaitCursor);
  while (mostrado_ < resumido_.texto.size()) MuestraTrozo();
  QApplication::restoreOverrideCursor();
}

void frEscribePantalla::PonCuerpo(int cuerpo) {
  cuerpo_ = std::clamp(cuerpo, kMenorCuerpo, kMayorCuerpo);
  QFont fuente = edPantalla_->font();
  fuente.setPointSize(cuerpo_);
  edPantalla_->setFont(fuente);
}

bool frEscribePantalla::eventFilter(QObject* objeto, QEvent* suceso) {
  if (objeto != edPantalla_->viewport() || suceso->type() != QEvent::Wheel) return false;
  const auto* rueda = static_cast<QWheelEvent*>(suceso);
  if ((rueda->modifiers() & Qt::ControlModifier) == 0) return false;
  const int vueltas = rueda->angleDelta().y();
  if (vueltas != 0) PonCuerpo(cuerpo_ + (vueltas > 0 ? 1 : -1));
  return true;
}

void frEscribePantalla::Copia() {
  QString texto = edPantalla_->textCursor().selectedText();
  texto.replace(QChar::ParagraphSeparator, '\n');
  QApplication::clipboard()->setText(texto.isEmpty() ? Q(resumido_.texto) : texto);
}

// ---------------------------------------------------------------------------------------------
// Paper

TipoListado frEscribePantalla::Tipo() const {
  return static_cast<TipoListado>(rdTipoListado_->checkedId());
}

QString frEscribePantalla::NombreDocumento() const {
  return resumido_.nombre + " - " + rdTipoListado_->checkedButton()->text();
}

Documento frEscribePantalla::ElDocumento() const {
  return [this, tipo = Tipo()](DestinoHojas& hojas) { resumido_.lista(tipo, hojas); };
}

void frEscribePantalla::Imprime() {
  if (entorno_.impresion.Imprime(this, NombreDocumento(), ElDocumento())) accept();
}

}  // namespace zorbin
