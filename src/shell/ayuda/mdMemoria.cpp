#include "shell/ayuda/mdMemoria.h"

#include <sys/stat.h>

#include <QDesktopServices>
#include <QFileInfo>
#include <cerrno>
#include <cstdio>
#include <memory>

#include "base/textos.h"
#include "shell/piezas/mdDialogos.h"
#include "shell/piezas/mdQt.h"

namespace zorbin {

namespace {

// Number of the error of opening a file and reading from it; 0 when there was none. Anything but a
// plain file is not opened: a pipe would wait for its other end.
int ErrorAlAbrir(const std::filesystem::path& ruta) {
  struct stat estado {};
  if (::stat(ruta.c_str(), &estado) != 0) return errno;
  if (S_ISDIR(estado.st_mode)) return EISDIR;
  if (!S_ISREG(estado.st_mode)) return EINVAL;
  const std::unique_ptr<std::FILE, int (*)(std::FILE*)> f(std::fopen(ruta.c_str(), "rb"),
                                                          &std::fclose);
  if (f == nullptr) return errno;
  std::fgetc(f.get());
  return std::ferror(f.get()) != 0 ? errno : 0;
}

bool SePuedeLeer(const Entorno& entorno, const std::filesystem::path& ruta, QWidget* padre) {
  const auto texto = [&entorno](int n) { return Q(entorno.textos.Texto(n)); };
  const int error = ruta.empty() ? ENOENT : ErrorAlAbrir(ruta);
  if (error == 0) return true;
  const QString nombre = texto(txt::FicheroMemoria);
  if (error == ENOENT || error == ENOTDIR) {
    Avisa(padre, entorno.textos, nombre + ' ' + texto(txt::NoExisteFichero));
  } else {
    Avisa(padre, entorno.textos,
          texto(txt::ErrorConNumero) + QString::number(error) + '\n' +
              texto(txt::AlAbrirElFichero) + ' ' + nombre);
  }
  return false;
}

bool HayVisor(const Entorno& entorno, const MemoriaTecnica& memoria, QWidget* padre) {
  const auto visor = BuscaVisorPdf(memoria.carpetas);
  if (visor == VisorPdf::Ninguno) {
    frmTip(entorno, ModoAviso::InstalarVisor, memoria.documento, padre).exec();
  } else if (visor == VisorPdf::SinOrden) {
    Avisa(padre, entorno.textos, Q(entorno.textos.Texto(txt::LectorMalInstalado)),
          Q(entorno.textos.Texto(txt::TituloAviso)));
  }
  return visor == VisorPdf::Presente;
}

}  // namespace

bool MemoriaTecnica::AbreConElEscritorio(const QUrl& fichero) {
  return QDesktopServices::openUrl(fichero);
}

void MuestraMemoria(const Entorno& entorno, const MemoriaTecnica& memoria, QWidget* padre) {
  if (!SePuedeLeer(entorno, memoria.ruta, padre) || !HayVisor(entorno, memoria, padre)) return;
  if (QuiereAviso(entorno.preferencias, ModoAviso::MemoriaTecnica)) {
    frmTip(entorno, ModoAviso::MemoriaTecnica, memoria.documento, padre).exec();
  }
  const QFileInfo fichero(Q(memoria.ruta.string()));
  if (memoria.abre(QUrl::fromLocalFile(fichero.absoluteFilePath()))) return;
  Avisa(padre, entorno.textos, Q(entorno.textos.Texto(txt::LectorNoArranca)),
        Q(entorno.textos.Texto(txt::TituloAviso)));
}

}  // namespace zorbin
