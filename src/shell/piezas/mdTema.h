// The look of the program: a flat style, and its colours light or dark. Text stands out from what
// is behind it at least 4.5 to 1, disabled text too, and the borders of controls 3 to 1.
#pragma once

#include <QColor>
#include <QPalette>

namespace zorbin {

enum class Tema { Sistema = 0, Claro = 1, Oscuro = 2 };

QPalette PaletaDe(bool oscura);

/// Dresses the whole application. `Sistema` takes light or dark after the colours of the desktop.
void PonTema(Tema tema);

bool EsOscura(const QPalette& paleta);

/// Colours that say something, on the background of a palette.
QColor ColorFalta(const QPalette& paleta);
QColor ColorAviso(const QPalette& paleta);
QColor ColorBien(const QPalette& paleta);

/// Name of the property of a field that bears a refusal: its frame tells it.
inline constexpr char kPropiedadFalta[] = "falta";

}  // namespace zorbin
