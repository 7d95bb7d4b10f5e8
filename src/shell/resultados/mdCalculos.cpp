#include "shell/resultados/mdCalculos.h"

#include <filesystem>
#include <memory>

#include "base/mdTextos.h"
#include "base/textos.h"
#include "listados/obra/mdVeredictoCaso.h"
#include "sesion/trabajo/mdResumenPorBloques.h"
#include "sesion/trabajo/mdTrabajo.h"
#include "shell/piezas/mdDialogos.h"
#include "shell/piezas/mdFaena.h"
#include "shell/piezas/mdQt.h"
#include "shell/resultados/frEscribePantalla.h"

namespace zorbin {

namespace {

constexpr std::size_t kFallosDichos = 10;  // in a box; the summary has them all

double Hecho(const Avance& a) {
  return (a.posicion - 1 + (a.caso - 1.0) / a.casos) / a.posiciones;
}

std::vector<std::string> Datos(const Avance& a) {
  return {TextoEntero(a.tramo), std::to_string(a.caso), std::to_string(a.casos),
          std::to_string(a.posicion), std::to_string(a.posiciones)};
}

MarchaFaena::Dicho Dice(const Avance& a, const Catalogo& textos) {
  const int texto = a.posiciones > 1 ? txt::AvanceDeLaObra : txt::AvanceDelTramo;
  return {textos.Compone(texto, Datos(a)), Hecho(a)};
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

// The notice under the summary, with a failure that was met while it was written.
std::string AvisoFinal(const Calculo& calculo, std::size_t dichos) {
  std::string aviso = calculo.Aviso();
  const auto fallos = calculo.Fallos();
  if (fallos.size() == dichos) return aviso;
  for (const auto& fallo : fallos) aviso += (aviso.empty() ? "" : "\n") + fallo;
  return aviso;
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
  HazFaena(padre, entorno.textos, txt::CalculoEnCurso, [&](MarchaFaena& marcha) {
    calculo = CalculaEncargo(std::move(encargo), [&](const Avance& avance) {
      if (marcha.Espera()) marcha.Di(Dice(avance, entorno.textos));
      return marcha.Sigue();
    });
  });
  DiVeredictos(calculo, alVerificar);
  MuestraFallos(entorno, padre, calculo);
  const auto lista = [&calculo](TipoListado tipo, DestinoHojas& hojas) {
    EscribeListado(calculo, tipo, hojas, Ahora());
  };
  const auto dichos = calculo.Fallos().size();
  Resumido resumido{std::make_unique<ResumenPorBloques>(calculo), calculo.HayPostesado(), nombre,
                    calculo.Aviso()};
  resumido.conPapel = calculo.fin != FinTrabajo::Cancelado;
  resumido.reparo = Reparo(calculo);
  resumido.avisoFinal = [&calculo, dichos] { return AvisoFinal(calculo, dichos); };
  resumido.lista = lista;
  frEscribePantalla(entorno, std::move(resumido), padre).exec();
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
