#include "programas/zorbin-calc/mdDibuja.h"

#include <algorithm>
#include <array>

#include "base/mdNumeros.h"
#include "base/mdTextos.h"
#include "base/textos.h"
#include "listados/dibujos/mdDibujoAnillo.h"
#include "listados/dibujos/mdDibujoMapa.h"
#include "listados/dibujos/mdDibujoTubo.h"
#include "listados/dibujos/mdDibujoZanja.h"
#include "listados/dibujos/mdDxf.h"
#include "listados/dibujos/mdGraficosTramo.h"
#include "listados/dibujos/mdHojaFabricacion.h"
#include "listados/dibujos/mdSvg.h"
#include "listados/obra/mdVeredictoCaso.h"
#include "listados/pintor/mdPintaLamina.h"
#include "listados/pintor/mdPintor.h"
#include "listados/pintor/mdSinPantalla.h"
#include "persistencia/proyecto/mdProyecto.h"
#include "persistencia/zrx/mdFabricacionZrx.h"
#include "programas/zorbin-calc/mdPalabras.h"
#include "programas/zorbin-calc/mdSalida.h"
#include "programas/zorbin-calc/mdValida.h"
#include "programas/zorbin-calc/mdVigia.h"

namespace zorbin {

namespace {

// What ends the order: it has been told.
struct Acaba {
  int codigo;
};

constexpr std::array<const char*, 6> kGraficos{"acero",    "interior", "exterior",
                                               "momentos", "cargas",   "tensiones"};

QueGrafico GraficoDe(const std::string& palabra) {
  const auto i = std::find(kGraficos.begin(), kGraficos.end(), palabra);
  return i == kGraficos.end() ? QueGrafico::Acero : static_cast<QueGrafico>(i - kGraficos.begin());
}

TemaDibujo TemaDe(const std::string& palabra) {
  if (palabra == "oscuro") return TemaDibujo::Oscuro;
  return palabra == "claro" ? TemaDibujo::Claro : TemaDibujo::Papel;
}

// A number typed on the line; none that is not above 0.
std::optional<double> Positivo(const std::string& texto, const OpcionesDibuja& o) {
  const auto valor = NumeroTecleado(texto, SeparadorDeLinea(o.separador)).valor;
  return valor && *valor > 0 ? valor : std::nullopt;
}

// What is wrong with options that do not go together, or nothing.
std::string NoVanJuntas(const OpcionesDibuja& o, const Catalogo& textos) {
  const std::array<std::pair<const char*, const std::filesystem::path&>, 4> salidas{
      {{"--svg", o.svg}, {"--pdf", o.pdf}, {"--png", o.png}, {"--dxf", o.dxf}}};
  const char* una = nullptr;
  for (const auto& [nombre, fichero] : salidas) {
    if (fichero.empty()) continue;
    if (una != nullptr) return textos.Compone(txt::NoVanJuntas, {una, nombre});
    una = nombre;
    std::error_code error;
    if (std::filesystem::equivalent(fichero, o.obra, error)) {
      return textos.Compone(txt::SalidaSobreLaObra, {fichero.string()});
    }
  }
  if (una == nullptr) return textos.Compone(txt::FaltaPalabra, {"--svg, --pdf, --png, --dxf"});
  if (o.tramos.empty()) return textos.Compone(txt::FaltaPalabra, {"--tramo"});
  if (o.altura.has_value() != o.presion.has_value()) {
    return textos.Compone(txt::NecesitaOtra, {o.altura ? "--altura" : "--presion",
                                              o.altura ? "--presion" : "--altura"});
  }
  for (const auto& [nombre, texto] :
       {std::pair{"--altura", &o.altura}, {"--presion", &o.presion}, {"--escala", &o.escala}}) {
    if (*texto && !Positivo(**texto, o))
      return textos.Compone(txt::ValorNoSirve, {nombre, **texto});
  }
  return "";
}

class Dibujante {
 public:
  Dibujante(const OpcionesDibuja& opciones, const Proyecto& proyecto, const Catalogo& textos)
      : o_(opciones),
        textos_(textos),
        palabras_(textos, {proyecto.obra.EsSI(), SeparadorDeLinea(opciones.separador)}),
        datos_(Datos(proyecto)) {}

