#pragma once

namespace clinorama::forms {

// Geometry of pages is in twips, 1440 to the inch, 15 to a pixel of the 1024x768 layout.
constexpr double TwipsToPixel = 15;

}  // namespace clinorama::forms
