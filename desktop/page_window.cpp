#include "desktop/page_window.h"

#include <QAction>
#include <QCloseEvent>
#include <QGuiApplication>
#include <QMenu>
#include <QMenuBar>
#include <QScreen>

#include "desktop/look.h"
#include "desktop/surface_view.h"
#include "forms/application.h"
#include "forms/controls.h"
#include "forms/picture_box.h"

namespace clinorama::desktop {
namespace {

// The screen that pages are laid out for; on a larger one they stand as far from its middle.
constexpr QSize LayoutScreen(1024, 768);

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

PageWindow::PageWindow(forms::Page& page) : page_(&page), client_(new QWidget(this)) {
  setObjectName(TextFor(page.Name()));
  AddControls(page, *client_);
  const QRect client = PlaceOf(page);
  int barHeight = 0;
  if (!page.MenuBar().empty()) {
    auto* bar = new QMenuBar(this);
    AddMenuItems(*bar, page.MenuBar());
    barHeight = bar->sizeHint().height();
    bar->setGeometry(0, 0, client.width(), barHeight);
  }
  client_->setGeometry(0, barHeight, client.width(), client.height());
  const QSize size(client.width(), barHeight + client.height());
  const QSize spare = (QGuiApplication::primaryScreen()->size() - LayoutScreen) / 2;
  setGeometry(QRect(QPoint(client.left() + qMax(0, spare.width()),
                           client.top() - barHeight + qMax(0, spare.height())),
                    size));
  setFixedSize(size);
  SynchronisePage();
}

void PageWindow::AddControls(forms::Control& container, QWidget& parent) {
  for (forms::Control* control : container.Children()) {
    View view = MakeView(*control, parent);
    view.Widget->setObjectName(TextFor(control->Name()));
    SynchroniseView(*control, view);
    AddControls(*control, *view.Widget);
    views_.emplace(control, std::move(view));
  }
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
    SynchroniseView(control, found->second);
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
