// A field of the capture on the screen: the widget of a control of the model, its label, and the
// marks that tell grey, locked, required and refused fields apart.
#pragma once

#include <QAction>
#include <QObject>
#include <QString>

#include "base/mdCatalogo.h"
#include "sesion/captura/mdModelo.h"

class QButtonGroup;
class QComboBox;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QWidget;

namespace zorbin {

/// Which mark a field bears.
enum class MarcaCampo { Ninguna, Requerido, Bloqueado, Rechazado };

/// What is shown of a field beside what its control says.
struct Aspecto {
  MarcaCampo marca = MarcaCampo::Ninguna;
  QString porque;    // of the mark
  QString rotulo;    // without its unit
  QString unidad;    // stands after the field
  QString enBlanco;  // what stands for a blank one, in grey
};

class CampoPantalla : public QObject {
  Q_OBJECT

 public:
  /// The widget takes the name of the field.
  CampoPantalla(Ed id, const Catalogo& textos, QWidget* padre);

  Ed id() const { return id_; }
  QWidget& widget() const { return *widget_; }
  QLabel& etiqueta() const { return *etiqueta_; }
  /// After the field: its unit, or why what stands in it is refused.
  QLabel& nota() const { return *nota_; }
  /// The unit is told elsewhere, as in a table.
  void CallaUnidad() { callaUnidad_ = true; }

  /// Brings the widget to what the model says. Nothing is written that stands already, so the
  /// cursor stays where it is.
  void Refresca(const Control& control, const Aspecto& aspecto);
  /// The icons follow the colours of the theme.
  void RenuevaTema();

  void SeleccionaTodo();

 signals:
  void textoCambiado(const QString& texto);
  /// An entry was taken from the list: what was chosen stands at once.
  void entradaElegida(const QString& texto);
  void marcaCambiada(bool puesta);
  void opcionElegida(int opcion);

 protected:
  bool eventFilter(QObject* objeto, QEvent* suceso) override;

 private:
  Ed id_;
  const Catalogo& textos_;
  QWidget* widget_ = nullptr;
  QLabel* etiqueta_ = nullptr;
  QLabel* nota_ = nullptr;
  QLineEdit* linea_ = nullptr;  // of a text, a number or an editable list
  QComboBox* lista_ = nullptr;  //
  QPlainTextEdit* parrafo_ = nullptr;
  QButtonGroup* botones_ = nullptr;  // of an option group
  QAction* senal_ = nullptr;         // the mark inside the line
  MarcaCampo marca_ = MarcaCampo::Ninguna;
  bool escribiendo_ = false;
  bool callaUnidad_ = false;

  void Crea(QWidget* padre);
  void CreaLinea(QWidget* padre);
  void CreaLista(QWidget* padre, bool editable);
  void CreaParrafo(QWidget* padre);
  void CreaOpciones(QWidget* padre);
  void CreaMarca(QWidget* padre);
  void EnlazaLinea();
  void PonTexto(const Control& control);
  void PonOpciones(const Control& control);
  void PonColores(const Control& control);
  void PonNota(const Aspecto& aspecto);
  void PonMarca(MarcaCampo marca, const QString& porque);
};

}  // namespace zorbin
