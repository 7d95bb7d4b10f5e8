#include "persistencia/zrb/mdZrb.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>
#include <string_view>
#include <utility>
#include <variant>

#include "base/aritmetica.h"
#include "base/mdNumeros.h"
#include "base/mdTextos.h"
#include "base/textos.h"
#include "core/campos/mdDatos.h"
#include "core/mdUnidades.h"

namespace zorbin {

namespace {

constexpr std::string_view kSeparadorPar = " // ";
constexpr int kRegistrosBloque = 60;
constexpr int kBaseBloque = 14;  // an offset counts from it in the first block
constexpr int kOffsetCuenta = 6;
constexpr int kOffsetNumero = 7;
constexpr int kOffsetTipologia = 9;
constexpr int kUltimoOffsetLeido = 64;
constexpr int kUltimoOffset = 66;
constexpr int kPrimeraReserva = 16;  // of the header
constexpr int kRegistroCuenta = 20;

// Captions of the surge in the file, in the order of the languages. They belong to the format: a
// translation that changes must still read the files of before.
struct RotulosGolpe {
  std::string_view si;
  std::string_view no;
};
constexpr auto kRotulosGolpe = std::to_array<RotulosGolpe>(
    {{"Si", "No"}, {"Yes", "No"}, {"Sí", "No"}, {"Sim", "Não"}, {"Oui", "Non"}});

int Base(int posicion) {
  return (posicion - 1) * kRegistrosBloque + kBaseBloque;
}

// The data that have a record, in the order of the file.
template <class Bloque>
std::vector<const Dato<Bloque>*> EnOrden(std::span<const Dato<Bloque>> tabla) {
  std::vector<const Dato<Bloque>*> datos;
  for (const auto& dato : tabla) {
    if (dato.ficha.registro != 0) datos.push_back(&dato);
  }
  std::sort(datos.begin(), datos.end(),
            [](const auto* a, const auto* b) { return a->ficha.registro < b->ficha.registro; });
  return datos;
}

// ---------------------------------------------------------------------------------------------
// Reading

void ExigeCabida(const FicheroRegistros& f, int registro, std::string_view nombre, double valor) {
  if (std::fabs(valor) <= kMayorNumero) return;
  throw ErrorFichero(
      {txt::NumeroExcesivo, {f.Nombre(), TextoEntero(registro), std::string(nombre)}});
}

// The file holds both halves of a datum, so neither may pass what it holds.
void ExigeCabida(const FicheroRegistros& f, int registro, const Ficha& ficha,
                 const ParUnidades& par) {
  ExigeCabida(f, registro, ficha.nombre, par.mks);
  ExigeCabida(f, registro, ficha.nombre, par.si);
}

double LeeNumero(const FicheroRegistros& f, int registro, std::string_view nombre,
                 std::string_view texto) {
  const auto valor = NumeroTexto(texto);
  if (!valor) {
    throw ErrorFichero(
        {txt::NoEsNumero,
         {f.Nombre(), TextoEntero(registro), std::string(nombre), std::string(texto)}});
  }
  ExigeCabida(f, registro, nombre, *valor);
  return *valor;
}

std::int16_t LeeEntero(const FicheroRegistros& f, int registro, std::string_view nombre,
                       std::string_view texto) {
  const auto valor = NumeroTexto(texto);
  try {
    if (valor) return I16(*valor);
  } catch (const ErrorEjecucion&) {
  }
  throw ErrorFichero(
      {txt::NoEsEntero,
       {f.Nombre(), TextoEntero(registro), std::string(nombre), std::string(texto)}});
}

// The half of a paired record in a system. Both halves must be numbers; without the mark between
// them, the SI one is derived.
double LeePar(const FicheroRegistros& f, int registro, const Ficha& ficha, bool si) {
  const std::string texto = f.LeeRegistro(registro);
  const auto corte = texto.find(kSeparadorPar);
  ParUnidades par =
      Pareja(LeeNumero(f, registro, ficha.nombre, texto.substr(0, corte)), false, ficha.magnitud);
  if (corte != std::string::npos) {
    par.si = LeeNumero(f, registro, ficha.nombre, texto.substr(corte + kSeparadorPar.size()));
  }
  const double valor = si ? par.si : par.mks;
  ExigeCabida(f, registro, ficha, Pareja(valor, si, ficha.magnitud));
  return valor;
}

ErrorFichero OtroFormato(const FicheroRegistros& f, int mensaje) {
  return ErrorFichero({txt::OtroFormato, {f.Nombre(), std::string(kVersionFichero)}, mensaje});
}

// Characters 10 to 29 of a header record that starts with its label.
std::string ValorRotulado(const FicheroRegistros& f, int registro, std::string_view rotulo,
                          int mensaje) {
  const std::string texto = f.LeeRegistro(registro);
  if (Primeros(texto, 9) != rotulo) throw OtroFormato(f, mensaje);
  const std::string_view resto = std::string_view(texto).substr(rotulo.size());
  return std::string(Primeros(resto, 20));
}

constexpr std::string_view kRotuloVersion = "Version: ";
constexpr std::string_view kRotuloIdioma = "IDIOMA : ";
constexpr std::string_view kRotuloUnidades = "SisUnid: ";
constexpr std::string_view kRotuloGolpe = "GAriete: ";

bool Empieza(const FicheroRegistros& f, int registro, std::string_view rotulo) {
  try {
    return f.LeeRegistro(registro).starts_with(rotulo);
  } catch (const ErrorFichero&) {
    return false;
  }
}

// One label in its place is enough: the others may be damaged.
bool EsObra(const FicheroRegistros& f) {
  return Empieza(f, 1, kRotuloVersion) || Empieza(f, 2, kRotuloIdioma) ||
         Empieza(f, 3, kRotuloUnidades) || Empieza(f, 4, kRotuloGolpe);
}

// Reads something of an Obra. Where the damages are collected, one more is no end.
template <class Lee>
void Intenta(std::vector<DanoObra>* danos, int posicion, Lee lee) {
  if (danos == nullptr) return lee();
  try {
    lee();
  } catch (const ErrorFichero& error) {
    danos->push_back({posicion, {}, error.mensaje()});
  }
}

void LeeVersion(const FicheroRegistros& f) {
  if (f.LeeRegistro(1) != kVersionFichero) throw OtroFormato(f, txt::FormatoVersion);
}

void LeeIdioma(Obra& obra, const FicheroRegistros& f, std::vector<Mensaje>& avisos) {
  const std::string valor = ValorRotulado(f, 2, kRotuloIdioma, txt::FormatoIdioma);
  const auto idioma = NumeroTexto(Primeros(valor, 2));
  const bool vale = idioma && *idioma >= 1 && *idioma <= kIdiomas && *idioma == Int(*idioma);
  if (!vale) avisos.push_back({txt::IdiomaNoReconocido, {}});
  obra.Idioma = vale ? I16(*idioma) : std::int16_t{1};
  obra.IdiomaOffset = I16((obra.Idioma - 1) * kPasoIdioma);
}

// The caption stands in the language that the Obra was saved in, whatever the record of the
// language says. Another one is told, and the surge is estimated, which asks for more steel.
void LeeGolpe(Obra& obra, const FicheroRegistros& f, std::vector<Mensaje>& avisos) {
  const std::string valor(Recorta(ValorRotulado(f, 4, kRotuloGolpe, txt::FormatoGolpe)));
  const auto es = [&](std::string_view RotulosGolpe::*rotulo) {
    return std::ranges::find(kRotulosGolpe, valor, rotulo) != kRotulosGolpe.end();
  };
  obra.GolpeCalculado = es(&RotulosGolpe::si);
  if (obra.GolpeCalculado || es(&RotulosGolpe::no)) return;
  avisos.push_back({txt::GolpeNoReconocido, {f.Nombre(), valor}});
}

ErrorFichero Cortado(const FicheroRegistros& f, int posicion) {
  return ErrorFichero({txt::TramoCortado,
                       {f.Nombre(), TextoEntero(f.UltimoRegistro()), TextoEntero(posicion),
                        TextoEntero(Base(posicion) + kUltimoOffset)}});
}

std::optional<int> CuentaDe(std::string_view texto) {
  const auto cuenta = NumeroTexto(texto);
  if (!cuenta || *cuenta < 0 || *cuenta > kMaxTramos || *cuenta != Int(*cuenta)) {
    return std::nullopt;
  }
  return static_cast<int>(*cuenta);
}

int LeeCuenta(const FicheroRegistros& f) {
  const std::string texto = f.LeeRegistro(kRegistroCuenta);
  const auto cuenta = CuentaDe(texto);
  if (!cuenta) throw ErrorFichero({txt::CuentaDeTramos, {f.Nombre(), texto}});
  return *cuenta;
}

// Of those that are whole.
int CuentaDeBloques(const FicheroRegistros& f) {
  const int sobra = f.UltimoRegistro() - (Base(1) + kUltimoOffsetLeido);
  return sobra < 0 ? 0 : std::min(sobra / kRegistrosBloque + 1, kMaxTramos);
}

std::string LeeNumeroTramo(const FicheroRegistros& f, int posicion) {
  const int registro = Base(posicion) + kOffsetNumero;
  if (registro > f.UltimoRegistro()) throw Cortado(f, posicion);
  std::string numero(Recorta(f.LeeRegistro(registro)));
  if (!numero.empty()) LeeEntero(f, registro, "NumeroTramo", numero);
  return numero;
}

ListaTramos LeeLista(const FicheroRegistros& f, std::vector<DanoObra>* danos) {
  int cuenta = CuentaDeBloques(f);
  Intenta(danos, 0, [&] { cuenta = LeeCuenta(f); });
  ListaTramos lista(static_cast<std::size_t>(cuenta));
  for (int i = 1; i <= cuenta; ++i) {
    Intenta(danos, i, [&] { lista[static_cast<std::size_t>(i - 1)] = LeeNumeroTramo(f, i); });
  }
  return lista;
}

// A blank record leaves the variable as it was; a text takes it as it stands.
class Lector {
 public:
  Lector(const FicheroRegistros& f, int registro, const Ficha& ficha, bool si)
      : f_(f), registro_(registro), ficha_(ficha), si_(si) {}

