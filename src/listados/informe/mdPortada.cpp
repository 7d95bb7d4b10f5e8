#include <QBuffer>
#include <QImageReader>
#include <array>

#include "base/textos.h"
#include "listados/informe/mdPlantilla.h"

namespace zorbin {

namespace {

using memoria::Caja;
using memoria::Letra;
using memoria::Tipo;

constexpr double kLogoAncho = 200.0, kLogoAlto = 75.0;  // at most [pt]
constexpr int kPuntosLogo = 300;                        // of its picture [dots per inch]
constexpr int kMaxLado = 4000;                          // of the picture that is read [dots]

// The logo on white, so that nothing of it is transparent.
QImage Logo(const std::string& bytes) {
  if (bytes.empty()) return {};
  QByteArray datos(bytes.data(), static_cast<qsizetype>(bytes.size()));
  QBuffer memoriaLogo(&datos);
  memoriaLogo.open(QIODevice::ReadOnly);
  QImageReader lector(&memoriaLogo);
  const QSize suyo = lector.size();
  if (!suyo.isValid() || suyo.isEmpty() || suyo.width() > 100 * kMaxLado ||
      suyo.height() > 100 * kMaxLado) {
    return {};
  }
  const double porPunto = kPuntosLogo / 72.0;
  const QSize caja(static_cast<int>(kLogoAncho * porPunto), static_cast<int>(kLogoAlto * porPunto));
  // A drawing is asked for in the size of the paper; a picture is never made larger.
  const bool dibujo = lector.format() == "svg" || lector.format() == "svgz";
  if (dibujo || suyo.width() > caja.width() || suyo.height() > caja.height()) {
    lector.setScaledSize(suyo.scaled(caja, Qt::KeepAspectRatio));
  }
  const QImage leida = lector.read();
  if (leida.isNull()) return {};
  QImage blanca(leida.size(), QImage::Format_RGB32);
  blanca.fill(Qt::white);
  QPainter(&blanca).drawImage(0, 0, leida);
  return blanca;
}

class Portada {
 public:
  Portada(const Plantilla& p, const memoria::Tipografia& letras) : p_(p), letras_(letras) {}

  Caja Compone() {
    PonLogo();
    y_ = 215;
    Lineas(p_.T(txt::InfTitulo), {Letra::Negrita, 28}, 1);
    y_ += 12;
    const Tipo obra{Letra::Recta, 16};
    Lineas(Q(p_.datos.obra.NombreObra).replace("\r\n", "\n").trimmed(), obra, 5);
    pagina_.Raya({kMargenInforme, y_ + 4}, {kPaginaAnchoInforme - kMargenInforme, y_ + 4}, 1.2, 60);
    y_ += 32;
    for (const auto& [rotulo, valor] : Datos()) Dato(rotulo, valor);
    Firmas();
    return std::move(pagina_);
  }

 private:
  const Plantilla& p_;
  const memoria::Tipografia& letras_;
  Caja pagina_;
  double y_ = 0;

  void PonLogo() {
    const QImage logo = Logo(p_.datos.portada.logo);
    if (logo.isNull()) return;
    const QSizeF suyo = QSizeF(logo.size()) * 72.0 / kPuntosLogo;
    const QSizeF t = suyo.scaled(kLogoAncho, kLogoAlto, Qt::KeepAspectRatio).boundedTo(suyo * 2.0);
    pagina_.piezas.push_back(
        memoria::ImagenPuesta{{kMargenInforme, 60.0, t.width(), t.height()}, logo});
  }

  void Lineas(const QString& texto, const Tipo& tipo, std::size_t maximo) {
    auto renglones = memoria::Renglones(letras_, texto, tipo, kColumnaInforme);
    if (renglones.size() > maximo) {
      renglones.resize(maximo);
      renglones.back() += QStringLiteral("…");
    }
    for (const auto& renglon : renglones) {
      y_ += 1.25 * tipo.cuerpo;
      pagina_.Pon(letras_.DeTexto(renglon, tipo), {kMargenInforme, y_});
    }
    y_ += 0.4 * tipo.cuerpo;
  }

  std::vector<std::pair<QString, QString>> Datos() const {
    const auto& d = p_.datos;
    const auto& x = d.portada;
    const QString huella = d.huella.empty() ? p_.T(txt::InfSinGuardar) : Q(d.huella);
    return {{p_.T(txt::RotCliente), Q(d.obra.Cliente)},
            {p_.T(txt::InfAutor), Q(x.autor)},
            {p_.T(txt::InfRevisor), Q(x.revisor)},
            {p_.T(txt::InfRevision), Q(x.revision)},
            {p_.T(txt::InfFecha), Q(x.fecha.empty() ? d.fecha.dia : x.fecha)},
            {p_.T(txt::Norma), p_.T(txt::NormaTexto)},
            {p_.T(txt::InfPrograma), Q(d.programa)},
            {p_.T(txt::InfFichero), Q(d.fichero)},
            {p_.T(txt::InfHuella), huella}};
  }

  void Dato(const QString& rotulo, const QString& valor) {
    constexpr double kRotulo = 110.0;
    const QString limpio = QString(valor).replace("\r\n", "\n").trimmed();
    if (limpio.isEmpty()) return;
    const Tipo tipo{Letra::Recta, 10.0};
    pagina_.Pon(letras_.DeTexto(rotulo, {Letra::Negrita, 10.0, 90}), {kMargenInforme, y_});
    auto renglones = memoria::Renglones(letras_, limpio, tipo, kColumnaInforme - kRotulo);
    if (renglones.size() > 3) renglones.resize(3);
    for (const auto& renglon : renglones) {
      pagina_.Pon(letras_.DeTexto(renglon, tipo), {kMargenInforme + kRotulo, y_});
      y_ += 13.5;
    }
    y_ += 5.5;
  }

  // A box for each who signs, with the name where it is known.
  void Firmas() {
    constexpr double kAlto = 88.0, kHueco = 14.0, kArriba = 690.0;
    const double ancho = (kColumnaInforme - 2 * kHueco) / 3.0;
    const std::array<std::pair<QString, QString>, 3> quienes{
        {{p_.T(txt::InfAutor), Q(p_.datos.portada.autor)},
         {p_.T(txt::InfRevisor), Q(p_.datos.portada.revisor)},
         {p_.T(txt::RotCliente), Q(p_.datos.obra.Cliente)}}};
    double x = kMargenInforme;
    const Tipo menor{Letra::Recta, 8.0, 90};
    for (const auto& [papel, nombre] : quienes) {
      QPainterPath marco;
      marco.addRect(QRectF(x, kArriba, ancho, kAlto));
      pagina_.piezas.push_back(memoria::CaminoPuesto{marco, 0.6, 120});
      pagina_.Pon(letras_.DeTexto(papel, {Letra::Negrita, 9.0}), {x + 7, kArriba + 15});
      const Tipo tipo{Letra::Recta, 9.0};
      const auto quien = memoria::Acortado(letras_, nombre.simplified(), tipo, ancho - 14);
      pagina_.Pon(letras_.DeTexto(quien, tipo), {x + 7, kArriba + 29});
      pagina_.Pon(letras_.DeTexto(p_.T(txt::InfFirma), menor), {x + 7, kArriba + kAlto - 8});
      x += ancho + kHueco;
    }
  }
};

}  // namespace

memoria::Caja PortadaDe(const Plantilla& p, const memoria::Tipografia& letras) {
  return Portada(p, letras).Compone();
}

}  // namespace zorbin
