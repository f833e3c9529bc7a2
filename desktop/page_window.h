#pragma once

#include <QTimer>
#include <QWidget>
#include <map>
#include <set>

#include "desktop/fit.h"
#include "desktop/keyboard.h"
#include "desktop/views.h"

class QScreen;

namespace clinorama::forms {
class Label;
class Page;
class PictureBox;
}  // namespace clinorama::forms

namespace clinorama::desktop {

class Announcer;
class MenuBar;

// The window of a page: its menu bar, its client area of fixed size, and a view of each control. It
// is as large as it fits the screen that it is on.
class PageWindow : public QWidget {
 public:
  PageWindow(forms::Page& page, QScreen& screen);

  // How pages fit a screen beside the frames that the window manager gives them.
  static Fit FitTo(const QScreen& screen);
  // Takes the size and the place for a screen, unless the window is there already in this size.
  void FitOnce(const QScreen& screen);

  // Shows what a control (or the page itself) now says.
  void Synchronise(forms::Control& control);
  // Lets what was drawn appear when the event loop next runs, or at once.
  void ShowDrawing(forms::PictureBox& picture);
  void ShowDrawingNow(forms::PictureBox& picture);
  void Focus(forms::Control& control);
  // Hides the window for good and cuts it off from its page: neither the window nor anything in it
  // takes an event or sends a signal from then on.
  void Leave();
  // The control that a widget in the window shows; null where there is none, and after Leave.
  forms::Control* ControlOf(const QWidget& widget) const;
  // The page that the window shows; null after Leave.
  forms::Page* Page() const { return page_; }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void moveEvent(QMoveEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  bool focusNextPrevChild(bool next) override;

 private:
  void WatchTheScreen();
  void AddKeys();
  void AddControls(forms::Control& container, QWidget& parent);
  void SynchronisePage();
  QWidget* WidgetOf(forms::Control& control) const;
  QWidget* InPlaceOf(const QWidget& widget) const;
  std::set<const QWidget*> TextsInView() const;
  void AnnounceNews();

  forms::Page* page_;
  double zoom_ = 0;  // none yet
  MenuBar* bar_ = nullptr;
  QWidget* client_;
  Keyboard keyboard_;
  Announcer* announcer_;
  std::set<const forms::Label*> values_;  // to be announced
  std::set<const QWidget*> texts_;        // in view, and announced
  QTimer announcing_;
  QTimer fitting_;
  std::map<forms::Control*, View> views_;
};

}  // namespace clinorama::desktop
