// zorbin-calc: the calculation without a window.
#include <cerrno>
#include <clocale>
#include <csignal>
#include <iostream>

#include "base/mdCarpetas.h"
#include "base/textos.h"
#include "listados/datos/mdTablaCasos.h"
#include "persistencia/disco/mdDescriptor.h"
#include "programas/zorbin-calc/mdAyuda.h"
#include "programas/zorbin-calc/mdCalcula.h"
#include "programas/zorbin-calc/mdCalculadoras.h"
#include "programas/zorbin-calc/mdDibuja.h"
#include "programas/zorbin-calc/mdImportaDatos.h"
#include "programas/zorbin-calc/mdListaAjustes.h"
#include "programas/zorbin-calc/mdMediciones.h"
#include "programas/zorbin-calc/mdPalabras.h"
#include "programas/zorbin-calc/mdRescata.h"
#include "programas/zorbin-calc/mdValida.h"
#include "programas/zorbin-calc/mdVigia.h"

namespace {

using namespace zorbin;

constexpr int kMaxHilos = 1024;

// Declares the words of the command line; each order fills its options.
class Ordenes {
 public:
  explicit Ordenes(Catalogo& textos) : textos_(textos), app_(T(txt::Descripcion), "zorbin-calc") {
    std::setlocale(LC_MESSAGES, "");  // the words of the system in the language of the machine
    app_.option_defaults()
        ->group(T(txt::Opciones))
        ->multi_option_policy(CLI::MultiOptionPolicy::TakeLast);
    app_.set_help_flag("-h,--help", T(txt::AyudaAyuda));
    app_.set_version_flag("--version", "zorbin-calc " ZORBIN_VERSION, T(txt::AyudaVersion));
    app_.require_subcommand(1);
    PonRotulosDeAyuda(app_, textos_);
    DeclaraCalcula();
    DeclaraValida();
    DeclaraAjustes();
    DeclaraRescata();
    DeclaraDibuja();
    DeclaraMediciones();
    DeclaraImporta();
    DeclaraHidraulica();
    DeclaraMedios();
  }

  int Corre(int argc, char** argv) {
    try {
      app_.parse(argc, argv);
    } catch (const CLI::Success& ayuda) {
      app_.exit(ayuda);
      if (std::cout.flush()) return kHecho;
      Queja(textos_.Compone(txt::SalidaNoSeEscribe, {"stdout", TextoDeCausa(errno)}));
      return kSalidaImposible;
    } catch (const CLI::ParseError& error) {
      Queja(TextoPalabrasMalas(error, textos_) + ". " +
            textos_.Compone(txt::VeaLaAyuda, {"zorbin-calc"}));
      return kPalabrasMalas;
    }
    try {
      return Haz();
    } catch (const std::exception& error) {
      Queja(textos_.Compone(txt::FalloInesperado, {error.what()}));
      return kFalloDeCorrida;
    }
  }

 private:
  Catalogo& textos_;
  CLI::App app_;
  CLI::App* calcula_ = nullptr;
  CLI::App* valida_ = nullptr;
  CLI::App* ajustes_ = nullptr;
  CLI::App* rescata_ = nullptr;
  CLI::App* dibuja_ = nullptr;
  CLI::App* importa_ = nullptr;
  CLI::App* mediciones_ = nullptr;
  CLI::App* hidraulica_ = nullptr;
  CLI::App* medios_ = nullptr;
  OpcionesCalcula deCalcula_;
  OpcionesValida deValida_;
  OpcionesListaAjustes deAjustes_;
  OpcionesRescata deRescata_;
  OpcionesDibuja deDibuja_;
  OpcionesImporta deImporta_;
  OpcionesMediciones deMediciones_;
  OpcionesHidraulica deHidraulica_;
  OpcionesMedios deMedios_;

  int Haz() {
    if (hidraulica_->parsed()) return Hidraulica(deHidraulica_, textos_);
    if (valida_->parsed()) return Valida(deValida_, textos_);
    if (ajustes_->parsed()) return Ajustados(deAjustes_, textos_);
    if (rescata_->parsed()) return Rescata(deRescata_, textos_);
    if (mediciones_->parsed()) return Mediciones(deMediciones_, textos_);
    if (dibuja_->parsed()) return Dibuja(deDibuja_, textos_);
    if (importa_->parsed()) return ImportaDatos(deImporta_, textos_);
    if (medios_->parsed()) return Medios(deMedios_, textos_);
    return Calcula(deCalcula_, textos_);
  }

