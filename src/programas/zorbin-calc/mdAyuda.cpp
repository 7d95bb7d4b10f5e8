#include "programas/zorbin-calc/mdAyuda.h"

#include <algorithm>
#include <charconv>

#include "base/textos.h"

namespace zorbin {

namespace {

// CLI11 tells the names inside an English sentence; they stand before the first colon or blank.
std::string PrimeraPalabra(const std::string& frase) {
  return frase.substr(0, frase.find_first_of(" :"));
}

std::string TrasDosPuntos(const std::string& frase) {
  const auto corte = frase.find(": ");
  return corte == std::string::npos ? frase : frase.substr(corte + 2);
}

}  // namespace

void PonRotulosDeAyuda(CLI::App& app, const Catalogo& textos) {
  const auto formato = app.get_formatter();
  const auto rotulo = [&](const char* original, int n) {
    formato->label(original, textos.Texto(n));
  };
  rotulo("Usage", txt::Uso);
  rotulo("OPTIONS", txt::Opciones);
  rotulo("Options", txt::Opciones);
  rotulo("Positionals", txt::Datos);
  rotulo("POSITIONALS", txt::Datos);
  rotulo("Subcommands", txt::Ordenes);
  rotulo("SUBCOMMANDS", txt::Ordenes);
  rotulo("SUBCOMMAND", txt::Orden);
  rotulo("REQUIRED", txt::Obligatorio);
  formato->column_width(34);
}

std::string TextoPalabrasMalas(const CLI::ParseError& error, const Catalogo& textos) {
  const std::string frase = error.what();
  if (dynamic_cast<const CLI::RequiredError*>(&error) != nullptr) {
    return textos.Compone(
        txt::FaltaPalabra,
        {PrimeraPalabra(frase) == "A" ? textos.Texto(txt::Orden) : PrimeraPalabra(frase)});
  }
  if (dynamic_cast<const CLI::ExtrasError*>(&error) != nullptr) {
    return textos.Compone(txt::PalabraInesperada, {TrasDosPuntos(frase)});
  }
  if (dynamic_cast<const CLI::ArgumentMismatch*>(&error) != nullptr) {
    return textos.Compone(txt::NecesitaValor, {PrimeraPalabra(frase)});
  }
  if (dynamic_cast<const CLI::ConversionError*>(&error) != nullptr) {
    const auto igual = frase.find(" = ");
    const std::string opcion = igual == std::string::npos
                                   ? frase
                                   : frase.substr(frase.rfind(' ', igual - 1) + 1,
                                                  igual - frase.rfind(' ', igual - 1) - 1);
    const std::string valor = igual == std::string::npos ? "" : frase.substr(igual + 3);
    return textos.Compone(txt::ValorNoSirve, {opcion, valor});
  }
  return TrasDosPuntos(frase);  // a validator of ours
}

CLI::Validator UnoDe(std::vector<std::string> valores, const Catalogo& textos, std::string opcion) {
  return {[valores = std::move(valores), &textos, opcion = std::move(opcion)](std::string& dado) {
            if (std::find(valores.begin(), valores.end(), dado) != valores.end()) {
              return std::string{};
            }
            return textos.Compone(txt::ValorNoSirve, {opcion, dado});
          },
          ""};
}

CLI::Validator EnteroEntre(int minimo, int maximo, const Catalogo& textos, std::string opcion) {
  return {[=, &textos, opcion = std::move(opcion)](std::string& dado) {
            int n = 0;
            const auto* fin = dado.data() + dado.size();
            const auto leido = std::from_chars(dado.data(), fin, n);
            if (leido.ec == std::errc{} && leido.ptr == fin && n >= minimo && n <= maximo) {
              return std::string{};
            }
            return textos.Compone(txt::EnteroNoSirve,
                                  {opcion, dado, std::to_string(minimo), std::to_string(maximo)});
          },
          ""};
}

}  // namespace zorbin
