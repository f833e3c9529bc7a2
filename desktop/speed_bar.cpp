#include "desktop/speed_bar.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QTimer>
#include <algorithm>
#include <array>
#include <utility>

namespace clinorama::desktop {
namespace {

// The repetition of a held key can arrive as a release and a press a moment apart; only a release
// that lasts is one.
constexpr int KeyReleaseMilliseconds = 60;

bool MovesTheBar(int key) {
  constexpr std::array Keys = {Qt::Key_Left, Qt::Key_Right, Qt::Key_Up,     Qt::Key_Down,
                               Qt::Key_Home, Qt::Key_End,   Qt::Key_PageUp, Qt::Key_PageDown};
  return std::find(Keys.begin(), Keys.end(), key) != Keys.end();
}

}  // namespace

SpeedBar::SpeedBar(std::function<void(bool held)> onHold, QWidget* parent)
    : QScrollBar(Qt::Horizontal, parent), onHold_(std::move(onHold)), release_(new QTimer(this)) {
  setFocusPolicy(Qt::StrongFocus);
  setInvertedControls(false);  // the arrow to the right moves the thumb to the right
  release_->setSingleShot(true);
  release_->setInterval(KeyReleaseMilliseconds);
  QObject::connect(release_, &QTimer::timeout, this, [this] { Hold(false); });
}

void SpeedBar::Hold(bool held) {
  release_->stop();
  if (held == held_) {
    return;
  }
  held_ = held;
  onHold_(held);
}

void SpeedBar::HoldKey(int key, bool pressed) {
  if (!MovesTheBar(key)) {
    return;
  }
  if (pressed) {
    Hold(true);
  } else {
    release_->start();
  }
}

bool SpeedBar::event(QEvent* event) {
  switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
      if (static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton) {
        Hold(true);
      }
      break;
    case QEvent::MouseButtonRelease:
      if (static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton) {
        Hold(false);
      }
      break;
    case QEvent::KeyPress:
      HoldKey(static_cast<QKeyEvent*>(event)->key(), true);
      break;
    case QEvent::KeyRelease:
      HoldKey(static_cast<QKeyEvent*>(event)->key(), false);
      break;
    case QEvent::FocusOut:
    case QEvent::Hide:
    case QEvent::EnabledChange:
      Hold(false);
      break;
    default:
      break;
  }
  return QScrollBar::event(event);
}

}  // namespace clinorama::desktop
