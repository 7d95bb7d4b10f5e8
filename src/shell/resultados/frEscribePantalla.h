// The summary screen: what a calculation found, as text, and the road from it to paper.
#pragma once

#include <QDialog>
#include <functional>
#include <memory>
#include <string>

#include "listados/obra/mdTipoListado.h"
#include "sesion/trabajo/mdTextoLargo.h"
#include "shell/piezas/mdEntorno.h"

class QButtonGroup;
class QLabel;
class QVBoxLayout;

namespace zorbin {

class Buscador;
class VisorTexto;

/// What the screen is given.
struct Resumido {
  std::unique_ptr<FuenteTexto> fuente;  // the summary
  bool conLame = false;                 // "Coef. Lamé" is offered
  QString nombre;                       // of the documents made from here
  std::string aviso = {};               // said under the text; none when empty
  bool conPapel = true;     // a listing is offered: nobody prints a part and takes it for the whole
  std::string reparo = {};  // said before a listing is made; nothing when empty
  /// The notice once all of the summary has been made, which may have come upon something.
  std::function<std::string()> avisoFinal = {};
  /// Makes the listing of a kind, on a thread that is not the window's and never while the summary
  /// is being made.
  std::function<void(TipoListado, DestinoHojas&)> lista = [](TipoListado, DestinoHojas&) {};
};

class frEscribePantalla : public QDialog {
  Q_OBJECT

 public:
  frEscribePantalla(const Entorno& entorno, Resumido resumido, QWidget* padre = nullptr);
  ~frEscribePantalla() override;

  /// Kind of listing in force: the one used last, as far as it is offered.
  TipoListado Tipo() const;

 private:
  const Entorno& entorno_;
  Resumido resumido_;
  TextoLargo texto_;
  VisorTexto* edPantalla_;
  Buscador* buscador_;
  QButtonGroup* rdTipoListado_;
  QLabel* aviso_;
  int cuerpo_ = 0;  // size of the letters [pt]

  QString Tx(int n) const;
  void Distribuye();
  void CreaOpciones(QVBoxLayout& columna);
  void CreaBotones(QVBoxLayout& columna);
  void CreaTeclas();

  void PonAviso(const std::string& aviso);
  bool EsperaTodo();
  void PonCuerpo(int cuerpo);
  bool eventFilter(QObject* objeto, QEvent* suceso) override;

  QString NombreDocumento() const;
  Documento ElDocumento() const;
  void AvisaReparo();
  bool ListoParaPapel();
  void Imprime();
  void VistaPrevia();
  void Pdf();
  void Guarda();
  void Copia();
  void Menu(QPoint donde);
};

}  // namespace zorbin
