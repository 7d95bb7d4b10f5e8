#include "shell/resultados/frResultados.h"

#include <QCheckBox>
#include <QClipboard>
#include <QCloseEvent>
#include <QComboBox>
#include <QFile>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSplitter>
#include <QTableView>
#include <QToolButton>
#include <QVBoxLayout>

#include "base/mdTextos.h"
#include "base/textos.h"
#include "listados/obra/mdVeredictoCaso.h"
#include "sesion/captura/mdPaginas.h"
#include "sesion/resultados/mdExporta.h"
#include "shell/impresion/mdGuardar.h"
#include "shell/piezas/mdFaena.h"
#include "shell/piezas/mdQt.h"
#include "shell/resultados/frCompara.h"
#include "shell/resultados/frDetalle.h"
#include "shell/resultados/mdModeloCasos.h"
#include "shell/resultados/mdVariosTramos.h"

namespace zorbin {

namespace {

const QString kVentana = QStringLiteral("Resultados");
const QString kColumnasElegidas = QStringLiteral("Resultados/Columnas");
const QString kPartes = QStringLiteral("ResultadosPartes");
const QString kLibro = QStringLiteral("xlsx");
const QString kTexto = QStringLiteral("csv");
constexpr int kMayorAncho = 220;  // of a column at first [px]

double Hecho(const Avance& a) {
  return (a.posicion - 1 + (a.caso - 1.0) / a.casos) / a.posiciones;
}

}  // namespace

frResultados::frResultados(const Captura& c, const Entorno& entorno, std::function<void()> resumen,
                           QWidget* padre)
    : QWidget(padre, Qt::Window), c_(c), entorno_(entorno), resumen_(std::move(resumen)) {
  setObjectName(QStringLiteral("frResultados"));
  CreaPiezas();
  Coloca();
  Enlaza();
  VistaCasos vista;
  vista.columnas = ColumnasGuardadas();
  modelo_->PonVista(std::move(vista));
  RenuevaTextos();
  resize(1180, 700);
  entorno_.preferencias.RecuperaVentana(kVentana, *this);
  if (!partes_->restoreState(entorno_.preferencias.Estado(kPartes))) {
    partes_->setSizes({740, 440});
  }
}

frResultados::~frResultados() = default;

void frResultados::CreaPiezas() {
  modelo_ = new ModeloCasos(this);
  tabla_ = new QTableView(this);
  tabla_->setObjectName(QStringLiteral("tablaCasos"));
  tabla_->setModel(modelo_);
  tabla_->setSelectionBehavior(QAbstractItemView::SelectRows);
  tabla_->setAlternatingRowColors(true);
  tabla_->setShowGrid(false);
  tabla_->setWordWrap(false);
  tabla_->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
  tabla_->verticalHeader()->hide();
  tabla_->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  tabla_->verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 8);
  tabla_->horizontalHeader()->setSectionsClickable(true);
  tabla_->horizontalHeader()->setSortIndicator(-1, Qt::AscendingOrder);
  tabla_->setSortingEnabled(true);
  tabla_->installEventFilter(this);
  detalle_ = new PanelDetalle(entorno_, this);
  busca_ = new QLineEdit(this);
  busca_->setObjectName(QStringLiteral("buscaCasos"));
  busca_->setClearButtonEnabled(true);
  tramo_ = new QComboBox(this);
  veredicto_ = new QComboBox(this);
  hipotesis_ = new QComboBox(this);
  for (auto* combo : {tramo_, veredicto_, hipotesis_}) {
    combo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    combo->setMinimumContentsLength(12);
  }
  soloPeores_ = new QCheckBox(this);
  soloPeores_->setObjectName(QStringLiteral("soloPeores"));
  columnas_ = new QToolButton(this);
  columnas_->setToolButtonStyle(Qt::ToolButtonTextOnly);
  columnas_->setPopupMode(QToolButton::InstantPopup);
  menuColumnas_ = new QMenu(columnas_);
  columnas_->setMenu(menuColumnas_);
  copia_ = new QPushButton(this);
  exporta_ = new QPushButton(this);
  exporta_->setObjectName(QStringLiteral("exportaCasos"));
  auto* menuExporta = new QMenu(exporta_);
  aLibro_ = menuExporta->addAction(QString{});
  aTexto_ = menuExporta->addAction(QString{});
  exporta_->setMenu(menuExporta);
  compara_ = new QPushButton(this);
  calcula_ = new QPushButton(this);
  listados_ = new QPushButton(this);
  for (auto* boton : {copia_, exporta_, compara_, calcula_, listados_})
    boton->setAutoDefault(false);
  cuenta_ = new QLabel(this);
  aviso_ = new QLabel(this);
  for (auto* rotulo : {cuenta_, aviso_}) rotulo->setTextFormat(Qt::PlainText);
  aviso_->setWordWrap(true);
}

