// Drawings painted: on a screen, as a PDF page and as a picture.
#pragma once

#include <QPainter>
#include <filesystem>
#include <string>

#include "listados/dibujos/mdLamina.h"
#include "listados/dibujos/mdPaleta.h"

namespace zorbin {

/// Paints a sheet with its upper left corner at the origin of the painter. A window zooms and moves
/// by `porMm` and by the transformation of the painter; where it points, divided by `porMm`, is the
/// place that QueHayEn asks for.
/// @param porMm  units of the painter for a millimetre of the sheet
/// @param fondo  paints the paper first
void PintaLamina(QPainter& pintor, const Lamina& lamina, const Paleta& paleta, double porMm,
                 bool fondo = true);

/// A PDF of one page as large as the sheet, on which a millimetre is a millimetre.
/// @throws ErrorPintor when it cannot be written; no file is left then
void EscribeLaminaPdf(const std::filesystem::path& fichero, const Lamina& lamina,
                      const Paleta& paleta, const std::string& titulo);

/// The bytes of a PNG of the sheet.
/// @param puntosPorPulgada  1 to 1200
/// @throws ErrorPintor for a sheet too large for a picture
std::string LaminaPng(const Lamina& lamina, const Paleta& paleta, int puntosPorPulgada = 200);

}  // namespace zorbin
