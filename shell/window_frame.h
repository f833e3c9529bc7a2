#pragma once

#include "forms/control.h"

namespace clinorama {

// What a window has around its client area: borders at the sides, title bar and border above and
// below. Pages whose size is told with its frame lose so much of it.
constexpr double WindowFrameWidth = 120;
constexpr double WindowFrameHeight = 405;

// The client area of a window whose width and height, in twips, count its frame in. Left and top
// are those of the client area.
constexpr forms::Rect ClientAreaOf(double left, double top, double windowWidth,
                                   double windowHeight) {
  return {left, top, windowWidth - WindowFrameWidth, windowHeight - WindowFrameHeight};
}

}  // namespace clinorama
