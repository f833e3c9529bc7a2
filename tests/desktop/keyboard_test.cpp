// Where the keyboard is, and what keys do.

#include <QAction>
#include <QKeyEvent>
#include <QMenu>
#include <QMenuBar>
#include <QSet>
#include <QTimer>

#include "desktop_fixture.h"
#include "forms/controls.h"
#include "lesson/Form9.h"
#include "shell/Form2.h"
#include "shell/Form5.h"
#include "shell/viewers.h"
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

  static void Press(const char* page, int key, Qt::KeyboardModifiers modifiers = {}) {
    Window(page)->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(Window(page)));
    QWidget* focus = Window(page)->focusWidget();
    QTest::keyClick(focus == nullptr ? Window(page) : focus, Qt::Key(key), modifiers);
  }
};

TEST_F(KeyboardTest, StaysWithItsControlThroughAMotionAndItsPause) {
  The<Form12>().Show();
  The<Form12>().DesenharGráfico.UserClick();
  The<Form12>().HScroll1.Value = 0;
  Find("Form12", "DerivadaDireita")->setFocus();
  QStringList holders;
  QTimer::singleShot(20, [&] {
    holders << Holder("Form12");
    Find("Form12", "Parar")->setFocus();
    QTimer::singleShot(20, [&] {
      holders << Holder("Form12");
      Press("Form12", Qt::Key_Space);
      holders << Holder("Form12");
    });
    Press("Form12", Qt::Key_Space);
  });
  Press("Form12", Qt::Key_Space);
  EXPECT_EQ(holders, QStringList({"", "Continuar", "Parar"}));
  EXPECT_EQ(Holder("Form12"), "Parar");
  Find("Form12", "DerivadaEsquerda")->setFocus();
  Press("Form12", Qt::Key_Space);
  EXPECT_EQ(Holder("Form12"), "DerivadaEsquerda");
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

TEST_F(KeyboardTest, TurnsAndClosesPages) {
  The<Form2>().Show();
  auto& lesson = The<Form9>();
  lesson.Show();
  Press("Form9", Qt::Key_PageDown);
  EXPECT_EQ(lesson.Label3.Caption(), "1");
  Press("Form9", Qt::Key_PageUp);
  EXPECT_EQ(lesson.Label3.Caption(), "1") << "where Anterior is locked";

  auto& viewer = The<Form3>();
  viewer.Show();
  Find("Form3", "SetaD")->setFocus();
  for (int press = 0; press < 20; ++press) {
    QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, "\r", press > 0);
    QApplication::sendEvent(Window("Form3")->focusWidget(), &held);
  }
  EXPECT_EQ(viewer.Label2.Caption(), "2") << "a held key presses once";
  for (const char* number : {"3", "4", "4"}) {
    Press("Form3", Qt::Key_PageDown);
    EXPECT_EQ(viewer.Label2.Caption(), number);
  }
  Press("Form3", Qt::Key_PageUp);
  EXPECT_EQ(viewer.Label2.Caption(), "3");

  The<Form5>().Show();
  The<Form12>().Show();
  for (const char* page : {"Form3", "Form5", "Form9", "Form12"}) {
    Press(page, Qt::Key_Escape);
  }
  EXPECT_EQ(Window("Form3"), nullptr);
  EXPECT_EQ(Window("Form5"), nullptr);
  EXPECT_NE(Window("Form12"), nullptr);
  for (const char* page : {"Form9", "Form12"}) {
    Press(page, Qt::Key_W, Qt::ControlModifier);
    EXPECT_EQ(Window(page), nullptr) << page;
  }
}

}  // namespace
}  // namespace clinorama::tests
