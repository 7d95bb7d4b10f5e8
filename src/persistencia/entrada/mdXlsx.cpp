#include "persistencia/entrada/mdXlsx.h"

#include <QXmlStreamReader>
#include <algorithm>
#include <charconv>
#include <map>

#include "base/mdAnsi.h"
#include "base/mdNumeros.h"
#include "base/textos.h"
#include "persistencia/entrada/mdDatosLeidos.h"
#include "persistencia/entrada/mdZip.h"

namespace zorbin {

namespace {

constexpr std::size_t kMaxTextos = 400'000;  // shared ones

std::string S(QStringView texto) {
  return texto.toUtf8().toStdString();
}

// A part of the workbook, element by element. It declares no entities and refers to nothing.
class Xml {
 public:
  Xml(Zip& zip, std::string parte)
      : parte_(std::move(parte)), bytes_(zip.Lee(parte_, kMaxParteXlsx)) {
    lector_.addData(QByteArray::fromRawData(bytes_.data(), static_cast<qsizetype>(bytes_.size())));
  }

  /// The next element that begins; false at the end.
  bool Siguiente() {
    while (Ficha()) {
      if (lector_.isStartElement()) return true;
    }
    return false;
  }
  /// The next element that begins, or the end of one; false at the end.
  bool Borde() {
    while (Ficha()) {
      if (lector_.isStartElement() || lector_.isEndElement()) return true;
    }
    return false;
  }
  bool Abre(const char* nombre) const { return lector_.isStartElement() && Es(nombre); }
  bool Cierra(const char* nombre) const { return lector_.isEndElement() && Es(nombre); }
  std::string Atributo(const char* nombre) const {
    return S(lector_.attributes().value(QLatin1String(nombre)));
  }
  /// Of a name that may have a prefix.
  std::string AtributoConPrefijo(QStringView nombre) const {
    for (const auto& a : lector_.attributes()) {
      if (a.name() == nombre && !a.prefix().isEmpty()) return S(a.value());
    }
    return {};
  }
  /// Text of the element that has begun, up to its end.
  std::string Texto() {
    std::string texto;
    int hondo = 1;
    while (hondo > 0 && Ficha()) {
      if (lector_.isStartElement()) ++hondo;
      if (lector_.isEndElement()) --hondo;
      if (lector_.isCharacters()) texto += S(lector_.text());
    }
    return texto;
  }
  [[noreturn]] void Falla() const {
    throw ErrorEntrada({txt::EntXmlMalo, {Visto(parte_), std::to_string(lector_.lineNumber())}});
  }

 private:
  std::string parte_;
  std::string bytes_;
  QXmlStreamReader lector_;

  bool Es(const char* nombre) const { return lector_.name() == QLatin1String(nombre); }

