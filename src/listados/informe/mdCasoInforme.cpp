// A Caso told in full: its pressures, its ring, its checks and its steps.
#include <algorithm>
#include <cmath>
#include <tuple>

#include "base/mdTextos.h"
#include "base/textos.h"
#include "calculo/anillo/mdAnilloCaso.h"
#include "listados/dibujos/mdDibujoAnillo.h"
#include "listados/dibujos/mdDibujoTubo.h"
#include "listados/informe/mdPlantilla.h"
#include "listados/obra/mdRotulos.h"

namespace zorbin {

namespace {

using memoria::Cuadro;
using memoria::FilaCuadro;

constexpr double kMmColumna = kColumnaInforme / kPuntosPorMm;

class CasoInforme {
 public:
  CasoInforme(Plantilla& p, const VistaCaso& v, bool figuras)
      : p_(p), v_(v), armado_(v.Datos().EsArmado), figuras_(figuras) {}

  void Escribe() {
    Presiones();
    if (figuras_) Figuras();
    Anillo();
    Cierre();
    Comprobaciones();
  }

 private:
  Plantilla& p_;
  const VistaCaso& v_;
  const bool armado_;
  const bool figuras_;

  void Presiones() {
    const auto& f = v_.fila;
    const auto& q = v_.altura.cargas;
    Cuadro c;
    c.columnas = QStringLiteral("rrrrrrrr");
    const QString presion = p_.Unidad("at->MPa");
    const QString carga = p_.Unidad("T/M2->kN/M2");
    for (const auto* cabeza : {"DP", "MDP", "STP", "PP"}) {
      if (c.cabezas.empty()) c.cabezas.push_back({{QStringLiteral("H, m")}});
      c.cabezas.front().push_back({QString::fromLatin1(cabeza) + ", " + presion});
    }
    c.cabezas.front().push_back({QStringLiteral("Q, ") + carga});
    c.cabezas.front().push_back({p_.ConUnidad(txt::InfCargaMovil, carga)});
    c.cabezas.front().push_back({p_.ConUnidad(txt::InfCargaTerraplen, carga)});
    const auto tm2 = [this](double valor) {
      return Plantilla::Celda(p_.Num(valor, 3, "T/M2->kN/M2"));
    };
    c.filas.push_back(
        {{Plantilla::Celda(p_.Num(f.Hr, 2)), Plantilla::Celda(p_.Presion(f.DP)),
          Plantilla::Celda(p_.Presion(f.MDP)), Plantilla::Celda(p_.Presion(f.STP)),
          Plantilla::Celda(p_.Presion(f.PP)), tm2(q.Q), tm2(q.QMovil), tm2(q.QTerraplen)}});
    p_.r.Tabla(c, p_.T(txt::InfPiePresiones));
  }

  static HojaDibujo Panel(double ancho, double alto) {
    HojaDibujo hoja;
    hoja.ancho = ancho;
    hoja.alto = alto;
    hoja.cabecera = false;
    return hoja;
  }

  void Figuras() {
    const CasoDibujado caso{v_.tramo, v_.fila, v_.caso};
    const HojaDibujo media = Panel(kMmColumna / 2.0 - 3.0, 66);
    Lamina seccion = DibujaTransversal(caso, p_.dibujo, media);
    const QString escala = p_.Con(txt::InfEscala, {p_.dibujo.Corto(seccion.escala, 1)});
    p_.r.Figuras(
        {{Plantilla::Figura(std::move(seccion)),
          p_.T(txt::InfPieArmaduras) + QStringLiteral(", ") + escala},
         {Plantilla::Figura(DibujaPared(caso, p_.dibujo, media)), p_.T(txt::InfPiePared)}});
    const int h = std::max(1, HipotesisQueRige(v_.tramo.datos, v_.fila));
    p_.r.Figuras({{Plantilla::Figura(DibujaAnillo(caso, h, p_.dibujo, Panel(kMmColumna, 72))),
                   p_.Con(txt::InfPieAnillo, {p_.Hipotesis(armado_, h).toStdString()})}});
  }

  double M(int h, int s) const {
    return armado_ ? v_.Armado().esfuerzos.M(h, s) : v_.Postesado().hipotesis(h).MomHip(s) / 1000.0;
  }
  double N(int h, int s) const {
    return armado_ ? v_.Armado().esfuerzos.N(h, s) : v_.Postesado().hipotesis(h).AxilHip(s) / 10.0;
  }

