#include "listados/obra/mdListadoPapel.h"

#include <array>

#include "base/mdTextos.h"
#include "base/textos.h"
#include "listados/obra/mdAvisos.h"

namespace zorbin {

namespace {

constexpr int kAnchoObra = 72;  // columns of a line of the project's description

// The words of a typology in the heading; a 0 ends them.
struct PalabrasTipologia {
  std::int16_t codigo;
  std::array<int, 3> palabras;
};

constexpr std::array<PalabrasTipologia, 8> kTipologias{{
    {1100, {txt::EsHormigonArmado, txt::SinCamisa, 0}},
    {1210, {txt::EsHormigonArmado, txt::EsConCamisa, 0}},
    {1220, {txt::EsHormigonArmado, txt::EsConCamisa, 0}},
    {2100, {txt::EsHormigonPostesado, txt::SinCamisa, 0}},
    {2211, {txt::EsHormigonPostesado, txt::EsConCamisa, txt::EsEmbebida}},
    {2212, {txt::EsHormigonPostesado, txt::EsConCamisa, txt::EsEmbebida}},
    {2221, {txt::EsHormigonPostesado, txt::EsConCamisa, txt::EsRevestida}},
    {2222, {txt::EsHormigonPostesado, txt::EsConCamisa, txt::EsRevestida}},
}};

}  // namespace

bool ListadoPapel::Tramo(const ResultadoTramo& resultado, int /*posicion*/,
                         const std::string& numero, const SigueListado& sigue) {
  if (!RecorreCasos(resultado, sigue, [this](const VistaCaso& v) { Caso(v); })) return false;
  if (const auto* roto = CasoRoto(resultado)) CasoSinAcabar(resultado, *roto);
  Ocupa(Cierre(resultado, numero));
  return true;
}

std::string ListadoPapel::NumeroSolo(double valor, int ancho, int decimales,
                                     std::string_view conversion, bool conUnidad) const {
  return std::string(Recorta(Numero(valor, ancho, decimales, conversion, conUnidad)));
}

void ListadoPapel::EnNegrita(int margen, std::string_view texto) {
  papel_.Negrita(true);
  Linea(margen, texto);
  papel_.Negrita(false);
}

int ListadoPapel::BloqueObra(const Obra& obra) {
  EnBlanco(2);
  papel_.Negrita(true);
  int lineas = 0;
  std::string resto = obra.NombreObra;
  do {
    ++lineas;
    auto [linea, queda] = PartirTexto(resto, kAnchoObra);
    Linea(10, linea);
    resto = std::move(queda);
  } while (!resto.empty());
  EnBlanco(1);
  Linea(10, Texto(txt::Cliente) + " " + FormatoTexto(obra.Cliente, 40) + Blancos(3) +
                Texto(txt::FechaRotulo) + ": " + fecha_.dia + " " + fecha_.hora);
  papel_.Negrita(false);
  papel_.Regla(18, 185, 3);
  return lineas;
}

std::vector<LineaCaso> ListadoPapel::CierreDe(const VistaCaso& v) const {
  return palabras_.Cierre(v, kAnchoObra);
}

void ListadoPapel::EscribeCierre(int margen, const std::vector<LineaCaso>& lineas) {
  for (const auto& linea : lineas) {
    linea.negrita ? EnNegrita(margen, linea.texto) : Linea(margen, linea.texto);
  }
}

// @return lines printed
int ListadoPapel::Cierre(const ResultadoTramo& resultado, const std::string& numero) {
  const auto& datos = resultado.datos;
  int lineas = 0;
  if (resultado.fallo) {
    const std::string descripcion(Recorta(datos.tramo.DescriTramo));
    lineas += Advierte(palabras_.Veredicto(Veredicto::SinComprobar) + ": " +
                       TextoFallo(*resultado.fallo, descripcion, numero, textos_, estilo_));
  }
  if (datos.SinAjustes && datos.tramo.EsArmado) lineas += Advierte(Texto(txt::AjustesSinLeer));
  return lineas;
}

// In bold, on as many lines as it takes. @return lines printed
int ListadoPapel::Advierte(const std::string& texto) {
  int lineas = 1;
  EnBlanco(1);
  std::string resto = "** " + texto;
  while (!resto.empty()) {
    auto [linea, queda] = PartirTexto(resto, kAnchoObra);
    EnNegrita(10, linea);
    resto = std::move(queda);
    ++lineas;
  }
  return lineas;
}

std::string ListadoPapel::RotuloCaso(int NumCaso, const zorbin::Tramo& t) const {
  return Texto(txt::CasoNumero) + ": " + TextoEntero(NumCaso) + "/" +
         FormatoEntero(t.NumeroTramo, 4) + " : " + FormatoTexto(t.DescriTramo, 40);
}

std::string ListadoPapel::TextoTipologia(std::int16_t Tipologia) const {
  std::string texto;
  for (const auto& t : kTipologias) {
    if (t.codigo != Tipologia) continue;
    for (const int palabra : t.palabras) {
      if (palabra != 0) texto += (texto.empty() ? "" : " ") + Texto(palabra);
    }
  }
  return texto;
}

std::string ListadoPapel::TextoCuna(std::int16_t TipoCuna) const {
  if (TipoCuna == 4) return Texto(txt::MenorDe90);
  const bool granular = TipoCuna == 1;
  const int angulo = TipoCuna == 3 ? 120 : 90;
  return FormatoTexto(Texto(granular ? txt::CunaGranular : txt::CunaHormigon), 8) +
         FormatoEntero(angulo, 4) + "º";
}

std::string ListadoPapel::TextoColocacionCabecera(std::int16_t TipoApoyo) const {
  switch (TipoApoyo) {
    case 11:
      return Texto(txt::ColocacionZanjaSin);
    case 12:
      return Texto(txt::ColocacionZanjaCon);
    case 21:
      return Texto(txt::ColocacionTerraplenadaSin);
    case 22:
      return Texto(txt::ColocacionTerraplenadaCon);
    default:
      return TipoApoyo >= 30 ? Texto(txt::ColocacionTerraplen) : std::string{};
  }
}

}  // namespace zorbin
