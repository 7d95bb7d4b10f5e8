// Declaration of the fields of the capture screen: what each one is, the variable it stands for,
// and the plain rule it follows. The rules of the capture work from this table.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "core/estado_calculo.h"

namespace zorbin {

/// Fields of the capture screen, in tab order. `rdTipoCamisa` chooses between the two
/// post-tensioned typologies.
enum class Ed : int {
  edObra,
  edCliente,
  edIdioma,
  rdSistemaUnidades,
  rdGolpeAriete,
  edPrs1,
  edPrs2,
  edPrs3,
  edPrsM1,
  edPrsM2,
  edAlt1,
  edAlt2,
  edAlt3,
  edTramo,
  edDescriTramo,
  edPrs1Tram,
  edPrs2Tram,
  edPrs3Tram,
  edPrsM1Tram,
  edPrsM2Tram,
  edIcontes0,
  edAdato,
  edTipoControl,
  edTipoCamisa,
  edCamMax,
  edFck,
  edFct,
  edFyk,
  edFyd,
  edGamaB,
  rdTipoCamisa,
  edIcontes1,
  edCoepre1,
  edDelca,
  edEs,
  edEp,
  edFYKPost,
  edFckno,
  edFckn,
  edFckr,
  edSFck,
  edSf,
  edRel,
  edFic,
  edFir,
  edEpsc,
  edEpsr,
  edObra2,
  edTramo2,
  edDescriTramo2,
  rdTipoColocacion,
  edDi0,
  edEsp0,
  edDe0,
  edReci0,
  edRece0,
  edGc0,
  edTipoCuna0,
  edTipoApoyo0,
  edHr0,
  edHr0Final,
  edHr0Delta,
  edB0,
  edGr0,
  edFi0,
  edTipoRelleno0,
  edHr1,
  edIAs,
  edQDato0,
  edICar0,
};
inline constexpr int kCamposCaptura = static_cast<int>(Ed::edICar0) + 1;

enum class Clase { Texto, Numero, Lista, Marca, Opcion };

/// A page of the screen: that of TabPrincipal and those of the tabs inside it; -1 where the tab
/// plays no part.
struct Paginas {
  int TabPrincipal = 0;         // 0 Obra, 1 typology, 2 laying
  int TabTipologia = -1;        // 0 reinforced, 1 post-tensioned
  int TabPostesados = -1;       // 0 moduli, 1 strengths, 2 stresses, 3 coefficients
  int TabDatosColocacion = -1;  // 0 pipe, 1 fill, 2 loads

  bool operator==(const Paginas&) const = default;
};

/// A row of the table. Numbers of texts are entries of the catalogue.
struct FilaCampo {
  Ed id = Ed::edObra;
  std::string_view nombre = {};
  Clase clase = Clase::Numero;
  Paginas pagina = {};
  double Obra::*obra = nullptr;            // variable of a number of the Obra
  double Tramo::*tramo = nullptr;          // variable of a number of the Tramo
  std::int16_t Tramo::*codigo = nullptr;   // variable of a list
  double minimo = 0;                       // on leaving the field
  int etiqueta = 0;                        // title of a refusal
  std::optional<double> defecto = {};      // of a blank field, under MKS
  std::optional<double> defectoSI = {};    // under SI, where another
  std::string_view mascara = "#####0.00";  // under MKS
  std::string_view mascaraSI = {};         // under SI, where another
  std::string_view lectura = {};           // of a number read from a file under MKS, where another
  std::string_view lecturaSI = {};         // under SI
  bool filtra = false;                     // keys are filtered
  bool registra = false;                   // a change voids the hand adjustments of the Tramo
  bool escala = false;                     // the variable follows the unit system
  bool ceroEnBlanco = false;               // a zero read from a file shows as a blank
  int rotulo = 0;                          // label, under MKS
  int rotuloSI = 0;                        // under SI, where another
  int grupo = 0;                           // caption of the frame around it
  int consejo = 0;                         // tip
  int entrada = 0;                         // first entry of a list
  int entradas = 0;                        // count of its entries
  int entradaDefecto = 0;                  // entry of a blank list, from 1

  std::string_view Mascara(bool si) const { return si && !mascaraSI.empty() ? mascaraSI : mascara; }
  std::string_view Lectura(bool si) const;
  std::optional<double> Defecto(bool si) const { return si && defectoSI ? defectoSI : defecto; }
};

/// The whole table, in the order of Ed.
std::span<const FilaCampo> TablaCampos();

const FilaCampo& Fila(Ed id);

/// Field by its name. No value for an unknown one.
std::optional<Ed> CampoPorNombre(std::string_view nombre);

}  // namespace zorbin
