#include "shell/captura/mdInterlocutorQt.h"

#include <QApplication>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>

#include "base/textos.h"
#include "shell/piezas/mdDialogos.h"
#include "shell/piezas/mdQt.h"

namespace zorbin {

namespace {

// A box stands on the window in front, which may be a dialog.
QWidget* Delante(QWidget* padre) {
  auto* modal = QApplication::activeModalWidget();
  return modal != nullptr ? modal : padre;
}

}  // namespace

QString FiltrosObra(const Catalogo& textos) {
  return Q(textos.Texto(txt::FiltroZrb)) + QStringLiteral(";;") + Q(textos.Texto(txt::FiltroTodos));
}

void InterlocutorQt::Muestra(const std::string& texto, const std::string& titulo) {
  Avisa(Delante(padre_), textos_, Q(texto), Q(titulo));
}

void InterlocutorQt::Anuncia(const std::string& texto) {
  if (!anuncia_) return Muestra(texto, {});
  anuncia_(Q(texto));
}

bool InterlocutorQt::Pregunta(const std::string& texto, const std::string& titulo) {
  return zorbin::Pregunta(Delante(padre_), textos_, Q(texto), Q(titulo));
}

Respuesta InterlocutorQt::PreguntaGrabar(const std::string& texto) {
  switch (zorbin::PreguntaGrabar(Delante(padre_), textos_, Q(texto))) {
    case 0:
      return Respuesta::Grabar;
    case 1:
      return Respuesta::Descartar;
    default:
      return Respuesta::Cancelar;
  }
}

std::optional<std::string> InterlocutorQt::PideFichero(const std::string& titulo,
                                                       const std::string& actual) {
  QFileDialog dialogo(Delante(padre_), Q(titulo), preferencias_.UltimaCarpeta(),
                      FiltrosObra(textos_));
  dialogo.setAcceptMode(QFileDialog::AcceptSave);
  dialogo.setDefaultSuffix(QStringLiteral("zrb"));
  if (!actual.empty()) {
    const QFileInfo fichero(QFile::decodeName(actual.c_str()));
    const bool seEscribe = QFileInfo(fichero.absolutePath()).isWritable();
    dialogo.selectFile(seEscribe ? fichero.filePath() : fichero.fileName());
  }
  if (dialogo.exec() != QDialog::Accepted || dialogo.selectedFiles().isEmpty()) return std::nullopt;
  const QString ruta = dialogo.selectedFiles().constFirst();
  preferencias_.PonUltimaCarpeta(QFileInfo(ruta).absolutePath());
  return QFile::encodeName(ruta).toStdString();
}

}  // namespace zorbin