  Lamina Dibuja() {
    if (o_.que == "mapa") return Mapa();
    if (o_.que == "grafico" && o_.grafico != "tensiones") return Grafico();
    ElCaso();
    if (o_.que == "grafico") return Tensiones();
    if (o_.que == "anillo") return DibujaAnillo(Dibujado(), Hipotesis(), palabras_, Hoja());
    if (o_.que == "hoja") return DibujaHojaFabricacion(Dibujado(), fabricacion_, palabras_);
    if (o_.que == "zanja") return DibujaZanja(Dibujado(), palabras_, Hoja());
    return DibujaSeccion(Dibujado(), palabras_, Hoja());
  }

  std::string Titulo() const { return palabras_.TramoEnLetra(datos_.tramo); }

 private:
  const OpcionesDibuja& o_;
  const Catalogo& textos_;
  PalabrasDibujo palabras_;
  Fabricacion fabricacion_;
  DatosTramo datos_;
  ResultadoTramo resultado_;
  const FilaCaso* fila_ = nullptr;
  std::optional<ResultadoCaso> caso_;

  std::string Numero() const { return TextoEntero(datos_.tramo.NumeroTramo); }

  DatosTramo Datos(const Proyecto& proyecto) {
    const auto posiciones = BuscaTramos(o_.tramos, o_.obra, proyecto.lista, textos_);
    if (!posiciones) throw Acaba{kPalabrasMalas};
    Obra obra = proyecto.obra;
    const auto pedido = TramosPedidos(proyecto, *posiciones).front();
    Tramo tramo = pedido.tramo;
    Extras extras = proyecto.extras;
    const auto suyos = TomaExtras(extras, pedido.numero, tramo.DescriTramo);
    if (suyos) fabricacion_ = FabricacionDe(suyos->otras);
    if (!o_.sinValidar) {
      const auto lista =
          BuscaFaltas(proyecto, o_.tablas, {*posiciones, SeparadorDeLinea(o_.separador)}, textos_);
      for (const auto& f : lista.faltas) Queja(TextoFalta(f, textos_));
      if (!lista.Vale(posiciones->front())) throw Acaba{kFicheroRechazado};
      PonComprobada(obra, lista.obra);
      const auto NumeroTramo = tramo.NumeroTramo;
      tramo = lista.tramos.at(posiciones->front());
      tramo.NumeroTramo = NumeroTramo;
    }
    auto datos = DatosDeCalculo(obra, tramo, proyecto.ajustes, proyecto.SinAjustes);
    datos.envolvente = o_.envolvente;
    return datos;
  }

  HojaDibujo Hoja() const {
    HojaDibujo hoja;
    hoja.escala = o_.escala ? Positivo(*o_.escala, o_).value_or(0.0) : 0.0;
    return hoja;
  }

  // The Caso asked for, or the worst one of the Tramo.
  bool BuscaCaso() {
    Rango rango = RangoDe(datos_);
    if (o_.altura) {
      const double DP = *Positivo(*o_.presion, o_) / palabras_.Convertido(1.0, "at->MPa");
      rango = RangoDeUnCaso(datos_, *Positivo(*o_.altura, o_), DP);
    }
    resultado_ = CalculaTramo(datos_, rango);
    fila_ = CuentaDeVeredictos(resultado_).peor;
    return fila_ != nullptr;
  }

  void ElCaso() {
    if (!BuscaCaso()) {
      if (resultado_.fallo) {
        Vigia vigia(o_.obra.string(), textos_, palabras_.Estilo());
        vigia.Acaba(resultado_, Numero());
        throw Acaba{kFalloDeCorrida};
      }
      Queja(textos_.Compone(txt::SinCasoQueDibujar, {Numero()}));
      throw Acaba{kFicheroRechazado};
    }
    caso_ = CasoEntero(resultado_, *fila_);
  }

  CasoDibujado Dibujado() const { return {resultado_, *fila_, *caso_}; }

