#include "shell/piezas/mdPreferencias.h"

#include <QDir>
#include <QFileInfo>
#include <QWidget>
#include <algorithm>

namespace zorbin {

namespace {

constexpr int kRecientes = 9;
const QString kSeccionAvisos = QStringLiteral("Opciones Rev 2002");
const QString kIdioma = QStringLiteral("Idioma");
const QString kRecientesClave = QStringLiteral("Obras/Recientes");

int IdiomaDe(const QSettings& ajustes) {
  bool numero = false;
  const int idioma = ajustes.value(kIdioma).toString().toInt(&numero);
  return numero && idioma >= 1 && idioma <= 6 ? idioma : -1;
}

}  // namespace

Preferencias::Preferencias()
    : usuario_(std::make_unique<QSettings>(QSettings::IniFormat, QSettings::UserScope,
                                           QStringLiteral("ZORBIN"), QStringLiteral("ZORBIN"))),
      maquina_(std::make_unique<QSettings>(QSettings::IniFormat, QSettings::SystemScope,
                                           QStringLiteral("ZORBIN"), QStringLiteral("ZORBIN"))) {
  usuario_->setFallbacksEnabled(false);
}

Preferencias::Preferencias(const QString& ficheroUsuario, const QString& ficheroMaquina)
    : usuario_(std::make_unique<QSettings>(ficheroUsuario, QSettings::IniFormat)),
      maquina_(std::make_unique<QSettings>(ficheroMaquina, QSettings::IniFormat)) {}

int Preferencias::IdiomaPropio() const {
  // The choice of a user who may not write for the machine stands before the machine's.
  const int propio = IdiomaDe(*usuario_);
  return propio != -1 ? propio : IdiomaDe(*maquina_);
}

void Preferencias::GrabaIdioma(int idioma) {
  const QString texto = QString::number(idioma);
  if (maquina_->isWritable()) {
    maquina_->setValue(kIdioma, texto);
    maquina_->sync();
    if (maquina_->status() == QSettings::NoError) {
      usuario_->remove(kIdioma);
      return;
    }
  }
  usuario_->setValue(kIdioma, texto);
  usuario_->sync();
}

QString Preferencias::OpcionAviso(const QString& nombre) const {
  return usuario_->value(kSeccionAvisos + '/' + nombre, QStringLiteral("1")).toString();
}

void Preferencias::PonOpcionAviso(const QString& nombre, bool mostrar) {
  usuario_->setValue(kSeccionAvisos + '/' + nombre,
                     mostrar ? QStringLiteral("1") : QStringLiteral("0"));
}

void Preferencias::GuardaVentana(const QString& nombre, const QWidget& ventana) {
  usuario_->setValue(QStringLiteral("Ventanas/") + nombre, ventana.saveGeometry());
}

bool Preferencias::RecuperaVentana(const QString& nombre, QWidget& ventana) const {
  const auto geometria = usuario_->value(QStringLiteral("Ventanas/") + nombre).toByteArray();
  return !geometria.isEmpty() && ventana.restoreGeometry(geometria);
}

void Preferencias::GuardaEstado(const QString& nombre, const QByteArray& estado) {
  usuario_->setValue(QStringLiteral("Estados/") + nombre, estado);
}

QByteArray Preferencias::Estado(const QString& nombre) const {
  return usuario_->value(QStringLiteral("Estados/") + nombre).toByteArray();
}

QString Preferencias::UltimaCarpeta() const {
  const QString carpeta = usuario_->value(QStringLiteral("Obras/Carpeta")).toString();
  return !carpeta.isEmpty() && QFileInfo(carpeta).isDir() ? carpeta : QDir::homePath();
}

void Preferencias::PonUltimaCarpeta(const QString& carpeta) {
  usuario_->setValue(QStringLiteral("Obras/Carpeta"), carpeta);
}

QStringList Preferencias::ObrasRecientes() const {
  QStringList rutas = usuario_->value(kRecientesClave).toStringList();
  rutas.removeIf([](const QString& ruta) { return !QFileInfo::exists(ruta); });
  return rutas;
}

void Preferencias::AnotaObra(const QString& ruta) {
  const QFileInfo fichero(ruta);
  QStringList rutas = ObrasRecientes();
  rutas.removeAll(fichero.absoluteFilePath());
  rutas.prepend(fichero.absoluteFilePath());
  while (rutas.size() > kRecientes) rutas.removeLast();
  usuario_->setValue(kRecientesClave, rutas);
  PonUltimaCarpeta(fichero.absolutePath());
}

void Preferencias::OlvidaObra(const QString& ruta) {
  QStringList rutas = ObrasRecientes();
  rutas.removeAll(ruta);
  usuario_->setValue(kRecientesClave, rutas);
}

int Preferencias::TipoListado() const {
  return std::clamp(usuario_->value(QStringLiteral("Listado/Tipo"), 0).toInt(), 0, 3);
}

void Preferencias::PonTipoListado(int tipo) {
  usuario_->setValue(QStringLiteral("Listado/Tipo"), tipo);
}

QString Preferencias::Impresora() const {
  return usuario_->value(QStringLiteral("Impresora/Nombre")).toString();
}

void Preferencias::PonImpresora(const QString& nombre) {
  usuario_->setValue(QStringLiteral("Impresora/Nombre"), nombre);
}

int Preferencias::Copias() const {
  return std::max(1, usuario_->value(QStringLiteral("Impresora/Copias"), 1).toInt());
}

void Preferencias::PonCopias(int copias) {
  usuario_->setValue(QStringLiteral("Impresora/Copias"), copias);
}

bool Preferencias::NuevaEnSI() const {
  return usuario_->value(QStringLiteral("Obras/NuevaEnSI"), true).toBool();
}

void Preferencias::PonNuevaEnSI(bool si) {
  usuario_->setValue(QStringLiteral("Obras/NuevaEnSI"), si);
}

QVariant Preferencias::Valor(const QString& clave, const QVariant& defecto) const {
  return usuario_->value(clave, defecto);
}

void Preferencias::PonValor(const QString& clave, const QVariant& valor) {
  usuario_->setValue(clave, valor);
}

}  // namespace zorbin
