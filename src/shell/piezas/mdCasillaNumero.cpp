#include "shell/piezas/mdCasillaNumero.h"

#include <QTimer>
#include <QValidator>

namespace zorbin {

namespace {

constexpr int kAnchoMaximo = 20;  // characters; the largest number of a field has far fewer

bool EsSeparador(QChar c) {
  return c == '.' || c == ',';
}

bool EsCifra(QChar c) {
  return c >= '0' && c <= '9';
}

}  // namespace

class CasillaNumero::Filtro : public QValidator {
 public:
  Filtro(CasillaNumero& casilla, char separador, bool soloCifras)
      : QValidator(&casilla), casilla_(casilla), separador_(separador), soloCifras_(soloCifras) {}

  State validate(QString& texto, int& lugar) const override {
    const auto tras = texto.size() - lugar;
    texto = texto.trimmed();
    lugar = static_cast<int>(std::max<qsizetype>(0, texto.size() - tras));
    lugar = std::min(lugar, static_cast<int>(texto.size()));
    if (!Vale(texto)) return Rechaza(texto);
    for (QChar& c : texto) {
      if (EsSeparador(c)) c = QLatin1Char(separador_);
    }
    return Acceptable;
  }

 private:
  CasillaNumero& casilla_;
  char separador_;
  bool soloCifras_;

  bool Vale(const QString& texto) const {
    int separadores = 0;
    for (const QChar c : texto) {
      if (EsSeparador(c)) {
        ++separadores;
      } else if (soloCifras_ && !EsCifra(c)) {
        return false;
      } else if (c.isSpace()) {
        return false;
      }
    }
    return separadores <= 1;
  }

  // A single key that does not pass is dropped in silence.
  State Rechaza(const QString& texto) const {
    if (texto.size() > casilla_.text().size() - casilla_.selectedText().size() + 1) {
      auto* casilla = &casilla_;
      QTimer::singleShot(0, casilla, [casilla, texto] { emit casilla->pegadoRechazado(texto); });
    }
    return Invalid;
  }
};

CasillaNumero::CasillaNumero(char separador, bool soloCifras, QWidget* padre) : QLineEdit(padre) {
  setMaxLength(kAnchoMaximo);
  setAlignment(Qt::AlignRight);
  setInputMethodHints(Qt::ImhFormattedNumbersOnly);
  setValidator(new Filtro(*this, separador, soloCifras));
}

}  // namespace zorbin
