#include "shell/ajustes/frAjustes.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QShortcut>
#include <QStackedWidget>
#include <QTimer>
#include <QVBoxLayout>
#include <algorithm>
#include <cmath>

#include "base/mdNumeros.h"
#include "base/textos.h"
#include "sesion/ajustes/mdPared.h"
#include "sesion/ajustes/mdPresentaAjustes.h"
#include "shell/ajustes/mdDibujoAjustes.h"
#include "shell/ajustes/mdListaCasos.h"
#include "shell/ajustes/mdPiezasAjustes.h"
#include "shell/ajustes/mdTablaFilas.h"
#include "shell/piezas/mdDialogos.h"
#include "shell/piezas/mdQt.h"
#include "shell/piezas/mdTeclasRapidas.h"
#include "shell/piezas/mdVisorHtml.h"

namespace zorbin {

namespace {

using enum BotonAjuste;

constexpr double kParteDePantalla = 0.95;  // the most that the window takes of the screen at first
constexpr int kAire = 6;                   // [px]
const QString kVentana = QStringLiteral("frAjustes");

std::size_t I(BotonAjuste boton) {
  return static_cast<std::size_t>(boton);
}
std::size_t I(CampoAjuste campo) {
  return static_cast<std::size_t>(campo);
}

// Words of two entries are one sentence here.
QString EnMinusculas(std::string_view texto) {
  return Rotulo(texto).toLower();
}

}  // namespace

void AbreAjustes(Captura& c, const Entorno& entorno, const DocumentoAjustes& documentoHtml,
                 QWidget* padre) {
  const auto ajustes = AjustaArmaduras(c);
  if (ajustes != nullptr) frAjustes(*ajustes, entorno, documentoHtml, padre).exec();
}

frAjustes::frAjustes(Ajustes& ajustes, const Entorno& entorno,
                     const DocumentoAjustes& documentoHtml, QWidget* padre)
    : QDialog(padre),
      a_(ajustes),
      entorno_(entorno),
      vigilante_(*this, {[this](QWidget* campo) -> QWidget* {
                           const int i = IndiceDe(campo);
                           if (i >= 0) campos_[static_cast<std::size_t>(i)]->Selecciona();
                           return nullptr;
                         },
                         [this](QWidget* campo) -> QWidget* {
                           const int i = IndiceDe(campo);
                           const bool sale = i < 0 || Sale(a_, static_cast<CampoAjuste>(i));
                           Muestra();
                           return sale ? nullptr : campo;
                         }}) {
  setObjectName(kVentana);
  setWindowFlag(Qt::WindowMaximizeButtonHint);
  setWindowTitle(Q(a_.t.pantalla.titulo));
  auto* cuerpo = new QWidget(this);
  auto* columnas = new QHBoxLayout(cuerpo);
  columnas->addWidget(ColumnaDelCaso());
  columnas->addWidget(ColumnaDeLaComprobacion(), 1);
  // It scrolls only where the screen is too small for it.
  vista_ = new QScrollArea(this);
  vista_->setFrameShape(QFrame::NoFrame);
  vista_->setWidgetResizable(true);
  vista_->setFocusPolicy(Qt::NoFocus);
  vista_->setWidget(cuerpo);
  auto* filas = new QVBoxLayout(this);
  filas->setContentsMargins(0, 0, 0, kAire);
  filas->addWidget(vista_, 1);
  filas->addLayout(FilaDeSalida());
  CreaCampos();
  PonPistas();
  MuestraDocumento(documentoHtml);
  connect(new QShortcut(QKeySequence::HelpContents, this), &QShortcut::activated, this,
          [this] { entorno_.ayuda(QStringLiteral("ajustes")); });
  Muestra();
  TomaSuSitio();
  tabla_->Opcion(a_.t.pantalla.opcion)->setFocus();
}

frAjustes::~frAjustes() {
  entorno_.preferencias.GuardaVentana(kVentana, *this);
}

// ---------------------------------------------------------------------------------------------
// Pieces

QPushButton* frAjustes::CreaBoton(BotonAjuste boton, const QString& nombre) {
  auto* b = new QPushButton(Rotulo(a_.t.pantalla.botones[I(boton)].texto), this);
  b->setObjectName(nombre);
  b->setAutoDefault(false);
  vigilante_.Exime(*b);
  connect(b, &QPushButton::clicked, this, [this, boton] { Actua(boton); });
  botones_[I(boton)] = b;
  return b;
}

void frAjustes::CreaCampos() {
  for (std::size_t i = 0; i < tabla_->casillas().size(); ++i) campos_[i] = tabla_->casillas()[i];
  for (std::size_t i = 0; i < campos_.size(); ++i) {
    auto* campo = campos_[i];
    connect(campo, &QLineEdit::textEdited, this,
            [this, i](const QString& texto) { Cambia(a_, static_cast<CampoAjuste>(i), S(texto)); });
    vigilante_.Vigila(*campo);
  }
}

QWidget* frAjustes::ColumnaDelCaso() {
  auto* columna = new QWidget(this);
  auto* filas = new QVBoxLayout(columna);
  filas->setContentsMargins(0, 0, 0, 0);
  auto* pasos = new QGridLayout;
  pasos->setColumnStretch(4, 1);
  const auto paso = [&](const QString& nombre, BotonAjuste anterior, BotonAjuste siguiente,
                        QLabel*& rotulo, QLineEdit*& valor) {
    const int fila = pasos->count() / 4;
    rotulo = Etiqueta("lb" + nombre, this);
    valor = Valor("tx" + nombre, this);
    rotulo->setBuddy(valor);
    pasos->addWidget(rotulo, fila, 0);
    pasos->addWidget(valor, fila, 1);
    pasos->addWidget(CreaBoton(anterior, "btAnterior" + nombre), fila, 2);
    pasos->addWidget(CreaBoton(siguiente, "btSiguiente" + nombre), fila, 3);
  };
  cbCasos_ = new ListaCasos(Rotulo(T(txt::AjCasos)), this);
  connect(cbCasos_, &QComboBox::activated, this, &frAjustes::VaAlCaso);
  filas->addWidget(cbCasos_);
  paso("Altura", btAnteriorAltura, btSiguienteAltura, lbAltura_, txAltura_);
  paso("Presion", btAnteriorPresion, btSiguientePresion, lbPresion_, txPresion_);
  filas->addLayout(pasos);
  edAvisoCaldera_ = EnVariasLineas(Etiqueta("edAvisoCaldera", this));
  EnNegrita(*edAvisoCaldera_, true);
  filas->addWidget(edAvisoCaldera_);

  frFilas_ = new QGroupBox(Rotulo(a_.t.pantalla.rotulo), this);
  auto* filasMarco = new QVBoxLayout(frFilas_);
  tabla_ = new TablaFilas(this);
  connect(tabla_, &TablaFilas::elegida, this, &frAjustes::Elige);
  filasMarco->addWidget(tabla_);
  auto* botones = new QGridLayout;
  botones->addWidget(CreaBoton(btSeleccionDirecta, "btSeleccionDirecta"), 0, 0);
  botones->addWidget(CreaBoton(btAnulaSeleccionDirecta, "btAnulaSeleccionDirecta"), 0, 1);
  botones->addWidget(CreaBoton(btSubirValorMedio, "btSubirValorMedio"), 1, 0);
  botones->addWidget(CreaBoton(btBajarValorMedio, "btBajarValorMedio"), 1, 1);
  filasMarco->addLayout(botones);
  filas->addWidget(frFilas_);
  filas->addWidget(MarcoRecubrimientos());
  lbAvisosDelCaso_ = EnVariasLineas(Etiqueta("lbAvisosDelCaso", this));
  filas->addWidget(lbAvisosDelCaso_);
  filas->addStretch(1);
  return columna;
}

QWidget* frAjustes::ColumnaDeLaComprobacion() {
  auto* columna = new QWidget(this);
  auto* filas = new QVBoxLayout(columna);
  filas->setContentsMargins(0, 0, 0, 0);
  filas->addWidget(MarcoComprobacion());
  hueco_ = new QStackedWidget(this);
  hueco_->addWidget(MarcoPared());
  tbAviso_ = new VisorHtml(this);
  tbAviso_->setObjectName("tbAviso");
  tbAviso_->setTabChangesFocus(true);
  vigilante_.Exime(*tbAviso_);
  hueco_->addWidget(tbAviso_);
  filas->addWidget(hueco_, 1);
  return columna;
}

QGroupBox* frAjustes::MarcoComprobacion() {
  auto* marco = new QGroupBox(Rotulo(T(txt::AjComprobacion)), this);
  auto* rejilla = new QGridLayout(marco);
  rejilla->setHorizontalSpacing(2 * kAire);
  rejilla->setColumnStretch(4, 1);
  constexpr std::array<Trazo, 2> kTrazos{Trazo::Necesaria, Trazo::Dispuesta};
  for (std::size_t i = 0; i < cabezasLineas_.size(); ++i) {
    auto* cabeza = new QHBoxLayout;
    cabeza->addStretch(1);
    cabeza->addWidget(new MuestraTrazo(kTrazos[i], this), 0, Qt::AlignTop);
    cabeza->addSpacing(kAire / 2);
    cabezasLineas_[i] = Etiqueta(QStringLiteral("lbCabezaLinea%1").arg(i), this, true);
    cabeza->addWidget(cabezasLineas_[i]);
    rejilla->addLayout(cabeza, 0, static_cast<int>(i) + 1);
  }
  for (std::size_t j = 0; j < lineas_.size(); ++j) {
    auto& l = lineas_[j];
    const int fila = static_cast<int>(j) + 1;
    const QString n = QString::number(j);
    l.lbPosicion = Etiqueta("lbPosicion" + n, this);
    l.txArmNecesaria = Etiqueta("txArmNecesaria" + n, this, true);
    l.txArmDispuesta = Etiqueta("txArmDispuesta" + n, this, true);
    l.imAlerta = new MarcaAlerta(this);
    l.imAlerta->setObjectName("imAlerta" + n);
    l.barra = new BarraArmadura(this);
    l.barra->setObjectName("barra" + n);
    l.lbRige = Etiqueta("lbRige" + n, this);
    l.lbRige->setText(Q(T(txt::AjRige)));
    EnNegrita(*l.lbRige, true);
    auto politica = l.lbRige->sizePolicy();
    politica.setRetainSizeWhenHidden(true);
    l.lbRige->setSizePolicy(politica);
    int columna = 0;
    for (QWidget* w : {static_cast<QWidget*>(l.lbPosicion), static_cast<QWidget*>(l.txArmNecesaria),
                       static_cast<QWidget*>(l.txArmDispuesta), static_cast<QWidget*>(l.imAlerta),
                       static_cast<QWidget*>(l.barra), static_cast<QWidget*>(l.lbRige)}) {
      rejilla->addWidget(w, fila, columna++);
    }
  }
  return marco;
}

QWidget* frAjustes::MarcoPared() {
  frPared_ = new QGroupBox(this);
  frPared_->setObjectName("frPared");
  auto* filas = new QVBoxLayout(frPared_);
  pared_ = new DibujoPared(this);
  pared_->setObjectName("pared");
  filas->addWidget(pared_, 1);
  auto* leyenda = new QGridLayout;
  leyenda->setColumnStretch(1, 1);
  const auto linea = [&](Trazo trazo, const char* nombre) {
    auto* etiqueta = Etiqueta(nombre, this);
    const int fila = leyenda->rowCount();
    leyenda->addWidget(new MuestraTrazo(trazo, this), fila, 0);
    leyenda->addWidget(etiqueta, fila, 1);
    return etiqueta;
  };
  lbExteriores_ = linea(Trazo::Exteriores, "lbExteriores");
  lbCamisa_ = linea(Trazo::Camisa, "lbCamisa");
  lbEspiras_ = linea(Trazo::Espiras, "lbEspiras");
  filas->addLayout(leyenda);
  lbSupuestas_ = Etiqueta("lbSupuestas", this);
  auto politica = lbSupuestas_->sizePolicy();
  politica.setRetainSizeWhenHidden(true);
  lbSupuestas_->setSizePolicy(politica);
  filas->addWidget(lbSupuestas_);
  return frPared_;
}

QWidget* frAjustes::MarcoRecubrimientos() {
  frRecubrimientos_ = new QGroupBox(Rotulo(a_.t.pantalla.rotuloRecubrimientos), this);
  auto* filas = new QVBoxLayout(frRecubrimientos_);
  auto* campos = new QHBoxLayout;
  const auto campo = [&](CampoAjuste cual, const char* nombre, const std::string& texto) {
    auto* casilla = new CasillaNumero(this);
    casilla->setObjectName(nombre);
    casilla->setFixedWidth(casilla->fontMetrics().horizontalAdvance('0') * kCifrasCaso +
                           casilla->sizeHint().height() / 2);
    casilla->setAccessibleName(frRecubrimientos_->title() + ": " + Rotulo(texto));
    campos_[I(cual)] = casilla;
    auto* etiqueta = Etiqueta(QString(nombre).replace("tx", "lb"), this);
    etiqueta->setText(Rotulo(texto));
    etiqueta->setBuddy(casilla);
    campos->addWidget(etiqueta);
    campos->addWidget(casilla);
    campos->addSpacing(2 * kAire);
    return etiqueta;
  };
  const auto& p = a_.t.pantalla;
  lbRecInterior_ = campo(CampoAjuste::txRecInterior, "txRecInterior", p.rotuloRecInterior);
  lbRecExterior_ = campo(CampoAjuste::txRecExterior, "txRecExterior", p.rotuloRecExterior);
  campos->addStretch(1);
  filas->addLayout(campos);
  auto* botones = new QGridLayout;
  botones->addWidget(CreaBoton(btAceptarRecubrimientos, "btAceptarRecubrimientos"), 0, 0);
  botones->addWidget(CreaBoton(btAnularRecubrimientos, "btAnularRecubrimientos"), 0, 1);
  botones->addWidget(CreaBoton(btCambiarRecubrimientos, "btCambiarRecubrimientos"), 1, 0);
  botones->addWidget(CreaBoton(btRecubrimientosOrigen, "btRecubrimientosOrigen"), 1, 1);
  filas->addLayout(botones);
  return frRecubrimientos_;
}

QLayout* frAjustes::FilaDeSalida() {
  auto* filas = new QVBoxLayout;
  filas->setContentsMargins(2 * kAire, 0, 2 * kAire, kAire);
  lbAviso_ = EnVariasLineas(Etiqueta("lbAviso", this));
  filas->addWidget(lbAviso_);
  auto* fila = new QHBoxLayout;
  lbSinGrabar_ = Etiqueta("lbSinGrabar", this);
  lbSinGrabar_->setText(Rotulo(T(txt::SinGuardar)));
  EnNegrita(*lbSinGrabar_, true);
  fila->addWidget(lbSinGrabar_);
  fila->addStretch(1);
  fila->addWidget(CreaBoton(btGuardar, "btGuardar"));
  fila->addWidget(CreaBoton(btAceptarAjuste, "btAceptarAjuste"));
  fila->addWidget(CreaBoton(btSalir, "btSalir"));
  filas->addLayout(fila);
  return filas;
}

void frAjustes::PonPistas() {
  botones_[I(btGuardar)]->setToolTip(Q(T(txt::PistaGuardarAjuste)));
  botones_[I(btAceptarAjuste)]->setToolTip(Q(T(txt::PistaAceptarAjuste)));
  botones_[I(btSalir)]->setToolTip(Q(T(txt::PistaSalirAjuste)));
  frRecubrimientos_->setToolTip(Q(T(txt::PistaRecubrimientos)));
  constexpr std::array<int, 3> kNombres{txt::AjEtCamisa, txt::AjEtRefuerzo, txt::AjExterior};
  for (std::size_t i = 0; i < kNombres.size(); ++i) {
    campos_[i]->setAccessibleName(Rotulo(T(txt::AjDirecta)) + ": " +
                                  Rotulo(T(kNombres[i])).simplified());
    campos_[i]->setToolTip(Q(T(txt::PistaArmaduraDirecta)));
  }
}

void frAjustes::MuestraDocumento(const DocumentoAjustes& documentoHtml) {
  const QString html = documentoHtml(txt::DocAvisoRecubrimientos);
  if (html.isEmpty()) {
    tbAviso_->setPlainText(Q(T(txt::FaltaArchivo) + a_.t.pantalla.tbAviso));
  } else {
    tbAviso_->setHtml(html);
  }
  tbAviso_->setAccessibleName(frRecubrimientos_->title());
}

void frAjustes::TomaSuSitio() {
  entorno_.preferencias.RecuperaVentana(kVentana, *this);
}

// What the rows ask for is known once they stand on a screen: the window grows to it then, as far
// as the screen goes.
void frAjustes::showEvent(QShowEvent* suceso) {
  QDialog::showEvent(suceso);
  if (suceso->spontaneous()) return;
  const QSize cuerpo = vista_->widget()->sizeHint().expandedTo(vista_->widget()->minimumSizeHint());
  const QSize falta = (cuerpo - vista_->viewport()->size()).expandedTo(QSize(0, 0));
  if (falta.isNull()) return;
  resize((size() + falta).boundedTo(screen()->availableSize() * kParteDePantalla));
  move(screen()->availableGeometry().center() - frameGeometry().center() +
       frameGeometry().topLeft());
}

// ---------------------------------------------------------------------------------------------
// What the model shows

void frAjustes::Muestra() {
  const VigilanteFoco::Pausa pausa(vigilante_);
  const auto& p = a_.t.pantalla;
  MuestraCaso();
  cbCasos_->Muestra(a_);
  std::array<QString, kFilasAjuste> nombres;
  for (std::size_t i = 0; i < nombres.size(); ++i) {
    nombres[i] = Q(entorno_.textos.Compone(txt::AjFilaTanteo, {std::to_string(i)}));
  }
  tabla_->Muestra(p, nombres);
  MuestraCampos();
  MuestraLineas();
  MuestraPared();
  for (std::size_t i = 0; i < botones_.size(); ++i) {
    botones_[i]->setText(Rotulo(p.botones[i].texto));
    botones_[i]->setEnabled(p.botones[i].habilitado);
  }
  hueco_->setCurrentIndex(p.tbAvisoVisible ? 1 : 0);
  lbSinGrabar_->setVisible(HaySinGuardar(a_));
  lbAviso_->setText(Q(p.aviso));
  lbAviso_->setVisible(!p.aviso.empty());
  ReparteTeclas(*this);
}

void frAjustes::MuestraCaso() {
  const auto& p = a_.t.pantalla;
  lbAltura_->setText(Rotulo(p.rotuloAltura));
  txAltura_->setText(Q(p.txAltura));
  txAltura_->setAccessibleName(Rotulo(p.rotuloAltura));
  txAltura_->setToolTip(Q(entorno_.textos.Compone(txt::AjPistaAltura, {p.tbHRaCalcular})));
  lbPresion_->setText(Rotulo(p.rotuloPresion));
  txPresion_->setText(Q(p.txPresion));
  txPresion_->setAccessibleName(Rotulo(p.rotuloPresion));
  txPresion_->setToolTip(Q(entorno_.textos.Compone(txt::AjPistaPresion, {p.tbPRSaCalcular})));
  edAvisoCaldera_->setText(Q(p.edAvisoCaldera));
  edAvisoCaldera_->setVisible(p.edAvisoCalderaVisible);
  QStringList avisos;
  for (const auto& aviso : p.avisosDelCaso) avisos += Rotulo(aviso);
  lbAvisosDelCaso_->setText(avisos.join('\n'));
  lbAvisosDelCaso_->setVisible(!avisos.isEmpty());
}

void frAjustes::MuestraCampos() {
  const auto& p = a_.t.pantalla;
  for (std::size_t i = 0; i < campos_.size(); ++i) {
    const auto campo = static_cast<CampoAjuste>(i);
    const QString texto = Q(p.Texto(campo));
    if (campos_[i]->text() != texto) campos_[i]->setText(texto);
    Abre(*campos_[i], p.Abierto(campo));
  }
}

void frAjustes::MuestraLineas() {
  const auto& p = a_.t.pantalla;
  const QString unidad = '\n' + Q(T(txt::AjCm2PorM));
  cabezasLineas_[0]->setText(Rotulo(p.rotuloNecesaria) + unidad);
  cabezasLineas_[1]->setText(Rotulo(p.rotuloDispuesta) + unidad);
  const auto& c = a_.t.comprobacion;
  double maximo = 0;
  for (const auto& l : c.lineas) maximo = std::max({maximo, l.necesaria, l.dispuesta});
  const int rige = c.LineaQueRige();
  for (std::size_t j = 0; j < lineas_.size(); ++j) {
    const auto& l = p.lineas[j];
    const auto& n = c.lineas[j];
    auto& w = lineas_[j];
    const bool esta = static_cast<int>(j) == rige;
    w.lbPosicion->setText(Q(l.lbPosicion));
    w.txArmNecesaria->setText(Q(l.txArmNecesaria));
    w.txArmDispuesta->setText(Q(l.txArmDispuesta));
    for (auto* etiqueta : {w.lbPosicion, w.txArmNecesaria, w.txArmDispuesta}) {
      EnNegrita(*etiqueta, esta);
    }
    w.imAlerta->setVisible(l.imAlerta);
    w.imAlerta->setToolTip(Q(l.consejo));
    w.imAlerta->setAccessibleName(Q(l.consejo));
    w.lbRige->setVisible(esta);
    w.barra->Pon(n.necesaria, n.dispuesta, maximo, l.imAlerta);
    const QString dicho =
        Q(l.lbPosicion) + ": " +
        Q(entorno_.textos.Compone(txt::AjFalta, {l.txArmNecesaria, l.txArmDispuesta})) +
        (esta ? "; " + w.lbRige->text() : QString());
    w.barra->setAccessibleName(dicho);
    w.barra->setToolTip(dicho);
  }
}

void frAjustes::MuestraPared() {
  const auto& c = a_.t.comprobacion;
  const auto pared = ParedElegida(a_);
  const auto& textos = entorno_.textos;
  const auto numero = [this](double v) { return Formato(a_, v, "####0.0"); };
  const auto diametro = [this](double v) {
    return Formato(a_, v, v == std::floor(v) ? "####0" : "####0.0");
  };
  DibujoPared::Rotulos r;
  r.exterior = Rotulo(T(txt::Exterior));
  r.interior = Rotulo(T(txt::Interior));
  frPared_->setTitle(Rotulo(T(txt::AjPared)));
  if (!c.traccionPura) {
    const int rige = c.LineaQueRige();
    auto& tensa = c.secciones(rige + 1).interior ? r.interior : r.exterior;
    tensa += " (" + Q(T(txt::AjCaraTraccionada)) + ')';
    const auto& posicion = a_.t.pantalla.lineas[static_cast<std::size_t>(rige)].lbPosicion;
    frPared_->setTitle(Q(textos.Compone(txt::AjParedRige, {S(EnMinusculas(posicion))})));
  }
  const auto cm = [&](double v) { return Q(numero(v) + " cm"); };
  r.Esp = cm(pared.Esp);
  r.Rece = cm(pared.Rece);
  r.BRAZO = cm(pared.BRAZO());
  r.Reci = cm(pared.Reci);
  pared_->Pon(pared, r);
  lbCamisa_->setText(
      Q(textos.Compone(txt::AjDibujoCamisa, {Formato(a_, pared.CAMISA, "####0.00")})));
  const auto barras = [&](int texto, const CapaDeBarras& b) {
    return b.cuenta > 0 ? Q(textos.Compone(texto, {std::to_string(b.cuenta), diametro(b.diametro)}))
                        : Q(T(txt::AjDemasiadaArea));
  };
  const bool sinEspiras = pared.espiras.cuenta == 0 && a_.t.Disp.Espiras == 0.0;
  lbEspiras_->setText(sinEspiras ? Q(T(txt::AjSinEspiras))
                                 : barras(txt::AjDibujoEspiras, pared.espiras));
  lbExteriores_->setText(barras(txt::AjDibujoExteriores, pared.exteriores));
  lbSupuestas_->setText(Q(T(txt::AjBarrasSupuestas)));
  lbSupuestas_->setVisible(!pared.delDiseno);
  QStringList dicho{frPared_->title(),
                    Q(textos.Compone(txt::AjMedidasPared,
                                     {numero(pared.Esp), numero(pared.Reci), numero(pared.Rece)})),
                    lbExteriores_->text(), lbCamisa_->text(), lbEspiras_->text()};
  if (!pared.delDiseno) dicho += lbSupuestas_->text();
  pared_->setAccessibleName(dicho.join(". "));
}

// ---------------------------------------------------------------------------------------------
// What a person does

int frAjustes::IndiceDe(const QWidget* campo) const {
  const auto lugar = std::find(campos_.begin(), campos_.end(), campo);
  return lugar == campos_.end() ? -1 : static_cast<int>(lugar - campos_.begin());
}

void frAjustes::VaAlCaso(int lugar) {
  const auto casos = CasosDe(a_);
  const bool pierde = HaySinGuardar(a_) && lugar != CasoEnMano(a_);
  if (!pierde || a_.c.voz.Pregunta(T(txt::AjSePerdera), T(txt::TituloAviso))) {
    const auto& caso = casos.at(static_cast<std::size_t>(lugar));
    CalculaunTramoEspecifico(a_, caso.Hr, caso.DP);
  }
  Muestra();
}

void frAjustes::Elige(int fila) {
  const auto antes = a_.t.pantalla.estado;
  EligeFila(a_, fila);
  Muestra();
  if (a_.t.pantalla.estado == antes) return;
  LlevaElFoco(antes);
  // An arrow key chooses an option before it takes the focus there.
  QTimer::singleShot(0, this, [this] {
    if (a_.t.pantalla.estado == EstadoAjuste::Directa && tabla_->Opcion(kFilaDirecta)->hasFocus()) {
      vigilante_.VaA(*campos_[I(CampoAjuste::txArmCamisa)]);
    }
  });
}

// Leaving the Caso forgets what was not stored.
bool frAjustes::Pierde(BotonAjuste boton) const {
  switch (boton) {
    case btSalir:
    case btAnteriorAltura:
    case btSiguienteAltura:
    case btAnteriorPresion:
    case btSiguientePresion:
      return HaySinGuardar(a_);
    default:
      return false;
  }
}

void frAjustes::Actua(BotonAjuste boton) {
  if (Pierde(boton) && !a_.c.voz.Pregunta(T(txt::AjSePerdera), T(txt::TituloAviso))) return;
  const auto antes = a_.t.pantalla.estado;
  if (zorbin::Pulsa(a_, boton)) return done(QDialog::Accepted);
  Muestra();
  if (a_.t.pantalla.estado != antes) {
    LlevaElFoco(antes);
  } else if (auto* campo = CampoQueFalta()) {
    vigilante_.VaA(*campo);
  }
}

void frAjustes::LlevaElFoco(EstadoAjuste antes) {
  switch (a_.t.pantalla.estado) {
    case EstadoAjuste::Directa:
      return vigilante_.VaA(*campos_[I(CampoAjuste::txArmCamisa)]);
    case EstadoAjuste::Recubrimientos:
      return vigilante_.VaA(*campos_[I(CampoAjuste::txRecInterior)]);
    case EstadoAjuste::Libre:
      break;
  }
  vigilante_.Olvida();
  if (antes == EstadoAjuste::Directa) {
    tabla_->Opcion(a_.t.pantalla.opcion)->setFocus();
  } else {
    botones_[I(btCambiarRecubrimientos)]->setFocus();
  }
}

// The field that a refusal was about; none while nothing is typed.
CasillaNumero* frAjustes::CampoQueFalta() const {
  switch (a_.t.pantalla.estado) {
    case EstadoAjuste::Directa: {
      const bool interior = a_.t.Dir.Camisa == 0.0 && a_.t.Dir.Espiras == 0.0;
      return campos_[I(interior ? CampoAjuste::txArmCamisa : CampoAjuste::txArmExterior)];
    }
    case EstadoAjuste::Recubrimientos:
      return campos_[I(CampoAjuste::txRecInterior)];
    case EstadoAjuste::Libre:
      break;
  }
  return nullptr;
}

void frAjustes::keyPressEvent(QKeyEvent* suceso) {
  const auto tecla = suceso->key();
  auto* boton = qobject_cast<QPushButton*>(focusWidget());
  if ((tecla == Qt::Key_Return || tecla == Qt::Key_Enter) && boton != nullptr) {
    return boton->click();
  }
  if (tecla == Qt::Key_Escape && a_.t.pantalla.estado == EstadoAjuste::Directa) {
    return Actua(btAnulaSeleccionDirecta);
  }
  if (tecla == Qt::Key_Escape && a_.t.pantalla.estado == EstadoAjuste::Recubrimientos) {
    return Actua(btAnularRecubrimientos);
  }
  QDialog::keyPressEvent(suceso);
}

void frAjustes::reject() {
  if (PuedeCerrar(a_)) return Actua(btSalir);
  a_.c.voz.Muestra(T(txt::AjAcepteORechace), T(txt::TituloAviso));
}

}  // namespace zorbin
