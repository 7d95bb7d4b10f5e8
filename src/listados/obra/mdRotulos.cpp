#include "listados/obra/mdRotulos.h"

#include <span>

#include "base/mdNumeros.h"
#include "base/mdTextos.h"
#include "base/textos.h"

namespace zorbin {

namespace {

struct CodigoTexto {
  std::int16_t codigo;
  int texto;
};

// Those that are designed as they are called: 2222 is worked out as an embedded cylinder.
constexpr std::array<CodigoTexto, 3> kCamisas{
    {{1210, txt::ConCamisa}, {2211, txt::CamisaEmbebida}, {2221, txt::CamisaRevestida}}};

constexpr std::array<CodigoTexto, 4> kCamisasTabular{
    {{2211, txt::Embebida}, {2212, txt::Embebida}, {2221, txt::Revestida}, {2222, txt::Revestida}}};

constexpr std::array<CodigoTexto, 6> kColocaciones{{{11, txt::ZanjaSinCompactar},
                                                    {12, txt::ZanjaCompactada},
                                                    {21, txt::ZanjaTerraplenadaSinCompactar},
                                                    {22, txt::ZanjaTerraplenadaCompactada},
                                                    {30, txt::Terraplen},
                                                    {31, txt::Terraplen}}};

std::string PorCodigo(std::span<const CodigoTexto> tabla, std::int16_t codigo,
                      const Catalogo& textos) {
  for (const auto& fila : tabla) {
    if (fila.codigo == codigo) return textos.Texto(fila.texto);
  }
  return {};
}

std::string PorLugar(std::span<const int> tabla, int lugar, const Catalogo& textos) {
  if (lugar < 0 || lugar >= static_cast<int>(tabla.size())) return {};
  return textos.Texto(tabla[static_cast<std::size_t>(lugar)]);
}

}  // namespace

std::string TextoDeCamisa(std::int16_t Tipologia, const Catalogo& textos) {
  return PorCodigo(kCamisas, Tipologia, textos);
}

std::string TextoDeCamisaTabular(std::int16_t Tipologia, const Catalogo& textos) {
  return PorCodigo(kCamisasTabular, Tipologia, textos);
}

std::string TextoDeCuna(std::int16_t TipoCuna, const Catalogo& textos) {
  return PorLugar(txt::Cunas, TipoCuna - 1, textos);
}

std::string TextoDeColocacion(std::int16_t TipoApoyo, const Catalogo& textos) {
  return PorCodigo(kColocaciones, TipoApoyo, textos);
}

std::string TextoDeCarga(std::int16_t ICar, const Catalogo& textos) {
  return PorLugar(txt::Cargas, ICar, textos);
}

std::string UnidadesDelAnillo(bool si, int ancho) {
  std::string linea;
  for (int s = 1; s <= kSecciones; ++s) {
    linea +=
        ALaDerecha(si ? "(m.kN/m)" : "(m.t/m)", ancho) + ALaDerecha(si ? "(kN/m)" : "(t/m)", ancho);
  }
  return linea;
}

std::string TextoPP(const ResultadoPostesado& r, double PP, const Catalogo& textos,
                    const EstiloNumeros& estilo) {
  if (PP == kPPAlambreCambia) return textos.Texto(txt::PPAlambreCambia);
  // Without a pass that got to its stresses nothing was compared, and so nothing limits it.
  if (r.PPHipotesis == 0) return textos.Texto(txt::PPSinComprobar);
  if (PP == kPPSinLimite) return textos.Texto(txt::PPSinLimite);
  return std::string(Recorta(estilo.FormatoNumero(PP, 0, 2, "at->MPa", true)));
}

std::string TextoPruebaFabrica(const ResultadoPostesado& r, double exigida, const Catalogo& textos,
                               const EstiloNumeros& estilo) {
  const std::string pedida(Recorta(estilo.FormatoNumero(exigida, 0, 2, "at->MPa", true)));
  return textos.Compone(txt::PPExigidaYObtenida, {pedida, TextoPP(r, r.PP, textos, estilo)});
}

std::string TextoPasadaPP(const ResultadoPostesado& r, const Catalogo& textos) {
  if (r.PPHipotesis == 0 || r.PPConAlambreFinal) return {};
  return textos.Compone(txt::PPOtraPasada, {TextoEntero(r.PPHipotesis)});
}

std::string TextoDeHipotesis(int h, const Catalogo& textos) {
  return PorLugar(txt::HipotesisResumen, h - 1, textos);
}

}  // namespace zorbin
