#include "desktop/program.h"

#include <QKeyEvent>
#include <QLineEdit>

#include "desktop/speed_bar.h"

namespace clinorama::desktop {

// On X a repetition is a release and a press of the same moment. The toolkit marks it as one only
// if both have arrived already.
bool Program::Repeats(const QKeyEvent& press) const {
  return press.isAutoRepeat() ||
         (press.key() == releasedKey_ && press.timestamp() == releasedAt_ && releasedAt_ != 0);
}

bool Program::notify(QObject* receiver, QEvent* event) {
  switch (event->type()) {
    case QEvent::KeyRelease:
      if (event->spontaneous() && receiver->isWindowType()) {
        releasedKey_ = static_cast<QKeyEvent*>(event)->key();
        releasedAt_ = static_cast<QKeyEvent*>(event)->timestamp();
      }
      break;
    case QEvent::ShortcutOverride:
    case QEvent::KeyPress: {
      const auto& press = *static_cast<QKeyEvent*>(event);
      const bool wanted = qobject_cast<QLineEdit*>(focusWidget()) != nullptr ||
                          dynamic_cast<SpeedBar*>(focusWidget()) != nullptr ||
                          activePopupWidget() != nullptr || activeModalWidget() != nullptr ||
                          press.key() == Qt::Key_Tab || press.key() == Qt::Key_Backtab;
      if (event->spontaneous() && receiver->isWindowType() && Repeats(press) && !wanted) {
        event->accept();
        return true;
      }
      break;
    }
    default:
      break;
  }
  return QApplication::notify(receiver, event);
}

}  // namespace clinorama::desktop