  bool Ficha() {
    if (lector_.atEnd()) return false;
    const auto ficha = lector_.readNext();
    if (lector_.hasError() || ficha == QXmlStreamReader::DTD ||
        ficha == QXmlStreamReader::EntityReference) {
      Falla();
    }
    return ficha != QXmlStreamReader::EndDocument;
  }
};

// The name of a part as another one tells it: from the root, or from its own folder.
std::string Resuelve(const std::string& desde, std::string destino) {
  if (destino.starts_with('/')) return destino.substr(1);
  std::string carpeta =
      desde.substr(0, desde.rfind('/') == std::string::npos ? 0 : desde.rfind('/'));
  while (destino.starts_with("../") || destino.starts_with("./")) {
    if (destino.starts_with("../")) {
      carpeta.erase(carpeta.rfind('/') == std::string::npos ? 0 : carpeta.rfind('/'));
    }
    destino.erase(0, destino.find('/') + 1);
  }
  return carpeta.empty() ? destino : carpeta + "/" + destino;
}

std::string RutaDeRelaciones(const std::string& parte) {
  const auto barra = parte.rfind('/');
  const std::string carpeta = barra == std::string::npos ? "" : parte.substr(0, barra + 1);
  return carpeta + "_rels/" + parte.substr(carpeta.size()) + ".rels";
}

struct Relacion {
  std::string clase, parte;
};

std::map<std::string, Relacion> Relaciones(Zip& zip, const std::string& parte) {
  std::map<std::string, Relacion> relaciones;
  const std::string ruta = RutaDeRelaciones(parte);
  if (!zip.Tiene(ruta)) return relaciones;
  Xml xml(zip, ruta);
  while (xml.Siguiente()) {
    if (!xml.Abre("Relationship") || xml.Atributo("TargetMode") == "External") continue;
    relaciones[xml.Atributo("Id")] = {xml.Atributo("Type"),
                                      Resuelve(parte, xml.Atributo("Target"))};
  }
  return relaciones;
}

std::string PorClase(const std::map<std::string, Relacion>& relaciones, std::string_view clase) {
  for (const auto& [id, r] : relaciones) {
    if (r.clase.ends_with(clase)) return r.parte;
  }
  return {};
}

// Characters that XML does not hold stand as "_x000D_".
std::string SinEscapes(const std::string& texto) {
  constexpr std::size_t kLargo = 7;
  std::string limpio;
  for (std::size_t i = 0; i < texto.size(); ++i) {
    std::uint32_t codigo = 0;
    const char* cifras = texto.data() + i + 2;
    const bool cabe = texto.compare(i, 2, "_x") == 0 && i + kLargo <= texto.size();
    if (cabe && texto[i + kLargo - 1] == '_' &&
        std::from_chars(cifras, cifras + 4, codigo, 16).ptr == cifras + 4) {
      AnadeUtf8(limpio, codigo);
      i += kLargo - 1;
    } else {
      limpio += texto[i];
    }
  }
  return limpio;
}

// Text of an element whose pieces are `t`; that of a reading aid beside it is none of it.
std::string TextoRico(Xml& xml, const char* fin) {
  std::string texto;
  int ayudas = 0;
  while (xml.Borde() && !xml.Cierra(fin)) {
    if (xml.Abre("rPh")) ++ayudas;
    if (xml.Cierra("rPh")) --ayudas;
    if (xml.Abre("t")) {
      const std::string trozo = xml.Texto();
      if (ayudas == 0) texto += trozo;
      if (texto.size() > kMaxTextoCelda) xml.Falla();
    }
  }
  return SinEscapes(texto);
}

std::vector<std::string> TextosComunes(Zip& zip, const std::string& parte) {
  std::vector<std::string> textos;
  if (parte.empty()) return textos;
  Xml xml(zip, parte);
  while (xml.Siguiente()) {
    if (!xml.Abre("si")) continue;
    if (textos.size() >= kMaxTextos) xml.Falla();
    textos.push_back(TextoRico(xml, "si"));
  }
  return textos;
}

// Where a cell says it stands, "B3"; what is no such name is nowhere.
bool LeeLugar(const std::string& nombre, std::size_t& fila, std::size_t& columna) {
  constexpr std::size_t kMaxLetras = 6;
  std::size_t letras = 0, c = 0;
  while (letras < nombre.size() && letras < kMaxLetras && nombre[letras] >= 'A' &&
         nombre[letras] <= 'Z') {
    c = c * 26 + static_cast<std::size_t>(nombre[letras++] - 'A') + 1;
  }
  std::uint32_t f = 0;
  const char* fin = nombre.data() + nombre.size();
  const auto leido = std::from_chars(nombre.data() + letras, fin, f);
  if (letras == 0 || leido.ec != std::errc{} || leido.ptr != fin || f == 0) return false;
  fila = f - 1;
  columna = c - 1;
  return true;
}

class LectorHoja {
 public:
  LectorHoja(Zip& zip, const std::string& parte, const std::vector<std::string>& comunes)
      : xml_(zip, parte), comunes_(comunes) {}

