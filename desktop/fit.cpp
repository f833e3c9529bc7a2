#include "desktop/fit.h"

#include <algorithm>

namespace clinorama::desktop {
namespace {

constexpr int LayoutWidth = 1024;
constexpr int LayoutHeight = 768;
// What the layout leaves to a frame above and below a page.
constexpr int FrameHeight = 27;
constexpr double SmallestZoom = 0.1;

}  // namespace

Fit FitInto(const QRect& available, const QMargins& frame) {
  const double frameHeight = std::max(FrameHeight, frame.top() + frame.bottom());
  const double zoom = std::max(
      SmallestZoom, std::min(available.width() / double(LayoutWidth),
                             (available.height() - frameHeight) / (LayoutHeight - FrameHeight)));
  const double spareWidth = available.width() - LayoutWidth * zoom;
  const double spareHeight = available.height() - frameHeight - (LayoutHeight - FrameHeight) * zoom;
  return {zoom, QPointF(available.left() + spareWidth / 2,
                        available.top() + frameHeight - FrameHeight * zoom + spareHeight / 2)};
}

}  // namespace clinorama::desktop
