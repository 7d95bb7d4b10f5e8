#include "programas/zorbin-calc/mdCalcula.h"

#include <algorithm>
#include <functional>
#include <map>
#include <utility>

#include "base/mdNumeros.h"
#include "base/mdTextos.h"
#include "base/textos.h"
#include "calculo/corrida/mdCalculaObra.h"
#include "listados/datos/mdJson.h"
#include "listados/datos/mdTablaCasos.h"
#include "listados/obra/mdDocumento.h"
#include "listados/obra/mdPantalla.h"
#include "listados/obra/mdResumen.h"
#include "listados/papel/mdHojasTexto.h"
#include "persistencia/disco/mdLog.h"
#include "persistencia/dpe/mdDpe.h"
#include "persistencia/proyecto/mdProyecto.h"
#include "persistencia/zrx/mdFabricacionZrx.h"
#include "persistencia/zrx/mdZrx.h"
#include "programas/zorbin-calc/mdPalabras.h"
#include "programas/zorbin-calc/mdRescata.h"
#include "programas/zorbin-calc/mdSalida.h"
#include "programas/zorbin-calc/mdSalidaInforme.h"
#include "programas/zorbin-calc/mdSalidaPdf.h"
#include "programas/zorbin-calc/mdValida.h"
#include "programas/zorbin-calc/mdVigia.h"

namespace zorbin {

namespace {

// What is calculated: an Obra, and the Tramos of it that were asked for.
struct Encargo {
  Obra obra;
  std::vector<TramoPedido> tramos;
  std::map<int, Tramo> tecleados;       // as they were stored, by position
  std::vector<std::string> rechazados;  // Tramos left out, each with its reason
};

// Whether an output would be written over the project or a file beside it.
bool PisaLaObra(const std::filesystem::path& salida, const std::filesystem::path& obra) {
  std::error_code error;
  const auto es = [&](const std::filesystem::path& fichero) {
    return std::filesystem::equivalent(salida, fichero, error);
  };
  return !salida.empty() && (es(obra) || es(RutaDpe(obra)) || es(RutaZrx(obra)));
}

TipoListado TipoDeLinea(const std::string& listado) {
  if (listado == "tabular") return TipoListado::Tabular;
  if (listado == "pantalla") return TipoListado::Pantalla;
  return listado == "lame" ? TipoListado::Lame : TipoListado::Normal;
}

// What is wrong with options that do not go together, or nothing.
std::string NoVanJuntas(const OpcionesCalcula& o, const Catalogo& textos) {
  const bool pdf = !o.pdf.empty();
  const bool texto = !o.texto.empty();
  const bool salida = !o.salida.empty();
  const auto juntas = [&](const char* a, const char* b) {
    return textos.Compone(txt::NoVanJuntas, {a, b});
  };
  if (!o.columnas.empty() && o.tabla.empty()) {
    return textos.Compone(txt::NecesitaOtra, {"--columnas", "--tabla"});
  }
  if (!o.tabla.empty()) {
    if (!o.listado.empty()) return juntas("--tabla", "--listado");
    if (!o.formato.empty()) return juntas("--tabla", "--formato");
    if (salida) return juntas("--tabla", "--salida");
  }
  if (o.listado.empty()) {
    if (!o.detalle.empty() || o.si) {
      return textos.Compone(txt::NecesitaOtra, {o.si ? "--si" : "--detalle", "--listado informe"});
    }
    if (!pdf && !texto) return "";
    return textos.Compone(txt::NecesitaOtra, {pdf ? "--pdf" : "--texto", "--listado"});
  }
  if (!o.formato.empty()) return juntas("--listado", "--formato");
  if (o.listado == "informe") {
    if (!pdf) return textos.Compone(txt::NecesitaOtra, {"--listado informe", "--pdf"});
  } else if (!o.detalle.empty() || o.si) {
    return textos.Compone(txt::NecesitaOtra, {o.si ? "--si" : "--detalle", "--listado informe"});
  }
  if (pdf && texto) return juntas("--pdf", "--texto");
  if ((pdf || texto) && salida) return juntas(pdf ? "--pdf" : "--texto", "--salida");
  return "";
}

// Completes Obra and Tramos by the rules of their capture, and leaves out the Tramos that they
// refuse; it is told on standard error.
void Comprueba(const Proyecto& proyecto, const OpcionesCalcula& opciones, const Catalogo& textos,
               const std::vector<int>& posiciones, Encargo& encargo) {
  const auto lista = BuscaFaltas(proyecto, opciones.tablas,
                                 {posiciones, SeparadorDeLinea(opciones.separador)}, textos);
  for (const auto& f : lista.faltas) {
    Queja(TextoFalta(f, textos));
    encargo.rechazados.push_back(TextoFalta(f, textos));
  }
  PonComprobada(encargo.obra, lista.obra);
  std::erase_if(encargo.tramos, [&](const TramoPedido& p) { return !lista.Vale(p.posicion); });
  for (auto& p : encargo.tramos) {
    const Tramo pedido = std::exchange(p.tramo, lista.tramos.at(p.posicion));
    p.tramo.NumeroTramo = pedido.NumeroTramo;
    p.tramo.Envolvente = pedido.Envolvente;
  }
}

// The listing has nothing to show: its file is given up.
struct SinHojas {};

// Calculates what was asked for and hands each Tramo to one reader.
class Calculador {
 public:
  Calculador(const Proyecto& proyecto, const Encargo& encargo, const OpcionesCalcula& opciones,
             const Catalogo& textos)
      : proyecto_(proyecto),
        encargo_(encargo),
        opciones_(opciones),
        textos_(textos),
        estilo_{proyecto.obra.EsSI(), SeparadorDeLinea(opciones.separador)} {}

