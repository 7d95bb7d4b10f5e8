#include "shell/resultados/frHojaFabricacion.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

#include "base/textos.h"
#include "listados/dibujos/mdHojaFabricacion.h"
#include "persistencia/zrx/mdFabricacionZrx.h"
#include "shell/dibujos/mdVistaLamina.h"
#include "shell/piezas/mdDialogos.h"
#include "shell/piezas/mdFaena.h"
#include "shell/piezas/mdQt.h"

namespace zorbin {

frHojaFabricacion::frHojaFabricacion(const Entorno& entorno,
                                     std::shared_ptr<const CasoConTramo> caso,
                                     const Fabricacion& fabricacion, bool si, QWidget* padre)
    : QDialog(padre), vista_(new VistaLamina(entorno, {640, 450}, this)) {
  const auto& textos = entorno.textos;
  const PalabrasDibujo w(textos, {si, entorno.SeparadorDecimal});
  setObjectName(QStringLiteral("frHojaFabricacion"));
  setWindowTitle(Q(w.T(txt::HojaTitulo)));
  vista_->PonNombre(Q(w.T(txt::HojaTitulo) + " - " + w.TramoEnLetra(caso->tramo.datos.tramo)));
  vista_->PonEntera();
  vista_->Pon([caso, fabricacion, w](const HojaDibujo&) {
    return LaminaConEjes{DibujaHojaFabricacion(caso->Dibujado(), fabricacion, w), {}};
  });
  auto* botones = new QHBoxLayout;
  for (const auto* extension : {"pdf", "svg", "dxf"}) {
    const QString e = QString::fromLatin1(extension);
    auto* boton = new QPushButton(Q(textos.Compone(txt::ResGuardarDibujo, {S(e.toUpper())})), this);
    boton->setAutoDefault(false);
    connect(boton, &QPushButton::clicked, this, [this, e] { vista_->Guarda(e); });
    botones->addWidget(boton);
  }
  botones->addStretch();
  auto* filas = new QVBoxLayout(this);
  filas->addWidget(vista_, 1);
  filas->addLayout(botones);
  resize(1120, 850);
}

void MuestraHojaFabricacion(const Captura& c, const Entorno& entorno,
                            const std::optional<SitioCaso>& caso, QWidget* padre) {
  if (!c.ObraCargada) return;
  const Version version = VersionActual(c);
  const auto* tramo = Busca(version, c.enMano);
  if (tramo == nullptr) return;
  const auto textos = std::make_shared<const Catalogo>(entorno.textos);
  std::optional<Diseno> diseno;
  HazFaena(padre, entorno.textos, txt::CalculoEnCurso, [&](MarchaFaena& marcha) {
    const PedidoDiseno pedido{
        version, c.enMano, textos, &entorno.tablas, entorno.SeparadorDecimal, !c.sinAjustes.empty(),
        caso};
    diseno = CalculaDiseno(pedido, [&marcha] { return marcha.Sigue(); });
  });
  if (!diseno) return;
  if (diseno->caso == nullptr) {
    return Avisa(padre, entorno.textos,
                 Q(entorno.textos.Compone(txt::ResSinDiseno, {diseno->motivo})));
  }
  frHojaFabricacion(entorno, diseno->caso, FabricacionDe(tramo->extras), diseno->si, padre).exec();
}

}  // namespace zorbin
