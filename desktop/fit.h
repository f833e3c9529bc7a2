#pragma once

#include <QMargins>
#include <QPointF>
#include <QRect>

namespace clinorama::desktop {

// How the screen that pages are laid out for, of 1024x768 logical pixels, is shown on a real one:
// as large as it fits, and in the middle.
struct Fit {
  double Zoom = 1;  // the toolkit's pixels to a logical one
  QPointF Corner;   // where the corner of the laid out screen comes to lie, in the toolkit's pixels
};

// The fit into what a screen has free, where windows have these frames. Frames are not zoomed, so
// the title bars leave more room to a larger layout. On 1024x768 pixels the zoom is 1, unless the
// frames are higher than the layout allows for.
Fit FitInto(const QRect& available, const QMargins& frame);

}  // namespace clinorama::desktop
