// A random user of the real widgets. The events of mouse and keyboard go into the queue of the
// window system in batches, so that some arrive late, as on a display that was stalled.
// Usage: widgets_monkey [seconds [seed]]

#include <qpa/qwindowsysteminterface.h>
#include <QAbstractButton>
#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QPointer>
#include <QTimer>
#include <QWidget>
#include <QWindow>

#include "desktop/look.h"
#include "desktop/qt_host.h"
#include "forms/application.h"
#include "journal.h"
#include "lesson/Form9.h"
#include "shell/Form2.h"
#include "tests/support/two_screens.h"
#include "workpage/Form12.h"

namespace clinorama::tests {
namespace {

struct MonkeyHost final : desktop::QtHost {
  void Wait(int /*milliseconds*/) override { QtHost::Wait(0); }  // motions at their quickest
  [[noreturn]] void End() override {
    std::fputs("somebody ended the program\n", stderr);
    std::abort();
  }
};

class Monkey {
 public:
  explicit Monkey(Journal& journal) : journal_(journal) {}

  // Queues some events, which are not delivered before this returns.
  void Act() {
    if (journal_.Over()) {
      journal_.TellTotal();
      std::fflush(stdout);
      std::_Exit(EXIT_SUCCESS);
    }
    for (int batch = journal_.OneIn(10) ? 40 : 1 + journal_.Below(6); batch > 0; --batch) {
      ActOn(ChooseWindow());
    }
  }

 private:
  // Mostly an open box, or one of the two pages where things move.
  QWidget& ChooseWindow() {
    QWidgetList windows;
    for (QWidget* window : QApplication::topLevelWidgets()) {
      const QString name = window->objectName();
      const bool often = window->isModal() || name == "Form9" || name == "Form12";
      if (window->isVisible()) {
        windows.append(QWidgetList(often ? 4 : 1, window));
      }
    }
    return *journal_.OneOf(windows);
  }

  void ActOn(QWidget& window) {
    for (const char* end : {"Sair", "AbandonarPrograma"}) {  // these would end the program
      for (auto* item : window.findChildren<QAction*>(end)) {
        item->setEnabled(false);
      }
    }
    const std::string name = window.objectName().toStdString();
    const int what = journal_.Below(16);
    if (what == 0) {
      if (name != "Form2" && journal_.OneIn(5)) {
        journal_.Note("close " + name);
        QWindowSystemInterface::handleCloseEvent(window.windowHandle());
      }
    } else if (what == 1) {
      journal_.Note("activate " + name);
      window.activateWindow();
    } else if (what == 2 && journal_.OneIn(5)) {
      journal_.Note("move " + name);
      window.move(journal_.Below(2900), journal_.Below(700));
    } else {
      what < 5 ? Press(window) : Click(window);
    }
  }

  void Press(QWidget& window) {
    static constexpr Qt::Key Keys[] = {
        Qt::Key_Return, Qt::Key_Space,  Qt::Key_Tab,    Qt::Key_Escape,  Qt::Key_Left,
        Qt::Key_Right,  Qt::Key_Down,   Qt::Key_F10,    Qt::Key_Alt,     Qt::Key_X,
        Qt::Key_2,      Qt::Key_Delete, Qt::Key_PageUp, Qt::Key_PageDown};
    const Qt::Key key = journal_.OneOf(Keys);
    const QString text = key == Qt::Key_X || key == Qt::Key_2 ? QString(QChar(key)) : QString();
    journal_.Note("key " + std::to_string(key) + " in " + window.objectName().toStdString());
    for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
      QWindowSystemInterface::handleKeyEvent(window.windowHandle(), type, key, Qt::NoModifier,
                                             text);
    }
  }

  // Mostly something that acts; often the same as before, as a user does who leafs through the
  // lesson.
  QWidget* ChooseWidget(QWidget& window) {
    if (last_ != nullptr && last_->window() == &window && journal_.OneIn(3)) {
      return last_;
    }
    QWidgetList widgets = {&window};
    for (QWidget* widget : window.findChildren<QWidget*>()) {
      const bool acts = qobject_cast<QAbstractButton*>(widget) != nullptr && widget->isEnabled();
      if (widget->isVisible() && widget->window() == &window && (acts || journal_.OneIn(8))) {
        widgets.push_back(widget);
      }
    }
    return journal_.OneOf(widgets);
  }

  void Click(QWidget& window) {
    QWidget* widget = ChooseWidget(window);
    last_ = widget;
    if (journal_.OneIn(10)) {
      journal_.Note("action of " + widget->objectName().toStdString());
      if (auto* actions = QAccessible::queryAccessibleInterface(widget)->actionInterface()) {
        actions->doAction(QAccessibleActionInterface::pressAction());
      }
      return;
    }
    const Qt::MouseButton button = journal_.OneIn(20) ? Qt::RightButton : Qt::LeftButton;
    // Beside the middle there are the ends of bars, and the items of menus.
    const QPoint point = journal_.OneIn(2) ? widget->rect().center()
                                           : QPoint(journal_.Below(widget->width() + 1),
                                                    journal_.Below(widget->height() + 1));
    const QPointF local = widget->mapTo(&window, point);
    const QPointF global = widget->mapToGlobal(point);
    journal_.Note("click " + widget->objectName().toStdString() + " in " +
                  window.objectName().toStdString());
    const auto send = [&](QEvent::Type type) {
      const bool down = type == QEvent::MouseButtonPress;
      QWindowSystemInterface::handleMouseEvent(window.windowHandle(), ++time_, local, global,
                                               down ? button : Qt::NoButton, button, type);
    };
    for (int clicks = journal_.OneIn(10) ? 2 : 1; clicks > 0; --clicks) {
      send(QEvent::MouseButtonPress);
      if (!journal_.OneIn(30)) {
        send(QEvent::MouseButtonRelease);
      }
    }
    if (journal_.OneIn(2)) {
      time_ += 1000;  // no double click then
    }
  }

  Journal& journal_;
  QPointer<QWidget> last_;  // that was clicked
  ulong time_ = 0;
};

}  // namespace
}  // namespace clinorama::tests

int main(int argc, char** argv) {
  using namespace clinorama;  // NOLINT(google-build-using-namespace): it is the end of the program
  const tests::TwoScreens screens;
  qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
  QApplication qt(argc, argv);
  tests::Journal journal(argc, argv);
  desktop::SetLook();
  tests::MonkeyHost host;
  forms::Application application(host);
  forms::The<Form2>().Show();
  forms::The<Form12>().Show();
  forms::The<Form9>().Show();
  for (int page = 1; page <= 6; ++page) {
    forms::The<Form9>().Seguinte.UserClick();  // the next page moves
  }
  tests::Monkey monkey(journal);
  QTimer timer;
  timer.callOnTimeout([&monkey] { monkey.Act(); });
  timer.start(1);
  return QApplication::exec();
}
