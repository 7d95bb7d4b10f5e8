#include "listados/informe/mdInforme.h"

#include <QCryptographicHash>
#include <QFile>
#include <QLocale>
#include <array>

#include "base/mdTextos.h"
#include "base/textos.h"
#include "listados/informe/mdPlantilla.h"
#include "listados/maqueta/mdError.h"
#include "listados/pintor/mdPintor.h"

namespace zorbin {

namespace {

using memoria::Caja;
using memoria::EntradaIndice;
using memoria::Franja;
using memoria::Letra;
using memoria::Paginador;
using memoria::PaginaTexto;
using memoria::Tipo;

constexpr double kArriba = 82.0, kAbajo = 780.0;  // of the text [pt]
constexpr double kUltimoCapitulo = 0.45 * kAbajo;
constexpr double kCabecera = 56.0;  // baseline of the running head
constexpr double kPie = 806.0;      // and of the page number
constexpr int kMaxIndice = 130;     // entries of the contents with their sections
constexpr std::array<const char*, 5> kCodigos{"es-ES", "en-GB", "ca-ES", "pt-PT", "fr-FR"};

memoria::Marcos MarcosDelInforme() {
  return {kMargenInforme, kArriba, kAbajo, 26.0, kUltimoCapitulo};
}

std::shared_ptr<memoria::Tipografia> Letras() {
  try {
    return std::make_shared<memoria::Tipografia>(memoria::Familia::Palo);
  } catch (const memoria::ErrorFuente& error) {
    throw ErrorFuente(error.what());
  }
}

class Compositor {
 public:
  Compositor(const DatosInforme& datos, const Catalogo& textos, const EstiloNumeros& estilo,
             const SigueInforme& sigue)
      : datos_(datos),
        textos_(textos),
        sigue_(sigue),
        letras_(Letras()),
        redactor_(*letras_, kColumnaInforme, Q(textos.Texto(txt::InfTabla)),
                  Q(textos.Texto(txt::InfFigura))),
        p_(datos, textos, estilo, redactor_),
        obra_(Q(datos.obra.NombreObra).simplified()) {}

  Informe Compone() {
    Paginador resumen(MarcosDelInforme(), true);
    EscribeResumenObra(p_);
    resumen.Anade(redactor_.Toma());
    Paginador texto(MarcosDelInforme(), true);
    EscribeBases(p_);
    texto.Anade(redactor_.Toma());
    for (std::size_t i = 0; i < datos_.tramos.size(); ++i) Tramo(i, texto);
    EscribeMediciones(p_);
    texto.Anade(redactor_.Toma());
    return Junta(std::move(resumen), std::move(texto));
  }

 private:
  const DatosInforme& datos_;
  const Catalogo& textos_;
  const SigueInforme& sigue_;
  std::shared_ptr<memoria::Tipografia> letras_;
  memoria::Redactor redactor_;
  Plantilla p_;
  QString obra_;

  void Sigue(const Paginador& texto) const {
    if (sigue_ && !sigue_(static_cast<int>(texto.paginas.size()))) throw InformeCancelado();
  }

  void Tramo(std::size_t i, Paginador& texto) {
    Sigue(texto);
    const auto& t = datos_.tramos[i];
    EscribeTramo(p_, t, i);
    texto.Anade(redactor_.Toma());
    const auto& filas = t.resultado->filas;
    if (datos_.detalle == DetalleInforme::Resumen || filas.empty()) return;
    const auto peor =
        static_cast<std::size_t>(CuentaDeVeredictos(*t.resultado).peor - filas.data());
    const bool todos = datos_.detalle == DetalleInforme::Todos;
    for (std::size_t f = 0; f < filas.size(); ++f) {
      if (!todos && f != peor) continue;
      Sigue(texto);
      EscribeCaso(p_, t, i, f, f == peor);
      texto.Anade(redactor_.Toma());
    }
  }

