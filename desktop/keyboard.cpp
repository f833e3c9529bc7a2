#include "desktop/keyboard.h"

#include <QWidget>
#include <utility>

namespace clinorama::desktop {

Keyboard::Keyboard(QWidget& window, QWidget& ground,
                   std::function<QWidget*(const QWidget& widget)> inPlaceOf)
    : window_(window), ground_(ground), inPlaceOf_(std::move(inPlaceOf)) {}

bool Keyboard::Free(const QWidget* widget) const {
  return widget != nullptr && widget->isEnabledTo(&window_) && widget->isVisibleTo(&window_);
}

void Keyboard::Leave(const QWidget& widget) {
  QWidget* focus = window_.focusWidget();
  if (focus != nullptr && (focus == &widget || widget.isAncestorOf(focus))) {
    left_ = focus;
    ground_.setFocus();
  }
}

void Keyboard::ComeBack() {
  if (left_ == nullptr || window_.focusWidget() != &ground_) {
    return;
  }
  for (QWidget* widget : {left_, inPlaceOf_(*left_)}) {
    if (Free(widget)) {
      widget->setFocus();
      return;
    }
  }
}

bool Keyboard::GoOn(bool next) {
  if (left_ == nullptr || window_.focusWidget() != &ground_) {
    return false;
  }
  QWidget* widget = left_;
  do {
    widget = next ? widget->nextInFocusChain() : widget->previousInFocusChain();
  } while (widget != left_ && !((widget->focusPolicy() & Qt::TabFocus) != 0 && Free(widget)));
  widget->setFocus(next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
  return true;
}

}  // namespace clinorama::desktop
