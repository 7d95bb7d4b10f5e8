#include "persistencia/documentos/mdRtf.h"

#include <algorithm>
#include <system_error>
#include <utility>

#include "base/mdAnsi.h"
#include "base/mdContenido.h"
#include "base/textos.h"
#include "persistencia/documentos/mdRtfFichas.h"
#include "persistencia/documentos/mdRtfPalabras.h"

namespace zorbin {

namespace {

namespace fs = std::filesystem;

using Clase = FichaRtf::Clase;

constexpr std::string_view kPrincipio = "{\\rtf";
constexpr char32_t kRedondoDeSimbolos = 0xF0B7;  // its private number in the symbol fonts

bool EsAlto(char32_t c) {
  return c >= 0xD800 && c < 0xDC00;
}

bool EsBajo(char32_t c) {
  return c >= 0xDC00 && c < 0xE000;
}

bool EsControl(char32_t c) {
  return (c < 0x20 && c != U'\n' && c != U'\t') || (c >= 0x7F && c < 0xA0);
}

class LectorRtf {
 public:
  DocumentoRtf Lee(std::string_view bytes) {
    FichasRtf fichas(bytes);
    do {
      const FichaRtf ficha = fichas.Siguiente();
      if (ficha.clase == Clase::Fin || Lleno()) {
        documento_.entero = false;
        break;
      }
      Toma(ficha);
    } while (!pila_.empty());
    AcabaDocumento();
    return std::move(documento_);
  }

 private:
  bool Lleno() const {
    return documento_.parrafos.size() >= kMaxParrafosRtf || trozos_ >= kMaxTrozosRtf;
  }

  void Toma(const FichaRtf& ficha) {
    switch (ficha.clase) {
      case Clase::Abre:
        return Abre();
      case Clase::Cierra:
        return Cierra();
      case Clase::Palabra:
        if (!Pasa()) Palabra(ficha);
        return;
      case Clase::Simbolo:
        if (!Pasa()) Simbolo(ficha.byte);
        return;
      case Clase::Byte:
        if (!Pasa()) Byte(ficha.byte);
        return;
      case Clase::Nada:
      case Clase::Fin:
        return;
    }
  }

  void Abre() {
    porPasar_ = 0;
    if (pila_.size() < kMaxGruposRtf) {
      pila_.push_back(actual_);
    } else {
      ++hondos_;
    }
  }

  void Cierra() {
    porPasar_ = 0;
    if (hondos_ > 0) {
      --hondos_;
      return;
    }
    if (pila_.empty()) return;
    if (pila_.size() == 1) AcabaDocumento();  // while its last paragraph is in force
    actual_ = pila_.back();
    pila_.pop_back();
  }

  // Whether the token is one of those that stand for a \u, or lies where there is no text.
  bool Pasa() {
    if (hondos_ > 0 || actual_.salta) return true;
    if (porPasar_ == 0) return false;
    --porPasar_;
    return true;
  }

  void Palabra(const FichaRtf& ficha) {
    if (Ordena(actual_, ficha.palabra, ficha.numero)) return;
    if (const auto caracter = CaracterDePalabra(ficha.palabra)) return Anade(*caracter);
    if (ficha.palabra == "u") return Unicode(ficha.numero.value_or(0));
    if (EsFinDeParrafo(ficha.palabra) && !actual_.oculto) AcabaParrafo();
  }

  void Simbolo(unsigned char signo) {
    switch (signo) {
      case '*':
        actual_.salta = true;
        return;
      case '~':
        return Anade(0xA0);
      case '-':
        return Anade(0xAD);
      case '_':
        return Anade(0x2011);
      case '\t':
      case '\\':
      case '{':
      case '}':
        return Anade(signo);
      default:
        return;
    }
  }

  // The middle dot of the symbol fonts is the round mark of a list.
  void Byte(unsigned char byte) {
    const auto c = CaracterAnsi(byte);
    Anade(actual_.marca && byte == 0xB7 ? kRedondoRtf : c.value_or(0xFFFD));
  }

  void Unicode(int valor) {
    const auto c = static_cast<char32_t>(valor < 0 ? valor + 0x10000 : valor);
    porPasar_ = actual_.reserva;
    if (EsBajo(c) && alto_ != 0) {
      const char32_t alto = std::exchange(alto_, U'\0');
      Anade(0x10000 + ((alto - 0xD800) << 10) + (c - 0xDC00));
    } else {
      SueltaAlto();
      if (EsAlto(c)) {
        alto_ = c;
      } else {
        Anade(c == kRedondoDeSimbolos ? kRedondoRtf : c);
      }
    }
  }

  // A first half that no second one follows.
  void SueltaAlto() {
    if (std::exchange(alto_, U'\0') != 0) Anade(0xFFFD);
  }

  void Anade(char32_t c) {
    SueltaAlto();
    if (!actual_.oculto && !EsControl(c)) AnadeUtf8(Trozo(), c);
  }

  // The text of the run to which the next character belongs.
  std::string& Trozo() {
    if (parrafo_.trozos.empty() || parrafo_.trozos.back().letra != actual_.letra) {
      parrafo_.trozos.push_back({actual_.letra, {}});
      ++trozos_;
    }
    return parrafo_.trozos.back().texto;
  }

  void AcabaParrafo() {
    SueltaAlto();
    parrafo_.caja = actual_.caja;
    parrafo_.caja.primeraLinea = std::max(parrafo_.caja.primeraLinea, -parrafo_.caja.sangria);
    parrafo_.letra = actual_.letra;
    documento_.parrafos.push_back(std::exchange(parrafo_, {}));
  }

  // A last paragraph without its mark counts when it has text.
  void AcabaDocumento() {
    SueltaAlto();
    if (!parrafo_.trozos.empty()) AcabaParrafo();
  }

  DocumentoRtf documento_;
  ParrafoRtf parrafo_;
  GrupoRtf actual_;
  std::vector<GrupoRtf> pila_;
  std::size_t hondos_ = 0;  // groups open beyond the limit
  std::size_t trozos_ = 0;
  int porPasar_ = 0;   // tokens still to pass over after a \u
  char32_t alto_ = 0;  // first half of a pair of \u
};

ErrorRtf NoSeAbre(const fs::path& ruta, int causa) {
  return ErrorRtf({txt::NoSeAbre, {ruta.string(), std::generic_category().message(causa)}});
}

}  // namespace

DocumentoRtf InterpretaRtf(std::string_view bytes, const std::string& nombre) {
  if (bytes.size() > kMaxBytesRtf) {
    throw ErrorRtf({txt::RtfDemasiado, {nombre, std::to_string(kMaxBytesRtf / 1024 / 1024)}});
  }
  if (!bytes.starts_with(kPrincipio)) throw ErrorRtf({txt::NoEsRtf, {nombre}});
  return LectorRtf().Lee(bytes);
}

DocumentoRtf LeeRtf(const fs::path& ruta) {
  std::string bytes;
  if (const int causa = LeeContenido(ruta, kMaxBytesRtf, bytes)) throw NoSeAbre(ruta, causa);
  return InterpretaRtf(bytes, ruta.string());
}

}  // namespace zorbin
