#include "shell/impresion/mdGuardar.h"

#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QLabel>
#include <QMainWindow>
#include <QStatusBar>
#include <QUrl>

#include "base/textos.h"
#include "listados/pintor/mdPintor.h"
#include "persistencia/disco/mdFicheroSalida.h"
#include "shell/impresion/mdColaImpresion.h"
#include "shell/piezas/mdDialogos.h"
#include "shell/piezas/mdQt.h"

namespace zorbin {

namespace {

const QString kRotuloGuardado = QStringLiteral("lbGuardado");

constexpr int kMaxNombre = 200;  // bytes of a name that is proposed; the extension comes after it
const QString kCarpeta = QStringLiteral("Listado/Carpeta");

QString UltimaCarpeta(const Preferencias& preferencias) {
  const QString carpeta = preferencias.Valor(kCarpeta).toString();
  const bool vale = !carpeta.isEmpty() && QFileInfo(carpeta).isDir();
  return vale ? carpeta : preferencias.UltimaCarpeta();
}

// A name of a document as a name of a file, which the disk takes and no program mistakes for an
// option.
QString SinBarras(QString nombre) {
  for (QChar& letra : nombre) {
    const bool rara = letra.category() == QChar::Other_Control ||
                      letra.category() == QChar::Other_Format ||
                      QStringLiteral("/\\:*?\"<>|").contains(letra);
    if (rara) letra = QLatin1Char(' ');
  }
  nombre = nombre.simplified();
  while (nombre.startsWith('.') || nombre.startsWith('-')) nombre = nombre.mid(1).trimmed();
  while (nombre.toUtf8().size() > kMaxNombre) nombre.chop(1);
  return nombre.isEmpty() ? QStringLiteral("ZORBIN") : nombre;
}

// Sheets on their way to a destination: each is told, and none comes after the person gave up.
class HojasContadas : public DestinoHojas {
 public:
  HojasContadas(DestinoHojas& destino, MarchaFaena& marcha, const Catalogo& textos)
      : destino_(destino), marcha_(marcha), textos_(textos) {}

  void RecibeHoja(const Hoja& hoja) override {
    marcha_.Exige();
    destino_.RecibeHoja(hoja);
    ++cuantas_;
    if (marcha_.Espera()) {
      marcha_.Di({textos_.Compone(txt::AvanceDelListado, {std::to_string(cuantas_)}), {}});
    }
  }

  int cuantas() const { return cuantas_; }

