#include "shell/ayuda/mdGuia.h"

#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QTabBar>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <algorithm>
#include <array>
#include <map>

#include "base/textos.h"
#include "shell/piezas/mdQt.h"

namespace zorbin {

namespace {

constexpr int kAncla = Qt::UserRole;
constexpr int kPlegado = Qt::UserRole + 1;

// From the field the arrows go down into its list.
class BajaALaLista : public QObject {
 public:
  BajaALaLista(QLineEdit& campo, QListWidget& lista) : QObject(&campo), lista_(lista) {
    campo.installEventFilter(this);
  }

  bool eventFilter(QObject*, QEvent* suceso) override {
    if (suceso->type() != QEvent::KeyPress) return false;
    if (static_cast<QKeyEvent*>(suceso)->key() != Qt::Key_Down) return false;
    lista_.setFocus(Qt::TabFocusReason);
    return true;
  }

 private:
  QListWidget& lista_;
};

QWidget* Pagina(std::initializer_list<QWidget*> piezas) {
  auto* pagina = new QWidget;
  auto* filas = new QVBoxLayout(pagina);
  for (auto* pieza : piezas) filas->addWidget(pieza);
  return pagina;
}

QListWidgetItem* PrimeroVisible(const QListWidget& lista) {
  for (int i = 0; i < lista.count(); ++i) {
    if (!lista.item(i)->isHidden()) return lista.item(i);
  }
  return nullptr;
}

// The section that an anchor opens; past the end for an anchor within one.
std::size_t ApartadoDe(const Manual& manual, const QString& ancla) {
  const auto& todos = manual.apartados;
  const auto a = std::find_if(todos.begin(), todos.end(),
                              [&](const ApartadoManual& uno) { return uno.ancla == ancla; });
  return static_cast<std::size_t>(a - todos.begin());
}

bool TieneTodas(const QString& texto, const QStringList& palabras) {
  return std::all_of(palabras.begin(), palabras.end(),
                     [&](const QString& palabra) { return BuscaPalabra(texto, palabra) >= 0; });
}

}  // namespace

GuiaAyuda::GuiaAyuda(const Catalogo& textos, QWidget* padre) : QTabWidget(padre), textos_(textos) {
  setDocumentMode(true);
  tabBar()->setDrawBase(false);
  for (auto* pagina : {PaginaContenido(), PaginaIndice(), PaginaBusqueda()}) addTab(pagina, {});
  RenuevaTextos();
}

QWidget* GuiaAyuda::PaginaContenido() {
  arbol_ = new QTreeWidget;
  arbol_->setObjectName("contenido");
  arbol_->setHeaderHidden(true);
  arbol_->setTextElideMode(Qt::ElideRight);
  const auto elige = [this](QTreeWidgetItem* rama) {
    emit eligeAncla(rama->data(0, kAncla).toString());
  };
  connect(arbol_, &QTreeWidget::itemClicked, this, elige);
  connect(arbol_, &QTreeWidget::itemActivated, this, elige);
  return Pagina({arbol_});
}

QWidget* GuiaAyuda::PaginaIndice() {
  filtro_ = new QLineEdit;
  filtro_->setObjectName("filtro");
  filtro_->setClearButtonEnabled(true);
  indice_ = new QListWidget;
  indice_->setObjectName("indice");
  indice_->setUniformItemSizes(true);
  new BajaALaLista(*filtro_, *indice_);
  const auto elige = [this](const QListWidgetItem* entrada) {
    if (entrada != nullptr) emit eligeAncla(entrada->data(kAncla).toString());
  };
  connect(filtro_, &QLineEdit::textChanged, this, [this] { Filtra(); });
  connect(filtro_, &QLineEdit::returnPressed, this,
          [this, elige] { elige(PrimeroVisible(*indice_)); });
  connect(indice_, &QListWidget::itemClicked, this, elige);
  connect(indice_, &QListWidget::itemActivated, this, elige);
  return Pagina({filtro_, indice_});
}

QWidget* GuiaAyuda::PaginaBusqueda() {
  palabras_ = new QLineEdit;
  palabras_->setObjectName("palabras");
  palabras_->setClearButtonEnabled(true);
  lista_ = new QListWidget;
  lista_->setObjectName("hallazgos");
  lista_->setUniformItemSizes(true);
  cuenta_ = new QLabel;
  cuenta_->setWordWrap(true);
  new BajaALaLista(*palabras_, *lista_);
  connect(palabras_, &QLineEdit::textChanged, this, &GuiaAyuda::busca);
  connect(palabras_, &QLineEdit::returnPressed, this, [this] { Elige(lista_->item(0)); });
  connect(lista_, &QListWidget::itemClicked, this, &GuiaAyuda::Elige);
  connect(lista_, &QListWidget::itemActivated, this, &GuiaAyuda::Elige);
  return Pagina({palabras_, lista_, cuenta_});
}

void GuiaAyuda::RenuevaTextos() {
  const auto rotulo = [this](int n) { return Rotulo(textos_.Texto(n)); };
  const std::array<int, 3> titulos{txt::MenuContenido, txt::PestanaIndice, txt::PestanaBuscar};
  for (int i = 0; i < count(); ++i) setTabText(i, rotulo(titulos[static_cast<std::size_t>(i)]));
  arbol_->setAccessibleName(rotulo(txt::MenuContenido));
  for (auto* w : {static_cast<QWidget*>(filtro_), static_cast<QWidget*>(indice_)}) {
    w->setAccessibleName(rotulo(txt::PestanaIndice));
  }
  for (auto* w : {static_cast<QWidget*>(palabras_), static_cast<QWidget*>(lista_)}) {
    w->setAccessibleName(rotulo(txt::PestanaBuscar));
  }
  filtro_->setPlaceholderText(rotulo(txt::PalabraDelIndice));
  palabras_->setPlaceholderText(rotulo(txt::PalabrasQueBusca));
  ActualizaCuenta();
}

void GuiaAyuda::PonManual(const Manual& manual) {
  PonContenido(manual);
  PonIndice(manual);
  PonHallazgos(manual, {});
}

void GuiaAyuda::PonContenido(const Manual& manual) {
  arbol_->clear();
  ramas_.clear();
  std::array<QTreeWidgetItem*, 4> ultima{};  // by level; 0 is the root
  for (const auto& apartado : manual.apartados) {
    const auto nivel = static_cast<std::size_t>(apartado.nivel);
    QTreeWidgetItem* padre = nullptr;
    for (std::size_t n = 0; n < nivel; ++n) padre = ultima[n] != nullptr ? ultima[n] : padre;
    auto* rama = padre != nullptr ? new QTreeWidgetItem(padre) : new QTreeWidgetItem(arbol_);
    rama->setText(0, apartado.titulo);
    rama->setToolTip(0, apartado.titulo);
    rama->setData(0, kAncla, apartado.ancla);
    std::fill(ultima.begin() + apartado.nivel, ultima.end(), nullptr);
    ultima[nivel] = rama;
    ramas_.push_back(rama);
  }
}

// A word that leads to several places says to which.
void GuiaAyuda::PonIndice(const Manual& manual) {
  std::map<QString, int> veces;
  for (const auto& e : manual.indice) ++veces[Pliega(e.texto)];
  indice_->clear();
  for (const auto& e : manual.indice) {
    const auto apartado = ApartadoDe(manual, e.ancla);
    auto* entrada = new QListWidgetItem(e.texto, indice_);
    if (apartado < manual.apartados.size()) {
      entrada->setToolTip(e.texto + '\n' + CaminoDe(manual, apartado));
      const QString& titulo = manual.apartados[apartado].titulo;
      const bool dice = veces[Pliega(e.texto)] > 1;
      if (dice) entrada->setText(QStringLiteral("%1 – %2").arg(e.texto, titulo));
    }
    entrada->setData(kAncla, e.ancla);
    entrada->setData(kPlegado, Pliega(e.texto));
  }
  Filtra();
}

void GuiaAyuda::Filtra() {
  const auto filtro = Pliega(filtro_->text()).simplified().split(' ', Qt::SkipEmptyParts);
  for (int i = 0; i < indice_->count(); ++i) {
    auto* entrada = indice_->item(i);
    entrada->setHidden(!TieneTodas(entrada->data(kPlegado).toString(), filtro));
  }
  indice_->setCurrentItem(filtro.isEmpty() ? nullptr : PrimeroVisible(*indice_));
}

void GuiaAyuda::PonHallazgos(const Manual& manual, std::vector<TextoManual::Hallazgo> hallazgos) {
  hallazgos_ = std::move(hallazgos);
  lista_->clear();
  for (const auto& h : hallazgos_) {
    auto* entrada = new QListWidgetItem(manual.apartados[h.apartado].titulo, lista_);
    entrada->setToolTip(CaminoDe(manual, h.apartado));
  }
  ActualizaCuenta();
}

void GuiaAyuda::ActualizaCuenta() {
  const auto cuantos = std::to_string(hallazgos_.size());
  cuenta_->setText(Q(hallazgos_.empty() ? textos_.Texto(txt::SinHallazgos)
                                        : textos_.Compone(txt::CuentaHallazgos, {cuantos})));
  cuenta_->setVisible(!Buscado().isEmpty());
}

void GuiaAyuda::Elige(const QListWidgetItem* entrada) {
  const int fila = entrada == nullptr ? -1 : lista_->row(entrada);
  if (fila < 0) return;
  lista_->setCurrentRow(fila);
  emit eligeHallazgo(hallazgos_[static_cast<std::size_t>(fila)]);
}

QString GuiaAyuda::Buscado() const {
  return palabras_->text().simplified();
}

void GuiaAyuda::Marca(std::size_t apartado) {
  if (apartado >= ramas_.size()) return;
  arbol_->setCurrentItem(ramas_[apartado]);
  arbol_->scrollToItem(ramas_[apartado]);
}

void GuiaAyuda::MuestraContenido() {
  setCurrentIndex(0);
  arbol_->setFocus(Qt::OtherFocusReason);
}

void GuiaAyuda::MuestraIndice() {
  setCurrentIndex(1);
  filtro_->setFocus(Qt::OtherFocusReason);
  filtro_->selectAll();
}

void GuiaAyuda::MuestraBusqueda() {
  setCurrentIndex(2);
  palabras_->setFocus(Qt::OtherFocusReason);
  palabras_->selectAll();
}

}  // namespace zorbin
