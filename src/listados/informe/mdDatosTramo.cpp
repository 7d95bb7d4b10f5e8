// The data of a Tramo: what each is, its symbol, value, unit, and where it comes from.
#include <QRegularExpression>
#include <algorithm>
#include <array>
#include <cmath>

#include "base/mdNumeros.h"
#include "base/mdTextos.h"
#include "base/textos.h"
#include "core/campos/mdDatos.h"
#include "listados/informe/mdPlantilla.h"
#include "listados/obra/mdRotulos.h"

namespace zorbin {

namespace {

using memoria::Cuadro;

enum class Origen { Dado, PorDefecto, Calculado, DeLaObra };

struct SimboloDato {
  std::string_view nombre;
  const char* simbolo;  // in the notation of formulas
};

constexpr std::array<SimboloDato, 33> kSimbolos{{
    {"Di", "D_i"},           {"De", "D_e"},           {"Esp", "e"},
    {"Reci", "r_i"},         {"Rece", "r_e"},         {"Gc", "\\gamma_c"},
    {"Gr", "\\gamma_r"},     {"Fi", "\\phi"},         {"B0", "B"},
    {"Hr1", "h_r"},          {"QDato", "Q"},          {"Fck", "f_{ck}"},
    {"Fct", "f_{ct}"},       {"Fyk", "f_{yk}"},       {"Fyd", "f_{yd}"},
    {"GamaB", "\\gamma_b"},  {"Adato", "A_0"},        {"CamMax", "t_{máx}"},
    {"Delca", "t_c"},        {"Es", "E_s"},           {"Ep", "E_p"},
    {"Fckno", "f_{cko}"},    {"Fckn", "f_{ckn}"},     {"Fckr", "f_{ckr}"},
    {"SFck", "\\sigma_k"},   {"Sf", "\\sigma_f"},     {"FYKPost", "f_{yk}"},
    {"Rel", "\\rho"},        {"Fic", "\\phi_c"},      {"Fir", "\\phi_r"},
    {"Epsc", "\\epsilon_c"}, {"Epsr", "\\epsilon_r"}, {"Coepre1", "k_p"},
}};

// Ranges are told apart, and choices that the typology or the laying tells.
constexpr std::array<std::string_view, 12> kAparte{
    "DescriTramo", "Prs1Tram", "Prs2Tram", "Prs3Tram",       "PrsM1Tram", "PrsM2Tram",
    "Hr0Tramo",    "Hr0Final", "Hr0Delta", "TipoColocacion", "TipoApoyo", "Envolvente"};

struct CodigoEntrada {
  std::string_view nombre;
  std::int16_t codigo;
  int texto;
};
constexpr std::array<CodigoEntrada, 19> kEntradas{{
    {"TipoControl", 1, txt::ControlIntenso},
    {"TipoControl", 2, txt::ControlNormal},
    {"TipoCamisa", 1, txt::TiposDeCamisa[0]},
    {"TipoCamisa", 2, txt::TiposDeCamisa[1]},
    {"TipoCuna", 1, txt::CunaGranular},
    {"TipoCuna", 2, txt::CunaHormigon},
    {"TipoRelleno", 11, txt::RocasMachacadas},
    {"TipoRelleno", 12, txt::RocasConGravas},
    {"TipoRelleno", 21, txt::ArenaArcillosa},
    {"TipoRelleno", 22, txt::ArcillasOrdinarias},
    {"TipoRelleno", 23, txt::ArcillasPlasticas},
    {"IAs", 1, txt::RocaNoAsentable},
    {"IAs", 2, txt::SueloOrdinario},
    {"IAs", 3, txt::SueloAsentable},
    {"ICar", 0, txt::TiposDeCarga[0]},
    {"ICar", 1, txt::TiposDeCarga[1]},
    {"ICar", 2, txt::TiposDeCarga[2]},
    {"ICar", 3, txt::TiposDeCarga[3]},
    {"ICar", 4, txt::TiposDeCarga[4]},
}};

QString SimboloDe(std::string_view nombre) {
  const auto s = std::ranges::find(kSimbolos, nombre, &SimboloDato::nombre);
  return s == kSimbolos.end() ? QString() : QString::fromUtf8(s->simbolo);
}

// A label of the screen without the unit, the usual value and the colon that it carries there.
QString Limpio(QString rotulo) {
  static const QRegularExpression unidad(
      QStringLiteral("\\s*\\((mts?\\.?|cm\\.?|mm\\.?|m|%|º|[TtKk][Pp]?/[cm]+[23]|MPa|cm2/"
                     "m|LE|[\\d][\\d\\s.,\u00a0\u202f]*)\\)"));
  static const QRegularExpression cola(QStringLiteral("\\s*:\\s*[\\d.,]*\\s*$"));
  rotulo.remove(unidad).remove(cola);
  return rotulo.trimmed();
}

class Datos {
 public:
  Datos(Plantilla& p, const TramoInforme& t) : p_(p), t_(t), armado_(t.completo.EsArmado) {}

