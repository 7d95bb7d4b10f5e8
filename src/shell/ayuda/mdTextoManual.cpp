#include "shell/ayuda/mdTextoManual.h"

#include <QTextBlock>
#include <QTextDocument>
#include <algorithm>

namespace zorbin {

namespace {

QHash<QString, int> Anclas(const QTextDocument& documento) {
  QHash<QString, int> anclas;
  for (auto bloque = documento.begin(); bloque.isValid(); bloque = bloque.next()) {
    for (auto i = bloque.begin(); !i.atEnd(); ++i) {
      const auto trozo = i.fragment();
      for (const auto& ancla : trozo.charFormat().anchorNames()) {
        if (!anclas.contains(ancla)) anclas.insert(ancla, trozo.position());
      }
    }
  }
  return anclas;
}

}  // namespace

TextoManual::TextoManual(const QTextDocument& documento, const Manual& manual)
    : plegado_(Pliega(documento.toRawText())), anclas_(Anclas(documento)) {
  int anterior = 0;
  for (const auto& apartado : manual.apartados) {
    anterior = std::max(anterior, anclas_.value(apartado.ancla, anterior));
    inicios_.push_back(anterior);
  }
  if (!inicios_.empty()) inicios_.front() = 0;  // what stands above it belongs to it
}

std::vector<TextoManual::Hallazgo> TextoManual::Busca(const QString& palabras) const {
  const QStringList buscadas = Pliega(palabras).simplified().split(' ', Qt::SkipEmptyParts);
  std::vector<Hallazgo> hallazgos;
  if (buscadas.isEmpty()) return hallazgos;
  for (std::size_t i = 0; i < inicios_.size(); ++i) {
    const int fin = i + 1 < inicios_.size() ? inicios_[i + 1] : static_cast<int>(plegado_.size());
    auto halladas = BuscaEn(inicios_[i], fin, buscadas);
    if (!halladas.empty()) hallazgos.push_back({i, std::move(halladas)});
  }
  return hallazgos;
}

// All places of the words between two positions, in order; none when one of them is missing.
std::vector<TextoManual::Palabra> TextoManual::BuscaEn(int desde, int hasta,
                                                       const QStringList& palabras) const {
  const auto trozo = QStringView(plegado_).sliced(desde, hasta - desde);
  std::vector<Palabra> halladas;
  for (const auto& palabra : palabras) {
    const auto antes = halladas.size();
    for (auto i = BuscaPalabra(trozo, palabra); i >= 0; i = BuscaPalabra(trozo, palabra, i + 1)) {
      halladas.push_back({desde + static_cast<int>(i), static_cast<int>(palabra.size())});
    }
    if (halladas.size() == antes) return {};
  }
  std::sort(halladas.begin(), halladas.end(),
            [](const Palabra& a, const Palabra& b) { return a.lugar < b.lugar; });
  return halladas;
}

std::size_t TextoManual::ApartadoEn(int lugar) const {
  const auto tras = std::upper_bound(inicios_.begin(), inicios_.end(), lugar);
  return tras == inicios_.begin() ? 0 : static_cast<std::size_t>(tras - inicios_.begin()) - 1;
}

}  // namespace zorbin
