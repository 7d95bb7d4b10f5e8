// The report that one signs, laid out: cover, summary of the Obra, contents, basis of the
// calculation, and a chapter for each Tramo.
#pragma once

#include <QHash>
#include <QString>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "base/mdCatalogo.h"
#include "core/mediciones.h"
#include "core/resultado.h"
#include "listados/maqueta/mdPaginador.h"
#include "listados/papel/mdFormato.h"
#include "listados/papel/mdPie.h"
#include "persistencia/zrx/mdPortadaObra.h"

namespace zorbin {

/// How far a report goes into the Casos.
enum class DetalleInforme {
  Resumen,  // tables alone
  Pesimo,   // the worst Caso of each Tramo step by step
  Todos,    // every Caso
};

/// A Tramo of the report.
struct TramoInforme {
  const ResultadoTramo* resultado;
  std::string numero;  // its text in the list
  Tramo tecleado;      // as it was captured, in the units of the Obra
  Tramo completo;      // as the rules completed it: what was calculated
  Fabricacion fabricacion = {};
};

struct DatosInforme {
  Obra obra;  // in the units of its system
  PortadaObra portada;
  std::string fichero;  // name of the project file
  std::string huella;   // SHA-256 of its bytes; empty where the data are not those of a file
  std::string programa;
  Fecha fecha;
  DetalleInforme detalle = DetalleInforme::Pesimo;
  std::vector<TramoInforme> tramos;
  std::vector<std::string> rechazados;  // Tramos that were not calculated, each with its reason
  Precios precios = {};
};

/// Asked now and then whether to go on; false ends the work. @param pagina  laid out so far
using SigueInforme = std::function<bool(int pagina)>;

/// Whoever was asked said no.
struct InformeCancelado {};

/// Pages with their letters, and where their links lead.
struct Informe {
  std::shared_ptr<const memoria::Tipografia> letras;
  std::vector<memoria::Caja> paginas;
  std::vector<memoria::EntradaIndice> indice;  // pages from 0, the cover
  QHash<QString, memoria::LugarTexto> anclas;
  QString titulo, autor;
  QString idioma;  // code of the language
};

/// Lays the report out. One thread makes a report and writes it.
/// @throws ErrorFuente when this machine lacks the fonts
/// @throws InformeCancelado
Informe ComponeInforme(const DatosInforme& datos, const Catalogo& textos,
                       const EstiloNumeros& estilo, const SigueInforme& sigue = {});

/// The steps of a Caso alone, on pages without cover.
Informe ComponePasos(const ResultadoTramo& resultado, const FilaCaso& fila, const Catalogo& textos,
                     const EstiloNumeros& estilo);
/// The same as plain text, a line for each step.
std::string TextoDePasos(const ResultadoTramo& resultado, const FilaCaso& fila,
                         const Catalogo& textos, const EstiloNumeros& estilo);

/// Pages of the report to expect; it lays out a sample, and no more.
int PaginasPrevistas(const DatosInforme& datos, const Catalogo& textos,
                     const EstiloNumeros& estilo);

/// More of them are made only for who says so.
inline constexpr int kMuchasPaginas = 5000;

/// SHA-256 of a file in hexadecimal digits; empty where it cannot be read.
std::string HuellaDe(const std::filesystem::path& fichero);

}  // namespace zorbin