  Cuadro Compone() {
    c_.columnas = QStringLiteral("lcrll");
    c_.cabezas = {{{p_.T(txt::InfDato)},
                   {p_.T(txt::InfSimbolo)},
                   {p_.T(txt::InfValor)},
                   {p_.T(txt::InfUnidad)},
                   {p_.T(txt::InfOrigenRotulo)}}};
    Fila(p_.T(txt::InfTipologia), {}, Q(TextoDeCamisa(t_.completo.Tipologia, p_.textos)), {},
         Origen::Dado);
    Rangos();
    Fila(p_.T(txt::InfColocacion), {}, Q(TextoDeColocacion(t_.completo.TipoApoyo, p_.textos)), {},
         Origen::Dado);
    RecorreDatos(t_.completo, [&](const Ficha& ficha, const auto& dato) { Uno(ficha, dato); });
    if (t_.resultado->datos.envolvente) {
      Fila(p_.T(txt::RotEnvolvente), {}, p_.T(txt::InfSi), {}, Origen::Dado);
    }
    return std::move(c_);
  }

 private:
  Plantilla& p_;
  const TramoInforme& t_;
  const bool armado_;
  Cuadro c_;

  void Fila(const QString& dato, const QString& simbolo, const QString& valor,
            const QString& unidad, Origen origen) {
    c_.filas.push_back(
        {{Plantilla::Celda(dato),
          simbolo.isEmpty() ? Plantilla::Celda({}) : Plantilla::Simbolo(simbolo),
          Plantilla::Celda(valor.trimmed()), Plantilla::Celda(unidad),
          Plantilla::Celda(p_.T(txt::InfOrigen[static_cast<std::size_t>(origen)]))}});
  }

  void Rangos() {
    const auto& x = t_.resultado->rango;
    const auto presion = [this](double desde, double hasta, double paso) {
      if (desde == hasta) return p_.Presion(desde);
      return p_.Con(txt::InfIntervalo,
                    {p_.Presion(desde).toStdString(), p_.Presion(hasta).toStdString(),
                     p_.Presion(paso).toStdString()});
    };
    const auto altura = [this](double m) { return p_.Num(m, 2).toStdString(); };
    const QString unidad = p_.Unidad("at->MPa");
    const Origen dePresion = x.PresionesPropias ? Origen::Dado : Origen::DeLaObra;
    Fila(p_.T(txt::InfPresionDP), QStringLiteral("DP"), presion(x.PrimeraDP, x.UltimaDP, x.IncDP),
         unidad, dePresion);
    Fila(p_.T(txt::InfPresionMDP), QStringLiteral("MDP"),
         presion(x.MDPIni, x.MDPFin, x.IncDP * x.PendienteMDP), unidad, dePresion);
    const QString alturas =
        x.Hr0 == x.Hr0Final
            ? p_.Num(x.Hr0, 2)
            : p_.Con(txt::InfIntervalo, {altura(x.Hr0), altura(x.Hr0Final), altura(x.Hr0Delta)});
    Fila(p_.T(txt::InfAltura), QStringLiteral("H"), alturas, QStringLiteral("m"),
         t_.completo.Hr0Tramo > 0 || t_.completo.Hr0Final > 0 ? Origen::Dado : Origen::DeLaObra);
    Fila(p_.T(txt::RotGolpe), {}, p_.T(p_.datos.obra.GolpeCalculado ? txt::InfSi : txt::InfNo), {},
         Origen::DeLaObra);
  }

