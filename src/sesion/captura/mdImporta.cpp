#include "sesion/captura/mdImporta.h"

#include <algorithm>
#include <fstream>
#include <set>

#include "base/mdContenido.h"
#include "base/mdNumeros.h"
#include "base/mdTextos.h"
#include "base/textos.h"
#include "persistencia/disco/mdDescriptor.h"
#include "persistencia/entrada/mdCsv.h"
#include "persistencia/entrada/mdJsonObra.h"
#include "persistencia/entrada/mdTablaEntrada.h"
#include "persistencia/entrada/mdXlsx.h"
#include "sesion/captura/mdCiclo.h"
#include "sesion/captura/mdComprueba.h"
#include "sesion/captura/mdGeometria.h"
#include "sesion/captura/mdTipologias.h"
#include "sesion/captura/mdTramos.h"

namespace zorbin {

namespace {

namespace fs = std::filesystem;

constexpr int kDecimales = 6;

std::string Extension(const fs::path& fichero) {
  std::string e = fichero.extension().string();
  std::ranges::transform(e, e.begin(), [](char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
  });
  return e;
}

std::string Contenido(const fs::path& fichero) {
  std::string bytes;
  if (const int causa = LeeContenido(fichero, kMaxEntrada, bytes)) {
    throw ErrorFichero({txt::NoSeAbre, {fichero.string(), TextoDeCausa(causa)}});
  }
  return bytes;
}

// ---- Values in words

struct EnTexto {
  char separador;
  std::string operator()(const std::string& texto) const { return texto; }
  std::string operator()(double valor) const {
    std::string numero = TextoDecimal(valor, kDecimales, separador);
    numero.erase(numero.find_last_not_of('0') + 1);
    if (numero.back() == separador) numero.pop_back();
    return numero;
  }
  std::string operator()(std::int16_t codigo) const { return TextoEntero(codigo); }
  std::string operator()(bool marca) const { return marca ? "1" : "0"; }
};

// ---- New Tramos

// Blank Tramos of each typology and laying, as the capture makes them.
class PorDefecto {
 public:
  PorDefecto(const PeticionImporta& p, const Obra& obra)
      : sombra_(p.textos, p.tablas, p.separador) {
    Version v;
    v.obra = obra;
    VuelveA(sombra_.c, v, 0);
  }

  Tramo De(std::int16_t tipologia, int colocacion) {
    Captura& c = sombra_.c;
    NuevoTramo(c);
    if (tipologia >= kPrimeraPostesada) {
      EligeTipologia(c, true);
      EligeOpcionCamisa(c, tipologia == kRevestida ? 1 : 0);
    }
    EligeColocacion(c, colocacion);
    Tramo t = c.e.tramo;
    BorraTramos(c, {c.enMano});
    t.NumeroTramo = 0;
    return t;
  }

 private:
  Sombra sombra_;
};

int ColocacionDeApoyo(int apoyo) {
  return apoyo < 20 ? 0 : apoyo < 30 ? 1 : 2;
}

template <class T>
T Leido(const TramoLeido& t, std::string_view nombre, T otro) {
  const auto* d = t.Busca(nombre);
  return d == nullptr ? otro : std::get<T>(d->valor);
}

// What follows from the data read.
void Deduce(Tramo& t, const TramoLeido& leido, bool si) {
  t.EsArmado = t.Tipologia < kPrimeraPostesada;
  t.PostFlag = t.EsArmado ? 0 : 1;
  t.SubTipo = t.EsArmado ? 3 : 0;
  t.GamaY = t.GamaF = 1.0;
  t.Fct = FctEnSistema(t.Fck, si);
  if (leido.Busca("TipoApoyo") != nullptr && leido.Busca("TipoColocacion") == nullptr) {
    t.TipoColocacion = static_cast<std::int16_t>(ColocacionDeApoyo(t.TipoApoyo));
  }
  if (leido.Busca("De") == nullptr) t.De = t.Di + 2.0 * t.Esp / 100.0;
  if (t.IndCar != 1) t.IndCar = t.ICar = 0;
}

// Whether nothing that a person gives differs: the rules set two of the factors.
bool MismosDatos(Tramo a, const Tramo& b) {
  a.GamaY = b.GamaY;
  a.GamaF = b.GamaF;
  return a == b;
}

// ---- The try

class Prueba {
 public:
  Prueba(const Version& base, const Entrada& entrada, const PeticionImporta& p)
      : base_(base), entrada_(entrada), p_(p) {}

