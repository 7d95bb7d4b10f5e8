#include "shell/captura/mdPaginasCaptura.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QVBoxLayout>

#include "base/mdCarpetas.h"
#include "base/textos.h"
#include "shell/captura/frFiguras.h"
#include "shell/captura/mdPestanas.h"
#include "shell/piezas/mdQt.h"

namespace zorbin {

namespace {

constexpr int kFiguraGrande = 380;  // [px]
constexpr int kFiguraMedia = 300;   // [px]

// A page scrolls where the screen is too small for it.
QWidget* EnPagina(QWidget* contenido) {
  auto* pagina = new QScrollArea;
  pagina->setWidgetResizable(true);
  pagina->setFrameShape(QFrame::NoFrame);
  pagina->setFocusPolicy(Qt::NoFocus);
  pagina->setWidget(contenido);
  return pagina;
}

void RefrescaFigura(Figura& figura, const std::string& nombre) {
  figura.Pon(nombre.empty() ? QString() : Q(RutaFigura(nombre).string()));
}

}  // namespace

PaginasCaptura::PaginasCaptura(const Campos& campos, QObject* padre)
    : QObject(padre), campos_(campos) {
  obra_ = CreaPaginaObra();
  tramo_ = CreaPaginaTramo();
  colocacion_ = CreaPaginaColocacion();
}

void PaginasCaptura::RenuevaTextos(const Captura& c) {
  for (const auto& rotulado : rotulados_) rotulado.pon(Q(c.textos.Texto(rotulado.texto)));
}

void PaginasCaptura::Refresca(const Captura& c) {
  const auto& p = c.pantalla;
  for (const auto& cabecera : cabeceras_) cabecera.rotulo->setText(Q(c[cabecera.campo].grupo));
  alturas_->setTitle(Q(c[Ed::edAlt1].grupo));
  TabTipologia_->Pon(p.pagina.TabTipologia);
  TabPostesados_->Pon(p.pagina.TabPostesados);
  TabDatosColocacion_->Pon(p.pagina.TabDatosColocacion);
  RefrescaFigura(*ptPostesado_, p.figuraTubo);
  RefrescaFigura(*ptPostesado2_, p.figuraTubo);
  RefrescaFigura(*ptColocacion_, p.figuraColocacion);
}

// The keyboard goes as the fields are placed.
QWidget& PaginasCaptura::Coloca(Ed id) {
  orden_.push_back(id);
  return campo(id).widget();
}

QGroupBox* PaginasCaptura::CreaGrupo(int texto) {
  auto* grupo = new QGroupBox;
  if (texto != 0) {
    rotulados_.push_back({[grupo](const QString& t) {
                            grupo->setTitle(QString(t).remove(QLatin1Char(':')).trimmed());
                          },
                          texto});
  }
  return grupo;
}

void PaginasCaptura::PonFila(QGridLayout& rejilla, int fila, Ed id) {
  if (Fila(id).clase == Clase::Marca || Fila(id).clase == Clase::Opcion) {
    campo(id).etiqueta().hide();
    rejilla.addWidget(&Coloca(id), fila, 0, 1, 2);
    return;
  }
  rejilla.addWidget(&campo(id).etiqueta(), fila, 0);
  const bool ancho = Fila(id).clase == Clase::Texto && id != Ed::edTramo && id != Ed::edTramo2;
  rejilla.addWidget(&Coloca(id), fila, 1, ancho ? Qt::Alignment() : Qt::AlignLeft);
}

void PaginasCaptura::PonFilas(QGridLayout& rejilla, std::initializer_list<Ed> campos) {
  int fila = 0;
  for (const Ed id : campos) PonFila(rejilla, fila++, id);
  rejilla.setColumnStretch(1, 1);
}

QWidget* PaginasCaptura::CreaFormulario(std::initializer_list<Ed> campos) {
  auto* formulario = new QWidget;
  auto* rejilla = new QGridLayout(formulario);
  PonFilas(*rejilla, campos);
  rejilla->setRowStretch(static_cast<int>(campos.size()), 1);
  return formulario;
}

// Pressures as a table: MDP first, since the design pressures follow from them.
QWidget* PaginasCaptura::CreaPresiones(Ed mdp1, Ed dp1, Ed mdp2, Ed dp2, Ed incremento) {
  auto* grupo = CreaGrupo(txt::GrPresion);
  auto* rejilla = new QGridLayout(grupo);
  const auto cabecera = [&](Ed campo, int columna) {
    auto* rotulo = new QLabel;
    rotulo->setWordWrap(true);
    rotulo->setAlignment(Qt::AlignHCenter | Qt::AlignBottom);
    rejilla->addWidget(rotulo, 0, columna);
    cabeceras_.push_back({rotulo, campo});
  };
  cabecera(mdp1, 1);
  cabecera(dp1, 2);
  const auto fila = [&](int n, Ed izquierda, Ed derecha) {
    rejilla->addWidget(&campo(izquierda).etiqueta(), n, 0);
    rejilla->addWidget(&Coloca(izquierda), n, 1, Qt::AlignHCenter);
    if (derecha == izquierda) return;
    campo(derecha).etiqueta().hide();
    rejilla->addWidget(&Coloca(derecha), n, 2, Qt::AlignHCenter);
  };
  fila(1, mdp1, dp1);
  fila(2, mdp2, dp2);
  fila(3, incremento, incremento);
  rejilla->setColumnStretch(1, 1);
  rejilla->setColumnStretch(2, 1);
  return grupo;
}

Figura* PaginasCaptura::CreaFigura(int minimo) {
  auto* figura = new Figura;
  figura->setMinimumWidth(minimo);
  rotulados_.push_back(
      {[figura](const QString& t) { figura->setAccessibleName(t); }, txt::GrFigura});
  rotulados_.push_back({[figura](const QString& t) { figura->setToolTip(t); }, txt::VerEnGrande});
  connect(figura, &Figura::dobleClic, this,
          [this, figura] { emit figuraPedida(figura->ruta(), figura->accessibleName()); });
  return figura;
}

// ---------------------------------------------------------------------------------------------
// Page of the Obra

QWidget* PaginasCaptura::CreaPaginaObra() {
  auto* pagina = new QWidget;
  auto* todo = new QVBoxLayout(pagina);
  auto* columnas = new QHBoxLayout;
  todo->addLayout(columnas);
  todo->addStretch(1);
  auto* izquierda = new QVBoxLayout;
  auto* datos = CreaGrupo(0);
  auto* rejilla = new QGridLayout(datos);
  PonFilas(*rejilla, {Ed::edObra, Ed::edCliente, Ed::edIdioma});
  izquierda->addWidget(datos);
  auto* opciones = new QHBoxLayout;
  for (const Ed id : {Ed::rdSistemaUnidades, Ed::rdGolpeAriete}) {
    campo(id).etiqueta().hide();
    opciones->addWidget(&Coloca(id));
  }
  izquierda->addLayout(opciones);
  izquierda->addStretch(1);
  auto* derecha = new QVBoxLayout;
  derecha->addWidget(CreaPresiones(Ed::edPrsM1, Ed::edPrs1, Ed::edPrsM2, Ed::edPrs2, Ed::edPrs3));
  auto* alturas = new QGroupBox;
  auto* filas = new QGridLayout(alturas);
  PonFilas(*filas, {Ed::edAlt1, Ed::edAlt2, Ed::edAlt3});
  alturas_ = alturas;
  derecha->addWidget(alturas);
  derecha->addStretch(1);
  columnas->addLayout(izquierda, 3);
  columnas->addLayout(derecha, 2);
  return EnPagina(pagina);
}

// ---------------------------------------------------------------------------------------------
// Page of the typology

QWidget* PaginasCaptura::CreaPaginaArmado() {
  auto* pagina = new QWidget;
  auto* filas = new QVBoxLayout(pagina);
  auto* limite = CreaGrupo(txt::RotIcontes0);
  auto* rejilla = new QGridLayout(limite);
  PonFilas(*rejilla, {Ed::edIcontes0, Ed::edAdato, Ed::edEnvolvente});
  filas->addWidget(limite);
  filas->addWidget(CreaFormulario({Ed::edTipoControl, Ed::edTipoCamisa, Ed::edCamMax, Ed::edFck,
                                   Ed::edFct, Ed::edFyk, Ed::edFyd, Ed::edGamaB}));
  filas->addStretch(1);
  return EnPagina(pagina);
}

QWidget* PaginasCaptura::CreaPaginaPostesado() {
  auto* pagina = new QWidget;
  auto* filas = new QVBoxLayout(pagina);
  campo(Ed::rdTipoCamisa).etiqueta().hide();
  filas->addWidget(&Coloca(Ed::rdTipoCamisa));
  auto* prueba = CreaGrupo(txt::RotIcontes1);
  auto* rejilla = new QGridLayout(prueba);
  PonFilas(*rejilla, {Ed::edIcontes1, Ed::edCoepre1});
  filas->addWidget(prueba);
  filas->addWidget(CreaFormulario({Ed::edDelca}));
  TabPostesados_ = new Pestanas;
  TabPostesados_->setObjectName(QStringLiteral("TabPostesados"));
  TabPostesados_->Anade(CreaFormulario({Ed::edEs, Ed::edEp}));
  TabPostesados_->Anade(CreaFormulario({Ed::edFYKPost, Ed::edFckno, Ed::edFckn, Ed::edFckr}));
  TabPostesados_->Anade(CreaFormulario({Ed::edSFck, Ed::edSf, Ed::edRel}));
  TabPostesados_->Anade(CreaFormulario({Ed::edFic, Ed::edFir, Ed::edEpsc, Ed::edEpsr}));
  int n = 0;
  for (const int texto :
       {txt::PagModulos, txt::PagResistencias, txt::PagTensiones, txt::PagCoeficientes}) {
    rotulados_.push_back({[this, n](const QString& t) { TabPostesados_->PonTexto(n, t); }, texto});
    ++n;
  }
  filas->addWidget(TabPostesados_, 1);
  return EnPagina(pagina);
}

QWidget* PaginasCaptura::CreaPaginaTramo() {
  auto* pagina = new QWidget;
  auto* columnas = new QHBoxLayout(pagina);
  auto* izquierda = new QVBoxLayout;
  auto* cabeza = new QGridLayout;
  PonFilas(*cabeza, {Ed::edTramo, Ed::edDescriTramo});
  izquierda->addLayout(cabeza);
  campo(Ed::rdTipologia).etiqueta().hide();
  izquierda->addWidget(&Coloca(Ed::rdTipologia));
  izquierda->addWidget(CreaPresiones(Ed::edPrsM1Tram, Ed::edPrs1Tram, Ed::edPrsM2Tram,
                                     Ed::edPrs2Tram, Ed::edPrs3Tram));
  ptPostesado_ = CreaFigura(kFiguraMedia);
  ptPostesado_->setObjectName(QStringLiteral("ptPostesado"));
  izquierda->addWidget(ptPostesado_, 1);
  TabTipologia_ = new Pestanas;
  TabTipologia_->setObjectName(QStringLiteral("TabTipologia"));
  TabTipologia_->Anade(CreaPaginaArmado());
  TabTipologia_->Anade(CreaPaginaPostesado());
  TabTipologia_->barra().hide();  // the typology is chosen, and its data follow
  columnas->addLayout(izquierda, 2);
  columnas->addWidget(TabTipologia_, 3);
  return EnPagina(pagina);
}

// ---------------------------------------------------------------------------------------------
// Page of the laying

QWidget* PaginasCaptura::CreaPaginaTubo() {
  auto* pagina = new QWidget;
  auto* columnas = new QHBoxLayout(pagina);
  columnas->addWidget(CreaFormulario({Ed::edDi0, Ed::edEsp0, Ed::edDe0, Ed::edReci0, Ed::edRece0,
                                      Ed::edGc0, Ed::edTipoCuna0}),
                      1);
  ptPostesado2_ = CreaFigura(kFiguraMedia / 2);
  columnas->addWidget(ptPostesado2_, 1);
  return EnPagina(pagina);
}

QWidget* PaginasCaptura::CreaPaginaRelleno() {
  auto* pagina = new QWidget;
  auto* filas = new QVBoxLayout(pagina);
  auto* alturas = CreaGrupo(txt::EtAlturas);
  auto* fila = new QHBoxLayout(alturas);
  for (const Ed id : {Ed::edHr0, Ed::edHr0Final, Ed::edHr0Delta}) {
    fila->addWidget(&campo(id).etiqueta());
    fila->addWidget(&Coloca(id));
  }
  fila->addStretch(1);
  filas->addWidget(alturas);
  filas->addWidget(CreaFormulario({Ed::edTipoApoyo0, Ed::edB0, Ed::edGr0, Ed::edFi0,
                                   Ed::edTipoRelleno0, Ed::edHr1, Ed::edIAs}));
  filas->addStretch(1);
  return EnPagina(pagina);
}

QWidget* PaginasCaptura::CreaPaginaCargas() {
  auto* pagina = new QWidget;
  auto* filas = new QVBoxLayout(pagina);
  filas->addWidget(CreaFormulario({Ed::edQDato0, Ed::edICar0}));
  filas->addStretch(1);
  return EnPagina(pagina);
}

QWidget* PaginasCaptura::CreaPaginaColocacion() {
  auto* pagina = new QWidget;
  auto* columnas = new QHBoxLayout(pagina);
  auto* izquierda = new QVBoxLayout;
  auto* cabeza = new QGridLayout;
  PonFilas(*cabeza, {Ed::edObra2, Ed::edTramo2, Ed::edDescriTramo2});
  izquierda->addLayout(cabeza);
  campo(Ed::rdTipoColocacion).etiqueta().hide();
  izquierda->addWidget(&Coloca(Ed::rdTipoColocacion));
  TabDatosColocacion_ = new Pestanas;
  TabDatosColocacion_->setObjectName(QStringLiteral("TabDatosColocacion"));
  TabDatosColocacion_->Anade(CreaPaginaTubo());
  TabDatosColocacion_->Anade(CreaPaginaRelleno());
  TabDatosColocacion_->Anade(CreaPaginaCargas());
  int n = 0;
  for (const int texto : {txt::PagDimensiones, txt::PagRelleno, txt::PagCargas}) {
    rotulados_.push_back(
        {[this, n](const QString& t) { TabDatosColocacion_->PonTexto(n, t); }, texto});
    ++n;
  }
  izquierda->addWidget(TabDatosColocacion_, 1);
  ptColocacion_ = CreaFigura(kFiguraGrande);
  ptColocacion_->setObjectName(QStringLiteral("ptColocacion"));
  columnas->addLayout(izquierda, 3);
  columnas->addWidget(ptColocacion_, 2);
  return EnPagina(pagina);
}

}  // namespace zorbin
