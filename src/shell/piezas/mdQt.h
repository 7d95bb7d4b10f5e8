// Between the texts of the program and those of the toolkit.
#pragma once

#include <QString>
#include <string>
#include <string_view>

namespace zorbin {

inline QString Q(std::string_view texto) {
  return QString::fromUtf8(texto.data(), static_cast<qsizetype>(texto.size()));
}

inline std::string S(const QString& texto) {
  return texto.toStdString();
}

/// A caption as it stands on a button or a label that is not a mnemonic: blanks at the ends off.
inline QString Rotulo(std::string_view texto) {
  return Q(texto).trimmed();
}

}  // namespace zorbin
