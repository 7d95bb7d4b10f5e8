// The desktop program put together: its data read, its screens made and joined.
#pragma once

#include <QObject>
#include <QPointer>
#include <filesystem>
#include <memory>

#include "core/verificacion.h"
#include "sesion/captura/mdCaptura.h"
#include "shell/ayuda/mdDocumento.h"
#include "shell/captura/mdInterlocutorQt.h"
#include "shell/impresion/mdImpresora.h"
#include "shell/piezas/mdEntorno.h"
#include "shell/principal/FormaPrincipal.h"
#include "shell/principal/mdRecuperacion.h"

class QTranslator;

namespace zorbin {

class CalculoHidraulico;
class Protecciones;
class MarcoDiseno;
class PanelDiseno;
class frAyuda;
class frResultados;

class Programa : public QObject {
  Q_OBJECT

 public:
  /// Reads catalogue and tables and builds the main window, closed.
  /// @throws std::runtime_error  without texts or tables there is no program; says what is missing
  /// @param cajon  where typed work is kept against a crash
  explicit Programa(std::unique_ptr<Preferencias> preferencias, Cajon cajon = Cajon());
  ~Programa() override;

  /// Shows the window; then offers what a crash left behind, and opens the Obra that was asked for.
  void Empieza(const QString& ruta = {});

  /// Tells a failure that nobody foresaw. @param error  null for one without words
  void DiFallo(const std::exception* error);

  FormaPrincipal& ventana() { return *ventana_; }
  Captura& captura() { return *captura_; }
  const Catalogo& textos() const { return textos_; }

 private:
  std::unique_ptr<Preferencias> preferencias_;
  Catalogo textos_;
  TablasCatalogo tablas_;
  Impresora impresora_;
  DocumentoHtml documentos_;
  Entorno entorno_;
  InterlocutorQt voz_;
  EstadoCalculo estado_;
  std::unique_ptr<Captura> captura_;
  std::unique_ptr<GuardaBorradores> guarda_;
  std::unique_ptr<FormaPrincipal> ventana_;
  QPointer<CalculoHidraulico> hidraulico_;
  QPointer<Protecciones> protecciones_;
  QPointer<frAyuda> ayuda_;
  QPointer<frResultados> resultados_;
  PanelDiseno* diseno_ = nullptr;       // of the window
  MarcoDiseno* marcoDiseno_ = nullptr;  // of the window
  std::unique_ptr<QTranslator> traductor_;
  int idiomaTraducido_ = 0;

  void AbreLoPedido(const QString& ruta);
  void EligeIdioma();
  void LeeLasTablas();
  void Enlaza();
  void CreaDiseno();
  void PonVeredicto(int id, Veredicto veredicto);
  void MuestraResultados();
  void RenuevaTextos();
  void TraduceDialogos();
  void MuestraAdvertencia(int modo);
  void Memoria();
  frAyuda& Ayuda();
};

}  // namespace zorbin
