#include "listados/informe/mdPdfInforme.h"

#include <QBuffer>
#include <QPageSize>
#include <QPdfWriter>

#define POINTERHOLDER_TRANSITION 4  // the shared pointers of the standard library
#include <qpdf/QPDF.hh>
#include <qpdf/QPDFPageDocumentHelper.hh>
#include <qpdf/QPDFPageObjectHelper.hh>
#include <qpdf/QPDFWriter.hh>

#include "listados/informe/mdAligeraPdf.h"
#include "listados/pintor/mdFicheroPdf.h"

namespace zorbin {

namespace {

using memoria::EnlacePuesto;
using memoria::kPorPunto;
using Objeto = QPDFObjectHandle;

constexpr double kAlto = 841.89;  // of a page [pt]

std::string Utf8(const QString& texto) {
  return texto.toStdString();
}

// The pages painted, without what the toolkit cannot write.
QByteArray Pinta(const Informe& informe, const SigueInforme& sigue) {
  QByteArray bytes;
  QBuffer destino(&bytes);
  destino.open(QIODevice::WriteOnly);
  {
    QPdfWriter pdf(&destino);
    pdf.setPdfVersion(QPagedPaintDevice::PdfVersion_A1b);
    pdf.setResolution(72 * kPorPunto);
    pdf.setTitle(informe.titulo);
    pdf.setCreator(QStringLiteral("ZORBIN " ZORBIN_VERSION));
    pdf.setPageSize(QPageSize(QPageSize::A4));
    pdf.setPageMargins(QMarginsF());
    QPainter pintor(&pdf);
    for (std::size_t i = 0; i < informe.paginas.size(); ++i) {
      if (sigue && i % 16 == 0 && !sigue(static_cast<int>(i))) throw InformeCancelado();
      if (i > 0) pdf.newPage();
      informe.letras->Pinta(pintor, informe.paginas[i], {0, 0});
    }
  }
  return bytes;
}

// What the writer of the toolkit leaves out: outline, links, language, author.
class Acabado {
 public:
  Acabado(QPDF& pdf, const Informe& informe) : pdf_(pdf), informe_(informe) {
    paginas_ = QPDFPageDocumentHelper(pdf).getAllPages();
  }

  void Pon() {
    Contenidos();
    Enlaces();
    Esquema();
    Datos();
  }

 private:
  QPDF& pdf_;
  const Informe& informe_;
  std::vector<QPDFPageObjectHelper> paginas_;

  static Objeto Nombre(const char* nombre) { return Objeto::newName(nombre); }
  static Objeto Real(double valor) { return Objeto::newReal(valor, 2); }

  Objeto Destino(const memoria::LugarTexto& lugar) {
    auto destino = Objeto::newArray();
    destino.appendItem(paginas_.at(static_cast<std::size_t>(lugar.pagina)).getObjectHandle());
    destino.appendItem(Nombre("/XYZ"));
    destino.appendItem(Real(0));
    destino.appendItem(Real(kAlto - lugar.y + 6));
    destino.appendItem(Objeto::newNull());
    return destino;
  }

  void Contenidos() {
    for (auto& pagina : paginas_) {
      auto contenido = pagina.getObjectHandle().getKey("/Contents");
      if (!contenido.isStream()) continue;
      const auto datos = contenido.getStreamData(qpdf_dl_generalized);
      const std::string_view texto(reinterpret_cast<const char*>(datos->getBuffer()),
                                   datos->getSize());
      contenido.replaceStreamData(Aligerado(texto), Objeto::newNull(), Objeto::newNull());
    }
  }

  void Enlaces() {
    for (std::size_t i = 0; i < informe_.paginas.size(); ++i) {
      auto notas = Objeto::newArray();
      for (const auto& pieza : informe_.paginas[i].piezas) {
        const auto* enlace = std::get_if<EnlacePuesto>(&pieza);
        if (enlace == nullptr) continue;
        const auto lugar = informe_.anclas.constFind(enlace->destino);
        if (lugar != informe_.anclas.constEnd()) notas.appendItem(Enlace(enlace->marco, *lugar));
      }
      if (notas.getArrayNItems() > 0) {
        paginas_.at(i).getObjectHandle().replaceKey("/Annots", notas);
      }
    }
  }

