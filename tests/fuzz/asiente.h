// Somebody at the capture who says yes to whatever is asked.
#pragma once

#include "fuzz/comun.h"
#include "persistencia/tablas/mdTablas.h"
#include "sesion/captura/mdCaptura.h"

namespace zorbin::hostil {

class Asiente : public Interlocutor {
 public:
  void Muestra(const std::string& texto, const std::string&) override {
    Exige(EsTextoLimpio(texto), "a message is clean text", texto);
    ultimo = texto;
  }
  bool Pregunta(const std::string&, const std::string&) override { return true; }
  Respuesta PreguntaGrabar(const std::string&) override { return Respuesta::Grabar; }
  std::optional<std::string> PideFichero(const std::string&, const std::string&) override {
    return std::nullopt;
  }
  void VaA(Ed) override {}
  std::string ultimo;
};

/// The manufacturers' tables of the program.
inline const TablasCatalogo& Tablas() {
  static const TablasCatalogo tablas = LeeTablas(ZORBIN_FUENTES "recursos/tablas");
  return tablas;
}

}  // namespace zorbin::hostil
