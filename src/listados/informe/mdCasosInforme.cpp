// The Casos of a Tramo in one table, and what is to be told of them.
#include <algorithm>
#include <map>

#include "base/mdTextos.h"
#include "base/textos.h"
#include "calculo/anillo/mdAnilloCaso.h"
#include "listados/informe/mdPlantilla.h"
#include "listados/obra/mdAvisos.h"
#include "listados/obra/mdEntradas.h"
#include "listados/obra/mdRotulos.h"

namespace zorbin {

namespace {

using memoria::CabezaCuadro;
using memoria::CeldaCuadro;
using memoria::Cuadro;
using memoria::FilaCuadro;

const QString kNada = QStringLiteral("–");

class TablaDeCasos {
 public:
  TablaDeCasos(const Plantilla& p, const TramoInforme& t, std::size_t i)
      : p_(p), t_(t), r_(*t.resultado), i_(i), armado_(t.completo.EsArmado) {}

  Cuadro Compone() const {
    Cuadro c;
    c.cuerpo = 7.8;
    c.columnas = armado_ ? QStringLiteral("rrrrrlccccrl") : QStringLiteral("rrrrrlcrrrl");
    armado_ ? CabezasArmado(c) : CabezasPostesado(c);
    const auto* peor = CuentaDeVeredictos(r_).peor;
    for (std::size_t f = 0; f < r_.filas.size(); ++f) {
      LeeCaso(r_, f, [&](const VistaCaso& v) { c.filas.push_back(Fila(v, f, &v.fila == peor)); });
    }
    return c;
  }

 private:
  const Plantilla& p_;
  const TramoInforme& t_;
  const ResultadoTramo& r_;
  const std::size_t i_;
  const bool armado_;

  std::vector<CabezaCuadro> Comunes() const {
    const QString presion = p_.Unidad("at->MPa");
    return {{p_.T(txt::InfCaso)},
            {QStringLiteral("H, m")},
            {QStringLiteral("DP, ") + presion},
            {QStringLiteral("MDP, ") + presion},
            {QStringLiteral("Q, ") + p_.Unidad("T/M2->kN/M2")},
            {p_.T(txt::InfRige)}};
  }

  void CabezasArmado(Cuadro& c) const {
    auto bajas = Comunes();
    const QString area = QStringLiteral("cm²/m");
    for (const auto& cabeza :
         {p_.ConUnidad(txt::InfCamisa, QStringLiteral("mm")), p_.T(txt::InfInterior),
          p_.T(txt::InfExterior), p_.ConUnidad(txt::InfNecesaria, area), p_.T(txt::InfUso),
          p_.T(txt::InfVeredicto)}) {
      bajas.push_back({cabeza});
    }
    c.cabezas = {bajas};
  }

  void CabezasPostesado(Cuadro& c) const {
    auto bajas = Comunes();
    for (const auto& cabeza :
         {p_.T(txt::InfAlambre), p_.ConUnidad(txt::InfPPExigida, p_.Unidad("at->MPa")),
          p_.ConUnidad(txt::InfPPObtenida, p_.Unidad("at->MPa")), p_.T(txt::InfUso),
          p_.T(txt::InfVeredicto)}) {
      bajas.push_back({cabeza});
    }
    c.cabezas = {bajas};
  }

  // Area that a face needs most, and what it has.
  QString Necesaria(const VistaCaso& v, CaraPared cara) const {
    const ComprobacionCaso* peor = nullptr;
    for (const auto& c : v.caso.verificacion.comprobaciones) {
      if (c.que != QueComprueba::Armadura || c.cara != cara) continue;
      if (peor == nullptr || c.valor > peor->valor) peor = &c;
    }
    if (peor == nullptr) return kNada;
    return p_.Num(peor->valor, 2) + QStringLiteral(" / ") + p_.Num(peor->limite, 2);
  }