  Cuadro Lee(std::string nombre) {
    Cuadro cuadro;
    cuadro.nombre = std::move(nombre);
    cuadro.decimal = '.';
    std::size_t fila = 0, columna = 0;
    while (xml_.Siguiente()) {
      if (xml_.Abre("row")) {
        const auto dicha = NumeroTexto(xml_.Atributo("r"));
        fila = dicha && *dicha >= 1 && *dicha <= kMaxFila ? static_cast<std::size_t>(*dicha) - 1
                                                          : siguiente_;
        siguiente_ = fila + 1;
        columna = 0;
      } else if (xml_.Abre("c")) {
        LeeLugar(xml_.Atributo("r"), fila, columna);
        auto celda = Celda();
        if (!celda.Vacia()) cuadro.Pon(fila, columna, std::move(celda));
        ++columna;
      }
    }
    return cuadro;
  }

 private:
  static constexpr double kMaxFila = 2e9;

  Xml xml_;
  const std::vector<std::string>& comunes_;
  std::size_t siguiente_ = 0;

  CeldaLeida Celda() {
    const std::string clase = xml_.Atributo("t");
    std::string valor, dentro;
    while (xml_.Borde() && !xml_.Cierra("c")) {
      if (xml_.Abre("v")) valor = xml_.Texto();
      if (xml_.Abre("is")) dentro = TextoRico(xml_, "is");
    }
    if (clase == "inlineStr") return {std::move(dentro)};
    if (valor.empty() || clase == "str") return {std::move(valor)};
    if (clase == "e") return {std::move(valor), 0.0, ClaseCelda::Error};
    if (clase == "b") return {valor, valor == "1" ? 1.0 : 0.0, ClaseCelda::Marca};
    double numero = 0;
    const auto leido = std::from_chars(valor.data(), valor.data() + valor.size(), numero);
    const bool vale = leido.ec == std::errc{} && leido.ptr == valor.data() + valor.size();
    if (clase == "s") {
      if (!vale || !(numero >= 0) || numero >= static_cast<double>(comunes_.size())) xml_.Falla();
      return {comunes_[static_cast<std::size_t>(numero)]};
    }
    if (!vale) return {std::move(valor)};
    return {std::move(valor), numero, ClaseCelda::Numero};
  }
};

}  // namespace

std::vector<Cuadro> LeeXlsx(std::string_view bytes, const Catalogo* textos) {
  if (bytes.size() > kMaxEntrada) {
    throw ErrorEntrada({txt::EntDemasiado, {std::to_string(kMaxEntrada >> 20)}});
  }
  Zip zip(bytes);
  std::string libro = PorClase(Relaciones(zip, {}), "/officeDocument");
  if (libro.empty()) libro = "xl/workbook.xml";
  if (!zip.Tiene(libro)) throw ErrorEntrada({txt::EntNoEsLibro, {}});
  const auto relaciones = Relaciones(zip, libro);
  std::vector<std::pair<std::string, std::string>> hojas;  // name and part
  Xml xml(zip, libro);
  while (xml.Siguiente()) {
    if (!xml.Abre("sheet")) continue;
    const auto r = relaciones.find(xml.AtributoConPrefijo(u"id"));
    if (r != relaciones.end()) hojas.emplace_back(xml.Atributo("name"), r->second.parte);
  }
  const auto esDe = [&](const std::string& nombre, int texto) {
    for (int i = 0; textos != nullptr && i < kIdiomas; ++i) {
      if (Llano(nombre) == Llano(textos->LoadRes(texto + i * kPasoIdioma))) return true;
    }
    return false;
  };
  const auto deInteres = [&](const auto& h) {
    return esDe(h.first, txt::MenuTramos) || esDe(h.first, txt::TarjetaObra);
  };
  if (std::ranges::any_of(hojas, [&](const auto& h) { return esDe(h.first, txt::MenuTramos); })) {
    std::erase_if(hojas, [&](const auto& h) { return !deInteres(h); });
  }
  if (hojas.size() > kMaxHojas) hojas.resize(kMaxHojas);
  const auto comunes = TextosComunes(zip, PorClase(relaciones, "/sharedStrings"));
  std::vector<Cuadro> cuadros;
  for (const auto& [nombre, parte] : hojas) {
    cuadros.push_back(LectorHoja(zip, parte, comunes).Lee(nombre));
  }
  return cuadros;
}

}  // namespace zorbin
