// A person at the screen of adjustments, over a copy of the sample Obra.
#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "sesion/ajustes/mdAjuste.h"
#include "sesion/captura/guion.h"

namespace zorbin::prueba {

struct BancoAjustes : Banco {
  explicit BancoAjustes(const std::string& tramo = "1") {
    std::filesystem::copy_file(ZORBIN_FUENTES "muestras/acequia.zrb", obra);
    AbreObra(c, obra);
    Teclea(Ed::edTramo, tramo);
    Olvida();
  }

  /// Opens the screen, as the button does.
  bool Abre() {
    a = AjustaArmaduras(c, registros);
    return a != nullptr;
  }
  void Pulsa(BotonAjuste boton) {
    if (zorbin::Pulsa(*a, boton)) a.reset();
  }
  /// Types over a field and leaves it.
  bool Escribe(CampoAjuste campo, const std::string& texto) {
    zorbin::Cambia(*a, campo, texto);
    return zorbin::Sale(*a, campo);
  }
  void Directa(const std::string& camisa, const std::string& refuerzo,
               const std::string& exterior) {
    EligeFila(*a, kFilaDirecta);
    Escribe(CampoAjuste::txArmCamisa, camisa);
    Escribe(CampoAjuste::txArmRefuerzo, refuerzo);
    Escribe(CampoAjuste::txArmExterior, exterior);
    Pulsa(BotonAjuste::btSeleccionDirecta);
  }

  const ModeloAjustes& p() const { return a->t.pantalla; }
  std::string Fila(int i) const {
    const auto& f = p().filas[static_cast<std::size_t>(i)];
    return f.txArmCamisa + " " + f.txArmRefuerzo + " " + f.txArmExterior + " " + f.txArmTotal;
  }
  std::string Linea(int j) const {
    const auto& l = p().lineas[static_cast<std::size_t>(j)];
    return l.lbPosicion + " " + l.txArmNecesaria + " " + l.txArmDispuesta +
           (l.imAlerta ? " !" : "");
  }
  std::vector<EntradaAjuste> Guardados() const { return LeeAjustes(RutaDpe(obra)); }

  Carpeta carpeta;
  std::filesystem::path obra = carpeta / "o.zrb";
  std::filesystem::path registros = carpeta / "registros";
  std::unique_ptr<Ajustes> a;
};

}  // namespace zorbin::prueba