  FilaCuadro Fila(const VistaCaso& v, std::size_t f, bool peor) const {
    const auto& fila = v.fila;
    FilaCuadro salida;
    salida.negrita = peor;
    salida.corte = v.abreAltura && f > 0;
    const auto pon = [&salida](const QString& texto) {
      salida.celdas.push_back(Plantilla::Celda(texto));
    };
    const bool contado = p_.datos.detalle == DetalleInforme::Todos ||
                         (p_.datos.detalle == DetalleInforme::Pesimo && peor);
    salida.celdas.push_back(
        {QString::number(fila.NumCaso), false, false, contado ? AnclaCaso(i_, f) : QString()});
    pon(p_.Num(fila.Hr, 2));
    pon(p_.Presion(fila.DP));
    pon(p_.Presion(fila.MDP));
    pon(p_.Num(v.altura.cargas.Q, 2, "T/M2->kN/M2"));
    const int rige = HipotesisQueRige(r_.datos, fila);
    pon(rige > 0 ? p_.Hipotesis(armado_, rige) : kNada);
    armado_ ? Armado(v, pon) : Postesado(v, pon);
    pon(Q(p_.caso.Uso(fila.verificacion)));
    QString veredicto = Q(p_.caso.Veredicto(fila.verificacion.veredicto));
    if (fila.ajustado) veredicto += QStringLiteral(" *");
    pon(veredicto);
    return salida;
  }

  template <class Pon>
  void Armado(const VistaCaso& v, const Pon& pon) const {
    const auto& r = v.Armado();
    if (r.ajuste) {
      pon(p_.Num(r.ajuste->Camisa / 10.0, 1));
      pon(p_.Num(r.ajuste->Espiras, 2));
      pon(p_.Num(r.ajuste->Exterior, 2));
    } else if (OfreceArmadura(v)) {
      pon(r.CAMISA > 0 ? p_.Num(r.CAMISA, 1) : kNada);
      pon(r.NESPIN > 0 ? Q(p_.caso.Barras(r.NESPIN, r.FIIN, 0)) : kNada);
      pon(r.NEXPEX > 0 ? Q(p_.caso.Barras(r.NEXPEX, r.FIEX, 0)) : kNada);
    } else {
      for (int i = 0; i < 3; ++i) pon(kNada);
    }
    pon(Necesaria(v, CaraPared::Interior) + QChar(u'\n') + Necesaria(v, CaraPared::Exterior));
  }

  template <class Pon>
  void Postesado(const VistaCaso& v, const Pon& pon) const {
    const auto& r = v.Postesado();
    pon(OfreceArmadura(v) ? Q(p_.caso.Barras(r.NESPDEFI, r.FIPRDEFI * 10.0, 1)) : kNada);
    pon(p_.Presion(v.fila.PP));
    const bool esPresion = r.PP < kPPAlambreCambia;
    pon(esPresion ? p_.Presion(r.PP) : Q(TextoPP(r, r.PP, p_.textos, p_.estilo)).trimmed());
  }
};

// What is said of the Casos, the same words once with the Casos that they belong to.
class Avisos {
 public:
  Avisos(const Plantilla& p, const TramoInforme& t) : p_(p), t_(t), r_(*t.resultado) {}

  struct Dicho {
    std::string texto;
    std::vector<int> casos;
  };

  std::vector<Dicho> Todos() {
    for (std::size_t f = 0; f < r_.filas.size(); ++f) {
      LeeCaso(r_, f, [&](const VistaCaso& v) { Caso(v); });
    }
    return std::move(dichos_);
  }

