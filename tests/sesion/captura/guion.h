// A person at the capture screen, by script: answers to questions, what was shown, typing.
#pragma once

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

#include "comun/carpeta.h"
#include "sesion/captura/mdCiclo.h"
#include "sesion/captura/mdEdicion.h"
#include "sesion/captura/mdTramos.h"

namespace zorbin::prueba {

class Guion : public Interlocutor {
 public:
  void Muestra(const std::string& texto, const std::string& titulo) override {
    mensajes.push_back({texto, titulo});
  }
  void Anuncia(const std::string& texto) override { anuncios.push_back(texto); }
  bool Pregunta(const std::string& texto, const std::string& titulo) override {
    preguntas.push_back({texto, titulo});
    return responde;
  }
  Respuesta PreguntaGrabar(const std::string& texto) override {
    preguntas.push_back({texto, {}});
    return alIrse;
  }
  std::optional<std::string> PideFichero(const std::string&, const std::string&) override {
    ++ficherosPedidos;
    return fichero;
  }
  void VaA(Ed campo) override { foco = campo; }

  struct Caja {
    std::string texto;
    std::string titulo;
  };
  std::vector<Caja> mensajes;
  std::vector<Caja> preguntas;
  std::vector<std::string> anuncios;
  bool responde = true;
  Respuesta alIrse = Respuesta::Cancelar;
  std::optional<std::string> fichero;
  int ficherosPedidos = 0;
  std::optional<Ed> foco;

  std::string Ultimo() const { return mensajes.empty() ? std::string{} : mensajes.back().texto; }
  std::string Titulo() const { return mensajes.empty() ? std::string{} : mensajes.back().titulo; }
  void Olvida() {
    mensajes.clear();
    preguntas.clear();
    anuncios.clear();
    foco.reset();
  }
};

using pruebas::Carpeta;

/// The whole screen over the tables of the program.
struct Banco {
  explicit Banco(char separador = ',')
      : textos(Catalogo::Lee(ZORBIN_FUENTES "recursos/textos")),
        tablas(LeeTablas(ZORBIN_FUENTES "recursos/tablas")),
        c(e, textos, tablas, voz, separador) {
    c.alDarPaso = [this](PasoHecho paso) {
      pasos.resize(dados);
      pasos.push_back(std::move(paso));
      ++dados;
    };
    NuevaObra(c);
  }

  // ---- Undoing, as a window does

  bool Deshace() {
    if (dados == 0) return false;
    zorbin::Deshace(c, pasos[--dados]);
    return true;
  }
  bool Rehace() {
    if (dados == pasos.size()) return false;
    zorbin::Rehace(c, pasos[dados++]);
    return true;
  }
  /// The file that it has from now on, opened or new, has no step yet.
  void OlvidaPasos() {
    pasos.clear();
    dados = 0;
  }

  // ---- Typing

  /// Enters a field, types key by key over what it held, and leaves it.
  SalidaCampo Teclea(Ed campo, const std::string& teclas) {
    Entra(c, campo);
    for (std::size_t n = 1; n <= teclas.size(); ++n) Cambia(c, campo, teclas.substr(0, n));
    if (teclas.empty()) Cambia(c, campo, "");
    return Sale(c, campo);
  }

  /// What is typed into a field, and where it is looked at, whether the field is left and what then
  /// stands in it or in another.
  struct Gesto {
    Ed campo;
    const char* teclas;
    std::optional<SalidaCampo> sale = {};
    std::optional<std::pair<Ed, const char*>> queda = {};
  };
  void Teclea(std::initializer_list<Gesto> gestos) {
    for (const auto& g : gestos) {
      SCOPED_TRACE(std::string(Fila(g.campo).nombre) + ": " + g.teclas);
      const auto sale = Teclea(g.campo, g.teclas);
      EXPECT_TRUE(!g.sale || sale == *g.sale);
      if (g.queda) {
        EXPECT_EQ(c[g.queda->first].texto, g.queda->second);
      }
    }
  }

  /// A text that stands in a field without any of its rules having run.
  void Pon(Ed campo, const std::string& texto) { c[campo].texto = texto; }
  void Pon(std::initializer_list<std::pair<Ed, const char*>> contenidos) {
    for (const auto& [campo, texto] : contenidos) Pon(campo, texto);
  }

  void Escoge(Ed campo, int entrada) {
    Entra(c, campo);
    Cambia(c, campo, c[campo].entradas.at(static_cast<std::size_t>(entrada - 1)));
    Sale(c, campo);
  }

  /// What the last refusal said, and of what.
  std::string Porque() const { return c.faltas.empty() ? std::string{} : c.faltas.back().mensaje; }
  std::string DeQue() const { return c.faltas.empty() ? std::string{} : c.faltas.back().titulo; }

  /// An Obra with pressures, and a new Tramo that only lacks a diameter.
  void ObraYTramo() {
    Teclea(Ed::edPrsM1, "0,5");
    NuevoTramo(c);
    Olvida();
  }
  /// A reinforced Tramo that validates.
  void TramoValido() {
    ObraYTramo();
    Teclea(Ed::edDi0, "1,2");
    Olvida();
  }
  /// The Tramo that a number means.
  int Id(int numero) const { return c.version.tramos.at(*LugarDeNumero(c.version, numero))->id; }

  void Olvida() { voz.Olvida(); }

  EstadoCalculo e;
  Catalogo textos;
  TablasCatalogo tablas;
  Guion voz;
  Captura c;
  std::vector<PasoHecho> pasos;
  std::size_t dados = 0;  // of them, those that are not undone
};

/// With a Tramo in hand that validates.
struct ConTramo : Banco {
  ConTramo() { TramoValido(); }
};

/// Over a copy of the sample Obra: seven Tramos, the sixth and the seventh post-tensioned.
struct ConMuestra : Banco {
  ConMuestra() {
    std::filesystem::copy_file(ZORBIN_FUENTES "muestras/acequia.zrb", ruta);
    Abre();
  }
  void Abre() {
    EXPECT_TRUE(AbreObra(c, ruta)) << voz.Ultimo();
    OlvidaPasos();
    Olvida();
  }
  void Toma(int numero) { PonEnMano(c, Id(numero)); }

  const Carpeta carpeta;
  const std::filesystem::path ruta = carpeta / "o.zrb";
};

}  // namespace zorbin::prueba