  int Hipotesis() const {
    if (!o_.hipotesis) return std::max(1, HipotesisQueRige(datos_, *fila_));
    const int cuantas = CuentaHipotesis(datos_);
    if (*o_.hipotesis < 1 || *o_.hipotesis > cuantas) {
      Queja(textos_.Compone(txt::HipotesisQueNoEsta,
                            {Numero(), std::to_string(*o_.hipotesis), TextoEntero(cuantas)}));
      throw Acaba{kPalabrasMalas};
    }
    return *o_.hipotesis;
  }

  Lamina Mapa() {
    const bool hay = BuscaCaso();
    return DibujaMapa(CalculaMapa(datos_), datos_, hay ? fila_ : nullptr, palabras_, Hoja()).lamina;
  }

  Lamina Grafico() const {
    const auto eje = o_.eje == "altura" ? EjeDeGrafico::Altura : EjeDeGrafico::Presion;
    const auto que = GraficoDe(o_.grafico);
    const auto ejes =
        EjesDelGrafico(datos_, que == QueGrafico::Cargas ? EjeDeGrafico::Altura : eje);
    const auto malla = CalculaMalla(datos_, ejes, que == QueGrafico::Momentos);
    return DibujaGraficoTramo(que, eje, datos_, malla, palabras_, Hoja()).lamina;
  }

  Lamina Tensiones() const {
    if (datos_.tramo.EsArmado) {
      Queja(textos_.Compone(txt::SoloDePostesado, {Numero()}));
      throw Acaba{kPalabrasMalas};
    }
    return DibujaTensiones(Dibujado(), Hipotesis(), palabras_, Hoja()).lamina;
  }
};

void Escribe(const OpcionesDibuja& o, const Lamina& lamina, const std::string& titulo) {
  const Paleta paleta(TemaDe(o.tema));
  if (!o.svg.empty() || !o.dxf.empty()) {
    Salida salida(o.svg.empty() ? o.dxf : o.svg);
    salida.flujo() << (o.svg.empty() ? DxfDe(lamina, titulo) : SvgDe(lamina, paleta, titulo));
    salida.Cierra();
    return;
  }
  const AplicacionSinPantalla aplicacion;
  if (!o.pdf.empty()) {
    EscribeLaminaPdf(o.pdf, lamina, paleta, titulo);
    return;
  }
  Salida salida(o.png);
  salida.flujo() << LaminaPng(lamina, paleta);
  salida.Cierra();
}

}  // namespace

int Dibuja(const OpcionesDibuja& opciones, Catalogo& textos) try {
  if (const auto queja = NoVanJuntas(opciones, textos); !queja.empty()) {
    Queja(queja);
    return kPalabrasMalas;
  }
  const Proyecto proyecto = LeeProyecto(opciones.obra);
  const std::int16_t pedido = IdiomaDeLinea(opciones.idioma);
  const std::int16_t idioma = pedido != 0 ? pedido : proyecto.obra.Idioma;
  if (textos.PonIdioma(idioma) != idioma) Queja(textos.Texto(txt::IdiomaSinInstalar));
  for (const auto& aviso : proyecto.avisos) Queja(textos.Compone(aviso));
  Dibujante dibujante(opciones, proyecto, textos);
  const Lamina lamina = dibujante.Dibuja();
  Escribe(opciones, lamina, dibujante.Titulo());
  return proyecto.SinAjustes ? kFicheroRechazado : kHecho;
} catch (const Acaba& fin) {
  return fin.codigo;
} catch (const ErrorFichero& error) {
  Queja(textos.Compone(error.mensaje()));
  return kFicheroRechazado;
} catch (const ErrorSalida& error) {
  Queja(textos.Compone(txt::SalidaNoSeEscribe, {error.nombre(), error.what()}));
  return kSalidaImposible;
} catch (const ErrorPintor& error) {
  Queja(textos.Compone(
      txt::SalidaNoSeEscribe,
      {(opciones.pdf.empty() ? opciones.png : opciones.pdf).string(), error.what()}));
  return kSalidaImposible;
}

}  // namespace zorbin
