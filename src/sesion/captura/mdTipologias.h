// Typologies, layings and their defaults: what each choice asks of the person, and what a new Tramo
// starts with.
#pragma once

#include "sesion/captura/mdCaptura.h"

namespace zorbin {

/// Design strength of the steel, and tensioning stress of the wire, of a field that is left blank,
/// in the unit of what they follow from.
double FydDeFyk(double Fyk);
double SfDeSFck(double SFck);

/// Defaults of materials of a reinforced Tramo. Fct under SI is a tenth of what every later
/// recalculation gives, on purpose.
void DefectosArmado(Captura& c);
/// Defaults of a post-tensioned Tramo.
void DefectosPostesado(Captura& c);

/// Clears the Tramo: 0 all of it, 1 all but header and section, 2 as 1 but for the cylinder option.
/// edFckr keeps its text, on purpose.
void LimpiaCaptura(Captura& c, int Profundidad);

/// The codes that go with a typology.
void PonTipologia(Captura& c, std::int16_t tipologia);

/// A person chose between reinforced and post-tensioned: what the other one asked for is cleared,
/// and this one has its defaults.
void EligeTipologia(Captura& c, bool postesada);
/// A person chose an option of rdTipoCamisa: 0 embedded, 1 lined.
void EligeOpcionCamisa(Captura& c, int opcion);
/// A person chose a laying: 0 trench, 1 trench under embankment, 2 embankment.
void EligeColocacion(Captura& c, int opcion);

/// Fields that a laying or a typology asks for, without changing what they hold.
void AplicaColocacion(Captura& c);
void AplicaTipologia(Captura& c);

/// Locks of the fields that only a range of pressures or heights asks for.
void BloqueosObra(Captura& c);
void BloqueosTramo(Captura& c);

}  // namespace zorbin