  const std::string& T(int n) const { return textos_.Texto(n); }

  CLI::App* Orden(const char* nombre, int ayuda) {
    auto* orden = app_.add_subcommand(nombre, T(ayuda));
    orden->group(T(txt::Ordenes));
    orden->set_help_flag("-h,--help", T(txt::AyudaAyuda))->group(T(txt::Opciones));
    return orden;
  }

  template <class V>
  CLI::Option* Opcion(CLI::App* orden, const std::string& nombre, V& valor, int ayuda,
                      const std::string& tipo) {
    return orden->add_option(nombre, valor, T(ayuda))->type_name(tipo);
  }

  // An option that takes one of some words.
  void Eleccion(CLI::App* orden, const std::string& nombre, std::string& valor, int ayuda,
                std::vector<std::string> palabras) {
    std::string tipo;
    for (const auto& p : palabras) tipo += (tipo.empty() ? "" : "|") + p;
    Opcion(orden, nombre, valor, ayuda, tipo)->check(UnoDe(std::move(palabras), textos_, nombre));
  }

  // The project of an order and the Tramos chosen of it.
  void DeclaraObra(CLI::App* orden, std::filesystem::path& obra, std::vector<int>& tramos) {
    Opcion(orden, "OBRA.zrb", obra, txt::AyudaFichero, "")->required();
    Opcion(orden, "--tramo", tramos, txt::AyudaTramo, "N")
        ->expected(1)
        ->allow_extra_args(false)
        ->multi_option_policy(CLI::MultiOptionPolicy::TakeAll);
  }

  void DeclaraValida() {
    valida_ = Orden("valida", txt::ValidaUnaObra);
    auto& o = deValida_;
    DeclaraObra(valida_, o.obra, o.tramos);
    Opcion(valida_, "--tablas", o.tablas, txt::AyudaTablas, T(txt::PalabraCarpeta));
    Eleccion(valida_, "--separador", o.separador, txt::AyudaSeparador, {"coma", "punto"});
  }

  void DeclaraAjustes() {
    ajustes_ = Orden("ajustes", txt::AyudaAjustes);
    auto& o = deAjustes_;
    DeclaraObra(ajustes_, o.obra, o.tramos);
    Eleccion(ajustes_, "--formato", o.formato, txt::AyudaFormatoCalculadora, {"texto", "json"});
    Eleccion(ajustes_, "--separador", o.separador, txt::AyudaSeparador, {"coma", "punto"});
  }

  void DeclaraRescata() {
    rescata_ = Orden("rescata", txt::RescataUnaObra);
    auto& o = deRescata_;
    Opcion(rescata_, "OBRA.zrb", o.obra, txt::AyudaFichero, "")->required();
    Opcion(rescata_, "--salida", o.salida, txt::AyudaSalidaNueva, T(txt::PalabraFichero))
        ->required();
    Eleccion(rescata_, "--separador", o.separador, txt::AyudaSeparador, {"coma", "punto"});
  }

  void DeclaraDibuja() {
    dibuja_ = Orden("dibuja", txt::AyudaDibuja);
    auto& o = deDibuja_;
    Opcion(dibuja_, "OBRA.zrb", o.obra, txt::AyudaFichero, "")->required();
    Opcion(dibuja_, "--tramo", o.tramos, txt::AyudaTramoDibujo, "N")->expected(1)->required();
    Eleccion(dibuja_, "--que", o.que, txt::AyudaQueDibuja,
             {"seccion", "zanja", "anillo", "mapa", "grafico", "hoja"});
    dibuja_->get_option("--que")->required();
    Opcion(dibuja_, "--altura", o.altura, txt::AyudaAlturaDibujo, "H");
    Opcion(dibuja_, "--presion", o.presion, txt::AyudaPresionDibujo, "P");
    Opcion(dibuja_, "--hipotesis", o.hipotesis, txt::AyudaHipotesisDibujo, "K");
    Eleccion(dibuja_, "--grafico", o.grafico, txt::AyudaGrafico,
             {"acero", "interior", "exterior", "momentos", "cargas", "tensiones"});
    Eleccion(dibuja_, "--eje", o.eje, txt::AyudaEje, {"presion", "altura"});
    Opcion(dibuja_, "--svg", o.svg, txt::AyudaSvg, T(txt::PalabraFichero));
    Opcion(dibuja_, "--pdf", o.pdf, txt::AyudaPdfDibujo, T(txt::PalabraFichero));
    Opcion(dibuja_, "--png", o.png, txt::AyudaPng, T(txt::PalabraFichero));
    Opcion(dibuja_, "--dxf", o.dxf, txt::AyudaDxf, T(txt::PalabraFichero));
    Opcion(dibuja_, "--escala", o.escala, txt::AyudaEscalaDibujo, "N");
    Eleccion(dibuja_, "--tema", o.tema, txt::AyudaTema, {"papel", "claro", "oscuro"});
    Eleccion(dibuja_, "--idioma", o.idioma, txt::AyudaIdioma, {"es", "en", "ca", "pt", "fr"});
    Eleccion(dibuja_, "--separador", o.separador, txt::AyudaSeparador, {"coma", "punto"});
    dibuja_->add_flag("--sin-validar", o.sinValidar, T(txt::AyudaSinValidar));
    dibuja_->add_flag("--envolvente", o.envolvente, T(txt::AyudaEnvolvente));
    Opcion(dibuja_, "--tablas", o.tablas, txt::AyudaTablas, T(txt::PalabraCarpeta));
  }

