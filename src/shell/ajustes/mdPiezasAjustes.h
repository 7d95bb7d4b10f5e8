// Labels and fields as the screen of adjustments has them.
#pragma once

#include <QString>

class QLabel;
class QLineEdit;
class QWidget;

namespace zorbin {

inline constexpr int kCifrasCaso = 8;  // of a height, a pressure or a cover

/// A label without rich text. Numbers stand at the right.
QLabel* Etiqueta(const QString& nombre, QWidget* padre, bool numero = false);
QLabel* EnVariasLineas(QLabel* etiqueta);
void EnNegrita(QLabel& etiqueta, bool negrita);

/// A field that cannot be typed in stays legible, and looks like the window.
void Abre(QLineEdit& campo, bool abierto);

/// A field that only shows a number, of a height or a pressure.
QLineEdit* Valor(const QString& nombre, QWidget* padre);

}  // namespace zorbin
