#include "forms/letters.h"

#include <algorithm>

#include "forms/units.h"

namespace clinorama::forms {
namespace {

// Below this size in device pixels the digits of an axis are painted without grey edges and never
// bold, as their strokes are a pixel wide at the least: that keeps them sharp. The letters "x" and
// "y" would look like others then.
constexpr int SmallestSmoothed = 10;
// Smaller digits cannot be told apart.
constexpr int SmallestDigits = 8;

bool IsLetter(char sign) { return (sign >= 'A' && sign <= 'Z') || (sign >= 'a' && sign <= 'z'); }

}  // namespace

// The size is rounded down, so that no text outgrows the place that the layout gives it.
Letters LettersFor(const Font& font, double density) {
  constexpr double RoundingError = 1e-6;
  const auto pixels = static_cast<int>(font.Size * PixelsToPoint * density + RoundingError);
  return {.Comic = font.Name == "Comic Sans MS", .Pixels = std::max(1, pixels), .Bold = font.Bold};
}

Letters LettersFor(const TextRun& run) {
  Letters letters = LettersFor(run.Font, run.Density);
  // Axes are laid out for a symbol font that is narrower than the plain family: its labels stand
  // less than two pixels apart otherwise.
  letters.Narrow = IsSymbolFont(run.Font);
  letters.Pixels = std::max(letters.Pixels, SmallestDigits);
  letters.Sharp =
      letters.Pixels < SmallestSmoothed && std::none_of(run.Text.begin(), run.Text.end(), IsLetter);
  letters.Bold = letters.Bold && !letters.Sharp;
  return letters;
}

}  // namespace clinorama::forms
