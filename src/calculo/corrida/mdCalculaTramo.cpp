#include "calculo/corrida/mdCalculaTramo.h"

#include <utility>

#include "calculo/armado/mdArmado.h"
#include "calculo/cargas/mdMarston.h"
#include "calculo/cargas/mdMarstonCompleta.h"
#include "calculo/cargas/mdOvaliz.h"
#include "calculo/cargas/mdTablaCargas.h"
#include "calculo/corrida/mdVeredicto.h"
#include "calculo/postesado/mdLame.h"
#include "calculo/postesado/mdPostesado.h"
#include "core/mdAjustes.h"
#include "core/mdUnidades.h"

namespace zorbin {

namespace {

constexpr std::int16_t kCuna120Captura = 2;
constexpr std::int16_t kCuna120Corrida = 3;

// The log of a run that failed, as far as the disk takes it: the failure itself is the news.
void VuelcaLoQueQuede(Registro* registro) {
  if (registro == nullptr) return;
  try {
    registro->Vuelca();
  } catch (const ErrorEjecucion&) {
  }
}

// The log at the start of a Caso: what its ring is calculated from.
void AnotaAnillo(Registro* registro, const DatosTramo& datos, const CargasAltura& altura,
                 std::int16_t NumCaso) {
  if (registro == nullptr) return;
  auto& r = *registro;
  const auto& t = datos.tramo;
  const auto& q = altura.cargas;
  r << "Dentro de Ovaliz ============================================================";
  r.FinLinea();
  r << "vDi vDE vGAMAB vGAMAT" << t.Di << t.De << t.Gc << t.Gr;
  r.FinLinea();
  r << "vLANDA vQ vICUNA vTIGEN vITIT vICASO vQH" << altura.Landa << q.Q << int{t.TipoCuna} << " "
    << datos.obra.NombreObra << " " << t.DescriTramo << int{NumCaso} << q.QTerraplen;
  r.FinLinea();
}

TerminosAnillo Anillo(const ResultadoTramo& x, const CargasAltura& altura,
                      Rastro* rastro = nullptr) {
  return Ovalizacion(x.datos.tramo, altura.cargas, x.unMetro, altura.Landa, rastro);
}

ResultadoArmado Armado(const DatosTramo& datos, const TerminosAnillo& anillo, const FilaCaso& f,
                       Marcha& marcha, Rastro* rastro = nullptr) {
  const auto ajuste = AjusteDelCaso(datos.ajustes, f.DP, datos.tramo.NumeroTramo, f.Hr);
  return DisenoArmado(datos.tramo, anillo, f, ajuste, marcha, rastro);
}

// The steps of what a Caso shares with others: its pressures, and the loads of its height.
void RastreaCargas(const ResultadoTramo& x, const FilaCaso& fila, Rastro* rastro) {
  const auto& t = x.datos.tramo;
  PresionesDe(fila.DP, x.rango, t.Di, x.datos.obra.GolpeCalculado, rastro);
  {
    const EnLugar lugar(rastro, Apartado::Empuje);
    EmpujeActivo(t.Fi, rastro);
  }
  const bool calculada = t.IndCar == 1;
  const EnLugar lugar(rastro, Apartado::Cargas);
  const Cargas dadas = CargasDadas(t, RangoDe(x.datos).Hr0, calculada ? nullptr : rastro);
  if (calculada) CargasMarston(t, fila.Hr, t.ICar, dadas, rastro);
  const EnLugar unMetro(rastro, Apartado::CargasUnMetro);
  CargasUnMetro(t, dadas, rastro);
}

void PonDiseno(FilaCaso& f, const ResultadoArmado& r) {
  f.HipotesisRige = r.HipotesisRige;
  f.AsInt = r.AsInt;
  f.AsExt = r.AsExt;
  f.Total = r.Total;
  f.CAMISA = r.CAMISA;
  f.FIIN = r.FIIN;
  f.FIEX = r.FIEX;
  f.NESPIN = r.NESPIN;
  f.NEXPEX = r.NEXPEX;
  f.ErrorPostesado = r.ErrorPostesado;
  f.ajustado = r.HayAjuste();
}

void PonDiseno(FilaCaso& f, const ResultadoPostesado& r) {
  f.FIIN = r.FIPRDEFI * 10.0;
  f.NESPIN = r.NESPDEFI;
  f.PPObtenida = r.PP;
  f.ErrorPostesado = r.ErrorPostesado;
}

class CorridaTramo {
 public:
  CorridaTramo(const DatosTramo& datos, const Rango& rango, const SigueCorrida& sigue,
               Registro* registro)
      : sigue_(sigue) {
    x_.datos = datos;
    x_.rango = rango;
    fila_.Hr = rango.Hr0;
    marcha_.registro = registro;
  }

