// Random Obras through their files, as the command line takes them: written, opened, validated,
// calculated, with and without validation.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <sstream>

#include "azar/generador.h"
#include "azar/oraculo.h"
#include "base/mdTextos.h"
#include "listados/datos/mdJson.h"
#include "sesion/captura/guion.h"
#include "sesion/captura/mdFaltas.h"

namespace zorbin::pruebas {
namespace {

constexpr int kTramosPorObra = 24;

// Whether the reader takes the numbers of a Tramo: a file is refused whole by one that it does not.
bool Legible(const EstadoCalculo& e) {
  for (const auto& c : kNumerosTramo) {
    if (std::fabs(e.tramo.*c.campo) > kMayorTecleado) return false;
  }
  return e.tramo.Tipologia != 0;
}

// A Tramo of each class in turn; the Obra is plausible in two files of three. In one file of four
// there are Tramos that its reader refuses.
bool Escribe(const std::filesystem::path& ruta, const Catalogo& textos, int numero,
             Cuenta& cuenta) {
  const auto base = EstadoAlAzar(kClases[numero % 3 == 0 ? 1 : 0], numero);
  ListaTramos lista;
  for (int i = 1; i <= kTramosPorObra; ++i) lista.push_back(TextoEntero(i * 3));
  FicheroRegistros f(ruta, FicheroRegistros::Modo::LecturaEscritura);
  Transaccion transaccion(f);
  try {
    EscribeObra(f, base, lista, textos, ',');
  } catch (const ErrorFichero&) {
    cuenta.Suma("Obras que no se pueden guardar");
    return false;
  }
  for (int i = 1; i <= kTramosPorObra; ++i) {
    auto e = EstadoAlAzar(kClases[static_cast<std::size_t>(i % 3)], numero * kTramosPorObra + i);
    e.obra = base.obra;
    if (numero % 4 != 3 && !Legible(e)) e.tramo = EstadoAlAzar(Clase::Plausible, i).tramo;
    EscribeTramo(f, e, lista, i, ',');
  }
  transaccion.Confirma();
  return true;
}

class Recuento : public ListadoJson {
 public:
  Recuento(std::ostream& salida, const Catalogo& textos, bool si, Cuenta& cuenta)
      : ListadoJson(salida, "azar.zrb", textos, {si, ','}), cuenta_(cuenta) {}
  void AcabaTramo(const EstadoCalculo& e, const ErrorCorrida* fallo) override {
    ListadoJson::AcabaTramo(e, fallo);
    cuenta_.Suma(fallo != nullptr ? "fallos con nombre" : "calculados");
    ++tramos;
  }
  int tramos = 0;

 private:
  Cuenta& cuenta_;
};

void Calcula(const std::filesystem::path& ruta, const PeticionCalculo& peticion,
             const Catalogo& textos, const ListaFaltas* lista, Cuenta& cuenta) {
  EstadoCalculo e;
  const auto obra = AbreObra(e, ruta);
  if (lista != nullptr) PonComprobada(e.obra, lista->obra);
  std::ostringstream salida;
  Recuento recuento(salida, textos, e.obra.EsSI(), cuenta);
  CalculaObra(e, obra, peticion, recuento);
  EXPECT_EQ(recuento.tramos + static_cast<int>(peticion.omitidas.size()), kTramosPorObra);
  EXPECT_EQ(HuecoDeJson(salida.str()), "");
}

TEST(AzarPorFichero, SeGuardanSeCompruebanYSeCalculan) {
  prueba::Carpeta carpeta;
  Catalogo textos = Catalogo::Lee(ZORBIN_FUENTES "recursos/textos");
  const auto tablas = LeeTablas(ZORBIN_FUENTES "recursos/tablas");
  Cuenta cuenta;
  const int ficheros = std::max(3, Cuantos() / 200);
  for (int n = Desde(); n < Desde() + ficheros && !HasFailure(); ++n) {
    SCOPED_TRACE("fichero " + std::to_string(n));
    const Vigilante vigilante("fichero " + std::to_string(n));
    const auto ruta = carpeta / ("o" + std::to_string(n) + ".zrb");
    if (!Escribe(ruta, textos, n, cuenta)) continue;
    const auto antes = Bytes(ruta);
    try {
      EstadoCalculo e;
      AbreObra(e, ruta);
    } catch (const ErrorFichero& error) {
      EXPECT_FALSE(textos.Compone(error.mensaje()).empty());
      EXPECT_TRUE(n % 4 == 3 || n % 3 == 0) << textos.Compone(error.mensaje());
      cuenta.Suma("Obras que se rechazan al abrirlas");
      continue;
    }
    const auto lista = ValidaObraEnFichero(ruta, textos, tablas, {});
    PeticionCalculo peticion{{}, carpeta / "registros", {}, lista.tramos};
    for (int i = 1; i <= kTramosPorObra; ++i) {
      if (!lista.Vale(i)) peticion.omitidas.push_back(i);
    }
    for (const auto& falta : lista.faltas) EXPECT_FALSE(falta.mensaje.empty());
    Calcula(ruta, peticion, textos, &lista, cuenta);
    for (std::size_t i = 0; i < peticion.omitidas.size(); ++i) cuenta.Suma("rechazados");
    Calcula(ruta, {{}, carpeta / "registros", {}, {}}, textos, nullptr, cuenta);
    EXPECT_EQ(Bytes(ruta), antes);
    std::filesystem::remove_all(carpeta / "registros");
  }
  cuenta.Imprime(std::to_string(ficheros) + " Obras en fichero, validadas y sin validar");
}

}  // namespace
}  // namespace zorbin::pruebas
