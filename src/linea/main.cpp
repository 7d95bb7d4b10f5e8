// zorbin-calc: the calculation without a window.
#include <iostream>

#include "linea/mdCalcula.h"
#include "linea/mdPalabras.h"
#include "recursos/mdCarpetas.h"
#include "recursos/textos.h"

namespace {

int Corre(int argc, char** argv) {
  using namespace zorbin;
  Catalogo textos = Catalogo::Lee(CarpetaRecursos() / "textos");
  CLI::App app(textos.Texto(txt::Descripcion), "zorbin-calc");
  app.option_defaults()->group(textos.Texto(txt::Opciones));
  app.set_help_flag("-h,--help", textos.Texto(txt::AyudaAyuda));
  app.set_version_flag("--version", "zorbin-calc " ZORBIN_VERSION, textos.Texto(txt::AyudaVersion));
  app.require_subcommand(1);
  PonRotulosDeAyuda(app, textos);

  OpcionesCalcula o;
  auto* calcula = app.add_subcommand("calcula", textos.Texto(txt::CalculaUnaObra));
  calcula->group(textos.Texto(txt::Ordenes));
  calcula->set_help_flag("-h,--help", textos.Texto(txt::AyudaAyuda))
      ->group(textos.Texto(txt::Opciones));
  calcula->add_option("OBRA.zrb", o.obra, textos.Texto(txt::AyudaFichero))
      ->required()
      ->type_name("");
  calcula->add_option("--tramo", o.tramos, textos.Texto(txt::AyudaTramo))
      ->type_name("N")
      ->expected(1)
      ->multi_option_policy(CLI::MultiOptionPolicy::TakeAll);
  calcula->add_option("--formato", o.formato, textos.Texto(txt::AyudaFormato))
      ->type_name("resumen|json")
      ->check(UnoDe({"resumen", "json"}, textos, "--formato"));
  calcula->add_option("--listado", o.listado, textos.Texto(txt::AyudaListado))
      ->type_name("normal|tabular|pantalla|lame")
      ->check(UnoDe({"normal", "tabular", "pantalla", "lame"}, textos, "--listado"));
  calcula->add_option("--pdf", o.pdf, textos.Texto(txt::AyudaPdf))->type_name("FICHERO");
  calcula->add_option("--texto", o.texto, textos.Texto(txt::AyudaTexto))->type_name("FICHERO");
  calcula->add_option("--idioma", o.idioma, textos.Texto(txt::AyudaIdioma))
      ->type_name("es|en|ca|pt|fr")
      ->check(UnoDe({"es", "en", "ca", "pt", "fr"}, textos, "--idioma"));
  calcula->add_option("--fecha", o.fecha, textos.Texto(txt::AyudaFecha))->type_name("FECHA");
  calcula->add_option("--salida", o.salida, textos.Texto(txt::AyudaSalida))->type_name("FICHERO");
  calcula->add_option("--separador", o.separador, textos.Texto(txt::AyudaSeparador))
      ->type_name("coma|punto")
      ->check(UnoDe({"coma", "punto"}, textos, "--separador"));
  calcula->add_option("--registros", o.registros, textos.Texto(txt::AyudaRegistros))
      ->type_name("CARPETA");

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
