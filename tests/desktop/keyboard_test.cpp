// Where the keyboard is. keys_test.py uses the whole program by keys.

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <QSet>
#include <QTimer>

#include "desktop_fixture.h"
#include "forms/controls.h"
#include "lesson/Form9.h"
#include "shell/Form2.h"
#include "workpage/Form12.h"

namespace clinorama::tests {
namespace {

using forms::The;

class KeyboardTest : public DesktopTest {
 protected:
  // The name of the control that has the keyboard in a page's window.
  static QString Holder(const char* page) {
    const QWidget* widget = Window(page)->focusWidget();
    return widget == nullptr ? QString() : widget->objectName();
  }

  static void Press(const char* page, Qt::Key key) {
    Window(page)->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(Window(page)));
    QWidget* focus = Window(page)->focusWidget();
    QTest::keyClick(focus == nullptr ? Window(page) : focus, key);
  }
};

TEST_F(KeyboardTest, ComesBackToAControlThatAMotionLocked) {
  The<Form12>().Show();
  The<Form12>().DesenharGráfico.UserClick();
  The<Form12>().HScroll1.Value = 0;
  Find("Form12", "DerivadaDireita")->setFocus();
  QTimer::singleShot(20, [] { EXPECT_EQ(Holder("Form12"), ""); });
  Press("Form12", Qt::Key_Space);
  EXPECT_EQ(Holder("Form12"), "DerivadaDireita");
}

TEST_F(KeyboardTest, GoesOnWithTheTabulatorFromALockedControl) {
  The<Form12>().Show();
  Find("Form12", "CorFundo")->setFocus();
  The<Form12>().CorFundo.Enabled = false;
  EXPECT_EQ(Holder("Form12"), "");
  Press("Form12", Qt::Key_Tab);
  EXPECT_EQ(Holder("Form12"), "EixosRad");
  The<Form12>().CorFundo.Enabled = true;
  EXPECT_EQ(Holder("Form12"), "EixosRad") << "the user has gone on";
}

TEST_F(KeyboardTest, EachMenuItemHasItsLetter) {
  The<Form2>().Show();
  The<Form9>().Show();
  The<Form12>().Show();
  for (const char* page : {"Form2", "Form9", "Form12"}) {
    auto* bar = Window(page)->findChild<QMenuBar*>();
    QList<QList<QAction*>> menus = {bar->actions()};
    for (const QMenu* menu : bar->findChildren<QMenu*>()) {
      menus << menu->actions();
    }
    for (const auto& items : menus) {
      QSet<QKeySequence> letters;
      for (const QAction* item : items) {
        letters << QKeySequence::mnemonic(item->text());
      }
      EXPECT_EQ(letters.size(), items.size()) << page;
      EXPECT_FALSE(letters.contains(QKeySequence())) << page;
    }
    Press(page, Qt::Key_F10);
    EXPECT_EQ(bar->activeAction(), bar->actions().first()) << page;
    QApplication::activePopupWidget()->close();
  }
}

}  // namespace
}  // namespace clinorama::tests
