// Documents and texts in files that a person names. What goes wrong is shown, and no half-written
// file is left.
#pragma once

#include <QString>
#include <functional>
#include <string>

#include "base/mdCatalogo.h"
#include "shell/piezas/mdFaena.h"
#include "shell/piezas/mdImpresion.h"
#include "shell/piezas/mdPreferencias.h"

namespace zorbin {

class FicheroSalida;

/// A kind of file, for the dialog that asks its name.
struct ClaseFichero {
  int titulo = 0;  // entries of the catalogue
  int filtro = 0;
  QString extension;  // without its point; a name always ends in it
};

/// Asks for the name of a file to write, in the folder of the last one; a file that exists is
/// replaced only if the person says so. @return empty when the person gave up
QString PideNombreFichero(QWidget* padre, const Catalogo& textos, Preferencias& preferencias,
                          const ClaseFichero& clase, const QString& propuesto);

/// Asks for a name and writes the document as a PDF. @return whether it was written
bool GuardaPdf(QWidget* padre, const Catalogo& textos, Preferencias& preferencias,
               const QString& nombre, const Documento& documento);

/// Writes a text piece by piece, on the thread of the work.
using EscribeTexto = std::function<void(MarchaFaena&, FicheroSalida&)>;

/// Asks for a name and writes the text, in UTF-8. @return whether it was written
bool GuardaTexto(QWidget* padre, const Catalogo& textos, Preferencias& preferencias,
                 const QString& nombre, const EscribeTexto& escribe);

/// Does something and shows what goes wrong. `donde` names the file or the printer in a refusal.
/// @return whether it went well; false too when the person gave up
bool DiFallos(QWidget* padre, const Catalogo& textos, const QString& donde,
              const std::function<void()>& accion);

/// What a document is made on, and handed over to, on the thread of the work.
using TrabajoDocumento = std::function<void(MarchaFaena&)>;

/// Does it off the thread of the window, with a box to give up, and shows what goes wrong.
/// @return as DiFallos
bool HazDocumento(QWidget* padre, const Catalogo& textos, const QString& donde,
                  const TrabajoDocumento& trabajo);

/// Writes a document on its destination, page by page, telling how many there are.
/// @return whether there is any; a document without pages is one that the person is told about
/// @throws DocumentoCancelado, and whatever the document and its destination throw
bool EscribeHojas(const Documento& documento, DestinoHojas& destino, MarchaFaena& marcha,
                  const Catalogo& textos);

/// There was nothing to print.
void AvisaVacio(QWidget* padre, const Catalogo& textos);

}  // namespace zorbin
