// A hand that presses, chooses and types whatever is open on the screen of adjustments, over random
// reinforced Tramos.
#include <gtest/gtest.h>

#include <algorithm>

#include "azar/generador.h"
#include "azar/oraculo.h"
#include "base/mdTextos.h"
#include "persistencia/zrb/mdZrb.h"
#include "sesion/ajustes/mdAjuste.h"
#include "sesion/ajustes/mdPared.h"
#include "sesion/captura/guion.h"

namespace zorbin::pruebas {
namespace {

constexpr int kTramos = 12;
constexpr int kGestos = 40;

bool EsArmadoLegible(const EstadoCalculo& e) {
  const auto pequeno = [](double x) { return std::abs(x) <= kMayorTecleado; };
  return e.tramo.Tipologia == 1210 &&
         std::all_of(kNumerosTramo.begin(), kNumerosTramo.end(),
                     [&](const auto& c) { return pequeno(e.tramo.*c.campo); });
}

// An Obra of reinforced Tramos, plausible and spoilt by turns.
void Escribe(const std::filesystem::path& ruta, const Catalogo& textos, int numero) {
  ListaTramos lista;
  for (int i = 1; i <= kTramos; ++i) lista.push_back(TextoEntero(i));
  FicheroRegistros f(ruta, FicheroRegistros::Modo::LecturaEscritura);
  Transaccion transaccion(f);
  const auto base = EstadoAlAzar(Clase::Plausible, numero);
  EscribeObra(f, base, lista, textos, ',');
  int indice = numero * 1000;
  for (int i = 1; i <= kTramos; ++i) {
    EstadoCalculo e;
    do {
      e = EstadoAlAzar(i % 2 == 0 ? Clase::Estropeado : Clase::Plausible, ++indice);
    } while (!EsArmadoLegible(e));
    e.obra = base.obra;
    EscribeTramo(f, e, lista, i, ',');
  }
  transaccion.Confirma();
}

// What the program wrote; a field that is typed in keeps what was typed.
std::string TextosDe(const ModeloAjustes& m) {
  std::string todo = m.txAltura + "\n" + m.txPresion + "\n" + m.aviso + "\n" + m.tbHRaCalcular +
                     "\n" + m.tbPRSaCalcular;
  for (int i = 0; i < kFilasAjuste; ++i) {
    const auto& f = m.filas[static_cast<std::size_t>(i)];
    todo += "\n" + f.txArmTotal;
    if (i != kFilaDirecta) {
      todo += "\n" + f.txArmCamisa + "\n" + f.txArmRefuerzo + "\n" + f.txArmExterior;
    }
  }
  for (const auto& l : m.lineas) todo += "\n" + l.txArmNecesaria + "\n" + l.txArmDispuesta;
  for (const auto& a : m.avisosDelCaso) todo += "\n" + a;
  return todo;
}

// One gesture. @return whether the screen stays open
bool Gesto(Ajustes& a, Azar& azar) {
  switch (azar.Entre(0, 3)) {
    case 0:
      EligeFila(a, azar.Entre(0, kFilasAjuste - 1));
      return true;
    case 1: {
      const auto campo = static_cast<CampoAjuste>(azar.Entre(0, kCamposAjuste - 1));
      if (!a.t.pantalla.Abierto(campo)) return true;
      Cambia(a, campo, azar.Toca(0.5) ? TextoEntero(azar.Entre(1, 40)) : TextoImposible(azar));
      Sale(a, campo);
      return true;
    }
    default:
      return !Pulsa(a, static_cast<BotonAjuste>(azar.Entre(0, kBotonesAjuste - 1)));
  }
}

TEST(AzarAjustes, UnaManoQueTocaTodo) {
  prueba::Carpeta carpeta;
  Cuenta cuenta;
  const int obras = std::max(2, Cuantos() / 150);
  for (int n = Desde(); n < Desde() + obras && !HasFailure(); ++n) {
    prueba::Banco b;
    const auto ruta = carpeta / ("o" + std::to_string(n) + ".zrb");
    Escribe(ruta, b.textos, n);
    ASSERT_TRUE(AbreObra(b.c, ruta)) << b.voz.Ultimo();
    for (int i = 1; i <= kTramos && !HasFailure(); ++i) {
      const std::string nombre = "obra " + std::to_string(n) + ", Tramo " + std::to_string(i);
      SCOPED_TRACE(nombre);
      const Vigilante vigilante("ajustes, " + nombre);
      b.Teclea(Ed::edTramo, std::to_string(i));
      auto a = AjustaArmaduras(b.c, carpeta / "registros");
      cuenta.Suma(a ? "abiertos" : "rechazados");
      if (!a) {
        EXPECT_FALSE(b.c.faltas.empty() && b.voz.mensajes.empty());
        continue;
      }
      const auto antes = b.e;  // with what the validation completed
      Azar azar(static_cast<std::uint64_t>(n * 1000 + i));
      for (int g = 0; g < kGestos; ++g) {
        const bool sigue = Gesto(*a, azar);
        EXPECT_EQ(Basura(TextosDe(a->t.pantalla), false), "") << "gesto " << g;
        ParedElegida(*a);
        cuenta.Suma("gestos");
        if (!sigue) break;
      }
      EXPECT_EQ(Diferencias(antes, b.e), "");
      b.Olvida();
    }
  }
  cuenta.Imprime("ajustes a mano");
}

}  // namespace
}  // namespace zorbin::pruebas
