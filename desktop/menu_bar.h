#pragma once

#include <QMenuBar>

namespace clinorama::forms {
class Page;
}

namespace clinorama::desktop {

// The menu bar of a page. Each item can be chosen by a letter, unique within its menu; the letters
// on the bar are marked while Alt is pressed or the keyboard is on the bar.
class MenuBar : public QMenuBar {
 public:
  MenuBar(forms::Page& page, QWidget* parent);

  bool MarksLetters() const { return altPressed_ || hasFocus(); }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool altPressed_ = false;
};

}  // namespace clinorama::desktop
