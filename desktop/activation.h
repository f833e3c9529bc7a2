#pragma once

#include <QObject>
#include <QTimer>

namespace clinorama::desktop {

// Tells the application which page the user has come to. While one page is hidden and another shown
// in its place, a window manager may make a third one active for a moment; so a page counts as
// active when nothing has changed for a while, or at once when the user presses something on it.
class Activation : public QObject {
 public:
  Activation();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QTimer rest_;
};

}  // namespace clinorama::desktop
