#include "sesion/captura/mdCampos.h"

#include <algorithm>
#include <array>

#include "base/textos.h"

namespace zorbin {

namespace {

// Zero passes, whatever its last digits say.
constexpr double kNadaBajoCero = -1e-10;

constexpr Paginas kPaginaTramo{1};
constexpr Paginas kPaginaArmado{1, 0};
constexpr Paginas kPaginaPostesado{1, 1};
constexpr Paginas kPaginaModulos{1, 1, 0};
constexpr Paginas kPaginaResistencias{1, 1, 1};
constexpr Paginas kPaginaTensiones{1, 1, 2};
constexpr Paginas kPaginaCoeficientes{1, 1, 3};
constexpr Paginas kPaginaColocacion{2};
constexpr Paginas kPaginaTubo{2, -1, -1, 0};
constexpr Paginas kPaginaRelleno{2, -1, -1, 1};
constexpr Paginas kPaginaCargas{2, -1, -1, 2};

// Oddities that are meant: the labels of edPrs2 and edPrsM2 are crossed between Obra and Tramo, and
// the strengths of core and coating keep the default of MKS under SI.
// clang-format off
constexpr std::array<FilaCampo, kCamposCaptura> kCampos{{
    {.id = Ed::edObra, .nombre = "edObra", .clase = Clase::Texto, .rotulo = txt::RotObra, .consejo = txt::TipObra},
    {.id = Ed::edCliente, .nombre = "edCliente", .clase = Clase::Texto, .rotulo = txt::RotCliente, .consejo = txt::TipCliente},
    {.id = Ed::edIdioma, .nombre = "edIdioma", .clase = Clase::Lista, .etiqueta = txt::RotIdioma, .rotulo = txt::RotIdioma, .consejo = txt::TipIdioma, .entrada = txt::NombresIdioma[0], .entradas = 5, .entradaDefecto = 1},
    {.id = Ed::rdSistemaUnidades, .nombre = "rdSistemaUnidades", .clase = Clase::Opcion, .rotulo = txt::RotSistema, .consejo = txt::TipSistema},
    {.id = Ed::rdGolpeAriete, .nombre = "rdGolpeAriete", .clase = Clase::Opcion, .rotulo = txt::RotGolpe, .consejo = txt::TipGolpe},
    {.id = Ed::edPrs1, .nombre = "edPrs1", .obra = &Obra::Prs1, .minimo = kNadaBajoCero, .etiqueta = txt::EtPrs1Edicion, .filtra = true, .escala = true, .ceroEnBlanco = true, .rotulo = txt::RotInicial, .grupo = txt::RotDP, .consejo = txt::TipPrs1},
    {.id = Ed::edPrs2, .nombre = "edPrs2", .obra = &Obra::Prs2, .minimo = kNadaBajoCero, .etiqueta = txt::EtPrsM2, .filtra = true, .escala = true, .ceroEnBlanco = true, .rotulo = txt::RotFinal, .grupo = txt::RotDP, .consejo = txt::TipPrs2},
    {.id = Ed::edPrs3, .nombre = "edPrs3", .obra = &Obra::Prs3, .minimo = kNadaBajoCero, .etiqueta = txt::EtPrs3, .filtra = true, .escala = true, .ceroEnBlanco = true, .rotulo = txt::RotIncremento, .grupo = txt::RotDP, .consejo = txt::TipPrs3},
    {.id = Ed::edPrsM1, .nombre = "edPrsM1", .obra = &Obra::PrsM1, .minimo = kNadaBajoCero, .etiqueta = txt::EtPrsM1, .filtra = true, .escala = true, .ceroEnBlanco = true, .rotulo = txt::RotInicial, .grupo = txt::RotMDP, .consejo = txt::TipPrsM1},
    {.id = Ed::edPrsM2, .nombre = "edPrsM2", .obra = &Obra::PrsM2, .minimo = kNadaBajoCero, .etiqueta = txt::EtPrs2Edicion, .filtra = true, .escala = true, .ceroEnBlanco = true, .rotulo = txt::RotFinal, .grupo = txt::RotMDP, .consejo = txt::TipPrsM2},
    {.id = Ed::edAlt1, .nombre = "edAlt1", .obra = &Obra::Alt1, .minimo = kNadaBajoCero, .etiqueta = txt::EtAlt1, .filtra = true, .ceroEnBlanco = true, .rotulo = txt::RotInicial, .grupo = txt::RotAlturas, .consejo = txt::TipAlt1},
    {.id = Ed::edAlt2, .nombre = "edAlt2", .obra = &Obra::Alt2, .minimo = kNadaBajoCero, .etiqueta = txt::EtAlt2, .filtra = true, .ceroEnBlanco = true, .rotulo = txt::RotFinal, .grupo = txt::RotAlturas, .consejo = txt::TipAlt2},
    {.id = Ed::edAlt3, .nombre = "edAlt3", .obra = &Obra::Alt3, .minimo = kNadaBajoCero, .etiqueta = txt::EtAlt3, .filtra = true, .ceroEnBlanco = true, .rotulo = txt::RotIncrementoAltura, .grupo = txt::RotAlturas, .consejo = txt::TipAlt3},
    {.id = Ed::edTramo, .nombre = "edTramo", .clase = Clase::Texto, .pagina = kPaginaTramo, .etiqueta = txt::EtNumeroTramo, .rotulo = txt::RotTramo, .consejo = txt::TipTramo},
    {.id = Ed::edDescriTramo, .nombre = "edDescriTramo", .clase = Clase::Texto, .pagina = kPaginaTramo, .rotulo = txt::RotDescriTramo, .consejo = txt::TipDescriTramo},
    {.id = Ed::edPrs1Tram, .nombre = "edPrs1Tram", .pagina = kPaginaTramo, .tramo = &Tramo::Prs1Tram, .minimo = kNadaBajoCero, .etiqueta = txt::EtPrs1Edicion, .filtra = true, .escala = true, .ceroEnBlanco = true, .rotulo = txt::RotInicial, .grupo = txt::RotDP, .consejo = txt::TipPrs1Tram},
    {.id = Ed::edPrs2Tram, .nombre = "edPrs2Tram", .pagina = kPaginaTramo, .tramo = &Tramo::Prs2Tram, .minimo = kNadaBajoCero, .etiqueta = txt::EtPrs2Edicion, .filtra = true, .escala = true, .ceroEnBlanco = true, .rotulo = txt::RotFinal, .grupo = txt::RotDP, .consejo = txt::TipPrs2Tram},
    {.id = Ed::edPrs3Tram, .nombre = "edPrs3Tram", .pagina = kPaginaTramo, .tramo = &Tramo::Prs3Tram, .minimo = kNadaBajoCero, .etiqueta = txt::EtPrs3, .filtra = true, .escala = true, .ceroEnBlanco = true, .rotulo = txt::RotIncremento, .grupo = txt::RotDP, .consejo = txt::TipPrs3Tram},
    {.id = Ed::edPrsM1Tram, .nombre = "edPrsM1Tram", .pagina = kPaginaTramo, .tramo = &Tramo::PrsM1Tram, .minimo = kNadaBajoCero, .etiqueta = txt::EtPrsM1, .filtra = true, .escala = true, .ceroEnBlanco = true, .rotulo = txt::RotInicial, .grupo = txt::RotMDP, .consejo = txt::TipPrsM1Tram},
    {.id = Ed::edPrsM2Tram, .nombre = "edPrsM2Tram", .pagina = kPaginaTramo, .tramo = &Tramo::PrsM2Tram, .minimo = kNadaBajoCero, .etiqueta = txt::EtPrsM2, .filtra = true, .escala = true, .ceroEnBlanco = true, .rotulo = txt::RotFinal, .grupo = txt::RotMDP, .consejo = txt::TipPrsM2Tram},
    {.id = Ed::edIcontes0, .nombre = "edIcontes0", .clase = Clase::Marca, .pagina = kPaginaArmado, .registra = true, .rotulo = txt::RotIcontes0, .consejo = txt::TipIcontes0},
    {.id = Ed::edAdato, .nombre = "edAdato", .pagina = kPaginaArmado, .tramo = &Tramo::Adato, .minimo = 0.001, .etiqueta = txt::EtAdato, .mascara = "#####0.000", .registra = true, .ceroEnBlanco = true, .rotulo = txt::RotAdato, .consejo = txt::TipAdato},
    {.id = Ed::edTipoControl, .nombre = "edTipoControl", .clase = Clase::Lista, .pagina = kPaginaArmado, .codigo = &Tramo::TipoControl, .etiqueta = txt::EtTipoControl, .registra = true, .rotulo = txt::EtTipoControl, .consejo = txt::TipTipoControl, .entrada = txt::ControlIntenso, .entradas = 2, .entradaDefecto = 1},
    {.id = Ed::edTipoCamisa, .nombre = "edTipoCamisa", .clase = Clase::Lista, .pagina = kPaginaArmado, .codigo = &Tramo::TipoCamisa, .etiqueta = txt::EtTipoCamisa, .registra = true, .rotulo = txt::EtTipoCamisa, .consejo = txt::TipTipoCamisa, .entrada = txt::TiposDeCamisa[0], .entradas = 2, .entradaDefecto = 2},
    {.id = Ed::edCamMax, .nombre = "edCamMax", .pagina = kPaginaArmado, .tramo = &Tramo::CamMax, .minimo = 0.0, .etiqueta = txt::EtCamMax, .defecto = 6.0, .mascara = "#####0.0", .filtra = true, .registra = true, .rotulo = txt::EtCamMax, .consejo = txt::TipCamMax},
    {.id = Ed::edFck, .nombre = "edFck", .pagina = kPaginaArmado, .tramo = &Tramo::Fck, .minimo = 0.001, .etiqueta = txt::EtFck, .defecto = 350.0, .defectoSI = 35.0, .mascara = "####0", .mascaraSI = "####0.0", .lectura = "#####0", .lecturaSI = "#####0.0", .filtra = true, .registra = true, .escala = true, .ceroEnBlanco = true, .rotulo = txt::RotFckMKS, .rotuloSI = txt::RotFckSI, .consejo = txt::TipFck},
    {.id = Ed::edFct, .nombre = "edFct", .pagina = kPaginaArmado, .tramo = &Tramo::Fct, .mascara = "#####0", .mascaraSI = "#####0.0", .filtra = true, .escala = true, .ceroEnBlanco = true, .rotulo = txt::RotFctMKS, .rotuloSI = txt::RotFctSI, .consejo = txt::TipFct},
    {.id = Ed::edFyk, .nombre = "edFyk", .pagina = kPaginaArmado, .tramo = &Tramo::Fyk, .minimo = 0.001, .etiqueta = txt::EtFyk, .defecto = 2100.0, .defectoSI = 210.0, .mascara = "#####0", .mascaraSI = "#####0.0", .filtra = true, .registra = true, .escala = true, .ceroEnBlanco = true, .rotulo = txt::RotFykMKS, .rotuloSI = txt::RotFykSI, .consejo = txt::TipFyk},
    {.id = Ed::edFyd, .nombre = "edFyd", .pagina = kPaginaArmado, .tramo = &Tramo::Fyd, .minimo = 0.001, .etiqueta = txt::EtFyd, .mascara = "#####0", .mascaraSI = "#####0.0", .filtra = true, .registra = true, .escala = true, .ceroEnBlanco = true, .rotulo = txt::RotFydMKS, .rotuloSI = txt::RotFydSI, .consejo = txt::TipFyd},
    {.id = Ed::edGamaB, .nombre = "edGamaB", .pagina = kPaginaArmado, .tramo = &Tramo::GamaB, .minimo = 0.001, .etiqueta = txt::EtGamaB, .defecto = 1.5, .registra = true, .ceroEnBlanco = true, .rotulo = txt::RotGamaB, .consejo = txt::TipGamaB},
    {.id = Ed::rdTipoCamisa, .nombre = "rdTipoCamisa", .clase = Clase::Opcion, .pagina = kPaginaPostesado, .consejo = txt::TipOpcionCamisa},
    {.id = Ed::edIcontes1, .nombre = "edIcontes1", .clase = Clase::Marca, .pagina = kPaginaPostesado, .rotulo = txt::RotIcontes1, .consejo = txt::TipIcontes1},
    {.id = Ed::edCoepre1, .nombre = "edCoepre1", .pagina = kPaginaPostesado, .tramo = &Tramo::Coepre1, .minimo = 0.001, .etiqueta = txt::EtCoepre1, .mascara = "#####0.000", .ceroEnBlanco = true, .rotulo = txt::RotCoepre1, .consejo = txt::TipCoepre1},
    {.id = Ed::edDelca, .nombre = "edDelca", .pagina = kPaginaPostesado, .tramo = &Tramo::Delca, .minimo = 0.001, .etiqueta = txt::EtDelca, .defecto = 1.5, .ceroEnBlanco = true, .rotulo = txt::EtDelca, .consejo = txt::TipDelca},
    {.id = Ed::edEs, .nombre = "edEs", .pagina = kPaginaModulos, .tramo = &Tramo::Es, .minimo = 0.001, .etiqueta = txt::EtEs, .defecto = 2100000.0, .defectoSI = 210000.0, .mascara = "######0", .filtra = true, .escala = true, .ceroEnBlanco = true, .rotulo = txt::RotEsMKS, .rotuloSI = txt::RotEsSI, .consejo = txt::TipEs},
    {.id = Ed::edEp, .nombre = "edEp", .pagina = kPaginaModulos, .tramo = &Tramo::Ep, .minimo = 0.001, .etiqueta = txt::EtEp, .defecto = 2000000.0, .defectoSI = 200000.0, .mascara = "######0", .filtra = true, .escala = true, .ceroEnBlanco = true, .rotulo = txt::RotEpMKS, .rotuloSI = txt::RotEpSI, .consejo = txt::TipEp},
    {.id = Ed::edFYKPost, .nombre = "edFYKPost", .pagina = kPaginaResistencias, .tramo = &Tramo::FYKPost, .minimo = 0.001, .etiqueta = txt::EtFyk, .defecto = 2100.0, .defectoSI = 210.0, .mascara = "#####0", .mascaraSI = "#####0.0", .registra = true, .escala = true, .ceroEnBlanco = true, .rotulo = txt::RotFYKPostMKS, .rotuloSI = txt::RotFYKPostSI, .consejo = txt::TipFYKPost},
    {.id = Ed::edFckno, .nombre = "edFckno", .pagina = kPaginaResistencias, .tramo = &Tramo::Fckno, .minimo = 0.001, .etiqueta = txt::EtFckno, .defecto = 300.0, .mascara = "#####0.00", .lectura = "#####0", .lecturaSI = "#####0.0", .filtra = true, .escala = true, .ceroEnBlanco = true, .rotulo = txt::RotFcknoMKS, .rotuloSI = txt::RotFcknoSI, .consejo = txt::TipFckno},
    {.id = Ed::edFckn, .nombre = "edFckn", .pagina = kPaginaResistencias, .tramo = &Tramo::Fckn, .minimo = 0.001, .etiqueta = txt::EtFckn, .defecto = 400.0, .mascara = "#####0.00", .lectura = "#####0", .lecturaSI = "#####0.0", .filtra = true, .escala = true, .ceroEnBlanco = true, .rotulo = txt::RotFcknMKS, .rotuloSI = txt::RotFcknSI, .consejo = txt::TipFckn},
    {.id = Ed::edFckr, .nombre = "edFckr", .pagina = kPaginaResistencias, .tramo = &Tramo::Fckr, .minimo = 0.001, .etiqueta = txt::EtFckr, .defecto = 350.0, .mascara = "#####0.00", .lectura = "#####0", .lecturaSI = "#####0.0", .filtra = true, .escala = true, .ceroEnBlanco = true, .rotulo = txt::RotFckrMKS, .rotuloSI = txt::RotFckrSI, .consejo = txt::TipFckr},
    {.id = Ed::edSFck, .nombre = "edSFck", .pagina = kPaginaTensiones, .tramo = &Tramo::SFck, .minimo = 0.0, .etiqueta = txt::EtSFck, .defecto = 17000.0, .mascara = "#####0", .filtra = true, .escala = true, .ceroEnBlanco = true, .rotulo = txt::RotSFckMKS, .rotuloSI = txt::RotSFckSI, .consejo = txt::TipSFck},
    {.id = Ed::edSf, .nombre = "edSf", .pagina = kPaginaTensiones, .tramo = &Tramo::Sf, .minimo = 1e-10, .etiqueta = txt::TensionDeTesado, .mascara = "######0", .filtra = true, .escala = true, .ceroEnBlanco = true, .rotulo = txt::RotSf, .consejo = txt::TipSf},
    {.id = Ed::edRel, .nombre = "edRel", .pagina = kPaginaTensiones, .tramo = &Tramo::Rel, .minimo = 0.0, .etiqueta = txt::EtRel, .defecto = 2.0, .mascara = "#####0.00", .filtra = true, .ceroEnBlanco = true, .rotulo = txt::EtRel, .consejo = txt::TipRel},
    {.id = Ed::edFic, .nombre = "edFic", .pagina = kPaginaCoeficientes, .tramo = &Tramo::Fic, .minimo = 0.001, .etiqueta = txt::EtFic, .defecto = 1.5, .mascara = "#####0.000", .filtra = true, .ceroEnBlanco = true, .rotulo = txt::RotFic, .consejo = txt::TipFic},
    {.id = Ed::edFir, .nombre = "edFir", .pagina = kPaginaCoeficientes, .tramo = &Tramo::Fir, .minimo = 0.001, .etiqueta = txt::EtFir, .defecto = 0.75, .mascara = "#####0.000", .filtra = true, .ceroEnBlanco = true, .rotulo = txt::RotFir, .consejo = txt::TipFir},
    {.id = Ed::edEpsc, .nombre = "edEpsc", .pagina = kPaginaCoeficientes, .tramo = &Tramo::Epsc, .minimo = 0.0001, .etiqueta = txt::EtEpsc, .defecto = 0.0002, .mascara = "######0.0000", .filtra = true, .ceroEnBlanco = true, .rotulo = txt::RotEpsc, .consejo = txt::TipEpsc},
    {.id = Ed::edEpsr, .nombre = "edEpsr", .pagina = kPaginaCoeficientes, .tramo = &Tramo::Epsr, .minimo = 0.0001, .etiqueta = txt::EtEpsr, .defecto = 0.0003, .mascara = "######0.0000", .filtra = true, .ceroEnBlanco = true, .rotulo = txt::RotEpsr, .consejo = txt::TipEpsr},
    {.id = Ed::edObra2, .nombre = "edObra2", .clase = Clase::Texto, .pagina = kPaginaColocacion, .rotulo = txt::RotObra, .consejo = txt::TipObra},
    {.id = Ed::edTramo2, .nombre = "edTramo2", .clase = Clase::Texto, .pagina = kPaginaColocacion, .rotulo = txt::RotTramo, .consejo = txt::TipTramo},
    {.id = Ed::edDescriTramo2, .nombre = "edDescriTramo2", .clase = Clase::Texto, .pagina = kPaginaColocacion, .rotulo = txt::RotDescriTramo, .consejo = txt::TipDescriTramo},
    {.id = Ed::rdTipoColocacion, .nombre = "rdTipoColocacion", .clase = Clase::Opcion, .pagina = kPaginaColocacion, .consejo = txt::TipColocacion},
    {.id = Ed::edDi0, .nombre = "edDi0", .pagina = kPaginaTubo, .tramo = &Tramo::Di, .minimo = 0.001, .etiqueta = txt::EtDiEdicion, .mascara = "#####0.000", .filtra = true, .ceroEnBlanco = true, .rotulo = txt::EtDi, .consejo = txt::TipDi},
    {.id = Ed::edEsp0, .nombre = "edEsp0", .pagina = kPaginaTubo, .tramo = &Tramo::Esp, .minimo = 0.0, .etiqueta = txt::EtEsp, .mascara = "#####0.0", .filtra = true, .ceroEnBlanco = true, .rotulo = txt::EtEsp, .consejo = txt::TipEsp},
    {.id = Ed::edDe0, .nombre = "edDe0", .pagina = kPaginaTubo, .tramo = &Tramo::De, .minimo = 0.0, .etiqueta = txt::EtDe, .mascara = "#####0.000", .filtra = true, .ceroEnBlanco = true, .rotulo = txt::EtDe, .consejo = txt::TipDe},
    {.id = Ed::edReci0, .nombre = "edReci0", .pagina = kPaginaTubo, .tramo = &Tramo::Reci, .minimo = 0.0, .etiqueta = txt::EtReci, .mascara = "#####0.0", .filtra = true, .ceroEnBlanco = true, .rotulo = txt::EtReci, .consejo = txt::TipReci},
    {.id = Ed::edRece0, .nombre = "edRece0", .pagina = kPaginaTubo, .tramo = &Tramo::Rece, .minimo = 0.0, .etiqueta = txt::EtRece, .mascara = "#####0.0", .filtra = true, .ceroEnBlanco = true, .rotulo = txt::EtRece, .consejo = txt::TipRece},
    {.id = Ed::edGc0, .nombre = "edGc0", .pagina = kPaginaTubo, .tramo = &Tramo::Gc, .minimo = 0.001, .etiqueta = txt::DensidadTubo, .defecto = 2.5, .mascara = "#####0.00", .filtra = true, .ceroEnBlanco = true, .rotulo = txt::EtGc, .consejo = txt::TipGc},
    {.id = Ed::edTipoCuna0, .nombre = "edTipoCuna0", .clase = Clase::Lista, .pagina = kPaginaRelleno, .codigo = &Tramo::TipoCuna, .etiqueta = txt::EtTipoCuna, .registra = true, .rotulo = txt::EtTipoCuna, .consejo = txt::TipTipoCuna, .entrada = txt::CunaGranular, .entradas = 2, .entradaDefecto = 1},
    {.id = Ed::edTipoApoyo0, .nombre = "edTipoApoyo0", .clase = Clase::Lista, .pagina = kPaginaRelleno, .codigo = &Tramo::TipoApoyo, .etiqueta = txt::EtTipoApoyo, .registra = true, .rotulo = txt::EtTipoApoyo, .consejo = txt::TipTipoApoyo, .entrada = txt::TiposDeApoyo[0], .entradas = 2, .entradaDefecto = 2},
    {.id = Ed::edHr0, .nombre = "edHr0", .pagina = kPaginaRelleno, .tramo = &Tramo::Hr0Tramo, .minimo = 0.0, .etiqueta = txt::EtAlt1, .mascara = "#####0.00", .filtra = true, .registra = true, .ceroEnBlanco = true, .rotulo = txt::RotInicial, .consejo = txt::TipHr0},
    {.id = Ed::edHr0Final, .nombre = "edHr0Final", .pagina = kPaginaRelleno, .tramo = &Tramo::Hr0Final, .minimo = kNadaBajoCero, .etiqueta = txt::EtAlt2, .mascara = "#####0.00", .filtra = true, .ceroEnBlanco = true, .rotulo = txt::RotFinal, .consejo = txt::TipHr0Final},
    {.id = Ed::edHr0Delta, .nombre = "edHr0Delta", .pagina = kPaginaRelleno, .tramo = &Tramo::Hr0Delta, .minimo = 0.0, .etiqueta = txt::EtAlt3, .mascara = "#####0.00", .filtra = true, .ceroEnBlanco = true, .rotulo = txt::RotIncrementoAltura, .consejo = txt::TipHr0Delta},
    {.id = Ed::edB0, .nombre = "edB0", .pagina = kPaginaRelleno, .tramo = &Tramo::B0, .minimo = 0.0, .etiqueta = txt::EtAnchuraZanja, .mascara = "#####0.000", .filtra = true, .registra = true, .ceroEnBlanco = true, .rotulo = txt::EtB0, .consejo = txt::TipB0},
    {.id = Ed::edGr0, .nombre = "edGr0", .pagina = kPaginaRelleno, .tramo = &Tramo::Gr, .minimo = 0.001, .etiqueta = txt::EtGr, .defecto = 1.8, .mascara = "#####0.00", .filtra = true, .registra = true, .ceroEnBlanco = true, .rotulo = txt::RotGr, .consejo = txt::TipGr},
    {.id = Ed::edFi0, .nombre = "edFi0", .pagina = kPaginaRelleno, .tramo = &Tramo::Fi, .minimo = 0.0, .etiqueta = txt::EtFi, .defecto = 30.0, .mascara = "#####0.00", .filtra = true, .registra = true, .rotulo = txt::RotFi, .consejo = txt::TipFi},
    {.id = Ed::edTipoRelleno0, .nombre = "edTipoRelleno0", .clase = Clase::Lista, .pagina = kPaginaRelleno, .codigo = &Tramo::TipoRelleno, .etiqueta = txt::EtTipoRelleno, .registra = true, .rotulo = txt::EtTipoRelleno, .consejo = txt::TipTipoRelleno, .entrada = txt::RocasMachacadas, .entradas = 5, .entradaDefecto = 3},
    {.id = Ed::edHr1, .nombre = "edHr1", .pagina = kPaginaRelleno, .tramo = &Tramo::Hr1, .minimo = 0.001, .etiqueta = txt::EtHr1, .mascara = "#####0.000", .filtra = true, .registra = true, .ceroEnBlanco = true, .rotulo = txt::RotHr1, .consejo = txt::TipHr1},
    {.id = Ed::edIAs, .nombre = "edIAs", .clase = Clase::Lista, .pagina = kPaginaRelleno, .codigo = &Tramo::IAs, .etiqueta = txt::EtIAs, .registra = true, .rotulo = txt::EtIAs, .consejo = txt::TipIAs, .entrada = txt::RocaNoAsentable, .entradas = 3, .entradaDefecto = 2},
    {.id = Ed::edQDato0, .nombre = "edQDato0", .pagina = kPaginaCargas, .tramo = &Tramo::QDato, .etiqueta = txt::EtQDato, .defecto = 0.0, .mascara = "#####0.000", .filtra = true, .registra = true, .escala = true, .rotulo = txt::RotQDatoMKS, .rotuloSI = txt::RotQDatoSI, .consejo = txt::TipQDato},
    {.id = Ed::edICar0, .nombre = "edICar0", .clase = Clase::Lista, .pagina = kPaginaCargas, .codigo = &Tramo::ICar, .etiqueta = txt::EtICar, .registra = true, .rotulo = txt::EtICar, .consejo = txt::TipICar, .entrada = txt::TiposDeCarga[0], .entradas = 5, .entradaDefecto = 3},
}};
// clang-format on

constexpr bool EnOrden() {
  for (int i = 0; i < kCamposCaptura; ++i) {
    if (static_cast<int>(kCampos[static_cast<std::size_t>(i)].id) != i) return false;
  }
  return true;
}
static_assert(EnOrden(), "the table follows the order of Ed");

}  // namespace

std::string_view FilaCampo::Lectura(bool si) const {
  const auto propia = si ? lecturaSI : lectura;
  return propia.empty() ? Mascara(si) : propia;
}

std::span<const FilaCampo> TablaCampos() {
  return kCampos;
}

const FilaCampo& Fila(Ed id) {
  return kCampos[static_cast<std::size_t>(id)];
}

std::optional<Ed> CampoPorNombre(std::string_view nombre) {
  const auto f = std::find_if(kCampos.begin(), kCampos.end(),
                              [&](const FilaCampo& c) { return c.nombre == nombre; });
  if (f == kCampos.end()) return std::nullopt;
  return f->id;
}

}  // namespace zorbin
