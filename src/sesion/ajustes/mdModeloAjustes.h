// What the screen frAjustes shows, without widgets: a window draws this and decides nothing.
#pragma once

#include <array>
#include <string>
#include <type_traits>
#include <vector>

namespace zorbin {

/// What the screen is busy with; the buttons follow from it.
enum class EstadoAjuste {
  Libre,           // choosing among rows and Casos
  Directa,         // typing the areas of the last row
  Recubrimientos,  // typing other covers
};

enum class BotonAjuste : int {
  btAceptarAjuste,
  btSalir,
  btGuardar,
  btSubirValorMedio,
  btBajarValorMedio,
  btSeleccionDirecta,
  btAnulaSeleccionDirecta,
  btCambiarRecubrimientos,
  btAceptarRecubrimientos,
  btAnularRecubrimientos,
  btRecubrimientosOrigen,
  btAnteriorAltura,
  btSiguienteAltura,
  btAnteriorPresion,
  btSiguientePresion,
};
inline constexpr int kBotonesAjuste = static_cast<int>(BotonAjuste::btSiguientePresion) + 1;

/// Fields that are typed in: those of the row of direct entry, and the covers.
enum class CampoAjuste : int {
  txArmCamisa,
  txArmRefuerzo,
  txArmExterior,
  txRecInterior,
  txRecExterior,
};
inline constexpr int kCamposAjuste = static_cast<int>(CampoAjuste::txRecExterior) + 1;

inline constexpr int kFilasAjuste = 9;  // the result, seven trial rows, direct entry
inline constexpr int kFilaResultado = 0;
inline constexpr int kFilaDirecta = 8;

struct BotonDeAjuste {
  std::string texto;
  bool habilitado = false;
};

/// A row with its option, obSeleccion, and its four areas.
struct FilaAjuste {
  std::string rotulo;
  bool utilizable = false;  // its tag; the rows of the result and of direct entry always are
  bool habilitada = false;  // the option can be chosen
  std::string txArmCamisa, txArmRefuerzo, txArmExterior, txArmTotal;
};

/// A line of the check.
struct LineaAjuste {
  std::string lbPosicion;
  std::string txArmNecesaria, txArmDispuesta;
  bool imAlerta = false;
  std::string consejo;  // tip of the mark; empty without one
};

struct ModeloAjustes {
  std::string titulo;  // of the window
  std::string rotulo;  // caption of the screen

  EstadoAjuste estado = EstadoAjuste::Libre;
  std::array<BotonDeAjuste, kBotonesAjuste> botones;

  std::array<std::string, 4> cabezas;  // of the columns of areas
  std::array<FilaAjuste, kFilasAjuste> filas;
  int opcion = kFilaResultado;                 // option chosen
  std::array<bool, kCamposAjuste> abiertos{};  // fields that can be typed in
  std::array<bool, kCamposAjuste> tocados{};   // changed by a person since the program wrote them

  std::string rotuloNecesaria, rotuloDispuesta;
  std::array<LineaAjuste, 3> lineas;

  std::string rotuloPresion, txPresion;  // in the units of the Obra
  std::string rotuloAltura, txAltura;    // [m]
  std::string tbHRaCalcular;             // height of the Caso, in full [m]
  std::string tbPRSaCalcular;            // pressure of the Caso, in full [at]

  std::string rotuloRecubrimientos, rotuloRecInterior, rotuloRecExterior;
  std::string txRecInterior, txRecExterior;  // [cm]
  std::string tbAviso;                       // name of the document about other covers
  bool tbAvisoVisible = false;
  std::string edAvisoCaldera;
  bool edAvisoCalderaVisible = false;

  std::vector<std::string> avisosDelCaso;  // warnings of its design
  std::string aviso;  // what did not stop the work but should be known; empty for nothing

  bool Habilitado(BotonAjuste b) const { return botones[static_cast<std::size_t>(b)].habilitado; }
  bool Abierto(CampoAjuste c) const { return abiertos[static_cast<std::size_t>(c)]; }
  /// Text of a field that is typed in.
  std::string& Texto(CampoAjuste c) { return TextoDe(*this, c); }
  const std::string& Texto(CampoAjuste c) const { return TextoDe(*this, c); }

 private:
  template <class M>
  using TextoEn = std::conditional_t<std::is_const_v<M>, const std::string, std::string>;

  template <class M>
  static TextoEn<M>& TextoDe(M& modelo, CampoAjuste c) {
    auto& directa = modelo.filas[kFilaDirecta];
    switch (c) {
      case CampoAjuste::txArmCamisa:
        return directa.txArmCamisa;
      case CampoAjuste::txArmRefuerzo:
        return directa.txArmRefuerzo;
      case CampoAjuste::txArmExterior:
        return directa.txArmExterior;
      case CampoAjuste::txRecInterior:
        return modelo.txRecInterior;
      case CampoAjuste::txRecExterior:
        break;
    }
    return modelo.txRecExterior;
  }
};

}  // namespace zorbin
