#include "shell/piezas/mdPreferencias.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QSettings>
#include <QWidget>
#include <algorithm>

namespace zorbin {

namespace {

constexpr int kRecientes = 9;
const QString kSeccionAvisos = QStringLiteral("Opciones Rev 2002");
const QString kIdioma = QStringLiteral("Idioma");
const QString kAvisoLeido = QStringLiteral("Aviso/Version");
const QString kRecientesClave = QStringLiteral("Obras/Recientes");

int IdiomaDe(const QVariant& escrito) {
  bool numero = false;
  const int idioma = escrito.toString().toInt(&numero);
  return numero && idioma >= 1 && idioma <= 6 ? idioma : -1;
}

QString FicheroDe(QSettings::Scope deQuien) {
  return QSettings(QSettings::IniFormat, deQuien, QStringLiteral("ZORBIN"),
                   QStringLiteral("ZORBIN"))
      .fileName();
}

}  // namespace

Preferencias::Preferencias()
    : Preferencias(FicheroDe(QSettings::UserScope), FicheroDe(QSettings::SystemScope)) {}

Preferencias::Preferencias(const QString& ficheroUsuario, const QString& ficheroMaquina)
    : usuario_(ficheroUsuario), maquina_(ficheroMaquina) {}

Preferencias::~Preferencias() {
  Guarda();  // what could not be written was told when the window closed
}

int Preferencias::IdiomaPropio() const {
  // The choice of a user who may not write for the machine stands before the machine's.
  const int propio = IdiomaDe(usuario_.Valor(kIdioma));
  return propio != -1 ? propio : IdiomaDe(maquina_.Valor(kIdioma));
}

void Preferencias::GrabaIdioma(int idioma) {
  const QString texto = QString::number(idioma);
  maquina_.Pon(kIdioma, texto);
  if (maquina_.Guarda()) {
    usuario_.Quita(kIdioma);
  } else {
    maquina_.Deshaz();
    usuario_.Pon(kIdioma, texto);
  }
  Guarda();
}

QString Preferencias::OpcionAviso(const QString& nombre) const {
  return usuario_.Valor(kSeccionAvisos + '/' + nombre, QStringLiteral("1")).toString();
}

void Preferencias::PonOpcionAviso(const QString& nombre, bool mostrar) {
  usuario_.Pon(kSeccionAvisos + '/' + nombre, mostrar ? QStringLiteral("1") : QStringLiteral("0"));
}

void Preferencias::GuardaVentana(const QString& nombre, const QWidget& ventana) {
  usuario_.Pon(QStringLiteral("Ventanas/") + nombre, ventana.saveGeometry());
}

bool Preferencias::RecuperaVentana(const QString& nombre, QWidget& ventana) const {
  const auto geometria = usuario_.Valor(QStringLiteral("Ventanas/") + nombre).toByteArray();
  return !geometria.isEmpty() && ventana.restoreGeometry(geometria);
}

void Preferencias::GuardaEstado(const QString& nombre, const QByteArray& estado) {
  usuario_.Pon(QStringLiteral("Estados/") + nombre, estado);
}

QByteArray Preferencias::Estado(const QString& nombre) const {
  return usuario_.Valor(QStringLiteral("Estados/") + nombre).toByteArray();
}

QString Preferencias::UltimaCarpeta() const {
  const QString carpeta = usuario_.Valor(QStringLiteral("Obras/Carpeta")).toString();
  return !carpeta.isEmpty() && QFileInfo(carpeta).isDir() ? carpeta : QDir::homePath();
}

void Preferencias::PonUltimaCarpeta(const QString& carpeta) {
  usuario_.Pon(QStringLiteral("Obras/Carpeta"), carpeta);
}

QStringList Preferencias::ObrasRecientes() const {
  QStringList rutas = usuario_.Valor(kRecientesClave).toStringList();
  rutas.removeIf([](const QString& ruta) { return !QFileInfo::exists(ruta); });
  return rutas;
}

void Preferencias::AnotaObra(const QString& ruta) {
  const QFileInfo fichero(ruta);
  QStringList rutas = ObrasRecientes();
  rutas.removeAll(fichero.absoluteFilePath());
  rutas.prepend(fichero.absoluteFilePath());
  while (rutas.size() > kRecientes) rutas.removeLast();
  usuario_.Pon(kRecientesClave, rutas);
  PonUltimaCarpeta(fichero.absolutePath());
  Guarda();
}

void Preferencias::OlvidaObra(const QString& ruta) {
  QStringList rutas = ObrasRecientes();
  rutas.removeAll(ruta);
  usuario_.Pon(kRecientesClave, rutas);
}

int Preferencias::TipoListado() const {
  return std::clamp(usuario_.Valor(QStringLiteral("Listado/Tipo"), 0).toInt(), 0, 3);
}

void Preferencias::PonTipoListado(int tipo) {
  usuario_.Pon(QStringLiteral("Listado/Tipo"), tipo);
}

QString Preferencias::Impresora() const {
  return usuario_.Valor(QStringLiteral("Impresora/Nombre")).toString();
}

void Preferencias::PonImpresora(const QString& nombre) {
  usuario_.Pon(QStringLiteral("Impresora/Nombre"), nombre);
}

int Preferencias::Copias() const {
  return std::max(1, usuario_.Valor(QStringLiteral("Impresora/Copias"), 1).toInt());
}

void Preferencias::PonCopias(int copias) {
  usuario_.Pon(QStringLiteral("Impresora/Copias"), copias);
  Guarda();
}

bool Preferencias::AvisoDeUsoPendiente() const {
  return usuario_.Valor(kAvisoLeido).toString() != QCoreApplication::applicationVersion();
}

void Preferencias::AnotaAvisoDeUso() {
  usuario_.Pon(kAvisoLeido, QCoreApplication::applicationVersion());
  Guarda();
}

int Preferencias::Tema() const {
  return std::clamp(usuario_.Valor(QStringLiteral("Ver/Tema"), 0).toInt(), 0, 2);
}

void Preferencias::PonTema(int tema) {
  usuario_.Pon(QStringLiteral("Ver/Tema"), tema);
  Guarda();
}

bool Preferencias::NuevaEnSI() const {
  return usuario_.Valor(QStringLiteral("Obras/NuevaEnSI"), true).toBool();
}

void Preferencias::PonNuevaEnSI(bool si) {
  usuario_.Pon(QStringLiteral("Obras/NuevaEnSI"), si);
}

bool Preferencias::Guarda() {
  return usuario_.Guarda();
}

QString Preferencias::Fichero() const {
  return usuario_.ruta();
}

QVariant Preferencias::Valor(const QString& clave, const QVariant& defecto) const {
  return usuario_.Valor(clave, defecto);
}

void Preferencias::PonValor(const QString& clave, const QVariant& valor) {
  usuario_.Pon(clave, valor);
}

}  // namespace zorbin
