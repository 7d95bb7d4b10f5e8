#include "shell/impresion/frImpresoras.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QShortcut>
#include <QVBoxLayout>
#include <cmath>

#include "base/mdNumeros.h"
#include "base/mdTextos.h"
#include "base/textos.h"
#include "shell/piezas/mdDialogos.h"
#include "shell/piezas/mdQt.h"

namespace zorbin {

namespace {

constexpr int kErrorDeImpresora = 482;
constexpr double kMasCopias = 32767;
constexpr int kNombre = Qt::UserRole;  // role of an entry of the list

}  // namespace

frImpresoras::frImpresoras(const Catalogo& textos, Preferencias& preferencias,
                           const Impresora& impresora, QWidget* padre)
    : QDialog(padre),
      textos_(textos),
      preferencias_(preferencias),
      impresora_(impresora),
      lista_(new QListWidget(this)),
      tbCopias_(new QLineEdit(this)) {
  setWindowTitle(Tx(txt::MenuImpresora));
  lista_->setObjectName(QStringLiteral("Impresoras"));
  tbCopias_->setObjectName(QStringLiteral("tbCopias"));
  tbCopias_->setMaxLength(9);
  tbCopias_->setFixedWidth(fontMetrics().averageCharWidth() * 14);

  auto* rotulo = new QLabel(Tx(txt::ImpresorasDelSistema), this);
  rotulo->setBuddy(lista_);
  auto* rotuloCopias = new QLabel(Tx(txt::NumeroDeCopias), this);
  rotuloCopias->setBuddy(tbCopias_);
  auto* acepta = new QPushButton(Tx(txt::BotonAceptar), this);
  acepta->setObjectName(QStringLiteral("btAceptar"));
  acepta->setDefault(true);
  auto* cancela = new QPushButton(Tx(txt::BotonCancelar), this);

  auto* copias = new QHBoxLayout;
  copias->addWidget(rotuloCopias);
  copias->addWidget(tbCopias_);
  copias->addStretch();
  auto* botones = new QHBoxLayout;
  botones->addStretch();
  botones->addWidget(acepta);
  botones->addWidget(cancela);
  auto* filas = new QVBoxLayout(this);
  filas->addWidget(rotulo);
  filas->addWidget(lista_);
  filas->addLayout(copias);
  filas->addSpacing(6);
  filas->addLayout(botones);

  connect(acepta, &QPushButton::clicked, this, &frImpresoras::accept);
  connect(cancela, &QPushButton::clicked, this, &QDialog::reject);
  connect(lista_, &QListWidget::currentRowChanged, this, [this] { CambiaEleccion(); });
  connect(lista_, &QListWidget::itemDoubleClicked, this, &frImpresoras::accept);
  auto* ayuda = new QShortcut(QKeySequence::HelpContents, this);
  connect(ayuda, &QShortcut::activated, this,
          [this] { impresora_.Ayuda(QStringLiteral("salidas")); });
  LlenaLista(impresora_.EnUso());
  resize(420, 300);
}

QString frImpresoras::Tx(int n) const {
  return Rotulo(textos_.Texto(n));
}

void frImpresoras::LlenaLista(const QString& elegida) {
  const auto& sistema = impresora_.DelSistema();
  const QString predeterminada = sistema.predeterminada();
  lista_->clear();
  const auto anade = [&](const QString& nombre, const QString& rotulo) {
    auto* entrada = new QListWidgetItem(rotulo, lista_);
    entrada->setData(kNombre, nombre);
    if (nombre == elegida) lista_->setCurrentItem(entrada);
  };
  for (const QString& nombre : sistema.nombres()) {
    anade(nombre,
          nombre == predeterminada ? Q(textos_.Compone(txt::Predeterminada, {S(nombre)})) : nombre);
  }
  anade(kImpresoraPdf, Tx(txt::FicheroPdf));
  if (lista_->currentItem() == nullptr) lista_->setCurrentRow(0);
}

QString frImpresoras::Elegida() const {
  const auto* entrada = lista_->currentItem();
  return entrada == nullptr ? kImpresoraPdf : entrada->data(kNombre).toString();
}

// A file has no copies.
void frImpresoras::CambiaEleccion() {
  const bool papel = Elegida() != kImpresoraPdf;
  if (papel == tbCopias_->isEnabled() && !tbCopias_->text().isEmpty()) return;
  tbCopias_->setEnabled(papel);
  tbCopias_->setText(QString::number(papel ? preferencias_.Copias() : 1));
}

bool frImpresoras::ValidarNumeroCopias(int& copias) {
  const auto rechaza = [this](int texto) {
    Avisa(this, textos_, Q(textos_.Texto(texto)), Tx(txt::TituloCopias));
    tbCopias_->setFocus();
    tbCopias_->selectAll();
    return false;
  };
  const std::string texto = S(tbCopias_->text());
  const auto valor = NumeroTexto(texto);
  if (Recorta(texto).empty() || !valor) return rechaza(txt::NoEsValorNumerico);
  if (*valor != std::floor(*valor) || *valor > kMasCopias) return rechaza(txt::CopiasNoEntero);
  if (*valor < 1) return rechaza(txt::CopiasMenosDeUna);
  copias = static_cast<int>(*valor);
  return copias == 1 || Pregunta(this, textos_,
                                 Q(textos_.Texto(txt::QuiereImprimir) + std::to_string(copias) +
                                   textos_.Texto(txt::QuiereCopias)),
                                 Tx(txt::TituloAviso));
}

bool frImpresoras::Establecer(const QString& nombre, int copias) {
  if (nombre != kImpresoraPdf && !impresora_.DelSistema().nombres().contains(nombre)) {
    const std::string causa = textos_.Compone(txt::ImpresoraQueNoEsta, {S(nombre)});
    Avisa(this, textos_,
          Q(textos_.Texto(txt::ErrorImpresora) + std::to_string(kErrorDeImpresora) + "\n" +
            textos_.Texto(txt::DescripcionError) + causa));
    LlenaLista(impresora_.EnUso());
    return false;
  }
  preferencias_.PonImpresora(nombre);
  preferencias_.PonCopias(copias);
  return true;
}

void frImpresoras::accept() {
  int copias = 0;
  if (!ValidarNumeroCopias(copias)) return;
  const QString nombre = Elegida();
  if (!Establecer(nombre, copias)) return;
  const std::string rotulo = nombre == kImpresoraPdf ? S(Tx(txt::FicheroPdf)) : S(nombre);
  Avisa(this, textos_,
        Q(copias == 1 ? textos_.Texto(txt::SeUsaraImpresora) + rotulo
                      : textos_.Texto(txt::SeImprimiran) + std::to_string(copias) +
                            textos_.Texto(txt::PorLaImpresora) + rotulo));
  QDialog::accept();
}

}  // namespace zorbin