  Cuadro Ajustados() const {
    Cuadro c;
    c.columnas = QStringLiteral("rrrrrrrr");
    const QString area = QStringLiteral("cm²/m");
    c.cabezas = {{{QString(), 3},
                  {p_.ConUnidad(txt::InfAjustado, area), 3},
                  {p_.ConUnidad(txt::InfCalculado, area), 2}},
                 {{p_.T(txt::InfCaso)},
                  {QStringLiteral("H, m")},
                  {QStringLiteral("DP, ") + p_.Unidad("at->MPa")},
                  {p_.T(txt::InfCamisa)},
                  {p_.T(txt::InfInterior)},
                  {p_.T(txt::InfExterior)},
                  {p_.T(txt::InfInterior)},
                  {p_.T(txt::InfExterior)}}};
    for (std::size_t f = 0; f < r_.filas.size(); ++f) {
      if (!r_.filas[f].ajustado || !t_.completo.EsArmado) continue;
      LeeCaso(r_, f, [&](const VistaCaso& v) {
        const auto& r = v.Armado();
        if (!r.ajuste) return;
        c.filas.push_back({{Plantilla::Celda(QString::number(v.fila.NumCaso)), Area(v.fila.Hr),
                            Plantilla::Celda(p_.Presion(v.fila.DP)), Area(r.ajuste->Camisa),
                            Area(r.ajuste->Espiras), Area(r.ajuste->Exterior),
                            Area(r.AreaCamisa + r.AreaEspiras), Area(r.AreaExterior)}});
      });
    }
    return c;
  }

 private:
  const Plantilla& p_;
  const TramoInforme& t_;
  const ResultadoTramo& r_;
  std::vector<Dicho> dichos_;

  CeldaCuadro Area(double valor) const { return Plantilla::Celda(p_.Num(valor, 2)); }

  void Di(std::string texto, int caso) {
    if (texto.empty()) return;
    auto suyo = std::ranges::find(dichos_, texto, &Dicho::texto);
    if (suyo == dichos_.end()) suyo = dichos_.insert(dichos_.end(), {std::move(texto), {}});
    if (suyo->casos.empty() || suyo->casos.back() != caso) suyo->casos.push_back(caso);
  }

