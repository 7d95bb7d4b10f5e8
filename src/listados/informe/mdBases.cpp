// The basis of the calculation: method, units, symbols, hypotheses.
#include <algorithm>
#include <array>

#include "base/textos.h"
#include "listados/informe/mdPlantilla.h"

namespace zorbin {

namespace {

using memoria::Cuadro;

struct HipotesisBase {
  const char* esfuerzos;  // terms, in the notation of formulas
  const char* presion;
  const char* limite = "";  // of the core
};

constexpr std::array<HipotesisBase, 5> kArmadas{{{"0", "PP"},
                                                 {"(3) + (1) + (4)", "0"},
                                                 {"(2) + (1) + (8)", "STP"},
                                                 {"(2) + (1) + (3) + (4)", "DP"},
                                                 {"(2) + (1) + (11) + (9) + (10)", "MDP"}}};
constexpr std::array<HipotesisBase, 6> kPostesadas{
    {{"(1) + (2) + (11) + (9) + (10)", "DP", "-5"},
     {"(1) + (2) + (11) + (9) + (10)", "MDP + 1", "f_{ctn}"},
     {"(7)", "DP", "0"},
     {"(1) + (2)", "MDP", "-5"},
     {"(1) + (2) + (8)", "STP", "-5"},
     {"(7)", "0", "-5"}}};

struct SimboloBase {
  const char* simbolo;
  int texto;
};
constexpr std::array<SimboloBase, 14> kSimbolos{{{"H", txt::InfSimbolos[0]},
                                                 {"Q, Q_m", txt::InfSimbolos[1]},
                                                 {"Q_H", txt::InfSimbolos[2]},
                                                 {"\\lambda", txt::InfSimbolos[3]},
                                                 {"DP, MDP", txt::InfSimbolos[4]},
                                                 {"STP, PP", txt::InfSimbolos[5]},
                                                 {"M, N", txt::InfSimbolos[6]},
                                                 {"z, d", txt::InfSimbolos[7]},
                                                 {"A_i, A_e", txt::InfSimbolos[8]},
                                                 {"R_i, R_c, R_n, R_r", txt::InfSimbolos[9]},
                                                 {"f_{ctn}, f_{ctr}", txt::InfSimbolos[10]},
                                                 {"d_a, N_e", txt::InfSimbolos[11]},
                                                 {"A_{sp}", txt::InfSimbolos[12]},
                                                 {"n_i, n, n_1, n_2, n_c", txt::InfSimbolos[13]}}};
constexpr std::size_t kPrimeroPostesado = 9;

class Bases {
 public:
  explicit Bases(Plantilla& p) : p_(p) {
    for (const auto& t : p.datos.tramos) {
      (t.completo.EsArmado ? armado_ : postesado_) = true;
    }
  }

  void Escribe() {
    p_.r.Capitulo(p_.T(txt::InfBases), QStringLiteral("bases"));
    Metodo();
    Unidades();
    Simbolos();
    Hipotesis();
  }

 private:
  Plantilla& p_;
  bool armado_ = false, postesado_ = false;

  void Metodo() {
    p_.r.Apartado(p_.T(txt::InfMetodo));
    p_.r.Parrafo(p_.Con(txt::InfTextoMetodo[0], {p_.T(txt::NormaTexto).toStdString()}));
    for (std::size_t i = 1; i < txt::InfTextoMetodo.size(); ++i) {
      if ((i == 4 && !armado_) || (i == 5 && !postesado_)) continue;
      p_.r.Parrafo(p_.T(txt::InfTextoMetodo[i]));
    }
  }

  void Unidades() {
    p_.r.Apartado(p_.T(txt::InfUnidades));
    p_.r.Parrafo(p_.T(p_.estilo.si ? txt::InfTextoUnidadesSI : txt::InfTextoUnidadesMKS));
    p_.r.Parrafo(p_.T(txt::InfTextoSignos));
  }

  void Simbolos() {
    p_.r.Apartado(p_.T(txt::InfSimbolosTitulo));
    Cuadro c;
    c.columnas = QStringLiteral("ll");
    c.cabezas = {{{p_.T(txt::InfSimbolo)}, {p_.T(txt::InfSignificado)}}};
    for (std::size_t i = 0; i < kSimbolos.size(); ++i) {
      if (i >= kPrimeroPostesado && !postesado_) break;
      c.filas.push_back({{Plantilla::Simbolo(QString::fromLatin1(kSimbolos[i].simbolo)),
                          Plantilla::Celda(p_.T(kSimbolos[i].texto))}});
    }
    p_.r.Tabla(c, p_.T(txt::InfPieSimbolos));
  }

  template <class Tabla>
  void TablaDeHipotesis(const Tabla& tabla, bool armado, int pie) {
    Cuadro c;
    c.columnas = armado ? QStringLiteral("rlll") : QStringLiteral("rllll");
    c.cabezas = {{{QStringLiteral("h")},
                  {p_.T(txt::InfHipotesisCabeza)},
                  {p_.T(txt::InfTerminos)},
                  {p_.T(txt::InfPresion)}}};
    if (!armado) {
      c.cabezas.front().push_back({p_.ConUnidad(txt::InfLimiteNucleo, QStringLiteral("kp/cm²"))});
    }
    for (std::size_t i = 0; i < tabla.size(); ++i) {
      const auto& h = tabla[i];
      memoria::FilaCuadro f;
      f.celdas = {Plantilla::Celda(QString::number(i + 1)),
                  Plantilla::Celda(p_.Hipotesis(armado, static_cast<int>(i) + 1)),
                  Plantilla::Celda(QString::fromLatin1(h.esfuerzos)),
                  Plantilla::Celda(QString::fromLatin1(h.presion))};
      if (!armado) f.celdas.push_back(Plantilla::Simbolo(QString::fromLatin1(h.limite)));
      c.filas.push_back(std::move(f));
    }
    p_.r.Tabla(c, p_.T(pie));
  }

  void Hipotesis() {
    p_.r.Apartado(p_.T(txt::InfHipotesis));
    p_.r.Parrafo(p_.T(txt::InfTextoHipotesis), true);
    if (armado_) TablaDeHipotesis(kArmadas, true, txt::InfPieHipArmado);
    if (postesado_) TablaDeHipotesis(kPostesadas, false, txt::InfPieHipPostesado);
    Cuadro c;
    c.columnas = QStringLiteral("rl");
    c.cabezas = {{{QString()}, {p_.T(txt::InfTermino)}}};
    for (std::size_t i = 0; i + 1 < txt::HipotesisOval.size(); ++i) {
      c.filas.push_back({{Plantilla::Celda(QStringLiteral("(%1)").arg(i + 1)),
                          Plantilla::Celda(p_.T(txt::HipotesisOval[i]))}});
    }
    p_.r.Tabla(c, p_.T(txt::InfPieTerminos));
    p_.r.Parrafo(p_.T(txt::InfTextoCoeficientes));
  }
};

}  // namespace

void EscribeBases(Plantilla& p) {
  Bases(p).Escribe();
}

}  // namespace zorbin