  void DeclaraMediciones() {
    mediciones_ = Orden("mediciones", txt::AyudaMediciones);
    auto& o = deMediciones_;
    DeclaraObra(mediciones_, o.obra, o.tramos);
    Opcion(mediciones_, "--precios", o.precios, txt::AyudaPrecios, T(txt::PalabraFichero));
    Eleccion(mediciones_, "--formato", o.formato, txt::AyudaFormatoCalculadora, {"texto", "json"});
    Eleccion(mediciones_, "--casos", o.casos, txt::AyudaCasosMediciones, {"peor", "todos"});
    Opcion(mediciones_, "--csv", o.csv, txt::AyudaCsvMediciones, T(txt::PalabraFichero));
    Opcion(mediciones_, "--xlsx", o.xlsx, txt::AyudaXlsxMediciones, T(txt::PalabraFichero));
    Opcion(mediciones_, "--salida", o.salida, txt::AyudaSalida, T(txt::PalabraFichero));
    Eleccion(mediciones_, "--idioma", o.idioma, txt::AyudaIdioma, {"es", "en", "ca", "pt", "fr"});
    Eleccion(mediciones_, "--separador", o.separador, txt::AyudaSeparador, {"coma", "punto"});
    mediciones_->add_flag("--sin-validar", o.sinValidar, T(txt::AyudaSinValidar));
    Opcion(mediciones_, "--tablas", o.tablas, txt::AyudaTablas, T(txt::PalabraCarpeta));
  }

  void DeclaraImporta() {
    importa_ = Orden("importa", txt::AyudaImporta);
    auto& o = deImporta_;
    Opcion(importa_, "DATOS", o.datos, txt::AyudaDatos, "");
    Opcion(importa_, "OBRA.zrb", o.obra, txt::AyudaObraDestino, "");
    importa_->add_flag("--parcial", o.parcial, T(txt::AyudaParcial));
    Opcion(importa_, "--plantilla", o.plantilla, txt::AyudaPlantilla, T(txt::PalabraFichero));
    Eleccion(importa_, "--idioma", o.idioma, txt::AyudaIdiomaCalculadora,
             {"es", "en", "ca", "pt", "fr"});
    Eleccion(importa_, "--separador", o.separador, txt::AyudaSeparador, {"coma", "punto"});
    Opcion(importa_, "--tablas", o.tablas, txt::AyudaTablas, T(txt::PalabraCarpeta));
  }

