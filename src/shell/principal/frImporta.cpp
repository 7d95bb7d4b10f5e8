#include "shell/principal/frImporta.h"

#include <QDialogButtonBox>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "base/mdTextos.h"
#include "base/textos.h"
#include "persistencia/disco/mdErrorFichero.h"
#include "sesion/captura/mdComprueba.h"
#include "shell/piezas/mdDialogos.h"
#include "shell/piezas/mdFaena.h"
#include "shell/piezas/mdQt.h"

namespace zorbin {

namespace {

constexpr int kColumnas = 6;

class Arbol {
 public:
  Arbol(const Catalogo& textos, QTreeWidget& arbol) : textos_(textos), arbol_(arbol) {
    QStringList cabezas;
    for (int i = 0; i < kColumnas; ++i) cabezas += Q(textos.Texto(txt::ImpCol[0] + i));
    arbol_.setHeaderLabels(cabezas);
  }

  void Pon(const std::string& nombre, const TramoImportado& t) {
    const int suerte = static_cast<int>(t.suerte);
    auto* rama =
        new QTreeWidgetItem(&arbol_, {Q(nombre), Q(textos_.Texto(txt::ImpSuerte[0] + suerte))});
    QFont negrita = rama->font(0);
    negrita.setBold(true);
    rama->setFont(0, negrita);
    for (const auto& l : t.lineas) {
      const QString que =
          l.rechazada ? Q(textos_.Texto(txt::ImpSuerte[0] + static_cast<int>(Suerte::Rechazado)))
                      : QString{};
      auto* hoja = new QTreeWidgetItem(
          rama, {QString{}, que, Q(l.celda), Q(l.dato), Q(l.antes), Q(l.despues)});
      if (l.rechazada) hoja->setFont(kColumnas - 1, negrita);
      hoja->setToolTip(kColumnas - 1, Consejo(Q(l.despues)));
    }
    rama->setExpanded(t.suerte != Suerte::Nuevo);
  }

  void Avisa(const std::string& aviso) {
    auto* rama = new QTreeWidgetItem(&arbol_, {Q(aviso)});
    rama->setFirstColumnSpanned(true);
  }

 private:
  const Catalogo& textos_;
  QTreeWidget& arbol_;
};

QString PideDatos(const Entorno& entorno, QWidget* padre) {
  QFileDialog dialogo(padre, Q(entorno.textos.Texto(txt::ImpTitulo)),
                      entorno.preferencias.UltimaCarpeta(),
                      Q(entorno.textos.Texto(txt::ImpFiltro)) + " (*.json *.csv *.xlsx)");
  dialogo.setFileMode(QFileDialog::ExistingFile);
  if (dialogo.exec() != QDialog::Accepted || dialogo.selectedFiles().isEmpty()) return {};
  return dialogo.selectedFiles().constFirst();
}

// The texts of the thread are its own: a catalogue reads its languages as they are asked for.
std::optional<Importacion> Prueba(const Captura& c, const Entorno& entorno, const QString& ruta,
                                  QWidget* padre) {
  const std::filesystem::path fichero(QFile::encodeName(ruta).toStdString());
  const Version base = VersionActual(c);
  const Catalogo textos = entorno.textos;
  const std::string dicho = textos.Compone(txt::ImpLeyendo, {S(QFileInfo(ruta).fileName())});
  std::optional<Importacion> r;
  HazFaena(padre, entorno.textos, txt::ImpTitulo, [&](MarchaFaena& marcha) {
    marcha.Di({dicho, {}});
    const auto entrada = LeeDatos(fichero, textos);
    if (!marcha.Sigue()) return;
    auto hecha = PreparaImportacion(
        base, entrada, {textos, entorno.tablas, entorno.SeparadorDecimal, false, c.ultimoId});
    if (marcha.Sigue()) r = std::move(hecha);
  });
  return r;
}

}  // namespace

frImporta::frImporta(const Entorno& entorno, const Importacion& r, QWidget* padre)
    : QDialog(padre) {
  const auto& textos = entorno.textos;
  setObjectName(QStringLiteral("frImporta"));
  setWindowTitle(Q(textos.Texto(txt::ImpTitulo)));
  auto* arbol = new QTreeWidget(this);
  arbol->setObjectName(QStringLiteral("arbolImporta"));
  arbol->setAlternatingRowColors(true);
  Arbol dibujo(textos, *arbol);
  for (const auto& aviso : r.avisos) dibujo.Avisa(aviso);
  if (!r.obra.lineas.empty()) dibujo.Pon(textos.Texto(txt::TarjetaObra), r.obra);
  for (const auto& t : r.tramos) dibujo.Pon(t.numero.empty() ? "?" : t.numero, t);
  for (int i = 0; i < kColumnas - 1; ++i) arbol->resizeColumnToContents(i);
  auto* cuenta =
      new QLabel(Q(textos.Compone(txt::ImpCuenta, {TextoEntero(r.Cuantos(Suerte::Nuevo)),
                                                   TextoEntero(r.Cuantos(Suerte::Cambia)),
                                                   TextoEntero(r.Cuantos(Suerte::Igual)),
                                                   TextoEntero(r.Cuantos(Suerte::Rechazado))})),
                 this);
  cuenta->setObjectName(QStringLiteral("cuentaImporta"));
  cuenta->setTextFormat(Qt::PlainText);
  auto* botones = new QDialogButtonBox(this);
  auto* toma = botones->addButton(Q(textos.Texto(r.HayRechazos() ? txt::ImpBuenos : txt::ImpTodos)),
                                  QDialogButtonBox::AcceptRole);
  botones->addButton(Q(textos.Texto(txt::BotonCancelar)), QDialogButtonBox::RejectRole);
  const bool cambia =
      r.Cuantos(Suerte::Nuevo) + r.Cuantos(Suerte::Cambia) > 0 || r.obra.suerte == Suerte::Cambia;
  toma->setEnabled(cambia && r.obra.suerte != Suerte::Rechazado);
  connect(botones, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(botones, &QDialogButtonBox::rejected, this, &QDialog::reject);
  auto* filas = new QVBoxLayout(this);
  filas->addWidget(arbol);
  filas->addWidget(cuenta);
  filas->addWidget(botones);
  resize(900, 560);
}

bool ImportaFichero(Captura& c, const Entorno& entorno, QString ruta, QWidget* padre) {
  const auto& textos = entorno.textos;
  if (ruta.isEmpty()) ruta = PideDatos(entorno, padre);
  if (ruta.isEmpty()) return false;
  const auto rechaza = [&](const Mensaje& causa) {
    Avisa(padre, textos, Q(textos.Compone(txt::EntFichero, {S(ruta), textos.Compone(causa)})));
    return false;
  };
  try {
    const auto r = Prueba(c, entorno, ruta, padre);
    if (!r || frImporta(entorno, *r, padre).exec() != QDialog::Accepted) return false;
    Importa(c, *r, textos.Compone(txt::PasoImporta, {S(QFileInfo(ruta).fileName())}));
    return true;
  } catch (const ErrorEntrada& error) {
    return rechaza(error.mensaje());
  } catch (const ErrorFichero& error) {
    return rechaza(error.mensaje());
  }
}

}  // namespace zorbin
