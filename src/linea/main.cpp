// zorbin-calc: the calculation without a window.
#include <iostream>

#include "linea/mdCalcula.h"
#include "linea/mdPalabras.h"
#include "recursos/textos.h"

namespace {

int Corre(int argc, char** argv) {
  using namespace zorbin;
  Catalogo textos = Catalogo::Lee(CarpetaRecursos() / "textos");
  CLI::App app(textos.Texto(txt::Descripcion), "zorbin-calc");
  app.set_help_flag("-h,--help", textos.Texto(txt::AyudaAyuda));
  app.set_version_flag("--version", "zorbin-calc " ZORBIN_VERSION, textos.Texto(txt::AyudaVersion));
  app.require_subcommand(1);
  PonRotulosDeAyuda(app, textos);

  OpcionesCalcula o;
  auto* calcula = app.add_subcommand("calcula", textos.Texto(txt::CalculaUnaObra));
  calcula->add_option("OBRA.zrb", o.obra, textos.Texto(txt::AyudaFichero))->required();
  calcula->add_option("--tramo", o.tramos, textos.Texto(txt::AyudaTramo))
      ->expected(1)->multi_option_policy(CLI::MultiOptionPolicy::TakeAll);
  calcula->add_option("--formato", o.formato, textos.Texto(txt::AyudaFormato))
      ->check(UnoDe({"resumen", "json"}, textos, "--formato"));
  calcula->add_option("--salida", o.salida, textos.Texto(txt::AyudaSalida));
  calcula->add_option("--separador", o.separador, textos.Texto(txt::AyudaSeparador))
      ->check(UnoDe({"coma", "punto"}, textos, "--separador"));
  calcula->add_option("--registros", o.registros, textos.Texto(txt::AyudaRegistros));

  try {
    app.parse(argc, argv);
  } catch (const CLI::Success& ayuda) {
    return app.exit(ayuda);
  } catch (const CLI::ParseError& error) {
    std::cerr << "zorbin-calc: " << TextoPalabrasMalas(error, textos) << ". "
              << textos.Compone(txt::VeaLaAyuda, {"zorbin-calc"}) << '\n';
    return kPalabrasMalas;
  }
  return Calcula(o, textos);
}

}  // namespace

int main(int argc, char** argv) try {
  return Corre(argc, argv);
} catch (const zorbin::ErrorCatalogo& error) {
  // Without the catalogue there is no text to say it with.
  std::cerr << "zorbin-calc: " << error.what() << '\n';
  return zorbin::kFicheroRechazado;
}
