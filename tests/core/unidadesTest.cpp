#include "core/mdUnidades.h"

#include <gtest/gtest.h>

namespace zorbin {
namespace {

TEST(Unidades, ConversionesDeLosListados) {
  struct Fila {
    const char* conversion;
    bool si;
    int decimales;
    double valor;
    const char* unidad;
    int quedan;
  };
  for (const auto& f :
       {Fila{"at->MPa", true, 1, 0.6, "MPa", 3}, Fila{"at->MPa", false, 1, 6, "at", 2},
        Fila{"Kp/cm2->MPa", true, 0, 0.6, "MPa", 1}, Fila{"Kp/cm2->MPa", false, 0, 6, "kp/cm2", 0},
        Fila{"T/M2->MPa", true, 1, 0.06, "MPa", 2}, Fila{"T/M2->kN/M2", true, 0, 60, "kN/M2", 0},
        Fila{"T/M2->kN/M2", true, 3, 60, "kN/M2", 2}, Fila{"T->kN", true, 3, 60, "kN", 2},
        Fila{"T->kN", false, 3, 6, "t", 3}, Fila{"mT->mkN", true, 3, 60, "m.kN", 2},
        Fila{"kp/cm->N/cm", true, 1, 60, "N/cm", 0},
        Fila{"kp.cm/cm->N.m/cm", true, 2, 0.6, "N.m/cm", 3},
        Fila{"kp.cm/cm->N.m/cm", true, 0, 0.6, "N.m/cm", 0}, Fila{"", true, 2, 6, "", 2}}) {
    std::string unidad = "x";
    int decimales = f.decimales;
    EXPECT_DOUBLE_EQ(Convierte(6.0, f.conversion, f.si, unidad, decimales), f.valor)
        << f.conversion;
    EXPECT_EQ(unidad, f.unidad) << f.conversion;
    EXPECT_EQ(decimales, f.quedan) << f.conversion;
  }
  std::string unidad = "x";
  int decimales = 1;
  EXPECT_EQ(Convierte(6.0, "AT->MPA", true, unidad, decimales), -999999999.0);
  EXPECT_EQ(unidad, "x");
}

TEST(Unidades, LoQueSeCalculaEstaEnMks) {
  Obra o;
  o.SisUnid = "SI";
  o.Prs1 = 0.6;
  Tramo t;
  t.Fck = 35;
  t.Fct = FctDeFck(35);
  t.QDato = 0.05;
  EXPECT_DOUBLE_EQ(ObraEnCalculo(o).Prs1, 6);
  const auto si = TramoEnCalculo(t, true);
  EXPECT_DOUBLE_EQ(si.Fck, 350);
  EXPECT_NEAR(si.Fct, 22.349, 1e-3);  // 0.45·350^(2/3), not ten times that of 35
  EXPECT_DOUBLE_EQ(si.QDato, 5);      // t/m2
  o.SisUnid = "MKS";
  t.Fct = 22;
  EXPECT_EQ(ObraEnCalculo(o).Prs1, 0.6);
  EXPECT_EQ(TramoEnCalculo(t, false).Fck, 35);
  EXPECT_EQ(TramoEnCalculo(t, false).Fct, 22);  // left as it is
}

// A last height that no Caso has is a pipe that nobody calculated; the step offered must reach it.
TEST(Unidades, UltimaAlturaQueLosPasosNoAlcanzan) {
  struct Fila {
    double primera, ultima, paso;
    double alcanzada, incremento;  // 0 and 0: it is reached, or there is no range
  };
  for (const auto& f :
       {Fila{2, 5.5, 1, 5, 0.7}, Fila{1, 2, 0.3, 1.9, 0.25}, Fila{3, 3.5, 2, 3, 0.5},
        Fila{2, 5, 1, 0, 0}, Fila{1, 2, 0.335, 0, 0}, Fila{3, 3, 0, 0, 0}, Fila{3, 0, 1, 0, 0}}) {
    const auto fuera = AlturaFueraDe(f.primera, f.ultima, f.paso);
    ASSERT_EQ(fuera.has_value(), f.alcanzada > 0) << f.primera << " " << f.paso;
    if (!fuera) continue;
    EXPECT_NEAR(fuera->alcanzada, f.alcanzada, 1e-12);
    EXPECT_NEAR(fuera->incremento, f.incremento, 1e-12);
    EXPECT_FALSE(AlturaFueraDe(f.primera, f.ultima, fuera->incremento));
  }
}

}  // namespace
}  // namespace zorbin
