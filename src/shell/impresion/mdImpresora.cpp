#include "shell/impresion/mdImpresora.h"

#include <QPrinter>
#include <QPrinterInfo>

#include "shell/impresion/frVistaPrevia.h"
#include "shell/impresion/mdGuardar.h"
#include "shell/impresion/mdHojasImpresora.h"
#include "shell/impresion/textosImpresion.h"
#include "shell/piezas/mdDialogos.h"
#include "shell/piezas/mdQt.h"

namespace zorbin {

namespace {

std::unique_ptr<QPrinter> AbreImpresora(const QString& nombre) {
  const auto informe = QPrinterInfo::printerInfo(nombre);
  if (informe.isNull()) return nullptr;
  return std::make_unique<QPrinter>(informe, QPrinter::HighResolution);
}

}  // namespace

Impresoras Impresoras::DeLaMaquina() {
  return {[] { return QPrinterInfo::availablePrinterNames(); },
          [] { return QPrinterInfo::defaultPrinterName(); }, AbreImpresora};
}

Impresora::Impresora(const Catalogo& textos, Preferencias& preferencias, Impresoras impresoras)
    : textos_(textos), preferencias_(preferencias), impresoras_(std::move(impresoras)) {}

QString Impresora::EnUso() const {
  QString nombre = preferencias_.Impresora();
  if (nombre.isEmpty()) nombre = impresoras_.predeterminada();
  return nombre.isEmpty() ? kImpresoraPdf : nombre;
}

bool Impresora::Imprime(QWidget* padre, const QString& nombre, const Documento& documento) {
  const QString impresora = EnUso();
  if (impresora == kImpresoraPdf) {
    return GuardaPdf(padre, textos_, preferencias_, nombre, documento);
  }
  return ImprimeEn(padre, impresora, nombre, documento);
}

bool Impresora::ImprimeEn(QWidget* padre, const QString& impresora, const QString& nombre,
                          const Documento& documento) {
  const auto papel =
      impresoras_.nombres().contains(impresora) ? impresoras_.abre(impresora) : nullptr;
  if (!papel) {
    Avisa(padre, textos_, Q(textos_.Compone(txt::ImpresoraQueNoEsta, {S(impresora)})));
    return false;
  }
  papel->setDocName(nombre);
  papel->setCreator(QString::fromLatin1(kTituloAplicacion));
  papel->setCopyCount(preferencias_.Copias());
  return HazDocumento(padre, textos_, impresora, [&] {
    // A printer may begin with the first page it gets: it gets them once all are there.
    HojasEnMemoria todas;
    documento(todas);
    if (todas.hojas.empty()) {
      Avisa(padre, textos_, Q(textos_.Texto(txt::DocumentoVacio)));
      throw DocumentoCancelado{};
    }
    HojasImpresora hojas(*papel);
    for (const auto& hoja : todas.hojas) hojas.RecibeHoja(hoja);
    hojas.Cierra();
    if (papel->printerState() == QPrinter::Error) throw ErrorPintor("");
  });
}

void Impresora::VistaPrevia(QWidget* padre, const QString& nombre, const Documento& documento) {
  HojasEnMemoria todas;
  if (!HazDocumento(padre, textos_, nombre, [&] { documento(todas); })) return;
  if (todas.hojas.empty()) {
    Avisa(padre, textos_, Q(textos_.Texto(txt::DocumentoVacio)));
    return;
  }
  HazDocumento(padre, textos_, nombre, [&] {
    frVistaPrevia vista(textos_, preferencias_, *this, nombre, std::move(todas.hojas), padre);
    vista.exec();
  });
}

}  // namespace zorbin