void frResultados::Coloca() {
  auto* filtros = new QHBoxLayout;
  filtros->addWidget(busca_, 2);
  filtros->addWidget(tramo_, 1);
  filtros->addWidget(veredicto_, 1);
  filtros->addWidget(hipotesis_, 1);
  filtros->addWidget(soloPeores_);
  auto* botones = new QHBoxLayout;
  botones->addWidget(calcula_);
  botones->addWidget(columnas_);
  botones->addWidget(copia_);
  botones->addWidget(exporta_);
  botones->addWidget(compara_);
  botones->addStretch();
  botones->addWidget(listados_);
  partes_ = new QSplitter(Qt::Horizontal, this);
  partes_->addWidget(tabla_);
  partes_->addWidget(detalle_);
  partes_->setStretchFactor(0, 3);
  partes_->setStretchFactor(1, 2);
  partes_->setChildrenCollapsible(false);
  auto* todo = new QVBoxLayout(this);
  todo->addLayout(botones);
  todo->addLayout(filtros);
  todo->addWidget(aviso_);
  todo->addWidget(partes_, 1);
  todo->addWidget(cuenta_);
}

void frResultados::Enlaza() {
  connect(busca_, &QLineEdit::textChanged, this, &frResultados::Filtra);
  for (auto* combo : {tramo_, veredicto_, hipotesis_}) {
    connect(combo, &QComboBox::currentIndexChanged, this, &frResultados::Filtra);
  }
  connect(soloPeores_, &QCheckBox::toggled, this, &frResultados::Filtra);
  connect(calcula_, &QPushButton::clicked, this, &frResultados::Calcula);
  connect(copia_, &QPushButton::clicked, this, &frResultados::Copia);
  connect(aLibro_, &QAction::triggered, this, [this] { Exporta(kLibro); });
  connect(aTexto_, &QAction::triggered, this, [this] { Exporta(kTexto); });
  connect(compara_, &QPushButton::clicked, this, &frResultados::Compara);
  connect(listados_, &QPushButton::clicked, this, [this] {
    if (resumen_) resumen_();
  });
  connect(modelo_, &ModeloCasos::ordenado, this, &frResultados::Ordenado);
  connect(tabla_->selectionModel(), &QItemSelectionModel::selectionChanged, this,
          &frResultados::Cuenta);
  connect(tabla_->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
          &frResultados::Elegido);
}

void frResultados::RenuevaTextos() {
  const auto pon = [this](auto* pieza, int texto) {
    pieza->setText(Rotulo(entorno_.textos.Texto(texto)));
  };
  setWindowTitle(Q(entorno_.textos.Texto(txt::ResTituloTabla)));
  pon(soloPeores_, txt::ResSoloPeores);
  pon(columnas_, txt::ResColumnas);
  pon(copia_, txt::ResumenCopiar);
  pon(exporta_, txt::ResExportar);
  aLibro_->setText(Rotulo(entorno_.textos.Texto(txt::ResTablaXlsx)) + " (.xlsx)");
  aTexto_->setText(Rotulo(entorno_.textos.Texto(txt::ResTablaCsv)) + " (.csv)");
  pon(compara_, txt::ResComparar);
  pon(calcula_, txt::ResRecalcular);
  pon(listados_, txt::ResResumen);
  busca_->setPlaceholderText(Q(entorno_.textos.Texto(txt::ResBuscar)));
  detalle_->RenuevaTextos();
  LlenaListas();
  LlenaColumnas();
  if (idioma_ >= 0 && idioma_ != entorno_.textos.IdiomaOffset()) {
    modelo_->Pon(std::make_shared<CasosObra>(modelo_->casos()), entorno_.textos, Estilo());
  }
  idioma_ = entorno_.textos.IdiomaOffset();
  Cuenta();
}

