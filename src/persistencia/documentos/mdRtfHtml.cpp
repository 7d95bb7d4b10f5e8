#include <array>
#include <charconv>
#include <cmath>

#include "persistencia/documentos/mdRtf.h"

namespace zorbin {

namespace {

constexpr double kPixelesPorPunto = 96.0 / 72.0;
constexpr std::size_t kMaxMarca = 12;  // bytes of the marker of a list

std::string Pixeles(double puntos) {
  return std::to_string(std::lround(puntos * kPixelesPorPunto)) + "px";
}

std::string Cifras(double x) {
  std::array<char, 32> cifras{};
  const auto fin = std::to_chars(cifras.data(), cifras.data() + cifras.size(), x);
  return {cifras.data(), fin.ptr};
}

void AnadeEscapado(std::string& html, std::string_view texto) {
  for (const char c : texto) {
    switch (c) {
      case '&':
        html += "&amp;";
        break;
      case '<':
        html += "&lt;";
        break;
      case '>':
        html += "&gt;";
        break;
      case '"':
        html += "&quot;";
        break;
      case '\n':
        html += "<br/>";
        break;
      default:
        html.push_back(c);
    }
  }
}

std::string EstiloDeLetra(const LetraRtf& letra) {
  std::string estilo = "font-size:" + Cifras(letra.cuerpo) + "pt";
  if (letra.negrita) estilo += ";font-weight:bold";
  if (letra.cursiva) estilo += ";font-style:italic";
  if (letra.subrayado) estilo += ";text-decoration:underline";
  return estilo;
}

void AnadeTrozo(std::string& html, const LetraRtf& letra, std::string_view texto) {
  if (texto.empty()) return;
  html += "<span style=\"" + EstiloDeLetra(letra) + "\">";
  AnadeEscapado(html, texto);
  html += "</span>";
}

std::string_view Alineacion(AlineacionRtf a) {
  switch (a) {
    case AlineacionRtf::Centro:
      return "center";
    case AlineacionRtf::Derecha:
      return "right";
    case AlineacionRtf::Justificada:
      return "justify";
    case AlineacionRtf::Izquierda:
      break;
  }
  return "left";
}

void AbreParrafo(std::string& html, const CajaRtf& caja, double sangria, double primeraLinea) {
  html += "<p align=\"" + std::string(Alineacion(caja.alineacion)) +
          "\" style=\"margin:" + Pixeles(caja.antes) + " 0px " + Pixeles(caja.despues) + " " +
          Pixeles(sangria) + ";text-indent:" + Pixeles(primeraLinea) + ";white-space:pre-wrap\">";
}

// The runs of a paragraph in two parts, at its first tabulator.
struct Partido {
  std::vector<TrozoRtf> marca;
  std::vector<TrozoRtf> resto;
};

// A line that hangs out with a short marker before a tabulator is an item of a list.
bool EsDeLista(const ParrafoRtf& p, Partido& partido) {
  if (p.caja.primeraLinea >= 0 || p.caja.sangria <= 0) return false;
  std::size_t largo = 0;
  for (auto trozo = p.trozos.begin(); trozo != p.trozos.end(); ++trozo) {
    const std::string_view texto = trozo->texto;
    const auto tab = texto.find('\t');
    const auto antes = texto.substr(0, tab);
    largo += antes.size();
    if (largo > kMaxMarca || antes.find('\n') != std::string::npos) return false;
    partido.marca.push_back({trozo->letra, std::string(antes)});
    if (tab == std::string_view::npos) continue;
    partido.resto.push_back({trozo->letra, std::string(texto.substr(tab + 1))});
    partido.resto.insert(partido.resto.end(), trozo + 1, p.trozos.end());
    return true;
  }
  return false;
}

void AnadeTrozos(std::string& html, const std::vector<TrozoRtf>& trozos) {
  for (const auto& t : trozos) AnadeTrozo(html, t.letra, t.texto);
}

std::string AbreCelda(const CajaRtf& caja, double ancho) {
  std::string celda =
      "<td style=\"padding:" + Pixeles(caja.antes) + " 0px " + Pixeles(caja.despues) + " 0px\"";
  if (ancho > 0) {
    celda += " width=\"" + std::to_string(std::lround(ancho * kPixelesPorPunto)) + "\"";
  }
  return celda + ">";
}

void AnadeCelda(std::string& html, const CajaRtf& caja, double ancho,
                const std::vector<TrozoRtf>& trozos) {
  html += AbreCelda(caja, ancho);
  AbreParrafo(html, {.alineacion = caja.alineacion}, 0, 0);
  AnadeTrozos(html, trozos);
  html += "</p></td>";
}

// Marker and text side by side, since tabulators stop where the viewer likes.
void AnadeDeLista(std::string& html, const CajaRtf& caja, const Partido& partido) {
  const double margen = caja.sangria + caja.primeraLinea;
  CajaRtf deMarca = caja;
  deMarca.alineacion = AlineacionRtf::Izquierda;
  html += "<table border=\"0\" cellspacing=\"0\" cellpadding=\"0\"><tr>";
  if (margen > 0) AnadeCelda(html, caja, margen, {});
  AnadeCelda(html, deMarca, -caja.primeraLinea, partido.marca);
  AnadeCelda(html, caja, 0, partido.resto);
  html += "</tr></table>\n";
}

void AnadeParrafo(std::string& html, const ParrafoRtf& p) {
  Partido partido;
  if (EsDeLista(p, partido)) return AnadeDeLista(html, p.caja, partido);
  AbreParrafo(html, p.caja, p.caja.sangria, p.caja.primeraLinea);
  if (p.trozos.empty()) AnadeTrozo(html, p.letra, "\u00A0");
  AnadeTrozos(html, p.trozos);
  html += "</p>\n";
}

}  // namespace

std::string HtmlDeRtf(const DocumentoRtf& documento) {
  std::string html = "<!DOCTYPE html>\n<html><head><meta charset=\"utf-8\"/></head>\n<body>\n";
  for (const auto& p : documento.parrafos) AnadeParrafo(html, p);
  return html + "</body></html>\n";
}

}  // namespace zorbin
