#include "programas/zorbin-calc/mdMediciones.h"

#include <algorithm>

#include "base/mdContenido.h"
#include "base/mdTextos.h"
#include "base/textos.h"
#include "calculo/corrida/mdCalculaObra.h"
#include "listados/mediciones/mdMedicionObra.h"
#include "persistencia/disco/mdErrorFichero.h"
#include "persistencia/proyecto/mdProyecto.h"
#include "persistencia/zrx/mdFabricacionZrx.h"
#include "programas/zorbin-calc/mdPalabras.h"
#include "programas/zorbin-calc/mdSalida.h"
#include "programas/zorbin-calc/mdValida.h"
#include "programas/zorbin-calc/mdVigia.h"

namespace zorbin {

namespace {

constexpr std::size_t kMaxBytesPrecios = 100'000;

// What ends the order: it has been told.
struct Acaba {
  int codigo;
};

Precios LeePrecios(const OpcionesMediciones& o, const Proyecto& proyecto, const Catalogo& textos) {
  if (o.precios.empty()) return PreciosDe(proyecto.extras.otras);
  std::string texto;
  if (const int causa = LeeContenido(o.precios, kMaxBytesPrecios, texto)) {
    throw ErrorFichero({txt::NoSeAbre, {o.precios.string(), TextoDeCausa(causa)}});
  }
  try {
    return PreciosDeTexto(texto);
  } catch (const ClaveMala& mala) {
    Queja(textos.Compone(txt::PreciosMalos, {o.precios.string(), mala.donde}));
    throw Acaba{kFicheroRechazado};
  }
}

class Medidor {
 public:
  Medidor(const OpcionesMediciones& opciones, const Proyecto& proyecto, const Catalogo& textos)
      : o_(opciones),
        proyecto_(proyecto),
        textos_(textos),
        palabras_(textos, {proyecto.obra.EsSI(), SeparadorDeLinea(opciones.separador)}),
        obra_(proyecto.obra),
        precios_(LeePrecios(opciones, proyecto, textos)) {}

  int Mide() {
    Calcula();
    std::vector<TramoAMedir> tramos;
    for (const auto& c : calculados_) tramos.push_back({c.resultado, c.numero, c.fabricacion});
    const auto que = o_.casos == "todos" ? QueCasos::Todos : QueCasos::Peor;
    const auto casos = MideObra(tramos, precios_, que);
    const std::vector<Planilla> planillas{PlanillaDePartidas(casos, precios_, que, palabras_),
                                          PlanillaDeCapas(casos, palabras_)};
    if (!o_.csv.empty()) {
      Escribe(o_.csv, CsvDePlanillas(planillas, palabras_.Estilo().separador));
    }
    if (!o_.xlsx.empty()) EscribeXlsx(o_.xlsx, planillas);
    if (o_.formato == "json") {
      Escribe(o_.salida, JsonDeMedicion(casos, precios_));
    } else if ((o_.csv.empty() && o_.xlsx.empty()) || !o_.salida.empty()) {
      std::string texto;
      for (const auto& p : planillas) {
        texto += (texto.empty() ? "" : "\n") + TextoDePlanilla(p, palabras_.Estilo().separador);
      }
      Escribe(o_.salida, texto);
    }
    return codigo_;
  }

 private:
  struct Calculado {
    ResultadoTramo resultado;
    std::string numero;
    Fabricacion fabricacion;
  };

  const OpcionesMediciones& o_;
  const Proyecto& proyecto_;
  const Catalogo& textos_;
  PalabrasDibujo palabras_;
  Obra obra_;
  Precios precios_;
  std::vector<Calculado> calculados_;
  int codigo_ = kHecho;

  static void Escribe(const std::filesystem::path& fichero, const std::string& texto) {
    Salida salida(fichero);
    salida.flujo() << texto;
    salida.Cierra();
  }

  void Calcula() {
    const auto posiciones = BuscaTramos(o_.tramos, o_.obra, proyecto_.lista, textos_);
    if (!posiciones) throw Acaba{kPalabrasMalas};
    auto pedidos = TramosPedidos(proyecto_, *posiciones);
    if (!o_.sinValidar) Comprueba(*posiciones, pedidos);
    Vigia vigia(o_.obra.string(), textos_, palabras_.Estilo());
    TareaObra tarea;
    tarea.cuantos = pedidos.size();
    tarea.datos = [&](std::size_t i) {
      return DatosDeCalculo(obra_, pedidos[i].tramo, proyecto_.ajustes, proyecto_.SinAjustes);
    };
    tarea.toma = [&](std::size_t i, ResultadoTramo&& r) {
      vigia.Acaba(r, pedidos[i].numero);
      calculados_.push_back(
          {std::move(r), pedidos[i].numero,
           FabricacionDe(proyecto_.extras, pedidos[i].numero, pedidos[i].tramo.DescriTramo)});
      return true;
    };
    CalculaObra(tarea);
    if (vigia.hayFallo()) codigo_ = kFalloDeCorrida;
  }

  // Completes the Tramos by the rules of their capture, and leaves out those that they refuse.
  void Comprueba(const std::vector<int>& posiciones, std::vector<TramoPedido>& pedidos) {
    const auto lista =
        BuscaFaltas(proyecto_, o_.tablas, {posiciones, SeparadorDeLinea(o_.separador)}, textos_);
    for (const auto& f : lista.faltas) Queja(TextoFalta(f, textos_));
    PonComprobada(obra_, lista.obra);
    if (std::erase_if(pedidos, [&](const auto& p) { return !lista.Vale(p.posicion); }) > 0) {
      codigo_ = kFicheroRechazado;
    }
    if (pedidos.empty()) throw Acaba{kFicheroRechazado};
    for (auto& p : pedidos) {
      const Tramo pedido = std::exchange(p.tramo, lista.tramos.at(p.posicion));
      p.tramo.NumeroTramo = pedido.NumeroTramo;
      p.tramo.Envolvente = pedido.Envolvente;
    }
  }
};

}  // namespace

int Mediciones(const OpcionesMediciones& opciones, Catalogo& textos) try {
  for (const auto& salida : {opciones.csv, opciones.xlsx, opciones.salida}) {
    std::error_code error;
    if (!salida.empty() && std::filesystem::equivalent(salida, opciones.obra, error)) {
      Queja(textos.Compone(txt::SalidaSobreLaObra, {salida.string()}));
      return kPalabrasMalas;
    }
  }
  const Proyecto proyecto = LeeProyecto(opciones.obra);
  const std::int16_t pedido = IdiomaDeLinea(opciones.idioma);
  const std::int16_t idioma = pedido != 0 ? pedido : proyecto.obra.Idioma;
  if (textos.PonIdioma(idioma) != idioma) Queja(textos.Texto(txt::IdiomaSinInstalar));
  for (const auto& aviso : proyecto.avisos) Queja(textos.Compone(aviso));
  const int codigo = Medidor(opciones, proyecto, textos).Mide();
  const bool incompleta = proyecto.SinAjustes || proyecto.SinExtras;
  return codigo == kHecho && incompleta ? kFicheroRechazado : codigo;
} catch (const Acaba& fin) {
  return fin.codigo;
} catch (const ErrorFichero& error) {
  Queja(textos.Compone(error.mensaje()));
  return kFicheroRechazado;
} catch (const ErrorSalida& error) {
  Queja(textos.Compone(txt::SalidaNoSeEscribe, {error.nombre(), error.what()}));
  return kSalidaImposible;
}

}  // namespace zorbin
