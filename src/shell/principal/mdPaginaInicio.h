// What the window shows with no Obra open: the title picture, and the ways to an Obra.
#pragma once

#include <QWidget>

#include "shell/piezas/mdEntorno.h"

class QCommandLinkButton;
class QLabel;
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
  void obraPedida(const QString& ruta);

 private:
  const Entorno& entorno_;
  Figura* titulo_;
  QCommandLinkButton* nueva_;
  QCommandLinkButton* abrir_;
  QLabel* suelta_;
  QLabel* rotuloRecientes_;
  QVBoxLayout* recientes_;
};

}  // namespace zorbin
