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

TEST(Unidades, LaCorridaVeMksYLaPantallaRecuperaLoSuyo) {
  EstadoCalculo e;
  e.obra.SisUnid = "SI";
  e.obra.Prs1 = 0.6;
  e.obra.Prs3 = 0.12;
  e.tramo.Fck = 35;
  e.tramo.Fct = FctDeFck(35);
  e.tramo.QDato = 0.05;
  const auto antes = e;
  {
    const EnUnidadesDeCalculo dentro(e);
    EXPECT_TRUE(e.corrida.ParaCalculoActivo);
    EXPECT_DOUBLE_EQ(e.obra.Prs1, 6);
    EXPECT_DOUBLE_EQ(e.tramo.Fck, 350);
    EXPECT_NEAR(e.tramo.Fct, 22.349, 1e-3);  // 0.45·350^(2/3)
    EXPECT_DOUBLE_EQ(e.tramo.QDato, 5);      // t/m2
    EXPECT_DOUBLE_EQ(e.corrida.IncDP, 1.2);  // no pressure range: the slope is 1
  }
  EXPECT_EQ(e.obra.Prs1, antes.obra.Prs1);
  EXPECT_EQ(e.tramo.Fck, 35);
  EXPECT_NEAR(e.tramo.Fct, 2.2349, 1e-4);  // a tenth of the one of the run
  EXPECT_EQ(e.tramo.QDato, 0.05);

  e.obra.SisUnid = "MKS";
  e.tramo.Fct = 22;
  const EnUnidadesDeCalculo dentro(e);
  EXPECT_EQ(e.tramo.Fck, 35);
  EXPECT_EQ(e.tramo.Fct, 22);  // left as it is
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

// Which pressures apply is decided by four fields, which increment by two.
TEST(Unidades, RangoYPasoDePresiones) {
  EstadoCalculo e;
  e.obra.SisUnid = "MKS";
  e.obra.Prs1 = 4, e.obra.Prs2 = 6, e.obra.PrsM1 = 5, e.obra.PrsM2 = 9, e.obra.Prs3 = 2;
  e.tramo.Prs3Tram = 3;
  { const EnUnidadesDeCalculo dentro(e); }
  EXPECT_EQ(e.corrida.PendienteMDP, 2);
  EXPECT_EQ(e.corrida.IncDP, 1);
  e.tramo.PrsM2Tram = 8;  // only an MDP of its own: the range is the Tramo's, the step the Obra's
  { const EnUnidadesDeCalculo dentro(e); }
  EXPECT_EQ(e.corrida.DPFin, 0);
  EXPECT_EQ(e.corrida.PendienteMDP, 1);
  EXPECT_EQ(e.corrida.IncDP, 2);
  e.tramo.Prs2Tram = 4;
  { const EnUnidadesDeCalculo dentro(e); }
  EXPECT_EQ(e.corrida.IncDP, 1.5);
  e.tramo.PrsM1Tram = 8;  // a range of DP without one of MDP
  { const EnUnidadesDeCalculo dentro(e); }
  EXPECT_TRUE(e.corrida.IncDPIndefinido);
}

}  // namespace
}  // namespace zorbin
