#include "desktop/menu_bar.h"

#include <QAction>
#include <QKeyEvent>
#include <QMenu>
#include <string>
#include <vector>

#include "desktop/look.h"
#include "forms/controls.h"
#include "forms/page.h"

namespace clinorama::desktop {
namespace {

template <class Bar>
void AddItems(Bar& bar, const std::vector<forms::Menu*>& items) {
  const std::vector<std::size_t> letters = forms::LettersThatChoose(items);
  for (std::size_t i = 0; i < items.size(); ++i) {
    forms::Menu* item = items[i];
    std::string marked = item->Caption;
    if (letters[i] != std::string::npos) {
      marked.insert(letters[i], 1, '&');
    }
    if (item->Items().empty()) {
      QAction* action = bar.addAction(TextFor(marked));
      action->setObjectName(TextFor(item->Name));
      QObject::connect(action, &QAction::triggered, &bar, [item] { item->UserClick(); });
    } else {
      QMenu* menu = bar.addMenu(TextFor(marked));
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
