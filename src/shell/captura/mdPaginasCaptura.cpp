#include "shell/captura/mdPaginasCaptura.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QScrollArea>
#include <QVBoxLayout>
#include <algorithm>

#include "base/textos.h"
#include "calculo/corrida/mdCalculaTramo.h"
#include "listados/dibujos/mdDibujoTubo.h"
#include "listados/dibujos/mdDibujoZanja.h"
#include "sesion/captura/mdEtiquetas.h"
#include "shell/captura/mdDibujoDatos.h"
#include "shell/piezas/mdQt.h"
#include "shell/piezas/mdTarjetas.h"

namespace zorbin {

namespace {

constexpr int kAltoDibujo = 360;  // [px]

// Of the columns of a form, in digits.
constexpr int kColumnasRotulo = 17;
constexpr int kColumnasNota = 7;
constexpr int kPartesRotulo = 3;  // of the room left, before the note
constexpr int kPartesNota = 2;
constexpr int kFilasDeCampo = 3;  // of the grid, of which a field may use fewer

// A page scrolls where the screen is too small for it.
QWidget* EnPagina(QWidget* contenido) {
  auto* pagina = new QScrollArea;
  pagina->setWidgetResizable(true);
  pagina->setFrameShape(QFrame::NoFrame);
  pagina->setFocusPolicy(Qt::NoFocus);
  pagina->setWidget(contenido);
  return pagina;
}

// The greatest of the fills: what has room for it has room for the others.
double MayorAltura(const Obra& obra, const Tramo& tramo) {
  const auto alturas = AlturasDe(obra, tramo);
  return std::max(alturas.Hr0, alturas.Hr0Final);
}

void PonColumnas(QGridLayout& rejilla, const QWidget& dueno) {
  const int digito = dueno.fontMetrics().horizontalAdvance(QLatin1Char('0'));
  rejilla.setColumnMinimumWidth(0, kColumnasRotulo * digito);
  rejilla.setColumnStretch(0, kPartesRotulo);
  rejilla.setColumnMinimumWidth(2, kColumnasNota * digito);
  rejilla.setColumnStretch(2, kPartesNota);
  rejilla.setVerticalSpacing(8);
}

// A number has its unit at its side; what else there is takes the room of both.
bool EsEstrecho(Ed id) {
  return Fila(id).clase == Clase::Numero;
}

}  // namespace

PaginasCaptura::PaginasCaptura(const Campos& campos, const Entorno& entorno, QObject* padre)
    : QObject(padre), campos_(campos), entorno_(entorno) {
  obra_ = CreaPaginaObra();
  tramo_ = CreaPaginaTramo();
  colocacion_ = CreaPaginaColocacion();
}

void PaginasCaptura::RenuevaTextos(const Captura& c) {
  for (const auto& rotulado : rotulados_) rotulado.pon(Q(c.textos.Texto(rotulado.texto)));
}

void PaginasCaptura::Refresca(const Captura& c) {
  const auto& p = c.pantalla;
  for (const auto& cabecera : cabeceras_) {
    cabecera.rotulo->setText(Q(SinUnidad(c[cabecera.campo].grupo)));
  }
  alturas_->PonTitulo(Q(SinUnidad(c[Ed::edAlt1].grupo)));
  const bool postesado = p.pagina.TabTipologia == 1;
  for (auto* tarjeta : armado_) tarjeta->setVisible(!postesado);
  for (auto* tarjeta : postesado_) tarjeta->setVisible(postesado);
  Dibuja(c);
}

// From the data as they are, with nothing calculated: at once, and even where no run is possible.
void PaginasCaptura::Dibuja(const Captura& c) {
  auto datos = DatosDeCalculo(c.e.obra, c.e.tramo, {}, true);
  // What stands in a refused field makes no pipe, though the value before it is still kept.
  const auto rechazado = [&c](Ed campo) { return !c[campo].falta.empty(); };
  if (rechazado(Ed::edDi0) || rechazado(Ed::edEsp0)) datos.tramo.Di = 0;
  if (rechazado(Ed::edB0)) datos.tramo.B0 = 0;
  Dibujado nuevo{std::move(datos.tramo), MayorAltura(c.e.obra, c.e.tramo), c.EsSI(),
                 c.SeparadorDecimal, c.textos.IdiomaOffset()};
  if (dibujado_ == nuevo) return;
  const PalabrasDibujo w(c.textos, {nuevo.si, nuevo.separador});
  ptPostesado_->PonDibujo([t = nuevo.tramo, w](const HojaDibujo& hoja) {
    return LaminaConEjes{DibujaTubo(t, w, hoja), {}};
  });
  ptColocacion_->PonDibujo([t = nuevo.tramo, Hr = nuevo.Hr, w](const HojaDibujo& hoja) {
    return LaminaConEjes{DibujaColocacion(t, Hr, w, hoja), {}};
  });
  dibujado_ = std::move(nuevo);
}

// The keyboard goes as the fields are placed.
QWidget& PaginasCaptura::Coloca(Ed id) {
  orden_.push_back(id);
  return campo(id).widget();
}

Tarjeta* PaginasCaptura::CreaTarjeta(int texto) {
  auto* tarjeta = new Tarjeta;
  if (texto != 0) {
    rotulados_.push_back({[tarjeta](const QString& t) {
                            const QString corto = Q(SinUnidad(S(t)));
                            tarjeta->PonTitulo(QString(corto).remove(QLatin1Char('&')));
                          },
                          texto});
  }
  return tarjeta;
}

// The note of what takes the whole width stands below it; so does a text below its label.
void PaginasCaptura::PonFila(QGridLayout& rejilla, int fila, Ed id) {
  auto& suyo = campo(id);
  if (Fila(id).clase == Clase::Marca || Fila(id).clase == Clase::Opcion) {
    suyo.etiqueta().hide();
    rejilla.addWidget(&Coloca(id), fila, 0, 1, 3);
    return;
  }
  if (Fila(id).clase == Clase::Texto) {
    rejilla.addWidget(&suyo.etiqueta(), fila, 0, 1, 3);
    rejilla.addWidget(&Coloca(id), fila + 1, 0, 1, 3);
    rejilla.addWidget(&suyo.nota(), fila + 2, 0, 1, 3);
    return;
  }
  rejilla.addWidget(&suyo.etiqueta(), fila, 0);
  if (EsEstrecho(id)) {
    rejilla.addWidget(&Coloca(id), fila, 1, Qt::AlignLeft | Qt::AlignVCenter);
    rejilla.addWidget(&suyo.nota(), fila, 2);
    return;
  }
  rejilla.addWidget(&Coloca(id), fila, 1, 1, 2);
  rejilla.addWidget(&suyo.nota(), fila + 1, 1, 1, 2);
}

Tarjeta* PaginasCaptura::CreaFicha(int texto, std::initializer_list<Ed> campos) {
  auto* tarjeta = CreaTarjeta(texto);
  auto* rejilla = new QGridLayout;
  int fila = 0;
  for (const Ed id : campos) {
    PonFila(*rejilla, fila, id);
    fila += kFilasDeCampo;
  }
  PonColumnas(*rejilla, *tarjeta);
  tarjeta->cuerpo().addLayout(rejilla);
  return tarjeta;
}

void PaginasCaptura::PonCabecera(QGridLayout& rejilla, int columna, Ed campo) {
  auto* rotulo = new QLabel;
  rotulo->setWordWrap(true);
  rotulo->setAlignment(Qt::AlignHCenter | Qt::AlignBottom);
  rejilla.addWidget(rotulo, 0, columna);
  cabeceras_.push_back({rotulo, campo});
}

// Pressures as a table: MDP first, since the design pressures follow from them.
Tarjeta* PaginasCaptura::CreaPresiones(Ed mdp1, Ed dp1, Ed mdp2, Ed dp2, Ed incremento) {
  auto* tarjeta = CreaTarjeta(txt::GrPresion);
  auto* rejilla = new QGridLayout;
  PonCabecera(*rejilla, 1, mdp1);
  PonCabecera(*rejilla, 2, dp1);
  const auto fila = [&](int n, Ed izquierda, Ed derecha) {
    auto* notas = new QVBoxLayout;
    rejilla->addLayout(notas, n, 3);
    rejilla->addWidget(&campo(izquierda).etiqueta(), n, 0);
    rejilla->addWidget(&Coloca(izquierda), n, 1, Qt::AlignHCenter);
    notas->addWidget(&campo(izquierda).nota());
    if (derecha == izquierda) return;
    campo(derecha).etiqueta().hide();
    campo(derecha).CallaUnidad();
    rejilla->addWidget(&Coloca(derecha), n, 2, Qt::AlignHCenter);
    notas->addWidget(&campo(derecha).nota());
  };
  fila(1, mdp1, dp1);
  fila(2, mdp2, dp2);
  fila(3, incremento, incremento);
  rejilla->setColumnStretch(0, 2);
  rejilla->setColumnStretch(3, 3);
  tarjeta->cuerpo().addLayout(rejilla);
  return tarjeta;
}

Tarjeta* PaginasCaptura::CreaDibujo(DibujoDatos*& dibujo, const char* nombre, int titulo) {
  auto* tarjeta = CreaTarjeta(titulo);
  dibujo = new DibujoDatos(entorno_);
  dibujo->setObjectName(QLatin1String(nombre));
  dibujo->setFixedHeight(kAltoDibujo);
  auto* suyo = dibujo;
  suyo->PonCuenta(
      [this](const LaminaConEjes&, Xy) { return Q(entorno_.textos.Texto(txt::VerEnGrande)); });
  rotulados_.push_back({[suyo](const QString& t) { suyo->setAccessibleName(t); }, titulo});
  connect(suyo, &DibujoDatos::dobleClic, this, [this, suyo] {
    (new frDibujo(entorno_, *suyo, suyo->accessibleName(), suyo->window()))->show();
  });
  tarjeta->cuerpo().addWidget(suyo);
  return tarjeta;
}

// ---------------------------------------------------------------------------------------------
// Page of the Obra

QWidget* PaginasCaptura::CreaPaginaObra() {
  auto* pagina = new QWidget;
  auto* tarjetas = new LayoutTarjetas(pagina);
  tarjetas->addWidget(CreaFicha(txt::TarjetaObra, {Ed::edObra, Ed::edCliente, Ed::edIdioma}));
  tarjetas->addWidget(CreaPresiones(Ed::edPrsM1, Ed::edPrs1, Ed::edPrsM2, Ed::edPrs2, Ed::edPrs3));
  tarjetas->addWidget(CreaFicha(0, {Ed::rdSistemaUnidades, Ed::rdGolpeAriete}));
  alturas_ = CreaFicha(0, {Ed::edAlt1, Ed::edAlt2, Ed::edAlt3});
  tarjetas->addWidget(alturas_);
  return EnPagina(pagina);
}

// ---------------------------------------------------------------------------------------------
// Page of the Tramo: its pipe

Tarjeta* PaginasCaptura::CreaCabezaTramo() {
  auto* tarjeta = CreaTarjeta(0);
  tarjeta->PonAncha();
  auto* fila = new QHBoxLayout;
  fila->addWidget(&campo(Ed::edTramo).etiqueta());
  fila->addWidget(&Coloca(Ed::edTramo));
  fila->addWidget(&campo(Ed::edTramo).nota());
  fila->addSpacing(12);
  fila->addWidget(&campo(Ed::edDescriTramo).etiqueta());
  fila->addWidget(&Coloca(Ed::edDescriTramo), 1);
  tarjeta->cuerpo().addLayout(fila);
  campo(Ed::rdTipologia).etiqueta().hide();
  tarjeta->cuerpo().addWidget(&Coloca(Ed::rdTipologia), 0, Qt::AlignLeft);
  return tarjeta;
}

void PaginasCaptura::CreaTarjetasArmado(LayoutTarjetas& tarjetas) {
  armado_ = {
      CreaFicha(txt::TarjetaMateriales, {Ed::edFck, Ed::edFct, Ed::edFyk, Ed::edFyd, Ed::edGamaB}),
      CreaFicha(txt::TarjetaArmadura, {Ed::edTipoControl, Ed::edTipoCamisa, Ed::edCamMax,
                                       Ed::edEnvolvente, Ed::edIcontes0, Ed::edAdato})};
  for (auto* tarjeta : armado_) tarjetas.addWidget(tarjeta);
}

void PaginasCaptura::CreaTarjetasPostesado(LayoutTarjetas& tarjetas) {
  postesado_ = {
      CreaFicha(txt::TarjetaCamisa, {Ed::rdTipoCamisa, Ed::edDelca, Ed::edIcontes1, Ed::edCoepre1}),
      CreaFicha(txt::PagResistencias, {Ed::edFYKPost, Ed::edFckno, Ed::edFckn, Ed::edFckr}),
      CreaFicha(txt::PagTensiones, {Ed::edSFck, Ed::edSf, Ed::edRel}),
      CreaFicha(txt::PagModulos, {Ed::edEs, Ed::edEp}),
      CreaFicha(txt::PagCoeficientes, {Ed::edFic, Ed::edFir, Ed::edEpsc, Ed::edEpsr})};
  for (auto* tarjeta : postesado_) tarjetas.addWidget(tarjeta);
}

QWidget* PaginasCaptura::CreaPaginaTramo() {
  auto* pagina = new QWidget;
  auto* tarjetas = new LayoutTarjetas(pagina);
  tarjetas->addWidget(CreaCabezaTramo());
  tarjetas->addWidget(CreaFicha(txt::PagDimensiones, {Ed::edDi0, Ed::edEsp0, Ed::edDe0, Ed::edReci0,
                                                      Ed::edRece0, Ed::edGc0, Ed::edTipoCuna0}));
  tarjetas->addWidget(CreaDibujo(ptPostesado_, "ptPostesado", txt::DibTituloSeccion));
  tarjetas->addWidget(CreaPresiones(Ed::edPrsM1Tram, Ed::edPrs1Tram, Ed::edPrsM2Tram,
                                    Ed::edPrs2Tram, Ed::edPrs3Tram));
  CreaTarjetasArmado(*tarjetas);
  CreaTarjetasPostesado(*tarjetas);
  return EnPagina(pagina);
}

// ---------------------------------------------------------------------------------------------
// Page of the laying

QWidget* PaginasCaptura::CreaPaginaColocacion() {
  auto* pagina = new QWidget;
  auto* tarjetas = new LayoutTarjetas(pagina);
  auto* cabeza = CreaTarjeta(0);
  cabeza->PonAncha();
  auto* fila = new QHBoxLayout;
  for (const Ed id : {Ed::edTramo2, Ed::edDescriTramo2, Ed::edObra2}) {
    fila->addWidget(&campo(id).etiqueta());
    fila->addWidget(&Coloca(id), id == Ed::edTramo2 ? 1 : 4);
  }
  cabeza->cuerpo().addLayout(fila);
  tarjetas->addWidget(cabeza);
  tarjetas->addWidget(CreaFicha(txt::TarjetaColocacion, {Ed::rdTipoColocacion}));
  tarjetas->addWidget(CreaDibujo(ptColocacion_, "ptColocacion", txt::DibTituloZanja));
  tarjetas->addWidget(CreaFicha(txt::EtAlturas, {Ed::edHr0, Ed::edHr0Final, Ed::edHr0Delta}));
  tarjetas->addWidget(CreaFicha(txt::PagRelleno, {Ed::edTipoApoyo0, Ed::edB0, Ed::edGr0, Ed::edFi0,
                                                  Ed::edTipoRelleno0, Ed::edHr1, Ed::edIAs}));
  tarjetas->addWidget(CreaFicha(txt::PagCargas, {Ed::edQDato0, Ed::edICar0}));
  return EnPagina(pagina);
}

}  // namespace zorbin