// ---------------------------------------------------------------------------------------------
// Calculating

bool frResultados::Calcula() {
  const auto& textos = entorno_.textos;
  Encargo encargo = EncargaParaVer(c_);
  calculada_ = VersionActual(c_);
  Calculo calculo;
  std::shared_ptr<CasosObra> casos;
  HazFaena(this, textos, txt::CalculoEnCurso, [&](MarchaFaena& marcha) {
    calculo = CalculaEncargo(std::move(encargo), [&](const Avance& a) {
      if (marcha.Espera()) {
        marcha.Di(
            {textos.Compone(txt::AvanceDeLaObra,
                            {TextoEntero(a.tramo), std::to_string(a.caso), std::to_string(a.casos),
                             std::to_string(a.posicion), std::to_string(a.posiciones)}),
             Hecho(a)});
      }
      return marcha.Sigue();
    });
    casos = std::make_shared<CasosObra>(std::move(calculo.tramos));
  });
  reparos_.clear();
  for (const auto& r : calculo.encargo.rechazados) reparos_ += r + "\n";
  for (const auto& f : calculo.Fallos()) reparos_ += f + "\n";
  numeros_ = calculo.numeros;
  ids_ = calculo.ids;
  for (std::size_t i = 0; i < casos->Tramos().size(); ++i) {
    emit verificado(calculo.ids[i], CuentaDeVeredictos(casos->Tramos()[i]).veredicto);
  }
  std::vector<DatosTramo> hechos;
  for (const auto& t : casos->Tramos()) hechos.push_back(t.datos);
  detalle_->varios().Pon(std::move(hechos), Estilo());
  modelo_->Pon(std::move(casos), textos, Estilo());
  LlenaListas();
  LlenaColumnas();
  const auto& columnas = modelo_->vista().columnas;
  if (std::ranges::any_of(columnas, EsEntera)) CalculaEnteras();
  AjustaAnchos();
  Mira();
  if (modelo_->rowCount() > 0) tabla_->selectRow(0);
  return calculo.fin != FinTrabajo::Cancelado;
}

void frResultados::Mira() {
  if (calculada_.tramos.empty()) return;
  std::string texto = reparos_;
  if (!(VersionActual(c_) == calculada_)) texto += entorno_.textos.Texto(txt::ResCambiado);
  aviso_->setText(Q(texto).trimmed());
  aviso_->setVisible(!aviso_->text().isEmpty());
}

// ---------------------------------------------------------------------------------------------
// What is shown

void frResultados::LlenaListas() {
  const PalabrasDibujo w(entorno_.textos, Estilo());
  const auto llena = [](QComboBox& combo, const QStringList& entradas) {
    const QSignalBlocker calla(combo);
    const int elegida = combo.currentIndex();
    combo.clear();
    combo.addItems(entradas);
    combo.setCurrentIndex(elegida >= 0 && elegida < entradas.size() ? elegida : 0);
  };
  QStringList tramos{Q(w.T(txt::ResTodosTramos))};
  for (const auto& t : modelo_->casos().Tramos()) tramos += Q(w.TramoEnLetra(t.datos.tramo));
  llena(*tramo_, tramos);
  QStringList veredictos{Q(w.T(txt::ResTodosVeredictos))};
  for (const int n : txt::Veredictos) veredictos += Q(w.T(n));
  llena(*veredicto_, veredictos);
  const auto& hechos = modelo_->casos().Tramos();
  const bool armados = hechos.empty() || hechos.front().datos.tramo.EsArmado;
  const bool mezclados =
      std::ranges::any_of(hechos, [&](const auto& t) { return t.datos.tramo.EsArmado != armados; });
  QStringList hipotesis{Q(w.T(txt::ResTodasHipotesis))};
  for (int h = 1; h <= (mezclados || !armados ? kHipotesisPostesado : kHipotesisArmado); ++h) {
    hipotesis +=
        mezclados ? QString::number(h) : Q(TextoEntero(h) + " · " + w.Hipotesis(armados, h));
  }
  llena(*hipotesis_, hipotesis);
}