  void operator()(std::string& destino) const { destino = f_.LeeRegistro(registro_); }
  void operator()(double& destino) const {
    if (ficha_.Escala()) {
      destino = LeePar(f_, registro_, ficha_, si_);
    } else if (const auto texto = Texto(); !texto.empty()) {
      destino = LeeNumero(f_, registro_, ficha_.nombre, texto);
    }
  }
  void operator()(std::int16_t& destino) const {
    if (const auto texto = Texto(); !texto.empty()) destino = Entero(texto);
  }
  void operator()(bool& destino) const {
    if (const auto texto = Texto(); !texto.empty()) destino = Entero(texto) != 0;
  }

 private:
  std::string Texto() const { return std::string(Recorta(f_.LeeRegistro(registro_))); }
  std::int16_t Entero(const std::string& texto) const {
    return LeeEntero(f_, registro_, ficha_.nombre, texto);
  }

  const FicheroRegistros& f_;
  int registro_;
  const Ficha& ficha_;
  bool si_;
};

// `base` is what the records of the block count from.
template <class Bloque>
void LeeDatos(Bloque& bloque, const FicheroRegistros& f, int base, bool si,
              std::vector<DanoObra>* danos = nullptr) {
  for (const auto* dato : EnOrden(TablaDe(bloque))) {
    if (!dato->ficha.seLee) continue;
    const Lector lector(f, base + dato->ficha.registro, dato->ficha, si);
    Intenta(danos, 0, [&] {
      std::visit([&](const auto miembro) { lector(bloque.*miembro); }, dato->miembro);
    });
  }
}

// Whether a blank record of a Tramo leaves what the one before it had.
bool TomaDelAnterior(const FicheroRegistros& f, int posicion) {
  return std::ranges::any_of(TablaDe(Tramo{}), [&](const Dato<Tramo>& dato) {
    const bool deja = dato.ficha.registro != 0 && dato.ficha.seLee && !dato.ficha.Escala() &&
                      !std::holds_alternative<std::string Tramo::*>(dato.miembro);
    return deja && Recorta(f.LeeRegistro(Base(posicion) + dato.ficha.registro)).empty();
  });
}

// What follows from the fields read.
void CompletaTramo(Tramo& t, bool si) {
  t.EsArmado = t.Tipologia < kPrimeraPostesada;
  t.SubTipo = t.EsArmado ? 3 : 0;
  t.PostFlag = t.EsArmado ? 0 : 1;
  t.TipoColocacion = t.TipoApoyo < 20 ? 0 : t.TipoApoyo < 30 ? 1 : 2;
  t.GamaY = t.GamaF = 1.0;
  t.Envolvente = false;  // another file tells it
  // Never captured: the record holds it rounded to what the screen shows.
  t.Fct = FctEnSistema(t.Fck, si);
  if (t.IndCar != 1) t.IndCar = t.ICar = 0;
}

// ---------------------------------------------------------------------------------------------
// Writing

struct Registro128 {
  int numero;
  std::string nombre;
  std::string texto;
};

// The text of a variable in its record.
class Escritor {
 public:
  Escritor(const Ficha& ficha, bool si, char separador)
      : ficha_(ficha), si_(si), separador_(separador) {}

