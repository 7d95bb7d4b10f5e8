#include "shell/informe/frInforme.h"

#include <QComboBox>
#include <QFile>
#include <QFileDialog>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QImageReader>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "base/mdNumeros.h"
#include "base/textos.h"
#include "listados/informe/mdPdfInforme.h"
#include "persistencia/zrx/mdFabricacionZrx.h"
#include "sesion/captura/mdComprueba.h"
#include "shell/impresion/mdGuardar.h"
#include "shell/informe/mdVistaInforme.h"
#include "shell/piezas/mdDialogos.h"
#include "shell/piezas/mdQt.h"

namespace zorbin {

namespace {

constexpr QSize kVentanaVista{820, 900};

// What the report is made of, with what it refers to.
struct Material {
  Calculo calculo;
  DatosInforme datos;
};

Tramo TramoDe(const Version& v, int id) {
  const auto* t = Busca(v, id);
  return t == nullptr ? Tramo{} : t->datos;
}

}  // namespace

frInforme::frInforme(Captura& c, const Entorno& entorno, QWidget* padre)
    : QDialog(padre),
      c_(c),
      entorno_(entorno),
      autor_(new QLineEdit(this)),
      revisor_(new QLineEdit(this)),
      revision_(new QLineEdit(this)),
      fecha_(new QLineEdit(this)),
      logo_(new QLabel(this)),
      quita_(new QPushButton(this)),
      detalle_(new QComboBox(this)) {
  setObjectName(QStringLiteral("frInforme"));
  setWindowTitle(Tx(txt::InfTitulo));
  const auto& portada = c.version.extras.portada;
  autor_->setText(Q(portada.autor));
  revisor_->setText(Q(portada.revisor));
  revision_->setText(Q(portada.revision));
  fecha_->setText(Q(portada.fecha));
  bytesLogo_ = portada.logo;
  for (const int n : txt::InfDetalles) detalle_->addItem(Tx(n));
  detalle_->setCurrentIndex(static_cast<int>(DetalleInforme::Pesimo));

  auto* elige = new QPushButton(Tx(txt::InfEligeLogo), this);
  quita_->setText(Tx(txt::InfQuitaLogo));
  auto* fila = new QHBoxLayout;
  fila->addWidget(logo_, 1);
  fila->addWidget(elige);
  fila->addWidget(quita_);
  auto* grupo = new QGroupBox(Tx(txt::InfPortada), this);
  auto* campos = new QFormLayout(grupo);
  campos->addRow(Tx(txt::InfAutor), autor_);
  campos->addRow(Tx(txt::InfRevisor), revisor_);
  campos->addRow(Tx(txt::InfRevision), revision_);
  campos->addRow(Tx(txt::InfFecha), fecha_);
  campos->addRow(Tx(txt::InfLogo), fila);
  auto* mas = new QFormLayout;
  mas->addRow(Tx(txt::InfDetalle), detalle_);

  auto* botones = new QHBoxLayout;
  botones->addStretch();
  const auto boton = [&](int rotulo, const char* nombre, const auto& hace) {
    auto* b = new QPushButton(Tx(rotulo), this);
    b->setObjectName(QString::fromLatin1(nombre));
    b->setAutoDefault(false);
    connect(b, &QPushButton::clicked, this, hace);
    botones->addWidget(b);
    return b;
  };
  boton(txt::VistaPrevia, "btVistaInforme", [this] { VistaPrevia(); })->setDefault(true);
  boton(txt::ResumenPdf, "btPdfInforme", [this] { Pdf(); });
  boton(txt::BotonCerrar, "btCierraInforme", [this] {
    TomaPortada();
    accept();
  });
  auto* filas = new QVBoxLayout(this);
  filas->addWidget(grupo);
  filas->addLayout(mas);
  filas->addLayout(botones);
  connect(elige, &QPushButton::clicked, this, [this] { EligeLogo(); });
  connect(quita_, &QPushButton::clicked, this, [this] {
    bytesLogo_.clear();
    MuestraLogo();
  });
  MuestraLogo();
  setMinimumWidth(fontMetrics().averageCharWidth() * 80);
}

QString frInforme::Tx(int n) const {
  return Rotulo(entorno_.textos.Texto(n));
}

void frInforme::MuestraLogo() {
  const auto kb = std::to_string((bytesLogo_.size() + 1023) / 1024);
  logo_->setText(bytesLogo_.empty() ? Tx(txt::InfSinLogo)
                                    : Q(entorno_.textos.Compone(txt::InfHayLogo, {kb})));
  quita_->setEnabled(!bytesLogo_.empty());
}

bool frInforme::PonLogo(const QString& ruta) {
  QFile f(ruta);
  QByteArray bytes;
  if (f.open(QIODevice::ReadOnly)) bytes = f.read(static_cast<qint64>(kMaxBytesLogo) + 1);
  const bool cabe = !bytes.isEmpty() && bytes.size() <= static_cast<qsizetype>(kMaxBytesLogo);
  if (!cabe || QImageReader(ruta).size().isEmpty()) {
    Avisa(this, entorno_.textos, Tx(txt::InfLogoMalo));
    return false;
  }
  bytesLogo_ = bytes.toStdString();
  MuestraLogo();
  return true;
}

void frInforme::EligeLogo() {
  const QString ruta = QFileDialog::getOpenFileName(this, Tx(txt::InfLogo), {},
                                                    QStringLiteral("PNG, SVG (*.png *.svg)"));
  if (!ruta.isEmpty()) PonLogo(ruta);
}

PortadaObra frInforme::Portada() const {
  PortadaObra x = c_.version.extras.portada;
  x.autor = S(autor_->text().trimmed());
  x.revisor = S(revisor_->text().trimmed());
  x.revision = S(revision_->text().trimmed());
  x.fecha = S(fecha_->text().trimmed());
  x.logo = bytesLogo_;
  return x;
}

void frInforme::TomaPortada() {
  if (c_.SoloLectura()) return;
  const EnUnPaso paso(c_, entorno_.textos.Texto(txt::InfPaso));
  c_.version.extras.portada = Portada();
}

bool frInforme::Haz(const QString& donde,
                    const std::function<void(Informe&, MarchaFaena&)>& acaba) {
  TomaPortada();
  auto encargo = EncargaObra(c_);
  if (!encargo) return false;
  const auto completa = Comprueba(c_, IdsDe(c_.version)).version;
  Material m;
  m.datos.obra = c_.e.obra;
  m.datos.portada = Portada();
  m.datos.fichero = encargo->fichero;
  m.datos.programa = "ZORBIN " ZORBIN_VERSION;
  m.datos.fecha = Ahora();
  m.datos.detalle = static_cast<DetalleInforme>(detalle_->currentIndex());
  m.datos.rechazados = encargo->rechazados;
  m.datos.precios = PreciosDe(c_.version.extras.otras);
  if (c_.fichero && !c_.EnCambio()) m.datos.huella = HuellaDe(c_.fichero->ruta());
  const Catalogo textos = encargo->textos;
  EstiloNumeros estilo = encargo->estilo;
  estilo.separador = SeparadorDeIdioma(c_.e.obra.Idioma);

  int previstas = 0;
  const bool calculado = HazDocumento(this, entorno_.textos, donde, [&](MarchaFaena& marcha) {
    m.calculo = CalculaEncargo(std::move(*encargo), [&](const Avance&) { return marcha.Sigue(); });
    marcha.Exige();
    for (std::size_t i = 0; i < m.calculo.tramos.size(); ++i) {
      const int id = m.calculo.ids[i];
      m.datos.tramos.push_back({&m.calculo.tramos[i], m.calculo.numeros[i], TramoDe(c_.version, id),
                                TramoDe(completa, id),
                                FabricacionDe(Busca(c_.version, id)->extras)});
    }
    previstas = PaginasPrevistas(m.datos, textos, estilo);
  });
  if (!calculado) return false;
  if (previstas > kMuchasPaginas &&
      !Pregunta(this, entorno_.textos,
                Q(entorno_.textos.Compone(txt::InfPreguntaPaginas, {std::to_string(previstas)})),
                Tx(txt::InfTitulo))) {
    return false;
  }
  return HazDocumento(this, entorno_.textos, donde, [&](MarchaFaena& marcha) {
    auto informe = ComponeInforme(m.datos, textos, estilo, [&](int pagina) {
      marcha.Exige();
      if (marcha.Espera()) {
        marcha.Di({entorno_.textos.Compone(txt::InfAvance, {std::to_string(pagina)}), {}});
      }
      return true;
    });
    acaba(informe, marcha);
    informe.letras.reset();  // they belong to this thread
  });
}

std::optional<Informe> frInforme::Compone() {
  std::optional<Informe> hecho;
  const bool bien = Haz({}, [&hecho](Informe& informe, MarchaFaena&) {
    informe.letras.reset();
    hecho = std::move(informe);
  });
  return bien ? std::move(hecho) : std::nullopt;
}

void frInforme::VistaPrevia() {
  auto informe = Compone();
  if (!informe) return;
  QDialog ventana(this);
  ventana.setWindowTitle(EnTitulo(informe->titulo));
  auto* vista = new VistaInforme(&ventana);
  vista->Pon(std::move(*informe));
  auto* filas = new QVBoxLayout(&ventana);
  filas->setContentsMargins(0, 0, 0, 0);
  filas->addWidget(vista);
  ventana.resize(kVentanaVista);
  ventana.exec();
}

void frInforme::Pdf() {
  const QString nombre =
      Q(std::filesystem::path(c_.e.obra.NombreFichero).stem().string() + "-memoria");
  const QString ruta =
      PideNombreFichero(this, entorno_.textos, entorno_.preferencias,
                        {txt::GuardarPdf, txt::FiltroPdf, QStringLiteral("pdf")}, nombre);
  if (ruta.isEmpty()) return;
  Haz(ruta, [&ruta](Informe& informe, MarchaFaena& marcha) {
    EscribeInforme(QFile::encodeName(ruta).toStdString(), informe, [&marcha](int) {
      marcha.Exige();
      return true;
    });
  });
}

}  // namespace zorbin