  // Whether the Tramo has the datum at all.
  bool Suyo(const Ficha& ficha) const {
    if (!ficha.EnPantalla() || std::ranges::find(kAparte, ficha.nombre) != kAparte.end()) {
      return false;
    }
    const auto& pagina = ficha.campo.pagina;
    if (pagina.TabTipologia >= 0 && (pagina.TabTipologia == 0) != armado_) return false;
    const auto apoyo = t_.completo.TipoApoyo;
    if (ficha.nombre == "B0") return apoyo < 30;
    if (ficha.nombre == "Hr1") return apoyo > 20;
    if (ficha.nombre == "IAs") return apoyo > 20;
    if (ficha.nombre == "TipoRelleno") return apoyo < 20;
    if (ficha.nombre == "QDato") return t_.completo.QDato > 0;
    if (ficha.nombre == "Adato") return t_.completo.Icontes0;
    if (ficha.nombre == "Coepre1") return t_.completo.Icontes1;
    return true;
  }

  QString Rotulo(const Ficha& ficha) const {
    const int rotulo = ficha.campo.rotulo != 0 ? ficha.campo.rotulo : ficha.campo.etiqueta;
    return Limpio(p_.T(rotulo));
  }

  Origen OrigenDe(const Ficha& ficha, double valor) const {
    const bool si = p_.datos.obra.EsSI();
    const auto& t = t_.completo;
    const auto casi = [](double a, double b) {
      return std::fabs(a - b) <= 1e-6 * std::max(1.0, std::fabs(b));
    };
    const auto& tecleado = t_.tecleado;
    double antes = valor;
    RecorreDatos(tecleado, [&](const Ficha& otra, const auto& dato) {
      if constexpr (std::is_same_v<std::decay_t<decltype(dato)>, double>) {
        if (otra.nombre == ficha.nombre) antes = dato;
      }
    });
    if (!casi(antes, valor)) return Origen::Calculado;
    if (ficha.nombre == "De" && casi(valor, t.Di + 2.0 * t.Esp / 100.0)) return Origen::Calculado;
    if (ficha.nombre == "Fct" && std::fabs(valor - FctEnSistema(t.Fck, si)) < 0.06) {
      return Origen::Calculado;
    }
    const auto defecto = ficha.Defecto(si);
    return defecto && casi(*defecto, valor) ? Origen::PorDefecto : Origen::Dado;
  }

  void Uno(const Ficha& ficha, double valor) {
    if (!Suyo(ficha)) return;
    const bool si = p_.datos.obra.EsSI();
    const auto& unidades = UnidadesDe(ficha.magnitud);
    QString unidad = Q(std::string(si ? unidades.si : unidades.mks));
    unidad.replace("cm2", QStringLiteral("cm²")).replace("m2", QStringLiteral("m²"));
    unidad.replace("m3", QStringLiteral("m³"));
    auto mascara = std::string(ficha.Mascara(si));
    // The digits that shrinkage and the like need are those that were stored.
    if (valor != 0 && std::fabs(valor) < 0.01) mascara = "#####0.000000";
    Fila(Rotulo(ficha), SimboloDe(ficha.nombre),
         Q(FormatoMascara(valor, mascara, p_.estilo.separador)), unidad, OrigenDe(ficha, valor));
  }

  void Uno(const Ficha& ficha, std::int16_t codigo) {
    if (!Suyo(ficha)) return;
    for (const auto& e : kEntradas) {
      if (e.nombre != ficha.nombre || e.codigo != codigo) continue;
      const int defecto = ficha.campo.entrada + ficha.campo.entradaDefecto - 1;
      Fila(Rotulo(ficha), {}, p_.T(e.texto), {},
           e.texto == defecto ? Origen::PorDefecto : Origen::Dado);
      return;
    }
  }

  void Uno(const Ficha& ficha, bool marca) {
    if (!Suyo(ficha)) return;
    Fila(Rotulo(ficha), {}, p_.T(marca ? txt::InfSi : txt::InfNo), {}, Origen::Dado);
  }

  void Uno(const Ficha&, const std::string&) {}
};

}  // namespace

void EscribeDatosTramo(Plantilla& p, const TramoInforme& t) {
  p.r.Apartado(p.T(txt::InfDatos));
  p.r.Tabla(Datos(p, t).Compone(), p.Con(txt::InfPieDatos, {t.numero}));
}

}  // namespace zorbin
