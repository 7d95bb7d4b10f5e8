#include "persistencia/entrada/mdDatosLeidos.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <map>
#include <set>

#include "base/mdAnsi.h"
#include "base/mdNumeros.h"
#include "base/mdTextos.h"
#include "base/textos.h"
#include "persistencia/registros/mdRegistros.h"
#include "persistencia/zrb/mdZrb.h"

namespace zorbin {

namespace {

constexpr std::size_t kMaxAvisos = 200;
constexpr double kMayorNumeroTramo = 32767;

// Letters with an accent, from U+00C0 on, without it.
constexpr std::string_view kSinAcento =
    "aaaaaaaceeeeiiiidnooooo*ouuuuypsaaaaaaaceeeeiiiidnooooo/ouuuuypy";

std::string TextoNumero(double x) {
  std::string texto = TextoDecimal(x, 6, '.');
  texto.erase(texto.find_last_not_of('0') + 1);
  if (texto.back() == '.') texto.pop_back();
  return texto;
}

Mensaje PideNumero(double menor, double mayor) {
  return {txt::EntPideNumero, {TextoNumero(menor), TextoNumero(mayor)}};
}

std::string Codigos(const Ficha& ficha) {
  std::string lista;
  for (const auto c : ficha.codigos) lista += (lista.empty() ? "" : ", ") + std::to_string(c);
  return lista;
}

// Lines of a text are joined by CR LF, whatever a file has between them.
std::string ConRetornos(const std::string& texto) {
  std::string con;
  for (std::size_t i = 0; i < texto.size(); ++i) {
    if (texto[i] == '\n' && (i == 0 || texto[i - 1] != '\r')) con += '\r';
    con += texto[i];
  }
  return con;
}

std::optional<double> NumeroDe(const CeldaLeida& celda, const ModoLectura& modo) {
  if (celda.clase == ClaseCelda::Numero) return celda.numero;
  if (modo.conClases || celda.clase == ClaseCelda::Marca) return std::nullopt;
  return NumeroTecleado(celda.texto, modo.decimal).valor;
}

class LectorValor {
 public:
  LectorValor(const Ficha& ficha, const CeldaLeida& celda, const ModoLectura& modo, double factor,
              Mensaje& causa)
      : ficha_(ficha), celda_(celda), modo_(modo), factor_(factor), causa_(causa) {}

  std::optional<ValorDato> Lee(const double*) const {
    const auto numero = NumeroDe(celda_, modo_);
    const double valor = numero.value_or(-1.0) * factor_;
    if (!numero || !(valor >= 0.0) || valor > kMayorLeido) {
      return Rehusa(PideNumero(0, kMayorLeido));
    }
    return valor;
  }

  std::optional<ValorDato> Lee(const std::int16_t*) const {
    if (const auto numero = NumeroDe(celda_, modo_)) {
      for (const auto c : ficha_.codigos) {
        if (*numero == c) return c;
      }
    } else if (const auto codigo = DePalabra()) {
      return *codigo;
    }
    return Rehusa({txt::EntPideCodigo, {Codigos(ficha_)}});
  }

  std::optional<ValorDato> Lee(const bool*) const {
    if (celda_.clase == ClaseCelda::Marca) return celda_.numero != 0;
    const auto numero = NumeroDe(celda_, modo_);
    if (numero && (*numero == 0 || *numero == 1)) return *numero == 1;
    if (modo_.textos != nullptr && celda_.clase == ClaseCelda::Texto) {
      const std::string palabra = Llano(celda_.texto);
      for (int i = 0; i < kIdiomas; ++i) {
        if (palabra == Llano(modo_.textos->LoadRes(txt::Si + i * kPasoIdioma))) return true;
        if (palabra == Llano(modo_.textos->LoadRes(txt::No + i * kPasoIdioma))) return false;
      }
    }
    return Rehusa({txt::EntPideMarca, {}});
  }

  std::optional<ValorDato> Lee(const std::string*) const {
    if (celda_.clase == ClaseCelda::Marca || celda_.clase == ClaseCelda::Error) {
      return Rehusa({txt::EntPideTexto, {}});
    }
    if (modo_.conClases && celda_.clase != ClaseCelda::Texto) {
      return Rehusa({txt::EntPideTexto, {}});
    }
    const std::string texto =
        celda_.clase == ClaseCelda::Numero ? TextoNumero(celda_.numero) : ConRetornos(celda_.texto);
    if (ficha_.nombre == "SisUnid") {
      if (texto == "SI" || texto == "MKS") return texto;
      return Rehusa({txt::EntPideCodigo, {"SI, MKS"}});
    }
    const auto ansi = AAnsi(texto);
    if (!ansi.sobra.empty() || ansi.bytes.size() > kMaxTexto) {
      return Rehusa({txt::EntTextoLargo, {std::to_string(kMaxTexto)}});
    }
    return texto;
  }

 private:
  const Ficha& ficha_;
  const CeldaLeida& celda_;
  const ModoLectura& modo_;
  double factor_;
  Mensaje& causa_;

  std::optional<ValorDato> Rehusa(Mensaje causa) const {
    causa_ = std::move(causa);
    if (celda_.clase == ClaseCelda::Error && !modo_.conClases) causa_ = {txt::EntErrorDeCelda, {}};
    return std::nullopt;
  }

