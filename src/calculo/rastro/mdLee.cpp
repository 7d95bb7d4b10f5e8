#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <stdexcept>
#include <string>

#include "calculo/rastro/mdExpresion.h"

namespace zorbin {

namespace {

struct Funcion {
  std::string_view nombre;
  Op op;
};

constexpr std::array<Funcion, 7> kFunciones{{{"sqrt", Op::Raiz},
                                             {"abs", Op::Abs},
                                             {"min", Op::Min},
                                             {"max", Op::Max},
                                             {"exp", Op::Exp},
                                             {"tang", Op::Tan},
                                             {"ent", Op::Ent}}};

struct Signo {
  std::string_view texto;
  Relacion relacion;
};

// The longer ones first.
constexpr std::array<Signo, 5> kRelaciones{{{"<=", Relacion::MenorIgual},
                                            {">=", Relacion::MayorIgual},
                                            {"<", Relacion::Menor},
                                            {">", Relacion::Mayor},
                                            {"=", Relacion::Igual}}};

bool EsLetra(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_';
}
bool EsCifra(char c) {
  return (c >= '0' && c <= '9') || c == '.';
}

Arbol Dos(Op op, Arbol a, Arbol b) {
  Arbol x;
  x.op = op;
  x.hijos.push_back(std::move(a));
  x.hijos.push_back(std::move(b));
  return x;
}

Arbol Uno(Op op, Arbol a) {
  Arbol x;
  x.op = op;
  x.hijos.push_back(std::move(a));
  return x;
}

class Lector {
 public:
  explicit Lector(std::string_view texto) : t_(texto) {}

  Expresion Lee() {
    LeeResultado();
    if (e_.resultado.empty()) {
      e_.izquierda = Suma();
      e_.relacion = LeeRelacion();
    }
    e_.derecha = Suma();
    if (Mira() != '\0') Falla();
    return std::move(e_);
  }

 private:
  std::string_view t_;
  std::size_t i_ = 0;
  Expresion e_;

  [[noreturn]] void Falla() const {
    throw std::invalid_argument(std::string(t_) + ": " + std::to_string(i_));
  }

  char Mira() {
    while (i_ < t_.size() && t_[i_] == ' ') ++i_;
    return i_ < t_.size() ? t_[i_] : '\0';
  }

  bool Toma(char c) {
    if (Mira() != c) return false;
    ++i_;
    return true;
  }

  void Exige(char c) {
    if (!Toma(c)) Falla();
  }

  std::string_view Nombre() {
    const std::size_t desde = i_;
    while (i_ < t_.size() && (EsLetra(t_[i_]) || (t_[i_] >= '0' && t_[i_] <= '9'))) ++i_;
    return t_.substr(desde, i_ - desde);
  }

  void LeeResultado() {
    if (!EsLetra(Mira())) return;
    const std::string_view nombre = Nombre();
    if (Mira() == '=') {
      ++i_;
      e_.resultado = nombre;
    } else {
      i_ = 0;
    }
  }

  Relacion LeeRelacion() {
    Mira();
    for (const auto& s : kRelaciones) {
      if (t_.substr(i_).starts_with(s.texto)) {
        i_ += s.texto.size();
        return s.relacion;
      }
    }
    Falla();
  }

  Arbol Suma() {
    Arbol a = Toma('-') ? Uno(Op::Opuesto, Termino()) : Termino();
    for (;;) {
      if (Toma('+')) {
        a = Dos(Op::Suma, std::move(a), Termino());
      } else if (Toma('-')) {
        a = Dos(Op::Resta, std::move(a), Termino());
      } else {
        return a;
      }
    }
  }

  Arbol Termino() {
    Arbol a = Potencia();
    for (;;) {
      if (Toma('*')) {
        a = Dos(Op::Producto, std::move(a), Potencia());
      } else if (Toma('/')) {
        a = Dos(Op::Cociente, std::move(a), Potencia());
      } else {
        return a;
      }
    }
  }

  Arbol Potencia() {
    Arbol a = Atomo();
    if (!Toma('^')) return a;
    const bool menos = Toma('-');
    Arbol exponente = Atomo();
    if (menos) exponente = Uno(Op::Opuesto, std::move(exponente));
    return Dos(Op::Potencia, std::move(a), std::move(exponente));
  }

  Arbol Atomo() {
    const char c = Mira();
    if (EsCifra(c)) return Numero();
    if (EsLetra(c)) return Palabra();
    Exige('(');
    Arbol a = Suma();
    Exige(')');
    return a;
  }

  Arbol Numero() {
    Arbol a;
    const char* desde = t_.data() + i_;
    const auto r = std::from_chars(desde, t_.data() + t_.size(), a.numero);
    if (r.ec != std::errc()) Falla();
    i_ += static_cast<std::size_t>(r.ptr - desde);
    if (std::find(desde, r.ptr, 'e') != r.ptr) a.op = Op::FactorUnidades;
    return a;
  }

  Arbol Palabra() {
    const std::string_view nombre = Nombre();
    Arbol a;
    if (nombre == "pi") {
      a.op = Op::Pi;
      return a;
    }
    for (const auto& f : kFunciones) {
      if (f.nombre == nombre) return DeFuncion(f.op);
    }
    a.op = Op::Simbolo;
    const auto lugar = std::find(e_.simbolos.begin(), e_.simbolos.end(), nombre);
    a.simbolo = static_cast<int>(lugar - e_.simbolos.begin());
    if (lugar == e_.simbolos.end()) e_.simbolos.push_back(nombre);
    return a;
  }

  Arbol DeFuncion(Op op) {
    Exige('(');
    Arbol a;
    a.op = op;
    do {
      a.hijos.push_back(Suma());
    } while (Toma(','));
    Exige(')');
    if (op != Op::Min && op != Op::Max && a.hijos.size() != 1) Falla();
    return a;
  }
};

}  // namespace

Expresion LeeExpresion(std::string_view texto) {
  return Lector(texto).Lee();
}

}  // namespace zorbin