  Objeto Enlace(const QRectF& marco, const memoria::LugarTexto& lugar) {
    auto nota = Objeto::newDictionary();
    nota.replaceKey("/Type", Nombre("/Annot"));
    nota.replaceKey("/Subtype", Nombre("/Link"));
    nota.replaceKey("/Rect", Objeto::newFromRectangle({marco.left(), kAlto - marco.bottom(),
                                                       marco.right(), kAlto - marco.top()}));
    auto borde = Objeto::newArray();
    for (int i = 0; i < 3; ++i) borde.appendItem(Objeto::newInteger(0));
    nota.replaceKey("/Border", borde);
    nota.replaceKey("/F", Objeto::newInteger(4));  // it goes to paper with the page
    nota.replaceKey("/Dest", Destino(lugar));
    return pdf_.makeIndirectObject(nota);
  }

  // Chapters with their sections below them.
  void Esquema() {
    if (informe_.indice.empty()) return;
    auto raiz = pdf_.makeIndirectObject(Objeto::newDictionary());
    raiz.replaceKey("/Type", Nombre("/Outlines"));
    std::vector<Objeto> capitulos;
    std::vector<std::vector<Objeto>> apartados;
    for (const auto& e : informe_.indice) {
      auto entrada = pdf_.makeIndirectObject(Objeto::newDictionary());
      const QString titulo = e.numero.isEmpty() ? e.titulo : e.numero + " " + e.titulo;
      entrada.replaceKey("/Title", Objeto::newUnicodeString(Utf8(titulo)));
      entrada.replaceKey("/Dest", Destino(e.lugar));
      if (e.nivel == 1 || capitulos.empty()) {
        capitulos.push_back(entrada);
        apartados.emplace_back();
      } else {
        apartados.back().push_back(entrada);
      }
    }
    for (std::size_t i = 0; i < capitulos.size(); ++i) Cuelga(capitulos[i], apartados[i], false);
    Cuelga(raiz, capitulos, true);
    pdf_.getRoot().replaceKey("/Outlines", raiz);
    pdf_.getRoot().replaceKey("/PageMode", Nombre("/UseOutlines"));
  }

  static void Cuelga(Objeto padre, std::vector<Objeto>& hijos, bool abierto) {
    if (hijos.empty()) return;
    const auto cuantos = static_cast<long long>(hijos.size());
    padre.replaceKey("/First", hijos.front());
    padre.replaceKey("/Last", hijos.back());
    padre.replaceKey("/Count", Objeto::newInteger(abierto ? cuantos : -cuantos));
    for (std::size_t i = 0; i < hijos.size(); ++i) {
      hijos[i].replaceKey("/Parent", padre);
      if (i > 0) hijos[i].replaceKey("/Prev", hijos[i - 1]);
      if (i + 1 < hijos.size()) hijos[i].replaceKey("/Next", hijos[i + 1]);
    }
  }

  // The dictionary of the document and its metadata say the same.
  void Datos() {
    auto raiz = pdf_.getRoot();
    raiz.replaceKey("/Lang", Objeto::newString(Utf8(informe_.idioma)));
    auto ver = Objeto::newDictionary();
    ver.replaceKey("/DisplayDocTitle", Objeto::newBool(true));
    raiz.replaceKey("/ViewerPreferences", ver);
    auto info = pdf_.getTrailer().getKey("/Info");
    info.replaceKey("/Title", Objeto::newUnicodeString(Utf8(informe_.titulo)));
    if (!informe_.autor.isEmpty()) {
      info.replaceKey("/Author", Objeto::newUnicodeString(Utf8(informe_.autor)));
    }
    const auto leido = [&info](const char* clave) {
      return info.hasKey(clave) ? QString::fromStdString(info.getKey(clave).getUTF8Value())
                                : QString();
    };
    auto metadatos = Objeto::newStream(
        &pdf_, Utf8(Xmp(leido("/Producer"), leido("/Creator"), Fecha(leido("/CreationDate")))));
    metadatos.getDict().replaceKey("/Type", Nombre("/Metadata"));
    metadatos.getDict().replaceKey("/Subtype", Nombre("/XML"));
    raiz.replaceKey("/Metadata", metadatos);
  }

