// The pages of the capture screen: which field stands where.
#pragma once

#include <QObject>
#include <array>
#include <functional>
#include <optional>
#include <vector>

#include "sesion/captura/mdCaptura.h"
#include "shell/captura/mdCampoPantalla.h"
#include "shell/piezas/mdEntorno.h"

class QGridLayout;
class QLabel;

namespace zorbin {

class DibujoDatos;
class LayoutTarjetas;
class Tarjeta;

/// A text of the catalogue that the model does not hold.
struct Rotulado {
  std::function<void(const QString&)> pon;
  int texto;
};

class PaginasCaptura : public QObject {
  Q_OBJECT

 public:
  using Campos = std::array<CampoPantalla*, kCamposCaptura>;

  PaginasCaptura(const Campos& campos, const Entorno& entorno, QObject* padre = nullptr);

  QWidget* obra() const { return obra_; }
  QWidget* tramo() const { return tramo_; }
  QWidget* colocacion() const { return colocacion_; }
  /// The fields in the order of the work: MDP before DP, and the rows of a table one by one.
  const std::vector<Ed>& orden() const { return orden_; }

  /// Captions and tips, in the language in force.
  void RenuevaTextos(const Captura& c);
  /// Whatever of the pages is no field, as the model says.
  void Refresca(const Captura& c);

 private:
  // Captions over columns of fields come from the fields.
  struct Cabecera {
    QLabel* rotulo;
    Ed campo;
  };

  // What the drawings show.
  struct Dibujado {
    Tramo tramo;    // in calculation units
    double Hr = 0;  // [m]
    bool si = true;
    char separador = ',';
    int idioma = 0;

    bool operator==(const Dibujado&) const = default;
  };

  const Campos& campos_;
  const Entorno& entorno_;
  std::vector<Rotulado> rotulados_;
  std::vector<Cabecera> cabeceras_;
  std::vector<Ed> orden_;
  QWidget* obra_ = nullptr;
  QWidget* tramo_ = nullptr;
  QWidget* colocacion_ = nullptr;
  std::vector<Tarjeta*> armado_;     // seen for a reinforced pipe
  std::vector<Tarjeta*> postesado_;  // for a post-tensioned one
  DibujoDatos* ptPostesado_ = nullptr;
  DibujoDatos* ptColocacion_ = nullptr;
  std::optional<Dibujado> dibujado_;
  Tarjeta* alturas_ = nullptr;

  CampoPantalla& campo(Ed id) const { return *campos_[static_cast<std::size_t>(id)]; }
  QWidget& Coloca(Ed id);
  QWidget* CreaPaginaObra();
  QWidget* CreaPaginaTramo();
  QWidget* CreaPaginaColocacion();
  Tarjeta* CreaCabezaTramo();
  void CreaTarjetasArmado(LayoutTarjetas& tarjetas);
  void CreaTarjetasPostesado(LayoutTarjetas& tarjetas);
  Tarjeta* CreaTarjeta(int texto);
  Tarjeta* CreaFicha(int texto, std::initializer_list<Ed> campos);
  Tarjeta* CreaPresiones(Ed mdp1, Ed dp1, Ed mdp2, Ed dp2, Ed incremento);
  Tarjeta* CreaDibujo(DibujoDatos*& dibujo, const char* nombre, int titulo);
  void Dibuja(const Captura& c);
  void PonFila(QGridLayout& rejilla, int fila, Ed id);
  void PonCabecera(QGridLayout& rejilla, int columna, Ed campo);
};

}  // namespace zorbin