  void DeclaraCalcula() {
    calcula_ = Orden("calcula", txt::CalculaUnaObra);
    auto& o = deCalcula_;
    DeclaraObra(calcula_, o.obra, o.tramos);
    Eleccion(calcula_, "--formato", o.formato, txt::AyudaFormato, {"resumen", "json"});
    Eleccion(calcula_, "--listado", o.listado, txt::AyudaListado,
             {"normal", "tabular", "pantalla", "lame", "informe"});
    Eleccion(calcula_, "--detalle", o.detalle, txt::AyudaDetalle, {"resumen", "pesimo", "todos"});
    Opcion(calcula_, "--pdf", o.pdf, txt::AyudaPdf, T(txt::PalabraFichero));
    Opcion(calcula_, "--texto", o.texto, txt::AyudaTexto, T(txt::PalabraFichero));
    Opcion(calcula_, "--tabla", o.tabla, txt::AyudaTabla, T(txt::PalabraFichero));
    calcula_
        ->add_option("--columnas", o.columnas,
                     textos_.Compone(txt::AyudaColumnas, {NombresDeColumnas()}))
        ->type_name("A,B...");
    Eleccion(calcula_, "--idioma", o.idioma, txt::AyudaIdioma, {"es", "en", "ca", "pt", "fr"});
    Opcion(calcula_, "--fecha", o.fecha, txt::AyudaFecha, T(txt::PalabraFecha));
    Opcion(calcula_, "--salida", o.salida, txt::AyudaSalida, T(txt::PalabraFichero));
    Eleccion(calcula_, "--separador", o.separador, txt::AyudaSeparador, {"coma", "punto"});
    calcula_->add_flag("--sin-validar", o.sinValidar, T(txt::AyudaSinValidar));
    calcula_->add_flag("--estricto", o.estricto, T(txt::AyudaEstricto));
    calcula_->add_flag("--envolvente", o.envolvente, T(txt::AyudaEnvolvente));
    Opcion(calcula_, "--hilos", o.hilos, txt::AyudaHilos, "N")
        ->check(EnteroEntre(1, kMaxHilos, textos_, "--hilos"));
    calcula_->add_flag("--si", o.si, T(txt::AyudaSi));
    Opcion(calcula_, "--tablas", o.tablas, txt::AyudaTablas, T(txt::PalabraCarpeta));
    Opcion(calcula_, "--registros", o.registros, txt::AyudaRegistros, T(txt::PalabraCarpeta));
  }

  void DeclaraSalida(CLI::App* orden, OpcionesSalida& o) {
    Eleccion(orden, "--formato", o.formato, txt::AyudaFormatoCalculadora, {"texto", "json"});
    Opcion(orden, "--pdf", o.pdf, txt::AyudaPdf, T(txt::PalabraFichero));
    Eleccion(orden, "--idioma", o.idioma, txt::AyudaIdiomaCalculadora,
             {"es", "en", "ca", "pt", "fr"});
    Eleccion(orden, "--separador", o.separador, txt::AyudaSeparador, {"coma", "punto"});
  }

  void DeclaraHidraulica() {
    hidraulica_ = Orden("hidraulica", txt::CalculoHidraulicoOrden);
    auto& o = deHidraulica_;
    Eleccion(hidraulica_, "--metodo", o.metodo, txt::AyudaMetodo, {"prandtl", "darcy", "hazen"});
    hidraulica_->get_option("--metodo")->required();
    Opcion(hidraulica_, "--pendiente", o.pendiente, txt::AyudaPendiente, "J");
    Opcion(hidraulica_, "--caudal", o.caudal, txt::AyudaCaudal, "Q");
    Opcion(hidraulica_, "--rugosidad", o.rugosidad, txt::AyudaRugosidadOrden, "R");
    DeclaraSalida(hidraulica_, o.salida);
  }

  void DeclaraMedios() {
    medios_ = Orden("medios", txt::AnalisisOrden);
    auto& o = deMedios_;
    const std::array<std::pair<Medio, const char*>, kMedios> nombres{{
        {kPH, "--ph"},
        {kCO2, "--co2"},
        {kNH4, "--nh4"},
        {kMg, "--mg"},
        {kSO4Exterior, "--so4-exterior"},
        {kSO4Interior, "--so4-interior"},
        {kSO4Suelo, "--so4-suelo"},
        {kResistividad, "--resistividad"},
        {kCorriente, "--corriente"},
    }};
    for (const auto& [medio, nombre] : nombres) {
      const auto& campo = kCamposMedios[static_cast<std::size_t>(medio)];
      const std::string unidad = campo.unidad != 0 ? " (" + T(campo.unidad) + ")" : "";
      medios_
          ->add_option(nombre, o.valores[static_cast<std::size_t>(medio)],
                       T(campo.etiqueta) + unidad)
          ->type_name("V");
    }
    medios_->add_flag("--ciclos", o.ciclos, T(txt::AlternaCiclos));
    DeclaraSalida(medios_, o.salida);
  }
};

}  // namespace

int main(int argc, char** argv) try {
  std::signal(SIGXFSZ, SIG_IGN);  // a file that may not grow is told as a disk that is full
  Catalogo textos = Catalogo::Lee(CarpetaRecursos() / "textos");
  return Ordenes(textos).Corre(argc, argv);
} catch (const ErrorCatalogo& error) {
  // Without the catalogue there is no text to say it with.
  zorbin::Queja(error.what());
  return kFicheroRechazado;
} catch (const std::exception& error) {
  zorbin::Queja(error.what());
  return kFalloDeCorrida;
}