  ResultadoTramo Corre() {
    try {
      // What a given load makes of the range is not changed by one Caso asked from outside.
      dadas_ = CargasDadas(t_, RangoDe(x_.datos).Hr0);
      ExigeRango(r_);
      casos_ = CuentaDe(r_).Casos();
      x_.filas.reserve(static_cast<std::size_t>(casos_));
      RecorreAlturas();
      if (marcha_.registro != nullptr) marcha_.registro->Vuelca();
    } catch (const ErrorEjecucion& error) {
      VuelcaLoQueQuede(marcha_.registro);
      x_.fallo = {error, fila_.NumCaso, fila_.Hr, fila_.DP, fila_.MDP, empezado_};
    }
    x_.vueltas = marcha_.vueltas;
    x_.filas.shrink_to_fit();  // many results are kept, and none grows again
    x_.alturas.shrink_to_fit();
    return std::move(x_);
  }

 private:
  const SigueCorrida& sigue_;
  ResultadoTramo x_;
  const Rango& r_ = x_.rango;
  const Tramo& t_ = x_.datos.tramo;
  Marcha marcha_;
  VeredictoTramo veredicto_{x_.datos};
  Cargas dadas_;
  TerminosAnillo anillo_;  // of the height in hand
  int casos_ = 0;          // of the range
  FilaCaso fila_;          // of the Caso in hand
  bool empezado_ = false;  // its pressures stand, and it is not designed

  // @return whether the run goes on
  bool Sigue() {
    if (!sigue_) return true;
    const int caso = static_cast<int>(x_.filas.size()) + 1;
    x_.cancelado = !sigue_({caso, casos_});
    return !x_.cancelado;
  }

  void RecorreAlturas() {
    std::optional<double> h = r_.Hr0;
    while (h && *h <= r_.Hr0Final) {
      Altura(*h);
      if (!RecorrePresiones()) return;
      x_.alturas.back().acabada = true;
      h = AlturaSiguiente(*h, r_.Hr0Delta, r_.Hr0Final);
    }
  }

  void Altura(double h) {
    fila_.Hr = h;
    fila_.NumCaso = 1;
    fila_.DP = r_.PrimeraDP;
    const Cargas q = t_.IndCar == 1 ? CargasMarston(t_, h, t_.ICar, dadas_) : dadas_;
    x_.alturas.push_back({h, q, EmpujeActivo(t_.Fi), false, Contraste(h)});
    fila_.altura = static_cast<std::int32_t>(x_.alturas.size()) - 1;
  }

  // Beside the load of the method; where the full equation has no answer the run goes on without.
  std::optional<CargasContrastadas> Contraste(double h) const {
    const bool cargaDada = t_.IndCar != 1;
    try {
      return CargasCompletas({t_.TipoApoyo, t_.De, t_.B0, t_.Hr1, t_.Gr, t_.Fi, t_.IAs, cargaDada},
                             h);
    } catch (const ErrorEjecucion&) {
      return std::nullopt;
    }
  }

  // @return whether the run goes on
  bool RecorrePresiones() {
    std::optional<double> DP = r_.PrimeraDP;
    while (DP) {
      if (!Sigue()) return false;
      UnCaso(*DP);
      fila_.NumCaso = Suma16(fila_.NumCaso, 1);
      DP = PresionSiguiente(*DP, r_);
    }
    return true;
  }

