// The verdict of a Caso and what is to be built of it, in words, for whoever shows it.
#pragma once

#include <string>
#include <vector>

#include "base/mdCatalogo.h"
#include "listados/obra/mdListado.h"
#include "listados/papel/mdFormato.h"

namespace zorbin {

/// What the rows of a run say together.
struct CuentaVeredictos {
  int casos = 0;  // that which broke off the run among them
  int noCumplen = 0;
  int sinComprobar = 0;                           // that which broke off the run among them
  Veredicto veredicto = Veredicto::SinComprobar;  // complies only where every Caso does
  const FilaCaso* peor = nullptr;                 // lies in the result; null without rows

  CuentaVeredictos& operator+=(const CuentaVeredictos& otra);
};

CuentaVeredictos CuentaDeVeredictos(const ResultadoTramo& resultado);

/// The steel of the Caso may be shown as one to build: neither a wall too thin, nor a moment past
/// its limit, nor a search that ended without a solution.
bool OfreceArmadura(const VistaCaso& v);

struct LineaCaso {
  std::string texto;
  bool negrita;
};

/// Which names a listing gives the hypotheses of a reinforced Caso.
enum class NombresHipotesis { Resumen, Diseno };

class PalabrasCaso {
 public:
  PalabrasCaso(const Catalogo& textos, EstiloNumeros estilo,
               NombresHipotesis nombres = NombresHipotesis::Resumen)
      : textos_(textos), estilo_(estilo), nombres_(nombres) {}

  /// What is to be built, the governing hypothesis and the verdict, with the reason where it does
  /// not comply or could not be checked. @param ancho  columns of a line
  std::vector<LineaCaso> Cierre(const VistaCaso& v, int ancho) const;

  const std::string& Veredicto(zorbin::Veredicto veredicto) const;
  /// The greatest use; a dash where there is no design to which it could belong.
  std::string Uso(const ResumenVerificacion& v) const;
  /// Why it does not comply, or could not be checked; empty where it complies.
  std::string Motivo(const VistaCaso& v) const;
  /// The reason without its figures.
  std::string MotivoCorto(const VistaCaso& v) const;
  /// A check with its figures and its place.
  std::string Comprobacion(const ComprobacionCaso& c, bool armado) const;
  /// What the verdict warns of and the design has not; empty for nothing.
  std::string Avisos(const VistaCaso& v) const;
  /// Name of the hypothesis that governs a reinforced Caso.
  std::string Rige(const VistaCaso& v) const;
  /// Number, diameter and spacing of bars in short. @param decimales  of the diameter
  std::string Barras(double n, double diametro, int decimales) const;
  std::string Numero(double valor, int decimales, std::string_view conversion = {},
                     bool conUnidad = false) const;

 private:
  const Catalogo& textos_;
  EstiloNumeros estilo_;
  NombresHipotesis nombres_;

  std::string Hipotesis(int h, bool armado) const;
  void Construye(const VistaCaso& v, std::vector<LineaCaso>& lineas) const;
  void ConstruyeArmado(const VistaCaso& v, std::vector<LineaCaso>& lineas) const;
  std::string Cara(int conBarras, int sinBarras, double n, double diametro, int decimales) const;
};

}  // namespace zorbin
