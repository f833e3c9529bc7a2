#pragma once

#include <QWidget>
#include <map>

#include "desktop/views.h"

class QMenu;

namespace clinorama::forms {
class Menu;
class Page;
class PictureBox;
}  // namespace clinorama::forms

namespace clinorama::desktop {

// The window of a page: its menu bar, its client area of fixed size, and a view of each control.
class PageWindow : public QWidget {
 public:
  explicit PageWindow(forms::Page& page);

  // Shows what a control (or the page itself) now says.
  void Synchronise(forms::Control& control);
  // Lets what was drawn appear when the event loop next runs, or at once.
  void ShowDrawing(forms::PictureBox& picture);
  void ShowDrawingNow(forms::PictureBox& picture);
  void Focus(forms::Control& control);
  // Hides the window for good and cuts it off from its page: neither the window nor anything in it
  // takes an event or sends a signal from then on.
  void Leave();
  // The page that the window shows; null after Leave.
  forms::Page* Page() const { return page_; }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;

 private:
  void AddControls(forms::Control& container, QWidget& parent);
  void SynchronisePage();
  QWidget* WidgetOf(const forms::Control& control) const;

  forms::Page* page_;
  QWidget* client_;
  std::map<const forms::Control*, View> views_;
};

}  // namespace clinorama::desktop
