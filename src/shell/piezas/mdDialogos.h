// Message boxes in the words of the catalogue.
#pragma once

#include <QString>
#include <exception>

#include "base/mdCatalogo.h"

class QWidget;

namespace zorbin {

/// Title of a box without a title of its own.
inline constexpr char kTituloAplicacion[] = "ZORBIN";

/// A message with one button. An empty title is that of the application.
void Avisa(QWidget* padre, const Catalogo& textos, const QString& texto,
           const QString& titulo = {});

/// A question with Yes and No; Escape answers No, and so does Enter. @return whether the answer was
/// Yes
bool Pregunta(QWidget* padre, const Catalogo& textos, const QString& texto,
              const QString& titulo = {});

/// What to do with unsaved changes: Save, the default, Discard and Cancel, which Escape answers.
/// @return 0, 1 or 2
int PreguntaGrabar(QWidget* padre, const Catalogo& textos, const QString& texto);

/// What is said of a failure that nobody foresaw.
/// @param error  null for one without words
QString TextoInesperado(const Catalogo& textos, const std::exception* error);

}  // namespace zorbin
