#pragma once

#include <QRect>
#include <functional>

#include "forms/control.h"

class QWidget;

namespace clinorama::forms {
class Label;
}

namespace clinorama::desktop {

// A widget that shows a control, and what it takes to bring it up to date with the control's own
// properties (those that all controls have are brought up to date by SynchroniseView). A zoom is
// the number of the toolkit's pixels to a logical one.
struct View {
  QWidget* Widget = nullptr;
  std::function<void(double zoom)> Synchronise;
};

// The widget for a control's kind, passing on what the user does to it.
View MakeView(forms::Control& control, QWidget& parent);

// Shows what the control now says.
void SynchroniseView(const forms::Control& control, const View& view, double zoom);

// The control as a label that shows a value, such as a slope, which a motion changes with each
// step; null for all others.
const forms::Label* AsValue(const forms::Control& control);

// Place and size of a control in pixels, of which there are `zoom` to a logical one.
QRect PlaceOf(const forms::Control& control, double zoom);

}  // namespace clinorama::desktop
