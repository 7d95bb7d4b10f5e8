// The fabrication sheet of the Tramo in hand, and out to a file.
#pragma once

#include <QDialog>
#include <memory>
#include <optional>

#include "core/mediciones.h"
#include "sesion/captura/mdCaptura.h"
#include "sesion/resultados/mdDiseno.h"
#include "shell/piezas/mdEntorno.h"

namespace zorbin {

class VistaLamina;

class frHojaFabricacion : public QDialog {
  Q_OBJECT

 public:
  frHojaFabricacion(const Entorno& entorno, std::shared_ptr<const CasoConTramo> caso,
                    const Fabricacion& fabricacion, bool si, QWidget* padre);

  VistaLamina& vista() { return *vista_; }

 private:
  VistaLamina* vista_;
};

/// Designs the Tramo in hand and shows the sheet of a Caso, or tells why there is none.
/// @param caso  none for the worst
void MuestraHojaFabricacion(const Captura& c, const Entorno& entorno,
                            const std::optional<SitioCaso>& caso, QWidget* padre);

}  // namespace zorbin
