// The design of the Tramo in hand, as it stands beside the data while they are typed: validated and
// calculated from a version of the Obra, on any thread.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "calculo/corrida/mdCalculaTramo.h"
#include "listados/dibujos/mdHoja.h"
#include "sesion/captura/mdComprueba.h"

namespace zorbin {

/// Place of a Caso in the heights and pressures.
struct SitioCaso {
  double Hr = 0;  // [m]
  double DP = 0;  // [at]

  bool operator==(const SitioCaso&) const = default;
};

struct PedidoDiseno {
  Version version;
  int id = 0;  // of the Tramo
  std::shared_ptr<const Catalogo> textos;
  const TablasCatalogo* tablas = nullptr;
  char separador = ',';
  bool sinAjustes = false;        // the adjustments by hand were refused
  std::optional<SitioCaso> caso;  // the one chosen; none for the worst
};

/// A Caso with its run, which whoever holds it may draw.
struct CasoConTramo {
  ResultadoTramo tramo;
  FilaCaso fila;
  ResultadoCaso caso;

  CasoDibujado Dibujado() const { return {tramo, fila, caso}; }
};

struct Diseno {
  int id = 0;
  bool si = true;
  std::shared_ptr<const CasoConTramo> caso;       // none where the data make no pipe
  std::string motivo;                             // then, why
  Veredicto veredicto = Veredicto::SinComprobar;  // of the whole range
  int casos = 0;                                  // of the range
  bool elegido = false;                           // it is the one chosen, not the worst
};

/// @return none where whoever is asked says no
std::optional<Diseno> CalculaDiseno(const PedidoDiseno& pedido,
                                    const std::function<bool()>& sigue = {});

/// A Caso of a run, whole.
std::shared_ptr<const CasoConTramo> CasoConSuTramo(const ResultadoTramo& tramo,
                                                   const FilaCaso& fila);

// ---- What is shown of a Caso at a glance

/// What a hypothesis asks for: steel in all of a reinforced Caso [cm2/m], the greatest use of a
/// post-tensioned one [-].
struct BarraHipotesis {
  int hipotesis = 0;
  std::optional<double> valor;  // none where it was not checked
  bool rige = false;
};
std::vector<BarraHipotesis> BarrasDe(const CasoDibujado& caso);

/// Steel of a face, or of both [cm2/m].
struct AceroCara {
  std::optional<double> necesaria;  // none where it was not checked
  double dispuesta = 0;
};
struct AceroCaso {
  AceroCara interior, exterior, total;
};
AceroCaso AceroDe(const CasoDibujado& caso);

/// What is built of each face in short: "chapa de 2,5 mm + 6 Ø8"; a dash for nothing.
std::string ObraInterior(const CasoDibujado& caso, const PalabrasDibujo& palabras);
std::string ObraExterior(const CasoDibujado& caso, const PalabrasDibujo& palabras);

/// Verdict and use in words: "CUMPLE · uso 0,97".
std::string VeredictoConUso(const FilaCaso& fila, const PalabrasDibujo& palabras);
/// Why it does not comply; empty where it does.
std::string MotivoDe(const CasoDibujado& caso, const PalabrasDibujo& palabras);
/// The warnings of design and verdict, a line each.
std::vector<std::string> AvisosDe(const CasoDibujado& caso, const PalabrasDibujo& palabras);

}  // namespace zorbin
