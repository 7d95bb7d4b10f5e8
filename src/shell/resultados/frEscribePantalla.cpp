#include "shell/resultados/frEscribePantalla.h"

#include <QApplication>
#include <QButtonGroup>
#include <QClipboard>
#include <QFontDatabase>
#include <QFontInfo>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>
#include <QShortcut>
#include <QVBoxLayout>
#include <QWheelEvent>
#include <algorithm>
#include <array>
#include <chrono>

#include "base/textos.h"
#include "persistencia/disco/mdFicheroSalida.h"
#include "shell/impresion/mdGuardar.h"
#include "shell/piezas/mdDialogos.h"
#include "shell/piezas/mdFaena.h"
#include "shell/piezas/mdQt.h"
#include "shell/resultados/mdBuscador.h"
#include "shell/resultados/mdVisorTexto.h"

namespace zorbin {

namespace {

constexpr std::chrono::milliseconds kCortesia{200};  // for a short text to be there from the start
constexpr std::size_t kMayorCopia = 32U << 20U;      // bytes; other programs stand still with more
constexpr int kMenorCuerpo = 6;                      // [pt]
constexpr int kMayorCuerpo = 40;
constexpr int kColumnas = 98;  // that the screen opens with
constexpr int kFilas = 40;
constexpr int kAireBoton = 18;  // round its text [pixels]
constexpr std::array<int, kTiposListado> kRotulosListado{txt::Normal, txt::ListadoTabular,
                                                         txt::ListadoPantalla, txt::ListadoLame};
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
      texto_(std::move(resumido_.fuente)),
      edPantalla_((texto_.Espera(kCortesia), new VisorTexto(texto_, this))),
      buscador_(new Buscador(entorno.textos, *edPantalla_, this)),
      rdTipoListado_(new QButtonGroup(this)),
      aviso_(new QLabel(this)) {
  setObjectName(kVentana);
  setWindowTitle(QString(9, ' ') + Tx(txt::ResumenDeCalculo));
  setWindowFlag(Qt::WindowMaximizeButtonHint);
  edPantalla_->setObjectName(QStringLiteral("edPantalla"));
  edPantalla_->setAccessibleName(Tx(txt::ResumenDeCalculo));
  edPantalla_->viewport()->installEventFilter(this);
  edPantalla_->setFont(FuenteFija());
  PonCuerpo(entorno_.preferencias.Valor(kCuerpo, CuerpoNormal()).toInt());
  Distribuye();
  CreaTeclas();
  connect(edPantalla_, &VisorTexto::copia, this, &frEscribePantalla::Copia);
  connect(edPantalla_, &VisorTexto::menu, this, &frEscribePantalla::Menu);
  const auto alFinal = [this] {
    if (resumido_.avisoFinal) PonAviso(resumido_.avisoFinal());
  };
  connect(edPantalla_, &VisorTexto::entero, this, alFinal);
  if (texto_.LaCuenta().entera) alFinal();
  if (!entorno_.preferencias.RecuperaVentana(kVentana, *this)) {
    const QFontMetrics letra(edPantalla_->font());
    edPantalla_->setMinimumSize(letra.averageCharWidth() * kColumnas, letra.height() * kFilas);
    adjustSize();
    edPantalla_->setMinimumSize(0, 0);
  }
  edPantalla_->setFocus();
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
  aviso_->setObjectName(QStringLiteral("lbAviso"));
  aviso_->setTextFormat(Qt::PlainText);
  aviso_->setWordWrap(true);
  izquierda->addWidget(aviso_);
  PonAviso(resumido_.aviso);
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
    return b;
  };
  const auto dePapel = [&](const char* nombre, int texto, auto accion) {
    boton(nombre, texto, accion)->setEnabled(resumido_.conPapel);
  };
  dePapel("btImprimeTramo", txt::BotonImprimir, [this] { Imprime(); });
  dePapel("btVistaPrevia", txt::VistaPrevia, [this] { VistaPrevia(); });
  dePapel("btPdf", txt::ResumenPdf, [this] { Pdf(); });
  columna.addSpacing(12);
  boton("btTexto", txt::ResumenTexto, [this] { Guarda(); });
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

void frEscribePantalla::PonAviso(const std::string& aviso) {
  aviso_->setText(Q(aviso));
  aviso_->setVisible(!aviso.empty());
}

// What leaves the screen does so whole.
bool frEscribePantalla::EsperaTodo() {
  if (texto_.LaCuenta().entera) return true;
  const std::string rotulo(entorno_.textos.Texto(txt::PreparandoElResumen));
  bool entera = false;
  HazFaena(this, entorno_.textos, txt::ResumenDeCalculo, [&](MarchaFaena& marcha) {
    entera = texto_.EsperaTodo([&] {
      if (marcha.Espera()) marcha.Di({rotulo, texto_.LaCuenta().hecho});
      return marcha.Sigue();
    });
  });
  return entera;
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

// The selection, or everything.
void frEscribePantalla::Copia() {
  const bool todo = !edPantalla_->HayEleccion();
  if (todo && !EsperaTodo()) return;
  const Lugar desde = todo ? Lugar{} : edPantalla_->Desde();
  const Lugar hasta = todo ? Lugar{texto_.LaCuenta().lineas - 1, 0} : edPantalla_->Hasta();
  std::string texto;
  bool cabe = true;
  bool sigue = true;
  HazFaena(this, entorno_.textos, txt::ResumenDeCalculo, [&](MarchaFaena& marcha) {
    texto_.Recorre(desde.linea, hasta.linea, [&](std::string_view linea) {
      texto.append(linea).push_back('\n');
      cabe = texto.size() <= kMayorCopia;
      sigue = marcha.Sigue();
      return cabe && sigue;
    });
  });
  if (!sigue) return;
  if (!cabe) {
    const auto& textos = entorno_.textos;
    return Avisa(this, textos,
                 Q(textos.Compone(txt::ResumenDemasiadoLargo, {S(Tx(txt::ResumenTexto))})));
  }
  QString copia = Q(texto);
  copia.chop(1);  // the end of the last line
  if (!todo) {
    const auto ultima = copia.lastIndexOf('\n') + 1;
    copia.truncate(ultima + hasta.columna);
    copia.remove(0, desde.columna);
  }
  QApplication::clipboard()->setText(copia);
}

void frEscribePantalla::Guarda() {
  if (!EsperaTodo()) return;
  GuardaTexto(this, entorno_.textos, entorno_.preferencias, resumido_.nombre,
              [this](MarchaFaena& marcha, FicheroSalida& fichero) {
                const auto bloques = texto_.Bloques();
                for (std::size_t i = 0; i < bloques; ++i) {
                  marcha.Exige();
                  if (marcha.Espera()) {
                    marcha.Di({entorno_.textos.Texto(txt::PreparandoElResumen),
                               static_cast<double>(i) / static_cast<double>(bloques)});
                  }
                  fichero.Escribe(texto_.Bloque(i));
                }
              });
}

void frEscribePantalla::Menu(QPoint donde) {
  QMenu menu(this);
  menu.addAction(Tx(txt::ResumenCopiar), QKeySequence::Copy, this, &frEscribePantalla::Copia)
      ->setEnabled(edPantalla_->HayEleccion());
  menu.addAction(Tx(txt::ElegirTodo), QKeySequence::SelectAll, edPantalla_, &VisorTexto::EligeTodo);
  menu.exec(donde);
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
  return [lista = resumido_.lista, tipo = Tipo()](DestinoHojas& hojas) { lista(tipo, hojas); };
}

void frEscribePantalla::AvisaReparo() {
  if (!resumido_.reparo.empty()) Avisa(this, entorno_.textos, Q(resumido_.reparo));
}

// A key asks for paper too. The listing reads what the summary may still have to change.
bool frEscribePantalla::ListoParaPapel() {
  if (!resumido_.conPapel || !EsperaTodo()) return false;
  AvisaReparo();
  return true;
}

void frEscribePantalla::Imprime() {
  if (!ListoParaPapel()) return;
  if (entorno_.impresion.Imprime(this, NombreDocumento(), ElDocumento())) accept();
}

void frEscribePantalla::VistaPrevia() {
  if (ListoParaPapel()) entorno_.impresion.VistaPrevia(this, NombreDocumento(), ElDocumento());
}

void frEscribePantalla::Pdf() {
  if (!ListoParaPapel()) return;
  GuardaPdf(this, entorno_.textos, entorno_.preferencias, NombreDocumento(), ElDocumento());
}

}  // namespace zorbin
