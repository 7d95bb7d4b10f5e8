#include "programas/zorbin-calc/mdCalcula.h"

#include <algorithm>
#include <array>
#include <iostream>

#include "base/mdNumeros.h"
#include "base/mdTextos.h"
#include "base/textos.h"
#include "listados/datos/mdJson.h"
#include "listados/obra/mdFlujo.h"
#include "listados/obra/mdPantalla.h"
#include "listados/obra/mdResumen.h"
#include "listados/obra/mdTipoListado.h"
#include "listados/papel/mdHojasTexto.h"
#include "persistencia/disco/mdLog.h"
#include "persistencia/dpe/mdDpe.h"
#include "programas/zorbin-calc/mdPalabras.h"
#include "programas/zorbin-calc/mdSalida.h"
#include "programas/zorbin-calc/mdSalidaPdf.h"
#include "programas/zorbin-calc/mdValida.h"
#include "programas/zorbin-calc/mdVigia.h"

namespace zorbin {

namespace {

// Writes the summary of an Obra.
class SalidaResumen : public OyenteObra {
 public:
  SalidaResumen(std::ostream& flujo, const Catalogo& textos, EstiloNumeros estilo)
      : pantalla_(flujo), resumen_(pantalla_, textos, estilo) {}
  void EmpiezaTramo(const EstadoCalculo&, int, const std::string&) override {}
  void AcabaTramo(const EstadoCalculo&, const ErrorCorrida*) override {}
  void Progreso(const EstadoCalculo& e) override { resumen_.Progreso(e); }
  void Caso(const EstadoCalculo& e) override { resumen_.Caso(e); }

 private:
  Pantalla pantalla_;
  Resumen resumen_;
};

// Whether an output would be written over the project or its adjustments.
bool PisaLaObra(const std::filesystem::path& salida, const std::filesystem::path& obra) {
  std::error_code error;
  return !salida.empty() && (std::filesystem::equivalent(salida, obra, error) ||
                             std::filesystem::equivalent(salida, RutaDpe(obra), error));
}

TipoListado TipoDeLinea(const std::string& listado) {
  if (listado == "tabular") return TipoListado::Tabular;
  if (listado == "pantalla") return TipoListado::Pantalla;
  return listado == "lame" ? TipoListado::Lame : TipoListado::Normal;
}

EstiloNumeros Estilo(const EstadoCalculo& e, const OpcionesCalcula& opciones) {
  return {e.obra.EsSI(), SeparadorDeLinea(opciones.separador)};
}

// What is wrong with options that do not go together, or nothing.
std::string NoVanJuntas(const OpcionesCalcula& o, const Catalogo& textos) {
  const bool pdf = !o.pdf.empty();
  const bool texto = !o.texto.empty();
  const bool salida = !o.salida.empty();
  const auto juntas = [&](const char* a, const char* b) {
    return textos.Compone(txt::NoVanJuntas, {a, b});
  };
  if (o.listado.empty()) {
    if (!pdf && !texto) return "";
    return textos.Compone(txt::NecesitaOtra, {pdf ? "--pdf" : "--texto", "--listado"});
  }
  if (!o.formato.empty()) return juntas("--listado", "--formato");
  if (pdf && texto) return juntas("--pdf", "--texto");
  if ((pdf || texto) && salida) return juntas(pdf ? "--pdf" : "--texto", "--salida");
  return "";
}

std::size_t CuentaTramos(const ListaTramos& lista) {
  return static_cast<std::size_t>(
      std::count_if(lista.begin(), lista.end(), [](const auto& n) { return !n.empty(); }));
}

// Completes Obra and Tramos of a request by the rules of their capture, and leaves out the Tramos
// that they refuse; it is told on standard error.
void Comprueba(const OpcionesCalcula& opciones, const ObraEnFichero& obra, Catalogo& textos,
               EstadoCalculo& e, PeticionCalculo& peticion) {
  const auto& posiciones = peticion.posiciones;
  auto lista = BuscaFaltas(opciones.obra, opciones.tablas,
                           {posiciones, SeparadorDeLinea(opciones.separador)}, textos);
  for (const auto& f : lista.faltas) Queja(TextoFalta(f, textos));
  for (const auto& p : lista.preguntas) Queja(TextoPregunta(p, textos));
  for (std::size_t i = 0; i < obra.lista.size(); ++i) {
    const int posicion = static_cast<int>(i) + 1;
    const bool pedida = posiciones.empty() ? !obra.lista[i].empty()
                                           : std::find(posiciones.begin(), posiciones.end(),
                                                       posicion) != posiciones.end();
    if (pedida && !lista.Vale(posicion)) peticion.omitidas.push_back(posicion);
  }
  PonComprobada(e.obra, lista.obra);
  peticion.comprobados = std::move(lista.tramos);
}

// Calculates the Tramos of a request for one reader, and watches over them.
class Calculador {
 public:
  Calculador(EstadoCalculo& e, const ObraEnFichero& obra, const OpcionesCalcula& opciones,
             const PeticionCalculo& peticion, const Catalogo& textos)
      : e_(e),
        obra_(obra),
        opciones_(opciones),
        peticion_(peticion),
        textos_(textos),
        estilo_(Estilo(e, opciones)) {}