  int Resultados() {
    Salida salida(opciones_.salida);
    opciones_.formato == "json" ? EscribeJson(salida.flujo()) : EscribeResumen(salida.flujo());
    salida.Cierra();
    return Codigo();
  }

  int EnTabla() {
    std::string mala;
    const auto columnas = ColumnasDeLista(opciones_.columnas, mala).value();
    const PalabrasDibujo palabras(textos_, estilo_);
    const auto tabla = TablaPorNombre({encargo_.obra, columnas}, palabras, opciones_.tabla);
    const auto capturados = Capturados();
    ListadoTabla lector(*tabla, columnas, capturados);
    Lee(lector);
    tabla->Termina();
    return Codigo();
  }

  int EnPaginas() try {
    if (opciones_.listado == "informe") return EnInforme();
    if (!opciones_.pdf.empty()) {
      EscribePdf(opciones_.pdf, encargo_.obra.NombreObra, textos_,
                 [this](DestinoHojas& hojas) { Imprime(hojas); });
      return Codigo();
    }
    Salida salida(opciones_.texto.empty() ? opciones_.salida : opciones_.texto);
    HojasTexto hojas(salida.flujo());
    Imprime(hojas);
    salida.Cierra();
    return Codigo();
  } catch (const SinHojas&) {
    Queja(textos_.Texto(txt::DocumentoVacio));
    return kFicheroRechazado;
  }

 private:
  const Proyecto& proyecto_;
  const Encargo& encargo_;
  const OpcionesCalcula& opciones_;
  const Catalogo& textos_;
  EstiloNumeros estilo_;
  bool hayFallo_ = false;
  CuentaVeredictos cuenta_;

  int Codigo() const {
    if (hayFallo_) return kFalloDeCorrida;
    return opciones_.estricto && cuenta_.noCumplen > 0 ? kFicheroRechazado : kHecho;
  }

  DatosTramo Datos(const TramoPedido& p) const {
    auto datos = DatosDeCalculo(encargo_.obra, p.tramo, proyecto_.ajustes, proyecto_.SinAjustes);
    datos.envolvente |= opciones_.envolvente;
    return datos;
  }

  void Cuenta() const {
    const auto total = TextoEntero(cuenta_.casos);
    if (cuenta_.noCumplen > 0) {
      Queja(textos_.Compone(txt::CasosQueNoCumplen, {TextoEntero(cuenta_.noCumplen), total}));
    }
    if (cuenta_.sinComprobar > 0) {
      Queja(textos_.Compone(txt::CasosSinComprobar, {TextoEntero(cuenta_.sinComprobar), total}));
    }
  }