  Informe Junta(Paginador resumen, Paginador texto) {
    Informe informe;
    informe.letras = letras_;
    informe.titulo = p_.T(txt::InfTitulo) + QStringLiteral(" · ") + obra_;
    informe.autor = Q(datos_.portada.autor).simplified();
    informe.idioma = QString::fromLatin1(kCodigos.at(static_cast<std::size_t>(IdiomaDe() - 1)));
    Ancla(resumen, QStringLiteral("resumen"));
    Ancla(texto, QStringLiteral("apartado"));
    const int antes = 1 + static_cast<int>(resumen.paginas.size());
    auto indice = PaginasDeIndice(resumen.indice, texto.indice, antes);
    const int primera = antes + static_cast<int>(indice.size());
    const int total = primera + static_cast<int>(texto.paginas.size());
    informe.paginas.reserve(static_cast<std::size_t>(total));
    informe.paginas.push_back(PortadaDe(p_, *letras_));
    const auto pon = [&](std::vector<PaginaTexto>& paginas) {
      for (auto& pagina : paginas) Acaba(std::move(pagina), total, informe);
    };
    pon(resumen.paginas);
    pon(indice);
    pon(texto.paginas);
    Anota(resumen, 1, informe);
    Anota(texto, primera, informe);
    return informe;
  }

  int IdiomaDe() const { return textos_.IdiomaOffset() / kPasoIdioma + 1; }

  // Every line of the contents leads to its place.
  static void Ancla(Paginador& parte, const QString& nombre) {
    for (auto& e : parte.indice) {
      if (!e.ancla.isEmpty()) continue;
      e.ancla = nombre + QString::number(parte.anclas.size());
      parte.anclas.insert(e.ancla, e.lugar);
    }
  }

  static void Anota(Paginador& parte, int primera, Informe& informe) {
    for (auto& e : parte.indice) {
      e.lugar.pagina += primera;
      informe.indice.push_back(e);
    }
    for (auto a = parte.anclas.begin(); a != parte.anclas.end(); ++a) {
      a->pagina += primera;
      informe.anclas.insert(a.key(), *a);
    }
  }

  // Running head, foot and links of a page.
  void Acaba(PaginaTexto pagina, int total, Informe& informe) {
    const Tipo tipo{Letra::Cursiva, 9.0, 40};
    Caja c = std::move(pagina.caja);
    const QString derecha =
        pagina.apartado.isEmpty() || pagina.capitulo.isEmpty() ? QString() : pagina.apartado;
    const double mitad = kColumnaInforme * (derecha.isEmpty() ? 1.0 : 0.64) - 8;
    QString izquierda = obra_;
    if (!pagina.capitulo.isEmpty() && !izquierda.isEmpty()) {
      const QString corta = memoria::Acortado(*letras_, obra_, tipo, mitad * 0.6);
      izquierda = corta + QStringLiteral(" · ") + pagina.capitulo;
    }
    izquierda = memoria::Acortado(*letras_, izquierda, tipo, mitad);
    c.Pon(letras_->DeTexto(izquierda, tipo), {kMargenInforme, kCabecera});
    if (!derecha.isEmpty()) {
      const double cabe = kColumnaInforme - letras_->Ancho(izquierda, tipo) - 14;
      Caja d = letras_->DeTexto(memoria::Acortado(*letras_, derecha, tipo, cabe), tipo);
      const double x = kPaginaAnchoInforme - kMargenInforme - d.ancho;
      c.Pon(std::move(d), {x, kCabecera});
    }
    c.Raya({kMargenInforme, kCabecera + 7}, {kPaginaAnchoInforme - kMargenInforme, kCabecera + 7},
           0.7, 40);
    const auto numero = std::to_string(informe.paginas.size() + 1);
    Caja n = letras_->DeTexto(p_.Con(txt::InfPagina, {numero, std::to_string(total)}),
                              {Letra::Recta, 9.0, 40});
    const double x = (kPaginaAnchoInforme - n.ancho) / 2.0;
    c.Pon(std::move(n), {x, kPie});
    informe.paginas.push_back(std::move(c));
  }

  // One pass to count the pages of the contents, one with the numbers that follow from the count.
  std::vector<PaginaTexto> PaginasDeIndice(const std::vector<EntradaIndice>& resumen,
                                           const std::vector<EntradaIndice>& texto, int antes) {
    std::vector<PaginaTexto> paginas;
    for (int vuelta = 0; vuelta < 2; ++vuelta) {
      const int primera = antes + static_cast<int>(paginas.size());
      Paginador p(MarcosDelInforme(), true);
      redactor_.Hoja(p_.T(txt::InfIndice), QStringLiteral("indice"));
      p.Anade(redactor_.Toma());
      std::vector<Franja> franjas;
      for (const auto& e : resumen) franjas.push_back(Linea(e, 2));
      const bool todo = texto.size() <= kMaxIndice;
      for (const auto& e : texto) {
        if (todo || e.nivel == 1) franjas.push_back(Linea(e, primera + 1));
        if (e.nivel == 1 && todo) franjas.back().pega = true;
      }
      if (!franjas.empty()) franjas.back().pega = false;
      p.Anade(std::move(franjas));
      paginas = std::move(p.paginas);
    }
    return paginas;
  }

