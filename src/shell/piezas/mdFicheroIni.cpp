#include "shell/piezas/mdFicheroIni.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSettings>
#include <QTemporaryDir>

#include "persistencia/disco/mdFicheroSalida.h"

namespace zorbin {

FicheroIni::FicheroIni(QString ruta) : ruta_(std::move(ruta)), valores_(Lee(ruta_)) {}

FicheroIni::Claves FicheroIni::Lee(const QString& ruta) {
  const QSettings fichero(ruta, QSettings::IniFormat);
  Claves claves;
  for (const auto& clave : fichero.allKeys()) claves[clave] = fichero.value(clave);
  return claves;
}

QVariant FicheroIni::Valor(const QString& clave, const QVariant& defecto) const {
  const auto& de = pendientes_.contains(clave) ? pendientes_ : valores_;
  const auto valor = de.value(clave);
  return valor.isValid() ? valor : defecto;
}

void FicheroIni::Pon(const QString& clave, const QVariant& valor) {
  if (Valor(clave) != valor) pendientes_[clave] = valor;
}

void FicheroIni::Deshaz() {
  pendientes_.clear();
}

FicheroIni::Claves FicheroIni::Juntas() const {
  Claves juntas = Lee(ruta_);
  for (auto p = pendientes_.begin(); p != pendientes_.end(); ++p) {
    if (p.value().isValid()) {
      juntas[p.key()] = p.value();
    } else {
      juntas.remove(p.key());
    }
  }
  return juntas;
}

namespace {

// The bytes of an INI file; none where the toolkit could not write all of it.
QByteArray Bytes(const QMap<QString, QVariant>& claves, const QString& carpeta) {
  const QTemporaryDir aparte(carpeta + QStringLiteral("/.zorbin-XXXXXX"));
  if (!aparte.isValid()) return {};
  const QString escrito = aparte.filePath(QStringLiteral("escrito.ini"));
  const QString leido = aparte.filePath(QStringLiteral("leido.ini"));
  {
    QSettings fichero(escrito, QSettings::IniFormat);
    for (auto c = claves.begin(); c != claves.end(); ++c) fichero.setValue(c.key(), c.value());
    fichero.sync();
  }
  // By another name the toolkit reads what is on the disk, not what it remembers.
  if (!QFile::rename(escrito, leido)) return {};
  QFile fichero(leido);
  const QByteArray bytes = fichero.open(QIODevice::ReadOnly) ? fichero.readAll() : QByteArray();
  const auto enteras = QSettings(leido, QSettings::IniFormat).allKeys();
  return bytes.endsWith('\n') && enteras.size() == claves.size() ? bytes : QByteArray();
}

}  // namespace

bool FicheroIni::Guarda() {
  if (pendientes_.isEmpty()) return true;
  const QString carpeta = QFileInfo(ruta_).absolutePath();
  const bool habia = QFileInfo::exists(carpeta);
  if (!QDir().mkpath(carpeta)) return false;
  if (!habia)
    QFile::setPermissions(carpeta, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
  const Claves juntas = Juntas();
  const QByteArray bytes = Bytes(juntas, carpeta);
  if (bytes.isEmpty() && !juntas.isEmpty()) return false;
  try {
    FicheroSalida fichero(QFile::encodeName(ruta_).toStdString());
    fichero.Escribe({bytes.constData(), static_cast<std::size_t>(bytes.size())});
    fichero.Termina();
  } catch (const ErrorSalida&) {  // the caller names the file
    return false;
  }
  valores_ = juntas;
  pendientes_.clear();
  return true;
}

}  // namespace zorbin
