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

/// A text, that of a name perhaps, for a tooltip: it shows as it stands, though it looks like HTML.
QString Consejo(const QString& texto);

/// A name within the title of a window, in which the mark of unsaved changes is not taken for one.
inline QString EnTitulo(QString nombre) {
  const QString marca = QStringLiteral("[*]");
  return nombre.replace(marca, marca + marca);
}

}  // namespace zorbin
