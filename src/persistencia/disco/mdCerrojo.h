// An advisory lock on an open file, against another program that would write it at the same time.
// It goes with the descriptor: the system takes it from a process that dies.
#pragma once

#include "persistencia/disco/mdDescriptor.h"

namespace zorbin {

/// Asks the system for a lock, as flock does. Another one stands in where there is none to ask.
using PideCerrojo = int (*)(int descriptor, int operacion);
int CerrojoDelSistema(int descriptor, int operacion);

enum class Cerrojo {
  Tomado,       // nobody else takes it while the descriptor is open
  Ocupado,      // another program has it
  SinCerrojos,  // this file system has no locks
};

/// Tries for some hundredths of a second: a program that only reads holds it for an instant.
Cerrojo TomaCerrojo(const Descriptor& d, PideCerrojo pide = CerrojoDelSistema);

/// Whether another program has the lock. False where there are no locks.
bool LoTieneOtro(const Descriptor& d, PideCerrojo pide = CerrojoDelSistema);

}  // namespace zorbin
