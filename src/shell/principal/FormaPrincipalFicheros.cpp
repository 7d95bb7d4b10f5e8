// How files come into the window: by its dialogs, and by what is dropped on it.
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QFile>
#include <QFileDialog>
#include <QMimeData>
#include <QTimer>
#include <QUrl>

#include "base/textos.h"
#include "shell/captura/CapturaDatos.h"
#include "shell/captura/mdInterlocutorQt.h"
#include "shell/piezas/mdDialogos.h"
#include "shell/piezas/mdQt.h"
#include "shell/principal/FormaPrincipal.h"
#include "shell/principal/frImporta.h"

namespace zorbin {

namespace {

bool EsDeObra(const QString& ruta) {
  return ruta.endsWith(QStringLiteral(".zrb"), Qt::CaseInsensitive);
}

}  // namespace

void FormaPrincipal::AbreConDialogo() {
  if (!DejaLaObra()) return;
  QFileDialog dialogo(this, Q(c_.textos.Texto(txt::TituloAbrir)),
                      entorno_.preferencias.UltimaCarpeta(), FiltrosObra(c_.textos));
  dialogo.setFileMode(QFileDialog::ExistingFile);
  if (dialogo.exec() != QDialog::Accepted || dialogo.selectedFiles().isEmpty()) return;
  AbreFichero(dialogo.selectedFiles().constFirst());
}

bool FormaPrincipal::Abre(const QString& ruta) {
  if (!EsDeObra(ruta)) {
    Avisa(this, c_.textos, Q(c_.textos.Compone(txt::NoEsObra, {S(ruta)})));
    return false;
  }
  return DejaLaObra() && AbreFichero(ruta);
}

void FormaPrincipal::dragEnterEvent(QDragEnterEvent* suceso) {
  const auto direcciones = suceso->mimeData()->urls();
  if (direcciones.size() == 1 && direcciones.constFirst().isLocalFile()) {
    suceso->acceptProposedAction();
  }
}

void FormaPrincipal::dropEvent(QDropEvent* suceso) {
  const QString ruta = suceso->mimeData()->urls().constFirst().toLocalFile();
  suceso->acceptProposedAction();
  // After the drop, so that the program it came from does not wait for a message box.
  QTimer::singleShot(0, this, [this, ruta] { Protege([&] { AbreOTrae(ruta); }); });
}

// Data of another file; an Obra is begun where none is open.
void FormaPrincipal::Trae(const QString& ruta) {
  if (!c_.ObraCargada) Nueva();
  captura().Hace([this, ruta] { ImportaFichero(c_, entorno_, ruta, this); });
}

void FormaPrincipal::AbreOTrae(const QString& ruta) {
  const bool datos = EsNombreDeDatos(QFile::encodeName(ruta).toStdString());
  if (datos) {
    Trae(ruta);
  } else {
    Abre(ruta);
  }
}

}  // namespace zorbin
