#pragma once

#include <string>

namespace clinorama::forms {

// A font by the name that pages give it; the host chooses the installed font that stands for it.
struct Font {
  std::string Name = "MS Sans Serif";
  double Size = 8.25;  // points, 72 to the inch; a pixel of the layout is 1/96 inch
  bool Bold = false;
  friend bool operator==(const Font&, const Font&) = default;
};

// Whether it is the font "Symbol", which has signs in the places of letters. The case of the name
// does not matter.
bool IsSymbolFont(const Font& font);

// The text as it is to be seen in the font: the characters that pages write for the font "Symbol"
// ("p", the yen sign) become the signs that this font has in their places (π, ∞). Text in any other
// font comes back unchanged.
std::string VisibleText(const Font& font, std::string text);

}  // namespace clinorama::forms
