// A sheet as DXF for a drafting program: ASCII of release 12, in true millimetres.
#pragma once

#include <string>

#include "listados/dibujos/mdLamina.h"

namespace zorbin {

/// A sheet with a scale leaves at 1:1: its main view, its texts and lines grow by that scale, and
/// each detail by its own, so that whatever is measured has its size in millimetres. A detail stays
/// about its place on the sheet, or beside the sheet where it would grow beyond it. A sheet
/// without scale keeps its millimetres of paper. Layers are those of NombreCapa, whatever the
/// language; steel that the paper shows as a line has both its faces. What the format has no means
/// for stays out: the weight of lines and the tints of areas, whose edges and hatches are drawn.
/// @param titulo  of the drawing, told in a comment
std::string DxfDe(const Lamina& lamina, const std::string& titulo);

/// A text in the bytes of Windows-1252, as such a file holds it: Greek letters by their name,
/// mathematical signs by those of ASCII, any other letter that the page lacks as \U+ and its code.
std::string TextoDxf(const std::string& utf8);

}  // namespace zorbin
