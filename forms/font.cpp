#include "forms/font.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace clinorama::forms {
namespace {

struct Substitution {
  std::string_view Written;
  std::string_view Shown;
};

// Only the characters that the pages use of the font: p, and the byte A5 of its encoding.
constexpr std::array<Substitution, 2> SymbolSigns = {{{"p", "π"}, {"¥", "∞"}}};

}  // namespace

bool IsSymbolFont(const Font& font) {
  constexpr std::string_view Symbol = "symbol";
  const auto sameLetter = [](char a, char b) { return (a | 0x20) == b; };
  return font.Name.size() == Symbol.size() &&
         std::equal(font.Name.begin(), font.Name.end(), Symbol.begin(), sameLetter);
}

std::string VisibleText(const Font& font, std::string text) {
  if (!IsSymbolFont(font)) {
    return text;
  }
  for (const auto& [written, shown] : SymbolSigns) {
    for (auto at = text.find(written); at != std::string::npos;
         at = text.find(written, at + shown.size())) {
      text.replace(at, written.size(), shown);
    }
  }
  return text;
}

}  // namespace clinorama::forms