  Importacion Haz() {
    for (const auto& a : entrada_.avisos) r_.avisos.push_back(p_.textos.Compone(a));
    r_.version = base_;
    PonObra();
    if (!Rechazada(-1)) PonTramos();
    Comprueba();
    Compara();
    return std::move(r_);
  }

 private:
  const Version& base_;
  const Entrada& entrada_;
  const PeticionImporta& p_;
  Importacion r_;
  int ultimoId_ = 0;
  std::vector<int> ids_;  // of the Tramos of the file in the version; 0 of one refused

  bool si() const { return r_.version.obra.EsSI(); }

  bool Rechazada(int tramo) const {
    return std::ranges::any_of(entrada_.rechazos,
                               [tramo](const Rechazo& r) { return r.tramo == tramo; });
  }

  void PonObra() {
    auto& v = r_.version;
    const auto sistema = SistemaDe(entrada_);
    if (sistema && *sistema != si()) CambiaUnidades(v, *sistema);
    for (const auto& d : entrada_.obra) Aplica(v.obra, d, si());
    v.obra.IdiomaOffset = static_cast<std::int16_t>((v.obra.Idioma - 1) * kPasoIdioma);
  }

  void PonTramos() {
    PorDefecto nuevos(p_, r_.version.obra);
    ultimoId_ = p_.ultimoId;
    for (const auto& t : r_.version.tramos) ultimoId_ = std::max(ultimoId_, t->id);
    for (std::size_t i = 0; i < entrada_.tramos.size(); ++i) {
      ids_.push_back(Rechazada(static_cast<int>(i)) ? 0 : PonTramo(entrada_.tramos[i], nuevos));
    }
  }

  // @return its id
  int PonTramo(const TramoLeido& leido, PorDefecto& nuevos) {
    auto& tramos = r_.version.tramos;
    const int numero = leido.numero.empty() ? 0 : NumeroDe(leido.numero);
    auto lugar = tramos.size();  // of a new one
    if (numero != 0) lugar = LugarDeNumero(r_.version, numero).value_or(lugar);
    const bool nuevo = lugar == tramos.size();
    if (nuevo) tramos.push_back(Nuevo(leido, numero, nuevos));
    auto t = std::make_shared<TramoEnObra>(*tramos[lugar]);
    for (const auto& d : leido.datos) Aplica(t->datos, d, si());
    Deduce(t->datos, leido, si());
    const bool conZanja = t->datos.TipoColocacion != 2;
    if (nuevo && conZanja && leido.Busca("B0") == nullptr) t->datos.B0 = AnchoAutomatico(t->datos);
    t->pendientes.clear();
    tramos[lugar] = t;
    return t->id;
  }

  // @param numero  0 for a free one
  TramoFijo Nuevo(const TramoLeido& leido, int numero, PorDefecto& nuevos) {
    if (!Caben(r_.version, 1)) {
      throw ErrorEntrada({txt::EntTramosDeMas, {std::to_string(kMaxTramos)}});
    }
    auto t = std::make_shared<TramoEnObra>();
    const int suyo = numero != 0 ? numero : NumeroQueSigue();
    const auto apoyo = Leido<std::int16_t>(leido, "TipoApoyo", 0);
    const auto colocacion = static_cast<std::int16_t>(ColocacionDeApoyo(apoyo));
    t->id = ++ultimoId_;
    t->datos = nuevos.De(Leido<std::int16_t>(leido, "Tipologia", kArmada),
                         Leido<std::int16_t>(leido, "TipoColocacion", colocacion));
    t->numero = TextoEntero(suyo);
    t->datos.NumeroTramo = static_cast<std::int16_t>(suyo);
    return t;
  }