  void Anillo() {
    Cuadro c;
    c.columnas = armado_ ? QStringLiteral("llrrrl") : QStringLiteral("llrrr");
    c.cabezas = {{{p_.T(txt::InfHipotesisCabeza)},
                  {p_.T(txt::InfSeccion)},
                  {QStringLiteral("M, ") + p_.Unidad("mT->mkN") + "/m"},
                  {QStringLiteral("N, ") + p_.Unidad("T->kN") + "/m"},
                  {QStringLiteral("e = |M|/N, mm")}}};
    if (armado_) c.cabezas.front().push_back({p_.T(txt::InfComportamiento)});
    const int rige = HipotesisQueRige(v_.tramo.datos, v_.fila);
    for (int h = 1; h <= CuentaHipotesis(v_.tramo.datos); ++h) {
      if (!armado_ && !v_.Postesado().hipotesis(h).hecha) continue;
      const bool solo = armado_ && h == kHipPPNeta;
      for (int s = 1; s <= (solo ? 1 : kSecciones); ++s) {
        c.filas.push_back(FilaAnillo(h, s, solo, h == rige));
      }
    }
    if (!c.filas.empty()) p_.r.Tabla(c, p_.T(txt::InfPieEsfuerzos));
  }

  FilaCuadro FilaAnillo(int h, int s, bool solo, bool negrita) const {
    FilaCuadro f;
    f.negrita = negrita;
    f.corte = s == 1 && h > 1;
    const double m = M(h, s);
    const double n = N(h, s);
    const QString nombre = QString::number(h) + QStringLiteral(" · ") + p_.Hipotesis(armado_, h);
    f.celdas = {Plantilla::Celda(s == 1 ? nombre : QString()),
                Plantilla::Celda(solo ? p_.T(txt::InfTodas)
                                      : p_.T(txt::Secciones[static_cast<std::size_t>(s - 1)])),
                Plantilla::Celda(p_.Num(m, 4, "mT->mkN")), Plantilla::Celda(p_.Num(n, 3, "T->kN")),
                Plantilla::Celda(n == 0.0 ? QStringLiteral("–")
                                          : p_.Num(std::fabs(m) / std::fabs(n) * 1000.0, 1))};
    if (armado_) f.celdas.push_back(Plantilla::Celda(Comportamiento(m, n)));
    return f;
  }

  QString Comportamiento(double m, double n) const {
    if (m == 0.0) return p_.T(txt::InfTraccionPura);
    const auto& t = v_.Datos();
    const double z = t.Esp - t.Reci - t.Rece;
    const bool compuesta = n > 0.0 && std::fabs(m) / n <= z / 2.0;
    return p_.T(compuesta ? txt::InfTraccionCompuesta : txt::InfFlexion);
  }

  // What is to be built, and the verdict.
  void Cierre() {
    constexpr int kAncho = 200;
    for (const auto& linea : p_.caso.Cierre(v_, kAncho)) {
      p_.r.Parrafo(Q(linea.texto).trimmed(), false, linea.negrita);
    }
  }

  // Of each kind and face the check that is used most.
  void Comprobaciones() {
    std::vector<ComprobacionCaso> peores;
    for (const auto& c : v_.caso.verificacion.comprobaciones) {
      auto suya = std::ranges::find_if(peores, [&](const ComprobacionCaso& o) {
        return std::tie(o.que, o.cara) == std::tie(c.que, c.cara);
      });
      if (suya == peores.end()) {
        peores.push_back(c);
      } else if (c.uso > suya->uso) {
        *suya = c;
      }
    }
    if (peores.empty()) return;
    Cuadro c;
    c.columnas = QStringLiteral("lrl");
    c.cabezas = {{{p_.T(txt::InfComprobacion)}, {p_.T(txt::InfUso)}, {p_.T(txt::InfVeredicto)}}};
    for (const auto& x : peores) {
      const auto veredicto = x.uso <= kUsoCumple ? Veredicto::Cumple : Veredicto::NoCumple;
      c.filas.push_back(
          {{Plantilla::Celda(Q(p_.caso.Comprobacion(x, armado_))),
            Plantilla::Celda(p_.Num(x.uso, 3)),
            Plantilla::Celda(Q(p_.caso.Veredicto(veredicto)), veredicto == Veredicto::NoCumple)}});
    }
    p_.r.Tabla(c, p_.T(txt::InfPieComprobaciones));
  }
};

}  // namespace

void EscribeCaso(Plantilla& p, const TramoInforme& t, std::size_t i, std::size_t fila,
                 bool figuras) {
  LeeCaso(*t.resultado, fila, [&](const VistaCaso& v) {
    p.r.Apartado(
        p.Con(txt::InfTituloCaso,
              {std::to_string(v.fila.NumCaso), p.Num(v.fila.Hr, 2).toStdString(),
               p.Presion(v.fila.DP).toStdString() + " " + p.Unidad("at->MPa").toStdString()}),
        AnclaCaso(i, fila));
    CasoInforme(p, v, figuras).Escribe();
  });
  EscribePasos(p, t, t.resultado->filas[fila]);
}

}  // namespace zorbin
