// The speed bar: its direction, and what counts as holding it.

#include "desktop/speed_bar.h"

#include <QKeyEvent>

#include "desktop_fixture.h"
#include "forms/controls.h"
#include "workpage/Form12.h"

namespace clinorama::tests {
namespace {

using desktop::SpeedBar;
using forms::The;

// The debounce of a released key, with air.
constexpr int AfterRelease = 150;

class SpeedBarTest : public DesktopTest {
 protected:
  SpeedBarTest() {
    The<Form12>().Show();
    bar = Find<SpeedBar>("Form12", "HScroll1");
  }

  void Send(QEvent::Type type, int key, bool repeat = false) {
    QKeyEvent event(type, key, Qt::NoModifier, {}, repeat);
    QApplication::sendEvent(bar, &event);
  }

  SpeedBar* bar = nullptr;
};

TEST_F(SpeedBarTest, LeftEndIsTheSlowest) {
  EXPECT_EQ(The<Form12>().HScroll1.Value(), 5);
  QTest::keyClick(bar, Qt::Key_Right);
  EXPECT_EQ(The<Form12>().HScroll1.Value(), 4);
  QTest::keyClick(bar, Qt::Key_Left);
  QTest::keyClick(bar, Qt::Key_Left);
  EXPECT_EQ(The<Form12>().HScroll1.Value(), 6);
  EXPECT_LT(bar->sliderPosition(), 5) << "steps from the left end";
  // The arrows at the ends move the thumb their own way.
  QTest::mouseClick(bar, Qt::LeftButton, {}, QPoint(bar->width() - 5, bar->height() / 2));
  EXPECT_EQ(The<Form12>().HScroll1.Value(), 5);
  QTest::mouseClick(bar, Qt::LeftButton, {}, QPoint(5, bar->height() / 2));
  EXPECT_EQ(The<Form12>().HScroll1.Value(), 6);
}

TEST_F(SpeedBarTest, HeldByTheMouseOnAnyPart) {
  // The arrows, the groove on both sides of the thumb, and the thumb in the middle.
  for (const int x :
       {5, bar->width() / 4, bar->width() / 2, bar->width() * 3 / 4, bar->width() - 5}) {
    The<Form12>().HScroll1.Value = 5;
    const QPoint place(x, bar->height() / 2);
    QTest::mousePress(bar, Qt::LeftButton, {}, place);
    EXPECT_TRUE(application.BarHeld()) << x;
    QTest::mouseRelease(bar, Qt::LeftButton, {}, place);
    EXPECT_FALSE(application.BarHeld()) << x;
  }
}

TEST_F(SpeedBarTest, HeldByAKeyThroughItsRepetition) {
  Send(QEvent::KeyPress, Qt::Key_Left);
  Send(QEvent::KeyRelease, Qt::Key_Left, true);
  EXPECT_TRUE(application.BarHeld());
  Send(QEvent::KeyPress, Qt::Key_Left, true);
  QTest::qWait(AfterRelease);
  EXPECT_TRUE(application.BarHeld());
  Send(QEvent::KeyRelease, Qt::Key_Left);
  QTest::qWait(AfterRelease);
  EXPECT_FALSE(application.BarHeld());
}

TEST_F(SpeedBarTest, OtherKeysAndALostFocusDoNotHoldIt) {
  for (const int key : {int(Qt::Key_Alt), int(Qt::Key_Shift), int(Qt::Key_A)}) {
    Send(QEvent::KeyPress, key);
    EXPECT_FALSE(application.BarHeld()) << key;
  }
  Send(QEvent::KeyPress, Qt::Key_Right);
  QFocusEvent out(QEvent::FocusOut);
  QApplication::sendEvent(bar, &out);
  EXPECT_FALSE(application.BarHeld());
}

}  // namespace
}  // namespace clinorama::tests
