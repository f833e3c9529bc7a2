#include "desktop/menu_bar.h"

#include <QAction>
#include <QKeyEvent>
#include <QMenu>
#include <QSet>
#include <vector>

#include "desktop/look.h"
#include "forms/controls.h"
#include "forms/page.h"

namespace clinorama::desktop {
namespace {

// The caption with a mark before its first letter that no other item has.
QString WithLetter(const QString& caption, QSet<QChar>& taken) {
  for (int i = 0; i < caption.size(); ++i) {
    const QChar letter = caption[i].toLower();
    if (letter >= 'a' && letter <= 'z' && !taken.contains(letter)) {
      taken.insert(letter);
      return QString(caption).insert(i, '&');
    }
  }
  return caption;
}

template <class Bar>
void AddItems(Bar& bar, const std::vector<forms::Menu*>& items) {
  QSet<QChar> taken;
  for (forms::Menu* item : items) {
    const QString caption = WithLetter(TextFor(item->Caption), taken);
    if (item->Items().empty()) {
      QAction* action = bar.addAction(caption);
      action->setObjectName(TextFor(item->Name));
      QObject::connect(action, &QAction::triggered, &bar, [item] { item->UserClick(); });
    } else {
      QMenu* menu = bar.addMenu(caption);
      menu->setObjectName(TextFor(item->Name));
      AddItems(*menu, item->Items());
    }
  }
}

}  // namespace

MenuBar::MenuBar(forms::Page& page, QWidget* parent) : QMenuBar(parent) {
  AddItems(*this, page.MenuBar());
}

// The toolkit watches the window here, and every widget while Alt is pressed.
bool MenuBar::eventFilter(QObject* watched, QEvent* event) {
  switch (event->type()) {
    case QEvent::ShortcutOverride:
      altPressed_ = static_cast<QKeyEvent*>(event)->key() == Qt::Key_Alt;
      update();
      break;
    case QEvent::KeyRelease:
    case QEvent::WindowDeactivate:
      altPressed_ = false;
      update();
      break;
    default:
      break;
  }
  return QMenuBar::eventFilter(watched, event);
}

}  // namespace clinorama::desktop