  // D:20260131120000+01'00' as 2026-01-31T12:00:00+01:00.
  static QString Fecha(const QString& d) {
    if (d.size() < 16) return {};
    const auto p = [&d](int desde, int cuantos) { return d.mid(desde, cuantos); };
    QString zona = d.mid(16);
    zona.remove(QLatin1Char('\''));
    if (zona.size() == 4 && zona != "Z") zona = zona.left(2) + ":" + zona.mid(2);
    const QString signo = p(16, 1);
    const QString resto =
        signo == "Z" ? QStringLiteral("Z") : signo + QString(d.mid(17, 2)) + ":" + d.mid(20, 2);
    return p(2, 4) + "-" + p(6, 2) + "-" + p(8, 2) + "T" + p(10, 2) + ":" + p(12, 2) + ":" +
           p(14, 2) + resto;
  }

  QString Xmp(const QString& productor, const QString& creador, const QString& fecha) const {
    const QString lengua = informe_.idioma;
    QString autor;
    if (!informe_.autor.isEmpty()) {
      autor = QStringLiteral("   <dc:creator><rdf:Seq><rdf:li>%1</rdf:li></rdf:Seq></dc:creator>\n")
                  .arg(informe_.autor.toHtmlEscaped());
    }
    return QStringLiteral(
               "<?xpacket begin=\"\uFEFF\" id=\"W5M0MpCehiHzreSzNTczkc9d\"?>\n"
               "<x:xmpmeta xmlns:x=\"adobe:ns:meta/\">\n"
               " <rdf:RDF xmlns:rdf=\"http://www.w3.org/1999/02/22-rdf-syntax-ns#\">\n"
               "  <rdf:Description rdf:about=\"\""
               " xmlns:dc=\"http://purl.org/dc/elements/1.1/\""
               " xmlns:pdf=\"http://ns.adobe.com/pdf/1.3/\""
               " xmlns:xmp=\"http://ns.adobe.com/xap/1.0/\""
               " xmlns:pdfaid=\"http://www.aiim.org/pdfa/ns/id/\">\n"
               "   <dc:format>application/pdf</dc:format>\n"
               "   <dc:title><rdf:Alt><rdf:li xml:lang=\"x-default\">%1</rdf:li></rdf:Alt>"
               "</dc:title>\n"
               "%2"
               "   <dc:language><rdf:Bag><rdf:li>%3</rdf:li></rdf:Bag></dc:language>\n"
               "   <pdf:Producer>%4</pdf:Producer>\n"
               "   <xmp:CreatorTool>%5</xmp:CreatorTool>\n"
               "   <xmp:CreateDate>%6</xmp:CreateDate>\n"
               "   <xmp:ModifyDate>%6</xmp:ModifyDate>\n"
               "   <pdfaid:part>1</pdfaid:part>\n"
               "   <pdfaid:conformance>B</pdfaid:conformance>\n"
               "  </rdf:Description>\n"
               " </rdf:RDF>\n"
               "</x:xmpmeta>\n"
               "<?xpacket end=\"w\"?>\n")
        .arg(informe_.titulo.toHtmlEscaped(), autor, lengua, productor.toHtmlEscaped(),
             creador.toHtmlEscaped(), fecha);
  }
};

}  // namespace

std::string PdfDeInforme(const Informe& informe, const SigueInforme& sigue) {
  const QByteArray pintado = Pinta(informe, sigue);
  QPDF pdf;
  pdf.processMemoryFile("informe", pintado.constData(), static_cast<std::size_t>(pintado.size()));
  Acabado(pdf, informe).Pon();
  QPDFWriter escritor(pdf);
  escritor.setOutputMemory();
  escritor.setObjectStreamMode(qpdf_o_disable);  // the archive format knows none
  escritor.setCompressStreams(true);
  escritor.setDeterministicID(true);
  escritor.write();
  const auto memoria = escritor.getBufferSharedPointer();
  return {reinterpret_cast<const char*>(memoria->getBuffer()), memoria->getSize()};
}

void EscribeInforme(const std::filesystem::path& ruta, const Informe& informe,
                    const SigueInforme& sigue) {
  const std::string bytes = PdfDeInforme(informe, sigue);
  EnFichero([&] {
    FicheroSalida salida(ruta);
    salida.Escribe(bytes);
    salida.Termina();
  });
}

}  // namespace zorbin
