#include "listados/obra/mdVeredictoCaso.h"

#include <algorithm>
#include <cmath>
#include <tuple>

#include "base/mdTextos.h"
#include "base/textos.h"

namespace zorbin {

namespace {

constexpr double kMmPorMetro = 1000.0;
constexpr std::string_view kSinLimite = "∞";
constexpr int kSangria = 2;  // of the lines that go on

// How value and limit of a check are written. The others have their unit in their text.
struct MedidaComprobacion {
  std::string_view conversion;
  int decimales;
  std::string_view detras;  // of the unit
};

MedidaComprobacion MedidaDe(QueComprueba que) {
  switch (que) {
    case QueComprueba::MomentoLimite:
      return {"mT->mkN", 3, "/m"};
    case QueComprueba::FuerzaAlambre:
      return {"T->kN", 2, "/m"};
    case QueComprueba::PruebaNucleo:
      return {"at->MPa", 1, ""};
    case QueComprueba::Fisuracion:
    case QueComprueba::Zunchado:
    case QueComprueba::TensionNucleo:
    case QueComprueba::TensionRevestimiento:
    case QueComprueba::TensionChapa:
      return {"Kp/cm2->MPa", 2, ""};
    default:
      return {"", 2, ""};
  }
}

// The check that a reason rests on, the most used of its kind; null where it rests on none.
const ComprobacionCaso* QueDecide(const Verificacion& v) {
  QueComprueba que = v.que;
  switch (v.motivo) {
    case MotivoVeredicto::Comprobacion:
      break;
    case MotivoVeredicto::MomentoLimite:
      que = QueComprueba::MomentoLimite;
      break;
    case MotivoVeredicto::FlexionSobreTope:
      que = QueComprueba::ExteriorIneludible;
      break;
    case MotivoVeredicto::FisuracionSobreTope:
      que = QueComprueba::TopeExterior;
      break;
    default:
      return nullptr;
  }
  const ComprobacionCaso* peor = nullptr;
  for (const auto& c : v.comprobaciones) {
    if (c.que == que && (peor == nullptr || c.uso > peor->uso)) peor = &c;
  }
  return peor;
}

// From the best to the worst. A search without a solution has no use of its own.
auto Gravedad(const ResumenVerificacion& v) {
  const int veredicto = v.veredicto == Veredicto::NoCumple       ? 2
                        : v.veredicto == Veredicto::SinComprobar ? 1
                                                                 : 0;
  return std::tuple(veredicto, !v.OfreceArmadura(), v.uso);
}

std::string SinBlancos(std::string_view texto) {
  return std::string(Recorta(texto));
}

// The design has given the warning, with its hypothesis, where the verdict would repeat it.
bool DichoEnElDiseno(const std::vector<Aviso>& avisos, std::uint32_t advertencia) {
  const auto clase = advertencia == kAvisoRetraccion      ? ClaseAviso::RetraccionLisas
                     : advertencia == kAvisoCapasInterior ? ClaseAviso::CapasInterior
                                                          : ClaseAviso::CapasExterior;
  return std::ranges::any_of(avisos, [clase](const Aviso& a) {
    return a.clase == clase && a.fase == FaseAviso::Final && a.pantalla;
  });
}

// A text on as many lines as it takes, those that go on set in.
void Parte(const LineaCaso& linea, int ancho, std::vector<LineaCaso>& lineas) {
  auto [primera, resto] = PartirTexto(linea.texto, ancho);
  lineas.push_back({std::move(primera), linea.negrita});
  while (!resto.empty()) {
    auto [otra, queda] = PartirTexto(resto, ancho - kSangria);
    lineas.push_back({Blancos(kSangria) + otra, linea.negrita});
    resto = std::move(queda);
  }
}

}  // namespace

CuentaVeredictos& CuentaVeredictos::operator+=(const CuentaVeredictos& otra) {
  casos += otra.casos;
  noCumplen += otra.noCumplen;
  sinComprobar += otra.sinComprobar;
  return *this;
}

CuentaVeredictos CuentaDeVeredictos(const ResultadoTramo& resultado) {
  CuentaVeredictos c;
  for (const auto& f : resultado.filas) {
    if (f.verificacion.veredicto == Veredicto::NoCumple) ++c.noCumplen;
    if (f.verificacion.veredicto == Veredicto::SinComprobar) ++c.sinComprobar;
    if (c.peor == nullptr || Gravedad(f.verificacion) > Gravedad(c.peor->verificacion)) c.peor = &f;
  }
  const int roto = CasoRoto(resultado) != nullptr ? 1 : 0;
  c.casos = static_cast<int>(resultado.filas.size()) + roto;
  c.sinComprobar += roto;
  const bool entero = !resultado.fallo && !resultado.cancelado && c.peor != nullptr;
  if (c.noCumplen > 0) {
    c.veredicto = Veredicto::NoCumple;
  } else if (entero && c.sinComprobar == 0) {
    c.veredicto = Veredicto::Cumple;
  }
  return c;
}

bool OfreceArmadura(const VistaCaso& v) {
  if (v.fila.ajustado) return true;
  const auto& r = v.caso.verificacion;
  if (!r.OfreceArmadura() || r.motivo == MotivoVeredicto::MomentoLimite) return false;
  if (v.Datos().EsArmado) return v.Armado().IESP <= 0;
  const auto& p = v.Postesado();
  return p.fin == FinPostesado::Completo && p.FIPRDEFI > 0.0 && p.NESPDEFI > 0.0;
}

std::string PalabrasCaso::Numero(double valor, int decimales, std::string_view conversion,
                                 bool conUnidad) const {
  if (!std::isfinite(valor)) return std::string(kSinLimite);
  return SinBlancos(estilo_.FormatoNumero(valor, 0, decimales, conversion, conUnidad));
}

const std::string& PalabrasCaso::Veredicto(zorbin::Veredicto veredicto) const {
  return textos_.Texto(txt::Veredictos[static_cast<std::size_t>(veredicto)]);
}

std::string PalabrasCaso::Uso(const ResumenVerificacion& v) const {
  const bool sinUso = !v.OfreceArmadura() || v.motivo == MotivoVeredicto::FalloCorrida ||
                      v.motivo == MotivoVeredicto::AxilNulo;
  return sinUso ? "-" : Numero(v.uso, 3);
}

std::string PalabrasCaso::Hipotesis(int h, bool armado) const {
  const auto lugar = static_cast<std::size_t>(h - 1);
  if (!armado) return SinBlancos(textos_.Texto(txt::HipotesisPostesado[lugar]));
  return SinBlancos(textos_.Texto(nombres_ == NombresHipotesis::Diseno
                                      ? txt::HipotesisDiseno[lugar]
                                      : txt::HipotesisResumen[lugar]));
}

std::string PalabrasCaso::Rige(const VistaCaso& v) const {
  return v.fila.HipotesisRige > 0 ? Hipotesis(v.fila.HipotesisRige, true) : std::string{};
}

std::string PalabrasCaso::Barras(double n, double diametro, int decimales) const {
  if (n <= 0.0) return "-";
  return Numero(n, 0) + "Ø" + Numero(diametro, decimales) + "/" + Numero(kMmPorMetro / n, 0);
}

std::string PalabrasCaso::Comprobacion(const ComprobacionCaso& c, bool armado) const {
  const auto medida = MedidaDe(c.que);
  const auto valor = [&](double x) {
    return Numero(x, medida.decimales, medida.conversion, !medida.conversion.empty()) +
           std::string(medida.detras);
  };
  const auto que = static_cast<std::size_t>(c.que);
  std::string texto = textos_.Compone(txt::Comprobaciones[que], {valor(c.valor), valor(c.limite)});
  std::string sitio;
  const auto en = [&sitio](const std::string& donde) {
    sitio += (sitio.empty() ? "" : ", ") + SinBlancos(donde);
  };
  if (c.hipotesis > 0) en(Hipotesis(c.hipotesis, armado));
  if (c.seccion > 0) en(textos_.Texto(txt::Secciones[static_cast<std::size_t>(c.seccion - 1)]));
  if (c.cara != CaraPared::Ninguna) {
    en(textos_.Texto(c.cara == CaraPared::Interior ? txt::EnCaraInterior : txt::EnCaraExterior));
  }
  return sitio.empty() ? texto : texto + " (" + sitio + ")";
}

std::string PalabrasCaso::MotivoCorto(const VistaCaso& v) const {
  const auto& r = v.caso.verificacion;
  if (r.motivo == MotivoVeredicto::Ninguno) return {};
  if (r.motivo != MotivoVeredicto::Comprobacion) {
    const auto motivo = static_cast<std::size_t>(r.motivo) -
                        static_cast<std::size_t>(MotivoVeredicto::MomentoLimite);
    return textos_.Texto(txt::MotivosVeredicto[motivo]);
  }
  const auto* c = QueDecide(r);
  return c == nullptr ? std::string{} : Comprobacion(*c, v.Datos().EsArmado);
}

std::string PalabrasCaso::Motivo(const VistaCaso& v) const {
  const auto& r = v.caso.verificacion;
  std::string motivo = MotivoCorto(v);
  const auto* c = QueDecide(r);
  if (r.motivo == MotivoVeredicto::Comprobacion || c == nullptr) return motivo;
  return motivo + ": " + Comprobacion(*c, v.Datos().EsArmado);
}

std::string PalabrasCaso::Avisos(const VistaCaso& v) const {
  std::uint32_t avisos = v.caso.verificacion.avisos;
  for (const std::uint32_t a : {kAvisoRetraccion, kAvisoCapasInterior, kAvisoCapasExterior}) {
    if (DichoEnElDiseno(v.caso.avisos, a)) avisos &= ~a;
  }
  std::string texto;
  for (std::size_t i = 0; i < txt::AvisosVeredicto.size(); ++i) {
    if ((avisos & (1u << i)) == 0) continue;
    texto += (texto.empty() ? "" : "; ") + textos_.Texto(txt::AvisosVeredicto[i]);
  }
  return texto.empty() ? texto : textos_.Compone(txt::VeredictoAvisos, {texto});
}

std::string PalabrasCaso::Cara(int conBarras, int sinBarras, double n, double diametro,
                               int decimales) const {
  if (n <= 0.0) return textos_.Texto(sinBarras);
  return textos_.Compone(conBarras,
                         {Numero(n, 0), Numero(diametro, decimales), Numero(kMmPorMetro / n, 0)});
}

void PalabrasCaso::ConstruyeArmado(const VistaCaso& v, std::vector<LineaCaso>& lineas) const {
  const auto& r = v.Armado();
  const auto pon = [&lineas](std::string texto) { lineas.push_back({std::move(texto), false}); };
  if (r.ajuste) {
    const auto& a = *r.ajuste;
    lineas.push_back(
        {textos_.Compone(txt::AjustadoAMano,
                         {Numero(a.Camisa, 2), Numero(a.Espiras, 2), Numero(a.Exterior, 2)}),
         true});
    pon(textos_.Compone(txt::CalculadoAlLado,
                        {Numero(r.AreaCamisa + r.AreaEspiras, 2), Numero(r.AreaExterior, 2)}));
    return;
  }
  if (r.CAMISA > 0.0) pon(textos_.Compone(txt::ConstruyeCamisa, {Numero(r.CAMISA, 1)}));
  pon(Cara(txt::ConstruyeInterior, txt::SinInterior, r.NESPIN, r.FIIN, 0));
  pon(Cara(txt::ConstruyeExterior, txt::SinExterior, r.NEXPEX, r.FIEX, 0));
}

void PalabrasCaso::Construye(const VistaCaso& v, std::vector<LineaCaso>& lineas) const {
  if (v.Datos().EsArmado) {
    if (v.tramo.datos.envolvente) lineas.push_back({textos_.Texto(txt::DisenoEnvolvente), false});
    if (const auto rige = Rige(v); !rige.empty()) {
      lineas.push_back({textos_.Compone(txt::RigeHipotesis, {rige}), false});
    }
  }
  if (!OfreceArmadura(v)) return;
  if (v.Datos().EsArmado) return ConstruyeArmado(v, lineas);
  const auto& p = v.Postesado();
  lineas.push_back({Cara(txt::ConstruyeAlambre, 0, p.NESPDEFI, p.FIPRDEFI * 10.0, 1), false});
}

std::vector<LineaCaso> PalabrasCaso::Cierre(const VistaCaso& v, int ancho) const {
  const auto& r = v.caso.verificacion;
  std::vector<LineaCaso> enteras;
  Construye(v, enteras);
  const std::string uso = Uso(r);
  const auto& veredicto = Veredicto(r.veredicto);
  enteras.push_back({uso == "-" ? textos_.Compone(txt::VeredictoSolo, {veredicto})
                                : textos_.Compone(txt::VeredictoConUso, {veredicto, uso}),
                     true});
  const bool falla = r.veredicto == zorbin::Veredicto::NoCumple;
  if (auto motivo = Motivo(v); !motivo.empty()) enteras.push_back({std::move(motivo), falla});
  if (auto avisos = Avisos(v); !avisos.empty()) {
    enteras.push_back({std::move(avisos), false});
  }
  std::vector<LineaCaso> lineas;
  for (const auto& linea : enteras) Parte(linea, ancho, lineas);
  return lineas;
}

}  // namespace zorbin
