// Whoever stands before the capture: the window, a script of a test, or the command line. The rules
// speak through this interface only.
#pragma once

#include <filesystem>
#include <optional>
#include <string>

#include "sesion/captura/mdCampos.h"

namespace zorbin {

/// What to do with unsaved changes.
enum class Respuesta { Grabar, Descartar, Cancelar };

class Interlocutor {
 public:
  Interlocutor() = default;
  Interlocutor(const Interlocutor&) = delete;
  Interlocutor& operator=(const Interlocutor&) = delete;
  virtual ~Interlocutor() = default;

  /// Shows a message box. An empty title is that of the application.
  virtual void Muestra(const std::string& texto, const std::string& titulo) = 0;

  /// Tells what needs no answer, for the status bar.
  virtual void Anuncia(const std::string& texto) { Muestra(texto, {}); }

  /// Asks with Yes and No. @return whether the answer was Yes
  virtual bool Pregunta(const std::string& texto, const std::string& titulo) = 0;

  /// Asks whether unsaved changes are to be saved.
  virtual Respuesta PreguntaGrabar(const std::string& texto) = 0;

  /// Asks for a file to save an Obra in. No value: cancelled.
  /// @param actual  the file that it has; empty for none
  virtual std::optional<std::string> PideFichero(const std::string& titulo,
                                                 const std::string& actual) = 0;

  /// The rules brought a field to the front and gave it the focus; the model already says so.
  virtual void VaA(Ed campo) = 0;
};

}  // namespace zorbin
