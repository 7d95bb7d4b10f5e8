#include "shell/piezas/mdCasillaNumero.h"

#include <QGuiApplication>
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
      : QValidator(&casilla), casilla_(casilla), separador_(separador), soloCifras_(soloCifras) {
    connect(&casilla, &QLineEdit::textChanged, this,
            [this](const QString& texto) { largo_ = texto.size(); });
  }

  State validate(QString& texto, int& lugar) const override {
    const auto tras = texto.size() - lugar;
    texto = texto.trimmed();
    lugar = static_cast<int>(std::max<qsizetype>(0, texto.size() - tras));
    lugar = std::min(lugar, static_cast<int>(texto.size()));
    if (!Vale(texto)) return Rechaza(texto, lugar);
    for (QChar& c : texto) {
      if (EsSeparador(c)) c = QLatin1Char(separador_);
    }
    return Acceptable;
  }

 private:
  CasillaNumero& casilla_;
  char separador_;
  bool soloCifras_;
  qsizetype largo_ = 0;  // of the text before the change: the field shows the new one already

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
  State Rechaza(const QString& texto, int lugar) const {
    const QString sinTecla = lugar > 0 ? QString(texto).remove(lugar - 1, 1) : texto;
    if (texto.size() > largo_ + 1 || !Vale(sinTecla)) {
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

void CasillaNumero::Selecciona() {
  selectAll();
  if (QGuiApplication::mouseButtons() == Qt::NoButton) return;
  QTimer::singleShot(0, this, [this] {
    if (hasFocus()) selectAll();
  });
}

}  // namespace zorbin
