#include "desktop/page_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QMenu>
#include <QScreen>
#include <QShortcut>
#include <QWindow>
#include <algorithm>
#include <utility>

#include "desktop/accessibility.h"
#include "desktop/look.h"
#include "desktop/menu_bar.h"
#include "desktop/surface_view.h"
#include "forms/application.h"
#include "forms/controls.h"
#include "forms/picture_box.h"

namespace clinorama::desktop {
namespace {

// A window that the user drags to another screen settles when it has not moved for so long.
constexpr int MillisecondsToFit = 300;

// So long after the last change the news are told.
constexpr int MillisecondsToAnnounce = 100;

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

bool HasWords(const QWidget& widget) { return widget.property(WordsProperty).isValid(); }

}  // namespace

PageWindow::PageWindow(forms::Page& page, QScreen& screen)
    : page_(&page),
      client_(new QWidget(this)),
      keyboard_(*this, *client_, [this](const QWidget& widget) { return InPlaceOf(widget); }) {
  setObjectName(TextFor(page.Name()));
  setScreen(&screen);
  announcer_ = new Announcer(this);
  if (!page.MenuBar().empty()) {
    bar_ = new MenuBar(page, this);
  }
  AddControls(page, *client_);
  AddKeys();
  SynchronisePage();
  announcing_.setSingleShot(true);
  announcing_.setInterval(MillisecondsToAnnounce);
  announcing_.callOnTimeout([this] { AnnounceNews(); });
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
  // Screens of the same zoom may differ in their pixels.
  for (const auto& [control, view] : views_) {
    if (auto* picture = dynamic_cast<forms::PictureBox*>(control)) {
      picture->Density(fit.Zoom * screen.devicePixelRatio());
    }
  }
  if (fit.Zoom == zoom_ && &screen == this->screen()) {
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
    return;
  }
  const auto found = views_.find(&control);
  if (found == views_.end()) {
    return;
  }
  const QWidget& widget = *found->second.Widget;
  if (!control.Visible || !control.Enabled) {
    keyboard_.Leave(widget);
  }
  SynchroniseView(control, found->second, zoom_);
  keyboard_.ComeBack();
  if (const forms::Label* value = AsValue(control)) {
    values_.insert(value);
  }
  if (!values_.empty() || HasWords(widget)) {
    announcing_.start();
  }
}

std::set<const QWidget*> PageWindow::TextsInView() const {
  std::set<const QWidget*> texts;
  for (const auto& [control, view] : views_) {
    if (HasWords(*view.Widget) && view.Widget->isVisible()) {
      texts.insert(view.Widget);
    }
  }
  return texts;
}

// All in one, as an announcement is lost when another follows at once. The values of a motion that
// runs, or that pauses, change again before it ends.
void PageWindow::AnnounceNews() {
  QStringList news;
  const std::set<const QWidget*> before = std::exchange(texts_, TextsInView());
  for (const QWidget* text : texts_) {
    if (before.count(text) == 0) {
      news << text->property(WordsProperty).toString();
    }
  }
  if (forms::Application::Current().AtRest()) {
    for (const forms::Label* value : std::exchange(values_, {})) {
      if (!value->Caption().empty()) {
        news << TextFor(value->SpokenName());
      }
    }
  }
  if (!news.isEmpty()) {
    announcer_->Announce(news.join('\n'));
  }
}

// The twin of a button, or the page of a text that is seen instead of another one.
QWidget* PageWindow::InPlaceOf(const QWidget& widget) const {
  if (const auto* button = dynamic_cast<const forms::CommandButton*>(ControlOf(widget))) {
    return button->Twin == nullptr ? nullptr : WidgetOf(*button->Twin);
  }
  if (HasWords(widget)) {
    for (const auto& [control, view] : views_) {
      if (HasWords(*view.Widget) && view.Widget->isVisibleTo(this)) {
        return view.Widget;
      }
    }
  }
  return nullptr;
}

bool PageWindow::focusNextPrevChild(bool next) {
  return keyboard_.GoOn(next) || QWidget::focusNextPrevChild(next);
}

void PageWindow::AddKeys() {
  const auto add = [this](const QKeySequence& keys, auto action) {
    auto* shortcut = new QShortcut(keys, this);
    shortcut->setAutoRepeat(false);
    QObject::connect(shortcut, &QShortcut::activated, this, action);
  };
  add(Qt::CTRL | Qt::Key_W, [this] { close(); });
  if (page_->ClosedByEscape) {
    add(Qt::Key_Escape, [this] { close(); });
  }
  for (const auto& [key, button] :
       {std::pair(Qt::Key_PageUp, page_->PageUp), std::pair(Qt::Key_PageDown, page_->PageDown)}) {
    if (button != nullptr) {
      add(key, [button = button] { button->UserClick(); });
    }
  }
  if (bar_ != nullptr) {
    add(Qt::Key_F10, [this] { bar_->setActiveAction(bar_->actions().first()); });
  }
}

forms::Control* PageWindow::ControlOf(const QWidget& widget) const {
  const auto found = std::find_if(views_.begin(), views_.end(), [&widget](const auto& view) {
    return view.second.Widget == &widget;
  });
  return found == views_.end() ? nullptr : found->first;
}

QWidget* PageWindow::WidgetOf(forms::Control& control) const {
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
  for (QTimer* timer : {&fitting_, &announcing_}) {
    timer->stop();
    timer->blockSignals(true);  // a screen may still start it
  }
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
  texts_ = TextsInView();  // a reader finds them by itself now
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
