#include "shell/impresion/mdImpresora.h"

#include <QPrinterInfo>
#include <QTemporaryDir>

#include "base/textos.h"
#include "listados/pintor/mdPintor.h"
#include "shell/impresion/frVistaPrevia.h"
#include "shell/impresion/mdGuardar.h"
#include "shell/piezas/mdDialogos.h"
#include "shell/piezas/mdQt.h"

namespace zorbin {

namespace {

// Keeps the sheets of a document.
class HojasEnMemoria : public DestinoHojas {
 public:
  void RecibeHoja(const Hoja& hoja) override { hojas.push_back(hoja); }

  std::vector<Hoja> hojas;
};

// The sheets are of A4, which a printer that does not say its papers is taken to have.
QPageSize PapelDe(const QString& impresora) {
  const QPageSize a4(QPageSize::A4);
  const auto informe = QPrinterInfo::printerInfo(impresora);
  const auto papeles = informe.supportedPageSizes();
  const QPageSize suyo = informe.defaultPageSize();
  return papeles.isEmpty() || papeles.contains(a4) || !suyo.isValid() ? a4 : suyo;
}

}  // namespace

Impresoras Impresoras::DeLaMaquina() {
  return {[] { return QPrinterInfo::availablePrinterNames(); },
          [] { return QPrinterInfo::defaultPrinterName(); }, PapelDe, EntregaACola};
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
  if (!impresoras_.nombres().contains(impresora)) {
    Avisa(padre, textos_, Q(textos_.Compone(txt::ImpresoraQueNoEsta, {S(impresora)})));
    return false;
  }
  // The printer gets a document that is whole, or nothing.
  const QTemporaryDir carpeta;
  const QString fichero = carpeta.filePath(QStringLiteral("listado.pdf"));
  const QPageSize papel = impresoras_.papel(impresora);
  const TrabajoImpresion trabajo{S(impresora), S(nombre), S(fichero), preferencias_.Copias(),
                                 papel.id() == QPageSize::A4};
  bool lleno = false;
  const bool hecho = HazDocumento(padre, textos_, fichero, [&](MarchaFaena& marcha) {
    if (!carpeta.isValid()) throw ErrorPintor(S(carpeta.errorString()));
    HojasPdf hojas(trabajo.fichero, trabajo.titulo, papel);
    lleno = EscribeHojas(documento, hojas, marcha, textos_);
    if (!lleno) return;
    hojas.Cierra();
    marcha.SinVuelta();
    marcha.Exige();
    impresoras_.entrega(trabajo);
  });
  if (hecho && !lleno) AvisaVacio(padre, textos_);
  return hecho && lleno;
}

void Impresora::VistaPrevia(QWidget* padre, const QString& nombre, const Documento& documento) {
  HojasEnMemoria todas;
  bool llena = false;
  const bool hecha = HazDocumento(padre, textos_, nombre, [&](MarchaFaena& marcha) {
    llena = EscribeHojas(documento, todas, marcha, textos_);
  });
  if (!hecha) return;
  if (!llena) return AvisaVacio(padre, textos_);
  DiFallos(padre, textos_, nombre, [&] {
    frVistaPrevia vista(textos_, preferencias_, *this, nombre, std::move(todas.hojas), padre);
    vista.exec();
  });
}

}  // namespace zorbin
