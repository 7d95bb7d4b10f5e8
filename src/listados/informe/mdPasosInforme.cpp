// The steps of a Caso: every formula that its run used, with its figures.
#include <algorithm>

#include "base/textos.h"
#include "calculo/anillo/mdAnilloCaso.h"
#include "calculo/pasos/mdPasos.h"
#include "calculo/rastro/mdEscritura.h"
#include "listados/informe/mdPlantilla.h"

namespace zorbin {

namespace {

using memoria::Cuadro;

class Pasos {
 public:
  /// @param rige  hypothesis whose checks are written; 0 for those of all of them
  Pasos(Plantilla& p, bool armado, int rige) : p_(p), armado_(armado), rige_(rige) {}

  void Escribe(const PasosCaso& pasos) {
    const GrupoPasos* antes = nullptr;
    for (const auto& grupo : pasos.grupos) {
      if (SeCalla(grupo.lugar)) continue;
      Titulo(grupo, antes);
      antes = &grupo;
      if (grupo.tabla) {
        Tabla(grupo);
      } else {
        for (const auto& paso : grupo.pasos) {
          if (!SeCalla(paso.lugar)) Uno(paso);
        }
      }
    }
  }

 private:
  Plantilla& p_;
  const bool armado_;
  const int rige_;

  // The results of the checks stand in a table; step by step, those of the governing hypothesis.
  bool SeCalla(const LugarPaso& lugar) const {
    return rige_ > 0 && lugar.apartado == Apartado::Comprobaciones && lugar.hipotesis > 0 &&
           lugar.hipotesis != rige_;
  }

  PasoEscrito Escrito(const Paso& paso) const {
    return EscribePaso(paso, p_.estilo.si, p_.estilo.separador);
  }

  // Part of the calculation, and the hypothesis and section that its steps share.
  void Titulo(const GrupoPasos& grupo, const GrupoPasos* antes) {
    QString titulo = p_.T(TituloDe(grupo.lugar.apartado));
    const QString sitio = Sitio(grupo.lugar);
    const bool sigue = antes != nullptr && antes->lugar.apartado == grupo.lugar.apartado;
    if (sigue && !sitio.isEmpty()) {
      titulo = sitio;
    } else if (!sitio.isEmpty()) {
      titulo += QStringLiteral(" · ") + sitio;
    }
    p_.r.Epigrafe(titulo);
  }

  QString Sitio(const LugarPaso& lugar) const {
    QStringList partes;
    if (lugar.hipotesis > 0) {
      partes += QString::number(lugar.hipotesis) + QStringLiteral(" · ") +
                p_.Hipotesis(armado_, lugar.hipotesis);
    }
    if (lugar.seccion > 0) {
      partes += p_.T(txt::Secciones[static_cast<std::size_t>(lugar.seccion - 1)]);
    }
    return partes.join(QStringLiteral(", "));
  }

  static QString Resultado(const PasoEscrito& x) {
    QString texto = QStringLiteral("= ") + Q(x.resultado.formula);
    if (!x.unidad.empty()) {
      texto += QStringLiteral("\\,\\text{%1}").arg(Q(std::string(x.unidad)));
    }
    return texto;
  }

  void Uno(const Paso& paso) {
    const auto x = Escrito(paso);
    std::vector<QString> partes{Q(x.simbolos.formula)};
    if (x.esRelacion) {
      partes.push_back(QStringLiteral("\\to ") + Q(x.cifras.formula));
    } else if (x.datos.empty()) {
      partes = {Q(x.simbolo.formula), Resultado(x)};
    } else {
      partes.push_back(QStringLiteral("= ") + Q(x.cifras.formula));
      partes.push_back(Resultado(x));
    }
    p_.r.Paso(p_.T(x.etiqueta), partes, Q(std::string(x.numero)));
  }

  // Each formula once in symbols, and a row for each place where it was used.
  void Tabla(const GrupoPasos& grupo) {
    std::vector<Formula> formulas;
    for (const auto& paso : grupo.pasos) {
      if (std::ranges::find(formulas, paso.formula) == formulas.end()) {
        formulas.push_back(paso.formula);
      }
    }
    for (const auto formula : formulas) {
      Cuadro c;
      c.columnas = QStringLiteral("llr");
      c.cuerpo = 8.0;
      c.ancho = false;
      for (const auto& paso : grupo.pasos) {
        if (paso.formula != formula) continue;
        const auto x = Escrito(paso);
        if (c.filas.empty()) {
          p_.r.Paso(p_.T(x.etiqueta), {Q(x.simbolos.formula)}, Q(std::string(x.numero)), true);
        }
        QString unidad = Q(std::string(x.unidad));
        if (!unidad.isEmpty()) unidad.prepend(QChar(u' '));
        c.filas.push_back(
            {{Plantilla::Celda(Sitio(paso.lugar)), Plantilla::Simbolo(Q(x.cifras.formula)),
              Plantilla::Celda(Q(x.resultado.llano) + unidad)}});
      }
      p_.r.Tabla(c);
    }
  }
};

}  // namespace

std::string TextoDePasos(const ResultadoTramo& resultado, const FilaCaso& fila,
                         const Catalogo& textos, const EstiloNumeros& estilo) {
  std::string texto;
  for (const auto& grupo : PasosDelCaso(resultado, fila).grupos) {
    texto += (texto.empty() ? "" : "\n") + textos.Texto(TituloDe(grupo.lugar.apartado)) + "\n";
    for (const auto& paso : grupo.pasos) {
      const auto x = EscribePaso(paso, estilo.si, estilo.separador);
      texto += textos.Texto(x.etiqueta) + ": " + TextoLlano(x) + "\n";
    }
  }
  return texto;
}

void EscribePasos(Plantilla& p, const TramoInforme& t, const FilaCaso& fila, bool todos) {
  const int rige = todos ? 0 : HipotesisQueRige(t.resultado->datos, fila);
  Pasos(p, t.completo.EsArmado, rige).Escribe(PasosDelCaso(*t.resultado, fila));
}

}  // namespace zorbin