void frResultados::LlenaColumnas() {
  const PalabrasDibujo w(entorno_.textos, Estilo());
  const auto& puestas = modelo_->vista().columnas;
  menuColumnas_->clear();
  for (const auto& f : TablaColumnas()) {
    if (static_cast<int>(f.columna) == kPrimeraEntera) menuColumnas_->addSeparator();
    auto* accion =
        menuColumnas_->addAction(Q(Titulo(f.columna, w)).replace('&', QStringLiteral("&&")));
    accion->setCheckable(true);
    accion->setChecked(std::ranges::find(puestas, f.columna) != puestas.end());
    connect(accion, &QAction::toggled, this,
            [this, columna = f.columna](bool si) { PonColumna(columna, si); });
  }
}

// The columns keep the order of their table.
void frResultados::PonColumna(Columna c, bool si) {
  auto vista = modelo_->vista();
  std::erase(vista.columnas, c);
  if (si) {
    if (EsEntera(c) && !CalculaEnteras()) return LlenaColumnas();
    vista.columnas.insert(std::ranges::upper_bound(vista.columnas, c), c);
  }
  if (!si && vista.orden == c) vista.orden.reset();
  modelo_->PonVista(std::move(vista));
  GuardaColumnas();
  AjustaAnchos();
}

bool frResultados::CalculaEnteras() {
  if (modelo_->casos().TieneEnteras() || modelo_->casos().Cuantos() == 0) return true;
  CasosObra::Enteras enteras;
  const std::string& dicho = entorno_.textos.Texto(txt::ResCalculandoColumnas);
  HazFaena(this, entorno_.textos, txt::CalculoEnCurso, [&](MarchaFaena& marcha) {
    enteras = modelo_->casos().CalculaEnteras([&](double hecho) {
      if (marcha.Espera()) marcha.Di({dicho, hecho});
      return marcha.Sigue();
    });
  });
  if (enteras == nullptr) return false;
  modelo_->PonEnteras(std::move(enteras));
  return true;
}

std::vector<Columna> frResultados::ColumnasGuardadas() const {
  const QStringList claves = entorno_.preferencias.Valor(kColumnasElegidas).toStringList();
  std::vector<Columna> columnas;
  for (const auto& f : TablaColumnas()) {
    const bool puesta =
        claves.isEmpty() ? f.alPrincipio : claves.contains(QString::fromLatin1(f.clave));
    if (puesta) columnas.push_back(f.columna);
  }
  return columnas;
}

void frResultados::GuardaColumnas() const {
  QStringList claves;
  for (const auto c : modelo_->vista().columnas) claves += QString::fromLatin1(De(c).clave);
  entorno_.preferencias.PonValor(kColumnasElegidas, claves);
}

void frResultados::Filtra() {
  auto vista = modelo_->vista();
  vista.texto = S(busca_->text().trimmed());
  vista.tramo = tramo_->currentIndex() > 0
                    ? std::optional(static_cast<std::size_t>(tramo_->currentIndex() - 1))
                    : std::nullopt;
  vista.veredicto = veredicto_->currentIndex() > 0
                        ? std::optional(static_cast<Veredicto>(veredicto_->currentIndex() - 1))
                        : std::nullopt;
  vista.hipotesis = std::max(0, hipotesis_->currentIndex());
  vista.soloPeores = soloPeores_->isChecked();
  modelo_->PonVista(std::move(vista));
}

void frResultados::AjustaAnchos() {
  auto* cabeza = tabla_->horizontalHeader();
  for (int i = 0; i < modelo_->columnCount(); ++i) {
    int ancho = cabeza->sectionSizeHint(i);
    for (int fila = 0; fila < std::min(40, modelo_->rowCount()); ++fila) {
      const auto texto = modelo_->data(modelo_->index(fila, i), Qt::DisplayRole).toString();
      ancho = std::max(ancho, fontMetrics().horizontalAdvance(texto) + 16);
    }
    cabeza->resizeSection(i, std::min(ancho, kMayorAncho));
  }
}

// ---------------------------------------------------------------------------------------------
// The rows chosen

std::vector<std::uint32_t> frResultados::Elegidos() const {
  std::vector<std::uint32_t> casos;
  for (const auto& i : tabla_->selectionModel()->selectedRows()) {
    casos.push_back(modelo_->Caso(i.row()));
  }
  return casos;
}

