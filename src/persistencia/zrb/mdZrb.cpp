#include "persistencia/zrb/mdZrb.h"

#include <array>
#include <cmath>
#include <optional>
#include <string_view>
#include <utility>
#include <variant>

#include "base/mdNumeros.h"
#include "base/mdTextos.h"
#include "base/textos.h"
#include "core/mdUnidades.h"

namespace zorbin {

namespace {

constexpr std::string_view kSeparadorPar = " // ";
constexpr int kRegistrosBloque = 60;
constexpr int kBaseBloque = 14;  // an offset counts from it in the first block
constexpr int kOffsetCuenta = 6;
constexpr int kOffsetNumero = 7;
constexpr int kOffsetDescripcion = 8;
constexpr int kOffsetTipologia = 9;
constexpr int kUltimoOffsetLeido = 64;
constexpr int kUltimoOffset = 66;
constexpr int kRegistroCuenta = 20;

int Base(int posicion) {
  return (posicion - 1) * kRegistrosBloque + kBaseBloque;
}

// ---------------------------------------------------------------------------------------------
// Declaration of the fields

struct ParObra {
  int registro;
  std::string_view nombre;
  double Obra::*campo;
  double Obra::*si;
};

constexpr std::array<ParObra, 5> kParesObra{{
    {7, "Prs1", &Obra::Prs1, &Obra::Prs1SI},
    {8, "Prs2", &Obra::Prs2, &Obra::Prs2SI},
    {10, "Prs3", &Obra::Prs3, &Obra::Prs3SI},
    {11, "PrsM1", &Obra::PrsM1, &Obra::PrsM1SI},
    {12, "PrsM2", &Obra::PrsM2, &Obra::PrsM2SI},
}};

struct AlturaObra {
  int registro;
  std::string_view nombre;
  double Obra::*campo;
};

constexpr std::array<AlturaObra, 3> kAlturasObra{{
    {13, "Alt1", &Obra::Alt1},
    {14, "Alt2", &Obra::Alt2},
    {15, "Alt3", &Obra::Alt3},
}};

constexpr std::string_view kMascaraPresion = "#####0.00";

// A number with a mask; with a twin, a pair of numbers with a mask each; with a factor alone, the
// MKS value of a field that the screen may hold in SI.
struct Numero {
  double Tramo::*campo;
  std::string_view mascara;
  double Tramo::*si = nullptr;
  std::string_view mascaraSI = {};
  double factor = 1.0;
};

struct Campo {
  int offset;
  std::string_view nombre;
  std::variant<Numero, std::int16_t Tramo::*, bool Tramo::*> valor;
  bool seLee = true;
};

constexpr Numero Par(double Tramo::*campo, double Tramo::*si, std::string_view mascara,
                     std::string_view mascaraSI, double factor = kFactorTension) {
  return {campo, mascara, si, mascaraSI, factor};
}

// clang-format off
constexpr auto kCampos = std::to_array<Campo>({
    { 9, "Tipologia",   &Tramo::Tipologia},
    {10, "Icontes0",    &Tramo::Icontes0},
    {11, "Adato",       Numero{&Tramo::Adato, "#####0.000"}},
    {12, "TipoControl", &Tramo::TipoControl},
    {13, "TipoCamisa",  &Tramo::TipoCamisa},
    {14, "SubTipo",     &Tramo::SubTipo, false},
    {15, "CamMax",      Numero{&Tramo::CamMax, "#####0.0"}},
    {16, "Fck",         Par(&Tramo::Fck, &Tramo::FckSI, "#####0", "#####0.0")},
    {17, "Fct",         Par(&Tramo::Fct, &Tramo::FctSI, "#####0", "#####0.0")},
    {18, "Fyk",         Par(&Tramo::Fyk, &Tramo::FykSI, "#####0", "#####0.0")},
    {19, "Fyd",         Par(&Tramo::Fyd, &Tramo::FydSI, "#####0", "#####0.0")},
    {20, "GamaB",       Numero{&Tramo::GamaB, "#####0.00"}},
    {21, "GamaY",       Numero{&Tramo::GamaY, "#####0.00"}, false},
    {22, "GamaF",       Numero{&Tramo::GamaF, "#####0.00"}, false},
    {23, "Icontes1",    &Tramo::Icontes1},
    {24, "Coepre1",     Numero{&Tramo::Coepre1, "#####0.000"}},
    {25, "Delca",       Numero{&Tramo::Delca, "#####0.00"}},
    {26, "Es",          Par(&Tramo::Es, &Tramo::EsSI, "#######0", "#####0")},
    {27, "Ep",          Par(&Tramo::Ep, &Tramo::EpSI, "#######0", "#####0")},
    {28, "Fckno",       Par(&Tramo::Fckno, &Tramo::FcknoSI, "#####0", "#####0.0")},
    {29, "Fckn",        Par(&Tramo::Fckn, &Tramo::FcknSI, "#####0", "#####0.0")},
    {30, "Fckr",        Par(&Tramo::Fckr, &Tramo::FckrSI, "#####0", "#####0.0")},
    {31, "SFck",        Par(&Tramo::SFck, &Tramo::SFckSI, "#####0", "#####0")},
    {32, "Sf",          Par(&Tramo::Sf, &Tramo::SfSI, "#####0", "#####0")},
    {33, "Rel",         Numero{&Tramo::Rel, "#####0.00"}},
    {34, "Fic",         Numero{&Tramo::Fic, "#####0.000"}},
    {35, "Fir",         Numero{&Tramo::Fir, "#####0.000"}},
    {36, "Epsc",        Numero{&Tramo::Epsc, "#####0.0000"}},
    {37, "Epsr",        Numero{&Tramo::Epsr, "#####0.0000"}},
    {38, "Di",          Numero{&Tramo::Di, "#####0.000"}},
    {39, "Esp",         Numero{&Tramo::Esp, "#####0.0"}},
    {40, "De",          Numero{&Tramo::De, "#####0.000"}},
    {41, "Reci",        Numero{&Tramo::Reci, "#####0.0"}},
    {42, "Rece",        Numero{&Tramo::Rece, "#####0.0"}},
    {43, "Gc",          Numero{&Tramo::Gc, "#####0.00"}},
    {44, "TipoCuna",    &Tramo::TipoCuna},
    {45, "TipoApoyo",   &Tramo::TipoApoyo},
    {46, "Hr0Tramo",    Numero{&Tramo::Hr0Tramo, "#####0.00"}},
    {47, "B0",          Numero{&Tramo::B0, "#####0.000"}},
    {48, "Gr",          Numero{&Tramo::Gr, "#####0.00"}},
    {49, "Fi",          Numero{&Tramo::Fi, "#####0.00"}},
    {50, "TipoRelleno", &Tramo::TipoRelleno},
    {51, "Hr1",         Numero{&Tramo::Hr1, "#####0.00"}},
    {52, "IAs",         &Tramo::IAs},
    {53, "QDato",       Par(&Tramo::QDato, &Tramo::QDatoSI, "#####0.000", "#####0.000", kFactorCarga)},
    {54, "IndCar",      &Tramo::IndCar},
    {55, "ICar",        &Tramo::ICar},
    {56, "Prs1Tram",    Par(&Tramo::Prs1Tram, &Tramo::Prs1TramSI, kMascaraPresion, kMascaraPresion)},
    {57, "Prs2Tram",    Par(&Tramo::Prs2Tram, &Tramo::Prs2TramSI, kMascaraPresion, kMascaraPresion)},
    {58, "Prs3Tram",    Numero{&Tramo::Prs3Tram, kMascaraPresion, nullptr, {}, kFactorTension}, false},
    {59, "PrsM1Tram",   Par(&Tramo::PrsM1Tram, &Tramo::PrsM1TramSI, kMascaraPresion, kMascaraPresion)},
    {60, "PrsM2Tram",   Par(&Tramo::PrsM2Tram, &Tramo::PrsM2TramSI, kMascaraPresion, kMascaraPresion)},
    {61, "Hr0Final",    Numero{&Tramo::Hr0Final, "#####0.00"}},
    {62, "Hr0Delta",    Numero{&Tramo::Hr0Delta, "#####0.00"}},
    {63, "Prs3Tram",    Par(&Tramo::Prs3Tram, &Tramo::Prs3TramSI, kMascaraPresion, kMascaraPresion)},
    {64, "FYKPost",     Par(&Tramo::FYKPost, &Tramo::FYKPostSI, "#####0", "#####0.0")},
});
// clang-format on

// ---------------------------------------------------------------------------------------------
// Reading

double LeeNumero(const FicheroRegistros& f, int registro, std::string_view nombre,
                 std::string_view texto) {
  const auto valor = NumeroTexto(texto);
  if (!valor || std::fabs(*valor) > kMayorNumero) {
    throw ErrorFichero(
        {txt::NoEsNumero,
         {f.Nombre(), TextoEntero(registro), std::string(nombre), std::string(texto)}});
  }
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

// Both values of a paired record. Without the mark between the halves, the SI one is derived.
ParUnidades LeePar(const FicheroRegistros& f, int registro, std::string_view nombre,
                   double factor) {
  const std::string texto = f.LeeRegistro(registro);
  const auto corte = texto.find(kSeparadorPar);
  const double mks = LeeNumero(f, registro, nombre, texto.substr(0, corte));
  if (corte == std::string::npos) return Pareja(mks, false, factor);
  return {mks, LeeNumero(f, registro, nombre, texto.substr(corte + kSeparadorPar.size()))};
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

void LeeIdioma(Obra& obra, const FicheroRegistros& f, std::vector<Mensaje>& avisos) {
  const std::string valor = ValorRotulado(f, 2, "IDIOMA : ", txt::FormatoIdioma);
  const auto idioma = NumeroTexto(Primeros(valor, 2));
  const bool vale = idioma && *idioma >= 1 && *idioma <= kIdiomas && *idioma == Int(*idioma);
  if (!vale) avisos.push_back({txt::IdiomaNoReconocido, {}});
  obra.Idioma = vale ? I16(*idioma) : std::int16_t{1};
  obra.IdiomaOffset = I16((obra.Idioma - 1) * kPasoIdioma);
}

ErrorFichero Cortado(const FicheroRegistros& f, int posicion) {
  return ErrorFichero({txt::TramoCortado,
                       {f.Nombre(), TextoEntero(f.UltimoRegistro()), TextoEntero(posicion),
                        TextoEntero(Base(posicion) + kUltimoOffset)}});
}

ListaTramos LeeLista(const FicheroRegistros& f) {
  const std::string texto = f.LeeRegistro(kRegistroCuenta);
  const auto cuenta = NumeroTexto(texto);
  if (!cuenta || *cuenta < 0 || *cuenta > kMaxTramos || *cuenta != Int(*cuenta)) {
    throw ErrorFichero({txt::CuentaDeTramos, {f.Nombre(), texto}});
  }
  ListaTramos lista;
  for (int i = 1; i <= static_cast<int>(*cuenta); ++i) {
    const int registro = Base(i) + kOffsetNumero;
    if (registro > f.UltimoRegistro()) throw Cortado(f, i);
    const std::string numero(Recorta(f.LeeRegistro(registro)));
    if (!numero.empty()) LeeEntero(f, registro, "NumeroTramo", numero);
    lista.push_back(numero);
  }
  return lista;
}

void LeeCampo(Tramo& t, const Campo& c, const FicheroRegistros& f, int registro, bool si) {
  const std::string texto(Recorta(f.LeeRegistro(registro)));
  if (const auto* numero = std::get_if<Numero>(&c.valor)) {
    if (numero->si != nullptr) {
      const auto par = LeePar(f, registro, c.nombre, numero->factor);
      t.*numero->campo = si ? par.si : par.mks;
      t.*numero->si = par.si;
    } else if (!texto.empty()) {
      t.*numero->campo = LeeNumero(f, registro, c.nombre, texto);
    }
    return;
  }
  if (texto.empty()) return;
  const std::int16_t entero = LeeEntero(f, registro, c.nombre, texto);
  if (const auto* campo = std::get_if<std::int16_t Tramo::*>(&c.valor)) {
    t.*(*campo) = entero;
  } else {
    t.*std::get<bool Tramo::*>(c.valor) = entero != 0;
  }
}

// What follows from the fields read.
void CompletaTramo(Tramo& t) {
  t.EsArmado = t.Tipologia < kPrimeraPostesada;
  t.SubTipo = t.EsArmado ? 3 : 0;
  t.PostFlag = t.EsArmado ? 0 : 1;
  t.TipoColocacion = t.TipoApoyo < 20 ? 0 : t.TipoApoyo < 30 ? 1 : 2;
  t.GamaY = t.GamaF = 1.0;
  // Never captured: the record holds it rounded to what the screen shows.
  t.Fct = FctDeFck(t.Fck);
  if (t.IndCar != 1) t.IndCar = t.ICar = 0;
}

// The load fields follow the given load until a run sets them.
void CargasDelDato(EstadoCalculo& e) {
  const auto& t = e.tramo;
  auto& c = e.corrida;
  c.Q = t.QDato;
  switch (t.TipoApoyo) {
    case 11:
      c.QTerraplen = t.B0 > 3.0 ? t.De * t.QDato / t.B0 : 0.0;
      break;
    case 12:
      c.QTerraplen = t.QDato;
      break;
    default:
      c.QTerraplen = t.Gr * c.Hr;
      break;
  }
}

// ---------------------------------------------------------------------------------------------
// Writing

struct Registro128 {
  int numero;
  std::string nombre;
  std::string texto;
};

std::string TextoPar(const ParUnidades& par, std::string_view mascara, std::string_view mascaraSI,
                     char separador) {
  return FormatoMascara(par.mks, mascara, separador) + std::string(kSeparadorPar) +
         FormatoMascara(par.si, mascaraSI, separador);
}

std::string TextoCampo(const Tramo& t, const Campo& c, bool si, char separador) {
  if (const auto* numero = std::get_if<Numero>(&c.valor)) {
    auto par = Pareja(t.*numero->campo, si && numero->factor != 1.0, numero->factor);
    if (numero->si == nullptr) return FormatoMascara(par.mks, numero->mascara, separador);
    if (numero->campo == &Tramo::Fct) {
      const auto fck = Pareja(t.Fck, si, kFactorTension);
      par = {FctDeFck(fck.mks), si ? t.Fct : FctDeFck(fck.si)};
    }
    return TextoPar(par, numero->mascara, numero->mascaraSI, separador);
  }
  if (const auto* campo = std::get_if<std::int16_t Tramo::*>(&c.valor)) {
    return TextoEntero(t.*(*campo));
  }
  return t.*std::get<bool Tramo::*>(c.valor) ? "1" : "0";
}

// Turns every text into bytes before the first record changes.
void EscribeTodos(FicheroRegistros& f, const std::vector<Registro128>& registros) {
  std::vector<std::pair<int, std::string>> bytes;
  for (const auto& r : registros) {
    bytes.emplace_back(r.numero, BytesDeCampo(f.Nombre(), r.nombre, r.texto));
  }
  Transaccion juntos(f);
  for (const auto& [numero, ansi] : bytes) f.EscribeRegistro(numero, ansi);
  juntos.Confirma();
}

}  // namespace

ObraLeida CargaObra(EstadoCalculo& e, const FicheroRegistros& f) {
  ObraLeida leida;
  Obra obra;
  if (f.LeeRegistro(1) != kVersionFichero) throw OtroFormato(f, txt::FormatoVersion);
  LeeIdioma(obra, f, leida.avisos);
  obra.SisUnid =
      Recorta(ValorRotulado(f, 3, "SisUnid: ", txt::FormatoUnidades)) == "MKS" ? "MKS" : "SI";
  // The caption is compared as it stands: a file saved in another language reads as estimated.
  obra.GolpeCalculado = Recorta(ValorRotulado(f, 4, "GAriete: ", txt::FormatoGolpe)) == "Si";
  obra.NombreObra = f.LeeRegistro(5);
  obra.Cliente = f.LeeRegistro(6);
  for (const auto& p : kParesObra) {
    const auto par = LeePar(f, p.registro, p.nombre, kFactorTension);
    obra.*p.campo = obra.EsSI() ? par.si : par.mks;
    obra.*p.si = par.si;
  }
  for (const auto& a : kAlturasObra) {
    obra.*a.campo = LeeNumero(f, a.registro, a.nombre, f.LeeRegistro(a.registro));
  }
  leida.lista = LeeLista(f);
  obra.RutaApp = e.obra.RutaApp;
  obra.NombreFichero = f.Nombre();
  obra.ObraAbierta = true;
  e.obra = std::move(obra);
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
  t.DescriTramo = f.LeeRegistro(base + kOffsetDescripcion);
  for (const auto& c : kCampos) {
    if (c.seLee) LeeCampo(t, c, f, base + c.offset, e.obra.EsSI());
  }
  CompletaTramo(t);
  e.tramo = std::move(t);
  CargasDelDato(e);
  EligeAlturas(e);
}

void EscribeObra(FicheroRegistros& f, const EstadoCalculo& e, const ListaTramos& lista,
                 const Catalogo& textos, char separador) {
  const Obra& o = e.obra;
  const auto presion = [&](double v) { return FormatoMascara(v, kMascaraPresion, separador); };
  std::vector<Registro128> r{
      {1, "Version", std::string(kVersionFichero)},
      {2, "Idioma",
       "IDIOMA : " + TextoEntero(o.Idioma) + " " +
           textos.Texto(txt::NombresIdioma[0] + o.Idioma - 1)},
      {3, "SisUnid", "SisUnid: " + o.SisUnid + std::string(27, ' ')},
      {4, "GolpeCalculado", "GAriete: " + textos.Texto(o.GolpeCalculado ? txt::Si : txt::No)},
      {5, "NombreObra", o.NombreObra},
      {6, "Cliente", o.Cliente},
      {9, "Prs3", presion(Pareja(o.Prs3, o.EsSI(), kFactorTension).mks)}};
  for (const auto& p : kParesObra) {
    r.push_back({p.registro, std::string(p.nombre),
                 TextoPar(Pareja(o.*p.campo, o.EsSI(), kFactorTension), kMascaraPresion,
                          kMascaraPresion, separador)});
  }
  for (const auto& a : kAlturasObra) {
    r.push_back({a.registro, std::string(a.nombre), presion(o.*a.campo)});
  }
  for (int reserva = 16; reserva <= 19; ++reserva) r.push_back({reserva, "", "0"});
  r.push_back({kRegistroCuenta, "", TextoEntero(static_cast<int>(lista.size()))});
  EscribeTodos(f, r);
}

void EscribeTramo(FicheroRegistros& f, const EstadoCalculo& e, const ListaTramos& lista,
                  int posicion, char separador) {
  const int base = Base(posicion);
  std::vector<Registro128> r{
      {base + kOffsetCuenta, "", TextoEntero(static_cast<int>(lista.size()))},
      {base + kOffsetNumero, "NumeroTramo", lista.at(static_cast<std::size_t>(posicion - 1))},
      {base + kOffsetDescripcion, "DescriTramo", e.tramo.DescriTramo}};
  for (const auto& c : kCampos) {
    r.push_back(
        {base + c.offset, std::string(c.nombre), TextoCampo(e.tramo, c, e.obra.EsSI(), separador)});
  }
  for (int offset = kUltimoOffsetLeido + 1; offset <= kUltimoOffset; ++offset) {
    r.push_back({base + offset, "", "0"});
  }
  EscribeTodos(f, r);
}

std::uint64_t HuellaDe(const FicheroRegistros& f, int posicion) {
  std::uint64_t huella = 14695981039346656037U;  // FNV-1a
  const auto suma = [&](int registro) {
    for (const char letra : f.LeeRegistro(registro) + '\0') {
      huella = (huella ^ static_cast<unsigned char>(letra)) * 1099511628211U;
    }
  };
  for (int registro = 1; registro <= kRegistroCuenta; ++registro) suma(registro);
  if (posicion == 0) return huella;
  for (int i = kOffsetNumero; i <= kUltimoOffset; ++i) suma(Base(posicion) + i);
  return huella;
}

}  // namespace zorbin
