// The field of the capture screen that shows a datum: which one it is, where it stands and what it
// is called. Numbers of texts are entries of the catalogue.
#pragma once

#include <string_view>

namespace zorbin {

/// Fields of the capture screen, in tab order. `rdTipologia` chooses between reinforced and
/// post-tensioned, `rdTipoCamisa` between the two post-tensioned typologies.
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
  rdTipologia,
  edIcontes0,
  edAdato,
  edEnvolvente,
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

/// A page of the screen: that of TabPrincipal, the typology whose data it shows, and the card last
/// in use among them, all of which are seen; -1 where one plays no part.
struct Paginas {
  int TabPrincipal = 0;         // 0 Obra, 1 pipe and typology, 2 laying
  int TabTipologia = -1;        // 0 reinforced, 1 post-tensioned
  int TabPostesados = -1;       // card: 0 moduli, 1 strengths, 2 stresses, 3 coefficients
  int TabDatosColocacion = -1;  // card: 1 fill, 2 loads

  bool operator==(const Paginas&) const = default;
};

/// A field of the screen.
struct Campo {
  Ed id = Ed::edObra;
  std::string_view nombre = {};
  Clase clase = Clase::Numero;
  Paginas pagina = {};
  bool ceroEnBlanco = false;  // a zero read from a file shows as a blank
  int etiqueta = 0;           // title of a refusal
  int rotulo = 0;             // label, under MKS
  int rotuloSI = 0;           // under SI, where another
  int grupo = 0;              // caption of the frame around it
  int consejo = 0;            // tip
  int entrada = 0;            // first entry of a list
  int entradas = 0;           // count of its entries
  int entradaDefecto = 0;     // entry of a blank list, from 1
};

}  // namespace zorbin