  // A number that neither the Obra nor the file has.
  int NumeroQueSigue() const {
    int numero = NumeroLibre(r_.version);
    for (const auto& t : entrada_.tramos) {
      if (!t.numero.empty()) numero = std::max(numero, NumeroDe(t.numero) + 1);
    }
    return numero;
  }

  // The rules complete what they do not refuse. A Tramo that they refuse is as it was.
  void Comprueba() {
    std::vector<int> ids;
    std::ranges::copy_if(ids_, std::back_inserter(ids), [](int id) { return id != 0; });
    auto c = zorbin::Comprueba(r_.version, ids, p_.textos, p_.tablas, p_.separador);
    std::erase_if(c.faltas, [&](const Falta& f) { return f.tramo == 0 && !p_.conObra; });
    const bool obra = std::ranges::none_of(c.faltas, [](const Falta& f) { return f.tramo == 0; });
    if (obra && p_.conObra) r_.version.obra = c.version.obra;
    for (const auto& f : c.faltas) {
      if (f.tramo == 0) Rehusa(r_.obra, f, {});
    }
    r_.tramos.resize(entrada_.tramos.size());
    for (std::size_t i = 0; i < ids_.size(); ++i) {
      auto& t = r_.tramos[i];
      for (const auto& f : c.faltas) {
        if (f.tramo == ids_[i] && f.tramo != 0) Rehusa(t, f, &entrada_.tramos[i]);
      }
      const auto lugar = LugarDe(r_.version, ids_[i]);
      if (!lugar) continue;
      t.numero = r_.version.tramos[*lugar]->numero;
      if (t.suerte != Suerte::Rechazado) {
        r_.version.tramos[*lugar] = c.version.tramos[*lugar];
      } else if (const auto antes = LugarDe(base_, ids_[i])) {
        r_.version.tramos[*lugar] = base_.tramos[*antes];
      } else {
        r_.version.tramos.erase(r_.version.tramos.begin() + static_cast<std::ptrdiff_t>(*lugar));
      }
    }
    for (const auto& r : entrada_.rechazos) {
      const bool deObra = r.tramo < 0;
      auto& t = deObra ? r_.obra : r_.tramos[static_cast<std::size_t>(r.tramo)];
      t.suerte = Suerte::Rechazado;
      if (!deObra) t.numero = entrada_.tramos[static_cast<std::size_t>(r.tramo)].numero;
      t.lineas.push_back({r.celda, r.dato, r.valor, p_.textos.Compone(r.causa), true});
    }
  }

  void Rehusa(TramoImportado& t, const Falta& f, const TramoLeido* leido) const {
    const auto& fila = Fila(f.campo);
    const std::string dato(fila.ficha->nombre.empty() ? fila.nombre : fila.ficha->nombre);
    const auto* d = leido == nullptr ? nullptr : leido->Busca(dato);
    std::string causa = f.titulo.empty() ? f.mensaje : f.titulo + " " + f.mensaje;
    std::ranges::replace_if(
        causa, [](char c) { return c == '\n' || c == '\r'; }, ' ');
    t.suerte = Suerte::Rechazado;
    t.lineas.push_back({d == nullptr ? std::string{} : d->celda, dato, f.valor, causa, true});
  }

  template <class Bloque>
  void Diferencias(TramoImportado& t, const Bloque& antes, const Bloque& despues,
                   const std::vector<DatoLeido<Bloque>>* leidos) const {
    const EnTexto enTexto{p_.separador};
    for (const auto& dato : TablaDe(antes)) {
      if (dato.ficha.deSesion || dato.ficha.nombre == "NumeroTramo") continue;
      std::visit(
          [&](const auto m) {
            if (antes.*m == despues.*m) return;
            LineaImportada l{
                {}, std::string(dato.ficha.nombre), enTexto(antes.*m), enTexto(despues.*m)};
            for (const auto& d : *leidos) {
              if (d.dato == &dato) l.celda = d.celda;
            }
            if (l.antes != l.despues) t.lineas.push_back(std::move(l));
          },
          dato.miembro);
    }
  }