 private:
  DestinoHojas& destino_;
  MarchaFaena& marcha_;
  const Catalogo& textos_;
  int cuantas_ = 0;
};

QString Frase(const Catalogo& textos, int n, const QString& a, const QString& b = {}) {
  return Q(textos.Compone(n, {S(a), S(b)}));
}

// The status bar of the window says where the file is; its name opens it.
void DiGuardado(QWidget* padre, const Catalogo& textos, const QString& ruta) {
  QMainWindow* ventana = nullptr;
  for (auto* w = padre; w != nullptr && ventana == nullptr; w = w->parentWidget()) {
    ventana = qobject_cast<QMainWindow*>(w);
  }
  if (ventana == nullptr) return;
  auto* barra = ventana->statusBar();
  auto* rotulo = barra->findChild<QLabel*>(kRotuloGuardado);
  if (rotulo == nullptr) {
    rotulo = new QLabel(barra);
    rotulo->setObjectName(kRotuloGuardado);
    rotulo->setOpenExternalLinks(true);
    rotulo->setTextInteractionFlags(Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard);
    barra->insertPermanentWidget(0, rotulo);
  }
  const QString enlace = QStringLiteral("<a href=\"%1\">%2</a>")
                             .arg(QUrl::fromLocalFile(ruta).toString(QUrl::FullyEncoded),
                                  QFileInfo(ruta).fileName().toHtmlEscaped());
  rotulo->setText(Q(textos.Texto(txt::PdfGuardado)).replace(QStringLiteral("{1}"), enlace));
  rotulo->setToolTip(Consejo(QDir::toNativeSeparators(ruta)));
}

}  // namespace

QString PideNombreFichero(QWidget* padre, const Catalogo& textos, Preferencias& preferencias,
                          const ClaseFichero& clase, const QString& propuesto) {
  const QString punto = '.' + clase.extension;
  QFileDialog dialogo(padre, Rotulo(textos.Texto(clase.titulo)), UltimaCarpeta(preferencias),
                      Q(textos.Texto(clase.filtro)) + " (*" + punto + ')');
  dialogo.setAcceptMode(QFileDialog::AcceptSave);
  dialogo.setFileMode(QFileDialog::AnyFile);
  dialogo.setOption(QFileDialog::DontConfirmOverwrite);  // of the name with its extension, below
  dialogo.selectFile(SinBarras(propuesto) + punto);
  while (dialogo.exec() == QDialog::Accepted && !dialogo.selectedFiles().isEmpty()) {
    QString ruta = dialogo.selectedFiles().constFirst();
    if (!ruta.endsWith(punto, Qt::CaseInsensitive)) ruta += punto;
    preferencias.PonValor(kCarpeta, QFileInfo(ruta).absolutePath());
    if (!QFileInfo::exists(ruta) ||
        Pregunta(padre, textos, Frase(textos, txt::YaExiste, QDir::toNativeSeparators(ruta)),
                 Rotulo(textos.Texto(txt::TituloAviso)))) {
      return ruta;
    }
  }
  return {};
}

bool DiFallos(QWidget* padre, const Catalogo& textos, const QString& donde,
              const std::function<void()>& accion) {
  try {
    accion();
    return true;
  } catch (const DocumentoCancelado&) {
  } catch (const ErrorFuente& error) {
    Avisa(padre, textos, Frase(textos, txt::SinLetra, Q(error.what())));
  } catch (const ErrorPintor& error) {
    Avisa(padre, textos, Frase(textos, txt::NoSePuedeEscribir, donde, Q(error.what())));
  } catch (const ErrorImpresora& error) {
    Avisa(padre, textos,
          Frase(textos, txt::ImpresoraNoAcepta, Q(error.impresora()), Q(error.what())));
  } catch (const std::exception& error) {  // that of a file, or one that nobody foresaw
    Avisa(padre, textos, Frase(textos, txt::NoSePuedeEscribir, donde, Q(error.what())));
  }
  return false;
}

bool HazDocumento(QWidget* padre, const Catalogo& textos, const QString& donde,
                  const TrabajoDocumento& trabajo) {
  return DiFallos(padre, textos, donde,
                  [&] { HazFaena(padre, textos, txt::ListadoEnCurso, trabajo); });
}

bool EscribeHojas(const Documento& documento, DestinoHojas& destino, MarchaFaena& marcha,
                  const Catalogo& textos) {
  HojasContadas hojas(destino, marcha, textos);
  documento(hojas);
  marcha.Exige();
  return hojas.cuantas() > 0;
}

void AvisaVacio(QWidget* padre, const Catalogo& textos) {
  Avisa(padre, textos, Q(textos.Texto(txt::DocumentoVacio)));
}

bool GuardaPdf(QWidget* padre, const Catalogo& textos, Preferencias& preferencias,
               const QString& nombre, const Documento& documento) {
  const QString ruta =
      PideNombreFichero(padre, textos, preferencias,
                        {txt::GuardarPdf, txt::FiltroPdf, QStringLiteral("pdf")}, nombre);
  if (ruta.isEmpty()) return false;
  bool lleno = false;
  const bool hecho = HazDocumento(padre, textos, ruta, [&](MarchaFaena& marcha) {
    HojasPdf hojas(QFile::encodeName(ruta).toStdString(), S(nombre));
    lleno = EscribeHojas(documento, hojas, marcha, textos);
    if (lleno) hojas.Cierra();
  });
  if (hecho && !lleno) AvisaVacio(padre, textos);
  if (hecho && lleno) DiGuardado(padre, textos, ruta);
  return hecho && lleno;
}

bool GuardaTexto(QWidget* padre, const Catalogo& textos, Preferencias& preferencias,
                 const QString& nombre, const EscribeTexto& escribe) {
  const QString ruta =
      PideNombreFichero(padre, textos, preferencias,
                        {txt::GuardarTexto, txt::FiltroTexto, QStringLiteral("txt")}, nombre);
  if (ruta.isEmpty()) return false;
  return HazDocumento(padre, textos, ruta, [&](MarchaFaena& marcha) {
    FicheroSalida fichero(QFile::encodeName(ruta).toStdString());
    escribe(marcha, fichero);
    fichero.Termina();
  });
}

}  // namespace zorbin
