#include "shell/principal/mdRecuperacion.h"

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "base/mdTextos.h"
#include "base/textos.h"
#include "persistencia/disco/mdDescriptor.h"
#include "shell/piezas/mdDialogos.h"
#include "shell/piezas/mdQt.h"
#include "shell/principal/FormaPrincipal.h"

namespace zorbin {

namespace {

constexpr int kAncho = 760;  // [px]
constexpr int kAlto = 520;
constexpr int kAltoTabla = 192;  // that a list asks for, whatever it holds

std::string LineaDeObra(const Catalogo& textos, const Borrador& b) {
  return b.fichero.empty() ? textos.Texto(txt::RecuperarObraNueva)
                           : textos.Compone(txt::RecuperarObra, {b.fichero});
}

std::string LineaDeTramo(const Catalogo& textos, const Borrador& b) {
  if (!b.ConTramo()) return textos.Texto(txt::RecuperarSinTramo);
  const auto lugar = static_cast<std::size_t>(b.enMano);
  const auto& t = *b.version.tramos[lugar];
  const bool nuevo = b.origenes[lugar].posicion == 0;
  const std::string linea = textos.Compone(nuevo ? txt::RecuperarTramoNuevo : txt::RecuperarTramo,
                                           {t.numero, t.datos.DescriTramo});
  return SinDosPuntos(std::string(Recorta(linea)));
}

std::string Cabecera(const Catalogo& textos, const Borrador& b, const Versiones& v) {
  std::string texto = textos.Compone(txt::RecuperarEntrada, {b.cuando});
  if (!EsDeEsteEquipo(b.autor)) texto += " " + textos.Compone(txt::DeOtroEquipo, {b.autor.equipo});
  texto += "\n\n" + LineaDeObra(textos, b) + "\n" + LineaDeTramo(textos, b);
  if (v.cambiado) texto += "\n\n" + textos.Texto(txt::FicheroCambiado);
  if (!v.causa.empty()) texto += "\n\n" + textos.Compone(txt::FicheroIlegible, {v.causa});
  return texto;
}

QLabel* Parrafo(const std::string& texto, QWidget* padre) {
  auto* rotulo = new QLabel(Q(texto), padre);
  rotulo->setTextFormat(Qt::PlainText);
  rotulo->setWordWrap(true);
  rotulo->setTextInteractionFlags(Qt::TextSelectableByMouse);
  return rotulo;
}

}  // namespace

// ---------------------------------------------------------------------------------------------
// Keeping

GuardaBorradores::GuardaBorradores(const Captura& c, Cajon cajon, int cada)
    : c_(c), escritor_(std::move(cajon), [this](const Mensaje& mensaje) {
        QMetaObject::invokeMethod(
            this, [this, mensaje] { Dice(mensaje); }, Qt::QueuedConnection);
      }) {
  reloj_.setSingleShot(true);
  reloj_.setInterval(cada);
  connect(&reloj_, &QTimer::timeout, this, &GuardaBorradores::Guarda);
}

void GuardaBorradores::Mira() {
  if (HayTrabajoSinGuardar(c_)) {
    if (!reloj_.isActive()) reloj_.start();
    return;
  }
  reloj_.stop();
  if (!guardado_) return;
  guardado_ = false;
  escritor_.Borra();
}

void GuardaBorradores::Guarda() {
  if (!HayTrabajoSinGuardar(c_)) return;
  guardado_ = true;
  escritor_.Guarda(TextoDeBorrador(TomaBorrador(c_)));
}

void GuardaBorradores::Dice(const Mensaje& mensaje) {
  if (dicho_) return;
  dicho_ = true;
  emit falla(Q(c_.textos.Compone(mensaje)));
}

// ---------------------------------------------------------------------------------------------
// Offering

frRecuperar::frRecuperar(const Entorno& entorno, const Borrador& b, const Versiones& v,
                         QWidget* padre)
    : QDialog(padre) {
  setObjectName(QStringLiteral("frRecuperar"));
  setWindowTitle(Q(entorno.textos.Texto(txt::TituloRecuperar)));
  auto* filas = new QVBoxLayout(this);
  filas->addWidget(Parrafo(Cabecera(entorno.textos, b, v), this));
  filas->addWidget(CreaVersiones(entorno.textos, v), 1);
  filas->addWidget(CreaBotones(entorno));
  const int renglones = static_cast<int>(v.renglones.size()) + 3;
  const int alto = sizeHint().height() - kAltoTabla + renglones * (fontMetrics().height() + 4);
  resize(kAncho, std::min(alto, kAlto));
}

QWidget* frRecuperar::CreaVersiones(const Catalogo& textos, const Versiones& v) {
  if (v.renglones.empty()) return Parrafo(textos.Texto(txt::SinDiferencias), this);
  auto* tabla = new QTreeWidget(this);
  tabla->setObjectName(QStringLiteral("versiones"));
  tabla->setAccessibleName(Q(textos.Texto(txt::ColDato)));
  tabla->setRootIsDecorated(false);
  tabla->setAlternatingRowColors(true);
  tabla->setHeaderLabels({Q(textos.Texto(txt::ColDato)), Q(textos.Texto(txt::ColEnFichero)),
                          Q(textos.Texto(txt::ColTecleado))});
  for (const auto& r : v.renglones) {
    auto* renglon = new QTreeWidgetItem(tabla, {Q(r.dato), Q(r.enFichero), Q(r.tecleado)});
    for (int i = 0; i < 3; ++i) renglon->setToolTip(i, Consejo(renglon->text(i)));
  }
  auto* cabecera = tabla->header();
  cabecera->setSectionResizeMode(QHeaderView::Stretch);
  cabecera->setSectionResizeMode(0, QHeaderView::ResizeToContents);
  cabecera->setMaximumSectionSize(kAncho / 2);
  return tabla;
}

QWidget* frRecuperar::CreaBotones(const Entorno& entorno) {
  auto* caja = new QDialogButtonBox(this);
  const auto boton = [&](int texto, QDialogButtonBox::ButtonRole papel, Respuesta respuesta) {
    auto* b = caja->addButton(Q(entorno.textos.Texto(texto)), papel);
    connect(b, &QPushButton::clicked, this, [this, &entorno, respuesta] {
      if (respuesta == Respuesta::Descartar &&
          !Pregunta(this, entorno.textos, Q(entorno.textos.Texto(txt::ConfirmaDescartar)))) {
        return;
      }
      respuesta_ = respuesta;
      done(Accepted);
    });
    return b;
  };
  boton(txt::BtRecuperar, QDialogButtonBox::AcceptRole, Respuesta::Recuperar)->setDefault(true);
  boton(txt::BtMasTarde, QDialogButtonBox::RejectRole, Respuesta::MasTarde);
  boton(txt::BtDescartar, QDialogButtonBox::DestructiveRole, Respuesta::Descartar);
  return caja;
}

namespace {

// A draft that cannot be put back stays where it was. @return whether it is on the screen
bool Recupera(const Entorno& entorno, GuardaBorradores& guarda, FormaPrincipal& ventana,
              const BorradorHallado& hallado, bool deFichero) {
  if (!guarda.cajon().Toma(hallado.ruta)) {
    Avisa(&ventana, entorno.textos, Q(entorno.textos.Texto(txt::BorradorYaTomado)));
    return false;
  }
  if (ventana.Recupera(hallado.borrador, deFichero)) {
    guarda.Hereda();
    guarda.Mira();
    return true;
  }
  guarda.cajon().Devuelve(hallado.ruta);
  Avisa(&ventana, entorno.textos,
        Q(entorno.textos.Compone(txt::BorradorQueda, {hallado.borrador.fichero})));
  return false;
}

void Descarta(const Entorno& entorno, FormaPrincipal& ventana, const BorradorHallado& hallado) {
  const Causa causa = BorraFichero(hallado.ruta);
  if (causa == 0) return;
  Avisa(&ventana, entorno.textos,
        Q(entorno.textos.Compone(txt::BorradorSinBorrar,
                                 {hallado.ruta.string(), TextoDeCausa(causa)})));
}

}  // namespace

std::optional<std::string> OfreceRecuperar(const Entorno& entorno, GuardaBorradores& guarda,
                                           FormaPrincipal& ventana) {
  const auto hallazgo = guarda.cajon().Busca();
  for (const auto& ruta : hallazgo.ilegibles) {
    ventana.Anuncia(Q(entorno.textos.Compone(txt::BorradorIlegible, {ruta.string()})));
  }
  for (const auto& hallado : hallazgo.borradores) {
    const auto v = ComparaVersiones(hallado.borrador, entorno.textos, entorno.tablas,
                                    entorno.SeparadorDecimal);
    frRecuperar dialogo(entorno, hallado.borrador, v, &ventana);
    dialogo.exec();
    switch (dialogo.respuesta()) {
      case frRecuperar::Respuesta::Recuperar: {
        const bool deFichero = !hallado.borrador.fichero.empty() && v.causa.empty();
        if (!Recupera(entorno, guarda, ventana, hallado, deFichero)) break;
        return deFichero ? hallado.borrador.fichero : std::string{};
      }
      case frRecuperar::Respuesta::Descartar:
        Descarta(entorno, ventana, hallado);
        break;
      case frRecuperar::Respuesta::MasTarde:
        break;
    }
  }
  return std::nullopt;
}

}  // namespace zorbin
