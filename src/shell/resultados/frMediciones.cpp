#include "shell/resultados/frMediciones.h"

#include <QFile>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QTabWidget>
#include <QTableWidget>
#include <QVBoxLayout>
#include <array>
#include <filesystem>

#include "base/mdNumeros.h"
#include "base/textos.h"
#include "listados/mediciones/mdMedicionObra.h"
#include "persistencia/disco/mdFicheroSalida.h"
#include "persistencia/zrx/mdFabricacionZrx.h"
#include "shell/impresion/mdGuardar.h"
#include "shell/piezas/mdFaena.h"
#include "shell/piezas/mdQt.h"
#include "shell/resultados/mdVistaPlanilla.h"

namespace zorbin {

namespace {

constexpr int kDecimales = 6;
constexpr int kCampoMoneda = 10;   // place of a field among all, for its refusal
constexpr int kCampoPrecio = 100;  // of the first price
constexpr int kColumnaPrecio = 2;

struct DatoDeTramo {
  double Fabricacion::*valor;
  LimitesDato limites;
  const char* unidad;
  const char* nombre;
};

// In the order of their captions.
constexpr std::array<DatoDeTramo, 5> kDatos{{
    {&Fabricacion::Longitud, kLimLongitud, "m", "edLongitud"},
    {&Fabricacion::LongitudTubo, kLimTubo, "m", "edLongitudTubo"},
    {&Fabricacion::AceroJunta, kLimJunta, "kg", "edAceroJunta"},
    {&Fabricacion::FiLong, kLimFiLong, "mm", "edFiLong"},
    {&Fabricacion::SepLong, kLimSepLong, "m", "edSepLong"},
}};

constexpr std::array<const char*, 2> kFormatos{"csv", "xlsx"};

Fabricacion FabricacionDelTramo(const Version& v, int id) {
  const auto* t = Busca(v, id);
  return t == nullptr ? Fabricacion{} : FabricacionDe(t->extras);
}

const char* UnidadDe(Partida p) {
  return EsAcero(p) ? "kg" : "m³";
}

std::string ConUnidad(const std::string& texto, const std::string& unidad) {
  return texto + " (" + unidad + ")";
}

// A number typed within its limits, or why it is none.
struct Leido {
  std::optional<double> valor;
  QString falta;
};

Leido Lee(const QString& texto, const std::string& rotulo, const LimitesDato& limites,
          const std::string& unidad, const PalabrasDibujo& w) {
  const auto leido = NumeroTecleado(S(texto), w.Estilo().separador);
  if (!leido.valor) return {{}, Q(rotulo + ": " + w.Textos().Compone(leido.falta))};
  if (limites.Admite(*leido.valor)) return {leido.valor, {}};
  return {{},
          Q(w.Con(txt::MedFueraDeLimites, {rotulo, w.Corto(limites.minimo, kDecimales),
                                           w.Corto(limites.maximo, kDecimales), unidad}))};
}

PalabrasDibujo Palabras(const Captura& c, const Entorno& entorno) {
  return {entorno.textos, {c.EsSI(), entorno.SeparadorDecimal}};
}

}  // namespace

frMediciones::frMediciones(Captura& c, const Entorno& entorno, Calculo calculo, QWidget* padre)
    : QDialog(padre),
      c_(c),
      entorno_(entorno),
      calculo_(std::move(calculo)),
      enMano_(FabricacionDelTramo(c.version, c.enMano)),
      precios_(PreciosDe(c.version.extras.otras)),
      moneda_(new QLineEdit(this)),
      tablaPrecios_(new QTableWidget(static_cast<int>(kPartidas), 3, this)),
      partidas_(new VistaPlanilla(this)),
      capas_(new VistaPlanilla(this)),
      reparo_(new QLabel(this)) {
  setObjectName(QStringLiteral("frMediciones"));
  setWindowTitle(Tx(txt::MedicionesTitulo));
  for (const int id : calculo_.ids) {
    fabricaciones_.push_back(FabricacionDelTramo(c_.version, id));
  }
  auto* arriba = new QHBoxLayout;
  arriba->addWidget(GrupoTramo());
  arriba->addWidget(GrupoPrecios(), 1);
  reparo_->setObjectName(QStringLiteral("lbReparo"));
  reparo_->setTextFormat(Qt::PlainText);
  reparo_->setWordWrap(true);
  auto* hojas = new QTabWidget(this);
  hojas->addTab(partidas_, Tx(txt::MedicionesTitulo));
  hojas->addTab(capas_, Tx(txt::MedicionCapas));
  auto* filas = new QVBoxLayout(this);
  filas->addLayout(arriba);
  filas->addWidget(reparo_);
  filas->addWidget(hojas, 1);
  filas->addLayout(Botones());
  Mide();
  QStringList fuera;
  for (const auto& r : calculo_.encargo.rechazados) fuera << Q(r);
  for (const auto& f : calculo_.Fallos()) fuera << Q(f);
  Anota(-1, fuera.join('\n'));
  resize(1120, 850);
}

QString frMediciones::Tx(int n) const {
  return Rotulo(entorno_.textos.Texto(n));
}

std::string frMediciones::Corto(double valor) const {
  return Palabras(c_, entorno_).Corto(valor, kDecimales);
}

QGroupBox* frMediciones::GrupoTramo() {
  const auto* tramo = Busca(c_.version, c_.enMano);
  const std::string numero = tramo == nullptr ? "" : tramo->numero;
  auto* grupo = new QGroupBox(Q(entorno_.textos.Compone(txt::MedTramoEnMano, {numero})), this);
  grupo->setEnabled(tramo != nullptr && !c_.SoloLectura());
  auto* campos = new QFormLayout(grupo);
  for (std::size_t i = 0; i < kDatos.size(); ++i) {
    const auto& d = kDatos[i];
    auto* campo = new QLineEdit(Q(Corto(enMano_.*d.valor)), grupo);
    campo->setObjectName(QString::fromLatin1(d.nombre));
    campos->addRow(Q(ConUnidad(entorno_.textos.Texto(txt::MedCampos[i]), d.unidad)), campo);
    connect(campo, &QLineEdit::textChanged, this,
            [this, i](const QString& texto) { TomaDato(i, texto); });
  }
  return grupo;
}

QGroupBox* frMediciones::GrupoPrecios() {
  auto* grupo = new QGroupBox(Tx(txt::MedPrecios), this);
  grupo->setEnabled(!c_.SoloLectura());
  moneda_->setObjectName(QStringLiteral("edMoneda"));
  moneda_->setText(Q(precios_.moneda));
  connect(moneda_, &QLineEdit::textChanged, this, &frMediciones::TomaMoneda);
  tablaPrecios_->setObjectName(QStringLiteral("tablaPrecios"));
  tablaPrecios_->setAccessibleName(Tx(txt::MedPrecios));
  tablaPrecios_->verticalHeader()->hide();
  tablaPrecios_->setHorizontalHeaderLabels(
      {Tx(txt::MedicionPartida), Tx(txt::MedicionUnidad), Tx(txt::MedicionPrecio)});
  for (int i = 0; i < static_cast<int>(kPartidas); ++i) {
    const auto p = static_cast<Partida>(i);
    const auto celda = [&](int columna, const QString& texto) {
      auto* item = new QTableWidgetItem(texto);
      if (columna != kColumnaPrecio) item->setFlags(item->flags() & ~Qt::ItemIsEditable);
      tablaPrecios_->setItem(i, columna, item);
    };
    celda(0, Q(NombreDe(p, entorno_.textos)));
    celda(1, Q(UnidadDe(p)));
    celda(kColumnaPrecio, Q(Corto(precios_.precio[p])));
  }
  tablaPrecios_->resizeColumnsToContents();
  tablaPrecios_->horizontalHeader()->setStretchLastSection(true);
  connect(tablaPrecios_, &QTableWidget::cellChanged, this, [this](int fila, int columna) {
    if (columna == kColumnaPrecio) TomaPrecio(fila);
  });
  auto* campos = new QFormLayout;
  campos->addRow(Tx(txt::MedMoneda), moneda_);
  auto* filas = new QVBoxLayout(grupo);
  filas->addLayout(campos);
  filas->addWidget(tablaPrecios_);
  return grupo;
}

QLayout* frMediciones::Botones() {
  auto* botones = new QHBoxLayout;
  const auto boton = [&](int rotulo, const char* nombre) {
    auto* b = new QPushButton(Tx(rotulo), this);
    b->setObjectName(QString::fromLatin1(nombre));
    b->setAutoDefault(false);
    botones->addWidget(b);
    return b;
  };
  auto* exporta = boton(txt::MedExportar, "btExportar");
  auto* menu = new QMenu(exporta);
  for (std::size_t i = 0; i < kFormatos.size(); ++i) {
    menu->addAction(Tx(txt::MedFiltros[i]), this, [this, i] { Exporta(i); })
        ->setObjectName(QString::fromLatin1(kFormatos[i]));
  }
  exporta->setMenu(menu);
  botones->addStretch();
  auto* acepta = boton(txt::BotonAceptar, "btAceptar");
  acepta->setEnabled(!c_.SoloLectura());
  connect(acepta, &QPushButton::clicked, this, &frMediciones::accept);
  connect(boton(txt::BotonCancelar, "btCancelar"), &QPushButton::clicked, this,
          &frMediciones::reject);
  return botones;
}

void frMediciones::TomaDato(std::size_t i, const QString& texto) {
  const auto& d = kDatos[i];
  const auto leido = Lee(texto, entorno_.textos.Texto(txt::MedCampos[i]), d.limites, d.unidad,
                         Palabras(c_, entorno_));
  if (leido.valor) enMano_.*d.valor = *leido.valor;
  Anota(static_cast<int>(i), leido.falta);
  if (leido.valor) Mide();
}

void frMediciones::TomaMoneda(const QString& texto) {
  auto moneda = S(texto.trimmed());
  if (moneda.size() > kMaxMoneda) {
    return Anota(kCampoMoneda,
                 Q(entorno_.textos.Compone(txt::MedMonedaLarga, {std::to_string(kMaxMoneda)})));
  }
  precios_.moneda = std::move(moneda);
  Anota(kCampoMoneda, {});
  Mide();
}

void frMediciones::TomaPrecio(int fila) {
  const auto p = static_cast<Partida>(fila);
  const auto leido =
      Lee(tablaPrecios_->item(fila, kColumnaPrecio)->text(), NombreDe(p, entorno_.textos),
          kLimPrecio, precios_.moneda + "/" + UnidadDe(p), Palabras(c_, entorno_));
  if (leido.valor) precios_.precio[p] = *leido.valor;
  Anota(kCampoPrecio + fila, leido.falta);
  if (leido.valor) Mide();
}

void frMediciones::Anota(int campo, const QString& falta) {
  if (falta.isEmpty()) {
    faltas_.erase(campo);
  } else {
    faltas_[campo] = falta;
  }
  QStringList lineas;
  for (const auto& [cual, texto] : faltas_) lineas << texto;
  reparo_->setText(lineas.join('\n'));
  reparo_->setVisible(!lineas.isEmpty());
}

void frMediciones::Mide() {
  std::vector<TramoAMedir> tramos;
  for (std::size_t i = 0; i < calculo_.tramos.size(); ++i) {
    const bool enMano = calculo_.ids[i] == c_.enMano;
    tramos.push_back(
        {calculo_.tramos[i], calculo_.numeros[i], enMano ? enMano_ : fabricaciones_[i]});
  }
  const auto w = Palabras(c_, entorno_);
  const auto casos = MideObra(tramos, precios_, QueCasos::Peor);
  planillas_ = {PlanillaDePartidas(casos, precios_, QueCasos::Peor, w), PlanillaDeCapas(casos, w)};
  partidas_->Pon(planillas_[0], w.Estilo().separador);
  capas_->Pon(planillas_[1], w.Estilo().separador);
}

void frMediciones::accept() {
  const auto mala = faltas_.lower_bound(0);
  if (mala != faltas_.end()) {
    QWidget* campo = tablaPrecios_;
    if (mala->first < kCampoMoneda) {
      const auto& d = kDatos[static_cast<std::size_t>(mala->first)];
      campo = findChild<QLineEdit*>(QString::fromLatin1(d.nombre));
    } else if (mala->first == kCampoMoneda) {
      campo = moneda_;
    } else {
      tablaPrecios_->setCurrentCell(mala->first - kCampoPrecio, kColumnaPrecio);
    }
    return campo->setFocus();
  }
  const EnUnPaso paso(c_, entorno_.textos.Texto(txt::MedPaso));
  auto& v = c_.version;
  const auto lugar = LugarDe(v, c_.enMano);
  // The same values written anew are not always the same bytes, and would make a step.
  if (lugar && !(enMano_ == FabricacionDelTramo(v, c_.enMano))) {
    auto tramo = std::make_shared<TramoEnObra>(*v.tramos[*lugar]);
    tramo->extras = ConFabricacion(tramo->extras, enMano_);
    v.tramos[*lugar] = std::move(tramo);
  }
  auto& otras = v.extras.otras;
  if (!(precios_ == PreciosDe(otras))) otras = ConPrecios(otras, precios_);
  QDialog::accept();
}

void frMediciones::Exporta(std::size_t formato) {
  const auto extension = QString::fromLatin1(kFormatos[formato]);
  const auto obra = std::filesystem::path(c_.e.obra.NombreFichero).stem().string();
  const QString ruta = PideNombreFichero(this, entorno_.textos, entorno_.preferencias,
                                         {txt::MedExporta, txt::MedFiltros[formato], extension},
                                         Q(obra) + " - " + Tx(txt::MedicionesTitulo));
  if (ruta.isEmpty()) return;
  HazDocumento(this, entorno_.textos, ruta, [&](MarchaFaena& marcha) {
    marcha.SinVuelta();
    const std::filesystem::path fichero = QFile::encodeName(ruta).toStdString();
    if (extension == QLatin1String("xlsx")) return EscribeXlsx(fichero, planillas_);
    FicheroSalida salida(fichero);
    salida.Escribe(CsvDePlanillas(planillas_, entorno_.SeparadorDecimal));
    salida.Termina();
  });
}

void MuestraMediciones(Captura& c, const Entorno& entorno, QWidget* padre) {
  if (!c.ObraCargada) return;
  auto encargo = EncargaParaVer(c);
  Calculo calculo;
  HazFaena(padre, entorno.textos, txt::CalculoEnCurso, [&](MarchaFaena& marcha) {
    calculo = CalculaEncargo(std::move(encargo), [&](const Avance&) { return marcha.Sigue(); });
  });
  if (calculo.fin == FinTrabajo::Cancelado) return;
  frMediciones(c, entorno, std::move(calculo), padre).exec();
}

}  // namespace zorbin