  // Runs the Tramos one after another.
  template <class Toma>
  void Corre(const Toma& toma) {
    FicheroLog log(opciones_.registros.empty() ? CarpetaPropia() : opciones_.registros);
    Vigia vigia(opciones_.obra.string(), textos_, estilo_);
    TareaObra tarea;
    tarea.cuantos = encargo_.tramos.size();
    tarea.registro = &log.registro();
    tarea.datos = [this](std::size_t i) { return Datos(encargo_.tramos[i]); };
    tarea.sigue = [&, progreso = vigia.Progreso()](std::size_t i, const AvanceCorrida& avance) {
      return !progreso || progreso(encargo_.tramos[i].tramo.NumeroTramo, avance);
    };
    tarea.toma = [&](std::size_t i, ResultadoTramo&& resultado) {
      const auto& p = encargo_.tramos[i];
      vigia.Acaba(resultado, p.numero);
      cuenta_ += CuentaDeVeredictos(resultado);
      toma(std::move(resultado), p);
      return true;
    };
    CalculaObra(tarea, opciones_.hilos.value_or(HilosDeLaMaquina()));
    log.registro().Vuelca();
    if (const auto fichero = log.SinEscribir(); !fichero.empty()) {
      Queja(textos_.Compone(txt::SinRegistro, {fichero}));
    }
    hayFallo_ = vigia.hayFallo();
    Cuenta();
  }

  void Lee(Listado& lector) {
    Corre([&lector](const ResultadoTramo& resultado, const TramoPedido& p) {
      lector.Tramo(resultado, p.posicion, p.numero, {});
    });
  }

  std::map<int, Tramo> Capturados() const {
    std::map<int, Tramo> capturados;
    for (const auto& p : encargo_.tramos) capturados[p.posicion] = p.tramo;
    return capturados;
  }

  void EscribeJson(std::ostream& flujo) {
    const auto capturados = Capturados();
    ListadoJson json(flujo, opciones_.obra.string(), capturados, textos_, estilo_);
    json.EmpiezaObra(encargo_.obra);
    Lee(json);
    json.AcabaObra();
  }

  void EscribeResumen(std::ostream& flujo) {
    Pantalla pantalla(flujo);
    Resumen resumen(pantalla, textos_, estilo_);
    // Its first block tells all the Tramos.
    std::vector<ResultadoTramo> resultados;
    std::vector<std::string> numeros;
    Corre([&](ResultadoTramo&& resultado, const TramoPedido& p) {
      resultados.push_back(std::move(resultado));
      numeros.push_back(p.numero);
    });
    resumen.Veredictos(resultados, numeros);
    for (std::size_t i = 0; i < resultados.size(); ++i) {
      resumen.Tramo(resultados[i], encargo_.tramos[i].posicion, numeros[i], {});
    }
  }

  // The output is open by now: one that cannot be written is told before anything is calculated.
  void Imprime(DestinoHojas& hojas) {
    struct Leido {
      ResultadoTramo resultado;
      const TramoPedido& pedido;
    };
    std::vector<Leido> leidos;
    Corre([&leidos](ResultadoTramo&& r, const TramoPedido& p) {
      leidos.push_back({std::move(r), p});
    });
    const DocumentoObra documento(
        TipoDeLinea(opciones_.listado),
        {encargo_.obra.NombreObra, encargo_.obra.Cliente, opciones_.obra.filename().string(),
         "ZORBIN " ZORBIN_VERSION, textos_, estilo_, FechaPedida()},
        [&leidos](Listado& listado) {
          for (const auto& [r, p] : leidos) listado.Tramo(r, p.posicion, p.numero, {});
        });
    if (documento.hojas() == 0) throw SinHojas();
    documento.Escribe(hojas);
  }

  int EnInforme() {
    std::vector<ResultadoTramo> resultados;
    Corre([&resultados](ResultadoTramo&& r, const TramoPedido&) {
      resultados.push_back(std::move(r));
    });
    DatosInforme datos{encargo_.obra,
                       proyecto_.extras.portada,
                       opciones_.obra.filename().string(),
                       HuellaDe(opciones_.obra),
                       "ZORBIN " ZORBIN_VERSION,
                       FechaPedida(),
                       DetalleDeLinea(opciones_.detalle),
                       {},
                       encargo_.rechazados,
                       PreciosDe(proyecto_.extras.otras)};
    for (std::size_t i = 0; i < resultados.size(); ++i) {
      const auto& p = encargo_.tramos[i];
      const auto tecleado = encargo_.tecleados.find(p.posicion);
      datos.tramos.push_back({&resultados[i], p.numero,
                              tecleado == encargo_.tecleados.end() ? p.tramo : tecleado->second,
                              p.tramo,
                              FabricacionDe(proyecto_.extras, p.numero, p.tramo.DescriTramo)});
    }
    // The report goes to others: its decimal sign is that of its language.
    EstiloNumeros estilo = estilo_;
    if (opciones_.separador.empty()) {
      estilo.separador = SeparadorDeIdioma(textos_.IdiomaOffset() / kPasoIdioma + 1);
    }
    const int hecho = EscribeInformePdf(opciones_.pdf, datos, textos_, estilo, opciones_.si);
    return hecho == kHecho ? Codigo() : hecho;
  }