  void Compara() {
    if (r_.obra.suerte != Suerte::Rechazado) {
      Diferencias(r_.obra, base_.obra, r_.version.obra, &entrada_.obra);
      if (!r_.obra.lineas.empty()) r_.obra.suerte = Suerte::Cambia;
    }
    for (std::size_t i = 0; i < ids_.size(); ++i) {
      auto& t = r_.tramos[i];
      if (t.suerte == Suerte::Rechazado) continue;
      const auto* antes = Busca(base_, ids_[i]);
      const auto* despues = Busca(r_.version, ids_[i]);
      t.suerte = antes == nullptr ? Suerte::Nuevo : Suerte::Igual;
      Diferencias(t, antes == nullptr ? Tramo{} : antes->datos, despues->datos,
                  &entrada_.tramos[i].datos);
      if (antes != nullptr && !MismosDatos(antes->datos, despues->datos)) t.suerte = Suerte::Cambia;
      if (t.suerte != Suerte::Igual && r_.primero == 0) r_.primero = ids_[i];
    }
  }
};

}  // namespace

bool EsNombreDeDatos(const fs::path& fichero) {
  const std::string e = Extension(fichero);
  return e == ".json" || e == ".csv" || e == ".xlsx";
}

Entrada LeeDatos(const fs::path& fichero, const Catalogo& textos) {
  if (Extension(fichero) == ".csv") return LeeTablas({LeeCsv(Contenido(fichero))}, textos);
  if (Extension(fichero) == ".xlsx") return LeeTablas(LeeXlsx(Contenido(fichero), &textos), textos);
  std::string comienzo;  // what is no file, or cannot be read, is told so
  if (const int causa = LeeContenido(fichero, 0, comienzo)) {
    throw ErrorFichero({txt::NoSeAbre, {fichero.string(), TextoDeCausa(causa)}});
  }
  std::ifstream datos(fichero, std::ios::binary);
  return LeeJsonObra(datos);
}

int Importacion::Cuantos(Suerte suerte) const {
  return static_cast<int>(std::ranges::count(tramos, suerte, &TramoImportado::suerte));
}

bool Importacion::HayRechazos() const {
  return obra.suerte == Suerte::Rechazado || Cuantos(Suerte::Rechazado) > 0;
}

std::vector<std::string> Importacion::Rechazos(const Catalogo& textos) const {
  std::vector<std::string> lineas;
  const auto di = [&](const TramoImportado& t, bool deObra) {
    for (const auto& l : t.lineas) {
      if (!l.rechazada) continue;
      const std::string texto =
          deObra ? textos.Compone(txt::EntValorMaloObra, {l.dato, l.antes, l.despues})
                 : textos.Compone(txt::EntValorMalo,
                                  {t.numero.empty() ? "?" : t.numero, l.dato, l.antes, l.despues});
      lineas.push_back(l.celda.empty() ? texto : textos.Compone(txt::EntEnCelda, {l.celda, texto}));
    }
  };
  di(obra, true);
  for (const auto& t : tramos) di(t, false);
  return lineas;
}

Importacion PreparaImportacion(const Version& base, const Entrada& entrada,
                               const PeticionImporta& peticion) {
  return Prueba(base, entrada, peticion).Haz();
}

void Importa(Captura& c, const Importacion& importacion, std::string nombre) {
  const EnUnPaso paso(c, std::move(nombre));
  Version v = importacion.version;
  for (const auto& t : v.tramos) c.ultimoId = std::max(c.ultimoId, t->id);
  VuelveA(c, v, importacion.primero != 0 ? importacion.primero : c.enMano);
}

}  // namespace zorbin
