#include "shell/piezas/mdTema.h"

#include <QApplication>
#include <array>

#include "shell/piezas/mdEstilo.h"

namespace zorbin {

namespace {

struct Color {
  QPalette::ColorRole papel;
  const char* claro;
  const char* oscuro;
};

// Dark is the border of a control, Mid that of a card, Link the mark of the focus.
constexpr auto kColores = std::to_array<Color>({
    {QPalette::Window, "#f3f4f6", "#1f2329"},
    {QPalette::WindowText, "#1d2530", "#e6e9ed"},
    {QPalette::Base, "#ffffff", "#16191d"},
    {QPalette::AlternateBase, "#eef1f4", "#1b1f24"},
    {QPalette::Text, "#1d2530", "#e6e9ed"},
    {QPalette::Button, "#f9fafb", "#2a3038"},
    {QPalette::ButtonText, "#1d2530", "#e6e9ed"},
    {QPalette::BrightText, "#ffffff", "#ffffff"},
    {QPalette::ToolTipBase, "#ffffff", "#2a3038"},
    {QPalette::ToolTipText, "#1d2530", "#e6e9ed"},
    {QPalette::PlaceholderText, "#5c6672", "#9aa5b1"},
    {QPalette::Highlight, "#0b6b82", "#1f7a94"},
    {QPalette::HighlightedText, "#ffffff", "#ffffff"},
    {QPalette::Link, "#0b6b82", "#62c6e0"},
    {QPalette::LinkVisited, "#5b4b8a", "#b3a5e6"},
    {QPalette::Light, "#ffffff", "#454e59"},
    {QPalette::Midlight, "#e3e6ea", "#323943"},
    {QPalette::Mid, "#d3d8de", "#3a424c"},
    {QPalette::Dark, "#76808c", "#7d8896"},
    {QPalette::Shadow, "#4b5560", "#0b0d0f"},
});

constexpr auto kApagados = std::to_array<Color>({
    {QPalette::WindowText, "#5c6672", "#9aa5b1"},
    {QPalette::Text, "#5c6672", "#9aa5b1"},
    {QPalette::ButtonText, "#5c6672", "#9aa5b1"},
    {QPalette::Base, "#eceff2", "#22272d"},
    {QPalette::Button, "#eceff2", "#22272d"},
    {QPalette::Highlight, "#5c6672", "#5c6672"},
    {QPalette::HighlightedText, "#ffffff", "#ffffff"},
});

QColor Elige(const QPalette& paleta, const char* claro, const char* oscuro) {
  return QColor(QLatin1String(EsOscura(paleta) ? oscuro : claro));
}

}  // namespace

QPalette PaletaDe(bool oscura) {
  QPalette p;
  for (const auto& c : kColores) {
    p.setColor(c.papel, QColor(QLatin1String(oscura ? c.oscuro : c.claro)));
  }
  for (const auto& c : kApagados) {
    p.setColor(QPalette::Disabled, c.papel, QColor(QLatin1String(oscura ? c.oscuro : c.claro)));
  }
  return p;
}

void PonTema(Tema tema) {
  if (dynamic_cast<EstiloZorbin*>(QApplication::style()) == nullptr) {
    QApplication::setStyle(new EstiloZorbin);
  }
  QApplication::setPalette(QPalette());  // that of the desktop, which says whether it is dark
  const bool oscura =
      tema == Tema::Oscuro || (tema == Tema::Sistema && EsOscura(QApplication::palette()));
  QApplication::setPalette(PaletaDe(oscura));
}

bool EsOscura(const QPalette& paleta) {
  return paleta.color(QPalette::Active, QPalette::Window).lightness() <
         paleta.color(QPalette::Active, QPalette::WindowText).lightness();
}

QColor ColorFalta(const QPalette& paleta) {
  return Elige(paleta, "#b3261e", "#ff8f85");
}

QColor ColorAviso(const QPalette& paleta) {
  return Elige(paleta, "#8a5300", "#f0b45a");
}

QColor ColorBien(const QPalette& paleta) {
  return Elige(paleta, "#1b7a43", "#6fd08c");
}

}  // namespace zorbin
