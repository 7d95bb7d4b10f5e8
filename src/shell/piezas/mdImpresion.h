// Paper for the screens: what a screen needs of the printer chosen, whatever it is.
#pragma once

#include <QString>
#include <functional>

#include "listados/papel/mdPapel.h"

class QWidget;

namespace zorbin {

/// Writes a document on the sheets of a destination, on a thread that is not the window's: it reads
/// what nobody changes meanwhile, and shows nothing.
using Documento = std::function<void(DestinoHojas&)>;

class ServicioImpresion {
 public:
  ServicioImpresion() = default;
  ServicioImpresion(const ServicioImpresion&) = delete;
  ServicioImpresion& operator=(const ServicioImpresion&) = delete;
  virtual ~ServicioImpresion() = default;

  /// Prints a document on the printer chosen, in its copies; asks for the file where that is a PDF.
  /// A failure has been shown.
  /// @param nombre  of the document: title of the job, name proposed for the file
  /// @return whether it was printed; false too when the person gave up
  virtual bool Imprime(QWidget* padre, const QString& nombre, const Documento& documento) = 0;

  /// Opens the manual at an anchor, for the screens of printing.
  virtual void Ayuda(const QString&) const {}

  /// Shows the document before it is printed; from there it may be printed.
  virtual void VistaPrevia(QWidget* padre, const QString& nombre, const Documento& documento) = 0;
};

}  // namespace zorbin