  int Resultados() {
    Salida salida(opciones_.salida);
    if (opciones_.formato == "json") {
      ListadoJson json(salida.flujo(), opciones_.obra.string(), textos_, estilo_);
      json.EmpiezaObra(e_);
      Corre(json);
      json.AcabaObra();
    } else {
      SalidaResumen resumen(salida.flujo(), textos_, estilo_);
      Corre(resumen);
    }
    salida.Cierra();
    return Codigo();
  }

  int Listado() {
    if (!opciones_.pdf.empty()) return ListadoPdf();
    Salida salida(opciones_.texto.empty() ? opciones_.salida : opciones_.texto);
    HojasTexto hojas(salida.flujo());
    Imprime(hojas);
    salida.Cierra();
    return Codigo();
  }

 private:
  EstadoCalculo& e_;
  const ObraEnFichero& obra_;
  const OpcionesCalcula& opciones_;
  const PeticionCalculo& peticion_;
  const Catalogo& textos_;
  EstiloNumeros estilo_;
  bool hayFallo_ = false;

  int Codigo() const { return hayFallo_ ? kFalloDeCorrida : kHecho; }

  void Corre(OyenteObra& lector) {
    Vigia vigia(lector, opciones_.obra.string(), textos_, estilo_);
    CalculaObra(e_, obra_, peticion_, vigia);
    hayFallo_ = vigia.hayFallo();
  }

  int ListadoPdf() {
    EscribePdf(opciones_.pdf, e_.obra.NombreObra, textos_,
               [this](DestinoHojas& hojas) { Imprime(hojas); });
    return Codigo();
  }

  void Imprime(DestinoHojas& hojas) {
    const TipoListado tipo = TipoDeLinea(opciones_.listado);
    Papel papel(hojas, OrientacionDe(tipo));
    const auto listado = CreaListado(tipo, {papel, textos_, estilo_, FechaPedida()});
    Corre(*listado);
    papel.FinDocumento();
  }

  Fecha FechaPedida() const {
    if (opciones_.fecha.empty()) return Ahora();
    const auto corte = opciones_.fecha.find(' ');
    return {opciones_.fecha.substr(0, corte),
            corte == std::string::npos ? std::string{} : opciones_.fecha.substr(corte + 1)};
  }
};

}  // namespace

int Calcula(const OpcionesCalcula& opciones, Catalogo& textos) try {
  if (const auto queja = NoVanJuntas(opciones, textos); !queja.empty()) {
    Queja(queja);
    return kPalabrasMalas;
  }
  for (const auto& salida : {opciones.salida, opciones.pdf, opciones.texto}) {
    if (!PisaLaObra(salida, opciones.obra)) continue;
    Queja(textos.Compone(txt::SalidaSobreLaObra, {salida.string()}));
    return kPalabrasMalas;
  }
  EstadoCalculo e;
  const ObraEnFichero obra = AbreObra(e, opciones.obra);
  const std::int16_t pedido = IdiomaDeLinea(opciones.idioma);
  const std::int16_t idioma = pedido != 0 ? pedido : e.obra.Idioma;
  if (textos.PonIdioma(idioma) != idioma) Queja(textos.Texto(txt::IdiomaSinInstalar));
  for (const auto& aviso : obra.avisos) Queja(textos.Compone(aviso));
  if (e.corrida.SinAjustes) Queja(textos.Texto(txt::AjustesSinLeer));
  const auto posiciones = BuscaTramos(opciones.tramos, opciones.obra, obra.lista, textos);
  if (!posiciones) return kPalabrasMalas;
  PeticionCalculo peticion{
      *posiciones, opciones.registros.empty() ? CarpetaRegistros() : opciones.registros, {}, {}};
  if (!opciones.sinValidar) Comprueba(opciones, obra, textos, e, peticion);
  const auto total = posiciones->empty() ? CuentaTramos(obra.lista) : posiciones->size();
  if (total > 0 && peticion.omitidas.size() == total) return kFicheroRechazado;
  Calculador calculador(e, obra, opciones, peticion, textos);
  const int codigo = opciones.listado.empty() ? calculador.Resultados() : calculador.Listado();
  const bool algoRechazado = !peticion.omitidas.empty() || e.corrida.SinAjustes;
  return codigo == kHecho && algoRechazado ? kFicheroRechazado : codigo;
} catch (const ErrorFichero& error) {
  Queja(textos.Compone(error.mensaje()));
  return kFicheroRechazado;
} catch (const ErrorSalida& error) {
  Queja(textos.Compone(txt::SalidaNoSeEscribe, {error.nombre(), error.what()}));
  return kSalidaImposible;
}

}  // namespace zorbin
