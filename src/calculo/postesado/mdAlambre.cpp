#include "calculo/postesado/mdAlambre.h"

#include "core/campos/tramo.h"

namespace zorbin {

namespace {

constexpr double kPiFuerza = 3.14159265;     // π of the force of a wire; its section has another
constexpr double kFraccionPerdonada = 0.02;  // of a spiral [1/m]
constexpr int kAlambre5mm = 2;               // the thinnest that is wound
constexpr double kReserva = 0.9;             // on the greatest force of the second and third wire

struct FilaAlambre {
  double Diametro;         // [mm]
  double EspMax;           // largest clear distance [mm]
  double EspMaxRevestida;  // the same with lined cylinder [mm]
  double EspMin;           // smallest clear distance [mm]
};

constexpr Lista<FilaAlambre, kAlambres> kTabla{{{
    {4, 46, 46, 4},
    {5, 45, 45, 5},
    {6, 44, 19, 6},
    {7, 43, 18, 6},
}}};

double EspirasMinimas(int i) {
  return EspirasPorMetro(kTabla(i).Diametro, kTabla(i).EspMax / 10.0);
}
double EspirasMaximas(int i) {
  return EspirasPorMetro(kTabla(i).Diametro, kTabla(i).EspMin / 10.0);
}

}  // namespace

double EspirasPorMetro(double d, double s) {
  return Div(100.0, d / 10.0 + s);
}

double LuzEspiras(double f, double n, Rastro* rastro) {
  const double luz = Div(100.0 - f * n, n);
  if (rastro) rastro->Anota(Formula::LuzEspiras, {f, n}, luz);
  return luz;
}

double EspirasEnteras(double NESP) {
  const double I = Int(NESP);
  return I + kFraccionPerdonada < NESP ? I + 1.0 : NESP;
}

double EspMinimo(int i) {
  return kTabla(i).EspMin;
}

Alambre AlambreMasAbierto(int i, std::int16_t Tipologia, Rastro* rastro) {
  const auto& f = kTabla(i);
  const double espMax = Tipologia == kRevestida ? f.EspMaxRevestida : f.EspMax;
  const double espiras = EspirasPorMetro(f.Diametro, espMax / 10.0);
  if (rastro) rastro->Anota(Formula::EspirasPorMetro, {f.Diametro, espMax}, espiras);
  return {f.Diametro / 10.0, espiras};
}

RangosFuerza CalculaRangos(double SFck) {
  const auto Fa = [SFck](int i) { return FuerzaAlambre(kTabla(i).Diametro, kPiFuerza, SFck); };
  RangosFuerza r;
  r.FuerzaMin(1) = EspirasMinimas(1) * Fa(1);
  r.FuerzaMin(2) = EspirasMinimas(2) * Fa(2);
  r.FuerzaMax(1) = r.FuerzaMin(2);
  r.FuerzaMax(2) = kReserva * Fa(2) * EspirasMaximas(2);
  r.FuerzaMin(3) = r.FuerzaMax(2);
  r.FuerzaMax(3) = kReserva * Fa(3) * EspirasMaximas(3);
  r.FuerzaMin(4) = r.FuerzaMax(3);
  r.FuerzaMax(4) = EspirasMaximas(4) * Fa(4);  // the last wire has no other to follow it
  return r;
}

std::optional<AlambreElegido> PrimerAlambre(double FuerzaAnillo, double SFck,
                                            std::int16_t Tipologia, Rastro* rastro) {
  const RangosFuerza r = CalculaRangos(SFck);
  const auto elige = [Tipologia, rastro](int idx, int fila) {
    return AlambreElegido{idx, AlambreMasAbierto(fila, Tipologia, rastro)};
  };
  if (FuerzaAnillo < r.FuerzaMin(1)) {
    if (rastro) rastro->Anota(Formula::AlambreHasta, {FuerzaAnillo, r.FuerzaMin(1)});
    return elige(1, kAlambre5mm);
  }
  for (int i = 1; i <= kAlambres; ++i) {
    if (!(r.FuerzaMin(i) <= FuerzaAnillo && FuerzaAnillo < r.FuerzaMax(i))) continue;
    if (rastro) {
      rastro->Anota(Formula::AlambreDesde, {FuerzaAnillo, r.FuerzaMin(i)});
      rastro->Anota(Formula::AlambreHasta, {FuerzaAnillo, r.FuerzaMax(i)});
    }
    return i == 1 ? elige(kAlambre5mm, kAlambre5mm) : elige(i, i);
  }
  if (rastro) rastro->Anota(Formula::SinAlambre, {FuerzaAnillo, r.FuerzaMax(kAlambres)});
  return std::nullopt;
}

}  // namespace zorbin
