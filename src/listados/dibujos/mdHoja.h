// What every drawing of a Tramo is given, and the head and foot that they share.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "base/mdCatalogo.h"
#include "core/resultado.h"
#include "listados/dibujos/mdPlano.h"
#include "listados/papel/mdFormato.h"

namespace zorbin {

/// Sheet that is asked for. With a scale the drawing takes it and the sheet grows to hold it;
/// otherwise the drawing takes the largest round scale that fits.
struct HojaDibujo {
  double ancho = 277, alto = 190;  // [mm]
  bool cabecera = true;            // title, Caso and scale; a panel has its own
  double escala = 0;               // 1:escala, 0 for the one that fits
};

/// A Caso before whoever draws it.
struct CasoDibujado {
  const ResultadoTramo& tramo;
  const FilaCaso& fila;
  const ResultadoCaso& caso;

  const Tramo& Datos() const { return tramo.datos.tramo; }
};

/// Words and figures of the drawings, in a language and a unit system.
class PalabrasDibujo {
 public:
  PalabrasDibujo(const Catalogo& textos, EstiloNumeros estilo) : textos_(textos), estilo_(estilo) {}

  const EstiloNumeros& Estilo() const { return estilo_; }
  const Catalogo& Textos() const { return textos_; }
  const std::string& T(int n) const { return textos_.Texto(n); }
  std::string Con(int n, const std::vector<std::string>& datos) const {
    return textos_.Compone(n, datos);
  }
  /// With the unit of the conversion, if it has one.
  std::string Numero(double valor, int decimales, std::string_view conversion = {}) const;
  /// Without unit, and without zeros at its end.
  std::string Corto(double valor, int decimales) const;
  std::string Metros(double m) const { return Numero(m, 2) + " m"; }
  std::string Milimetros(double mm) const { return Corto(mm, 1) + " mm"; }
  std::string Presion(double at) const { return Numero(at, 0, "at->MPa"); }
  /// Unit of a conversion in the system in force, and a value of calculation in it.
  std::string Unidad(std::string_view conversion) const;
  double Convertido(double valor, std::string_view conversion) const;

  /// "1 · PP neta" of a reinforced or a post-tensioned design.
  const std::string& Hipotesis(bool armado, int h) const;
  std::string TramoEnLetra(const Tramo& t) const;
  std::string CasoEnLetra(const FilaCaso& f) const;

 private:
  const Catalogo& textos_;
  EstiloNumeros estilo_;
};

/// What of a text fits a width [mm], with an ellipsis where it is cut.
std::string Recortado(const std::string& texto, double ancho, double alto, bool negrita = false);

/// Smallest scale of those in use that is not below `minimo`: 1, 1.5, 2, 2.5, 3, 4, 5, 7.5 times a
/// power of ten.
double EscalaRedonda(double minimo);

/// Puts title, subtitle and a rule on a sheet, where it wants them.
/// @return what is left for the drawing
Marco PonCabecera(Plano& plano, const HojaDibujo& hoja, const std::string& titulo,
                  const std::string& subtitulo);

/// Writes the scale at the right end of the head.
void PonEscala(Plano& plano, const HojaDibujo& hoja, const PalabrasDibujo& palabras, double escala);

/// The empty sheet.
Lamina LaminaVacia(const HojaDibujo& hoja);
/// A quiet frame, for data that cannot be drawn.
Lamina LaminaSinDatos(const PalabrasDibujo& palabras, const HojaDibujo& hoja);

}  // namespace zorbin
