// Keys and values in an INI file, which is never left cut short: a disk that fills while the
// toolkit's own settings are written may leave the first part of them under the name.
#pragma once

#include <QMap>
#include <QString>
#include <QVariant>

namespace zorbin {

class FicheroIni {
 public:
  /// Reads the file, where there is one.
  explicit FicheroIni(QString ruta);

  const QString& ruta() const { return ruta_; }
  QVariant Valor(const QString& clave, const QVariant& defecto = {}) const;
  void Pon(const QString& clave, const QVariant& valor);
  void Quita(const QString& clave) { Pon(clave, {}); }

  /// Brings to the disk what was put, beside what another program put meanwhile. @return whether it
  /// is there; where it is not the file stays as it was, and what was put is kept for another time
  bool Guarda();
  /// Forgets what was put and is not on the disk.
  void Deshaz();

 private:
  using Claves = QMap<QString, QVariant>;

  QString ruta_;
  Claves valores_;
  Claves pendientes_;  // without a value: taken away

  static Claves Lee(const QString& ruta);
  Claves Juntas() const;
};

}  // namespace zorbin
