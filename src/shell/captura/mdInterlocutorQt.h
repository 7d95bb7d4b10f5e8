// The window's side of the capture rules: message boxes and the dialog of a file.
#pragma once

#include <QString>
#include <functional>

#include "base/mdCatalogo.h"
#include "sesion/captura/mdInterlocutor.h"
#include "shell/piezas/mdPreferencias.h"

class QWidget;

namespace zorbin {

class InterlocutorQt : public Interlocutor {
 public:
  InterlocutorQt(const Catalogo& textos, Preferencias& preferencias)
      : textos_(textos), preferencias_(preferencias) {}

  /// The window that the boxes stand on.
  void PonPadre(QWidget* padre) { padre_ = padre; }

  /// Where what needs no answer is told; until then it is a box.
  void PonAnuncios(std::function<void(const QString&)> anuncia) { anuncia_ = std::move(anuncia); }

  void Muestra(const std::string& texto, const std::string& titulo) override;
  void Anuncia(const std::string& texto) override;
  bool Pregunta(const std::string& texto, const std::string& titulo) override;
  Respuesta PreguntaGrabar(const std::string& texto) override;
  std::optional<std::string> PideFichero(const std::string& titulo,
                                         const std::string& actual) override;
  // The screen follows the model after every action.
  void VaA(Ed) override {}

 private:
  const Catalogo& textos_;
  Preferencias& preferencias_;
  QWidget* padre_ = nullptr;
  std::function<void(const QString&)> anuncia_;
};

/// Filters of the file dialogs: Obras, and all files.
QString FiltrosObra(const Catalogo& textos);

}  // namespace zorbin
