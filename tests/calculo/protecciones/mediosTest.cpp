// Every band of the method at its edges.
#include <gtest/gtest.h>

#include <cmath>
#include <vector>

#include "base/aritmetica.h"
#include "calculo/protecciones/mdMedios.h"

namespace zorbin {
namespace {

struct Valor {
  Medio medio;
  double v;
};

MuestraMedios Con(const std::vector<Valor>& valores, bool ciclos = false) {
  MuestraMedios m;
  m.valor[kPH] = 7;
  m.ciclos = ciclos;
  for (const auto& x : valores) m.valor[static_cast<std::size_t>(x.medio)] = x.v;
  return m;
}

// "350 SR Si": cement content, cement, additional protection. The ratio follows the content.
std::string Hormigon(const MuestraMedios& m) {
  const auto r = AnalizaMedios(m);
  EXPECT_EQ(r.RelacionAC, r.Dosificacion == 0 ? 0 : r.Dosificacion == 350 ? 0.5 : 0.45);
  return std::to_string(std::lround(r.Dosificacion)) +
         (r.TipoCemento == txt::CementoSR ? " SR" : " Normal") +
         (r.Adicional == txt::RespuestaSi ? " Si" : " No");
}

struct Caso {
  std::vector<Valor> valores;
  const char* hormigon;
};

TEST(Medios, BandasDeLasAguas) {
  const Caso casos[] = {
      {{{kPH, 6.51}}, "0 Normal No"},
      {{{kPH, 6.5}}, "350 Normal No"},
      {{{kPH, 4.5}}, "350 Normal No"},
      {{{kPH, 4.49}}, "400 Normal No"},
      {{{kPH, 4.0}}, "400 Normal No"},
      {{{kPH, 3.99}}, "400 Normal Si"},
      {{{kPH, 0}}, "400 Normal Si"},
      {{{kCO2, 14.99}}, "0 Normal No"},
      {{{kCO2, 15}}, "350 Normal No"},
      {{{kCO2, 60}}, "350 Normal No"},
      {{{kCO2, 60.01}}, "400 Normal No"},
      {{{kCO2, 100}}, "400 Normal No"},
      {{{kCO2, 100.01}}, "400 Normal Si"},
      {{{kNH4, 14.99}}, "0 Normal No"},
      {{{kNH4, 15}}, "350 Normal No"},
      {{{kNH4, 30}}, "350 Normal No"},
      {{{kNH4, 30.01}}, "400 Normal No"},
      {{{kNH4, 60}}, "400 Normal No"},
      {{{kNH4, 60.01}}, "400 Normal Si"},
      {{{kMg, 299.99}}, "0 Normal No"},
      {{{kMg, 300}}, "350 Normal No"},
      {{{kMg, 1500}}, "350 Normal No"},
      {{{kMg, 1500.01}}, "400 Normal No"},
      {{{kMg, 3000}}, "400 Normal No"},
      {{{kMg, 3000.01}}, "400 Normal Si"},
      // The worst of them counts, in whatever order they stand.
      {{{kPH, 4.2}, {kCO2, 20}, {kNH4, 20}, {kMg, 400}}, "400 Normal No"},
      {{{kPH, 3}, {kCO2, 80}, {kNH4, 40}, {kMg, 2000}}, "400 Normal Si"},
      {{{kPH, 5}, {kMg, 2000}}, "400 Normal No"},
      {{{kCO2, 120}, {kNH4, 20}}, "400 Normal Si"},
  };
  for (std::size_t i = 0; i < std::size(casos); ++i) {
    EXPECT_EQ(Hormigon(Con(casos[i].valores)), casos[i].hormigon) << i;
  }
}

TEST(Medios, BandasDeLosSulfatos) {
  const Caso casos[] = {
      {{{kSO4Exterior, 200}}, "0 Normal No"},   {{{kSO4Exterior, 200.01}}, "350 Normal No"},
      {{{kSO4Exterior, 600}}, "350 Normal No"}, {{{kSO4Exterior, 600.01}}, "350 SR No"},
      {{{kSO4Exterior, 3000}}, "350 SR No"},    {{{kSO4Exterior, 3000.01}}, "400 SR No"},
      {{{kSO4Exterior, 6000}}, "400 SR No"},    {{{kSO4Exterior, 6000.01}}, "400 SR Si"},
      {{{kSO4Interior, 200}}, "0 Normal No"},   {{{kSO4Interior, 200.01}}, "350 SR No"},
      {{{kSO4Interior, 600.01}}, "350 SR No"},  {{{kSO4Interior, 3000}}, "350 SR No"},
      {{{kSO4Interior, 3000.01}}, "400 SR No"}, {{{kSO4Interior, 6000.01}}, "400 SR Si"},
      {{{kSO4Suelo, 2000}}, "0 Normal No"},     {{{kSO4Suelo, 2000.01}}, "350 Normal No"},
      {{{kSO4Suelo, 3000}}, "350 Normal No"},   {{{kSO4Suelo, 3000.01}}, "350 SR No"},
      {{{kSO4Suelo, 12000}}, "350 SR No"},      {{{kSO4Suelo, 12000.01}}, "400 SR No"},
  };
  for (std::size_t i = 0; i < std::size(casos); ++i) {
    EXPECT_EQ(Hormigon(Con(casos[i].valores)), casos[i].hormigon) << i;
  }
  EXPECT_EQ(Hormigon(Con({{kSO4Suelo, 12000.01}}, true)), "400 SR Si");
  EXPECT_EQ(Hormigon(Con({{kSO4Suelo, 12000}}, true)), "350 SR No");
}

// Water with pH 4.2 asks for 400, without special cement. The exterior sulphates and those of the
// soil then act only where their requirement is not below; the interior ones ask for the resistant
// cement whatever the content, unless the exterior ones acted in a higher band.
TEST(Medios, ElCementoResistenteDependeDeQuienLoPide) {
  const Caso casos[] = {
      {{{kPH, 4.2}, {kSO4Exterior, 800}}, "400 Normal No"},
      {{{kPH, 4.2}, {kSO4Exterior, 4000}}, "400 SR No"},
      {{{kPH, 5.0}, {kSO4Exterior, 800}}, "350 SR No"},
      {{{kPH, 5.0}, {kSO4Exterior, 400}, {kSO4Interior, 400}}, "350 SR No"},
      {{{kPH, 4.2}, {kSO4Interior, 800}}, "400 SR No"},
      {{{kPH, 4.2}, {kSO4Exterior, 800}, {kSO4Interior, 250}}, "400 SR No"},
      {{{kSO4Exterior, 300}, {kSO4Interior, 300}}, "350 SR No"},
      {{{kSO4Exterior, 800}, {kSO4Interior, 5000}}, "400 SR No"},
      {{{kSO4Exterior, 7000}, {kSO4Interior, 7000}}, "400 SR Si"},
      {{{kPH, 4.2}, {kSO4Suelo, 5000}}, "400 Normal No"},
      {{{kPH, 5.0}, {kSO4Suelo, 5000}}, "350 SR No"},
      {{{kPH, 4.2}, {kSO4Suelo, 13000}}, "400 SR No"},
  };
  for (std::size_t i = 0; i < std::size(casos); ++i) {
    EXPECT_EQ(Hormigon(Con(casos[i].valores)), casos[i].hormigon) << i;
  }
}

TEST(Medios, ResistividadYCorrientes) {
  struct Suelo {
    double resistividad, corriente;
    bool aislar, hay, controlar, medida;
  };
  for (const auto& s :
       {Suelo{0, 0, false, false, false, false}, Suelo{0.01, 0, true, false, false, true},
        Suelo{14.99, 0, true, false, false, true}, Suelo{15, 0, false, false, false, false},
        Suelo{0, 0.01, false, true, false, false}, Suelo{0, 200, false, true, false, false},
        Suelo{0, 200.01, false, true, true, true}}) {
    const auto r = AnalizaMedios(Con({{kResistividad, s.resistividad}, {kCorriente, s.corriente}}));
    EXPECT_EQ(r.AislarTuberia, s.aislar) << s.resistividad;
    EXPECT_EQ(r.HayCorriente, s.hay) << s.corriente;
    EXPECT_EQ(r.ControlarCorriente, s.controlar) << s.corriente;
    EXPECT_EQ(r.HayMedida, s.medida);
  }
  EXPECT_TRUE(AnalizaMedios(Con({{kPH, 6.5}})).HayMedida);
  EXPECT_THROW(AnalizaMedios(Con({{kMg, std::nan("")}})), ErrorEjecucion);
}

}  // namespace
}  // namespace zorbin
