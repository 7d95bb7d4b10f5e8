#include "shell/calculadoras/Protecciones.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>

#include "base/mdNumeros.h"
#include "base/textos.h"
#include "listados/calculadoras/mdMediosPapel.h"
#include "shell/piezas/mdQt.h"
#include "shell/piezas/mdTeclasRapidas.h"
#include "shell/piezas/mdVisorHtml.h"

namespace zorbin {

namespace {

// The frames, and the fields of all of them in their order.
constexpr std::array<int, 4> kMarcosMedios{txt::MarcoAguas, txt::MarcoTerrenos,
                                           txt::MarcoResistividad, txt::MarcoCorrientes};
constexpr std::array<Medio, kMedios> kOrden{
    kPH, kCO2, kNH4, kMg, kSO4Exterior, kSO4Interior, kSO4Suelo, kResistividad, kCorriente};

// The longest sentence of the analysis in any language, and the lines of one with some factors.
constexpr int kColumnasAnalisis = 122;
constexpr int kLineasAnalisis = 18;
constexpr int kColumnasEjemplo = 28;  // below them the note is not worth reading

const CampoMedio& Datos(Medio medio) {
  return kCamposMedios[static_cast<std::size_t>(medio)];
}

// A long caption in two lines of about the same length: it takes half the width.
QString EnDosLineas(QString texto) {
  const auto mitad = texto.size() / 2;
  const auto antes = texto.lastIndexOf(' ', mitad);
  const auto despues = texto.indexOf(' ', mitad);
  const auto corte =
      despues < 0 || (antes >= 0 && mitad - antes <= despues - mitad) ? antes : despues;
  if (corte >= 0) texto[corte] = '\n';
  return texto;
}

QLabel* Etiqueta(const QString& nombre, QWidget* padre) {
  auto* etiqueta = new QLabel(padre);
  etiqueta->setObjectName(nombre);
  etiqueta->setTextFormat(Qt::PlainText);
  return etiqueta;
}

QGroupBox* Marco(const QString& nombre, QWidget* padre) {
  auto* marco = new QGroupBox(padre);
  marco->setObjectName(nombre);
  return marco;
}

template <class Widgets>
void MismoAncho(const Widgets& widgets) {
  int ancho = 0;
  for (auto* w : widgets) w->setMinimumWidth(0);
  for (auto* w : widgets) ancho = std::max(ancho, w->sizeHint().width());
  for (auto* w : widgets) w->setMinimumWidth(ancho);
}

}  // namespace

Protecciones::Protecciones(Entorno& entorno, DocumentoHtml documentoHtml, QWidget* padre)
    : PantallaCalculadora(entorno, "Protecciones", "medios", padre),
      e_(CargaProtecciones(entorno.SeparadorDecimal)),
      documentoHtml_(std::move(documentoHtml)) {
  CreaPiezas();
  ColocaPiezas();
  RenuevaTextos();
  MuestraCampos();
  TomaSuSitio();
  txpH_[kPH]->setFocus();
}

void Protecciones::CreaPiezas() {
  for (const Medio medio : kOrden) {
    CreaCampo(medio);
    // The tick box goes with the sulphates of the soil, and comes after them.
    if (medio == kSO4Suelo) Check1_ = new QCheckBox(this);
  }
  Check1_->setObjectName("Check1");
  UneOpcion(*Check1_);
  connect(Check1_, &QCheckBox::toggled, this, [this](bool marcado) {
    MarcaCiclos(e_, marcado);
    MuestraPendiente();
  });
  lbAvisoPH_ = Etiqueta("lbAvisoPH", this);
  lbAvisoPH_->setWordWrap(true);
  lbAvisoPH_->hide();
  btVisualizar_ = CreaBoton("btVisualizar", [this] { Visualizar(); });
  btVisualizar_->setDefault(true);
  btImprimir_ = CreaBoton("btImprimir", [this] { Imprimir(); });
  edResultadoAgres_ = CreaArea("edResultadoAgres", kColumnasAnalisis, kLineasAnalisis);
  edEjemplo_ = new VisorHtml(this);
  edEjemplo_->setMinimumWidth(fontMetrics().averageCharWidth() * kColumnasEjemplo);
  edEjemplo_->setObjectName("edEjemplo");
  edEjemplo_->setTabChangesFocus(true);
}

void Protecciones::CreaCampo(Medio medio) {
  const auto i = static_cast<std::size_t>(medio);
  const QString numero = QString::number(medio);
  txpH_[i] = CreaCasilla("txpH" + numero);
  lbAguas_[i] = Etiqueta("lbAguas" + numero, this);
  lbAguas_[i]->setBuddy(txpH_[i]);
  lbUnidadesAgres_[i] = Etiqueta("lbUnidadesAgres" + numero, this);
  Une({txpH_[i], &e_.txpH[i], [this, medio] { Entra(e_, medio); },
       [this, medio](std::string texto) {
         Cambia(e_, medio, std::move(texto));
         MuestraPendiente();
       },
       [this, medio] {
         auto aviso = Sale(e_, medio);
         MuestraAvisoPH();
         return aviso;
       }});
}

QGroupBox* Protecciones::MarcoConCampos(int marco) {
  auto* grupo = Marco("frMedio" + QString::number(marco), this);
  auto* rejilla = new QGridLayout(grupo);
  int fila = 0;
  for (const Medio medio : kOrden) {
    if (Datos(medio).marco != kMarcosMedios[static_cast<std::size_t>(marco)]) continue;
    const auto i = static_cast<std::size_t>(medio);
    rejilla->addWidget(lbAguas_[i], fila, 0);
    rejilla->addWidget(txpH_[i], fila, 1);
    rejilla->addWidget(lbUnidadesAgres_[i], fila++, 2);
    if (medio == kSO4Suelo) rejilla->addWidget(Check1_, fila++, 0, 1, 4);
    if (medio == kPH) rejilla->addWidget(lbAvisoPH_, fila++, 0, 1, 4);
  }
  rejilla->setColumnStretch(3, 1);
  return grupo;
}

void Protecciones::ColocaPiezas() {
  frAgresividad_ = Marco("frAgresividad", this);
  auto* medios = new QHBoxLayout(frAgresividad_);
  for (int i = 0; i < kMarcos; ++i) frMedios_[static_cast<std::size_t>(i)] = MarcoConCampos(i);
  medios->addWidget(frMedios_[0]);
  auto* suelos = new QVBoxLayout;
  for (std::size_t i = 1; i < frMedios_.size(); ++i) suelos->addWidget(frMedios_[i]);
  medios->addLayout(suelos);

  frEjemplo_ = Marco("frEjemplo", this);
  auto* ejemplo = new QVBoxLayout(frEjemplo_);
  ejemplo->addWidget(edEjemplo_);

  frMedidas_ = Marco("frMedidas", this);
  (new QVBoxLayout(frMedidas_))->addWidget(edResultadoAgres_);
  auto* analisis = new QVBoxLayout;
  analisis->addWidget(frAgresividad_);
  analisis->addWidget(frMedidas_, 1);
  auto* centro = new QHBoxLayout;
  centro->addLayout(analisis);
  centro->addWidget(frEjemplo_);
  auto* filas = new QVBoxLayout(this);
  filas->addLayout(centro, 1);
  filas->addLayout(FilaDeBotones({btVisualizar_, btImprimir_}));
  setTabOrder(edResultadoAgres_, edEjemplo_);
}

void Protecciones::RenuevaTextos() {
  setWindowTitle(Rotulo(T(txt::MedidasDeProteccion)));
  frAgresividad_->setTitle(Rotulo(T(txt::AgresividadQuimica)));
  frEjemplo_->setTitle(Rotulo(T(txt::EjemploAguas)));
  frMedidas_->setTitle(Rotulo(T(txt::MedidasDeProteccion)));
  for (std::size_t i = 0; i < frMedios_.size(); ++i) {
    frMedios_[i]->setTitle(Rotulo(T(kMarcosMedios[i])));
  }
  for (const Medio medio : kOrden) RenuevaCampo(medio);
  AlineaCampos();
  MuestraAvisoPH();
  Check1_->setText(EnDosLineas(Rotulo(T(txt::AlternaCiclos))));
  Check1_->setAccessibleName(Rotulo(T(txt::AlternaCiclos)));
  Check1_->setToolTip(Q(T(txt::PistaCiclos)));
  edResultadoAgres_->setAccessibleName(frMedidas_->title());
  btVisualizar_->setText(Rotulo(T(txt::BotonVisualizar)));
  btVisualizar_->setToolTip(Q(T(txt::PistaVisualizar)));
  btImprimir_->setText(Rotulo(T(txt::BotonImprimirCalculadora)));
  btImprimir_->setToolTip(Q(T(txt::PistaImprimirAnalisis)));
  RenuevaResultado(Rotulo(T(txt::BotonVisualizar)));
  RenuevaEjemplo();
  RenuevaAnalisis();
  ReparteTeclas(*this);
  Recoloca();
}

void Protecciones::RenuevaCampo(Medio medio) {
  const auto i = static_cast<std::size_t>(medio);
  const auto& datos = Datos(medio);
  const QString unidad = datos.unidad != 0 ? Rotulo(T(datos.unidad)) : QString{};
  lbAguas_[i]->setText(Rotulo(T(datos.etiqueta)));
  lbUnidadesAgres_[i]->setText(unidad);
  txpH_[i]->setAccessibleName((lbAguas_[i]->text() + ' ' + unidad).trimmed());
  std::string pista;
  if (medio == kPH) {
    pista = entorno_.textos.Compone(txt::PistaPH,
                                    {TextoDecimal(datos.defecto, 2, e_.SeparadorDecimal)});
  } else {
    const bool medido = medio == kResistividad || medio == kCorriente;
    pista = entorno_.textos.Compone(medido ? txt::PistaTerreno : txt::PistaContenido, {S(unidad)});
  }
  txpH_[i]->setToolTip(Q(pista));
}

void Protecciones::MuestraAvisoPH() {
  const auto aviso = AvisoDePlausibilidad(e_, kPH);
  lbAvisoPH_->setText(aviso ? Q(entorno_.textos.Compone(*aviso)) : QString());
  lbAvisoPH_->setVisible(aviso.has_value());
}

void Protecciones::AlineaCampos() {
  MismoAncho(std::array{lbAguas_[kSO4Suelo], lbAguas_[kResistividad], lbAguas_[kCorriente]});
  MismoAncho(lbUnidadesAgres_);
}

void Protecciones::RenuevaEjemplo() {
  const QString html = documentoHtml_(txt::DocAguasPuras);
  if (html.isEmpty()) {
    edEjemplo_->setPlainText(Q(T(txt::FaltaArchivo) + T(txt::DocAguasPuras)));
  } else {
    edEjemplo_->setHtml(html);
  }
  edEjemplo_->setAccessibleName(frEjemplo_->title());
}

void Protecciones::RenuevaAnalisis() {
  if (!e_.resultado) return;
  MuestraResultado(TextoMedios(*e_.resultado, entorno_.textos, {true, e_.SeparadorDecimal}));
}

bool Protecciones::Visualizar() {
  const auto aviso = Analiza(e_);
  if (!aviso) {
    RenuevaAnalisis();
    MuestraPendiente();
    return true;
  }
  Dice(*aviso);
  const auto campo = std::find_if(kOrden.begin(), kOrden.end(), [&aviso](Medio medio) {
    return Datos(medio).etiqueta == aviso->titulo;
  });
  if (campo != kOrden.end()) VaA(*txpH_[static_cast<std::size_t>(*campo)]);
  return false;
}

void Protecciones::Imprimir() {
  if (!Visualizar()) return;
  const auto escribe = [this](Papel& papel) {
    PapelMedios(*e_.resultado, entorno_.textos, {true, e_.SeparadorDecimal}, papel);
  };
  ImprimeHojas(Rotulo(T(txt::AnalisisDeMedios)), escribe);
}

}  // namespace zorbin
