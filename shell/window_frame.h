#pragma once

#include "forms/control.h"

namespace clinorama {

// The frame of a window in twips: borders on all sides, and the title bar. Where a page's size is
// given with its frame, the client area is smaller by these two.
constexpr double WindowFrameWidth = 120;
constexpr double WindowFrameHeight = 405;

// The client area of a window, in twips. Left and top are those of the client area; width and
// height are those of the window with its frame.
constexpr forms::Rect ClientAreaOf(double left, double top, double windowWidth,
                                   double windowHeight) {
  return {left, top, windowWidth - WindowFrameWidth, windowHeight - WindowFrameHeight};
}

}  // namespace clinorama
