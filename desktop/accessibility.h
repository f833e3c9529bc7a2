#pragma once

#include <QString>
#include <QWidget>

namespace clinorama::desktop {

// Makes assistive technology, such as a screen reader, find the controls of pages under their
// spoken names and in their roles. What it does to a control happens a moment later, as a motion
// would not let it go on. Call once, when there is an application.
void MakeAccessible();

// The name of the property of a widget that holds the words of a picture.
inline constexpr const char* WordsProperty = "words";

// Tells what nobody has asked for, once: the words of a page that was turned to, or the value that
// a motion has come to. It is a part of its window that cannot be seen.
class Announcer : public QWidget {
 public:
  explicit Announcer(QWidget* parent);
  void Announce(const QString& text);

 protected:
  // A window that is shown again would be told its last announcement again.
  void hideEvent(QHideEvent* event) override;
};

}  // namespace clinorama::desktop
