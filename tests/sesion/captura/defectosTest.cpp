// What a new Obra and a new Tramo start with, and what a field left blank takes.
#include <gtest/gtest.h>

#include "sesion/captura/guion.h"
#include "sesion/captura/mdTipologias.h"

namespace zorbin::prueba {
namespace {

using enum Ed;

struct Defecto {
  Ed campo;
  double si, mks;  // in the unit of the field
};

// Characteristic strengths in kp/cm2 and MPa, partial factors, sheet, wire, creep and shrinkage,
// unit weights and friction angle that pipes and fills commonly have.
const std::vector<Defecto> kArmado{
    {edCamMax, 6.0, 6.0},   {edGamaB, 1.5, 1.5},    {edFck, 35.0, 350.0}, {edFct, 2.2349, 22.349},
    {edFyk, 210.0, 2100.0}, {edFyd, 140.0, 1400.0}, {edGc0, 2.5, 2.5},    {edGr0, 1.8, 1.8},
    {edFi0, 30.0, 30.0},    {edQDato0, 0.0, 0.0}};
const std::vector<Defecto> kPostesado{
    {edDelca, 1.5, 1.5},        {edRel, 2.0, 2.0},           {edFic, 1.5, 1.5},
    {edFir, 0.75, 0.75},        {edEpsc, 0.0002, 0.0002},    {edEpsr, 0.0003, 0.0003},
    {edFyk, 210.0, 2100.0},     {edEs, 210000.0, 2100000.0}, {edEp, 200000.0, 2000000.0},
    {edFYKPost, 210.0, 2100.0}, {edFckno, 30.0, 300.0},      {edFckn, 40.0, 400.0},
    {edFckr, 35.0, 350.0},      {edSFck, 1700.0, 17000.0},   {edSf, 1275.0, 12750.0}};

void Mira(Captura& c, const std::vector<Defecto>& defectos) {
  for (const auto& d : defectos) {
    const double espera = c.EsSI() ? d.si : d.mks;
    EXPECT_NEAR(Variable(c, d.campo), espera, 1e-3 * espera) << Fila(d.campo).nombre;
  }
}

// Fields that follow from others have none of their own.
bool TomaElSuyo(Ed campo) {
  return campo != edFct && campo != edFyd && campo != edSf && campo != edQDato0;
}

void MiraEnBlanco(Captura& c, const std::vector<Defecto>& defectos) {
  for (const auto& d : defectos) {
    if (!TomaElSuyo(d.campo)) continue;
    c[d.campo].texto.clear();
    Variable(c, d.campo) = 0.0;
    Entra(c, d.campo);
    const double espera = c.EsSI() ? d.si : d.mks;
    EXPECT_NEAR(Variable(c, d.campo), espera, 1e-3 * espera) << Fila(d.campo).nombre;
  }
}

TEST(Defectos, ConLosQueEmpiezanObraYTramo) {
  for (const int sistema : {0, 1}) {
    SCOPED_TRACE(sistema == 0 ? "SI" : "MKS");
    Banco b;
    EXPECT_EQ(b.e.obra.SisUnid, "SI");
    EXPECT_EQ(b.e.obra.Alt1, 3.0);
    EXPECT_TRUE(b.e.obra.GolpeCalculado);
    EligeOpcion(b.c, rdSistemaUnidades, sistema);
    b.ObraYTramo();
    const auto& t = b.e.tramo;
    EXPECT_EQ(t.Tipologia, kArmada);
    EXPECT_EQ(std::vector<int>({t.TipoControl, t.TipoCamisa, t.TipoColocacion, t.TipoCuna,
                                t.TipoApoyo, t.TipoRelleno, t.ICar}),
              (std::vector<int>{1, 2, 0, 1, 12, 21, 2}));
    EXPECT_EQ(b.c[edICar0].texto, "Eje de 13 Toneladas");
    Mira(b.c, kArmado);
    MiraEnBlanco(b.c, kArmado);
    b.Olvida();
    EligeOpcion(b.c, rdTipologia, 1);
    Mira(b.c, kPostesado);
    MiraEnBlanco(b.c, kPostesado);
  }
}

}  // namespace
}  // namespace zorbin::prueba
