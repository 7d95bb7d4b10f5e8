#include "shell/resultados/mdCalculos.h"

#include <filesystem>

#include "base/mdTextos.h"
#include "base/textos.h"
#include "listados/obra/mdVeredictoCaso.h"
#include "sesion/trabajo/mdTrabajo.h"
#include "shell/piezas/mdDialogos.h"
#include "shell/piezas/mdFaena.h"
#include "shell/piezas/mdQt.h"
#include "shell/resultados/frEscribePantalla.h"

namespace zorbin {

namespace {

constexpr std::size_t kFallosDichos = 10;  // in a box; the summary has them all
constexpr double kParteCalculo = 0.3;      // of the time; the rest writes the summary

double Hecho(const Avance& a) {
  return (a.posicion - 1 + (a.caso - 1.0) / a.casos) / a.posiciones;
}

std::vector<std::string> Datos(const Avance& a) {
  return {TextoEntero(a.tramo), std::to_string(a.caso), std::to_string(a.casos),
          std::to_string(a.posicion), std::to_string(a.posiciones)};
}

// Each of the two takes its share of the bar.
MarchaFaena::Dicho DiceCalculo(const Avance& a, const Catalogo& textos) {
  const int texto = a.posiciones > 1 ? txt::AvanceDeLaObra : txt::AvanceDelTramo;
  return {textos.Compone(texto, Datos(a)), Hecho(a) * kParteCalculo};
}
MarchaFaena::Dicho DiceResumen(const Avance& a, const Catalogo& textos) {
  return {textos.Compone(txt::AvanceDelResumen, Datos(a)),
          kParteCalculo + Hecho(a) * (1.0 - kParteCalculo)};
}

void MuestraFallos(const Entorno& entorno, QWidget* padre, const Calculo& calculo) {
  const auto fallos = calculo.Fallos();
  if (fallos.empty()) return;
  std::string texto;
  for (std::size_t i = 0; i < fallos.size() && i < kFallosDichos; ++i) texto += fallos[i] + "\n";
  if (fallos.size() > kFallosDichos) {
    texto +=
        entorno.textos.Compone(txt::FallosDeMas, {std::to_string(fallos.size() - kFallosDichos)});
  }
  Avisa(padre, entorno.textos, Q(texto), Rotulo(entorno.textos.Texto(txt::ErrorEnEjecucion)));
}

// What the summary says that a listing of it will not have.
std::string Reparo(const Calculo& calculo) {
  const auto& rechazados = calculo.encargo.rechazados;
  std::string reparo;
  for (const auto& rechazado : rechazados) reparo += (reparo.empty() ? "" : "\n") + rechazado;
  return reparo;
}

// Of a run that was given up, the Tramos have no verdict.
void DiVeredictos(const Calculo& calculo, const AlVerificar& alVerificar) {
  if (!alVerificar || calculo.fin == FinTrabajo::Cancelado) return;
  for (std::size_t i = 0; i < calculo.tramos.size(); ++i) {
    alVerificar(calculo.ids[i], CuentaDeVeredictos(calculo.tramos[i]).veredicto);
  }
}

void CalculaYMuestra(const Entorno& entorno, QWidget* padre, Encargo encargo, const QString& nombre,
                     const AlVerificar& alVerificar) {
  Calculo calculo;
  std::string resumen;
  HazFaena(padre, entorno.textos, txt::CalculoEnCurso, [&](MarchaFaena& marcha) {
    const auto sigue = [&](MarchaFaena::Dicho (*dice)(const Avance&, const Catalogo&)) {
      return [&marcha, &textos = entorno.textos, dice](const Avance& avance) {
        if (marcha.Espera()) marcha.Di(dice(avance, textos));
        return marcha.Sigue();
      };
    };
    calculo = CalculaEncargo(std::move(encargo), sigue(DiceCalculo));
    resumen = Resume(calculo, sigue(DiceResumen));
  });
  DiVeredictos(calculo, alVerificar);
  MuestraFallos(entorno, padre, calculo);
  const auto lista = [&calculo](TipoListado tipo, DestinoHojas& hojas) {
    EscribeListado(calculo, tipo, hojas, Ahora());
  };
  frEscribePantalla(entorno,
                    {std::move(resumen), calculo.HayPostesado(), nombre, calculo.Aviso(),
                     calculo.fin != FinTrabajo::Cancelado, Reparo(calculo), lista},
                    padre)
      .exec();
}

std::string NombreObra(const Captura& c) {
  return std::filesystem::path(c.e.obra.NombreFichero).stem().string();
}

}  // namespace

void CalculaElTramo(Captura& c, const Entorno& entorno, QWidget* padre,
                    const AlVerificar& alVerificar) {
  auto encargo = EncargaTramo(c);
  if (!encargo) return;
  const auto nombre = entorno.textos.Compone(txt::NombreDelTramo,
                                             {NombreObra(c), TextoEntero(c.e.tramo.NumeroTramo)});
  CalculaYMuestra(entorno, padre, std::move(*encargo), Q(nombre), alVerificar);
}

void ImprimeLaObra(Captura& c, const Entorno& entorno, QWidget* padre,
                   const AlVerificar& alVerificar) {
  auto encargo = EncargaObra(c);
  if (!encargo) return;
  CalculaYMuestra(entorno, padre, std::move(*encargo), Q(NombreObra(c)), alVerificar);
}

}  // namespace zorbin
