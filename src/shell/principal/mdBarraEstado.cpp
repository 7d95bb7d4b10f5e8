#include "shell/principal/mdBarraEstado.h"

#include <QFileInfo>
#include <QLabel>
#include <QStatusBar>

#include "base/textos.h"
#include "shell/piezas/mdQt.h"
#include "shell/piezas/mdRotuloCorto.h"

namespace zorbin {

namespace {

constexpr int kMargen = 6;  // [px]

}  // namespace

QString NombreDeObra(const Captura& c) {
  if (!c.e.obra.ObraAbierta) return Q(c.textos.Texto(txt::ObraSinFichero));
  const QString nombre = QFileInfo(Q(c.e.obra.NombreFichero)).fileName();
  if (!c.SoloLectura()) return nombre;
  return nombre + QStringLiteral(" (") + Q(c.textos.Texto(txt::MarcaSoloLectura)) + ')';
}

BarraEstado::BarraEstado(QStatusBar& barra)
    : QObject(&barra),
      obra_(new RotuloCorto(&barra)),
      captura_(new QLabel(&barra)),
      unidades_(new QLabel(&barra)),
      idioma_(new QLabel(&barra)) {
  obra_->setObjectName(QStringLiteral("estadoObra"));
  for (auto* rotulo : {obra_, captura_, unidades_, idioma_}) {
    rotulo->setTextFormat(Qt::PlainText);
    rotulo->setContentsMargins(kMargen, 0, kMargen, 0);
    barra.addPermanentWidget(rotulo, rotulo == obra_ ? 1 : 0);
  }
}

void BarraEstado::Refresca(const Captura& c) {
  const auto texto = [&c](int n) { return Q(c.textos.Texto(n)); };
  idioma_->setText(texto(txt::IdiomasPropios[0] + c.textos.IdiomaOffset() / kPasoIdioma));
  if (!c.ObraCargada) {
    obra_->setText(texto(txt::SinObra));
    captura_->clear();
    unidades_->clear();
    return;
  }
  const QString ruta =
      c.e.obra.ObraAbierta ? Q(c.e.obra.NombreFichero) : texto(txt::ObraSinFichero);
  obra_->setText(c.EnCambio() ? ruta + "  -  " + texto(txt::SinGuardar) : ruta);
  obra_->setToolTip(Consejo(ruta));
  unidades_->setText(texto(c.EsSI() ? txt::SistemaSI : txt::SistemaMKS));
  const QString tramo = texto(txt::RotTramo) + ' ' + Q(c[Ed::edTramo].texto);
  captura_->setText(c.EnAltas()            ? tramo + ' ' + texto(txt::AltaDeTramo)
                    : c.EnModificaciones() ? tramo + ' ' + texto(txt::ModificacionDeTramo)
                                           : texto(txt::SinTramo));
}

}  // namespace zorbin
