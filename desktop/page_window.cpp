#include "desktop/page_window.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QMenu>
#include <QMenuBar>
#include <QScreen>
#include <QWindow>
#include <algorithm>

#include "desktop/look.h"
#include "desktop/surface_view.h"
#include "forms/application.h"
#include "forms/controls.h"
#include "forms/picture_box.h"

namespace clinorama::desktop {
namespace {

// A window that the user drags to another screen settles when it has not moved for so long.
constexpr int MillisecondsToFit = 300;

// The widest frames that the window manager has given to pages so far.
QMargins FrameOfPages() {
  QMargins frame;
  for (const QWidget* window : QApplication::topLevelWidgets()) {
    if (window->isVisible() && dynamic_cast<const PageWindow*>(window) != nullptr) {
      frame = frame | window->windowHandle()->frameMargins();
    }
  }
  return frame;
}

template <class Bar>
void AddMenuItems(Bar& bar, const std::vector<forms::Menu*>& items) {
  for (forms::Menu* item : items) {
    if (item->Items().empty()) {
      QAction* action = bar.addAction(TextFor(item->Caption));
      action->setObjectName(TextFor(item->Name));
      QObject::connect(action, &QAction::triggered, &bar, [item] { item->UserClick(); });
    } else {
      QMenu* menu = bar.addMenu(TextFor(item->Caption));
      menu->setObjectName(TextFor(item->Name));
      AddMenuItems(*menu, item->Items());
    }
  }
}

}  // namespace

PageWindow::PageWindow(forms::Page& page, QScreen& screen)
    : page_(&page), client_(new QWidget(this)) {
  setObjectName(TextFor(page.Name()));
  setScreen(&screen);
  if (!page.MenuBar().empty()) {
    bar_ = new QMenuBar(this);
    AddMenuItems(*bar_, page.MenuBar());
  }
  AddControls(page, *client_);
  SynchronisePage();
  fitting_.setSingleShot(true);
  fitting_.setInterval(MillisecondsToFit);
  fitting_.callOnTimeout([this] { FitOnce(*this->screen()); });
  FitOnce(screen);
}

void PageWindow::AddControls(forms::Control& container, QWidget& parent) {
  for (forms::Control* control : container.Children()) {
    View view = MakeView(*control, parent);
    view.Widget->setObjectName(TextFor(control->Name()));
    AddControls(*control, *view.Widget);
    views_.emplace(control, std::move(view));
  }
}

Fit PageWindow::FitTo(const QScreen& screen) {
  return FitInto(screen.availableGeometry(), FrameOfPages());
}

void PageWindow::FitOnce(const QScreen& screen) {
  const Fit fit = FitTo(screen);
  if (fit.Zoom == zoom_) {
    return;
  }
  zoom_ = fit.Zoom;
  SetLookOf(*this, zoom_);
  int barHeight = 0;
  const QRect client = PlaceOf(*page_, zoom_);
  if (bar_ != nullptr) {
    for (QMenu* menu : bar_->findChildren<QMenu*>()) {
      SetLookOf(*menu, zoom_);
    }
    barHeight = bar_->sizeHint().height();
    bar_->setGeometry(0, 0, client.width(), barHeight);
  }
  for (const auto& [control, view] : views_) {
    SynchroniseView(*control, view, zoom_);
  }
  client_->setGeometry(0, barHeight, client.width(), client.height());
  setFixedSize(client.width(), barHeight + client.height());
  const QPoint corner = fit.Corner.toPoint() + client.topLeft() - QPoint(0, barHeight);
  const int highest = screen.availableGeometry().top() + FrameOfPages().top();
  const QRect place({corner.x(), std::max(corner.y(), highest)}, size());
  setGeometry(place);
}

void PageWindow::SynchronisePage() {
  setWindowTitle(TextFor(page_->Caption()));
  setAccessibleName(TextFor(page_->SpokenName()));
  if (page_->MousePointer == forms::MousePointer::Hourglass) {
    setCursor(Qt::WaitCursor);
  } else {
    unsetCursor();
  }
}

void PageWindow::Synchronise(forms::Control& control) {
  if (&control == page_) {
    SynchronisePage();
  } else if (const auto found = views_.find(&control); found != views_.end()) {
    SynchroniseView(control, found->second, zoom_);
  }
}

QWidget* PageWindow::WidgetOf(const forms::Control& control) const {
  const auto found = views_.find(&control);
  return found == views_.end() ? nullptr : found->second.Widget;
}

void PageWindow::ShowDrawing(forms::PictureBox& picture) {
  if (QWidget* widget = WidgetOf(picture)) {
    static_cast<SurfaceView*>(widget)->ShowSoon();
  }
}

void PageWindow::ShowDrawingNow(forms::PictureBox& picture) {
  if (QWidget* widget = WidgetOf(picture)) {
    static_cast<SurfaceView*>(widget)->ShowNow();
  }
}

void PageWindow::Focus(forms::Control& control) {
  if (QWidget* widget = WidgetOf(control)) {
    widget->setFocus();
  }
}

void PageWindow::Leave() {
  page_ = nullptr;
  fitting_.stop();
  views_.clear();
  hide();
  const auto cutOff = [this](QObject* object) {
    object->blockSignals(true);
    object->installEventFilter(this);
  };
  for (QWidget* widget : findChildren<QWidget*>()) {
    if (widget->isWindow()) {
      widget->close();  // an open menu
    }
  }
  for (QObject* object : findChildren<QObject*>()) {
    cutOff(object);
  }
  cutOff(this);
}

// The filter stands on the window and on all in it as soon as its page is gone.
bool PageWindow::eventFilter(QObject* /*watched*/, QEvent* /*event*/) { return true; }

void PageWindow::showEvent(QShowEvent* /*event*/) {
  QObject::connect(windowHandle(), &QWindow::screenChanged, this, &PageWindow::WatchTheScreen,
                   Qt::UniqueConnection);
  WatchTheScreen();
}

void PageWindow::moveEvent(QMoveEvent* /*event*/) {
  if (fitting_.isActive()) {
    fitting_.start();
  }
}

// The screen may be another one now, and it may get another resolution or a panel.
void PageWindow::WatchTheScreen() {
  QObject::connect(screen(), &QScreen::availableGeometryChanged, &fitting_,
                   qOverload<>(&QTimer::start), Qt::UniqueConnection);
  fitting_.start();
}

// The page decides what closing means; where it unloads itself the window is hidden by that.
void PageWindow::closeEvent(QCloseEvent* event) {
  event->ignore();
  if (page_ == nullptr) {
    return;
  }
  forms::Page& page = *page_;
  forms::Application::Current().Run(page, [&page] { page.UserClose(); });
}

}  // namespace clinorama::desktop