  std::optional<std::int16_t> DePalabra() const {
    if (modo_.textos == nullptr || celda_.clase != ClaseCelda::Texto) return std::nullopt;
    const std::string palabra = Llano(celda_.texto);
    for (const auto c : ficha_.codigos) {
      for (int i = 0; i < kIdiomas; ++i) {
        const std::string suya = PalabraDeCodigo(ficha_, c, *modo_.textos, i);
        if (!suya.empty() && Llano(suya) == palabra) return c;
      }
    }
    return std::nullopt;
  }
};

}  // namespace

std::string Llano(std::string_view texto) {
  constexpr char32_t kPrimera = 0xC0;
  std::string llano;
  int hondo = 0;
  while (!texto.empty()) {
    const auto c = PrimerCaracter(texto);
    const auto bytes = texto.substr(0, c.bytes);
    texto.remove_prefix(c.bytes);
    if (c.codigo == '(') ++hondo;
    if (c.codigo == ')' && hondo > 0) {
      --hondo;
      continue;
    }
    if (hondo > 0 || c.codigo == '&') continue;
    if (c.codigo >= 'A' && c.codigo <= 'Z') {
      llano += static_cast<char>(c.codigo - 'A' + 'a');
    } else if (c.codigo >= kPrimera && c.codigo - kPrimera < kSinAcento.size()) {
      llano += kSinAcento[c.codigo - kPrimera];
    } else if (c.codigo <= ' ' || c.codigo == 0xA0) {
      if (!llano.empty() && llano.back() != ' ') llano += ' ';
    } else {
      llano += bytes;
    }
  }
  while (!llano.empty() && std::string_view(" :.").find(llano.back()) != std::string_view::npos) {
    llano.pop_back();
  }
  return llano;
}

const DatoLeido<Tramo>* TramoLeido::Busca(std::string_view nombre) const {
  const auto i = std::ranges::find_if(
      datos, [nombre](const auto& d) { return d.dato->ficha.nombre == nombre; });
  return i == datos.end() ? nullptr : &*i;
}

void Entrada::Avisa(Mensaje aviso) {
  if (avisos.size() < kMaxAvisos) avisos.push_back(std::move(aviso));
}

void Entrada::Revisa() {
  if (tramos.size() > static_cast<std::size_t>(kMaxTramos)) {
    throw ErrorEntrada({txt::EntTramosDeMas, {std::to_string(kMaxTramos)}});
  }
  if (tramos.empty() && obra.empty() && rechazos.empty()) {
    throw ErrorEntrada({txt::EntSinDatos, {}});
  }
  std::set<std::string> vistos;
  for (std::size_t i = 0; i < tramos.size(); ++i) {
    const auto& t = tramos[i];
    if (t.numero.empty() || vistos.insert(t.numero).second) continue;
    rechazos.push_back(
        {static_cast<int>(i), t.celda, "NumeroTramo", t.numero, {txt::EntNumeroRepetido, {}}});
  }
}

template <class Bloque>
std::optional<ValorDato> LeeValor(const Dato<Bloque>& dato, const CeldaLeida& celda,
                                  const ModoLectura& modo, double factor, Mensaje& causa) {
  const LectorValor lector(dato.ficha, celda, modo, factor, causa);
  return std::visit(
      [&]<class T>(T Bloque::*) { return lector.Lee(static_cast<const T*>(nullptr)); },
      dato.miembro);
}
template std::optional<ValorDato> LeeValor(const Dato<Obra>&, const CeldaLeida&, const ModoLectura&,
                                           double, Mensaje&);
template std::optional<ValorDato> LeeValor(const Dato<Tramo>&, const CeldaLeida&,
                                           const ModoLectura&, double, Mensaje&);

std::string LeeNumeroTramo(const CeldaLeida& celda, const ModoLectura& modo, Mensaje& causa) {
  const auto numero = NumeroDe(celda, modo);
  if (numero && *numero >= 1 && *numero <= kMayorNumeroTramo && *numero == std::floor(*numero)) {
    return TextoEntero(static_cast<int>(*numero));
  }
  causa = PideNumero(1, kMayorNumeroTramo);
  return {};
}

template <class Bloque>
void Aplica(Bloque& bloque, const DatoLeido<Bloque>& leido, bool si) {
  std::visit(
      [&]<class T>(T Bloque::*miembro) {
        const T valor = std::get<T>(leido.valor);
        if constexpr (std::is_same_v<T, double>) {
          const auto& ficha = leido.dato->ficha;
          if (ficha.Escala() && leido.enSI && *leido.enSI != si) {
            const auto par = Pareja(valor, *leido.enSI, ficha.magnitud);
            bloque.*miembro = si ? par.si : par.mks;
            return;
          }
        }
        bloque.*miembro = valor;
      },
      leido.dato->miembro);
}
template void Aplica(Obra&, const DatoLeido<Obra>&, bool);
template void Aplica(Tramo&, const DatoLeido<Tramo>&, bool);

std::optional<bool> SistemaDe(const Entrada& entrada) {
  for (const auto& d : entrada.obra) {
    if (d.dato->ficha.nombre == "SisUnid") return std::get<std::string>(d.valor) == "SI";
  }
  return std::nullopt;
}

// The entries of a list belong to the last codes of its datum.
std::string PalabraDeCodigo(const Ficha& ficha, std::int16_t codigo, const Catalogo& textos,
                            int idioma) {
  const int delante = static_cast<int>(ficha.codigos.size()) - ficha.campo.entradas;
  const auto i = std::ranges::find(ficha.codigos, codigo);
  const int lugar = static_cast<int>(i - ficha.codigos.begin()) - delante;
  if (ficha.campo.entradas == 0 || delante < 0 || delante > 1 || lugar < 0 ||
      i == ficha.codigos.end()) {
    return {};
  }
  return textos.LoadRes(ficha.campo.entrada + lugar + idioma * kPasoIdioma);
}

}  // namespace zorbin
