#include "sesion/captura/mdGeometria.h"

#include <array>
#include <cmath>

#include "base/textos.h"

namespace zorbin {

namespace {

constexpr double kMmPorCm = 10.0;
constexpr double kRecubMin = 20.0;  // band of a cover [mm]
constexpr double kRecubMax = 40.0;

struct GrupoTipologia {
  int tipologia;
  int grupo;
};
constexpr std::array<GrupoTipologia, 8> kGrupos{
    {{1100, 2}, {1210, 5}, {1220, 5}, {2100, 8}, {2211, 11}, {2212, 11}, {2221, 14}, {2222, 14}}};

const DimensionesGrupo* Busca(const TablasCatalogo& tablas, double Di, int grupo) {
  const double D = Redondea(Di * 1000.0 + 0.0001);
  for (const auto& fila : tablas.TablaDimensiones) {
    if (fila.Diametro == D) return &fila.grupos[static_cast<std::size_t>((grupo - 2) / 3)];
  }
  return nullptr;
}

struct Medidas {
  double Esp, Reci, Rece;  // [mm]
};

// Of a lined cylinder only the inner cover is tested, which there is the computed one.
bool Aceptables(const Medidas& u, const DimensionesGrupo& t, double D, int tipologia) {
  const auto enBanda = [](double x) { return x >= kRecubMin && x <= kRecubMax; };
  const bool espesor =
      u.Esp >= t.Esp - kToleranciaEspesor * D && u.Esp <= t.Esp + kToleranciaEspesor * D;
  return espesor && enBanda(u.Reci) && (tipologia == kRevestida || enBanda(u.Rece));
}

int Compara(const Medidas& u, const DimensionesGrupo& t, double D, int tipologia) {
  const bool iguales = u.Esp == t.Esp && u.Reci == t.Reci && u.Rece == t.Rece;
  return iguales || Aceptables(u, t, D, tipologia) ? kGeomHallado : kGeomPorCambiar;
}

}  // namespace

int GrupoDeTipologia(int tipologia) {
  for (const auto& g : kGrupos) {
    if (g.tipologia == tipologia) return g.grupo;
  }
  return 0;
}

int RecomendadosGeom(const Captura& c, double& Esp, double& Reci, double& Rece, int Tipologia,
                     double Di, ModoGeom modo) {
  const int grupo = GrupoDeTipologia(Tipologia);
  if (grupo == 0) return kGeomNoListado;
  const auto* t = Busca(c.tablas, Di, grupo);
  if (t == nullptr) return kGeomNoListado;
  if (t->Reci == 0) return kGeomNoSeFabrica;
  if (modo == ModoGeom::Espesor || modo == ModoGeom::Todo) Esp = t->Esp / kMmPorCm;
  if (modo == ModoGeom::Interior || modo == ModoGeom::Todo) Reci = t->Reci / kMmPorCm;
  if (modo == ModoGeom::Exterior || modo == ModoGeom::Todo) Rece = t->Rece / kMmPorCm;
  if (modo != ModoGeom::Compara) return kGeomHallado;
  const auto mm = [](double cm) { return Redondea(cm * kMmPorCm + 0.01); };
  return Compara({mm(Esp), mm(Reci), mm(Rece)}, *t, Redondea(Di * 1000.0 + 0.0001), Tipologia);
}

int BuscaEnTramo(Captura& c, ModoGeom modo) {
  auto& t = c.e.tramo;
  return RecomendadosGeom(c, t.Esp, t.Reci, t.Rece, t.Tipologia, t.Di, modo);
}

std::optional<Recomendadas> RecomendadasDistintas(const Captura& c) {
  Tramo t = c.e.tramo;
  if (!c.EsComercial || t.Esp <= 0 || t.Reci <= 0 || t.Rece <= 0 || t.Di <= 0) return std::nullopt;
  const auto mira = [&](ModoGeom modo) {
    return RecomendadosGeom(c, t.Esp, t.Reci, t.Rece, t.Tipologia, t.Di, modo);
  };
  if (mira(ModoGeom::Compara) != kGeomPorCambiar) return std::nullopt;
  mira(ModoGeom::Todo);
  return Recomendadas{t.Esp, t.Reci, t.Rece};
}

std::optional<double> DiametroCercano(const Captura& c) {
  const double D = c.e.tramo.Di * 1000.0;
  const int grupo = GrupoDeTipologia(c.e.tramo.Tipologia);
  if (grupo == 0) return std::nullopt;
  std::optional<double> cercano;
  for (const auto& fila : c.tablas.TablaDimensiones) {
    const bool seFabrica = fila.grupos[static_cast<std::size_t>((grupo - 2) / 3)].Reci != 0;
    if (!seFabrica) continue;
    if (!cercano || std::fabs(fila.Diametro - D) < std::fabs(*cercano - D)) {
      cercano = fila.Diametro;
    }
  }
  if (!cercano) return std::nullopt;
  return *cercano / 1000.0;
}

void PonBandas(Captura& c) {
  const auto& t = c.e.tramo;
  Recomendadas r;
  RecomendadosGeom(c, r.Esp, r.Reci, r.Rece, t.Tipologia, t.Di, ModoGeom::Todo);
  const double margen = t.Di * kToleranciaEspesor * 100.0;
  c.EspRecomMin = c.EsComercial ? Redondea(r.Esp - margen) : 0;
  c.EspRecomMax = c.EsComercial ? Redondea(margen + r.Esp) : 0;
  c.BandaReci = c.EsComercial && t.Tipologia != kRevestida;
  c.BandaRece = c.EsComercial;
}

void CargaListasGeom(Captura& c, int grupo) {
  for (const Ed campo : {Ed::edEsp0, Ed::edReci0, Ed::edRece0}) c[campo].entradas.clear();
  if (grupo == 0) return;
  int reciAnterior = -1;
  int receAnterior = -1;
  const auto anade = [&](Ed campo, int mm) {
    c[campo].entradas.push_back(Formato(c, mm / kMmPorCm, "#####0.0"));
  };
  for (const auto& fila : c.tablas.TablaDimensiones) {
    const auto& g = fila.grupos[static_cast<std::size_t>((grupo - 2) / 3)];
    anade(Ed::edEsp0, g.Esp);
    if (g.Reci != reciAnterior) anade(Ed::edReci0, g.Reci);
    if (g.Rece != receAnterior) anade(Ed::edRece0, g.Rece);
    reciAnterior = g.Reci;
    receAnterior = g.Rece;
  }
}

void CargaListaDiametros(Captura& c) {
  auto& entradas = c[Ed::edDi0].entradas;
  entradas.clear();
  for (const auto& fila : c.tablas.TablaDimensiones) {
    entradas.push_back(Formato(c, fila.Diametro / 1000.0, "#####0.000"));
  }
}

void CalculaDe(Captura& c) {
  auto& t = c.e.tramo;
  t.De = 2.0 * t.Esp / 100.0 + t.Di;
  Escribe(c, Ed::edDe0, t.De, "#####0.000");
}

double AnchoAutomatico(const Tramo& t) {
  return t.De * 1.4 + 0.68;
}

double AnchoAutomatico(const Captura& c) {
  return AnchoAutomatico(c.e.tramo);
}

void RecalculaB0(Captura& c) {
  if (c.e.tramo.TipoColocacion == 2) return;
  c.e.tramo.B0 = AnchoAutomatico(c);
  MuestraVariable(c, Ed::edB0);
}

}  // namespace zorbin