void frResultados::Elegido() {
  const auto indice = tabla_->currentIndex();
  if (!indice.isValid()) return;
  const auto caso = modelo_->Caso(indice.row());
  detalle_->Pon(CasoConSuTramo(modelo_->casos().Tramo(caso), modelo_->casos().Fila(caso)),
                Estilo());
}

void frResultados::Ordenado() {
  if (modelo_->rowCount() > 0 && !tabla_->currentIndex().isValid()) tabla_->selectRow(0);
  if (modelo_->rowCount() == 0) detalle_->Pon(nullptr, Estilo());
  Cuenta();
}

void frResultados::Cuenta() {
  int elegidos = 0;
  for (const auto& tira : tabla_->selectionModel()->selection()) elegidos += tira.height();
  compara_->setEnabled(elegidos == 2);
  copia_->setEnabled(modelo_->rowCount() > 0);
  exporta_->setEnabled(modelo_->rowCount() > 0);
  cuenta_->setText(Q(entorno_.textos.Compone(
      txt::ResCuenta, {TextoEntero(modelo_->rowCount()), std::to_string(modelo_->casos().Cuantos()),
                       std::to_string(modelo_->casos().Tramos().size()), TextoEntero(elegidos)})));
}

// The rows chosen, or all where one alone is.
void frResultados::Copia() {
  auto casos = Elegidos();
  if (casos.size() <= 1) {
    casos.clear();
    for (int i = 0; i < modelo_->rowCount(); ++i) casos.push_back(modelo_->Caso(i));
  }
  std::string texto;
  HazFaena(this, entorno_.textos, txt::CalculoEnCurso, [&](MarchaFaena&) {
    texto = TextoTabulado(modelo_->casos(), casos, modelo_->vista().columnas, modelo_->Palabras());
  });
  QGuiApplication::clipboard()->setText(Q(texto));
}

// The rows in sight with the columns in sight, in their order.
void frResultados::Exporta(const QString& extension) {
  const auto& textos = entorno_.textos;
  const bool libro = extension == kLibro;
  const QString ruta = PideNombreFichero(
      this, textos, entorno_.preferencias,
      {txt::ResTituloExportar, libro ? txt::ResTablaXlsx : txt::ResTablaCsv, extension},
      Q(textos.Texto(txt::ResTituloTabla)));
  if (ruta.isEmpty()) return;
  std::vector<std::uint32_t> orden;
  for (int i = 0; i < modelo_->rowCount(); ++i) orden.push_back(modelo_->Caso(i));
  const std::filesystem::path fichero(QFile::encodeName(ruta).toStdString());
  HazDocumento(this, textos, ruta, [&](MarchaFaena& marcha) {
    ExportaTabla(
        {modelo_->casos(), orden, modelo_->vista().columnas, calculada_, ids_, numeros_},
        modelo_->Palabras(), fichero, [&](std::size_t hechos) {
          marcha.Exige();
          if (!marcha.Espera()) return;
          marcha.Di({textos.Compone(txt::ResEscribiendoTabla,
                                    {std::to_string(hechos), std::to_string(orden.size())}),
                     static_cast<double>(hechos) / static_cast<double>(orden.size())});
        });
  });
}

void frResultados::Compara() {
  const auto dos = Elegidos();
  if (dos.size() != 2) return;
  const auto& casos = modelo_->casos();
  const auto a = CasoConSuTramo(casos.Tramo(dos[0]), casos.Fila(dos[0]));
  const auto b = CasoConSuTramo(casos.Tramo(dos[1]), casos.Fila(dos[1]));
  frCompara(entorno_, a->Dibujado(), b->Dibujado(), Estilo(), this).exec();
}

bool frResultados::eventFilter(QObject* quien, QEvent* suceso) {
  if (quien == tabla_ && suceso->type() == QEvent::KeyPress &&
      static_cast<QKeyEvent*>(suceso)->matches(QKeySequence::Copy)) {
    Copia();
    return true;
  }
  return QWidget::eventFilter(quien, suceso);
}

void frResultados::closeEvent(QCloseEvent* suceso) {
  entorno_.preferencias.GuardaVentana(kVentana, *this);
  entorno_.preferencias.GuardaEstado(kPartes, partes_->saveState());
  QWidget::closeEvent(suceso);
}

}  // namespace zorbin
