#include "desktop/activation.h"

#include <QApplication>
#include <QEvent>

#include "desktop/page_window.h"
#include "forms/application.h"

namespace clinorama::desktop {
namespace {

// Window managers were seen to take some 40 ms from one window to the next.
constexpr int MillisecondsToRest = 150;

void CameTo(QWidget* window) {
  auto* shown = dynamic_cast<PageWindow*>(window);
  if (shown != nullptr && shown->Page() != nullptr) {
    forms::Application::Current().BecameActive(*shown->Page());
  }
}

}  // namespace

Activation::Activation() {
  rest_.setSingleShot(true);
  rest_.setInterval(MillisecondsToRest);
  rest_.callOnTimeout([] { CameTo(QApplication::activeWindow()); });
  qApp->installEventFilter(this);
}

bool Activation::eventFilter(QObject* watched, QEvent* event) {
  switch (event->type()) {
    case QEvent::WindowActivate:
      rest_.start();
      break;
    case QEvent::MouseButtonPress:
    case QEvent::KeyPress:
    case QEvent::TouchBegin:
      if (auto* widget = qobject_cast<QWidget*>(watched)) {
        CameTo(widget->window());
      }
      break;
    default:
      break;
  }
  return false;
}

}  // namespace clinorama::desktop
