// What the window shows with no Obra open: the title picture, the language, and the ways to an
// Obra.
#pragma once

#include <QWidget>
#include <array>

#include "shell/piezas/mdEntorno.h"

class QCommandLinkButton;
class QLabel;
class QPushButton;
class QVBoxLayout;

namespace zorbin {

class Figura;

class PaginaInicio : public QWidget {
  Q_OBJECT

 public:
  explicit PaginaInicio(const Entorno& entorno, QWidget* padre = nullptr);
  /// Texts in the language in force, and the Obras of late.
  void Renueva();

 signals:
  void nuevaPedida();
  void abrirPedido();
  void muestraPedida();
  void advertenciaPedida();
  void obraPedida(const QString& ruta);
  /// @param idioma  1 to 5
  void idiomaPedido(int idioma);

 private:
  const Entorno& entorno_;
  Figura* titulo_;
  std::array<QPushButton*, kIdiomas> idiomas_{};
  QCommandLinkButton* nueva_;
  QCommandLinkButton* abrir_;
  QCommandLinkButton* muestra_;
  QLabel* suelta_;
  QLabel* rotuloRecientes_;
  QVBoxLayout* recientes_;
  QLabel* advertencia_;

  QWidget* CreaIdiomas();
  void RenuevaRecientes();
};

}  // namespace zorbin
