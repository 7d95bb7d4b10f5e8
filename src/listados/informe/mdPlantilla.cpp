#include "listados/informe/mdPlantilla.h"

#include "base/textos.h"
#include "listados/pintor/mdPintaLamina.h"

namespace zorbin {

QString Plantilla::NombreTramo(const TramoInforme& t) const {
  const auto descripcion = Q(t.completo.DescriTramo).simplified();
  const QString tramo = Con(txt::InfTramo, {t.numero});
  return descripcion.isEmpty() ? tramo : tramo + QStringLiteral(" · ") + descripcion;
}

memoria::DibujoFigura Plantilla::Figura(Lamina lamina) {
  memoria::DibujoFigura f;
  f.ancho = lamina.ancho * kPuntosPorMm;
  f.alto = lamina.alto * kPuntosPorMm;
  f.pinta = std::make_shared<const std::function<void(QPainter&)>>(
      [suya = std::make_shared<const Lamina>(std::move(lamina))](QPainter& pintor) {
        PintaLamina(pintor, *suya, Paleta(TemaDibujo::Papel), kPuntosPorMm, false);
      });
  return f;
}

QString AnclaTramo(std::size_t i) {
  return QStringLiteral("tramo%1").arg(i);
}

QString AnclaCaso(std::size_t tramo, std::size_t fila) {
  return QStringLiteral("caso%1.%2").arg(tramo).arg(fila);
}

}  // namespace zorbin
