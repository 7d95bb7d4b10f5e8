#include "sesion/captura/mdListaTramos.h"

#include <algorithm>

#include "base/textos.h"
#include "sesion/captura/mdCiclo.h"
#include "sesion/captura/mdEdicion.h"

namespace zorbin {

namespace {

std::string SinMarca(std::string texto) {
  std::erase(texto, '&');
  return texto;
}

std::string TextoTipologia(const Captura& c, int tipologia) {
  const std::string armado = SinMarca(Texto(c, txt::PagArmado));
  if (tipologia < kPrimeraPostesada) return armado;
  const int camisa = tipologia == 2221 ? txt::OpcionRevestida : txt::OpcionEmbebida;
  return SinMarca(Texto(c, txt::PagPostesado)) + ", " + Texto(c, camisa);
}

RenglonTramo Renglon(const Captura& c, const std::string& numero, const Tramo& t) {
  const int colocacion = txt::OpcionZanja + std::clamp<int>(t.TipoColocacion, 0, 2);
  return {numero, t.DescriTramo, TextoTipologia(c, t.Tipologia), Formato(c, t.Di, "#####0.000"),
          Texto(c, colocacion)};
}

}  // namespace

std::vector<RenglonTramo> RenglonesTramos(const Captura& c) {
  std::vector<RenglonTramo> renglones;
  if (!c.fichero) return renglones;
  // A state of its own: the Tramo in hand stays as it is.
  EstadoCalculo e;
  e.obra.SisUnid = c.e.obra.SisUnid;
  for (std::size_t i = 0; i < c.lista.size(); ++i) {
    if (c.lista[i].empty()) continue;
    e.tramo = Tramo{};
    try {
      CargaTramo(e, *c.fichero, static_cast<int>(i) + 1);
      renglones.push_back(Renglon(c, c.lista[i], e.tramo));
    } catch (const ErrorFichero&) {
      renglones.push_back({c.lista[i], {}, {}, {}, {}});  // choosing it tells what is wrong
    }
  }
  return renglones;
}

bool TomaTramo(Captura& c, const std::string& numero) {
  if (c.EnAltas()) {
    c.voz.Muestra(Texto(c, txt::SalvePrimero), Texto(c, txt::TituloAviso));
    return false;
  }
  if (c.pantalla.pagina.TabPrincipal != 1 && !CambiaPagina(c, 1)) return false;
  Desbloquea(c, Ed::edTramo);
  Escribe(c, Ed::edTramo, numero);
  EligeTramo(c);
  c.pantalla.foco = Ed::edDescriTramo;
  return c[Ed::edTramo].texto == numero && c.EnModificaciones();
}

}  // namespace zorbin