  void Caso(const VistaCaso& v) {
    const int caso = static_cast<int>(&v.fila - r_.filas.data()) + 1;
    for (const auto& aviso : v.caso.avisos) {
      if (aviso.fase != FaseAviso::Final || !aviso.pantalla) continue;
      Di(std::string(Recorta(TextoAviso(aviso, p_.textos))), caso);
    }
    if (v.fila.verificacion.veredicto != Veredicto::Cumple) Di(p_.caso.MotivoCorto(v), caso);
    Di(p_.caso.Avisos(v), caso);
  }
};

// "3, 5 to 9 and 12" of the places of Casos in the table.
QString Lugares(const Plantilla& p, const ResultadoTramo& r, const std::vector<int>& casos) {
  if (casos.size() == r.filas.size()) return p.T(txt::InfTodosLosCasos);
  constexpr std::size_t kMaximo = 12;
  QStringList partes;
  for (std::size_t i = 0; i < casos.size() && i < kMaximo; ++i) {
    const auto& f = r.filas[static_cast<std::size_t>(casos[i] - 1)];
    partes += p.Con(txt::InfCasoEn, {p.Num(f.Hr, 2).toStdString(), p.Presion(f.DP).toStdString()});
  }
  QString texto = partes.join(QStringLiteral("; "));
  if (casos.size() > kMaximo) {
    texto += QStringLiteral("; ") + p.Con(txt::InfYOtros, {std::to_string(casos.size() - kMaximo)});
  }
  return texto;
}

}  // namespace

void EscribeTablaDeCasos(Plantilla& p, const TramoInforme& t, std::size_t i) {
  const auto& r = *t.resultado;
  if (r.filas.empty()) return;
  p.r.Apartado(p.T(txt::InfCasos));
  const auto cuenta = CuentaDeVeredictos(r);
  p.r.Parrafo(
      p.Con(txt::InfCuentaCasos, {std::to_string(cuenta.casos), std::to_string(cuenta.noCumplen),
                                  std::to_string(cuenta.sinComprobar)}));
  p.r.Tabla(TablaDeCasos(p, t, i).Compone(), p.T(txt::InfPieCasos));
  const bool ajustes = std::ranges::any_of(r.filas, &FilaCaso::ajustado);
  if (ajustes) p.r.Nota(QStringLiteral("* ") + p.T(txt::InfNotaAjustado));
}

void EscribeAvisos(Plantilla& p, const TramoInforme& t) {
  const auto& r = *t.resultado;
  Avisos avisos(p, t);
  const auto dichos = avisos.Todos();
  const auto ajustados = avisos.Ajustados();
  const auto corta = TextoAlturaCorta(r.rango, p.textos, p.estilo);
  const bool sinAjustes = r.datos.SinAjustes && t.completo.EsArmado;
  if (dichos.empty() && ajustados.filas.empty() && corta.empty() && !sinAjustes) return;
  p.r.Apartado(p.T(txt::InfAvisos));
  if (!corta.empty()) p.r.Nota(p.T(txt::InfAlturaFuera) + QStringLiteral(": ") + Q(corta));
  if (sinAjustes) p.r.Nota(p.T(txt::AjustesSinLeer), true);
  if (!dichos.empty()) {
    Cuadro c;
    c.columnas = QStringLiteral("ll");
    c.cabezas = {{{p.T(txt::InfAviso)}, {p.T(txt::InfCasos)}}};
    for (const auto& d : dichos) {
      c.filas.push_back(
          {{Plantilla::Celda(Q(d.texto).trimmed()), Plantilla::Celda(Lugares(p, r, d.casos))}});
    }
    p.r.Tabla(c, p.T(txt::InfPieAvisos));
  }
  if (!ajustados.filas.empty()) p.r.Tabla(ajustados, p.T(txt::InfPieAjustados));
}

void EscribeResumenObra(Plantilla& p) {
  p.r.Hoja(p.T(txt::InfResumen), QStringLiteral("resumen"));
  Cuadro c;
  c.columnas = QStringLiteral("llrrrrlrl");
  c.cabezas = {{{p.T(txt::InfTramoCabeza)},
                {p.T(txt::InfDescripcion)},
                {QStringLiteral("Di, mm")},
                {p.T(txt::InfCasos)},
                {p.T(txt::InfNoCumplen)},
                {p.T(txt::InfSinComprobar)},
                {p.T(txt::InfPeorCaso)},
                {p.T(txt::InfUso)},
                {p.T(txt::InfVeredicto)}}};
  CuentaVeredictos total;
  for (std::size_t i = 0; i < p.datos.tramos.size(); ++i) {
    const auto& t = p.datos.tramos[i];
    const auto cuenta = CuentaDeVeredictos(*t.resultado);
    total += cuenta;
    QString peor = kNada;
    QString uso = kNada;
    if (cuenta.peor != nullptr) {
      peor = p.Con(txt::InfCasoEn, {p.Num(cuenta.peor->Hr, 2).toStdString(),
                                    p.Presion(cuenta.peor->DP).toStdString()});
      uso = Q(p.caso.Uso(cuenta.peor->verificacion));
    }
    const QString descripcion = Q(t.completo.DescriTramo).simplified() + QStringLiteral("\n") +
                                Q(TextoDeCamisa(t.completo.Tipologia, p.textos));
    c.filas.push_back({{{Q(t.numero), false, true, AnclaTramo(i)},
                        Plantilla::Celda(descripcion.trimmed()),
                        Plantilla::Celda(p.Num(t.completo.Di * 1000.0, 0)),
                        Plantilla::Celda(QString::number(cuenta.casos)),
                        Plantilla::Celda(QString::number(cuenta.noCumplen)),
                        Plantilla::Celda(QString::number(cuenta.sinComprobar)),
                        Plantilla::Celda(peor),
                        Plantilla::Celda(uso),
                        Plantilla::Celda(Q(p.caso.Veredicto(cuenta.veredicto)),
                                         cuenta.veredicto != Veredicto::Cumple)}});
  }
  p.r.Parrafo(p.Con(txt::InfCuentaObra,
                    {std::to_string(p.datos.tramos.size()), std::to_string(total.casos),
                     std::to_string(total.noCumplen), std::to_string(total.sinComprobar)}));
  p.r.Tabla(c);
  for (const auto& t : p.datos.tramos) {
    if (!t.resultado->fallo) continue;
    p.r.Nota(Q(TextoFallo(*t.resultado->fallo, p.datos.fichero, t.numero, p.textos, p.estilo)));
  }
  for (const auto& rechazado : p.datos.rechazados) p.r.Nota(Q(rechazado), true);
}

}  // namespace zorbin