  Fecha FechaPedida() const {
    if (opciones_.fecha.empty()) return Ahora();
    const auto corte = opciones_.fecha.find(' ');
    return {opciones_.fecha.substr(0, corte),
            corte == std::string::npos ? std::string{} : opciones_.fecha.substr(corte + 1)};
  }
};

void PonIdioma(const Proyecto& proyecto, const OpcionesCalcula& opciones, Catalogo& textos) {
  const std::int16_t pedido = IdiomaDeLinea(opciones.idioma);
  const std::int16_t idioma = pedido != 0 ? pedido : proyecto.obra.Idioma;
  if (textos.PonIdioma(idioma) != idioma) Queja(textos.Texto(txt::IdiomaSinInstalar));
}

// What is wrong with the words, or nothing.
std::string PalabrasQueNoSirven(const OpcionesCalcula& opciones, const Catalogo& textos) {
  if (auto queja = NoVanJuntas(opciones, textos); !queja.empty()) return queja;
  if (!opciones.tabla.empty() && !EsNombreDeTabla(opciones.tabla)) {
    return textos.Compone(txt::ExtensionDeTabla, {opciones.tabla.string()});
  }
  if (std::string mala; !ColumnasDeLista(opciones.columnas, mala)) {
    return textos.Compone(txt::ColumnaDeTablaMala, {mala, NombresDeColumnas()});
  }
  for (const auto& salida : {opciones.salida, opciones.pdf, opciones.texto, opciones.tabla}) {
    if (PisaLaObra(salida, opciones.obra)) {
      return textos.Compone(txt::SalidaSobreLaObra, {salida.string()});
    }
  }
  return "";
}

}  // namespace

int Calcula(const OpcionesCalcula& opciones, Catalogo& textos) try {
  if (const auto queja = PalabrasQueNoSirven(opciones, textos); !queja.empty()) {
    Queja(queja);
    return kPalabrasMalas;
  }
  const Proyecto proyecto = LeeProyectoEntero(opciones.obra, textos);
  PonIdioma(proyecto, opciones, textos);
  for (const auto& aviso : proyecto.avisos) Queja(textos.Compone(aviso));
  if (proyecto.SinAjustes) Queja(textos.Texto(txt::AjustesSinLeer));
  if (proyecto.SinExtras) Queja(textos.Texto(txt::ExtrasSinLeer));
  const auto posiciones = BuscaTramos(opciones.tramos, opciones.obra, proyecto.lista, textos);
  if (!posiciones) return kPalabrasMalas;

  Encargo encargo{proyecto.obra, TramosPedidos(proyecto, *posiciones), {}, {}};
  for (const auto& p : encargo.tramos) encargo.tecleados[p.posicion] = p.tramo;
  const auto pedidos = encargo.tramos.size();
  if (pedidos == 0) {
    Queja(textos.Compone(txt::ObraSinTramos, {opciones.obra.string()}));
    if (!opciones.listado.empty()) return kFicheroRechazado;
  }
  if (!opciones.sinValidar) Comprueba(proyecto, opciones, textos, *posiciones, encargo);
  const bool faltan = encargo.tramos.size() < pedidos;
  if (faltan && encargo.tramos.empty()) return kFicheroRechazado;

  Calculador calculador(proyecto, encargo, opciones, textos);
  const int codigo = !opciones.tabla.empty()    ? calculador.EnTabla()
                     : opciones.listado.empty() ? calculador.Resultados()
                                                : calculador.EnPaginas();
  return codigo == kHecho && (faltan || proyecto.SinAjustes || proyecto.SinExtras)
             ? kFicheroRechazado
             : codigo;
} catch (const ErrorFichero& error) {
  Queja(textos.Compone(error.mensaje()));
  return kFicheroRechazado;
} catch (const ErrorSalida& error) {
  Queja(textos.Compone(txt::SalidaNoSeEscribe, {error.nombre(), error.what()}));
  return kSalidaImposible;
}

}  // namespace zorbin
