#include "shell/piezas/mdDialogos.h"

#include <QMessageBox>
#include <QPushButton>
#include <new>

#include "base/textos.h"
#include "shell/piezas/mdQt.h"

namespace zorbin {

namespace {

QString Titulo(const QString& titulo) {
  return titulo.trimmed().isEmpty() ? QString::fromLatin1(kTituloAplicacion) : titulo.trimmed();
}

// What a person typed may stand in a message: never taken for rich text.
// The subject stands in the body too: a title bar cuts it, and some desktops show none.
void Prepara(QMessageBox& caja, const Catalogo& textos, const QString& texto,
             const QString& titulo) {
  caja.setWindowTitle(Titulo(titulo));
  caja.setTextFormat(Qt::PlainText);
  caja.setText(texto.trimmed());
  const QString asunto = titulo.trimmed();
  const bool generico = asunto.isEmpty() || asunto == Rotulo(textos.Texto(txt::TituloAviso));
  if (!generico && !texto.contains(asunto)) caja.setInformativeText(asunto);
}

}  // namespace

void Avisa(QWidget* padre, const Catalogo& textos, const QString& texto, const QString& titulo) {
  QMessageBox caja(padre);
  Prepara(caja, textos, texto, titulo);
  caja.setIcon(QMessageBox::Warning);
  caja.addButton(Rotulo(textos.Texto(txt::BotonAceptar)), QMessageBox::AcceptRole);
  caja.exec();
}

QString TextoInesperado(const Catalogo& textos, const std::exception* error) {
  std::string causa = "?";
  if (error != nullptr) causa = error->what();
  if (dynamic_cast<const std::bad_alloc*>(error) != nullptr) causa = textos.Texto(txt::SinMemoria);
  return Q(textos.Compone(txt::CierraEjecucion, {causa}));
}

bool Pregunta(QWidget* padre, const Catalogo& textos, const QString& texto, const QString& titulo) {
  QMessageBox caja(padre);
  Prepara(caja, textos, texto, titulo);
  caja.setIcon(QMessageBox::Question);
  auto* si = caja.addButton('&' + Rotulo(textos.Texto(txt::RespuestaSi)), QMessageBox::YesRole);
  auto* no = caja.addButton('&' + Rotulo(textos.Texto(txt::RespuestaNo)), QMessageBox::NoRole);
  caja.setDefaultButton(no);
  caja.setEscapeButton(no);
  caja.exec();
  return caja.clickedButton() == si;
}

int PreguntaGrabar(QWidget* padre, const Catalogo& textos, const QString& texto) {
  QMessageBox caja(padre);
  Prepara(caja, textos, texto, {});
  caja.setIcon(QMessageBox::Warning);
  auto* graba = caja.addButton('&' + Rotulo(textos.Texto(txt::BtGrabar)), QMessageBox::AcceptRole);
  auto* descarta =
      caja.addButton('&' + Rotulo(textos.Texto(txt::BtDescartar)), QMessageBox::DestructiveRole);
  auto* cancela =
      caja.addButton('&' + Rotulo(textos.Texto(txt::BotonCancelar)), QMessageBox::RejectRole);
  caja.setDefaultButton(graba);
  caja.setEscapeButton(cancela);
  caja.exec();
  return caja.clickedButton() == graba ? 0 : caja.clickedButton() == descarta ? 1 : 2;
}

}  // namespace zorbin
