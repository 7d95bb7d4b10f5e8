#include "shell/ayuda/frmTip.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QScreen>
#include <QShortcut>
#include <QShowEvent>
#include <QVBoxLayout>

#include "base/textos.h"
#include "shell/piezas/mdQt.h"
#include "shell/piezas/mdVisorHtml.h"

namespace zorbin {

namespace {

struct Aviso {
  int documento;           // entry with its name
  const char* opcion;      // setting of its check box; null: it has none
  std::vector<int> falta;  // what is told when there is no document; 0 is its name, at the end
                           // of the line before
};

const Aviso& De(ModoAviso modo) {
  static const Aviso derecho{txt::DocDerechoDeUso,
                             "Mostrar sugerencias al iniciar",
                             {txt::FaltaDerecho1, txt::FaltaDerecho2, txt::FaltaDerecho3, 0}};
  static const Aviso visor{txt::DocVisorPdf, nullptr, {txt::FaltaArchivo, 0, txt::FaltaLector}};
  static const Aviso memoria{txt::DocMemoria,
                             "Mostrar sugerencias al iniciar II",
                             {txt::FaltaArchivo, 0, txt::FaltaMemoria}};
  if (modo == ModoAviso::InstalarVisor) return visor;
  return modo == ModoAviso::MemoriaTecnica ? memoria : derecho;
}

QString TextoQueFalta(const Catalogo& textos, const Aviso& aviso) {
  QString texto;
  for (const int n : aviso.falta) {
    if (n != 0 && !texto.isEmpty()) texto += '\n';
    texto += Q(textos.Texto(n != 0 ? n : aviso.documento));
  }
  return texto;
}

ModoAviso ModoDe(int modo) {
  if (modo == 2) return ModoAviso::InstalarVisor;
  return modo == 3 ? ModoAviso::MemoriaTecnica : ModoAviso::DerechoDeUso;
}

// In the middle of the window it belongs to, and whole on its screen.
void Centra(QWidget& caja) {
  if (caja.parentWidget() == nullptr) return;
  const auto* ventana = caja.parentWidget()->window();
  QRect sitio(QPoint(), caja.frameGeometry().size());
  sitio.moveCenter(ventana->frameGeometry().center());
  const QRect pantalla = ventana->screen()->availableGeometry();
  const int x = std::min(sitio.left(), pantalla.right() - sitio.width() + 1);
  const int y = std::min(sitio.top(), pantalla.bottom() - sitio.height() + 1);
  caja.move(std::max(x, pantalla.left()), std::max(y, pantalla.top()));
}

}  // namespace

bool QuiereAviso(const Preferencias& preferencias, ModoAviso modo) {
  const auto* opcion = De(modo).opcion;
  return opcion == nullptr ||
         preferencias.OpcionAviso(QString::fromLatin1(opcion)).trimmed() != QLatin1String("0");
}

frmTip::frmTip(const Entorno& entorno, int modo, const DocumentoHtml& documento, QWidget* padre)
    : frmTip(entorno, ModoDe(modo), documento, padre) {}

frmTip::frmTip(const Entorno& entorno, ModoAviso modo, const DocumentoHtml& documento,
               QWidget* padre)
    : QDialog(padre) {
  setWindowTitle(Rotulo(entorno.textos.Texto(txt::TituloAdvertencia)));
  auto* texto = new VisorHtml;
  texto->setAccessibleName(windowTitle());
  texto->document()->setDocumentMargin(fontMetrics().height());
  const QString html = documento(De(modo).documento);
  if (html.isEmpty()) {
    texto->setPlainText(TextoQueFalta(entorno.textos, De(modo)));
  } else {
    texto->setHtml(html);
  }
  auto* botones = new QDialogButtonBox;
  auto* acepta = botones->addButton(Rotulo(entorno.textos.Texto(txt::BotonAceptar)),
                                    QDialogButtonBox::AcceptRole);
  acepta->setDefault(true);
  connect(botones, &QDialogButtonBox::accepted, this, &QDialog::accept);
  auto* fila = new QHBoxLayout;
  fila->addWidget(Casilla(entorno, modo), 1);
  fila->addWidget(botones);
  auto* filas = new QVBoxLayout(this);
  filas->addWidget(texto, 1);
  filas->addLayout(fila);
  auto* ayuda = new QShortcut(QKeySequence::HelpContents, this);
  connect(ayuda, &QShortcut::activated, this,
          [&entorno] { entorno.ayuda(QStringLiteral("advertencia")); });
  acepta->setFocus();
  const int lado = fontMetrics().height();
  resize(lado * 46, lado * 34);
}

QCheckBox* frmTip::Casilla(const Entorno& entorno, ModoAviso modo) {
  auto* casilla = new QCheckBox(Rotulo(entorno.textos.Texto(txt::MostrarAlIniciar)));
  const auto* opcion = De(modo).opcion;
  casilla->setEnabled(opcion != nullptr);
  if (opcion == nullptr) return casilla;
  casilla->setChecked(QuiereAviso(entorno.preferencias, modo));
  connect(casilla, &QCheckBox::toggled, this, [&entorno, opcion](bool mostrar) {
    entorno.preferencias.PonOpcionAviso(QString::fromLatin1(opcion), mostrar);
  });
  return casilla;
}

void frmTip::showEvent(QShowEvent* suceso) {
  QDialog::showEvent(suceso);
  if (!suceso->spontaneous()) Centra(*this);
}

}  // namespace zorbin
