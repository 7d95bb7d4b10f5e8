// The numbers of the worked examples: each stands in the sources beside the expression that gives
// it, and this check evaluates the expression on results of the program.
//
//   <datos>  c = acequia.tramos[0].casos[0]     a name for what follows in the file
//            De = acequia.tramos[0].De  </datos>
//   <span data-dato="c.DP">4,00</span>          the number must be the value, rounded
//   \v{W = De^2*pi/4 ; c.Peso}{1,63}            both expressions must give it; W is a name now
//
// Numbers that nobody writes: the report shows what the expression gives when it is laid out.
//
//   <span data-cifra="v.zanja1.zorbin" decimales="3"/>    signo="1" shows a plus as well
//
// Expressions: + - * / ^ ( ), sqrt exp ln log10 abs floor min max sen cos tan (radians), grados(x)
// to radians, traccion(e, T, Ao) for the fixed point of A = T (e + A / (Ao + A)), pi.
#pragma once

#include <QJsonObject>
#include <QString>
#include <QStringList>

#include "listados/maqueta/mdHtml.h"

namespace zorbin::memoria {

struct Comprobacion {
  int cifras = 0;      // numbers compared
  QStringList faltas;  // one line each, with file and line
};

/// Checks the numbers of a chapter against `datos`, whose members are the roots of the paths.
void CompruebaCapitulo(const QString& fichero, const Elemento& capitulo, const QJsonObject& datos,
                       Comprobacion& resultado);

/// Writes the numbers that the chapter leaves to the program, from `datos` as above.
/// @throws ErrorFuente naming the line of an expression that `datos` does not give
void PonCifras(Elemento& capitulo, const QJsonObject& datos);

}  // namespace zorbin::memoria