  Franja Linea(const EntradaIndice& e, int primera) const {
    const bool capitulo = e.nivel == 1;
    const Tipo tipo{capitulo ? Letra::Negrita : Letra::Recta, 9.2};
    const double xTitulo = capitulo ? (e.numero.isEmpty() ? 0 : 24) : 58;
    const Caja numero = letras_->DeTexto(QString::number(e.lugar.pagina + primera), tipo);
    const QString titulo =
        memoria::Acortado(*letras_, e.titulo, tipo, kColumnaInforme - xTitulo - numero.ancho - 24);
    Franja f;
    f.antes = capitulo ? 4.0 : 0.0;
    f.caja.ancho = kColumnaInforme;
    f.caja.alto = 8.7;
    f.caja.hondo = 2.7;
    f.caja.Pon(letras_->DeTexto(e.numero, tipo), {capitulo ? 0.0 : 24.0, 0});
    Caja t = letras_->DeTexto(titulo, tipo);
    double x = xTitulo + t.ancho + 6;
    f.caja.Pon(std::move(t), {xTitulo, 0});
    f.caja.Pon(numero, {kColumnaInforme - numero.ancho, 0});
    x = std::max(x, 0.0);
    if (!capitulo && x < kColumnaInforme - numero.ancho - 8) {
      QPainterPath puntos;
      for (double q = kColumnaInforme - numero.ancho - 8; q > x; q -= 5.0) {
        puntos.addRect(QRectF(q, -0.8, 0.8, 0.8));
      }
      f.caja.piezas.push_back(memoria::CaminoPuesto{puntos, 0, 120});
    }
    if (!e.ancla.isEmpty())
      f.caja.Enlaza({0, -f.caja.alto, f.caja.ancho, f.caja.Altura()}, e.ancla);
    return f;
  }
};

}  // namespace

Informe ComponeInforme(const DatosInforme& datos, const Catalogo& textos,
                       const EstiloNumeros& estilo, const SigueInforme& sigue) {
  return Compositor(datos, textos, estilo, sigue).Compone();
}

Informe ComponePasos(const ResultadoTramo& resultado, const FilaCaso& fila, const Catalogo& textos,
                     const EstiloNumeros& estilo) {
  DatosInforme datos;
  datos.tramos.push_back({&resultado, {}, resultado.datos.tramo, resultado.datos.tramo});
  Informe informe;
  auto letras = Letras();
  memoria::Redactor redactor(*letras, kColumnaInforme, {}, {});
  Plantilla p(datos, textos, estilo, redactor);
  EscribePasos(p, datos.tramos.front(), fila, true);
  Paginador paginas({kMargenInforme, 40.0, 810.0, 0, 0}, true);
  paginas.Anade(redactor.Toma());
  for (auto& pagina : paginas.paginas) informe.paginas.push_back(std::move(pagina.caja));
  informe.letras = std::move(letras);
  return informe;
}

int PaginasPrevistas(const DatosInforme& datos, const Catalogo& textos,
                     const EstiloNumeros& estilo) {
  // Those of the report without its Casos are told by their tables; a Caso stands for all of its
  // Tramo.
  double paginas = 6.0;
  for (const auto& t : datos.tramos) {
    const auto casos = static_cast<double>(t.resultado->filas.size());
    paginas += 4.0 + casos / 38.0;
    if (datos.detalle == DetalleInforme::Resumen || t.resultado->filas.empty()) continue;
    DatosInforme uno = datos;
    uno.tramos = {t};
    const auto letras = Letras();
    memoria::Redactor redactor(*letras, kColumnaInforme, {}, {});
    Plantilla p(uno, textos, estilo, redactor);
    EscribeCaso(p, t, 0, t.resultado->filas.size() / 2, false);
    double alto = 0;
    for (const auto& f : redactor.Toma()) alto += f.antes + f.caja.Altura();
    const double veces = datos.detalle == DetalleInforme::Todos ? casos : 1.0;
    paginas += veces * alto / (kAbajo - kArriba);
  }
  return static_cast<int>(paginas);
}

std::string HuellaDe(const std::filesystem::path& fichero) {
  QFile f(QString::fromStdString(fichero.string()));
  QCryptographicHash huella(QCryptographicHash::Sha256);
  if (!f.open(QIODevice::ReadOnly) || !huella.addData(&f)) return {};
  return huella.result().toHex().toStdString();
}

}  // namespace zorbin
