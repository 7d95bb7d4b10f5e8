// The manual in a window of its own, beside whatever is being done.
#pragma once

#include <QToolButton>
#include <QUrl>
#include <QWidget>
#include <filesystem>
#include <functional>

#include "shell/ayuda/mdTextoManual.h"
#include "shell/piezas/mdEntorno.h"

class QSplitter;

namespace zorbin {

class GuiaAyuda;
class VisorHtml;

class frAyuda : public QWidget {
  Q_OBJECT

 public:
  /// The path of a manual by its name, whose case does not matter; empty when there is none.
  using BuscaManual = std::function<std::filesystem::path(const std::string& nombre)>;

  frAyuda(const Entorno& entorno, BuscaManual busca, QWidget* padre = nullptr);
  ~frAyuda() override;

  /// Opens the manual at an anchor; the first page when it has no such anchor.
  void Muestra(const QString& ancla);
  void MuestraContenido();
  void MuestraIndice();

  /// After a change of language: its texts, and the manual of the language at the same section.
  void RenuevaTextos();

 protected:
  void changeEvent(QEvent* suceso) override;
  void hideEvent(QHideEvent* suceso) override;

 private:
  const Entorno& entorno_;
  BuscaManual busca_;
  QString nombre_;  // of the manual loaded, empty before the first
  QUrl direccion_;
  Manual manual_;
  TextoManual texto_;
  int escala_ = 100;  // [%]

  QSplitter* division_;
  GuiaAyuda* guia_;
  VisorHtml* visor_;
  QToolButton *atras_, *adelante_, *reduce_, *normal_, *amplia_;

  QWidget* Botonera();
  QToolButton* Boton(const QString& texto, const QKeySequence& tecla,
                     const std::function<void()>& hace);
  void ConectaGuia();
  void ConectaVisor();
  void Abre();
  void Carga();
  void Lee(const QString& nombre);
  QString PaginaVestida() const;
  void Redibuja();
  void Reindexa();
  void VaA(const QString& ancla);
  void Sigue(const QUrl& enlace);
  void Resalta(const std::vector<TextoManual::Hallazgo>& hallazgos);
  void Busca();
  void VaAlHallazgo(const TextoManual::Hallazgo& hallazgo);
  void MarcaLeido();
  void PonEscala(int escala);
  void EligeEscala(int escala);
  void Amplia(int pasos);
  void PonTextos();
  void GuardaSitio();
  void RecuperaSitio();
  QString AnclaLeida() const;
};

}  // namespace zorbin
