// genera-figuras: draws the pictures of the program, so that no picture has to be kept as a file.
//
//   genera-figuras CARPETA [--ancho PX]
//
// PX is the width of the laying pictures; the others keep their proportion to them. Needs no
// display. Ends with 0, with 1 when a picture can't be drawn or written, with 2 on a wrong call.
#include <QDir>
#include <QFontDatabase>
#include <QGuiApplication>
#include <array>
#include <cmath>
#include <iostream>

#include "programas/genera-figuras/mdColocacion.h"
#include "programas/genera-figuras/mdPared.h"

namespace zorbin::figuras {

namespace {

constexpr int kAnchoPx = 1000;  // of the laying pictures
constexpr int kAnchoPxMin = 100, kAnchoPxMax = 8000;

struct Figura {
  const char* fichero;
  QSizeF hoja;  // [mm]
  int anchoPx;
  void (*dibuja)(Lapiz&);
};

constexpr QSizeF kHojaCuna{55.0, 55.0}, kHojaColocacion{100.0, 55.0}, kHojaTitulo{120.0, 75.0};

template <Material M, int Angulo>
void EnCuna(Lapiz& lapiz) {
  DibujaCuna(lapiz, {M, Angulo});
}

template <Colocacion C, Material M, int Angulo>
void EnColocacion(Lapiz& lapiz) {
  DibujaColocacion(lapiz, C, {M, Angulo});
}

template <Pared P>
void EnPared(Lapiz& lapiz) {
  DibujaPared(lapiz, P);
}

constexpr Material kGranular = Material::Granular, kHormigon = Material::Hormigon;

// Names as the catalogue of texts spells them.
constexpr std::array kFiguras{
    Figura{"CUNAA90.BMP", kHojaCuna, 600, EnCuna<kGranular, 90>},
    Figura{"CUNAH90.BMP", kHojaCuna, 600, EnCuna<kHormigon, 90>},
    Figura{"CUNAH120.BMP", kHojaCuna, 600, EnCuna<kHormigon, 120>},
    Figura{"Anagrama2.bmp", kHojaTitulo, 1200, DibujaAnagrama},
    Figura{"Zanja1a.bmp", kHojaColocacion, kAnchoPx,
           EnColocacion<Colocacion::Zanja, kGranular, 90>},
    Figura{"ZanjaT1a.bmp", kHojaColocacion, kAnchoPx,
           EnColocacion<Colocacion::ZanjaTerraplenada, kGranular, 90>},
    Figura{"Terrapl1.bmp", kHojaColocacion, kAnchoPx,
           EnColocacion<Colocacion::Terraplen, kGranular, 90>},
    Figura{"Zanja2a.bmp", kHojaColocacion, kAnchoPx,
           EnColocacion<Colocacion::Zanja, kHormigon, 120>},
    Figura{"ZanjaT2a.bmp", kHojaColocacion, kAnchoPx,
           EnColocacion<Colocacion::ZanjaTerraplenada, kHormigon, 120>},
    Figura{"Terrapl2.bmp", kHojaColocacion, kAnchoPx,
           EnColocacion<Colocacion::Terraplen, kHormigon, 120>},
    Figura{"Tub2211.bmp", kHojaCuna, 600, EnPared<Pared::CamisaEmbebida>},
    Figura{"Tub2221.bmp", kHojaCuna, 600, EnPared<Pared::CamisaRevestida>},
    Figura{"Tub2110.bmp", kHojaCuna, 600, EnPared<Pared::Armado>},
};

int Falla(int codigo, const QString& texto) {
  std::cerr << "genera-figuras: " << texto.toStdString() << '\n';
  return codigo;
}

int Genera(const QString& carpeta, int anchoPx) {
  if (QFontDatabase::families().isEmpty()) return Falla(1, "no font on this machine");
  if (!QDir().mkpath(carpeta)) return Falla(1, "cannot make the folder " + carpeta);
  for (const Figura& f : kFiguras) {
    Lapiz lapiz(f.hoja, f.anchoPx * anchoPx / kAnchoPx);
    f.dibuja(lapiz);
    const QString fichero = QDir(carpeta).filePath(f.fichero);
    if (!lapiz.Guarda(fichero)) return Falla(1, "cannot write " + fichero);
  }
  return 0;
}

int Corre(const QStringList& palabras) {
  int anchoPx = kAnchoPx;
  const bool conAncho = palabras.size() == 4 && palabras[2] == "--ancho";
  if (conAncho) anchoPx = palabras[3].toInt();
  if ((palabras.size() != 2 && !conAncho) || anchoPx < kAnchoPxMin || anchoPx > kAnchoPxMax) {
    return Falla(2, QString("use: genera-figuras CARPETA [--ancho PX], PX from %1 to %2")
                        .arg(kAnchoPxMin)
                        .arg(kAnchoPxMax));
  }
  return Genera(palabras[1], anchoPx);
}

}  // namespace

}  // namespace zorbin::figuras

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  const QGuiApplication app(argc, argv);
  return zorbin::figuras::Corre(QGuiApplication::arguments());
}