  std::string operator()(const std::string& texto) const { return texto; }
  std::string operator()(std::int16_t codigo) const { return TextoEntero(codigo); }
  std::string operator()(bool marca) const { return marca ? "1" : "0"; }
  std::string operator()(double valor) const {
    if (!ficha_.Escala()) return Mks(valor);
    return Par(Pareja(valor, si_, ficha_.magnitud));
  }
  std::string Par(const ParUnidades& par) const {
    return Mks(par.mks) + std::string(kSeparadorPar) + Numero(par.si, true);
  }
  std::string Mks(double valor) const { return Numero(valor, false); }

 private:
  std::string Numero(double valor, bool si) const {
    return FormatoMascara(valor, ficha_.MascaraFichero(si), separador_);
  }

  const Ficha& ficha_;
  bool si_;
  char separador_;
};

// In the record the formula is applied to each unit as it stands, so the half of SI is not the one
// that a run uses. Nobody reads it.
ParUnidades ParFct(const Tramo& t, bool si) {
  const auto fck = Pareja(t.Fck, si, Magnitud::Tension);
  return {FctDeFck(fck.mks), FctDeFck(fck.si)};
}

std::string TextoDato(const Obra& o, const Dato<Obra>& dato, const Escritor& escritor, bool) {
  return std::visit([&](const auto miembro) { return escritor(o.*miembro); }, dato.miembro);
}

std::string TextoDato(const Tramo& t, const Dato<Tramo>& dato, const Escritor& escritor, bool si) {
  if (dato.miembro == Miembro<Tramo>(&Tramo::Fct)) return escritor.Par(ParFct(t, si));
  return std::visit([&](const auto miembro) { return escritor(t.*miembro); }, dato.miembro);
}

// The records of the data. `base` is what the records of the block count from.
template <class Bloque>
void PonDatos(std::vector<Registro128>& r, const FicheroRegistros& f, const Bloque& bloque,
              int base, bool si, char separador) {
  for (const auto& dato : TablaDe(bloque)) {
    const auto& ficha = dato.ficha;
    if (ficha.registro == 0) continue;
    const std::string nombre(ficha.nombre);
    const Escritor escritor(ficha, si, separador);
    if (const auto* real = std::get_if<double Bloque::*>(&dato.miembro)) {
      ExigeCabida(f, base + ficha.registro, ficha, Pareja(bloque.*(*real), si, ficha.magnitud));
    }
    r.push_back({base + ficha.registro, nombre, TextoDato(bloque, dato, escritor, si)});
    if (ficha.registroMks == 0) continue;
    const double valor = bloque.*std::get<double Bloque::*>(dato.miembro);
    r.push_back(
        {base + ficha.registroMks, nombre, escritor.Mks(Pareja(valor, si, ficha.magnitud).mks)});
  }
}

// Records that no datum has.
void PonReserva(std::vector<Registro128>& r, int primero, int ultimo) {
  for (int n = primero; n <= ultimo; ++n) {
    const auto es = [n](const Registro128& x) { return x.numero == n; };
    if (std::none_of(r.begin(), r.end(), es)) r.push_back({n, "", "0"});
  }
}

// In the order of the file. Turns every text into bytes before the first record changes.
void EscribeTodos(FicheroRegistros& f, std::vector<Registro128> registros) {
  std::sort(registros.begin(), registros.end(),
            [](const auto& a, const auto& b) { return a.numero < b.numero; });
  std::vector<std::pair<int, std::string>> bytes;
  for (const auto& r : registros) {
    bytes.emplace_back(r.numero, BytesDeCampo(f.Nombre(), r.nombre, r.texto));
  }
  Transaccion juntos(f);
  for (const auto& [numero, ansi] : bytes) f.EscribeRegistro(numero, ansi);
  juntos.Confirma();
}

}  // namespace

namespace {

// @param danos  where what cannot be read is told; null: it is an error
ObraLeida LeeObra(EstadoCalculo& e, const FicheroRegistros& f, std::vector<DanoObra>* danos) {
  ObraLeida leida;
  Obra obra;
  obra.SisUnid = "SI";
  if (!EsObra(f)) throw ErrorFichero({txt::NoEsUnaObra, {f.Nombre()}});
  Intenta(danos, 0, [&] { LeeVersion(f); });
  Intenta(danos, 0, [&] { LeeIdioma(obra, f, leida.avisos); });
  Intenta(danos, 0, [&] {
    const auto sistema = ValorRotulado(f, 3, kRotuloUnidades, txt::FormatoUnidades);
    if (Recorta(sistema) == "MKS") obra.SisUnid = "MKS";
  });
  Intenta(danos, 0, [&] { LeeGolpe(obra, f, leida.avisos); });
  LeeDatos(obra, f, 0, obra.EsSI(), danos);
  leida.lista = LeeLista(f, danos);
  obra.RutaApp = e.obra.RutaApp;
  obra.NombreFichero = f.Nombre();
  obra.ObraAbierta = true;
  e.obra = std::move(obra);
  return leida;
}

// Leaves the Tramos that cannot be read out of the list.
void DejaFueraLosRotos(const EstadoCalculo& e, const FicheroRegistros& f, ObraLeida& leida) {
  EstadoCalculo prueba;
  prueba.obra = e.obra;
  bool roto = false;
  for (int i = 1; i <= static_cast<int>(leida.lista.size()); ++i) {
    auto& numero = leida.lista[static_cast<std::size_t>(i - 1)];
    if (numero.empty()) {
      roto = roto || std::ranges::count(leida.danos, i, &DanoObra::posicion) > 0;
      continue;
    }
    const auto habia = leida.danos.size();
    Intenta(&leida.danos, i, [&] {
      CargaTramo(prueba, f, i);
      if (!roto || !TomaDelAnterior(f, i)) return;
      throw ErrorFichero({txt::HeredaDeUnDanado, {f.Nombre(), numero}});
    });
    if (leida.danos.size() == habia) continue;
    roto = true;
    leida.danos.back().numero = std::exchange(numero, {});
  }
}

}  // namespace

ObraLeida CargaObra(EstadoCalculo& e, const FicheroRegistros& f) {
  return LeeObra(e, f, nullptr);
}

ObraLeida RescataObra(EstadoCalculo& e, const FicheroRegistros& f) {
  std::vector<DanoObra> danos;
  auto leida = LeeObra(e, f, &danos);
  leida.danos = std::move(danos);
  DejaFueraLosRotos(e, f, leida);
  return leida;
}

void CargaTramo(EstadoCalculo& e, const FicheroRegistros& f, int posicion) {
  const int base = Base(posicion);
  if (f.UltimoRegistro() < base + kUltimoOffsetLeido) throw Cortado(f, posicion);
  const std::string tipologia(Recorta(f.LeeRegistro(base + kOffsetTipologia)));
  if (tipologia.empty() || NumeroTexto(tipologia) == 0.0) {
    throw ErrorFichero({txt::FaltaTipologia, {f.Nombre(), TextoEntero(base + kOffsetTipologia)}});
  }
  Tramo t = e.tramo;
  LeeDatos(t, f, base, e.obra.EsSI());
  CompletaTramo(t, e.obra.EsSI());
  e.tramo = std::move(t);
}

void EscribeObra(FicheroRegistros& f, const EstadoCalculo& e, const ListaTramos& lista,
                 const Catalogo& textos, char separador) {
  const Obra& o = e.obra;
  std::vector<Registro128> r{
      {1, "Version", std::string(kVersionFichero)},
      {2, "Idioma",
       std::string(kRotuloIdioma) + TextoEntero(o.Idioma) + " " +
           textos.Texto(txt::NombresIdioma[0] + o.Idioma - 1)},
      {3, "SisUnid", std::string(kRotuloUnidades) + o.SisUnid + std::string(27, ' ')},
      {4, "GolpeCalculado",
       std::string(kRotuloGolpe) + textos.Texto(o.GolpeCalculado ? txt::Si : txt::No)}};
  PonDatos(r, f, o, 0, o.EsSI(), separador);
  PonReserva(r, kPrimeraReserva, kRegistroCuenta - 1);
  r.push_back({kRegistroCuenta, "", TextoEntero(static_cast<int>(lista.size()))});
  EscribeTodos(f, std::move(r));
}

void EscribeTramo(FicheroRegistros& f, const EstadoCalculo& e, const ListaTramos& lista,
                  int posicion, char separador) {
  const int base = Base(posicion);
  std::vector<Registro128> r{
      {base + kOffsetCuenta, "", TextoEntero(static_cast<int>(lista.size()))},
      {base + kOffsetNumero, "NumeroTramo", lista.at(static_cast<std::size_t>(posicion - 1))}};
  PonDatos(r, f, e.tramo, base, e.obra.EsSI(), separador);
  PonReserva(r, base + kUltimoOffsetLeido + 1, base + kUltimoOffset);
  EscribeTodos(f, std::move(r));
}

int CuentaTramos(const FicheroRegistros& f) try {
  return CuentaDe(f.LeeRegistro(kRegistroCuenta)).value_or(0);
} catch (const ErrorFichero&) {
  return 0;
}

void BorraTramos(FicheroRegistros& f, int desde, int hasta) {
  const int ultimo = std::min(Base(hasta) + kUltimoOffset, f.UltimoRegistro());
  for (int r = Base(desde) + kOffsetNumero; r <= ultimo; ++r) f.EscribeRegistro(r, {});
}

void CopiaTramo(FicheroRegistros& f, const FicheroRegistros& de, int posicion) {
  const int base = Base(posicion);
  f.CopiaRegistros(de, base + kOffsetNumero, base + kUltimoOffset);
}

std::uint64_t HuellaDe(const FicheroRegistros& f, int posicion) {
  std::uint64_t huella = 14695981039346656037U;  // FNV-1a
  // A damaged record that no datum has stops no reading, and so not this one either.
  const auto texto = [&f](int registro) {
    try {
      return f.LeeRegistro(registro);
    } catch (const ErrorFichero&) {
      return std::string("\x01");
    }
  };
  const auto suma = [&](int registro) {
    for (const char letra : texto(registro) + '\0') {
      huella = (huella ^ static_cast<unsigned char>(letra)) * 1099511628211U;
    }
  };
  for (int registro = 1; registro <= kRegistroCuenta; ++registro) suma(registro);
  if (posicion == 0) return huella;
  for (int i = kOffsetNumero; i <= kUltimoOffset; ++i) suma(Base(posicion) + i);
  return huella;
}

}  // namespace zorbin
