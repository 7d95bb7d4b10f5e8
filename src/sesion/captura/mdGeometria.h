// Recommended dimensions: the lookup of a diameter in the manufacturers' table, the judgement of
// what was typed against it, and the dimensions that follow from others.
#pragma once

#include "sesion/captura/mdCaptura.h"

namespace zorbin {

/// What a lookup is made for.
enum class ModoGeom { Busca = 0, Espesor = 1, Interior = 2, Exterior = 3, Todo = 4, Compara = 5 };

inline constexpr int kGeomHallado = 0;
inline constexpr int kGeomNoListado = 1;  // also a typology without group
inline constexpr int kGeomNoSeFabrica = 2;
inline constexpr int kGeomPorCambiar = 3;  // outside what the table allows

/// A thickness may differ from that of the table by this part of the diameter.
inline constexpr double kToleranciaEspesor = 0.02;

/// Group of a typology by the first column it has in the table: 2, 5, 8, 11, 14; 0 for none.
int GrupoDeTipologia(int tipologia);

/// Looks a diameter [m] up and writes what the mode asks for, or compares. Thickness and
/// covers in cm. A diameter is compared in whole mm, rounded half to even.
/// @return one of the codes above
int RecomendadosGeom(const Captura& c, double& Esp, double& Reci, double& Rece, int Tipologia,
                     double Di, ModoGeom modo);

/// As RecomendadosGeom for the Tramo in hand.
int BuscaEnTramo(Captura& c, ModoGeom modo);

/// The dimensions that the table recommends [cm].
struct Recomendadas {
  double Esp = 0, Reci = 0, Rece = 0;
};
/// Those of the Tramo in hand, where its own lie outside what the table allows.
std::optional<Recomendadas> RecomendadasDistintas(const Captura& c);
/// The diameter made in its typology that lies nearest to that of the Tramo in hand [m].
std::optional<double> DiametroCercano(const Captura& c);

/// The bands of the labels: those of a diameter of the table, else none.
void PonBandas(Captura& c);

/// Values offered by edEsp0, edReci0 and edRece0 for a group.
void CargaListasGeom(Captura& c, int grupo);
/// Diameters offered by edDi0.
void CargaListaDiametros(Captura& c);

/// De from Di and Esp, shown.
void CalculaDe(Captura& c);
/// Automatic width of the trench: 1.4 De + 0.68 [m].
double AnchoAutomatico(const Tramo& t);
double AnchoAutomatico(const Captura& c);
/// B0 takes the automatic width, shown. An embankment has no trench, and nothing happens.
void RecalculaB0(Captura& c);

}  // namespace zorbin
