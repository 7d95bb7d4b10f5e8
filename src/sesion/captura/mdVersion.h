// An Obra with all its Tramos as it stands at a moment. Nobody changes a version: a change makes
// another one, which shares with it the Tramos that stayed. So to undo is to go back to a version,
// and what is unsaved is what differs from the version of the file.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "core/estado_calculo.h"
#include "core/mdAjustes.h"
#include "persistencia/zrb/mdZrb.h"
#include "persistencia/zrx/mdZrx.h"
#include "sesion/captura/mdCampos.h"

namespace zorbin {

inline constexpr int kMayorNumeroDeTramo = 32767;

/// What stands in a field that its rule refuses. The datum behind it is not that.
struct TextoPendiente {
  Ed campo = Ed::edObra;
  std::string texto;
  std::string mensaje;  // why

  bool operator==(const TextoPendiente&) const = default;
};

/// The data that hand adjustments were chosen for. It goes with them, and makes no difference.
struct BaseDeAjustes {
  std::shared_ptr<const EstadoCalculo> datos;

  bool operator==(const BaseDeAjustes&) const { return true; }
};

struct TramoEnObra {
  int id = 0;          // the same through all its changes; a copy has another one
  std::string numero;  // its text in the list; empty keeps the place of a block without number
  Tramo datos;         // in the units of the Obra's system
  std::vector<EntradaAjuste> ajustes;  // its Casos adjusted by hand
  BaseDeAjustes base;
  std::string extras;  // what else its entry beside the file says, JSON
  std::vector<TextoPendiente> pendientes;
  std::string dano;  // why its block cannot be read; it is then not written either

  bool operator==(const TramoEnObra&) const = default;
};
using TramoFijo = std::shared_ptr<const TramoEnObra>;

struct Version {
  Obra obra;  // without what belongs to the session: file and folder
  std::vector<TramoFijo> tramos;
  std::vector<TextoPendiente> pendientes;     // of the fields of the Obra
  Extras extras;                              // beside the file, and of no Tramo
  std::vector<EntradaAjuste> ajustesSueltos;  // of numbers that no Tramo has

  bool operator==(const Version& otra) const;
};

/// Place of a Tramo in a version, from 0; no value where it is not in it.
std::optional<std::size_t> LugarDe(const Version& v, int id);
/// Place of the last Tramo with a number; the one that a number means.
std::optional<std::size_t> LugarDeNumero(const Version& v, int numero);
/// A Tramo, or null.
const TramoEnObra* Busca(const Version& v, int id);
/// The texts of the list, in order.
ListaTramos ListaDe(const Version& v);
/// Number of a text of the list; 0 for none.
int NumeroDe(const std::string& texto);
/// A number that no Tramo has, above all the others.
int NumeroLibre(const Version& v);

/// Whether so many Tramos more fit, each with a number of its own.
bool Caben(const Version& v, std::size_t cuantos);

/// Same data, whatever their place and number.
bool MismosDatos(const TramoEnObra& a, const TramoEnObra& b);

/// An Obra without file and folder.
Obra SinSesion(Obra obra);

/// Whether a Caso of the Tramo that exists in both would come out otherwise: any datum that enters
/// the calculation differs. The heights only say which Casos there are.
bool CalculaDistinto(const Obra& obraA, const Tramo& a, const Obra& obraB, const Tramo& b);

/// The hand adjustments of a Tramo, chosen for the data that it has.
void PonAjustes(TramoEnObra& t, const Obra& obra, std::vector<EntradaAjuste> ajustes);

/// How many hand adjustments no longer stand for the data of their Tramo, by its text; the version
/// without them.
struct AjustesAnulados {
  Version version;
  std::vector<std::pair<std::string, int>> anulados;
};
AjustesAnulados SinAjustesVanos(Version nueva);

/// All data with units in another system.
void CambiaUnidades(Version& v, bool aSI);

}  // namespace zorbin
