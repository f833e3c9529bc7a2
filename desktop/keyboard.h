#pragma once

#include <functional>

class QWidget;

namespace clinorama::desktop {

// Keeps the keyboard of a window where the user put it. The toolkit gives it to the next control,
// whatever that does, when a control that has it is locked or hidden. Here it waits on the empty
// ground of the page until that control is free again, or another one in its place.
class Keyboard {
 public:
  // `inPlaceOf` gives the widget that may have the keyboard instead of another one, or null.
  Keyboard(QWidget& window, QWidget& ground,
           std::function<QWidget*(const QWidget& widget)> inPlaceOf);

  // A widget is about to be locked or hidden.
  void Leave(const QWidget& widget);
  // Something may be free again.
  void ComeBack();
  // Goes on by the tabulator from the widget that lost the keyboard; false where none did.
  bool GoOn(bool next);

 private:
  bool Free(const QWidget* widget) const;

  QWidget& window_;
  QWidget& ground_;
  std::function<QWidget*(const QWidget& widget)> inPlaceOf_;
  QWidget* left_ = nullptr;  // the widget that had the keyboard
};

}  // namespace clinorama::desktop
