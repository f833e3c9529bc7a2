#pragma once

#include "forms/surface.h"

namespace clinorama::tests {

// The colour that one of a surface's pictures shows at a point in user units. The surface has one
// device pixel to a logical one.
inline forms::Color ColorAt(const forms::Surface& surface, const forms::Raster& picture, double x,
                            double y) {
  return picture.At(static_cast<int>(surface.LogicalX(x)), static_cast<int>(surface.LogicalY(y)));
}

}  // namespace clinorama::tests