  void UnCaso(double DP) {
    Empieza(DP);
    if (!x_.hayCabecera) Cabecera();
    const auto& altura = x_.alturas.back();
    AnotaAnillo(marcha_.registro, x_.datos, altura, fila_.NumCaso);
    // The ring knows no pressure: it is the same all along a height.
    if (fila_.NumCaso == 1) anillo_ = Anillo(x_, altura);
    Disena();
    empezado_ = false;
  }

  void Empieza(double DP) {
    fila_.DP = DP;
    static_cast<PresionesCaso&>(fila_) = PresionesDe(DP, r_, t_.Di, x_.datos.obra.GolpeCalculado);
    empezado_ = true;
    marcha_.vueltas.EmpiezaCaso();
    marcha_.avisos.clear();
  }

  void Disena() {
    FilaCaso f = fila_;
    if (t_.EsArmado) {
      auto diseno = Armado(x_.datos, anillo_, f, marcha_);
      f.verificacion = veredicto_.Resume(diseno, marcha_.avisos);
      PonDiseno(f, diseno);
    } else {
      const auto diseno = CalculaPostesado(t_, anillo_, f, marcha_);
      f.verificacion = veredicto_.Resume(diseno, f.DP, f.MDP);
      PonDiseno(f, diseno);
    }
    for (const auto& aviso : marcha_.avisos) f.avisos |= 1u << static_cast<unsigned>(aviso.clase);
    x_.filas.push_back(f);
  }

  // What the heading of the Tramo shows.
  void Cabecera() {
    if (t_.IndCar == 1) x_.TablaCargas = TablaCargas(t_, r_, dadas_);
    x_.unMetro = CargasUnMetro(t_, dadas_);
    if (!t_.EsArmado) {
      x_.radios = Radios(t_);
      x_.materiales = Materiales(t_);
    }
    x_.hayCabecera = true;
  }
};

}  // namespace

DatosTramo DatosDeCalculo(const Obra& obra, const Tramo& tramo, std::vector<EntradaAjuste> ajustes,
                          bool sinAjustes) {
  Tramo t = TramoEnCalculo(tramo, obra.EsSI());
  t.Delca = t.Delca / 10.0;
  if (t.TipoCuna == kCuna120Captura) t.TipoCuna = kCuna120Corrida;
  t.Esp = t.Esp / 100.0;
  t.Reci = t.Reci / 100.0;
  t.Rece = t.Rece / 100.0;
  const bool envolvente = t.Envolvente;
  return {ObraEnCalculo(obra), std::move(t), std::move(ajustes), sinAjustes, envolvente};
}

ResultadoTramo CalculaTramo(const DatosTramo& datos, const Rango& rango, const SigueCorrida& sigue,
                            Registro* registro) {
  return CorridaTramo(datos, rango, sigue, registro).Corre();
}

ResultadoCaso CasoEntero(const ResultadoTramo& resultado, const FilaCaso& fila, Rastro* rastro) {
  const auto& datos = resultado.datos;
  if (rastro) RastreaCargas(resultado, fila, rastro);
  const auto anillo = Anillo(resultado, resultado.Altura(fila), rastro);
  Marcha marcha;
  VeredictoTramo veredicto(datos);
  if (datos.tramo.EsArmado) {
    auto diseno = Armado(datos, anillo, fila, marcha, rastro);
    auto verificacion = veredicto.Verifica(diseno, marcha.avisos, rastro);
    return {anillo, std::move(marcha.avisos), std::move(diseno), std::move(verificacion)};
  }
  auto diseno = CalculaPostesado(datos.tramo, anillo, fila, marcha, rastro);
  auto verificacion = veredicto.Verifica(diseno, fila.DP, fila.MDP, rastro);
  return {anillo, std::move(marcha.avisos), std::move(diseno), std::move(verificacion)};
}

}  // namespace zorbin
