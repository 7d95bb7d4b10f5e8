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

void Calcula(const Obra& obra, const std::vector<TramoPedido>& pedidos, const Catalogo& textos,
             Cuenta& cuenta) {
  std::map<int, Tramo> capturados;
  for (const auto& p : pedidos) capturados[p.posicion] = p.tramo;
  std::ostringstream salida;
  ListadoJson json(salida, "azar.zrb", capturados, textos, {obra.EsSI(), ','});
  json.EmpiezaObra(obra);
  for (const auto& p : pedidos) {
    const auto datos = DatosDeCalculo(obra, p.tramo);
    const auto resultado = CalculaTramo(datos, RangoDe(datos));
    json.Tramo(resultado, p.posicion, p.numero, {});
    cuenta.Suma(resultado.fallo ? "fallos con nombre" : "calculados");
  }
  json.AcabaObra();
  EXPECT_EQ(HuecoDeJson(salida.str()), "");
}

// The Tramos that the rules take, with what they complete.
std::vector<TramoPedido> Comprobados(const Proyecto& proyecto, const ListaFaltas& lista,
                                     Cuenta& cuenta) {
  auto pedidos = TramosPedidos(proyecto);
  EXPECT_EQ(pedidos.size(), std::size_t{kTramosPorObra});
  const auto rechazados =
      std::erase_if(pedidos, [&](const TramoPedido& p) { return !lista.Vale(p.posicion); });
  for (auto& p : pedidos) p.tramo = lista.tramos.at(p.posicion);
  for (std::size_t i = 0; i < rechazados; ++i) cuenta.Suma("rechazados");
  return pedidos;
}

std::optional<Proyecto> Abre(const std::filesystem::path& ruta, const Catalogo& textos, int n) {
  try {
    return LeeProyecto(ruta);
  } catch (const ErrorFichero& error) {
    EXPECT_FALSE(textos.Compone(error.mensaje()).empty());
    EXPECT_TRUE(n % 4 == 3 || n % 3 == 0) << textos.Compone(error.mensaje());
    return std::nullopt;
  }
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
    const auto proyecto = Abre(ruta, textos, n);
    if (!proyecto) {
      cuenta.Suma("Obras que se rechazan al abrirlas");
      continue;
    }
    const auto lista = ValidaProyecto(*proyecto, textos, tablas, {});
    for (const auto& falta : lista.faltas) EXPECT_FALSE(falta.mensaje.empty());
    Obra comprobada = proyecto->obra;
    PonComprobada(comprobada, lista.obra);
    Calcula(comprobada, Comprobados(*proyecto, lista, cuenta), textos, cuenta);
    Calcula(proyecto->obra, TramosPedidos(*proyecto), textos, cuenta);
    EXPECT_EQ(Bytes(ruta), antes);
  }
  cuenta.Imprime(std::to_string(ficheros) + " Obras en fichero, validadas y sin validar");
}

}  // namespace
}  // namespace zorbin::pruebas
