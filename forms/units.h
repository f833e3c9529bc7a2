#pragma once

#include <algorithm>

namespace clinorama::forms {

// Geometry of pages is in twips, 1440 to the inch, 15 to a pixel of the 1024x768 layout.
constexpr double TwipsToPixel = 15;
// Sizes of fonts are in points, 72 to the inch.
constexpr double PixelsToPoint = 96.0 / 72.0;

// A place or a size in logical pixels, for a host. A marker may be sent far off its surface; it is
// as invisible a little beyond.
constexpr double LogicalPixels(double twips) {
  constexpr double Far = 10000;
  return std::clamp(twips / TwipsToPixel, -Far, Far);
}

}  // namespace clinorama::forms
