// A catalogue of texts: a file of its first language, and after a form feed one of the second.
#include "fuzz/comun.h"

namespace zorbin::hostil {

namespace {

constexpr std::size_t kMaxMensajeCatalogo = 2000;  // bytes

// Every entry of an accepted file can be asked for by its number, as it stands in the file.
void ExigeEntradas(const Catalogo& c, std::string_view json, int offset) {
  for (const auto& [clave, texto] : TextosDeJson(json)) {
    const int n = std::stoi(clave);
    Exige(std::to_string(n) == clave && c.LoadRes(n + offset) == texto,
          "an entry is found by its number", clave);
  }
}

void Usa(const Catalogo& c) {
  for (int n = 1; n <= 3; ++n) {
    const auto& plantilla = c.Texto(n);
    const auto texto = c.Compone(n, {"uno", "{1}"});
    Exige(texto.size() <= 2 * plantilla.size() + 6, "the data are put in once", texto);
  }
  static_cast<void>(c.CuentaIdiomas());
}

void PruebaCatalogo(std::string_view datos) {
  const auto corte = std::min(datos.find('\f'), datos.size());
  const auto es = datos.substr(0, corte);
  const auto en = datos.substr(std::min(corte + 1, datos.size()));
  VaciaCarpeta();
  Pon(Carpeta() / "es.json", es);
  if (corte < datos.size()) Pon(Carpeta() / "en.json", en);
  auto c = Catalogo::Lee(Carpeta());
  ExigeEntradas(c, es, 0);
  Usa(c);
  if (c.PonIdioma(2) == 2) ExigeEntradas(c, en, kPasoIdioma);
  Usa(c);
  Exige(c.PonIdioma(3) == 1, "a language without file is Spanish");
}

}  // namespace

void Prueba(std::string_view datos) {
  try {
    PruebaCatalogo(datos);
  } catch (const ErrorCatalogo& error) {
    const std::string_view texto = error.what();
    Exige(texto.size() <= kMaxMensajeCatalogo && EsTextoLimpio(texto), "a refusal can be read",
          texto);
    Exige(texto.starts_with(Carpeta().string()), "it names the file", texto);
  }
}

}  // namespace zorbin::hostil
