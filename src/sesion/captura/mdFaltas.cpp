#include "sesion/captura/mdFaltas.h"

#include <algorithm>

#include "sesion/captura/mdCiclo.h"
#include "sesion/captura/mdPlausibilidad.h"
#include "sesion/captura/mdPresenta.h"
#include "sesion/captura/mdTipologias.h"
#include "sesion/captura/mdValidaObra.h"
#include "sesion/captura/mdValidaTramo.h"

namespace zorbin {

namespace {

// Nobody is there: questions are answered "go on" and kept, messages come back as faults.
class SinPersona : public Interlocutor {
 public:
  void Muestra(const std::string&, const std::string&) override {}
  bool Pregunta(const std::string& texto, const std::string& titulo) override {
    preguntas.push_back({0, {}, titulo, texto});
    return true;
  }
  std::optional<std::string> PideFichero(const std::string&) override { return std::nullopt; }
  void VaA(Ed) override {}

  std::vector<PreguntaDeObra> preguntas;
};

void Anota(ListaFaltas& lista, const Captura& c, SinPersona& voz, int posicion,
           const std::string& numero) {
  for (auto& p : voz.preguntas) {
    p.posicion = posicion;
    p.numero = numero;
    lista.preguntas.push_back(std::move(p));
  }
  voz.preguntas.clear();
  if (!c.falta) return;
  lista.faltas.push_back({posicion, numero, std::string(Fila(c.falta->campo).nombre),
                          c.falta->valor, c.falta->titulo, c.falta->mensaje});
}

void Anota(ListaFaltas& lista, const std::vector<AvisoDeCampo>& avisos, const std::string& numero) {
  for (const auto& a : avisos) {
    lista.avisos.push_back({numero, std::string(Fila(a.campo).nombre), a.texto});
  }
}

}  // namespace

bool ListaFaltas::Vale(int posicion) const {
  return std::none_of(faltas.begin(), faltas.end(), [&](const FaltaDeObra& f) {
    return f.posicion == 0 || f.posicion == posicion;
  });
}

void PonComprobada(Obra& obra, const Obra& comprobada) {
  RecorreNumeros<Obra>([&](const Ficha&, double Obra::*campo) { obra.*campo = comprobada.*campo; });
}

ListaFaltas ValidaProyecto(const Proyecto& proyecto, Catalogo& textos, const TablasCatalogo& tablas,
                           const PeticionValida& peticion) {
  ListaFaltas lista;
  EstadoCalculo e;
  SinPersona voz;
  Captura c(e, textos, tablas, voz, peticion.separador);
  e.obra = proyecto.obra;
  c.lista = proyecto.lista;
  PreparaPantalla(c);
  LimpiaCaptura(c, 0);
  MuestraObra(c);
  if (!ValidaObra(c)) Anota(lista, c, voz, 0, {});
  lista.obra = e.obra;
  Anota(lista, AvisosDeObra(e.obra, textos, peticion.separador), {});
  const auto& pedidas = peticion.posiciones;
  for (const int posicion : pedidas.empty() ? PosicionesDe(c.lista) : pedidas) {
    LeeTramo(c, proyecto.fichero, posicion);
    c.falta.reset();
    const bool vale = ValidaTramo(c, false);
    const std::string& numero = c.lista[static_cast<std::size_t>(posicion - 1)];
    if (vale) {
      lista.tramos[posicion] = e.tramo;
      Anota(lista, AvisosDePlausibilidad(e.obra, e.tramo, textos, peticion.separador), numero);
    }
    if (!vale && !c.falta) c.falta.emplace();
    Anota(lista, c, voz, posicion, numero);
  }
  return lista;
}

}  // namespace zorbin
